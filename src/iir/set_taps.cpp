// Replaces the taps of a running filter.
#include "iir/init.h"

using namespace qvx;
using namespace qvx::iir;

namespace {

QvxStatus checkAsFloats(const QvxsIIRState32sc_16sc* state) {
  constexpr Magics kMagics = QvxsIIRState_32fc::kMagics;
  return checkRecord(state, kMagics.direct, kMagics.biQuad);
}

// Contract: reports a mismatch even where it did its work.
template <class State, class Taps> QvxStatus setIntegerTaps(const Taps* taps, State* state, QvxStatus ofState, int tapsFactor) {
  if (isNull(taps)) return qvxStatNullPtr;
  if (ofState != qvxStatOk) return ofState;
  const Form form = state->isDirect() ? Form::kDirect : Form::kBiQuad;
  const int n = state->isDirect() ? state->order : state->numBq;
  return withFloatTaps(taps, tapsOf(form, n), tapsFactor, [state](const auto* converted) {
    setTaps(*state, converted);
    return qvxStatContextMismatch;
  });
}

}  // namespace

QvxStatus qvxsIIRSetTaps32s_16s(const Qvx32s* taps, QvxsIIRState32s_16s* state, int tapsFactor) {
  return setIntegerTaps(taps, state, checkState(state), tapsFactor);
}

// Contract: these two accept the identities of other records.
QvxStatus qvxsIIRSetTaps32sc_16sc(const Qvx32sc* taps, QvxsIIRState32sc_16sc* state, int tapsFactor) {
  return setIntegerTaps(taps, state, checkAsFloats(state), tapsFactor);
}

QvxStatus qvxsIIRSetTaps32sc_16sc32fc(const Qvx32fc* taps, QvxsIIRState32sc_16sc* state) {
  if (isNull(taps)) return qvxStatNullPtr;
  const QvxStatus status = checkAsFloats(state);
  return status == qvxStatOk ? setTaps(*state, taps) : status;
}

// clang-format off
QvxStatus qvxsIIRSetTaps_32f(const Qvx32f* t, QvxsIIRState_32f* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps_32fc(const Qvx32fc* t, QvxsIIRState_32fc* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps32f_16s(const Qvx32f* t, QvxsIIRState32f_16s* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps32fc_16sc(const Qvx32fc* t, QvxsIIRState32fc_16sc* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps32s_16s32f(const Qvx32f* t, QvxsIIRState32s_16s* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps_64f(const Qvx64f* t, QvxsIIRState_64f* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps_64fc(const Qvx64fc* t, QvxsIIRState_64fc* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps64f_32f(const Qvx64f* t, QvxsIIRState64f_32f* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps64fc_32fc(const Qvx64fc* t, QvxsIIRState64fc_32fc* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps64f_32s(const Qvx64f* t, QvxsIIRState64f_32s* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps64fc_32sc(const Qvx64fc* t, QvxsIIRState64fc_32sc* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps64f_16s(const Qvx64f* t, QvxsIIRState64f_16s* s) { return replaceTaps(t, s); }
QvxStatus qvxsIIRSetTaps64fc_16sc(const Qvx64fc* t, QvxsIIRState64fc_16sc* s) { return replaceTaps(t, s); }
// clang-format on
