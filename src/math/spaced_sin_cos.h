// Sines and cosines of equally spaced angles, without a table and without computing each: two multiplications for a vector of
// them.
//
// The angle of a lane is the first angle of its vector plus a constant of the lane, so sine and cosine cost two products each.
// Those of first angles are rotated by a constant step, in doubles, and computed again every 4096 floats or 512 doubles.
//
// Error below 2^-22 of the scale in float; below 2^-48 in double (2^-46 on SSSE3, where more vectors mean more rotations). Where
// sine and cosine are both positive, nothing cancels, and the relative error of the sine is as small.
#pragma once

#include "frame/each_vector.h"
#include "frame/map.h"
#include "frame/places.h"
#include "frame/unroll.h"
#include "math/sin_cos.h"

namespace qvx {

// Angles are counted in turns, which are reduced without loss.
template <class V> V fractionOfTurns(V turns) { return turns - hn::Round(turns); }

// For turns up to an eighth: nothing to reduce or to swap, half the latency.
template <int kDigits, class V> SinCos<V> sinCosOfEighth(V turns) {
  using C = detail::SinCosNumbers<kDigits>;
  const V r = turns * same<V>(0x1.921fb54442d18p+2);
  const V z = r * r;
  const V c = hn::MulAdd(z, polynomial(z, C::kC), same<V>(-0.5));
  return {hn::MulAdd(r * z, polynomial(z, C::kS), r), hn::MulAdd(z, c, same<V>(1))};
}

// Which angles a caller asks for. kFromZero: those from 0 up to a quarter turn, in steps of which kEighth are an eighth at most:
// a call begins after 60 ns, not 85.
enum class Span { kAny, kFromZero };

template <class T, Span kSpan = Span::kAny> class SpacedAngles {
 public:
  static constexpr size_t kLanes = kVectorBytes / sizeof(T);
  static constexpr size_t kWide = kVectorBytes / sizeof(double);
  // Samples between one computed pair and the next. In doubles the error of every rotation counts.
  static constexpr size_t kBlock = sizeof(T) == sizeof(float) ? 4096 : 512;
  static constexpr size_t kFew = 4 * kWide;  // up to here it is cheaper to compute each
  static constexpr size_t kEighth = kWide * kLanes;

  // step: turns from one sample to the next. scale: what the results are multiplied by.
  SpacedAngles(double step, double scale) : vectorStep_(kLanes * step) {
    const Lanes<double, kWide> wide;
    const auto lanesFrom = [=](size_t k) __attribute__((always_inline)) {
      const auto angle = (placesOf(wide) + hn::Set(wide, static_cast<double>(k))) * hn::Set(wide, step);
      const auto v = ofSteps<kDigits>(angle);
      const auto sine = convertLanes<T>(v.sine * hn::Set(wide, scale));
      return SinCos<std::remove_const_t<decltype(sine)>>{sine, convertLanes<T>(v.cosine * hn::Set(wide, scale))};
    };
    const auto lower = lanesFrom(0);
    if constexpr (kLanes == kWide) {
      lanes_ = lower;
    } else {
      const auto upper = lanesFrom(kWide);
      const Lanes<T, kLanes> d;
      lanes_ = {hn::Combine(d, upper.sine, lower.sine), hn::Combine(d, upper.cosine, lower.cosine)};
    }
    const auto turned = ofSteps<53>(hn::Set(wide, kWide * vectorStep_));
    turnSine_ = hn::GetLane(turned.sine);
    turnCosine_ = hn::GetLane(turned.cosine);
  }

  // put(at, sines, cosines) for whole vectors of `count` samples and put(at, sines, cosines, rest) for the last one, of which
  // only `rest` lanes count. startAt(at) is the angle of a block's first sample, asked for in order. Those of the next block are
  // computed beside a block: 4096 doubles take 0.84 of the time.
  template <class StartAt, class Put> [[gnu::always_inline]] void each(size_t count, StartAt startAt, Put put) const {
    Firsts next = kSpan == Span::kFromZero ? firstsFrom<true>(0) : firstsFrom<false>(startAt(0));
    for (size_t from = 0; from < count; from += kBlock) {
      const Firsts firsts = next;
      if (from + kBlock < count) next = firstsFrom<false>(startAt(from + kBlock));
      block(
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

  // The angles of first samples, of as many vectors as a register has doubles.
  using Firsts = SinCos<Vec<Lanes<double, kWide>>>;
  template <bool kAtZero> Firsts firstsFrom(double start) const {
    const Lanes<double, kWide> wide;
    const auto turns = hn::MulAdd(placesOf(wide), hn::Set(wide, vectorStep_), hn::Set(wide, start));
    if constexpr (kAtZero) return ofSteps<kDigits>(turns);
    else return sinCosOfTurns<kDigits>(turns);
  }

  template <class Put> [[gnu::always_inline]] void block(Firsts first, size_t count, Put put) const {
    const Lanes<double, kWide> wide;
    const Lanes<T, kLanes> d;
    // First angles are computed 8 rotations before they are used: broadcasting one that has only just been stored waits for the
    // store, and 4096 samples take 1.2 times as long in AVX-512.
    alignas(64) T firstSines[kBlock / kLanes];
    alignas(64) T firstCosines[kBlock / kLanes];
    const auto byS = hn::Set(wide, turnSine_);
    const auto byC = hn::Set(wide, turnCosine_);
    size_t made = 0;
    const auto makeFirsts = [&]() __attribute__((always_inline)) {
      store(convertLanes<T>(first.sine), Lanes<T, kWide>(), firstSines + made);
      store(convertLanes<T>(first.cosine), Lanes<T, kWide>(), firstCosines + made);
      first = {hn::MulAdd(first.sine, byC, first.cosine * byS), hn::NegMulAdd(first.sine, byS, first.cosine * byC)};
      made += kWide;
    };
    while (made < kAhead && made * kLanes < count) makeFirsts();
    const auto lanes = lanes_;
    const auto putNext = [&](size_t k, auto... rest) __attribute__((always_inline)) {
      const auto s = hn::Set(d, firstSines[k]);
      const auto c = hn::Set(d, firstCosines[k]);
      put(k * kLanes, hn::MulAdd(s, lanes.cosine, c * lanes.sine), hn::NegMulAdd(s, lanes.sine, c * lanes.cosine), rest...);
    };
    const size_t whole = count / kLanes;
    size_t k = 0;
    for (; k + kWide <= whole; k += kWide) {
      if (made * kLanes < count) makeFirsts();
      unrolled<kWide>([&](auto i) __attribute__((always_inline)) { putNext(k + i); });
    }
    for (; k < whole; ++k) putNext(k);
    if (count % kLanes != 0) putNext(whole, count % kLanes);
  }

  // Doubles, of which a block takes eight rotations, gain nothing by more than one ahead.
  static constexpr size_t kAhead = (sizeof(T) == sizeof(float) ? 8 : 1) * kWide;
  static constexpr int kDigits = sizeof(T) == sizeof(float) ? 24 : 53;
  SinCos<Vec<Lanes<T, kLanes>>> lanes_;
  double vectorStep_;
  double stepSine_;
  double stepCosine_;
};

}  // namespace qvx
