// Reading and replacing what a record holds.
#pragma once

#include "fir/multirate.h"

namespace qvx::fir {

// Calls access(record), of one rate or of several, after testing the vectors and the identity.
template <class S, class Access, class... T> QvxStatus onRecord(S* state, Access access, const T*... vectors) {
  if ((isNull(vectors) || ...)) return qvxStatNullPtr;
  const QvxStatus status = checkRecord(state, S::kId, S::kMultirateId);
  if (status != qvxStatOk) return status;
  return isMultirate(state) ? access(asMultirate(state)) : access(*state);
}

template <class R, class H> QvxStatus copyTaps(const R& record, H* taps) {
  copyReversed(record.taps, static_cast<size_t>(record.tapsLen), taps);
  return qvxStatOk;
}
template <class S, class H> QvxStatus getTaps(const S* state, H* taps) {
  return onRecord(
      state, [=](const auto& record) { return copyTaps(record, taps); }, taps);
}
template <class S, class H> QvxStatus getTaps(const S* state, H* taps, int* tapsFactor) {
  const auto access = [=](const auto& record) {
    *tapsFactor = record.tapsFactor;
    return copyTaps(record, taps);
  };
  return onRecord(state, access, taps, tapsFactor);
}
// As floats: what the integers stand for.
template <class S, class H> QvxStatus getFloatTaps(const S* state, H* taps) {
  const auto access = [=](const auto& record) {
    const auto unit = powerOfTwo<float>(record.tapsFactor);
    copyTaps(record, taps);
    for (int i = 0; i < record.tapsLen; ++i) taps[i] = eachPart<H>(taps[i], [=](float part) { return part * unit; });
    return qvxStatOk;
  };
  return onRecord(state, access, taps);
}

template <class S, class H, class... Factor> QvxStatus replaceTaps(const H* taps, S* state, Factor... tapsFactor) {
  return onRecord(
      state, [=](auto& record) { return setTaps(record, taps, tapsFactor...); }, taps);
}

// For records of one rate only.
template <class S, class H> QvxStatus getSingleRateTaps(const S* state, H* taps) {
  const QvxStatus status = isNull(taps) ? qvxStatNullPtr : checkRecord(state, S::kId);
  return status == qvxStatOk ? copyTaps(*state, taps) : status;
}
template <class S, class H> QvxStatus replaceSingleRateTaps(const H* taps, S* state) {
  const QvxStatus status = isNull(taps) ? qvxStatNullPtr : checkRecord(state, S::kId);
  return status == qvxStatOk ? setTaps(*state, taps) : status;
}

template <class S, class T> QvxStatus getDelayLine(const S* state, T* newestFirst) {
  const auto access = [=](const auto& record) {
    if constexpr (std::is_same_v<decltype(record), const S&>) {
      copyReversed(record.delay.window + record.delay.index, static_cast<size_t>(record.tapsLen), newestFirst);
    } else {
      getMultirateDelay(record, newestFirst);
    }
    return qvxStatOk;
  };
  return onRecord(state, access, newestFirst);
}

template <class S, class T> QvxStatus setDelayLine(S* state, const T* newestFirst) {
  return onRecord(state, [=](auto& record) {
    if constexpr (std::is_same_v<decltype(record), S&>) setDelay(record, newestFirst);
    else setMultirateDelay(record, newestFirst);
    return qvxStatOk;
  });
}

}  // namespace qvx::fir
