// A quicksort with the median of three, step by step as the public header tells it: the order of equal elements follows from it.
#pragma once

#include <utility>

#include "sort/keys.h"

namespace qvx {

template <Order kOrder, class T> class DocumentedOrder {
 public:
  // numbers[] goes along with x.
  DocumentedOrder(T* x, int32_t* numbers) : x_(x), numbers_(numbers) {}

  void sort(ptrdiff_t n) {
    Range pending[32];  // the longer part waits, so each is no more than half of the one before
    int count = 0;
    for (Range r = {0, n - 1};;) {
      const ptrdiff_t size = r.high - r.low + 1;
      if (size <= 9) {
        select(r);
        if (count == 0) return;
        r = pending[--count];
        continue;
      }
      const auto [i, j] = partition(r);
      const Range left = {r.low, i}, right = {j, r.high};
      if (i - r.low < r.high - j) {
        r = i == r.low ? right : (pending[count++] = right, left);
      } else {
        r = j == r.high ? left : (pending[count++] = left, right);
      }
    }
  }

 private:
  struct Range {
    ptrdiff_t low, high;
  };

  static bool above(T a, T b) { return kOrder == Order::kAscending ? a > b : a < b; }
  static bool atLeast(T a, T b) { return kOrder == Order::kAscending ? a >= b : a <= b; }
  void exchange(ptrdiff_t a, ptrdiff_t b) {
    std::swap(x_[a], x_[b]);
    std::swap(numbers_[a], numbers_[b]);
  }
  void arrange(ptrdiff_t a, ptrdiff_t b) {
    if (above(x_[a], x_[b])) exchange(a, b);
  }

  void select(Range r) {
    for (; r.high > r.low; --r.high) {
      ptrdiff_t most = r.low;
      for (ptrdiff_t i = r.low + 1; i <= r.high; ++i) most = above(x_[i], x_[most]) ? i : most;
      exchange(most, r.high);
    }
  }

  // The end of the left part and the start of the right one.
  std::pair<ptrdiff_t, ptrdiff_t> partition(Range r) {
    const ptrdiff_t middle = r.low + ((r.high - r.low + 1) >> 1);
    arrange(r.low, r.high);
    arrange(middle, r.high);
    arrange(r.low, middle);
    const T p = x_[middle];
    ptrdiff_t i = r.low + 1, j = r.high;
    while (i < j) {
      if (atLeast(p, x_[i])) {
        ++i;
        continue;
      }
      while (j > i && above(x_[j], p)) --j;
      if (i >= j) break;
      exchange(i++, j--);
    }
    while (i > r.low && atLeast(x_[i], p)) --i;
    while (j < r.high && atLeast(p, x_[j])) ++j;
    // Only a NaN at an end keeps a part as long as it was: it stays where it is.
    if (i == r.high) --i;
    if (j == r.low) ++j;
    return {i, j};
  }

  T* x_;
  int32_t* numbers_;
};

}  // namespace qvx
