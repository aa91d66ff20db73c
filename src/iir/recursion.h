// One sample after the other, in the type of the filter's memory: short vectors, orders without tables, and filters that lose
// accuracy by look-ahead.
#pragma once

#include "frame/unroll.h"
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

// The same for n samples in place, of real numbers. The line does not move: outputs add their shares to those that follow, in
// vectors at fixed places. A line that moved would be loaded across two of its own stores, and wait for both: 12 ns a sample of
// order 64. Four outputs together load and store a share once: of order 100 in SSE, a sample takes half the time of one by one.
// The first vector has places before the next output, which nobody looks at again, the last some behind the line: there are zeros
// on both sides of the taps.
inline constexpr size_t kMostStill = 2048;
template <class P, class T> void directStill(const T* taps, T* line, size_t order, Lane* work, size_t n) {
  constexpr size_t kCount = kVectorBytes / sizeof(P);
  constexpr size_t kTogether = 4;
  constexpr size_t kBlock = 256;
  const Lanes<P, kCount> d;
  P shares[kBlock + kMostStill + 2 * kCount];
  P room[2][2 * kCount + 1 + kMostStill + kTogether];
  const auto padded = [&](P* at, P first, const T* rest) {
    std::fill_n(at, kCount, P{0});
    at[kCount] = first;
    std::copy_n(rest, order, at + kCount + 1);
    std::fill_n(at + kCount + 1 + order, kCount + kTogether, P{0});
    return at + kCount;
  };
  const P* const b = padded(room[0], taps[0], taps + 1);
  const P* const a = padded(room[1], P{0}, taps + 1 + order);
  for (; n > 0; work += std::min(n, kBlock), n -= std::min(n, kBlock)) {
    const size_t count = std::min(n, kBlock);
    std::copy_n(line, order, shares);
    std::fill_n(shares + order, count + kCount, P{0});
    size_t t = 0;
    const auto outputs = [&](auto together) {
      constexpr size_t kNow = together();
      P x[kNow];
      P y[kNow];
      unrolled<kNow>([&](auto j) {
        x[j] = static_cast<P>(work[t + j]);
        y[j] = b[0] * x[j] + shares[t + j];
        unrolled<j>([&](auto i) { y[j] += b[j - i] * x[i] - a[j - i] * y[i]; });
        work[t + j] = y[j];
      });
      for (size_t at = (t + kNow) / kCount * kCount; at < t + kNow + order; at += kCount) {
        auto share = load(d, shares + at);
        unrolled<kNow>([&](auto j) {
          share = hn::MulAdd(load(d, b + at - t - j), hn::Set(d, x[j]), share);
          share = hn::NegMulAdd(load(d, a + at - t - j), hn::Set(d, y[j]), share);
        });
        store(share, d, shares + at);
      }
      t += kNow;
    };
    while (t + kTogether <= count) outputs(std::integral_constant<size_t, kTogether>());
    while (t < count) outputs(std::integral_constant<size_t, 1>());
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
