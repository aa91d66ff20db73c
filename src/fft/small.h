// Transforms of up to 32 points, whose roots are constants of the code.
#pragma once

#include "fft/plan.h"

namespace qvx::fft {

// cos(2 pi k / 32)
inline constexpr double kCosines[] = {1,
                                      0.98078528040323044913,
                                      0.92387953251128675613,
                                      0.83146961230254523708,
                                      0.70710678118654752440,
                                      0.55557023301960222474,
                                      0.38268343236508977173,
                                      0.19509032201612826785,
                                      0};
constexpr double cosineOf32(size_t k) {
  k %= 32;
  if (k > 16) k = 32 - k;
  return k <= 8 ? kCosines[k] : -kCosines[16 - k];
}

template <class T, size_t L, size_t kPoints, class Order> struct SmallRoots {
  static constexpr size_t R = kRowRadix<L>;
  T row[kPoints / R * (R - 1) * 2];
  constexpr SmallRoots() : row() {
    for (size_t i = 0; i < kPoints / R * (R - 1); ++i) {
      const size_t j = i / (L * (R - 1)) * L + Order::template element<L>(i % L);
      const size_t x = j * (i / L % (R - 1) + 1) * (32 / kPoints);
      row[i / L * 2 * L + i % L] = static_cast<T>(cosineOf32(x));
      row[i / L * 2 * L + i % L + L] = static_cast<T>(cosineOf32(x + 8));  // -sin
    }
  }
};
template <class T, size_t L, size_t kPoints, class Order> alignas(64) inline constexpr SmallRoots<T, L, kPoints, Order> kSmallRoots;

// Up to 8 points, one lane each.
template <size_t kPoints, class Src, class Dst, class Fit> QVX_INLINE void inLanes(Src src, Dst dst, Fit fit) {
  using V = Vec<Lanes<typename Dst::Lane, 1>>;
  Complex<V> x[kPoints];
  unrolled<kPoints>([&](auto i) __attribute__((always_inline)) { x[i] = src.template get<1>(i); });
  if constexpr (kPoints > 1) dft(x);
  unrolled<kPoints>([&](auto i) __attribute__((always_inline)) { dst.template put<1>(fit(x[i]), i); });
}

template <size_t kPoints, class Src, class Dst, class Fit> QVX_INLINE void inTwoPasses(Src src, Dst dst, Fit fit) {
  using T = typename Dst::Lane;
  constexpr size_t L = std::min(kWidest<T>, size_t{4});
  constexpr size_t R = kRowRadix<L>;
  constexpr size_t kRows = kPoints / R;
  alignas(64) T y[2 * kPoints];
  rowPass<L>(src, y, kRows, kSmallRoots<T, L, kPoints, Src>.row, 0, kRows);
  lastPass<kRows, L>(y, 1, dst, 0, 1, fit);
}

template <class Src, class Dst, class Fit> void smallTransform(int order, Src src, Dst dst, Fit fit) {
  switch (order) {
    case 0: return inLanes<1>(src, dst, fit);
    case 1: return inLanes<2>(src, dst, fit);
    case 2: return inLanes<4>(src, dst, fit);
    case 3: return inLanes<8>(src, dst, fit);
    case 4: return inTwoPasses<16>(src, dst, fit);
    default: return inTwoPasses<32>(src, dst, fit);
  }
}

}  // namespace qvx::fft
