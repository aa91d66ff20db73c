// Logic, shifts and byte order.
#include <qvx/qvxs.h>

#include "vector/scaled_members.h"

namespace {

using namespace tests;

const auto kAnd = []<class T>(T a, T b) { return static_cast<T>(a & b); };
const auto kOr = []<class T>(T a, T b) { return static_cast<T>(a | b); };
const auto kXor = []<class T>(T a, T b) { return static_cast<T>(a ^ b); };

TEST(Logic, TwoVectors) {
  binary(qvxsAnd_8u, qvxsAnd_8u_I, kAnd), binary(qvxsAnd_16u, qvxsAnd_16u_I, kAnd), binary(qvxsAnd_32u, qvxsAnd_32u_I, kAnd);
  binary(qvxsOr_8u, qvxsOr_8u_I, kOr), binary(qvxsOr_16u, qvxsOr_16u_I, kOr), binary(qvxsOr_32u, qvxsOr_32u_I, kOr);
  binary(qvxsXor_8u, qvxsXor_8u_I, kXor), binary(qvxsXor_16u, qvxsXor_16u_I, kXor), binary(qvxsXor_32u, qvxsXor_32u_I, kXor);
}

TEST(Logic, Constants) {
  constant(qvxsAndC_8u, qvxsAndC_8u_I, kAnd), constant(qvxsAndC_16u, qvxsAndC_16u_I, kAnd);
  constant(qvxsAndC_32u, qvxsAndC_32u_I, kAnd), constant(qvxsOrC_8u, qvxsOrC_8u_I, kOr);
  constant(qvxsOrC_16u, qvxsOrC_16u_I, kOr), constant(qvxsOrC_32u, qvxsOrC_32u_I, kOr);
  constant(qvxsXorC_8u, qvxsXorC_8u_I, kXor), constant(qvxsXorC_16u, qvxsXorC_16u_I, kXor);
  constant(qvxsXorC_32u, qvxsXorC_32u_I, kXor);
}

template <class T, class Oracle> void unary(QvxStatus (*f)(const T*, T*, int), QvxStatus (*inPlace)(T*, int), Oracle oracle) {
  Random random(seed());
  Elementwise<T, T> trial(700, random, oracle);
  trial.run(f);
  trial.run([=](const T*, T* d, int n) { return inPlace(d, n); }, 0);
}

TEST(Logic, Not) {
  const auto complement = []<class T>(T a) { return static_cast<T>(~a); };
  unary(qvxsNot_8u, qvxsNot_8u_I, complement);
  unary(qvxsNot_16u, qvxsNot_16u_I, complement);
  unary(qvxsNot_32u, qvxsNot_32u_I, complement);
}

template <class T, class Oracle>
void shifts(QvxStatus (*f)(const T*, int, T*, int), QvxStatus (*inPlace)(int, T*, int), Oracle oracle) {
  for (const int count : {0, 1, 3, 7, 8, 9, 15, 16, 17, 31, 32, 33, 64, INT32_MAX}) {
    SCOPED_TRACE("shift by " + std::to_string(count));
    Random random(seed());
    Elementwise<T, T> trial(700, random, [=](T a) { return oracle(a, count); });
    trial.run([=](const T* a, T* d, int n) { return f(a, count, d, n); });
    trial.run([=](const T*, T* d, int n) { return inPlace(count, d, n); }, 0);
  }
}

TEST(Shift, LeftAndRight) {
  // As a product with, and a floored quotient by, a power of two; what leaves the element is lost.
  const auto left = []<class T>(T a, int count) { return static_cast<T>(__int128{a} * (__int128{1} << std::min(count, 64))); };
  const auto right = []<class T>(T a, int count) {
    const __int128 unit = __int128{1} << std::min(count, 64);
    return static_cast<T>((a - ((a % unit) + unit) % unit) / unit);
  };
  shifts(qvxsLShiftC_8u, qvxsLShiftC_8u_I, left), shifts(qvxsLShiftC_16u, qvxsLShiftC_16u_I, left);
  shifts(qvxsLShiftC_16s, qvxsLShiftC_16s_I, left), shifts(qvxsLShiftC_32s, qvxsLShiftC_32s_I, left);
  shifts(qvxsRShiftC_8u, qvxsRShiftC_8u_I, right), shifts(qvxsRShiftC_16u, qvxsRShiftC_16u_I, right);
  shifts(qvxsRShiftC_16s, qvxsRShiftC_16s_I, right), shifts(qvxsRShiftC_32s, qvxsRShiftC_32s_I, right);
}

TEST(SwapBytes, AllWidths) {
  const auto reversed = []<class T>(T a) {
    auto* p = reinterpret_cast<uint8_t*>(&a);
    std::reverse(p, p + sizeof(T));
    return a;
  };
  unary(qvxsSwapBytes_16u, qvxsSwapBytes_16u_I, reversed);
  unary(qvxsSwapBytes_32u, qvxsSwapBytes_32u_I, reversed);
  unary(qvxsSwapBytes_64u, qvxsSwapBytes_64u_I, reversed);
  for (int n = 1; n < 1400; n += n < 300 ? 1 : 133) {
    Random random(seed());
    const std::vector<uint8_t> source = values<uint8_t>(static_cast<size_t>(3 * n), random);
    Block block(8192);
    uint8_t* dst = block.atEnd(source.size());
    std::vector<uint8_t> inPlace = source;
    ASSERT_EQ(qvxsSwapBytes_24u(source.data(), dst, n), qvxStatOk);
    ASSERT_EQ(qvxsSwapBytes_24u_I(inPlace.data(), n), qvxStatOk);
    for (size_t i = 0; i < source.size(); ++i) {
      const size_t from = i / 3 * 3 + 2 - i % 3;
      ASSERT_EQ(dst[i], source[from]) << "byte " << i << " of " << n << " elements";
      ASSERT_EQ(inPlace[i], source[from]) << "byte " << i << " of " << n << " elements, in place";
    }
    ASSERT_TRUE(block.isIntact());
  }
}

}  // namespace
