// 64-bit integers: sums of 65 bits, products of 127, round modes, and lengths without a sign.
#include <qvx/qvxs.h>
#include <sys/mman.h>
#include <unistd.h>

#include <bit>

#include "vector/scaled_members.h"

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
  scaledBinary(qvxsAdd_64s_Sfs, static_cast<QvxStatus (*)(const Qvx64s*, Qvx64s*, int, int)>(nullptr), sumWithZeroTies);
  // Random data seldom ties: small numbers of all signs do, all the time.
  std::vector<Qvx64s> a;
  std::vector<Qvx64s> b;
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
  std::vector<int> scales = scaleFactors();
  for (const T c : constants<T>()) {
    for (const QvxRoundMode mode : {0, 1, 2, 7}) {
      const Mode rounding = mode == 0 ? Mode::kTowardZero : mode == 1 ? Mode::kNearestEven : Mode::kHalfAway;
      for (const int s : scales) {
        SCOPED_TRACE("constant " + show(c) + ", mode " + std::to_string(mode) + ", scale factor " + std::to_string(s));
        Random random(seed());
        std::vector<T> source = values<T>(120, random);
        for (int i = -12; i < 12; ++i)
          source.push_back(static_cast<T>(static_cast<uint64_t>(i) - static_cast<uint64_t>(c)));  // small sums: ties
        const bool isOnlyTie = std::is_signed_v<T> && s == 65 && c == std::numeric_limits<T>::min() && mode == qvxRoundHalfAway;
        Elementwise<T, T> trial(std::make_tuple(source),
                                [=](T a) { return s > 64 && !isOnlyTie ? T{0} : scaled<T>(Wide{a} + c, s, rounding); });
        const auto call = [=](const T* a, T* d, int n) { return f(a, c, d, static_cast<Qvx32u>(n), s, mode); };
        if (c == 1 && std::abs(s) < 4) trial.run(call);
        else trial.runOnce(call);
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

// One stretch of real memory, mapped over and over to more than 2^32 elements.
class Endless {
 public:
  Endless(size_t bytes, int fd) : bytes_(bytes) {
    base_ = static_cast<uint8_t*>(mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    for (size_t at = 0; base_ != MAP_FAILED && at < bytes; at += kStretch) {
      if (mmap(base_ + at, kStretch, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED, fd, 0) == MAP_FAILED) std::abort();
    }
  }
  ~Endless() { munmap(base_, bytes_); }
  Endless(const Endless&) = delete;
  Endless& operator=(const Endless&) = delete;
  template <class T> T* as() { return base_ == MAP_FAILED ? nullptr : reinterpret_cast<T*>(base_); }
  static constexpr size_t kStretch = size_t{256} << 20;

 private:
  size_t bytes_;
  uint8_t* base_;
};

// A length of -1 is one of 2^32 - 1 elements to the functions that take it as unsigned: 8 GiB here, all of them narrowed.
TEST(UnsignedLength, MinusOneIsAVeryLongVector) {
  const int fd = memfd_create("stretch", 0);
  ASSERT_EQ(ftruncate(fd, static_cast<off_t>(2 * Endless::kStretch)), 0);
  Endless source(size_t{8} << 30, fd);
  const int target = memfd_create("target", 0);
  ASSERT_EQ(ftruncate(target, static_cast<off_t>(Endless::kStretch)), 0);
  Endless destination(size_t{4} << 30, target);
  auto* src = source.as<Qvx16s>();
  auto* dst = destination.as<Qvx8s>();
  if (src == nullptr || dst == nullptr) GTEST_SKIP() << "no address space for 12 GiB";
  constexpr size_t kElements = Endless::kStretch;
  std::fill(src, src + kElements / 2, Qvx16s{300});
  dst[kElements - 1] = 77;  // the last byte of the stretch is element 2^32 - 1: one too far
  EXPECT_EQ(qvxsConvert_16s8s_Sfs(src, dst, static_cast<Qvx32u>(-1), 1, 2), qvxStatOk);
  EXPECT_EQ(dst[0], 75);
  EXPECT_EQ(dst[kElements - 2], 75);
  EXPECT_EQ(dst[kElements - 1], 75);  // written as an earlier element of the same memory
  close(fd);
  close(target);
}

}  // namespace
