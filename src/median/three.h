// Medians of three neighbours: four minima and maxima, so that nothing else may cost much. NaN and -0.0 are looked for in a block
// of vectors at a time, and the ends need no windows of their own, since the first and the last element are their own medians.
#pragma once

#include <array>

#include "frame/unroll.h"
#include "median/order.h"

namespace qvx::median {

// Whether vectors of floats have a lane that is a NaN or -0.0.
template <class V, bool = kHasMasks> class OddLanes {
 public:
  [[gnu::always_inline]] void add(V v, bool) { marks_ = hn::IfThenElse(areNanOrMinusZero(v), same<V>(1), marks_); }
  bool any() const { return !hn::AllFalse(TagOf<V>(), marks_ == same<V>(1)); }

 private:
  // A vector: combining mask registers would take the port of the minima.
  V marks_ = hn::Zero(TagOf<V>());
};
// In four instructions for two vectors, not eight: NaN of both are found by one comparison, and -0.0 has the least upper 16 bits
// that there are. So have a few negative numbers next to it, which then take the longer way too.
template <class V> class OddLanes<V, false> {
 public:
  // `isSecond`: v and the one before are compared now.
  [[gnu::always_inline]] void add(V v, bool isSecond) {
    least_ = hn::Min(least_, as<int16_t>(v));
    if (isSecond) areNan_ = hn::Or(areNan_, unordered(last_, v));
    last_ = v;
  }
  bool any() const {
    const auto mayBeZero = hn::VecFromMask(TagOf<Halves>(), least_ == same<Halves>(INT16_MIN));
    return maskBits(TagOf<V>(), hn::MaskFromVec(hn::Or(areNan_, as<LaneOf<V>>(mayBeZero)))) != 0;  // of lanes' highest bits
  }

 private:
  using Halves = decltype(as<int16_t>(V()));
  static V unordered(V a, V b) {
#if QVXS_AVX2
    if constexpr (sizeof(a.raw) == 32) {
      if constexpr (sizeof(LaneOf<V>) == 4) return V{_mm256_cmp_ps(a.raw, b.raw, _CMP_UNORD_Q)};
      else return V{_mm256_cmp_pd(a.raw, b.raw, _CMP_UNORD_Q)};
    } else
#endif
        if constexpr (sizeof(LaneOf<V>) == 4)
      return V{_mm_cmpunord_ps(a.raw, b.raw)};
    else return V{_mm_cmpunord_pd(a.raw, b.raw)};
  }

  Halves least_ = hn::Zero(TagOf<Halves>());
  V areNan_ = hn::Zero(TagOf<V>());
  V last_ = hn::Zero(TagOf<V>());
};

// Integers have none.
struct NoOddLanes {
  template <class V> void add(V, bool) {}
  static bool any() { return false; }
};

template <class T> class Three {
 public:
  // n elements, at least 3. Every step ends in a jump to the next, and passes on the status that the last one returns.
  static QvxStatus filter(const T* x, T* dst, size_t n, QvxStatus status) {
    if (n - 2 < kBlock * N) return few<N>(x, dst, n, status);
    return byBlocks(x, dst, n, status);
  }

 private:
  static constexpr size_t N = kVectorBytes / sizeof(T);
  static constexpr size_t kBlock = 4;  // vectors

  template <size_t L, size_t M> using Vectors = std::array<Vec<Lanes<T, L>>, M>;

  // The medians of M vectors of windows, which begin at p + at(0), p + at(1) and so on. Each vector tests only the elements that
  // the windows before it do not have.
  template <size_t L, size_t M, class Place>
  [[gnu::always_inline]] static inline Vectors<L, M> medians(const T* p, Place at, bool isFirst, bool& needsKeys) {
    using V = Vec<Lanes<T, L>>;
    constexpr Lanes<T, L> d;
    std::conditional_t<std::is_floating_point_v<T>, OddLanes<V>, NoOddLanes> odd;
    Vectors<L, M> out;
    unrolled<M>([&](auto v) __attribute__((always_inline)) {
      const T* const window = p + at(v);
      const V low = held(load(d, window));
      const V mid = held(load(d, window + 1));
      const V high = held(load(d, window + 2));
      odd.add(high, v % 2 == 1 || v + 1 == M);
      if (L == 1) odd.add(mid, true);
      if (isFirst && v == 0) odd.add(low, true);
      out[v] = middle(low, mid, high);
    });
    needsKeys = odd.any();
    return out;
  }
  template <size_t L> [[gnu::noinline, gnu::cold]] static Vec<Lanes<T, L>> mediansByKeys(const T* window) {
    const auto key = [=](size_t k) { return AsKey<T>::lanes(load(Lanes<T, L>(), window + k)); };
    return AsKey<T>::elements(middle(key(0), key(1), key(2)));
  }
  template <size_t L, size_t M> static void store(const Vectors<L, M>& all, T* dst) {
    unrolled<M>([&](auto v) __attribute__((always_inline)) { qvx::store(all[v], Lanes<T, L>(), dst + v * L); });
  }

  // Less than a block: as many vectors as it takes; the last one overlaps the one before it.
  template <size_t L> [[gnu::always_inline]] static inline QvxStatus few(const T* x, T* dst, size_t n, QvxStatus status) {
    const size_t inner = n - 2;
    if constexpr (L > 1) {
      if (inner < L) return few<L / 2>(x, dst, n, status);
    }
    if (L == 1 && inner == 1) return overlapping<L, 1>(x, dst, n, status);
    if constexpr (L == N) {  // four halves of a register go before two whole ones: 16 doubles take 5 ns, not 6
      if (inner <= 3 * L / 2) return overlapping<L / 2, 3>(x, dst, n, status);
      if (inner <= 2 * L) return overlapping<L / 2, 4>(x, dst, n, status);
    }
    if (inner <= 2 * L) return overlapping<L, 2>(x, dst, n, status);
    if constexpr (L == N) {
      if (inner <= 3 * L) return overlapping<L, 3>(x, dst, n, status);
    }
    return overlapping<L, kBlock>(x, dst, n, status);
  }
  template <size_t L, size_t M, bool kByKeys = false>
  [[gnu::noinline]] static QvxStatus overlapping(const T* x, T* dst, size_t n, QvxStatus status) {
    const T first = x[0];
    const T last = x[n - 1];
    const auto at = [=](size_t v) { return v + 1 < M ? v * L : n - 2 - L; };
    Vectors<L, M> out;
    if constexpr (kByKeys) {
      unrolled<M>([&](auto v) __attribute__((always_inline)) { out[v] = mediansByKeys<L>(x + at(v)); });
    } else {
      bool needsKeys = false;
      out = medians<L, M>(x, at, true, needsKeys);
      if (needsKeys) [[unlikely]]
        return overlapping<L, M, true>(x, dst, n, status);
    }
    unrolled<M>([&](auto v) __attribute__((always_inline)) { qvx::store(out[v], Lanes<T, L>(), dst + 1 + at(v)); });
    dst[0] = first;
    dst[n - 1] = last;
    return status;
  }

  // How many elements p lies after a vector's boundary.
  static size_t misalignment(const T* p) { return reinterpret_cast<uintptr_t>(p) % kVectorBytes / sizeof(T); }

  // A block is stored after the windows of the next one are loaded, so that the destination may be the source.
  [[gnu::noinline]] static QvxStatus byBlocks(const T* x, T* dst, size_t n, QvxStatus status) {
    const T first = x[0];
    const T last = x[n - 1];
    T* const y = dst + 1;
    constexpr auto at = [](size_t v) { return v * N; };
    bool wereNeeded = false;  // by elements that the block before has asked for
    const auto block = [&](size_t i, bool isFirst) __attribute__((always_inline)) {
      bool needsKeys = false;
      auto out = medians<N, kBlock>(x + i, at, isFirst, needsKeys);
      if (needsKeys || (wereNeeded && !isFirst)) [[unlikely]]
        unrolled<kBlock>([&](auto v) __attribute__((always_inline)) { out[v] = mediansByKeys<N>(x + i + at(v)); });
      wereNeeded = needsKeys;
      return out;
    };
    const size_t tail = n - 2 - kBlock * N;
    const auto atTail = block(tail, true);
    auto late = block(0, true);
    // From the second block on no store is split between cache lines.
    size_t lateAt = 0;
    for (size_t i = kBlock * N - misalignment(y); i < tail; i += kBlock * N) {
      const auto next = block(i, false);
      store<N, kBlock>(late, y + lateAt);
      late = next;
      lateAt = i;
    }
    store<N, kBlock>(late, y + lateAt);
    store<N, kBlock>(atTail, y + tail);
    dst[0] = first;
    dst[n - 1] = last;
    return status;
  }
};

}  // namespace qvx::median
