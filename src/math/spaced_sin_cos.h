// Sines and cosines of equally spaced angles, without a table and without computing each: two multiplications for a vector of
// them.
//
// The angle of a lane is the first angle of its vector plus a constant of the lane, so sine and cosine cost two products each.
// Those of first angles are rotated by a constant step, in doubles, and computed again every 4096 floats or 512 to 1024 doubles.
//
// Error below 2^-22 of the scale in float; below 2^-47 in double (2^-45 on SSSE3, where more vectors mean more rotations). Where
// sine and cosine are both positive, nothing cancels, and the relative error of the sine is as small.
#pragma once

#include <array>

#include "frame/each_vector.h"
#include "frame/lane_numbers.h"
#include "frame/map.h"
#include "frame/unroll.h"
#include "math/sin_cos.h"

namespace qvx {

// Angles are counted in turns, which are reduced without loss.
template <class V> V fractionOfTurns(V turns) { return turns - shortNearest(turns); }

// For turns up to an eighth: nothing to reduce or to swap, half the latency.
template <int kDigits, class V> SinCos<V> sinCosOfEighth(V turns) {
  using C = detail::SinCosNumbers<kDigits>;
  const V r = turns * same<V>(0x1.921fb54442d18p+2);
  const V z = r * r;
  const V c = hn::MulAdd(z, polynomial(z, C::kC), same<V>(-0.5));
  return {hn::MulAdd(r * z, polynomial(z, C::kS), r), hn::MulAdd(z, c, same<V>(1))};
}

// Which angles a caller asks for. kFromZero: those from 0 up to a quarter turn, in steps of which kEighth are an eighth at most:
// a window of 1088 floats takes 0.75 of the time.
enum class Span { kAny, kFromZero };

template <class T, Span kSpan = Span::kAny> class SpacedAngles {
 public:
  static constexpr size_t kLanes = kVectorBytes / sizeof(T);
  static constexpr size_t kWide = kVectorBytes / sizeof(double);
  // Vectors to a first angle. Two halve the work of making firsts: a tone of 4096 floats takes 0.82 of the time, of doubles 0.6.
  // But then fewer of them fit an eighth of a turn, which counts in AVX-512 alone: a window of 4096 floats takes 0.92 of the time
  // in AVX2 and 0.8 in SSSE3.
  static constexpr size_t kVectors = kSpan == Span::kAny || !kHasMasks ? 2 : 1;
  static constexpr size_t kGroup = kVectors * kLanes;
  // Samples between one computed pair and the next. In doubles the error of every rotation counts.
  static constexpr size_t kBlock = sizeof(T) == sizeof(float) ? 4096 : 512 * kVectors;
  static constexpr size_t kFew = 4 * kWide;  // up to here it is cheaper to compute each
  static constexpr size_t kEighth = kWide * kGroup;

  // step: turns from one sample to the next. scale: what the results are multiplied by.
  SpacedAngles(double step, double scale) : groupStep_(hn::Set(Lanes<double, kWide>(), kGroup * step)) {
    const Lanes<double, kWide> wide;
    // Without its whole turns, so that the angles of firsts have fewer digits before the point and more after it.
    if constexpr (kSpan == Span::kAny && kDigits > 24) groupStep_ = fractionOfTurns(groupStep_);
    const auto turns = hn::OddEven(hn::Set(wide, static_cast<double>(kWide)) * groupStep_, hn::Set(wide, kWide * step));
    const Wide steps = ofSteps<53>(turns);
    const Wide next = {everyLane<0>(steps.sine), everyLane<0>(steps.cosine)};
    rotation_ = {everyLane<1>(steps.sine), everyLane<1>(steps.cosine)};
    Wide part = ofSteps<kDigits>(laneNumbersOf(wide) * hn::Set(wide, step));
    part = {part.sine * hn::Set(wide, scale), part.cosine * hn::Set(wide, scale)};
    const auto nextPart = [&]() __attribute__((always_inline)) {
      const SinCos<Vec<Lanes<T, kWide>>> made = {convertLanes<T>(part.sine), convertLanes<T>(part.cosine)};
      part = rotated(part, next);
      return made;
    };
    unrolled<kVectors>([&](auto i) __attribute__((always_inline)) {
      const auto lower = nextPart();
      if constexpr (kLanes == kWide) {
        lanes_[i] = lower;
      } else {
        const auto upper = nextPart();
        const Lanes<T, kLanes> d;
        lanes_[i] = {hn::Combine(d, upper.sine, lower.sine), hn::Combine(d, upper.cosine, lower.cosine)};
      }
    });
  }

  // put(at, sines, cosines) for whole vectors of `count` samples and put(at, sines, cosines, rest) for the last one, of which
  // only `rest` lanes count. startAt(at) is the angle of a block's first sample, asked for in order. Those of the next block are
  // computed beside a block: 4096 doubles take 0.84 of the time. kInPairs: put(at, sines, cosines) gets Pairs of vectors
  // that follow each other, as far as they go.
  template <bool kInPairs = false, class StartAt, class Put>
  [[gnu::always_inline]] void forEachVector(size_t count, StartAt startAt, Put put) const {
    Wide next = kSpan == Span::kFromZero ? firstsFrom<true>(0) : firstsFrom<false>(startAt(0));
    for (size_t from = 0; from < count; from += kBlock) {
      const Wide firsts = next;
      if (from + kBlock < count) next = firstsFrom<false>(startAt(from + kBlock));
      block<kInPairs>(
          firsts,
          std::min(count - from, kBlock), [&](size_t at, auto... v) __attribute__((always_inline)) { put(from + at, v...); });
    }
  }

  // The same for a few samples, each computed.
  template <class Put> [[gnu::always_inline]] static void few(double start, double step, double scale, size_t count, Put put) {
    const Lanes<double, kWide> wide;
    const auto putNext = [&](size_t at, auto... rest) __attribute__((always_inline)) {
      const auto number = hn::Iota(wide, 0) + hn::Set(wide, static_cast<double>(at));
      const auto v = sinCosOfTurns<kDigits>(hn::MulAdd(number, hn::Set(wide, step), hn::Set(wide, start)));
      put(at, convertLanes<T>(v.sine * hn::Set(wide, scale)), convertLanes<T>(v.cosine * hn::Set(wide, scale)), rest...);
    };
    eachVector<kWide>(count, putNext);
  }

 private:
  // Of a few steps.
  template <int kGood, class V> static SinCos<V> ofSteps(V turns) {
    if constexpr (kSpan == Span::kFromZero) return sinCosOfEighth<kGood>(turns);
    else return sinCosOfTurns<kGood>(turns);
  }

  using Wide = SinCos<Vec<Lanes<double, kWide>>>;
  static Wide rotated(Wide v, Wide by) {
    return {hn::MulAdd(v.sine, by.cosine, v.cosine * by.sine), hn::NegMulAdd(v.sine, by.sine, v.cosine * by.cosine)};
  }
  // The angles of as many groups' first samples as a register has doubles.
  template <bool kAtZero> Wide firstsFrom(double start) const {
    const Lanes<double, kWide> wide;
    const auto turns = hn::MulAdd(laneNumbersOf(wide), groupStep_, hn::Set(wide, start));
    if constexpr (kAtZero) return ofSteps<kDigits>(turns);
    else return sinCosOfTurns<kDigits>(turns);
  }

  template <bool kInPairs, class Put> [[gnu::always_inline]] void block(Wide first, size_t count, Put put) const {
    const Lanes<T, kLanes> d;
    // First angles are computed some rotations before they are used: broadcasting one that has only just been stored waits for
    // the store, and 4096 samples take 1.2 times as long in AVX-512.
    alignas(64) T firstSines[kBlock / kGroup];
    alignas(64) T firstCosines[kBlock / kGroup];
    const Wide rotation = rotation_;
    size_t made = 0;
    const auto makeFirsts = [&]() __attribute__((always_inline)) {
      store(convertLanes<T>(first.sine), Lanes<T, kWide>(), firstSines + made);
      store(convertLanes<T>(first.cosine), Lanes<T, kWide>(), firstCosines + made);
      first = rotated(first, rotation);
      made += kWide;
    };
    while (made < kAhead && made * kGroup < count) makeFirsts();
    const auto sinCosAt = [&, lanes = lanes_ ](size_t k, auto i) __attribute__((always_inline)) {
      const auto s = hn::Set(d, firstSines[k]);
      const auto c = hn::Set(d, firstCosines[k]);
      return SinCos<Vec<decltype(d)>>{hn::MulAdd(s, lanes[i].cosine, c * lanes[i].sine),
                                      hn::NegMulAdd(s, lanes[i].sine, c * lanes[i].cosine)};
    };
    const auto putNext = [&](size_t k, auto i, auto... rest) __attribute__((always_inline)) {
      const auto v = sinCosAt(k, i);
      put(k * kGroup + i * kLanes, v.sine, v.cosine, rest...);
    };
    const auto putGroup = [&](size_t k) __attribute__((always_inline)) {
      unrolled<kVectors>([&](auto i) __attribute__((always_inline)) { putNext(k, i); });
    };
    const size_t whole = count / kGroup;
    size_t k = 0;
    for (; k + kWide <= whole; k += kWide) {
      if (made * kGroup < count) makeFirsts();
      if constexpr (kInPairs) {
        const auto sinCosOf = [&](auto v) __attribute__((always_inline)) {
          return sinCosAt(k + v / kVectors, std::integral_constant<size_t, v % kVectors>());
        };
        unrolled<kWide * kVectors / 2>([&](auto i) __attribute__((always_inline)) {
          const auto first = sinCosOf(std::integral_constant<size_t, 2 * i>());
          const auto second = sinCosOf(std::integral_constant<size_t, 2 * i + 1>());
          using Two = Pair<Vec<decltype(d)>>;
          put(k * kGroup + 2 * i * kLanes, Two{first.sine, second.sine}, Two{first.cosine, second.cosine});
        });
      } else {
        unrolled<kWide>([&](auto i) __attribute__((always_inline)) { putGroup(k + i); });
      }
    }
    for (; k < whole; ++k) putGroup(k);
    unrolled<kVectors>([&](auto i) __attribute__((always_inline)) {
      const size_t before = whole * kGroup + i * kLanes;
      if (before + kLanes <= count) putNext(whole, i);
      else if (before < count) putNext(whole, i, count - before);
    });
  }

  // Doubles, of which a block takes eight rotations, gain nothing by more than one ahead.
  static constexpr size_t kAhead = (sizeof(T) == sizeof(float) ? 8 / kVectors : 1) * kWide;
  static constexpr int kDigits = sizeof(T) == sizeof(float) ? 24 : 53;
  std::array<SinCos<Vec<Lanes<T, kLanes>>>, kVectors> lanes_;
  Vec<Lanes<double, kWide>> groupStep_;
  Wide rotation_;
};

}  // namespace qvx
