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

template <class V> V all(uint32_t value) { return same<V>(static_cast<int32_t>(value)); }

// How the bisections of a vector begin: at the whole table.
template <class V> struct NoSteps {
  static constexpr int kSteps = 0;
  uint32_t last;

  explicit NoSteps(const Table& table) : last(table.last) {}
  void take(V, V& base, V& span) const {
    base = hn::Zero(TagOf<V>());
    span = all<V>(last);
  }
};

// The first steps of all bisections, which choose between so few entries that these fit a register, and so do the outcomes. Where
// fewer steps are enough the others change nothing.
template <class V> class FirstSteps {
 public:
  static constexpr int kSteps = std::bit_width(kLanesOf<V>) - 1;

  explicit FirstSteps(const Table& table) {
    constexpr size_t N = kLanesOf<V>;
    int32_t entries[N] = {};
    int32_t bases[2 * N] = {};
    int32_t spans[2 * N] = {};
    spans[1] = static_cast<int32_t>(table.last);
    // The tree of the steps: those after `node` are 2 node, for values below its entry, and 2 node + 1.
    for (size_t node = 1; node < N; ++node) {
      const int32_t half = spans[node] / 2;
      entries[node] = table.entries[bases[node] + half];
      bases[2 * node] = bases[node];
      spans[2 * node] = half;
      bases[2 * node + 1] = bases[node] + half;
      spans[2 * node + 1] = spans[node] - half;
    }
    entries_ = load(TagOf<V>(), entries);
    bases_ = load(TagOf<V>(), bases + N);
    spans_ = load(TagOf<V>(), spans + N);
  }

  void take(V v, V& base, V& span) const {
    V node = same<V>(1);
    for (int step = 0; step < kSteps; ++step) {
      node = node + node + same<V>(1) + hn::VecFromMask(TagOf<V>(), v < at(node, entries_));
    }
    const V outcome = node - same<V>(kLanesOf<V>);
    base = at(outcome, bases_);
    span = at(outcome, spans_);
  }

 private:
  static V at(V lanes, V v) { return hn::TableLookupLanes(v, hn::IndicesFromVec(TagOf<V>(), lanes)); }

  V entries_;
  V bases_;
  V spans_;
};

// The same in lanes. An entry is loaded together with the one above it: the bisection looks at no entry that has none.
template <class V> class Bisection {
 public:
  template <class First> Bisection(const Table& table, const First& first, V v) : entries_(table.entries), v_(v) {
    first.take(v, base_, span_);
  }

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
    const V first = all<V>(table.entries[0]);
    const V last = all<V>(table.entries[table.last]);
    const auto isInside = v_ > first;
    const auto isBelowLast = v_ < last;
    V index = hn::IfThenElse(isUp, base_ + all<V>(1), base_);
    V entry = hn::IfThenElse(isUp, up, down);
    index = hn::IfThenElseZero(isInside, hn::IfThenElse(isBelowLast, index, all<V>(table.last)));
    entry = hn::IfThenElse(isInside, hn::IfThenElse(isBelowLast, entry, last), first);
    const hn::Rebind<Qvx16u, TagOf<V>> narrow;
    store(hn::DemoteTo(narrow, entry), narrow, outVal);
    store(index, TagOf<V>(), outIndx);
  }

 private:
  static V lower(V pair) { return pair & all<V>(0xFFFF); }

  const Qvx16u* entries_;
  V v_;
  V base_;
  V span_;
};

// Two vectors at a time, since a gather has a long latency: 4.0 ns a value with 1000 entries, where one vector takes 7.1 and the
// scalar bisection without branches 19.
template <size_t N, class First>
[[gnu::always_inline]] inline size_t nearestInPairs(const Table& table, const First& first, const Qvx16u* vals, Qvx16u* outVals,
                                                    int* outIndx, size_t from, size_t n) {
  const Lanes<int32_t, N> d;
  const Lanes<Qvx16u, N> narrow;
  const int steps = table.steps();
  size_t i = from;
  for (; i + 2 * N <= n; i += 2 * N) {
    Bisection a(table, first, hn::PromoteTo(d, load(narrow, vals + i)));
    Bisection b(table, first, hn::PromoteTo(d, load(narrow, vals + i + N)));
    for (int step = First::kSteps; step < steps; ++step) {
      a.step();
      b.step();
    }
    a.finish(table, outVals + i, outIndx + i);
    b.finish(table, outVals + i + N, outIndx + i + N);
  }
  return i;
}

// To fill the registers of the first steps takes 7 ns, more than they save of 16 values. Of 256 they save a quarter, with 16
// entries half. By itself, since few values would wait for its stack frame.
template <size_t N>
[[gnu::noinline]] size_t nearestOfMany(const Table& table, const Qvx16u* vals, Qvx16u* outVals, int* outIndx, size_t from,
                                       size_t n) {
  return nearestInPairs<N>(table, FirstSteps<Vec<Lanes<int32_t, N>>>(table), vals, outVals, outIndx, from, n);
}
template <size_t N>
[[gnu::always_inline]] inline size_t nearestInLanes(const Table& table, const Qvx16u* vals, Qvx16u* outVals, int* outIndx,
                                                    size_t from, size_t n) {
  if (n - from >= 4 * N) return nearestOfMany<N>(table, vals, outVals, outIndx, from, n);
  return nearestInPairs<N>(table, NoSteps<Vec<Lanes<int32_t, N>>>(table), vals, outVals, outIndx, from, n);
}

// An offset in bytes has to fit a lane, so 2^30 entries are too many. Beyond 2^16 all further entries are duplicates.
constexpr uint32_t kLargestInLanes = 1 << 16;

void nearestOf(const Table& table, const Qvx16u* vals, Qvx16u* outVals, int* outIndx, size_t n) {
  size_t i = 0;
  if constexpr (kGathers) {
    constexpr size_t N = kVectorBytes / sizeof(int);
    if (table.last <= kLargestInLanes) {
      i = nearestInLanes<N>(table, vals, outVals, outIndx, i, n);
      if constexpr (N > 8) i = nearestInLanes<8>(table, vals, outVals, outIndx, i, n);
      i = nearestInLanes<4>(table, vals, outVals, outIndx, i, n);
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
