// The convolution that all filters share, compiled once: y[n] = p[0] * x[n] + ... + p[taps - 1] * x[n + taps - 1] for n below
// count. p holds the filter's taps in reverse.
//
// x has count + taps - 1 elements, and no less than taps - 1 and a vector's. y must not overlap x.
#pragma once

#include "frame/map.h"

namespace qvx::convolution {

// A vector's elements, for x.
template <class T> inline constexpr size_t kVectorElements = kVectorBytes / sizeof(T);

// A call has one of two orders in which floats are added up. Within an order an output is the same to the bit, whatever its place
// and count: a stream may be cut anywhere into calls of the same kind.
enum class Call { kShort, kLong };
inline constexpr size_t kLongestShortCall = 64;
constexpr Call callOf(size_t outputs) { return outputs <= kLongestShortCall ? Call::kShort : Call::kLong; }

void convolve(const Qvx32f* x, const Qvx32f* p, size_t taps, size_t count, Qvx32f* y, Call call);
void convolve(const Qvx64f* x, const Qvx64f* p, size_t taps, size_t count, Qvx64f* y, Call call);
void convolve(const Qvx32fc* x, const Qvx32fc* p, size_t taps, size_t count, Qvx32fc* y, Call call);
void convolve(const Qvx64fc* x, const Qvx64fc* p, size_t taps, size_t count, Qvx64fc* y, Call call);

// The same with the conjugates of the taps: the correlation of p and x.
void correlate(const Qvx32f* x, const Qvx32f* p, size_t taps, size_t count, Qvx32f* y, Call call);
void correlate(const Qvx64f* x, const Qvx64f* p, size_t taps, size_t count, Qvx64f* y, Call call);
void correlate(const Qvx32fc* x, const Qvx32fc* p, size_t taps, size_t count, Qvx32fc* y, Call call);
void correlate(const Qvx64fc* x, const Qvx64fc* p, size_t taps, size_t count, Qvx64fc* y, Call call);

// Integers, in sums of 32 bits that wrap; each result is the sum times 2^places, rounded to nearest even or wrapped at 32 bits,
// and saturated. The taps stand in pairs for the multiplication of pairs. x may be read up to two vectors past its end.
struct PairedTaps {
  const Qvx16sc* pairs;
  size_t count;
};
// Pairs of real taps: those that begin at even places, for even outputs, each followed by the one that begins a place before, for
// the output after. Of complex ones: (re, -im) for the real part, followed by (im, re).
constexpr size_t pairsOf(size_t taps, Qvx16s) { return taps / 2 + 1; }
constexpr size_t pairsOf(size_t taps, Qvx16sc) { return taps; }
PairedTaps paired(const Qvx16s* p, size_t taps, Qvx16sc* pairs);
PairedTaps paired(const Qvx16sc* p, size_t taps, Qvx16sc* pairs);

void convolve(const Qvx16s* x, PairedTaps p, size_t count, Qvx16s* y, int64_t places);
void convolve(const Qvx16sc* x, PairedTaps p, size_t count, Qvx16sc* y, int64_t places);

// The same of one sum.
Qvx16s scaledSum(int64_t sum, int64_t places);

// ---- samples dealt among rows in turn, as the outputs need them that one in `count` samples apart is kept: the sample i places
// after that at rows[row * stride + at] meets tap i for y[0], and that `count` places after it, which is next to it, for y[1].
template <class T> struct Dealt {
  const T* rows;
  size_t stride;
  size_t count;
  size_t row;
  size_t at;
};
// The taps of floats stand row by row, beginning with `row`, where a row has enough of them that a vector of samples serves
// several, else in the order of the samples; those of integers always row by row, in pairs for each row. A row has a vector more
// than it needs, of integers two.
constexpr bool areTapsByRow(size_t taps, size_t rows) { return taps >= 4 * rows; }
void convolve(const Dealt<Qvx32f>& x, const Qvx32f* p, size_t taps, size_t count, Qvx32f* y, Call call);
void convolve(const Dealt<Qvx64f>& x, const Qvx64f* p, size_t taps, size_t count, Qvx64f* y, Call call);
void convolve(const Dealt<Qvx32fc>& x, const Qvx32fc* p, size_t taps, size_t count, Qvx32fc* y, Call call);
void convolve(const Dealt<Qvx64fc>& x, const Qvx64fc* p, size_t taps, size_t count, Qvx64fc* y, Call call);
void convolve(const Dealt<Qvx16s>& x, const Qvx16sc* pairs, size_t taps, size_t count, Qvx16s* y, int64_t places);
void convolve(const Dealt<Qvx16sc>& x, const Qvx16sc* pairs, size_t taps, size_t count, Qvx16sc* y, int64_t places);

}  // namespace qvx::convolution
