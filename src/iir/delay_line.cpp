// Delay lines read and written.
#include "iir/init.h"

using namespace qvx;
using namespace qvx::iir;

QvxStatus qvxsIIRSetDlyLine64f_DF1_32s(QvxsIIRState64f_32s* s, const Qvx32s* d) { return setDelayLine<Takes::kDf1>(s, d); }

QvxStatus qvxsIIRGetDlyLine64f_DF1_32s(QvxsIIRState64f_32s* s, Qvx32s* d) {
  const QvxStatus status = isNull(d) ? qvxStatNullPtr : checkState<Takes::kDf1>(s);
  return status == qvxStatOk ? qvxsConvert_64f32s_Sfs(s->line, d, s->order, qvxRoundNearestEven, 0) : status;
}

// clang-format off
QvxStatus qvxsIIRGetDlyLine_32f(QvxsIIRState_32f* s, Qvx32f* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine_32fc(QvxsIIRState_32fc* s, Qvx32fc* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine32f_16s(QvxsIIRState32f_16s* s, Qvx32f* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine32fc_16sc(QvxsIIRState32fc_16sc* s, Qvx32fc* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine32s_16s(QvxsIIRState32s_16s* s, Qvx32f* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine32sc_16sc(QvxsIIRState32sc_16sc* s, Qvx32fc* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine_64f(QvxsIIRState_64f* s, Qvx64f* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine_64fc(QvxsIIRState_64fc* s, Qvx64fc* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine64f_32f(QvxsIIRState64f_32f* s, Qvx64f* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine64fc_32fc(QvxsIIRState64fc_32fc* s, Qvx64fc* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine64f_32s(QvxsIIRState64f_32s* s, Qvx64f* d) { return getDelayLine<Takes::kAllButDf1>(s, d); }
QvxStatus qvxsIIRGetDlyLine64fc_32sc(QvxsIIRState64fc_32sc* s, Qvx64fc* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine64f_16s(QvxsIIRState64f_16s* s, Qvx64f* d) { return getDelayLine(s, d); }
QvxStatus qvxsIIRGetDlyLine64fc_16sc(QvxsIIRState64fc_16sc* s, Qvx64fc* d) { return getDelayLine(s, d); }

QvxStatus qvxsIIRSetDlyLine_32f(QvxsIIRState_32f* s, const Qvx32f* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine_32fc(QvxsIIRState_32fc* s, const Qvx32fc* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine32f_16s(QvxsIIRState32f_16s* s, const Qvx32f* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine32fc_16sc(QvxsIIRState32fc_16sc* s, const Qvx32fc* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine32s_16s(QvxsIIRState32s_16s* s, const Qvx32f* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine32sc_16sc(QvxsIIRState32sc_16sc* s, const Qvx32fc* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine_64f(QvxsIIRState_64f* s, const Qvx64f* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine_64fc(QvxsIIRState_64fc* s, const Qvx64fc* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine64f_32f(QvxsIIRState64f_32f* s, const Qvx64f* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine64fc_32fc(QvxsIIRState64fc_32fc* s, const Qvx64fc* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine64f_32s(QvxsIIRState64f_32s* s, const Qvx64f* d) { return setDelayLine<Takes::kAllButDf1>(s, d); }
QvxStatus qvxsIIRSetDlyLine64fc_32sc(QvxsIIRState64fc_32sc* s, const Qvx64fc* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine64f_16s(QvxsIIRState64f_16s* s, const Qvx64f* d) { return setDelayLine(s, d); }
QvxStatus qvxsIIRSetDlyLine64fc_16sc(QvxsIIRState64fc_16sc* s, const Qvx64fc* d) { return setDelayLine(s, d); }
// clang-format on
