// Half the logarithm of a sum that a float does not hold.
#pragma once

#include "frame/constants.h"
#include "frame/map.h"
#include "math/ln.h"

namespace qvx {

namespace detail {

#if QVXS_AVX2

// x = 2^k * m, m from 1 - 1/(2 entries) on. By the next of `entries` parts of an octave a reciprocal c: m c / 2 - 1/2 is a small
// r, -ln(c) / 2 next to a float. kQ: ln(1 + 2 r) / 2 = r + r^2 q(r). At 1 the reciprocal is 1, so that small logarithms are r
// alone.
#if QVXS_AVX512

struct HalfLnNumbers {
  static constexpr int kIndexBits = 5;
  // degree 2 up to r = 1/119, error 0.05 of 2^-24
  static constexpr float kQ[] = {-0x1p+0F, 0x1.55617ap+0F, -0x1.001158p+1F};
  // off by at most 0.1 ULP
  alignas(64) static constexpr float kHalfReciprocals[32] = {
      0x1p-1F,        0x1.f0bb76p-2F, 0x1.e1a214p-2F, 0x1.d3f2e2p-2F, 0x1.c6cc86p-2F, 0x1.ba7a3cp-2F, 0x1.aefef6p-2F,
      0x1.a438f6p-2F, 0x1.99bcb4p-2F, 0x1.8f6756p-2F, 0x1.865a9cp-2F, 0x1.7d29p-2F,   0x1.749a78p-2F, 0x1.6bf76cp-2F,
      0x1.645402p-2F, 0x1.5c9af8p-2F, 0x1.5544cp-2F,  0x1.4e7176p-2F, 0x1.47b828p-2F, 0x1.4128fcp-2F, 0x1.3b1538p-2F,
      0x1.3546cp-2F,  0x1.2f46a2p-2F, 0x1.29e68ap-2F, 0x1.248b68p-2F, 0x1.1f697ap-2F, 0x1.1a9e9ap-2F, 0x1.15bddcp-2F,
      0x1.112d56p-2F, 0x1.0c860cp-2F, 0x1.0829b8p-2F, 0x1.04176p-2F};
  alignas(64) static constexpr float kHalfLogarithms[32] = {0,
                                                            0x1.fp-7F,
                                                            0x1.f4ep-6F,
                                                            0x1.708p-5F,
                                                            0x1.e54p-5F,
                                                            0x1.2aep-4F,
                                                            0x1.60b8p-4F,
                                                            0x1.949p-4F,
                                                            0x1.c85p-4F,
                                                            0x1.fcap-4F,
                                                            0x1.15c8p-3F,
                                                            0x1.2e3p-3F,
                                                            0x1.457p-3F,
                                                            0x1.5d74p-3F,
                                                            0x1.732cp-3F,
                                                            0x1.899cp-3F,
                                                            0x1.9f64p-3F,
                                                            0x1.b414p-3F,
                                                            0x1.c8ep-3F,
                                                            0x1.dd94p-3F,
                                                            0x1.f124p-3F,
                                                            0x1.0218p-2F,
                                                            0x1.0c2p-2F,
                                                            0x1.1548p-2F,
                                                            0x1.1e92p-2F,
                                                            0x1.27a2p-2F,
                                                            0x1.303ep-2F,
                                                            0x1.3928p-2F,
                                                            0x1.41a4p-2F,
                                                            0x1.4a7p-2F,
                                                            0x1.52d2p-2F,
                                                            0x1.5ac6p-2F};
};

template <class V, size_t kEntries> V entryOf(const float (&table)[kEntries], Vec<Lanes<uint32_t, kLanesOf<V>>> index) {
  return qvx::lookup<V>(index, table);
}

#else

struct HalfLnNumbers {
  static constexpr int kIndexBits = 3;
  // degree 4 up to r = 1/30, error 0.01 of 2^-24
  static constexpr float kQ[] = {-0x1p+0F, 0x1.555502p+0F, -0x1.fffe96p+0F, 0x1.9b6dd4p+1F, -0x1.578d66p+2F};
  // off by at most 0.02 ULP
  alignas(32) static constexpr float kHalfReciprocals[8] = {0x1p-1F,       0x1.c5feap-2F,  0x1.99818p-2F,  0x1.73fbf4p-2F,
                                                            0x1.562fbp-2F, 0x1.3aa686p-2F, 0x1.250a5cp-2F, 0x1.112d56p-2F};
  alignas(32) static constexpr float kHalfLogarithms[8] = {
      0, 0x1.ec8p-5F, 0x1.c978p-4F, 0x1.4724p-3F, 0x1.9ca4p-3F, 0x1.f28cp-3F, 0x1.1db4p-2F, 0x1.41a4p-2F};
};

#endif

#endif

}  // namespace detail

// ln(x + rest) / 2 for x from 1 to below infinity and a rest of about half of x's last place. Next to what x and the rest are
// off by, the error is below 1.8 ULP.
#if QVXS_AVX2

template <class V> V halfLnOfSum(V x, V rest) {
  using C = detail::HalfLnNumbers;
  using I = Vec<Lanes<int32_t, kLanesOf<V>>>;
  constexpr int kIndexShift = 23 - C::kIndexBits;
  const auto fromFirst = as<int32_t>(x) - same<I>(0x3F800000 - (1 << (kIndexShift - 1)));
  const auto index = hn::ShiftRight<kIndexShift>(as<uint32_t>(fromFirst));
  const auto k = fromFirst & same<I>(-0x800000);  // where a float has its exponent
  const V reciprocal = as<float>(as<int32_t>(detail::entryOf<V>(C::kHalfReciprocals, index)) - k);
  const V logarithm =
      hn::MulAdd(hn::ConvertTo(TagOf<V>(), k), same<V>(0x1.62E43p-25F), detail::entryOf<V>(C::kHalfLogarithms, index));
  const V r = hn::MulAdd(rest, reciprocal, hn::MulSub(x, reciprocal, same<V>(0.5F)));
  return logarithm + hn::MulAdd(r * r, polynomial(r, C::kQ), r);
}

#else

// By s = (m - 1) / (m + 1), m from the root of 1/2 to that of 2, and f = (m - 1) / 2: half of ln m is f - f^2 + s (f^2 + z p(z)),
// z = s^2.
template <class V> V halfLnOfSum(V x, V rest) {
  constexpr uint32_t kRootOfHalf = 0x3F3504F3;
  // degree 3 up to s = 0.172, error 0.02 of 2^-24
  constexpr float kP[] = {0x1.555554p-2F, 0x1.999a7cp-3F, 0x1.2438aap-3F, 0x1.e2fdb4p-4F};
  using U = Vec<Lanes<uint32_t, kLanesOf<V>>>;
  const auto fromRoot = as<uint32_t>(x) - same<U>(kRootOfHalf);
  const auto fraction = fromRoot & same<U>((1U << 23) - 1);
  const auto k = as<int32_t>(fromRoot - fraction);  // where a float has its exponent
  const V m = as<float>(fraction + same<U>(kRootOfHalf));
  const V half = as<float>(as<int32_t>(same<V>(0.5F)) - k);  // of 2^-k
  const V fHigh = (m - same<V>(1)) * same<V>(0.5F);
  const V fLow = rest * half;
  const V f = fHigh + fLow;
  const V s = f / (f + same<V>(1));
  const V z = s * s;
  const V square = f * f;
  const V less = square - s * hn::MulAdd(z, polynomial(z, kP), square);
  return hn::ConvertTo(TagOf<V>(), k) * same<V>(0x1.62E43p-25F) + (fHigh + (fLow - less));
}

#endif

}  // namespace qvx
