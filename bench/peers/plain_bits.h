// Logic, shifts, byte order and strings of bits for the plain loops.
#pragma once

#include "peers/plain_loop.h"

namespace plain {

// An operation on elements as they are.
template <class Op> struct Bits {
  static constexpr bool kAccumulates = false;
  template <class D, class... E, class L> static void dispatch(const L& loop) {
    loop([](E... e) { return static_cast<D>(Op()(e...)); });
  }
};

struct And {
  template <class T> auto operator()(T a, T b) const { return a & b; }
};
struct Or {
  template <class T> auto operator()(T a, T b) const { return a | b; }
};
struct Xor {
  template <class T> auto operator()(T a, T b) const { return a ^ b; }
};
struct Not {
  template <class T> auto operator()(T a) const { return ~a; }
};
struct Constant {
  template <class T> T operator()(T, T c) const { return c; }
};
struct Reversed {
  uint16_t operator()(uint16_t v) const { return __builtin_bswap16(v); }
  uint32_t operator()(uint32_t v) const { return __builtin_bswap32(v); }
  uint64_t operator()(uint64_t v) const { return __builtin_bswap64(v); }
};
struct ShiftLeft {
  template <class T> auto operator()(T v, int places) const { return v << places; }
};
struct ShiftRight {
  template <class T> auto operator()(T v, int places) const { return v >> places; }
};

[[gnu::noipa]] inline void reverse24(const Qvx8u* __restrict a, Qvx8u* __restrict d, int n) {
  for (int i = 0; i < n; ++i) {
    d[3 * i] = a[3 * i + 2];
    d[3 * i + 1] = a[3 * i + 1];
    d[3 * i + 2] = a[3 * i];
  }
}

// One bit, the highest of a byte first.
inline void copyBit(const Qvx8u* a, int64_t from, Qvx8u* d, int64_t to) {
  const int bit = a[from / 8] >> (7 - from % 8) & 1;
  const int at = 7 - static_cast<int>(to % 8);
  d[to / 8] = static_cast<Qvx8u>((d[to / 8] & ~(1 << at)) | bit << at);
}

// Whole bytes of the destination from two of the source; the bits around them one by one.
[[gnu::noipa]] inline void copyBits(const Qvx8u* __restrict a, int from, Qvx8u* __restrict d, int to, int n) {
  int64_t i = 0;
  for (; i < n && (to + i) % 8 != 0; ++i) copyBit(a, from + i, d, to + i);
  const int shift = static_cast<int>((from + i) % 8);
  const Qvx8u* source = a + (from + i) / 8;
  Qvx8u* target = d + (to + i) / 8;
  const int64_t bytes = (n - i) / 8;
  if (shift == 0) std::copy(source, source + bytes, target);
  else
    for (int64_t k = 0; k < bytes; ++k) target[k] = static_cast<Qvx8u>(source[k] << shift | source[k + 1] >> (8 - shift));
  for (i += 8 * bytes; i < n; ++i) copyBit(a, from + i, d, to + i);
}

}  // namespace plain
