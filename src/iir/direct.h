// A filter of any order in the direct form, a vector of outputs at a time.
//
// The outputs of a vector are a matrix times the N outputs before it (look-ahead), plus another times its own feed-forward
// values: a triangular one whose diagonals are the impulse response h of 1 / A, so that it is a short filter which forgets at
// every vector's beginning. A vector of 8 takes 2 * N + 8 multiplications and as many loads, which are its bound; the wait for
// the last output is 30 cycles for all 8, where the plain loop waits 8 for each.
//
// The matrix is a rewriting of the taps, in 64-bit floats: that loses nothing in filters of 32 bits.
#pragma once

#include <algorithm>

#include "frame/record.h"
#include "iir/number.h"

namespace qvx {

template <class T> class Direct {
 public:
  static constexpr size_t kParts = qvx::kParts<T>;
  static constexpr size_t kElements = kLanes / kParts;
  // Above, sample by sample is as fast: there a vector has all 32-bit lanes, and no more multiplications are made than taps ask
  // for. In SSE real numbers of order 16 take 4.4 ns a sample that way in 64-bit floats, 5.6 by the matrix.
  static constexpr size_t kMostOrder = kLanes == 8 ? 48 : kLanes == 4 ? 24 : kParts == 2 ? 16 : 8;
  // Sample by sample, 64-bit floats are kept up to this order.
  static constexpr size_t kMostExact = 16;
  using Number = Coefficient<kParts>;

  // The tables' room in the block.
  template <class Carver> void place(Carver& carver, int order) {
    order_ = static_cast<size_t>(order);
    b_ = carver.template take<Number>(order + 1 + int64_t{kElements});
    a_ = carver.template take<Number>(order + 1 + int64_t{kElements});
    ahead_ = carver.template take<Lane>(static_cast<int64_t>(std::max(order_, kElements) * kLanes * kParts));
  }

  // taps: b0, b1..bN, a1..aN.
  void set(const T* taps) {
    const size_t n = order_;
    std::fill_n(b_, n + 1 + kElements, Number{});
    std::fill_n(a_, n + 1 + kElements, Number{});
    for (size_t i = 0; i <= n; ++i) b_[i] = coefficient(exact(taps[i]));
    for (size_t i = 1; i <= n; ++i) a_[i] = coefficient(-exact(taps[n + i]));
    // Column k of the matrix: what the output k + 1 before the vector brings. Row 0 are the taps; each row is those above it
    // through the recursion.
    const auto a = [&](size_t i) { return i <= n ? -exact(taps[n + i]) : Exact<T>(0); };
    Exact<T> row[kElements + 1];
    std::fill_n(ahead_, std::max(n, kElements) * kLanes * kParts, 0);
    for (size_t k = 0; k < n; ++k) {
      for (size_t j = 0; j < kElements; ++j) {
        row[j] = a(k + j + 1);
        for (size_t i = 0; i < j; ++i) row[j] += a(j - i) * row[i];
        put(k, j, row[j]);
      }
    }
    row[0] = 1;
    for (size_t j = 1; j < kElements; ++j) {
      row[j] = 0;
      for (size_t i = 0; i < j; ++i) row[j] += a(j - i) * row[i];
      response_[j - 1] = coefficient(row[j]);
    }
  }

  // From x to y, n samples, order or more; the lanes up to the next whole vector are there, and are written. Both have order
  // zeros before them: d, the transposed direct form's delay line, holds all that came before, and comes to the output as if it
  // were input. After it, d holds all up to the n-th.
  [[gnu::flatten]] void run(const Lane* x, Lane* y, size_t n, Lane* d) const {
    const size_t lineEnd = order_ * kParts;
    V last = hn::Zero(Wide());
    for (size_t i = 0; i < n * kParts; i += kLanes) {
      V w = i < lineEnd ? loadFirst(Wide(), d + i, std::min(kLanes, lineEnd - i)) : hn::Zero(Wide());
      V w2 = hn::Zero(Wide());
      size_t k = 0;
      for (; k + 2 <= order_ + 1; k += 2) {
        w = plusProduct(w, factor(b_[k]), multiplied<kParts>(load(Wide(), x + i - k * kParts)));
        w2 = plusProduct(w2, factor(b_[k + 1]), multiplied<kParts>(load(Wide(), x + i - (k + 1) * kParts)));
      }
      if (k <= order_) w = plusProduct(w, factor(b_[k]), multiplied<kParts>(load(Wide(), x + i - k * kParts)));
      w = w + w2;
      w = withinVector<1>(w, w);
      w2 = hn::Zero(Wide());
      for (k = order_; k >= kElements + 2; k -= 2) {
        w = plusProduct(w, column(k - 1), multiplied<kParts>(everywhere<kParts>(y + i - k * kParts)));
        w2 = plusProduct(w2, column(k - 2), multiplied<kParts>(everywhere<kParts>(y + i - (k - 1) * kParts)));
      }
      if (k > kElements) w = plusProduct(w, column(k - 1), multiplied<kParts>(everywhere<kParts>(y + i - k * kParts)));
      last = afterLast<0>(w, w2, hn::Zero(Wide()), hn::Zero(Wide()), last);
      store(last, Wide(), y + i);
    }
    line(x + n * kParts, y + n * kParts, d);
  }

 private:
  void put(size_t k, size_t j, long double v) { ahead_[k * kLanes + j] = static_cast<Lane>(v); }
  void put(size_t k, size_t j, std::complex<long double> v) {
    Lane* re = ahead_ + 2 * k * kLanes + 2 * j;
    re[0] = re[1] = static_cast<Lane>(v.real());
    re[kLanes] = static_cast<Lane>(-v.imag());
    re[kLanes + 1] = static_cast<Lane>(v.imag());
  }
  Factor<kParts> column(size_t k) const {
    const Lane* p = ahead_ + k * kLanes * kParts;
    if constexpr (kParts == 1) return {load(Wide(), p)};
    else return {load(Wide(), p), load(Wide(), p + kLanes)};
  }

  template <size_t kBack> [[gnu::always_inline]] V withinVector(V sum, V w) const {
    if constexpr (kBack == kElements) {
      return sum;
    } else {
      const V shifted = delayed<kBack * kParts>(hn::Zero(Wide()), w);
      return withinVector<kBack + 1>(plusProduct(sum, factor(response_[kBack - 1]), multiplied<kParts>(shifted)), w);
    }
  }

  // The part of the outputs of the vector before, which is only just known: from its register, in four sums that take turns, so
  // that what waits for it is two multiplications deep for 8 of them.
  template <size_t kColumn> [[gnu::always_inline]] V afterLast(V next, V second, V third, V latest, V last) const {
    if constexpr (kColumn < kElements) {
      const auto x = multiplied<kParts>(everyNumber<kElements - 1 - kColumn>(last));
      return afterLast<kColumn + 1>(second, third, latest, plusProduct(next, column(kColumn), x), last);
    } else if constexpr (kElements == 1) {
      return next + latest;  // the others are still 0
    } else if constexpr (kElements == 2) {
      return third + latest;
    } else {
      return (next + second) + (third + latest);
    }
  }
  template <size_t kAt> static V everyNumber(V v) {
    if constexpr (kParts == 1) return everyLane<kAt>(v);
    else return everyBlock<kAt>(v);
  }

  // The delay line after the last inputs and outputs, which end at these places.
  void line(const Lane* xEnd, const Lane* yEnd, Lane* d) const {
    for (size_t i = 0; i < order_; i += kElements) {
      const size_t count = std::min(kElements, order_ - i) * kParts;
      V v = hn::Zero(Wide());
      for (size_t q = 1; i + q <= order_; ++q) {
        v = plusProduct(v, taps(b_ + i + q), multiplied<kParts>(everywhere<kParts>(xEnd - q * kParts)));
        v = plusProduct(v, taps(a_ + i + q), multiplied<kParts>(everywhere<kParts>(yEnd - q * kParts)));
      }
      storeFirst(v, Wide(), d + i * kParts, count);
    }
  }
  // Taps that follow each other, as factors; behind the last stand zeros.
  static Factor<kParts> taps(const Number* p) {
    const V v = load(Wide(), &p->re);
    if constexpr (kParts == 1) return {v};
    else return {hn::DupEven(v), hn::OddEven(hn::DupOdd(v), hn::Neg(hn::DupOdd(v)))};
  }

  size_t order_;
  Number* b_;
  Number* a_;    // negated
  Lane* ahead_;  // the matrix by columns; complex: real parts, then imaginary ones, as in a Factor
  Number response_[kElements];
};

}  // namespace qvx
