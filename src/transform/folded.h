// Transforms of one block of the row pass: L*L points in L lanes, and L*L/2. All points stay in registers from the first
// load to the last store.
//
// The first transforms go down R = L or L/2 rows of L points, as the row pass does. Where their results, R to a point, would
// fill but half a vector, vectors hold those of 2 points side by side.
#pragma once

#include <algorithm>

#include "transform/passes.h"

namespace qvx::transform {

// cos(2 pi k / 128)
inline constexpr double kCosines[] = {1,
                                      0.99879545620517239271,
                                      0.99518472667219688624,
                                      0.98917650996478097345,
                                      0.98078528040323044913,
                                      0.97003125319454399260,
                                      0.95694033573220886494,
                                      0.94154406518302077841,
                                      0.92387953251128675613,
                                      0.90398929312344333159,
                                      0.88192126434835502971,
                                      0.85772861000027206990,
                                      0.83146961230254523708,
                                      0.80320753148064490981,
                                      0.77301045336273696081,
                                      0.74095112535495909118,
                                      0.70710678118654752440,
                                      0.67155895484701840063,
                                      0.63439328416364549822,
                                      0.59569930449243334347,
                                      0.55557023301960222474,
                                      0.51410274419322172659,
                                      0.47139673682599764856,
                                      0.42755509343028209432,
                                      0.38268343236508977173,
                                      0.33688985339222005069,
                                      0.29028467725446236764,
                                      0.24298017990326388995,
                                      0.19509032201612826785,
                                      0.14673047445536175166,
                                      0.09801714032956060199,
                                      0.04906767432741801425,
                                      0};
constexpr double cosineOf128(size_t k) {
  k %= 128;
  if (k > 64) k = 128 - k;
  return k <= 32 ? kCosines[k] : -kCosines[64 - k];
}

// Groups of L twiddles exp(-2 pi i x / kPoints), kPoints up to 128: x(group, lane).
template <class T, size_t L, size_t kGroups, size_t kPoints, class Index> struct ConstantTwiddles {
  T group[kGroups][2 * L];
  constexpr ConstantTwiddles() : group() {
    for (size_t i = 0; i < kGroups * L; ++i) {
      const size_t x = Index()(i / L, i % L) * (128 / kPoints);
      group[i / L][i % L] = static_cast<T>(cosineOf128(x));
      group[i / L][i % L + L] = static_cast<T>(cosineOf128(x + 32));  // -sin
    }
  }
};

// Results of even points are in the even blocks, of odd ones in the odd blocks.
template <class T, size_t L> struct OddHalf {
  static constexpr size_t kBlock = std::min(16 / sizeof(T), L / 2);
  constexpr size_t operator()(size_t group, size_t lane) const { return lane / kBlock % 2 * (group + 1); }
};

template <class V> QVX_INLINE V evenHalves(V a, V b) {
  if constexpr (sizeof(LaneOf<V>) == 4 && kLanesOf<V> == 4) {
    return as<float>(hn::InterleaveLower(hn::Repartition<double, TagOf<V>>(), as<double>(a), as<double>(b)));
  } else {
    return evenBlocks(a, b);
  }
}
template <class V> QVX_INLINE V oddHalves(V a, V b) {
  if constexpr (sizeof(LaneOf<V>) == 4 && kLanesOf<V> == 4) {
    return as<float>(hn::InterleaveUpper(hn::Repartition<double, TagOf<V>>(), as<double>(a), as<double>(b)));
  } else {
    return oddBlocks(a, b);
  }
}

// r[k] lane j to r[j / 2]: lanes k of the even j and of the odd j, in blocks of 128 bits (64 where a vector has no more) in turn.
template <class V, size_t R> QVX_INLINE void foldInHalves(V (&r)[R]) {
  constexpr size_t kBlock = 16 / sizeof(LaneOf<V>);
  if constexpr (R < kBlock) {
    transposeInBlocks(r[0], r[1]);
  } else {
    unrolled<R / kBlock>([&](auto q) {
      if constexpr (kBlock == 2) transposeInBlocks(r[2 * q], r[2 * q + 1]);
      else transposeInBlocks(r[4 * q], r[4 * q + 1], r[4 * q + 2], r[4 * q + 3]);
    });
    V folded[R];
    unrolled<kBlock / 2>([&](auto u) {
      V blocks[2 * R / kBlock];
      unrolled<2 * R / kBlock>([&](auto i) { blocks[i] = r[i / 2 * kBlock + 2 * u + i % 2]; });
      transposeBlocks(blocks);
      unrolled<2 * R / kBlock>([&](auto b) { folded[b * kBlock / 2 + u] = blocks[b]; });
    });
    unrolled<R>([&](auto i) { r[i] = folded[i]; });
  }
}

template <class V, size_t R> QVX_INLINE void eachPart(Complex<V> (&x)[R], auto step) {
  const auto of = [&](auto part) {
    V r[R];
    unrolled<R>([&](auto i) { r[i] = x[i].*part; });
    step(r);
    unrolled<R>([&](auto i) { x[i].*part = r[i]; });
  };
  of(&Complex<V>::re);
  of(&Complex<V>::im);
}

// L * L points. rowTwiddles: as the row pass takes them.
template <size_t L, class T, class Src, class Dst, class Scale>
QVX_INLINE void transformInSquare(Src src, Dst dst, const T* rowTwiddles, Scale scale) {
  using V = Vec<Lanes<T, L>>;
  constexpr auto element = &Src::template element<L>;
  constexpr size_t kBlock = std::min(L, 16 / sizeof(T));
  Complex<V> x[L];
  dft(x, [&](auto m) { return src.template get<L>(m * L); });
  // The steps of the transposition find sums and products beside them, as in the row pass.
  unrolled<L / kBlock>([&](auto q) {
    V re[kBlock];
    V im[kBlock];
    unrolled<kBlock>([&](auto i) {
      constexpr size_t k = element(q * kBlock + i);
      if constexpr (k > 0) x[k] = product(x[k], group<L>(rowTwiddles + (k - 1) * 2 * L));
      re[i] = x[k].re;
      im[i] = x[k].im;
    });
    transposeInBlocks(re);
    transposeInBlocks(im);
    unrolled<kBlock>([&](auto i) { x[element(q * kBlock + i)] = {re[i], im[i]}; });
  });
  unrolled<kBlock>([&](auto i) {
    V re[L / kBlock];
    V im[L / kBlock];
    unrolled<L / kBlock>([&](auto q) {
      re[q] = x[element(q * kBlock + i)].re;
      im[q] = x[element(q * kBlock + i)].im;
    });
    transposeBlocks(re);
    transposeBlocks(im);
    unrolled<L / kBlock>([&](auto q) { x[element(q * kBlock + i)] = {re[q], im[q]}; });
  });
  const auto get = [&](auto m) { return x[m]; };
  transformPoints<L>(get, [&](auto k, auto z) { dst.template put<L>(scale(z), k * L); });
}

// L * L / 2 points. rowTwiddles: R - 1 groups, k = 1.. of exp(-2 pi i j k / N), lanes j in order.
template <size_t L, class T, class Src, class Dst, class Scale>
QVX_INLINE void transformInHalves(Src src, Dst dst, const T* rowTwiddles, Scale scale) {
  constexpr size_t R = L / 2;
  using V = Vec<Lanes<T, L>>;
  alignas(64) static constexpr ConstantTwiddles<T, L, R - 1, L, OddHalf<T, L>> kOdd;
  Complex<V> x[R];
  unrolled<R>([&](auto m) { x[m] = src.template getInOrder<L>(m * L); });
  dft(x);
  unrolled<R - 1>([&](auto m) { x[m + 1] = product(x[m + 1], group<L>(rowTwiddles + m * 2 * L)); });
  eachPart(x, [](auto& r) { foldInHalves(r); });
  dft(x);
  unrolled<R - 1>([&](auto k) { x[k + 1] = product(x[k + 1], group<L>(kOdd.group[k])); });
  unrolled<R / 2>([&](auto p) {
    const Complex<V> a = x[2 * p];
    const Complex<V> b = x[2 * p + 1];
    const Complex<V> even = {evenHalves(a.re, b.re), evenHalves(a.im, b.im)};
    const Complex<V> odd = {oddHalves(a.re, b.re), oddHalves(a.im, b.im)};
    dst.template putInOrder<L>(scale(sum(even, odd)), p * L);
    dst.template putInOrder<L>(scale(difference(even, odd)), (p + R / 2) * L);
  });
}

// Either of them, as a function of its own.
template <size_t kPoints, size_t L, class T, class Src, class Dst, class Scale>
[[gnu::noinline, gnu::flatten]] void foldedTransform(Src src, Dst dst, const T* rowTwiddles, Scale scale) {
  if constexpr (kPoints == L * L) transformInSquare<L>(src, dst, rowTwiddles, scale);
  else transformInHalves<L>(src, dst, rowTwiddles, scale);
}

}  // namespace qvx::transform
