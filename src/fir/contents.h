// Stores taps and delay line in a record.
#pragma once

#include "fir/state.h"
#include "frame/power.h"

namespace qvx::fir {

template <class C, class H> QvxStatus setTaps(FloatRecord<C>& record, const H* taps) {
  const auto n = static_cast<size_t>(record.tapsLen);
  copyReversed(taps, n, record.taps);
  record.settle();
  if constexpr (kHasPartitions<C>) {
    if (!isNull(record.partitions)) record.partitions->hasTaps = false;
  }
  return isNull(record.spectral.spec) ? qvxStatOk : record.spectral.setTaps(record.taps, n);
}

// ---- integer filters

// The places by which integer taps are shifted right to become 16 bits.
inline int placesFor(const Qvx16s* taps, size_t n) { return std::find(taps, taps + n, INT16_MIN) != taps + n ? 1 : 0; }
inline int placesFor(const Qvx32s* taps, size_t n) {
  constexpr int32_t kMost = 32766;
  int32_t most = 0;
  for (size_t i = 0; i < n; ++i) {
    if (taps[i] != INT32_MIN) most = std::max(most, std::abs(taps[i]));
  }
  int places = 0;
  while (most >> places > kMost) ++places;
  return places;
}
// The exponent of the power of two that divides the largest of float taps to 16384 to 32767.
inline int factorFor(const Qvx32f* taps, size_t n) {
  constexpr float kMost = 32767;
  float most = 0;
  for (size_t i = 0; i < n; ++i) most = std::max(most, std::abs(taps[i]));
  int factor = 0;
  if (most > kMost) {
    for (; most > kMost && factor < 33; most /= 2) ++factor;
  } else {
    for (most *= 2; most < kMost && factor >= -32; most *= 2) --factor;
  }
  return factor;
}

template <class To, class From, class F> To eachPart(From v, F f) {
  if constexpr (PartsOf<To>::kCount == 2) return {f(v.re), f(v.im)};
  else return f(v);
}

// Stores the taps as the integers that reduce() makes of their parts; they count times 2^tapsFactor.
template <class R, class H, class F> void setReduced(R& record, const H* taps, int64_t tapsFactor, F reduce) {
  using S = typename R::Kernel;
  using T = typename R::Taps;
  const auto n = static_cast<size_t>(record.tapsLen);
  record.tapsFactor = static_cast<int>(tapsFactor);
  record.isPaired = true;
  for (size_t i = 0; i < n; ++i) {
    const T tap = eachPart<T>(taps[n - 1 - i], reduce);
    record.taps[i] = tap;
    record.shortTaps[i] = elementAs<S>(tap);
    if constexpr (PartsOf<S>::kCount == 2) record.isPaired = record.isPaired && record.shortTaps[i].im != INT16_MIN;
  }
  dealTaps(record);
}
template <class S, class T> void dealTaps(IntegerRecord<S, T>& record) {
  paired(record.shortTaps, static_cast<size_t>(record.tapsLen), record.pairs);
}

template <class R>
concept HoldsIntegers = std::is_integral_v<Part<typename R::Kernel>>;

template <HoldsIntegers R, class H> QvxStatus setTaps(R& record, const H* taps, int tapsFactor) {
  const auto n = static_cast<size_t>(record.tapsLen) * PartsOf<H>::kCount;
  const int places = placesFor(parts(taps), n);
  setReduced(record, taps, int64_t{tapsFactor} + places, [=](auto part) { return static_cast<decltype(part)>(part >> places); });
  return qvxStatOk;
}
template <HoldsIntegers R, class H>
requires std::is_floating_point_v<Part<H>> QvxStatus setTaps(R& record, const H* taps) {
  const int factor = factorFor(parts(taps), static_cast<size_t>(record.tapsLen) * PartsOf<H>::kCount);
  const double scale = powerOfTwo<double>(-factor);
  setReduced(record, taps, factor, [=](float part) {
    const double tap = part * scale;
    if (!(std::abs(tap) < 0x1p62)) return Qvx32s{0};  // NaN, or too large for an integer
    return static_cast<Qvx32s>(static_cast<int64_t>(tap + std::copysign(0.5, tap)));
  });
  return qvxStatOk;
}

// The caller's delay line is newest first; a null pointer means zeros.
template <class S> void setDelay(S& state, const typename S::Sample* newestFirst) {
  state.delay.index = 0;
  if constexpr (!std::is_integral_v<Part<typename S::Kernel>>) state.forgetSamples();
  copyReversed(newestFirst, static_cast<size_t>(state.tapsLen), state.delay.window);
}

}  // namespace qvx::fir
