// Normal deviates by the polar method.
#include <bit>

#include "frame/rounding.h"
#include "generate/random.h"
#include "generate/record.h"
#include "math/ln.h"

using namespace qvx;
using namespace qvx::generate;

namespace qvx::generate {

// The second of a pair, when the first is given out.
struct Waiting {
  double factor;
  double spare;
};

template <class T, uint32_t kNumber> struct Gauss {
  using Sample = T;
  static constexpr uint32_t kId = kNumber;

  uint32_t magic;
  uint32_t seed;
  T mean;
  T stdDev;
  Generator source;
  int32_t needPair;  // 0: one is waiting
  bool ownsBlock;
  Waiting waiting;
  double unused;  // 0: the reported size has room for it
};

}  // namespace qvx::generate

struct QvxsRandGaussState_8u : Gauss<Qvx8u, 38> {};
struct QvxsRandGaussState_16s : Gauss<Qvx16s, 39> {};
struct QvxsRandGaussState_32f : Gauss<Qvx32f, 40> {};

namespace {

constexpr int kBytes = 64;
static_assert(sizeof(QvxsRandGaussState_16s) <= kBytes);

enum class Order { kFactorFirst, kFactorLast };  // of the products with stdDev

template <class T, Order kOrder> struct Deviate {
  T mean;
  double stdDev;

  template <class V> auto operator()(V factor, V w) const {
    const V s = same<V>(stdDev);
    const V product = kOrder == Order::kFactorFirst || std::is_same_v<T, float> ? s * factor * w : w * s * factor;
    if constexpr (std::is_same_v<T, float>) {
      const auto narrow = convertLanes<float>(product);
      return narrow + hn::Set(TagOf<decltype(narrow)>(), mean);
    } else {
      return rounded<T>(product + same<V>(mean));
    }
  }
};

inline constexpr size_t kPairs = 128;
static_assert(2 * kPairs % kBlock == 0);

// Accepted pairs: each value beside its factor, in the order in which they are given out.
struct Accepted {
  alignas(64) double factor[2 * kPairs];
  alignas(64) double value[2 * kPairs];
};

// Pairs that the method takes, up to as many as are wanted.
struct Chosen {
  static constexpr size_t kWide = kVectorBytes / sizeof(double);
  static constexpr Lanes<double, kWide> d = {};
  alignas(64) double first[kPairs + kWide];
  alignas(64) double second[kPairs + kWide];
  alignas(64) double square[kPairs + kWide];
  size_t wanted;
  size_t count = 0;

  explicit Chosen(size_t wanted) : wanted(wanted) {}

  // Those of a block; returns the numbers up to the last one wanted, or all.
  size_t choose(const int32_t* r) {
    for (size_t k = 0; k < kBlock; k += 2 * kWide) {
      const auto scaled = [=](size_t i) {
        return convertLanes<double>(load(Lanes<int32_t, kWide>(), r + i)) * hn::Set(d, 4.656612873077e-10);
      };
      const auto lower = scaled(k);
      const auto upper = scaled(k + kWide);
      const auto u = hn::ConcatEven(d, upper, lower);
      const auto v = hn::ConcatOdd(d, upper, lower);
      const auto q = u * u + v * v;
      const auto isInside = q < hn::Set(d, 1.0);
      const uint64_t bits = maskBits(d, hn::AndNot(q == hn::Zero(d), isInside));
      const auto add = [&](auto lanes, double* to) { store(as<double>(partitioned(as<uint64_t>(lanes), bits)), d, to + count); };
      add(v, first);
      add(u, second);
      add(q, square);
      const size_t more = countLanes<kWide>(bits);
      if (count + more >= wanted) return k + 2 * atLast(bits, wanted - count);
      count += more;
    }
    return kBlock;
  }

 private:
  // Pairs up to the n-th that is taken.
  size_t atLast(uint64_t bits, size_t n) {
    count = wanted;
    while (--n > 0) bits &= bits - 1;
    return static_cast<size_t>(std::countr_zero(bits)) + 1;
  }
};

// Of the next pairs as many as the method takes, up to `wanted`, which leaves the source right after the last one. Whole blocks
// are tried, but so few that all before the last one are needed: 16 deviates mostly take one.
size_t tryPairs(Generator& source, size_t wanted, Accepted& pairs) {
  constexpr size_t kWide = Chosen::kWide;
  const Lanes<double, kWide> d;
  Chosen chosen(wanted);
  const size_t blocks = (2 * wanted + kBlock - 1) / kBlock;
  advance(
      source, blocks * kBlock, [&](size_t, const int32_t* r) { chosen.choose(r); },
      [&](size_t, size_t, const int32_t* r) { return chosen.choose(r); });
  store(hn::Set(d, 0.5), d, chosen.square + chosen.count);
  for (size_t k = 0; k < chosen.count; k += kWide) {
    const auto square = load(d, chosen.square + k);
    const auto factor = hn::Sqrt(hn::Set(d, -2.0) * ln(square) / square);
    const auto factors = interleaved(Pair<Vec<decltype(d)>>{factor, factor});
    const auto values = interleaved(Pair<Vec<decltype(d)>>{load(d, chosen.first + k), load(d, chosen.second + k)});
    store(factors.lo, d, pairs.factor + 2 * k);
    store(factors.hi, d, pairs.factor + 2 * k + kWide);
    store(values.lo, d, pairs.value + 2 * k);
    store(values.hi, d, pairs.value + 2 * k + kWide);
  }
  return chosen.count;
}

// No pair is tried that would not be given out, so that the source stands right after the last one.
template <class T, Order kOrder>
void fill(T* dst, size_t n, Deviate<T, kOrder> deviate, Generator& source, int32_t& needPair, Waiting& waiting) {
  const RoundingScope mode(std::is_integral_v<T> || !kRoundsByInstruction ? Rounding::kNearest : Rounding::kCallers);
  if (needPair == 0) {
    loop<double>(deviate, destination(dst), 1, Source<double>{&waiting.factor}, Source<double>{&waiting.spare});
    needPair = 1;
    ++dst;
    --n;
  }
  Accepted pairs;
  while (n > 0) {
    const size_t count = std::min(2 * tryPairs(source, std::min(kPairs, (n + 1) / 2), pairs), n);
    if (count == 0) continue;
    loop<double>(deviate, destination(dst), count, Source<double>{pairs.factor}, Source<double>{pairs.value});
    if (count % 2 != 0) {
      needPair = 0;
      waiting = {pairs.factor[count], pairs.value[count]};
    }
    dst += count;
    n -= count;
  }
}

template <class State, class T> void build(State& state, T mean, T stdDev, uint32_t seed, bool ownsBlock) {
  state.magic = State::kId;
  state.seed = seed;
  state.mean = mean;
  state.stdDev = stdDev;
  state.source = Generator::of(seed);
  state.needPair = 1;
  state.ownsBlock = ownsBlock;
  state.waiting = {};
  state.unused = 0;
}
template <class State, class T> QvxStatus initAlloc(State** ppState, T mean, T stdDev, uint32_t seed) {
  if (isNull(ppState)) return qvxStatNullPtr;
  return allocate(ppState, sizeof(State), [=](State& made) { build(made, mean, stdDev, seed, true); });
}

template <class State, class T> QvxStatus run(T* dst, int len, State* state) {
  const QvxStatus status = checkRun(dst, len, state, State::kId);
  if (status != qvxStatOk) return status;
  const Deviate<T, Order::kFactorFirst> deviate{state->mean, static_cast<double>(state->stdDev)};
  fill(dst, elements(len), deviate, state->source, state->needPair, state->waiting);
  return qvxStatOk;
}
template <class T> QvxStatus direct(T* dst, int len, T mean, T stdDev, Qvx32u* seed) {
  const QvxStatus status = check(len, dst, seed);
  if (status != qvxStatOk) return status;
  Generator source = Generator::of(*seed);
  int32_t needPair = 1;
  Waiting dropped;
  fill(dst, elements(len), Deviate<T, Order::kFactorLast>{mean, static_cast<double>(stdDev)}, source, needPair, dropped);
  *seed = source.lag1;
  return qvxStatOk;
}

}  // namespace

QvxStatus qvxsRandGaussGetSize_16s(int* size) { return isNull(size) ? qvxStatNullPtr : reportBytes(kBytes, size); }
QvxStatus qvxsRandGaussInit_16s(QvxsRandGaussState_16s* s, Qvx16s mean, Qvx16s stdDev, Qvx32u seed) {
  if (isNull(s)) return qvxStatNullPtr;
  build(*s, mean, stdDev, seed, false);
  return qvxStatOk;
}

// clang-format off
QvxStatus qvxsRandGaussInitAlloc_8u (QvxsRandGaussState_8u**  s, Qvx8u  mean, Qvx8u  stdDev, Qvx32u seed) { return initAlloc(s, mean, stdDev, seed); }
QvxStatus qvxsRandGaussInitAlloc_16s(QvxsRandGaussState_16s** s, Qvx16s mean, Qvx16s stdDev, Qvx32u seed) { return initAlloc(s, mean, stdDev, seed); }
QvxStatus qvxsRandGaussInitAlloc_32f(QvxsRandGaussState_32f** s, Qvx32f mean, Qvx32f stdDev, Qvx32u seed) { return initAlloc(s, mean, stdDev, seed); }
QvxStatus qvxsRandGaussFree_8u (QvxsRandGaussState_8u*  s) { return release(s, QvxsRandGaussState_8u::kId); }
QvxStatus qvxsRandGaussFree_16s(QvxsRandGaussState_16s* s) { return release(s, QvxsRandGaussState_16s::kId); }
QvxStatus qvxsRandGaussFree_32f(QvxsRandGaussState_32f* s) { return release(s, QvxsRandGaussState_32f::kId); }
QvxStatus qvxsRandGauss_8u (Qvx8u*  d, int len, QvxsRandGaussState_8u*  s) { return run(d, len, s); }
QvxStatus qvxsRandGauss_16s(Qvx16s* d, int len, QvxsRandGaussState_16s* s) { return run(d, len, s); }
QvxStatus qvxsRandGauss_32f(Qvx32f* d, int len, QvxsRandGaussState_32f* s) { return run(d, len, s); }
QvxStatus qvxsRandGauss_Direct_16s(Qvx16s* d, int len, Qvx16s mean, Qvx16s stdDev, Qvx32u* seed) { return direct(d, len, mean, stdDev, seed); }
QvxStatus qvxsRandGauss_Direct_32f(Qvx32f* d, int len, Qvx32f mean, Qvx32f stdDev, Qvx32u* seed) { return direct(d, len, mean, stdDev, seed); }
QvxStatus qvxsRandGauss_Direct_64f(Qvx64f* d, int len, Qvx64f mean, Qvx64f stdDev, Qvx32u* seed) { return direct(d, len, mean, stdDev, seed); }
// clang-format on
