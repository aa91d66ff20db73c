// Transforms of any number of 16-bit integers, through floats: interleaved parts (16sc), separate ones (16s), real ones.
#include "dft/record.h"

using namespace qvx;
using namespace qvx::dft;

namespace {

// What the floats take is aligned first; then comes the transform's own memory.
constexpr auto workOf = [](auto floats) {
  return [=](uint32_t n) -> std::optional<int64_t> {
    const std::optional<int64_t> work = floats(n);
    if (!work || n == 1) return work;
    return *work + kPoint<Qvx32f> * n + 32;
  };
};

template <class Record> QvxStatus initInteger(Record** ppSpec, int len, int flag, bool isApart) {
  return initAlloc(ppSpec, len, flag, fft::Orders<Qvx32f>::kComplex, workOf(complexWork<Qvx32f>),
                   [=](auto& plan, uint32_t n) { return choose(plan, n, isApart, flag); });
}
QvxStatus initInteger(QvxsDFTSpec_R_16s** ppSpec, int len, int flag) {
  return initAlloc(ppSpec, len, flag, fft::Orders<Qvx32f>::kReal, workOf(realWork<Qvx32f>),
                   [=](auto& plan, uint32_t n) { return choose(plan, n, flag); });
}

// transform(y, work): y has room for 2 * n floats. Odd numbers of reals need more than the reported size; it is then allocated.
template <class Record, class Transform> QvxStatus throughFloats(const Record& spec, Qvx8u* pBuffer, Transform transform) {
  const int64_t all = kPoint<Qvx32f> * spec.plan.n + 32 + spec.needed;
  const Scratch scratch(all <= spec.workSize ? pBuffer : nullptr, all);
  if (scratch.isMissing(all)) return qvxStatNoMem;
  Carver carver = scratch.carver();
  auto* y = carver.take<Qvx32f>(2 * int64_t{spec.plan.n});
  return transform(y, carver.rest());
}

QvxStatus toIntegers(const Qvx32f* y, Qvx16s* dst, int len, int scaleFactor) {
  return qvxsConvert_32f16s_Sfs(y, dst, len, qvxRoundNearestEven, scaleFactor);
}

// One point is its own transform.
QvxStatus scaledCopy(const Qvx16s* src, Qvx16s* dst, int len, int scaleFactor) {
  for (int i = 0; i < len; ++i) dst[i] = scaled<Qvx16s>(int64_t{src[i]}, scaleFactor);
  return qvxStatOk;
}

template <bool kInverse>
QvxStatus interleavedIntegers(const Qvx16sc* src, Qvx16sc* dst, const QvxsDFTSpec_C_16sc* spec, int scaleFactor, Qvx8u* pBuffer) {
  const QvxStatus status = checkCall(spec, src, dst);
  if (status != qvxStatOk) return status;
  const int n = static_cast<int>(spec->plan.n);
  if (n == 1) return scaledCopy(parts(src), parts(dst), 2, scaleFactor);
  return throughFloats(*spec, pBuffer, [=](Qvx32f* y, Qvx8u* work) {
    qvxsConvert_16s32f(parts(src), y, 2 * n);
    run(spec->plan, kInverse, y, y, work);
    return toIntegers(y, parts(dst), 2 * n, scaleFactor);
  });
}
template <bool kInverse>
QvxStatus splitIntegers(const Qvx16s* srcRe, const Qvx16s* srcIm, Qvx16s* dstRe, Qvx16s* dstIm, const QvxsDFTSpec_C_16s* spec,
                        int scaleFactor, Qvx8u* pBuffer) {
  const QvxStatus status = checkCall(spec, Split<const Qvx16s>{srcRe, srcIm}, Split<Qvx16s>{dstRe, dstIm});
  if (status != qvxStatOk) return status;
  const int n = static_cast<int>(spec->plan.n);
  if (n == 1) {
    const Qvx16s im = *srcIm;  // which may be dstRe
    scaledCopy(srcRe, dstRe, 1, scaleFactor);
    return scaledCopy(&im, dstIm, 1, scaleFactor);
  }
  return throughFloats(*spec, pBuffer, [=](Qvx32f* y, Qvx8u* work) {
    qvxsConvert_16s32f(srcRe, y, n);
    qvxsConvert_16s32f(srcIm, y + n, n);
    run(spec->plan, kInverse, y, y + n, y, y + n, work);
    toIntegers(y, dstRe, n, scaleFactor);
    return toIntegers(y + n, dstIm, n, scaleFactor);
  });
}

template <SpectrumLayout kLayout>
QvxStatus spectrumOfIntegers(const Qvx16s* src, Qvx16s* dst, const QvxsDFTSpec_R_16s* spec, int scaleFactor, Qvx8u* pBuffer) {
  const QvxStatus status = checkCall(spec, src, dst);
  if (status != qvxStatOk) return status;
  const int n = static_cast<int>(spec->plan.n);
  if (n == 1) {
    if (kLayout == SpectrumLayout::kCcs) dst[1] = 0;
    return scaledCopy(src, dst, 1, scaleFactor);
  }
  return throughFloats(*spec, pBuffer, [=](Qvx32f* y, Qvx8u* work) {
    qvxsConvert_16s32f(src, y, n);
    forward(spec->plan, kLayout, y, y, work);
    return toIntegers(y, dst, static_cast<int>(spectrumLength(kLayout, spec->plan.n)), scaleFactor);
  });
}
template <SpectrumLayout kLayout>
QvxStatus sequenceOfIntegers(const Qvx16s* src, Qvx16s* dst, const QvxsDFTSpec_R_16s* spec, int scaleFactor, Qvx8u* pBuffer) {
  const QvxStatus status = checkCall(spec, src, dst);
  if (status != qvxStatOk) return status;
  const int n = static_cast<int>(spec->plan.n);
  if (n == 1) return scaledCopy(src, dst, 1, scaleFactor);
  return throughFloats(*spec, pBuffer, [=](Qvx32f* y, Qvx8u* work) {
    qvxsConvert_16s32f(src, y, static_cast<int>(spectrumLength(kLayout, spec->plan.n)));
    inverse(spec->plan, kLayout, y, y, work);
    return toIntegers(y, dst, n, scaleFactor);
  });
}

}  // namespace

// clang-format off
QvxStatus qvxsDFTInitAlloc_C_16sc(QvxsDFTSpec_C_16sc** ppSpec, int len, int flag, int) { return initInteger(ppSpec, len, flag, false); }
QvxStatus qvxsDFTFree_C_16sc(QvxsDFTSpec_C_16sc* spec) { return release(spec); }
QvxStatus qvxsDFTGetBufSize_C_16sc(const QvxsDFTSpec_C_16sc* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDFTInitAlloc_C_16s(QvxsDFTSpec_C_16s** ppSpec, int len, int flag, int) { return initInteger(ppSpec, len, flag, true); }
QvxStatus qvxsDFTFree_C_16s(QvxsDFTSpec_C_16s* spec) { return release(spec); }
QvxStatus qvxsDFTGetBufSize_C_16s(const QvxsDFTSpec_C_16s* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDFTInitAlloc_R_16s(QvxsDFTSpec_R_16s** ppSpec, int len, int flag, int) { return initInteger(ppSpec, len, flag); }
QvxStatus qvxsDFTFree_R_16s(QvxsDFTSpec_R_16s* spec) { return release(spec); }
QvxStatus qvxsDFTGetBufSize_R_16s(const QvxsDFTSpec_R_16s* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDFTFwd_CToC_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, const QvxsDFTSpec_C_16sc* spec, int sf, Qvx8u* pBuffer) { return interleavedIntegers<false>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsDFTInv_CToC_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, const QvxsDFTSpec_C_16sc* spec, int sf, Qvx8u* pBuffer) { return interleavedIntegers<true>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsDFTFwd_CToC_16s_Sfs(const Qvx16s* srcRe, const Qvx16s* srcIm, Qvx16s* dstRe, Qvx16s* dstIm, const QvxsDFTSpec_C_16s* spec, int sf, Qvx8u* pBuffer) { return splitIntegers<false>(srcRe, srcIm, dstRe, dstIm, spec, sf, pBuffer); }
QvxStatus qvxsDFTInv_CToC_16s_Sfs(const Qvx16s* srcRe, const Qvx16s* srcIm, Qvx16s* dstRe, Qvx16s* dstIm, const QvxsDFTSpec_C_16s* spec, int sf, Qvx8u* pBuffer) { return splitIntegers<true>(srcRe, srcIm, dstRe, dstIm, spec, sf, pBuffer); }
QvxStatus qvxsDFTFwd_RToPerm_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsDFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return spectrumOfIntegers<SpectrumLayout::kPerm>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsDFTFwd_RToPack_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsDFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return spectrumOfIntegers<SpectrumLayout::kPack>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsDFTFwd_RToCCS_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsDFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return spectrumOfIntegers<SpectrumLayout::kCcs>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsDFTInv_PermToR_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsDFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return sequenceOfIntegers<SpectrumLayout::kPerm>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsDFTInv_PackToR_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsDFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return sequenceOfIntegers<SpectrumLayout::kPack>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsDFTInv_CCSToR_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const QvxsDFTSpec_R_16s* spec, int sf, Qvx8u* pBuffer) { return sequenceOfIntegers<SpectrumLayout::kCcs>(src, dst, spec, sf, pBuffer); }
// clang-format on
