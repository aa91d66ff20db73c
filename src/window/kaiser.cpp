// The Kaiser window: a quotient of two modified Bessel functions of order 0.
#include "frame/each_vector.h"
#include "math/exp.h"
#include "window/weigh.h"

using namespace qvx;
using namespace qvx::window;

namespace {

// I0(a) below kSplit is a polynomial of (a / kSplit)^2, from there on e^a / sqrt(a) times one of kSplit / a.
// Abramowitz and Stegun 9.8.1 and 9.8.2: off by 1.6e-7 and 1.9e-7 of it.
struct Single {
  static constexpr double kSplit = 3.75;
  static constexpr double kNear[] = {1.0, 3.5156229, 3.0899424, 1.2067492, 0.2659732, 0.0360768, 0.0045813};
  static constexpr double kFar[] = {0.39894228,  0.01328592, 0.00225319,  -0.00157565, 0.00916281,
                                    -0.02057706, 0.02635537, -0.01647633, 0.00392377};
};
struct Double {
  static constexpr double kSplit = 4;
  static constexpr double kNear[] = {0.9999999985, 4.0000001935, 3.9999959541, 1.777809969,
                                     0.4443189384, 0.0713758187, 0.0075942968, 0.0008267816};
  static constexpr double kFar[] = {0.3989422809,  0.0124667783,  0.0017623668,  0.00026,      0.0022585672,
                                    -0.0128314822, 0.0495811118,  -0.1209940805, 0.1895476618, -0.1867783276,
                                    0.1113315511,  -0.0366694767, 0.0051246015};
};

template <class Series, class V> V bessel0(V a) {
  const TagOf<V> d;
  const V split = same<V>(Series::kSplit);
  const auto isNear = a < split;
  const uint64_t near = maskBits(d, isNear);
  const auto nearly = [&] {
    const V ratio = a * same<V>(1 / Series::kSplit);
    return polynomial(ratio * ratio, Series::kNear);
  };
  if (near == (uint64_t{1} << kLanesOf<V>)-1) return nearly();
  const V reciprocal = same<V>(1) / hn::Max(a, split);
  const V farther = exp(a) * hn::Sqrt(reciprocal) * polynomial(split * reciprocal, Series::kFar);
  return near == 0 ? farther : hn::IfThenElse(isNear, nearly(), farther);
}

// I0(alpha sqrt(n (N-1-n))) / I0(alpha (N-1) / 2)
template <class Series, class W> struct BesselWeights {
  double alpha;
  double last;
  double norm;

  template <class Put> void operator()(size_t count, Put put) const {
    constexpr size_t kWide = kVectorBytes / sizeof(double);
    const Lanes<double, kWide> d;
    eachVector<kWide>(count, [&](size_t at, auto... rest) {
      const auto n = hn::Iota(d, 0) + hn::Set(d, static_cast<double>(at));
      // Past the middle of short windows nobody takes the weight, but a negative product has no root.
      const auto product = hn::Max(n * (hn::Set(d, last) - n), hn::Zero(d));
      put(at, convertLanes<W>(bessel0<Series>(hn::Set(d, alpha) * hn::Sqrt(product)) * hn::Set(d, norm)), rest...);
    });
  }
};

template <class Series, class T> QvxStatus kaiser(const T* src, T* dst, int len, double alpha, double limit) {
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  const double size = std::abs(alpha);
  const double last = len - 1;
  const double middle = size * last * 0.5;
  if (!(middle <= limit)) return qvxStatBadKaiserAlpha;
  const RoundingScope mode(kMode<T>);
  const double largest = hn::GetLane(bessel0<Series>(same<Vec<Lanes<double, 2>>>(middle)));
  weigh(src, dst, elements(len), Weighed<T>(), BesselWeights<Series, Weight<T>>{size, last, 1 / largest});
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsWinKaiser_16s(const Qvx16s* a, Qvx16s* d, int len, Qvx32f alpha) { return kaiser<Single>(a, d, len, alpha, 308); }
QvxStatus qvxsWinKaiser_16s_I(Qvx16s* d, int len, Qvx32f alpha) { return kaiser<Single>(d, d, len, alpha, 308); }
QvxStatus qvxsWinKaiser_16sc(const Qvx16sc* a, Qvx16sc* d, int len, Qvx32f alpha) { return kaiser<Single>(a, d, len, alpha, 308); }
QvxStatus qvxsWinKaiser_16sc_I(Qvx16sc* d, int len, Qvx32f alpha) { return kaiser<Single>(d, d, len, alpha, 308); }
QvxStatus qvxsWinKaiser_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f alpha) { return kaiser<Single>(a, d, len, alpha, 38); }
QvxStatus qvxsWinKaiser_32f_I(Qvx32f* d, int len, Qvx32f alpha) { return kaiser<Single>(d, d, len, alpha, 38); }
QvxStatus qvxsWinKaiser_32fc(const Qvx32fc* a, Qvx32fc* d, int len, Qvx32f alpha) { return kaiser<Single>(a, d, len, alpha, 38); }
QvxStatus qvxsWinKaiser_32fc_I(Qvx32fc* d, int len, Qvx32f alpha) { return kaiser<Single>(d, d, len, alpha, 38); }
QvxStatus qvxsWinKaiser_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx32f alpha) { return kaiser<Double>(a, d, len, alpha, 308); }
QvxStatus qvxsWinKaiser_64f_I(Qvx64f* d, int len, Qvx32f alpha) { return kaiser<Double>(d, d, len, alpha, 308); }
QvxStatus qvxsWinKaiser_64fc(const Qvx64fc* a, Qvx64fc* d, int len, Qvx32f alpha) { return kaiser<Double>(a, d, len, alpha, 308); }
QvxStatus qvxsWinKaiser_64fc_I(Qvx64fc* d, int len, Qvx32f alpha) { return kaiser<Double>(d, d, len, alpha, 308); }
QvxStatus qvxsWinKaiserQ15_16s(const Qvx16s* a, Qvx16s* d, int len, int alphaQ15) { return kaiser<Single>(a, d, len, alphaQ15 * 0x1p-15, 308); }
QvxStatus qvxsWinKaiserQ15_16s_I(Qvx16s* d, int len, int alphaQ15) { return kaiser<Single>(d, d, len, alphaQ15 * 0x1p-15, 308); }
QvxStatus qvxsWinKaiserQ15_16sc(const Qvx16sc* a, Qvx16sc* d, int len, int alphaQ15) { return kaiser<Single>(a, d, len, alphaQ15 * 0x1p-15, 308); }
QvxStatus qvxsWinKaiserQ15_16sc_I(Qvx16sc* d, int len, int alphaQ15) { return kaiser<Single>(d, d, len, alphaQ15 * 0x1p-15, 308); }
// clang-format on
