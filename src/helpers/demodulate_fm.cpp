// FM demodulation: the angle between each complex sample and the one before.
#include "frame/map.h"
#include "frame/rounding.h"
#include "math/polynomial.h"

using namespace qvx;

namespace {

// arctan t = t + t z q(z), z = t^2, on 0 to 1: degree 4, error 75 of 2^-24, which is 0.05 of the result's unit. tools/minimax.py
// made it; beside it the roundings of floats, 2^-24 of the angle, count for little.
constexpr float kArctan[] = {-0x1.55199cp-2F, 0x1.921caap-3F, -0x1.f7cfb2p-4F, 0x1.e6300ap-5F, -0x1.d111ccp-7F};

// The angle of x + i y in units of pi / 32768, rounded half away, as integers of 32 bits: the smaller part over the larger gives
// an eighth of a turn, and the quadrant follows from comparisons.
template <class V> auto angle(V y, V x) {
  const V signBit = same<V>(-0.0F);
  const V up = hn::AndNot(signBit, y);
  const V along = hn::AndNot(signBit, x);
  const V larger = hn::Max(up, along);
  const V smaller = hn::Min(up, along);
  // Where both are zero, over 1.
  const V t = smaller / hn::Max(larger, same<V>(1));
  const V z = t * t;
  const V units = t * same<V>(10430.3783F);
  const V eighth = hn::MulAdd(units, z * polynomial(z, kArctan), units);
  const V quarter = hn::IfThenElse(up > along, same<V>(16384) - eighth, eighth);
  const V half = ifNegative(x, same<V>(32768) - quarter, quarter);
  // Half away from zero: the sign comes last.
  const V whole = half + same<V>(0.5F);
  return toIntTruncated(whole | (y & signBit));
}

// z = src * conj(before) of N points.
struct Discriminator {
  template <class V> auto operator()(V re, V im, V reBefore, V imBefore) const {
    const TagOf<V> d;
    // y = p b - q a has no pair of products of its own where q is -32768, whose negative has no 16 bits; ~q is -q - 1.
    const V other = hn::Not(imBefore);
    const auto half = [&](auto a, auto before, auto b, auto otherBefore, auto again) {
      const auto x = hn::ConvertTo(hn::RebindToFloat<TagOf<decltype(pairProducts(a, before))>>(), pairProducts(a, before));
      const auto y = pairProducts(b, otherBefore) + again;
      return angle(hn::ConvertTo(TagOf<decltype(x)>(), y), x);
    };
    const auto wide = widen<Qvx32s>(re);
    const auto lo = half(hn::InterleaveLower(d, re, im), hn::InterleaveLower(d, reBefore, imBefore),
                         hn::InterleaveLower(d, im, re), hn::InterleaveLower(d, reBefore, other), wide.lo);
    const auto hi = half(hn::InterleaveUpper(d, re, im), hn::InterleaveUpper(d, reBefore, imBefore),
                         hn::InterleaveUpper(d, im, re), hn::InterleaveUpper(d, reBefore, other), wide.hi);
    return narrow<Qvx16s>(Pair<std::remove_const_t<decltype(lo)>>{lo, hi});
  }
};

constexpr size_t N = kVectorBytes / sizeof(Qvx16s);
using D = Lanes<Qvx16s, N>;

// The first n points, up to a vector of them, after the one before the call.
Vec<D> delayedBy1(const Qvx16s* p, size_t n, Qvx16s before) {
  const D d;
  alignas(64) Qvx16s moved[N + 2];
  moved[0] = before;
  hn::StoreU(loadFirst(d, p, n - 1), d, moved + 1);
  return load(d, moved);
}

}  // namespace

QvxStatus qvxsDemodulateFM_CToR_16s(const Qvx16s* re, const Qvx16s* im, Qvx16s* dst, int len, Qvx16sc* before) {
  const QvxStatus status = check(len, re, im, dst, before);
  if (status != qvxStatOk) return status;
  const RoundingScope nearest(Rounding::kNearest);
  const D d;
  size_t end = elements(len);
  const Qvx16sc last = {re[end - 1], im[end - 1]};
  // From the end, so that dst may be a source.
  for (; end > N; end -= N) {
    const size_t at = end - N;
    store(Discriminator()(load(d, re + at), load(d, im + at), load(d, re + at - 1), load(d, im + at - 1)), d, dst + at);
  }
  const auto first = Discriminator()(loadFirst(d, re, end), loadFirst(d, im, end), delayedBy1(re, end, before->re),
                                     delayedBy1(im, end, before->im));
  storeFirst(first, d, dst, end);
  *before = last;
  return qvxStatOk;
}
