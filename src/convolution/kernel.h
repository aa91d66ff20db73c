// The sum of products of every filter: y[n] = p[0] * x[n] + p[1] * x[n + 1] + ... for many n at a time.
//
// A tile of some vectors of outputs stays in registers while the loop runs over the taps. A vector of the source serves all taps
// that lie a whole vector apart, each for another vector of outputs, so a load, which nearly always crosses a cache line, feeds
// up to four multiplications: 99 % of the processor's multiplications and additions from 48 taps on, where loading a vector for
// each of them leaves 47 %.
#pragma once

#include <algorithm>

#include "convolution/convolve.h"
#include "frame/map.h"

namespace qvx::convolution {

// What is multiplied and how. An Element may have two lanes; a Tap is what one lane of the source is multiplied by. Every element
// of the source goes into kChannels sums, each with a tap of its own, which `total` combines.
template <class T> struct RealSum {
  using Element = T;
  using Tap = T;
  using V = Vec<Lanes<T, kVectorBytes / sizeof(T)>>;
  using Sum = V;
  static constexpr size_t kChannels = 1;

  static V source(const Element* x) { return load(TagOf<V>(), x); }
  static V source(const Element* x, size_t n) { return loadFirst(TagOf<V>(), x, n); }
  static V broadcast(const Tap* p) { return same<V>(*p); }
  static Sum onto(Sum sum, V tap, V v) { return hn::MulAdd(tap, v, sum); }
  static V total(const Sum* sum) { return sum[0]; }
};

// A complex product as two real ones: the source times the real part of the tap, and times the imaginary one.
template <class T> struct ComplexSum {
  using Element = T;
  using Tap = Part<T>;
  using V = Vec<Lanes<Tap, kVectorBytes / sizeof(Tap)>>;
  using Sum = V;
  static constexpr size_t kChannels = 2;

  static V source(const Element* x) { return load(TagOf<V>(), parts(x)); }
  static V broadcast(const Tap* p) { return same<V>(*p); }
  static Sum onto(Sum sum, V tap, V v) { return hn::MulAdd(tap, v, sum); }
  static V total(const Sum* sum) {
    const V crossed = swapped(sum[1]);
    return hn::OddEven(sum[0] + crossed, sum[0] - crossed);
  }
};

// Pairs of 16-bit integers and of taps, in sums of 32 bits that wrap. The taps of the two channels are those of real and
// imaginary part, or of every other output and the one after it.
struct PairSum {
  using Element = Qvx16sc;
  using Tap = Qvx16sc;
  using V = Vec<Lanes<int16_t, kVectorBytes / sizeof(int16_t)>>;
  using Sum = Vec<Lanes<int32_t, kVectorBytes / sizeof(int32_t)>>;
  static constexpr size_t kChannels = 2;

  static V source(const Element* x) { return load(TagOf<V>(), parts(x)); }
  static V broadcast(const Tap* p) { return as<int16_t>(same<Sum>(std::bit_cast<int32_t>(*p))); }
  static Sum onto(Sum sum, V tap, V v) {
    // GCC adds the products among themselves first. With 16 registers that is faster, with 32 sums it spills them: 64 taps take
    // half as long again.
    if constexpr (kHasMasks) return held(sum + pairProducts(tap, v));
    else return sum + pairProducts(tap, v);
  }
  static Pair<Sum> total(const Sum* sum) { return {sum[0], sum[1]}; }
};

// A tile: its vectors of outputs, the taps a vector apart that one load serves (kRows), and the sums into which the rows of an
// output are divided so that no addition has to wait for the one before: four cycles, two additions a cycle.
template <size_t kVectors_, size_t kRows_, size_t kSums_> struct Tile {
  static constexpr size_t kVectors = kVectors_;
  static constexpr size_t kRows = kRows_;
  static constexpr size_t kSums = kSums_;
};

// What the registers hold: 32 with masks, else 16. The widest tile has at least as many products to a load as the processor has
// multiplications to a load that crosses a cache line.
inline constexpr size_t kRegisters = kHasMasks ? 32 : 16;
template <size_t kChannels> inline constexpr size_t kWidestTile = (kHasMasks ? 16 : 12) / kChannels;

// Integer sums wrap, and their order does not matter: each width of tile has the shape that suits it. They take a cycle for an
// addition, so of 16 registers none goes to a second sum: one of those was spilled, and took ten.
template <size_t kChannels> struct AnyOrder {
  static constexpr size_t kWidest = kWidestTile<kChannels>;

  template <size_t kVectors> static constexpr auto tile() {
    constexpr size_t kOutputs = kVectors * kChannels;
    constexpr size_t kRows = kHasMasks ? 4 : kOutputs >= 12 ? 2 / kChannels : kOutputs >= 8 ? 2 : 4 / kChannels;
    using Type = Tile<kVectors, kRows, kHasMasks ? std::clamp<size_t>(8 / kOutputs, 1, kRows) : 1>;
    static_assert(kOutputs * Type::kSums + kRows * kChannels < kRegisters);
    return Type();
  }
};

// Floats are added up in one of two orders, whatever the tile an output falls into: tiles of one order have the same rows and
// sums. Long calls have one sum for an output: wide tiles give the processor enough to do meanwhile. A vector or two do not: 16
// outputs of 64 taps would take 81 ns instead of 42.
template <size_t kChannels> struct LongOrder {
  static constexpr size_t kWidest = kWidestTile<kChannels>;

  template <size_t kVectors> static constexpr auto tile() { return Tile < kVectors, kHasMasks ? 4 : 2 / kChannels, 1 > (); }
};
template <size_t kChannels> struct ShortOrder {
  static constexpr size_t kSums = kHasMasks ? 4 : 4 / kChannels;
  static constexpr size_t kWidest = kHasMasks ? 4 / kChannels : 2;
  static_assert(kWidest * kChannels * kSums + kSums * kChannels < kRegisters);

  template <size_t kVectors> static constexpr auto tile() { return Tile<kVectors, kSums, kSums>(); }
};

namespace detail {

template <class K> inline constexpr size_t kElements = kVectorBytes / sizeof(typename K::Element);

// kRows taps a vector apart, on all vectors of the tile.
template <class K, class T, size_t kRows>
[[gnu::always_inline]] inline void add(typename K::Sum* sum, const auto* x, const auto* p) {
  constexpr size_t N = kElements<K>;
  constexpr size_t C = K::kChannels;
  typename K::V tap[kRows * C];
#pragma GCC unroll 8
  for (size_t t = 0; t < kRows * C; ++t) tap[t] = held(K::broadcast(p + t / C * N * C + t % C));
#pragma GCC unroll 32
  for (size_t m = 0; m < T::kVectors + kRows - 1; ++m) {
    const auto v = kRows * C > 1 ? held(K::source(x + m * N)) : K::source(x + m * N);
#pragma GCC unroll 8
    for (size_t t = 0; t < kRows * C; ++t) {
      const size_t row = t / C;
      if (m < row || m - row >= T::kVectors) continue;
      auto& s = sum[((m - row) * T::kSums + row % T::kSums) * C + t % C];
      s = K::onto(s, tap[t], v);
    }
  }
}

#if QVXS_AVX512
// One row of taps has as many loads as products. So half of the shifted vectors are permuted from two registers, by another port:
// 75 % of the possible products, where loads alone leave 47 %. Of four vectors all are permuted: short blocks have just been
// copied, and a load across two of the copy's stores waits until both are in the cache. 64 outputs of 16 taps take 35 ns, 39 with
// half of the vectors permuted.
template <class K, class T>
[[gnu::always_inline]] inline void addPermuted(typename K::Sum* sum, const auto* x, const auto* p, size_t k, size_t end) {
  constexpr size_t N = kElements<K>;
  constexpr size_t kShifted = T::kVectors > 4 ? T::kVectors / 2 : T::kVectors;
  using V = typename K::V;
  V whole[kShifted + 1];
#pragma GCC unroll 32
  for (size_t m = 0; m <= kShifted; ++m) {
    const auto* at = x + k / N * N + m * N;
    whole[m] = held(m < T::kVectors ? K::source(at) : K::source(at, (end - 1) % N));
  }
  auto index = laneNumbers<V>(k % N);
  const auto addTap = [&](size_t part) __attribute__((always_inline)) {
    const V tap = held(K::broadcast(p + k));
#pragma GCC unroll 32
    for (size_t m = 0; m < T::kVectors; ++m) {
      const V v = m < kShifted ? lanesOfTwo(whole[m], whole[m + 1], index) : K::source(x + k + m * N);
      auto& s = sum[m * T::kSums + part];
      s = K::onto(s, tap, v);
    }
    index = index + same<decltype(index)>(1);
    ++k;
  };
  while (end - k >= T::kSums) {
#pragma GCC unroll 8
    for (size_t part = 0; part < T::kSums; ++part) addTap(part);
  }
  while (k < end) addTap(0);
}
template <class K, class T> inline constexpr bool kPermutes = K::kChannels == 1 && T::kVectors >= 4;
#else
template <class K, class T> inline constexpr bool kPermutes = false;
#endif

// Adds the taps from k to end, one row at a time.
template <class K, class T>
[[gnu::always_inline]] inline void addRow(typename K::Sum* sum, const auto* x, const auto* p, size_t k, size_t end) {
  if constexpr (kPermutes<K, T>) {
    if (k < end) addPermuted<K, T>(sum, x, p, k, end);
  } else {
    constexpr size_t C = K::kChannels;
    for (; end - k >= T::kSums; k += T::kSums) {
#pragma GCC unroll 8
      for (size_t s = 0; s < T::kSums; ++s) add<K, T, 1>(sum + s * C, x + k + s, p + (k + s) * C);
    }
    for (; k < end; ++k) add<K, T, 1>(sum, x + k, p + k * C);
  }
}

// Adds the taps from k on, a multiple of the vector, where at most kRows rows are left and the last one is short; row(from, end)
// adds the taps of a single row.
template <class K, class T, size_t kRows>
[[gnu::always_inline]] inline void addRest(typename K::Sum* sum, const auto* x, const auto* p, size_t k, size_t taps, auto row) {
  if constexpr (kRows == 1) {
    row(k, taps);
  } else {
    constexpr size_t N = kElements<K>;
    constexpr size_t C = K::kChannels;
    if (taps - k <= (kRows - 1) * N) return addRest<K, T, kRows - 1>(sum, x, p, k, taps, row);
    const size_t end = k + N;
    for (; taps - k > (kRows - 1) * N; ++k) add<K, T, kRows>(sum, x + k, p + k * C);
    if constexpr (kRows == 2) return row(k, end);
    for (; k < end; ++k) add<K, T, kRows - 1>(sum, x + k, p + k * C);
  }
}

// All taps of one convolution. Wide tiles have the code for the rest of a row once, which saves a tenth of the compile time;
// others have it wherever it is needed, without which short calls take up to 8 % longer.
template <class K, class T>
[[gnu::always_inline]] inline void addAll(typename K::Sum* sum, const auto* x, const auto* p, size_t taps) {
  constexpr size_t N = kElements<K>;
  constexpr bool kOnce = T::kVectors > 4;
  size_t k = 0;
  for (; taps - k >= T::kRows * N; k += T::kRows * N) {
    for (size_t r = k; r < k + N; ++r) add<K, T, T::kRows>(sum, x + r, p + r * K::kChannels);
  }
  size_t left = 0;
  size_t end = 0;
  addRest<K, T, T::kRows>(
      sum, x, p, k, taps, [&](size_t from, size_t to) __attribute__((always_inline)) {
        if constexpr (kOnce) left = from, end = to;
        else addRow<K, T>(sum, x, p, from, to);
      });
  if constexpr (kOnce) addRow<K, T>(sum, x, p, left, end);
}

// A tile of outputs from n on, added up by `products`.
template <class K, class T, class Products, class Put>
[[gnu::always_inline]] inline void tile(const Products& products, size_t n, Put put) {
  constexpr size_t N = kElements<K>;
  constexpr size_t C = K::kChannels;
  typename K::Sum sum[T::kVectors * T::kSums * C];
#pragma GCC unroll 32
  for (auto& s : sum) s = hn::Zero(TagOf<typename K::Sum>());
  products.template addTo<T>(sum, n);
#pragma GCC unroll 32
  for (size_t m = 0; m < T::kVectors; ++m) {
    auto* s = sum + m * T::kSums * C;
#pragma GCC unroll 8
    for (size_t i = C; i < T::kSums * C; ++i) s[i % C] = s[i % C] + s[i];
    put(K::total(s), m * N);
  }
}

}  // namespace detail

// One convolution: p[0] * x[n] + p[1] * x[n + 1] + ...
template <class K> struct OneRow {
  static constexpr bool kIsPadded = false;
  const typename K::Element* x;
  const typename K::Tap* p;
  size_t taps;

  template <class T> [[gnu::always_inline]] void addTo(typename K::Sum* sum, size_t n) const {
    detail::addAll<K, T>(sum, x + n, p, taps);
  }
};

// The sum of the convolutions of several rows, among which the samples are dealt in turn: tap t meets the sample t places after
// the one at `at` of row `row`. The taps are stored row by row.
template <class K, class S> struct DealtRows {
  static constexpr bool kIsPadded = true;
  const S* rows;
  size_t stride;
  size_t count;
  size_t row;
  size_t at;
  const typename K::Tap* p;
  size_t taps;

  template <class T> [[gnu::always_inline]] void addTo(typename K::Sum* sum, size_t n) const {
    const size_t whole = static_cast<uint32_t>(taps) / static_cast<uint32_t>(count);
    const size_t longer = taps - whole * count;
    const auto* tap = p;
    const S* x = rows + row * stride + at;
    size_t left = count - row;  // rows, up to the last
    for (size_t s = 0; s < std::min(count, taps); ++s) {
      const size_t of = pairedTaps(whole + (s < longer ? 1 : 0));
      const auto* first = reinterpret_cast<const typename K::Element*>(x) + n;
      // With few taps, the comparisons for more would take as long as the products.
      if (of <= detail::kElements<K>) detail::addRow<K, T>(sum, first, tap, 0, of);
      else detail::addAll<K, T>(sum, first, tap, of);
      tap += of * K::kChannels;
      x += stride;
      if (--left == 0) x -= count * stride - 1, left = count;
    }
  }

 private:
  static size_t pairedTaps(size_t n) {
    if constexpr (std::is_same_v<S, Qvx16s>) return pairsOf(n, S());
    else return n;
  }
};

// The same with so few taps a row that it is faster to take them in the order of the samples.
template <class K> struct DealtTaps {
  using S = typename K::Element;
  static constexpr bool kIsPadded = true;
  const S* rows;
  size_t stride;
  size_t count;
  size_t row;
  size_t at;
  const typename K::Tap* p;
  size_t taps;

  template <class T> [[gnu::always_inline]] void addTo(typename K::Sum* sum, size_t n) const {
    constexpr size_t C = K::kChannels;
    const S* x = rows + row * stride + at + n;
    size_t left = count - row;  // rows, up to the last
    const ptrdiff_t back = 1 - static_cast<ptrdiff_t>((count - 1) * stride);
    const auto addTap = [&](size_t t, size_t part) __attribute__((always_inline)) {
      detail::add<K, T, 1>(sum + part * C, x, p + t * C);
      if (--left == 0) x += back, left = count;
      else x += stride;
    };
    size_t t = 0;
    for (; taps - t >= T::kSums; t += T::kSums) {
#pragma GCC unroll 8
      for (size_t s = 0; s < T::kSums; ++s) addTap(t + s, s);
    }
    for (; t < taps; ++t) addTap(t, 0);
  }
};

// put(outputs, n) takes the vector of outputs from n on, for all n to count; put(outputs, n, some) the first `some` of them. The
// samples that `products` reads must exist for all outputs, and for a whole vector of them if count is less; where they exist for
// one vector more, `products` has kIsPadded.
template <class K, class Order, class Products, class Put>
[[gnu::flatten]] void filter(const Products& products, size_t count, Put put) {
  constexpr size_t N = detail::kElements<K>;
  constexpr size_t kWidest = Order::kWidest;
  size_t n = 0;
  const auto tileAt = [&]<size_t kVectors>(std::integral_constant<size_t, kVectors>, size_t at, auto putAt) {
    detail::tile<K, decltype(Order::template tile<kVectors>())>(products, at, [&](auto v, size_t m) { putAt(v, at + m); });
  };
  const auto tiles = [&](auto vectors) {
    for (; n + vectors * N <= count; n += vectors * N) tileAt(vectors, n, put);
  };
  if constexpr (kWidest > 2) tiles(std::integral_constant<size_t, kWidest>());
  if constexpr (kWidest > 8) tiles(std::integral_constant<size_t, 8>());
  if constexpr (kWidest > 4) tiles(std::integral_constant<size_t, 4>());
  // The last may overlap outputs that are stored already.
  if constexpr (kWidest > 1) {
    const auto putSome = [&](auto v, size_t at) {
      if (at + N <= count) put(v, at);
      else put(v, at, count - at);
    };
    if (Products::kIsPadded || count >= 2 * N) {
      for (; n + N < count; n += 2 * N) {
        tileAt(std::integral_constant<size_t, 2>(), count < 2 * N ? 0 : std::min(n, count - 2 * N), putSome);
      }
    }
  }
  for (; n < count; n += N) {
    const auto putSome = [&](auto v, size_t at) {
      if (count < N) put(v, at, count);
      else put(v, at);
    };
    tileAt(std::integral_constant<size_t, 1>(), count < N ? 0 : std::min(n, count - N), putSome);
  }
}

}  // namespace qvx::convolution
