// Logic, shifts and byte order.
#include <qvx/qvxs.h>

#include "vector/members.h"

namespace {

using namespace tests;

TEST(Logic, Members) {
  all([]<class T>(T a, T b) { return static_cast<T>(a & b); }, qvxsAnd_8u, qvxsAnd_16u, qvxsAnd_32u, qvxsAndC_8u, qvxsAndC_16u,
      qvxsAndC_32u);
  all([]<class T>(T a, T b) { return static_cast<T>(a | b); }, qvxsOr_8u, qvxsOr_16u, qvxsOr_32u, qvxsOrC_8u, qvxsOrC_16u,
      qvxsOrC_32u);
  all([]<class T>(T a, T b) { return static_cast<T>(a ^ b); }, qvxsXor_8u, qvxsXor_16u, qvxsXor_32u, qvxsXorC_8u, qvxsXorC_16u,
      qvxsXorC_32u);
  all([]<class T>(T a) { return static_cast<T>(~a); }, qvxsNot_8u, qvxsNot_16u, qvxsNot_32u);
}

template <class Oracle, class... T> void shifts(Oracle oracle, QvxStatus (*... f)(const T*, int, T*, int)) {
  for (const int count : {0, 1, 3, 7, 8, 9, 15, 16, 17, 31, 32, 33, 64, INT32_MAX}) {
    SCOPED_TRACE("shift by " + std::to_string(count));
    Random random(seed());
    (Elementwise<T, T>(700, random, [=](T a) { return oracle(a, count); }).run([=](const T* a, T* d, int n) {
      return f(a, count, d, n);
    }),
     ...);
  }
}

TEST(Shift, LeftAndRight) {
  // As a product with, and a floored quotient by, a power of two; what leaves the element is lost.
  const auto left = []<class T>(T a, int count) { return static_cast<T>(__int128{a} * (__int128{1} << std::min(count, 64))); };
  const auto right = []<class T>(T a, int count) {
    const __int128 unit = __int128{1} << std::min(count, 64);
    return static_cast<T>((a - ((a % unit) + unit) % unit) / unit);
  };
  shifts(left, qvxsLShiftC_8u, qvxsLShiftC_16u, qvxsLShiftC_16s, qvxsLShiftC_32s);
  shifts(right, qvxsRShiftC_8u, qvxsRShiftC_16u, qvxsRShiftC_16s, qvxsRShiftC_32s);
}

TEST(SwapBytes, AllWidths) {
  const auto reversed = []<class T>(T a) {
    auto* p = reinterpret_cast<uint8_t*>(&a);
    std::reverse(p, p + sizeof(T));
    return a;
  };
  all(reversed, qvxsSwapBytes_16u, qvxsSwapBytes_32u, qvxsSwapBytes_64u);
  Random random(seed());
  using Bytes = Packed24<Qvx32u>;
  Elementwise<Bytes, Bytes>(1400, random, [](Bytes v) {
    return Bytes{{v.byte[2], v.byte[1], v.byte[0]}};
  }).run([](const Bytes* a, Bytes* d, int n) { return qvxsSwapBytes_24u(a->byte, d->byte, n); });
}

}  // namespace
