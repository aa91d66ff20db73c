// What convolution and correlation come down to: a band of sums of products,
//
//   y[n] = conj(taps[0]) * x[from + n] + conj(taps[1]) * x[from + n + 1] + ...    for n = 0 .. outputs - 1,
//
// x being zero outside its length. A convolution has one operand reversed for its taps.
#pragma once

#include <algorithm>
#include <cstdint>

#include "frame/check.h"

namespace qvx::correlation {

template <class C> struct Band {
  const C* x;
  size_t length;
  const C* taps;
  size_t count;     // of taps
  bool isReversed;  // the last tap first; real ones only
  int64_t from;
  size_t outputs;

  // All taps and their windows are the same: the correlation of a vector with itself.
  bool isOfItself() const { return x == taps && length == count && from == 0 && !isReversed; }
};

// Calls correlate(band, y) for the outputs whose windows meet x, and sets the others to zero unless memory was out.
template <class C, class Correlate> QvxStatus whereMeeting(Band<C> band, C* y, Correlate correlate) {
  const auto outputs = static_cast<int64_t>(band.outputs);
  const int64_t first = std::clamp<int64_t>(1 - static_cast<int64_t>(band.count) - band.from, 0, outputs);
  const int64_t last = std::clamp<int64_t>(static_cast<int64_t>(band.length) - band.from, first, outputs);
  band.from += first;
  band.outputs = static_cast<size_t>(last - first);
  const QvxStatus status = first == last ? qvxStatOk : correlate(band, y + first);
  if (status != qvxStatOk) return status;
  std::fill(y, y + first, C{});
  std::fill(y + last, y + outputs, C{});
  return qvxStatOk;
}

// Direct, where sums of whole numbers have to be exact, or whichever way is faster.
enum class Way { kDirect, kAny };

// y must not overlap the operands, and every output's window meets x. Direct bands take no memory.
template <class C> QvxStatus correlateBand(const Band<C>& band, C* y, Way way);

extern template QvxStatus correlateBand(const Band<Qvx32f>&, Qvx32f*, Way);
extern template QvxStatus correlateBand(const Band<Qvx64f>&, Qvx64f*, Way);
extern template QvxStatus correlateBand(const Band<Qvx32fc>&, Qvx32fc*, Way);
extern template QvxStatus correlateBand(const Band<Qvx64fc>&, Qvx64fc*, Way);

}  // namespace qvx::correlation
