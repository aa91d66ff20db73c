// Reading and replacing what a record holds.
#pragma once

#include "fir/contents.h"

namespace qvx::fir {

template <class S, class... T> QvxStatus checkAccess(const S* state, const T*... vectors) {
  if ((isNull(vectors) || ...)) return qvxStatNullPtr;
  return checkRecord(state, S::kId);
}

template <class S, class H> QvxStatus getTaps(const S* state, H* taps) {
  const QvxStatus status = checkAccess(state, taps);
  if (status == qvxStatOk) copyReversed(state->taps, static_cast<size_t>(state->tapsLen), taps);
  return status;
}
template <class S, class H> QvxStatus getTaps(const S* state, H* taps, int* tapsFactor) {
  const QvxStatus status = checkAccess(state, taps, tapsFactor);
  if (status != qvxStatOk) return status;
  *tapsFactor = state->tapsFactor;
  return getTaps(state, taps);
}
// As floats: what the integers stand for.
template <class S, class H> QvxStatus getFloatTaps(const S* state, H* taps) {
  const QvxStatus status = getTaps(state, taps);
  if (status != qvxStatOk) return status;
  const auto unit = powerOfTwo<float>(state->tapsFactor);
  for (int i = 0; i < state->tapsLen; ++i) taps[i] = eachPart<H>(taps[i], [=](float part) { return part * unit; });
  return status;
}

template <class S, class H, class... Factor> QvxStatus replaceTaps(const H* taps, S* state, Factor... tapsFactor) {
  const QvxStatus status = checkAccess(state, taps);
  if (status != qvxStatOk) return status;
  return setTaps(*state, taps, tapsFactor...);
}

template <class S, class T> QvxStatus getDelayLine(const S* state, T* newestFirst) {
  const QvxStatus status = checkAccess(state, newestFirst);
  if (status != qvxStatOk) return status;
  copyReversed(state->delay.window + state->delay.index, static_cast<size_t>(state->tapsLen), newestFirst);
  return qvxStatOk;
}

template <class S, class T> QvxStatus setDelayLine(S* state, const T* newestFirst) {
  const QvxStatus status = checkAccess(state);
  if (status != qvxStatOk) return status;
  setDelay(*state, newestFirst);
  return qvxStatOk;
}

}  // namespace qvx::fir
