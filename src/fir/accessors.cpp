// Taps and delay lines of the records.
#include "fir/accessors.h"

using namespace qvx;
using namespace qvx::fir;

// clang-format off
QvxStatus qvxsFIRGetTaps_32f(const QvxsFIRState_32f* s, Qvx32f* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps_32fc(const QvxsFIRState_32fc* s, Qvx32fc* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps32f_16s(const QvxsFIRState32f_16s* s, Qvx32f* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps32fc_16sc(const QvxsFIRState32fc_16sc* s, Qvx32fc* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps_64f(const QvxsFIRState_64f* s, Qvx64f* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps_64fc(const QvxsFIRState_64fc* s, Qvx64fc* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps64f_32f(const QvxsFIRState64f_32f* s, Qvx64f* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps64fc_32fc(const QvxsFIRState64fc_32fc* s, Qvx64fc* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps64f_32s(const QvxsFIRState64f_32s* s, Qvx64f* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps64fc_32sc(const QvxsFIRState64fc_32sc* s, Qvx64fc* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps64f_16s(const QvxsFIRState64f_16s* s, Qvx64f* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps64fc_16sc(const QvxsFIRState64fc_16sc* s, Qvx64fc* h) { return getTaps(s, h); }
QvxStatus qvxsFIRGetTaps32s_16s(const QvxsFIRState32s_16s* s, Qvx32s* h, int* tf) { return getTaps(s, h, tf); }
QvxStatus qvxsFIRGetTaps32sc_16sc(const QvxsFIRState32sc_16sc* s, Qvx32sc* h, int* tf) { return getTaps(s, h, tf); }
QvxStatus qvxsFIRGetTaps_16s(const QvxsFIRState_16s* s, Qvx16s* h, int* tf) { return getTaps(s, h, tf); }
QvxStatus qvxsFIRSetTaps_32f(const Qvx32f* h, QvxsFIRState_32f* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps_32fc(const Qvx32fc* h, QvxsFIRState_32fc* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps32f_16s(const Qvx32f* h, QvxsFIRState32f_16s* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps32fc_16sc(const Qvx32fc* h, QvxsFIRState32fc_16sc* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps_64f(const Qvx64f* h, QvxsFIRState_64f* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps_64fc(const Qvx64fc* h, QvxsFIRState_64fc* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps64f_32f(const Qvx64f* h, QvxsFIRState64f_32f* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps64fc_32fc(const Qvx64fc* h, QvxsFIRState64fc_32fc* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps64f_32s(const Qvx64f* h, QvxsFIRState64f_32s* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps64fc_32sc(const Qvx64fc* h, QvxsFIRState64fc_32sc* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps64f_16s(const Qvx64f* h, QvxsFIRState64f_16s* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps64fc_16sc(const Qvx64fc* h, QvxsFIRState64fc_16sc* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps32s_16s(const Qvx32s* h, QvxsFIRState32s_16s* s, int tf) { return replaceTaps(h, s, tf); }
QvxStatus qvxsFIRSetTaps32sc_16sc(const Qvx32sc* h, QvxsFIRState32sc_16sc* s, int tf) { return replaceTaps(h, s, tf); }
QvxStatus qvxsFIRSetTaps_16s(const Qvx16s* h, QvxsFIRState_16s* s, int tf) { return replaceTaps(h, s, tf); }
QvxStatus qvxsFIRGetDlyLine_32f(const QvxsFIRState_32f* s, Qvx32f* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine_32fc(const QvxsFIRState_32fc* s, Qvx32fc* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine32f_16s(const QvxsFIRState32f_16s* s, Qvx16s* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine32fc_16sc(const QvxsFIRState32fc_16sc* s, Qvx16sc* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine_64f(const QvxsFIRState_64f* s, Qvx64f* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine_64fc(const QvxsFIRState_64fc* s, Qvx64fc* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine64f_32f(const QvxsFIRState64f_32f* s, Qvx32f* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine64fc_32fc(const QvxsFIRState64fc_32fc* s, Qvx32fc* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine64f_32s(const QvxsFIRState64f_32s* s, Qvx32s* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine64fc_32sc(const QvxsFIRState64fc_32sc* s, Qvx32sc* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine64f_16s(const QvxsFIRState64f_16s* s, Qvx16s* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine64fc_16sc(const QvxsFIRState64fc_16sc* s, Qvx16sc* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine32s_16s(const QvxsFIRState32s_16s* s, Qvx16s* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine32sc_16sc(const QvxsFIRState32sc_16sc* s, Qvx16sc* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRGetDlyLine_16s(const QvxsFIRState_16s* s, Qvx16s* d) { return getDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine_32f(QvxsFIRState_32f* s, const Qvx32f* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine_32fc(QvxsFIRState_32fc* s, const Qvx32fc* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine32f_16s(QvxsFIRState32f_16s* s, const Qvx16s* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine32fc_16sc(QvxsFIRState32fc_16sc* s, const Qvx16sc* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine_64f(QvxsFIRState_64f* s, const Qvx64f* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine_64fc(QvxsFIRState_64fc* s, const Qvx64fc* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine64f_32f(QvxsFIRState64f_32f* s, const Qvx32f* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine64fc_32fc(QvxsFIRState64fc_32fc* s, const Qvx32fc* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine64f_32s(QvxsFIRState64f_32s* s, const Qvx32s* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine64fc_32sc(QvxsFIRState64fc_32sc* s, const Qvx32sc* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine64f_16s(QvxsFIRState64f_16s* s, const Qvx16s* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine64fc_16sc(QvxsFIRState64fc_16sc* s, const Qvx16sc* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine32s_16s(QvxsFIRState32s_16s* s, const Qvx16s* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine32sc_16sc(QvxsFIRState32sc_16sc* s, const Qvx16sc* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRSetDlyLine_16s(QvxsFIRState_16s* s, const Qvx16s* d) { return setDelayLine(s, d); }
QvxStatus qvxsFIRGetTaps_32s(const QvxsFIRState_32s* s, Qvx32s* h) { return getSingleRateTaps(s, h); }
QvxStatus qvxsFIRSetTaps_32s(const Qvx32s* h, QvxsFIRState_32s* s) { return replaceSingleRateTaps(h, s); }
QvxStatus qvxsFIRGetTaps32s_16s32f(const QvxsFIRState32s_16s* s, Qvx32f* h) { return getFloatTaps(s, h); }
QvxStatus qvxsFIRGetTaps32sc_16sc32fc(const QvxsFIRState32sc_16sc* s, Qvx32fc* h) { return getFloatTaps(s, h); }
QvxStatus qvxsFIRSetTaps32s_16s32f(const Qvx32f* h, QvxsFIRState32s_16s* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRSetTaps32sc_16sc32fc(const Qvx32fc* h, QvxsFIRState32sc_16sc* s) { return replaceTaps(h, s); }
// clang-format on
