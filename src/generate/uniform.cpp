// Uniform noise.
#include "frame/rounding.h"
#include "generate/random.h"
#include "generate/record.h"

using namespace qvx;
using namespace qvx::generate;

namespace qvx::generate {

// The flag of ownership is at the end, where the reported size has room left: identity and seed fill the beginning.
template <class T, uint32_t kNumber> struct Uniform {
  using Sample = T;
  static constexpr uint32_t kId = kNumber;

  uint32_t magic;
  uint32_t seed;
  T low;
  T high;
  double mid;
  double scale;
  Generator source;
  bool ownsBlock;
};

}  // namespace qvx::generate

struct QvxsRandUniformState_8u : Uniform<Qvx8u, 35> {};
struct QvxsRandUniformState_16s : Uniform<Qvx16s, 36> {};
struct QvxsRandUniformState_32f : Uniform<Qvx32f, 37> {};

namespace {

constexpr int kBytes = 56;
static_assert(sizeof(QvxsRandUniformState_16s) <= kBytes);

struct Mapping {
  double scale;
  double mid;

  static Mapping between(double low, double high) { return {(high - low) * 2.3283064365387e-10, (low + high) * 0.5}; }
};

// Up to here numbers follow the rule, which does not wait for a block: 16 floats take 15 ns, not 18.7, 4 take 7.6, not 17.9. In
// SSSE3, without a product of 32-bit lanes, blocks never pay: 4096 take 2.5 us, not 4.1.
constexpr size_t kFew = QVXS_AVX2 ? 20 : SIZE_MAX;

template <class T> struct Mapped {
  Mapping map;

  template <class V> auto operator()(V v) const {
    const auto wide = convertLanes<double>(v);
    using W = std::remove_const_t<decltype(wide)>;
    return rounded<T>(wide * same<W>(map.scale) + same<W>(map.mid));
  }
};

template <class T> [[gnu::noinline]] void fillByRule(T* dst, size_t n, Mapped<T> mapped, Generator& source) {
  const auto put = [=](T* to, auto four) {
    if constexpr (kVectorBytes > 16) {
      store(mapped(four), Lanes<T, 4>(), to);
    } else {
      store(mapped(hn::LowerHalf(Lanes<int32_t, 2>(), four)), Lanes<T, 2>(), to);
      store(mapped(upperHalf(four)), Lanes<T, 2>(), to + 2);
    }
  };
  advanceByRule(
      source, n, [=](size_t at, auto four) { put(dst + at, four); },
      [=](size_t at, size_t count, auto four) {
        T last[4];
        put(last, four);
        for (size_t i = 0; i < count; ++i) dst[at + i] = last[i];
      });
}

template <class T> void fill(T* dst, size_t n, Mapping map, Generator& source) {
  constexpr size_t kWide = kVectorBytes / sizeof(double);
  const RoundingScope mode(std::is_integral_v<T> ? Rounding::kNearest : Rounding::kCallers);
  const Mapped<T> mapped = {map};
  if (n <= kFew) return fillByRule(dst, n, mapped, source);
  const auto whole = [=](size_t at, const int32_t* r) {
    unrolled<kBlock / kWide>([&](auto v) {
      constexpr size_t i = v * kWide;
      destination(dst + at).template put<kWide>(mapped(load(Lanes<int32_t, kWide>(), r + i)), i);
    });
  };
  advance(source, n, whole, [=](size_t at, size_t count, const int32_t* r) {
    loop<double>(mapped, destination(dst + at), count, Source<int32_t>{r});
    return count;
  });
}

template <class State, class T> void build(State& state, T low, T high, uint32_t seed, bool ownsBlock) {
  const Mapping map = Mapping::between(low, high);
  state.magic = State::kId;
  state.seed = seed;
  state.low = low;
  state.high = high;
  state.mid = map.mid;
  state.scale = map.scale;
  state.source = Generator::of(seed);
  state.ownsBlock = ownsBlock;
}
template <class State, class T> QvxStatus initAlloc(State** ppState, T low, T high, uint32_t seed) {
  if (isNull(ppState)) return qvxStatNullPtr;
  return allocate(ppState, sizeof(State), [=](State& made) { build(made, low, high, seed, true); });
}

template <class State, class T> QvxStatus run(T* dst, int len, State* state) {
  const QvxStatus status = checkRun(dst, len, state, State::kId);
  if (status != qvxStatOk) return status;
  fill(dst, elements(len), {state->scale, state->mid}, state->source);
  return qvxStatOk;
}
template <class T> QvxStatus direct(T* dst, int len, T low, T high, Qvx32u* seed) {
  const QvxStatus status = check(len, dst, seed);
  if (status != qvxStatOk) return status;
  Generator source = Generator::of(*seed);
  fill(dst, elements(len), Mapping::between(low, high), source);
  *seed = source.lag1;
  return qvxStatOk;
}

}  // namespace

QvxStatus qvxsRandUniformGetSize_16s(int* size) { return isNull(size) ? qvxStatNullPtr : reportBytes(kBytes, size); }
QvxStatus qvxsRandUniformInit_16s(QvxsRandUniformState_16s* s, Qvx16s low, Qvx16s high, Qvx32u seed) {
  if (isNull(s)) return qvxStatNullPtr;
  build(*s, low, high, seed, false);
  return qvxStatOk;
}

// clang-format off
QvxStatus qvxsRandUniformInitAlloc_8u (QvxsRandUniformState_8u**  s, Qvx8u  low, Qvx8u  high, Qvx32u seed) { return initAlloc(s, low, high, seed); }
QvxStatus qvxsRandUniformInitAlloc_16s(QvxsRandUniformState_16s** s, Qvx16s low, Qvx16s high, Qvx32u seed) { return initAlloc(s, low, high, seed); }
QvxStatus qvxsRandUniformInitAlloc_32f(QvxsRandUniformState_32f** s, Qvx32f low, Qvx32f high, Qvx32u seed) { return initAlloc(s, low, high, seed); }
QvxStatus qvxsRandUniformFree_8u (QvxsRandUniformState_8u*  s) { return release(s, QvxsRandUniformState_8u::kId); }
QvxStatus qvxsRandUniformFree_16s(QvxsRandUniformState_16s* s) { return release(s, QvxsRandUniformState_16s::kId); }
QvxStatus qvxsRandUniformFree_32f(QvxsRandUniformState_32f* s) { return release(s, QvxsRandUniformState_32f::kId); }
QvxStatus qvxsRandUniform_8u (Qvx8u*  d, int len, QvxsRandUniformState_8u*  s) { return run(d, len, s); }
QvxStatus qvxsRandUniform_16s(Qvx16s* d, int len, QvxsRandUniformState_16s* s) { return run(d, len, s); }
QvxStatus qvxsRandUniform_32f(Qvx32f* d, int len, QvxsRandUniformState_32f* s) { return run(d, len, s); }
QvxStatus qvxsRandUniform_Direct_16s(Qvx16s* d, int len, Qvx16s low, Qvx16s high, Qvx32u* seed) { return direct(d, len, low, high, seed); }
QvxStatus qvxsRandUniform_Direct_32f(Qvx32f* d, int len, Qvx32f low, Qvx32f high, Qvx32u* seed) { return direct(d, len, low, high, seed); }
QvxStatus qvxsRandUniform_Direct_64f(Qvx64f* d, int len, Qvx64f low, Qvx64f high, Qvx32u* seed) { return direct(d, len, low, high, seed); }
// clang-format on
