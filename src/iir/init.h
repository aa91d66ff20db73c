// A record's life: built in a caller's block or in one of its own, its delay line read and written, released.
#pragma once

#include "iir/taps.h"

namespace qvx {

template <class T> size_t lineValues(const IirRecord<T>& s) { return static_cast<size_t>(s.order); }

// Null for zeros. Integers (64f_32s in the direct form I) are converted.
template <class T, class Line> void setLine(IirRecord<T>& s, const Line* line) {
  for (size_t i = 0; i < lineValues(s); ++i) s.line[i] = isNull(line) ? T{} : T(line[i]);
}

template <class State, Form kForm, class Line>
QvxStatus iirInit(State** state, const InternalOf<State>* taps, int n, const Line* line, Qvx8u* block) {
  if (isNull(state) || isNull(taps) || isNull(block)) return qvxStatNullPtr;
  if (n < 1) return qvxStatBadIIROrder;
  State* s = iirPlace<State>(kForm, n, block);
  *state = s;
  setLine(*s, line);
  return setTaps(*s, taps);
}

template <class State, Form kForm, class Line>
QvxStatus iirInitAlloc(State** state, const InternalOf<State>* taps, int n, const Line* line) {
  if (isNull(state) || isNull(taps)) return qvxStatNullPtr;
  if (n < 1) return qvxStatBadIIROrder;
  const int64_t bytes = iirStateSize<State>(kForm, n);
  Block block(bytes > INT32_MAX ? 0 : bytes);
  if (!block) return qvxStatNoMem;
  const QvxStatus status = iirInit<State, kForm>(state, taps, n, line, block.get());
  if (status != qvxStatOk) return status;
  (*state)->ownsBlock = 1;
  block.keep();
  return qvxStatOk;
}

// The same for integer taps.
template <class State, Form kForm, class Taps, class Line>
QvxStatus iirInit(State** state, const Taps* taps, int n, int tapsFactor, const Line* line, Qvx8u* block) {
  if (isNull(state) || isNull(taps) || isNull(block)) return qvxStatNullPtr;
  if (n < 1) return qvxStatBadIIROrder;
  return withFloatTaps(taps, tapsOf(kForm, n), tapsFactor,
                       [=](const auto* converted) { return iirInit<State, kForm>(state, converted, n, line, block); });
}
template <class State, Form kForm, class Taps, class Line>
QvxStatus iirInitAlloc(State** state, const Taps* taps, int n, int tapsFactor, const Line* line) {
  if (isNull(state) || isNull(taps)) return qvxStatNullPtr;
  if (n < 1) return qvxStatBadIIROrder;
  return withFloatTaps(taps, tapsOf(kForm, n), tapsFactor,
                       [=](const auto* converted) { return iirInitAlloc<State, kForm>(state, converted, n, line); });
}

// Which forms of a stem a function takes.
enum class Takes { kAll, kAllButDf1, kDf1 };

template <Takes kTakes = Takes::kAll, class State> QvxStatus checkState(const State* state) {
  constexpr IirMagics kMagics = State::kMagics;
  if constexpr (kTakes == Takes::kDf1) return checkRecord(state, kMagics.df1);
  else if constexpr (kTakes == Takes::kAllButDf1 || kMagics.df1 == 0) return checkRecord(state, kMagics.direct, kMagics.biQuad);
  else return checkRecord(state, kMagics.direct, kMagics.biQuad, kMagics.df1);
}

template <class State> QvxStatus iirFree(State* state) {
  const QvxStatus status = checkState(state);
  if (status == qvxStatOk && state->ownsBlock != 0) qvxFree(state);
  return status;
}

template <Takes kTakes = Takes::kAll, class State> QvxStatus iirGetLine(State* state, InternalOf<State>* line) {
  const QvxStatus status = isNull(line) ? qvxStatNullPtr : checkState<kTakes>(state);
  if (status == qvxStatOk) std::copy_n(state->line, lineValues(*state), line);
  return status;
}

template <Takes kTakes = Takes::kAll, class State, class Line> QvxStatus iirSetLine(State* state, const Line* line) {
  const QvxStatus status = checkState<kTakes>(state);
  if (status == qvxStatOk) setLine(*state, line);
  return status;
}

template <class State> QvxStatus iirSetTaps(const InternalOf<State>* taps, State* state) {
  const QvxStatus status = isNull(taps) ? qvxStatNullPtr : checkState(state);
  return status == qvxStatOk ? setTaps(*state, taps) : status;
}

}  // namespace qvx
