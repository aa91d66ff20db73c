// The record of a transform: what is in it, and how it is made.
#pragma once

#include <omp.h>

#include "fft/blocked.h"
#include "fft/sizes.h"

namespace qvx::fft {

// The identity is a record type's own.
template <class Fields, uint32_t kIdentity> struct Identified : Fields { static constexpr uint32_t kId = kIdentity; };

template <class Record> QvxStatus checkSpec(const Record* spec) { return checkRecord(spec, Record::kId); }

template <class T_> struct Spec {
  using T = T_;
  uint32_t magic;
  int32_t order;  // of the sequence, be it complex or real
  bool fwdScaled;
  bool invScaled;
  bool ownsMemory;
  uint8_t threads;
  int32_t hint;
  int32_t workSize;
  T normFactor;
  Plan<T> plan;  // of the complex transform, or of the rows of a blocked one
  BlockedPlan<T> blocked;
  const T* realRoots;  // of a real one's recombination
  const T* coarseRoots;
};

template <class Record> QvxStatus bufferSize(const Record* spec, int* pSize) {
  if (isNull(spec) || isNull(pSize)) return qvxStatNullPtr;
  const QvxStatus status = checkSpec(spec);
  if (status == qvxStatOk) *pSize = spec->workSize < 1 ? 0 : spec->workSize + static_cast<int>(kWorkSlack);
  return status;
}

inline bool isFlag(int flag) {
  return flag == QVX_FFT_SCALE_FWD || flag == QVX_FFT_SCALE_INV || flag == QVX_FFT_SCALE_BOTH_SQRT || flag == QVX_FFT_SCALE_NONE;
}

// A limit above 30 is tested with the range, a lower one of the family behind the flag.
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
// interface.
inline double reciprocalRoot(double n) { return 1 / std::sqrt(n); }
inline float reciprocalRoot(float n) {
  const float r = reciprocalRootEstimate(n);
  return -0.5F * r * (n * r * r - 3);
}

template <class T> void setFlag(Spec<T>* spec, int flag) {
  const T n = static_cast<T>(int64_t{1} << spec->order);
  spec->fwdScaled = flag == QVX_FFT_SCALE_FWD || flag == QVX_FFT_SCALE_BOTH_SQRT;
  spec->invScaled = flag == QVX_FFT_SCALE_INV || flag == QVX_FFT_SCALE_BOTH_SQRT;
  spec->normFactor = flag == QVX_FFT_SCALE_NONE ? 0 : flag == QVX_FFT_SCALE_BOTH_SQRT ? reciprocalRoot(n) : 1 / n;
}

// Two on a machine of two, one on any other.
inline uint8_t threadsOf() { return omp_get_num_procs() > 2 ? 1 : static_cast<uint8_t>(std::min(ownGetNumThreads(), 2)); }

template <class Record, class Build>
QvxStatus init(Record** ppSpec, int order, int flag, int hint, int limit, Qvx8u* pMemory, const Qvx8u* pInitBuffer, Build build) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  if (order < 0 || order > limit) return qvxStatBadFFTOrder;
  if (isNull(pMemory)) return qvxStatNullPtr;
  Carver<32> block(pMemory);
  auto* spec = block.take<Record>(1);
  *spec = {};
  spec->hint = hint;
  spec->order = order;
  if (!isFlag(flag)) return qvxStatBadFFTFlag;
  setFlag<typename Record::T>(spec, flag);
  spec->magic = Record::kId;
  if (order > 10 && isNull(pInitBuffer)) return qvxStatNullPtr;
  build(*spec, block.rest());
  *ppSpec = spec;
  return qvxStatOk;
}

template <class Record, class GetSize, class Init>
QvxStatus initAlloc(Record** ppSpec, int order, int flag, int hint, GetSize getSize, Init init) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  int specSize = 0;
  int initSize = 0;
  int workSize = 0;
  QvxStatus status = getSize(order, flag, hint, &specSize, &initSize, &workSize);
  if (status != qvxStatOk) return status;
  Block memory(specSize);
  Block buffer(initSize);
  if (!memory || (initSize > 0 && !buffer)) return qvxStatNoMem;
  Record* spec = nullptr;
  status = init(&spec, order, flag, hint, memory.get(), buffer.get());
  if (status != qvxStatOk) return status;
  memory.keep();
  spec->ownsMemory = true;
  *ppSpec = spec;
  return qvxStatOk;
}

template <class Record> QvxStatus release(Record* spec) {
  const QvxStatus status = checkSpec(spec);
  if (status != qvxStatOk) return status;
  spec->magic = 0;
  if (spec->ownsMemory) qvxFree(spec);
  return qvxStatOk;
}

}  // namespace qvx::fft

struct QvxsFFTSpec_C_32fc : qvx::fft::Identified<qvx::fft::Spec<Qvx32f>, 4> {};
struct QvxsFFTSpec_C_32f : qvx::fft::Identified<qvx::fft::Spec<Qvx32f>, 5> {};
struct QvxsFFTSpec_R_32f : qvx::fft::Identified<qvx::fft::Spec<Qvx32f>, 6> {};
struct QvxsFFTSpec_C_64fc : qvx::fft::Identified<qvx::fft::Spec<Qvx64f>, 7> {};
struct QvxsFFTSpec_C_64f : qvx::fft::Identified<qvx::fft::Spec<Qvx64f>, 8> {};
struct QvxsFFTSpec_R_64f : qvx::fft::Identified<qvx::fft::Spec<Qvx64f>, 9> {};
