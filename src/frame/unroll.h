// Loops that are always unrolled, with a constant index in each step, so that arrays of vectors stay in registers.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

namespace qvx {

template <size_t kCount, class Step> [[gnu::always_inline]] inline void unrolled(Step step) {
  [&]<size_t... I>(std::index_sequence<I...>) __attribute__((always_inline)) { (step(std::integral_constant<size_t, I>()), ...); }
  (std::make_index_sequence<kCount>());
}

}  // namespace qvx
