// Filtering with a record, in 64-bit floats.
#include "fir/filter.h"

using namespace qvx;
using namespace qvx::fir;

namespace {

// The functions for records of one rate only. In place they never take the transform, even where the record has one.
QvxStatus filterSingleRate(const Qvx32s* src, Qvx32s* dst, int numIters, QvxsFIRState_32s* state, int scaleFactor) {
  const QvxStatus status = checkFilter(state, numIters, src, dst);
  if (status != qvxStatOk) return status;
  if (state->magic != QvxsFIRState_32s::kId) return qvxStatContextMismatch;
  if (src != dst) return filterBlock(*state, src, dst, elements(numIters), scaleFactor);
  state->settle();
  return direct(*state, src, dst, elements(numIters), scaleFactor);
}

}  // namespace

// clang-format off
QvxStatus qvxsFIR_64f(const Qvx64f* src, Qvx64f* dst, int n, QvxsFIRState_64f* s) { return filter(src, dst, n, s); }
QvxStatus qvxsFIR_64f_I(Qvx64f* srcDst, int n, QvxsFIRState_64f* s) { return filterInPlace(srcDst, n, s); }
QvxStatus qvxsFIROne_64f(Qvx64f x, Qvx64f* dst, QvxsFIRState_64f* s) { return filterOne(x, dst, s); }
QvxStatus qvxsFIR_64fc(const Qvx64fc* src, Qvx64fc* dst, int n, QvxsFIRState_64fc* s) { return filter(src, dst, n, s); }
QvxStatus qvxsFIR_64fc_I(Qvx64fc* srcDst, int n, QvxsFIRState_64fc* s) { return filterInPlace(srcDst, n, s); }
QvxStatus qvxsFIROne_64fc(Qvx64fc x, Qvx64fc* dst, QvxsFIRState_64fc* s) { return filterOne(x, dst, s); }
QvxStatus qvxsFIR64f_32f(const Qvx32f* src, Qvx32f* dst, int n, QvxsFIRState64f_32f* s) { return filter(src, dst, n, s); }
QvxStatus qvxsFIR64f_32f_I(Qvx32f* srcDst, int n, QvxsFIRState64f_32f* s) { return filterInPlace(srcDst, n, s); }
QvxStatus qvxsFIROne64f_32f(Qvx32f x, Qvx32f* dst, QvxsFIRState64f_32f* s) { return filterOne(x, dst, s); }
QvxStatus qvxsFIR64fc_32fc(const Qvx32fc* src, Qvx32fc* dst, int n, QvxsFIRState64fc_32fc* s) { return filter(src, dst, n, s); }
QvxStatus qvxsFIR64fc_32fc_I(Qvx32fc* srcDst, int n, QvxsFIRState64fc_32fc* s) { return filterInPlace(srcDst, n, s); }
QvxStatus qvxsFIROne64fc_32fc(Qvx32fc x, Qvx32fc* dst, QvxsFIRState64fc_32fc* s) { return filterOne(x, dst, s); }
QvxStatus qvxsFIR64f_32s_Sfs(const Qvx32s* src, Qvx32s* dst, int n, QvxsFIRState64f_32s* s, int sf) { return filter(src, dst, n, s, sf); }
QvxStatus qvxsFIR64f_32s_ISfs(Qvx32s* srcDst, int n, QvxsFIRState64f_32s* s, int sf) { return filterInPlace(srcDst, n, s, sf); }
QvxStatus qvxsFIROne64f_32s_Sfs(Qvx32s x, Qvx32s* dst, QvxsFIRState64f_32s* s, int sf) { return filterOne(x, dst, s, sf); }
QvxStatus qvxsFIR64fc_32sc_Sfs(const Qvx32sc* src, Qvx32sc* dst, int n, QvxsFIRState64fc_32sc* s, int sf) { return filter(src, dst, n, s, sf); }
QvxStatus qvxsFIR64fc_32sc_ISfs(Qvx32sc* srcDst, int n, QvxsFIRState64fc_32sc* s, int sf) { return filterInPlace(srcDst, n, s, sf); }
QvxStatus qvxsFIROne64fc_32sc_Sfs(Qvx32sc x, Qvx32sc* dst, QvxsFIRState64fc_32sc* s, int sf) { return filterOne(x, dst, s, sf); }
QvxStatus qvxsFIR64f_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int n, QvxsFIRState64f_16s* s, int sf) { return filter(src, dst, n, s, sf); }
QvxStatus qvxsFIR64f_16s_ISfs(Qvx16s* srcDst, int n, QvxsFIRState64f_16s* s, int sf) { return filterInPlace(srcDst, n, s, sf); }
QvxStatus qvxsFIROne64f_16s_Sfs(Qvx16s x, Qvx16s* dst, QvxsFIRState64f_16s* s, int sf) { return filterOne(x, dst, s, sf); }
QvxStatus qvxsFIR64fc_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, int n, QvxsFIRState64fc_16sc* s, int sf) { return filter(src, dst, n, s, sf); }
QvxStatus qvxsFIR64fc_16sc_ISfs(Qvx16sc* srcDst, int n, QvxsFIRState64fc_16sc* s, int sf) { return filterInPlace(srcDst, n, s, sf); }
QvxStatus qvxsFIROne64fc_16sc_Sfs(Qvx16sc x, Qvx16sc* dst, QvxsFIRState64fc_16sc* s, int sf) { return filterOne(x, dst, s, sf); }
QvxStatus qvxsFIR_32s_Sfs(const Qvx32s* src, Qvx32s* dst, int n, QvxsFIRState_32s* s, int sf) { return filterSingleRate(src, dst, n, s, sf); }
QvxStatus qvxsFIR_32s_ISfs(Qvx32s* srcDst, int n, QvxsFIRState_32s* s, int sf) { return filterSingleRate(srcDst, srcDst, n, s, sf); }
QvxStatus qvxsFIROne_32s_Sfs(Qvx32s x, Qvx32s* dst, QvxsFIRState_32s* s, int sf) { return filterOne(x, dst, s, sf); }
// clang-format on
