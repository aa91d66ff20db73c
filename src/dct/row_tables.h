// The tables of cosine transforms in rows (rows.h), small enough for the records of such lengths.
#pragma once

#include <numeric>

#include "dct/even.h"

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

}  // namespace qvx::dct
