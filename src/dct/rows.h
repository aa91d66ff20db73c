// Up to 100 numbers in q rows of r, r odd, with tables small enough for the records of such lengths: all steps are sums of
// products, in vectors along the spectrum of a row.
//
// The spectrum of a row of real numbers is conjugate at k and -k, so h = r/2 columns and the mean are enough. Sums and
// differences of the numbers at j and -j are multiplied by cosines and sines of 2 pi j k / r. Where r is prime, columns and
// numbers are in the order of the powers of a primitive root: the exponent of the product j k is the sum of those of j and k, so
// each row of the table is the one before shifted by one. Then come transforms down the columns, whose result k gives cosines k
// and n - k.
#pragma once

#include "dct/row_tables.h"
#include "transform/odd_butterfly.h"

namespace qvx::dct {

// The sums of x[j] * cosines[j * step + i] and of z[j] * sines[j * step + i] over h numbers, for J vectors of i, each in two
// chains.
template <size_t J, class V> struct ColumnSums {
  V even[J];
  V odd[J];
};
template <size_t J, class V, class T = LaneOf<V>>
QVX_INLINE ColumnSums<J, V> columnSums(const T* x, const T* z, const T* cosines, const T* sines, size_t h, size_t step) {
  const TagOf<V> d;
  ColumnSums<J, V> sums[2];
  unrolled<J>([&](auto v) __attribute__((always_inline)) {
    for (auto& s : sums) s.even[v] = s.odd[v] = hn::Zero(d);
  });
  const auto take = [&](size_t j, ColumnSums<J, V> & to) __attribute__((always_inline)) {
    unrolled<J>([&](auto v) __attribute__((always_inline)) {
      to.even[v] = hn::MulAdd(same<V>(x[j]), load(d, cosines + j * step + v * kLanesOf<V>), to.even[v]);
      to.odd[v] = hn::MulAdd(same<V>(z[j]), load(d, sines + j * step + v * kLanesOf<V>), to.odd[v]);
    });
  };
  size_t j = 0;
  for (; j + 2 <= h; j += 2) take(j, sums[0]), take(j + 1, sums[1]);
  if (j < h) take(j, sums[0]);
  unrolled<J>([&](auto v) __attribute__((always_inline)) {
    sums[0].even[v] = sums[0].even[v] + sums[1].even[v];
    sums[0].odd[v] = sums[0].odd[v] + sums[1].odd[v];
  });
  return sums[0];
}
// step(J, i) for vectors of L from i on that cover h columns, two at a time.
template <size_t L, class Step> QVX_INLINE void inTwoVectors(size_t h, Step step) {
  size_t i = 0;
  for (; i + L < h; i += 2 * L) step(std::integral_constant<size_t, 2>(), i);
  if (i < h) step(std::integral_constant<size_t, 1>(), i);
}

inline constexpr size_t kMostRows = kLongestByRows / 3;

// The sum of z[j] * columnTwiddles[j k] down q rows; inverse, with their conjugates.
template <bool kInverse, class V>
QVX_INLINE Complex<V> columnTransform(const Complex<V>* z, size_t q, size_t k, const LaneOf<V>* columnTwiddles) {
  Complex<V> sum = z[0];
  for (size_t j = 1, at = k; j < q; ++j, at = at + k < q ? at + k : at + k - q) {
    const Complex<V> twiddle{same<V>(columnTwiddles[2 * at]),
                             same<V>(kInverse ? -columnTwiddles[2 * at + 1] : columnTwiddles[2 * at + 1])};
    sum.re = hn::NegMulAdd(z[j].im, twiddle.im, hn::MulAdd(z[j].re, twiddle.re, sum.re));
    sum.im = hn::MulAdd(z[j].re, twiddle.im, hn::MulAdd(z[j].im, twiddle.re, sum.im));
  }
  return sum;
}

// All q of them, in place.
template <bool kInverse, class V> QVX_INLINE void columnTransforms(Complex<V>* z, size_t q, const LaneOf<V>* columnTwiddles) {
  const auto byKernel = [=](auto Q) __attribute__((always_inline)) {
    Complex<V> column[Q];
    unrolled<Q>([&](auto row) __attribute__((always_inline)) { column[row] = z[row]; });
    transform::anyDft(column);
    unrolled<Q>([&](auto row) __attribute__((always_inline)) { z[kInverse ? (Q - row) % Q : row] = column[row]; });
  };
  switch (q) {
    case 1:
      return;
    case 3:
      return byKernel(std::integral_constant<size_t, 3>());
    case 5:
      return byKernel(std::integral_constant<size_t, 5>());
    case 7:
      return byKernel(std::integral_constant<size_t, 7>());
    case 9:
      return byKernel(std::integral_constant<size_t, 9>());
    default:
      break;
  }
  Complex<V> results[kMostRows];
  for (size_t k = 0; k < q; ++k) results[k] = columnTransform<kInverse>(z, q, k, columnTwiddles);
  std::copy_n(results, q, z);
}

// y[k] - i y[n - k] for count of k, then zeros. Few lanes go through registers, since a vector that is loaded after its lanes
// were stored one by one waits for them: 19 doubles take 0.7 of the time in vectors of 16 bytes. In wider ones 19 floats would
// take 1.2 of it.
template <size_t L, class T> QVX_INLINE auto conjugateEnds(const T* y, size_t n, const uint8_t* k, size_t count) {
  const Lanes<T, L> d;
  using V = Vec<Lanes<T, L>>;
  if constexpr (L == 1) {
    if (count == 0) return Complex<V>{hn::Zero(d), hn::Zero(d)};
    return Complex<V>{load(d, y + *k), hn::Neg(load(d, y + n - *k))};
  } else if constexpr (L <= 4) {
    const auto low = conjugateEnds<L / 2>(y, n, k, count);
    const auto high = conjugateEnds<L / 2>(y, n, k + L / 2, count - std::min(count, L / 2));
    return Complex<V>{hn::Combine(d, high.re, low.re), hn::Combine(d, high.im, low.im)};
  } else {
    T re[L] = {};
    T im[L] = {};
    for (size_t lane = 0; lane < count; ++lane) re[lane] = y[k[lane]], im[lane] = -y[n - k[lane]];
    return Complex<V>{load(d, re), load(d, im)};
  }
}

inline constexpr size_t kMostNumbers = 128;  // of q rows of whole vectors

template <class T> void forwardByRows(const Rows<T>& rows, size_t n, const T* x, T* y) {
  const size_t q = rows.q;
  const size_t h = rows.h;
  T sums[kLongestByRows / 2];
  T differences[kLongestByRows / 2];
  T first[kMostRows];
  Complex<Vec<Lanes<T, 1>>> means[kMostRows];
  const Lanes<T, 1> one;
  const uint8_t* at = rows.source;
  for (size_t row = 0; row < q; ++row, at += 2 * h) {
    T mean = first[row] = x[*at++];
    for (size_t j = 0; j < h; ++j) {
      const T a = x[at[j]];
      const T b = x[at[h + j]];
      sums[row * h + j] = a + b;
      differences[row * h + j] = a - b;
      mean += a + b;
    }
    means[row] = {hn::Set(one, mean), hn::Zero(one)};
  }
  const auto put = [=](size_t k, T re, T im) __attribute__((always_inline)) {
    if (k > 0) y[n - k] = -im;
    y[k] = re;
  };
  columnTransforms<false>(means, q, rows.columnTwiddles);
  for (size_t row = 0; row < q; ++row) {
    const auto result = transform::product(means[row], Complex<Vec<Lanes<T, 1>>>{load(one, rows.meanTwiddles + 2 * row),
                                                                                 load(one, rows.meanTwiddles + 2 * row + 1)});
    put(rows.results[q * h + row], hn::GetLane(result.re), hn::GetLane(result.im));
  }
  withColumnLanes<T>(h, [&](auto L) {
    using V = Vec<Lanes<T, L>>;
    const Lanes<T, L> d;
    const auto column = [=](const T* table) __attribute__((always_inline)) {
      return Complex<V>{load(d, table), load(d, table + rows.width)};
    };
    const auto putColumns = [=](Complex<V> * z, size_t i) __attribute__((always_inline)) {
      for (size_t row = 1; row < q && !isNull(rows.twiddles); ++row)
        z[row] = transform::product(z[row], column(rows.twiddles + (row - 1) * 2 * rows.width + i));
      columnTransforms<false>(z, q, rows.columnTwiddles);
      for (size_t row = 0; row < q; ++row) {
        const auto result = transform::product(z[row], column(rows.resultTwiddles + row * 2 * rows.width + i));
        T re[L];
        T im[L];
        store(result.re, d, re);
        store(result.im, d, im);
        const uint8_t* k = rows.results + row * h + i;
        for (size_t lane = 0; lane < std::min<size_t>(L, h - i); ++lane) put(k[lane], re[lane], im[lane]);
      }
    };
    Complex<V> z[2][kMostRows];
    inTwoVectors<L>(
        h, [&](auto J, size_t i) __attribute__((always_inline)) {
          for (size_t row = 0; row < q; ++row) {
            const auto made =
                columnSums<J, V>(sums + row * h, differences + row * h, rows.cosines + i, rows.sines + i, h, rows.step);
            unrolled<J>([&](auto v) __attribute__((always_inline)) {
              z[v][row] = {same<V>(first[row]) + made.even[v], hn::Neg(made.odd[v])};
            });
          }
          for (size_t v = 0; v < J; ++v) putColumns(z[v], i + v * L);
        });
  });
}

template <class T> void inverseByRows(const Rows<T>& rows, size_t n, const T* y, T* x) {
  const size_t q = rows.q;
  const size_t h = rows.h;
  T re[kMostNumbers];
  T im[kMostNumbers];
  T means[kMostRows];
  T firsts[kMostRows];
  const Lanes<T, 1> one;
  Complex<Vec<Lanes<T, 1>>> ends[kMostRows];
  for (size_t row = 0; row < q; ++row) {
    const size_t k = rows.results[q * h + row];
    // Results k and n - k are both here.
    const T f = k == 0 ? T(1) : T(0.5);
    const Complex<Vec<Lanes<T, 1>>> z{hn::Set(one, f * y[k]), hn::Set(one, k == 0 ? T(0) : -f * y[n - k])};
    ends[row] = productWithConjugate(
        z, Complex<Vec<Lanes<T, 1>>>{load(one, rows.meanTwiddles + 2 * row), load(one, rows.meanTwiddles + 2 * row + 1)});
  }
  columnTransforms<true>(ends, q, rows.columnTwiddles);
  for (size_t row = 0; row < q; ++row) firsts[row] = means[row] = hn::GetLane(ends[row].re);
  T ahead[kMostNumbers];  // numbers j of each row
  T back[kMostNumbers];   // numbers -j
  withColumnLanes<T>(h, [&](auto L) {
    using V = Vec<Lanes<T, L>>;
    const Lanes<T, L> d;
    const size_t width = rows.width;
    const auto column = [=](const T* table) __attribute__((always_inline)) {
      return Complex<V>{load(d, table), load(d, table + width)};
    };
    for (size_t i = 0; i < h; i += L) {
      Complex<V> z[kMostRows];
      for (size_t row = 0; row < q; ++row) {
        const auto ends = conjugateEnds<L>(y, n, rows.results + row * h + i, std::min<size_t>(L, h - i));
        z[row] = productWithConjugate(ends, column(rows.resultTwiddles + row * 2 * width + i));
      }
      columnTransforms<true>(z, q, rows.columnTwiddles);
      for (size_t row = 0; row < q; ++row) {
        auto w = z[row];
        if (row > 0 && !isNull(rows.twiddles)) w = productWithConjugate(w, column(rows.twiddles + (row - 1) * 2 * width + i));
        store(w.re, d, re + row * width + i);
        store(w.im, d, im + row * width + i);
      }
    }
    for (size_t row = 0; row < q; ++row) {
      for (size_t j = 0; j < h; ++j) firsts[row] += re[row * width + j];
      inTwoVectors<L>(
          h, [&](auto J, size_t i) __attribute__((always_inline)) {
            const size_t at = row * width + i;
            const auto made =
                columnSums<J, V>(re + row * width, im + row * width, rows.cosines + i, rows.sines + i, h, rows.step);
            unrolled<J>([&](auto v) __attribute__((always_inline)) {
              const V even = same<V>(means[row]) + made.even[v];
              store(even - made.odd[v], d, ahead + at + v * L);
              store(even + made.odd[v], d, back + at + v * L);
            });
          });
    }
  });
  const uint8_t* at = rows.source;
  for (size_t row = 0; row < q; ++row, at += 2 * h) {
    x[*at++] = firsts[row];
    for (size_t j = 0; j < h; ++j) {
      x[at[j]] = ahead[row * rows.width + j];
      x[at[h + j]] = back[row * rows.width + j];
    }
  }
}

}  // namespace qvx::dct
