// One sample after the other, in the type of the filter's memory: short vectors, orders without tables, and filters that lose
// accuracy by look-ahead.
#pragma once

#include "iir/record.h"

namespace qvx {

// The transposed direct form: taps b0..bN, a1..aN; the line has N values and a zero behind them.
template <class T> T directOne(const T* taps, T* line, size_t order, T x) {
  const T* b = taps + 1;
  const T* a = b + order;
  const T y = sum(product(taps[0], x), line[0]);
  for (size_t i = 0; i < order; ++i) line[i] = sum(difference(product(b[i], x), product(a[i], y)), line[i + 1]);
  return y;
}

// The same for n samples in place, of real numbers. The line does not move: each output adds its shares to those that follow, in
// vectors at fixed places. A line that moved would be loaded across two of its own stores, and wait for both: 12 ns a sample of
// order 64, this takes 6. The first vector has places before an output's next one, which nobody looks at again: their taps are
// whatever stands before the first, which the record keeps from being anything bad.
inline constexpr size_t kMostStill = 2048;
template <class T> void directStill(const T* taps, T* line, size_t order, Lane* work, size_t n) {
  constexpr size_t kCount = kVectorBytes / sizeof(T);
  constexpr size_t kBlock = 256;
  const Lanes<T, kCount> d;
  T shares[kBlock + kMostStill + kCount];
  const T* const b = taps;
  const T* const a = taps + order;
  for (; n > 0; work += std::min(n, kBlock), n -= std::min(n, kBlock)) {
    const size_t count = std::min(n, kBlock);
    std::copy_n(line, order, shares);
    std::fill_n(shares + order, count + kCount, T{0});
    for (size_t t = 0; t < count; ++t) {
      const T x = static_cast<T>(work[t]);
      const T y = b[0] * x + shares[t];
      work[t] = y;
      const auto add = [&](auto bs, auto as, T* at) {
        const auto fed = hn::MulAdd(bs, hn::Set(d, x), load(d, at));
        store(hn::NegMulAdd(as, hn::Set(d, y), fed), d, at);
      };
      const size_t end = t + 1 + order;
      size_t at = (t + 1) / kCount * kCount;
      for (; at + kCount <= end; at += kCount) add(load(d, b + at - t), load(d, a + at - t), shares + at);
      if (at < end) add(loadFirst(d, b + at - t, end - at), loadFirst(d, a + at - t, end - at), shares + at);
    }
    std::copy_n(shares + count, order, line);
  }
}

// Taps b0, b1, b2, a1, a2.
template <class T> T sectionOne(const T* t, T* d, T x) {
  const T y = sum(product(t[0], x), d[0]);
  d[0] = sum(difference(product(t[1], x), product(t[3], y)), d[1]);
  d[1] = difference(product(t[2], x), product(t[4], y));
  return y;
}

// The same in the direct form I: line x2, x1, y2, y1.
template <class T> T df1One(const T* t, T* line, T x) {
  const T fed = t[1] * line[1] + t[2] * line[0] - t[3] * line[3];
  const T y = fed - t[4] * line[2] + t[0] * x;
  line[0] = line[1];
  line[1] = x;
  line[2] = line[3];
  line[3] = y;
  return y;
}

}  // namespace qvx
