// Transforms of up to 128 points, whose twiddles are constants of the code.
#pragma once

#include "transform/plan.h"
#include "transform/small_interleaved.h"

namespace qvx::transform {

// Twiddles of the row pass, its groups of L as a record would hold them.
template <size_t L, class LaneOrder> struct RowIndex {
  static constexpr size_t R = kRowRadix<L>;
  constexpr size_t operator()(size_t group, size_t lane) const {
    return (group / (R - 1) * L + LaneOrder::template element<L>(lane)) * (group % (R - 1) + 1);
  }
};
template <class T, size_t L, size_t kPoints, class LaneOrder>
alignas(64) inline constexpr ConstantTwiddles<T, L, kPoints / kRowRadix<L>*(kRowRadix<L> - 1) / L, kPoints,
                                              RowIndex<L, LaneOrder>> kRowTwiddles;

// The same in halves, where the row is one and in order.
struct HalvesIndex {
  constexpr size_t operator()(size_t group, size_t lane) const { return lane * (group + 1); }
};
template <class T, size_t L>
alignas(64) inline constexpr ConstantTwiddles<T, L, L / 2 - 1, L * L / 2, HalvesIndex> kHalvesTwiddles;

// Up to 8 points, one lane each.
template <size_t kPoints, class Src, class Dst, class Scale> QVX_INLINE void inLanes(Src src, Dst dst, Scale scale) {
  using V = Vec<Lanes<typename Dst::Lane, 1>>;
  Complex<V> x[kPoints];
  unrolled<kPoints>([&](auto i) { x[i] = src.template get<1>(i); });
  if constexpr (kPoints > 1) dft(x);
  unrolled<kPoints>([&](auto i) { dst.template put<1>(scale(x[i]), i); });
}

template <size_t kPoints, class Src, class Dst, class Scale> QVX_INLINE void inTwoPasses(Src src, Dst dst, Scale scale) {
  using T = typename Dst::Lane;
  constexpr size_t L = std::min(kWidest<T>, size_t{4});
  constexpr size_t R = kRowRadix<L>;
  if constexpr (kPoints == L * L) return transformInSquare<L>(src, dst, kRowTwiddles<T, L, kPoints, Src>.group[0], scale);
  alignas(64) T y[2 * kPoints];
  rowPass<L>(src, y, kPoints / R, kRowTwiddles<T, L, kPoints, Src>.group[0], 0, kPoints / R);
  lastPass<kPoints / R, L>(y, 1, dst, 0, 1, scale);
}

template <size_t kPoints, class Src, class Dst, class Scale> QVX_INLINE void inHalves(Src src, Dst dst, Scale scale) {
  using T = typename Dst::Lane;
  constexpr size_t L = kPoints == 8 ? 4 : 8;
  if constexpr (L <= kWidest<T>) transformInHalves<L>(src, dst, kHalvesTwiddles<T, L>.group[0], scale);
  else if constexpr (kPoints == 8) inLanes<8>(src, dst, scale);
  else inTwoPasses<kPoints>(src, dst, scale);
}

template <int kOrder, class Src, class Dst, class Scale> QVX_INLINE void transformApart(Src src, Dst dst, Scale scale) {
  if constexpr (kOrder <= 2) inLanes<(1 << kOrder)>(src, dst, scale);
  else if constexpr (kOrder == 4) inTwoPasses<16>(src, dst, scale);
  else inHalves<(1 << kOrder)>(src, dst, scale);
}
template <int kOrder, bool kSwapped, class T, class Src, class Dst, class Scale>
QVX_INLINE void transformInterleaved(Src src, Dst dst, Scale scale) {
  constexpr size_t N = size_t{1} << kOrder;
  using V = typename Shape<T, N>::V;
  const auto get = [=](size_t at) { return src.get(TagOf<V>(), 2 * at); };
  const auto put = [=](size_t at, V v) { dst.put(scale(v), 2 * at); };
  transformInterleavedPoints<N, kSwapped, T>(get, put);
}

template <class Points> inline constexpr bool kIsInterleaved = requires(Points points) { points.raw(); };

// Each a function of its own: a call of 8 points takes 4 ns, of which a stack frame for 32 would be one. Static, so that none
// begins with a landing pad for indirect jumps, which is 0.2 ns of them.
template <int kOrder, class Src, class Dst, class Scale>
[[gnu::noinline, gnu::flatten]] static QvxStatus smallTransformOf(Src src, Dst dst, Scale scale) {
  if constexpr (kIsInterleaved<Src>) {
    transformInterleaved<kOrder, Src::kSwapped, typename Src::Lane>(src.raw(), dst.raw(), scale);
  } else {
    transformApart<kOrder>(src, dst, scale);
  }
  return qvxStatOk;
}

// Up to kShortOrder.
template <class Points> inline constexpr int kShortOrder = 5;
template <class Points>
requires kIsInterleaved<Points>
inline constexpr int kShortOrder<Points> = 7;
template <class Src, class Dst, class Scale> QVX_INLINE QvxStatus smallTransform(int order, Src src, Dst dst, Scale scale) {
  switch (order) {
    case 0:
      return smallTransformOf<0>(src, dst, scale);
    case 1:
      return smallTransformOf<1>(src, dst, scale);
    case 2:
      return smallTransformOf<2>(src, dst, scale);
    case 3:
      return smallTransformOf<3>(src, dst, scale);
    case 4:
      return smallTransformOf<4>(src, dst, scale);
    case 5:
      return smallTransformOf<5>(src, dst, scale);
    case 6:
      return smallTransformOf<std::min(6, kShortOrder<Src>)>(src, dst, scale);
    default:
      return smallTransformOf<kShortOrder<Src>>(src, dst, scale);
  }
}

}  // namespace qvx::transform
