// Triangle waves. Each sample comes from its own phase, a fraction of 2^64 that wraps by itself: nothing has to be folded, and
// nothing accumulates.
#include <bit>

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

  // falls: the part of a turn in which the wave falls. least: what is no slope becomes one that nothing overflows by.
  static Lines of(double falls, double least) {
    falls = std::max(falls, least);
    const double rises = std::max(1 - falls, least);
    return {-2 / falls, 2 / rises, 1 - 1 / falls, 1 - 1 / rises};
  }
  Lines times(double magn) const { return {fall * magn, rise * magn, fallAt0 * magn, riseAt0 * magn}; }
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

// The upper one of the lines, over phases in units of Phases.
template <class Real> struct Upper {
  Real fall;
  Real rise;
  Real fallAt0;
  Real riseAt0;

  // Both lines: to choose one by a mask takes an instruction more, and 4096 floats 1.1 times as long.
  template <class V> [[gnu::always_inline]] V operator()(V v) const {
    const auto each = [](Real x) { return same<V>(x); };
    return hn::Max(hn::MulAdd(v, each(fall), each(fallAt0)), hn::MulAdd(v, each(rise), each(riseAt0)));
  }
};

template <class T> void fill(T* dst, size_t n, double magn, Lines unit, uint64_t step, uint64_t phase) {
  constexpr bool kRounds = std::is_integral_v<Part<T>>;
  constexpr double kUnit = Phases<double>::kUnit;
  const Phases<double> phases(n, step);
  const Lines lines = kRounds ? unit.times(magn) : unit;
  const Upper<double> upper{lines.fall * kUnit, lines.rise * kUnit, lines.fallAt0, lines.riseAt0};
  const auto wave = [&](uint64_t at, size_t i) __attribute__((always_inline)) {
    const auto v = upper(phases(at, i));
    using V = std::remove_const_t<decltype(v)>;
    if constexpr (kRounds) return v;
    else return hn::Max(hn::Min(v, same<V>(1)), same<V>(-1)) * same<V>(magn);
  };
  putWave<Phases<double>::N>(dst, n, wave, step, phase);
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
  if (!(magn >= 0x1p-64 && magn <= 0x1p64)) {  // the lines would leave the range of floats
    fill(dst, n, 1, lines, step, phase);
    const auto scaled = [=](auto v) { return v * same<decltype(v)>(static_cast<float>(magn)); };
    loop(scaled, destination(dst), PartsOf<T>::kCount * n, source(dst));
    return;
  }
  constexpr double kUnit = Phases<float>::kUnit;
  const Phases<float> phases(n, step);
  const auto fall = static_cast<float>(lines.fall * magn * kUnit);
  const auto rise = static_cast<float>(lines.rise * magn * kUnit);
  const Upper<float> upper{fall, rise, floatUpTo(magn + static_cast<double>(fall) * (0.5 / kUnit)),
                           floatUpTo(magn - static_cast<double>(rise) * (0.5 / kUnit))};
  const auto wave = [&](uint64_t at, size_t i) __attribute__((always_inline)) {
    const auto v = upper(phases(at, i));
    return hn::Max(v, hn::Set(TagOf<decltype(v)>(), static_cast<float>(-magn)));
  };
  putWave<Phases<float>::N>(dst, n, wave, step, phase);
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
