// Transforms of lengths with a large prime factor, by way of a circular convolution: with a chirp, or in another order of the
// points.
#pragma once

#include "dft/plan.h"
#include "dft/precise.h"
#include "dft/sizes.h"
#include "fft/record.h"

namespace qvx::dft {

// ---- The library's own transforms of powers of two, in memory that is brought

template <class T> Bytes bytesOfFft(uint32_t n) {
  int spec = 0;
  int init = 0;
  int work = 0;
  Fft<T>::kGetSize(std::countr_zero(n), QVX_FFT_SCALE_NONE, 0, &spec, &init, &work);
  return {spec, work};
}
// No transform of the library's uses the memory that its making is brought; it tests that there is some.
template <class T, class Spec>
void makeFft(Spec*& spec, QvxStatus (*init)(Spec**, int, int, int, Qvx8u*, Qvx8u*), uint32_t n, int flag, uint8_t* block) {
  init(&spec, std::countr_zero(n), flag, 0, block, block);
}

// ---- Convolution

template <class T> constexpr int64_t bytesOfPoints(int64_t n) { return n * 2 * static_cast<int64_t>(sizeof(T)); }

// The length of least cost from 2n - 1 on: a power of two, or one that is shorter, past the nearest cache by however little.
// Within it a transform of a power of two takes 0.7 of the time of other lengths for a point, past it 1.1 to 1.7: 5507 complex
// doubles take 0.46 by 11520 points of what they take by 16384. `told` bytes have room for it: twice the points of a transform by
// factors.
template <class T> uint32_t lengthOfConvolution(uint32_t n, int64_t told) {
  const uint32_t least = 2 * n - 1;
  uint32_t best = std::bit_ceil(least);
  if (bytesOfPoints<T>(best) + bytesOfFft<T>(best).work + Carver::kLine - fft::kWorkSlack > told) best = 2 * best;
  double cost = isInNearestCache<T>(best / 2) ? 0.7 * best : best;  // half, since it goes in place
  for (const uint32_t odd : {3, 5, 7, 9, 15, 21, 25, 27, 45, 63, 75, 81, 125, 135, 225}) {
    uint32_t length = odd * 16;
    while (length < least) length *= 2;
    if (length >= cost || 2 * bytesOfPoints<T>(length) + Carver::kLine > told) continue;
    best = length;
    cost = length;
  }
  return best;
}

// The points of a prime number but the first, in the order of the powers of a generator g, go through a circular convolution that
// is one point shorter than they are: half of what a chirp takes. With factors up to 13 it takes 0.2 to 0.8 of the time: 8191
// complex doubles 0.51, in registers of 32 bytes 0.41, of 16 bytes 0.44. Points go to the other order and back one by one, so
// wide vectors lose by it where transforms are short: 379 complex floats would take 1.5 in registers of 64 bytes, 127 1.3 in
// those of 32.
template <class T> inline constexpr uint32_t kLeastPermuted = kWidest<T> <= 4 ? 0 : kWidest<T> == 8 ? 180 : 2300;
template <class T> bool isPermuted(uint32_t n) {
  uint32_t rest = n - 1;
  for (const uint8_t p : kPreciseFactors) {
    while (rest % p == 0) rest /= p;
  }
  const uint32_t odd = (n - 1) >> std::countr_zero(n - 1);
  return rest == 1 && (n > kLeastPermuted<T> || odd <= 3) && isPrime(n);
}

// From real parts to imaginary ones. Two lines between them, so that they do not share sets of the cache: 65537 complex doubles
// take 0.9 of the time. A chirp's reported size has no room for more than its points.
template <class T> int64_t planeOf(const ConvolutionPlan<T>& plan) {
  return plan.length + (plan.isPermuted ? 2 * Carver::kLine / static_cast<int64_t>(sizeof(T)) : 0);
}

template <class T> Bytes choose(ConvolutionPlan<T>& plan, uint32_t n) {
  plan.isPermuted = isPermuted<T>(n);
  const uint32_t length = plan.isPermuted ? n - 1 : lengthOfConvolution<T>(n, *complexWork<T>(n));
  plan.length = length;
  const int64_t spare = kVectorBytes * 3;  // past the chirp, for whole vectors
  const int64_t ofPoints = plan.isPermuted ? int64_t{length} * 4 : bytesOfPoints<T>(n) + spare;
  const int64_t planes = bytesOfPoints<T>(planeOf(plan));
  const Bytes bytes = {bytesOfPoints<T>(length) + ofPoints + 3 * Carver::kLine, planes + Carver::kLine};
  if (std::has_single_bit(length)) {
    const Bytes fft = bytesOfFft<T>(length);
    return {bytes.tables + fft.tables, bytes.work + fft.work - fft::kWorkSlack};
  }
  planMixed<Planes<T>>(plan.length, plan.mixed);
  return {bytes.tables + static_cast<int64_t>(tableLength(plan.mixed) * sizeof(T)), bytes.work + planes};
}

// The points of a convolution, and room for a transform: y is in its place, and where it leaves its results becomes y.
template <class T> struct ConvolutionWork {
  Planes<T> y;
  Planes<T> other;
  uint8_t* rest;

  ConvolutionWork(const ConvolutionPlan<T>& plan, uint8_t* work) {
    const int64_t plane = planeOf(plan);
    Carver carver(work, Carver::kLine);
    T* const re = carver.take<T>(2 * plane);
    y = planes(re, re + plane);
    rest = carver.rest();
    auto* const next = reinterpret_cast<T*>(rest);
    other = planes(next, next + plane);
  }
  void transform(const ConvolutionPlan<T>& plan) {
    if (!isNull(plan.fft)) {
      Fft<T>::kForwardApart(y.re, y.im, y.re, y.im, plan.fft, rest);
    } else if (plan.mixed.count % 2 == 0) {
      runMixed(plan.mixed, asConst(y), y, other, y, T(1));
    } else {
      runMixed(plan.mixed, asConst(y), other, y, other, T(1));
      std::swap(y, other);
    }
  }
  // by the spectrum
  void multiply(const ConvolutionPlan<T>& plan) {
    constexpr size_t L = kWidest<T>;
    const size_t length = plan.length;
    const Planes<const T> spectrum = planes(plan.spectrum, plan.spectrum + length);
    size_t k = 0;
    for (; k + L <= length; k += L) y.template put<L>(product(y.template get<L>(k), spectrum.template get<L>(k)), k);
    if (k == length) return;
    y.template putFirst<L>(product(y.template getFirst<L>(k, length - k), spectrum.template getFirst<L>(k, length - k)), k,
                           length - k);
  }
  void exchangeParts() {
    std::swap(y.re, y.im);
    std::swap(other.re, other.im);
  }
};

// The spectrum of numbers in a wider type, put(k, re, im): fill(re, im) writes those that are not 0. Real parts stand where the
// spectrum will, imaginary ones in the work memory.
template <class T, class Fill, class Put> void writeSpectrum(size_t length, T* spectrum, uint8_t* work, Fill fill, Put put) {
  using Wide = Wider<T>;
  auto* const re = reinterpret_cast<Wide*>(spectrum);
  auto* const im = Carver(work, Carver::kLine).template take<Wide>(static_cast<int64_t>(length));
  std::fill_n(re, length, Wide(0));
  std::fill_n(im, length, Wide(0));
  fill(re, im);
  const PreciseTransform transform(length);
  transform.run(re, im);
  transform.forEachResult<T>(re, im, put);
}
template <class T> constexpr auto intoPlanes(T* out, size_t length) {
  return [=](size_t k, T re, T im) { out[k] = re, out[length + k] = im; };
}

// ---- Of a prime number of points, in the order of the powers of a generator g:
//
//   X[0] = sum of all x     X[g^-q] = x[0] + sum over m of x[g^m] w^(g^(m - q)), w = exp(-2 pi i / n)

inline uint32_t generatorOf(uint32_t n) {
  const auto power = [n](uint64_t base, uint32_t exponent) {
    uint64_t result = 1;
    for (; exponent > 0; exponent /= 2, base = base * base % n) {
      if (exponent % 2 != 0) result = result * base % n;
    }
    return result;
  };
  uint32_t g = 2;
  const auto generates = [&] {
    for (const uint8_t p : kPreciseFactors) {
      if ((n - 1) % p == 0 && power(g, (n - 1) / p) == 1) return false;
    }
    return true;
  };
  while (!generates()) ++g;
  return g;
}

template <class T> void writePermuted(ConvolutionPlan<T>& plan, uint32_t n, uint8_t* block, uint8_t* work) {
  const size_t length = plan.length;
  Carver carver(block, Carver::kLine);
  T* const spectrum = carver.takeLines<T>(2 * static_cast<int64_t>(length));
  auto* const powers = carver.takeLines<uint32_t>(static_cast<int64_t>(length));
  if (std::has_single_bit(plan.length)) makeFft<T>(plan.fft, Fft<T>::kInitApart, plan.length, QVX_FFT_SCALE_NONE, carver.rest());
  else writeMixed<Planes<T>>(plan.mixed, reinterpret_cast<T*>(carver.rest()));
  const uint64_t g = generatorOf(n);
  uint64_t power = 1;
  for (size_t m = 0; m < length; ++m, power = power * g % n) powers[m] = static_cast<uint32_t>(power);
  plan.powers = powers;
  plan.spectrum = spectrum;
  const Wider<T> factor = 1 / static_cast<Wider<T>>(length);
  const auto fill = [=](auto* re, auto* im) {
    writeTwiddles(
        n, length, [=](size_t m) { return powers[m == 0 ? 0 : length - m]; },
        [=](size_t m, double cosine, double sine) { re[m] = factor * cosine, im[m] = factor * sine; });
  };
  writeSpectrum(length, spectrum, work, fill, intoPlanes(spectrum, length));
}

// get(k), put(k, z): points and results from the second on. Takes the first point, returns the first result.
template <class T, class Get, class Put>
Complex<T> convolveByPowers(const ConvolutionPlan<T>& plan, Complex<T> first, Get get, Put put, uint8_t* work) {
  const size_t length = plan.length;
  ConvolutionWork<T> points(plan, work);
  for (size_t m = 0; m < length; ++m) {
    const Complex<T> z = get(plan.powers[m]);
    points.y.re[m] = z.re;
    points.y.im[m] = z.im;
  }
  points.transform(plan);
  const Complex<T> sum = {first.re + points.y.re[0], first.im + points.y.im[0]};
  points.multiply(plan);
  points.y.re[0] += first.re;  // and so each result is greater by it
  points.y.im[0] += first.im;
  points.exchangeParts();
  points.transform(plan);
  points.exchangeParts();
  put(plan.powers[0], Complex<T>{points.y.re[0], points.y.im[0]});
  for (size_t m = 1; m < length; ++m) put(plan.powers[m], Complex<T>{points.y.re[length - m], points.y.im[length - m]});
  return sum;
}

// kStep: from a number to the next. src may be dst: all is read before the first result is written.
template <size_t kStep, class T>
void convolvePermuted(const ConvolutionPlan<T>& plan, Planes<const T> src, Planes<T> dst, T factor, uint8_t* work) {
  const auto put = [=](size_t k, Complex<T> z) {
    dst.re[kStep * k] = factor * z.re;
    dst.im[kStep * k] = factor * z.im;
  };
  const auto get = [=](size_t k) { return Complex<T>{src.re[kStep * k], src.im[kStep * k]}; };
  put(0, convolveByPowers(plan, get(0), get, put, work));
}

// ---- With a chirp

template <class T> void writeTables(ConvolutionPlan<T>& plan, uint32_t n, uint8_t* block, uint8_t* work) {
  const RoundingScope nearest(Rounding::kNearest);
  const WiderScope widerNearest;
  if (plan.isPermuted) return writePermuted(plan, n, block, work);
  const size_t length = plan.length;
  Carver carver(block, Carver::kLine);
  T* const chirp = carver.take<T>(2 * int64_t{n} + 2 * static_cast<int64_t>(kWidest<T>));
  T* const spectrum = carver.takeLines<T>(2 * static_cast<int64_t>(length));
  if (std::has_single_bit(plan.length)) makeFft<T>(plan.fft, Fft<T>::kInitApart, plan.length, QVX_FFT_SCALE_NONE, carver.rest());
  else writeMixed<Planes<T>>(plan.mixed, reinterpret_cast<T*>(carver.rest()));
  // exp(-pi i k^2 / n): k^2 mod 2n never exceeds 2^55.
  writeTwiddles(
      2 * size_t{n}, n, [n](size_t k) { return k * k % (2 * size_t{n}); },
      [=](size_t k, double re, double im) {
        chirp[k] = static_cast<T>(re);
        chirp[n + k] = static_cast<T>(im);
      });
  std::fill_n(chirp + 2 * size_t{n}, 2 * kWidest<T>, T(0));  // whole vectors read it, and raise nothing
  plan.chirp = chirp;
  plan.spectrum = spectrum;
  const Wider<T> factor = 1 / static_cast<Wider<T>>(length);
  const auto fill = [=](auto* re, auto* im) {
    for (size_t k = 0; k < n; ++k) {
      const size_t mirrored = (length - k) % length;
      re[k] = re[mirrored] = factor * chirp[k];
      im[k] = im[mirrored] = -factor * chirp[n + k];
    }
  };
  writeSpectrum(length, spectrum, work, fill, intoPlanes(spectrum, length));
}

// get(k, count), put(z, k, count): points k on, in vectors.
template <class T, class Get, class Put>
void convolve(const ConvolutionPlan<T>& plan, size_t n, size_t results, Get get, Put put, uint8_t* work) {
  constexpr size_t L = kWidest<T>;
  using V = Vec<Lanes<T, L>>;
  const size_t length = plan.length;
  ConvolutionWork<T> points(plan, work);
  const Planes<const T> chirp = planes(plan.chirp, plan.chirp + n);
  for (size_t k = 0; k < n; k += L) {
    const Complex<V> z = product(get(k, std::min(L, n - k)), chirp.template get<L>(k));
    points.y.template put<L>(z, k);
  }
  std::fill(points.y.re + n, points.y.re + length, T(0));
  std::fill(points.y.im + n, points.y.im + length, T(0));
  points.transform(plan);
  points.multiply(plan);
  points.exchangeParts();
  points.transform(plan);
  points.exchangeParts();
  for (size_t j = 0; j < results; j += L) {
    put(product(points.y.template get<L>(j), chirp.template get<L>(j)), j, std::min(L, results - j));
  }
}

template <class T>
void convolve(const ConvolutionPlan<T>& plan, size_t n, bool isInverse, const T* src, T* dst, T factor, uint8_t* work) {
  if (plan.isPermuted) {  // inverse: with the parts exchanged
    const Planes<const T> from = planes(src + isInverse, src + !isInverse);
    return convolvePermuted<2>(plan, from, planes(dst + isInverse, dst + !isInverse), factor, work);
  }
  constexpr size_t L = kWidest<T>;
  using V = Vec<Lanes<T, L>>;
  const T sign = isInverse ? T(-0.0) : T(0);
  convolve(
      plan, n, n,
      [=](size_t k, size_t count) __attribute__((always_inline)) {
        return Conjugable<const T>{src, sign}.template getInOrder<L>(k, count);
      },
      [=](Complex<V> z, size_t k, size_t count) __attribute__((always_inline)) {
        const Conjugable<T> to = {dst, sign};
        z = ScaledBy<T>{factor}(z);
        if (count == L) to.template putInOrder<L>(z, k);
        else to.template putFirst<L>(z, k, count);
      },
      work);
}
template <class T>
void convolve(const ConvolutionPlan<T>& plan, size_t n, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, T factor,
              uint8_t* work) {
  if (plan.isPermuted) return convolvePermuted<1>(plan, planes(srcRe, srcIm), planes(dstRe, dstIm), factor, work);
  constexpr size_t L = kWidest<T>;
  using V = Vec<Lanes<T, L>>;
  convolve(
      plan, n, n,
      [=](size_t k, size_t count) __attribute__((always_inline)) { return planes(srcRe, srcIm).template getFirst<L>(k, count); },
      [=](Complex<V> z, size_t k, size_t count)
          __attribute__((always_inline)) { planes(dstRe, dstIm).template putFirst<L>(ScaledBy<T>{factor}(z), k, count); },
      work);
}

// Of real numbers, forward: the half of the spectrum that is not conjugate to the other, as pairs.
template <class T> void convolveReals(const ConvolutionPlan<T>& plan, size_t n, const T* src, T* dst, T factor, uint8_t* work) {
  if (plan.isPermuted) {
    const auto put = [=](size_t k, Complex<T> z) {
      if (k > n / 2) return;
      dst[2 * k] = factor * z.re;
      dst[2 * k + 1] = factor * z.im;
    };
    const auto get = [=](size_t k) { return Complex<T>{src[k], 0}; };
    return put(0, convolveByPowers(plan, get(0), get, put, work));
  }
  constexpr size_t L = kWidest<T>;
  using V = Vec<Lanes<T, L>>;
  const Lanes<T, L> d;
  convolve(
      plan, n, n / 2 + 1,
      [=](size_t k, size_t count) __attribute__((always_inline)) {
        return Complex<V>{firstLanes(d, src + k, count), hn::Zero(d)};
      },
      [=](Complex<V> z, size_t k, size_t count) __attribute__((always_inline)) {
        Conjugable<T>{dst, 0}.template putFirst<L>(ScaledBy<T>{factor}(z), k, count);
      },
      work);
}

}  // namespace qvx::dft
