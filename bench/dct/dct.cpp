// Cosine transforms beside FFTW's, and what a record costs.
#include "frame/families.h"
#include "peers/fftw.h"

namespace bench {

namespace {

template <class T> const T* source(const Vectors& v) { return reinterpret_cast<const T*>(v.slabs.source(0)); }
template <class T> T* destination(const Vectors& v) { return reinterpret_cast<T*>(v.slabs.destination()); }

template <class T, class Record> struct Functions {
  QvxStatus (*run)(const T*, T*, const Record*, Qvx8u*);
  QvxStatus (*initAlloc)(Record**, int, int);
  QvxStatus (*free)(Record*);
  QvxStatus (*getBufSize)(const Record*, int*);
};

// Ours, with a record and working memory of its own.
template <class T, class Record> class Own {
 public:
  Own(const Functions<T, Record>& functions, int n, const T* src, T* dst) : functions_(functions), src_(src), dst_(dst) {
    functions_.initAlloc(&record_, n, 0);
    int bytes = 0;
    functions_.getBufSize(record_, &bytes);
    buffer_ = bytes > 0 ? qvxsMalloc_8u(bytes) : nullptr;
  }
  ~Own() {
    functions_.free(record_);
    qvxsFree(buffer_);
  }
  Own(const Own&) = delete;
  Own& operator=(const Own&) = delete;
  void run() const { functions_.run(src_, dst_, record_, buffer_); }

 private:
  Functions<T, Record> functions_;
  const T* src_;
  T* dst_;
  Record* record_ = nullptr;
  Qvx8u* buffer_ = nullptr;
};

// make(n, src, dst) returns an object to run(). Planning overwrites the source.
template <class T, class Make> Contender contender(std::string name, Make make) {
  const auto once = [=](const Vectors& v) {
    T* src = const_cast<T*>(source<T>(v));
    const std::vector<T> kept(src, src + v.n);
    const auto plan = make(v.n, src, destination<T>(v));
    std::copy(kept.begin(), kept.end(), src);
    plan->run();
  };
  const auto timed = [=](benchmark::State& state, const Vectors& v) {
    T* src = const_cast<T*>(source<T>(v));
    const auto plan = make(v.n, src, destination<T>(v));
    fillFloats(src, static_cast<size_t>(v.n), 1);
    for (auto _ : state) {
      plan->run();
      benchmark::ClobberMemory();
    }
  };
  return {std::move(name), once, timed, Agreement::kFused};
}

// Theirs times f, half of that at 0 where it is forward, are ours: up to the roundings of either.
template <class T, bool kInverse> bool agreeing(const T* ours, const T* theirs, int n) {
  const double f = std::sqrt(0.5 / n);
  double error = 0;
  double size = 0;
  for (int k = 0; k < n; ++k) {
    const double expected = f * static_cast<double>(theirs[k]) * (k == 0 && !kInverse ? std::sqrt(0.5) : 1);
    error += std::pow(static_cast<double>(ours[k]) - expected, 2);
    size += expected * expected;
  }
  return std::sqrt(error / size) < 20 * std::numeric_limits<T>::epsilon();
}

template <bool kInverse, class T, class Record> void besideFftw(Suite& suite, const char* name, Functions<T, Record> functions) {
  const auto own = [=](int n, const T* src, T* dst) { return std::make_shared<Own<T, Record>>(functions, n, src, dst); };
  Case c;
  c.name = name;
  c.table = Table::kTransforms;
  c.sizes = {2,    3,    4,    5,    6,    7,    8,    9,    10,   11,   12,    13,    15,    16,    17,    18,
             19,   20,   23,   24,   25,   27,   30,   31,   32,   36,   40,    45,    48,    53,    60,    64,
             75,   81,   90,   97,   100,  101,  120,  125,  128,  144,  180,   200,   211,   240,   256,   300,
             360,  384,  480,  500,  509,  512,  625,  640,  768,  960,  1000,  1001,  1009,  1024,  1080,  1200,
             1536, 1920, 2003, 2048, 2187, 3000, 4096, 4410, 8192, 9600, 16384, 44100, 48000, 65536, 65537, 100000};
  c.fillSources = [](const Vectors& v) {
    fillFloats(const_cast<T*>(source<T>(v)), static_cast<size_t>(v.n), 1);
    if (kInverse) const_cast<T*>(source<T>(v))[0] = 0;  // whose factor is another
  };
  c.fillDestination = [](const Vectors& v) { fillFloats(destination<T>(v), static_cast<size_t>(v.n), 2); };
  c.saveDestination = [](const Vectors& v) {
    std::memcpy(v.slabs.saved(), destination<T>(v), static_cast<size_t>(v.n) * sizeof(T));
  };
  c.agrees = [](const Vectors& v, Agreement) {
    return agreeing<T, kInverse>(reinterpret_cast<const T*>(v.slabs.saved()), destination<T>(v), v.n);
  };
  c.operations = [](int n) { return 2.5 * n * std::log2(n); };
  c.contenders.push_back(contender<T>("ours", own));
  c.contenders.push_back(contender<T>(
      "FFTW", [](int n, const T* src, T* dst) { return std::make_shared<fftw::Cosines<T, kInverse>>(n, src, dst); }));
  if (fftw::isBuilt<T>()) {
    c.contenders.push_back(contender<T>("FFTW, built", [](int n, const T* src, T* dst) {
      return std::make_shared<fftw::Cosines<T, kInverse, fftw::BuiltApi<T>>>(n, src, dst);
    }));
  }
  suite.add(c);

  if (kInverse) return;
  Contender made = c.contenders[0];
  made.peer = "record";
  made.isPeer = false;
  made.timed = [=](benchmark::State& state, const Vectors& v) {
    for (auto _ : state) benchmark::DoNotOptimize(own(v.n, source<T>(v), destination<T>(v)));
  };
  c.name = std::string(name) + ", record";
  c.sizes = {8, 60, 64, 101, 360, 1000, 1009, 1024, 4096, 44100, 65536, 65537};
  c.agrees = [](const Vectors&, Agreement) { return true; };
  c.contenders[1] = std::move(made);
  suite.add(std::move(c));
}

}  // namespace

// clang-format off
void cosines(Suite& suite) {
  besideFftw<false, Qvx32f, QvxsDCTFwdSpec_32f>(suite, "DCTFwd_32f", {qvxsDCTFwd_32f, qvxsDCTFwdInitAlloc_32f, qvxsDCTFwdFree_32f, qvxsDCTFwdGetBufSize_32f});
  besideFftw<true, Qvx32f, QvxsDCTInvSpec_32f>(suite, "DCTInv_32f", {qvxsDCTInv_32f, qvxsDCTInvInitAlloc_32f, qvxsDCTInvFree_32f, qvxsDCTInvGetBufSize_32f});
  besideFftw<false, Qvx64f, QvxsDCTFwdSpec_64f>(suite, "DCTFwd_64f", {qvxsDCTFwd_64f, qvxsDCTFwdInitAlloc_64f, qvxsDCTFwdFree_64f, qvxsDCTFwdGetBufSize_64f});
  besideFftw<true, Qvx64f, QvxsDCTInvSpec_64f>(suite, "DCTInv_64f", {qvxsDCTInv_64f, qvxsDCTInvInitAlloc_64f, qvxsDCTInvFree_64f, qvxsDCTInvGetBufSize_64f});
}
// clang-format on

}  // namespace bench
