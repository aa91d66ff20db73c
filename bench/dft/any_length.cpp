// Forward transforms of any length beside FFTW's, out of order beside in order, and what a record costs.
#include "frame/families.h"
#include "peers/fftw.h"

namespace bench {

namespace {

template <class Record, class Run> class Own {
 public:
  struct Life {
    QvxStatus (*initAlloc)(Record**, int, int, int);
    QvxStatus (*free)(Record*);
    QvxStatus (*getBufSize)(const Record*, int*);
  };
  Own(int n, Run run, Life life) : run_(run), free_(life.free) {
    life.initAlloc(&record_, n, QVX_FFT_SCALE_NONE, 0);
    int bytes = 0;
    life.getBufSize(record_, &bytes);
    buffer_ = bytes > 0 ? qvxsMalloc_8u(bytes) : nullptr;
  }
  ~Own() {
    free_(record_);
    qvxsFree(buffer_);
  }
  Own(const Own&) = delete;
  Own& operator=(const Own&) = delete;
  template <class T> void run(const T* src, T* dst) const { transform(src, dst, run_); }

 private:
  template <class T, class C> void transform(const T* src, T* dst, QvxStatus (*run)(const C*, C*, const Record*, Qvx8u*)) const {
    run(reinterpret_cast<const C*>(src), reinterpret_cast<C*>(dst), record_, buffer_);
  }
  Run run_;
  QvxStatus (*free_)(Record*);
  Record* record_ = nullptr;
  Qvx8u* buffer_ = nullptr;
};

template <class C, class Record>
auto maker(QvxStatus (*run)(const C*, C*, const Record*, Qvx8u*), typename Own<Record, decltype(run)>::Life life) {
  return [=](int n, const auto*, auto*) { return std::make_shared<Own<Record, decltype(run)>>(n, run, life); };
}
template <template <class, bool> class Plan, class T, bool kReal> auto peer() {
  return [](int n, const T* src, T* dst) { return std::make_shared<Plan<T, kReal>>(n, src, dst); };
}

// Planning writes both vectors, so the source is kept.
template <class T, class Make> Contender contender(std::string name, Make make) {
  const auto once = [=](const Vectors& v) {
    auto* src = reinterpret_cast<T*>(v.slabs.source(0));
    auto* dst = reinterpret_cast<T*>(v.slabs.destination());
    const std::vector<T> kept(src, src + 2 * static_cast<size_t>(v.n));
    const auto plan = make(v.n, src, dst);
    std::copy(kept.begin(), kept.end(), src);
    plan->run(src, dst);
  };
  const auto timed = [=](benchmark::State& state, const Vectors& v) {
    auto* src = reinterpret_cast<T*>(v.slabs.source(0));
    auto* dst = reinterpret_cast<T*>(v.slabs.destination());
    const auto plan = make(v.n, src, dst);
    std::fill_n(src, 2 * static_cast<size_t>(v.n), T(0));
    for (auto _ : state) {
      plan->run(src, dst);
      benchmark::ClobberMemory();
    }
  };
  return {std::move(name), once, timed, Agreement::kDiffers};
}

struct Group {
  const char* name;
  std::vector<int> lengths;
};
const Group kGroups[] = {
    {"short", {3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 20, 24, 30, 36, 45, 48, 60, 72, 90, 96, 100}},
    {"medium", {120, 144, 180, 200, 240, 300, 360, 384, 480, 500, 625, 640, 729, 768, 1000, 1001, 1080, 1200, 1536, 1920, 2000}},
    {"long", {2187, 2520, 3000, 3600, 4000, 4410, 4800, 5000, 8000, 9600, 10000, 44100, 48000, 96000, 100000, 1000000}},
    {"prime", {17, 31, 53, 101, 211, 509, 1009, 2003, 4099, 8191, 65537, 1000003}}};

template <class T, bool kReal> Case transforms(const std::string& name, const Group& group) {
  Case c;
  c.name = name;
  c.group = group.name;
  c.table = Table::kTransforms;
  c.sizes = group.lengths;
  const auto numbers = [](const Vectors& v) {
    return kReal ? 2 * (static_cast<size_t>(v.n) / 2 + 1) : 2 * static_cast<size_t>(v.n);
  };
  c.fillSources = [=](const Vectors& v) { fillFloats(reinterpret_cast<T*>(v.slabs.source(0)), numbers(v), 1); };
  c.fillDestination = [=](const Vectors& v) { fillFloats(reinterpret_cast<T*>(v.slabs.destination()), numbers(v), 2); };
  c.saveDestination = [=](const Vectors& v) { std::memcpy(v.slabs.saved(), v.slabs.destination(), numbers(v) * sizeof(T)); };
  c.agrees = [=](const Vectors& v, Agreement) {
    const auto* ours = reinterpret_cast<const T*>(v.slabs.saved());
    const auto* theirs = reinterpret_cast<const T*>(v.slabs.destination());
    double error = 0;
    double size = 0;
    for (size_t i = 0; i < numbers(v); ++i) {
      const double difference = static_cast<double>(ours[i]) - static_cast<double>(theirs[i]);
      error += difference * difference;
      size += static_cast<double>(ours[i]) * static_cast<double>(ours[i]);
    }
    return std::sqrt(error / size) < 20 * std::numeric_limits<T>::epsilon();
  };
  c.operations = [](int n) { return (kReal ? 2.5 : 5) * n * std::log2(n); };
  return c;
}

template <class T, bool kReal, class Make> void besideFftw(Suite& suite, const std::string& name, Make make) {
  for (const Group& group : kGroups) {
    Case c = transforms<T, kReal>(name, group);
    c.contenders.push_back(contender<T>("ours", make));
    c.contenders.push_back(contender<T>("FFTW", peer<fftw::MeasuredPlan, T, kReal>()));
    if (fftw::isBuilt<T>()) c.contenders.push_back(contender<T>("FFTW, built", peer<fftw::BuiltPlan, T, kReal>()));
    suite.add(std::move(c));
  }
}

// The time to make and to release a record over that of a transform.
template <class T, bool kReal, class Make> void record(Suite& suite, const std::string& name, Make make) {
  for (const Group& group : kGroups) {
    Case c = transforms<T, kReal>(name, group);
    c.agrees = [](const Vectors&, Agreement) { return true; };
    c.contenders.push_back(contender<T>("ours", make));
    Contender made = c.contenders[0];
    made.peer = "record";
    made.isPeer = false;
    made.timed = [=](benchmark::State& state, const Vectors& v) {
      for (auto _ : state) benchmark::DoNotOptimize(make(v.n, static_cast<const T*>(nullptr), static_cast<T*>(nullptr)));
    };
    c.contenders.push_back(std::move(made));
    suite.add(std::move(c));
  }
}

template <class T, class Make, class InOrder> void outOfOrder(Suite& suite, const std::string& name, Make make, InOrder inOrder) {
  for (const Group& group : kGroups) {
    Case c = transforms<T, false>(name, group);
    c.agrees = [](const Vectors&, Agreement) { return true; };
    c.contenders.push_back(contender<T>("ours", make));
    c.contenders.push_back(contender<T>("in order", inOrder));
    c.contenders.back().isPeer = false;
    suite.add(std::move(c));
  }
}

// clang-format off
const auto k32fc = maker(qvxsDFTFwd_CToC_32fc, {qvxsDFTInitAlloc_C_32fc, qvxsDFTFree_C_32fc, qvxsDFTGetBufSize_C_32fc});
const auto k64fc = maker(qvxsDFTFwd_CToC_64fc, {qvxsDFTInitAlloc_C_64fc, qvxsDFTFree_C_64fc, qvxsDFTGetBufSize_C_64fc});
const auto k32f = maker(qvxsDFTFwd_RToCCS_32f, {qvxsDFTInitAlloc_R_32f, qvxsDFTFree_R_32f, qvxsDFTGetBufSize_R_32f});
const auto k64f = maker(qvxsDFTFwd_RToCCS_64f, {qvxsDFTInitAlloc_R_64f, qvxsDFTFree_R_64f, qvxsDFTGetBufSize_R_64f});
const auto kOutOfOrder32fc = maker(qvxsDFTOutOrdFwd_CToC_32fc, {qvxsDFTOutOrdInitAlloc_C_32fc, qvxsDFTOutOrdFree_C_32fc, qvxsDFTOutOrdGetBufSize_C_32fc});
const auto kOutOfOrder64fc = maker(qvxsDFTOutOrdFwd_CToC_64fc, {qvxsDFTOutOrdInitAlloc_C_64fc, qvxsDFTOutOrdFree_C_64fc, qvxsDFTOutOrdGetBufSize_C_64fc});
// clang-format on

}  // namespace

void dft(Suite& suite) {
  besideFftw<Qvx32f, false>(suite, "DFTFwd_CToC_32fc", k32fc);
  besideFftw<Qvx64f, false>(suite, "DFTFwd_CToC_64fc", k64fc);
  besideFftw<Qvx32f, true>(suite, "DFTFwd_RToCCS_32f", k32f);
  besideFftw<Qvx64f, true>(suite, "DFTFwd_RToCCS_64f", k64f);
}
void dftRecords(Suite& suite) {
  record<Qvx32f, false>(suite, "DFTInitAlloc_C_32fc", k32fc);
  record<Qvx64f, true>(suite, "DFTInitAlloc_R_64f", k64f);
  outOfOrder<Qvx32f>(suite, "DFTOutOrdFwd_CToC_32fc", kOutOfOrder32fc, k32fc);
  outOfOrder<Qvx64f>(suite, "DFTOutOrdFwd_CToC_64fc", kOutOfOrder64fc, k64fc);
}

}  // namespace bench
