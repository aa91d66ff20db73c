// Where the parts of X[k], k from 0 to n/2, stand in a packed spectrum of n real values.
#pragma once

#include <cstddef>
#include <vector>

namespace reference {

enum class Layout { kPerm, kPack, kCcs };

struct Place {
  size_t re;
  size_t im;
  bool isReal;  // has no place for an imaginary part
};

inline Place placeOf(Layout layout, size_t n, size_t k) {
  if (layout == Layout::kCcs) return {2 * k, 2 * k + 1, false};
  if (k == 0) return {0, 0, true};
  if (2 * k == n) return layout == Layout::kPack ? Place{n - 1, 0, true} : Place{1, 0, true};
  if (layout == Layout::kPerm && n % 2 == 0) return {2 * k, 2 * k + 1, false};
  return {2 * k - 1, 2 * k, false};
}

inline size_t sizeOf(Layout layout, size_t n) { return layout == Layout::kCcs ? 2 * (n / 2 + 1) : n; }

// The whole spectrum of a real sequence in a layout.
template <class T, class Complex> std::vector<T> packed(Layout layout, const std::vector<Complex>& spectrum) {
  const size_t n = spectrum.size();
  std::vector<T> v(sizeOf(layout, n));
  for (size_t k = 0; k <= n / 2; ++k) {
    const Place at = placeOf(layout, n, k);
    v[at.re] = static_cast<T>(spectrum[k].real());
    if (k > 0 && 2 * k < n) v[at.im] = static_cast<T>(spectrum[k].imag());
  }
  return v;
}

}  // namespace reference
