// Floats to integers with round modes and scale factors, and the 16-bit float.
#include <qvx/qvxs.h>

#include <bit>

#include "convert/conversion.h"

namespace {

using namespace tests;

constexpr QvxRoundMode kModes[] = {0, 1, 2, 3, -1};
constexpr int kScales[] = {INT32_MIN, -2000, -1100, -150, -20, -3, -1, 0, 1, 2, 7, 24, 140, 160, 1000, 1100, INT32_MAX};

// A power of two that underflows and overflows as repeated doubling and halving would.
template <class T> T factorOf(int scaleFactor) { return static_cast<T>(std::ldexp(T(1), -std::clamp(scaleFactor, -3000, 3000))); }

// What a product becomes in a round mode. The half is added in the source's type.
template <class T> T wholeNumber(T v, QvxRoundMode mode) {
  if (mode == qvxRoundTowardZero) return std::trunc(v);
  if (mode == qvxRoundNearestEven) return std::nearbyint(v);
  volatile T sum = v + std::copysign(T(0.5), v);
  return std::trunc(sum);
}

template <class A, class D, class Oracle> void toInteger(QvxStatus (*f)(const A*, D*, int, QvxRoundMode, int), Oracle oracle) {
  for (const QvxRoundMode mode : kModes) {
    for (const int s : kScales) {
      SCOPED_TRACE("mode " + std::to_string(mode) + ", scale factor " + std::to_string(s));
      Elementwise<D, A> trial(std::make_tuple(hardFloats<A>()), [=](A v) { return oracle(v, mode, s); });
      const auto call = [=](const A* a, D* d, int n) { return f(a, d, n, mode, s); };
      if (s == 1) trial.run(call);
      trial.runOnce(call);
      if (s >= -3 && s <= 2) trial.runInEveryRounding(call);
    }
  }
}

// To 8 and 16 bits: NaN becomes the upper limit, or 0 where nothing lies below.
template <class D> D narrowed(Qvx32f v, QvxRoundMode mode, int s) {
  const Qvx32f product = v * factorOf<Qvx32f>(s);
  if (product != product) return std::is_signed_v<D> ? std::numeric_limits<D>::max() : 0;
  constexpr Qvx32f kMost = std::numeric_limits<D>::max();
  constexpr Qvx32f kLeast = std::numeric_limits<D>::min();
  return static_cast<D>(std::clamp(wholeNumber(std::clamp(product, kLeast - 1, kMost), mode), kLeast, kMost));
}

TEST(FloatToInt, Narrow) {
  toInteger(qvxsConvert_32f8s_Sfs, narrowed<Qvx8s>);
  toInteger(qvxsConvert_32f8u_Sfs, [](Qvx32f v, QvxRoundMode mode, int s) { return narrowed<Qvx8u>(v < 0 ? 0.0F : v, mode, s); });
  toInteger(qvxsConvert_32f16s_Sfs, narrowed<Qvx16s>);
  toInteger(qvxsConvert_32f16u_Sfs,
            [](Qvx32f v, QvxRoundMode mode, int s) { return narrowed<Qvx16u>(v < 0 ? 0.0F : v, mode, s); });
}

TEST(FloatToInt, JustBelowAHalfRoundsUpFrom32f) {
  const Qvx32f v[2] = {0x1.FFFFFEp-2F, -0x1.FFFFFEp-2F};
  Qvx16s d16[2];
  Qvx32s d32[2];
  EXPECT_EQ(qvxsConvert_32f16s_Sfs(v, d16, 2, qvxRoundHalfAway, 0), qvxStatOk);
  EXPECT_EQ(qvxsConvert_32f32s_Sfs(v, d32, 2, qvxRoundHalfAway, 0), qvxStatOk);
  EXPECT_TRUE(d16[0] == 1 && d16[1] == -1 && d32[0] == 1 && d32[1] == -1);
}

// To 32 bits half away follows the caller's rounding in the sum with the half, so only the default is asked for it.
template <class A> Qvx32s to32(A v, QvxRoundMode mode, int s) {
  const A product = v * factorOf<A>(s);
  if (!(product < A(2147483648.0))) return INT32_MAX;
  if (product < A(-2147483649.0)) return INT32_MIN;
  const A whole = wholeNumber(std::min(product, A(2147483647.0)), mode);
  return whole >= A(2147483648.0) ? INT32_MAX : whole < A(-2147483648.0) ? INT32_MIN : static_cast<Qvx32s>(whole);
}

template <class A> void toInteger32(QvxStatus (*f)(const A*, Qvx32s*, int, QvxRoundMode, int)) {
  for (const QvxRoundMode mode : kModes) {
    for (const int s : kScales) {
      SCOPED_TRACE("mode " + std::to_string(mode) + ", scale factor " + std::to_string(s));
      Elementwise<Qvx32s, A> trial(std::make_tuple(hardFloats<A>()), [=](A v) { return to32(v, mode, s); });
      const auto call = [=](const A* a, Qvx32s* d, int n) { return f(a, d, n, mode, s); };
      trial.run(call);
      if (mode == 0 || mode == 1) trial.runInEveryRounding(call);
    }
  }
}

TEST(FloatToInt, To32Bits) {
  toInteger32(qvxsConvert_32f32s_Sfs);
  toInteger32(qvxsConvert_64f32s_Sfs);
}

TEST(FloatToInt, DoublesTo16And64Bits) {
  toInteger(qvxsConvert_64f16s_Sfs, [](Qvx64f v, QvxRoundMode mode, int s) {
    const Qvx64f product = v * factorOf<Qvx64f>(std::clamp(s, -1008, 1022));
    if (product != product) return Qvx16s{32767};
    const Qvx64f clipped = std::clamp(product, -32768.0, 32767.0);
    return static_cast<Qvx16s>(mode == 0 || mode == 1 ? wholeNumber(clipped, mode) : std::round(clipped));
  });
  const auto to64 = [](const Qvx64f* a, Qvx64s* d, int n, QvxRoundMode mode, int s) {
    return qvxsConvert_64f64s_Sfs(a, d, static_cast<Qvx32u>(n), mode, s);
  };
  toInteger(+to64, [](Qvx64f v, QvxRoundMode mode, int s) -> Qvx64s {
    if (v != v || v == 0 || s > 1074) return 0;
    const Qvx64f product = std::ldexp(v, -std::max(s, -3000));
    const Qvx64f whole = mode == 0 || mode == 1 ? wholeNumber(product, mode) : std::round(product);
    return whole >= 0x1p63 ? INT64_MAX : whole <= -0x1p63 ? INT64_MIN : static_cast<Qvx64s>(whole);
  });
}

template <class T> void to24(QvxStatus (*f)(const Qvx32f*, Qvx8u*, int, int)) {
  constexpr float kMost = std::is_signed_v<T> ? 8388607.0F : 16777215.0F;
  constexpr float kLeast = std::is_signed_v<T> ? -8388608.0F : 0.0F;
  for (const int s : kScales) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    Elementwise<Packed24<T>, Qvx32f> trial(std::make_tuple(hardFloats<Qvx32f>()), [=](Qvx32f v) {
      const float product = v * factorOf<Qvx32f>(s);
      if (product != product) return Packed24<T>::of(static_cast<T>(kLeast));
      return Packed24<T>::of(static_cast<T>(std::nearbyint(std::clamp(product, kLeast, kMost))));
    });
    const auto call = [=](const Qvx32f* a, Packed24<T>* d, int n) { return f(a, d->byte, n, s); };
    if (s == 1) trial.run(call);
    trial.runInEveryRounding(call);
  }
}

TEST(FloatToInt, To24Bits) {
  to24<Qvx32u>(qvxsConvert_32f24u_Sfs);
  to24<Qvx32s>(qvxsConvert_32f24s_Sfs);
}

// ---- binary16

double halfValue(Qvx16f h) {
  const int exponent = h >> 10 & 31;
  const int fraction = h & 0x3FF;
  const double sign = (h & 0x8000) != 0 ? -1 : 1;
  if (exponent == 31) return fraction == 0 ? sign * INFINITY : NAN;
  return sign * (exponent == 0 ? std::ldexp(fraction, -24) : std::ldexp(1024 + fraction, exponent - 25));
}

// The half nearest to v, or the next one toward zero, found by bisection over the ordered bit patterns.
Qvx16f halfOf(double v, bool nearest) {
  const Qvx16f sign = std::signbit(v) ? 0x8000 : 0;
  const double magnitude = std::fabs(v);
  if (std::isinf(v)) return sign | 0x7C00;
  Qvx16f below = 0;
  for (Qvx16f step = 0x4000; step != 0; step >>= 1) {
    if (below + step < 0x7C00 && halfValue(static_cast<Qvx16f>(below + step)) <= magnitude)
      below = static_cast<Qvx16f>(below + step);
  }
  const double low = halfValue(below);
  const double high = below == 0x7BFF ? 65536.0 : halfValue(static_cast<Qvx16f>(below + 1));
  const bool up = magnitude - low > high - magnitude || (magnitude - low == high - magnitude && (below & 1) != 0);
  return static_cast<Qvx16f>(sign | (below + (nearest && up ? 1 : 0)));
}

TEST(Half, AllOfThemToFloatAndBack) {
  std::vector<Qvx16f> all(65536);
  for (size_t i = 0; i < all.size(); ++i) all[i] = static_cast<Qvx16f>(i);
  Elementwise<Qvx32f, Qvx16f> trial(std::make_tuple(all), [](Qvx16f h) { return static_cast<Qvx32f>(halfValue(h)); });
  trial.run(qvxsConvert_16f32f);
  std::vector<Qvx32f> floats(65536);
  std::vector<Qvx16f> back(65536);
  ASSERT_EQ(qvxsConvert_16f32f(all.data(), floats.data(), 65536), qvxStatOk);
  ASSERT_EQ(qvxsConvert_32f16f(floats.data(), back.data(), 65536, qvxRoundNearestEven), qvxStatOk);
  for (size_t i = 0; i < all.size(); ++i) {
    const bool isNumber = (all[i] & 0x7C00) != 0x7C00 || (all[i] & 0x3FF) == 0;
    if (isNumber) ASSERT_EQ(back[i], all[i]);
    else ASSERT_EQ(back[i], all[i] | 0x200) << "the payload stays, and is quiet";
  }
}

// Floats around every half and every middle between two.
TEST(Half, FromFloats) {
  std::vector<Qvx32f> source = hardFloats<Qvx32f>();
  for (int i = 0; i < 0x7C00; i += 7) {
    const auto h = static_cast<Qvx32f>(halfValue(static_cast<Qvx16f>(i)));
    const auto middle = static_cast<Qvx32f>(
        (halfValue(static_cast<Qvx16f>(i)) + (i == 0x7BFF ? 65536.0 : halfValue(static_cast<Qvx16f>(i + 1)))) / 2);
    for (const Qvx32f x : {h, middle}) {
      for (const Qvx32f y : {std::nextafter(x, -1e9F), x, std::nextafter(x, 1e9F)}) source.push_back(y), source.push_back(-y);
    }
  }
  source.insert(source.end(), {65519.0F, 65519.996F, 65520.0F, 65536.0F, 1e38F});
  std::erase_if(source, [](Qvx32f v) { return v != v; });  // payloads are tested above
  for (const QvxRoundMode mode : {0, 1, 3}) {
    SCOPED_TRACE("mode " + std::to_string(mode));
    Elementwise<Qvx16f, Qvx32f> trial(std::make_tuple(source), [=](Qvx32f v) { return halfOf(v, mode == qvxRoundNearestEven); });
    const auto call = [=](const Qvx32f* a, Qvx16f* d, int n) { return qvxsConvert_32f16f(a, d, n, mode); };
    trial.run(call);
    trial.runInEveryRounding(call);
    // A NaN stays one even if nothing of its payload is left.
    for (const uint32_t bits : {0x7F800001U, 0xFF801FFFU, 0x7FC00000U, 0xFFFFFFFFU}) {
      const auto nan = std::bit_cast<Qvx32f>(bits);
      Qvx16f h = 0;
      ASSERT_EQ(qvxsConvert_32f16f(&nan, &h, 1, mode), qvxStatOk);
      EXPECT_TRUE((h & 0x7FFF) > 0x7C00 && h >> 15 == bits >> 31) << std::hex << bits << " gives " << h;
    }
  }
}

TEST(Half, FromAndToIntegers) {
  std::vector<Qvx16s> integers(65536);
  std::vector<Qvx16f> halves(65536);
  for (size_t i = 0; i < 65536; ++i) integers[i] = static_cast<Qvx16s>(i), halves[i] = static_cast<Qvx16f>(i);
  for (const QvxRoundMode mode : {0, 1}) {
    Elementwise<Qvx16f, Qvx16s> from(std::make_tuple(integers), [=](Qvx16s v) { return halfOf(v, mode == 1); });
    from.run([=](const Qvx16s* a, Qvx16f* d, int n) { return qvxsConvert_16s16f(a, d, n, mode); });
    for (const int s : {-200, -12, -1, 0, 1, 5, 200}) {
      SCOPED_TRACE("mode " + std::to_string(mode) + ", scale factor " + std::to_string(s));
      Elementwise<Qvx16s, Qvx16f> to(std::make_tuple(halves),
                                     [=](Qvx16f h) { return narrowed<Qvx16s>(static_cast<Qvx32f>(halfValue(h)), mode, s); });
      to.runOnce([=](const Qvx16f* a, Qvx16s* d, int n) { return qvxsConvert_16f16s_Sfs(a, d, n, mode, s); });
    }
  }
}

}  // namespace
