// Multi-rate filters without a record.
#include "fir/direct.h"
#include "fir/multirate_filter.h"
#include "fir/streams.h"
#include "fir/wrapping.h"

using namespace qvx;
using namespace qvx::fir;

namespace {

// What a caller keeps; all pointers are tested first.
template <class H, class T> struct Caller {
  const H* taps;
  int tapsLen;
  Factors factors;
  T* delay;

  QvxStatus check(int numIters, const T* src, const T* dst) const {
    const QvxStatus status = qvx::check(numIters, src, dst, taps, delay);
    return status == qvxStatOk ? factors.check(tapsLen) : status;
  }
  int64_t samples(int numIters) const { return int64_t{numIters} * factors.down; }
  bool needsCopy(const T* src, const T* dst) const { return src == dst && factors.up > factors.down; }
};

// With a record for the time of the call, of the kind that S has. setTaps(record); finish(sums, n, outputs), integer sums times
// 2^places.
template <class S, class H, class T, class SetTaps, class Finish>
QvxStatus withRecord(const Caller<H, T>& caller, const T* src, T* dst, int numIters, int64_t places, SetTaps setTaps,
                     Finish finish) {
  const QvxStatus status = caller.check(numIters, src, dst);
  if (status != qvxStatOk) return status;
  const Factors& f = caller.factors;
  const auto init = [&](MultirateState<S>** pp, Qvx8u* block) {
    return buildMultirate<S>(pp, block, caller.tapsLen, f, caller.delay, setTaps);
  };
  const int64_t bytes = multirateBytes<typename S::Kernel>(caller.tapsLen, f);
  return withTemporaryRecord<MultirateState<S>>(bytes, init, [&](MultirateState<S>& record) {
    const auto filter = [&](const T* samples) {
      resample(record, samples, dst, elements(numIters) * static_cast<size_t>(record.ratio.step), places, finish);
      getMultirateDelay(record, caller.delay);
    };
    if (caller.needsCopy(src, dst)) return onCopy(src, caller.samples(numIters), filter);
    filter(src);
    return qvxStatOk;
  });
}

// Floats: samples of the taps' type, or of another.
template <class S, class H, class T>
QvxStatus block(const T* src, T* dst, int numIters, const Caller<H, T>& caller, int scaleFactor = 0) {
  using F = Part<H>;
  const F unit = unitOf<F>(scaleFactor);
  const auto finish = [=](const H* sums, size_t n, T* outputs) {
    const F* from = parts(sums);
    auto* to = parts(outputs);
    for (size_t i = 0; i < n * PartsOf<T>::kCount; ++i) to[i] = rounded<Part<T>>(from[i] * unit);
  };
  const auto set = [&](MultirateState<S>& record) {
    // Spectra for one call take the time of a few blocks.
    const int64_t periods = int64_t{numIters} * record.ratio.step;
    if (!isNull(record.spectra) && periods < 4 * record.spectra->block()) record.spectra = nullptr;
    setTaps(record, caller.taps);
  };
  return withRecord<S>(caller, src, dst, numIters, 0, set, finish);
}

// 16-bit taps, as they are.
QvxStatus fractions(const Qvx16s* src, Qvx16s* dst, int numIters, const Caller<Qvx16s, Qvx16s>& caller, int scaleFactor) {
  using S = QvxsFIRState_16s;
  const auto setAsGiven = [&](MultirateState<S>& record) {
    setReduced(record, caller.taps, kFraction, [](Qvx16s tap) { return tap; });
  };
  return withRecord<S>(caller, src, dst, numIters, int64_t{kFraction} - scaleFactor, setAsGiven,
                       [](const Qvx16s*, size_t, Qvx16s*) {});
}

// 32-bit taps, output by output: samples and taps in memory of the call's own.
template <class H, class T>
QvxStatus wrapping(const T* src, T* dst, int numIters, const Caller<H, T>& caller, int tapsFactor, int scaleFactor) {
  const QvxStatus status = caller.check(numIters, src, dst);
  if (status != qvxStatOk) return status;
  const Factors& f = caller.factors;
  const int64_t places = placesOf(tapsFactor, scaleFactor);
  const int64_t line = f.delayLen(caller.tapsLen);
  const int64_t count = caller.samples(numIters);
  const Block memory(caller.tapsLen * int64_t{sizeof(H)} + (line + count) * int64_t{sizeof(T)});
  if (!memory) return qvxStatNoMem;
  auto* taps = reinterpret_cast<H*>(memory.get());
  auto* samples = reinterpret_cast<T*>(taps + caller.tapsLen);
  const TapLists<H> lists = {taps, caller.tapsLen, f.up};
  lists.set(caller.taps, taps);
  std::reverse_copy(caller.delay, caller.delay + line, samples);
  std::copy_n(src, count, samples + line);
  std::reverse_copy(samples + count, samples + count + line, caller.delay);
  forEachOutput(
      lists, f, static_cast<const T*>(samples + line), line, int64_t{numIters} * f.up,
      [=](const T* x, const H* p, int64_t n) { return n > 0 ? wrappingDot(x, p, static_cast<size_t>(n), places) : T{}; },
      [=](int64_t j, T y) { dst[j] = y; });
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsFIRMR_Direct_32f(const Qvx32f* src, Qvx32f* dst, int iters, const Qvx32f* h, int n, int u, int up, int d, int dp, Qvx32f* line) { return block<QvxsFIRState_32f>(src, dst, iters, Caller<Qvx32f, Qvx32f>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR_Direct_32f_I(Qvx32f* v, int iters, const Qvx32f* h, int n, int u, int up, int d, int dp, Qvx32f* line) { return block<QvxsFIRState_32f>(v, v, iters, Caller<Qvx32f, Qvx32f>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR_Direct_32fc(const Qvx32fc* src, Qvx32fc* dst, int iters, const Qvx32fc* h, int n, int u, int up, int d, int dp, Qvx32fc* line) { return block<QvxsFIRState_32fc>(src, dst, iters, Caller<Qvx32fc, Qvx32fc>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR_Direct_32fc_I(Qvx32fc* v, int iters, const Qvx32fc* h, int n, int u, int up, int d, int dp, Qvx32fc* line) { return block<QvxsFIRState_32fc>(v, v, iters, Caller<Qvx32fc, Qvx32fc>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR32f_Direct_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int iters, const Qvx32f* h, int n, int u, int up, int d, int dp, Qvx16s* line, int sf) { return block<QvxsFIRState32f_16s>(src, dst, iters, Caller<Qvx32f, Qvx16s>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR32f_Direct_16s_ISfs(Qvx16s* v, int iters, const Qvx32f* h, int n, int u, int up, int d, int dp, Qvx16s* line, int sf) { return block<QvxsFIRState32f_16s>(v, v, iters, Caller<Qvx32f, Qvx16s>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR32fc_Direct_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, int iters, const Qvx32fc* h, int n, int u, int up, int d, int dp, Qvx16sc* line, int sf) { return block<QvxsFIRState32fc_16sc>(src, dst, iters, Caller<Qvx32fc, Qvx16sc>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR32fc_Direct_16sc_ISfs(Qvx16sc* v, int iters, const Qvx32fc* h, int n, int u, int up, int d, int dp, Qvx16sc* line, int sf) { return block<QvxsFIRState32fc_16sc>(v, v, iters, Caller<Qvx32fc, Qvx16sc>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR_Direct_64f(const Qvx64f* src, Qvx64f* dst, int iters, const Qvx64f* h, int n, int u, int up, int d, int dp, Qvx64f* line) { return block<QvxsFIRState_64f>(src, dst, iters, Caller<Qvx64f, Qvx64f>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR_Direct_64f_I(Qvx64f* v, int iters, const Qvx64f* h, int n, int u, int up, int d, int dp, Qvx64f* line) { return block<QvxsFIRState_64f>(v, v, iters, Caller<Qvx64f, Qvx64f>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR_Direct_64fc(const Qvx64fc* src, Qvx64fc* dst, int iters, const Qvx64fc* h, int n, int u, int up, int d, int dp, Qvx64fc* line) { return block<QvxsFIRState_64fc>(src, dst, iters, Caller<Qvx64fc, Qvx64fc>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR_Direct_64fc_I(Qvx64fc* v, int iters, const Qvx64fc* h, int n, int u, int up, int d, int dp, Qvx64fc* line) { return block<QvxsFIRState_64fc>(v, v, iters, Caller<Qvx64fc, Qvx64fc>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR64f_Direct_32f(const Qvx32f* src, Qvx32f* dst, int iters, const Qvx64f* h, int n, int u, int up, int d, int dp, Qvx32f* line) { return block<QvxsFIRState64f_32f>(src, dst, iters, Caller<Qvx64f, Qvx32f>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR64f_Direct_32f_I(Qvx32f* v, int iters, const Qvx64f* h, int n, int u, int up, int d, int dp, Qvx32f* line) { return block<QvxsFIRState64f_32f>(v, v, iters, Caller<Qvx64f, Qvx32f>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR64fc_Direct_32fc(const Qvx32fc* src, Qvx32fc* dst, int iters, const Qvx64fc* h, int n, int u, int up, int d, int dp, Qvx32fc* line) { return block<QvxsFIRState64fc_32fc>(src, dst, iters, Caller<Qvx64fc, Qvx32fc>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR64fc_Direct_32fc_I(Qvx32fc* v, int iters, const Qvx64fc* h, int n, int u, int up, int d, int dp, Qvx32fc* line) { return block<QvxsFIRState64fc_32fc>(v, v, iters, Caller<Qvx64fc, Qvx32fc>{h, n, {u, up, d, dp}, line}); }
QvxStatus qvxsFIRMR64f_Direct_32s_Sfs(const Qvx32s* src, Qvx32s* dst, int iters, const Qvx64f* h, int n, int u, int up, int d, int dp, Qvx32s* line, int sf) { return block<QvxsFIRState64f_32s>(src, dst, iters, Caller<Qvx64f, Qvx32s>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR64f_Direct_32s_ISfs(Qvx32s* v, int iters, const Qvx64f* h, int n, int u, int up, int d, int dp, Qvx32s* line, int sf) { return block<QvxsFIRState64f_32s>(v, v, iters, Caller<Qvx64f, Qvx32s>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR64fc_Direct_32sc_Sfs(const Qvx32sc* src, Qvx32sc* dst, int iters, const Qvx64fc* h, int n, int u, int up, int d, int dp, Qvx32sc* line, int sf) { return block<QvxsFIRState64fc_32sc>(src, dst, iters, Caller<Qvx64fc, Qvx32sc>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR64fc_Direct_32sc_ISfs(Qvx32sc* v, int iters, const Qvx64fc* h, int n, int u, int up, int d, int dp, Qvx32sc* line, int sf) { return block<QvxsFIRState64fc_32sc>(v, v, iters, Caller<Qvx64fc, Qvx32sc>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR64f_Direct_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int iters, const Qvx64f* h, int n, int u, int up, int d, int dp, Qvx16s* line, int sf) { return block<QvxsFIRState64f_16s>(src, dst, iters, Caller<Qvx64f, Qvx16s>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR64f_Direct_16s_ISfs(Qvx16s* v, int iters, const Qvx64f* h, int n, int u, int up, int d, int dp, Qvx16s* line, int sf) { return block<QvxsFIRState64f_16s>(v, v, iters, Caller<Qvx64f, Qvx16s>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR64fc_Direct_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, int iters, const Qvx64fc* h, int n, int u, int up, int d, int dp, Qvx16sc* line, int sf) { return block<QvxsFIRState64fc_16sc>(src, dst, iters, Caller<Qvx64fc, Qvx16sc>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR64fc_Direct_16sc_ISfs(Qvx16sc* v, int iters, const Qvx64fc* h, int n, int u, int up, int d, int dp, Qvx16sc* line, int sf) { return block<QvxsFIRState64fc_16sc>(v, v, iters, Caller<Qvx64fc, Qvx16sc>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR32s_Direct_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int iters, const Qvx32s* h, int n, int tf, int u, int up, int d, int dp, Qvx16s* line, int sf) { return wrapping(src, dst, iters, Caller<Qvx32s, Qvx16s>{h, n, {u, up, d, dp}, line}, tf, sf); }
QvxStatus qvxsFIRMR32s_Direct_16s_ISfs(Qvx16s* v, int iters, const Qvx32s* h, int n, int tf, int u, int up, int d, int dp, Qvx16s* line, int sf) { return wrapping(v, v, iters, Caller<Qvx32s, Qvx16s>{h, n, {u, up, d, dp}, line}, tf, sf); }
QvxStatus qvxsFIRMR32sc_Direct_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, int iters, const Qvx32sc* h, int n, int tf, int u, int up, int d, int dp, Qvx16sc* line, int sf) { return wrapping(src, dst, iters, Caller<Qvx32sc, Qvx16sc>{h, n, {u, up, d, dp}, line}, tf, sf); }
QvxStatus qvxsFIRMR32sc_Direct_16sc_ISfs(Qvx16sc* v, int iters, const Qvx32sc* h, int n, int tf, int u, int up, int d, int dp, Qvx16sc* line, int sf) { return wrapping(v, v, iters, Caller<Qvx32sc, Qvx16sc>{h, n, {u, up, d, dp}, line}, tf, sf); }
QvxStatus qvxsFIRMR_Direct_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int iters, const Qvx16s* h, int n, int u, int up, int d, int dp, Qvx16s* line, int sf) { return fractions(src, dst, iters, Caller<Qvx16s, Qvx16s>{h, n, {u, up, d, dp}, line}, sf); }
QvxStatus qvxsFIRMR_Direct_16s_ISfs(Qvx16s* v, int iters, const Qvx16s* h, int n, int u, int up, int d, int dp, Qvx16s* line, int sf) { return fractions(v, v, iters, Caller<Qvx16s, Qvx16s>{h, n, {u, up, d, dp}, line}, sf); }
// clang-format on
