// Filters without a record, in integers.
#include "fir/build.h"
#include "fir/direct.h"
#include "fir/wrapping.h"

using namespace qvx;
using namespace qvx::fir;

namespace {

template <class H, class T>
QvxStatus wrapping(const T* src, T* dst, int numIters, const H* taps, int tapsLen, int tapsFactor, T* delay, int* index,
                   int scaleFactor) {
  const int64_t places = placesOf(tapsFactor, scaleFactor);
  const auto n = static_cast<size_t>(tapsLen);
  return Stateless<H, T>{taps, tapsLen, delay, index}.forEachSample(
      src, dst, numIters, [=](const T* window, const H* p) { return wrappingDot(window, p, n, places); });
}

// ---- 16-bit taps

// With a record for the time of the call, whose delay line, newest first, is the caller's before and after it.
QvxStatus block(const Qvx16s* src, Qvx16s* dst, int numIters, const Qvx16s* taps, int tapsLen, Qvx16s* delay, int* index,
                int scaleFactor) {
  using S = QvxsFIRState32s_16s;
  const Stateless<Qvx16s, Qvx16s> caller = {taps, tapsLen, delay, index};
  const QvxStatus checked = caller.check(numIters, src, dst);
  if (checked != qvxStatOk) return checked;
  const Footprint footprint = footprintOf<S>(tapsLen);
  const auto init = [&](S** ppState, Qvx8u* memory) {
    return initRecord(ppState, memory, [&](S& state, Carver& carver) {
      layOut(state, carver, tapsLen, footprint.transform);
      setReduced(state, taps, kFraction, [](Qvx16s tap) { return Qvx32s{tap}; });
      setDelay(state, delay + *index);
      return qvxStatOk;
    });
  };
  return withTemporaryRecord<S>(footprint.bytes, init, [&](S& state) {
    const QvxStatus status = direct(state, src, dst, elements(numIters), scaleFactor);
    copyReversed(state.delay.window, static_cast<size_t>(tapsLen), delay);
    *index = 0;
    return status;
  });
}

QvxStatus oneSample(const Qvx16s* x, Qvx16s* y, const Qvx16s* taps, int tapsLen, Qvx16s* delay, int* index, int scaleFactor) {
  const int64_t places = placesOf(kFraction, scaleFactor);
  return Stateless<Qvx16s, Qvx16s>{taps, tapsLen, delay, index}.forEachSample(
      x, y, 1, [=](const Qvx16s* window, const Qvx16s* p) { return scaledDot(window, p, tapsLen, places); });
}

}  // namespace

// clang-format off
QvxStatus qvxsFIR32s_Direct_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int n, const Qvx32s* h, int len, int tf, Qvx16s* d, int* i, int sf) { return wrapping(src, dst, n, h, len, tf, d, i, sf); }
QvxStatus qvxsFIR32s_Direct_16s_ISfs(Qvx16s* v, int n, const Qvx32s* h, int len, int tf, Qvx16s* d, int* i, int sf) { return wrapping(v, v, n, h, len, tf, d, i, sf); }
QvxStatus qvxsFIROne32s_Direct_16s_Sfs(Qvx16s x, Qvx16s* dst, const Qvx32s* h, int len, int tf, Qvx16s* d, int* i, int sf) { return wrapping(&x, dst, 1, h, len, tf, d, i, sf); }
QvxStatus qvxsFIR32sc_Direct_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, int n, const Qvx32sc* h, int len, int tf, Qvx16sc* d, int* i, int sf) { return wrapping(src, dst, n, h, len, tf, d, i, sf); }
QvxStatus qvxsFIR32sc_Direct_16sc_ISfs(Qvx16sc* v, int n, const Qvx32sc* h, int len, int tf, Qvx16sc* d, int* i, int sf) { return wrapping(v, v, n, h, len, tf, d, i, sf); }
QvxStatus qvxsFIROne32sc_Direct_16sc_Sfs(Qvx16sc x, Qvx16sc* dst, const Qvx32sc* h, int len, int tf, Qvx16sc* d, int* i, int sf) { return wrapping(&x, dst, 1, h, len, tf, d, i, sf); }
QvxStatus qvxsFIR_Direct_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int n, const Qvx16s* h, int len, Qvx16s* d, int* i, int sf) { return block(src, dst, n, h, len, d, i, sf); }
QvxStatus qvxsFIR_Direct_16s_ISfs(Qvx16s* v, int n, const Qvx16s* h, int len, Qvx16s* d, int* i, int sf) { return block(v, v, n, h, len, d, i, sf); }
QvxStatus qvxsFIROne_Direct_16s_Sfs(Qvx16s x, Qvx16s* dst, const Qvx16s* h, int len, Qvx16s* d, int* i, int sf) { return oneSample(&x, dst, h, len, d, i, sf); }
QvxStatus qvxsFIROne32s_Direct_16s_ISfs(Qvx16s* v, const Qvx32s* h, int len, int tf, Qvx16s* d, int* i, int sf) { return wrapping(v, v, 1, h, len, tf, d, i, sf); }
QvxStatus qvxsFIROne32sc_Direct_16sc_ISfs(Qvx16sc* v, const Qvx32sc* h, int len, int tf, Qvx16sc* d, int* i, int sf) { return wrapping(v, v, 1, h, len, tf, d, i, sf); }
QvxStatus qvxsFIROne_Direct_16s_ISfs(Qvx16s* v, const Qvx16s* h, int len, Qvx16s* d, int* i, int sf) { return oneSample(v, v, h, len, d, i, sf); }
// clang-format on
