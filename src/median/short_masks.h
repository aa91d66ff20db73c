// Medians of 3 to 9 elements, by networks on neighbouring outputs at a time. What windows have in common is ordered once: pairs
// of neighbours for a mask of 5, runs of three for 7 and 9. That leaves 8, 16 and 18 minima and maxima an output, of 10, 22
// and 30.
//
// Blocks at the ends of the source are copied to the stack, and all of them if the filter works in place.
#pragma once

#include "convolution/elements.h"
#include "median/order.h"

namespace qvx::median {

// The elements of a block: its work on the stack is five times as much.
template <class T> inline constexpr size_t kBlock = 2048 / sizeof(T);

// Elements that a block has for an output each, and those that its vectors reach past them.
template <class T> inline constexpr size_t kPast = 8 + 2 * kVectorBytes / sizeof(T);
template <class T> inline constexpr size_t kRoom = kBlock<T> + kPast<T>;

// One block: the window of its output n begins at x[n]. Runs of the same beginning are in order.
template <class Lane> struct Runs {
  static constexpr size_t N = kVectorBytes / sizeof(Lane);
  const Lane* x;
  alignas(64) Lane low[kRoom<Lane>];
  alignas(64) Lane mid[kRoom<Lane>];
  alignas(64) Lane high[kRoom<Lane>];

  static auto at(const Lane* p) { return load(Lanes<Lane, N>(), p); }
  static void put(Vec<Lanes<Lane, N>> v, Lane* p) { store(v, Lanes<Lane, N>(), p); }

  void orderPairs(size_t n) {
    for (size_t i = 0; i < n; i += N) {
      auto a = at(x + i);
      auto b = at(x + i + 1);
      order(a, b);
      put(a, low + i);
      put(b, high + i);
    }
  }
  void orderTriples(size_t n) {
    for (size_t i = 0; i < n; i += N) {
      auto a = at(x + i);
      auto b = at(x + i + 1);
      auto c = at(x + i + 2);
      order(a, b);
      order(b, c);
      order(a, b);
      put(a, low + i);
      put(b, mid + i);
      put(c, high + i);
    }
  }
};

template <class Lane> struct Median3 {
  static constexpr size_t kMask = 3;
  static void prepare(Runs<Lane>&, size_t) {}
  static auto of(const Runs<Lane>& r, size_t n) { return middle(r.at(r.x + n), r.at(r.x + n + 1), r.at(r.x + n + 2)); }
};
// The least of two pairs' lesser ones is below the median, the greatest of the others above it.
template <class Lane> struct Median5 {
  static constexpr size_t kMask = 5;
  static void prepare(Runs<Lane>& r, size_t n) { r.orderPairs(n + 3); }
  static auto of(const Runs<Lane>& r, size_t n) {
    return middle(r.at(r.x + n + 4), most(r.at(r.low + n), r.at(r.low + n + 2)), least(r.at(r.high + n), r.at(r.high + n + 2)));
  }
};
// Without the least and the greatest of two runs, five are left, two pairs of which are in order.
template <class Lane> struct Median7 {
  static constexpr size_t kMask = 7;
  static void prepare(Runs<Lane>& r, size_t n) { r.orderTriples(n + 4); }
  static auto of(const Runs<Lane>& r, size_t n) {
    auto a = r.at(r.mid + n);
    auto b = r.at(r.mid + n + 3);
    order(a, b);
    const auto low = most(r.at(r.low + n), r.at(r.low + n + 3));
    const auto high = least(r.at(r.high + n), r.at(r.high + n + 3));
    return middle(r.at(r.x + n + 6), most(low, a), least(high, b));
  }
};
// The median of the greatest of the least, the median of the medians, and the least of the greatest.
template <class Lane> struct Median9 {
  static constexpr size_t kMask = 9;
  static void prepare(Runs<Lane>& r, size_t n) { r.orderTriples(n + 7); }
  static auto of(const Runs<Lane>& r, size_t n) {
    const auto low = most(most(r.at(r.low + n), r.at(r.low + n + 3)), r.at(r.low + n + 6));
    const auto mid = middle(r.at(r.mid + n), r.at(r.mid + n + 3), r.at(r.mid + n + 6));
    const auto high = least(least(r.at(r.high + n), r.at(r.high + n + 3)), r.at(r.high + n + 6));
    return middle(low, mid, high);
  }
};

// The n outputs whose windows begin at x, which goes on past the last of them.
template <template <class> class Network, class As, class T> void filterBlock(const T* x, T* dst, size_t n) {
  using Lane = typename As::Lane;
  using R = Runs<Lane>;
  constexpr size_t N = R::N;
  constexpr Lanes<T, N> d;
  R runs;
  if constexpr (std::is_same_v<Lane, T>) {
    runs.x = x;
    Network<Lane>::prepare(runs, n);
    size_t i = 0;
    for (; i + N <= n; i += N) store(Network<Lane>::of(runs, i), d, dst + i);
    if (i < n) storeFirst(Network<Lane>::of(runs, i), d, dst + i, n - i);
  } else {
    alignas(64) Lane keys[kRoom<T>];
    for (size_t i = 0; i < n + 8; i += N) R::put(As::lanes(load(d, x + i)), keys + i);
    filterBlock<Network, AsTheyAre<Lane>>(keys, keys, n);
    for (size_t i = 0; i < n; ++i) dst[i] = As::element(keys[i]);
  }
}

template <template <class> class Network, class T> [[gnu::noinline]] QvxStatus filterByNetwork(const T* src, T* dst, size_t len) {
  constexpr size_t kReach = Network<T>::kMask / 2;
  alignas(64) T copy[kRoom<T>];
  T before[2 * kReach];  // what the windows of a block begin with
  std::fill_n(before, kReach, src[0]);
  for (size_t i = 0; i < kReach; ++i) before[kReach + i] = src[std::min(i, len - 1)];
  const T last = src[len - 1];
  for (size_t at = 0; at < len; at += kBlock<T>) {
    const size_t n = std::min(kBlock<T>, len - at);
    const bool isInside = at >= kReach && at + n + kReach + kPast<T> <= len;
    const T* x = src + at - kReach;
    if (src == dst || !isInside) {
      const size_t from = std::min(len, at + kReach);
      const size_t fresh = std::min(n, len - from);
      std::copy_n(before, 2 * kReach, copy);
      std::copy_n(src + from, fresh, copy + 2 * kReach);
      std::fill(copy + 2 * kReach + fresh, copy + n + kPast<T>, last);
      x = copy;
    }
    std::copy_n(x + n, 2 * kReach, before);
    if (std::is_integral_v<T> || compareAsTheyAre(x, n + 2 * kReach)) filterBlock<Network, AsTheyAre<T>>(x, dst + at, n);
    else filterBlock<Network, AsKey<T>>(x, dst + at, n);
  }
  return qvxStatOk;
}

}  // namespace qvx::median
