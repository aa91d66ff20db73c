// Sample by sample, in the type of the filter's memory: for short vectors, orders without tables, and filters that would lose
// accuracy by look-ahead.
#pragma once

#include <cmath>
#include <utility>

#include "frame/unroll.h"
#include "iir/record.h"

namespace qvx::iir {

// The transposed direct form: taps b0..bN, a1..aN; the line has N values and a zero after them.
template <class T> T directOne(const T* taps, T* line, size_t order, T x) {
  const T* b = taps + 1;
  const T* a = b + order;
  const T y = sum(product(taps[0], x), line[0]);
  for (size_t i = 0; i < order; ++i) line[i] = sum(difference(product(b[i], x), product(a[i], y)), line[i + 1]);
  return y;
}

// The same for n samples in place. The line does not move: each output adds its shares to those that follow, in vectors at fixed
// addresses. A line that moved would be loaded across two of its own stores, and wait for both: 12 ns a sample of order 64. Four
// outputs together load and store the shares once: with order 100 in SSE, a sample takes half the time of one by one. The first
// vector begins before the next output and the last one ends after the line, so the taps have zeros on both sides. The order is
// bounded because this takes up to 15 KiB of the stack.
template <class T> inline constexpr size_t kMostStill = 512 / kParts<T>;
template <class T> [[gnu::flatten]] void directStill(const T* taps, T* line, size_t order, Lane* work, size_t n) {
  using P = Part<T>;
  constexpr size_t kParts = qvx::iir::kParts<T>;
  constexpr size_t kCount = kVectorBytes / sizeof(P);
  constexpr size_t kTogether = 4 / kParts;  // with 4 complex ones, their products' factors fill the registers
  constexpr size_t kBlock = 256;
  const Lanes<P, kCount> d;
  P shares[(kBlock + kMostStill<T>)*kParts + 2 * kCount];
  P room[2][2 * kCount + (1 + kMostStill<T> + kTogether) * kParts];
  const auto padded = [&](P* at, T first, const T* rest) {
    std::fill_n(at, kCount, P{0});
    std::copy_n(parts(&first), kParts, at + kCount);
    std::copy_n(parts(rest), order * kParts, at + kCount + kParts);
    std::fill_n(at + kCount + (1 + order) * kParts, kCount + kTogether * kParts, P{0});
    return at + kCount;
  };
  const P* const b = padded(room[0], taps[0], taps + 1);
  const P* const a = padded(room[1], T{}, taps + 1 + order);
  const auto at = [](const P* p, size_t i) { return number<T>(p[i * kParts], p[i * kParts + kParts - 1]); };
  for (; n > 0; work += std::min(n, kBlock) * kParts, n -= std::min(n, kBlock)) {
    const size_t count = std::min(n, kBlock);
    std::copy_n(parts(line), order * kParts, shares);
    std::fill_n(shares + order * kParts, count * kParts + kCount, P{0});
    size_t t = 0;
    const auto outputs = [&](auto together) {
      constexpr size_t kNow = together();
      T x[kNow];
      T y[kNow];
      unrolled<kNow>([&](auto j) {
        Lane* const place = work + (t + j) * kParts;
        x[j] = number<T>(place[0], place[kParts - 1]);
        y[j] = sum(product(at(b, 0), x[j]), at(shares, t + j));
        unrolled<j>([&](auto i) { y[j] = sum(y[j], difference(product(at(b, j - i), x[i]), product(at(a, j - i), y[i]))); });
        place[kParts - 1] = imaginaryPart(y[j]);
        place[0] = realPart(y[j]);
      });
      const size_t end = (t + kNow + order) * kParts;
      for (size_t place = (t + kNow) * kParts / kCount * kCount; place < end; place += kCount) {
        auto share = load(d, shares + place);
        [[maybe_unused]] auto crossed = hn::Zero(d);  // products with imaginary parts, all of which are exchanged at once
        unrolled<kNow>([&](auto j) {
          const size_t from = place - (t + j) * kParts;
          const auto ofX = load(d, b + from);
          const auto ofY = load(d, a + from);
          share = hn::MulAdd(ofX, hn::Set(d, realPart(x[j])), share);
          share = hn::NegMulAdd(ofY, hn::Set(d, realPart(y[j])), share);
          if constexpr (kParts == 2) {
            crossed = hn::MulAdd(ofX, hn::Set(d, x[j].im), crossed);
            crossed = hn::NegMulAdd(ofY, hn::Set(d, y[j].im), crossed);
          }
        });
        if constexpr (kParts == 2) share = minusPlus(share, swapped(crossed));
        store(share, d, shares + place);
      }
      t += kNow;
    };
    while (t + kTogether <= count) outputs(std::integral_constant<size_t, kTogether>());
    while (t < count) outputs(std::integral_constant<size_t, 1>());
    std::copy_n(shares + count * kParts, order * kParts, parts(line));
  }
}

// The same for low orders, whose line stays in registers: a sample waits for two fused operations. With order 4 it takes 3.6 ns,
// by the vectors above 5.0.
inline constexpr size_t kMostInRegisters = 8;
template <size_t kOrder> void directInRegisters(const Qvx64f* taps, Qvx64f* line, Lane* work, size_t n) {
  Lane b[kOrder + 1], a[kOrder + 1], d[kOrder + 1];
  for (size_t i = 0; i <= kOrder; ++i) {
    b[i] = taps[i];
    a[i] = i == 0 ? 0 : taps[kOrder + i];
    d[i] = i < kOrder ? line[i] : 0;
  }
  for (size_t t = 0; t < n; ++t) {
    const Lane x = work[t];
    const Lane y = std::fma(b[0], x, d[0]);
    work[t] = y;
    unrolled<kOrder>([&](auto i) { d[i] = std::fma(-a[i + 1], y, std::fma(b[i + 1], x, d[i + 1])); });
  }
  std::copy_n(d, kOrder, line);
}
// Returns false, with nothing done, for other orders.
inline bool directInRegisters(const Qvx64f* taps, Qvx64f* line, size_t order, Lane* work, size_t n) {
  return [&]<size_t... I>(std::index_sequence<I...>) {
    return ((order == I + 1 && (directInRegisters<I + 1>(taps, line, work, n), true)) || ...);
  }
  (std::make_index_sequence<kMostInRegisters>());
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

}  // namespace qvx::iir
