// Transforms of any number of points: by which way a length goes, its tables, and its run.
#pragma once

#include "dft/small_complex.h"
#include "transform/grid.h"
#include "transform/mixed_blocks.h"
#include "transform/real_columns.h"

namespace qvx::dft {

using namespace transform;

enum class Way : uint8_t {
  kRegisters,    // a few real numbers
  kGrid,         // two factors, in registers
  kFactors,      // passes by factors
  kBlocks,       // the same in two dimensions
  kFft,          // a power of two
  kDirect,       // the definition: few points
  kConvolution,  // a chirp, or another order of the points
};

template <class T> struct FftOf;
template <> struct FftOf<float> {
  using C = Qvx32fc;
  using Spec = QvxsFFTSpec_C_32fc;
  using SplitSpec = QvxsFFTSpec_C_32f;
};
template <> struct FftOf<double> {
  using C = Qvx64fc;
  using Spec = QvxsFFTSpec_C_64fc;
  using SplitSpec = QvxsFFTSpec_C_64f;
};

template <class T> struct Fft;
template <> struct Fft<float> {
  static constexpr auto kGetSize = qvxsFFTGetSize_C_32fc;
  static constexpr auto kInit = qvxsFFTInit_C_32fc;
  static constexpr auto kForward = qvxsFFTFwd_CToC_32fc;
  static constexpr auto kInverse = qvxsFFTInv_CToC_32fc;
  static constexpr auto kInitApart = qvxsFFTInit_C_32f;
  static constexpr auto kForwardApart = qvxsFFTFwd_CToC_32f;
  static constexpr auto kInverseApart = qvxsFFTInv_CToC_32f;
};
template <> struct Fft<double> {
  static constexpr auto kGetSize = qvxsFFTGetSize_C_64fc;
  static constexpr auto kInit = qvxsFFTInit_C_64fc;
  static constexpr auto kForward = qvxsFFTFwd_CToC_64fc;
  static constexpr auto kInverse = qvxsFFTInv_CToC_64fc;
  static constexpr auto kInitApart = qvxsFFTInit_C_64f;
  static constexpr auto kForwardApart = qvxsFFTFwd_CToC_64f;
  static constexpr auto kInverseApart = qvxsFFTInv_CToC_64f;
};

// A chirp turns the transform into a circular convolution of a length with good factors; another order of a prime number of
// points does so by itself.
template <class T> struct ConvolutionPlan {
  uint32_t length;
  bool isPermuted;
  typename FftOf<T>::Spec* fft;  // null where `mixed` serves
  MixedPlan<T> mixed;
  const T* chirp;          // n real parts, n imaginary ones
  const uint32_t* powers;  // the other order
  const uint32_t* places;  // where the convolution leaves results, from the second on
  const T* spectrum;       // of what the points are convolved with, divided by the length
};

template <class T> struct ComplexPlan {
  uint32_t n;
  Way way;
  bool isApart;
  bool isOutOfOrder;  // by blocks, with their results where they are made
  T forwardFactor;
  T inverseFactor;
  typename FftOf<T>::Spec* fft;            // of interleaved points
  typename FftOf<T>::SplitSpec* splitFft;  // of points whose parts stand apart
  GridPlan<T> grid;
  MixedPlan<T> mixed;
  DirectPlan<T> direct;
  union {
    ConvolutionPlan<T> convolution;
    MixedBlocks<T> blocks;
  };
};

// Whether blocks leave results where they are made. Rows of doubles would be transposed twice for it, which takes longer than
// memory spares: 48000 to 100000 points 1.06 times as long as in order, 10^6 1.3 times; floats take 0.93 to 1.04 of the time.
template <class T> inline constexpr bool kHasOwnOrder = sizeof(T) == 4;

// How a transform of n points goes. isApart: real and imaginary parts stand in vectors of their own. flag: one of QVX_FFT_SCALE_.
// Powers of two up to what the fast transform takes; other lengths below 2^27.
template <class T> Bytes choose(ComplexPlan<T>& plan, uint32_t n, bool isApart, int flag);
// Completes a chosen plan. block, work: of the reported sizes, any alignment.
template <class T> void writeTables(ComplexPlan<T>& plan, int flag, uint8_t* block, uint8_t* work);
template <class T> bool isByChirp(const ComplexPlan<T>& plan) {
  return plan.way == Way::kConvolution && !plan.convolution.isPermuted;
}

// work: of the reported size, any alignment. src may be dst. Interleaved points:
template <class T> void run(const ComplexPlan<T>& plan, bool isInverse, const T* src, T* dst, uint8_t* work);
// Fewer than kMostSmall of them, no power of two, by a jump to their code: a stack frame and a return would be a third of the
// time.
template <class T> QvxStatus runSmall(const ComplexPlan<T>& plan, bool isInverse, const T* src, T* dst);
// Parts that stand apart:
template <class T>
void run(const ComplexPlan<T>& plan, bool isInverse, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, uint8_t* work);

// Of n real numbers by a chirp: n / 2 + 1 points of the spectrum. src may be dst.
template <class T> void spectrumByChirp(const ComplexPlan<T>& plan, const T* src, T* dst, T factor, uint8_t* work);

template <class T> struct RealFftOf;
template <> struct RealFftOf<float> { using Spec = QvxsFFTSpec_R_32f; };
template <> struct RealFftOf<double> { using Spec = QvxsFFTSpec_R_64f; };

// Of a prime number of reals (real_convolution.h).
template <class T> struct RealConvolution {
  uint32_t n;
  const uint32_t* powers;
  const uint32_t* places;
  const T* spectrum;  // of what the points are convolved with: their product's two factors, each for n / 2 points
  ComplexPlan<T> half;
};

// Of n real numbers: half as many complex ones where n is even; where it is odd, by columns.
template <class T> struct RealPlan {
  uint32_t n;
  T forwardFactor;
  T inverseFactor;
  Way way;  // kFactors: through complex points; kConvolution: of reals
  typename RealFftOf<T>::Spec* fft;
  DirectPlan<T> direct;
  union {
    ComplexPlan<T> complex;
    RealConvolution<T> convolution;
  };
  RealColumns<T> columns;
  bool rowsHaveRoom;       // in the destination, to be transformed
  const T* recombination;  // of k = 1 .. n/4: all 0.5 cos, then all 0.5 - 0.5 sin of 2 pi k / n
};
template <class T> Bytes choose(RealPlan<T>& plan, uint32_t n, int flag);
// The same of no power of two and not by the definition: for records without room for its tables.
template <class T> Bytes chooseLong(RealPlan<T>& plan, uint32_t n, int flag);
template <class T> void writeTables(RealPlan<T>& plan, int flag, uint8_t* block, uint8_t* work);
// src and dst may be the same.
template <class T> void forward(const RealPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, uint8_t* work);
template <class T> void inverse(const RealPlan<T>& plan, SpectrumLayout layout, const T* src, T* dst, uint8_t* work);

// The factors that a flag stands for.
template <class T> struct Factors {
  T forward;
  T inverse;
};
template <class T> Factors<T> factorsOf(uint32_t n, int flag);

}  // namespace qvx::dft
