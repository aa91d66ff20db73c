// Transforms of real integers.
#include "fft/integer_points.h"
#include "fft/integer_small.h"

using namespace qvx;
using namespace qvx::fft;

namespace {

constexpr int kLimit16 = limitOf(Orders<Qvx32f>::kReal, [](int order) { return realSizes16(order, 0); });
constexpr int kLimit32 = limitOf(Orders<Qvx64f>::kReal, realSizes32);
constexpr int kLimit16to32 = limitOf(Orders<Qvx32f>::kReal, realSizes16to32);
static_assert(kLimit16 == 28 && kLimit32 == 27 && kLimit16to32 == 28);

constexpr int lengthOf(SpectrumLayout layout, int order) { return static_cast<int>(spectrumLength(layout, size_t{1} << order)); }

template <SpectrumLayout kLayout>
QvxStatus forwardInIntegers(const Qvx16s* src, Qvx16s* dst, const QvxsFFTSpec_R_16s& spec, int scaleFactor) {
  FixedPoint fixed(spec.order);
  fixed.read(src, 1 << spec.order);
  integerTransform<false>(fixed.points(), spec.order - 1);
  if (spec.order > 0) {
    recombine(fixed.points(), spec.order);
    fromPerm<kLayout>(fixed.numbers(), size_t{1} << spec.order);
  }
  const int shift = fixed.scaled<false>(spec, scaleFactor);
  return qvxsConvert_32s16s_Sfs(fixed.numbers(), dst, lengthOf(kLayout, spec.order), shift);
}

template <SpectrumLayout kLayout>
QvxStatus inverseInIntegers(const Qvx16s* src, Qvx16s* dst, const QvxsFFTSpec_R_16s& spec, int scaleFactor) {
  const int n = 1 << spec.order;
  FixedPoint fixed(spec.order);
  fixed.read(src, 1);
  if (n > 1) {
    fixed.read(src + placeOfMiddle(kLayout, static_cast<size_t>(n)), 1, 1);
    fixed.read(src + placeOfPair(kLayout, static_cast<size_t>(n), 1), n - 2, 2);
    recombineInverse(fixed.points(), spec.order);
    integerTransform<true>(fixed.points(), spec.order - 1);
  }
  const int shift = fixed.scaled<true>(spec, scaleFactor);
  return qvxsConvert_32s16s_Sfs(fixed.numbers(), dst, n, shift);
}

template <bool kInverse, SpectrumLayout kLayout, class Record, class In, class Out>
QvxStatus inRegisters(const In* src, Out* dst, const Record& spec, int scaleFactor) {
  using T = typename Record::Floats::T;
  return fft::inRegisters<kInverse>(*spec.floats, scaleFactor, [=, order = spec.order](T factor) {
    return shortReal<kInverse, kLayout, T>(order, FromIntegers<T, In>{src}, ToIntegers<T, Out>{dst, factor}, Unscaled{});
  });
}

// kFloats: the transform in place.
template <SpectrumLayout kLayout, auto kFloats, class Record, class In, class Out>
QvxStatus forward(const In* src, Out* dst, const Record* spec, int scaleFactor, Qvx8u* pBuffer) {
  const QvxStatus status = checkSpec(spec);
  if (status != qvxStatOk) return status;
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if constexpr (std::is_same_v<Record, QvxsFFTSpec_R_16s>) {
    if (isNull(spec->floats)) return forwardInIntegers<kLayout>(src, dst, *spec, scaleFactor);
  }
  if (spec->order <= kShortReal) return inRegisters<false, kLayout>(src, dst, *spec, scaleFactor);
  return throughFloats<kFloats>(*spec, src, 1 << spec->order, dst, lengthOf(kLayout, spec->order), scaleFactor, pBuffer);
}
template <SpectrumLayout kLayout, auto kFloats, class Record, class In, class Out>
QvxStatus inverse(const In* src, Out* dst, const Record* spec, int scaleFactor, Qvx8u* pBuffer) {
  const QvxStatus status = checkSpec(spec);
  if (status != qvxStatOk) return status;
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if constexpr (std::is_same_v<Record, QvxsFFTSpec_R_16s>) {
    if (isNull(spec->floats)) return inverseInIntegers<kLayout>(src, dst, *spec, scaleFactor);
  }
  if (spec->order <= kShortReal) return inRegisters<true, kLayout>(src, dst, *spec, scaleFactor);
  return throughFloats<kFloats>(*spec, src, lengthOf(kLayout, spec->order), dst, 1 << spec->order, scaleFactor, pBuffer);
}

}  // namespace

// clang-format off
QvxStatus qvxsFFTGetSize_R_16s(int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(order, flag, kLimit16, pSpecSize, pInitSize, pWorkSize, [=](int m) { return realSizes16(m, hint); }); }
QvxStatus qvxsFFTInit_R_16s(QvxsFFTSpec_R_16s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return initInteger(ppSpec, order, flag, kLimit16, isInIntegers(order, hint), [=] { return realSizes16(order, hint).work; }, pSpec, pInit, qvxsFFTInit_R_32f); }
QvxStatus qvxsFFTInitAlloc_R_16s(QvxsFFTSpec_R_16s** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_R_16s, qvxsFFTInit_R_16s); }
QvxStatus qvxsFFTFree_R_16s(QvxsFFTSpec_R_16s* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_R_16s(const QvxsFFTSpec_R_16s* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsFFTGetSize_R_32s(int order, int flag, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(order, flag, kLimit32, pSpecSize, pInitSize, pWorkSize, realSizes32); }
QvxStatus qvxsFFTInit_R_32s(QvxsFFTSpec_R_32s** ppSpec, int order, int flag, int, Qvx8u* pSpec, Qvx8u* pInit) { return initInteger(ppSpec, order, flag, kLimit32, false, [=] { return realSizes32(order).work; }, pSpec, pInit, qvxsFFTInit_R_64f); }
QvxStatus qvxsFFTInitAlloc_R_32s(QvxsFFTSpec_R_32s** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_R_32s, qvxsFFTInit_R_32s); }
QvxStatus qvxsFFTFree_R_32s(QvxsFFTSpec_R_32s* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_R_32s(const QvxsFFTSpec_R_32s* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsFFTGetSize_R_16s32s(int order, int flag, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(order, flag, kLimit16to32, pSpecSize, pInitSize, pWorkSize, realSizes16to32); }
QvxStatus qvxsFFTInit_R_16s32s(QvxsFFTSpec_R_16s32s** ppSpec, int order, int flag, int, Qvx8u* pSpec, Qvx8u* pInit) { return initInteger(ppSpec, order, flag, kLimit16to32, false, [=] { return realSizes16to32(order).work; }, pSpec, pInit, qvxsFFTInit_R_32f); }
QvxStatus qvxsFFTInitAlloc_R_16s32s(QvxsFFTSpec_R_16s32s** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_R_16s32s, qvxsFFTInit_R_16s32s); }
QvxStatus qvxsFFTFree_R_16s32s(QvxsFFTSpec_R_16s32s* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_R_16s32s(const QvxsFFTSpec_R_16s32s* spec, int* pSize) { return bufferSize(spec, pSize); }

QvxStatus qvxsFFTFwd_RToPerm_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kPerm, qvxsFFTFwd_RToPerm_32f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToPerm_16s_ISfs(Qvx16s* d, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kPerm, qvxsFFTFwd_RToPerm_32f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToPerm_32s_Sfs(const Qvx32s* src, Qvx32s* dst, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kPerm, qvxsFFTFwd_RToPerm_64f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToPerm_32s_ISfs(Qvx32s* d, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kPerm, qvxsFFTFwd_RToPerm_64f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToPack_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kPack, qvxsFFTFwd_RToPack_32f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToPack_16s_ISfs(Qvx16s* d, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kPack, qvxsFFTFwd_RToPack_32f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToPack_32s_Sfs(const Qvx32s* src, Qvx32s* dst, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kPack, qvxsFFTFwd_RToPack_64f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToPack_32s_ISfs(Qvx32s* d, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kPack, qvxsFFTFwd_RToPack_64f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToCCS_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kCcs, qvxsFFTFwd_RToCCS_32f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToCCS_16s_ISfs(Qvx16s* d, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kCcs, qvxsFFTFwd_RToCCS_32f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToCCS_32s_Sfs(const Qvx32s* src, Qvx32s* dst, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kCcs, qvxsFFTFwd_RToCCS_64f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToCCS_32s_ISfs(Qvx32s* d, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kCcs, qvxsFFTFwd_RToCCS_64f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_PermToR_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kPerm, qvxsFFTInv_PermToR_32f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_PermToR_16s_ISfs(Qvx16s* d, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kPerm, qvxsFFTInv_PermToR_32f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_PermToR_32s_Sfs(const Qvx32s* src, Qvx32s* dst, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kPerm, qvxsFFTInv_PermToR_64f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_PermToR_32s_ISfs(Qvx32s* d, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kPerm, qvxsFFTInv_PermToR_64f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_PackToR_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kPack, qvxsFFTInv_PackToR_32f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_PackToR_16s_ISfs(Qvx16s* d, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kPack, qvxsFFTInv_PackToR_32f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_PackToR_32s_Sfs(const Qvx32s* src, Qvx32s* dst, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kPack, qvxsFFTInv_PackToR_64f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_PackToR_32s_ISfs(Qvx32s* d, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kPack, qvxsFFTInv_PackToR_64f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CCSToR_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kCcs, qvxsFFTInv_CCSToR_32f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CCSToR_16s_ISfs(Qvx16s* d, const QvxsFFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kCcs, qvxsFFTInv_CCSToR_32f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CCSToR_32s_Sfs(const Qvx32s* src, Qvx32s* dst, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kCcs, qvxsFFTInv_CCSToR_64f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CCSToR_32s_ISfs(Qvx32s* d, const QvxsFFTSpec_R_32s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kCcs, qvxsFFTInv_CCSToR_64f_I>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_RToCCS_16s32s_Sfs(const Qvx16s* src, Qvx32s* dst, const QvxsFFTSpec_R_16s32s* spec, int sf, Qvx8u* pBuffer) { return forward<SpectrumLayout::kCcs, qvxsFFTFwd_RToCCS_32f_I>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CCSToR_32s16s_Sfs(const Qvx32s* src, Qvx16s* dst, const QvxsFFTSpec_R_16s32s* spec, int sf, Qvx8u* pBuffer) { return inverse<SpectrumLayout::kCcs, qvxsFFTInv_CCSToR_32f_I>(src, dst, spec, sf, pBuffer); }
// clang-format on
