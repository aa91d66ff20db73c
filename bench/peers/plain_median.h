// Median filters as one writes them without a library: networks of minima and maxima, which compilers vectorise, and a window
// that stays sorted.
#pragma once

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace plain {

template <class T> T middle(T a, T b, T c) { return std::max(std::min(a, b), std::min(std::max(a, b), c)); }

template <int kMask, class T> T medianOf(const T* x) {
  T p[kMask];
  for (int k = 0; k < kMask; ++k) p[k] = x[k];
  const auto order = [&](int i, int k) __attribute__((always_inline)) {
    const T low = std::min(p[i], p[k]);
    p[k] = std::max(p[i], p[k]);
    p[i] = low;
  };
  const auto all = [&](auto... pairs) __attribute__((always_inline)) { (order(pairs.first, pairs.second), ...); };
  using P = std::pair<int, int>;
  if constexpr (kMask == 3) return middle(p[0], p[1], p[2]);
  if constexpr (kMask == 5) return all(P{0, 1}, P{2, 3}), middle(p[4], std::max(p[0], p[2]), std::min(p[1], p[3]));
  if constexpr (kMask == 7) {
    all(P{0, 5}, P{0, 3}, P{1, 6}, P{2, 4}, P{0, 1}, P{3, 5}, P{2, 6}, P{2, 3}, P{3, 6}, P{4, 5}, P{1, 4}, P{1, 3}, P{3, 4});
    return p[3];
  }
  if constexpr (kMask == 9) {
    all(P{1, 2}, P{4, 5}, P{7, 8}, P{0, 1}, P{3, 4}, P{6, 7}, P{1, 2}, P{4, 5}, P{7, 8}, P{0, 3}, P{5, 8}, P{4, 7}, P{3, 6},
        P{1, 4}, P{2, 5}, P{4, 7}, P{4, 2}, P{6, 4}, P{4, 2});
    return p[4];
  }
}

template <int kMask, class T> void medianByNetwork(const T* __restrict x, T* __restrict y, int n) {
  constexpr int kReach = kMask / 2;
  const auto atEnd = [&](int i) {
    T window[kMask];
    for (int k = 0; k < kMask; ++k) window[k] = x[std::clamp(i - kReach + k, 0, n - 1)];
    y[i] = medianOf<kMask>(window);
  };
  for (int i = 0; i < std::min(kReach, n); ++i) atEnd(i);
  for (int i = kReach; i < n - kReach; ++i) y[i] = medianOf<kMask>(x + i - kReach);
  for (int i = std::max(kReach, n - kReach); i < n; ++i) atEnd(i);
}

template <class T> void medianBySortedWindow(const T* x, T* y, int n, int mask) {
  const int reach = mask / 2;
  static std::vector<T> window;
  window.clear();
  const auto at = [&](int i) { return x[std::clamp(i, 0, n - 1)]; };
  for (int i = -reach; i <= reach; ++i) window.push_back(at(i));
  std::sort(window.begin(), window.end());
  T* const w = window.data();
  for (int i = 0;; ++i) {
    y[i] = w[reach];
    if (i + 1 == n) return;
    const T fresh = at(i + reach + 1);
    const auto from = std::lower_bound(w, w + mask, at(i - reach)) - w;
    auto to = std::lower_bound(w, w + mask, fresh) - w;
    if (to > from) std::memmove(w + from, w + from + 1, static_cast<size_t>(--to - from) * sizeof(T));
    else std::memmove(w + to + 1, w + to, static_cast<size_t>(from - to) * sizeof(T));
    w[to] = fresh;
  }
}

}  // namespace plain
