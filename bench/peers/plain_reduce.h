// Reductions for the plain loops. The files that use them are compiled with -ffast-math: without leave to reorder, the compiler
// adds floats one by one.
#pragma once

#include "peers/plain_loop.h"

namespace plain {

// kAdd(accumulator, elements...) over all elements, from Acc{}.
template <class Acc, auto kAdd> struct Gathered {
  template <class A, class R, class... X> [[gnu::noipa]] static void run(const A* a, int n, R* result, X...) {
    Acc all{};
    for (int i = 0; i < n; ++i) all = kAdd(all, a[i]);
    *result = static_cast<R>(all);
  }
  template <class A, class B, class R, class... X>
  [[gnu::noipa]] static void run(const A* a, const B* b, int n, R* result, X...) {
    Acc all{};
    for (int i = 0; i < n; ++i) all = kAdd(all, a[i], b[i]);
    *result = static_cast<R>(all);
  }
  template <class... A> void operator()(A... arguments) const { run(arguments...); }
};

inline constexpr auto addTo = [](auto all, auto x) { return all + x; };

}  // namespace plain
