// Zeros between samples, and samples left out.
#include "frame/map.h"

using namespace qvx;

namespace {

QvxStatus checkSampling(const void* src, int srcLen, const void* dst, const int* dstLen, int factor, const int* phase) {
  if (isNull(src) || isNull(dst) || isNull(dstLen) || isNull(phase)) return qvxStatNullPtr;
  if (srcLen < 1) return qvxStatBadSize;
  if (factor < 1) return qvxStatBadSampleFactor;
  return *phase < 0 || *phase >= factor ? qvxStatBadSamplePhase : qvxStatOk;
}

template <class T> QvxStatus sampleUp(const T* src, int srcLen, T* dst, int* dstLen, int factor, const int* phase) {
  const QvxStatus status = checkSampling(src, srcLen, dst, dstLen, factor, phase);
  if (status != qvxStatOk) return status;
  const size_t apart = elements(factor);
  const size_t first = elements(*phase);
  *dstLen = static_cast<int>(static_cast<uint32_t>(srcLen) * static_cast<uint32_t>(factor));
  for (size_t i = 0; i < elements(srcLen); ++i, dst += apart) {
    std::fill_n(dst, apart, T{});
    dst[first] = src[i];
  }
  return qvxStatOk;
}

template <class T> QvxStatus sampleDown(const T* src, int srcLen, T* dst, int* dstLen, int factor, int* phase) {
  const QvxStatus status = checkSampling(src, srcLen, dst, dstLen, factor, phase);
  if (status != qvxStatOk) return status;
  const size_t apart = elements(factor);
  const size_t length = elements(srcLen);
  size_t at = elements(*phase);
  size_t count = 0;
  for (; at < length; at += apart) dst[count++] = src[at];
  *dstLen = static_cast<int>(count);
  *phase = static_cast<int>(at - length);
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsSampleUp_16s(const Qvx16s* a, int len, Qvx16s* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleUp_16sc(const Qvx16sc* a, int len, Qvx16sc* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleUp_32f(const Qvx32f* a, int len, Qvx32f* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleUp_32fc(const Qvx32fc* a, int len, Qvx32fc* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleUp_64f(const Qvx64f* a, int len, Qvx64f* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleUp_64fc(const Qvx64fc* a, int len, Qvx64fc* d, int* dLen, int factor, int* phase) { return sampleUp(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_16s(const Qvx16s* a, int len, Qvx16s* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_16sc(const Qvx16sc* a, int len, Qvx16sc* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_32f(const Qvx32f* a, int len, Qvx32f* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_32fc(const Qvx32fc* a, int len, Qvx32fc* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_64f(const Qvx64f* a, int len, Qvx64f* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
QvxStatus qvxsSampleDown_64fc(const Qvx64fc* a, int len, Qvx64fc* d, int* dLen, int factor, int* phase) { return sampleDown(a, len, d, dLen, factor, phase); }
// clang-format on
