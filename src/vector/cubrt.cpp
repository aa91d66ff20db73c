// Cube roots of floats. Error below 0.51 ULP, without a fused multiplication: the same bits in every variant.
#include "frame/constants.h"
#include "frame/map.h"

using namespace qvx;

namespace {

// 1 / cube root, within 0.1 percent.
template <class V> V reciprocalRoot(V a) {
  // A third of the exponent's bits, negated, is off by up to 5 percent; h = 1 - a y^3 mends that: y (1-h)^(-1/3).
  const auto third = toInt(hn::ConvertTo(TagOf<V>(), as<int32_t>(a)) * same<V>(1.0F / 3));
  const V y = as<float>(same<decltype(third)>(0x54A21D2A) - third);
  const V h = same<V>(1) - a * y * y * y;
  return y + y * h * (same<V>(1.0F / 3) + h * same<V>(2.0F / 9));
}

// For a from 2^-120 to 2^120.
template <class V> V rootOfPlain(V a) {
  const V y = reciprocalRoot(a);
  // The root rounded to 8 bits has a cube of 24 bits: its distance from a is exact, and the correction is small.
  const auto bits = as<uint32_t>(a * y * y);
  const V root = as<float>((bits + same<decltype(bits)>(0x8000)) & same<decltype(bits)>(0xFFFF0000));
  const V cube = root * root * root;
  const V u = (a - cube) / cube;
  const V more = u * (same<V>(1.0F / 3) - u * (same<V>(1.0F / 9) - u * same<V>(5.0F / 81)));
  return root + root * more;
}

struct CubeRoot {
  template <class V> V operator()(V x) const {
    const TagOf<V> d;
    const V signBit = same<V>(-0.0F);
    const V a = hn::AndNot(signBit, x);
    const auto isPlain = hn::And(a >= same<V>(kLeast), a <= same<V>(kMost));
    V root;
    if (maskBits(d, hn::Not(isPlain)) == 0) {
      root = rootOfPlain(a);
    } else {
      const auto isSmall = a < same<V>(kLeast);
      const auto isLarge = a > same<V>(kMost);
      const V one = same<V>(1);
      const V scale = hn::IfThenElse(isSmall, same<V>(0x1p48F), hn::IfThenElse(isLarge, same<V>(0x1p-48F), one));
      const V back = hn::IfThenElse(isSmall, same<V>(0x1p-16F), hn::IfThenElse(isLarge, same<V>(0x1p16F), one));
      const auto hasRoot = hn::And(a > hn::Zero(d), a < same<V>(kInfinity<float>));
      root = hn::IfThenElse(hasRoot, rootOfPlain(a * scale) * back, a + a);
    }
    return root | (x & signBit);
  }

 private:
  static constexpr float kLeast = 0x1p-100F;
  static constexpr float kMost = 0x1p100F;
};

}  // namespace

QvxStatus qvxsCubrt_32f(const Qvx32f* a, Qvx32f* d, int len) { return map<CubeRoot>(d, len, AsIs{}, a); }
