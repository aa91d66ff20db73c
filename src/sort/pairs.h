// Sorts keys together with their numbers.
#pragma once

#include "sort/keys.h"

namespace qvx {

// keys[0..n-1] in ascending order, numbers[] of equal keys too: the order of their pairs. No pair may occur twice.
void sortPairs(int32_t* keys, int32_t* numbers, size_t n);

// The same where all keys are different; false, with the pairs in no order, if it came upon equal keys, which it need not see.
bool sortDifferentPairs(int32_t* keys, int32_t* numbers, size_t n);
bool sortDifferentPairs(int64_t* keys, int32_t* numbers, size_t n);

// 0, 1, 2 ...
inline void fillNumbers(int32_t* numbers, size_t n) {
  constexpr size_t N = kVectorBytes / sizeof(int32_t);
  const Lanes<int32_t, N> d;
  size_t i = 0;
  for (auto v = hn::Iota(d, 0); i + N <= n; i += N, v = v + hn::Set(d, N)) store(v, d, numbers + i);
  for (; i < n; ++i) numbers[i] = static_cast<int32_t>(i);
}

}  // namespace qvx
