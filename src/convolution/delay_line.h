// The samples that a filter keeps between calls.
#pragma once

#include <algorithm>

namespace qvx::convolution {

// The last tapsLen samples, oldest first, from `index` on. A single sample is stored twice, at the index and tapsLen after it,
// and the index moves on; longer calls leave the window at the beginning.
template <class K> struct DelayLine {
  K* window;
  int index;

  K* settled(int tapsLen) {
    if (index != 0) std::copy_n(window + index, tapsLen, window);
    index = 0;
    return window;
  }
  // Takes a sample and gives the window.
  const K* push(K v, int tapsLen) {
    window[index] = window[index + tapsLen] = v;
    if (++index == tapsLen) index = 0;
    return window + index;
  }
};

}  // namespace qvx::convolution
