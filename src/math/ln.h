// The natural logarithm of whole vectors of float or double.
//
// Error below 0.80 ULP (float) and 1.1 ULP (double) where a register holds a table (w4, of floats w3), below 0.85 ULP elsewhere,
// subnormal arguments included. +0 gives -infinity, a negative number and -0 the library's NaN, infinity and NaN themselves.
#pragma once

#include "frame/constants.h"
#include "frame/map.h"
#include "math/polynomial.h"

namespace qvx {

namespace detail {

// x = 2^k * m. The product of kLn2High and any k is exact; kLn2Low is positive, so that an infinite k gives no NaN.
template <class T> struct LnNumbers;

#if QVXS_AVX512

// m from 0.75 to 1.5; by its first bits a reciprocal c such that r = m c - 1 is small and -ln c next to a multiple of 2^-16 or
// 2^-41, which kLn2High is, too: that part of the sum is exact. kQ: ln(1 + r) = r + r^2 q(r).
template <> struct LnNumbers<float> {
  static constexpr float kLn2High = 0x1.62E4p-1F;
  static constexpr float kLn2Low = 0x1.7F7D1Cp-20F;
  // degree 3 on -1/32 to 1/16, error 0.06 of 2^-24
  static constexpr float kQ[] = {-0x1p-1F, 0x1.55584p-2F, -0x1.00117cp-2F, 0x1.8227a8p-3F};
  // off by at most 0.0321 ULP
  alignas(64) static constexpr float kReciprocals[32] = {
      0x1p+0F,        0x1p+0F,        0x1.de113ep-1F, 0x1.ceff92p-1F, 0x1.c23516p-1F, 0x1.b5091ep-1F, 0x1.a8ccc2p-1F,
      0x1.9f17a4p-1F, 0x1.937edcp-1F, 0x1.8a139p-1F,  0x1.818612p-1F, 0x1.788a96p-1F, 0x1.6f4d84p-1F, 0x1.676e0cp-1F,
      0x1.607bb6p-1F, 0x1.5975cp-1F,  0x1.513c4ep+0F, 0x1.4ba1eep+0F, 0x1.44e7dcp+0F, 0x1.3e23f8p+0F, 0x1.37d5b6p+0F,
      0x1.32037p+0F,  0x1.2c2faap+0F, 0x1.275452p+0F, 0x1.2225e2p+0F, 0x1.1d3496p+0F, 0x1.17ad1ep+0F, 0x1.13ad34p+0F,
      0x1.0e8d04p+0F, 0x1.093672p+0F, 0x1p+0F,        0x1p+0F};
  alignas(64) static constexpr float kLogarithms[32] = {0,
                                                        0,
                                                        0x1.18ep-4F,
                                                        0x1.9c1p-4F,
                                                        0x1.0768p-3F,
                                                        0x1.4438p-3F,
                                                        0x1.7e6p-3F,
                                                        0x1.adb8p-3F,
                                                        0x1.e7cp-3F,
                                                        0x1.0c1p-2F,
                                                        0x1.2288p-2F,
                                                        0x1.3aacp-2F,
                                                        0x1.541cp-2F,
                                                        0x1.6a4cp-2F,
                                                        0x1.7e48p-2F,
                                                        0x1.92e4p-2F,
                                                        -0x1.1a38p-2F,
                                                        -0x1.091p-2F,
                                                        -0x1.e828p-3F,
                                                        -0x1.bd1p-3F,
                                                        -0x1.941p-3F,
                                                        -0x1.6d78p-3F,
                                                        -0x1.4618p-3F,
                                                        -0x1.24bp-3F,
                                                        -0x1.007p-3F,
                                                        -0x1.ba8p-4F,
                                                        -0x1.6a5p-4F,
                                                        -0x1.2f5p-4F,
                                                        -0x1.c4ep-5F,
                                                        -0x1.21ap-5F,
                                                        0,
                                                        0};
};

template <> struct LnNumbers<double> {
  static constexpr double kLn2High = 0x1.62e42fefa3000p-1;
  static constexpr double kLn2Low = 0x1.3de6af278ece6p-42;
  // degree 8 on -0.039 to 1/16, error 0.20 of 2^-53
  static constexpr double kQ[] = {-0x1.fffffffffffd5p-2, 0x1.555555555613ap-2,  -0x1.0000000053257p-2,
                                  0x1.99999986f05bp-3,   -0x1.55554fddc9462p-3, 0x1.24927aaf30abdp-3,
                                  -0x1.00118966857edp-3, 0x1.c7740616d0e72p-4,  -0x1.73b75730f4f1cp-4};
  // off by at most 0.0818 ULP
  alignas(64) static constexpr double kReciprocals[16] = {0x1p+0,
                                                          0x1.d81c2511fa6b9p-1,
                                                          0x1.b8cec230055a4p-1,
                                                          0x1.a427ee4f3865bp-1,
                                                          0x1.8e802602ef991p-1,
                                                          0x1.7deb30b670234p-1,
                                                          0x1.6c68a02d8425fp-1,
                                                          0x1.5cce95b2babc2p-1,
                                                          0x1.4fccdcbc18465p+0,
                                                          0x1.42042aaa67896p+0,
                                                          0x1.34d93eefd2047p+0,
                                                          0x1.2a6fac46bf371p+0,
                                                          0x1.20a73d67e6561p+0,
                                                          0x1.149d76bfff03cp+0,
                                                          0x1.0a0b58ef4afe5p+0,
                                                          0x1p+0};
  alignas(64) static constexpr double kLogarithms[16] = {0,
                                                         0x1.4c3cdfbef8p-4,
                                                         0x1.329e4ee038p-3,
                                                         0x1.94e30122ccp-3,
                                                         0x1.00a16500e8p-2,
                                                         0x1.2c26d1ccf2p-2,
                                                         0x1.5c35b3550ep-2,
                                                         0x1.89046cffaap-2,
                                                         -0x1.15d9e5acf6p-2,
                                                         -0x1.d5dc96cb44p-3,
                                                         -0x1.805b1ed444p-3,
                                                         -0x1.3a1eaacbb4p-3,
                                                         -0x1.ebb84b1a78p-4,
                                                         -0x1.3d3bbaa7f8p-4,
                                                         -0x1.3b45eb6ccp-5,
                                                         0};
};

#else

#if QVXS_AVX2

// As in AVX-512 with eight entries, -ln c next to a multiple of 2^-16.
template <> struct LnNumbers<float> {
  static constexpr float kLn2High = 0x1.62E4p-1F;
  static constexpr float kLn2Low = 0x1.7F7D1Cp-20F;
  static constexpr float kLeastNormal = 0x1p-126F;
  // degree 4 on -0.079 to 1/8, error 0.09 of 2^-24
  static constexpr float kQ[] = {-0x1.fffffp-2F, 0x1.5554c8p-2F, -0x1.002574p-2F, 0x1.9be2e6p-3F, -0x1.33fa9ap-3F};
  // off by at most 0.0165 ULP
  alignas(32) static constexpr float kReciprocals[8] = {0x1p+0F,       0x1.bfdef4p-1F, 0x1.88a142p-1F, 0x1.63439ap-1F,
                                                        0x1.49b86p+0F, 0x1.2e26p+0F,   0x1.147d58p+0F, 0x1p+0F};
  alignas(32) static constexpr float kLogarithms[8] = {
      0, 0x1.121p-3F, 0x1.0fd4p-2F, 0x1.763cp-2F, -0x1.0324p-2F, -0x1.537p-3F, -0x1.3b6p-4F, 0};
};

// By the last three bits of each index.
template <class V> V entryOf(const float (&table)[8], Vec<Lanes<uint32_t, kLanesOf<V>>> index) {
  const Lanes<float, 8> d;
  const auto at = [&](auto whole) { return hn::TableLookupLanes(load(d, table), hn::Indices256<float>{whole.raw}); };
  if constexpr (kLanesOf<V> == 8) return at(index);
  else return hn::LowerHalf(TagOf<V>(), at(hn::ZeroExtendVector(Lanes<uint32_t, 8>(), index)));
}

#else

// m from the root of 1/2 to that of 2, s = (m - 1) / (m + 1), z = s^2. kP: ln m = 2 s + s z p(z).
template <> struct LnNumbers<float> {
  static constexpr float kLn2High = 0x1.62E4p-1F;
  static constexpr float kLn2Low = 0x1.7F7D1Cp-20F;
  static constexpr uint32_t kOne = 0x3F800000;
  static constexpr uint32_t kRootOfHalf = 0x3F3504F3;
  static constexpr float kLeastNormal = 0x1p-126F;
  static constexpr float kBias = 0x1p23F + 127;
  // degree 3 up to s = 0.172, error 0.02 of 2^-24
  static constexpr float kP[] = {0x1.555554p-1F, 0x1.999a7cp-2F, 0x1.2438aap-2F, 0x1.e2fdb4p-3F};
};

#endif

// As floats have it without a table.
template <> struct LnNumbers<double> {
  static constexpr double kLn2High = 0x1.62E42FEFAp-1;
  static constexpr double kLn2Low = 0x1.CF79ABC9E3B3Ap-40;
  static constexpr uint64_t kOne = 0x3FF0000000000000;
  static constexpr uint64_t kRootOfHalf = 0x3FE6A09E667F3BCD;
  static constexpr double kLeastNormal = 0x1p-1022;
  static constexpr double kBias = 0x1p52 + 1023;
  // degree 6 up to s = 0.172, error 0.03 of 2^-53
  static constexpr double kP[] = {0x1.5555555555593p-1, 0x1.999999997fb35p-2, 0x1.24924942177b2p-2, 0x1.c71c51e80c67ep-3,
                                  0x1.7466462a115aap-3, 0x1.39a0f517122bdp-3, 0x1.2f0d8f548906fp-3};
};

#endif

// y where x is above 0; elsewhere the results of zero and negative numbers.
template <class V, class M> V lnOfBad(V x, V y, M isBad) {
  using T = LaneOf<V>;
  return hn::IfThenElse(isBad, ifNegative(x, same<V>(kNan<T>), same<V>(kMinusInfinity<T>)), y);
}

#if !QVXS_AVX512

// Of x above 0. `bias` is what 2^23 (2^52) and the exponent as stored exceed k by.
template <class V> V lnByQuotient(V x, V bias) {
  using T = LaneOf<V>;
  using U = hwy::UnsignedFromSize<sizeof(T)>;
  using C = LnNumbers<T>;
  constexpr int kBits = std::is_same_v<T, float> ? 23 : 52;
  const hn::Repartition<U, TagOf<V>> du;
  const auto fromRoot = as<U>(x) + hn::Set(du, C::kOne - C::kRootOfHalf);
  const auto fraction = fromRoot & hn::Set(du, (U{1} << kBits) - 1);
  const V m = as<T>(fraction + hn::Set(du, C::kRootOfHalf));
  const V unit = same<V>(static_cast<T>(uint64_t{1} << kBits));  // of which the last bits are a number
  const V k = as<T>(hn::ShiftRight<kBits>(fromRoot) | as<U>(unit)) - bias;
  const V f = m - same<V>(1);
  const V s = f / (f + same<V>(2));
  const V z = s * s;
  const V half = f * f * same<V>(T(0.5));
  const V more = hn::MulAdd(z, polynomial(z, C::kP), half);
  const V low = hn::MulAdd(s, more, k * same<V>(C::kLn2Low));
  return hn::MulSub(k, same<V>(C::kLn2High), (half - low) - f);
}

#if QVXS_AVX2

// `bits` are those of a float above 0. By a quotient 4096 floats take 1.24 us, not 1.02. r may be a third of the result, so
// what the rounding of its sum takes is added: the error is below 0.79 ULP, not 1.02.
template <class V> V lnByTable(Vec<Lanes<int32_t, kLanesOf<V>>> bits) {
  using C = LnNumbers<float>;
  using I = decltype(bits);
  constexpr int32_t kThreeQuarters = 0x3F400000;
  const auto k = (bits - same<I>(kThreeQuarters)) & same<I>(-0x800000);  // where a float has its exponent
  const auto m = bits - k;
  const auto index = as<uint32_t>(hn::ShiftRight<20>(m));
  const V r = hn::MulSub(as<float>(m), entryOf<V>(C::kReciprocals, index), same<V>(1));
  const V count = hn::ConvertTo(TagOf<V>(), k);
  const V high = hn::MulAdd(count, same<V>(C::kLn2High * 0x1p-23F), entryOf<V>(C::kLogarithms, index));
  const V sum = high + r;
  const V low = hn::MulAdd(count, same<V>(C::kLn2Low * 0x1p-23F), (high - sum) + r);
  return sum + hn::MulAdd(r * r, polynomial(r, C::kQ), low);
}

#endif

#endif

}  // namespace detail

// onBad(isBad) is called where lanes may be 0 or negative.
#if QVXS_AVX512

template <class V, class OnBad> V ln(V x, OnBad onBad) {
  using T = LaneOf<V>;
  using U = hwy::UnsignedFromSize<sizeof(T)>;
  using C = detail::LnNumbers<T>;
  constexpr int kIndexShift = std::is_same_v<T, float> ? 23 - 5 : 52 - 4;
  const TagOf<V> d;
  const V m = mantissaOf(x);
  const V k = exponentOf(x) - exponentOf(m);
  const auto i = hn::ShiftRight<kIndexShift>(as<U>(m));
  const V r = hn::MulSub(m, lookup<V>(i, C::kReciprocals), same<V>(1));
  const V high = hn::MulAdd(k, same<V>(C::kLn2High), lookup<V>(i, C::kLogarithms));
  const V low = hn::MulAdd(k, same<V>(C::kLn2Low), r);
  V y = high + hn::MulAdd(r * r, polynomial(r, C::kQ), low);
  const auto isBad = x <= hn::Zero(d);
  if (maskBits(d, isBad) != 0) [[unlikely]] {
    onBad(isBad);
    y = detail::lnOfBad(x, y, isBad);
  }
  return y;
}

#else

template <class V, class OnBad> V ln(V x, OnBad onBad) {
  using T = LaneOf<V>;
  using C = detail::LnNumbers<T>;
  constexpr int kScaleBits = std::is_same_v<T, float> ? 24 : 53;
  constexpr T kScale = static_cast<T>(uint64_t{1} << kScaleBits);  // makes a subnormal number normal
  const TagOf<V> d;
  const auto isSubnormal = x < same<V>(C::kLeastNormal);
  const auto isPlain = hn::AndNot(isSubnormal, x < same<V>(kInfinity<T>));
  const bool arePlain = hn::AllTrue(d, isPlain);
  V y;
#if QVXS_AVX2
  if constexpr (std::is_same_v<T, float>) {
    auto bits = as<int32_t>(x);
    using I = decltype(bits);
    if (!arePlain) [[unlikely]]
      bits = hn::IfThenElse(hn::RebindMask(TagOf<I>(), isSubnormal), as<int32_t>(x * same<V>(kScale)) - same<I>(kScaleBits << 23),
                            bits);
    y = detail::lnByTable<V>(bits);
  } else
#endif
  {
    V scaled = x;
    V bias = same<V>(C::kBias);
    if (!arePlain) [[unlikely]] {
      scaled = hn::IfThenElse(isSubnormal, x * same<V>(kScale), x);
      bias = hn::IfThenElse(isSubnormal, same<V>(C::kBias + kScaleBits), bias);
    }
    y = detail::lnByQuotient(scaled, bias);
  }
  if (!arePlain) [[unlikely]] {
    y = hn::IfThenElse(x < same<V>(kInfinity<T>), y, x + x);
    const auto isBad = x <= hn::Zero(d);
    onBad(isBad);
    y = detail::lnOfBad(x, y, isBad);
  }
  return y;
}

#endif

template <class V> V ln(V x) {
  return ln(x, [](auto) {});
}

// The logarithm as a function of elements: the first that is 0 or negative decides which warning the vector gets.
struct Ln {
  using Watch = FirstFlag;

  template <class V> V operator()(FirstFlag& flag, Place place, V x) const {
    const TagOf<V> d;
    return ln(x, [&](auto isBad) {
      const uint64_t negative = maskBits(d, hn::MaskFromVec(x));
      flag.raise(place, maskBits(d, isBad),
                 [=](size_t lane) { return (negative >> lane & 1) != 0 ? qvxWarnLnNegArg : qvxWarnLnZeroArg; });
    });
  }
};

}  // namespace qvx
