// Medians of 3 to 9 elements, by networks on neighbouring outputs at a time. What windows have in common is ordered once: pairs of
// neighbours for a mask of 5, runs of three for 7 and 9. That leaves 8, 16 and 18 minima and maxima an output, of 10, 22 and 30.
//
// The source is copied to the stack block by block, because the filter may work in place.
#pragma once

#include "convolution/elements.h"
#include "median/order.h"

namespace qvx::median {

// The elements of a block: what it takes up of the stack is five times as much at most.
template <class T> inline constexpr size_t kBlock = 2048 / sizeof(T);

// One block as it lies on the stack: the window of its output n begins at x[n]. Runs are ordered from `runs` on.
template <class Lane> struct Runs {
  static constexpr size_t N = kVectorBytes / sizeof(Lane);
  static constexpr size_t kRoom = kBlock<Lane> + 8 + 2 * N;
  alignas(64) Lane x[kRoom];
  alignas(64) Lane low[kRoom];
  alignas(64) Lane mid[kRoom];
  alignas(64) Lane high[kRoom];

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

// n elements as lanes, a vector or more of whatever after them.
template <class As, class T> void toLanes(const T* src, size_t n, typename As::Lane* out) {
  constexpr size_t N = kVectorBytes / sizeof(T);
  constexpr Lanes<T, N> d;
  size_t i = 0;
  for (; i + N <= n; i += N) Runs<typename As::Lane>::put(As::lanes(load(d, src + i)), out + i);
  if (i < n) Runs<typename As::Lane>::put(As::lanes(loadFirst(d, src + i, n - i)), out + i);
}

template <class Network, class As, class T> [[gnu::noinline]] void filterByNetwork(const T* src, T* dst, size_t len) {
  using Lane = typename As::Lane;
  using R = Runs<Lane>;
  constexpr size_t N = R::N;
  constexpr size_t kReach = Network::kMask / 2;
  constexpr Lanes<T, N> d;
  R runs;
  const Lane last = As::lane(src[len - 1]);
  std::fill_n(runs.x, kReach, As::lane(src[0]));
  size_t known = std::min(kReach, len);  // of the source, in runs.x
  toLanes<As>(src, known, runs.x + kReach);
  std::fill_n(runs.x + kReach + known, kReach - known, last);
  for (size_t at = 0; at < len; at += kBlock<T>) {
    const size_t n = std::min(kBlock<T>, len - at);
    const size_t fresh = std::min(n, len - std::min(len, at + kReach));
    toLanes<As>(src + at + kReach, fresh, runs.x + 2 * kReach);
    for (size_t i = fresh; i < n; ++i) runs.x[2 * kReach + i] = last;
    Network::prepare(runs, n);
    size_t i = 0;
    for (; i + N <= n; i += N) store(As::elements(Network::of(runs, i)), d, dst + at + i);
    if (i < n) storeFirst(As::elements(Network::of(runs, i)), d, dst + at + i, n - i);
    std::copy_n(runs.x + n, 2 * kReach, runs.x);
  }
}

}  // namespace qvx::median
