// Scalar fallback for lanes that a vector kernel cannot handle.
#pragma once

#include <bit>

#include "frame/simd.h"

namespace qvx {

// `result`, with f(in...) in the lanes whose bit is set.
template <class F, class V, class... In> [[gnu::noinline]] V redone(uint64_t lanes, V result, F f, In... in) {
  const TagOf<V> d;
  using T = LaneOf<V>;
  alignas(64) T out[kLanesOf<V>];
  store(result, d, out);
  const auto lane = [&](auto... sources) {
    for (; lanes != 0; lanes &= lanes - 1) {
      const auto i = static_cast<size_t>(std::countr_zero(lanes));
      out[i] = f(sources.v[i]...);
    }
  };
  struct Stored {
    alignas(64) T v[kLanesOf<V>];
    explicit Stored(V from) { store(from, TagOf<V>(), v); }
  };
  lane(Stored(in)...);
  return load(d, out);
}

}  // namespace qvx
