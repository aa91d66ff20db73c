// Functions of one element for the plain loops.
#pragma once

#include <cmath>

#include "peers/plain_loop.h"

namespace plain {

// kFunction(elements..., scalars...)
template <auto kFunction> struct Each {
  static constexpr bool kAccumulates = false;
  template <class D, class... E, class Run, class... X> static void dispatch(const Run& loop, X... scalars) {
    loop([=](auto... e) { return static_cast<D>(kFunction(e..., scalars...)); });
  }
};

inline constexpr auto squareRoot = [](auto x) { return std::sqrt(x); };

}  // namespace plain
