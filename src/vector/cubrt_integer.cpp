// Cube roots of 32-bit integers: times 2^-scaleFactor, half a unit rounded up, saturated to 16 bits.
#include "frame/map.h"
#include "frame/power.h"

using namespace qvx;

namespace {

// A float cube root with an error of 2^-20: a third of the exponent, then two steps of Halley's method, each of which cubes the
// error.
template <class V> V cubeRoot(V x) {
  constexpr float kThird = 1 / 3.0F;
  constexpr int32_t kThirdsOfBias = 709921077;
  const hn::RebindToSigned<TagOf<V>> di;
  const V thirdOfBits = hn::ConvertTo(TagOf<V>(), hn::BitCast(di, x)) * same<V>(kThird);
  V y = hn::BitCast(TagOf<V>(), toIntTruncated(thirdOfBits) + hn::Set(di, kThirdsOfBias));
  for (int i = 0; i < 2; ++i) {
    const V cube = hn::Max(y * y * y, same<V>(0x1p-126F));  // flushed to zero it would make the root of 0 a 0 / 0
    y = y * ((cube + x + x) / (cube + cube + x));
  }
  return y;
}

// As for square roots, the float's integer part k is the magnitude of the result or one below it. The
// cube of k + 1/2 decides which; it has 48 bits, so a double holds it exactly.
struct NearestCubeRoot {
  float factor;   // 2^-scaleFactor
  double eights;  // 8 * factor^3

  template <class V> V operator()(V x) const {
    const TagOf<V> d;
    const hn::Half<TagOf<V>> half;
    const auto root = cubeRoot(hn::Abs(hn::ConvertTo(hn::Rebind<float, TagOf<V>>(), x)));
    const V k = toIntTruncated(
        hn::Min(root * same<std::remove_const_t<decltype(root)>>(factor), same<std::remove_const_t<decltype(root)>>(32768)));
    return hn::Combine(d, decided(hn::UpperHalf(half, k), hn::UpperHalf(half, x)),
                       decided(hn::LowerHalf(half, k), hn::LowerHalf(half, x)));
  }

 private:
  template <class V> V decided(V k32, V x32) const {
    const Lanes<double, kLanesOf<V>> d;
    using W = Vec<decltype(d)>;
    const W k = hn::PromoteTo(d, k32);
    const W x = hn::PromoteTo(d, x32) * same<W>(eights);
    const W twice = k + k + same<W>(1);
    const W tie = twice * twice * twice;
    // A tie is rounded up, which for a negative number is toward zero.
    const auto up = hn::Or(hn::Abs(x) > tie, x == tie);
    return toIntTruncated(hn::CopySign(k + hn::IfThenElseZero(up, same<W>(1)), x));
  }
};

}  // namespace

QvxStatus qvxsCubrt_32s16s_Sfs(const Qvx32s* a, Qvx16s* d, int len, int sf) {
  const QvxStatus status = check(len, a, d);
  if (status != qvxStatOk) return status;
  // The root of 2^31 is 1290: beyond these all results are 0, or all but 0 saturate.
  const int s = std::clamp(sf, -15, 12);
  const NearestCubeRoot root = {powerOfTwo<float>(-s), powerOfTwo<double>(3 - 3 * s)};
  return loop([=](auto pair) { return narrowInOrder<int16_t>(each(pair, root)); }, destination(d), elements(len), InPairs{a});
}
