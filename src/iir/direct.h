// Direct-form filters, a vector of outputs at a time.
//
// Over a vector the filter is one matrix, from the inputs and the delay line to the outputs and the next delay line. Its columns
// are found by filtering an impulse at each input and each place of the line. Real and imaginary parts are lanes, so a complex
// filter is no different from a real one. Only the path from the delay line's first vector to the next one depends on the vector
// before: a shuffle and 2 to 8 multiplications for all lanes, where the plain loop waits 8 cycles for each.
//
// Columns hold zeros for outputs before their input, which infinities and NaN would turn into NaN, so this kernel takes finite
// taps and blocks only.
//
// The matrix is in 64-bit floats, in which 32-bit filters lose nothing. 64-bit filters have the columns of the delay line in
// twice their digits: rounded, these would move the poles. They are also refused where the impulse response of 1 / A rises far:
// large values of the delay line that cancel out are rounded while they are large. Over 6000 filters with radii to 0.9999, the
// error was at most 2.9 times the plain loop's where the response never exceeds 1, 4 times at 1.4, 120 times at 32.
#pragma once

#include <algorithm>

#include "frame/record.h"
#include "frame/unroll.h"
#include "iir/number.h"

namespace qvx::iir {

template <class T> class Direct {
 public:
  static constexpr size_t kParts = qvx::iir::kParts<T>;
  static constexpr size_t kElements = kLanes / kParts;
  static constexpr bool kIsExact = sizeof(Part<T>) == 8;
  // The most vectors of a delay line; for real filters in AVX-512 as many as fit the blocks that callers allocate. Beyond these,
  // sample by sample is as fast in SSE, whose vectors then have 32-bit lanes, and takes 1.3 times as long in AVX-512.
  static constexpr size_t kMostVectors = kLanes == 2   ? 8
                                         : kLanes == 4 ? (kParts == 2 ? 8 : 6)
                                         : kParts == 2 ? 6
                                                       : (sizeof(T) == 4 ? 3 : 5);
  static constexpr size_t kMostOrder = kMostVectors * kElements;
  using Number = Coefficient<kParts>;

  // The tables' room in the block.
  void place(Carver& carver, int order) {
    order_ = static_cast<size_t>(order);
    vectors_ = (order_ + kElements - 1) / kElements;
    b_ = carver.take<Number>(order + 1 + int64_t{kElements});
    a_ = carver.take<Number>(order + 1 + int64_t{kElements});
    const size_t columns = 2 * kLanes * (vectors_ + 1) + (kIsExact ? kLanes * vectors_ : 0);
    table_ = carver.takeLines<Lane>(static_cast<int64_t>(columns * kLanes));
  }

  bool looksAhead() const { return looksAhead_; }

  // taps: b0, b1..bN, a1..aN.
  void set(const T* taps) {
    const size_t n = order_;
    looksAhead_ = areFinite(parts(taps), (2 * n + 1) * kParts) && rise(taps + 1 + n) <= kMostRise;
    std::fill_n(b_, n + 1 + kElements, Number{});
    std::fill_n(a_, n + 1 + kElements, Number{});
    for (size_t i = 0; i <= n; ++i) b_[i] = coefficient(exact(taps[i]));
    for (size_t i = 1; i <= n; ++i) a_[i] = coefficient(-exact(taps[n + i]));
    for (size_t at = 0; at < kElements; ++at) {
      fillColumns(taps, at, false);
      fillColumns(taps, at, true);
    }
  }

  // Filters n numbers in place. d: the delay line of the transposed direct form, followed by zeros up to a whole vector, and one
  // vector more.
  void run(Lane* work, size_t n, Lane* d) const {
    const auto with = [&](auto size) {
      if (vectors_ == size()) part<size()>(work, n, d);
    };
    [&]<size_t... I>(std::index_sequence<I...>) { (with(std::integral_constant<size_t, I + 1>()), ...); }
    (std::make_index_sequence<kMostVectors>());
  }

 private:
  static constexpr size_t kSteps = 8;
  static constexpr long double kMostRise = !kIsExact ? 0x1p100L : kFuses ? 1.2L : 0.75L;

  // The greatest of the first few values of the impulse response of 1 / A, after the 1 that it begins with.
  long double rise(const T* a) const {
    Exact<T> h[kSteps + 1] = {1};
    long double most = 0;
    for (size_t i = 1; i <= kSteps; ++i) {
      for (size_t k = 1; k <= std::min(i, order_); ++k) h[i] -= exact(a[k - 1]) * h[i - k];
      most = std::max(most, std::abs(h[i]));
    }
    return most;
  }

  // The columns of the impulse at an input or at a place of the delay line: the outputs, then the delay line.
  void fillColumns(const T* taps, size_t at, bool isOfLine) {
    Exact<T> line[kMostOrder + 1] = {};
    if (isOfLine && at < order_) line[at] = 1;
    Lane* const column = table_ + (isOfLine ? kLanes + at * kParts : at * kParts) * (vectors_ + 1) * kLanes;
    Lane* const rest = table_ + (2 * kLanes * (vectors_ + 1) + at * kParts * vectors_) * kLanes;
    std::fill_n(column, kParts * (vectors_ + 1) * kLanes, 0);
    if (isOfLine && kIsExact) std::fill_n(rest, kParts * vectors_ * kLanes, 0);
    for (size_t i = 0; i < kElements; ++i) {
      const Exact<T> x = !isOfLine && i == at ? 1 : 0;
      const Exact<T> y = exact(taps[0]) * x + line[0];
      put(column, (vectors_ + 1) * kLanes, i, y);
      for (size_t m = 0; m < order_; ++m) line[m] = exact(taps[1 + m]) * x - exact(taps[1 + order_ + m]) * y + line[m + 1];
    }
    for (size_t m = 0; m < order_; ++m) {
      put(column + kLanes, (vectors_ + 1) * kLanes, m, line[m]);
      if (isOfLine && kIsExact) put(rest, vectors_ * kLanes, m, line[m] - exact(rounded(line[m])));
    }
  }
  static void put(Lane* column, size_t, size_t i, long double v) { column[i] = static_cast<Lane>(v); }
  // Real and imaginary parts of the impulse have columns of their own, the second one `next` after the first.
  static void put(Lane* column, size_t next, size_t i, std::complex<long double> v) {
    column[2 * i] = column[next + 2 * i + 1] = static_cast<Lane>(v.real());
    column[2 * i + 1] = static_cast<Lane>(v.imag());
    column[next + 2 * i] = static_cast<Lane>(-v.imag());
  }
  static Qvx64f rounded(long double v) { return static_cast<Qvx64f>(v); }
  static Qvx64fc rounded(std::complex<long double> v) { return {static_cast<Qvx64f>(v.real()), static_cast<Qvx64f>(v.imag())}; }

  template <size_t kVectors> [[gnu::flatten]] void part(Lane* work, size_t n, Lane* d) const {
    constexpr size_t kColumn = (kVectors + 1) * kLanes;
    // The share of the inputs is computed one vector ahead where there are registers for it, so that nothing waits for it. With
    // order 16 a sample then takes 1.3 ns in AVX-512, else 1.9; in SSE 4.7, else 3.0.
    constexpr bool kIsAhead = kLanes > 2;
    constexpr size_t kSums = !kIsAhead ? 1 : kVectors == 1 ? 4 : 2;
    const Lane* const table = table_;
    const size_t lanes = n * kParts;
    const size_t rest = lanes % kLanes;
    Lane tail[kLanes] = {};
    std::copy(work + lanes - rest, work + lanes, tail);
    V line[kVectors + 1];
    unrolled<kVectors>([&](auto v) { line[v] = load(Wide(), d + v * kLanes); });
    line[kVectors] = hn::Zero(Wide());
    const auto add = [](V sum, const Lane* column, V x) { return hn::MulAdd(hn::Load(Wide(), column), x, sum); };
    V fed[2][kVectors + 1];
    const auto feed = [&](const Lane* x) {
      unrolled<kLanes>([&](auto j) {
        const V in = hn::Set(Wide(), x[j]);
        unrolled<kVectors + 1>([&](auto v) {
          const Lane* column = table + j * kColumn + v * kLanes;
          V& sum = fed[kIsAhead ? j % 2 : 0][v];
          if constexpr (!kIsAhead && j == 0 && v > 0) sum = add(line[v], column, in);
          else if constexpr (kIsAhead ? j < 2 : j == 0) sum = hn::Load(Wide(), column) * in;
          else sum = add(sum, column, in);
        });
      });
      if constexpr (kIsAhead) unrolled<kVectors + 1>([&](auto v) { fed[0][v] = fed[0][v] + fed[1][v]; });
    };
    const auto step = [&] {
      V y = fed[0][0];
      V next[kSums][kVectors];
      unrolled<kVectors>([&](auto v) { next[0][v] = kIsAhead ? fed[0][v + 1] + line[v + 1] : fed[0][v + 1]; });
      unrolled<kLanes>([&](auto j) {
        const V in = everyLane<j>(line[0]);
        const Lane* column = table + (kLanes + j) * kColumn;
        const Lane* rest = table + 2 * kLanes * kColumn + j * kVectors * kLanes;
        constexpr size_t kSum = (j + 1) % kSums;
        unrolled<kVectors>([&](auto v) {
          V sum = next[kSum][v];
          if constexpr (kSum > 0 && j + 1 < kSums) sum = hn::Zero(Wide());
          if constexpr (kIsExact) sum = add(sum, rest + v * kLanes, in);
          next[kSum][v] = add(sum, column + (v + 1) * kLanes, in);
        });
        y = add(y, column, in);
      });
      unrolled<kVectors>([&](auto v) {
        if constexpr (kSums == 4) line[v] = (next[0][v] + next[1][v]) + (next[2][v] + next[3][v]);
        else if constexpr (kSums == 2) line[v] = next[0][v] + next[1][v];
        else line[v] = next[0][v];
      });
      return y;
    };
    const auto inputs = [&](size_t i) { return i + kLanes <= lanes ? work + i : tail; };
    if constexpr (kIsAhead) feed(inputs(0));
    for (size_t i = 0; i + kLanes <= lanes; i += kLanes) {
      if constexpr (!kIsAhead) feed(inputs(i));
      const V y = step();
      if constexpr (kIsAhead) feed(inputs(i + kLanes));
      store(y, Wide(), work + i);
    }
    unrolled<kVectors>([&](auto v) { store(line[v], Wide(), d + v * kLanes); });
    if (rest == 0) return;
    if constexpr (!kIsAhead) feed(tail);
    Lane y[kLanes];
    store(step(), Wide(), y);
    std::copy_n(y, rest, work + lanes - rest);
    carryOn(tail, y, rest / kParts, d);
  }

  // The delay line after fewer inputs and outputs than a vector has.
  void carryOn(const Lane* x, const Lane* y, size_t n, Lane* d) const {
    for (size_t m = 0; m < order_; m += kElements) {
      V v = load(Wide(), d + (m + n) * kParts);
      for (size_t i = m + n > order_ ? m + n - order_ : 0; i < n; ++i) {  // before it, all taps are zeros past the last one
        v = plusProduct(v, factors<kParts>(b_ + m + n - i), multiplied<kParts>(everywhere<kParts>(x + i * kParts)));
        v = plusProduct(v, factors<kParts>(a_ + m + n - i), multiplied<kParts>(everywhere<kParts>(y + i * kParts)));
      }
      store(v, Wide(), d + m * kParts);
    }
  }

  size_t order_;
  size_t vectors_;
  bool looksAhead_;
  Number* b_;
  Number* a_;  // negated
  Lane* table_;
};

}  // namespace qvx::iir
