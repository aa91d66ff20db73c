// Every stem of the recursive filters with its functions, and the recursion itself in long double.
#pragma once

#include <qvx/qvxs.h>

#include <cmath>
#include <complex>
#include <string>
#include <tuple>

#include "support/values.h"

namespace tests {

template <class T> struct ExactOf { using Type = long double; };
template <class T>
requires isComplex<T>
struct ExactOf<T> {
  using Type = std::complex<long double>;
};
template <class T> using Exact = typename ExactOf<T>::Type;

template <class T> Exact<T> exact(T v) {
  if constexpr (isComplex<T>) return {static_cast<long double>(v.re), static_cast<long double>(v.im)};
  else return v;
}
template <class T> T rounded(Exact<T> v) {
  if constexpr (isComplex<T>) return {static_cast<Part<T>>(v.real()), static_cast<Part<T>>(v.imag())};
  else return static_cast<T>(v);
}

// The transposed direct form II, in N: long double for the truth, the filter's own type for the plain loop.
template <class N> struct Recursion {
  std::vector<N> b, a, d;  // a[0] is 1
  bool fuses = false;      // as compilers do where they may
  N plus(N sum, N x, N y) const {
    if constexpr (std::is_floating_point_v<N>) return fuses ? std::fma(x, y, sum) : sum + x * y;
    else return sum + x * y;
  }
  N operator()(N x) {
    const N y = plus(d[0], b[0], x);
    for (size_t i = 0; i + 1 < b.size(); ++i) {
      d[i] = fuses ? plus(plus(i + 1 < d.size() ? d[i + 1] : N(0), b[i + 1], x), -a[i + 1], y)
                   : b[i + 1] * x - a[i + 1] * y + (i + 1 < d.size() ? d[i + 1] : N(0));
    }
    return y;
  }
};

// `numBq` sections of 6 taps each, or 0 and one direct form. They are given an a0 of a power of two, or of 2i, by which taps are
// divided exactly.
template <class N, class T> std::vector<Recursion<N>> recursions(const std::vector<T>& taps, int order, int numBq) {
  std::vector<Recursion<N>> all;
  const size_t n = numBq == 0 ? static_cast<size_t>(order) : 2;
  for (size_t first = 0; first < taps.size(); first += 2 * n + 2) {
    Recursion<N> r;
    for (size_t i = 0; i < 2 * n + 2; ++i) {
      (i <= n ? r.b : r.a).push_back(static_cast<N>(exact(taps[first + i]) / exact(taps[first + n + 1])));
    }
    r.d.assign(n, N(0));
    all.push_back(r);
  }
  return all;
}

// Function pointers by form: 0 direct, 1 sections.
template <class StateType, class InternalType, class DataType, class Filter, class InPlace, class One> struct Members {
  using State = StateType;
  using Internal = InternalType;
  using Data = DataType;
  std::string name;
  QvxStatus (*size[2])(int, int*);
  QvxStatus (*init[2])(State**, const Internal*, int, const Internal*, Qvx8u*);
  QvxStatus (*initAlloc[2])(State**, const Internal*, int, const Internal*);
  QvxStatus (*free)(State*);
  QvxStatus (*getLine)(State*, Internal*);
  QvxStatus (*setLine)(State*, const Internal*);
  QvxStatus (*setTaps)(const Internal*, State*);
  Filter filterFunction;
  InPlace inPlaceFunction;
  One oneFunction;

  static constexpr bool kIsScaled = std::is_integral_v<Part<Data>>;
  // Float samples have no scale factor to give.
  template <class F, class... A> static QvxStatus call(F f, int scaleFactor, A... a) {
    if constexpr (kIsScaled) return f(a..., scaleFactor);
    else return f(a...);
  }
  QvxStatus filter(const Data* src, Data* dst, int len, State* s, int sf = 0) const {
    return call(filterFunction, sf, src, dst, len, s);
  }
  QvxStatus inPlace(Data* srcDst, int len, State* s, int sf = 0) const { return call(inPlaceFunction, sf, srcDst, len, s); }
  QvxStatus one(Data src, Data* dst, State* s, int sf = 0) const { return call(oneFunction, sf, src, dst, s); }
};

template <class S, class I, class D, class F, class P, class O>
Members<S, I, D, F, P, O> members(const char* name, QvxStatus (*size)(int, int*), QvxStatus (*sizeB)(int, int*),
                                  QvxStatus (*init)(S**, const I*, int, const I*, Qvx8u*),
                                  QvxStatus (*initB)(S**, const I*, int, const I*, Qvx8u*),
                                  QvxStatus (*alloc)(S**, const I*, int, const I*),
                                  QvxStatus (*allocB)(S**, const I*, int, const I*), QvxStatus (*free)(S*),
                                  QvxStatus (*get)(S*, I*), QvxStatus (*set)(S*, const I*), QvxStatus (*taps)(const I*, S*),
                                  F filter, P inPlace, O one, D) {
  return {name, {size, sizeB}, {init, initB}, {alloc, allocB}, free, get, set, taps, filter, inPlace, one};
}

// clang-format off
inline const auto kStems = std::tuple{
    members("32f", qvxsIIRGetStateSize_32f, qvxsIIRGetStateSize_BiQuad_32f, qvxsIIRInit_32f, qvxsIIRInit_BiQuad_32f, qvxsIIRInitAlloc_32f, qvxsIIRInitAlloc_BiQuad_32f,
            qvxsIIRFree_32f, qvxsIIRGetDlyLine_32f, qvxsIIRSetDlyLine_32f, qvxsIIRSetTaps_32f, qvxsIIR_32f, qvxsIIR_32f_I, qvxsIIROne_32f, Qvx32f()),
    members("32fc", qvxsIIRGetStateSize_32fc, qvxsIIRGetStateSize_BiQuad_32fc, qvxsIIRInit_32fc, qvxsIIRInit_BiQuad_32fc, qvxsIIRInitAlloc_32fc, qvxsIIRInitAlloc_BiQuad_32fc,
            qvxsIIRFree_32fc, qvxsIIRGetDlyLine_32fc, qvxsIIRSetDlyLine_32fc, qvxsIIRSetTaps_32fc, qvxsIIR_32fc, qvxsIIR_32fc_I, qvxsIIROne_32fc, Qvx32fc()),
    members("32f_16s", qvxsIIRGetStateSize32f_16s, qvxsIIRGetStateSize32f_BiQuad_16s, qvxsIIRInit32f_16s, qvxsIIRInit32f_BiQuad_16s, qvxsIIRInitAlloc32f_16s, qvxsIIRInitAlloc32f_BiQuad_16s,
            qvxsIIRFree32f_16s, qvxsIIRGetDlyLine32f_16s, qvxsIIRSetDlyLine32f_16s, qvxsIIRSetTaps32f_16s, qvxsIIR32f_16s_Sfs, qvxsIIR32f_16s_ISfs, qvxsIIROne32f_16s_Sfs, Qvx16s()),
    members("32fc_16sc", qvxsIIRGetStateSize32fc_16sc, qvxsIIRGetStateSize32fc_BiQuad_16sc, qvxsIIRInit32fc_16sc, qvxsIIRInit32fc_BiQuad_16sc, qvxsIIRInitAlloc32fc_16sc, qvxsIIRInitAlloc32fc_BiQuad_16sc,
            qvxsIIRFree32fc_16sc, qvxsIIRGetDlyLine32fc_16sc, qvxsIIRSetDlyLine32fc_16sc, qvxsIIRSetTaps32fc_16sc, qvxsIIR32fc_16sc_Sfs, qvxsIIR32fc_16sc_ISfs, qvxsIIROne32fc_16sc_Sfs, Qvx16sc()),
    members("32s_16s", qvxsIIRGetStateSize32s_16s32f, qvxsIIRGetStateSize32s_BiQuad_16s32f, qvxsIIRInit32s_16s32f, qvxsIIRInit32s_BiQuad_16s32f, qvxsIIRInitAlloc32s_16s32f, qvxsIIRInitAlloc32s_BiQuad_16s32f,
            qvxsIIRFree32s_16s, qvxsIIRGetDlyLine32s_16s, qvxsIIRSetDlyLine32s_16s, qvxsIIRSetTaps32s_16s32f, qvxsIIR32s_16s_Sfs, qvxsIIR32s_16s_ISfs, qvxsIIROne32s_16s_Sfs, Qvx16s()),
    members("32sc_16sc", qvxsIIRGetStateSize32sc_16sc32fc, qvxsIIRGetStateSize32sc_BiQuad_16sc32fc, qvxsIIRInit32sc_16sc32fc, qvxsIIRInit32sc_BiQuad_16sc32fc, qvxsIIRInitAlloc32sc_16sc32fc, qvxsIIRInitAlloc32sc_BiQuad_16sc32fc,
            qvxsIIRFree32sc_16sc, qvxsIIRGetDlyLine32sc_16sc, qvxsIIRSetDlyLine32sc_16sc, qvxsIIRSetTaps32sc_16sc32fc, qvxsIIR32sc_16sc_Sfs, qvxsIIR32sc_16sc_ISfs, qvxsIIROne32sc_16sc_Sfs, Qvx16sc()),
    members("64f", qvxsIIRGetStateSize_64f, qvxsIIRGetStateSize_BiQuad_64f, qvxsIIRInit_64f, qvxsIIRInit_BiQuad_64f, qvxsIIRInitAlloc_64f, qvxsIIRInitAlloc_BiQuad_64f,
            qvxsIIRFree_64f, qvxsIIRGetDlyLine_64f, qvxsIIRSetDlyLine_64f, qvxsIIRSetTaps_64f, qvxsIIR_64f, qvxsIIR_64f_I, qvxsIIROne_64f, Qvx64f()),
    members("64fc", qvxsIIRGetStateSize_64fc, qvxsIIRGetStateSize_BiQuad_64fc, qvxsIIRInit_64fc, qvxsIIRInit_BiQuad_64fc, qvxsIIRInitAlloc_64fc, qvxsIIRInitAlloc_BiQuad_64fc,
            qvxsIIRFree_64fc, qvxsIIRGetDlyLine_64fc, qvxsIIRSetDlyLine_64fc, qvxsIIRSetTaps_64fc, qvxsIIR_64fc, qvxsIIR_64fc_I, qvxsIIROne_64fc, Qvx64fc()),
    members("64f_32f", qvxsIIRGetStateSize64f_32f, qvxsIIRGetStateSize64f_BiQuad_32f, qvxsIIRInit64f_32f, qvxsIIRInit64f_BiQuad_32f, qvxsIIRInitAlloc64f_32f, qvxsIIRInitAlloc64f_BiQuad_32f,
            qvxsIIRFree64f_32f, qvxsIIRGetDlyLine64f_32f, qvxsIIRSetDlyLine64f_32f, qvxsIIRSetTaps64f_32f, qvxsIIR64f_32f, qvxsIIR64f_32f_I, qvxsIIROne64f_32f, Qvx32f()),
    members("64fc_32fc", qvxsIIRGetStateSize64fc_32fc, qvxsIIRGetStateSize64fc_BiQuad_32fc, qvxsIIRInit64fc_32fc, qvxsIIRInit64fc_BiQuad_32fc, qvxsIIRInitAlloc64fc_32fc, qvxsIIRInitAlloc64fc_BiQuad_32fc,
            qvxsIIRFree64fc_32fc, qvxsIIRGetDlyLine64fc_32fc, qvxsIIRSetDlyLine64fc_32fc, qvxsIIRSetTaps64fc_32fc, qvxsIIR64fc_32fc, qvxsIIR64fc_32fc_I, qvxsIIROne64fc_32fc, Qvx32fc()),
    members("64f_32s", qvxsIIRGetStateSize64f_32s, qvxsIIRGetStateSize64f_BiQuad_32s, qvxsIIRInit64f_32s, qvxsIIRInit64f_BiQuad_32s, qvxsIIRInitAlloc64f_32s, qvxsIIRInitAlloc64f_BiQuad_32s,
            qvxsIIRFree64f_32s, qvxsIIRGetDlyLine64f_32s, qvxsIIRSetDlyLine64f_32s, qvxsIIRSetTaps64f_32s, qvxsIIR64f_32s_Sfs, qvxsIIR64f_32s_ISfs, qvxsIIROne64f_32s_Sfs, Qvx32s()),
    members("64fc_32sc", qvxsIIRGetStateSize64fc_32sc, qvxsIIRGetStateSize64fc_BiQuad_32sc, qvxsIIRInit64fc_32sc, qvxsIIRInit64fc_BiQuad_32sc, qvxsIIRInitAlloc64fc_32sc, qvxsIIRInitAlloc64fc_BiQuad_32sc,
            qvxsIIRFree64fc_32sc, qvxsIIRGetDlyLine64fc_32sc, qvxsIIRSetDlyLine64fc_32sc, qvxsIIRSetTaps64fc_32sc, qvxsIIR64fc_32sc_Sfs, qvxsIIR64fc_32sc_ISfs, qvxsIIROne64fc_32sc_Sfs, Qvx32sc()),
    members("64f_16s", qvxsIIRGetStateSize64f_16s, qvxsIIRGetStateSize64f_BiQuad_16s, qvxsIIRInit64f_16s, qvxsIIRInit64f_BiQuad_16s, qvxsIIRInitAlloc64f_16s, qvxsIIRInitAlloc64f_BiQuad_16s,
            qvxsIIRFree64f_16s, qvxsIIRGetDlyLine64f_16s, qvxsIIRSetDlyLine64f_16s, qvxsIIRSetTaps64f_16s, qvxsIIR64f_16s_Sfs, qvxsIIR64f_16s_ISfs, qvxsIIROne64f_16s_Sfs, Qvx16s()),
    members("64fc_16sc", qvxsIIRGetStateSize64fc_16sc, qvxsIIRGetStateSize64fc_BiQuad_16sc, qvxsIIRInit64fc_16sc, qvxsIIRInit64fc_BiQuad_16sc, qvxsIIRInitAlloc64fc_16sc, qvxsIIRInitAlloc64fc_BiQuad_16sc,
            qvxsIIRFree64fc_16sc, qvxsIIRGetDlyLine64fc_16sc, qvxsIIRSetDlyLine64fc_16sc, qvxsIIRSetTaps64fc_16sc, qvxsIIR64fc_16sc_Sfs, qvxsIIR64fc_16sc_ISfs, qvxsIIROne64fc_16sc_Sfs, Qvx16sc()),
};
// clang-format on

template <class Visit> void forEachStem(Visit visit) {
  std::apply([&](const auto&... m) { (visit(m), ...); }, kStems);
}

}  // namespace tests
