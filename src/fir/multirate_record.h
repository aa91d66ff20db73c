// The records of multi-rate filters.
//
// Samples are dealt among as many rows as the reduced decimation factor has units, so that those which one tap meets, for one
// output after another, stand side by side: a branch of the filter is a sum of ordinary convolutions of rows. Ratios of large
// numbers with few taps to an output leave them in one row, and vectors go along the outputs (lanewise.h). Calls of few outputs
// that drop most of them, and any of short filters that do, find the samples in their order in a line, and vectors go along the
// taps (dots.h): what is kept between calls moves from the rows to the line when such a call comes, and back when it is another's
// turn.
#pragma once

#include "convolution/dots.h"
#include "convolution/lanewise.h"
#include "fir/contents.h"
#include "fir/ratio.h"
#include "fir/row_spectra.h"

namespace qvx::fir {

template <class C> struct MultirateRecord : RecordHead {
  using Kernel = C;

  int tapsLen;
  Ratio ratio;
  int rowLen;    // of samples in a period that a row takes: 1, or all
  int history;   // samples of a row that come before those of a call
  int block;     // periods of a call at a time
  int stride;    // from one row to the next
  int done;      // periods that the rows still hold, of calls before: they are moved out only when their room is needed
  int firstRow;  // of the sample that the first output's first tap meets, and its place there without those of calls before:
  int firstAt;   // computed ahead, since the four divisions for them would take a call of 64 samples 12 ns
  C* rows;
  // In one row:
  int groupCount;
  LaneGroup* groups;
  LanePlace<C>* order;
  // For outputs one by one:
  C* line;  // null: none
  C* lineTaps;
  Branch first;     // branch
  int linePeriods;  // of the longest such call
  int lineRoom;     // samples that the line takes after those that came before
  int lineDone;     // samples that it still holds, of calls before
  bool mayStay;     // the samples of a call longer than the line may stay where they are,
  bool staysIfFew;  // and those of any call
  bool isInLine;    // what came before is there, not in the rows

  size_t rowCount() const { return static_cast<size_t>(rowLen == 1 ? ratio.down : 1); }
  C* row(size_t i) const { return rows + i * static_cast<size_t>(stride); }
  // Where a row takes the next sample.
  int64_t next() const { return history + int64_t{done} * rowLen; }
  int64_t lineHistory() const { return int64_t{history} * ratio.down; }
  // A sample by its place, counted from the first of a call.
  C* sample(int64_t place) const {
    if (isInLine) return line + lineHistory() + lineDone + place;
    const auto count = static_cast<int64_t>(rowCount());
    const int64_t at = place + next() * count;
    return row(static_cast<size_t>(at % count)) + at / count;
  }
};

template <class C> struct MultirateFloat : MultirateRecord<C> {
  using Kernel = C;
  using Taps = C;
  using Branches = C;
  static constexpr int64_t kPadding = kVectorElements<C>;  // after the samples of a row

  C* taps;  // reversed
  C* branches;
  RowSpectra<C>* spectra;  // null: none
};
template <class S, class T> struct MultirateInteger : MultirateRecord<S> {
  using Kernel = S;
  using Taps = T;
  using Branches = Qvx16sc;
  static constexpr int64_t kPadding = 2 * kVectorElements<S>;

  T* taps;  // reversed, as they were reduced
  int tapsFactor;
  bool isPaired;  // not if -im of a tap has no 16 bits
  S* shortTaps;   // reversed
  S* group;       // the taps of a row
  Qvx16sc* branches;
};

template <class C> MultirateFloat<C> multirateFor(const FloatRecord<C>*);
template <class S, class T> MultirateInteger<S, T> multirateFor(const IntegerRecord<S, T>*);

// What a state's pointer leads to if it has the identity of multi-rate filters.
template <class S> struct MultirateState : decltype(multirateFor(static_cast<S*>(nullptr))) {
  using Sample = typename S::Sample;
  static constexpr uint32_t kId = S::kMultirateId;
};
template <class S> bool isMultirate(const S* state) { return state->magic == S::kMultirateId; }
template <class S> MultirateState<S>& asMultirate(S* state) { return *reinterpret_cast<MultirateState<S>*>(state); }
template <class S> const MultirateState<S>& asMultirate(const S* state) {
  return *reinterpret_cast<const MultirateState<S>*>(state);
}

}  // namespace qvx::fir
