// The records of the filter bank, as tests see them too.
#pragma once

#include <qvx/qvxdefs.h>

#include <cstdint>

namespace qvx::wavelet {

// A band of either stage. Sums are taken over windows, oldest value first; each begins `history` values before the first new
// value of its result.
struct Band {
  int length;  // of the filter as it was given
  int offset;
  int pairs;        // of taps
  int64_t history;  // values that are kept
  Qvx32f* taps;     // those for the oldest of a window first
  Qvx32f* window;   // the history, and then room for new values
};

// Forward: a pair of taps is for an even sample and the odd one after it. A filter of odd length begins with half a pair.
struct SplittingBand : Band {
  bool isOdd;
};

// Inverse: a pair of taps takes one value to two neighbouring results. At either end of a window it may be half a pair: an odd
// offset exchanges the taps of even and of odd index, and then the newest value has no part in the first result.
struct JoiningBand : Band {
  bool oldestInFirstOnly;
  bool newestInSecondOnly;
};

// Both bands lie in the record's block, as does the buffer, which only records for integers have.
template <class Part> struct Bank {
  uint32_t magic;
  Part* low;
  Part* high;
  Qvx32f* buffer;
  int bufferLen;
  bool sharesWindow;  // forward bands of one length and offset that have seen the same samples: the window of low serves both
};

}  // namespace qvx::wavelet
