// The Cauchy function of robust estimation and its derivatives.
//
// In doubles, which hold every square of a float and every sum of two such squares without overflow or underflow: the sums are
// then right to 2^-52, and one rounding to a float remains. Where multiplications fuse, the function and its first derivative
// are computed in floats, twice as fast, for C from 2^-30 to 2^30. The second derivative would need all of its sums and the
// reciprocal in pairs of floats, which takes as long as doubles.
#include "frame/complex.h"
#include "frame/redo.h"
#include "math/ln.h"

using namespace qvx;

namespace {

QvxStatus checked(const Qvx32f* p, const Qvx32f* other, int len, Qvx32f c) {
  const QvxStatus status = check(len, p, other);
  if (status != qvxStatOk) return status;
  return c > 0 ? qvxStatOk : qvxStatBadParam;
}

// 1 / s to 2^-27 or better, for s from 2^-298 to 2^257 and infinity: an estimate of 14 bits and a step of Newton's where there is
// one. For an infinite s the step would be 0 times infinity; the minimum takes 1 for what is no number.
template <class V> V reciprocal(V s) {
#if QVXS_AVX512
  const V near = nearReciprocal(s);
  return hn::MulAdd(near, hn::Min(hn::NegMulAdd(near, s, same<V>(1)), same<V>(1)), near);
#else
  return same<V>(1) / s;
#endif
}

// ln(1 + u) / 2. What the rounding of 1 + u takes is all there is of a small u; it is added to the logarithm, whose slope is near
// 1 then, and means nothing beyond 1.
struct HalfLogarithm {
  double inverse;

  template <class V> auto operator()(V x) const {
    const auto wide = convertLanes<double>(x);
    using W = std::remove_const_t<decltype(wide)>;
    const W t = wide * same<W>(inverse);
    const W u = t * t;
    const W one = same<W>(1);
    const W w = one + u;
    const W rest = hn::IfThenElseZero(u < same<W>(0x1p20), (u - (w - one)) * (same<W>(2) - hn::Min(w, same<W>(2))));
    return convertLanes<float>((ln(w) + rest) * same<W>(0.5));
  }
};

// What floats can do: the caller's C, and squares and sums of squares far from overflow. Elements beyond are taken one by one.
bool isNear(Qvx32f c) { return kFuses && c >= 0x1p-30F && c <= 0x1p30F; }
constexpr float kMostNear = 0x1p120F;

// ln(1 + u) / 2 in floats, u = (x / C)^2 as the sum of two. What the rounding of 1 + u takes is added to the logarithm, times its
// slope 1 / (1 + u).
struct NearHalfLogarithm {
  float inverse, inverseRest;  // their sum is 1 / C
  double wide;                 // 1 / C

  template <class V> V operator()(V x) const {
    const V one = same<V>(1);
    const V t = x * same<V>(inverse);
    const V tRest = hn::MulAdd(x, same<V>(inverseRest), hn::MulSub(x, same<V>(inverse), t));
    const V u = t * t;
    const V uRest = hn::MulAdd(t + t, tRest, hn::MulSub(t, t, u));
    const V w = one + u;
    // w - 1 is exact up to 2^24; beyond, the rest is less than the logarithm's last place.
    const V rest = (u - (w - one)) + uRest;
    const V near = hn::ApproximateReciprocal(w);  // 14 bits: too few where the logarithm is hardly more than the rest
    const V slope = hn::MulAdd(near, hn::NegMulAdd(near, w, one), near);
    const V y = hn::MulAdd(rest, slope, ln(w)) * same<V>(0.5F);
    const uint64_t far = maskBits(TagOf<V>(), hn::Not(u < same<V>(kMostNear)));
    if (HWY_LIKELY(far == 0)) return y;
    return redone(
        far, y, [c = wide](float v) { return static_cast<float>(std::log1p((v * c) * (v * c)) / 2); }, x);
  }
};

struct Derivative {
  double square;

  template <class V> auto operator()(V x) const {
    const auto wide = convertLanes<double>(x);
    using W = std::remove_const_t<decltype(wide)>;
    return convertLanes<float>(wide * reciprocal(hn::MulAdd(wide, wide, same<W>(square))));
  }
};

// The same in floats. The rounding of the sum counts for 1 ULP of the quotient at most; the rounding of C^2 would count for as
// much, and is part of the remainder that corrects the quotient, which adds 0.6 ULP.
template <bool kExactSquare> struct NearDerivative {
  float square, squareRest;  // their sum is C^2
  double wide;               // C^2

  template <class V> V operator()(V x) const {
    const V s = hn::MulAdd(x, x, same<V>(square));
    const V near = hn::ApproximateReciprocal(s);
    const V r = hn::MulAdd(near, hn::NegMulAdd(near, s, same<V>(1)), near);
    const V quotient = x * r;
    V remainder = hn::NegMulAdd(quotient, s, x);
    if (!kExactSquare) remainder = hn::NegMulAdd(quotient, same<V>(squareRest), remainder);
    const V y = hn::MulAdd(remainder, r, quotient);
    const uint64_t far = maskBits(TagOf<V>(), hn::Not(s < same<V>(kMostNear)));
    if (HWY_LIKELY(far == 0)) return y;
    return redone(
        far, y, [c2 = wide](float v) { return static_cast<float>(v / (c2 + double{v} * v)); }, x);
  }
};

struct SecondDerivative {
  double square;

  template <class V> auto operator()(V x) const {
    const auto wide = convertLanes<double>(x);
    using W = std::remove_const_t<decltype(wide)>;
    const W r = reciprocal(hn::MulAdd(wide, wide, same<W>(square)));
    return Pair<Vec<Lanes<float, kLanesOf<V>>>>{convertLanes<float>(wide * r),
                                                convertLanes<float>(hn::NegMulAdd(wide, wide, same<W>(square)) * r * r)};
  }
};

double squareOf(Qvx32f c) { return double{c} * c; }

// One element after the other, for vectors that overlap.
template <class Kernel> QvxStatus inTurn(Kernel kernel, Qvx32f* p, Qvx32f* second, size_t n) {
  const Lanes<float, kVectorBytes / sizeof(double)> d;
  for (size_t i = 0; i < n; ++i) {
    const auto both = kernel(loadFirst(d, p + i, 1));
    p[i] = hn::GetLane(both.lo);
    second[i] = hn::GetLane(both.hi);
  }
  return qvxStatOk;
}

bool overlap(const Qvx32f* a, const Qvx32f* b, size_t n) {
  const auto distance = reinterpret_cast<intptr_t>(a) - reinterpret_cast<intptr_t>(b);
  const auto bytes = static_cast<intptr_t>(n * sizeof(Qvx32f));
  return distance < bytes && -distance < bytes;
}

}  // namespace

QvxStatus qvxsCauchy_32f_I(Qvx32f* p, int len, Qvx32f c) {
  const QvxStatus status = checked(p, p, len, c);
  if (status != qvxStatOk) return status;
  const double inverse = 1 / double{c};
  if (isNear(c)) {
    const auto high = static_cast<float>(inverse);
    return loop(NearHalfLogarithm{high, static_cast<float>(inverse - high), inverse}, destination(p), elements(len), source(p));
  }
  return loop<double>(HalfLogarithm{inverse}, destination(p), elements(len), source(p));
}

QvxStatus qvxsCauchyD_32f_I(Qvx32f* p, int len, Qvx32f c) {
  const QvxStatus status = checked(p, p, len, c);
  if (status != qvxStatOk) return status;
  const double square = squareOf(c);
  if (isNear(c)) {
    const auto high = static_cast<float>(square);
    const auto rest = static_cast<float>(square - high);
    if (rest == 0) return loop(NearDerivative<true>{high, rest, square}, destination(p), elements(len), source(p));
    return loop(NearDerivative<false>{high, rest, square}, destination(p), elements(len), source(p));
  }
  return loop<double>(Derivative{square}, destination(p), elements(len), source(p));
}

QvxStatus qvxsCauchyDD2_32f_I(Qvx32f* p, Qvx32f* second, int len, Qvx32f c) {
  const QvxStatus status = checked(p, second, len, c);
  if (status != qvxStatOk) return status;
  const SecondDerivative kernel = {squareOf(c)};
  if (overlap(p, second, elements(len))) return inTurn(kernel, p, second, elements(len));
  return loop<double>(kernel, SplitDestination<Qvx32f>{p, second}, elements(len), source(p));
}
