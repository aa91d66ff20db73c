// A section of second order, a vector of outputs at a time.
//
// The recursion 1 / A(z) takes 8 cycles of latency an output. With A(-z) in numerator and denominator it is A(-z) / B(z^2): the
// denominator recurs only every second output, and the numerator is one shift and one multiplication for each power of z. Doubled
// until the recursion reaches back by a whole vector, each lane has a recursion of its own, and what bounds the loop is no longer
// latency but the 17 (AVX-512) multiplications and shifts of a vector.
//
// Each doubling adds poles opposite to the true ones, which A(-z) cancels, and rounding noise at both. Where true and added poles
// lie close (angles near a multiple of pi over the vector's length, radii near 1), noise from before the last step sees both. So
// 32-bit filters compute in 64-bit floats, which leaves 1e-5 of the plain loop's error in the worst case, and 64-bit filters
// estimate the noise. Where there is much of it, the doubling restarts with every vector, and the
// last output and its difference from the one before bring the past in, at the price of 16 cycles of latency. The last two
// outputs as such would come in 9 times and -8 times at low frequencies, and be rounded at that size; the same holds for the
// delay line. Restarting needs fused multiplications: without them the error was up to 13 times the plain loop's, with them 3.5
// times.
#pragma once

#include "iir/number.h"

namespace qvx::iir {

template <class T> struct Section {
  static constexpr size_t kParts = qvx::iir::kParts<T>;
  static constexpr size_t kElements = kLanes / kParts;  // of a vector
  static constexpr size_t kSteps = kElements == 8 ? 3 : kElements == 4 ? 2 : kElements == 2 ? 1 : 0;
  static constexpr bool kIsExact = sizeof(Part<T>) == 8;
  static constexpr bool kMayRestart = kIsExact && kFuses;
  using Number = Coefficient<kParts>;

  T taps[5];  // b0, b1, b2, a1, a2
  bool looksAhead;
  bool carries;  // the doubling runs on from vector to vector; else it restarts
  Number b[3];
  Number steps[kSteps + 1][2];  // of A(-z), A1(-z^2) ...; the last is not used
  Number a[2];                  // of the recursion over a whole vector, negated
  // How each place of a vector depends on the last output before it and on the step to that output: its difference from the
  // output before, or their sum where signs alternate. The same for the second value of the delay line and the step from it to
  // the first. In twice their digits: rounded, the one leads to errors of up to 56 times the plain loop's at radius 0.9999, the
  // other to 17 times in blocks of 8 samples.
  struct Influence {
    Number last[kElements], step[kElements], lastRest[kElements], stepRest[kElements];

    void set(size_t i, Exact<T> ofLast, Exact<T> ofStep) {
      last[i] = coefficient(ofLast);
      lastRest[i] = remainder(ofLast, last[i]);
      step[i] = coefficient(ofStep);
      stepRest[i] = remainder(ofStep, step[i]);
    }
  };
  Lane sign;
  Influence ofOutputs, ofLine;

  void set(const T* t) {
    for (size_t i = 0; i < 5; ++i) taps[i] = t[i];
    for (size_t i = 0; i < 3; ++i) b[i] = coefficient(exact(t[i]));
    Exact<T> a1 = exact(t[3]);
    Exact<T> a2 = exact(t[4]);
    Noise noise(a1, a2);
    for (size_t i = 0; i < kSteps; ++i) {
      steps[i][0] = coefficient(-a1);
      steps[i][1] = coefficient(a2);
      noise.above(a1, a2);
      const Exact<T> next = a2 + a2 - a1 * a1;
      a2 = a2 * a2;
      a1 = next;
      noise.below(a1, a2);
    }
    a[0] = coefficient(-a1);
    a[1] = coefficient(-a2);
    carries = !kIsExact || kElements == 1 || noise.isLow(a1, a2);
    if constexpr (kMayRestart) setInfluence(exact(t[3]), exact(t[4]));
    // Zeros before the first sample meet all taps, and powers of those of the feedback, up to the eighth: none may be infinite.
    const bool isBounded = std::norm(exact(t[3])) + std::norm(exact(t[4])) < 0x1p80L;
    looksAhead = (carries || kMayRestart) && isBounded && areFinite(parts(t), 5 * kParts);
  }

  // Filters n numbers from src to dst. delayLine: that of the transposed direct form before them. lastOutputs: the last two, the
  // older first, as they were before dst rounds them.
  template <class Src, class Dst> void run(Src src, Dst dst, size_t n, const Lane* delayLine, Lane* lastOutputs) const {
    if constexpr (kMayRestart) {
      if (!carries) return run<false>(src, dst, n, delayLine, lastOutputs);
    }
    run<true>(src, dst, n, delayLine, lastOutputs);
  }

 private:
  template <bool kCarries, class Src, class Dst>
  [[gnu::flatten]] void run(Src src, Dst dst, size_t n, const Lane* delayLine, Lane* lastOutputs) const {
    const Factor<kParts> b0 = factor(b[0]), b1 = factor(b[1]), b2 = factor(b[2]);
    const auto back1 = kCarries ? factor(a[0]) : factors<kParts>(ofOutputs.last);
    const auto back2 = kCarries ? factor(a[1]) : factors<kParts>(ofOutputs.step);
    [[maybe_unused]] const auto rest1 = factors<kParts>(ofOutputs.lastRest);
    [[maybe_unused]] const auto rest2 = factors<kParts>(ofOutputs.stepRest);
    const V signs = hn::Set(Wide(), sign);
    const V zero = hn::Zero(Wide());
    V before = zero;
    V beforeStep[kSteps + 1];
    for (V& v : beforeStep) v = zero;
    V y = zero;
    V yBefore = zero;
    // What the delay line adds to the inputs of the first vectors, or to the outputs of the first one. In variables: an array
    // would go through memory, and each vector wait 30 cycles for its own stores.
    V lineInput = zero;
    V lineInput2 = zero;
    V lineOutput = zero;
    if constexpr (kCarries) {
      lineInput = firstOfLine(delayLine);
      if constexpr (kLanes < 2 * kParts) lineInput2 = load(Wide(), delayLine + 2 * kParts - kLanes);
    } else {
      const V second = everywhere<kParts>(delayLine + kParts);
      const auto p1 = multiplied<kParts>(second),
                 p2 = multiplied<kParts>(hn::MulAdd(signs, second, everywhere<kParts>(delayLine)));
      lineOutput = plusProduct(times(factors<kParts>(ofLine.stepRest), p2), factors<kParts>(ofLine.step), p2) +
                   plusProduct(times(factors<kParts>(ofLine.lastRest), p1), factors<kParts>(ofLine.last), p1);
    }
    const auto step = [&](V in) {
      V v = plusProduct(lineInput, b0, multiplied<kParts>(in));
      lineInput = lineInput2;
      lineInput2 = zero;
      v = plusProduct(v, b1, multiplied<kParts>(delayed<kParts>(before, in)));
      if constexpr (2 * kParts <= kLanes) {
        v = plusProduct(v, b2, multiplied<kParts>(delayed<2 * kParts>(before, in)));
      } else {
        v = plusProduct(v, b2, multiplied<kParts>(beforeStep[kSteps]));
        beforeStep[kSteps] = before;
      }
      before = in;
      v = doubled<kCarries, 0>(v, beforeStep);
      if constexpr (kCarries) {
        const auto p1 = multiplied<kParts>(y), p2 = multiplied<kParts>(yBefore);
        yBefore = y;
        y = plusProduct(plusProduct(v, back2, p2), back1, p1);
      } else {
        const V last = everyNumber<kParts, kElements - 1>(y);
        const V last2 = kElements == 1 ? yBefore : everyNumber < kParts, kElements < 2 ? 0 : kElements - 2 > (y);
        const auto p1 = multiplied<kParts>(last), p2 = multiplied<kParts>(hn::NegMulAdd(signs, last2, last));
        yBefore = y;
        y = plusProduct(plusProduct(v, rest2, p2), back2, p2) + plusProduct(plusProduct(lineOutput, rest1, p1), back1, p1);
        lineOutput = zero;
      }
    };
    const size_t end = n * kParts;
    size_t i = 0;
    for (; i + kLanes <= end; i += kLanes) {
      step(convertLanes<Lane>(src.template get<kLanes>(i)));
      dst.template put<kLanes>(y, i);
    }
    const size_t rest = end - i;
    if (rest > 0) {
      step(convertLanes<Lane>(src.template get<kLanes>(i, rest)));
      dst.template put<kLanes>(y, i, rest);
    }
    Lane last[3 * kLanes] = {};
    store(yBefore, Wide(), last + kLanes);
    store(y, Wide(), last + 2 * kLanes);
    const Lane* lastEnd = last + (rest > 0 ? 2 * kLanes + rest : 3 * kLanes);
    std::copy_n(lastEnd - 2 * kParts, 2 * kParts, lastOutputs);
  }

  template <bool kCarries, size_t kStep> [[gnu::always_inline]] V doubled(V v, V* beforeStep) const {
    if constexpr (kStep == kSteps) {
      return v;
    } else {
      constexpr size_t kBack = kParts << kStep;
      const V last = kCarries ? beforeStep[kStep] : hn::Zero(Wide());
      if constexpr (kCarries) beforeStep[kStep] = v;
      V w = v;
      if constexpr (kCarries || 2 * kBack < kLanes)
        w = plusProduct(w, factor(steps[kStep][1]), multiplied<kParts>(delayed<2 * kBack>(last, v)));
      w = plusProduct(w, factor(steps[kStep][0]), multiplied<kParts>(delayed<kBack>(last, v)));
      return doubled<kCarries, kStep + 1>(w, beforeStep);
    }
  }

  // With the impulse response h of 1 / A, the last output adds h one place on, the output before it -a2 * h; the delay line adds
  // h and h one place back.
  void setInfluence(Exact<T> a1, Exact<T> a2) {
    sign = std::real(a1) > 0 ? -1 : 1;
    Exact<T> before = 0;
    Exact<T> h = 1;
    for (size_t i = 0; i < kElements; ++i) {
      const Exact<T> next = -a1 * h - a2 * before;
      ofOutputs.set(i, next - Exact<T>(sign) * a2 * h, Exact<T>(sign) * a2 * h);
      ofLine.set(i, before - Exact<T>(sign) * h, h);
      before = h;
      h = next;
    }
  }

  // Two lanes from registers of their own: loaded as one vector, they would wait for the two stores that have just written them.
  static V firstOfLine(const Lane* d) {
    if constexpr (kParts == 1)
      return hn::IfThenElseZero(hn::FirstN(Wide(), 2), hn::InterleaveLower(hn::Set(Wide(), d[0]), hn::Set(Wide(), d[1])));
    else return loadFirst(Wide(), d, std::min(kLanes, 2 * kParts));
  }

  // Estimates the variance of the rounding noise for white input. Each doubling adds the energy of the impulse response of its
  // poles times the gain of what goes in.
  struct Noise {
    // Times the energy of the response of 1 / A. Over 180000 filters with radii to 0.9999, in blocks of 8 samples, 16 or 3000,
    // the error was up to 3.4 times the plain loop's, but for one of 4.1; with up to 12 times the energy 5.6, with 32 10.
    static constexpr long double kMost = 6;
    long double plain;
    long double input = 1;
    long double all = 0;

    Noise(Exact<T> a1, Exact<T> a2) : plain(energy(a1, a2)) {}
    void above(Exact<T> a1, Exact<T> a2) { input *= 1 + std::norm(a1) + std::norm(a2); }
    void below(Exact<T> a1, Exact<T> a2) { all += input * energy(a1, a2); }
    bool isLow(Exact<T> a1, Exact<T> a2) const {
      const long double total = all + plain * energy(a1, a2);
      return plain > 0 && total > 0 && total <= kMost * plain;
    }
    // The energy of the impulse response of 1 / A, by its reflection coefficients; negative if A is not stable.
    static long double energy(Exact<T> a1, Exact<T> a2) {
      const long double rest2 = 1 - std::norm(a2);
      const Exact<T> k = (a1 - a2 * conjugate(a1)) / rest2;
      const long double rest1 = 1 - std::norm(k);
      return rest2 > 0 && rest1 > 0 ? 1 / (rest2 * rest1) : -1;
    }
  };
};

}  // namespace qvx::iir
