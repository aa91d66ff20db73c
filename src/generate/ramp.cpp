// Ramps, and chirps that begin at 0 and end at half the sampling rate.
#include <cmath>

#include "frame/lane_numbers.h"
#include "frame/map.h"
#include "frame/rounding.h"
#include "frame/to_int64.h"
#include "frame/unroll.h"
#include "math/sine.h"

using namespace qvx;

namespace {

// Doubles to elements: halves away from zero, saturated; NaN becomes the largest integer.
template <class T, class V> auto toElements(V v) {
  using Limits = std::numeric_limits<T>;
  if constexpr (std::is_floating_point_v<T>) {
    return convertLanes<T>(v);
  } else {
    const V away = v + hn::CopySignToAbs(same<V>(0.5), v);
    const V limited =
        hn::Max(hn::Min(away, same<V>(static_cast<double>(Limits::max()))), same<V>(static_cast<double>(Limits::min())));
    if constexpr (std::is_same_v<T, Qvx32u>) {
      // Through signed integers: an exact difference once the fraction is gone.
      const auto whole = toIntTruncated(hn::Trunc(limited) - same<V>(0x1p31));
      return as<uint32_t>(whole ^ hn::Set(TagOf<decltype(whole)>(), INT32_MIN));
    } else {
      return convertLanes<T>(toIntTruncated(limited));
    }
  }
}

// As many numbers of elements as a register has doubles, or half of them.
struct Numbers {
  using Lane = uint8_t;
  size_t first = 0;

  template <size_t N> auto get(size_t at) const {
    const Lanes<double, N> d;
    return hn::Iota(d, 0) + hn::Set(d, static_cast<double>(first + at));
  }
  template <size_t N> auto get(size_t at, size_t) const { return get<N>(at); }
};

// kernel(numbers) for blocks of elements, numbers in lanes of Lane; returns how many elements they are, less than n. Numbers that
// are counted on in a register cost one addition; those of the loop engine come from an integer: 4096 doubles take 1.2 times as
// long.
template <class Lane, class T, class Kernel> [[gnu::flatten]] size_t inBlocks(T* dst, size_t n, Kernel kernel) {
  constexpr size_t N = kVectorBytes / sizeof(Lane);
  constexpr size_t kTogether = 4;
  const Lanes<Lane, N> d;
  auto numbers = laneNumbersOf(d);
  size_t at = 0;
  for (; at + kTogether * N < n; at += kTogether * N) {
    unrolled<kTogether>(
        [&](auto i) { destination(dst).template put<N>(kernel(numbers + hn::Set(d, static_cast<Lane>(i * N))), at + i * N); });
    numbers = numbers + hn::Set(d, static_cast<Lane>(kTogether * N));
  }
  return at;
}

// Up to here the loop engine is faster than the test of exactness: 64 floats take 0.8 of the time.
constexpr size_t kFew = 4 * kVectorBytes / sizeof(float);

// A line through elements 0 to n - 1.
struct Line {
  double from;
  double by;

  // What no element exceeds.
  double size(size_t n) const { return std::abs(from) + std::abs(by) * static_cast<double>(n - 1); }
  // Offset and slope, of 24 digits each, are multiples of 2^-24 of the lesser one: up to 2^26 times that all elements and their
  // multiples of a quarter ULP fit a double.
  bool isExact(size_t n) const {
    const double least = from == 0 ? std::abs(by) : std::min(std::abs(from), std::abs(by));
    return n < (size_t{1} << 24) && size(n) <= 0x1p26 * least;
  }
  template <class V> V operator()(V n) const { return n * same<V>(by) + same<V>(from); }
};

// As many elements of the line as there are blocks, if its sums are exact, by fewer instructions.
template <class T> size_t exactBlocks(T* dst, size_t n, Line line) {
  if constexpr (std::is_same_v<T, Qvx32f>) {
    // One rounding of the exact sum: 16 lanes, not 8.
    if (kFuses && line.isExact(n)) {
      return inBlocks<float>(dst, n, [line](auto number) {
        using V = decltype(number);
        return hn::MulAdd(number, same<V>(static_cast<float>(line.by)), same<V>(static_cast<float>(line.from)));
      });
    }
  } else if constexpr (std::is_integral_v<T> && !std::is_same_v<T, Qvx32u>) {
    // The way to bytes saturates 16-bit numbers only.
    constexpr double kMost = sizeof(T) == 1 ? 0x1p14 : 0x1p30;
    if (line.isExact(n) && line.size(n) <= kMost) {
      return inBlocks<double>(dst, n, [line](auto number) {
        using V = decltype(number);
        const V v = hn::MulAdd(number, same<V>(line.by), same<V>(line.from));
        // An ULP or two farther from zero a half is none any more, and what is none does not become one.
        return convertLanes<T>(toIntNearest(hn::MulAdd(v, same<V>(0x1p-52), v)));
      });
    }
  }
  return 0;
}

template <class T, class Real> QvxStatus ramp(T* dst, int len, Real offset, Real slope) {
  const QvxStatus status = check(len, dst);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  const double from = offset;
  const double by = slope;
  const RoundingScope mode(std::is_integral_v<T> ? Rounding::kNearest : Rounding::kCallers);
  const auto kernel = [from, by](auto number) { return toElements<T>(Line{from, by}(number)); };
  size_t done = 0;
  if (n > kFew) done = exactBlocks(dst, n, Line{from, by});
  if (n > kFew && done == 0) done = inBlocks<double>(dst, n, kernel);
  return loop<double>(kernel, destination(dst).from(done), n - done, Numbers{done});
}

// magn * sin(pi/2 n^2 / len). n^2 less its whole turns of 4 len is exact as long as n^2 is.
template <int kDigits> struct Chirp {
  double magn;
  double period;

  Chirp(double magn, int len) : magn(magn), period(4.0 * len) {}
  template <class V> V operator()(V n) const {
    const V square = n * n;
    const V turns = shortNearest(square * same<V>(1 / period));
    const V rest = hn::NegMulAdd(turns, same<V>(period), square);
    return same<V>(magn) * sineOfHalfTurn<kDigits>(rest * same<V>(1 / period));
  }
};

template <class T> QvxStatus chirp(T* dst, int len, T magn) {
  const QvxStatus status = check(len, dst);
  if (status != qvxStatOk) return status;
  if (std::is_signed_v<T> && !(magn >= 0)) return qvxStatBadJaehneMagn;
  const RoundingScope mode(std::is_integral_v<T> || !kRoundsByInstruction ? Rounding::kNearest : Rounding::kCallers);
  if constexpr (std::is_signed_v<T>) {
    const Chirp<std::is_same_v<T, Qvx32f> ? 24 : 53> wave(static_cast<double>(magn), len);
    const auto kernel = [wave](auto n) { return toElements<T>(wave(n)); };
    const size_t done = inBlocks<double>(dst, elements(len), kernel);
    return loop<double>(kernel, destination(dst).from(done), elements(len) - done, Numbers{done});
  } else {
    const Chirp<53> wave(magn * 0.5, len);
    constexpr size_t N = kVectorBytes / sizeof(double);
    const Lanes<double, N> d;
    const auto wholes = [&](auto n) {
      using V = decltype(n);
      const V v = wave(n);
      return hn::Trunc(v + hn::CopySignToAbs(same<V>(0.5), v));
    };
    auto least = hn::Zero(d);  // the first element
    for (size_t at = 0; at < elements(len); at += N) {
      const auto n = hn::Min(Numbers().get<N>(at), hn::Set(d, len - 1.0));
      least = hn::Min(least, wholes(n));
    }
    const double lowest = hn::GetLane(hn::MinOfLanes(d, least));
    return loop<double>([&](auto n) { return toElements<T>(wholes(n) - same<decltype(n)>(lowest)); }, destination(dst),
                        elements(len), Numbers());
  }
}

}  // namespace

// clang-format off
QvxStatus qvxsVectorRamp_8u(Qvx8u* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorRamp_8s(Qvx8s* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorRamp_16u(Qvx16u* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorRamp_16s(Qvx16s* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorRamp_32u(Qvx32u* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorRamp_32s(Qvx32s* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorRamp_32f(Qvx32f* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorRamp_64f(Qvx64f* d, int len, Qvx64f offset, Qvx64f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorSlope_8u(Qvx8u* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorSlope_8s(Qvx8s* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorSlope_16u(Qvx16u* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorSlope_16s(Qvx16s* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorSlope_32u(Qvx32u* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorSlope_32s(Qvx32s* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorSlope_32f(Qvx32f* d, int len, Qvx32f offset, Qvx32f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorSlope_64f(Qvx64f* d, int len, Qvx64f offset, Qvx64f slope) { return ramp(d, len, offset, slope); }
QvxStatus qvxsVectorJaehne_8u(Qvx8u* d, int len, Qvx8u magn) { return chirp(d, len, magn); }
QvxStatus qvxsVectorJaehne_8s(Qvx8s* d, int len, Qvx8s magn) { return chirp(d, len, magn); }
QvxStatus qvxsVectorJaehne_16u(Qvx16u* d, int len, Qvx16u magn) { return chirp(d, len, magn); }
QvxStatus qvxsVectorJaehne_16s(Qvx16s* d, int len, Qvx16s magn) { return chirp(d, len, magn); }
QvxStatus qvxsVectorJaehne_32u(Qvx32u* d, int len, Qvx32u magn) { return chirp(d, len, magn); }
QvxStatus qvxsVectorJaehne_32s(Qvx32s* d, int len, Qvx32s magn) { return chirp(d, len, magn); }
QvxStatus qvxsVectorJaehne_32f(Qvx32f* d, int len, Qvx32f magn) { return chirp(d, len, magn); }
QvxStatus qvxsVectorJaehne_64f(Qvx64f* d, int len, Qvx64f magn) { return chirp(d, len, magn); }
// clang-format on
