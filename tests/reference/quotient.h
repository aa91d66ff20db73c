// The scaled quotient by its definition: two whole numbers, divided once.
#pragma once

#include <cstdlib>

#include "reference/scaled.h"

namespace reference {

// The scale factors that are worked out; below and above there are only extremes and zeros.
struct ScaleWindow {
  int least;
  int most;
};

// dividend / divisor * 2^-s. A divisor of 0 leaves the dividend's sign.
template <class T> T quotient(Wide divisor, Wide dividend, int s, ScaleWindow window, Mode mode = Mode::kNearestEven) {
  if (divisor < 0) divisor = -divisor, dividend = -dividend;
  const T extreme = dividend < 0 ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
  if (dividend == 0) return 0;
  if (divisor == 0 || s < window.least) return extreme;
  if (s > window.most) return 0;
  const Wide unit = Wide{1} << std::abs(s);
  return saturated<T>(s < 0 ? dividedAndRounded(dividend * unit, divisor, mode)
                            : dividedAndRounded(dividend, divisor * unit, mode));
}

}  // namespace reference
