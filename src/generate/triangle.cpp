// Triangle waves. Each sample comes from its own phase, a fraction of 2^64 that wraps by itself: nothing has to be folded, and
// nothing accumulates.
#include <bit>

#include "frame/each_vector.h"
#include "frame/unroll.h"
#include "generate/record.h"
#include "generate/wave.h"

using namespace qvx;
using namespace qvx::generate;

namespace qvx::generate {

// The wave of magnitude 1 over v, the phase in turns less a half, from peak to peak: the upper one of two lines.
struct Lines {
  double fall;  // their slopes
  double rise;
  double fallAt0;
  double riseAt0;
  double valley;  // the v where they meet

  // falls: the part of a turn in which the wave falls. least: what is no slope becomes one that nothing overflows by.
  static Lines of(double falls, double least) {
    falls = std::max(falls, least);
    const double rises = std::max(1 - falls, least);
    return {-2 / falls, 2 / rises, 1 - 1 / falls, 1 - 1 / rises, falls - 0.5};
  }
  Lines times(double magn) const { return {fall * magn, rise * magn, fallAt0 * magn, riseAt0 * magn, valley}; }
};

}  // namespace qvx::generate

struct QvxsTriangleState : RecordHead {
  double magn;
  Lines lines;
  uint64_t step;
  uint64_t phase;  // less a half
};

namespace {

constexpr uint32_t kId = 0x434D4149;
constexpr int kBytes = 136;
static_assert(sizeof(QvxsTriangleState) <= kBytes);

// Slopes in parts of a turn: in floats, so that the magnitude and the fall from it have a sum that a double holds; of integers,
// so that the lines leave the magnitude by less than a half.
template <class T> constexpr double kLeast = std::is_integral_v<T> ? 0x1p-30 : std::is_same_v<T, Qvx32f> ? 0x1p-24 : 0x1p-52;

constexpr uint64_t kHalfTurn = uint64_t{1} << 63;
constexpr uint64_t kQuarterTurn = uint64_t{1} << 62;

template <class V> [[gnu::always_inline]] inline V line(V v, V slope, V at0) { return hn::MulAdd(v, slope, at0); }

// The lines over phases that count to 2^32 or 2^64.
template <class Real> struct Counted {
  using Phase = std::conditional_t<sizeof(Real) == 4, int32_t, int64_t>;
  Real fall;
  Real rise;
  Real fallAt0;
  Real riseAt0;
  Phase valley;  // where they meet

  // With masks the line is chosen before it is computed: one multiplication and no maximum, which on some processors share one
  // port, at 3.5 cycles a vector of floats, not 5.
  template <class P> [[gnu::always_inline]] auto operator()(P phase) const {
    const hn::RebindToFloat<TagOf<P>> d;
    const auto v = hn::ConvertTo(d, phase);
    const auto each = [=](Real x) { return hn::Set(d, x); };
    if constexpr (kHasMasks) {
      const auto falls = hn::RebindMask(d, phase < hn::Set(TagOf<P>(), valley));
      return line(v, hn::IfThenElse(falls, each(fall), each(rise)), hn::IfThenElse(falls, each(fallAt0), each(riseAt0)));
    } else {
      return hn::Max(line(v, each(fall), each(fallAt0)), line(v, each(rise), each(riseAt0)));
    }
  }
};

// Of a phase that counts to 2^64, the digits that Phase has.
template <class Phase> Phase upperDigits(uint64_t phase) {
  return static_cast<Phase>(static_cast<std::make_unsigned_t<Phase>>(phase >> (64 - 8 * sizeof(Phase))));
}

// Vectors whose phases are the sums of one and the same with what is theirs: it comes from a 64-bit number, at the price of two
// additions.
inline constexpr size_t kTogether = 4;

// N samples at a time of wave(phase, i), where i vectors have been made of that phase; an imaginary part is a quarter of a turn
// late.
template <size_t N, class T, class Wave>
[[gnu::always_inline]] inline void putWave(T* dst, size_t n, Wave wave, uint64_t step, uint64_t phase) {
  const auto put = [&](size_t i, size_t at, auto... rest) __attribute__((always_inline)) {
    const auto v = wave(phase, i);
    if constexpr (PartsOf<T>::kCount == 1) putSamples(dst, at, v, v, rest...);
    else putSamples(dst, at, v, wave(phase - kQuarterTurn, i), rest...);
  };
  size_t from = 0;
  for (; from + kTogether * N <= n; from += kTogether * N, phase += kTogether * N * step) {
    unrolled<kTogether>([&](auto i) __attribute__((always_inline)) { put(i, from + i * N); });
  }
  eachVector<N>(
      n - from, [&](size_t at, auto... rest) __attribute__((always_inline)) { put(at / N, from + at, rest...); });
}

// Turns up to a half, as Phase counts them.
template <class Phase> Phase counted(double turns) {
  const double at = turns * -2 * static_cast<double>(std::numeric_limits<Phase>::min());
  return turns < 0.5 ? static_cast<Phase>(at) : std::numeric_limits<Phase>::max();
}

// The phases of a vector, from the first one and the number of vectors made of that.
template <class Phase, size_t N> struct Phases {
  static constexpr Lanes<Phase, N> d = {};
  alignas(64) Phase steps[kTogether * N];

  Phases(size_t n, uint64_t step) {
    for (size_t k = 0; k < N; ++k) steps[k] = upperDigits<Phase>(k * step);
    for (size_t i = 1; i < kTogether && i * N < n; ++i) {
      store(load(d, steps) + hn::Set(d, upperDigits<Phase>(i * N * step)), d, steps + i * N);
    }
  }
  [[gnu::always_inline]] auto operator()(uint64_t first, size_t i) const {
    return hn::Set(d, upperDigits<Phase>(first)) + load(d, steps + i * N);
  }
};

// In doubles. Where no instruction converts 64-bit integers the first phase is exact and the others two products more.
template <class T> void fill(T* dst, size_t n, double magn, Lines unit, uint64_t step, uint64_t phase) {
  constexpr size_t N = kVectorBytes / sizeof(double);
  constexpr bool kRounds = std::is_integral_v<Part<T>>;
  const Lanes<double, N> d;
  const Lines lines = kRounds ? unit.times(magn) : unit;
  const auto within = [=](auto v) __attribute__((always_inline)) {
    if constexpr (kRounds) return v;
    else return hn::Max(hn::Min(v, hn::Set(d, 1.0)), hn::Set(d, -1.0)) * hn::Set(d, magn);
  };
  if constexpr (kHasMasks) {
    const Phases<int64_t, N> phases(n, step);
    const Counted<double> upper{lines.fall * 0x1p-64, lines.rise * 0x1p-64, lines.fallAt0, lines.riseAt0,
                                counted<int64_t>(lines.valley)};
    const auto wave = [&](uint64_t at, size_t i) __attribute__((always_inline)) { return within(upper(phases(at, i))); };
    putWave<N>(dst, n, wave, step, phase);
  } else {
    alignas(64) double steps[kTogether * N];
    for (size_t k = 0; k < N; ++k) steps[k] = static_cast<double>(k * step) * 0x1p-64;
    for (size_t i = 1; i < kTogether && i * N < n; ++i) {
      store(load(d, steps) + hn::Set(d, static_cast<double>(i * N * step) * 0x1p-64), d, steps + i * N);
    }
    const auto wave = [&](uint64_t at, size_t i) __attribute__((always_inline)) {
      const auto turns = hn::Set(d, static_cast<double>(static_cast<int64_t>(at)) * 0x1p-64) + load(d, steps + i * N);
      const auto v = turns - hn::Round(turns);
      return within(hn::Max(line(v, hn::Set(d, lines.fall), hn::Set(d, lines.fallAt0)),
                            line(v, hn::Set(d, lines.rise), hn::Set(d, lines.riseAt0))));
    };
    putWave<N>(dst, n, wave, step, phase);
  }
}

// The greatest float up to v.
float floatUpTo(double v) {
  const auto nearest = static_cast<float>(v);
  if (static_cast<double>(nearest) <= v) return nearest;
  const auto bits = std::bit_cast<int32_t>(nearest);
  return std::bit_cast<float>(bits < 0 ? bits + 1 : bits - 1);
}

// In floats: phases of 32 bits, which are more than a float keeps. The lines have the magnitude in them, and begin so low that
// what they come to at the peak is at most that.
template <class T>
requires std::is_same_v<Part<T>, Qvx32f>
void fill(T* dst, size_t n, double magn, Lines lines, uint64_t step, uint64_t phase) {
  constexpr size_t N = kVectorBytes / sizeof(float);
  const Lanes<float, N> real;
  if (!(magn >= 0x1p-64 && magn <= 0x1p64)) {  // the lines would leave the range of floats
    fill(dst, n, 1, lines, step, phase);
    const auto scaled = [=](auto v) { return v * same<decltype(v)>(static_cast<float>(magn)); };
    loop(scaled, destination(dst), PartsOf<T>::kCount * n, source(dst));
    return;
  }
  const Phases<int32_t, N> phases(n, step);
  const auto fall = static_cast<float>(lines.fall * magn * 0x1p-32);
  const auto rise = static_cast<float>(lines.rise * magn * 0x1p-32);
  const Counted<float> both{fall, rise, floatUpTo(magn + static_cast<double>(fall) * 0x1p31),
                            floatUpTo(magn - static_cast<double>(rise) * 0x1p31), counted<int32_t>(lines.valley)};
  const auto least = hn::Set(real, static_cast<float>(-magn));
  const auto wave = [&](uint64_t at, size_t i) __attribute__((always_inline)) { return hn::Max(both(phases(at, i)), least); };
  putWave<N>(dst, n, wave, step, phase);
}

template <class T, class Magn, class Phase> QvxStatus direct(T* dst, int len, Magn magn, Phase rFreq, Phase asym, Phase* phase) {
  constexpr auto kPi = static_cast<Phase>(kTwoPi / 2);
  if (isNull(phase)) return qvxStatNullPtr;
  if (!(magn > 0)) return qvxStatBadTriangleMagn;
  if (!(rFreq >= 0 && rFreq < Phase(0.5))) return qvxStatBadTriangleFreq;
  if (!(asym >= -kPi && asym < kPi)) return qvxStatBadTriangleAsym;
  const Phase start = *phase;
  if (!(start >= 0 && start < static_cast<Phase>(kTwoPi))) return qvxStatBadTrianglePhase;
  if (isNull(dst)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  *phase = phaseAfter(start, rFreq, len);
  const RoundingScope mode(kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest);
  fill(dst, elements(len), static_cast<double>(magn), Lines::of(0.5 + asym * kTurn, kLeast<Part<T>>), fixedTurns(rFreq),
       fixedTurns(start * kTurn) - kHalfTurn);
  return qvxStatOk;
}

// ---- Q15

QvxStatus checkQ15(int magn, int rFreqQ15, int asymQ15, int phaseQ15) {
  if (magn < 1) return qvxStatBadTriangleMagn;
  if (rFreqQ15 < 0 || rFreqQ15 > 16383) return qvxStatBadTriangleFreq;
  if (phaseQ15 < 0 || phaseQ15 > 205886) return qvxStatBadTrianglePhase;
  return asymQ15 < -102943 || asymQ15 > 102943 ? qvxStatBadTriangleAsym : qvxStatOk;
}
void build(QvxsTriangleState& wave, int magn, int rFreqQ15, int asymQ15, int phaseQ15) {
  wave.magic = kId;
  wave.ownsBlock = false;
  wave.magn = magn;
  wave.lines = Lines::of(0.5 + asymQ15 * 0x1p-15 * kTurn, kLeast<Qvx16s>);
  wave.step = static_cast<uint64_t>(rFreqQ15) << 49;
  wave.phase = shortTurns(phaseQ15 * 0x1p-15 * kTurn) - kHalfTurn;
}
QvxStatus init(QvxsTriangleState* state, int magn, int rFreqQ15, int asymQ15, int phaseQ15) {
  const QvxStatus status = checkQ15(magn, rFreqQ15, asymQ15, phaseQ15);
  if (status == qvxStatOk) build(*state, magn, rFreqQ15, asymQ15, phaseQ15);
  return status;
}
void fillQ15(Qvx16s* dst, size_t n, QvxsTriangleState& wave) {
  const RoundingScope nearest(Rounding::kNearest);
  fill(dst, n, wave.magn, wave.lines, wave.step, wave.phase);
  wave.phase += n * wave.step;
}

}  // namespace

// clang-format off
QvxStatus qvxsTriangle_Direct_64f (Qvx64f*  d, int len, Qvx64f magn, Qvx64f rFreq, Qvx64f asym, Qvx64f* phase) { return direct(d, len, magn, rFreq, asym, phase); }
QvxStatus qvxsTriangle_Direct_32f (Qvx32f*  d, int len, Qvx32f magn, Qvx32f rFreq, Qvx32f asym, Qvx32f* phase) { return direct(d, len, magn, rFreq, asym, phase); }
QvxStatus qvxsTriangle_Direct_16s (Qvx16s*  d, int len, Qvx16s magn, Qvx32f rFreq, Qvx32f asym, Qvx32f* phase) { return direct(d, len, magn, rFreq, asym, phase); }
QvxStatus qvxsTriangle_Direct_64fc(Qvx64fc* d, int len, Qvx64f magn, Qvx64f rFreq, Qvx64f asym, Qvx64f* phase) { return direct(d, len, magn, rFreq, asym, phase); }
QvxStatus qvxsTriangle_Direct_32fc(Qvx32fc* d, int len, Qvx32f magn, Qvx32f rFreq, Qvx32f asym, Qvx32f* phase) { return direct(d, len, magn, rFreq, asym, phase); }
QvxStatus qvxsTriangle_Direct_16sc(Qvx16sc* d, int len, Qvx16s magn, Qvx32f rFreq, Qvx32f asym, Qvx32f* phase) { return direct(d, len, magn, rFreq, asym, phase); }
// clang-format on

QvxStatus qvxsTriangleGetStateSizeQ15_16s(int* size) { return isNull(size) ? qvxStatNullPtr : reportBytes(kBytes, size); }
QvxStatus qvxsTriangleInitQ15_16s(QvxsTriangleState* state, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s asymQ15, Qvx32s phaseQ15) {
  return isNull(state) ? qvxStatNullPtr : init(state, magn, rFreqQ15, asymQ15, phaseQ15);
}
QvxStatus qvxsTriangleInitAllocQ15_16s(QvxsTriangleState** ppState, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s asymQ15,
                                       Qvx32s phaseQ15) {
  if (isNull(ppState)) return qvxStatNullPtr;
  const QvxStatus status = checkQ15(magn, rFreqQ15, asymQ15, phaseQ15);
  if (status != qvxStatOk) return status;
  return allocate(ppState, kBytes, [=](QvxsTriangleState& made) { build(made, magn, rFreqQ15, asymQ15, phaseQ15); });
}
QvxStatus qvxsTriangleQ15_16s(Qvx16s* dst, int len, QvxsTriangleState* state) {
  const QvxStatus status = checkRun(dst, len, state, kId);
  if (status != qvxStatOk) return status;
  fillQ15(dst, elements(len), *state);
  return qvxStatOk;
}
QvxStatus qvxsTriangleQ15_Direct_16s(Qvx16s* dst, int len, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s asymQ15, Qvx32s phaseQ15) {
  QvxsTriangleState wave;
  QvxStatus status = check(len, dst);
  if (status == qvxStatOk) status = init(&wave, magn, rFreqQ15, asymQ15, phaseQ15);
  if (status == qvxStatOk) fillQ15(dst, elements(len), wave);
  return status;
}
QvxStatus qvxsTriangleFree(QvxsTriangleState* state) { return release(state, kId); }
