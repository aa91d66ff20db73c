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
  size_t i = 0;
  if constexpr (kParts<T> == 1) {
    // In vectors as long as there are some: d[i + 1] is read before it is written.
    constexpr size_t kCount = kVectorBytes / sizeof(T);
    const Lanes<T, kCount> d;
    for (; i + kCount <= order; i += kCount) {
      const auto fed = hn::MulAdd(load(d, b + i), hn::Set(d, x), load(d, line + i + 1));
      store(hn::NegMulAdd(load(d, a + i), hn::Set(d, y), fed), d, line + i);
    }
  }
  for (; i < order; ++i) line[i] = sum(difference(product(b[i], x), product(a[i], y)), line[i + 1]);
  return y;
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
