// Filters that keep no samples: the caller's vector has the earlier ones before its start.
#include "fir/streams.h"

#include <numeric>

#include "fir/dot.h"
#include "fir/sizes.h"

using namespace qvx;
using namespace qvx::fir;

namespace {

// fill(record) stores everything but the place of the taps.
template <class S, class Fill> QvxStatus make(S** ppState, Qvx8u* block, uint32_t id, int tapsLen, const Factors& f, Fill fill) {
  using T = typename S::Sample;
  StreamRecord<T>* made = nullptr;
  initRecord(&made, block, [&](StreamRecord<T>& record, Carver& carver) {
    record.magic = id;
    record.tapsLen = tapsLen;
    record.factors = f;
    record.taps = carver.take<T>(tapsLen);
    fill(record);
    return qvxStatOk;
  });
  *ppState = reinterpret_cast<S*>(made);
  return qvxStatOk;
}

constexpr Factors kOneRate = {1, 0, 1, 0};

template <class... T> QvxStatus check(int tapsLen, const Factors& f, const T*... pointers) {
  return (isNull(pointers) || ...) ? qvxStatNullPtr : f.check(tapsLen);
}

QvxStatus init(QvxsFIRState_32f** ppState, const Qvx32f* taps, int tapsLen, const Factors& f, Qvx8u* block, uint32_t id) {
  const QvxStatus status = check(tapsLen, f, ppState, taps, block);
  if (status != qvxStatOk) return status;
  return make(ppState, block, id, tapsLen, f, [=](StreamRecord<Qvx32f>& record) { record.lists().set(taps, record.taps); });
}

QvxStatus init(QvxsFIRState_16s** ppState, const Qvx16s* taps, int tapsLen, int tapsFactor, const Factors& f, QvxRoundMode mode,
               Qvx8u* block, uint32_t id) {
  const QvxStatus status = check(tapsLen, f, ppState, taps, block);
  if (status != qvxStatOk) return status;
  if (mode < qvxRoundTowardZero || mode > qvxRoundHalfAway) return qvxStatBadRoundMode;
  return make(ppState, block, id, tapsLen, f, [=](StreamRecord<Qvx16s>& record) {
    const int places = placesFor(taps, elements(tapsLen));
    record.tapsFactor = static_cast<int>(int64_t{tapsFactor} + places);
    record.roundMode = mode;
    record.lists().set(taps, record.taps);
    std::for_each_n(record.taps, tapsLen, [=](Qvx16s& tap) { tap = static_cast<Qvx16s>(tap >> places); });
  });
}

// The sum, which wraps at 32 bits, times 2^places.
Qvx16s rounded(int64_t sum, int places, QvxRoundMode mode) {
  if (places >= 0) return scaledSum(sum, places);
  const int64_t wrapped = static_cast<int32_t>(sum);
  const int64_t half = int64_t{1} << (-places - 1);
  if (mode == qvxRoundNearestEven) return scaledSum(sum, places);
  const int64_t size = (std::abs(wrapped) + (mode == qvxRoundHalfAway ? half : 0)) >> -places;
  return saturate<Qvx16s>(static_cast<int32_t>(wrapped < 0 ? -size : size));
}

template <class T, class Sum> void forEachResult(const StreamRecord<T>& record, const T* src, T* dst, int numIters, Sum sum) {
  const Factors& f = record.factors;
  const int64_t before = f.delayLen(record.tapsLen) - 1;
  const int64_t outputs = int64_t{numIters} * f.up;
  T held = {};  // an output may be needed as the sample that it takes the place of for one output more
  forEachOutput(record.lists(), f, src + before, before, outputs, sum, [&](int64_t j, T y) {
    if (j > 0) dst[j - 1] = held;
    held = y;
  });
  dst[outputs - 1] = held;
}

// Where there are more outputs than samples, samples in place are copied first.
template <class T, class Sum> QvxStatus filterEach(const StreamRecord<T>& record, const T* src, T* dst, int numIters, Sum sum) {
  const Factors& f = record.factors;
  if (src != dst || f.up <= f.down) return forEachResult(record, src, dst, numIters, sum), qvxStatOk;
  const int64_t count = int64_t{numIters} * f.down + f.delayLen(record.tapsLen) - 1;
  const Block copy(count * int64_t{sizeof(T)});
  if (!copy) return qvxStatNoMem;
  auto* samples = reinterpret_cast<T*>(copy.get());
  std::copy_n(src, count, samples);
  forEachResult(record, static_cast<const T*>(samples), dst, numIters, sum);
  return qvxStatOk;
}

// One rate, and at least a vector of outputs. In place they go through memory of their own.
void filterRow(const StreamRecord<Qvx32f>& record, const Qvx32f* src, Qvx32f* dst, size_t n) {
  constexpr size_t kSome = 1024;
  const size_t taps = elements(record.tapsLen);
  const Call call = callOf(n);
  if (src != dst) return convolve(src, record.taps, taps, n, dst, call);
  Qvx32f outputs[2 * kSome];
  for (size_t some; n > 0; n -= some, src += some, dst += some) {
    some = n < 2 * kSome ? n : kSome;
    convolve(src, record.taps, taps, some, outputs, call);
    std::copy_n(outputs, some, dst);
  }
}

}  // namespace

namespace qvx::fir {

QvxStatus filterStream(const StreamRecord<Qvx32f>& record, const Qvx32f* src, Qvx32f* dst, int numIters, int) {
  if (record.magic == kStreamId<QvxsFIRState_32f> && elements(numIters) >= kVectorElements<Qvx32f>) {
    filterRow(record, src, dst, elements(numIters));
    return qvxStatOk;
  }
  return filterEach(record, src, dst, numIters,
                    [](const Qvx32f* x, const Qvx32f* p, int64_t n) { return n > 0 ? dot(x, p, static_cast<int>(n)) : 0.0F; });
}

QvxStatus filterStream(const StreamRecord<Qvx16s>& record, const Qvx16s* src, Qvx16s* dst, int numIters, int scaleFactor) {
  const int places = static_cast<int>(std::clamp<int64_t>(int64_t{record.tapsFactor} - scaleFactor, -31, 31));
  return filterEach(record, src, dst, numIters, [=, &record](const Qvx16s* x, const Qvx16s* p, int64_t n) {
    Qvx64s sum = 0;
    if (n > 0) qvxsDotProd_16s64s(x, p, static_cast<int>(n), &sum);
    return rounded(sum, places, record.roundMode);
  });
}

}  // namespace qvx::fir

namespace {

QvxStatus reportMultirateSize(int tapsLen, int up, int down, int* pSize, FootprintOf footprintOf) {
  if (isNull(pSize)) return qvxStatNullPtr;
  const QvxStatus status = Factors{up, 0, down, 0}.checkSizes(tapsLen);
  return status == qvxStatOk ? reportSize(tapsLen, pSize, footprintOf) : status;
}

}  // namespace

// clang-format off
QvxStatus qvxsFIRStreamInit_32f(QvxsFIRState_32f** s, const Qvx32f* h, int n, Qvx8u* b) { return init(s, h, n, kOneRate, b, kStreamId<QvxsFIRState_32f>); }
QvxStatus qvxsFIRStreamInit_16s(QvxsFIRState_16s** s, const Qvx16s* h, int n, int tf, QvxRoundMode mode, Qvx8u* b) { return init(s, h, n, tf, kOneRate, mode, b, kStreamId<QvxsFIRState_16s>); }
QvxStatus qvxsFIRMRStreamInit_32f(QvxsFIRState_32f** s, const Qvx32f* h, int n, int u, int up, int d, int dp, Qvx8u* b) { return init(s, h, n, {u, up, d, dp}, b, kMultirateStreamId<QvxsFIRState_32f>); }
QvxStatus qvxsFIRMRStreamInit_16s(QvxsFIRState_16s** s, const Qvx16s* h, int n, int tf, int u, int up, int d, int dp, QvxRoundMode mode, Qvx8u* b) { return init(s, h, n, tf, {u, up, d, dp}, mode, b, kMultirateStreamId<QvxsFIRState_16s>); }
QvxStatus qvxsFIRMRStreamGetStateSize_32f(int n, int u, int d, int* size) { return reportMultirateSize(n, u, d, size, footprintOf<QvxsFIRState_32f>); }
QvxStatus qvxsFIRMRStreamGetStateSize_16s(int n, int u, int d, int* size) { return reportMultirateSize(n, u, d, size, footprintOfStream16s); }
// clang-format on
