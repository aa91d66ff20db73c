// All FIR filters with a record under one interface, and what they have to give.
#pragma once

#include <gtest/gtest.h>
#include <qvx/qvxcore.h>
#include <qvx/qvxs.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <type_traits>

#include "reference/scaled.h"
#include "support/values.h"

namespace tests {

template <class R, class... A> std::tuple<A...> argumentsOf(R (*)(A...));
template <size_t I, class F>
using Pointee = std::remove_const_t<std::remove_pointer_t<std::tuple_element_t<I, decltype(argumentsOf(F()))>>>;

// The functions of a pair of types, some of which have a factor of the taps or a scale factor.
template <class Init, class Alloc, class Free, class GetTaps, class SetTaps, class GetLine, class SetLine, class Block,
          class InPlace, class One>
struct Pair {
  using Taps = Pointee<0, SetTaps>;
  using State = Pointee<1, SetTaps>;
  using Sample = Pointee<0, InPlace>;
  static constexpr bool kHasFactor = std::is_invocable_v<SetTaps, const Taps*, State*, int>;
  static constexpr bool kIsScaled = std::is_invocable_v<InPlace, Sample*, int, State*, int>;

  const char* name;
  QvxStatus (*getSize)(int, int*);
  Init init;
  Alloc alloc;
  Free free;
  GetTaps getTaps;
  SetTaps setTaps;
  GetLine getLine;
  SetLine setLine;
  Block block;
  InPlace inPlace;
  One one;

  State* build(const std::vector<Taps>& h, int factor, const Sample* line, uint8_t* memory) const {
    State* state = nullptr;
    const int n = static_cast<int>(h.size());
    if constexpr (kHasFactor) EXPECT_EQ(init(&state, h.data(), n, factor, line, memory), qvxStatOk);
    else EXPECT_EQ(init(&state, h.data(), n, line, memory), qvxStatOk);
    return state;
  }
  State* allocate(const std::vector<Taps>& h, int factor, const Sample* line) const {
    State* state = nullptr;
    const int n = static_cast<int>(h.size());
    if constexpr (kHasFactor) EXPECT_EQ(alloc(&state, h.data(), n, factor, line), qvxStatOk);
    else EXPECT_EQ(alloc(&state, h.data(), n, line), qvxStatOk);
    return state;
  }
  // Any of the three, with the scale factor where there is one.
  template <class F, class... A> static QvxStatus run(F f, int scaleFactor, A... arguments) {
    if constexpr (std::is_invocable_v<F, A..., int>) return f(arguments..., scaleFactor);
    else return f(arguments...);
  }
  int size(int tapsLen) const {
    int bytes = -1;
    EXPECT_EQ(getSize(tapsLen, &bytes), qvxStatOk);
    return bytes;
  }
};
template <class... F> Pair(const char*, QvxStatus (*)(int, int*), F...) -> Pair<F...>;

// clang-format off
template <class With> void forEachPair(With with) {
  with(Pair{"32f", qvxsFIRGetStateSize_32f, qvxsFIRInit_32f, qvxsFIRInitAlloc_32f, qvxsFIRFree_32f, qvxsFIRGetTaps_32f, qvxsFIRSetTaps_32f, qvxsFIRGetDlyLine_32f, qvxsFIRSetDlyLine_32f, qvxsFIR_32f, qvxsFIR_32f_I, qvxsFIROne_32f});
  with(Pair{"32fc", qvxsFIRGetStateSize_32fc, qvxsFIRInit_32fc, qvxsFIRInitAlloc_32fc, qvxsFIRFree_32fc, qvxsFIRGetTaps_32fc, qvxsFIRSetTaps_32fc, qvxsFIRGetDlyLine_32fc, qvxsFIRSetDlyLine_32fc, qvxsFIR_32fc, qvxsFIR_32fc_I, qvxsFIROne_32fc});
  with(Pair{"32f_16s", qvxsFIRGetStateSize32f_16s, qvxsFIRInit32f_16s, qvxsFIRInitAlloc32f_16s, qvxsFIRFree32f_16s, qvxsFIRGetTaps32f_16s, qvxsFIRSetTaps32f_16s, qvxsFIRGetDlyLine32f_16s, qvxsFIRSetDlyLine32f_16s, qvxsFIR32f_16s_Sfs, qvxsFIR32f_16s_ISfs, qvxsFIROne32f_16s_Sfs});
  with(Pair{"32fc_16sc", qvxsFIRGetStateSize32fc_16sc, qvxsFIRInit32fc_16sc, qvxsFIRInitAlloc32fc_16sc, qvxsFIRFree32fc_16sc, qvxsFIRGetTaps32fc_16sc, qvxsFIRSetTaps32fc_16sc, qvxsFIRGetDlyLine32fc_16sc, qvxsFIRSetDlyLine32fc_16sc, qvxsFIR32fc_16sc_Sfs, qvxsFIR32fc_16sc_ISfs, qvxsFIROne32fc_16sc_Sfs});
  with(Pair{"64f", qvxsFIRGetStateSize_64f, qvxsFIRInit_64f, qvxsFIRInitAlloc_64f, qvxsFIRFree_64f, qvxsFIRGetTaps_64f, qvxsFIRSetTaps_64f, qvxsFIRGetDlyLine_64f, qvxsFIRSetDlyLine_64f, qvxsFIR_64f, qvxsFIR_64f_I, qvxsFIROne_64f});
  with(Pair{"64fc", qvxsFIRGetStateSize_64fc, qvxsFIRInit_64fc, qvxsFIRInitAlloc_64fc, qvxsFIRFree_64fc, qvxsFIRGetTaps_64fc, qvxsFIRSetTaps_64fc, qvxsFIRGetDlyLine_64fc, qvxsFIRSetDlyLine_64fc, qvxsFIR_64fc, qvxsFIR_64fc_I, qvxsFIROne_64fc});
  with(Pair{"64f_32f", qvxsFIRGetStateSize64f_32f, qvxsFIRInit64f_32f, qvxsFIRInitAlloc64f_32f, qvxsFIRFree64f_32f, qvxsFIRGetTaps64f_32f, qvxsFIRSetTaps64f_32f, qvxsFIRGetDlyLine64f_32f, qvxsFIRSetDlyLine64f_32f, qvxsFIR64f_32f, qvxsFIR64f_32f_I, qvxsFIROne64f_32f});
  with(Pair{"64fc_32fc", qvxsFIRGetStateSize64fc_32fc, qvxsFIRInit64fc_32fc, qvxsFIRInitAlloc64fc_32fc, qvxsFIRFree64fc_32fc, qvxsFIRGetTaps64fc_32fc, qvxsFIRSetTaps64fc_32fc, qvxsFIRGetDlyLine64fc_32fc, qvxsFIRSetDlyLine64fc_32fc, qvxsFIR64fc_32fc, qvxsFIR64fc_32fc_I, qvxsFIROne64fc_32fc});
  with(Pair{"64f_32s", qvxsFIRGetStateSize64f_32s, qvxsFIRInit64f_32s, qvxsFIRInitAlloc64f_32s, qvxsFIRFree64f_32s, qvxsFIRGetTaps64f_32s, qvxsFIRSetTaps64f_32s, qvxsFIRGetDlyLine64f_32s, qvxsFIRSetDlyLine64f_32s, qvxsFIR64f_32s_Sfs, qvxsFIR64f_32s_ISfs, qvxsFIROne64f_32s_Sfs});
  with(Pair{"64fc_32sc", qvxsFIRGetStateSize64fc_32sc, qvxsFIRInit64fc_32sc, qvxsFIRInitAlloc64fc_32sc, qvxsFIRFree64fc_32sc, qvxsFIRGetTaps64fc_32sc, qvxsFIRSetTaps64fc_32sc, qvxsFIRGetDlyLine64fc_32sc, qvxsFIRSetDlyLine64fc_32sc, qvxsFIR64fc_32sc_Sfs, qvxsFIR64fc_32sc_ISfs, qvxsFIROne64fc_32sc_Sfs});
  with(Pair{"64f_16s", qvxsFIRGetStateSize64f_16s, qvxsFIRInit64f_16s, qvxsFIRInitAlloc64f_16s, qvxsFIRFree64f_16s, qvxsFIRGetTaps64f_16s, qvxsFIRSetTaps64f_16s, qvxsFIRGetDlyLine64f_16s, qvxsFIRSetDlyLine64f_16s, qvxsFIR64f_16s_Sfs, qvxsFIR64f_16s_ISfs, qvxsFIROne64f_16s_Sfs});
  with(Pair{"64fc_16sc", qvxsFIRGetStateSize64fc_16sc, qvxsFIRInit64fc_16sc, qvxsFIRInitAlloc64fc_16sc, qvxsFIRFree64fc_16sc, qvxsFIRGetTaps64fc_16sc, qvxsFIRSetTaps64fc_16sc, qvxsFIRGetDlyLine64fc_16sc, qvxsFIRSetDlyLine64fc_16sc, qvxsFIR64fc_16sc_Sfs, qvxsFIR64fc_16sc_ISfs, qvxsFIROne64fc_16sc_Sfs});
  with(Pair{"32s_16s", qvxsFIRGetStateSize32s_16s, qvxsFIRInit32s_16s, qvxsFIRInitAlloc32s_16s, qvxsFIRFree32s_16s, qvxsFIRGetTaps32s_16s, qvxsFIRSetTaps32s_16s, qvxsFIRGetDlyLine32s_16s, qvxsFIRSetDlyLine32s_16s, qvxsFIR32s_16s_Sfs, qvxsFIR32s_16s_ISfs, qvxsFIROne32s_16s_Sfs});
  with(Pair{"32sc_16sc", qvxsFIRGetStateSize32sc_16sc, qvxsFIRInit32sc_16sc, qvxsFIRInitAlloc32sc_16sc, qvxsFIRFree32sc_16sc, qvxsFIRGetTaps32sc_16sc, qvxsFIRSetTaps32sc_16sc, qvxsFIRGetDlyLine32sc_16sc, qvxsFIRSetDlyLine32sc_16sc, qvxsFIR32sc_16sc_Sfs, qvxsFIR32sc_16sc_ISfs, qvxsFIROne32sc_16sc_Sfs});
  with(Pair{"16s", qvxsFIRGetStateSize_16s, qvxsFIRInit_16s, qvxsFIRInitAlloc_16s, qvxsFIRFree_16s, qvxsFIRGetTaps_16s, qvxsFIRSetTaps_16s, qvxsFIRGetDlyLine_16s, qvxsFIRSetDlyLine_16s, qvxsFIR_16s_Sfs, qvxsFIR_16s_ISfs, qvxsFIROne_16s_Sfs});
  with(Pair{"32s", qvxsFIRGetStateSize_32s, qvxsFIRInit_32s, qvxsFIRInitAlloc_32s, qvxsFIRFree_32s, qvxsFIRGetTaps_32s, qvxsFIRSetTaps_32s, qvxsFIRGetDlyLine64f_32s, qvxsFIRSetDlyLine64f_32s, qvxsFIR_32s_Sfs, qvxsFIR_32s_ISfs, qvxsFIROne_32s_Sfs});
  with(Pair{"32s_16s32f", qvxsFIRGetStateSize32s_16s32f, qvxsFIRInit32s_16s32f, qvxsFIRInitAlloc32s_16s32f, qvxsFIRFree32s_16s, qvxsFIRGetTaps32s_16s32f, qvxsFIRSetTaps32s_16s32f, qvxsFIRGetDlyLine32s_16s, qvxsFIRSetDlyLine32s_16s, qvxsFIR32s_16s_Sfs, qvxsFIR32s_16s_ISfs, qvxsFIROne32s_16s_Sfs});
  with(Pair{"32sc_16sc32fc", qvxsFIRGetStateSize32sc_16sc32fc, qvxsFIRInit32sc_16sc32fc, qvxsFIRInitAlloc32sc_16sc32fc, qvxsFIRFree32sc_16sc, qvxsFIRGetTaps32sc_16sc32fc, qvxsFIRSetTaps32sc_16sc32fc, qvxsFIRGetDlyLine32sc_16sc, qvxsFIRSetDlyLine32sc_16sc, qvxsFIR32sc_16sc_Sfs, qvxsFIR32sc_16sc_ISfs, qvxsFIROne32sc_16sc_Sfs});
}
// clang-format on

// Of full scale: floats from -1 to 1, integers of all sizes, the extremes among them.
template <class T> T sample(Random& random) {
  if constexpr (isComplex<T>) {
    const auto re = sample<Part<T>>(random);
    return {re, sample<Part<T>>(random)};
  } else if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(std::ldexp(static_cast<double>(static_cast<int64_t>(random())), -63));
  } else {
    return static_cast<T>(random() & 7 ? random() : random() & 1 ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max());
  }
}

template <class T> std::vector<T> samples(size_t n, Random& random) {
  std::vector<T> v(n);
  for (T& x : v) x = sample<T>(random);
  return v;
}

// ---- what a filter has to give

template <class T> inline constexpr bool kIsFloat = std::is_floating_point_v<Part<T>>;
template <class T> std::complex<long double> exact(T v) {
  if constexpr (isComplex<T>) return {static_cast<long double>(v.re), static_cast<long double>(v.im)};
  else return static_cast<long double>(v);
}
template <class T> std::array<long double, 2> exactParts(T v) { return {exact(v).real(), exact(v).imag()}; }
template <class T> std::array<Part<T>, 2> partsOf(T v) {
  if constexpr (isComplex<T>) return {v.re, v.im};
  else return {v, 0};
}

// y = round(v / 2^scaleFactor), with v off by no more than error.
template <class T> bool isRounded(T y, long double v, long double error, int scaleFactor) {
  if constexpr (std::is_floating_point_v<T>) {
    return std::abs(y - v) <= error + std::abs(v) * std::numeric_limits<T>::epsilon() / 2;
  } else {
    const auto rounded = [=](long double x) {
      const long double scaled = std::nearbyint(std::ldexp(x, -scaleFactor));
      return std::clamp<long double>(scaled, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
    };
    return y >= rounded(v - error) && y <= rounded(v + error);
  }
}

// Float arithmetic: the error is a multiple of that of one product of the largest sample with all taps.
template <class H, class T> struct FloatOracle {
  std::vector<H> taps;
  long double around = 0;  // the root mean square of a block, over which a transform spreads its error
  static constexpr long double kEpsilon = std::numeric_limits<Part<H>>::epsilon();

  // newest: the last sample of a stream that has tapsLen samples at least.
  bool agrees(T y, const T* newest, int scaleFactor) const {
    long double re = 0;
    long double im = 0;
    long double size = 0;
    long double most = around;
    for (size_t k = 0; k < taps.size(); ++k) {
      const auto h = exactParts(taps[k]);
      const auto x = exactParts(newest[-static_cast<ptrdiff_t>(k)]);
      re += h[0] * x[0];
      size += std::abs(h[0]);
      most = std::max(most, std::abs(x[0]));
      if constexpr (isComplex<T>) {
        re -= h[1] * x[1];
        im += h[0] * x[1] + h[1] * x[0];
        size += std::abs(h[1]);
        most = std::max(most, std::abs(x[1]));
      }
    }
    const auto parts = partsOf(y);
    const long double error = 2 * kEpsilon * size * most;
    return isRounded(parts[0], re, error, scaleFactor) && isRounded(parts[1], im, error, scaleFactor);
  }
};

// Integer arithmetic: the sum, which wraps at 32 bits, times 2^places, rounded once. Places below -31 count as -31; what exceeds
// 32 bits on the other side wraps.
inline int16_t roundedSum(uint32_t sum, int64_t places) {
  const reference::Wide wrapped = static_cast<int32_t>(sum);
  if (places < 0) return reference::scaled<int16_t>(wrapped, static_cast<int>(std::min<int64_t>(-places, 31)));
  const reference::Wide product = wrapped * (reference::Wide{1} << std::min<int64_t>(places, 32));
  return reference::saturated<int16_t>(static_cast<int32_t>(product));
}
template <class H, class T> struct IntegerOracle {
  std::vector<H> taps;
  int64_t factor;

  bool agrees(T y, const T* newest, int scaleFactor) const {
    uint32_t re = 0;
    uint32_t im = 0;
    for (size_t k = 0; k < taps.size(); ++k) {
      const auto h = partsOf(taps[k]);
      const auto x = partsOf(newest[-static_cast<ptrdiff_t>(k)]);
      const auto product = [](int64_t a, int64_t b) { return static_cast<uint32_t>(a * b); };
      re += product(h[0], x[0]) - product(h[1], x[1]);
      im += product(h[0], x[1]) + product(h[1], x[0]);
    }
    const auto parts = partsOf(y);
    return parts[0] == roundedSum(re, factor - scaleFactor) &&
           (!isComplex<T> || parts[1] == roundedSum(im, factor - scaleFactor));
  }
};

// What the record has to give, with integer taps as it has them.
template <class P> auto oracleOf(const P& pair, const typename P::State* state, const std::vector<typename P::Taps>& h) {
  using State = typename P::State;
  using T = typename P::Sample;
  constexpr bool kIs16s = std::is_same_v<State, QvxsFIRState_16s>, kIsReal = std::is_same_v<State, QvxsFIRState32s_16s>;
  if constexpr (kIs16s || kIsReal || std::is_same_v<State, QvxsFIRState32sc_16sc>) {
    using Taps = std::conditional_t<kIs16s, Qvx16s, std::conditional_t<kIsReal, Qvx32s, Qvx32sc>>;
    std::vector<Taps> taps(h.size());
    int factor = 0;
    QvxStatus status;
    if constexpr (kIs16s) status = qvxsFIRGetTaps_16s(state, taps.data(), &factor);
    else if constexpr (kIsReal) status = qvxsFIRGetTaps32s_16s(state, taps.data(), &factor);
    else status = qvxsFIRGetTaps32sc_16sc(state, taps.data(), &factor);
    EXPECT_EQ(status, qvxStatOk) << pair.name;
    // The filter takes their low 16 bits. All have no more, but for a -2^31 beside small ones, which counts as 0.
    for (Taps& tap : taps) {
      if constexpr (isComplex<Taps>) tap = {static_cast<Qvx16s>(tap.re), static_cast<Qvx16s>(tap.im)};
      else tap = static_cast<Qvx16s>(tap);
    }
    return IntegerOracle<Taps, T>{taps, factor};
  } else if constexpr (std::is_same_v<typename P::Taps, Qvx32s>) {  // held as 64f
    return FloatOracle<Qvx64f, T>{{h.begin(), h.end()}};
  } else {
    return FloatOracle<typename P::Taps, T>{h};
  }
}

// ---- what filters without a record have to give

constexpr int kTapsFactor = -7;

// One output of the last samples.
template <class H, class T> bool agrees(T y, const std::vector<H>& h, const T* newest, int scaleFactor, bool isBlock) {
  if constexpr (!kIsFloat<H>) {
    const int64_t places = std::is_same_v<H, Qvx16s> ? -15 - int64_t{scaleFactor} : int64_t{kTapsFactor} - scaleFactor;
    const bool isRecords = std::is_same_v<H, Qvx16s> && isBlock;
    return IntegerOracle<H, T>{h, isRecords ? places : std::clamp<int64_t>(places, -31, 31)}.agrees(y, newest, 0);
  } else if constexpr (kIsFloat<T>) {
    return FloatOracle<H, T>{h}.agrees(y, newest, 0);
  } else {
    std::complex<long double> sum;
    long double size = 0;
    for (size_t k = 0; k < h.size(); ++k) {
      sum += exact(h[k]) * exact(newest[-static_cast<ptrdiff_t>(k)]);
      size += std::abs(exact(h[k])) * std::abs(exact(newest[-static_cast<ptrdiff_t>(k)]));
    }
    using F = Part<H>;
    const auto matches = [&](Part<T> part, long double v) {
      const auto rounded = [](long double x) {
        return std::clamp<long double>(std::round(x), std::numeric_limits<Part<T>>::min(), std::numeric_limits<Part<T>>::max());
      };
      const long double error = std::ldexp(size, -scaleFactor) * std::numeric_limits<F>::epsilon();
      const long double scaled = std::ldexp(v, -scaleFactor);
      return part >= rounded(scaled - error) && part <= rounded(scaled + error);
    };
    const auto parts = partsOf(y);
    return matches(parts[0], sum.real()) && (!isComplex<T> || matches(parts[1], sum.imag()));
  }
}

}  // namespace tests
