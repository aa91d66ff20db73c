// Transforms of real sequences, by complex ones of half the length.
#pragma once

#include <cstring>

#include "transform/recombine.h"
#include "transform/small_real.h"

namespace qvx::transform {

// Orders up to this one stay in registers, with twiddles that are constants.
inline constexpr int kShortReal = 7;

// The plan of n real numbers: that of half as many complex ones, and what makes a spectrum of theirs.
template <class T> struct RealPlan {
  ComplexPlan<T> half;
  RealTwiddles<T> twiddles;

  size_t n() const { return 2 * size_t{half.n}; }
};

// What recombine() takes of the twiddle (re, im).
inline constexpr auto kHalvedTwiddle = [](double re, double im) { return Complex<double>{0.5 * re, 0.5 + 0.5 * im}; };

template <class T> void writePlan(RealPlan<T>& plan, size_t n, T* block) {
  T* const out = alignedUp(writePlan<Interleaved<T, false>>(plan.half, n / 2, block), Carver::kLine);
  if (n <= size_t{1} << kShortReal) return;
  if (n < kTwoTables<T>) {
    plan.twiddles = {out, nullptr};
    writeRealGroups(out, n, n / 4, kHalvedTwiddle);
    return;
  }
  writeRealGroups(out, n, kFine<T>, [](double re, double im) { return Complex<double>{re, im}; });
  T* const coarse = out + 2 * kFine<T>;
  plan.twiddles = {out, coarse};
  writeTwiddles(
      n, n / 4 / kFine<T>, [](size_t i) { return i * kFine<T>; }, intoPairs(coarse));
}

template <SpectrumLayout kLayout, class T> void fromPerm(T* dst, size_t n) {
  if constexpr (kLayout == SpectrumLayout::kPack) {
    const T nyquist = dst[1];
    std::memmove(dst + 1, dst + 2, (n - 2) * sizeof(T));
    dst[n - 1] = nyquist;
  } else if constexpr (kLayout == SpectrumLayout::kCcs) {
    dst[n] = dst[1];
    dst[n + 1] = 0;
    dst[1] = 0;
  }
}

template <SpectrumLayout kLayout, class T, class Scale>
void longForward(const RealPlan<T>& plan, const T* src, T* dst, T* y, Scale scale) {
  const size_t n = plan.n();
  complexTransform(plan.half, Interleaved<const T, false>{src}, Interleaved<T, false>{dst}, y, scale);
  const T even = dst[0];
  const T odd = dst[1];
  dst[0] = even + odd;
  dst[1] = even - odd;
  recombineInTeam<false>(plan.half.threads(), dst, dst, n / 2, plan.twiddles);
  fromPerm<kLayout>(dst, n);
}

// The recombination gives half of what the complex transform needs, so the factor is doubled.
template <class T> ScaledBy<T> doubled(ScaledBy<T> scale) { return {2 * scale.factor}; }
template <class T> ScaledBy<T> doubled(Unscaled) { return {2}; }

template <SpectrumLayout kLayout, class T, class Scale>
void longInverse(const RealPlan<T>& plan, const T* src, T* dst, T* y, Scale scale) {
  const size_t n = plan.n();
  const T nyquist = src[placeOfMiddle(kLayout, n)];
  const T mean = src[0];
  if constexpr (kLayout == SpectrumLayout::kPack) {
    std::memmove(dst + 2, src + 1, (n - 2) * sizeof(T));
    src = dst;
  }
  recombineInTeam<true>(plan.half.threads(), src, dst, n / 2, plan.twiddles);
  dst[0] = T(0.5) * (mean + nyquist);
  dst[1] = T(0.5) * (mean - nyquist);
  complexTransform(plan.half, Interleaved<const T, true>{dst}, Interleaved<T, true>{dst}, y, doubled<T>(scale));
}

// Up to kShortReal.
template <bool kInverse, SpectrumLayout kLayout, class T, class Src, class Dst, class Scale>
QVX_INLINE QvxStatus shortReal(int order, Src src, Dst dst, Scale scale) {
  const auto of = [=](auto n) __attribute__((always_inline)) {
    constexpr auto layout = layoutFor<kLayout, n>();
    if constexpr (kInverse) return smallInverse<n, T>(layout, src, dst, scale);
    else if constexpr (n == 8) return forwardOfEight<T>(layout, src, dst, scale);
    else if constexpr (n == 16) return forwardOfSixteen<T>(layout, src, dst, scale);
    else return smallForward<n, T>(layout, src, dst, scale);
  };
  const Lanes<T, 1> one;
  switch (order) {
    case 0:
      dst.put(scale(src.get(one, 0)), 0);
      if (!kInverse && kLayout == SpectrumLayout::kCcs) dst.put(hn::Zero(one), 1);
      return qvxStatOk;
    case 1:
      return of(std::integral_constant<size_t, 2>());
    case 2:
      return of(std::integral_constant<size_t, 4>());
    case 3:
      return of(std::integral_constant<size_t, 8>());
    case 4:
      return of(std::integral_constant<size_t, 16>());
    case 5:
      return of(std::integral_constant<size_t, 32>());
    case 6:
      return of(std::integral_constant<size_t, 64>());
    default:
      return of(std::integral_constant<size_t, 128>());
  }
}

}  // namespace qvx::transform
