// Transforms of real sequences, by complex ones of half the length.
#pragma once

#include <cstring>

#include "fft/recombine.h"

namespace qvx::fft {

// The recombination's roots of up to 32 points, as constants.
template <class T, size_t kPoints> struct SmallRealRoots {
  static constexpr size_t H = kPoints / 2;
  static constexpr size_t L = lanesForReal<T>(H);
  T fine[std::max<size_t>(H, 2)];
  constexpr SmallRealRoots() : fine() {
    for (size_t i = 0; i < H / 2; ++i) {
      const size_t k = (i / L * L + Interleaved<T, false>::template element<L>(i % L) + 1) * (32 / kPoints);
      fine[i / L * 2 * L + i % L] = static_cast<T>(0.5 * cosineOf32(k));
      fine[i / L * 2 * L + i % L + L] = static_cast<T>(0.5 + 0.5 * cosineOf32(k + 8));
    }
  }
};
template <class T, size_t kPoints> alignas(64) inline constexpr SmallRealRoots<T, kPoints> kSmallRealRoots;

template <class T> RealRoots<T> realRootsOf(const Spec<T>& spec) {
  switch (spec.order) {
    case 2: return {kSmallRealRoots<T, 4>.fine, nullptr};
    case 3: return {kSmallRealRoots<T, 8>.fine, nullptr};
    case 4: return {kSmallRealRoots<T, 16>.fine, nullptr};
    default:
      if (spec.order <= Orders<T>::kSmallReal) return {kSmallRealRoots<T, 32>.fine, nullptr};
      return {spec.realRoots, spec.coarseRoots};
  }
}

template <class T> void writeRealRoots(Spec<T>& spec, T* block) {
  if (spec.order <= Orders<T>::kSmallReal) return;
  const size_t n = size_t{1} << spec.order;
  T* out = alignedUp<64>(block);
  spec.realRoots = out;
  const auto write = [&](auto L) {
    if (spec.order < Orders<T>::kFineReal) {
      writeRealGroups<T, L>(out, n, n / 4, 1, [](double re, double im) { return Complex<double>{0.5 * re, 0.5 + 0.5 * im}; });
      return;
    }
    constexpr size_t kFine = Orders<T>::kFine;
    writeRealGroups<T, L>(out, n, kFine, 1, [](double re, double im) { return Complex<double>{re, im}; });
    T* coarse = out + 2 * kFine;
    spec.coarseRoots = coarse;
    writeRoots(
        n, n / 4 / kFine, [](size_t i) { return i * kFine; },
        [coarse](size_t i, double re, double im) {
          coarse[2 * i] = static_cast<T>(re);
          coarse[2 * i + 1] = static_cast<T>(im);
        });
  };
  if (lanesForReal<T>(n / 2) == kWidest<T>) write(std::integral_constant<size_t, kWidest<T>>());
  else write(std::integral_constant<size_t, kWidest<T> / 2>());  // 32 points under the widest registers
}

// ---- Where a spectrum's parts stand. All but the first and the last number are pairs; perm has those of pair k at 2k.

enum class Layout { kPerm, kPack, kCcs };

template <Layout kLayout, class T> void fromPerm(T* dst, size_t n) {
  if constexpr (kLayout == Layout::kPack) {
    if (n < 3) return;
    const T nyquist = dst[1];
    std::memmove(dst + 1, dst + 2, (n - 2) * sizeof(T));
    dst[n - 1] = nyquist;
  } else if constexpr (kLayout == Layout::kCcs) {
    if (n > 1) {
      dst[n] = dst[1];
      dst[n + 1] = 0;
    }
    dst[1] = 0;
  }
}

template <Layout kLayout, class T, class Fit> void realForward(const Spec<T>& spec, const T* src, T* dst, T* y, Fit fit) {
  const size_t n = size_t{1} << spec.order;
  if (n == 1) {
    inLanes<1>(Apart<const T>{src, src}, Apart<T>{dst, dst}, fit);
  } else {
    complexTransform(spec, spec.order - 1, Interleaved<const T, false>{src}, Interleaved<T, false>{dst}, y, fit);
    const T even = dst[0];
    const T odd = dst[1];
    dst[0] = even + odd;
    dst[1] = even - odd;
    recombine<false>(dst, dst, n / 2, realRootsOf(spec));
  }
  fromPerm<kLayout>(dst, n);
}

// The recombination gives half of what the complex transform needs; its factor makes up for that.
template <class T> Times<T> doubled(Times<T> fit) { return {2 * fit.factor}; }
template <class T> Times<T> doubled(Plain) { return {2}; }

template <Layout kLayout, class T, class Fit> void realInverse(const Spec<T>& spec, const T* src, T* dst, T* y, Fit fit) {
  const size_t n = size_t{1} << spec.order;
  if (n == 1) return inLanes<1>(Apart<const T>{src, src}, Apart<T>{dst, dst}, fit);
  const T nyquist = src[kLayout == Layout::kPerm ? 1 : kLayout == Layout::kPack ? n - 1 : n];
  const T mean = src[0];
  if constexpr (kLayout == Layout::kPack) {
    std::memmove(dst + 2, src + 1, (n - 2) * sizeof(T));
    src = dst;
  }
  recombine<true>(src, dst, n / 2, realRootsOf(spec));
  dst[0] = T(0.5) * (mean + nyquist);
  dst[1] = T(0.5) * (mean - nyquist);
  complexTransform(spec, spec.order - 1, Interleaved<const T, true>{dst}, Interleaved<T, true>{dst}, y, doubled<T>(fit));
}

}  // namespace qvx::fft
