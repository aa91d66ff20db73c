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
#include "frame/unroll.h"
#include "math/sin_cos.h"

namespace qvx {

// Angles are counted in turns, which are reduced without loss.
template <class V> V fractionOfTurns(V turns) { return turns - hn::Round(turns); }

template <class T> class SpacedAngles {
 public:
  static constexpr size_t kLanes = kVectorBytes / sizeof(T);
  static constexpr size_t kWide = kVectorBytes / sizeof(double);
  // Samples between one computed pair and the next. In doubles the error of every rotation counts.
  static constexpr size_t kBlock = sizeof(T) == sizeof(float) ? 4096 : 512;
  static constexpr size_t kFew = 4 * kWide;  // up to here it is cheaper to compute each

  // step: turns from one sample to the next. scale: what the results are multiplied by.
  SpacedAngles(double step, double scale) {
    const Lanes<double, kWide> wide;
    const auto count = hn::Iota(wide, 0);
    for (size_t k = 0; k < kLanes; k += kWide) {
      const auto angle = (count + hn::Set(wide, static_cast<double>(k))) * hn::Set(wide, step);
      const auto lanes = sinCosOfTurns<kDigits>(fractionOfTurns(angle));
      store(convertLanes<T>(lanes.sine * hn::Set(wide, scale)), Lanes<T, kWide>(), sines_ + k);
      store(convertLanes<T>(lanes.cosine * hn::Set(wide, scale)), Lanes<T, kWide>(), cosines_ + k);
    }
    vectorStep_ = kLanes * step;
    const auto rotation = sinCosOfTurns(fractionOfTurns(hn::Set(wide, kWide * vectorStep_)));
    stepSine_ = hn::GetLane(rotation.sine);
    stepCosine_ = hn::GetLane(rotation.cosine);
  }

  // put(at, sines, cosines) for whole vectors of `count` samples, kBlock at most, from the angle `start` on, and
  // put(at, sines, cosines, rest) for the last one, of which only `rest` lanes count.
  template <class Put> [[gnu::always_inline]] void forEachVector(double start, size_t count, Put put) const {
    const Lanes<double, kWide> wide;
    const Lanes<T, kLanes> d;
    // First angles are computed 8 rotations before they are used: broadcasting one that has only just been stored waits for the
    // store, and 4096 samples take 1.2 times as long in AVX-512.
    alignas(64) T firstSines[kBlock / kLanes];
    alignas(64) T firstCosines[kBlock / kLanes];
    const auto firsts = hn::MulAdd(hn::Iota(wide, 0), hn::Set(wide, vectorStep_), hn::Set(wide, start));
    auto first = sinCosOfTurns<kDigits>(fractionOfTurns(firsts));
    const auto byS = hn::Set(wide, stepSine_);
    const auto byC = hn::Set(wide, stepCosine_);
    size_t made = 0;
    const auto makeFirsts = [&]() __attribute__((always_inline)) {
      store(convertLanes<T>(first.sine), Lanes<T, kWide>(), firstSines + made);
      store(convertLanes<T>(first.cosine), Lanes<T, kWide>(), firstCosines + made);
      first = {hn::MulAdd(first.sine, byC, first.cosine * byS), hn::NegMulAdd(first.sine, byS, first.cosine * byC)};
      made += kWide;
    };
    while (made < kAhead && made * kLanes < count) makeFirsts();
    const auto laneSines = load(d, sines_);
    const auto laneCosines = load(d, cosines_);
    const auto putNext = [&](size_t k, auto... rest) __attribute__((always_inline)) {
      const auto s = hn::Set(d, firstSines[k]);
      const auto c = hn::Set(d, firstCosines[k]);
      put(k * kLanes, hn::MulAdd(s, laneCosines, c * laneSines), hn::NegMulAdd(s, laneSines, c * laneCosines), rest...);
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

  // The same for a few samples, each computed.
  template <class Put> [[gnu::always_inline]] static void few(double start, double step, double scale, size_t count, Put put) {
    const Lanes<double, kWide> wide;
    const auto putNext = [&](size_t at, auto... rest) __attribute__((always_inline)) {
      const auto number = hn::Iota(wide, 0) + hn::Set(wide, static_cast<double>(at));
      const auto v = sinCosOfTurns<kDigits>(fractionOfTurns(hn::MulAdd(number, hn::Set(wide, step), hn::Set(wide, start))));
      put(at, convertLanes<T>(v.sine * hn::Set(wide, scale)), convertLanes<T>(v.cosine * hn::Set(wide, scale)), rest...);
    };
    eachVector<kWide>(count, putNext);
  }

 private:
  // Doubles, of which a block takes eight rotations, gain nothing by more than one ahead.
  static constexpr size_t kAhead = (sizeof(T) == sizeof(float) ? 8 : 1) * kWide;
  static constexpr int kDigits = sizeof(T) == sizeof(float) ? 24 : 53;
  alignas(64) T sines_[kLanes];
  alignas(64) T cosines_[kLanes];
  double vectorStep_;
  double stepSine_;
  double stepCosine_;
};

}  // namespace qvx
