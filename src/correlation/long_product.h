// Long products by the FFT, through spectra that stay in the order in which they are made. The points of a cycle lie in rows
// whose length is a power of two: transforms down the columns, a twiddle for each result, then transforms along the rows, which
// fit the near caches. The product goes back by the same steps in reverse. Nothing is transposed, the number of rows need not be
// a power of two, and rows of up to 4096 points have ready records: a convolution of two vectors of 100000 floats takes 0.47 ms,
// where transforms of 2^18 take 2.2.
//
// 2P real numbers make P points: number p less i times number p + P, times exp(-2 pi i p / 4P). What passes the end of 2P wraps
// around with its sign changed.
#pragma once

#include <limits>

#include "correlation/spectral.h"
#include "transform/odd_butterfly.h"
#include "transform/plan.h"

namespace qvx::correlation {

using transform::product;

inline constexpr size_t kRowCounts[] = {16, 18, 20, 24, 25, 27, 30, 32};
inline constexpr size_t kMostRows = 32;
inline constexpr int kShortestRow = 6;
inline constexpr int kLongestRow = 16;
inline constexpr int kReadyRow = fft::kHighestReady - 1;
// Points from which the steps of a product are divided between threads: each of them takes 20 us then.
inline constexpr size_t kPointsWorthTeam = 32768;
// Columns whose twiddles are the product of two factors: one for the row and the group of kColumns, one for the row and the place
// in it.
inline constexpr size_t kColumns = 32;

struct Grid {
  size_t rows = 0;
  int order = 0;  // of a row

  size_t length() const { return size_t{1} << order; }
  size_t points() const { return rows * length(); }
};

// R points down a column, all of them L columns wide.
template <size_t R, class V> [[gnu::noinline]] void transformColumns(Complex<V>* column) {
  Complex<V> x[R];
  std::copy_n(column, R, x);
  transform::anyDft(x);
  std::copy_n(x, R, column);
}
template <class V> auto columnTransform(size_t rows) {
  void (*const all[])(Complex<V>*) = {transformColumns<16, V>, transformColumns<18, V>, transformColumns<20, V>,
                                      transformColumns<24, V>, transformColumns<25, V>, transformColumns<27, V>,
                                      transformColumns<30, V>, transformColumns<32, V>};
  return all[std::find(std::begin(kRowCounts), std::end(kRowCounts), rows) - std::begin(kRowCounts)];
}

template <class C> class LongProduct {
 public:
  LongProduct(Grid grid, int threads)
      : grid_(grid), threads_(threads), rows_(grid.order, 0, threads), block_(rows_.status() == qvxStatOk ? bytes() : 0) {
    if (!block_) return;
    Carver carver(block_.get(), Carver::kLine);
    taps_ = carver.takeLines<Point>(spectrumSize());
    points_ = carver.takeLines<Point>(spectrumSize());
    ends_ = carver.takeLines<C>(endsSize());
    columnTwiddles_ = carver.takeLines<T>(static_cast<int64_t>(2 * grid.rows * kColumns));
    blockTwiddles_ = carver.takeLines<T>(static_cast<int64_t>(2 * grid.rows * (grid.length() / kColumns)));
    rowTwiddles_ = carver.takeLines<T>(static_cast<int64_t>(2 * grid.rows));
    writeTwiddles();
  }

  QvxStatus status() const { return !block_ ? qvxStatNoMem : rows_.status(); }

  // Sets the second operand of the following products; isConjugate: they are correlations.
  QvxStatus setTaps(const C* taps, size_t count, bool isConjugate) {
    return transformRows(taps, count, taps_, [=, this](Point* row, size_t) {
      if (isConjugate) fft::conjugate(row, rows_.length());
      return qvxStatOk;
    });
  }

  // y[n] = element first + n of the product of x with the taps. Elements before 0 are the last of the cycle.
  QvxStatus multiply(const C* x, size_t n, int64_t first, C* y, size_t outputs) {
    const QvxStatus status = transformRows(x, n, points_, [this](Point* row, size_t thread) { return multiplyRow(row, thread); });
    if (status == qvxStatOk) store(first, y, outputs);
    return status;
  }
  // The same of taps whose spectrum is conjugate with themselves.
  QvxStatus multiplyByItself(C* y, size_t outputs) {
    const QvxStatus status = eachRow(points_, [this](Point* row, size_t thread) {
      std::copy_n(taps_ + (row - points_), grid_.length(), row);
      fft::conjugate(row, rows_.length());
      return multiplyRow(row, thread);
    });
    if (status == qvxStatOk) store(0, y, outputs);
    return status;
  }

 private:
  using T = Part<C>;
  using Point = std::conditional_t<std::is_same_v<T, Qvx32f>, Qvx32fc, Qvx64fc>;
  static constexpr bool kIsReal = PartsOf<C>::kCount == 1;
  static constexpr size_t kHalves = kIsReal ? 2 : 1;  // elements in a point
  static constexpr size_t L = kVectorBytes / sizeof(T);
  static constexpr Lanes<T, L> d{};
  using V = Vec<Lanes<T, L>>;
  static constexpr size_t kEnds = 4;  // rows of which only a part belongs to an operand or a result

  // A row of the caller's, or a single vector that stands for a whole row.
  template <class E> struct Run {
    E* p;
    size_t places;  // of an index

    E* at(size_t j) const { return p + (j & places); }
  };

  int64_t spectrumSize() const { return static_cast<int64_t>(grid_.points()); }
  int64_t endsSize() const { return static_cast<int64_t>(kEnds * grid_.length() + L); }
  int64_t bytes() const {
    const auto twiddles = static_cast<int64_t>(2 * grid_.rows * (kColumns + grid_.length() / kColumns + 1));
    return 2 * spectrumSize() * int64_t{sizeof(Point)} + endsSize() * int64_t{sizeof(C)} + twiddles * int64_t{sizeof(T)} +
           7 * Carver::kLine;
  }

  // Column j of row k is multiplied by exp(-2 pi i j (4k + 1) / 4P), or by exp(-2 pi i j k / P).
  void writeTwiddles() const {
    const size_t R = grid_.rows;
    const size_t turns = 4 * grid_.points();
    const auto turn = [](size_t k) { return 4 * k + (kIsReal ? 1 : 0); };
    for (size_t k = 0; k < R; ++k) {
      transform::writeTwiddles(
          turns, kColumns, [=](size_t i) { return i * turn(k); }, transform::intoGroups<L>(columnTwiddles_ + 2 * k * kColumns));
    }
    const auto rows = static_cast<uint32_t>(R);  // dividing 64 bits takes as long as a twiddle
    transform::writeTwiddles(
        turns, R * (grid_.length() / kColumns),
        [=](size_t i) { return static_cast<uint32_t>(i) / rows * kColumns * turn(static_cast<uint32_t>(i) % rows); },
        transform::intoPairs(blockTwiddles_));
    transform::writeTwiddles(
        4 * R, R, [=](size_t i) { return i; }, transform::intoPairs(rowTwiddles_));
  }
  Complex<V> twiddleAt(size_t k, size_t j) const {
    const size_t R = grid_.rows;
    const T* const block = blockTwiddles_ + 2 * (j / kColumns * R + k);
    return product(transform::group<L>(columnTwiddles_ + 2 * (k * kColumns + j % kColumns)), block[0], block[1]);
  }

  // The spectrum of n elements and zeros; then(row, thread) on each of its rows.
  template <class Then> QvxStatus transformRows(const C* v, size_t n, Point* spectrum, Then then) {
    static constexpr C kZeros[L] = {};
    const size_t length = grid_.length();
    Run<const C> runs[2 * kMostRows];
    for (size_t r = 0; r < kHalves * grid_.rows; ++r) {
      const size_t at = r * length;
      if (at + length <= n) {
        runs[r] = {v + at, ~size_t{0}};
      } else if (at >= n) {
        runs[r] = {kZeros, 0};
      } else {
        std::copy(v + at, v + n, ends_);
        std::fill(ends_ + (n - at), ends_ + length, C{});
        runs[r] = {ends_, ~size_t{0}};
      }
    }
    dividedBetween(threads_, length / kColumns, [&](size_t from, size_t count, size_t) {
      return load(runs, spectrum, from * kColumns, (from + count) * kColumns), qvxStatOk;
    });
    return eachRow(spectrum, [&](Point* row, size_t thread) {
      const QvxStatus status = rows_.forward(row, row, thread);
      return status == qvxStatOk ? then(row, thread) : status;
    });
  }
  template <class Step> QvxStatus eachRow(Point* spectrum, Step step) const {
    return dividedBetween(threads_, grid_.rows, [&](size_t from, size_t count, size_t thread) {
      QvxStatus worst = qvxStatOk;
      for (size_t k = from; k < from + count; ++k) worst = std::min(worst, step(spectrum + k * grid_.length(), thread));
      return worst;
    });
  }
  QvxStatus multiplyRow(Point* row, size_t thread) const {
    fft::multiply(taps_ + (row - points_), row, rows_.length());
    return rows_.inverse(row, row, thread);
  }
  [[gnu::noinline]] void load(const Run<const C>* runs, Point* spectrum, size_t from, size_t to) const {
    const size_t R = grid_.rows;
    const auto transformColumn = columnTransform<V>(R);
    Complex<V> x[kMostRows];
    for (size_t j = from; j < to; j += L) {
      for (size_t r = 0; r < R; ++r) {
        if constexpr (kIsReal) {
          const V re = qvx::load(d, runs[r].at(j));
          const V im = qvx::load(d, runs[R + r].at(j));
          x[r] = product(Complex<V>{re, hn::Neg(im)}, rowTwiddles_[2 * r], rowTwiddles_[2 * r + 1]);
        } else {
          x[r] = transform::Interleaved<const T, false>{parts(runs[r].at(j))}.template getInOrder<L>(0);
        }
      }
      transformColumn(x);
      for (size_t k = 0; k < R; ++k) {
        transform::Interleaved<T, false>{parts(spectrum + k * grid_.length())}.template putInOrder<L>(
            product(x[k], twiddleAt(k, j)), j);
      }
    }
  }

  // From the rows of the product to outputs. A row that is not all outputs goes to memory of its own first.
  void store(int64_t first, C* y, size_t outputs) const {
    struct End {
      int64_t at;  // of its first element among the outputs
      bool isNegated;
      const C* from;
    };
    const auto length = static_cast<int64_t>(grid_.length());
    const auto all = static_cast<int64_t>(kHalves * grid_.points());
    const auto n = static_cast<int64_t>(outputs);
    Run<C> runs[2 * kMostRows];
    T factors[2 * kMostRows];
    End ends[2 * kEnds];
    size_t count = 0;
    C* end = ends_ + L;
    const T factor = T(1) / static_cast<T>(grid_.rows);
    for (size_t r = 0; r < kHalves * grid_.rows; ++r) {
      runs[r] = {ends_, 0};  // for outputs that nobody asks for
      factors[r] = factor;
      bool hasEnd = false;
      for (const bool isWrapped : {false, true}) {
        const int64_t at = static_cast<int64_t>(r) * length - first - (isWrapped ? all : 0);
        if (at + length <= 0 || at >= n) continue;
        if (at >= 0 && at + length <= n) {
          runs[r] = {y + at, ~size_t{0}};
          if (isWrapped && kIsReal) factors[r] = -factor;
        } else {
          ends[count++] = {at, isWrapped && kIsReal, end};
          runs[r] = {end, ~size_t{0}};
          hasEnd = true;
        }
      }
      if (hasEnd) end += length;
    }
    dividedBetween(threads_, grid_.length() / kColumns, [&](size_t from, size_t some, size_t) {
      return store(runs, factors, from * kColumns, (from + some) * kColumns), qvxStatOk;
    });
    for (size_t i = 0; i < count; ++i) {
      const int64_t low = std::max<int64_t>(0, ends[i].at);
      const int64_t high = std::min(n, ends[i].at + length);
      for (int64_t k = low; k < high; ++k) {
        const C v = ends[i].from[k - ends[i].at];
        if constexpr (kIsReal) y[k] = ends[i].isNegated ? -v : v;
        else y[k] = v;
      }
    }
  }
  [[gnu::noinline]] void store(const Run<C>* runs, const T* factors, size_t from, size_t to) const {
    const size_t R = grid_.rows;
    const auto transformColumn = columnTransform<V>(R);
    Complex<V> x[kMostRows];
    const auto conjugate = [](Complex<V> z) { return Complex<V>{z.re, hn::Neg(z.im)}; };
    for (size_t j = from; j < to; j += L) {
      for (size_t k = 0; k < R; ++k) {
        const auto z = transform::Interleaved<const T, false>{parts(points_ + k * grid_.length())}.template getInOrder<L>(j);
        x[k] = product(z, conjugate(twiddleAt(k, j)));
      }
      transformColumn(x);
      for (size_t r = 0; r < R; ++r) {
        const Complex<V> z = x[r == 0 ? 0 : R - r];  // backwards, as an inverse transform has them
        const V factor = same<V>(factors[r]);
        if constexpr (kIsReal) {
          const Complex<V> w = product(z, rowTwiddles_[2 * r], -rowTwiddles_[2 * r + 1]);
          qvx::store(w.re * factor, d, runs[r].at(j));
          qvx::store(w.im * same<V>(-factors[R + r]), d, runs[R + r].at(j));
        } else {
          transform::Interleaved<T, false>{parts(runs[r].at(j))}.template putInOrder<L>(Complex<V>{z.re * factor, z.im * factor},
                                                                                        0);
        }
      }
    }
  }

  Grid grid_;
  int threads_;
  Spectra<Point> rows_;
  Block block_;
  Point* taps_;
  Point* points_;
  C* ends_;
  T* columnTwiddles_;  // groups of L, row by row
  T* blockTwiddles_;
  T* rowTwiddles_;
};

// How a band is cut: products of `fresh` outputs each.
struct LongCut {
  Grid grid;
  size_t fresh = 0;
  double cost = std::numeric_limits<double>::infinity();  // in the units of Cut
};

// The fixed cost of a row of a transform, and of a call of the other way.
template <class C> inline constexpr double kRowCost = 2400.0 / sizeof(C);
template <class C> inline constexpr double kCallCost = 80000.0 / sizeof(C);

template <class C> LongCut longCutOf(const Band<C>& band) {
  constexpr size_t kElements = PartsOf<C>::kCount == 1 ? 2 : 1;  // in a point
  const size_t whole = Section<C>(band).room;
  LongCut best;
  for (int order = kShortestRow; order <= kLongestRow; ++order) {
    for (const size_t rows : kRowCounts) {
      const Grid grid{rows, order};
      const size_t length = grid.points() * kElements;
      if (length < band.count) continue;
      const size_t fresh = length >= whole ? band.outputs : length - (band.count - 1);
      const size_t twiddles = rows * (kColumns + grid.length() / kColumns) + (order > kReadyRow ? grid.length() : 0);
      const double transform =
          static_cast<double>(length) * (std::bit_width(grid.points()) + 2) + static_cast<double>(rows) * kRowCost<C>;
      const double cost =
          transformsOf(band, dividedUp(band.outputs, fresh)) * transform + static_cast<double>(twiddles) * kTwiddleCost<C>;
      if (cost < best.cost) best = {grid, fresh, cost};
      if (length >= whole) return best;
    }
  }
  return best;
}

// Cut::cost decides for or against the direct way, a choice of shorter calls; this compares the time of longer ones.
template <class C> bool isFasterThan(const LongCut& a, const Band<C>& band, const Cut& b) {
  const double transforms = transformsOf(band, b.steps) * (b.order + 1);
  return a.cost < static_cast<double>(b.length) * (transforms + recordCost<C>(b.order)) + kCallCost<C>;
}

template <class C> QvxStatus byLongProducts(const Band<C>& band, const LongCut& cut, C* y) {
  const int threads = cut.grid.points() >= kPointsWorthTeam ? ownGetNumThreads() : 1;
  LongProduct<C> product(cut.grid, threads);
  if (product.status() != qvxStatOk) return product.status();
  QvxStatus worst = product.setTaps(band.taps, band.count, !band.isReversed);
  if (band.isOfItself() && cut.fresh == band.outputs) return std::min(worst, product.multiplyByItself(y, band.outputs));
  for (size_t at = 0; at < band.outputs; at += cut.fresh) {
    Band<C> part = band;
    part.from += static_cast<int64_t>(at);
    part.outputs = std::min(cut.fresh, band.outputs - at);
    const Section<C> section(part);
    worst = std::min(worst, product.multiply(band.x + section.from, section.count, section.first, y + at, part.outputs));
  }
  return worst;
}

}  // namespace qvx::correlation
