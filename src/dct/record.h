// The records of cosine transforms, how they are made, and their calls.
#pragma once

#include "dct/matrix.h"
#include "dct/sizes.h"
#include "dct/turn.h"
#include "fft/adapter.h"

namespace qvx::dct {

template <class T> using ComplexOf = std::conditional_t<sizeof(T) == 4, Qvx32fc, Qvx64fc>;
template <class T> using Half = fft::Transform<ComplexOf<T>>;

template <class T_, bool kInverse_, uint32_t kIdentity> struct Spec : RecordHead {
  using T = T_;
  static constexpr bool kInverse = kInverse_;
  static constexpr uint32_t kId = kIdentity;
  int32_t len;
  int32_t workSize;                      // as callers are told
  T mean;                                // 1 / sqrt(len)
  const T* turns;                        // see turn.h
  const typename Half<T>::Spec* half;    // transforms of len / 2 complex numbers
};

template <class Record> QvxStatus check(const Record* spec) { return checkRecord(spec, Record::kId); }

constexpr bool hasKernel(int len) { return len <= kLongestByMatrix || (len <= kLongestByHalves && len % 2 == 0); }

// ---- The life of a record

inline QvxStatus getSize(int len, Sizes (*sizesOf)(int), int* pSpec, int* pInit, int* pWork) {
  if (len < 1) return qvxStatBadSize;
  if (isNull(pSpec) || isNull(pInit) || isNull(pWork)) return qvxStatNullPtr;
  const Sizes sizes = sizesOf(len);
  if (!fitsInt(sizes)) return qvxStatBadFFTOrder;
  *pSpec = static_cast<int>(sizes.spec);
  *pInit = static_cast<int>(sizes.init);
  *pWork = static_cast<int>(sizes.work);
  return qvxStatOk;
}

// What Init refuses.
template <class Record> QvxStatus check(Record** ppSpec, int len, Sizes sizes, const Qvx8u* pMemory, const Qvx8u* pInit) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  if (isNull(pMemory)) return qvxStatNullPtr;
  if (!fitsInt(sizes)) return qvxStatBadFFTOrder;
  return sizes.init > 0 && isNull(pInit) ? qvxStatNullPtr : qvxStatOk;
}

template <class Record> QvxStatus init(Record** ppSpec, int len, Qvx8u* pMemory, Qvx8u* pInit) {
  using T = typename Record::T;
  const Sizes sizes = sizesOf<T>(len < 1 ? 1 : len);
  const QvxStatus status = check(ppSpec, len, sizes, pMemory, pInit);
  if (status != qvxStatOk) return status;
  return initRecord(ppSpec, pMemory, [=](Record& spec, Carver& tables) {
    spec.len = len;
    spec.workSize = static_cast<int32_t>(sizes.work);
    spec.mean = static_cast<T>(1 / std::sqrt(static_cast<double>(len)));
    spec.magic = Record::kId;
    if (hasKernel(len)) return qvxStatOk;
    const auto n = static_cast<size_t>(len);
    T* const turns = tables.take<T>(static_cast<int64_t>(turnTableLength<T>(n)));
    writeTurns(turns, n);
    spec.turns = turns;
    typename Half<T>::Spec* half = nullptr;
    const QvxStatus made = Half<T>::kInit(&half, std::countr_zero(n) - 1, QVX_FFT_SCALE_NONE, 0, tables.rest(), pInit);
    spec.half = half;
    return made;
  });
}

template <class Record> QvxStatus initAlloc(Record** ppSpec, int len, Sizes (*sizesOf)(int), auto init) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  const Sizes sizes = sizesOf(len);
  if (!fitsInt(sizes)) return qvxStatBadFFTOrder;
  return allocateRecord(ppSpec, sizes.spec, [=](Record** pp, Qvx8u* memory) {
    const Block buffer(sizes.init);
    if (sizes.init > 0 && !buffer) return qvxStatNoMem;
    return init(pp, len, memory, buffer.get());
  });
}

template <class Record> QvxStatus release(Record* spec) { return releaseRecord(spec, check(spec), InCallersBlock::kForgotten); }

template <class Record> QvxStatus bufferSize(const Record* spec, int* pSize) {
  if (isNull(spec) || isNull(pSize)) return qvxStatNullPtr;
  const QvxStatus status = check(spec);
  if (status == qvxStatOk) *pSize = spec->workSize;
  return status;
}

// ---- Transforms

template <class Record, class T> [[gnu::noinline]] QvxStatus longTransform(const Record& spec, const T* src, T* dst, Qvx8u* pBuffer) {
  const Scratch scratch(pBuffer, spec.workSize);
  if (scratch.isMissing(spec.workSize)) return qvxStatNoMem;
  const auto n = static_cast<size_t>(spec.len);
  Carver carver = scratch.carver();
  T* const v = carver.take<T>(spec.len);
  auto* const z = reinterpret_cast<ComplexOf<T>*>(v);
  if constexpr (Record::kInverse) {
    cosinesToSpectrum(src, v, n, spec.turns, spec.mean);
    const QvxStatus status = Half<T>::kInverse(z, z, spec.half, carver.rest());
    fromHalves(v, dst, n);
    return status;
  } else {
    toHalves(src, v, n);
    const QvxStatus status = Half<T>::kForward(z, z, spec.half, carver.rest());
    spectrumToCosines(v, dst, n, spec.turns, spec.mean);
    return status;
  }
}

template <class Record, class T> QvxStatus transformed(const Record* spec, const T* src, T* dst, Qvx8u* pBuffer) {
  const QvxStatus status = check(spec);
  if (status != qvxStatOk) return status;
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if (!hasKernel(spec->len)) return longTransform(*spec, src, dst, pBuffer);
  kKernels<T, Record::kInverse>[static_cast<size_t>(spec->len - 1)](src, dst);
  return qvxStatOk;
}

}  // namespace qvx::dct

// The identities are fixed values of the interface.
struct QvxsDCTFwdSpec_32f : qvx::dct::Spec<Qvx32f, false, 21> {};
struct QvxsDCTInvSpec_32f : qvx::dct::Spec<Qvx32f, true, 22> {};
struct QvxsDCTFwdSpec_64f : qvx::dct::Spec<Qvx64f, false, 23> {};
struct QvxsDCTInvSpec_64f : qvx::dct::Spec<Qvx64f, true, 24> {};
static_assert(sizeof(QvxsDCTInvSpec_64f) + qvx::Carver::kRecordAlignment - 1 <= qvx::dct::kSmallSizes.spec);
