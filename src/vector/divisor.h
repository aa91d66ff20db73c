// Refuses a constant divisor of zero, after the tests of pointers and length.
#pragma once

#include "frame/check.h"
#include "frame/map.h"

namespace qvx {

template <class T> bool isZero(T val) {
  if constexpr (PartsOf<T>::kCount == 2) return val.re == 0 && val.im == 0;
  else return val == 0;
}

template <class... T> QvxStatus refused(int len, const T*... pointers) {
  const QvxStatus status = check(len, pointers...);
  return status != qvxStatOk ? status : qvxStatDivByZero;
}

}  // namespace qvx
