// How the spectrum of n real numbers is packed: X[0], the pairs X[1] to X[(n - 1) / 2] and, where n is even, the real X[n/2].
#pragma once

#include <cstddef>

namespace qvx::transform {

enum class SpectrumLayout {
  kPerm,  // X[0], X[n/2] if n is even, then the pairs
  kPack,  // X[0], the pairs, X[n/2]
  kCcs,   // all as pairs
};

// Where the pair k from 1 on begins.
constexpr size_t placeOfPair(SpectrumLayout layout, size_t n, size_t k) {
  const bool isFirstAlone = layout == SpectrumLayout::kPack || (layout == SpectrumLayout::kPerm && n % 2 != 0);
  return isFirstAlone ? 2 * k - 1 : 2 * k;
}
// Where the real part of X[n/2] stands; n is even.
constexpr size_t placeOfMiddle(SpectrumLayout layout, size_t n) {
  return layout == SpectrumLayout::kPerm ? 1 : layout == SpectrumLayout::kPack ? n - 1 : n;
}
// The numbers of a spectrum.
constexpr size_t spectrumLength(SpectrumLayout layout, size_t n) { return layout == SpectrumLayout::kCcs ? 2 * (n / 2 + 1) : n; }

}  // namespace qvx::transform
