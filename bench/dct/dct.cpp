// Cosine transforms beside FFTW's, and what a record costs.
#include "frame/families.h"
#include "frame/transforms.h"
#include "peers/fftw.h"

namespace bench {

namespace {

// Theirs times f, half of that at 0 where it is forward, are ours: up to the roundings of either.
template <class T, bool kInverse> bool agreeing(const T* ours, const T* theirs, int n) {
  std::vector<T> expected(theirs, theirs + n);
  for (T& v : expected) v *= static_cast<T>(std::sqrt(0.5 / n));
  if (!kInverse) expected[0] *= static_cast<T>(std::sqrt(0.5));
  return areClose(ours, expected.data(), expected.size());
}

template <class T, bool kInverse, class Make> void besideFftw(Suite& suite, const std::string& name, Make make) {
  constexpr auto kNumbers = [](int n) { return static_cast<size_t>(n); };
  Case c = transformCase<T>(
      name, {2,    3,    4,    5,    6,    7,    8,    9,    10,   11,   12,    13,    15,    16,    17,    18,
             19,   20,   23,   24,   25,   27,   30,   31,   32,   36,   40,    45,    48,    53,    60,    64,
             75,   81,   90,   97,   100,  101,  120,  125,  128,  144,  180,   200,   211,   240,   256,   300,
             360,  384,  480,  500,  509,  512,  625,  640,  768,  960,  1000,  1001,  1009,  1024,  1080,  1200,
             1536, 1920, 2003, 2048, 2187, 3000, 4096, 4410, 8192, 9600, 16384, 44100, 48000, 65536, 65537, 100000},
      kNumbers, 2.5);
  c.fillSources = [](const Vectors& v) {
    fillFloats(sourceOf<T>(v), static_cast<size_t>(v.n), 1);
    if (kInverse) sourceOf<T>(v)[0] = 0;  // whose factor is another
  };
  c.agrees = [](const Vectors& v, Agreement) {
    return agreeing<T, kInverse>(reinterpret_cast<const T*>(v.slabs.saved()), destinationOf<T>(v), v.n);
  };
  c.contenders.push_back(transformer<T>("ours", make));
  c.contenders.push_back(transformer<T>("FFTW", planner<fftw::Cosines<T, kInverse>>()));
  if (fftw::isBuilt<T>()) {
    c.contenders.push_back(transformer<T>("FFTW, built", planner<fftw::Cosines<T, kInverse, fftw::BuiltApi<T>>>()));
  }
  suite.add(std::move(c));
  if (kInverse) return;
  const std::vector<int> sizes = {8, 60, 64, 101, 360, 1000, 1009, 1024, 4096, 44100, 65536, 65537};
  addRecord<T>(suite, transformCase<T>(name + ", record", sizes, kNumbers, 2.5), make);
}

}  // namespace

// clang-format off
void cosines(Suite& suite) {
  besideFftw<Qvx32f, false>(suite, "DCTFwd_32f", maker(qvxsDCTFwd_32f, qvxsDCTFwdInitAlloc_32f, qvxsDCTFwdFree_32f, qvxsDCTFwdGetBufSize_32f, 0));
  besideFftw<Qvx32f, true>(suite, "DCTInv_32f", maker(qvxsDCTInv_32f, qvxsDCTInvInitAlloc_32f, qvxsDCTInvFree_32f, qvxsDCTInvGetBufSize_32f, 0));
  besideFftw<Qvx64f, false>(suite, "DCTFwd_64f", maker(qvxsDCTFwd_64f, qvxsDCTFwdInitAlloc_64f, qvxsDCTFwdFree_64f, qvxsDCTFwdGetBufSize_64f, 0));
  besideFftw<Qvx64f, true>(suite, "DCTInv_64f", maker(qvxsDCTInv_64f, qvxsDCTInvInitAlloc_64f, qvxsDCTInvFree_64f, qvxsDCTInvGetBufSize_64f, 0));
}
// clang-format on

}  // namespace bench
