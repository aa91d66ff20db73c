// Up to 100 numbers in q rows of r, r odd, with tables small enough for the records of such lengths: all steps are sums of
// products, in vectors along the spectrum of a row.
//
// The spectrum of a row of real numbers is conjugate at k and -k, so h = r/2 columns and the mean are enough. Sums and
// differences of the numbers at j and -j are multiplied by cosines and sines of 2 pi j k / r. Where r is prime, columns and
// numbers are in the order of the powers of a primitive root: the exponent of the product j k is the sum of those of j and k, so
// each row of the table is the one before shifted by one. Then come transforms down the columns, whose result k gives cosines k
// and n - k.
#pragma once

#include <numeric>

#include "dct/even.h"
#include "transform/odd_butterfly.h"

namespace qvx::dct {

inline constexpr int kLongestByRows = 100;

template <class T> struct Rows {
  uint8_t q, r, h;
  uint8_t width;  // columns in whole vectors
  uint8_t step;   // from a number's cosines to the next one's
  const T* cosines;
  const T* sines;
  const T* resultTwiddles;  // sqrt(2/n) exp(-2 pi i k / (4n)) of each result: a row of real parts, a row of imaginary ones
  const T* meanTwiddles;    // of the results made of means, in pairs; the first one's is sqrt(1/n)
  const T* twiddles;        // as resultTwiddles, from row 1 on; null where q and r have no common factor
  const T* columnTwiddles;  // exp(-2 pi i j / q) in pairs
  const uint8_t* source;    // of each row: where its number 0 is in the sequence, its numbers j, its numbers -j
  const uint8_t* results;   // k: row by row, h each, then those made of means
};

// A large prime factor, or else the odd factor that leaves the fewest rows within the room there is.
constexpr int rowLength(int n) {
  int rest = n;
  for (const int p : {2, 3, 5, 7, 11, 13}) {
    while (rest % p == 0) rest /= p;
  }
  if (rest > 1) return rest;
  for (const int r : {13, 11, 9, 15, 7, 5, 3}) {
    if (n % r == 0) return r;
  }
  return 1;
}
constexpr bool isPrimeRow(int r) { return r != 9 && r != 15; }

// step(L) with the lanes that h columns take.
template <class T, class Step> void withColumnLanes(size_t h, Step step) { withLanesWithin<T>(std::bit_ceil(h), step); }

template <class T> Rows<T> shapeOf(size_t n) {
  Rows<T> rows = {};
  const int r = rowLength(static_cast<int>(n));
  rows.r = static_cast<uint8_t>(r);
  rows.q = static_cast<uint8_t>(static_cast<int>(n) / r);
  rows.h = static_cast<uint8_t>(r / 2);
  withColumnLanes<T>(rows.h, [&](auto L) { rows.width = static_cast<uint8_t>((rows.h + L - 1) / L * L); });
  rows.step = isPrimeRow(r) ? 1 : rows.width;
  return rows;
}

// The length of a table of cosines; the last vector may reach into the next table.
template <class T> size_t columnTableLength(const Rows<T>& rows) {
  return isPrimeRow(rows.r) ? 2 * rows.h - size_t{1} : size_t{rows.h} * rows.width;
}
template <class T> bool hasTwiddles(const Rows<T>& rows) { return std::gcd(rows.q, rows.r) > 1; }

// The order of numbers and columns: one residue of r from each pair j, -j, then the others.
inline void writeResidues(size_t r, uint8_t* residue) {
  const bool isPrime = isPrimeRow(static_cast<int>(r));
  size_t root = 1;
  if (isPrime) {
    const auto isPrimitive = [=](size_t g) {
      size_t power = g;
      size_t order = 1;
      for (; power != 1; power = power * g % r) ++order;
      return order == r - 1;
    };
    for (root = 2; !isPrimitive(root);) ++root;
  }
  residue[0] = 1;
  for (size_t i = 1; i < r / 2 * 2; ++i) residue[i] = static_cast<uint8_t>(isPrime ? residue[i - 1] * root % r : (i + 1) % r);
}

template <class T> void writeColumnTables(const Rows<T>& rows, const uint8_t* residue, T* cosines, T* sines) {
  const size_t h = rows.h;
  const size_t width = rows.width;
  const bool isPrime = isPrimeRow(rows.r);
  writeTwiddles(
      rows.r, columnTableLength(rows),
      [=](size_t i) { return isPrime         ? size_t{residue[i]}
                             : i % width < h ? (i / width + 1) * (i % width + 1)
                                             : 0; },
      [=](size_t i, double re, double im) {
        cosines[i] = static_cast<T>(re);
        sines[i] = static_cast<T>(-im);
      });
}

// Where each row finds its numbers, and where its results go.
template <class T> void writePlaces(const Rows<T>& rows, size_t n, const uint8_t* residue, uint8_t* source, uint8_t* results) {
  const size_t q = rows.q;
  const size_t r = rows.r;
  const size_t h = rows.h;
  const bool isCoprime = !hasTwiddles(rows);
  const auto placeOf = [=](size_t row, size_t j) {
    const size_t at = isCoprime ? (row * r + j * q) % n : row + j * q;
    return static_cast<uint8_t>(2 * at < n ? 2 * at : 2 * (n - at) - 1);
  };
  const auto resultOf = [=](size_t row, size_t column) {
    size_t k = column;
    while (isCoprime ? k % q != row : k / r != row) k += r;
    return static_cast<uint8_t>(k);
  };
  for (size_t row = 0; row < q; ++row) {
    uint8_t* at = source + row * r;
    *at++ = placeOf(row, 0);
    for (size_t j = 0; j < h; ++j) {
      at[j] = placeOf(row, residue[j]);
      at[h + j] = placeOf(row, r - residue[j]);
      results[row * h + j] = resultOf(row, residue[j]);
    }
    results[q * h + row] = resultOf(row, 0);
  }
}

template <class T> void writeResultTwiddles(const Rows<T>& rows, size_t n, T* resultTwiddles, T* meanTwiddles) {
  const size_t h = rows.h;
  const size_t width = rows.width;
  const uint8_t* const results = rows.results;
  const uint8_t* const ofMeans = results + size_t{rows.q} * h;
  const long double factor = std::sqrt(2 / static_cast<long double>(n));
  writeTwiddles(
      4 * n, rows.q * width, [=](size_t i) { return i % width < h ? size_t{results[i / width * h + i % width]} : 0; },
      [=](size_t i, double re, double im) {
        T* const at = resultTwiddles + i / width * 2 * width + i % width;
        at[0] = static_cast<T>(i % width < h ? factor * re : 0);
        at[width] = static_cast<T>(i % width < h ? factor * im : 0);
      });
  writeTwiddles(
      4 * n, rows.q, [=](size_t i) { return size_t{ofMeans[i]}; },
      [=](size_t i, double re, double im) {
        const long double f = ofMeans[i] == 0 ? factor * std::sqrt(0.5L) : factor;
        meanTwiddles[2 * i] = static_cast<T>(f * re);
        meanTwiddles[2 * i + 1] = static_cast<T>(f * im);
      });
}

template <class T> void writeRowTwiddles(const Rows<T>& rows, size_t n, const uint8_t* residue, T* twiddles) {
  const size_t h = rows.h;
  const size_t width = rows.width;
  writeTwiddles(
      n, (rows.q - size_t{1}) * width, [=](size_t i) { return i % width < h ? (i / width + 1) * residue[i % width] : 0; },
      [=](size_t i, double re, double im) {
        T* const at = twiddles + i / width * 2 * width + i % width;
        at[0] = static_cast<T>(re);
        at[width] = static_cast<T>(im);
      });
}

template <class T> void writeRows(Rows<T>& rows, size_t n, Carver& tables) {
  rows = shapeOf<T>(n);
  const size_t q = rows.q;
  const auto carve = [&]<class E>(size_t count, const E*& table) {
    E* const at = tables.take<E>(static_cast<int64_t>(count));
    table = at;
    return at;
  };
  T* const cosines = carve(columnTableLength(rows), rows.cosines);
  T* const sines = carve(columnTableLength(rows), rows.sines);
  T* const resultTwiddles = carve(2 * q * rows.width, rows.resultTwiddles);
  T* const meanTwiddles = carve(2 * q, rows.meanTwiddles);
  T* const columnTwiddles = carve(2 * q, rows.columnTwiddles);
  T* const twiddles = hasTwiddles(rows) ? carve(2 * (q - 1) * rows.width, rows.twiddles) : nullptr;
  uint8_t* const source = carve(n, rows.source);
  uint8_t* const results = carve(q * (rows.h + size_t{1}), rows.results);

  uint8_t residue[2 * kLongestByRows];
  writeResidues(rows.r, residue);
  writeColumnTables(rows, residue, cosines, sines);
  writeTwiddles(
      q, q, [](size_t j) { return j; }, transform::intoPairs(columnTwiddles));
  writePlaces(rows, n, residue, source, results);
  writeResultTwiddles(rows, n, resultTwiddles, meanTwiddles);
  if (twiddles != nullptr) writeRowTwiddles(rows, n, residue, twiddles);
}

template <class T> int64_t bytesOfRows(size_t n) {
  const Rows<T> rows = shapeOf<T>(n);
  const size_t q = rows.q;
  const size_t numbers =
      2 * columnTableLength(rows) + 2 * q * rows.width + 4 * q + (hasTwiddles(rows) ? 2 * (q - 1) * rows.width : 0);
  return static_cast<int64_t>(numbers * sizeof(T) + n + q * (rows.h + size_t{1}));
}

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
