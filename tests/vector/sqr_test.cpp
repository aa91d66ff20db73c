// Squares and absolute values.
#include <qvx/qvxs.h>

#include <cmath>

#include "vector/members.h"

namespace {

using namespace tests;
using reference::scaled;
using reference::Wide;

const auto kSquare = []<class T>(T x, int s) {
  if constexpr (isComplex<T>) {
    using Part = decltype(T::re);
    return T{scaled<Part>(Wide{x.re} * x.re - Wide{x.im} * x.im, s), scaled<Part>(2 * Wide{x.re} * x.im, s)};
  } else {
    return scaled<T>(Wide{x} * x, s);
  }
};

const auto kFloatSquare = []<class T>(T x) {
  if constexpr (isComplex<T>) return T{x.re * x.re - x.im * x.im, x.re * x.im + x.im * x.re};
  else return x * x;
};

template <class T> std::vector<T> some(size_t n) {
  Random random(seed());
  return values<T>(n, random);
}

TEST(Sqr, Scaled) {
  const std::vector<int> scales = range(-34, 34, {INT32_MIN, INT32_MAX});
  const std::vector<int> paths = {-9, -1, 0, 1, 2, 12, 16, 17, 30, 32};
  scaledUnary(qvxsSqr_8u_Sfs, allOf<Qvx8u>(), kSquare, scales, paths);
  scaledUnary(qvxsSqr_16u_Sfs, allOf<Qvx16u>(), kSquare, scales, paths);
  scaledUnary(qvxsSqr_16s_Sfs, allOf<Qvx16s>(), kSquare, scales, paths);
  std::vector<Qvx16sc> complex = some<Qvx16sc>(20000);
  for (const Qvx16s re : {-32768, 32767, 0}) {
    for (const Qvx16s im : {-32768, 32767, 0}) complex.push_back({re, im});
  }
  scaledUnary(qvxsSqr_16sc_Sfs, complex, kSquare, scales, paths);
}

TEST(Sqr, Floats) { all(kFloatSquare, qvxsSqr_32f, qvxsSqr_64f, qvxsSqr_32fc, qvxsSqr_64fc); }

const auto kMagnitude = []<class T>(T x) -> T {
  if constexpr (std::is_floating_point_v<T>) return std::fabs(x);
  else return x == std::numeric_limits<T>::min() ? std::numeric_limits<T>::max() : static_cast<T>(std::abs(x));
};

template <class T> std::vector<T> withSpecials() {
  std::vector<T> v = some<T>(700);
  const T inf = std::numeric_limits<T>::infinity();
  v.insert(v.begin() + 5, {-T(0), inf, -inf, -std::numeric_limits<T>::denorm_min()});
  return v;
}

TEST(Abs, Members) {
  unary(qvxsAbs_16s, allOf<Qvx16s>(), kMagnitude);
  unary(qvxsAbs_32s, some<Qvx32s>(5000), kMagnitude);
  unary(qvxsAbs_32f, withSpecials<Qvx32f>(), kMagnitude);
  unary(qvxsAbs_64f, withSpecials<Qvx64f>(), kMagnitude);
}

// Of a NaN too, only the sign bit goes.
TEST(Abs, KeepsPayloads) {
  const uint64_t bits[] = {0xFFF8000000000123, 0x7FF8000000000456, 0xFFF0000000000001};
  Qvx64f v[3];
  std::memcpy(v, bits, sizeof(v));
  EXPECT_EQ(qvxsAbs_64f_I(v, 3), qvxStatOk);
  uint64_t got[3];
  std::memcpy(got, v, sizeof(got));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(got[i], bits[i] & INT64_MAX);
}

}  // namespace
