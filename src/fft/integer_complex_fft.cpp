// Complex transforms of integers: interleaved parts (16sc, 32sc) and separate ones (16s, 32s).
#include "fft/integer_points.h"
#include "fft/integer_small.h"

using namespace qvx;
using namespace qvx::fft;

namespace {

constexpr int kLimit16 = limitOf(Orders<Qvx32f>::kComplex, [](int order) { return complexSizes16(order, 0, false); });
constexpr int kLimit32 = limitOf(Orders<Qvx64f>::kComplex, complexSizes32);
static_assert(kLimit16 == 27 && kLimit32 == 26);

template <class Record>
QvxStatus init16(Record** ppSpec, int order, int flag, int hint, bool apart, Qvx8u* pSpec, Qvx8u* pInit,
                 QvxStatus (*initFloats)(typename Record::Floats**, int, int, int, Qvx8u*, Qvx8u*)) {
  const auto workSize = [=] { return complexSizes16(order, hint, apart).work; };
  return initInteger(ppSpec, order, flag, kLimit16, isInIntegers(order, hint), workSize, pSpec, pInit, initFloats);
}
template <class Record>
QvxStatus init32(Record** ppSpec, int order, int flag, Qvx8u* pSpec, Qvx8u* pInit,
                 QvxStatus (*initFloats)(typename Record::Floats**, int, int, int, Qvx8u*, Qvx8u*)) {
  return initInteger(
      ppSpec, order, flag, kLimit32, false, [=] { return complexSizes32(order).work; }, pSpec, pInit, initFloats);
}

// ---- interleaved

template <bool kInverse> QvxStatus inIntegers(const Qvx16sc* src, Qvx16sc* dst, const QvxsFFTSpec_C_16sc& spec, int scaleFactor) {
  const int count = 2 << spec.order;
  FixedPoint fixed(spec.order);
  fixed.read(&src->re, count);
  integerTransform<kInverse>(fixed.points(), spec.order);
  const int shift = fixed.scaled<kInverse>(spec, scaleFactor);
  return qvxsConvert_32s16s_Sfs(fixed.numbers(), &dst->re, count, shift);
}

template <bool kInverse, auto kTransform, class T, class Record>
QvxStatus throughFloats(const T* src, T* dst, const Record& spec, int scaleFactor, Qvx8u* pBuffer) {
  using Float = typename Record::Floats::T;
  using From = InterleavedIntegers<Float, FromIntegers<Float, T>, kInverse>;
  using To = InterleavedIntegers<Float, ToIntegers<Float, T>, kInverse>;
  if (spec.order <= kShortOrder<From>) {
    return inRegisters<kInverse>(*spec.floats, scaleFactor, [=, order = spec.order](Float factor) {
      return smallTransform(order, From{{src}}, To{{dst, factor}}, Unscaled{});
    });
  }
  const int count = 2 << spec.order;
  return throughFloats<kTransform>(spec, src, count, dst, count, scaleFactor, pBuffer);
}

template <bool kInverse>
QvxStatus interleaved(const Qvx16sc* src, Qvx16sc* dst, const QvxsFFTSpec_C_16sc* spec, int scaleFactor, Qvx8u* pBuffer) {
  const QvxStatus status = checkSpec(spec);
  if (status != qvxStatOk) return status;
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if (isNull(spec->floats)) return inIntegers<kInverse>(src, dst, *spec, scaleFactor);
  constexpr auto kTransform = kInverse ? qvxsFFTInv_CToC_32fc_I : qvxsFFTFwd_CToC_32fc_I;
  return throughFloats<kInverse, kTransform>(&src->re, &dst->re, *spec, scaleFactor, pBuffer);
}
template <bool kInverse>
QvxStatus interleaved(const Qvx32sc* src, Qvx32sc* dst, const QvxsFFTSpec_C_32sc* spec, int scaleFactor, Qvx8u* pBuffer) {
  const QvxStatus status = checkSpec(spec);
  if (status != qvxStatOk) return status;
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  constexpr auto kTransform = kInverse ? qvxsFFTInv_CToC_64fc_I : qvxsFFTFwd_CToC_64fc_I;
  return throughFloats<kInverse, kTransform>(&src->re, &dst->re, *spec, scaleFactor, pBuffer);
}

// ---- split

template <class T> struct Parts {
  T* re;
  T* im;
};
template <class T> bool isMissing(Parts<T> parts) { return isNull(parts.re) || isNull(parts.im); }

template <bool kInverse>
QvxStatus inIntegers(Parts<const Qvx16s> src, Parts<Qvx16s> dst, const QvxsFFTSpec_C_16s& spec, int scaleFactor) {
  const int n = 1 << spec.order;
  FixedPoint fixed(spec.order);
  for (int i = 0; i < n; ++i) fixed.points()[i] = {fixed.widened(src.re[i]), fixed.widened(src.im[i])};
  integerTransform<kInverse>(fixed.points(), spec.order);
  const int shift = fixed.scaled<kInverse>(spec, scaleFactor);
  for (int i = 0; i < n; ++i) {
    dst.re[i] = scaled<Qvx16s>(int64_t{fixed.points()[i].re}, shift);
    dst.im[i] = scaled<Qvx16s>(int64_t{fixed.points()[i].im}, shift);
  }
  return qvxStatOk;
}

template <bool kInverse, auto kTransform, class T, class Record>
QvxStatus throughFloats(Parts<const T> src, Parts<T> dst, const Record& spec, int scaleFactor, Qvx8u* pBuffer) {
  using Float = typename Record::Floats::T;
  using From = SplitIntegers<Float, FromIntegers<Float, T>>;
  using To = SplitIntegers<Float, ToIntegers<Float, T>>;
  if (spec.order <= kShortOrder<From>) {
    return inRegisters<kInverse>(*spec.floats, scaleFactor, [=, order = spec.order](Float factor) {
      const From from = kInverse ? From{{src.im}, {src.re}} : From{{src.re}, {src.im}};
      const To to = kInverse ? To{{dst.im, factor}, {dst.re, factor}} : To{{dst.re, factor}, {dst.im, factor}};
      return smallTransform(order, from, to, Unscaled{});
    });
  }
  const int n = 1 << spec.order;
  return withFloats(spec, 2 * n, pBuffer, [&](auto* y, Qvx8u* work) {
    toFloats(src.re, y, n);
    toFloats(src.im, y + n, n);
    const QvxStatus status = kTransform(y, y + n, spec.floats, work);
    if (status != qvxStatOk) return status;
    toIntegers(y, dst.re, n, scaleFactor);
    return toIntegers(y + n, dst.im, n, scaleFactor);
  });
}

template <bool kInverse>
QvxStatus split(Parts<const Qvx16s> src, Parts<Qvx16s> dst, const QvxsFFTSpec_C_16s* spec, int scaleFactor, Qvx8u* pBuffer) {
  const QvxStatus status = checkSpec(spec);
  if (status != qvxStatOk) return status;
  if (isMissing(src) || isMissing(dst)) return qvxStatNullPtr;
  if (isNull(spec->floats)) return inIntegers<kInverse>(src, dst, *spec, scaleFactor);
  constexpr auto kTransform = kInverse ? qvxsFFTInv_CToC_32f_I : qvxsFFTFwd_CToC_32f_I;
  return throughFloats<kInverse, kTransform>(src, dst, *spec, scaleFactor, pBuffer);
}
template <bool kInverse>
QvxStatus split(Parts<const Qvx32s> src, Parts<Qvx32s> dst, const QvxsFFTSpec_C_32s* spec, int scaleFactor, Qvx8u* pBuffer) {
  const QvxStatus status = checkSpec(spec);
  if (status != qvxStatOk) return status;
  if (isMissing(src) || isMissing(dst)) return qvxStatNullPtr;
  constexpr auto kTransform = kInverse ? qvxsFFTInv_CToC_64f_I : qvxsFFTFwd_CToC_64f_I;
  return throughFloats<kInverse, kTransform>(src, dst, *spec, scaleFactor, pBuffer);
}

}  // namespace

// clang-format off
QvxStatus qvxsFFTGetSize_C_16sc(int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(order, flag, kLimit16, pSpecSize, pInitSize, pWorkSize, [=](int m) { return complexSizes16(m, hint, false); }); }
QvxStatus qvxsFFTInit_C_16sc(QvxsFFTSpec_C_16sc** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return init16(ppSpec, order, flag, hint, false, pSpec, pInit, qvxsFFTInit_C_32fc); }
QvxStatus qvxsFFTInitAlloc_C_16sc(QvxsFFTSpec_C_16sc** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_C_16sc, qvxsFFTInit_C_16sc); }
QvxStatus qvxsFFTFree_C_16sc(QvxsFFTSpec_C_16sc* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_C_16sc(const QvxsFFTSpec_C_16sc* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsFFTGetSize_C_16s(int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(order, flag, kLimit16, pSpecSize, pInitSize, pWorkSize, [=](int m) { return complexSizes16(m, hint, true); }); }
QvxStatus qvxsFFTInit_C_16s(QvxsFFTSpec_C_16s** ppSpec, int order, int flag, int hint, Qvx8u* pSpec, Qvx8u* pInit) { return init16(ppSpec, order, flag, hint, true, pSpec, pInit, qvxsFFTInit_C_32f); }
QvxStatus qvxsFFTInitAlloc_C_16s(QvxsFFTSpec_C_16s** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_C_16s, qvxsFFTInit_C_16s); }
QvxStatus qvxsFFTFree_C_16s(QvxsFFTSpec_C_16s* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_C_16s(const QvxsFFTSpec_C_16s* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsFFTGetSize_C_32sc(int order, int flag, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(order, flag, kLimit32, pSpecSize, pInitSize, pWorkSize, complexSizes32); }
QvxStatus qvxsFFTInit_C_32sc(QvxsFFTSpec_C_32sc** ppSpec, int order, int flag, int, Qvx8u* pSpec, Qvx8u* pInit) { return init32(ppSpec, order, flag, pSpec, pInit, qvxsFFTInit_C_64fc); }
QvxStatus qvxsFFTInitAlloc_C_32sc(QvxsFFTSpec_C_32sc** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_C_32sc, qvxsFFTInit_C_32sc); }
QvxStatus qvxsFFTFree_C_32sc(QvxsFFTSpec_C_32sc* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_C_32sc(const QvxsFFTSpec_C_32sc* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsFFTGetSize_C_32s(int order, int flag, int hint, int* pSpecSize, int* pInitSize, int* pWorkSize) { return qvxsFFTGetSize_C_32sc(order, flag, hint, pSpecSize, pInitSize, pWorkSize); }
QvxStatus qvxsFFTInit_C_32s(QvxsFFTSpec_C_32s** ppSpec, int order, int flag, int, Qvx8u* pSpec, Qvx8u* pInit) { return init32(ppSpec, order, flag, pSpec, pInit, qvxsFFTInit_C_64f); }
QvxStatus qvxsFFTInitAlloc_C_32s(QvxsFFTSpec_C_32s** ppSpec, int order, int flag, int hint) { return initAlloc(ppSpec, order, flag, hint, qvxsFFTGetSize_C_32s, qvxsFFTInit_C_32s); }
QvxStatus qvxsFFTFree_C_32s(QvxsFFTSpec_C_32s* spec) { return release(spec); }
QvxStatus qvxsFFTGetBufSize_C_32s(const QvxsFFTSpec_C_32s* spec, int* pSize) { return bufferSize(spec, pSize); }

QvxStatus qvxsFFTFwd_CToC_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, const QvxsFFTSpec_C_16sc* spec, int sf, Qvx8u* pBuffer) { return interleaved<false>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_16sc_ISfs(Qvx16sc* d, const QvxsFFTSpec_C_16sc* spec, int sf, Qvx8u* pBuffer) { return interleaved<false>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CToC_16sc_Sfs(const Qvx16sc* src, Qvx16sc* dst, const QvxsFFTSpec_C_16sc* spec, int sf, Qvx8u* pBuffer) { return interleaved<true>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CToC_16sc_ISfs(Qvx16sc* d, const QvxsFFTSpec_C_16sc* spec, int sf, Qvx8u* pBuffer) { return interleaved<true>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_32sc_Sfs(const Qvx32sc* src, Qvx32sc* dst, const QvxsFFTSpec_C_32sc* spec, int sf, Qvx8u* pBuffer) { return interleaved<false>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_32sc_ISfs(Qvx32sc* d, const QvxsFFTSpec_C_32sc* spec, int sf, Qvx8u* pBuffer) { return interleaved<false>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CToC_32sc_Sfs(const Qvx32sc* src, Qvx32sc* dst, const QvxsFFTSpec_C_32sc* spec, int sf, Qvx8u* pBuffer) { return interleaved<true>(src, dst, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CToC_32sc_ISfs(Qvx32sc* d, const QvxsFFTSpec_C_32sc* spec, int sf, Qvx8u* pBuffer) { return interleaved<true>(d, d, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_16s_Sfs(const Qvx16s* srcRe, const Qvx16s* srcIm, Qvx16s* dstRe, Qvx16s* dstIm, const QvxsFFTSpec_C_16s* spec, int sf, Qvx8u* pBuffer) { return split<false>({srcRe, srcIm}, {dstRe, dstIm}, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_16s_ISfs(Qvx16s* re, Qvx16s* im, const QvxsFFTSpec_C_16s* spec, int sf, Qvx8u* pBuffer) { return split<false>({re, im}, {re, im}, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CToC_16s_Sfs(const Qvx16s* srcRe, const Qvx16s* srcIm, Qvx16s* dstRe, Qvx16s* dstIm, const QvxsFFTSpec_C_16s* spec, int sf, Qvx8u* pBuffer) { return split<true>({srcRe, srcIm}, {dstRe, dstIm}, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CToC_16s_ISfs(Qvx16s* re, Qvx16s* im, const QvxsFFTSpec_C_16s* spec, int sf, Qvx8u* pBuffer) { return split<true>({re, im}, {re, im}, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_32s_Sfs(const Qvx32s* srcRe, const Qvx32s* srcIm, Qvx32s* dstRe, Qvx32s* dstIm, const QvxsFFTSpec_C_32s* spec, int sf, Qvx8u* pBuffer) { return split<false>({srcRe, srcIm}, {dstRe, dstIm}, spec, sf, pBuffer); }
QvxStatus qvxsFFTFwd_CToC_32s_ISfs(Qvx32s* re, Qvx32s* im, const QvxsFFTSpec_C_32s* spec, int sf, Qvx8u* pBuffer) { return split<false>({re, im}, {re, im}, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CToC_32s_Sfs(const Qvx32s* srcRe, const Qvx32s* srcIm, Qvx32s* dstRe, Qvx32s* dstIm, const QvxsFFTSpec_C_32s* spec, int sf, Qvx8u* pBuffer) { return split<true>({srcRe, srcIm}, {dstRe, dstIm}, spec, sf, pBuffer); }
QvxStatus qvxsFFTInv_CToC_32s_ISfs(Qvx32s* re, Qvx32s* im, const QvxsFFTSpec_C_32s* spec, int sf, Qvx8u* pBuffer) { return split<true>({re, im}, {re, im}, spec, sf, pBuffer); }
// clang-format on
