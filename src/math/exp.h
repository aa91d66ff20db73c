// The exponential function of whole vectors of float or double.
//
// Error below 0.81 ULP where there is a table (w4, doubles of u8), below 1.0 ULP elsewhere, subnormal results included. -infinity
// gives 0, an overflow infinity, NaN itself. The rounding mode must be to nearest where kRoundsByInstruction is not set.
//
// e^x = 2^k * 2^(i/steps) * e^r, k and i from the nearest multiple of 1/steps to x / ln 2. A table of 16 steps, which a register
// holds in w4 and memory for doubles in u8, keeps r within 0.022; elsewhere there is one step and r stays within 0.347.
#pragma once

#include "math/polynomial.h"

namespace qvx {

namespace detail {

// The product of kLn2High and any k is exact. Between kLeast and kMost lie all results but 0 and infinity; within kNear they are
// normal numbers. kQ: e^r = 1 + r + r^2 q(r).
template <class T> struct ExpNumbers;

template <> struct ExpNumbers<float> {
  static constexpr float kLog2E = 0x1.715476p+0F;
  static constexpr float kLn2High = 0x1.62E4p-1F;
  static constexpr float kLn2Low = 0x1.7F7D1Cp-20F;
  static constexpr float kLeast = -104.5F;
  static constexpr float kMost = 89.5F;
  static constexpr float kNear = 86.5F;
#if QVXS_AVX512
  // degree 1 on +-0.0217, error 0.03 of 2^-24
  static constexpr float kQ[] = {0x1.00022p-1F, 0x1.555764p-3F};
#else
  // degree 4 on +-0.347, error 0.08 of 2^-24
  static constexpr float kQ[] = {0.5F, 0x1.55548Ep-3F, 0x1.55545Cp-5F, 0x1.123BE0p-7F, 0x1.6DB594p-10F};
#endif
};

template <> struct ExpNumbers<double> {
  static constexpr double kLog2E = 0x1.71547652B82FEp+0;
  static constexpr double kLn2High = 0x1.62E42FEFAp-1;
  static constexpr double kLn2Low = 0x1.CF79ABC9E3B3Ap-40;
  static constexpr double kLeast = -746;
  static constexpr double kMost = 710;
  static constexpr double kNear = 707.5;
#if QVXS_AVX512 || !QVXS_AVX2
  // degree 4 on +-0.0217, error 0.11 of 2^-53
  static constexpr double kQ[] = {0x1.0000000000005p-1, 0x1.555555548ebc4p-3, 0x1.555555545c578p-5, 0x1.11123b482d9fcp-7,
                                  0x1.6c185fabc7718p-10};
#else
  // degree 9 on +-0.347, error 0.08 of 2^-53
  static constexpr double kQ[] = {0x1.000000000000cp-1,  0x1.5555555555561p-3,  0x1.555555554ff93p-5,  0x1.111111110d5adp-7,
                                  0x1.6c16c185cab93p-10, 0x1.a01a01bb12396p-13, 0x1.a0199630d84ddp-16, 0x1.71dddf6146dd3p-19,
                                  0x1.28b0a708cc821p-22, 0x1.af862f1684bf2p-26};
#endif
};

// 2^(i/16), and its relative rounding error.
template <class T> struct SixteenthPowers;
template <> struct SixteenthPowers<float> {
  alignas(64) static constexpr float kHigh[16] = {0x1p+0F,        0x1.0b5586p+0F, 0x1.172b84p+0F, 0x1.2387a6p+0F,
                                                  0x1.306fep+0F,  0x1.3dea64p+0F, 0x1.4bfdaep+0F, 0x1.5ab07ep+0F,
                                                  0x1.6a09e6p+0F, 0x1.7a1148p+0F, 0x1.8ace54p+0F, 0x1.9c4918p+0F,
                                                  0x1.ae89fap+0F, 0x1.c199bep+0F, 0x1.d5818ep+0F, 0x1.ea4afap+0F};
  alignas(64) static constexpr float kLow[16] = {0,
                                                 0x1.8d96d4p-25F,
                                                 -0x1.9c0c22p-27F,
                                                 0x1.964904p-25F,
                                                 0x1.125002p-25F,
                                                 0x1.370be4p-25F,
                                                 -0x1.0a355p-25F,
                                                 -0x1.00d8acp-27F,
                                                 0x1.26055cp-26F,
                                                 -0x1.05cb44p-25F,
                                                 0x1.67a1cap-28F,
                                                 0x1.a3b5e4p-28F,
                                                 -0x1.f9c304p-27F,
                                                 -0x1.6961b4p-28F,
                                                 -0x1.a5217cp-28F,
                                                 0x1.61428ep-28F};
};
template <> struct SixteenthPowers<double> {
  alignas(64) static constexpr double kHigh[16] = {0x1p+0,
                                                   0x1.0b5586cf9890fp+0,
                                                   0x1.172b83c7d517bp+0,
                                                   0x1.2387a6e756238p+0,
                                                   0x1.306fe0a31b715p+0,
                                                   0x1.3dea64c123422p+0,
                                                   0x1.4bfdad5362a27p+0,
                                                   0x1.5ab07dd485429p+0,
                                                   0x1.6a09e667f3bcdp+0,
                                                   0x1.7a11473eb0187p+0,
                                                   0x1.8ace5422aa0dbp+0,
                                                   0x1.9c49182a3f09p+0,
                                                   0x1.ae89f995ad3adp+0,
                                                   0x1.c199bdd85529cp+0,
                                                   0x1.d5818dcfba487p+0,
                                                   0x1.ea4afa2a490dap+0};
  alignas(64) static constexpr double kLow[16] = {0,
                                                  0x1.79aa65d837b6dp-54,
                                                  -0x1.01b15eaa59348p-55,
                                                  0x1.68efde3a8a894p-54,
                                                  0x1.34d754db0abb6p-55,
                                                  0x1.59f48a72a4c6dp-55,
                                                  0x1.690cebb7aafbp-56,
                                                  0x1.063e1e21c5409p-54,
                                                  -0x1.3b3efbf5e2228p-54,
                                                  -0x1.b32dcb94da51dp-56,
                                                  0x1.db72fc1f0eab4p-55,
                                                  0x1.1affc2b91ce27p-56,
                                                  0x1.c1a7792cb3387p-55,
                                                  0x1.36eae30af0cb3p-56,
                                                  0x1.4a385a63d07a7p-56,
                                                  -0x1.ff7128fd391fp-55};
};

template <class T> inline constexpr int kFractionBits = std::is_same_v<T, float> ? 23 : 52;

}  // namespace detail

template <class V> V clamp(V x, LaneOf<V> least, LaneOf<V> most) {  // NaN stays
  return hn::Max(same<V>(least), hn::Min(same<V>(most), x));
}

#if QVXS_AVX512

template <class V> V exp(V x) {
  using T = LaneOf<V>;
  using C = detail::ExpNumbers<T>;
  using Powers = detail::SixteenthPowers<T>;
  x = clamp(x, C::kLeast, C::kMost);
  // The last four bits of the sum are i.
  const V magic = same<V>(static_cast<T>(int64_t{3} << (detail::kFractionBits<T> - 5)));
  const V sum = mulAddNearest(x, same<V>(C::kLog2E), magic);
  const V k = sum - magic;
  const V r = hn::NegMulAdd(k, same<V>(C::kLn2Low), hn::NegMulAdd(k, same<V>(C::kLn2High), x));
  const auto i = as<hwy::UnsignedFromSize<sizeof(T)>>(sum);
  const V power = lookup<V>(i, Powers::kHigh);
  const V more = hn::MulAdd(r * r, polynomial(r, C::kQ), r + lookup<V>(i, Powers::kLow));
  return scaledBy(hn::MulAdd(power, more, power), k);
}

#else

namespace detail {

// Without fused products a degree of the polynomial takes two instructions, so in SSSE3 doubles look 16 steps up in memory too:
// 4096 take 5.5 us, not 7.6.
template <class T> inline constexpr bool kLooksUp = !QVXS_AVX2 && std::is_same_v<T, double>;

// table[the last four bits of each lane].
template <class V, class Bits> V lookUp(Bits i, const double (&table)[16]) {
  const auto at = [&table](int bits) { return table[bits & 15]; };
  return V{_mm_set_pd(at(_mm_extract_epi16(i.raw, 4)), at(_mm_cvtsi128_si32(i.raw)))};
}

// v * 2^exponent. Where isFar, the product may not be normal.
template <class V, class Bits> V timesPower(V v, Bits exponent, bool isFar) {
  using T = LaneOf<V>;
  using U = LaneOf<Bits>;
  constexpr int kBits = kFractionBits<T>;
  if (!isFar) return as<T>(as<U>(v) + hn::ShiftLeft<kBits>(exponent));
  const auto half = hn::ShiftRight<1>(exponent);
  const auto factor = [](auto e) { return as<T>(hn::ShiftLeft<kBits>(e) + as<U>(same<V>(1))); };
  return v * factor(half) * factor(exponent - half);
}

}  // namespace detail

template <class V> V exp(V x) {
  using T = LaneOf<V>;
  using U = hwy::UnsignedFromSize<sizeof(T)>;
  using C = detail::ExpNumbers<T>;
  constexpr int kStepBits = detail::kLooksUp<T> ? 4 : 0;
  // Where 2^k or the result may not be normal, k is split into two factors.
  const TagOf<V> d;
  const bool isFar = !hn::AllTrue(d, hn::Abs(x) < same<V>(C::kNear));
  if (isFar) x = clamp(x, C::kLeast, C::kMost);
  // The last bits of the sum are k, and before it i.
  const V magic = same<V>(static_cast<T>(int64_t{3} << (detail::kFractionBits<T> - 1 - kStepBits)));
  const V product = x * same<V>(C::kLog2E);
  const V sum = kRoundsByInstruction ? hn::Round(product) + magic : product + magic;
  const V k = sum - magic;
  const V high = hn::NegMulAdd(k, same<V>(C::kLn2High), x);
  const V low = k * same<V>(-C::kLn2Low);
  const V r = high + low;
  const auto bits = as<U>(sum);
  if constexpr (detail::kLooksUp<T>) {
    using Powers = detail::SixteenthPowers<T>;
    const V power = detail::lookUp<V>(bits, Powers::kHigh);
    const V more = hn::MulAdd(r * r, polynomial(r, C::kQ), r + detail::lookUp<V>(bits, Powers::kLow));
    return detail::timesPower(hn::MulAdd(power, more, power), hn::ShiftRight<kStepBits>(bits), isFar);
  } else {
    // The exact part of r is added last but one: 0.25 ULP less error than with r itself.
    return detail::timesPower(same<V>(1) + (high + hn::MulAdd(r * r, polynomial(r, C::kQ), low)), bits, isFar);
  }
}

#endif

}  // namespace qvx
