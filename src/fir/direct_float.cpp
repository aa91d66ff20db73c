// Filters without a record, in floats.
#include "fir/build.h"
#include "fir/direct.h"
#include "stats/dot_product.h"

using namespace qvx;
using namespace qvx::fir;

namespace {

// ---- samples of the taps' type: fewer taps than kLimit by themselves, others with a record for the time of the call

template <class S, class Run>
QvxStatus withRecord(const Stateless<typename S::Kernel, typename S::Sample>& caller, size_t left, Run run) {
  const Footprint footprint = footprintOf<S>(caller.tapsLen);
  const auto transform = isWorthTransform<S>(caller.tapsLen, left) ? footprint.transform : FilterTransform{};
  const auto init = [&](S** state, Qvx8u* block) { return build(state, block, transform, caller.taps, caller.tapsLen, nullptr); };
  return withTemporaryRecord<S>(footprint.bytes, init, [&](S& state) {
    auto* const line = caller.delay + *caller.index;
    std::copy_n(line, caller.tapsLen, state.delay.window);
    const QvxStatus status = run(state);
    state.settle();
    std::copy_n(state.delay.window, caller.tapsLen, line);
    return status;
  });
}

template <int kLimit, class T> void filterShort(const Stateless<T, T>& caller, const T* src, T* dst, size_t n) {
  constexpr size_t V = kVectorElements<T>;
  const auto taps = static_cast<size_t>(caller.tapsLen);
  const size_t old = taps - 1;
  T p[kLimit];
  copyReversed(caller.taps, taps, p);
  DelayLine<T> line = {caller.delay, *caller.index};
  // The outputs that need old samples; all outputs if the others would be less than a vector.
  const size_t head = n < old + V ? n : old;
  if (head > 0) {
    T x[2 * kLimit + V];
    // At the last index the samples begin at 0: this form has stored the newest ones only there.
    std::copy_n(line.window + (line.index + 1) % caller.tapsLen, old, x);
    std::copy_n(src, head, x + old);
    if (head < V) std::fill_n(x + old + head, V - head, T{});
    convolve(x, p, taps, head, dst, callOf(n));
  }
  if (head < n) convolve(src, p, taps, n - head, dst + head, callOf(n));
  for (size_t i = 0; i < std::min(n, old); ++i) line.push(src[i], caller.tapsLen);
  if (n > old) {
    std::copy_n(src + n - old, old, line.window);
    line.index = caller.tapsLen - 1;
  }
  *caller.index = line.index;
}

// The delay line is tested last.
template <class T> QvxStatus checkBlock(const Stateless<T, T>& caller, const T* src, const T* dst, int numIters) {
  const QvxStatus status = check(numIters, src, dst);
  if (status != qvxStatOk) return status;
  if (isNull(caller.taps)) return qvxStatNullPtr;
  if (caller.tapsLen < 1) return qvxStatBadTapsLen;
  if (isNull(caller.delay) || isNull(caller.index)) return qvxStatNullPtr;
  return checkIndex(caller.tapsLen, caller.index);
}

template <class S, int kLimit, class T>
QvxStatus block(const T* src, T* dst, int numIters, const T* taps, int tapsLen, T* delay, int* index) {
  const Stateless<T, T> caller = {taps, tapsLen, delay, index};
  const QvxStatus status = checkBlock(caller, src, dst, numIters);
  if (status != qvxStatOk) return status;
  const size_t n = elements(numIters);
  if (tapsLen >= kLimit) return withRecord<S>(caller, n, [=](S& state) { return filterBlock(state, src, dst, n, 0); });
  filterShort<kLimit>(caller, src, dst, n);
  return qvxStatOk;
}

template <class S, class T> QvxStatus inPlace(T* srcDst, int numIters, const T* taps, int tapsLen, T* delay, int* index) {
  const Stateless<T, T> caller = {taps, tapsLen, delay, index};
  const QvxStatus status = checkBlock(caller, srcDst, srcDst, numIters);
  if (status != qvxStatOk) return status;
  const size_t n = elements(numIters);
  return withRecord<S>(caller, n, [=](S& state) { return filterBlock(state, srcDst, srcDst, n, 0); });
}

template <class T> QvxStatus oneSample(const T* x, T* y, const T* taps, int tapsLen, T* delay, int* index) {
  const Stateless<T, T> caller = {taps, tapsLen, delay, index};
  return caller.forEachSample(x, y, 1, [=](const T* window, const T* p) { return dot(window, p, tapsLen); });
}

// ---- samples of another type: one by one

template <class H, class T>
QvxStatus converting(const T* src, T* dst, int numIters, const H* taps, int tapsLen, T* delay, int* index, int scaleFactor = 0) {
  using F = Part<H>;
  const F unit = unitOf<F>(scaleFactor);
  const auto finish = [=](double sum) { return rounded<Part<T>>(static_cast<F>(sum) * unit); };
  const auto n = static_cast<size_t>(tapsLen);
  return Stateless<H, T>{taps, tapsLen, delay, index}.forEachSample(src, dst, numIters, [=](const T* window, const H* p) -> T {
    if constexpr (PartsOf<T>::kCount == 1) {
      return finish(reduce(FloatSum<F, Products>(), n, source(window), source(p)));
    } else {
      const auto sum = reduce(ComplexProducts<F>(), 2 * n, source(window), source(p));
      return {finish(sum.re), finish(sum.im)};
    }
  });
}

}  // namespace

// clang-format off
QvxStatus qvxsFIR_Direct_32f(const Qvx32f* src, Qvx32f* dst, int n, const Qvx32f* h, int len, Qvx32f* d, int* i) { return block<QvxsFIRState_32f, 64>(src, dst, n, h, len, d, i); }
QvxStatus qvxsFIR_Direct_32f_I(Qvx32f* v, int n, const Qvx32f* h, int len, Qvx32f* d, int* i) { return inPlace<QvxsFIRState_32f>(v, n, h, len, d, i); }
QvxStatus qvxsFIROne_Direct_32f(Qvx32f x, Qvx32f* dst, const Qvx32f* h, int len, Qvx32f* d, int* i) { return oneSample(&x, dst, h, len, d, i); }
QvxStatus qvxsFIR_Direct_32fc(const Qvx32fc* src, Qvx32fc* dst, int n, const Qvx32fc* h, int len, Qvx32fc* d, int* i) { return block<QvxsFIRState_32fc, 32>(src, dst, n, h, len, d, i); }
QvxStatus qvxsFIR_Direct_32fc_I(Qvx32fc* v, int n, const Qvx32fc* h, int len, Qvx32fc* d, int* i) { return inPlace<QvxsFIRState_32fc>(v, n, h, len, d, i); }
QvxStatus qvxsFIROne_Direct_32fc(Qvx32fc x, Qvx32fc* dst, const Qvx32fc* h, int len, Qvx32fc* d, int* i) { return oneSample(&x, dst, h, len, d, i); }
QvxStatus qvxsFIR32f_Direct_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int n, const Qvx32f* h, int len, Qvx16s* d, int* i, int sf) { return converting(src, dst, n, h, len, d, i, sf); }
QvxStatus qvxsFIR32f_Direct_16s_ISfs(Qvx16s* v, int n, const Qvx32f* h, int len, Qvx16s* d, int* i, int sf) { return converting(v, v, n, h, len, d, i, sf); }
QvxStatus qvxsFIROne32f_Direct_16s_Sfs(Qvx16s x, Qvx16s* dst, const Qvx32f* h, int len, Qvx16s* d, int* i, int sf) { return converting(&x, dst, 1, h, len, d, i, sf); }
QvxStatus qvxsFIR32fc_Direct_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, int n, const Qvx32fc* h, int len, Qvx16sc* d, int* i, int sf) { return converting(src, dst, n, h, len, d, i, sf); }
QvxStatus qvxsFIR32fc_Direct_16sc_ISfs(Qvx16sc* v, int n, const Qvx32fc* h, int len, Qvx16sc* d, int* i, int sf) { return converting(v, v, n, h, len, d, i, sf); }
QvxStatus qvxsFIROne32fc_Direct_16sc_Sfs(Qvx16sc x, Qvx16sc* dst, const Qvx32fc* h, int len, Qvx16sc* d, int* i, int sf) { return converting(&x, dst, 1, h, len, d, i, sf); }
QvxStatus qvxsFIR_Direct_64f(const Qvx64f* src, Qvx64f* dst, int n, const Qvx64f* h, int len, Qvx64f* d, int* i) { return block<QvxsFIRState_64f, 32>(src, dst, n, h, len, d, i); }
QvxStatus qvxsFIR_Direct_64f_I(Qvx64f* v, int n, const Qvx64f* h, int len, Qvx64f* d, int* i) { return inPlace<QvxsFIRState_64f>(v, n, h, len, d, i); }
QvxStatus qvxsFIROne_Direct_64f(Qvx64f x, Qvx64f* dst, const Qvx64f* h, int len, Qvx64f* d, int* i) { return oneSample(&x, dst, h, len, d, i); }
QvxStatus qvxsFIR_Direct_64fc(const Qvx64fc* src, Qvx64fc* dst, int n, const Qvx64fc* h, int len, Qvx64fc* d, int* i) { return block<QvxsFIRState_64fc, 16>(src, dst, n, h, len, d, i); }
QvxStatus qvxsFIR_Direct_64fc_I(Qvx64fc* v, int n, const Qvx64fc* h, int len, Qvx64fc* d, int* i) { return inPlace<QvxsFIRState_64fc>(v, n, h, len, d, i); }
QvxStatus qvxsFIROne_Direct_64fc(Qvx64fc x, Qvx64fc* dst, const Qvx64fc* h, int len, Qvx64fc* d, int* i) { return oneSample(&x, dst, h, len, d, i); }
QvxStatus qvxsFIR64f_Direct_32f(const Qvx32f* src, Qvx32f* dst, int n, const Qvx64f* h, int len, Qvx32f* d, int* i) { return converting(src, dst, n, h, len, d, i); }
QvxStatus qvxsFIR64f_Direct_32f_I(Qvx32f* v, int n, const Qvx64f* h, int len, Qvx32f* d, int* i) { return converting(v, v, n, h, len, d, i); }
QvxStatus qvxsFIROne64f_Direct_32f(Qvx32f x, Qvx32f* dst, const Qvx64f* h, int len, Qvx32f* d, int* i) { return converting(&x, dst, 1, h, len, d, i); }
QvxStatus qvxsFIR64fc_Direct_32fc(const Qvx32fc* src, Qvx32fc* dst, int n, const Qvx64fc* h, int len, Qvx32fc* d, int* i) { return converting(src, dst, n, h, len, d, i); }
QvxStatus qvxsFIR64fc_Direct_32fc_I(Qvx32fc* v, int n, const Qvx64fc* h, int len, Qvx32fc* d, int* i) { return converting(v, v, n, h, len, d, i); }
QvxStatus qvxsFIROne64fc_Direct_32fc(Qvx32fc x, Qvx32fc* dst, const Qvx64fc* h, int len, Qvx32fc* d, int* i) { return converting(&x, dst, 1, h, len, d, i); }
QvxStatus qvxsFIR64f_Direct_32s_Sfs(const Qvx32s* src, Qvx32s* dst, int n, const Qvx64f* h, int len, Qvx32s* d, int* i, int sf) { return converting(src, dst, n, h, len, d, i, sf); }
QvxStatus qvxsFIR64f_Direct_32s_ISfs(Qvx32s* v, int n, const Qvx64f* h, int len, Qvx32s* d, int* i, int sf) { return converting(v, v, n, h, len, d, i, sf); }
QvxStatus qvxsFIROne64f_Direct_32s_Sfs(Qvx32s x, Qvx32s* dst, const Qvx64f* h, int len, Qvx32s* d, int* i, int sf) { return converting(&x, dst, 1, h, len, d, i, sf); }
QvxStatus qvxsFIR64fc_Direct_32sc_Sfs(const Qvx32sc* src, Qvx32sc* dst, int n, const Qvx64fc* h, int len, Qvx32sc* d, int* i, int sf) { return converting(src, dst, n, h, len, d, i, sf); }
QvxStatus qvxsFIR64fc_Direct_32sc_ISfs(Qvx32sc* v, int n, const Qvx64fc* h, int len, Qvx32sc* d, int* i, int sf) { return converting(v, v, n, h, len, d, i, sf); }
QvxStatus qvxsFIROne64fc_Direct_32sc_Sfs(Qvx32sc x, Qvx32sc* dst, const Qvx64fc* h, int len, Qvx32sc* d, int* i, int sf) { return converting(&x, dst, 1, h, len, d, i, sf); }
QvxStatus qvxsFIR64f_Direct_16s_Sfs(const Qvx16s* src, Qvx16s* dst, int n, const Qvx64f* h, int len, Qvx16s* d, int* i, int sf) { return converting(src, dst, n, h, len, d, i, sf); }
QvxStatus qvxsFIR64f_Direct_16s_ISfs(Qvx16s* v, int n, const Qvx64f* h, int len, Qvx16s* d, int* i, int sf) { return converting(v, v, n, h, len, d, i, sf); }
QvxStatus qvxsFIROne64f_Direct_16s_Sfs(Qvx16s x, Qvx16s* dst, const Qvx64f* h, int len, Qvx16s* d, int* i, int sf) { return converting(&x, dst, 1, h, len, d, i, sf); }
QvxStatus qvxsFIR64fc_Direct_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, int n, const Qvx64fc* h, int len, Qvx16sc* d, int* i, int sf) { return converting(src, dst, n, h, len, d, i, sf); }
QvxStatus qvxsFIR64fc_Direct_16sc_ISfs(Qvx16sc* v, int n, const Qvx64fc* h, int len, Qvx16sc* d, int* i, int sf) { return converting(v, v, n, h, len, d, i, sf); }
QvxStatus qvxsFIROne64fc_Direct_16sc_Sfs(Qvx16sc x, Qvx16sc* dst, const Qvx64fc* h, int len, Qvx16sc* d, int* i, int sf) { return converting(&x, dst, 1, h, len, d, i, sf); }
QvxStatus qvxsFIROne_Direct_32f_I(Qvx32f* v, const Qvx32f* h, int len, Qvx32f* d, int* i) { return oneSample(v, v, h, len, d, i); }
QvxStatus qvxsFIROne_Direct_32fc_I(Qvx32fc* v, const Qvx32fc* h, int len, Qvx32fc* d, int* i) { return oneSample(v, v, h, len, d, i); }
QvxStatus qvxsFIROne32f_Direct_16s_ISfs(Qvx16s* v, const Qvx32f* h, int len, Qvx16s* d, int* i, int sf) { return converting(v, v, 1, h, len, d, i, sf); }
QvxStatus qvxsFIROne32fc_Direct_16sc_ISfs(Qvx16sc* v, const Qvx32fc* h, int len, Qvx16sc* d, int* i, int sf) { return converting(v, v, 1, h, len, d, i, sf); }
QvxStatus qvxsFIROne_Direct_64f_I(Qvx64f* v, const Qvx64f* h, int len, Qvx64f* d, int* i) { return oneSample(v, v, h, len, d, i); }
QvxStatus qvxsFIROne_Direct_64fc_I(Qvx64fc* v, const Qvx64fc* h, int len, Qvx64fc* d, int* i) { return oneSample(v, v, h, len, d, i); }
QvxStatus qvxsFIROne64f_Direct_32f_I(Qvx32f* v, const Qvx64f* h, int len, Qvx32f* d, int* i) { return converting(v, v, 1, h, len, d, i); }
QvxStatus qvxsFIROne64fc_Direct_32fc_I(Qvx32fc* v, const Qvx64fc* h, int len, Qvx32fc* d, int* i) { return converting(v, v, 1, h, len, d, i); }
QvxStatus qvxsFIROne64f_Direct_32s_ISfs(Qvx32s* v, const Qvx64f* h, int len, Qvx32s* d, int* i, int sf) { return converting(v, v, 1, h, len, d, i, sf); }
QvxStatus qvxsFIROne64fc_Direct_32sc_ISfs(Qvx32sc* v, const Qvx64fc* h, int len, Qvx32sc* d, int* i, int sf) { return converting(v, v, 1, h, len, d, i, sf); }
QvxStatus qvxsFIROne64f_Direct_16s_ISfs(Qvx16s* v, const Qvx64f* h, int len, Qvx16s* d, int* i, int sf) { return converting(v, v, 1, h, len, d, i, sf); }
QvxStatus qvxsFIROne64fc_Direct_16sc_ISfs(Qvx16sc* v, const Qvx64fc* h, int len, Qvx16sc* d, int* i, int sf) { return converting(v, v, 1, h, len, d, i, sf); }
// clang-format on
