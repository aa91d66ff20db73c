// Keys whose medians are bad pivots.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tests {

// n different positive keys, of which SSSE3's quicksort finds no more below each pivot than it takes for a median of medians;
// with numbers beside them, its quicksort of pairs.
template <class K> std::vector<K> killerOfMedians(size_t n, bool hasNumbers);
extern template std::vector<int32_t> killerOfMedians(size_t, bool);
extern template std::vector<int64_t> killerOfMedians(size_t, bool);

}  // namespace tests
