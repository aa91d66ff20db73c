// The transform that a kernel type takes the long way by: packed real or complex, dividing on the way back.
#pragma once

#include "frame/map.h"

namespace qvx::fir {

inline constexpr int kInverseDivides = 2;

// kLeastTaps: the shortest filter that has one. kPaysFrom: the shortest that it filters faster than the sum of products, which
// wide vectors do sooner: of 16 taps and 32fc, AVX-512 takes 0.4 of the transform's time, SSSE3 0.9. kAbove: calls of more
// samples take it.
template <class C> struct Transform;

constexpr int byRegisters(int avx512, int avx2, int ssse3) { return kHasMasks ? avx512 : kFuses ? avx2 : ssse3; }

struct RealLimits {
  static constexpr int kLeastTaps = 64;
  static constexpr int kAbove = 511;
};
template <> struct Transform<Qvx32f> : RealLimits {
  using Spec = QvxsFFTSpec_R_32f;
  static constexpr int kPaysFrom = byRegisters(128, 80, 64);
  static constexpr auto kGetSize = qvxsFFTGetSize_R_32f;
  static constexpr auto kInit = qvxsFFTInit_R_32f;
  static constexpr auto kForward = qvxsFFTFwd_RToPerm_32f;
  static constexpr auto kInverse = qvxsFFTInv_PermToR_32f;
};
template <> struct Transform<Qvx64f> : RealLimits {
  using Spec = QvxsFFTSpec_R_64f;
  static constexpr int kPaysFrom = byRegisters(100, 64, 64);
  static constexpr auto kGetSize = qvxsFFTGetSize_R_64f;
  static constexpr auto kInit = qvxsFFTInit_R_64f;
  static constexpr auto kForward = qvxsFFTFwd_RToPerm_64f;
  static constexpr auto kInverse = qvxsFFTInv_PermToR_64f;
};
template <> struct Transform<Qvx32fc> {
  using Spec = QvxsFFTSpec_C_32fc;
  static constexpr int kLeastTaps = 16;
  static constexpr int kPaysFrom = byRegisters(38, 32, 18);
  static constexpr int kAbove = 255;
  static constexpr auto kGetSize = qvxsFFTGetSize_C_32fc;
  static constexpr auto kInit = qvxsFFTInit_C_32fc;
  static constexpr auto kForward = qvxsFFTFwd_CToC_32fc;
  static constexpr auto kInverse = qvxsFFTInv_CToC_32fc;
};
template <> struct Transform<Qvx64fc> {
  using Spec = QvxsFFTSpec_C_64fc;
  static constexpr int kLeastTaps = 32;
  static constexpr int kPaysFrom = kLeastTaps;
  static constexpr int kAbove = 255;
  static constexpr auto kGetSize = qvxsFFTGetSize_C_64fc;
  static constexpr auto kInit = qvxsFFTInit_C_64fc;
  static constexpr auto kForward = qvxsFFTFwd_CToC_64fc;
  static constexpr auto kInverse = qvxsFFTInv_CToC_64fc;
};

// block = block * spectrum. A packed real spectrum begins with two real numbers, a complex one with a complex.
inline void multiply(const Qvx32fc* spectrum, Qvx32fc* block, int length) { qvxsMul_32fc_I(spectrum, block, length); }
inline void multiply(const Qvx64fc* spectrum, Qvx64fc* block, int length) { qvxsMul_64fc_I(spectrum, block, length); }
template <class T> void multiplyPacked(const T* spectrum, T* block, int length) {
  using C = std::conditional_t<std::is_same_v<T, Qvx32f>, Qvx32fc, Qvx64fc>;
  const T first[] = {block[0] * spectrum[0], block[1] * spectrum[1]};
  multiply(reinterpret_cast<const C*>(spectrum), reinterpret_cast<C*>(block), length / 2);
  std::copy_n(first, 2, block);
}
inline void multiply(const Qvx32f* spectrum, Qvx32f* block, int length) { multiplyPacked(spectrum, block, length); }
inline void multiply(const Qvx64f* spectrum, Qvx64f* block, int length) { multiplyPacked(spectrum, block, length); }

struct TransformSizes {
  int length = 0;  // 0: none
  int order = 0;
  int spec = 0;
  int init = 0;
  int work = 0;

  template <class C> static TransformSizes of(int tapsLen) {
    TransformSizes sizes;
    if (tapsLen < Transform<C>::kLeastTaps) return sizes;
    sizes.order = std::bit_width(static_cast<uint32_t>(tapsLen)) + 1;
    const QvxStatus status = Transform<C>::kGetSize(sizes.order, kInverseDivides, 0, &sizes.spec, &sizes.init, &sizes.work);
    if (status == qvxStatOk) sizes.length = 1 << sizes.order;
    return sizes;
  }
};

}  // namespace qvx::fir
