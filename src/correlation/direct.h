// Bands that are added up directly. Where all of an output's window lies in x, the kernel reads it there; the others read a copy
// that continues x by zeros, on the stack.
#pragma once

#include "convolution/elements.h"
#include "correlation/band.h"
#include "frame/unroll.h"

namespace qvx::correlation {

using convolution::Call;
using convolution::callOf;
using convolution::kVectorElements;
using convolution::moveVectors;

template <class C> inline constexpr size_t kPadded = 8192 / sizeof(C);
// The most taps that are reversed on the stack.
template <class C> inline constexpr size_t kMostReversed = 4096 / sizeof(C);
// Outputs at an end that share a copy.
template <class C> inline constexpr size_t kAtEnd = 4 * kVectorElements<C>;

// n zeros, and up to a vector more.
template <class C> void zeroVectors(C* out, size_t n) {
  constexpr Lanes<Part<C>, kVectorBytes / sizeof(Part<C>)> d;
  for (size_t i = 0; i < n; i += kVectorElements<C>) store(hn::Zero(d), d, parts(out + i));
}

// n elements of x from `at` on, with zeros for those outside x; then up to a vector of zeros.
template <class C> void copyPadded(const C* x, size_t length, int64_t at, size_t n, C* out) {
  const auto end = static_cast<int64_t>(n);
  const auto first = static_cast<size_t>(std::clamp<int64_t>(-at, 0, end));
  const auto last = static_cast<size_t>(std::clamp<int64_t>(static_cast<int64_t>(length) - at, static_cast<int64_t>(first), end));
  zeroVectors(out, first);
  if (last > first) moveVectors(x + at + static_cast<int64_t>(first), last - first, out + first);
  zeroVectors(out + last, n - last + kVectorElements<C>);
}

// The number of taps from which a short band leaves out the products with zeros: of 250 by 250 elements they are half of all.
inline constexpr size_t kWorthTrimming = 64;

// The most elements of x, and the most taps, of a band that stays in registers: 0 where none does.
template <class C>
inline constexpr size_t kInRegisters = PartsOf<C>::kCount > 1     ? 0
                                       : kHasMasks                ? kVectorElements<C>
                                       : std::is_same_v<C, float> ? 8
                                                                  : 0;

// All of whose outputs meet x.
template <class C> bool fitsRegisters(const Band<C>& band) {
  constexpr size_t N = kInRegisters<C>;
  const auto count = static_cast<int64_t>(band.count);
  return band.length <= N && band.count <= N && band.from > -count &&
         band.from + static_cast<int64_t>(band.outputs) <= static_cast<int64_t>(band.length);
}

// The taps from the last one on.
template <class C> struct LastFirst {
  explicit LastFirst(const Band<C>& band)
      : last_(band.taps + (band.isReversed ? 0 : band.count - 1)), step_(band.isReversed ? 1 : -1) {}
  C operator[](size_t k) const { return last_[static_cast<ptrdiff_t>(k) * step_]; }

 private:
  const C* last_;
  ptrdiff_t step_;
};

// Each tap multiplies x shifted by as many lanes: a convolution of 8 by 8 floats takes 6 ns in AVX-512, 16 in SSSE3, through
// memory 47 and 31. False if a result may be NaN, which zeros beside x can make of a tap that is not finite; then the results
// are not valid. To test the sums takes 1 ns, to test the taps 5.
#if QVXS_AVX512
template <class T> bool correlateInRegisters(const Band<T>& band, T* y) {
  constexpr size_t N = kInRegisters<T>;
  constexpr Lanes<T, N> d;
  using V = Vec<Lanes<T, N>>;
  const V zero = hn::Zero(d);
  const V x = loadFirst(d, band.x, band.length);
  const LastFirst<T> taps(band);
  V low = zero;
  V high = zero;
  auto index = laneNumbers<V>(N);
  for (size_t k = 0; k < band.count; ++k) {
    const V tap = hn::Set(d, taps[k]);
    low = hn::MulAdd(tap, lanesOfTwo(zero, x, index), low);
    high = hn::MulAdd(tap, lanesOfTwo(x, zero, index), high);
    index = index - same<decltype(index)>(1);
  }
  if (const auto first = static_cast<size_t>(band.from + static_cast<int64_t>(band.count) - 1); first > 0) {
    const auto moved = laneNumbers<V>(first % N);
    const V next = first < N ? lanesOfTwo(low, high, moved) : lanesOfTwo(high, zero, moved);
    high = first < N ? lanesOfTwo(high, zero, moved) : zero;
    low = next;
  }
  const size_t n = band.outputs;
  storeFirst(low, d, y, std::min(n, N));
  if (n > N) storeFirst(high, d, y + N, n - N);
  return hn::AllFalse(d, hn::Or(hn::IsNaN(low), hn::IsNaN(high)));
}
#else
inline bool correlateInRegisters(const Band<Qvx32f>& band, Qvx32f* y) {
  constexpr size_t N = 4;
  constexpr Lanes<float, N> d;
  using V = Vec<Lanes<float, N>>;
  const V zero = hn::Zero(d);
  const V low = loadFirst(d, band.x, std::min(band.length, N));
  const V high = band.length > N ? loadFirst(d, band.x + N, band.length - N) : zero;
  const LastFirst<Qvx32f> taps(band);
  V sums[4] = {zero, zero, zero, zero};
  unrolled<N>([&](auto places) {
    // Lanes from two vectors, as many from the lower one.
    const auto shifted = [&](V upper, V lower) {
      if constexpr (places == 0) return upper;
      else return hn::CombineShiftRightBytes<(N - places) * sizeof(float)>(d, upper, lower);
    };
    const V x[3] = {shifted(low, zero), shifted(high, low), shifted(zero, high)};
    unrolled<2>([&](auto vectors) {
      const size_t k = vectors * N + places;
      if (k >= band.count) return;
      const V tap = hn::Set(d, taps[k]);
      unrolled<3>([&](auto i) { sums[vectors + i] = hn::MulAdd(tap, x[i], sums[vectors + i]); });
    });
  });
  const size_t n = band.outputs;
  if (const auto first = static_cast<size_t>(band.from + static_cast<int64_t>(band.count) - 1); first > 0) {
    Qvx32f all[4 * N];
    unrolled<4>([&](auto i) { store(sums[i], d, all + i * N); });
    for (size_t i = 0; i < n; ++i) y[i] = all[first + i];
  } else {
    unrolled<4>([&](auto i) {
      if (n >= (i + 1) * N) store(sums[i], d, y + i * N);
      else if (n > i * N) storeFirst(sums[i], d, y + i * N, n - i * N);
    });
  }
  return hn::AllFalse(d, hn::IsNaN((sums[0] + sums[1]) + (sums[2] + sums[3])));
}
#endif

// The stack that a direct band takes.
template <class C> struct Workspace {
  alignas(64) C taps[kMostReversed<C>];
  alignas(64) C window[kPadded<C> + 2 * kVectorElements<C>];
  C more[kAtEnd<C>];
};

template <class C> void reverseTaps(const C* taps, size_t n, C* out) {
  for (size_t i = 0; i < n; ++i) out[i] = taps[n - 1 - i];
}

inline void add(const Qvx32f* more, size_t n, Qvx32f* y) { qvxsAdd_32f_I(more, y, static_cast<int>(n)); }
inline void add(const Qvx64f* more, size_t n, Qvx64f* y) { qvxsAdd_64f_I(more, y, static_cast<int>(n)); }
inline void add(const Qvx32fc* more, size_t n, Qvx32fc* y) { qvxsAdd_32fc_I(more, y, static_cast<int>(n)); }
inline void add(const Qvx64fc* more, size_t n, Qvx64fc* y) { qvxsAdd_64fc_I(more, y, static_cast<int>(n)); }

// Up to kAtEnd outputs, by pieces of the taps that meet x, as many taps at a time as the copies have room for.
template <class C> void sumsByPieces(const Band<C>& band, int64_t from, size_t outputs, C* y, Workspace<C>& work) {
  const auto reach = static_cast<int64_t>(outputs) - 1;
  const auto count = static_cast<int64_t>(band.count);
  const auto length = static_cast<int64_t>(band.length);
  const int64_t first = std::clamp<int64_t>(-from - reach, 0, count - 1);
  const int64_t last = std::clamp<int64_t>(length - from, first + 1, count);
  const size_t most = band.isReversed ? kMostReversed<C> : kPadded<C> - kAtEnd<C>;
  for (int64_t at = first; at < last;) {
    const size_t some = std::min(static_cast<size_t>(last - at), most);
    const auto next = at + static_cast<int64_t>(some);
    const C* taps = band.taps + at;
    if (band.isReversed) {
      reverseTaps(band.taps + (count - next), some, work.taps);
      taps = work.taps;
    }
    const C* window = band.x + (from + at);
    const bool isInside =
        from + at >= 0 && from + next + static_cast<int64_t>(std::max(outputs, kVectorElements<C>)) - 1 <= length;
    if (!isInside) {
      copyPadded(band.x, band.length, from + at, some + outputs - 1, work.window);
      window = work.window;
    }
    convolution::correlate(window, taps, some, outputs, at == first ? y : work.more, callOf(outputs));
    if (at > first) add(work.more, outputs, y);
    at = next;
  }
}

// The first outputs of a padded window. The second of two vectors is added up whole, and what is past the last output left out:
// the two then share loads and taps, and 11 lags of 240 floats take 125 ns in AVX2, not 193.
template <class C> void correlatePadded(const C* window, const C* taps, size_t count, size_t outputs, C* y, Workspace<C>& work) {
  constexpr size_t N = kVectorElements<C>;
  if (outputs <= N || outputs >= 2 * N) return convolution::correlate(window, taps, count, outputs, y, callOf(outputs));
  convolution::correlate(window, taps, count, 2 * N, work.more, callOf(outputs));
  constexpr Lanes<Part<C>, N * PartsOf<C>::kCount> d;
  store(load(d, parts(work.more)), d, parts(y));
  storeFirst(load(d, parts(work.more + N)), d, parts(y + N), (outputs - N) * PartsOf<C>::kCount);
}

template <class C> void directBand(Band<C> band, C* y) {
  Workspace<C> work;
  const auto outputs = static_cast<int64_t>(band.outputs);
  const auto byPieces = [&](int64_t n, int64_t end) {
    for (size_t some; n < end; n += static_cast<int64_t>(some)) {
      some = std::min(static_cast<size_t>(end - n), kAtEnd<C>);
      sumsByPieces(band, band.from + n, some, y + n, work);
    }
  };
  if (band.isReversed) {
    if (band.count > kMostReversed<C>) return byPieces(0, outputs);
    reverseTaps(band.taps, band.count, work.taps);
    band.taps = work.taps;
    band.isReversed = false;
  }
  const size_t window = band.outputs + band.count - 1;
  if (window <= kPadded<C>) {
    copyPadded(band.x, band.length, band.from, window, work.window);
    const size_t most = band.count < kWorthTrimming ? band.outputs : 2 * kAtEnd<C>;
    for (size_t n = 0, some; n < band.outputs; n += some) {
      some = std::min(most, band.outputs - n);
      // The taps that meet x at one of these outputs.
      const int64_t place = band.from + static_cast<int64_t>(n);
      const auto first = static_cast<size_t>(std::max<int64_t>(1 - place - static_cast<int64_t>(some), 0));
      const size_t last = std::min(band.count, static_cast<size_t>(static_cast<int64_t>(band.length) - place));
      correlatePadded(work.window + n + first, band.taps + first, last - first, some, y + n, work);
    }
    return;
  }
  // Outputs from `first` to `last` have their windows in x.
  const auto slack = static_cast<int64_t>(band.length) - static_cast<int64_t>(band.count) - band.from + 1;
  int64_t first = std::clamp<int64_t>(-band.from, 0, outputs);
  int64_t last = std::clamp<int64_t>(slack, first, outputs);
  if (last - first < static_cast<int64_t>(kVectorElements<C>)) first = last = outputs;
  byPieces(0, first);
  if (last > first) {
    const auto some = static_cast<size_t>(last - first);
    convolution::correlate(band.x + (band.from + first), band.taps, band.count, some, y + first, callOf(some));
  }
  byPieces(last, outputs);
}

// An output's products with elements of x alone.
template <class C, class TapAt> C sumOverX(const Band<C>& band, TapAt tapAt, int64_t place, int64_t first, int64_t last) {
  C sum{};
  for (int64_t k = first; k < last; ++k) {
    const C p = tapAt(k);
    const C v = band.x[place + k];
    if constexpr (PartsOf<C>::kCount == 1) {
      sum += p * v;
    } else {
      sum.re += p.re * v.re + p.im * v.im;
      sum.im += p.re * v.im - p.im * v.re;
    }
  }
  return sum;
}

// The zeros around x are no part of the sums: where one of them has met a tap that is not finite, the output is added up again.
template <class C> void mendEnds(const Band<C>& band, C* y) {
  const auto outputs = static_cast<int64_t>(band.outputs);
  const auto count = static_cast<int64_t>(band.count);
  const auto length = static_cast<int64_t>(band.length);
  // Outputs from `inside` to `outside` have their windows in x.
  const int64_t inside = std::clamp<int64_t>(-band.from, 0, outputs);
  const int64_t outside = std::clamp<int64_t>(length - count - band.from + 1, inside, outputs);
  if ((inside == 0 && outside == outputs) || areFinite(parts(band.taps), band.count * PartsOf<C>::kCount)) [[likely]]
    return;

  const auto tapAt = [&](int64_t k) { return band.taps[band.isReversed ? count - 1 - k : k]; };
  int64_t first = 0;
  int64_t last = count;
  const auto isFinite = [&](int64_t k) {
    const C tap = tapAt(k);
    return areFinite(parts(&tap), PartsOf<C>::kCount);
  };
  while (isFinite(first)) ++first;
  while (isFinite(last - 1)) --last;
  for (int64_t n = 0; n < outputs; ++n) {
    if (n == inside) n = outside;
    if (n == outputs) return;
    const int64_t place = band.from + n;
    const int64_t from = std::max<int64_t>(0, -place);
    const int64_t to = std::min(count, length - place);
    if (first < from || last > to) y[n] = sumOverX(band, tapAt, place, from, to);
  }
}

}  // namespace qvx::correlation
