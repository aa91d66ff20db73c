// Recursive filters as one would write them: sections with all samples or sample by sample, and the direct form. Each call begins
// with an empty delay line.
#pragma once

#include <algorithm>
#include <vector>

namespace bench::plain {

// Sections b0, b1, b2, a1, a2, in the transposed direct form II.
template <class T> struct Sections {
  std::vector<T> taps;
  std::vector<T> line = std::vector<T>(taps.size() / 5 * 2);

  [[gnu::noipa]] void bySample(const T* src, T* dst, int len) {
    const size_t count = taps.size() / 5;
    std::fill(line.begin(), line.end(), T{0});
    for (int i = 0; i < len; ++i) {
      T x = src[i];
      for (size_t s = 0; s < count; ++s) {
        const T* t = &taps[5 * s];
        T* d = &line[2 * s];
        const T y = t[0] * x + d[0];
        d[0] = t[1] * x - t[3] * y + d[1];
        d[1] = t[2] * x - t[4] * y;
        x = y;
      }
      dst[i] = x;
    }
  }

  [[gnu::noipa]] void bySection(const T* src, T* dst, int len) {
    for (size_t s = 0; s < taps.size() / 5; ++s, src = dst) {
      const T b0 = taps[5 * s], b1 = taps[5 * s + 1], b2 = taps[5 * s + 2], a1 = taps[5 * s + 3], a2 = taps[5 * s + 4];
      T d0 = 0;
      T d1 = 0;
      for (int i = 0; i < len; ++i) {
        const T x = src[i];
        const T y = b0 * x + d0;
        d0 = b1 * x - a1 * y + d1;
        d1 = b2 * x - a2 * y;
        dst[i] = y;
      }
      line[2 * s] = d0;
      line[2 * s + 1] = d1;
    }
  }
};

// Taps b0..bN, and a0..aN with an a0 of 1.
template <class T> struct Direct {
  std::vector<T> b, a;
  std::vector<T> line = std::vector<T>(b.size());  // the last stays 0

  template <class D> [[gnu::noipa]] void run(const D* src, D* dst, int len) {
    const size_t order = b.size() - 1;
    const T* const pb = b.data();
    const T* const pa = a.data();
    T* const d = line.data();
    std::fill(line.begin(), line.end(), T{0});
    for (int i = 0; i < len; ++i) {
      const T x = src[i];
      const T y = pb[0] * x + d[0];
      for (size_t k = 0; k < order; ++k) d[k] = pb[k + 1] * x - pa[k + 1] * y + d[k + 1];
      dst[i] = static_cast<D>(y);
    }
  }
};

}  // namespace bench::plain
