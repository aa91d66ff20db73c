// One or two frequencies of a vector: R = sum of x[n] z^(len - n), z = e^(jw).
//
// The recursion s[n] = x[n] + 2 cos w s[n-1] - s[n-2] is one dependent chain, and at low frequencies its states grow with 1 / sin
// w, and their rounding errors with them. So the sum is taken by powers of z: each of S lanes keeps a sum A = A z^S + x in
// doubles, and powers of z join them in the end. Rounding errors are rotated and do not grow: 10^6 samples are off by 2^-36 of
// the sum of their magnitudes.
#include <algorithm>
#include <utility>

#include "frame/complex.h"
#include "frame/power.h"
#include "frame/reduce.h"
#include "frame/rounding.h"
#include "frame/unroll.h"
#include "math/sin_cos.h"

using namespace qvx;

namespace {

constexpr size_t N = kVectorBytes / sizeof(double);
using V = Vec<Lanes<double, N>>;
// Independent vectors of sums for each frequency: one frequency still waits for its multiplications, two fill each other's waits.
constexpr size_t kChains = 2;
constexpr size_t S = N * kChains;

// A frequency in turns a sample, and the result at it.
struct Component {
  double frequency;
  double re = 0;
  double im = 0;
};

template <class T> inline constexpr bool kIsComplex = PartsOf<T>::kCount == 2;

// n elements from p on, zeros past them.
template <class T> Complex<V> loadWide(const T* p, size_t n) {
  if constexpr (kIsComplex<T>) {
    const auto z = deinterleaved(p);
    const auto both = n >= N ? z.template get<N>(0) : z.template get<N>(0, n);
    return {convertLanes<double>(both.lo), convertLanes<double>(both.hi)};
  } else {
    const Lanes<T, N> d;
    return {convertLanes<double>(n >= N ? load(d, p) : loadFirst(d, p, n)), hn::Zero(Lanes<double, N>())};
  }
}

// a z + x
template <class T> Complex<V> advanced(Complex<V> a, SinCos<V> z, Complex<V> x) {
  const V re = hn::MulAdd(a.re, z.cosine, hn::NegMulAdd(a.im, z.sine, x.re));
  if constexpr (kIsComplex<T>) return {re, hn::MulAdd(a.re, z.sine, hn::MulAdd(a.im, z.cosine, x.im))};
  else return {re, hn::MulAdd(a.re, z.sine, a.im * z.cosine)};
}

// z^N and z^S.
struct Steps {
  SinCos<V> chain;
  SinCos<V> all;

  static Steps of(double frequency) {
    const Lanes<double, 2> d;
    alignas(16) static constexpr double kPlaces[] = {N, S};
    const auto z = sinCosOfTurns(load(d, kPlaces) * hn::Set(d, frequency));
    const auto lane = [&](size_t i) {
      return SinCos<V>{same<V>(hn::ExtractLane(z.sine, i)), same<V>(hn::ExtractLane(z.cosine, i))};
    };
    return {lane(0), lane(1)};
  }
};

// Flattened: as calls, the sines and the separation of parts return through memory. 16 samples take 29 ns in SSSE3, not 44.
template <size_t kCount, class T>
[[gnu::noinline, gnu::flatten]] void transform(const T* src, size_t n, Component (&components)[kCount]) {
  Steps steps[kCount];
  Complex<V> sums[kCount][kChains];
  unrolled<kCount>([&](auto k) {
    steps[k] = Steps::of(components[k].frequency);
    unrolled<kChains>([&](auto c) { sums[k][c] = {hn::Zero(Lanes<double, N>()), hn::Zero(Lanes<double, N>())}; });
  });
  size_t at = 0;
  const auto advance = [&](auto get) {
    unrolled<kChains>([&](auto c) {
      const Complex<V> x = get(c * N);
      unrolled<kCount>([&](auto k) { sums[k][c] = advanced<T>(sums[k][c], steps[k].all, x); });
    });
  };
  for (; at + S <= n; at += S) advance([&](size_t lane) { return loadWide(src + at + lane, N); });
  // The last S lanes began r samples before the end.
  size_t r = S;
  if (at < n) {
    r = n - at;
    advance([&](size_t lane) { return loadWide(src + at + std::min(lane, r), lane < r ? r - lane : 0); });
  }
  // What comes once need not be better than the result.
  constexpr int kDigits = std::is_same_v<Part<T>, double> ? 53 : 24;
  const V places = same<V>(static_cast<double>(static_cast<int>(r))) - hn::Iota(Lanes<double, N>(), 0);
  unrolled<kCount>([&](auto k) {
    const SinCos<V> z = sinCosOfTurns<kDigits>(places * same<V>(components[k].frequency));
    // The second chain is N places nearer to the end.
    const Complex<V> b = sums[k][1];
    const SinCos<V> back = steps[k].chain;
    const V aRe = sums[k][0].re + hn::MulAdd(b.re, back.cosine, b.im * back.sine);
    const V aIm = sums[k][0].im + hn::NegMulAdd(b.re, back.sine, b.im * back.cosine);
    components[k].re = sumOfLanes(hn::NegMulAdd(aIm, z.sine, aRe * z.cosine));
    components[k].im = sumOfLanes(hn::MulAdd(aRe, z.sine, aIm * z.cosine));
  });
}

// ---- checked functions

template <class F> bool isFrequency(F f) { return f >= 0 && f < 1; }

template <class T, class F> QvxStatus goertz(const T* src, int len, const void* val, const F* frequency, int count) {
  const QvxStatus status = check(len, src, val, frequency);
  if (status != qvxStatOk) return status;
  return std::all_of(frequency, frequency + count, isFrequency<F>) ? qvxStatOk : qvxStatBadRelFreq;
}

// result(component) makes the caller's result.
template <size_t kCount, class T, class R, class F, class Result>
QvxStatus goertz(const T* src, int len, R* val, const F* frequency, Result result) {
  const QvxStatus status = goertz(src, len, val, frequency, int{kCount});
  if (status != qvxStatOk) return status;
  Component found[kCount];
  for (size_t k = 0; k < kCount; ++k) found[k].frequency = frequency[k];
  const RoundingScope scope(kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest);  // of the turns, by sinCosOfTurns
  transform(src, elements(len), found);
  for (size_t k = 0; k < kCount; ++k) val[k] = result(found[k]);
  return qvxStatOk;
}

template <class R> R asFloat(const Component& c) { return {static_cast<Part<R>>(c.re), static_cast<Part<R>>(c.im)}; }

template <size_t kCount, class T, class R, class F> QvxStatus goertz(const T* src, int len, R* val, const F* frequency) {
  return goertz<kCount>(src, len, val, frequency, asFloat<R>);
}

template <size_t kCount, class T>
QvxStatus goertz(const T* src, int len, Qvx16sc* val, const Qvx32f* frequency, int scaleFactor) {
  const RoundingScope nearest(Rounding::kNearest);
  // Beyond 900 places every result is 0 or an end of the range.
  const auto factor = powerOfTwo<double>(-std::clamp(scaleFactor, -900, 900));
  return goertz<kCount>(src, len, val, frequency, [factor](const Component& c) {
    return Qvx16sc{roundedTo<Qvx16s>(c.re * factor), roundedTo<Qvx16s>(c.im * factor)};
  });
}

constexpr float kQ15 = 0x1p-15F;

}  // namespace

// clang-format off
QvxStatus qvxsGoertz_32f(const Qvx32f* a, int len, Qvx32fc* val, Qvx32f f) { return goertz<1>(a, len, val, &f); }
QvxStatus qvxsGoertz_64f(const Qvx64f* a, int len, Qvx64fc* val, Qvx64f f) { return goertz<1>(a, len, val, &f); }
QvxStatus qvxsGoertz_32fc(const Qvx32fc* a, int len, Qvx32fc* val, Qvx32f f) { return goertz<1>(a, len, val, &f); }
QvxStatus qvxsGoertz_64fc(const Qvx64fc* a, int len, Qvx64fc* val, Qvx64f f) { return goertz<1>(a, len, val, &f); }
QvxStatus qvxsGoertz_16s_Sfs(const Qvx16s* a, int len, Qvx16sc* val, Qvx32f f, int sf) { return goertz<1>(a, len, val, &f, sf); }
QvxStatus qvxsGoertz_16sc_Sfs(const Qvx16sc* a, int len, Qvx16sc* val, Qvx32f f, int sf) { return goertz<1>(a, len, val, &f, sf); }
QvxStatus qvxsGoertzTwo_32f(const Qvx32f* a, int len, Qvx32fc* val, const Qvx32f* f) { return goertz<2>(a, len, val, f); }
QvxStatus qvxsGoertzTwo_32fc(const Qvx32fc* a, int len, Qvx32fc* val, const Qvx32f* f) { return goertz<2>(a, len, val, f); }
QvxStatus qvxsGoertzTwo_64f(const Qvx64f* a, int len, Qvx64fc* val, const Qvx64f* f) { return goertz<2>(a, len, val, f); }
QvxStatus qvxsGoertzTwo_64fc(const Qvx64fc* a, int len, Qvx64fc* val, const Qvx64f* f) { return goertz<2>(a, len, val, f); }
QvxStatus qvxsGoertzTwo_16sc_Sfs(const Qvx16sc* a, int len, Qvx16sc* val, const Qvx32f* f, int sf) { return goertz<2>(a, len, val, f, sf); }
// clang-format on

QvxStatus qvxsGoertzQ15_16sc_Sfs(const Qvx16sc* a, int len, Qvx16sc* val, Qvx16s f, int sf) {
  return f < 0 ? qvxStatBadRelFreq : qvxsGoertz_16sc_Sfs(a, len, val, static_cast<float>(f) * kQ15, sf);
}

QvxStatus qvxsGoertzTwoQ15_16sc_Sfs(const Qvx16sc* a, int len, Qvx16sc* val, const Qvx16s* f, int sf) {
  if (isNull(f)) return qvxStatNullPtr;
  if (f[0] < 0 || f[1] < 0) return qvxStatBadRelFreq;
  const Qvx32f frequencies[] = {static_cast<float>(f[0]) * kQ15, static_cast<float>(f[1]) * kQ15};
  return qvxsGoertzTwo_16sc_Sfs(a, len, val, frequencies, sf);
}
