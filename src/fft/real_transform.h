// Transforms of real sequences, by complex ones of half the length.
#pragma once

#include <cstring>

#include "fft/recombine.h"
#include "fft/small_real.h"

namespace qvx::fft {

// The recombination's roots of 32 points, as constants.
template <class T> struct SmallRealRoots {
  static constexpr size_t L = lanesForReal<T>(16);
  T fine[16];
  constexpr SmallRealRoots() : fine() {
    for (size_t i = 0; i < 8; ++i) {
      const size_t k = i / L * L + Interleaved<T, false>::template element<L>(i % L) + 1;
      fine[i / L * 2 * L + i % L] = static_cast<T>(0.5 * cosineOf32(k));
      fine[i / L * 2 * L + i % L + L] = static_cast<T>(0.5 + 0.5 * cosineOf32(k + 8));
    }
  }
};
template <class T> alignas(64) inline constexpr SmallRealRoots<T> kSmallRealRoots;

// Of 32 points in double precision alone; 32 floats have a record's.
template <class T> RealRoots<T> realRootsOf(const Spec<T>& spec) {
  if (spec.order <= Orders<T>::kSmallReal) return {kSmallRealRoots<T>.fine, nullptr};
  return {spec.realRoots, spec.coarseRoots};
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
        n, n / 4 / kFine, [](size_t i) { return i * kFine; }, intoPairs(coarse));
  };
  if (lanesForReal<T>(n / 2) == kWidest<T>) write(std::integral_constant<size_t, kWidest<T>>());
  else write(std::integral_constant<size_t, kWidest<T> / 2>());  // 32 points under the widest registers
}

// ---- Where a spectrum's parts stand. All but the first and the last number are pairs; perm has those of pair k at 2k.

enum class Layout { kPerm, kPack, kCcs };

template <Layout kLayout, class T> void fromPerm(T* dst, size_t n) {
  if constexpr (kLayout == Layout::kPack) {
    const T nyquist = dst[1];
    std::memmove(dst + 1, dst + 2, (n - 2) * sizeof(T));
    dst[n - 1] = nyquist;
  } else if constexpr (kLayout == Layout::kCcs) {
    dst[n] = dst[1];
    dst[n + 1] = 0;
    dst[1] = 0;
  }
}

// Where the real part of pair k stands, and the one number of X[N/2].
template <Layout kLayout> constexpr size_t placeOf(size_t k) { return kLayout == Layout::kPack ? 2 * k - 1 : 2 * k; }
template <Layout kLayout> constexpr size_t lastPlace(size_t n) {
  return kLayout == Layout::kPerm ? 1 : kLayout == Layout::kPack ? n - 1 : n;
}

template <Layout kLayout, class T, class Fit> void longForward(const Spec<T>& spec, const T* src, T* dst, T* y, Fit fit) {
  const size_t n = size_t{1} << spec.order;
  complexTransform(spec, spec.order - 1, Interleaved<const T, false>{src}, Interleaved<T, false>{dst}, y, fit);
  const T even = dst[0];
  const T odd = dst[1];
  dst[0] = even + odd;
  dst[1] = even - odd;
  recombine<false>(dst, dst, n / 2, realRootsOf(spec));
  fromPerm<kLayout>(dst, n);
}

// The recombination gives half of what the complex transform needs; its factor makes up for that.
template <class T> Times<T> doubled(Times<T> fit) { return {2 * fit.factor}; }
template <class T> Times<T> doubled(Plain) { return {2}; }

template <Layout kLayout, class T, class Fit> void longInverse(const Spec<T>& spec, const T* src, T* dst, T* y, Fit fit) {
  const size_t n = size_t{1} << spec.order;
  const T nyquist = src[lastPlace<kLayout>(n)];
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

template <Layout kLayout, size_t N, class T, class Fit> [[gnu::noinline]] void smallForward(const T* src, T* dst, Fit fit) {
  using V = Vec<Lanes<T, 1>>;
  const Lanes<T, 1> d;
  const auto spectrum =
      realForward<N, V>([src](size_t i) __attribute__((always_inline)) { return load(Lanes<T, 1>(), src + i); });
  const auto put = [=](Complex<V> z, size_t re, size_t im) __attribute__((always_inline)) {
    const Complex<V> scaled = fit(z);
    store(scaled.re, d, dst + re);
    store(scaled.im, d, dst + im);
  };
  put({spectrum.first, spectrum.last}, 0, lastPlace<kLayout>(N));
  unrolled<N / 2 - 1>([&](auto i) __attribute__((always_inline)) {
    put(spectrum.between[i + 1], placeOf<kLayout>(i + 1), placeOf<kLayout>(i + 1) + 1);
  });
  if constexpr (kLayout == Layout::kCcs) dst[1] = dst[N + 1] = 0;
}
template <Layout kLayout, size_t N, class T, class Fit> [[gnu::noinline]] void smallInverse(const T* src, T* dst, Fit fit) {
  using V = Vec<Lanes<T, 1>>;
  const Lanes<T, 1> d;
  HalfSpectrum<N, V> spectrum;
  spectrum.first = load(d, src);
  spectrum.last = load(d, src + lastPlace<kLayout>(N));
  unrolled<N / 2 - 1>([&](auto i) __attribute__((always_inline)) {
    const T* pair = src + placeOf<kLayout>(i + 1);
    spectrum.between[i + 1] = {load(d, pair), load(d, pair + 1)};
  });
  V x[N];
  realInverse<N>(
      spectrum, [&](size_t i, V v) __attribute__((always_inline)) { x[i] = v; });
  unrolled<N>([&](auto i) __attribute__((always_inline)) { store(fit(Complex<V>{x[i], x[i]}).re, d, dst + i); });
}

template <Layout kLayout, class T, class Fit>
QVX_INLINE void forwardOf(const Spec<T>& spec, const T* src, T* dst, T* y, Fit fit) {
  switch (spec.order) {
    case 0:
      inLanes<1>(Apart<const T>{src, src}, Apart<T>{dst, dst}, fit);
      if (kLayout == Layout::kCcs) dst[1] = 0;
      return;
    case 1:
      return smallForward<kLayout, 2>(src, dst, fit);
    case 2:
      return smallForward<kLayout, 4>(src, dst, fit);
    case 3:
      return smallForward<kLayout, 8>(src, dst, fit);
    case 4:
      return smallForward<kLayout, 16>(src, dst, fit);
    default:
      return longForward<kLayout>(spec, src, dst, y, fit);
  }
}
template <Layout kLayout, class T, class Fit>
QVX_INLINE void inverseOf(const Spec<T>& spec, const T* src, T* dst, T* y, Fit fit) {
  switch (spec.order) {
    case 0:
      return inLanes<1>(Apart<const T>{src, src}, Apart<T>{dst, dst}, fit);
    case 1:
      return smallInverse<kLayout, 2>(src, dst, fit);
    case 2:
      return smallInverse<kLayout, 4>(src, dst, fit);
    case 3:
      return smallInverse<kLayout, 8>(src, dst, fit);
    case 4:
      return smallInverse<kLayout, 16>(src, dst, fit);
    default:
      return longInverse<kLayout>(spec, src, dst, y, fit);
  }
}

// ---- The functions of real record types

template <class Record>
QvxStatus initReal(Record** ppSpec, int order, int flag, int hint, Qvx8u* pMemory, const Qvx8u* pInitBuffer) {
  using T = typename Record::T;
  return init(ppSpec, order, flag, hint, Orders<T>::kReal, pMemory, pInitBuffer, [order](Record& spec, Qvx8u* tables) {
    spec.workSize = static_cast<int32_t>(realSizes<T>(order).work);
    if (order - 1 > Orders<T>::kCached && order - 1 <= Orders<T>::kThreaded) spec.threads = threadsOf();
    writeRealRoots(spec, writeRootsOf<Interleaved<T, false>>(spec, order - 1, reinterpret_cast<T*>(tables)));
  });
}

template <Layout kLayout, class T, class Record> QvxStatus spectrumOf(const T* src, T* dst, const Record* spec, Qvx8u* pBuffer) {
  return called<false>(spec, src, dst, pBuffer,
                       [=](const Record& record, T* y, auto fit) { forwardOf<kLayout, T>(record, src, dst, y, fit); });
}
template <Layout kLayout, class T, class Record> QvxStatus sequenceOf(const T* src, T* dst, const Record* spec, Qvx8u* pBuffer) {
  return called<true>(spec, src, dst, pBuffer,
                      [=](const Record& record, T* y, auto fit) { inverseOf<kLayout, T>(record, src, dst, y, fit); });
}

}  // namespace qvx::fft
