// What the threshold functions have in common: the relation codes and the test of a level for magnitudes.
#pragma once

#include "frame/map.h"

namespace qvx {

enum RelOp { kLessThan = 0, kGreaterThan = 4 };

template <class T> QvxStatus checkLevel(int len, const T* src, const T* dst, Part<T> level) {
  const QvxStatus status = check(len, src, dst);
  return status == qvxStatOk && level < 0 ? qvxStatNegThreshold : status;
}

}  // namespace qvx
