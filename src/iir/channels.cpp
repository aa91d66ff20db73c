// Several vectors, each through a filter of its own.
#include "iir/filter.h"

using namespace qvx;
using namespace qvx::iir;

namespace {

// All records are of the first one's form.
template <class State, class Src, class Dst, class ScaleOf>
QvxStatus eachChannel(Src* const* src, Dst* const* dst, int len, int channels, State* const* states, ScaleOf scaleOf) {
  const uint32_t form = states[0]->magic;
  for (int c = 0; c < channels; ++c) {
    if (isNull(states[c]) || isNull(src[c]) || isNull(dst[c])) return qvxStatNullPtr;
    if (states[c]->magic != form) return qvxStatContextMismatch;
    filterSamples(*states[c], src[c], dst[c], elements(len), scaleOf(c));
  }
  return qvxStatOk;
}

// Contract: the number of channels is tested before the first record, and the direct form is refused.
template <class Src, class Dst>
QvxStatus floats(Src* const* src, Dst* const* dst, int len, int channels, QvxsIIRState_32f* const* states) {
  if (isNull(states) || isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  if (channels < 1) return qvxStatBadChannels;
  constexpr Magics kMagics = QvxsIIRState_32f::kMagics;
  const QvxStatus status = checkRecord(states[0], kMagics.biQuad, kMagics.df1);
  if (status != qvxStatOk) return status;
  return eachChannel(src, dst, len, channels, states, [](int) { return 0; });
}

// Contract: the number of channels is tested after the first record, and refused with the status of a wrong record.
template <class Src, class Dst>
QvxStatus integers(Src* const* src, Dst* const* dst, int len, int channels, QvxsIIRState64f_32s* const* states,
                   const int* scaleFactors) {
  if (isNull(states) || isNull(src) || isNull(dst) || isNull(scaleFactors)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  const QvxStatus status = checkState(states[0]);
  if (status != qvxStatOk) return status;
  if (channels < 1) return qvxStatContextMismatch;
  return eachChannel(src, dst, len, channels, states, [=](int c) { return scaleFactors[c]; });
}

}  // namespace

QvxStatus qvxsIIR_32f_P(const Qvx32f* const* src, Qvx32f* const* dst, int len, int channels, QvxsIIRState_32f* const* states) {
  return floats(src, dst, len, channels, states);
}
QvxStatus qvxsIIR_32f_IP(Qvx32f* const* srcDst, int len, int channels, QvxsIIRState_32f* const* states) {
  return floats(srcDst, srcDst, len, channels, states);
}
QvxStatus qvxsIIR64f_32s_PSfs(const Qvx32s* const* src, Qvx32s* const* dst, int len, int channels,
                              QvxsIIRState64f_32s* const* states, const int* scaleFactors) {
  return integers(src, dst, len, channels, states, scaleFactors);
}
QvxStatus qvxsIIR64f_32s_IPSfs(Qvx32s* const* srcDst, int len, int channels, QvxsIIRState64f_32s* const* states,
                               const int* scaleFactors) {
  return integers(srcDst, srcDst, len, channels, states, scaleFactors);
}
