// Sizes and building of the multi-rate records.
#include "fir/build.h"

using namespace qvx;
using namespace qvx::fir;

namespace {

template <class S> Footprint footprintAt(int tapsLen, const Factors& f) {
  if (f.isOneRate()) return footprintOf<S>(tapsLen);
  return {multirateBytes<typename S::Kernel>(tapsLen, f), {}};
}

template <class S> QvxStatus report(int tapsLen, int up, int down, int* pSize) {
  const Factors f = {up, 0, down, 0};
  if (isNull(pSize)) return qvxStatNullPtr;
  const QvxStatus status = f.checkSizes(tapsLen);
  if (status != qvxStatOk) return status;
  return reportBytes(footprintAt<S>(tapsLen, f).bytes, pSize);
}

template <class S, class H, class... Factor>
QvxStatus buildState(S** ppState, Qvx8u* block, const FilterTransform& transform, const H* taps, int tapsLen, const Factors& f,
                     const typename S::Sample* delay, Factor... factor) {
  if (f.isOneRate()) return build(ppState, block, transform, taps, tapsLen, delay, factor...);
  MultirateState<S>* made = nullptr;
  const QvxStatus status =
      buildMultirate<S>(&made, block, tapsLen, f, delay, [=](MultirateState<S>& record) { setTaps(record, taps, factor...); });
  *ppState = reinterpret_cast<S*>(made);
  return status;
}

template <class S, class H, class... Factor>
QvxStatus initState(S** ppState, const H* taps, int tapsLen, const Factors& f, const typename S::Sample* delay, Qvx8u* block,
                    Factor... factor) {
  if (isNull(ppState) || isNull(taps) || isNull(block)) return qvxStatNullPtr;
  const QvxStatus status = f.check(tapsLen);
  if (status != qvxStatOk) return status;
  return buildState(ppState, block, footprintAt<S>(tapsLen, f).transform, taps, tapsLen, f, delay, factor...);
}

template <class S, class H, class... Factor>
QvxStatus allocateState(S** ppState, const H* taps, int tapsLen, const Factors& f, const typename S::Sample* delay,
                        Factor... factor) {
  if (isNull(ppState) || isNull(taps)) return qvxStatNullPtr;
  const QvxStatus status = f.check(tapsLen);
  if (status != qvxStatOk) return status;
  const Footprint footprint = footprintAt<S>(tapsLen, f);
  return allocateRecord(ppState, footprint.bytes, [&](S** pp, Qvx8u* block) {
    return buildState(pp, block, footprint.transform, taps, tapsLen, f, delay, factor...);
  });
}

}  // namespace

// clang-format off
QvxStatus qvxsFIRMRGetStateSize_32f(int n, int u, int d, int* size) { return report<QvxsFIRState_32f>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize_32fc(int n, int u, int d, int* size) { return report<QvxsFIRState_32fc>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize32f_16s(int n, int u, int d, int* size) { return report<QvxsFIRState32f_16s>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize32fc_16sc(int n, int u, int d, int* size) { return report<QvxsFIRState32fc_16sc>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize_64f(int n, int u, int d, int* size) { return report<QvxsFIRState_64f>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize_64fc(int n, int u, int d, int* size) { return report<QvxsFIRState_64fc>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize64f_32f(int n, int u, int d, int* size) { return report<QvxsFIRState64f_32f>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize64fc_32fc(int n, int u, int d, int* size) { return report<QvxsFIRState64fc_32fc>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize64f_32s(int n, int u, int d, int* size) { return report<QvxsFIRState64f_32s>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize64fc_32sc(int n, int u, int d, int* size) { return report<QvxsFIRState64fc_32sc>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize64f_16s(int n, int u, int d, int* size) { return report<QvxsFIRState64f_16s>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize64fc_16sc(int n, int u, int d, int* size) { return report<QvxsFIRState64fc_16sc>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize32s_16s(int n, int u, int d, int* size) { return report<QvxsFIRState32s_16s>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize32sc_16sc(int n, int u, int d, int* size) { return report<QvxsFIRState32sc_16sc>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize_16s(int n, int u, int d, int* size) { return report<QvxsFIRState_16s>(n, u, d, size); }
QvxStatus qvxsFIRMRInit_32f(QvxsFIRState_32f** s, const Qvx32f* h, int n, int u, int up, int d, int dp, const Qvx32f* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit_32fc(QvxsFIRState_32fc** s, const Qvx32fc* h, int n, int u, int up, int d, int dp, const Qvx32fc* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit32f_16s(QvxsFIRState32f_16s** s, const Qvx32f* h, int n, int u, int up, int d, int dp, const Qvx16s* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit32fc_16sc(QvxsFIRState32fc_16sc** s, const Qvx32fc* h, int n, int u, int up, int d, int dp, const Qvx16sc* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit_64f(QvxsFIRState_64f** s, const Qvx64f* h, int n, int u, int up, int d, int dp, const Qvx64f* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit_64fc(QvxsFIRState_64fc** s, const Qvx64fc* h, int n, int u, int up, int d, int dp, const Qvx64fc* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit64f_32f(QvxsFIRState64f_32f** s, const Qvx64f* h, int n, int u, int up, int d, int dp, const Qvx32f* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit64fc_32fc(QvxsFIRState64fc_32fc** s, const Qvx64fc* h, int n, int u, int up, int d, int dp, const Qvx32fc* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit64f_32s(QvxsFIRState64f_32s** s, const Qvx64f* h, int n, int u, int up, int d, int dp, const Qvx32s* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit64fc_32sc(QvxsFIRState64fc_32sc** s, const Qvx64fc* h, int n, int u, int up, int d, int dp, const Qvx32sc* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit64f_16s(QvxsFIRState64f_16s** s, const Qvx64f* h, int n, int u, int up, int d, int dp, const Qvx16s* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit64fc_16sc(QvxsFIRState64fc_16sc** s, const Qvx64fc* h, int n, int u, int up, int d, int dp, const Qvx16sc* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit32s_16s(QvxsFIRState32s_16s** s, const Qvx32s* h, int n, int tf, int u, int up, int d, int dp, const Qvx16s* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b, tf); }
QvxStatus qvxsFIRMRInit32sc_16sc(QvxsFIRState32sc_16sc** s, const Qvx32sc* h, int n, int tf, int u, int up, int d, int dp, const Qvx16sc* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b, tf); }
QvxStatus qvxsFIRMRInit_16s(QvxsFIRState_16s** s, const Qvx16s* h, int n, int tf, int u, int up, int d, int dp, const Qvx16s* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b, tf); }
QvxStatus qvxsFIRMRInitAlloc_32f(QvxsFIRState_32f** s, const Qvx32f* h, int n, int u, int up, int d, int dp, const Qvx32f* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc_32fc(QvxsFIRState_32fc** s, const Qvx32fc* h, int n, int u, int up, int d, int dp, const Qvx32fc* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc32f_16s(QvxsFIRState32f_16s** s, const Qvx32f* h, int n, int u, int up, int d, int dp, const Qvx16s* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc32fc_16sc(QvxsFIRState32fc_16sc** s, const Qvx32fc* h, int n, int u, int up, int d, int dp, const Qvx16sc* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc_64f(QvxsFIRState_64f** s, const Qvx64f* h, int n, int u, int up, int d, int dp, const Qvx64f* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc_64fc(QvxsFIRState_64fc** s, const Qvx64fc* h, int n, int u, int up, int d, int dp, const Qvx64fc* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc64f_32f(QvxsFIRState64f_32f** s, const Qvx64f* h, int n, int u, int up, int d, int dp, const Qvx32f* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc64fc_32fc(QvxsFIRState64fc_32fc** s, const Qvx64fc* h, int n, int u, int up, int d, int dp, const Qvx32fc* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc64f_32s(QvxsFIRState64f_32s** s, const Qvx64f* h, int n, int u, int up, int d, int dp, const Qvx32s* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc64fc_32sc(QvxsFIRState64fc_32sc** s, const Qvx64fc* h, int n, int u, int up, int d, int dp, const Qvx32sc* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc64f_16s(QvxsFIRState64f_16s** s, const Qvx64f* h, int n, int u, int up, int d, int dp, const Qvx16s* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc64fc_16sc(QvxsFIRState64fc_16sc** s, const Qvx64fc* h, int n, int u, int up, int d, int dp, const Qvx16sc* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc32s_16s(QvxsFIRState32s_16s** s, const Qvx32s* h, int n, int tf, int u, int up, int d, int dp, const Qvx16s* line) { return allocateState(s, h, n, {u, up, d, dp}, line, tf); }
QvxStatus qvxsFIRMRInitAlloc32sc_16sc(QvxsFIRState32sc_16sc** s, const Qvx32sc* h, int n, int tf, int u, int up, int d, int dp, const Qvx16sc* line) { return allocateState(s, h, n, {u, up, d, dp}, line, tf); }
QvxStatus qvxsFIRMRInitAlloc_16s(QvxsFIRState_16s** s, const Qvx16s* h, int n, int tf, int u, int up, int d, int dp, const Qvx16s* line) { return allocateState(s, h, n, {u, up, d, dp}, line, tf); }
QvxStatus qvxsFIRMRGetStateSize32s_16s32f(int n, int u, int d, int* size) { return report<QvxsFIRState32s_16s>(n, u, d, size); }
QvxStatus qvxsFIRMRGetStateSize32sc_16sc32fc(int n, int u, int d, int* size) { return report<QvxsFIRState32sc_16sc>(n, u, d, size); }
QvxStatus qvxsFIRMRInit32s_16s32f(QvxsFIRState32s_16s** s, const Qvx32f* h, int n, int u, int up, int d, int dp, const Qvx16s* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInit32sc_16sc32fc(QvxsFIRState32sc_16sc** s, const Qvx32fc* h, int n, int u, int up, int d, int dp, const Qvx16sc* line, Qvx8u* b) { return initState(s, h, n, {u, up, d, dp}, line, b); }
QvxStatus qvxsFIRMRInitAlloc32s_16s32f(QvxsFIRState32s_16s** s, const Qvx32f* h, int n, int u, int up, int d, int dp, const Qvx16s* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
QvxStatus qvxsFIRMRInitAlloc32sc_16sc32fc(QvxsFIRState32sc_16sc** s, const Qvx32fc* h, int n, int u, int up, int d, int dp, const Qvx16sc* line) { return allocateState(s, h, n, {u, up, d, dp}, line); }
// clang-format on
