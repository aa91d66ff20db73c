// A transform as other families call it, by the type of their samples: packed real or complex, dividing on the way back, in
// memory that they carve out for it.
#pragma once

#include <bit>

#include "frame/map.h"

namespace qvx::fft {

inline constexpr int kInverseDivides = QVX_FFT_SCALE_INV;

template <class C> struct Transform;
template <> struct Transform<Qvx32f> {
  using Spec = QvxsFFTSpec_R_32f;
  static constexpr auto kGetSize = qvxsFFTGetSize_R_32f;
  static constexpr auto kInit = qvxsFFTInit_R_32f;
  static constexpr auto kForward = qvxsFFTFwd_RToPerm_32f;
  static constexpr auto kInverse = qvxsFFTInv_PermToR_32f;
};
template <> struct Transform<Qvx64f> {
  using Spec = QvxsFFTSpec_R_64f;
  static constexpr auto kGetSize = qvxsFFTGetSize_R_64f;
  static constexpr auto kInit = qvxsFFTInit_R_64f;
  static constexpr auto kForward = qvxsFFTFwd_RToPerm_64f;
  static constexpr auto kInverse = qvxsFFTInv_PermToR_64f;
};
template <> struct Transform<Qvx32fc> {
  using Spec = QvxsFFTSpec_C_32fc;
  static constexpr auto kGetSize = qvxsFFTGetSize_C_32fc;
  static constexpr auto kInit = qvxsFFTInit_C_32fc;
  static constexpr auto kForward = qvxsFFTFwd_CToC_32fc;
  static constexpr auto kInverse = qvxsFFTInv_CToC_32fc;
};
template <> struct Transform<Qvx64fc> {
  using Spec = QvxsFFTSpec_C_64fc;
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

// sum = sum + block * spectrum.
inline void addProduct(const Qvx32fc* spectrum, const Qvx32fc* block, Qvx32fc* sum, int length) {
  qvxsAddProduct_32fc(spectrum, block, sum, length);
}
inline void addProduct(const Qvx64fc* spectrum, const Qvx64fc* block, Qvx64fc* sum, int length) {
  qvxsAddProduct_64fc(spectrum, block, sum, length);
}
template <class T> void addProductPacked(const T* spectrum, const T* block, T* sum, int length) {
  using C = std::conditional_t<std::is_same_v<T, Qvx32f>, Qvx32fc, Qvx64fc>;
  const T first[] = {sum[0] + block[0] * spectrum[0], sum[1] + block[1] * spectrum[1]};
  addProduct(reinterpret_cast<const C*>(spectrum), reinterpret_cast<const C*>(block), reinterpret_cast<C*>(sum), length / 2);
  std::copy_n(first, 2, sum);
}
inline void addProduct(const Qvx32f* spectrum, const Qvx32f* block, Qvx32f* sum, int length) {
  addProductPacked(spectrum, block, sum, length);
}
inline void addProduct(const Qvx64f* spectrum, const Qvx64f* block, Qvx64f* sum, int length) {
  addProductPacked(spectrum, block, sum, length);
}

inline void conjugate(Qvx32fc* spectrum, int length) { qvxsConj_32fc_I(spectrum, length); }
inline void conjugate(Qvx64fc* spectrum, int length) { qvxsConj_64fc_I(spectrum, length); }
template <class T> void conjugatePacked(T* spectrum, int length) {
  using C = std::conditional_t<std::is_same_v<T, Qvx32f>, Qvx32fc, Qvx64fc>;
  const T middle = spectrum[1];
  conjugate(reinterpret_cast<C*>(spectrum), length / 2);
  spectrum[1] = middle;
}
inline void conjugate(Qvx32f* spectrum, int length) { conjugatePacked(spectrum, length); }
inline void conjugate(Qvx64f* spectrum, int length) { conjugatePacked(spectrum, length); }

// What a transform asks for, in points and bytes.
struct TransformSizes {
  int length = 0;  // 0: none
  int order = 0;
  int spec = 0;
  int init = 0;
  int work = 0;

  // None where the order is too high.
  template <class C> static TransformSizes ofOrder(int order) {
    TransformSizes sizes;
    sizes.order = order;
    const QvxStatus status = Transform<C>::kGetSize(order, kInverseDivides, 0, &sizes.spec, &sizes.init, &sizes.work);
    if (status == qvxStatOk) sizes.length = 1 << order;
    return sizes;
  }
};

}  // namespace qvx::fft
