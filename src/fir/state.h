// The records of the filters.
#pragma once

#include "convolution/convolve.h"
#include "convolution/delay_line.h"
#include "convolution/overlap_save.h"
#include "convolution/partitioned.h"
#include "frame/record.h"

namespace qvx::fir {

using namespace convolution;

// The record of float kernels.
template <class C> struct FloatRecord : RecordHead {
  using Kernel = C;
  using Taps = C;
  static constexpr size_t kChunk = 4096;  // samples that are filtered through the window's memory at a time
  static constexpr size_t windowLen(size_t taps) { return 2 * taps + kChunk; }

  int tapsLen;
  DelayLine<C> delay;
  C* taps;  // reversed
  SpectralFilter<C> spectral;
  Partitions<C>* partitions;  // null: none

  // To be called before samples are filtered in another way: the partitions' spectra are then no longer those of the samples.
  void settle() {
    delay.settled(tapsLen);
    forgetSamples();
  }
  void forgetSamples() {
    if constexpr (kHasPartitions<C>) {
      if (!isNull(partitions)) partitions->forgetSamples();
    }
  }
};

// The record of integer kernels: taps reduced to 16 bits, alone and in pairs.
template <class S, class T> struct IntegerRecord : RecordHead {
  using Kernel = S;
  using Taps = T;
  static constexpr size_t kChunk = 2048;
  static constexpr size_t windowLen(size_t taps) { return 2 * taps + kChunk + 2 * kVectorElements<S>; }

  int tapsLen;
  DelayLine<S> delay;
  T* taps;  // reversed
  int tapsFactor;
  bool isPaired;  // false if -im of a tap does not fit 16 bits
  S* shortTaps;   // reversed
  Qvx16sc* pairs;
};

// Fixed values of the interface.
constexpr uint32_t identity(uint32_t number) { return 0x46490000 | ('0' + number / 10) << 8 | ('0' + number % 10); }

// A record with its samples' type, its identity, and that of the multi-rate record that is used by the same name.
template <class Record, class S, uint32_t kNumber, uint32_t kMultirateNumber> struct State : Record {
  using Sample = S;
  static constexpr uint32_t kId = identity(kNumber);
  static constexpr uint32_t kMultirateId = identity(kMultirateNumber);
};

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
