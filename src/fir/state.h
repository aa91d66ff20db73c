// The records of the filters.
//
// The delay line is the last tapsLen samples in the kernel's type, oldest first, from `index` on. A single sample is stored
// twice, at the index and tapsLen behind it, before the index moves on; whatever filters more brings the window to the beginning.
#pragma once

#include "fir/elements.h"
#include "fir/sums.h"
#include "fir/transform.h"
#include "frame/record.h"

namespace qvx::fir {

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

// What the kernels for floats work on.
template <class C> struct FloatRecord {
  using Kernel = C;
  using Taps = C;
  static constexpr size_t kChunk = 4096;  // samples that are filtered through the window's memory at a time
  static constexpr size_t windowLen(size_t taps) { return 2 * taps + kChunk; }

  uint32_t magic;
  int tapsLen;
  DelayLine<C> delay;
  C* taps;  // reversed
  bool ownsBlock;
  int fftLen;  // -1 without a transform
  int workSize;
  int threads;  // as many blocks and work areas there are
  typename Transform<C>::Spec* spec;
  C* spectrum;
  C* blocks;
  Qvx8u* work;
};

// Of those for integers: taps as they were reduced, in 16 bits, and in pairs.
template <class S, class T> struct IntegerRecord {
  using Kernel = S;
  using Taps = T;
  static constexpr size_t kChunk = 2048;
  static constexpr size_t windowLen(size_t taps) { return 2 * taps + kChunk + 2 * kVectorElements<S>; }

  uint32_t magic;
  int tapsLen;
  DelayLine<S> delay;
  T* taps;  // reversed
  bool ownsBlock;
  int tapsFactor;
  bool isPaired;  // not if -im of a tap has no 16 bits
  S* shortTaps;   // reversed
  Qvx16sc* pairs;
};

constexpr uint32_t identity(uint32_t number) { return 0x46490000 | ('0' + number / 10) << 8 | ('0' + number % 10); }

// A record with its samples' type, and who it is: one filter, or one that changes the rate.
template <class Record, class S, uint32_t kSingle, uint32_t kMulti> struct State : Record {
  using Sample = S;
  static constexpr uint32_t kSingleRate = identity(kSingle);
  static constexpr uint32_t kMultiRate = identity(kMulti);
};

// Records without a delay line, single-rate and multi-rate.
inline constexpr uint32_t kStreams16s[] = {identity(31), identity(32)};
inline constexpr uint32_t kStreams32f[] = {identity(33), identity(34)};

}  // namespace qvx::fir

struct QvxsFIRState_32f : qvx::fir::State<qvx::fir::FloatRecord<Qvx32f>, Qvx32f, 1, 3> {};
struct QvxsFIRState_32fc : qvx::fir::State<qvx::fir::FloatRecord<Qvx32fc>, Qvx32fc, 2, 4> {};
struct QvxsFIRState32f_16s : qvx::fir::State<qvx::fir::FloatRecord<Qvx32f>, Qvx16s, 5, 7> {};
struct QvxsFIRState32fc_16sc : qvx::fir::State<qvx::fir::FloatRecord<Qvx32fc>, Qvx16sc, 6, 8> {};
struct QvxsFIRState32s_16s : qvx::fir::State<qvx::fir::IntegerRecord<Qvx16s, Qvx32s>, Qvx16s, 9, 11> {};
struct QvxsFIRState32sc_16sc : qvx::fir::State<qvx::fir::IntegerRecord<Qvx16sc, Qvx32sc>, Qvx16sc, 10, 12> {};
struct QvxsFIRState_64f : qvx::fir::State<qvx::fir::FloatRecord<Qvx64f>, Qvx64f, 13, 15> {};
struct QvxsFIRState_64fc : qvx::fir::State<qvx::fir::FloatRecord<Qvx64fc>, Qvx64fc, 14, 16> {};
struct QvxsFIRState64f_32f : qvx::fir::State<qvx::fir::FloatRecord<Qvx64f>, Qvx32f, 17, 19> {};
struct QvxsFIRState64fc_32fc : qvx::fir::State<qvx::fir::FloatRecord<Qvx64fc>, Qvx32fc, 18, 20> {};
struct QvxsFIRState64f_32s : qvx::fir::State<qvx::fir::FloatRecord<Qvx64f>, Qvx32s, 21, 23> {};
struct QvxsFIRState64fc_32sc : qvx::fir::State<qvx::fir::FloatRecord<Qvx64fc>, Qvx32sc, 22, 24> {};
struct QvxsFIRState64f_16s : qvx::fir::State<qvx::fir::FloatRecord<Qvx64f>, Qvx16s, 25, 27> {};
struct QvxsFIRState64fc_16sc : qvx::fir::State<qvx::fir::FloatRecord<Qvx64fc>, Qvx16sc, 26, 28> {};
struct QvxsFIRState_16s : qvx::fir::State<qvx::fir::IntegerRecord<Qvx16s, Qvx16s>, Qvx16s, 29, 30> {};
