// Sorting of keys in place: what all sorts of this family come down to.
#pragma once

#include "sort/keys.h"

namespace qvx {

// x, n elements as integers of their size, in the order of the keys that the map gives; 32 and 64 bits by two threads, where
// there are two. Nothing is allocated. O(n (log n + bits of a key)) whatever the order and however many keys are equal; the
// result follows from the keys alone.
void sortKeys(int8_t* x, size_t n, KeyMap<int8_t> map);
void sortKeys(int16_t* x, size_t n, KeyMap<int16_t> map);
void sortKeys(int32_t* x, size_t n, KeyMap<int32_t> map);
void sortKeys(int64_t* x, size_t n, KeyMap<int64_t> map);

// The same with n elements of working memory.
void sortKeys(int16_t* x, int16_t* room, size_t n, KeyMap<int16_t> map);
void sortKeys(int32_t* x, int32_t* room, size_t n, KeyMap<int32_t> map);
void sortKeys(int64_t* x, int64_t* room, size_t n, KeyMap<int64_t> map);

template <class T> Key<T>* asKeys(T* x) { return reinterpret_cast<Key<T>*>(x); }

}  // namespace qvx
