// The records of transforms: what is in them, and how they are made.
#pragma once

#include "fft/sizes.h"
#include "frame/rounding.h"
#include "transform/real_transform.h"

namespace qvx::fft {

using namespace transform;

// The identity is a record type's own.
template <class Fields, uint32_t kIdentity> struct Identified : Fields { static constexpr uint32_t kId = kIdentity; };

template <class Record> QvxStatus checkSpec(const Record* spec) { return checkRecord(spec, Record::kId); }

// A plan is that of complex points or of real numbers.
template <class T_, template <class> class Plan_> struct Spec : RecordHead {
  using T = T_;
  int32_t order;  // of the sequence, be it complex or real
  bool fwdScaled;
  bool invScaled;
  int32_t workSize;
  T normFactor;
  Plan_<T> plan;
};
template <class T> using ComplexSpec = Spec<T, ComplexPlan>;
template <class T> using RealSpec = Spec<T, RealPlan>;

template <class Record> QvxStatus bufferSize(const Record* spec, int* pSize) {
  if (isNull(spec) || isNull(pSize)) return qvxStatNullPtr;
  const QvxStatus status = checkSpec(spec);
  if (status == qvxStatOk) *pSize = spec->workSize < 1 ? 0 : spec->workSize + static_cast<int>(kWorkSlack);
  return status;
}

inline bool isFlag(int flag) {
  return flag == QVX_FFT_SCALE_FWD || flag == QVX_FFT_SCALE_INV || flag == QVX_FFT_SCALE_BOTH_SQRT || flag == QVX_FFT_SCALE_NONE;
}

// A limit above 30 is tested with the range, a lower one of the family after the flag.
inline constexpr int kHighestOrder = 30;

template <class GetSizes> QvxStatus getSize(int order, int flag, int limit, int* pSpec, int* pInit, int* pWork, GetSizes sizes) {
  if (order < 0 || order > kHighestOrder) return qvxStatBadFFTOrder;
  if (isNull(pSpec) || isNull(pInit) || isNull(pWork)) return qvxStatNullPtr;
  if (!isFlag(flag)) return qvxStatBadFFTFlag;
  if (order > limit) return qvxStatBadFFTOrder;
  const Sizes found = sizes(order);
  *pSpec = static_cast<int>(found.spec);
  *pInit = static_cast<int>(found.init);
  *pWork = static_cast<int>(found.work > 0 ? found.work + kWorkSlack : 0);
  return qvxStatOk;
}

// 1/sqrt(n). In single precision it is the processor's estimate after one step of Newton's, whose last bits are part of the
// interface; but for one point, whose transform is exact.
inline double reciprocalRoot(double n) { return 1 / std::sqrt(n); }
inline float reciprocalRoot(float n) {
  if (n == 1) return 1;
  const float r = reciprocalRootEstimate(n);
  return -0.5F * r * (n * r * r - 3);
}

template <class Record> void setFlag(Record& spec, int flag) {
  using T = typename Record::T;
  const RoundingScope nearest(Rounding::kNearest);
  const T n = RoundingScope::pinned(static_cast<T>(int64_t{1} << spec.order));
  spec.fwdScaled = flag == QVX_FFT_SCALE_FWD || flag == QVX_FFT_SCALE_BOTH_SQRT;
  spec.invScaled = flag == QVX_FFT_SCALE_INV || flag == QVX_FFT_SCALE_BOTH_SQRT;
  spec.normFactor = flag == QVX_FFT_SCALE_NONE ? 0 : flag == QVX_FFT_SCALE_BOTH_SQRT ? reciprocalRoot(n) : 1 / n;
}

// As many threads as a transform may be divided between.
inline uint8_t threadsOf() { return static_cast<uint8_t>(std::min(ownGetNumThreads(), 2)); }

template <class Record, class Build>
QvxStatus init(Record** ppSpec, int order, int flag, int limit, Qvx8u* pMemory, const Qvx8u* pInitBuffer, Build build) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  if (order < 0 || order > limit) return qvxStatBadFFTOrder;
  if (isNull(pMemory)) return qvxStatNullPtr;
  return initRecord(ppSpec, pMemory, [&](Record& spec, const Carver& tables) {
    if (!isFlag(flag)) return qvxStatBadFFTFlag;
    spec.order = order;
    setFlag(spec, flag);
    spec.magic = Record::kId;
    if (order > 10 && isNull(pInitBuffer)) return qvxStatNullPtr;
    build(spec, reinterpret_cast<typename Record::T*>(tables.rest()));
    return qvxStatOk;
  });
}

template <class Record, class GetSize, class Init>
QvxStatus initAlloc(Record** ppSpec, int order, int flag, int hint, GetSize getSize, Init init) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  int specSize = 0;
  int initSize = 0;
  int workSize = 0;
  const QvxStatus status = getSize(order, flag, hint, &specSize, &initSize, &workSize);
  if (status != qvxStatOk) return status;
  return allocateRecord(ppSpec, specSize, [=](Record** pp, Qvx8u* memory) {
    const Block buffer(initSize);
    if (initSize > 0 && !buffer) return qvxStatNoMem;
    return init(pp, order, flag, hint, memory, buffer.get());
  });
}

template <class Record> QvxStatus release(Record* spec) {
  return releaseRecord(spec, checkSpec(spec), InCallersBlock::kForgotten);
}

template <class Record> QvxStatus initComplex(Record** ppSpec, int order, int flag, Qvx8u* pMemory, const Qvx8u* pInitBuffer) {
  using T = typename Record::T;
  return init(ppSpec, order, flag, Orders<T>::kComplex, pMemory, pInitBuffer, [order](Record& spec, T* tables) {
    spec.workSize = spec.plan.workBytes = static_cast<int32_t>(complexSizes<T>(order).work);
    if (order > Orders<T>::kCached) spec.plan.plan.threads = threadsOf();
    writePlan<typename Record::Points>(spec.plan, size_t{1} << order, tables);
  });
}
template <class Record> QvxStatus initReal(Record** ppSpec, int order, int flag, Qvx8u* pMemory, const Qvx8u* pInitBuffer) {
  using T = typename Record::T;
  return init(ppSpec, order, flag, Orders<T>::kReal, pMemory, pInitBuffer, [order](Record& spec, T* tables) {
    spec.workSize = spec.plan.half.workBytes = static_cast<int32_t>(realSizes<T>(order).work);
    if (order - 1 > Orders<T>::kCached) spec.plan.half.plan.threads = threadsOf();
    writePlan(spec.plan, size_t{1} << order, tables);
  });
}

// ---- The functions of records

// A record and vectors that may be used.
template <class Record, class Src, class Dst> QvxStatus checkCall(const Record* spec, Src src, Dst dst) {
  const QvxStatus status = checkSpec(spec);
  return status == qvxStatOk && (isMissing(src) || isMissing(dst)) ? qvxStatNullPtr : status;
}

// run(scale) with what the flag says of this direction.
template <bool kInverse, class Spec, class Run> QVX_INLINE QvxStatus withScale(const Spec& spec, Run run) {
  using T = typename Spec::T;
  return (kInverse ? spec.invScaled : spec.fwdScaled) ? run(ScaledBy<T>{spec.normFactor}) : run(Unscaled{});
}

// run(y, scale), y being the working memory that the record asks for.
template <bool kInverse, class Spec, class Run> QVX_INLINE QvxStatus withWork(const Spec& spec, Qvx8u* pBuffer, Run run) {
  const Scratch scratch(pBuffer, spec.workSize);
  if (scratch.isMissing(spec.workSize)) return qvxStatNoMem;
  auto* y = reinterpret_cast<typename Spec::T*>(scratch.carver().rest());
  return withScale<kInverse>(spec, [=](auto scale) { return run(y, scale), qvxStatOk; });
}

template <bool kInverse, class T, class Src, class Dst>
[[gnu::noinline]] QvxStatus longComplexCall(const ComplexSpec<T>& spec, Src src, Dst dst, Qvx8u* pBuffer) {
  return withWork<kInverse>(spec, pBuffer, [&](T* y, auto scale) { longTransform(spec.plan, src, dst, y, scale); });
}
// A short transform ends in a jump to its code, without a stack frame of its own: that is a third of its time.
template <bool kInverse, class Record, class Src, class Dst>
QVX_INLINE QvxStatus complexCall(const Record* spec, Src src, Dst dst, Qvx8u* pBuffer) {
  using T = typename Record::T;
  const QvxStatus status = checkCall(spec, src, dst);
  if (status != qvxStatOk) return status;
  if (spec->order > kShortOrder<Src>) return longComplexCall<kInverse, T>(*spec, src, dst, pBuffer);
  return withScale<kInverse>(
      *spec, [=](auto scale) __attribute__((always_inline)) { return smallTransform(spec->order, src, dst, scale); });
}
template <bool kInverse, class C, class Record>
QvxStatus interleavedTransform(const C* src, C* dst, const Record* spec, Qvx8u* pBuffer) {
  using T = typename Record::T;
  return complexCall<kInverse>(spec, Interleaved<const T, kInverse>{parts(src)}, Interleaved<T, kInverse>{parts(dst)}, pBuffer);
}
// An inverse one has its parts exchanged; then it takes the factor of its direction.
template <bool kInverse, class T, class Record>
QvxStatus splitTransform(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const Record* spec, Qvx8u* pBuffer) {
  const Split<const T> src = kInverse ? Split<const T>{srcIm, srcRe} : Split<const T>{srcRe, srcIm};
  const Split<T> dst = kInverse ? Split<T>{dstIm, dstRe} : Split<T>{dstRe, dstIm};
  return complexCall<kInverse>(spec, src, dst, pBuffer);
}

template <bool kInverse, SpectrumLayout kLayout, class T>
[[gnu::noinline]] QvxStatus longRealCall(const RealSpec<T>& spec, const T* src, T* dst, Qvx8u* pBuffer) {
  return withWork<kInverse>(spec, pBuffer, [&](T* y, auto scale) {
    if constexpr (kInverse) longInverse<kLayout>(spec.plan, src, dst, y, scale);
    else longForward<kLayout>(spec.plan, src, dst, y, scale);
  });
}
template <bool kInverse, SpectrumLayout kLayout, class T, class Record>
QVX_INLINE QvxStatus realTransform(const T* src, T* dst, const Record* spec, Qvx8u* pBuffer) {
  const QvxStatus status = checkCall(spec, src, dst);
  if (status != qvxStatOk) return status;
  if (spec->order > kShortReal) return longRealCall<kInverse, kLayout, T>(*spec, src, dst, pBuffer);
  return withScale<kInverse>(
      *spec, [=](auto scale) __attribute__((always_inline)) {
        return shortReal<kInverse, kLayout, T>(spec->order, Floats<const T>{src}, Floats<T>{dst}, scale);
      });
}

template <SpectrumLayout kLayout, class T, class Record>
QvxStatus spectrumOf(const T* src, T* dst, const Record* spec, Qvx8u* pBuffer) {
  return realTransform<false, kLayout>(src, dst, spec, pBuffer);
}
template <SpectrumLayout kLayout, class T, class Record>
QvxStatus sequenceOf(const T* src, T* dst, const Record* spec, Qvx8u* pBuffer) {
  return realTransform<true, kLayout>(src, dst, spec, pBuffer);
}

// Points: in the order of whose lanes the twiddles of the row pass stand.
template <class T, class Points_, uint32_t kId> struct PointsSpec : Identified<ComplexSpec<T>, kId> { using Points = Points_; };

}  // namespace qvx::fft

// The identities are fixed values of the interface.
struct QvxsFFTSpec_C_32fc : qvx::fft::PointsSpec<Qvx32f, qvx::transform::Interleaved<Qvx32f, false>, 4> {};
struct QvxsFFTSpec_C_32f : qvx::fft::PointsSpec<Qvx32f, qvx::transform::Split<Qvx32f>, 5> {};
struct QvxsFFTSpec_R_32f : qvx::fft::Identified<qvx::fft::RealSpec<Qvx32f>, 6> {};
struct QvxsFFTSpec_C_64fc : qvx::fft::PointsSpec<Qvx64f, qvx::transform::Interleaved<Qvx64f, false>, 7> {};
struct QvxsFFTSpec_C_64f : qvx::fft::PointsSpec<Qvx64f, qvx::transform::Split<Qvx64f>, 8> {};
struct QvxsFFTSpec_R_64f : qvx::fft::Identified<qvx::fft::RealSpec<Qvx64f>, 9> {};
static_assert(sizeof(QvxsFFTSpec_R_64f) + qvx::Carver::kRecordAlignment - 1 <= qvx::fft::kSmallSpec);
