// Triangle waves. Each sample comes from its own phase, a fraction of 2^64 that wraps by itself: nothing has to be folded, and
// nothing accumulates.
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

  // falls: the part of a turn in which the wave falls
  static Lines of(double falls) {
    constexpr double kLeast = 0x1p-52;  // what is no slope becomes one that nothing overflows by
    falls = std::max(falls, kLeast);
    const double rises = std::max(1 - falls, kLeast);
    return {-2 / falls, 2 / rises, 1 - 1 / falls, 1 - 1 / rises};
  }
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

constexpr uint64_t kHalfTurn = uint64_t{1} << 63;
constexpr uint64_t kQuarterTurn = uint64_t{1} << 62;

template <class V> [[gnu::always_inline]] inline V upperLine(V v, Lines lines, double magn) {
  using T = LaneOf<V>;
  const auto line = [&](double slope, double at0) {
    return hn::MulAdd(v, same<V>(static_cast<T>(slope)), same<V>(static_cast<T>(at0)));
  };
  const V unit = hn::Max(line(lines.fall, lines.fallAt0), line(lines.rise, lines.riseAt0));
  return hn::Max(hn::Min(unit, same<V>(1)), same<V>(-1)) * same<V>(static_cast<T>(magn));
}

// N samples at a time of wave(phase); an imaginary part is a quarter of a turn late.
template <size_t N, class T, class Wave>
[[gnu::always_inline]] inline void putWave(T* dst, size_t n, Wave wave, uint64_t step, uint64_t phase) {
  for (size_t at = 0; at < n; at += N, phase += N * step) {
    if constexpr (PartsOf<T>::kCount == 1) {
      const auto v = wave(phase);
      putSamples(dst, at, n, v, v);
    } else {
      putSamples(dst, at, n, wave(phase), wave(phase - kQuarterTurn));
    }
  }
}

// In doubles: the first phase of a vector exact, the others a product more.
template <class T> void fill(T* dst, size_t n, double magn, Lines lines, uint64_t step, uint64_t phase) {
  constexpr size_t N = kVectorBytes / sizeof(double);
  const Lanes<double, N> d;
  alignas(64) double steps[N];
  for (size_t k = 0; k < N; ++k) steps[k] = static_cast<double>(k * step) * 0x1p-64;
  const auto lanes = load(d, steps);
  const auto wave = [=](uint64_t at) {
    const auto v = hn::Set(d, static_cast<double>(static_cast<int64_t>(at)) * 0x1p-64) + lanes;
    return upperLine(v - hn::Round(v), lines, magn);
  };
  putWave<N>(dst, n, wave, step, phase);
}

// In floats: phases of 32 bits, which are more than a float keeps.
template <class T>
requires std::is_same_v<Part<T>, Qvx32f>
void fill(T* dst, size_t n, double magn, Lines lines, uint64_t step, uint64_t phase) {
  constexpr size_t N = kVectorBytes / sizeof(float);
  const Lanes<int32_t, N> d;
  const Lanes<float, N> real;
  alignas(64) int32_t steps[N];
  for (size_t k = 0; k < N; ++k) steps[k] = static_cast<int32_t>(static_cast<uint32_t>(k * step >> 32));
  const auto lanes = load(d, steps);
  const Lines scaled = {lines.fall * 0x1p-32, lines.rise * 0x1p-32, lines.fallAt0, lines.riseAt0};
  const auto wave = [=](uint64_t at) {
    const auto v = hn::ConvertTo(real, hn::Set(d, static_cast<int32_t>(static_cast<uint32_t>(at >> 32))) + lanes);
    return upperLine(v, scaled, magn);
  };
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
  fill(dst, elements(len), static_cast<double>(magn), Lines::of(0.5 + asym * kTurn), fixedTurns(rFreq),
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
  wave.lines = Lines::of(0.5 + asymQ15 * 0x1p-15 * kTurn);
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
