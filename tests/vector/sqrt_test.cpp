// Square roots of reals: floats, and integers at every scale factor.
#include <qvx/qvxs.h>

#include <bit>
#include <cmath>

#include "reference/roots.h"
#include "support/rounding.h"
#include "vector/members.h"

namespace {

using namespace tests;

constexpr auto kWarning = kBelow0<qvxWarnSqrtNegArg>;

template <class D> constexpr auto rootInto() {
  return [](auto x, int s) { return reference::saturated<D>(reference::nearestRoot(static_cast<int64_t>(x), s)); };
}

template <class T> std::vector<T> floats() {
  Random random(seed());
  std::vector<T> v = values<T>(900, random);
  // The first 600 without a warning, with zeros of both signs and the limits of the range.
  for (size_t i = 0; i < 600; ++i) v[i] = std::fabs(v[i]);
  using Limits = std::numeric_limits<T>;
  const T hard[] = {0, -T(0), Limits::infinity(), Limits::max(), Limits::min(), Limits::denorm_min(), Limits::quiet_NaN()};
  std::copy(std::begin(hard), std::end(hard), v.begin() + 20);
  v.insert(v.end(), {-Limits::infinity(), -Limits::denorm_min(), -Limits::max()});
  return v;
}

template <class T> void floatRoots(QvxStatus (*f)(const T*, T*, int)) {
  unary(
      f, floats<T>(), [](T x) { return std::sqrt(x); }, kWarning);
  // The substitute is the processor's own: its sign bit is set.
  const T negative = -4;
  T root = 0;
  EXPECT_EQ(f(&negative, &root, 1), qvxWarnSqrtNegArg);
  EXPECT_TRUE(std::isnan(root) && std::signbit(root));
}

TEST(Sqrt, Floats) {
  floatRoots(qvxsSqrt_32f);
  floatRoots(qvxsSqrt_64f);
}

// Both vectors of a pair take each mantissa, with an even exponent and an odd one.
TEST(Sqrt, OfEveryMantissaInEveryRounding) {
  constexpr uint32_t kMany = 4096, kVector = 16;
  std::vector<float> x(kMany + kVector, 1.0F), y(x.size());
  for (const int mode : kRoundings) {
    const CallersRounding scope(mode);
    for (uint32_t from = 0x3F000000; from < 0x40000000; from += kMany) {
      for (const uint32_t shift : {0U, kVector}) {
        for (uint32_t i = 0; i < kMany; ++i) x[shift + i] = std::bit_cast<float>(from + i);
        ASSERT_EQ(qvxsSqrt_32f(x.data(), y.data(), static_cast<int>(shift + kMany)), qvxStatOk);
        uint32_t differ = 0;
        for (uint32_t i = 0; i < kMany; ++i) differ += y[shift + i] != std::sqrt(x[shift + i]);
        ASSERT_EQ(differ, 0U) << "from " << from << ", mode " << mode;
      }
    }
  }
}

TEST(Sqrt, AllNarrowSources) {
  const std::vector<int> far = {INT32_MIN, INT32_MAX};
  scaledUnary(qvxsSqrt_8u_Sfs, allOf<Qvx8u>(), rootInto<Qvx8u>(), range(-12, 8, far), {-8, -3, 0, 1, 4});
  scaledUnary(qvxsSqrt_16u_Sfs, allOf<Qvx16u>(), rootInto<Qvx16u>(), range(-18, 12, far), {-16, -7, 0, 1, 8});
  scaledUnary(qvxsSqrt_16s_Sfs, allOf<Qvx16s>(), rootInto<Qvx16s>(), range(-18, 12, far), {-15, -7, 0, 1, 8, 9}, kWarning);
}

// Sources at which the root times 2^-s steps from one integer to the next, with their neighbours: squares of k + 1/2 and of k.
template <class T> std::vector<T> steps(int scaleFactor) {
  const int s = std::clamp(scaleFactor, -100, 100);
  std::vector<T> v;
  Random random(seed() + static_cast<unsigned>(s + 100));
  const auto add = [&](long double x) {
    if (!(std::abs(x) < static_cast<long double>(std::numeric_limits<T>::max()) - 2)) return;
    for (int near = -2; near <= 2; ++near) v.push_back(static_cast<T>(static_cast<T>(x) + near));
  };
  const long double most = std::sqrt(static_cast<long double>(std::numeric_limits<T>::max()));
  for (int i = 0; i < 1500; ++i) {
    const auto uniform = static_cast<long double>(random()) * 0x1p-64L;
    const long double root = i % 2 != 0 ? uniform * most : std::exp(uniform * std::log(most));
    const long double result = std::floor(std::ldexp(root, -s));
    add(std::pow(std::ldexp(result + 0.5L, s), 2.0L));
    add(std::pow(std::floor(root), 2.0L));
  }
  // Products k * (k + 1) that 4^-s divides: their roots lie 1 / 8k below the middle of two integers.
  for (int i = 1; i <= 300 && s < 0; ++i) add(i * (std::ldexp(static_cast<long double>(i), -2 * s) + (i % 2 == 0 ? 1 : -1)));
  for (int k = 0; k < 62; ++k) add(std::ldexp(1.0L, 126 + 2 * s) - std::ldexp(1.0L, k));  // up to where 64 bits saturate
  for (const T x : values<T>(2000, random)) v.push_back(x);
  return v;
}

TEST(Sqrt, To16BitsAroundEveryStep) {
  std::vector<int> scales = range(-17, 34, {INT32_MIN, -40, 40, INT32_MAX});
  for (const int s : scales) {
    scaledUnary(qvxsSqrt_32s16s_Sfs, steps<Qvx32s>(s), rootInto<Qvx16s>(), {s}, {}, kWarning);
    scaledUnary(qvxsSqrt_64s16s_Sfs, steps<Qvx64s>(s), rootInto<Qvx16s>(), {s}, {}, kWarning);
    if (HasFailure()) return;
  }
  scaledUnary(qvxsSqrt_32s16s_Sfs, steps<Qvx32s>(0), rootInto<Qvx16s>(), {}, {-15, -3, 0, 1, 16, 17}, kWarning);
  scaledUnary(qvxsSqrt_64s16s_Sfs, steps<Qvx64s>(0), rootInto<Qvx16s>(), {}, {-15, -3, 0, 1, 32, 33}, kWarning);
}

TEST(Sqrt, Of64BitsAroundEveryStep) {
  for (const int s : range(-66, 36, {INT32_MIN, INT32_MAX})) {
    scaledUnary(qvxsSqrt_64s_Sfs, steps<Qvx64s>(s), rootInto<Qvx64s>(), {s}, {}, kWarning);
    if (HasFailure()) return;
  }
  scaledUnary(qvxsSqrt_64s_Sfs, steps<Qvx64s>(0), rootInto<Qvx64s>(), {}, {-63, -31, -1, 0, 1, 32, 33}, kWarning);
}

}  // namespace
