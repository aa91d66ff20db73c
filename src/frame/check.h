// The argument rules that nearly every function shares, and the three ways in which a length is tested.
#pragma once

#include <cstddef>

#include "frame/api.h"

namespace qvx {

// How a function tests its length. Most take a plain int: pointers are tested first, then lengths below 1 are refused.

// Lengths below 1 are refused before the pointers are tested.
struct LengthFirst {
  int count;
};
// Refuses 0 alone; a negative argument is a very long vector.
struct Unsigned {
  Qvx32u count;
};

inline size_t elements(int len) { return static_cast<size_t>(len); }
inline size_t elements(LengthFirst len) { return static_cast<size_t>(len.count); }
inline size_t elements(Unsigned len) { return len.count; }

inline bool isNull(const void* p) { return p == nullptr; }

template <class... T> QvxStatus check(int len, const T*... pointers) {
  if ((isNull(pointers) || ...)) return qvxStatNullPtr;
  return len < 1 ? qvxStatBadSize : qvxStatOk;
}

template <class... T> QvxStatus check(LengthFirst len, const T*... pointers) {
  if (len.count < 1) return qvxStatBadSize;
  return (isNull(pointers) || ...) ? qvxStatNullPtr : qvxStatOk;
}

template <class... T> QvxStatus check(Unsigned len, const T*... pointers) {
  if ((isNull(pointers) || ...)) return qvxStatNullPtr;
  return len.count == 0 ? qvxStatBadSize : qvxStatOk;
}

}  // namespace qvx
