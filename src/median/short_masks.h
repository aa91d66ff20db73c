// Medians of 5 to 9 elements, by networks of minima and maxima on the windows of neighbouring outputs, whose elements are
// overlapping loads. For masks of 7 and 9 the runs of three elements that windows share are ordered once where there are many
// outputs: 16 and 18 operations an output instead of 22 and 30.
#pragma once

#include <array>

#include "median/order.h"

namespace qvx::median {

// at(k): a vector of the elements k of all windows; run(k): the elements k to k + 2 in order. Of two pairs, the lesser of the
// minima is not above the median and the greater of the maxima not below it.
struct Median5 {
  static constexpr size_t kMask = 5;
  template <class At, class Run> static auto of(At at, Run) {
    auto a = at(0), b = at(1), c = at(2), d = at(3);
    order(a, b);
    order(c, d);
    return middle(at(4), most(a, c), least(b, d));
  }
};
// Without the least and the greatest of two runs, five elements are left, two pairs of which are in order.
struct Median7 {
  static constexpr size_t kMask = 7;
  template <class At, class Run> static auto of(At at, Run run) {
    auto a = run(0), b = run(3);
    order(a.mid, b.mid);
    return middle(at(6), most(most(a.low, b.low), a.mid), least(least(a.high, b.high), b.mid));
  }
};
// The median of three: the greatest minimum, the median of the medians, the least maximum of the three runs.
struct Median9 {
  static constexpr size_t kMask = 9;
  template <class At, class Run> static auto of(At, Run run) {
    const auto a = run(0), b = run(3), c = run(6);
    return middle(most(most(a.low, b.low), c.low), middle(a.mid, b.mid, c.mid), least(least(a.high, b.high), c.high));
  }
};
template <class Network> inline constexpr bool kHasRuns = Network::kMask >= 7;

template <class Network, class At> auto medians(At at) {
  return Network::of(at, [&](size_t k) { return ordered(at(k), at(k + 1), at(k + 2)); });
}
template <class Network, class At> auto mediansByKeys(At at) {
  using T = LaneOf<decltype(at(0))>;
  return AsKey<T>::elements(medians<Network>([&](size_t k) { return AsKey<T>::lanes(at(k)); }));
}

enum class ByKeys { kNo, kYes };

// A vector as the windows of its outputs see it: extended by its first and its last element.
template <class Network, class T> struct Windows {
  static constexpr size_t N = kVectorBytes / sizeof(T);
  static constexpr size_t kReach = Network::kMask / 2;
  // Vectors of outputs whose runs are ordered at a time, and the elements from the first one on that this reads.
  static constexpr size_t kChunk = 24;
  static constexpr size_t kOrdered = (kChunk + (2 * kReach - 2 + N - 1) / N) * N;
  static constexpr size_t kReadByChunk = kOrdered + 2 - kReach;
  // Lanes that can be shuffled across the register, for outputs at the ends.
  using Lane = std::conditional_t<sizeof(T) < 4, int32_t, T>;
  static constexpr size_t kEnd = kVectorBytes / sizeof(Lane);

  struct Runs {
    static constexpr Lanes<T, N> d{};
    alignas(64) T low[kOrdered];
    alignas(64) T mid[kOrdered];
    alignas(64) T high[kOrdered];

    void put(size_t k, Run<Vec<Lanes<T, N>>> run) {
      store(run.low, d, low + k);
      store(run.mid, d, mid + k);
      store(run.high, d, high + k);
    }
    Run<Vec<Lanes<T, N>>> at(size_t k) const { return {load(d, low + k), load(d, mid + k), load(d, high + k)}; }
  };

  const T* x;
  size_t n;

  // N outputs from i on, whose windows lie in the vector.
  auto inside(size_t i) const {
    return [p = x + i - kReach](size_t k) { return load(Lanes<T, N>(), p + k); };
  }

  // kEnd outputs from i on, or all outputs of a vector no longer than that. A shuffle repeats the first and the last element; a
  // copy extended at its ends would be loaded across what was just stored, which takes 20 ns.
  template <bool kIsAll, ByKeys byKeys = ByKeys::kNo> [[gnu::noinline]] Vec<Lanes<T, kEnd>> atEnd(size_t i) const {
    const Lanes<T, kEnd> narrow;
    const Lanes<Lane, kEnd> d;
    const hn::RebindToSigned<decltype(d)> places;
    using Place = hn::TFromD<decltype(places)>;
    const auto all = convertLanes<Lane>(kIsAll ? n < kEnd ? loadFirst(narrow, x, n) : load(narrow, x) : hn::Zero(narrow));
    const auto top = hn::Set(places, static_cast<Place>(kIsAll ? n - 1 : kEnd - 1));
    const auto shuffled = [&](auto v, ptrdiff_t by) __attribute__((always_inline)) {
      const auto place = hn::Iota(places, 0) + hn::Set(places, static_cast<Place>(by));
      return hn::TableLookupLanes(v, hn::IndicesFromVec(d, hn::Min(hn::Max(place, hn::Zero(places)), top)));
    };
    const auto at = [&](size_t k) __attribute__((always_inline)) {
      const auto from = static_cast<ptrdiff_t>(i + k) - static_cast<ptrdiff_t>(kReach);
      if constexpr (kIsAll) {
        return k == kReach ? all : shuffled(all, static_cast<ptrdiff_t>(k) - static_cast<ptrdiff_t>(kReach));
      } else if constexpr (sizeof(Lane) == 8 && kEnd == 2) {
        // Each by itself: 16 doubles by masks of 7 take 0.8 of the time that a shuffle takes which is not known before.
        const auto one = [&](ptrdiff_t place) {
          return hn::Set(d, x[std::clamp<ptrdiff_t>(place, 0, static_cast<ptrdiff_t>(n - 1))]);
        };
        return hn::InterleaveLower(d, one(from), one(from + 1));
      } else {
        const auto base = std::clamp<ptrdiff_t>(from, 0, static_cast<ptrdiff_t>(n - kEnd));
        const auto v = convertLanes<Lane>(load(narrow, x + base));
        return from == base ? v : shuffled(v, from - base);
      }
    };
    if constexpr (std::is_floating_point_v<T>) {
      if (byKeys == ByKeys::kYes) return mediansByKeys<Network>(at);
      bool needed = needsKeys(at(2 * kReach));
      for (size_t k = 0; k < 2 * kReach; k += kEnd) needed |= needsKeys(at(k));
      if (needed) [[unlikely]]
        return atEnd<kIsAll, ByKeys::kYes>(i);
    }
    return convertLanes<T>(medians<Network>(at));
  }

  // Orders the runs of kChunk vectors of outputs from i on; false if their elements need keys.
  bool order(size_t i, Runs& runs) const {
    const auto at = inside(i);
    bool byKeys = false;
    for (size_t k = 0; k < kOrdered; k += N) {
      if constexpr (std::is_floating_point_v<T>) byKeys |= needsKeys(at(k));
      runs.put(k, ordered(at(k), at(k + 1), at(k + 2)));
    }
    if constexpr (std::is_floating_point_v<T>) byKeys |= needsKeys(at(kOrdered - N + 2));
    return !byKeys;
  }
};

// Stores vectors of outputs only when the windows of the next kLate are loaded, so that the destination may be the source.
template <class T, size_t N, size_t kReach> class Late {
 public:
  using V = Vec<Lanes<T, N>>;
  void put(V v, T* to) {
    storeIfAny(0);
    for (size_t k = 0; k + 1 < kLate; ++k) {
      held_[k] = held_[k + 1];
      to_[k] = to_[k + 1];
    }
    held_[kLate - 1] = v;
    to_[kLate - 1] = to;
  }
  void finish() {
    for (size_t k = 0; k < kLate; ++k) storeIfAny(k);
  }

 private:
  static constexpr size_t kLate = (kReach + N - 1) / N;
  void storeIfAny(size_t k) const {
    if (to_[k] != nullptr) [[likely]]
      store(held_[k], Lanes<T, N>(), to_[k]);
  }
  V held_[kLate];
  T* to_[kLate] = {};
};

template <class Network, class T> class Inside {
 public:
  explicit Inside(Windows<Network, T> windows) : windows_(windows) {}

  // N outputs from i on. Each step checks the elements that earlier windows did not have.
  auto outputs(size_t i) {
    const auto at = windows_.inside(i);
    if constexpr (std::is_floating_point_v<T>) {
      if (needsKeys(at(2 * kReach))) [[unlikely]]
        byKeys_ = kByKeys;
      if (byKeys_ > 0) [[unlikely]] {
        --byKeys_;
        return outputsByKeys(windows_.x + i - kReach);
      }
    }
    return medians<Network>(at);
  }
  // To be called before outputs that do not follow the last ones: checks the elements that their windows share with earlier ones.
  void goTo(size_t i) {
    byKeys_ = 0;
    if constexpr (std::is_floating_point_v<T>) {
      for (size_t k = 0; k < 2 * kReach; k += N) {
        if (needsKeys(windows_.inside(i)(k))) [[unlikely]]
          byKeys_ = kByKeys;
      }
    }
  }
  // The outputs of kChunk vectors.
  template <class Put> void chunk(size_t i, Put put) {
    typename Windows<Network, T>::Runs runs;
    const bool asTheyAre = windows_.order(i, runs);
    if (!asTheyAre) goTo(i);
    for (size_t v = 0; v < Windows<Network, T>::kChunk; ++v, i += N) {
      if (asTheyAre) [[likely]]
        put(Network::of(windows_.inside(i), [&](size_t k) { return runs.at(v * N + k); }), i);
      else put(outputs(i), i);
    }
  }

 private:
  static constexpr size_t N = kVectorBytes / sizeof(T);
  static constexpr size_t kReach = Network::kMask / 2;
  static constexpr size_t kByKeys = 1 + (2 * kReach + N - 1) / N;
  [[gnu::noinline]] static auto outputsByKeys(const T* p) {
    return mediansByKeys<Network>([=](size_t k) { return load(Lanes<T, N>(), p + k); });
  }
  Windows<Network, T> windows_;
  size_t byKeys_ = 0;  // steps whose windows may have elements that need keys
};

template <class Network, class T> [[gnu::noinline]] QvxStatus filterByNetwork(const T* x, T* dst, size_t n) {
  using W = Windows<Network, T>;
  constexpr size_t N = W::N;
  constexpr size_t kEnd = W::kEnd;
  constexpr size_t kReach = W::kReach;
  const W windows{x, n};
  if (n <= kEnd) {
    storeFirst(windows.template atEnd<true>(0), Lanes<T, kEnd>(), dst, n);
    return qvxStatOk;
  }
  constexpr size_t kLast = (kReach + kEnd - 1) / kEnd;  // vectors whose windows may go past the end
  std::array<typename Late<T, kEnd, kReach>::V, kLast> last;
  for (size_t k = 0; k < kLast && (k + 1) * kEnd <= n; ++k) last[k] = windows.template atEnd<false>(n - (k + 1) * kEnd);
  Late<T, kEnd, kReach> ends;
  size_t i = 0;
  if (n <= 2 * kEnd || n < N + 2 * kReach) {
    for (; i < n - kEnd; i += kEnd) ends.put(windows.template atEnd<false>(i), dst + i);
    ends.finish();
  } else {
    Inside<Network, T> inside(windows);
    Late<T, N, kReach> outputs;
    const auto put = [&](auto v, size_t at) { outputs.put(v, dst + at); };
    const size_t tail = n - kReach - N;  // of the last whole vector
    inside.goTo(tail);
    const auto atTail = inside.outputs(tail);
    for (; i < kReach; i += kEnd) ends.put(windows.template atEnd<false>(i), dst + i);
    if (i < tail) inside.goTo(i);
    if (kEnd < N && i < tail) {
      put(inside.outputs(i), i);
      i = N;
    }
    if constexpr (kHasRuns<Network>) {
      for (; i + W::kReadByChunk <= n; i += W::kChunk * N) inside.chunk(i, put);
      if (i < tail) inside.goTo(i);
    }
    for (; i < tail; i += N) put(inside.outputs(i), i);
    outputs.finish();
    ends.finish();
    store(atTail, Lanes<T, N>(), dst + tail);
  }
  for (size_t k = 0; k < kLast && (k + 1) * kEnd <= n; ++k) store(last[k], Lanes<T, kEnd>(), dst + n - (k + 1) * kEnd);
  return qvxStatOk;
}

}  // namespace qvx::median
