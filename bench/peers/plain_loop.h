// The loops that a user would write instead, one for every signature.
//
// An operation provides Op::dispatch<D, E...>(loop, scalars...), which decides everything that does not change within the loop,
// such as the sign of a scale factor or the round mode, and runs loop(kernel), where kernel(E...) gives one element of type D.
// The loops are compiled without knowledge of their callers' arguments, as if in another library.
#pragma once

#include "peers/plain_exact.h"

namespace plain {

template <class Op, class F> struct Loop;

template <class Op, class R, class A, class B, class D, class... X> struct Loop<Op, R (*)(const A*, const B*, D*, int, X...)> {
  [[gnu::noipa]] static void run(const A* __restrict a, const B* __restrict b, D* __restrict d, int n, X... x) {
    const auto loop = [=](auto kernel) {
      if constexpr (Op::kAccumulates) {
#pragma GCC ivdep  // __restrict does not reach into the lambda
        for (int i = 0; i < n; ++i) d[i] = kernel(a[i], b[i], d[i]);
      } else {
#pragma GCC ivdep
        for (int i = 0; i < n; ++i) d[i] = kernel(a[i], b[i]);
      }
    };
    if constexpr (Op::kAccumulates) Op::template dispatch<D, A, B, D>(loop, x...);
    else Op::template dispatch<D, A, B>(loop, x...);
  }
};

template <class Op, class R, class A, class C, class D, class N, class... X> struct Loop<Op, R (*)(const A*, C, D*, N, X...)> {
  [[gnu::noipa]] static void run(const A* __restrict a, C c, D* __restrict d, N n, X... x) {
    const auto loop = [=](auto kernel) {
      if constexpr (Op::kAccumulates) {
#pragma GCC ivdep
        for (N i = 0; i < n; ++i) d[i] = kernel(a[i], c, d[i]);
      } else {
#pragma GCC ivdep
        for (N i = 0; i < n; ++i) d[i] = kernel(a[i], c);
      }
    };
    if constexpr (Op::kAccumulates) Op::template dispatch<D, A, C, D>(loop, x...);
    else Op::template dispatch<D, A, C>(loop, x...);
  }
};

template <class Op, class R, class A, class D, class N, class... X> struct Loop<Op, R (*)(const A*, D*, N, X...)> {
  [[gnu::noipa]] static void run(const A* __restrict a, D* __restrict d, N n, X... x) {
    const auto loop = [=](auto kernel) {
      if constexpr (Op::kAccumulates) {
#pragma GCC ivdep
        for (N i = 0; i < n; ++i) d[i] = kernel(a[i], d[i]);
      } else {
#pragma GCC ivdep
        for (N i = 0; i < n; ++i) d[i] = kernel(a[i]);
      }
    };
    if constexpr (Op::kAccumulates) Op::template dispatch<D, A, D>(loop, x...);
    else Op::template dispatch<D, A>(loop, x...);
  }
};

// A constant and the destination, in place.
template <class Op, class R, class C, class D, class N, class... X>
requires(!std::is_pointer_v<C>) struct Loop<Op, R (*)(C, D*, N, X...)> {
  [[gnu::noipa]] static void run(C c, D* d, N n, X... x) {
    const auto loop = [=](auto kernel) {
      for (N i = 0; i < n; ++i) d[i] = kernel(d[i], c);
    };
    Op::template dispatch<D, D, C>(loop, x...);
  }
};

// The destination alone, in place.
template <class Op, class R, class D> struct Loop<Op, R (*)(D*, int)> {
  [[gnu::noipa]] static void run(D* d, int n) {
    const auto loop = [=](auto kernel) {
      for (int i = 0; i < n; ++i) d[i] = kernel(d[i]);
    };
    Op::template dispatch<D, D>(loop);
  }
};

template <class Op, class F> auto loopFor() { return &Loop<Op, F>::run; }

}  // namespace plain
