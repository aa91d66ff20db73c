// A record's life: built in a caller's block or in one of its own, its delay line read and written, released.
//
// Taps are tested last, when the caller's pointer is stored already.
#pragma once

#include "iir/taps.h"

namespace qvx::iir {

template <class T> size_t lineValues(const Record<T>& s) { return static_cast<size_t>(s.order); }

// A null line means zeros. Integers (64f_32s in the direct form I) are converted.
template <class T, class Line> void setDelay(Record<T>& s, const Line* line) {
  for (size_t i = 0; i < lineValues(s); ++i) s.line[i] = isNull(line) ? T{} : T(line[i]);
}

template <class State, Form kForm, class Line>
QvxStatus init(State** state, const InternalOf<State>* taps, int n, const Line* line, Qvx8u* block) {
  if (isNull(state) || isNull(taps) || isNull(block)) return qvxStatNullPtr;
  if (n < 1) return qvxStatBadIIROrder;
  initRecord(state, block, [=](State& s, Carver& carver) {
    layOut(s, carver, kForm, n);
    setDelay(s, line);
    return qvxStatOk;
  });
  return setTaps(**state, taps);
}

template <class State, Form kForm, class Line>
QvxStatus initAlloc(State** state, const InternalOf<State>* taps, int n, const Line* line) {
  if (isNull(state) || isNull(taps)) return qvxStatNullPtr;
  if (n < 1) return qvxStatBadIIROrder;
  return allocateRecord(state, stateSize<State>(kForm, n),
                        [=](State** made, Qvx8u* block) { return init<State, kForm>(made, taps, n, line, block); });
}

// The same for integer taps.
template <class State, Form kForm, class Taps, class Line>
QvxStatus init(State** state, const Taps* taps, int n, int tapsFactor, const Line* line, Qvx8u* block) {
  if (isNull(state) || isNull(taps) || isNull(block)) return qvxStatNullPtr;
  if (n < 1) return qvxStatBadIIROrder;
  return withFloatTaps(taps, tapsOf(kForm, n), tapsFactor,
                       [=](const auto* converted) { return init<State, kForm>(state, converted, n, line, block); });
}
template <class State, Form kForm, class Taps, class Line>
QvxStatus initAlloc(State** state, const Taps* taps, int n, int tapsFactor, const Line* line) {
  if (isNull(state) || isNull(taps)) return qvxStatNullPtr;
  if (n < 1) return qvxStatBadIIROrder;
  return withFloatTaps(taps, tapsOf(kForm, n), tapsFactor,
                       [=](const auto* converted) { return initAlloc<State, kForm>(state, converted, n, line); });
}

// Which forms of a stem a function takes.
enum class Takes { kAll, kAllButDf1, kDf1 };

template <Takes kTakes = Takes::kAll, class State> QvxStatus checkState(const State* state) {
  constexpr Magics kMagics = State::kMagics;
  if constexpr (kTakes == Takes::kDf1) return checkRecord(state, kMagics.df1);
  else if constexpr (kTakes == Takes::kAllButDf1 || kMagics.df1 == 0) return checkRecord(state, kMagics.direct, kMagics.biQuad);
  else return checkRecord(state, kMagics.direct, kMagics.biQuad, kMagics.df1);
}

template <class State> QvxStatus release(State* state) {
  return releaseRecord(state, checkState(state), InCallersBlock::kUntouched);
}

template <Takes kTakes = Takes::kAll, class State> QvxStatus getDelayLine(State* state, InternalOf<State>* line) {
  const QvxStatus status = isNull(line) ? qvxStatNullPtr : checkState<kTakes>(state);
  if (status == qvxStatOk) std::copy_n(state->line, lineValues(*state), line);
  return status;
}

template <Takes kTakes = Takes::kAll, class State, class Line> QvxStatus setDelayLine(State* state, const Line* line) {
  const QvxStatus status = checkState<kTakes>(state);
  if (status == qvxStatOk) setDelay(*state, line);
  return status;
}

template <class State> QvxStatus replaceTaps(const InternalOf<State>* taps, State* state) {
  const QvxStatus status = isNull(taps) ? qvxStatNullPtr : checkState(state);
  return status == qvxStatOk ? setTaps(*state, taps) : status;
}

}  // namespace qvx::iir
