#include "convolution/partitioned.h"

namespace qvx::convolution {

namespace {

// Spectra are stored by slices of a few bins, so that those that are added up for a slice follow one another in memory: for each
// slice all spectra, for each spectrum vectors of real and of imaginary parts in turn. In the place of bin 0 are the two real
// numbers of a spectrum, the first and the last.
inline constexpr size_t kVectors = kHasMasks ? 4 : kFuses ? 2 : 1;  // of each part in a slice

template <class T> inline constexpr size_t kSlice = 2 * kVectors* kVectorElements<T>;  // numbers

// From the packed spectrum of a transform to the place `slot` among `count`.
template <class T> void place(const T* packed, size_t points, T* spectra, size_t count, size_t slot) {
  constexpr size_t N = kVectorElements<T>;
  const Lanes<T, N> d;
  for (size_t at = 0; at < points; at += kSlice<T>) {
    T* const to = spectra + at * count + slot * kSlice<T>;
    for (size_t i = 0; i < kSlice<T>; i += 2 * N) {
      const auto z = evenAndOdd(load(d, packed + at + i), load(d, packed + at + i + N));
      store(z.re, d, to + i);
      store(z.im, d, to + i + N);
    }
  }
}

// Products of parts, kept apart: their sums become complex ones at the end, and bin 0 two real ones.
template <class V> struct Sums { V reRe, imIm, reIm, imRe; };

template <class T, class V>
[[gnu::always_inline]] inline void addProducts(const T* a, const T* b, size_t spectra, Sums<V> (&sums)[kVectors]) {
  constexpr size_t N = kVectorElements<T>;
  const Lanes<T, N> d;
  for (; spectra > 0; --spectra, a += kSlice<T>, b += kSlice<T>) {
#pragma GCC unroll 8
    for (size_t i = 0; i < kVectors; ++i) {
      const V aRe = held(load(d, a + 2 * i * N)), aIm = held(load(d, a + 2 * i * N + N));
      const V bRe = held(load(d, b + 2 * i * N)), bIm = held(load(d, b + 2 * i * N + N));
      sums[i].reRe = hn::MulAdd(aRe, bRe, sums[i].reRe);
      sums[i].imIm = hn::MulAdd(aIm, bIm, sums[i].imIm);
      sums[i].reIm = hn::MulAdd(aRe, bIm, sums[i].reIm);
      sums[i].imRe = hn::MulAdd(aIm, bRe, sums[i].imRe);
    }
  }
}

}  // namespace

template <class T> void Partitions<T>::transform(const T* from, T* spectra, size_t slot) {
  fft::Transform<T>::kForward(from, spectrum, spec, work);
  place(spectrum, points(), spectra, count, slot);
}

template <class T> void Partitions<T>::enliven(size_t newLength, const T* reversed, const T* window, size_t tapsLen) {
  if (length != newLength) {
    length = newLength;
    count = (tapsLen + length - 1) / length;
    spec = fft::readySpec<Spec>(std::countr_zero(points()));
    hasTaps = false;
  }
  if (!hasTaps) {
    for (size_t i = 0; i < count; ++i) {
      const size_t end = tapsLen - i * length;
      const size_t some = std::min(length, end);
      std::reverse_copy(reversed + end - some, reversed + end, block);
      std::fill(block + some, block + points(), T{});
      transform(block, taps, i);
    }
  }
  // Blocks that end where the present one begins, some of them before the window.
  for (size_t i = 0; i + 1 < count; ++i) {
    const size_t back = (i + 2) * length;
    const size_t missing = back > tapsLen ? std::min(back - tapsLen, points()) : 0;
    if (missing == 0) {
      transform(window + tapsLen - back, samples, i);
    } else {
      std::fill_n(block, missing, T{});
      std::copy_n(window, points() - missing, block + missing);
      transform(block, samples, i);
    }
  }
  newest = filled = pending = 0;
  hasTaps = isLive = true;
}

template <class T> void Partitions<T>::take(const T* end) {
  newest = (newest == 0 ? count : newest) - 1;
  transform(end - points(), samples, newest);
}

template <class T> void Partitions<T>::addUp(size_t first) {
  constexpr size_t N = kVectorElements<T>;
  const Lanes<T, N> d;
  using V = Vec<decltype(d)>;
  const size_t some = std::min(count - first, count - newest);  // up to the end of the ring
  for (size_t at = 0; at < points(); at += kSlice<T>) {
    const T* const a = taps + at * count + first * kSlice<T>;
    const T* const b = samples + at * count;
    Sums<V> sums[kVectors];
#pragma GCC unroll 8
    for (auto& s : sums) s = {hn::Zero(d), hn::Zero(d), hn::Zero(d), hn::Zero(d)};
    addProducts(a, b + newest * kSlice<T>, some, sums);
    addProducts(a + some * kSlice<T>, b, count - first - some, sums);
#pragma GCC unroll 8
    for (size_t i = 0; i < kVectors; ++i) {
      auto re = sums[i].reRe - sums[i].imIm;
      auto im = sums[i].reIm + sums[i].imRe;
      if (at + i == 0) {
        const auto isFirst = hn::FirstN(d, 1);
        re = hn::IfThenElse(isFirst, sums[i].reRe, re);
        im = hn::IfThenElse(isFirst, sums[i].imIm, im);
      }
      store(hn::InterleaveLower(d, re, im), d, spectrum + at + 2 * i * N);
      store(hn::InterleaveUpper(d, re, im), d, spectrum + at + 2 * i * N + N);
    }
  }
  fft::Transform<T>::kInverse(spectrum, block, spec, work);
}

template struct Partitions<Qvx32f>;
template struct Partitions<Qvx64f>;

}  // namespace qvx::convolution
