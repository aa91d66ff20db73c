// Cosine transforms: the definition at all lengths, the reported sizes, the life of a record, integers.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <limits>
#include <random>

#include "reference/dct.h"
#include "support/blocks.h"
#include "support/rounding.h"
#include "support/ulp.h"
#include "support/values.h"

namespace {

using tests::Random;

template <class T_, class Spec_> struct Direction {
  using T = T_;
  using Spec = Spec_;
  bool isInverse;
  QvxStatus (*getSize)(int, int, int*, int*, int*);
  QvxStatus (*init)(Spec**, int, int, Qvx8u*, Qvx8u*);
  QvxStatus (*initAlloc)(Spec**, int, int);
  QvxStatus (*free)(Spec*);
  QvxStatus (*getBufSize)(const Spec*, int*);
};
template <class T_, class Spec_> struct Floats : Direction<T_, Spec_> {
  QvxStatus (*run)(const T_*, T_*, const Spec_*, Qvx8u*);
  QvxStatus (*runInPlace)(T_*, const Spec_*, Qvx8u*);
};
template <class T_, class Spec_> struct Integers : Direction<T_, Spec_> {
  QvxStatus (*run)(const T_*, T_*, const Spec_*, int, Qvx8u*);
  QvxStatus (*runInPlace)(T_*, const Spec_*, int, Qvx8u*);
};

// clang-format off
const Floats<Qvx32f, QvxsDCTFwdSpec_32f> kFwd32f = {{false, qvxsDCTFwdGetSize_32f, qvxsDCTFwdInit_32f, qvxsDCTFwdInitAlloc_32f, qvxsDCTFwdFree_32f, qvxsDCTFwdGetBufSize_32f}, qvxsDCTFwd_32f, qvxsDCTFwd_32f_I};
const Floats<Qvx32f, QvxsDCTInvSpec_32f> kInv32f = {{true, qvxsDCTInvGetSize_32f, qvxsDCTInvInit_32f, qvxsDCTInvInitAlloc_32f, qvxsDCTInvFree_32f, qvxsDCTInvGetBufSize_32f}, qvxsDCTInv_32f, qvxsDCTInv_32f_I};
const Floats<Qvx64f, QvxsDCTFwdSpec_64f> kFwd64f = {{false, qvxsDCTFwdGetSize_64f, qvxsDCTFwdInit_64f, qvxsDCTFwdInitAlloc_64f, qvxsDCTFwdFree_64f, qvxsDCTFwdGetBufSize_64f}, qvxsDCTFwd_64f, qvxsDCTFwd_64f_I};
const Floats<Qvx64f, QvxsDCTInvSpec_64f> kInv64f = {{true, qvxsDCTInvGetSize_64f, qvxsDCTInvInit_64f, qvxsDCTInvInitAlloc_64f, qvxsDCTInvFree_64f, qvxsDCTInvGetBufSize_64f}, qvxsDCTInv_64f, qvxsDCTInv_64f_I};
const Integers<Qvx16s, QvxsDCTFwdSpec_16s> kFwd16s = {{false, qvxsDCTFwdGetSize_16s, qvxsDCTFwdInit_16s, qvxsDCTFwdInitAlloc_16s, qvxsDCTFwdFree_16s, qvxsDCTFwdGetBufSize_16s}, qvxsDCTFwd_16s_Sfs, qvxsDCTFwd_16s_ISfs};
const Integers<Qvx16s, QvxsDCTInvSpec_16s> kInv16s = {{true, qvxsDCTInvGetSize_16s, qvxsDCTInvInit_16s, qvxsDCTInvInitAlloc_16s, qvxsDCTInvFree_16s, qvxsDCTInvGetBufSize_16s}, qvxsDCTInv_16s_Sfs, qvxsDCTInv_16s_ISfs};
// clang-format on

struct Sizes {
  int spec = -1, init = -1, work = -1;
  bool operator==(const Sizes&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Sizes& s) { return out << s.spec << ' ' << s.init << ' ' << s.work; }

template <class Type> Sizes sizesOf(const Type& type, int len) {
  Sizes s;
  EXPECT_EQ(type.getSize(len, 0, &s.spec, &s.init, &s.work), qvxStatOk) << len;
  return s;
}

// A record in a block of exactly the reported size, at an odd address, and working memory likewise.
template <class Type> class Placed {
 public:
  Placed(const Type& type, int len)
      : type_(type),
        sizes_(sizesOf(type, len)),
        memory_(bytes(sizes_.spec)),
        init_(bytes(sizes_.init)),
        work_(bytes(sizes_.work)) {
    workAt_ = work_.atEnd(bytes(sizes_.work));
    Qvx8u* initAt = init_.atEnd(bytes(sizes_.init));
    EXPECT_EQ(type.init(&spec_, len, 0, memory_.atEnd(bytes(sizes_.spec)), sizes_.init > 0 ? initAt : nullptr), qvxStatOk) << len;
    EXPECT_TRUE(memory_.isIntact() && init_.isIntact()) << len;
  }
  ~Placed() {
    EXPECT_TRUE(memory_.isIntact() && work_.isIntact());
    EXPECT_EQ(type_.free(spec_), qvxStatOk);
    EXPECT_EQ(type_.free(spec_), qvxStatContextMismatch);
  }
  Placed(const Placed&) = delete;
  Placed& operator=(const Placed&) = delete;
  const typename Type::Spec* spec() const { return spec_; }
  Qvx8u* work() const { return sizes_.work > 0 ? workAt_ : nullptr; }

 private:
  static size_t bytes(int size) { return static_cast<size_t>(std::max(size, 1)); }
  const Type& type_;
  Sizes sizes_;
  tests::Block memory_, init_, work_;
  Qvx8u* workAt_;
  typename Type::Spec* spec_ = nullptr;
};

template <class T> std::vector<T> noise(size_t n, Random& random) {
  std::normal_distribution<T> normal;
  std::vector<T> x(n);
  for (T& v : x) v = normal(random);
  return x;
}

template <class T> long double allowedError(size_t n) {
  const bool hasLargeFactor = n > 100 && tests::largestPrimeFactor(n) > 47;
  const long double factor = hasLargeFactor ? 0.6L * tests::unfused() : 0.5L;
  return std::numeric_limits<T>::epsilon() * std::max(0.5L, factor * std::sqrt(std::log2(static_cast<long double>(n))));
}

template <class T> long double size(const std::vector<T>& v) {
  long double sum = 0;
  for (const T x : v) sum += static_cast<long double>(x) * static_cast<long double>(x);
  return std::sqrt(sum);
}

// Results of noise: the same in place, without working memory and where the vectors end at unreadable pages.
template <class Type>
std::vector<typename Type::T> results(const Type& type, const Placed<Type>& record, const std::vector<typename Type::T>& x) {
  using T = typename Type::T;
  const size_t bytes = x.size() * sizeof(T);
  tests::Block src(bytes), dst(bytes);
  T* from = reinterpret_cast<T*>(src.atEnd(bytes));
  T* to = reinterpret_cast<T*>(dst.atEnd(bytes));
  std::copy(x.begin(), x.end(), from);
  EXPECT_EQ(type.run(from, to, record.spec(), record.work()), qvxStatOk);
  EXPECT_TRUE(src.isIntact() && dst.isIntact() && std::equal(x.begin(), x.end(), from));
  std::vector<T> inPlace = x;
  EXPECT_EQ(type.runInPlace(inPlace.data(), record.spec(), nullptr), qvxStatOk);
  EXPECT_TRUE(std::equal(inPlace.begin(), inPlace.end(), to)) << "in place";
  return inPlace;
}

template <class Type> void checkDefinition(const Type& type, const tests::CosineTransform& exact, size_t n, Random& random) {
  using T = typename Type::T;
  SCOPED_TRACE(testing::Message() << sizeof(T) << " bytes, length " << n << (type.isInverse ? ", inverse" : ""));
  const Placed<Type> record(type, static_cast<int>(n));
  std::vector<long double> errors;
  std::vector<long double> all;
  while (all.size() < 200) {
    const std::vector<T> x = noise<T>(n, random);
    const std::vector<T> found = results(type, record, x);
    for (const long double y : exact.all(x, type.isInverse)) {
      errors.push_back(y - static_cast<long double>(found[all.size() % n]));
      all.push_back(y);
    }
  }
  EXPECT_LE(size(errors), allowedError<T>(n) * size(all));
}

TEST(Dct, IsTheDefinition) {
  Random random(tests::seed());
  std::vector<size_t> lengths = {256, 300, 360, 384, 480, 509, 511, 512, 625, 960, 1000, 1001, 1009, 1024, 2003, 2048};
  for (size_t n = 1; n <= 200; ++n) lengths.push_back(n);
  for (const size_t n : lengths) {
    const tests::CosineTransform exact(n);
    checkDefinition(kFwd32f, exact, n, random);
    checkDefinition(kInv32f, exact, n, random);
    checkDefinition(kFwd64f, exact, n, random);
    checkDefinition(kInv64f, exact, n, random);
  }
}

// Some results of the forward transform, and the inverse.
template <class Forward, class Inverse> void checkLong(const Forward& forward, const Inverse& inverse, size_t n, Random& random) {
  using T = typename Forward::T;
  SCOPED_TRACE(testing::Message() << sizeof(T) << " bytes, length " << n);
  const Placed<Forward> there(forward, static_cast<int>(n));
  const Placed<Inverse> back(inverse, static_cast<int>(n));
  const tests::CosineTransform exact(n);
  const std::vector<T> x = noise<T>(n, random);
  const std::vector<T> y = results(forward, there, x);
  const std::vector<T> z = results(inverse, back, y);
  const long double mean = size(y) / std::sqrt(static_cast<long double>(n));
  for (const size_t at : {size_t{0}, size_t{1}, n / 4, n / 2 - 1, n / 2, n / 2 + 1, 2 * n / 3, n - 2, n - 1}) {
    // Of normal errors, one in 10^9 is six times their mean.
    EXPECT_LE(std::fabs(exact.one(x, at, false) - static_cast<long double>(y[at])), 6 * mean * allowedError<T>(n)) << at;
    EXPECT_LE(std::fabs(exact.one(y, at, true) - static_cast<long double>(z[at])), 6 * mean * allowedError<T>(n)) << at;
  }
  std::vector<long double> error(x.begin(), x.end());
  for (size_t i = 0; i < n; ++i) error[i] -= static_cast<long double>(z[i]);
  EXPECT_LE(size(error), 2 * allowedError<T>(n) * size(x));
}

TEST(Dct, LongOnesAndBack) {
  Random random(tests::seed());
  for (const size_t n : {4096, 8192, 16384, 44100, 48000, 65536, 65537, 100000, 131072, 262144, 1048576}) {
    checkLong(kFwd32f, kInv32f, n, random);
    checkLong(kFwd64f, kInv64f, n, random);
  }
}

// What a constant, the cosines themselves and single numbers become.
TEST(Dct, KnownSequences) {
  for (const int n : {2, 7, 8, 24, 45, 64, 101, 128}) {
    const Placed record(kFwd64f, n);
    const auto count = static_cast<size_t>(n);
    std::vector<double> y = results(kFwd64f, record, std::vector<double>(count, 1.0));
    EXPECT_NEAR(y[0], std::sqrt(n), 1e-14 * n);
    for (size_t k = 1; k < count; ++k) EXPECT_NEAR(y[k], 0, 1e-14 * n) << n;
    for (size_t tone = 1; tone < count; ++tone) {
      std::vector<double> x(count);
      for (size_t i = 0; i < count; ++i) x[i] = std::cos(M_PI * static_cast<double>((2 * i + 1) * tone) / (2.0 * n));
      y = results(kFwd64f, record, x);
      for (size_t k = 0; k < count; ++k) EXPECT_NEAR(y[k], k == tone ? std::sqrt(n / 2.0) : 0, 1e-14 * n) << n << ", " << tone;
    }
  }
}

// ---- Sizes and statuses

template <class Type> void checkMemory(const Type& type, int len) {
  SCOPED_TRACE(testing::Message() << sizeof(typename Type::T) << " bytes, length " << len);
  const Placed<Type> record(type, len);
  std::vector<typename Type::T> x(static_cast<size_t>(len));
  EXPECT_EQ(type.runInPlace(x.data(), record.spec(), record.work()), qvxStatOk);
}

// Records are made to nearest, whatever the caller's mode.
template <class Type> void checkRoundings(const Type& type, const std::vector<double>& noise) {
  std::vector<typename Type::T> expected;
  for (const int mode : tests::kRoundings) {
    typename Type::Spec* spec = nullptr;
    std::vector<typename Type::T> x(noise.begin(), noise.end());
    {
      const tests::CallersRounding callers(mode);
      ASSERT_EQ(type.initAlloc(&spec, static_cast<int>(x.size()), 0), qvxStatOk);
    }
    EXPECT_EQ(type.runInPlace(x.data(), spec, nullptr), qvxStatOk);
    EXPECT_EQ(type.free(spec), qvxStatOk);
    if (mode == FE_TONEAREST) expected = x;
    EXPECT_TRUE(x == expected) << type.isInverse << ", " << sizeof(typename Type::T) << " bytes, " << x.size() << ", " << mode;
  }
}
TEST(DctRecord, OfAllRoundingModesAreTheSame) {
  Random random(tests::seed());
  for (const size_t n : {31, 64, 211, 1000, 1009}) {
    const std::vector<double> x = noise<double>(n, random);
    checkRoundings(kFwd32f, x);
    checkRoundings(kInv32f, x);
    checkRoundings(kFwd64f, x);
    checkRoundings(kInv64f, x);
  }
}

// Records and working memory end at unreadable pages.
TEST(DctRecord, TablesFitTheReportedSizes) {
  std::vector<int> lengths = {1080, 1200, 1536, 1920, 2187, 3000, 4099, 4410, 5000, 8191, 9600, 17000, 30030, 44102, 131074};
  for (int len = 1; len <= 1030; ++len) lengths.push_back(len);
  for (const int len : lengths) {
    checkMemory(kFwd32f, len);
    checkMemory(kInv32f, len);
    checkMemory(kFwd64f, len);
    checkMemory(kInv64f, len);
  }
}

// Of a record, its making and its work, to the byte.
TEST(DctRecord, ReportedSizes) {
  const auto expect = [](const auto& type, const auto& twin, int len, Sizes sizes) {
    EXPECT_EQ(sizesOf(type, len), sizes) << len;
    EXPECT_EQ(sizesOf(twin, len), sizes) << len;
  };
  for (const int len : {1, 2, 4, 8}) {
    expect(kFwd32f, kInv32f, len, {152, 0, 0});
    expect(kFwd64f, kInv64f, len, {152, 0, 0});
    if (len > 1) expect(kFwd16s, kInv16s, len, {216, 0, 4 * len + 32});
  }
  expect(kFwd16s, kInv16s, 1, {64, 0, 0});
  expect(kFwd32f, kInv32f, 3, {64 + 160, 0, 12 + 32});
  expect(kFwd64f, kInv64f, 3, {96 + 160, 0, 24 + 32});
  expect(kFwd32f, kInv32f, 16, {64 + 160, 0, 64 + 32});
  expect(kFwd64f, kInv64f, 32, {256 + 160, 0, 256 + 32});
  expect(kFwd32f, kInv32f, 100, {1600 + 160, 0, 400 + 32});
  expect(kFwd64f, kInv64f, 99, {3168 + 160, 0, 792 + 32});
  expect(kFwd32f, kInv32f, 64, {1344 + 512 + 160, 0, 544 + 512 + 32});
  expect(kFwd64f, kInv64f, 64, {2368 + 1024 + 160, 0, 1056 + 1024 + 32});
  expect(kFwd32f, kInv32f, 1024, {17664 + 8192 + 160, 2112 + 32, 8224 + 8192 + 32});
  expect(kFwd16s, kInv16s, 1024, {17664 + 8192 + 160 + 64, 2112 + 32, 8224 + 8192 + 32 + 4096 + 32});
  expect(kFwd64f, kInv64f, 4096, {135424 + 65536 + 160, 16448 + 32, 65568 + 65536 + 32});
  expect(kFwd32f, kInv32f, 512 + 1, {18688 + 8 * (3 * 513 + 2048) + 160, 16416 + 32, 16416 + 8 * 2048 + 32});
  expect(kFwd64f, kInv64f, 511, {17664 + 16 * (3 * 511 + 1024) + 160, 16416 + 32, 16416 + 16 * 1024 + 32});
  expect(kFwd16s, kInv16s, 511, {9472 + 8 * (3 * 511 + 1024) + 160 + 64, 8224 + 32, 8224 + 8 * 1024 + 32 + 4 * 511 + 32});
}

template <class Type> void checkRefusals(const Type& type, int longest) {
  using Spec = typename Type::Spec;
  Sizes s;
  EXPECT_EQ(type.getSize(0, 0, nullptr, &s.init, &s.work), qvxStatBadSize);
  EXPECT_EQ(type.getSize(INT_MIN, 0, &s.spec, &s.init, &s.work), qvxStatBadSize);
  EXPECT_EQ(type.getSize(INT_MAX, 0, &s.spec, nullptr, &s.work), qvxStatNullPtr);
  for (const int len : {longest * 2, longest * 2 + 2, 1 << 30, INT_MAX}) {
    EXPECT_EQ(type.getSize(len, 0, &s.spec, &s.init, &s.work), qvxStatBadFFTOrder) << len;
    EXPECT_EQ(s, Sizes());
    Spec* spec = nullptr;
    Qvx8u memory[64];
    EXPECT_EQ(type.init(&spec, len, 0, memory, memory), qvxStatBadFFTOrder) << len;
    EXPECT_EQ(type.initAlloc(&spec, len, 0), qvxStatBadFFTOrder) << len;
    EXPECT_EQ(spec, nullptr);
  }
  EXPECT_EQ(type.getSize(longest, 0, &s.spec, &s.init, &s.work), qvxStatOk);
  // Memory for the making is needed where its size is not 0.
  for (const int len : {513, 1024}) {
    s = sizesOf(type, len);
    std::vector<Qvx8u> memory(static_cast<size_t>(s.spec));
    Spec* spec = nullptr;
    EXPECT_EQ(type.init(&spec, len, 0, nullptr, nullptr), qvxStatNullPtr);
    EXPECT_EQ(type.init(&spec, len, 0, memory.data(), nullptr), qvxStatNullPtr);
    EXPECT_EQ(spec, nullptr);
  }
  for (const int len : {1, 6, 32, 90, 128, 500}) {
    const Placed<Type> record(type, len);
    int size = -1;
    EXPECT_EQ(type.getBufSize(record.spec(), &size), qvxStatOk);
    EXPECT_EQ(size, sizesOf(type, len).work) << len;
  }
}

TEST(DctRecord, RefusesWhatNoIntCanTell) {
  checkRefusals(kFwd32f, 1 << 27);
  checkRefusals(kInv32f, 1 << 27);
  checkRefusals(kFwd64f, 1 << 26);
  checkRefusals(kInv64f, 1 << 26);
  checkRefusals(kFwd16s, 1 << 27);
  checkRefusals(kInv16s, 1 << 27);
}

// ---- Integers

template <class Type> void checkIntegers(const Type& type, Random& random) {
  for (const int len : {1, 2, 3, 8, 11, 16, 17, 32, 37, 64, 100, 101, 128, 150, 360, 1024}) {
    SCOPED_TRACE(testing::Message() << "length " << len << (type.isInverse ? ", inverse" : ""));
    const Placed<Type> record(type, len);
    const tests::CosineTransform exact(static_cast<size_t>(len));
    for (const int scaleFactor : {0, 1, 4, -3, 40}) {
      std::vector<Qvx16s> x(static_cast<size_t>(len));
      for (Qvx16s& v : x) v = static_cast<Qvx16s>(random() >> (scaleFactor > 0 ? 48 : 52));
      std::vector<Qvx16s> y(x.size());
      EXPECT_EQ(type.run(x.data(), y.data(), record.spec(), scaleFactor, record.work()), qvxStatOk);
      const std::vector<long double> expected = exact.all(x, type.isInverse);
      for (size_t i = 0; i < x.size(); ++i) {
        const long double scaled = std::clamp(std::ldexp(expected[i], -scaleFactor), -32768.0L, 32767.0L);
        EXPECT_LE(std::fabs(scaled - static_cast<long double>(y[i])), len == 1 ? 0.5L : 0.51L) << i << ", " << scaleFactor;
      }
      EXPECT_EQ(type.runInPlace(x.data(), record.spec(), scaleFactor, nullptr), qvxStatOk);
      EXPECT_EQ(x, y);
    }
  }
}

TEST(DctOfIntegers, IsTheDefinitionRounded) {
  Random random(tests::seed());
  checkIntegers(kFwd16s, random);
  checkIntegers(kInv16s, random);
}

}  // namespace
