// The size of a multi-rate record, and what stands where in its block.
#pragma once

#include "fir/multirate_record.h"
#include "frame/rounding.h"

namespace qvx::fir {

// ---- sizes, as users allocate by them: fixed values of the interface

inline int64_t multirateBytes(int64_t n, int64_t u, int64_t d, int64_t element) {
  const int64_t length = (n + 3 * d + u - 1) / u * u;
  const int64_t line = (n + u - 1) / u;
  const int64_t steps = (line + d - 1) / d;
  const int64_t block = 4 * d * (length / u / (4 * d) + 1) + 1 + d * ((4 - steps % 4) % 4);
  const RoundingScope nearest(Rounding::kNearest);  // a size is one in every mode of the caller's
  const float all = RoundingScope::pinned(static_cast<float>(n + 3 * d));
  const float share = RoundingScope::pinned(static_cast<float>(n) / all);
  const bool isDense = u == 1 ? share > 0.5F : double{share} > 0.3;
  const int64_t table = isDense ? 176 + ((4 * u + 19) & ~15) : 160 + ((16 * u + 19) & ~15);
  return table + up<16>(element * n) + 4 * element * length + element * std::max((isDense ? 4 : 8) * length, int64_t{4096}) +
         ((element * (line + block) + 19) & ~15);
}
// Of integers as much as of the floats twice as wide as they would need.
template <class C> constexpr int64_t kElementBytes = std::is_integral_v<Part<C>> ? 8 * PartsOf<C>::kCount : sizeof(C);
template <class C> int64_t multirateBytes(int tapsLen, const Factors& f) {
  return multirateBytes(tapsLen, f.up, f.down, kElementBytes<C>);
}

// ---- layout

// Sums of branches on their way to the outputs they belong between, in bytes.
inline constexpr size_t kSumsBytes = 8192;

template <class R> inline constexpr bool kHasSpectra = requires(R record) { record.spectra; };

// Elements of a branch's taps. Those of integers are in pairs, row by row.
template <class C> int64_t branchLen(const MultirateFloat<C>& record) { return record.ratio.taps; }
template <class S, class T> int64_t branchLen(const MultirateInteger<S, T>& record) {
  const Ratio& q = record.ratio;
  const auto pairs = [](int taps) { return taps > 0 ? static_cast<int64_t>(pairsOf(static_cast<size_t>(taps), S())) : 0; };
  const int longer = q.taps % q.down;
  return 2 * (longer * pairs(q.taps / q.down + 1) + (q.down - longer) * pairs(q.taps / q.down));
}

// f(group) for the outputs of a period, as many at a time as lanes find their samples in a register.
template <int kLanes, class F> void forEachLaneGroup(const Ratio& q, F f) {
  Branch branch = q.branch();
  for (int j = 0; j < q.up;) {
    const int64_t first = branch.sample;
    LaneGroup group = {j, 0, static_cast<int>(first - q.taps + 1)};
    for (; j < q.up && group.count < kLanes && branch.sample - first < kLanes; branch.advance(q.up, q.down)) ++group.count, ++j;
    f(group);
  }
}
// How many there are; 0 where rows are faster: few branches, which is fewer than 16 for two lanes (3:2 by rows takes 0.7 of the
// time); rows with taps enough to share the vectors of samples; lanes of which most stay empty, unless a branch has so few taps
// that calling for it costs more, about as much as 100 products of vectors. Two reals in a vector have two vectors of samples to
// load for three by rows: 160:147 takes 0.4 of the time at 1 tap of a branch, 1.2 to 1.4 at 13.
template <class C> int laneGroups(const Ratio& q) {
  constexpr int kLanes = Lanewise<C>::kLanes;
  if (!Lanewise<C>::kPays || q.up < (kLanes == 2 ? 16 : kLanes)) return 0;
  constexpr bool kIsPairOfReals = kLanes == 2 && PartsOf<C>::kCount == 1;
  if (kIsPairOfReals && q.taps > 6) return 0;
  int count = 0;
  forEachLaneGroup<kLanes>(q, [&](const LaneGroup&) { ++count; });
  const int64_t lanes = q.up / count;
  const bool isFull = 2 * lanes >= kLanes && !areTapsByRow(static_cast<size_t>(q.taps), static_cast<size_t>(q.down));
  return isFull || q.taps * (2 * kLanes - lanes) < 100 * lanes ? count : 0;
}

// The taps for lanes, of which `each` elements make a step, or for rows.
template <class R> void placeBranches(R& record, Carver& carver, int64_t each) {
  using L = Lanewise<typename R::Kernel>;
  using B = typename R::Branches;
  if (record.groupCount == 0) {
    record.branches = carver.takeLines<B>(record.ratio.up * branchLen(record));
    return;
  }
  const int64_t count = record.groupCount;
  record.branches = carver.takeLines<B>(count * L::steps(record.ratio.taps) * each);
  record.order = carver.takeLines<LanePlace<typename R::Kernel>>(count * L::kLanes);
  record.groups = carver.take<LaneGroup>(count);
}
template <class C> void placeTaps(MultirateFloat<C>& record, Carver& carver) {
  record.taps = carver.takeLines<C>(record.tapsLen);
  placeBranches(record, carver, Lanewise<C>::kEach / int64_t{PartsOf<C>::kCount});
}
template <class S, class T> void placeTaps(MultirateInteger<S, T>& record, Carver& carver) {
  record.taps = carver.takeLines<T>(record.tapsLen);
  if constexpr (std::is_same_v<S, T>) record.shortTaps = record.taps;
  else record.shortTaps = carver.takeLines<S>(record.tapsLen);
  record.group = carver.takeLines<S>(record.ratio.taps);
  placeBranches(record, carver, Lanewise<S>::kEach);
}

// The rows take what is left of the block's bytes, from `begin` on; false if that is less than a period. branches: as many as
// give their outputs before any of them is on its way.
template <class R> bool placeRows(R& record, Carver& carver, const Qvx8u* begin, int64_t bytes, int branches) {
  using C = typename R::Kernel;
  constexpr int64_t kVector = kVectorElements<C>;
  constexpr int64_t kSums = kSumsBytes / sizeof(C);
  const Ratio& q = record.ratio;
  const auto count = static_cast<int64_t>(record.rowCount());
  record.rows = carver.takeLines<C>(0);
  const int64_t history = (q.delayLen + count - 1) / count;
  const int64_t left = (bytes - (reinterpret_cast<const Qvx8u*>(record.rows) - begin)) / int64_t{sizeof(C)};
  const int64_t fits = (left / count - history - R::kPadding) / record.rowLen;
  int64_t block = std::min(kSums / branches, fits);
  // All rows that a branch meets stay in the first-level cache for the next one: 134 taps in as many rows take a third of the
  // time.
  constexpr int64_t kNear = 24576 / sizeof(C);
  if (record.rowLen == 1 && !areTapsByRow(static_cast<size_t>(q.taps), static_cast<size_t>(count))) {
    block = std::min(block, std::max(kNear / std::min<int64_t>(q.taps, count), 2 * kVector));
  }
  if (std::is_integral_v<Part<C>> && record.groupCount > 0) {
    block = std::min<int64_t>(block, (kMostPaired - q.taps - 2) / q.down);
  }
  if (block < 1) return false;
  record.history = static_cast<int>(history);
  record.block = static_cast<int>(block > kVector ? block / kVector * kVector : block);
  record.stride = static_cast<int>(history + int64_t{record.block} * record.rowLen + R::kPadding);
  const int64_t first = q.branch().sample - q.taps + 1 + history * count;
  record.firstRow = static_cast<int>(first % count);
  record.firstAt = static_cast<int>(first / count);
  std::fill_n(record.rows, count * record.stride, C{});
  return true;
}

// The most outputs of a call that are added up one by one. Rows give vectors of outputs, once the samples are dealt: where an
// output drops many samples and has few taps that is most of the time, so calls of any length go one by one: 8:1 takes 0.4 of it
// with 16 taps, 0.75 with 64, and 4:1 0.65 with 16. Up to 64 outputs it is the call for each branch: 42 to 63 outputs of two or
// three branches take 0.65 to 0.9, of 4:1 with 64 taps 0.6. Complex ones 0.55 to 0.9, but for 4:1 with 256 taps or more in
// AVX-512, where 16 outputs take 1.05 to 1.1; in SSSE3, where rows save least, 256 outputs of 4:1 take 0.85 and less.
inline constexpr int kMostDots = 64;
template <class C> int mostDots(const Ratio& q) {
  constexpr int kAny = std::numeric_limits<int>::max();
  constexpr bool kIsInteger = std::is_integral_v<C>;
  constexpr bool kIsLong = kVectorBytes > 16;
  if (q.up > 1) return q.taps <= 128 || kIsInteger ? kMostDots : 16;
  if (q.down == 2) return kVectorElements<C> <= 8 && q.taps <= (kHasMasks ? 16 : 64) ? 32 : 8;
  if constexpr (PartsOf<C>::kCount == 2) {
    if (!kIsLong && q.down >= 4 && q.taps <= 64) return kAny;
    if (kHasMasks && q.down >= 4 && q.down < 8 && q.taps > 64) return 8;
  }
  if (q.down >= 8 && q.taps <= 64) return kIsInteger && kHasMasks ? kMostDots : kAny;
  if (q.down < 4 || q.taps > 64 || (kIsInteger && kHasMasks)) return 16;
  return q.taps <= 16 && kIsLong != kIsInteger ? kAny : kMostDots;
}

template <class R> int64_t lineLen(const R& record) { return record.lineHistory() + record.lineRoom; }
// The line and its taps, where such calls drop samples and branches are few. Before it there is a vector to read.
template <class R> bool placeLine(R& record, Carver& carver) {
  using C = typename R::Kernel;
  constexpr int kMostBranches = 8;
  constexpr int kMostSamples = 512;  // of a call
  constexpr int kMostApart = 4;      // outputs that meet samples of calls before, if those of the call stay where they are
  const Ratio& q = record.ratio;
  if (!kHasDots<C> || q.down == 1 || q.down > kMostSamples || q.up > kMostBranches) return false;
  record.linePeriods = mostDots<C>(q) / q.up;
  record.lineRoom = std::min({record.linePeriods, kMostDots / q.up, kMostSamples / q.down}) * q.down;
  record.first = q.branch();
  // Of many taps the samples of the first output begin a vector, and often those of others: 8 outputs of 256 taps take 0.85 of
  // the time. Of few, those of a call do.
  constexpr int64_t N = kVectorElements<C>;
  const auto length = static_cast<int64_t>(dotsLen<C>(static_cast<size_t>(q.taps)));
  const int64_t first = record.first.sample + 1 - length;
  record.mayStay = q.up == 1 && length <= record.lineRoom;
  record.staysIfFew = -first <= kMostApart * q.down;
  const int64_t whole = record.lineHistory() + (q.taps > 4 * N ? first : 0);
  record.line = carver.takeLines<C>(2 * N + lineLen(record)) + N + (N - whole % N) % N;
  record.lineTaps = carver.takeLines<C>(q.up * static_cast<int64_t>(dotsTapsLen<C>(static_cast<size_t>(q.taps))));
  return true;
}

// The rows, and beside them a line if it leaves them most of their length; of that no more than `longest` periods are used.
template <class R>
bool placeSamples(R& record, Carver& carver, const Qvx8u* begin, int64_t bytes, int branches,
                  int64_t longest = std::numeric_limits<int64_t>::max()) {
  record.line = nullptr;
  if (!placeRows(record, carver, begin, bytes, branches)) return false;
  Carver lineAlone = carver;
  if (!placeLine(record, lineAlone)) return true;
  const int64_t lineBytes = lineAlone.rest() - carver.rest() + Carver::kLine;
  const int64_t used = std::min<int64_t>(record.block, longest);
  Carver withLine = carver;
  if (!placeRows(record, withLine, begin, bytes - lineBytes, branches) || record.block < used - used / 6) {
    record.line = nullptr;
    return placeRows(record, carver, begin, bytes, branches);
  }
  withLine.take<typename R::Kernel>(static_cast<int64_t>(record.rowCount()) * record.stride);
  placeLine(record, withLine);
  constexpr int64_t kBefore = kVectorElements<typename R::Kernel>;
  std::fill_n(record.line - kBefore, kBefore + lineLen(record), typename R::Kernel{});
  return true;
}

template <class R> void layOut(R& record, Carver& carver, const Qvx8u* begin, int64_t bytes, int tapsLen, const Factors& f) {
  record.tapsLen = tapsLen;
  record.ratio = Ratio::of(tapsLen, f);
  if constexpr (Lanewise<typename R::Kernel>::kPays) {
    record.groupCount = laneGroups<typename R::Kernel>(record.ratio);
    if (record.groupCount > 0) {
      Carver inOneRow = carver;
      record.rowLen = record.ratio.down;
      placeTaps(record, inOneRow);
      constexpr bool kConverts = !std::is_same_v<typename R::Sample, typename R::Kernel>;
      if (placeRows(record, inOneRow, begin, bytes, kConverts ? record.ratio.up : 1)) return;
      record.groupCount = 0;
    }
  }
  record.rowLen = 1;
  placeTaps(record, carver);
  const int branches = std::min(record.ratio.up, 16);
  if constexpr (kHasSpectra<R>) {
    Carver withSpectra = carver;
    const auto rows = static_cast<int64_t>(record.rowCount());
    const int64_t history = (record.ratio.delayLen + rows - 1) / rows;
    const int64_t most = kSumsBytes / int64_t{sizeof(typename R::Kernel)} / branches;
    using Spectra = RowSpectra<typename R::Kernel>;
    record.spectra = withSpectra.take<Spectra>(1);
    Spectra made;
    made.place(record.ratio, rows, history, most, withSpectra, bytes - (withSpectra.rest() - begin));
    if (made.isPlaced() && placeSamples(record, withSpectra, begin, bytes, branches, made.block()) &&
        made.takes(std::min<int64_t>(record.block, made.block()))) {
      *record.spectra = made;
      return;
    }
    record.spectra = nullptr;
  }
  placeSamples(record, carver, begin, bytes, branches);
}

}  // namespace qvx::fir
