// Orders, by definition.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <numeric>
#include <type_traits>
#include <vector>

namespace reference {

// Whether a comes before b: the lesser number, of zeros the negative one, of others by sign and then by magnitude of their bits.
template <class T> bool isBefore(T a, T b) {
  if constexpr (std::is_integral_v<T>) {
    return a < b;
  } else {
    if (a < b || b < a) return a < b;
    if (std::signbit(a) != std::signbit(b)) return std::signbit(a);
    using Bits = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;
    const auto x = std::bit_cast<Bits>(a), y = std::bit_cast<Bits>(b);
    return std::signbit(a) ? y < x : x < y;
  }
}

// The numbers of the elements in ascending or descending order, equal ones as they were.
template <class T> std::vector<int32_t> stableOrder(const std::vector<T>& x, bool isDescending) {
  std::vector<int32_t> order(x.size());
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(), [&](int32_t a, int32_t b) {
    const T u = x[static_cast<size_t>(a)], v = x[static_cast<size_t>(b)];
    return isDescending ? isBefore(v, u) : isBefore(u, v);
  });
  return order;
}

// A quicksort that takes the median of three as its pivot and sorts fewer than ten by selection, over items that only isAbove
// tells apart. Inclusive ends.
template <class Item, class IsAbove> void quicksort(std::vector<Item>& x, int lo, int hi, const IsAbove& isAbove) {
  const auto at = [&](int i) -> Item& { return x[static_cast<size_t>(i)]; };
  const auto orderTwo = [&](int a, int b) {
    if (isAbove(at(a), at(b))) std::swap(at(a), at(b));
  };
  if (hi - lo + 1 <= 9) {
    for (; hi > lo; --hi) {
      int most = lo;
      for (int i = lo + 1; i <= hi; ++i) {
        if (isAbove(at(i), at(most))) most = i;
      }
      std::swap(at(most), at(hi));
    }
    return;
  }
  const int middle = lo + (hi - lo + 1) / 2;
  orderTwo(lo, hi);
  orderTwo(middle, hi);
  orderTwo(lo, middle);
  const Item p = at(middle);
  int i = lo + 1, j = hi;
  while (j > i) {
    if (!isAbove(at(i), p)) {
      ++i;
    } else {
      while (j > i && isAbove(at(j), p)) --j;
      if (i >= j) break;
      std::swap(at(i++), at(j--));
    }
  }
  while (i > lo && !isAbove(p, at(i))) --i;
  while (j < hi && !isAbove(at(j), p)) ++j;
  quicksort(x, lo, i, isAbove);
  quicksort(x, j, hi, isAbove);
}

// M. D. McIlroy, A Killer Adversary for Quicksort: different numbers on which this very quicksort takes the square of n steps.
// Values are decided only when they are compared, always to the pivot's disadvantage.
inline std::vector<int> killerOfQuicksort(int n) {
  std::vector<int> items(static_cast<size_t>(n)), value(static_cast<size_t>(n), n);  // n: not decided
  std::iota(items.begin(), items.end(), 0);
  int decided = 0, candidate = 0;
  const auto isAbove = [&](int a, int b) {
    auto& u = value[static_cast<size_t>(a)];
    auto& v = value[static_cast<size_t>(b)];
    if (a != b && u == n && v == n) (a == candidate ? u : v) = decided++;
    if (u == n) candidate = a;
    else if (v == n) candidate = b;
    return u > v;
  };
  quicksort(items, 0, n - 1, isAbove);
  for (int& v : value) v = v == n ? decided++ : v;
  return value;
}

}  // namespace reference
