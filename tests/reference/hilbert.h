// The Hilbert transform of a period as defined by its spectrum, in long double.
#pragma once

#include <vector>

#include "reference/dft.h"

namespace tests {

template <class T> std::vector<long double> hilbertTransform(const std::vector<T>& x) {
  const size_t n = x.size();
  std::vector<Exact> spectrum = dft(std::vector<Exact>(x.begin(), x.end()), -1);
  for (size_t k = 0; k < n; ++k) {
    const bool isReal = k == 0 || 2 * k == n;
    spectrum[k] *= isReal ? Exact(0) : 2 * k < n ? Exact(0, -1) : Exact(0, 1);
  }
  std::vector<long double> h(n);
  const std::vector<Exact> back = dft(spectrum, 1);
  for (size_t i = 0; i < n; ++i) h[i] = back[i].real() / static_cast<long double>(n);
  return h;
}

}  // namespace tests
