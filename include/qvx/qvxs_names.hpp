// The names of statuses, and what they say.
// Written by tools/cpp_face.py from the C headers and traits/: change those and run it.
// clang-format off
#ifndef QVX_QVXS_NAMES_HPP
#define QVX_QVXS_NAMES_HPP

#include <qvx/qvxdefs.h>

namespace qvx {

inline const char* describe(QvxStatus status) {
  switch (status) {
    case qvxStatOk: return "qvxStatOk";
    case qvxWarnSqrtNegArg: return "qvxWarnSqrtNegArg: a source element was negative";
    case qvxWarnInvZero: return "qvxWarnInvZero: a source element was zero";
    case qvxWarnEvenMask: return "qvxWarnEvenMask: an even median mask was reduced by one";
    case qvxWarnDivByZero: return "qvxWarnDivByZero: a divisor element was zero";
    case qvxWarnLnZeroArg: return "qvxWarnLnZeroArg: a source element was zero";
    case qvxWarnLnNegArg: return "qvxWarnLnNegArg: a source element was negative";
    case qvxWarnNotFinite: return "qvxWarnNotFinite: a source element was infinite or a NaN";
    case qvxWarnBadBitLen: return "qvxWarnBadBitLen: a bit length was outside 0 to 32";
    case qvxStatBadArg: return "qvxStatBadArg: an enumerated argument or an index is outside its set";
    case qvxStatBadSize: return "qvxStatBadSize: a length is below 1, or does not fit";
    case qvxStatBadRange: return "qvxStatBadRange: unknown crossing type";
    case qvxStatNullPtr: return "qvxStatNullPtr: a required pointer is null";
    case qvxStatNoMem: return "qvxStatNoMem: an allocation failed";
    case qvxStatDivByZero: return "qvxStatDivByZero: a constant divisor or a leading tap is zero";
    case qvxStatBadParam: return "qvxStatBadParam: a distribution parameter is not above 0";
    case qvxStatBadOrderIndex: return "qvxStatBadOrderIndex: the stored delay-line index is negative";
    case qvxStatBadFFTOrder: return "qvxStatBadFFTOrder: transform order out of range";
    case qvxStatBadFFTFlag: return "qvxStatBadFFTFlag: transform flag out of its set";
    case qvxStatContextMismatch: return "qvxStatContextMismatch: not a record of this kind";
    case qvxStatBadLevels: return "qvxStatBadLevels: lower level above upper level";
    case qvxStatNegThreshold: return "qvxStatNegThreshold: negative level where magnitudes are compared";
    case qvxStatBadDlyIndex: return "qvxStatBadDlyIndex: delay-line index outside the taps";
    case qvxStatBadIIROrder: return "qvxStatBadIIROrder: order or number of sections below 1";
    case qvxStatBadTapsLen: return "qvxStatBadTapsLen: number of taps below 1";
    case qvxStatBadRelFreq: return "qvxStatBadRelFreq: relative frequency outside [0, 1)";
    case qvxStatBadMRPhase: return "qvxStatBadMRPhase: multi-rate phase outside 0 to factor - 1";
    case qvxStatBadMRFactor: return "qvxStatBadMRFactor: multi-rate factor below 1";
    case qvxStatBadSamplePhase: return "qvxStatBadSamplePhase: sampling phase outside 0 to factor - 1";
    case qvxStatBadSampleFactor: return "qvxStatBadSampleFactor: sampling factor below 1";
    case qvxStatNegShift: return "qvxStatNegShift: negative shift count";
    case qvxStatBadMaskSize: return "qvxStatBadMaskSize: window size below 1";
    case qvxStatBadWTOffset: return "qvxStatBadWTOffset: wavelet offset below -1";
    case qvxStatBadJaehneMagn: return "qvxStatBadJaehneMagn: negative magnitude";
    case qvxStatBadKaiserAlpha: return "qvxStatBadKaiserAlpha: alpha too large";
    case qvxStatBadTriangleAsym: return "qvxStatBadTriangleAsym: triangle: asymmetry out of range";
    case qvxStatBadTrianglePhase: return "qvxStatBadTrianglePhase: triangle: phase out of range";
    case qvxStatBadTriangleFreq: return "qvxStatBadTriangleFreq: triangle: frequency out of range";
    case qvxStatBadTriangleMagn: return "qvxStatBadTriangleMagn: triangle: magnitude not above 0";
    case qvxStatBadTonePhase: return "qvxStatBadTonePhase: tone: phase out of range";
    case qvxStatBadToneFreq: return "qvxStatBadToneFreq: tone: frequency out of range";
    case qvxStatBadToneMagn: return "qvxStatBadToneMagn: tone: magnitude not above 0";
    case qvxStatBadChannels: return "qvxStatBadChannels: number of channels below 1";
    case qvxStatBadMatrixStep: return "qvxStatBadMatrixStep: kept for the numbering; no function returns it";
    case qvxStatBadSparsePos: return "qvxStatBadSparsePos: tap positions negative or not increasing";
    case qvxStatSingularMatrix: return "qvxStatSingularMatrix: kept for the numbering; no function returns it";
    case qvxStatBadGenOrder: return "qvxStatBadGenOrder: filter order outside 1 to 12";
    case qvxStatBadCutoff: return "qvxStatBadCutoff: cut-off frequency outside its open range";
    case qvxStatBadGenParam: return "qvxStatBadGenParam: ripple or filter type out of range";
    case qvxStatBadRoundMode: return "qvxStatBadRoundMode: round mode outside the function's set";
  }
  return "an unknown status";
}

}  // namespace qvx

#endif
