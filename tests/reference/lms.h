// Adaptive filters as their definition has them.
#pragma once

#include <cmath>
#include <vector>

#include "reference/scaled.h"

namespace reference {

// h[0] first, newest sample first.
struct Lms {
  std::vector<long double> h, x;
  long double magnitude = 0;  // of the last sum

  long double step(long double sample, long double ref, long double mu) {
    x.insert(x.begin(), sample);
    x.pop_back();
    long double y = magnitude = 0;
    for (size_t k = 0; k < h.size(); ++k) {
      y += h[k] * x[k];
      magnitude += std::abs(h[k] * x[k]);
    }
    for (size_t k = 0; k < h.size(); ++k) h[k] += (ref - y) * 2 * mu * x[k];
    return y;
  }
};

inline int64_t wrapped(Wide v) { return static_cast<int64_t>(static_cast<uint64_t>(v)); }

// v to the nearest whole number, ties to even.
inline double nearest(double v) {
  const double below = std::floor(v), fraction = v - below;
  return below + (fraction > 0.5 || (fraction == 0.5 && std::fmod(below, 2) != 0) ? 1 : 0);
}

// One tap after a step: rint of an exact product times a double, saturated.
inline int32_t adapted(int32_t h, double factor, int64_t exact) {
  const double change = nearest(factor * static_cast<double>(exact));
  if (std::isnan(change)) return INT32_MIN;
  const double sum = h + change;
  return sum >= INT32_MAX ? INT32_MAX : sum <= INT32_MIN ? INT32_MIN : static_cast<int32_t>(sum);
}

}  // namespace reference
