// A vector times a symmetric window: every weight is made once and serves both ends.
#pragma once

#include "frame/map.h"
#include "frame/rounding.h"

namespace qvx::window {

// N = 3 where a window is 0 at both ends: zeros whatever they were.
template <class T> void clearEnds(const T* src, T* dst) {
  const T middle = src[1];
  dst[0] = dst[2] = T{};
  dst[1] = middle;
}

template <class T> QvxStatus checkWindow(const T* src, const T* dst, int len) {
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  return len < 3 ? qvxStatBadSize : qvxStatOk;
}

// In what the weights of an element are made.
template <class T> using Weight = std::conditional_t<std::is_same_v<Part<T>, Qvx64f>, Qvx64f, Qvx32f>;

// Weights from the last before `end` to the first. What stands before them is read, where there are fewer than lanes.
template <class T> struct Mirrored {
  using Lane = T;
  const T* end;

  template <size_t N> auto get(size_t at) const { return reversed(load(Lanes<T, N>(), end - at - N)); }
  template <size_t N> auto get(size_t at, size_t) const { return get<N>(at); }
};
template <class T> struct MirroredTwice {
  using Lane = T;
  const T* end;

  template <size_t N> auto get(size_t at) const { return twice(reversed(load(Lanes<T, N / 2>(), end - at / 2 - N / 2))); }
  template <size_t N> auto get(size_t at, size_t) const { return get<N>(at); }
};

// Floats as they come. Integers times 2^-scaleFactor, to nearest, saturated: `factor` is that power of two.
template <class T> struct Weighed {
  Qvx32f factor;

  template <class V, class W> auto operator()(V x, W w) const {
    if constexpr (std::is_floating_point_v<Part<T>>) {
      return x * w;
    } else {
      const W product = convertLanes<float>(x) * w * same<W>(factor);
      // What is below the range becomes the least integer by itself.
      return convertLanes<Part<T>>(toIntNearest(hn::Min(product, same<W>(std::numeric_limits<Part<T>>::max()))));
    }
  }
};

// dst[n] = src[n] * w[n], w[len-1-n] = w[n], and the middle of odd lengths as it is. fill(from, count, w) makes weights, and may
// store a vector more than count.
template <class T, class Fill> void weigh(const T* src, T* dst, size_t len, Qvx32f factor, Fill fill) {
  using W = Weight<T>;
  constexpr size_t kPadding = kVectorBytes / sizeof(W);
  constexpr size_t kChunk = 4096 / sizeof(W);
  constexpr size_t kParts = PartsOf<T>::kCount;
  alignas(64) W memory[kChunk + 2 * kPadding];
  W* const w = memory + kPadding;
  std::fill_n(memory, kPadding, W{});  // what mirrored vectors hold beside fewer elements than they have lanes
  const Weighed<T> kernel{factor};
  const size_t half = len / 2;
  for (size_t from = 0; from < half; from += kChunk) {
    const size_t count = std::min(kChunk, half - from);
    const size_t back = len - from - count;
    fill(from, count, w);
    if constexpr (kParts == 1) {
      loop(kernel, destination(dst + from), count, source(src + from), Source<W>{w});
      loop(kernel, destination(dst + back), count, source(src + back), Mirrored<W>{w + count});
    } else {
      loop(kernel, destination(dst + from), 2 * count, source(src + from), Doubled<W>{w});
      loop(kernel, destination(dst + back), 2 * count, source(src + back), MirroredTwice<W>{w + count});
    }
  }
  if (len % 2 != 0) dst[half] = src[half];
}

// Integers are rounded to nearest in any mode of the processor; on SSSE3 the elementary functions need it for floats as well.
template <class T>
inline constexpr Rounding kMode = std::is_integral_v<Part<T>> || !kRoundsByInstruction ? Rounding::kNearest : Rounding::kCallers;

}  // namespace qvx::window
