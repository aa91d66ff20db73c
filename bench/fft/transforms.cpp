// Forward transforms beside those of others, what a record costs, and where a second thread pays.
#include <qvx/qvxcore.h>

#include "frame/families.h"
#include "peers/fftw.h"
#include "peers/kissfft.h"

namespace bench {

namespace {

constexpr int kComplexes = 0;
constexpr int kReals = 1;

template <class T> const T* source(const Vectors& v, bool inPlace) {
  return reinterpret_cast<const T*>(inPlace ? v.slabs.destination() : v.slabs.source(0));
}
template <class T> T* destination(const Vectors& v) { return reinterpret_cast<T*>(v.slabs.destination()); }

// clang-format off
// Ours, with a record and working memory of its own. Real spectra in the layout that the others have.
template <class Record, class Run, class InitAlloc, class Free, class GetBufSize> class Own {
 public:
  Own(int n, Run run, InitAlloc initAlloc, Free free, GetBufSize getBufSize) : run_(run), free_(free) {
    initAlloc(&record_, std::countr_zero(static_cast<unsigned>(n)), QVX_FFT_SCALE_NONE, 0);
    int bytes = 0;
    getBufSize(record_, &bytes);
    buffer_ = bytes > 0 ? qvxsMalloc_8u(bytes) : nullptr;
  }
  ~Own() { free_(record_); qvxsFree(buffer_); }
  Own(const Own&) = delete;
  Own& operator=(const Own&) = delete;
  template <class T> void run(const T* src, T* dst) const {
    if constexpr (std::is_same_v<Run, QvxStatus (*)(const T*, T*, const Record*, Qvx8u*)>) run_(src, dst, record_, buffer_);
    else runComplex(src, dst, run_);
  }

 private:
  template <class T, class C> void runComplex(const T* src, T* dst, QvxStatus (*run)(const C*, C*, const Record*, Qvx8u*)) const {
    run(reinterpret_cast<const C*>(src), reinterpret_cast<C*>(dst), record_, buffer_);
  }
  Run run_;
  Free free_;
  Record* record_ = nullptr;
  Qvx8u* buffer_ = nullptr;
};
template <class C, class Record> auto maker(QvxStatus (*run)(const C*, C*, const Record*, Qvx8u*), QvxStatus (*initAlloc)(Record**, int, int, int),
                                            QvxStatus (*free)(Record*), QvxStatus (*getBufSize)(const Record*, int*)) {
  return [=](int n, const auto*, auto*) {
    return std::make_shared<Own<Record, decltype(run), decltype(initAlloc), decltype(free), decltype(getBufSize)>>(n, run, initAlloc, free, getBufSize);
  };
}
template <class T> const auto kComplexOf = maker(qvxsFFTFwd_CToC_32fc, qvxsFFTInitAlloc_C_32fc, qvxsFFTFree_C_32fc, qvxsFFTGetBufSize_C_32fc);
template <> const auto kComplexOf<double> = maker(qvxsFFTFwd_CToC_64fc, qvxsFFTInitAlloc_C_64fc, qvxsFFTFree_C_64fc, qvxsFFTGetBufSize_C_64fc);
template <class T> const auto kRealOf = maker(qvxsFFTFwd_RToCCS_32f, qvxsFFTInitAlloc_R_32f, qvxsFFTFree_R_32f, qvxsFFTGetBufSize_R_32f);
template <> const auto kRealOf<double> = maker(qvxsFFTFwd_RToCCS_64f, qvxsFFTInitAlloc_R_64f, qvxsFFTFree_R_64f, qvxsFFTGetBufSize_R_64f);
template <template <class, bool> class Plan, class T, bool kReal> auto maker() {
  return [](int n, const T* src, T* dst) { return std::make_shared<Plan<T, kReal>>(n, src, dst); };
}
// clang-format on

// make(n, src, dst) returns an object to run() on these two. In place, the timed data are zeros, which transforms leave as they
// are.
template <class T, class Make> Contender contender(std::string name, Make make, bool inPlace, int threads = 1) {
  const auto once = [=](const Vectors& v) {
    std::vector<T> kept(source<T>(v, inPlace), source<T>(v, inPlace) + 2 * static_cast<size_t>(v.n));
    const auto plan = make(v.n, source<T>(v, inPlace), destination<T>(v));
    std::copy(kept.begin(), kept.end(), const_cast<T*>(source<T>(v, inPlace)));
    plan->run(source<T>(v, inPlace), destination<T>(v));
  };
  const auto timed = [=](benchmark::State& state, const Vectors& v) {
    const T* src = source<T>(v, inPlace);
    T* dst = destination<T>(v);
    const auto plan = make(v.n, src, dst);
    std::fill_n(const_cast<T*>(src), 2 * static_cast<size_t>(v.n), T(0));
    for (auto _ : state) {
      plan->run(src, dst);
      benchmark::ClobberMemory();
    }
  };
  return {std::move(name), once, timed, Agreement::kDiffers, threads};
}

// Two transforms agree up to rounding.
template <class T> bool agreeing(const T* ours, const T* peers, size_t count) {
  double error = 0;
  double size = 0;
  for (size_t i = 0; i < count; ++i) {
    const double difference = static_cast<double>(ours[i]) - static_cast<double>(peers[i]);
    error += difference * difference;
    size += static_cast<double>(ours[i]) * static_cast<double>(ours[i]);
  }
  return std::sqrt(error / size) < 20 * std::numeric_limits<T>::epsilon();
}

std::vector<int> lengths(int from, int to) {
  std::vector<int> n;
  for (int order = from; order <= to; ++order) n.push_back(1 << order);
  return n;
}

template <class T, int kKind> Case transforms(const std::string& name, bool inPlace, std::vector<int> sizes) {
  Case c;
  c.name = name;
  c.table = Table::kTransforms;
  c.sizes = std::move(sizes);
  const auto numbers = [](const Vectors& v) {
    return kKind == kReals ? static_cast<size_t>(v.n) + 2 : 2 * static_cast<size_t>(v.n);
  };
  c.fillSources = [=](const Vectors& v) { fillFloats(const_cast<T*>(source<T>(v, inPlace)), numbers(v), 1); };
  c.fillDestination = [=](const Vectors& v) {
    if (!inPlace) fillFloats(destination<T>(v), numbers(v), 2);
  };
  c.saveDestination = [=](const Vectors& v) { std::memcpy(v.slabs.saved(), destination<T>(v), numbers(v) * sizeof(T)); };
  c.agrees = [=](const Vectors& v, Agreement) {
    return agreeing(reinterpret_cast<const T*>(v.slabs.saved()), destination<T>(v), numbers(v));
  };
  c.operations = [](int n) { return (kKind == kReals ? 2.5 : 5) * n * std::log2(n); };
  return c;
}

struct Group {
  const char* name;
  int from;
  int to;
};
constexpr Group kGroups[] = {{"short", 3, 12}, {"medium", 13, 16}, {"long", 17, 22}};

template <class T, int kKind, class Make> void besideOthers(Suite& suite, const std::string& name, Make make) {
  for (const bool inPlace : {false, true}) {
    for (const Group& group : kGroups) {
      Case c = transforms<T, kKind>(name + (inPlace ? "_I" : ""), inPlace, lengths(group.from, group.to));
      c.group = group.name;
      c.contenders.push_back(contender<T>("ours", make, inPlace));
      c.contenders.push_back(contender<T>("FFTW", maker<fftw::MeasuredPlan, T, kKind == kReals>(), inPlace));
      if (fftw::isBuilt<T>()) {
        c.contenders.push_back(contender<T>("FFTW, built", maker<fftw::BuiltPlan, T, kKind == kReals>(), inPlace));
        if (1 << group.to <= fftw::kMostPatient)
          c.contenders.push_back(contender<T>("FFTW, patient", maker<fftw::PatientPlan, T, kKind == kReals>(), inPlace));
      }
      // In place it copies.
      if constexpr (sizeof(T) == 4) {
        if (!inPlace) c.contenders.push_back(contender<T>("kissfft", maker<kissfft::Plan, T, kKind == kReals>(), inPlace));
      }
      suite.add(std::move(c));
    }
  }
}

// The time to make and to release a record over that of a transform.
template <class T, int kKind, class Make> void record(Suite& suite, const std::string& name, Make make) {
  Case c = transforms<T, kKind>(name, false, lengths(3, 20));
  c.agrees = [](const Vectors&, Agreement) { return true; };
  c.contenders.push_back(contender<T>("ours", make, false));
  Contender made = c.contenders[0];
  made.peer = "record";
  made.isPeer = false;
  made.timed = [=](benchmark::State& state, const Vectors& v) {
    for (auto _ : state) benchmark::DoNotOptimize(make(v.n, source<T>(v, false), destination<T>(v)));
  };
  c.contenders.push_back(std::move(made));
  suite.add(std::move(c));
}

template <class T, int kKind, class Make> void threads(Suite& suite, const std::string& name, Make make) {
  Case c = transforms<T, kKind>(name + ", two threads", false, lengths(13, 17));
  c.inRealTime = true;
  c.contenders.push_back(contender<T>("ours", make, false, 2));
  c.contenders.push_back(contender<T>("one thread", make, false, 1));
  c.contenders.back().isPeer = false;
  suite.add(std::move(c));
}

}  // namespace

void fft32fc(Suite& suite) { besideOthers<Qvx32f, kComplexes>(suite, "FFTFwd_CToC_32fc", kComplexOf<Qvx32f>); }
void fft64fc(Suite& suite) { besideOthers<Qvx64f, kComplexes>(suite, "FFTFwd_CToC_64fc", kComplexOf<Qvx64f>); }
void fft32f(Suite& suite) { besideOthers<Qvx32f, kReals>(suite, "FFTFwd_RToCCS_32f", kRealOf<Qvx32f>); }
void fft64f(Suite& suite) { besideOthers<Qvx64f, kReals>(suite, "FFTFwd_RToCCS_64f", kRealOf<Qvx64f>); }
void fftRecords(Suite& suite) {
  record<Qvx32f, kComplexes>(suite, "FFTInitAlloc_C_32fc", kComplexOf<Qvx32f>);
  record<Qvx64f, kComplexes>(suite, "FFTInitAlloc_C_64fc", kComplexOf<Qvx64f>);
  record<Qvx32f, kReals>(suite, "FFTInitAlloc_R_32f", kRealOf<Qvx32f>);
  record<Qvx64f, kReals>(suite, "FFTInitAlloc_R_64f", kRealOf<Qvx64f>);
  threads<Qvx32f, kComplexes>(suite, "FFTFwd_CToC_32fc", kComplexOf<Qvx32f>);
  threads<Qvx64f, kComplexes>(suite, "FFTFwd_CToC_64fc", kComplexOf<Qvx64f>);
}

}  // namespace bench
