// 64-bit integers: sums of 65 bits, products of 127, round modes, and lengths without a sign.
#include <qvx/qvxs.h>

#include <bit>

#include "support/repeated.h"
#include "vector/members.h"

namespace {

using namespace tests;
using reference::Mode;
using reference::scaled;
using reference::Wide;

// An exact half gives 0 where the sum is not negative and not both operands are positive; from 2 places on.
Qvx64s sumWithZeroTies(Qvx64s a, Qvx64s b, int s) {
  const Wide sum = Wide{a} + b;
  if (s > 63) return 0;
  if (s >= 2 && sum >= 0 && !(a > 0 && b > 0) && sum % (Wide{1} << s) == Wide{1} << (s - 1)) return 0;
  return scaled<Qvx64s>(sum, s);
}

TEST(Add64, TiesOfMixedSignsGiveZero) {
  each(sumWithZeroTies, qvxsAdd_64s_Sfs);
  // Random data seldom ties: small numbers of all signs do, all the time.
  std::vector<Qvx64s> a, b;
  for (int x = -20; x <= 20; ++x) {
    for (int y = -20; y <= 20; ++y) a.push_back(x), b.push_back(y);
  }
  for (int s = 1; s < 6; ++s) {
    SCOPED_TRACE(s);
    Elementwise<Qvx64s, Qvx64s, Qvx64s> trial(std::make_tuple(a, b),
                                              [=](Qvx64s x, Qvx64s y) { return sumWithZeroTies(x, y, s); });
    trial.run([=](const Qvx64s* x, const Qvx64s* y, Qvx64s* d, int n) { return qvxsAdd_64s_Sfs(x, y, d, n, s); });
  }
}

template <class T> void sumsByMode(QvxStatus (*f)(const T*, T, T*, Qvx32u, int, QvxRoundMode)) {
  for (const T c : constants<T>()) {
    for (const QvxRoundMode mode : {0, 1, 2, 7}) {
      const Mode rounding = mode == 0 ? Mode::kTowardZero : mode == 1 ? Mode::kNearestEven : Mode::kHalfAway;
      for (const int s : scaleFactors()) {
        SCOPED_TRACE("constant " + show(c) + ", mode " + std::to_string(mode) + ", scale factor " + std::to_string(s));
        Random random(seed());
        std::vector<T> source = values<T>(120, random);
        for (int i = -12; i < 12; ++i)
          source.push_back(static_cast<T>(static_cast<uint64_t>(i) - static_cast<uint64_t>(c)));  // small sums: ties
        const bool isOnlyTie = std::is_signed_v<T> && s == 65 && c == std::numeric_limits<T>::min() && mode == qvxRoundHalfAway;
        Elementwise<T, T> trial(std::make_tuple(source),
                                [=](T a) { return s > 64 && !isOnlyTie ? T{0} : scaled<T>(Wide{a} + c, s, rounding); });
        const auto call = [=](const T* a, T* d, int n) { return f(a, c, d, static_cast<Qvx32u>(n), s, mode); };
        trial.runAt(c == 1 && std::abs(s) < 4, call);
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

TEST(Add64, RoundModes) {
  sumsByMode(qvxsAddC_64s_Sfs);
  sumsByMode(qvxsAddC_64u_Sfs);
}

TEST(Mul64, IntegerConstants) {
  for (const Qvx64s c : constants<Qvx64s>()) {
    for (const int s : scaleFactors()) {
      SCOPED_TRACE("constant " + show(c) + ", scale factor " + std::to_string(s));
      Random random(seed() + static_cast<unsigned>(s));
      Elementwise<Qvx64s, Qvx64s> trial(100, random, [=](Qvx64s a) { return scaled<Qvx64s>(Wide{a} * c, s); });
      trial.runOnce([=](const Qvx64s*, Qvx64s* d, int n) { return qvxsMulC_64s_ISfs(c, d, static_cast<Qvx32u>(n), s); }, 0);
      if (testing::Test::HasFailure()) return;
    }
  }
}

// The product with a float, exactly: fraction times element, times a power of two.
TEST(Mul64, FloatConstants) {
  const double denormal = std::bit_cast<double>(uint64_t{0x000F000000000001});
  for (const double c : {0.0, 1.0, 0.5, -0.5, 1.5, -3.0, 0.1, 1e-3, 1e6, 1e18, -1e300, 1e-300, denormal, -denormal}) {
    for (const int s : {-1100, -70, -3, 0, 1, 2, 10, 63, 64, 1000, INT32_MAX, INT32_MIN}) {
      SCOPED_TRACE(std::to_string(c) + ", scale factor " + std::to_string(s));
      int exponent = 0;
      const auto fraction = static_cast<Qvx64s>(std::ldexp(std::frexp(c, &exponent), 53));
      const auto places = std::clamp<int64_t>(int64_t{s} + 53 - exponent, -200, 200);
      Random random(seed());
      Elementwise<Qvx64s, Qvx64s> trial(100, random,
                                        [=](Qvx64s a) { return scaled<Qvx64s>(Wide{a} * fraction, static_cast<int>(places)); });
      trial.runOnce([=](const Qvx64s*, Qvx64s* d, int n) { return qvxsMulC_64f64s_ISfs(c, d, static_cast<Qvx32u>(n), s); }, 0);
    }
  }
}

TEST(Mul64, OneFloatGoesToTheExtremes) {
  for (const Qvx64s bits : {Qvx64s{0x90000012CD94}, -Qvx64s{0x90000012CD94}}) {
    Qvx64s v[4] = {5, 0, -1, INT64_MIN};
    EXPECT_EQ(qvxsMulC_64f64s_ISfs(std::bit_cast<double>(bits), v, 4, 0), qvxStatOk);
    const Qvx64s up = bits > 0 ? INT64_MAX : INT64_MIN;
    const Qvx64s down = bits > 0 ? INT64_MIN : INT64_MAX;
    EXPECT_EQ(v[0], up);
    EXPECT_EQ(v[1], 0);
    EXPECT_EQ(v[2], down);
    EXPECT_EQ(v[3], down);
  }
}

// An unsigned length lets a negative argument through, but a call that comes down to a copy or to zeros meets their own test.
TEST(UnsignedLength, RefusedByWayOfCopyAndZero) {
  Qvx64s v[1] = {5};
  EXPECT_EQ(qvxsAddC_64s_Sfs(v, 0, v, static_cast<Qvx32u>(-1), 0, 0), qvxStatBadSize);
  EXPECT_EQ(qvxsAddC_64s_Sfs(v, 1, v, static_cast<Qvx32u>(-1), 70, 0), qvxStatBadSize);
  EXPECT_EQ(v[0], 5);
}

// A length of -1 is one of 2^32 - 1 elements to the functions that take it as unsigned: 8 GiB here, all of them narrowed.
TEST(UnsignedLength, MinusOneIsAVeryLongVector) {
  const Repeated<Qvx16s> source(size_t{1} << 32, 300);
  Repeated<Qvx8s> destination(size_t{1} << 32, 77);
  EXPECT_EQ(qvxsConvert_16s8s_Sfs(source.data(), destination.data(), static_cast<Qvx32u>(-1), 1, 2), qvxStatOk);
  EXPECT_EQ(destination.data()[0], 75);
  EXPECT_EQ(destination.last()[-1], 75);
  EXPECT_EQ(destination.last()[0], 77);
}

}  // namespace
