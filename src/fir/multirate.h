// What a multi-rate record is filled with: the taps, for each way to filter, and the delay line.
#pragma once

#include "fir/multirate_layout.h"

namespace qvx::fir {

// ---- taps and delay line

// f(branch, number) for all branches.
template <class F> void forEachBranch(const Ratio& q, F f) {
  Branch branch = q.branch();
  for (int j = 0; j < q.up; ++j, branch.advance(q.up, q.down)) f(branch, j);
}

// put(table, lane, t, tap) for the taps of all lanes, in tables of tableLen elements for each group.
template <class R, class T, class Put>
void spreadTaps(R& record, const typename R::Kernel* reversed, T* table, int64_t tableLen, Put put) {
  using C = typename R::Kernel;
  constexpr int kLanes = Lanewise<C>::kLanes;
  const Ratio& q = record.ratio;
  LanePlace<C>* order = record.order;
  LaneGroup* groups = record.groups;
  Branch branch = q.branch();
  forEachLaneGroup<kLanes>(q, [&](const LaneGroup& group) {
    *groups++ = group;
    std::fill_n(table, tableLen, T{});
    std::fill_n(order, kLanes, LanePlace<C>{});
    const int64_t first = branch.sample;
    for (int lane = 0; lane < group.count; ++lane, branch.advance(q.up, q.down)) {
      order[lane] = static_cast<LanePlace<C>>(branch.sample - first);
      for (int t = 0; t < q.taps; ++t) put(table, lane, t, q.tapOf(reversed, record.tapsLen, branch.tap, t));
    }
    table += tableLen;
    order += kLanes;
  });
}
// A real tap of each lane, or its real part twice, and in a vector after it its imaginary part.
template <class C> void spreadTaps(MultirateFloat<C>& record) {
  using L = Lanewise<C>;
  constexpr int kParts = PartsOf<C>::kCount;
  spreadTaps(record, record.taps, parts(record.branches), int64_t{record.ratio.taps} * L::kEach,
             [](Part<C>* table, int lane, int t, C tap) {
               for (int part = 0; part < kParts; ++part) {
                 std::fill_n(table + t * L::kEach + (part * L::kLanes + lane) * kParts, kParts, parts(&tap)[part]);
               }
             });
}
template <class S, class T> void spreadTaps(MultirateInteger<S, T>& record) {
  using L = Lanewise<S>;
  if constexpr (L::kPays) {
    spreadTaps(record, record.shortTaps, record.branches, int64_t{L::steps(record.ratio.taps)} * L::kEach,
               [](Qvx16sc* table, int lane, int t, S tap) { parts(table + t / 2 * L::kEach + lane)[t % 2] = tap; });
  }
}

template <class R> void setLineTaps(R& record, const typename R::Kernel* reversed) {
  using C = typename R::Kernel;
  if (isNull(record.line)) return;
  const Ratio& q = record.ratio;
  const auto count = static_cast<size_t>(q.taps);
  const size_t before = dotsLen<C>(count) - count;
  const size_t each = dotsTapsLen<C>(count);
  std::fill_n(record.lineTaps, each * static_cast<size_t>(q.up), C{});
  forEachBranch(q, [&](const Branch& branch, int number) {
    C* const taps = record.lineTaps + static_cast<size_t>(number) * each;
    for (int t = 0; t < q.taps; ++t) {
      setDotsTap(q.tapOf(reversed, record.tapsLen, branch.tap, t), before + static_cast<size_t>(t), taps);
    }
  });
}

template <class C> void dealTaps(MultirateFloat<C>& record) {
  if (record.groupCount > 0) return spreadTaps(record);
  const Ratio& q = record.ratio;
  C* to = record.branches;
  const int apart = areTapsByRow(static_cast<size_t>(q.taps), record.rowCount()) ? q.down : 1;
  forEachBranch(q, [&](const Branch& branch, int) {
    for (int row = 0; row < apart; ++row) {
      for (int t = row; t < q.taps; t += apart) *to++ = q.tapOf(record.taps, record.tapsLen, branch.tap, t);
    }
  });
  setLineTaps(record, record.taps);
}
template <class S, class T> void dealTaps(MultirateInteger<S, T>& record) {
  if (record.groupCount > 0) return spreadTaps(record);
  const Ratio& q = record.ratio;
  Qvx16sc* to = record.branches;
  forEachBranch(q, [&](const Branch& branch, int) {
    for (int row = 0; row < std::min(q.down, q.taps); ++row) {
      size_t n = 0;
      for (int t = row; t < q.taps; t += q.down) record.group[n++] = q.tapOf(record.shortTaps, record.tapsLen, branch.tap, t);
      to += 2 * paired(record.group, n, to).count;
    }
  });
  setLineTaps(record, record.shortTaps);
}

template <class C> void setSpectra(MultirateFloat<C>& record) {
  const Ratio& q = record.ratio;
  const auto rows = static_cast<int64_t>(record.rowCount());
  record.spectra->setTaps([&](auto put) {
    forEachBranch(q, [&](const Branch& branch, int number) {
      for (int t = 0; t < q.taps; ++t) {
        const int64_t place = branch.sample - q.taps + 1 + t + int64_t{record.history} * rows;
        put(number, place % rows, place / rows, q.tapOf(record.taps, record.tapsLen, branch.tap, t));
      }
    });
  });
}

template <class C, class H> QvxStatus setTaps(MultirateFloat<C>& record, const H* taps) {
  copyReversed(taps, static_cast<size_t>(record.tapsLen), record.taps);
  dealTaps(record);
  if (!isNull(record.spectra)) setSpectra(record);
  return qvxStatOk;
}

// The caller's line is newest first; none stands for zeros.
template <class R, class S> void setMultirateDelay(const R& record, const S* newestFirst) {
  using C = typename R::Kernel;
  for (int64_t i = 0; i < record.ratio.delayLen; ++i) {
    *record.sample(-1 - i) = isNull(newestFirst) ? C{} : elementAs<C>(newestFirst[i]);
  }
}
template <class R, class S> void getMultirateDelay(const R& record, S* newestFirst) {
  for (int64_t i = 0; i < record.ratio.delayLen; ++i) newestFirst[i] = elementAs<S>(*record.sample(-1 - i));
}

// ---- building

// The most bytes from the beginning of a block to the first line after its record, over all addresses of the block. The regions
// share what is left in that case, wherever the block lies: with a row or a transform longer, outputs would be rounded otherwise.
template <class R> constexpr int64_t mostToFirstLine() {
  constexpr int64_t kAlign = Carver::kRecordAlignment;
  constexpr int64_t kSize = sizeof(R);
  return std::max(up<Carver::kLine>(kSize), up<Carver::kLine>(kSize + kAlign) - kAlign) + kAlign - 1;
}

template <class S, class SetTaps>
QvxStatus buildMultirate(MultirateState<S>** ppState, Qvx8u* block, int tapsLen, const Factors& f,
                         const typename S::Sample* delay, SetTaps setTaps) {
  const int64_t bytes = multirateBytes<typename S::Kernel>(tapsLen, f);
  return initRecord(ppState, block, [&](MultirateState<S>& record, Carver& carver) {
    record.magic = S::kMultirateId;
    const Qvx8u* const begin = carver.takeLines<Qvx8u>(0);
    layOut(record, carver, begin, bytes - mostToFirstLine<MultirateState<S>>(), tapsLen, f);
    setTaps(record);
    setMultirateDelay(record, delay);
    return qvxStatOk;
  });
}

}  // namespace qvx::fir
