// Elements of any type as integers of their size.
#pragma once

#include "frame/map.h"

namespace qvx {

// A lane as wide as the element, or as its parts where the element is wider than any lane.
template <class T>
using Word = std::conditional_t<(sizeof(T) > 8), Part<T>, hwy::UnsignedFromSize<std::min<size_t>(sizeof(T), 8)>>;
template <class T> inline constexpr size_t kWords = sizeof(T) / sizeof(Word<T>);

template <class T> Word<T>* words(T* p) { return reinterpret_cast<Word<T>*>(p); }
template <class T> const Word<T>* words(const T* p) { return reinterpret_cast<const Word<T>*>(p); }

}  // namespace qvx
