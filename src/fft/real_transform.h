// Transforms of real sequences, by complex ones of half the length.
#pragma once

#include <cstring>

#include "fft/recombine.h"
#include "fft/small_real.h"

namespace qvx::fft {

// Up to here, registers hold all and constants turn it.
inline constexpr int kShortReal = 5;

template <class T> void writeRealRoots(Spec<T>& spec, T* block) {
  if (spec.order <= kShortReal) return;
  const size_t n = size_t{1} << spec.order;
  T* out = alignedUp<64>(block);
  spec.realRoots = out;
  if (spec.order < Orders<T>::kFineReal) {
    writeRealGroups(out, n, n / 4, [](double re, double im) { return Complex<double>{0.5 * re, 0.5 + 0.5 * im}; });
    return;
  }
  constexpr size_t kFine = Orders<T>::kFine;
  writeRealGroups(out, n, kFine, [](double re, double im) { return Complex<double>{re, im}; });
  T* coarse = out + 2 * kFine;
  spec.coarseRoots = coarse;
  writeRoots(
      n, n / 4 / kFine, [](size_t i) { return i * kFine; }, intoPairs(coarse));
}

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

template <Layout kLayout, class T, class Fit> void longForward(const Spec<T>& spec, const T* src, T* dst, T* y, Fit fit) {
  const size_t n = size_t{1} << spec.order;
  complexTransform(spec, spec.order - 1, Interleaved<const T, false>{src}, Interleaved<T, false>{dst}, y, fit);
  const T even = dst[0];
  const T odd = dst[1];
  dst[0] = even + odd;
  dst[1] = even - odd;
  recombine<false>(dst, dst, n / 2, RealRoots<T>{spec.realRoots, spec.coarseRoots});
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
  recombine<true>(src, dst, n / 2, RealRoots<T>{spec.realRoots, spec.coarseRoots});
  dst[0] = T(0.5) * (mean + nyquist);
  dst[1] = T(0.5) * (mean - nyquist);
  complexTransform(spec, spec.order - 1, Interleaved<const T, true>{dst}, Interleaved<T, true>{dst}, y, doubled<T>(fit));
}

// Of up to 32 numbers.
template <bool kInverse, Layout kLayout, class T, class Src, class Dst, class Fit>
QVX_INLINE QvxStatus shortReal(int order, Src src, Dst dst, Fit fit) {
  const auto of = [=](auto n) __attribute__((always_inline)) {
    if constexpr (kInverse) return smallInverse<kLayout, n, T>(src, dst, fit);
    else if constexpr (n == 8) return forwardOfEight<kLayout, T>(src, dst, fit);
    else return smallForward<kLayout, n, T>(src, dst, fit);
  };
  const Lanes<T, 1> one;
  switch (order) {
    case 0:
      dst.put(fit(src.get(one, 0)), 0);
      if (!kInverse && kLayout == Layout::kCcs) dst.put(hn::Zero(one), 1);
      return qvxStatOk;
    case 1:
      return of(std::integral_constant<size_t, 2>());
    case 2:
      return of(std::integral_constant<size_t, 4>());
    case 3:
      return of(std::integral_constant<size_t, 8>());
    case 4:
      return of(std::integral_constant<size_t, 16>());
    default:
      return of(std::integral_constant<size_t, 32>());
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

template <bool kInverse, Layout kLayout, class T>
[[gnu::noinline]] QvxStatus longRealCall(const Spec<T>& spec, const T* src, T* dst, Qvx8u* pBuffer) {
  return withWork<kInverse>(spec, pBuffer, [&](T* y, auto fit) {
    if constexpr (kInverse) longInverse<kLayout>(spec, src, dst, y, fit);
    else longForward<kLayout>(spec, src, dst, y, fit);
  });
}
template <bool kInverse, Layout kLayout, class T, class Record>
QVX_INLINE QvxStatus realTransform(const T* src, T* dst, const Record* spec, Qvx8u* pBuffer) {
  const QvxStatus status = checkCall(spec, src, dst);
  if (status != qvxStatOk) return status;
  if (spec->order > kShortReal) return longRealCall<kInverse, kLayout, T>(*spec, src, dst, pBuffer);
  return withFit<kInverse, T>(
      *spec, [=](auto fit) __attribute__((always_inline)) {
        return shortReal<kInverse, kLayout, T>(spec->order, Floats<const T>{src}, Floats<T>{dst}, fit);
      });
}

template <Layout kLayout, class T, class Record> QvxStatus spectrumOf(const T* src, T* dst, const Record* spec, Qvx8u* pBuffer) {
  return realTransform<false, kLayout>(src, dst, spec, pBuffer);
}
template <Layout kLayout, class T, class Record> QvxStatus sequenceOf(const T* src, T* dst, const Record* spec, Qvx8u* pBuffer) {
  return realTransform<true, kLayout>(src, dst, spec, pBuffer);
}

}  // namespace qvx::fft
