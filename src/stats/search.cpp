// Counting the elements of a range, and finding the nearest entries of a table.
#include <bit>

#include "frame/reduce.h"

using namespace qvx;

namespace {

// ---- counts

// Counts the elements within the `width` values from `least` on: a subtraction moves those to the least integers of the type, and
// one comparison finds them. No length fills a lane.
struct CountOf : Reduction {
  int32_t shift;
  int32_t limit;

  CountOf(int32_t least, uint32_t width)
      : shift(static_cast<int32_t>(static_cast<uint32_t>(least) ^ 0x80000000U)),
        limit(static_cast<int32_t>(width ^ 0x80000000U)) {}

  template <class V> auto isIn(V v) const { return v - same<V>(shift) < same<V>(limit); }
  template <class V> V start(V v) const { return add(same<V>(0), v); }
  template <class V> V add(V a, V v) const { return a - hn::VecFromMask(TagOf<V>(), isIn(v)); }
  template <class V> int total(V a) const { return sumOfLanes(a); }
};

QvxStatus count(const Qvx32s* src, int len, int* counts, Qvx32s lower, Qvx32s upper) {
  const QvxStatus status = check(len, src, counts);
  if (status != qvxStatOk) return status;
  const int64_t width = int64_t{upper} - lower - 1;
  // The lower bound itself, past the end, counts nothing.
  *counts =
      width < 1 ? 0 : reduce(CountOf(lower + 1, static_cast<uint32_t>(width)), elements(len), PaddedWith<Qvx32s>{&lower, src});
  return qvxStatOk;
}

// ---- nearest entries

// A table of two entries or more, in ascending order. In another order it gives the entries that its bisection comes to.
struct Table {
  const Qvx16u* entries;
  uint32_t last;

  // The most steps that the bisection takes. With a span of 1 the base no longer moves, so all elements may take as many.
  int steps() const { return std::bit_width(last - 1); }

  uint32_t nearest(Qvx16u v) const {
    if (v <= entries[0]) return 0;
    if (v >= entries[last]) return last;
    uint32_t base = 0;
    for (uint32_t span = last; span > 1;) {
      const uint32_t half = span / 2;
      const bool below = v < entries[base + half];
      base = below ? base : base + half;
      span = below ? half : span - half;
    }
    return base + (v - entries[base] > entries[base + 1] - v);
  }
};

// The same in lanes. An entry is loaded together with the one above it: the bisection looks at no entry that has none.
template <class V> class Bisection {
 public:
  Bisection(const Table& table, V v) : entries_(table.entries), v_(v), base_(same<V>(0)), span_(all(table.last)) {}

  void step() {
    const V half = hn::ShiftRight<1>(span_);
    const V above = base_ + half;
    const auto below = v_ < lower(loadEach(entries_, above));
    base_ = hn::IfThenElse(below, base_, above);
    span_ = hn::IfThenElse(below, half, span_ - half);
  }

  void finish(const Table& table, Qvx16u* outVal, int* outIndx) const {
    const V pair = loadEach(entries_, base_);
    const V down = lower(pair);
    const V up = as<int32_t>(hn::ShiftRight<16>(as<uint32_t>(pair)));
    const auto isUp = v_ - down > up - v_;
    const V first = all(table.entries[0]);
    const V last = all(table.entries[table.last]);
    const auto isInside = v_ > first;
    const auto isBelowLast = v_ < last;
    V index = hn::IfThenElse(isUp, base_ + all(1), base_);
    V entry = hn::IfThenElse(isUp, up, down);
    index = hn::IfThenElseZero(isInside, hn::IfThenElse(isBelowLast, index, all(table.last)));
    entry = hn::IfThenElse(isInside, hn::IfThenElse(isBelowLast, entry, last), first);
    const hn::Rebind<Qvx16u, TagOf<V>> narrow;
    store(hn::DemoteTo(narrow, entry), narrow, outVal);
    store(index, TagOf<V>(), outIndx);
  }

 private:
  static V all(uint32_t value) { return same<V>(static_cast<int32_t>(value)); }
  static V lower(V pair) { return pair & all(0xFFFF); }

  const Qvx16u* entries_;
  V v_;
  V base_;
  V span_;
};

// Two vectors at a time, since a gather has a long latency: 4.0 ns a value with 1000 entries, where one
// vector takes 7.1 and the scalar bisection without branches 19.
template <size_t N>
size_t nearestInPairs(const Table& table, const Qvx16u* vals, Qvx16u* outVals, int* outIndx, size_t from, size_t n) {
  const Lanes<int32_t, N> d;
  const Lanes<Qvx16u, N> narrow;
  const int steps = table.steps();
  size_t i = from;
  for (; i + 2 * N <= n; i += 2 * N) {
    Bisection a(table, hn::PromoteTo(d, load(narrow, vals + i)));
    Bisection b(table, hn::PromoteTo(d, load(narrow, vals + i + N)));
    for (int step = 0; step < steps; ++step) {
      a.step();
      b.step();
    }
    a.finish(table, outVals + i, outIndx + i);
    b.finish(table, outVals + i + N, outIndx + i + N);
  }
  return i;
}

// An offset in bytes has to fit a lane, so 2^30 entries are too many. Beyond 2^16 all further entries are duplicates.
constexpr uint32_t kLargestInLanes = 1 << 16;

void nearestOf(const Table& table, const Qvx16u* vals, Qvx16u* outVals, int* outIndx, size_t n) {
  size_t i = 0;
  if constexpr (kGathers) {
    constexpr size_t N = kVectorBytes / sizeof(int);
    if (table.last <= kLargestInLanes) {
      i = nearestInPairs<N>(table, vals, outVals, outIndx, i, n);
      if constexpr (N > 8) i = nearestInPairs<8>(table, vals, outVals, outIndx, i, n);
      i = nearestInPairs<4>(table, vals, outVals, outIndx, i, n);
    }
  }
  for (; i < n; ++i) {
    const uint32_t at = table.nearest(vals[i]);
    outVals[i] = table.entries[at];
    outIndx[i] = static_cast<int>(at);
  }
}

}  // namespace

QvxStatus qvxsCountInRange_32s(const Qvx32s* a, int len, int* counts, Qvx32s lower, Qvx32s upper) {
  return count(a, len, counts, lower, upper);
}

QvxStatus qvxsFindNearest_16u(const Qvx16u* vals, Qvx16u* outVals, int* outIndx, int len, const Qvx16u* table, int tblLen) {
  const QvxStatus status = check(std::min(len, tblLen), vals, outVals, outIndx, table);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  if (tblLen == 1) {
    std::fill_n(outVals, n, *table);
    std::fill_n(outIndx, n, 0);
    return qvxStatOk;
  }
  nearestOf(Table{table, static_cast<uint32_t>(tblLen) - 1}, vals, outVals, outIndx, n);
  return qvxStatOk;
}

QvxStatus qvxsFindNearestOne_16u(Qvx16u inpVal, Qvx16u* outVal, int* outIndx, const Qvx16u* table, int tblLen) {
  const QvxStatus status = check(tblLen, outVal, outIndx, table);
  if (status != qvxStatOk) return status;
  const uint32_t at = tblLen == 1 ? 0 : Table{table, static_cast<uint32_t>(tblLen) - 1}.nearest(inpVal);
  *outVal = table[at];
  *outIndx = static_cast<int>(at);
  return qvxStatOk;
}
