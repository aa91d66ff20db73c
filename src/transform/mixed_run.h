// Runs of planned passes of any factors.
#pragma once

#include "transform/mixed_plan.h"

namespace qvx::transform {

// Lanes for runs of up to half a vector, such as 8 floats after a first pass of radix 8.
template <class T> inline constexpr size_t kNarrow = kVectorBytes == 64 && sizeof(T) == 4 ? kWidest<T> / 2 : kWidest<T>;

// The passes of one radix, which is a large prime, one of kRadices or, after the first pass, of kLaterRadices.
template <class T, class Src>
void runFirstPass(size_t radix, const T* tables, Src src, Planes<T> to, size_t m, const T* twiddles) {
  if (isLargePrime(radix)) return firstPassOfMany<kManyLanes<T>>(radix, tables, src, to, m, twiddles);
  withMixedRadix(radix, [=](auto R) { firstMixedPass<R, kWidest<T>>(src, to, m, twiddles, false); });
}
template <class T>
void runMiddlePass(size_t radix, const T* tables, Planes<const T> from, Planes<T> to, size_t s, size_t m, const T* twiddles) {
  if (isLargePrime(radix)) return middlePassOfMany<kManyLanes<T>>(radix, tables, from, to, s, m, twiddles);
  if constexpr (kNarrow<T> < kWidest<T>) {
    if (s <= kNarrow<T>) return withLaterRadix(radix, [=](auto R) { middleMixedPass<R, kNarrow<T>>(from, to, s, m, twiddles); });
  }
  withLaterRadix(radix, [=](auto R) { middleMixedPass<R, kWidest<T>>(from, to, s, m, twiddles); });
}
template <class T, class Dst>
void runLastPass(size_t radix, const T* tables, Planes<const T> from, Dst dst, LastSteps steps, T factor) {
  if (isLargePrime(radix)) return lastPassOfMany<kManyLanes<T>>(radix, tables, from, dst, steps, factor);
  withLaterRadix(radix, [=](auto R) { lastMixedPass<R, kWidest<T>>(from, dst, steps, factor); });
}

// The same of Numbers: any of kLaterRadices.
template <class T, class Step> void withEnds(T sign, T factor, Step step) {
  using V = typename Numbers<T>::V;
  if (!std::signbit(sign) && factor == 1) step(InterleavedEnds<V, true>(false, 1));
  else step(InterleavedEnds<V, false>(std::signbit(sign), factor));
}
template <class T>
void runFirstPass(size_t radix, const T* tables, ConjugableNumbers<const T> src, Numbers<T> to, size_t m, const T* twiddles) {
  if (isLargePrime(radix)) return firstPassOfMany<Numbers<T>::kPoints>(radix, tables, src, to, m, twiddles);
  withEnds(src.sign, T(1), [=](const auto& ends) {
    withLaterRadix(radix, [=](auto R) { firstInterleavedPass<R>(src.p, to.p, m, twiddles, ends); });
  });
}
template <class T>
void runMiddlePass(size_t radix, const T* tables, Numbers<const T> from, Numbers<T> to, size_t s, size_t m, const T* twiddles) {
  if (isLargePrime(radix)) return middlePassOfMany<Numbers<T>::kPoints>(radix, tables, from, to, s, m, twiddles);
  withLaterRadix(radix, [=](auto R) { middleInterleavedPass<R>(from.p, to.p, s, m, twiddles); });
}
template <class T, class Dst>
void runLastPass(size_t radix, const T* tables, Numbers<const T> from, Dst dst, LastSteps steps, T factor) {
  if (isLargePrime(radix)) return lastPassOfMany<Numbers<T>::kPoints>(radix, tables, from, dst, steps, factor);
  withEnds(dst.sign, factor,
           [=](const auto& ends) { withLaterRadix(radix, [=](auto R) { lastInterleavedPass<R>(from.p, dst.p, steps, ends); }); });
}

// A short transform by two passes, with whole vectors between them. False where there are too many points.
template <class T, class Src, class Dst> bool runPadded(const MixedPlan<T>& plan, Src src, Dst dst, T factor) {
  constexpr size_t L = kWidest<T>;
  if (plan.count != 2 || plan.radix[0] > kMostPadded || plan.radix[1] > kMostPaddedRows) return false;
  alignas(64) T rows[2 * kMostPadded * kMostPaddedRows];
  const Planes<T> padded = planes(rows, rows + kMostPadded * kMostPaddedRows);
  const size_t stride = up<static_cast<int64_t>(L)>(plan.radix[0]);
  withMixedRadix(plan.radix[0], [=](auto R) { firstMixedPass<R, L>(src, padded, plan.radix[1], plan.tables, true); });
  const LastSteps steps = {.columns = plan.radix[0], .points = stride, .results = plan.radix[0], .isPadded = true};
  const T* const tables = plan.tables + (plan.radix[1] + L - 1) / L * L * (plan.radix[0] - 1U) * 2;
  runLastPass(plan.radix[1], tables, asConst(padded), dst, steps, factor);
  return true;
}

// From src to dst, which may be the same, by way of `even` and `odd`, each with room for n points as they are between passes: the
// last pass but one goes to `even`, the one before to `odd`, and so on. src is not read after the first pass, dst written by the
// last only.
template <class T, class Src, class Dst, class Between>
void runMixed(const MixedPlan<T>& plan, Src src, Dst dst, Between even, Between odd, T factor) {
  if constexpr (!kAreNumbers<Src>) {
    if (runPadded(plan, src, dst, factor)) return;
  }
  const T* tables = plan.tables;
  Between from = plan.count % 2 == 0 ? even : odd;
  Between to = plan.count % 2 == 0 ? odd : even;
  const size_t first = plan.radix[0];
  const size_t columns = isLargePrime(first) ? kManyPoints<Src> : kPointsIn<Src>;
  size_t m = plan.n / first;
  runFirstPass(first, tables, src, from, m, tables + matrixLength<T>(first));
  tables += matrixLength<T>(first) + (m + columns - 1) / columns * columns * (first - 1) * 2;
  size_t s = first;
  for (size_t pass = 1; pass + 1 < plan.count; ++pass) {
    const size_t radix = plan.radix[pass];
    m /= radix;
    runMiddlePass(radix, tables, asConst(from), to, s, m, tables + matrixLength<T>(radix));
    tables += matrixLength<T>(radix) + m * (radix - 1) * 2;
    s *= radix;
    std::swap(from, to);
  }
  runLastPass(m, tables, asConst(from), dst, LastSteps{.columns = s, .points = s, .results = s}, factor);
}

}  // namespace qvx::transform
