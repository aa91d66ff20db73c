// The passes of a transform of N = R * m * s points by factors of any kind, each out of place, which leave no order to restore:
//
//   first pass    s = 1: transforms R points, m apart, over whole vectors of neighbours, multiplies the results by twiddles, and
//                 transposes them: result j of column p goes to R * p + j
//   middle pass   the points p + m * k, each a run of s neighbours, to the runs R * p + j, multiplied by one twiddle a run
//   last pass     m = 1: the same without twiddles, in natural order, to where results belong
//
// s grows by each pass's radix. A vector that a run does not fill goes over its last elements again, or, where the run is shorter
// than a vector, on into the next run, which is written later; at the end of all it is cut off.
#pragma once

#include "transform/odd_butterfly.h"
#include "transform/passes.h"

namespace qvx::transform {

// The first n lanes without a look at where they end: in line, where many stand in a row.
template <class D> QVX_INLINE Vec<D> firstLanes(D d, const hn::TFromD<D>* p, size_t n) {
  if constexpr (qvx::detail::kMasked<hn::TFromD<D>, hn::MaxLanes(D()) * sizeof(hn::TFromD<D>)>)
    return hn::MaskedLoad(hn::FirstN(d, n), d, p);
  else return loadFirst(d, p, n);
}
template <class D> QVX_INLINE void putFirstLanes(Vec<D> v, D d, hn::TFromD<D>* p, size_t n) {
  if constexpr (qvx::detail::kMasked<hn::TFromD<D>, hn::MaxLanes(D()) * sizeof(hn::TFromD<D>)>)
    hn::BlendedStore(v, hn::FirstN(d, n), d, p);
  else storeFirst(v, d, p, n);
}

// Points in two planes.
template <class T> struct Planes : Split<T> {
  using Lane = std::remove_const_t<T>;
  static constexpr size_t kLanesOfPoint = 1;

  template <size_t L> QVX_INLINE auto getFirst(size_t at, size_t n) const {
    const Lanes<Lane, L> d;
    return Complex<Vec<Lanes<Lane, L>>>{firstLanes(d, this->re + at, n), firstLanes(d, this->im + at, n)};
  }
  template <size_t L, class V> QVX_INLINE void putFirst(Complex<V> z, size_t at, size_t n) const {
    putFirstLanes(z.re, TagOf<V>(), this->re + at, n);
    putFirstLanes(z.im, TagOf<V>(), this->im + at, n);
  }
  template <size_t L> QVX_INLINE auto getInOrder(size_t at) const { return this->template get<L>(at); }
  template <size_t L> QVX_INLINE auto getInOrder(size_t at, size_t n) const { return getFirst<L>(at, n); }
  // Of the elements of a vector from Src the first `count`, `apart` from each other.
  template <class Src, class V> QVX_INLINE void putApart(Complex<V> z, size_t at, size_t apart, size_t count) const {
    constexpr size_t L = kLanesOf<V>;
    T re[L];
    T im[L];
    store(z.re, TagOf<V>(), re);
    store(z.im, TagOf<V>(), im);
    for (size_t lane = 0; lane < L; ++lane) {
      const size_t i = Src::template element<L>(lane);
      if (i >= count) continue;
      this->re[at + i * apart] = re[lane];
      this->im[at + i * apart] = im[lane];
    }
  }
  Planes from(size_t at) const { return {{this->re + at, this->im + at}}; }
};
template <class T> Planes<T> planes(T* re, T* im) { return {{re, im}}; }
template <class T> Planes<const T> asConst(Planes<T> p) { return {{p.re, p.im}}; }

// Interleaved points, conjugate if `sign` is -0: so an inverse transform is a forward one, by the same code.
template <class T> struct Conjugable {
  using Lane = std::remove_const_t<T>;
  static constexpr size_t kLanesOfPoint = 1;
  T* p;
  Lane sign;

  template <size_t L> static constexpr size_t element(size_t lane) { return Interleaved<T, false>::template element<L>(lane); }
  template <class V> QVX_INLINE V signedAs(V im) const { return hn::Xor(im, same<V>(sign)); }
  template <size_t L> QVX_INLINE auto get(size_t at) const {
    auto z = Interleaved<T, false>{p}.template get<L>(at);
    z.im = signedAs(z.im);
    return z;
  }
  template <size_t L> QVX_INLINE auto getFirst(size_t at, size_t n) const {
    const Lanes<Lane, L> d;
    const size_t low = std::min(2 * n, L);
    auto z = evenAndOdd(firstLanes(d, p + 2 * at, low), firstLanes(d, p + 2 * at + low, 2 * n - low));
    z.im = signedAs(z.im);
    return z;
  }
  template <size_t L> QVX_INLINE auto getInOrder(size_t at) const {
    auto z = Interleaved<T, false>{p}.template getInOrder<L>(at);
    z.im = signedAs(z.im);
    return z;
  }
  template <size_t L> QVX_INLINE auto getInOrder(size_t at, size_t n) const {
    const Lanes<Lane, L> d;
    using V = Vec<Lanes<Lane, L>>;
    const size_t low = std::min(2 * n, L);
    const auto parts = deinterleaved(Pair<V>{firstLanes(d, p + 2 * at, low), firstLanes(d, p + 2 * at + low, 2 * n - low)});
    return Complex<V>{parts.lo, signedAs(parts.hi)};
  }
  template <size_t L, class V> QVX_INLINE void putInOrder(Complex<V> z, size_t at) const {
    Interleaved<T, false>{p}.template putInOrder<L>(Complex<V>{z.re, signedAs(z.im)}, at);
  }
  template <size_t L, class V> QVX_INLINE void putFirst(Complex<V> z, size_t at, size_t n) const {
    const auto both = interleaved(Pair<V>{z.re, signedAs(z.im)});
    const size_t low = std::min(2 * n, L);
    putFirstLanes(both.lo, TagOf<V>(), p + 2 * at, low);
    putFirstLanes(both.hi, TagOf<V>(), p + 2 * at + low, 2 * n - low);
  }
  Conjugable from(size_t at) const { return {p + 2 * at, sign}; }
};
template <class T> Conjugable<const T> asConst(Conjugable<T> z) { return {z.p, z.sign}; }

template <class Points, size_t P> using VectorOf = Vec<Lanes<typename Points::Lane, P * Points::kLanesOfPoint>>;

template <size_t L, class Src> constexpr size_t laneOfElement(size_t element) {
  size_t lane = 0;
  while (Src::template element<L>(lane) != element) ++lane;
  return lane;
}

// Rows of a few numbers: no more of a transposition than in blocks of 128 bits, whose places memory changes.
template <size_t L, class Src, size_t kWide, class V, class Part>
QVX_INLINE void storeBlocks(const Complex<V>* x, Part part, LaneOf<V>* row, size_t stride) {
  using T = LaneOf<V>;
  constexpr size_t kBlock = 16 / sizeof(T);
  V r[kBlock];
  unrolled<kBlock>([&](auto i) __attribute__((always_inline)) { r[i] = x[std::min<size_t>(i, kWide - 1)].*part; });
  transposeInBlocks(r);
  alignas(64) T kept[kBlock][L];
  unrolled<kBlock>([&](auto i) __attribute__((always_inline)) { store(r[i], TagOf<V>(), kept[i]); });
  unrolled<L>([&](auto i) __attribute__((always_inline)) {
    constexpr size_t lane = laneOfElement<L, Src>(i);
    std::memcpy(row, &kept[lane % kBlock][lane / kBlock * kBlock], kWide * sizeof(T));
    row += stride;
  });
}

// Rows of R numbers from R vectors, whose lane i belongs to row element(i); `rows` of them, `stride` apart. If isCut, nothing
// past the end of a row is written. Else rows are written in their order, and of each what is nearer to its end first, since a
// vector may run on into the next row, or fill up what stands between them.
template <size_t L, class Src, size_t R, class V, class Part>
QVX_INLINE void storeRows(const Complex<V> (&x)[R], Part part, LaneOf<V>* to, size_t stride, size_t rows, bool isCut) {
  using T = LaneOf<V>;
  constexpr size_t kChunks = (R + L - 1) / L;
  unrolled<kChunks>([&](auto c) __attribute__((always_inline)) {
    constexpr size_t at = (kChunks - 1 - c) * L;
    constexpr size_t kWide = std::min(L, R - at);
    constexpr size_t kBlock = 16 / sizeof(T);
    if (kWide <= kBlock && kBlock < L && rows == L && stride == R) {
      storeBlocks<L, Src, kWide>(x + at, part, to + at, stride);
      return;
    }
    V r[L];
    unrolled<L>([&](auto i) __attribute__((always_inline)) { r[i] = x[at + std::min<size_t>(i, kWide - 1)].*part; });
    transpose(r);
    const TagOf<V> d;
    // Each address from the one before: there are not registers enough for all of them.
    T* row = to + at;
    if (rows < L) {
      alignas(64) T kept[L][L];
      unrolled<L>([&](auto i) __attribute__((always_inline)) { store(r[i], d, kept[Src::template element<L>(i)]); });
      for (size_t i = 0; i < rows; ++i, row += stride) putFirstLanes(load(d, kept[i]), d, row, isCut ? kWide : L);
    } else if (kWide < L && isCut) {
      unrolled<L>([&](auto i) __attribute__((always_inline)) {
        putFirstLanes(r[laneOfElement<L, Src>(i)], d, row, kWide);
        row += stride;
      });
    } else {
      unrolled<L>([&](auto i) __attribute__((always_inline)) {
        store(r[laneOfElement<L, Src>(i)], d, row);
        row += stride;
      });
    }
  });
}

// What stands between the rows that the first pass leaves, and how the last one finds them: nothing, or as much as fills whole
// vectors. Then each load takes what one store has left, which a short transform needs: else it waits 20 cycles for the cache.
template <size_t R, size_t L> constexpr size_t paddedRow() { return (R + L - 1) / L * L; }
inline constexpr size_t kMostPadded = 16;  // numbers in a row
inline constexpr size_t kMostPaddedRows = 27;

// twiddles: for each vector of columns and each j = 1..R-1 a group, its lanes in the order of the source's elements.
//
// Results are transposed a turn later, after the next points are loaded and before they are transformed: the processor takes the
// oldest instructions first, so shuffles would go on alone until the last is done (radix 8 of doubles took 20 cycles a vector of
// points, and takes 13).
template <size_t R, size_t L, class T, class Src>
[[gnu::noinline]] void firstMixedPass(Src src, Planes<T> y, size_t m, const T* twiddles, bool isPadded) {
  using V = Vec<Lanes<T, L>>;
  const size_t wide = std::min(m, L);
  const size_t stride = isPadded ? paddedRow<R, L>() : R;
  const auto columnAt = [=](size_t begin) { return begin + L >= m ? m - wide : begin; };
  Complex<V> made[R];  // of the columns before
  for (size_t begin = 0; begin < m + L; begin += L, twiddles += (R - 1) * 2 * L) {
    Complex<V> x[R];
    if (begin < m) {
      const size_t p = columnAt(begin);
      auto at = src.from(p);
      const auto take = [&](auto get) __attribute__((always_inline)) {
        unrolled<R>([&](auto k) __attribute__((always_inline)) {
          x[k] = get(at);
          at = at.from(m);
        });
      };
      if (wide == L) take([](auto from) __attribute__((always_inline)) { return from.template get<L>(0); });
      else take([=](auto from) __attribute__((always_inline)) { return from.template getFirst<L>(0, wide); });
    }
    if (begin > 0) {
      const size_t p = columnAt(begin - L);
      // Whole vectors of the last row here end within the rows that follow it.
      constexpr size_t kRow = (R + L - 1) / L * L;
      const bool isCut = !isPadded && (kHasMasks || begin >= m || (m - begin + 1) * R < kRow);
      storeRows<L, Src>(made, &Complex<V>::re, y.re + p * stride, stride, wide, isCut);
      storeRows<L, Src>(made, &Complex<V>::im, y.im + p * stride, stride, wide, isCut);
    }
    if (begin >= m) break;
    anyDft(x);
    made[0] = x[0];
    unrolled<R - 1>([&](auto j)
                        __attribute__((always_inline)) { made[j + 1] = product(x[j + 1], group<L>(twiddles + j * 2 * L)); });
  }
}

// Twiddles of columns, one for each lane.
template <class V> QVX_INLINE Complex<V> rotatedBy(Complex<V> z, const LaneOf<V>* twiddles) {
  return product(z, group<kLanesOf<V>>(twiddles));
}

// Up to here all vectors of a butterfly are read after one test of their length, and written after one: with a test for each, 2 R
// addresses wait for it, and go to vector registers and back (100000 complex doubles take 1.06 of the time). More vectors do not
// stay in registers, and fewer of them wait on the stack where loads are apart (3600 take 1.1 after one test).
inline constexpr size_t kMostAfterOneTest = 13;

// z[k] from the vectors `apart` from each other, of each the first n elements.
template <size_t L, size_t R, class Src, class V> QVX_INLINE void takeAll(Src at, size_t apart, size_t n, Complex<V> (&z)[R]) {
  const auto take = [&](auto get) __attribute__((always_inline)) {
    unrolled<R>([&](auto k) __attribute__((always_inline)) {
      z[k] = get(at);
      at = at.from(apart);
    });
  };
  const auto whole = [](auto from) __attribute__((always_inline)) { return from.template getInOrder<L>(0); };
  const auto first = [=](auto from) __attribute__((always_inline)) { return from.template getInOrder<L>(0, n); };
  if constexpr (R > kMostAfterOneTest)
    take([=](auto from) __attribute__((always_inline)) { return n >= L ? whole(from) : first(from); });
  else if (n >= L) take(whole);
  else take(first);
}
// made(j) into them.
template <size_t L, size_t R, class Dst, class Made> QVX_INLINE void putAll(Dst at, size_t apart, size_t n, Made made) {
  const auto put = [&](auto store) __attribute__((always_inline)) {
    unrolled<R>([&](auto j) __attribute__((always_inline)) {
      store(at, made(j));
      at = at.from(apart);
    });
  };
  const auto whole = [](auto to, auto z) __attribute__((always_inline)) { to.template putInOrder<L>(z, 0); };
  const auto first = [=](auto to, auto z) __attribute__((always_inline)) { to.template putFirst<L>(z, 0, n); };
  if constexpr (R > kMostAfterOneTest)
    put([=](auto to, auto z) __attribute__((always_inline)) { n >= L ? whole(to, z) : first(to, z); });
  else if (n >= L) put(whole);
  else put(first);
}

// twiddles: for each p, for j = 1..R-1 exp(-2 pi i p j / (R * m)).
template <size_t R, size_t L, class T>
[[gnu::noinline]] void middleMixedPass(Planes<const T> x, Planes<T> y, size_t s, size_t m, const T* twiddles) {
  using V = Vec<Lanes<T, L>>;
  for (size_t p = 0; p < m; ++p, twiddles += (R - 1) * 2) {
    const bool isWhole = s * (m - p) >= L;
    for (size_t begin = 0; begin < s; begin += L) {
      const size_t q = s >= L ? std::min(begin, s - L) : 0;
      Complex<V> z[R];
      if constexpr (R <= kMostAfterOneTest) {
        takeAll<L>(x.from(q + s * p), s * m, isWhole ? L : s, z);
        anyDft(z);
        putAll<L, R>(
            y.from(q + s * R * p), s, isWhole ? L : s, [&](auto j) __attribute__((always_inline)) {
              if constexpr (j == 0) return z[0];
              else return product(z[j], twiddles[2 * j - 2], twiddles[2 * j - 1]);
            });
      } else {
        // Not by takeAll() and putAll(): more would wait on the stack (radix 25, 10000 complex doubles: 1.1 of the time).
        auto from = x.from(q + s * p);
        unrolled<R>([&](auto k) __attribute__((always_inline)) {
          z[k] = isWhole ? from.template get<L>(0) : from.template getFirst<L>(0, s);
          from = from.from(s * m);
        });
        anyDft(z);
        auto to = y.from(q + s * R * p);
        unrolled<R>([&](auto j) __attribute__((always_inline)) {
          if constexpr (j > 0) z[j] = product(z[j], twiddles[2 * j - 2], twiddles[2 * j - 1]);
          if (isWhole) to.template put<L>(z[j], 0);
          else to.template putFirst<L>(z[j], 0, s);
          to = to.from(s);
        });
      }
    }
  }
}

// Where a last pass finds its columns, and where their results belong: in runs of neighbours. The distances are between the R
// points, between the R results, and from a run to the next in either place.
struct LastSteps {
  size_t columns;  // of a run
  size_t points;
  size_t results;
  size_t runs = 1;
  size_t fromRun = 0;
  size_t toRun = 0;
  bool isPadded = false;  // whole vectors may be read
};

template <size_t R, size_t L, class T, class Dst>
[[gnu::noinline]] void lastMixedPass(Planes<const T> x, Dst dst, LastSteps steps, T factor) {
  using V = Vec<Lanes<T, L>>;
  const size_t columns = steps.columns;
  const bool overlaps = !steps.isPadded && columns >= L;
  for (size_t run = 0; run < steps.runs; ++run, x = x.from(steps.fromRun), dst = dst.from(steps.toRun)) {
    for (size_t begin = 0; begin < columns; begin += L) {
      const size_t q = overlaps ? std::min(begin, columns - L) : begin;
      const size_t wide = std::min(L, columns - q);
      Complex<V> z[R];
      takeAll<L>(x.from(q), steps.points, steps.isPadded ? L : wide, z);
      anyDft(z);
      if (factor != 1) {
        unrolled<R>([&](auto j) __attribute__((always_inline)) { z[j] = ScaledBy<T>{factor}(z[j]); });
      }
      putAll<L, R>(
          dst.from(q), steps.results, wide, [&](auto j) __attribute__((always_inline)) { return z[j]; });
    }
  }
}

}  // namespace qvx::transform
