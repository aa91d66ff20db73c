// Sampled cosines.
#include "generate/record.h"
#include "generate/wave.h"
#include "math/sine.h"
#include "math/spaced_sin_cos.h"

using namespace qvx;
using namespace qvx::generate;

struct QvxsToneState : RecordHead {
  double magn;
  uint64_t step;
  uint64_t phase;
};

namespace {

constexpr uint32_t kId = 0x434D4148;
constexpr int kBytes = 48;
static_assert(sizeof(QvxsToneState) <= kBytes);

// Integers are made in floats as well.
template <class T> using Real = std::conditional_t<std::is_same_v<Part<T>, Qvx64f>, Qvx64f, Qvx32f>;

// Up to here it is cheaper to compute each.
template <class T> inline constexpr size_t kFewCosines = 8 * kVectorBytes / sizeof(double);

// A few cosines, each by itself: the sine of what is left to a quarter, half the work of sine and cosine. 16 floats take 8 ns,
// not 11.
template <class T> [[gnu::flatten]] void fillFew(T* dst, size_t n, double magn, double rFreq, double turns) {
  constexpr size_t N = kVectorBytes / sizeof(double);
  constexpr int kDigits = sizeof(Real<T>) == sizeof(float) ? 24 : 53;
  const Lanes<double, N> d;
  const auto number = laneNumbersOf(d);
  eachVector<N>(n, [&](size_t at, auto... rest) {
    const auto angle = hn::MulAdd(number + hn::Set(d, static_cast<double>(at)), hn::Set(d, rFreq), hn::Set(d, turns));
    const auto left = hn::Set(d, 0.25) - hn::Abs(fractionOfTurns(angle));
    const auto cosine = convertLanes<Real<T>>(hn::Set(d, magn) * sineOfQuarterTurn<kDigits>(left));
    putSamples(dst, at, cosine, cosine, rest...);
  });
}

// Flattened: a pair of sines and cosines that a function returns goes through memory.
template <class T> [[gnu::flatten]] void fill(T* dst, size_t n, double magn, double rFreq, double turns) {
  using Angles = SpacedAngles<Real<T>>;
  if constexpr (PartsOf<T>::kCount == 1) {
    if (n <= kFewCosines<T>) return fillFew(dst, n, magn, rFreq, turns);
  } else if (n <= Angles::kFew) {
    Angles::few(turns, rFreq, magn, n,
                [=](size_t at, auto sine, auto cosine, auto... rest) { putSamples(dst, at, cosine, sine, rest...); });
    return;
  }
  const Angles angles(rFreq, magn);
  double blockStep = rFreq * Angles::kBlock;  // exact, and so is its fraction
  blockStep -= static_cast<double>(static_cast<int64_t>(blockStep));
  const auto startAt = [=](size_t at) mutable {
    if (at > 0) turns += blockStep;
    return turns -= static_cast<double>(static_cast<int64_t>(turns));
  };
  angles.forEachVector(n, startAt,
                       [=](size_t at, auto sine, auto cosine, auto... rest) { putSamples(dst, at, cosine, sine, rest...); });
}

template <class T, class Magn, class Phase> QvxStatus direct(T* dst, int len, Magn magn, Phase rFreq, Phase* phase);

// A sample is the sum of two products, which may exceed the magnitude, and so the range: half of it, limited, and that twice.
template <class T, class Phase>
[[gnu::noinline, gnu::cold]] QvxStatus directAtTheTop(T* dst, int len, Phase magn, Phase rFreq, Phase* phase) {
  const Phase half = magn / 2;
  direct(dst, len, half, rFreq, phase);
  const auto doubled = [half](auto v) {
    const auto limited = hn::Min(hn::Max(v, same<decltype(v)>(-half)), same<decltype(v)>(half));
    return limited + limited;
  };
  loop(doubled, destination(dst), PartsOf<T>::kCount * elements(len), source(dst));
  return qvxStatOk;
}

template <class T, class Magn, class Phase> QvxStatus direct(T* dst, int len, Magn magn, Phase rFreq, Phase* phase) {
  if (isNull(phase)) return qvxStatNullPtr;
  if (!(magn > 0)) return qvxStatBadToneMagn;
  if (!(rFreq >= 0 && rFreq < Phase(0.5))) return qvxStatBadToneFreq;
  const Phase start = *phase;
  if (!(start >= 0 && start < static_cast<Phase>(kTwoPi))) return qvxStatBadTonePhase;
  if (isNull(dst)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  if constexpr (std::is_floating_point_v<Magn>) {
    if (magn > std::numeric_limits<Magn>::max() / 2 && magn <= std::numeric_limits<Magn>::max()) [[unlikely]]
      return directAtTheTop(dst, len, magn, rFreq, phase);
  }
  *phase = phaseAfter(start, rFreq, len);
  const RoundingScope mode(kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest);
  fill(dst, elements(len), static_cast<double>(magn), static_cast<double>(rFreq), static_cast<double>(start) * kTurn);
  return qvxStatOk;
}

// ---- Q15: each sample by itself, so that a cut makes no difference

void fillQ15(Qvx16s* dst, size_t n, QvxsToneState& tone) {
  constexpr size_t kBeside = kHasMasks ? 8 : 4;  // as many as registers hold
  using Angles = Phases<double, kBeside>;
  constexpr size_t N = Angles::N;
  using V = Vec<Lanes<double, N>>;
  const RoundingScope nearest(Rounding::kNearest);
  const Angles phases(n, tone.step);
  uint64_t phase = tone.phase;
  const uint64_t step = tone.step;
  const V magn = same<V>(tone.magn);
  tone.phase += n * tone.step;
  // The cosine is the sine of what is left to a quarter.
  const auto left = [&](size_t i) __attribute__((always_inline)) {
    const V size = hn::Abs(phases(phase, i));
    if constexpr (Angles::kUnit == 1) return same<V>(0.25) - size;
    else return hn::NegMulAdd(size, same<V>(Angles::kUnit), same<V>(0.25));
  };
  const auto put = [&](size_t at, V sine, auto... rest) __attribute__((always_inline)) {
    const V v = magn * sine;
    putSamples(dst, at, v, v, rest...);
  };
  size_t from = 0;
  for (; from + kBeside * N <= n; from += kBeside * N, phase += kBeside * N * step) {
    std::array<V, kBeside> angles;
    unrolled<kBeside>([&](auto i) __attribute__((always_inline)) { angles[i] = left(i); });
    const auto sines = sinesOfQuarterTurns<53>(angles);
    unrolled<kBeside>([&](auto i) __attribute__((always_inline)) { put(from + i * N, sines[i]); });
  }
  eachVector<N>(
      n - from, [&](size_t at, auto... rest) __attribute__((always_inline)) {
        put(from + at, sinesOfQuarterTurns<53>(std::array<V, 1>{left(at / N)})[0], rest...);
      });
}

QvxStatus checkQ15(int magn, int rFreqQ15, int phaseQ15) {
  if (magn < 1) return qvxStatBadToneMagn;
  if (rFreqQ15 < 0 || rFreqQ15 > 16383) return qvxStatBadToneFreq;
  return phaseQ15 < 0 || phaseQ15 > 205886 ? qvxStatBadTonePhase : qvxStatOk;
}
void build(QvxsToneState& tone, int magn, int rFreqQ15, int phaseQ15) {
  tone.magic = kId;
  tone.ownsBlock = false;
  tone.magn = magn;
  tone.step = static_cast<uint64_t>(rFreqQ15) << 49;
  tone.phase = shortTurns(phaseQ15 * 0x1p-15 * kTurn);
}
QvxStatus init(QvxsToneState* state, int magn, int rFreqQ15, int phaseQ15) {
  const QvxStatus status = checkQ15(magn, rFreqQ15, phaseQ15);
  if (status == qvxStatOk) build(*state, magn, rFreqQ15, phaseQ15);
  return status;
}

}  // namespace

// clang-format off
QvxStatus qvxsTone_Direct_64f (Qvx64f*  d, int len, Qvx64f magn, Qvx64f rFreq, Qvx64f* phase, int) { return direct(d, len, magn, rFreq, phase); }
QvxStatus qvxsTone_Direct_32f (Qvx32f*  d, int len, Qvx32f magn, Qvx32f rFreq, Qvx32f* phase, int) { return direct(d, len, magn, rFreq, phase); }
QvxStatus qvxsTone_Direct_16s (Qvx16s*  d, int len, Qvx16s magn, Qvx32f rFreq, Qvx32f* phase, int) { return direct(d, len, magn, rFreq, phase); }
QvxStatus qvxsTone_Direct_64fc(Qvx64fc* d, int len, Qvx64f magn, Qvx64f rFreq, Qvx64f* phase, int) { return direct(d, len, magn, rFreq, phase); }
QvxStatus qvxsTone_Direct_32fc(Qvx32fc* d, int len, Qvx32f magn, Qvx32f rFreq, Qvx32f* phase, int) { return direct(d, len, magn, rFreq, phase); }
QvxStatus qvxsTone_Direct_16sc(Qvx16sc* d, int len, Qvx16s magn, Qvx32f rFreq, Qvx32f* phase, int) { return direct(d, len, magn, rFreq, phase); }
// clang-format on

QvxStatus qvxsToneGetStateSizeQ15_16s(int* size) { return isNull(size) ? qvxStatNullPtr : reportBytes(kBytes, size); }
QvxStatus qvxsToneInitQ15_16s(QvxsToneState* state, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s phaseQ15) {
  return isNull(state) ? qvxStatNullPtr : init(state, magn, rFreqQ15, phaseQ15);
}
QvxStatus qvxsToneInitAllocQ15_16s(QvxsToneState** ppState, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s phaseQ15) {
  if (isNull(ppState)) return qvxStatNullPtr;
  const QvxStatus status = checkQ15(magn, rFreqQ15, phaseQ15);
  if (status != qvxStatOk) return status;
  return allocate(ppState, kBytes, [=](QvxsToneState& made) { build(made, magn, rFreqQ15, phaseQ15); });
}
QvxStatus qvxsToneQ15_16s(Qvx16s* dst, int len, QvxsToneState* state) {
  const QvxStatus status = checkRun(dst, len, state, kId);
  if (status != qvxStatOk) return status;
  fillQ15(dst, elements(len), *state);
  return qvxStatOk;
}
QvxStatus qvxsToneQ15_Direct_16s(Qvx16s* dst, int len, Qvx16s magn, Qvx16s rFreqQ15, Qvx32s phaseQ15) {
  QvxsToneState tone;
  QvxStatus status = check(len, dst);
  if (status == qvxStatOk) status = init(&tone, magn, rFreqQ15, phaseQ15);
  if (status == qvxStatOk) fillQ15(dst, elements(len), tone);
  return status;
}
QvxStatus qvxsToneFree(QvxsToneState* state) { return release(state, kId); }
