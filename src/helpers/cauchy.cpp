// The Cauchy function of robust estimation and its derivatives.
//
// In doubles, which hold every square of a float and every sum of two such squares without overflow or underflow: the sums are
// then right to 2^-52, and one rounding to a float remains. For C from 2^-30 to 2^30 floats serve the function and its first
// derivative, in half of the time or less: 4096 elements of SSSE3 take 5.5 us, not 13, and 0.97, not 2.0. Both derivatives
// together are made in floats where multiplications fuse, in 0.7 of the time.
//
// All of it to nearest in any mode of the processor: rounded upwards, the function in floats was off by 128 ULP.
#include "frame/complex.h"
#include "frame/processor.h"
#include "frame/redo.h"
#include "frame/rounding.h"
#include "math/half_ln.h"
#include "math/ln.h"
#include "vector/both_ways.h"

using namespace qvx;

namespace {

QvxStatus checked(const Qvx32f* p, const Qvx32f* other, int len, Qvx32f c) {
  const QvxStatus status = check(len, p, other);
  if (status != qvxStatOk) return status;
  return c > 0 ? qvxStatOk : qvxStatBadParam;
}

// 1 / s to 2^-27 or better, for s from 2^-298 to 2^1000: an estimate of 14 bits and a step of Newton's where there is one.
template <class V> V reciprocal(V s) {
#if QVXS_AVX512
  const V near = nearReciprocal(s);
  return hn::MulAdd(near, hn::NegMulAdd(near, s, same<V>(1)), near);
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
bool isNear(Qvx32f c) { return c >= 0x1p-30F && c <= 0x1p30F; }
constexpr float kMostNear = 0x1p120F;

// ln(1 + u) / 2 in floats, u = (x / C)^2: 1 + u is rounded, and what that takes goes into the logarithm. The error is below 1.8
// ULP (of 10^8 arguments 1.66 at most), where nothing fuses 2 (1.77): the product that u is made of, 1, u itself and the sum of
// the logarithm, 0.5 each.
struct NearHalfLogarithm {
  float c;
  float scale;               // a power of two near 1 / C
  float factor, factorRest;  // their sum is 1 / C^2, where nothing fuses 1 / (scale * C)^2

  static NearHalfLogarithm of(float c) {
    const float scale = kFuses ? 1 : std::bit_cast<float>(0x7F000000 - (std::bit_cast<uint32_t>(c) & 0x7F800000));
    const double scaled = double{c} * scale;
    const double exact = 1 / (scaled * scaled);
    const auto factor = static_cast<float>(exact);
    return {c, scale, factor, static_cast<float>(exact - factor)};
  }

  template <class V> V operator()(V x) const {
    const auto [w, rest] = onePlusSquare(x);
    const V y = halfLnOfSum(w, rest);
    const TagOf<V> d;
    const auto isNear = w < same<V>(kMostNear);
    if (HWY_LIKELY(hn::AllTrue(d, isNear))) return y;
    return redone(
        maskBits(d, hn::Not(isNear)), y,
        [c = double{c}](float v) { return static_cast<float>(std::log1p((v / c) * (v / c)) / 2); }, x);
  }

 private:
  // 1 - w is exact up to 2^24; beyond, the rest is less than the logarithm's last place.
  template <class V> Pair<V> onePlusSquare(V x) const {
    const V one = same<V>(1);
    if constexpr (kFuses) {
      const V b = x * same<V>(factor);
      const V w = hn::MulAdd(x, b, one);
      const V bRest = hn::MulAdd(x, same<V>(factorRest), hn::MulSub(x, same<V>(factor), b));
      return {w, hn::MulAdd(x, bRest, hn::MulAdd(x, b, one - w))};
    } else {
      // The square of half of the digits is exact; the scale keeps what else there is of x^2 from underflow.
      const V t = x * same<V>(scale);
      const V upper = as<float>(as<uint32_t>(t) & same<Vec<Lanes<uint32_t, kLanesOf<V>>>>(0xFFFFF000));
      const V square = upper * upper;
      const V squareRest = (t + upper) * (t - upper);
      const V u = square * same<V>(factor);
      const V w = one + u;
      return {w, (u - (w - one)) + (squareRest * same<V>(factor) + square * same<V>(factorRest))};
    }
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

// An estimate of 1 / s: of 14 bits in registers of any width where there is one.
template <class V> V estimate(V s) {
#if QVXS_AVX512
  detail::partOf(nearest::nearReciprocal(nearest::V{detail::whole(s.raw)}).raw, s.raw);
  return s;
#else
  return hn::ApproximateReciprocal(s);
#endif
}

// The same in floats, of two vectors. An estimate r of 1 / (C^2 + x^2) makes the quotient f = x r; it is corrected by what 1 is
// more than r C^2 + f x. Of the rounding of f that takes part back: the error is below 1.6 ULP. The divider may not take one of
// the vectors in the meantime, though that is faster: results would depend on the place.
template <bool kExactSquare> struct NearDerivative {
  float c;
  float square, squareRest;  // their sum is C^2

  template <class V> Pair<V> operator()(Pair<V> x) const {
    const Pair<V> s = each(x, [this](V v) { return hn::MulAdd(v, v, same<V>(square)); });
    const Pair<V> y = {quotient(x.lo, s.lo), quotient(x.hi, s.hi)};
    const TagOf<V> d;
    const auto isFar = [d](V sum) { return maskBits(d, hn::Not(sum < same<V>(kMostNear))); };
    const auto areNear = hn::And(s.lo < same<V>(kMostNear), s.hi < same<V>(kMostNear));
    if (HWY_LIKELY(hn::AllTrue(d, areNear))) return y;
    const auto one = [c = double{c}](float v) { return static_cast<float>(v / (c * c + double{v} * v)); };
    return {redone(isFar(s.lo), y.lo, one, x.lo), redone(isFar(s.hi), y.hi, one, x.hi)};
  }

 private:
  template <class V> V quotient(V x, V s) const {
    const V near = estimate(s);
    const V f = x * near;
    V more = hn::NegMulAdd(near, same<V>(square), same<V>(1));
    if (!kExactSquare) more = hn::NegMulAdd(near, same<V>(squareRest), more);
    more = hn::NegMulAdd(f, x, more);
    if (!kHasMasks) more = hn::MulAdd(more, more, more);  // an estimate of 11 bits, not 14
    return hn::MulAdd(f, more, f);
  }
};

// The same by a fast divider: 256 elements take 15 ns, not 21. The sum is off by a rounding, and where C^2 is no float by
// another of the lesser of its terms, which is half of it: with the quotient's own 2 ULP at most.
template <bool kExactSquare> struct QuotientDerivative {
  float c;
  float square, squareRest;  // their sum is C^2

  template <class V> V operator()(V x) const {
    const TagOf<V> d;
    V s = hn::MulAdd(x, x, same<V>(square));
    if (!kExactSquare) s = hn::IfThenElse(hn::Abs(x) < same<V>(c), hn::MulAdd(x, x, same<V>(squareRest)) + same<V>(square), s);
    const auto isNear = s < same<V>(kMostNear);
    const V y = x / s;
    if (HWY_LIKELY(hn::AllTrue(d, isNear))) return y;
    return redone(
        maskBits(d, hn::Not(isNear)), y, [c = double{c}](float v) { return static_cast<float>(v / (c * c + double{v} * v)); }, x);
  }
};

// Both derivatives in floats: the errors are below 1.7 ULP (first) and 1.9 ULP (second), of which x r or C^2 - x^2 and the last
// addition make 1.5. What rounding takes of all else is known and added.
//
// The sum s = x^2 + C^2 is split into what x^2 and what C^2 contributed, and each is compared with its term: that tells the error
// of s whichever term is larger.
template <bool kExactSquare> struct NearBothDerivatives {
  float c;
  float square, squareRest;  // their sum is C^2

  template <class V> Pair<V> operator()(V x) const {
    const TagOf<V> d;
    const V one = same<V>(1);
    const V whole = same<V>(square);
    const V s = hn::MulAdd(x, x, whole);
    const V xPart = s - whole;
    V wholeRest = whole - (s - xPart);
    if (!kExactSquare) wholeRest = wholeRest + same<V>(squareRest);
    const V sRest = hn::MulSub(x, x, xPart) + wholeRest;
    const V r = kHasMasks ? estimate(s) : one / s;
    const V e = hn::NegMulAdd(r, sRest, hn::NegMulAdd(r, s, one));  // 1 / (s + sRest) is r (1 + e + e^2 ...)
    const V f = x * r;
    const V first = hn::MulAdd(f, e, f);
    const V difference = hn::NegMulAdd(x, x, whole);
    const V t = difference * r;
    V tRest = hn::MulSub(difference, r, t);
    V tWhole = t;
    if (!kExactSquare) {
      tRest = hn::MulAdd(same<V>(squareRest), r, tRest);
      tWhole = t + tRest;
    }
    V second = hn::MulAdd(t, r, r * hn::MulAdd(tWhole, e + e, tRest));
    // t and tRest cancel there, and the rounding of r tRest would be left.
    if (!kExactSquare) second = hn::IfThenZeroElse(hn::Abs(x) == same<V>(c), second);
    const auto isNear = s < same<V>(kMostNear);
    if (HWY_LIKELY(hn::AllTrue(d, isNear))) return {first, second};
    const uint64_t isFar = maskBits(d, hn::Not(isNear));
    const auto firstOf = [c = double{c}](float v) { return static_cast<float>(v / (c * c + double{v} * v)); };
    const auto secondOf = [c = double{c}](float v) {
      const double sum = c * c + double{v} * v;
      return static_cast<float>((c * c - double{v} * v) / sum / sum);
    };
    return {redone(isFar, first, firstOf, x), redone(isFar, second, secondOf, x)};
  }
};

// Where nothing fuses: the sum in doubles, rounded, which is off by 1 ULP of the quotient at most, and one division of floats in
// place of two of doubles.
struct QuotientBySum {
  float c;
  double square;

  template <class V> V operator()(V x) const {
    const TagOf<V> d;
    const hn::Half<TagOf<V>> half;
    const auto sumOf = [this](auto v) {
      const auto wide = convertLanes<double>(v);
      return convertLanes<float>(hn::MulAdd(wide, wide, same<std::remove_const_t<decltype(wide)>>(square)));
    };
    const V s = hn::Combine(d, sumOf(upperHalf(x)), sumOf(hn::LowerHalf(half, x)));
    const auto isNear = s < same<V>(kMostNear);
    const V y = x / s;
    if (HWY_LIKELY(hn::AllTrue(d, isNear))) return y;
    return redone(
        maskBits(d, hn::Not(isNear)), y, [c = double{c}](float v) { return static_cast<float>(v / (c * c + double{v} * v)); }, x);
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

// Of an infinite C a number as good as infinite: Newton's step would take 0 times infinity.
double squareOf(Qvx32f c) { return std::min(double{c} * c, 0x1p1000); }

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
  const RoundingScope nearest(Rounding::kNearest);
  if (isNear(c)) return loop(NearHalfLogarithm::of(c), destination(p), elements(len), source(p));
  return loop<double>(HalfLogarithm{1 / double{c}}, destination(p), elements(len), source(p));
}

QvxStatus qvxsCauchyD_32f_I(Qvx32f* p, int len, Qvx32f c) {
  const QvxStatus status = checked(p, p, len, c);
  if (status != qvxStatOk) return status;
  const RoundingScope nearest(Rounding::kNearest);
  if (!kFuses && isNear(c)) return loop(QuotientBySum{c, double{c} * c}, destination(p), elements(len), source(p));
  if (kFuses && isNear(c)) {
    const float square = c * c;
    const float rest = std::fma(c, c, -square);
    if (kDividesFast) {
      const auto in = [&](auto kernel) { return loop(kernel, destination(p), elements(len), source(p)); };
      return rest == 0 ? in(QuotientDerivative<true>{c, square, rest}) : in(QuotientDerivative<false>{c, square, rest});
    }
    const auto in = [&](auto kernel) { return loop(kernel, InTwos{destination(p)}, elements(len), InTwos{source(p)}); };
    return rest == 0 ? in(NearDerivative<true>{c, square, rest}) : in(NearDerivative<false>{c, square, rest});
  }
  return loop<double>(Derivative{squareOf(c)}, destination(p), elements(len), source(p));
}

QvxStatus qvxsCauchyDD2_32f_I(Qvx32f* p, Qvx32f* second, int len, Qvx32f c) {
  const QvxStatus status = checked(p, second, len, c);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  const SplitDestination<Qvx32f> both{p, second};
  const RoundingScope nearest(Rounding::kNearest);
  if (kFuses && isNear(c)) {
    const auto with = [&](auto kernel) {
      return overlap(p, second, n) ? inTurn(kernel, p, second, n) : loop(kernel, both, n, source(p));
    };
    const float square = c * c;
    const float rest = std::fma(c, c, -square);
    return rest == 0 ? with(NearBothDerivatives<true>{c, square, rest}) : with(NearBothDerivatives<false>{c, square, rest});
  }
  const SecondDerivative kernel = {squareOf(c)};
  return overlap(p, second, n) ? inTurn(kernel, p, second, n) : loop<double>(kernel, both, n, source(p));
}
