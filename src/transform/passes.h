// The passes of a transform of N = R * rows points, R points apart by `rows`:
//
//   row pass     transforms R points over whole vectors of neighbours, multiplies the results by twiddles, and transposes them: a
//                vector then holds neighbouring results, and no later pass needs a shuffle
//   inner pass   transforms whole vectors down the rows, in place, and multiplies them by one twiddle a vector
//   last pass    the same without twiddles, from the work array to the results' places in natural order
//
// The work array y holds vectors in groups: L real parts, L imaginary parts; row j has R / L groups.
#pragma once

#include "frame/complex.h"
#include "frame/stream.h"
#include "transform/butterfly.h"

namespace qvx::transform {

// The caller's numbers as they are, for transforms that work on interleaved parts.
template <class T> struct Floats {
  T* p;

  template <class D> QVX_INLINE auto get(D d, size_t at) const { return load(d, p + at); }
  template <class V> QVX_INLINE void put(V v, size_t at) const { store(v, TagOf<V>(), p + at); }
  Floats from(size_t at) const { return {p + at}; }
};

// Points in the caller's memory. get() may load a vector of L of them with its lanes in another order: lane i holds
// element(i).
template <class T, bool kSwapped_> struct Interleaved {
  using Lane = std::remove_const_t<T>;
  static constexpr bool kSwapped = kSwapped_;
  T* p;

  Floats<T> raw() const { return {p}; }

  // Shuffles within blocks take half a block from either half of the points.
  template <size_t L> static constexpr size_t element(size_t lane) {
    constexpr size_t kHalf = 8 / sizeof(T);
    return lane / kHalf % 2 * (L / 2) + lane / (2 * kHalf) * kHalf + lane % kHalf;
  }
  template <size_t L> QVX_INLINE auto get(size_t at) const {
    const Lanes<Lane, L> d;
    using V = Vec<Lanes<Lane, L>>;
    const Complex<V> z = evenAndOdd(load(d, p + 2 * at), load(d, p + 2 * at + L));
    return kSwapped ? Complex<V>{z.im, z.re} : z;
  }
  template <size_t L, class V> QVX_INLINE void put(Complex<V> z, size_t at) const {
    const TagOf<V> d;
    const V re = kSwapped ? z.im : z.re;
    const V im = kSwapped ? z.re : z.im;
    store(hn::InterleaveLower(d, re, im), d, p + 2 * at);
    store(hn::InterleaveUpper(d, re, im), d, p + 2 * at + L);
  }
  // The same with the lanes in order.
  template <size_t L> QVX_INLINE auto getInOrder(size_t at) const {
    const Lanes<Lane, L> d;
    const auto z = deinterleaved(Pair<Vec<Lanes<Lane, L>>>{load(d, p + 2 * at), load(d, p + 2 * at + L)});
    return kSwapped ? Complex<Vec<Lanes<Lane, L>>>{z.hi, z.lo} : Complex<Vec<Lanes<Lane, L>>>{z.lo, z.hi};
  }
  template <size_t L, class V> QVX_INLINE void putInOrder(Complex<V> z, size_t at) const {
    const auto both = interleaved(kSwapped ? Pair<V>{z.im, z.re} : Pair<V>{z.re, z.im});
    store(both.lo, TagOf<V>(), p + 2 * at);
    store(both.hi, TagOf<V>(), p + 2 * at + L);
  }
  template <size_t L> QVX_INLINE void prefetch(size_t at) const { prefetchLines<2 * L * sizeof(T)>(p + 2 * at); }
  Interleaved from(size_t at) const { return {p + 2 * at}; }
  Interleaved<const Lane, kSwapped> asSource() const { return {p}; }
};

// The same by stores that bypass the caches, for aligned vectors.
template <class T, bool kSwapped> struct Streamed {
  T* p;

  template <size_t L, class V> QVX_INLINE void put(Complex<V> z, size_t at) const {
    const TagOf<V> d;
    if constexpr (kSwapped) std::swap(z.re, z.im);
    hn::Stream(hn::InterleaveLower(d, z.re, z.im), d, p + 2 * at);
    hn::Stream(hn::InterleaveUpper(d, z.re, z.im), d, p + 2 * at + L);
  }
  template <size_t L> QVX_INLINE void prefetch(size_t) const {}
  Streamed from(size_t at) const { return {p + 2 * at}; }
};

template <class T> struct Split {
  using Lane = std::remove_const_t<T>;
  T* re;
  T* im;

  template <size_t L> static constexpr size_t element(size_t lane) { return lane; }
  template <size_t L> QVX_INLINE auto get(size_t at) const {
    const Lanes<Lane, L> d;
    return Complex<Vec<Lanes<Lane, L>>>{load(d, re + at), load(d, im + at)};
  }
  template <size_t L, class V> QVX_INLINE void put(Complex<V> z, size_t at) const {
    store(z.re, TagOf<V>(), re + at);
    store(z.im, TagOf<V>(), im + at);
  }
  template <size_t L> QVX_INLINE auto getInOrder(size_t at) const { return get<L>(at); }
  template <size_t L, class V> QVX_INLINE void putInOrder(Complex<V> z, size_t at) const { put<L>(z, at); }
  template <size_t L> QVX_INLINE void prefetch(size_t at) const {
    prefetchLines<L * sizeof(T)>(re + at);
    prefetchLines<L * sizeof(T)>(im + at);
  }
  Split from(size_t at) const { return {re + at, im + at}; }
  Split<const Lane> asSource() const { return {re, im}; }
};

template <class T> bool isMissing(const T* v) { return isNull(v); }
template <class T, bool kSwapped> bool isMissing(Interleaved<T, kSwapped> v) { return isNull(v.p); }
template <class T> bool isMissing(Split<T> v) { return isNull(v.re) || isNull(v.im); }

// What the last pass multiplies results by.
struct Unscaled {
  template <class V> QVX_INLINE V operator()(V v) const { return v; }
};
template <class T> struct ScaledBy {
  T factor;
  template <class V> QVX_INLINE V operator()(V v) const { return v * same<V>(factor); }
  template <class V> QVX_INLINE Complex<V> operator()(Complex<V> z) const { return {(*this)(z.re), (*this)(z.im)}; }
};
template <class T> ScaledBy<T> factorOf(ScaledBy<T> scale) { return scale; }
template <class T> ScaledBy<T> factorOf(Unscaled) { return {1}; }

// The row pass takes as many points as a register has lanes, and 4 at least: fewer would not be worth a pass.
template <size_t L> inline constexpr size_t kRowRadix = L < 4 ? 4 : L;

template <size_t L, class T> QVX_INLINE Complex<Vec<Lanes<T, L>>> group(const T* y) {
  const Lanes<T, L> d;
  return {load(d, y), load(d, y + L)};
}
template <size_t L, class T, class V> QVX_INLINE void putGroup(Complex<V> z, T* y) {
  store(z.re, TagOf<V>(), y);
  store(z.im, TagOf<V>(), y + L);
}

// Rows of the work array from vectors of results, whose lanes are points. The last step of their transposition is left to stores
// of half a vector each: a processor with one port for permutations of 64 bytes, which also carries half of its multiplications,
// has stores to spare, and one with two extracts the upper half in the time of the permutation.
template <class V> QVX_INLINE void storeHalves(V v, LaneOf<V>* low, LaneOf<V>* high) {
  const hn::Half<TagOf<V>> half;
  store(hn::LowerHalf(half, v), half, low);
  store(hn::UpperHalf(half, v), half, high);
}

template <class V> QVX_INLINE V fromHalves(const LaneOf<V>* low, const LaneOf<V>* high) {
  const hn::Half<TagOf<V>> half;
  return hn::Combine(TagOf<V>(), load(half, high), load(half, low));
}

// Where the row pass writes its rows: one after another, or, of A * B rows, row q + B * m as row q * A + m.
struct InOrder {
  constexpr size_t base(size_t j) const { return j; }
  static constexpr size_t offset(size_t i) { return i; }
};
template <size_t A, size_t B> struct Exchanged {
  constexpr size_t base(size_t j) const { return j % B * A + j / B; }
  static constexpr size_t offset(size_t i) { return i % B * A + i / B; }
};

// twiddles: for each L rows and each k = 1..R-1 a group of exp(-2 pi i j k / N), its lanes in the order of the source's elements.
// Results are multiplied by them, transposed and stored a few at a time, so that permutations find multiplications beside them:
// all after one another take 1.4 times as long.
template <size_t L, class T, class Src, class Place = InOrder>
[[gnu::noinline, gnu::flatten]] void rowPass(Src src, T* y, size_t rows, const T* twiddles, size_t from, size_t to,
                                             Place place = {}) {
  constexpr size_t R = kRowRadix<L>;
  constexpr size_t kBlock = std::min(L, 16 / sizeof(T));
  constexpr size_t kBlocks = L / kBlock;
  constexpr auto element = &Src::template element<L>;
  using V = Vec<Lanes<T, L>>;
  twiddles += from * (R - 1) * 2;
  for (size_t j = from; j < to; j += L, twiddles += (R - 1) * 2 * L) {
    Complex<V> x[R];
    dft(x, [&](auto m) { return src.template get<L>(j + m * rows); });
    // Of results in the places first..first + kBlock - 1 of a row: vector w holds them for the points in lanes w of the blocks.
    const auto transposed = [&](auto first, V(&re)[kBlock], V(&im)[kBlock]) {
      unrolled<kBlock>([&](auto i) {
        constexpr size_t k = (first + i) / L * L + element((first + i) % L);
        Complex<V> z = x[k];
        if constexpr (k > 0) z = product(z, group<L>(twiddles + (k - 1) * 2 * L));
        re[i] = z.re;
        im[i] = z.im;
      });
      transposeInBlocks(re);
      transposeInBlocks(im);
    };
    const auto placeOf = [&](size_t block, size_t w, size_t first) {
      return y + ((place.base(j) + place.offset(element(block * kBlock + w))) * (R / L) + first / L) * 2 * L + first % L;
    };
    if constexpr (kBlocks == 4) {
      unrolled<R / kBlock / 2>([&](auto pair) {
        constexpr std::integral_constant<size_t, 2 * pair * kBlock> first;
        V re[2][kBlock];
        V im[2][kBlock];
        transposed(first, re[0], im[0]);
        transposed(std::integral_constant<size_t, first + kBlock>(), re[1], im[1]);
        unrolled<kBlock>([&](auto w) {
          const auto out = [&](V a, V b, size_t part) {
            storeHalves(hn::OddEvenBlocks(hn::SwapAdjacentBlocks(b), a), placeOf(0, w, first) + part,
                        placeOf(2, w, first) + part);
            storeHalves(hn::OddEvenBlocks(b, hn::SwapAdjacentBlocks(a)), placeOf(1, w, first) + part,
                        placeOf(3, w, first) + part);
          };
          out(re[0][w], re[1][w], 0);
          out(im[0][w], im[1][w], L);
        });
      });
    } else {
      unrolled<R / kBlock>([&](auto q) {
        constexpr std::integral_constant<size_t, q * kBlock> first;
        V re[kBlock];
        V im[kBlock];
        transposed(first, re, im);
        unrolled<kBlock>([&](auto w) {
          if constexpr (kBlocks == 2) {
            storeHalves(re[w], placeOf(0, w, first), placeOf(1, w, first));
            storeHalves(im[w], placeOf(0, w, first) + L, placeOf(1, w, first) + L);
          } else {
            store(re[w], TagOf<V>(), placeOf(0, w, first));
            store(im[w], TagOf<V>(), placeOf(0, w, first) + L);
          }
        });
      });
    }
  }
}

// Result k times its twiddle, of those of k = 1..R-1.
template <size_t k, class V> QVX_INLINE Complex<V> timesTwiddle(Complex<V> z, const LaneOf<V>* twiddles) {
  if constexpr (k == 0) return z;
  else return product(z, twiddles[2 * k - 2], twiddles[2 * k - 1]);
}

// twiddles: for each q = 0..stride-1, for k = 1..R-1 exp(-2 pi i q k / (R * stride)), real and imaginary part.
// width: the vectors of a row.
template <size_t R, size_t L, class T, class Width = std::integral_constant<size_t, kRowRadix<L> / L>>
[[gnu::noinline, gnu::flatten]] void innerPass(T* y, size_t stride, const T* twiddles, size_t from, size_t to, Width width = {}) {
  const size_t W = width;
  const size_t apart = stride * W * 2 * L;
  for (size_t q = from; q < to; ++q) {
    const T* w = twiddles + q * (R - 1) * 2;
    for (size_t column = 0; column < W; ++column) {
      T* p = y + (q * W + column) * 2 * L;
      transformPoints<R>([&](auto m) { return group<L>(p + m * apart); },
                         [&](auto k, auto z) { putGroup<L>(timesTwiddle<k>(z, w), p + k * apart); });
    }
  }
}

// `count` transforms of neighbouring rows; result m of the b-th goes to row at + step * (b + count * m).
template <size_t R, size_t L, class T, class Dst, class Scale>
[[gnu::noinline, gnu::flatten]] void lastPass(const T* y, size_t count, Dst dst, size_t at, size_t step, Scale scale) {
  constexpr size_t W = kRowRadix<L> / L;
  for (size_t b = 0; b < count; ++b) {
    for (size_t column = 0; column < W; ++column) {
      transformPoints<R>(
          [&](auto m) { return group<L>(y + ((b * R + m) * W + column) * 2 * L); },
          [&](auto k, auto z) { dst.template put<L>(scale(z), ((at + step * (b + count * k)) * W + column) * L); });
    }
  }
}

// The three passes of A * B rows in the destination, each in the rows where it finds its points: the row pass exchanges them, so
// that the inner pass works on A neighbours, and the last one on B rows A apart, which are where its results belong. Without a
// work array 2^10 and 2^11 complex doubles, 2^11 and 2^12 floats take 0.83 to 0.87 of the time, since the first-level cache holds
// all or more of it.
template <size_t A, size_t B, size_t L, class T, class Src, class Dst, class Scale>
[[gnu::noinline, gnu::flatten]] void passesInDestination(Src src, Dst dst, const T* rowTwiddles, const T* innerTwiddles,
                                                         Scale scale) {
  T* const y = dst.p;
  rowPass<L>(src, y, A * B, rowTwiddles, 0, A * B, Exchanged<A, B>());
  const T* w = innerTwiddles;
  for (size_t row = 0; row < A * B; row += A, w += (A - 1) * 2) {
    T* const p = y + row * 2 * L;
    transformPoints<A>([&](auto m) { return group<L>(p + m * 2 * L); },
                       [&](auto k, auto z) { putGroup<L>(timesTwiddle<k>(z, w), p + k * 2 * L); });
  }
  for (size_t row = 0; row < A; ++row) {
    transformPoints<B>([&](auto m) { return group<L>(y + (row + A * m) * 2 * L); },
                       [&](auto k, auto z) { dst.template put<L>(scale(z), (row + A * k) * L); });
  }
}

}  // namespace qvx::transform
