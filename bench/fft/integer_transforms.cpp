// Forward transforms of integers beside the usual way: to floats, through FFTW, and back, rounded and saturated.
#include <limits>

#include "frame/families.h"
#include "frame/transforms.h"
#include "peers/fftw.h"

namespace bench {

namespace {

// With one place for every second order, results of full-scale noise fill half of the range.
int scaleFactorOf(int n) { return std::countr_zero(static_cast<unsigned>(n)) / 2 + 2; }

// Through T, all in one vector. Real spectra come with X[N/2] after, as ours do.
template <class T, bool kReal> class Plainly {
 public:
  explicit Plainly(int n)
      : sources_(kReal ? n : 2 * static_cast<size_t>(n)),
        results_(kReal ? n + 2 : sources_),
        y_(results_),
        plan_(n, y_.data(), y_.data()) {}
  template <class In, class Out> void run(const In* src, Out* dst, int scaleFactor) {
    for (size_t i = 0; i < sources_; ++i) y_[i] = static_cast<T>(src[i]);
    plan_.run(nullptr, nullptr);
    const T factor = std::ldexp(T(1), -scaleFactor);
    constexpr T kLeast = std::numeric_limits<Out>::min();
    constexpr T kMost = -kLeast - (sizeof(T) == 8 || sizeof(Out) == 2 ? 1 : 128);  // the last float below
    for (size_t i = 0; i < results_; ++i) dst[i] = static_cast<Out>(std::rint(std::min(std::max(y_[i] * factor, kLeast), kMost)));
  }

 private:
  size_t sources_;
  size_t results_;
  std::vector<T> y_;
  fftw::Plan<T, kReal> plan_;
};

// life: what makes and releases the record.
template <class T, class In, class Out, bool kReal, class F, class... Life>
void row(Suite& suite, const std::string& name, F transform, Life... life) {
  Case c;
  c.name = name;
  c.table = Table::kTransforms;
  c.sizes.clear();
  for (int order = 3; order <= 16; ++order) c.sizes.push_back(1 << order);
  const auto results = [](int n) { return kReal ? static_cast<size_t>(n) + 2 : 2 * static_cast<size_t>(n); };
  c.fillSources = [=](const Vectors& v) { fillBits(v.slabs.source(0), results(v.n) * sizeof(In), 1); };
  c.fillDestination = [=](const Vectors& v) { fillBits(v.slabs.destination(), results(v.n) * sizeof(Out), 2); };
  c.saveDestination = [=](const Vectors& v) { std::memcpy(v.slabs.saved(), v.slabs.destination(), results(v.n) * sizeof(Out)); };
  // Two roundings may go either way; in single precision a 32-bit result has an error of its own.
  c.agrees = [=](const Vectors& v, Agreement) {
    const auto* a = reinterpret_cast<const Out*>(v.slabs.saved());
    const auto* b = reinterpret_cast<const Out*>(v.slabs.destination());
    return std::equal(a, a + results(v.n), b, [](Out x, Out y) { return std::abs(int64_t{x} - int64_t{y}) <= 1; });
  };
  c.operations = [](int n) { return (kReal ? 2.5 : 5) * n * std::log2(n); };

  const auto contend = [&](const std::string& peer, auto make) {
    const auto run = [](const auto& made, const Vectors& v) {
      made->run(reinterpret_cast<const In*>(v.slabs.source(0)), reinterpret_cast<Out*>(v.slabs.destination()),
                scaleFactorOf(v.n));
    };
    c.contenders.push_back({peer, [=](const Vectors& v) { run(make(v.n), v); },
                            [=](benchmark::State& state, const Vectors& v) {
                              const auto made = make(v.n);
                              for (auto _ : state) {
                                run(made, v);
                                benchmark::ClobberMemory();
                              }
                            },
                            Agreement::kDiffers});
  };
  contend("ours", [make = maker(transform, life..., QVX_FFT_SCALE_NONE, 2)](int n) {
    return make(std::countr_zero(static_cast<unsigned>(n)), nullptr, nullptr);
  });
  contend("through FFTW", [](int n) { return std::make_shared<Plainly<T, kReal>>(n); });
  suite.add(std::move(c));
}

}  // namespace

// clang-format off
void integerFft(Suite& suite) {
  row<Qvx32f, Qvx16s, Qvx16s, false>(suite, "FFTFwd_CToC_16sc_Sfs", qvxsFFTFwd_CToC_16sc_Sfs, qvxsFFTInitAlloc_C_16sc, qvxsFFTFree_C_16sc, qvxsFFTGetBufSize_C_16sc);
  row<Qvx64f, Qvx32s, Qvx32s, false>(suite, "FFTFwd_CToC_32sc_Sfs", qvxsFFTFwd_CToC_32sc_Sfs, qvxsFFTInitAlloc_C_32sc, qvxsFFTFree_C_32sc, qvxsFFTGetBufSize_C_32sc);
  row<Qvx32f, Qvx16s, Qvx16s, true>(suite, "FFTFwd_RToCCS_16s_Sfs", qvxsFFTFwd_RToCCS_16s_Sfs, qvxsFFTInitAlloc_R_16s, qvxsFFTFree_R_16s, qvxsFFTGetBufSize_R_16s);
  row<Qvx64f, Qvx32s, Qvx32s, true>(suite, "FFTFwd_RToCCS_32s_Sfs", qvxsFFTFwd_RToCCS_32s_Sfs, qvxsFFTInitAlloc_R_32s, qvxsFFTFree_R_32s, qvxsFFTGetBufSize_R_32s);
  row<Qvx32f, Qvx16s, Qvx32s, true>(suite, "FFTFwd_RToCCS_16s32s_Sfs", qvxsFFTFwd_RToCCS_16s32s_Sfs, qvxsFFTInitAlloc_R_16s32s, qvxsFFTFree_R_16s32s, qvxsFFTGetBufSize_R_16s32s);
}
// clang-format on

}  // namespace bench
