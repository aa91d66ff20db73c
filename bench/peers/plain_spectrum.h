// Loops over packed spectra.
#pragma once

#include "peers/plain_complex.h"

namespace plain {

// Pairs from kFirst on; real values at 0 and, for an even n, at 1 (kFirst 2) or n - 1.
template <int kFirst, class T>
[[gnu::noipa]] void packedProduct(const T* __restrict a, const T* __restrict b, T* __restrict d, int n) {
  d[0] = a[0] * b[0];
  const int middle = kFirst == 2 ? 1 : n - 1;
  if (n % 2 == 0) d[middle] = a[middle] * b[middle];
  for (int i = kFirst; i + 1 < n; i += 2) {
    d[i] = a[i] * b[i] - a[i + 1] * b[i + 1];
    d[i + 1] = a[i] * b[i + 1] + a[i + 1] * b[i];
  }
}
template <class T> [[gnu::noipa]] void packedConjugateProduct(const T* __restrict a, T* __restrict d, int n) {
  d[0] *= a[0];
  if (n % 2 == 0) d[n - 1] *= a[n - 1];
  for (int i = 1; i + 1 < n; i += 2) {
    const T re = a[i] * d[i] + a[i + 1] * d[i + 1];
    d[i + 1] = a[i] * d[i + 1] - a[i + 1] * d[i];
    d[i] = re;
  }
}

// 16 bits, for scale factors above 0: pairs rounded to nearest even, real values floored.
template <int kFirst>
[[gnu::noipa]] void packedProduct16(const Qvx16s* __restrict a, const Qvx16s* __restrict b, Qvx16s* __restrict d, int n, int s) {
  const auto limited = [](auto v) { return static_cast<Qvx16s>(v < -32768 ? -32768 : v > 32767 ? 32767 : v); };
  const auto rounded = [=](int64_t v) { return limited((v + (int64_t{1} << (s - 1)) - 1 + (v >> s & 1)) >> s); };
  d[0] = limited(a[0] * b[0] >> s);
  const int middle = kFirst == 2 ? 1 : n - 1;
  if (n % 2 == 0) d[middle] = limited(a[middle] * b[middle] >> s);
  for (int i = kFirst; i + 1 < n; i += 2) {
    d[i] = rounded(int64_t{a[i] * b[i]} - a[i + 1] * b[i + 1]);
    d[i + 1] = rounded(int64_t{a[i] * b[i + 1]} + a[i + 1] * b[i]);
  }
}

// kFirst: where the pairs begin. kPairs: whether X[0] and X[n/2] are pairs too.
template <int kFirst, bool kPairs, class C> [[gnu::noipa]] void unfold(const Part<C>* __restrict a, C* __restrict d, int n) {
  d[0] = {a[0], kPairs ? a[1] : Part<C>{0}};
  if (n % 2 == 0) d[n / 2] = kPairs ? C{a[n], a[n + 1]} : C{a[kFirst == 2 ? 1 : n - 1], 0};
  for (int k = 1; 2 * k < n; ++k) {
    const C x = {a[2 * k + kFirst - 2], a[2 * k + kFirst - 1]};
    d[k] = x;
    if constexpr (std::is_same_v<C, Qvx16sc>) d[n - k] = saturatedConjugate(x);
    else d[n - k] = conjugate(x);
  }
}

}  // namespace plain
