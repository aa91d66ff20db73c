// Sizes, building and releasing of the records.
#include "fir/build.h"

using namespace qvx;
using namespace qvx::fir;

// clang-format off
QvxStatus qvxsFIRGetStateSize_32f(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState_32f>); }
QvxStatus qvxsFIRGetStateSize_32fc(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState_32fc>); }
QvxStatus qvxsFIRGetStateSize32f_16s(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState32f_16s>); }
QvxStatus qvxsFIRGetStateSize32fc_16sc(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState32fc_16sc>); }
QvxStatus qvxsFIRGetStateSize_64f(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState_64f>); }
QvxStatus qvxsFIRGetStateSize_64fc(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState_64fc>); }
QvxStatus qvxsFIRGetStateSize64f_32f(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState64f_32f>); }
QvxStatus qvxsFIRGetStateSize64fc_32fc(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState64fc_32fc>); }
QvxStatus qvxsFIRGetStateSize64f_32s(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState64f_32s>); }
QvxStatus qvxsFIRGetStateSize64fc_32sc(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState64fc_32sc>); }
QvxStatus qvxsFIRGetStateSize64f_16s(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState64f_16s>); }
QvxStatus qvxsFIRGetStateSize64fc_16sc(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState64fc_16sc>); }
QvxStatus qvxsFIRGetStateSize32s_16s(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState32s_16s>); }
QvxStatus qvxsFIRGetStateSize32sc_16sc(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState32sc_16sc>); }
QvxStatus qvxsFIRGetStateSize_16s(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState_16s>); }
QvxStatus qvxsFIRInit_32f(QvxsFIRState_32f** s, const Qvx32f* h, int n, const Qvx32f* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState_32f>, s, h, n, d, b); }
QvxStatus qvxsFIRInit_32fc(QvxsFIRState_32fc** s, const Qvx32fc* h, int n, const Qvx32fc* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState_32fc>, s, h, n, d, b); }
QvxStatus qvxsFIRInit32f_16s(QvxsFIRState32f_16s** s, const Qvx32f* h, int n, const Qvx16s* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState32f_16s>, s, h, n, d, b); }
QvxStatus qvxsFIRInit32fc_16sc(QvxsFIRState32fc_16sc** s, const Qvx32fc* h, int n, const Qvx16sc* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState32fc_16sc>, s, h, n, d, b); }
QvxStatus qvxsFIRInit_64f(QvxsFIRState_64f** s, const Qvx64f* h, int n, const Qvx64f* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState_64f>, s, h, n, d, b); }
QvxStatus qvxsFIRInit_64fc(QvxsFIRState_64fc** s, const Qvx64fc* h, int n, const Qvx64fc* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState_64fc>, s, h, n, d, b); }
QvxStatus qvxsFIRInit64f_32f(QvxsFIRState64f_32f** s, const Qvx64f* h, int n, const Qvx32f* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState64f_32f>, s, h, n, d, b); }
QvxStatus qvxsFIRInit64fc_32fc(QvxsFIRState64fc_32fc** s, const Qvx64fc* h, int n, const Qvx32fc* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState64fc_32fc>, s, h, n, d, b); }
QvxStatus qvxsFIRInit64f_32s(QvxsFIRState64f_32s** s, const Qvx64f* h, int n, const Qvx32s* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState64f_32s>, s, h, n, d, b); }
QvxStatus qvxsFIRInit64fc_32sc(QvxsFIRState64fc_32sc** s, const Qvx64fc* h, int n, const Qvx32sc* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState64fc_32sc>, s, h, n, d, b); }
QvxStatus qvxsFIRInit64f_16s(QvxsFIRState64f_16s** s, const Qvx64f* h, int n, const Qvx16s* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState64f_16s>, s, h, n, d, b); }
QvxStatus qvxsFIRInit64fc_16sc(QvxsFIRState64fc_16sc** s, const Qvx64fc* h, int n, const Qvx16sc* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState64fc_16sc>, s, h, n, d, b); }
QvxStatus qvxsFIRInit32s_16s(QvxsFIRState32s_16s** s, const Qvx32s* h, int n, int tf, const Qvx16s* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState32s_16s>, s, h, n, d, b, tf); }
QvxStatus qvxsFIRInit32sc_16sc(QvxsFIRState32sc_16sc** s, const Qvx32sc* h, int n, int tf, const Qvx16sc* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState32sc_16sc>, s, h, n, d, b, tf); }
QvxStatus qvxsFIRInit_16s(QvxsFIRState_16s** s, const Qvx16s* h, int n, int tf, const Qvx16s* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState_16s>, s, h, n, d, b, tf); }
QvxStatus qvxsFIRInitAlloc_32f(QvxsFIRState_32f** s, const Qvx32f* h, int n, const Qvx32f* d) { return initAlloc(footprintOf<QvxsFIRState_32f>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc_32fc(QvxsFIRState_32fc** s, const Qvx32fc* h, int n, const Qvx32fc* d) { return initAlloc(footprintOf<QvxsFIRState_32fc>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc32f_16s(QvxsFIRState32f_16s** s, const Qvx32f* h, int n, const Qvx16s* d) { return initAlloc(footprintOf<QvxsFIRState32f_16s>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc32fc_16sc(QvxsFIRState32fc_16sc** s, const Qvx32fc* h, int n, const Qvx16sc* d) { return initAlloc(footprintOf<QvxsFIRState32fc_16sc>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc_64f(QvxsFIRState_64f** s, const Qvx64f* h, int n, const Qvx64f* d) { return initAlloc(footprintOf<QvxsFIRState_64f>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc_64fc(QvxsFIRState_64fc** s, const Qvx64fc* h, int n, const Qvx64fc* d) { return initAlloc(footprintOf<QvxsFIRState_64fc>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc64f_32f(QvxsFIRState64f_32f** s, const Qvx64f* h, int n, const Qvx32f* d) { return initAlloc(footprintOf<QvxsFIRState64f_32f>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc64fc_32fc(QvxsFIRState64fc_32fc** s, const Qvx64fc* h, int n, const Qvx32fc* d) { return initAlloc(footprintOf<QvxsFIRState64fc_32fc>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc64f_32s(QvxsFIRState64f_32s** s, const Qvx64f* h, int n, const Qvx32s* d) { return initAlloc(footprintOf<QvxsFIRState64f_32s>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc64fc_32sc(QvxsFIRState64fc_32sc** s, const Qvx64fc* h, int n, const Qvx32sc* d) { return initAlloc(footprintOf<QvxsFIRState64fc_32sc>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc64f_16s(QvxsFIRState64f_16s** s, const Qvx64f* h, int n, const Qvx16s* d) { return initAlloc(footprintOf<QvxsFIRState64f_16s>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc64fc_16sc(QvxsFIRState64fc_16sc** s, const Qvx64fc* h, int n, const Qvx16sc* d) { return initAlloc(footprintOf<QvxsFIRState64fc_16sc>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc32s_16s(QvxsFIRState32s_16s** s, const Qvx32s* h, int n, int tf, const Qvx16s* d) { return initAlloc(footprintOf<QvxsFIRState32s_16s>, s, h, n, d, tf); }
QvxStatus qvxsFIRInitAlloc32sc_16sc(QvxsFIRState32sc_16sc** s, const Qvx32sc* h, int n, int tf, const Qvx16sc* d) { return initAlloc(footprintOf<QvxsFIRState32sc_16sc>, s, h, n, d, tf); }
QvxStatus qvxsFIRInitAlloc_16s(QvxsFIRState_16s** s, const Qvx16s* h, int n, int tf, const Qvx16s* d) { return initAlloc(footprintOf<QvxsFIRState_16s>, s, h, n, d, tf); }
QvxStatus qvxsFIRFree_32f(QvxsFIRState_32f* s) { return release(s); }
QvxStatus qvxsFIRFree_32fc(QvxsFIRState_32fc* s) { return release(s); }
QvxStatus qvxsFIRFree32f_16s(QvxsFIRState32f_16s* s) { return release(s); }
QvxStatus qvxsFIRFree32fc_16sc(QvxsFIRState32fc_16sc* s) { return release(s); }
QvxStatus qvxsFIRFree_64f(QvxsFIRState_64f* s) { return release(s); }
QvxStatus qvxsFIRFree_64fc(QvxsFIRState_64fc* s) { return release(s); }
QvxStatus qvxsFIRFree64f_32f(QvxsFIRState64f_32f* s) { return release(s); }
QvxStatus qvxsFIRFree64fc_32fc(QvxsFIRState64fc_32fc* s) { return release(s); }
QvxStatus qvxsFIRFree64f_32s(QvxsFIRState64f_32s* s) { return release(s); }
QvxStatus qvxsFIRFree64fc_32sc(QvxsFIRState64fc_32sc* s) { return release(s); }
QvxStatus qvxsFIRFree64f_16s(QvxsFIRState64f_16s* s) { return release(s); }
QvxStatus qvxsFIRFree64fc_16sc(QvxsFIRState64fc_16sc* s) { return release(s); }
QvxStatus qvxsFIRFree32s_16s(QvxsFIRState32s_16s* s) { return release(s); }
QvxStatus qvxsFIRFree32sc_16sc(QvxsFIRState32sc_16sc* s) { return release(s); }
QvxStatus qvxsFIRFree_16s(QvxsFIRState_16s* s) { return release(s); }
QvxStatus qvxsFIRInit_32s(QvxsFIRState_32s** s, const Qvx32s* h, int n, const Qvx32s* d, Qvx8u* b) { return init(footprintOfIntegerTaps, s, h, n, d, b); }
QvxStatus qvxsFIRInitAlloc_32s(QvxsFIRState_32s** s, const Qvx32s* h, int n, const Qvx32s* d) { return initAlloc(footprintOfIntegerTaps, s, h, n, d); }
QvxStatus qvxsFIRGetStateSize_32s(int n, int* size) { return reportSize(n, size, footprintOfIntegerTaps); }
QvxStatus qvxsFIRFree_32s(QvxsFIRState_32s* s) { return releaseRecord(s, checkRecord(s, QvxsFIRState_32s::kId), InCallersBlock::kUntouched); }
QvxStatus qvxsFIRInit32s_16s32f(QvxsFIRState32s_16s** s, const Qvx32f* h, int n, const Qvx16s* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState32s_16s>, s, h, n, d, b); }
QvxStatus qvxsFIRInit32sc_16sc32fc(QvxsFIRState32sc_16sc** s, const Qvx32fc* h, int n, const Qvx16sc* d, Qvx8u* b) { return init(footprintOf<QvxsFIRState32sc_16sc>, s, h, n, d, b); }
QvxStatus qvxsFIRInitAlloc32s_16s32f(QvxsFIRState32s_16s** s, const Qvx32f* h, int n, const Qvx16s* d) { return initAlloc(footprintOf<QvxsFIRState32s_16s>, s, h, n, d); }
QvxStatus qvxsFIRInitAlloc32sc_16sc32fc(QvxsFIRState32sc_16sc** s, const Qvx32fc* h, int n, const Qvx16sc* d) { return initAlloc(footprintOf<QvxsFIRState32sc_16sc>, s, h, n, d); }
QvxStatus qvxsFIRGetStateSize32s_16s32f(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState32s_16s>); }
QvxStatus qvxsFIRGetStateSize32sc_16sc32fc(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState32sc_16sc>); }
QvxStatus qvxsFIRStreamGetStateSize_16s(int n, int* size) { return reportSize(n, size, footprintOfStream16s); }
QvxStatus qvxsFIRStreamGetStateSize_32f(int n, int* size) { return reportSize(n, size, footprintOf<QvxsFIRState_32f>); }
// clang-format on
