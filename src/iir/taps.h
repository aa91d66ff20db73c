// Normalises the caller's taps: all are multiplied by 1 / a0, which is computed once.
#pragma once

#include "iir/record.h"

namespace qvx::iir {

// Multiplication by 1 / a0; a complex reciprocal is computed in, and rounded to, P.
template <class P, class T> auto normaliser(T a0) {
  if constexpr (kParts<T> == 1) {
    return [reciprocal = T(1) / a0](T tap) { return tap * reciprocal; };
  } else {
    const auto square = static_cast<P>(Qvx64f{a0.re} * a0.re + Qvx64f{a0.im} * a0.im);
    const auto re = static_cast<P>(Qvx64f{a0.re} / square);
    const auto im = static_cast<P>(-Qvx64f{a0.im} / square);
    return [reciprocal = Qvx64fc{re, im}](T tap) {
      const Qvx64fc v = product(Qvx64fc{tap.re, tap.im}, reciprocal);
      return number<T>(v.re, v.im);
    };
  }
}

// Sets a section's tables.
template <class T> void setSection(Record<T>& s, size_t i, const T* t) {
  if (s.sections != nullptr) s.sections[i].set(t);
  if constexpr (kParts<T> == 1) {
    if (s.cascade.isThere()) s.cascade.set(i, t);
  }
}
// A section that would lose accuracy by look-ahead makes the whole filter go in lanes. There zeros come before the first sample:
// a filter with a table that would turn them into NaN goes sample by sample.
template <class T> How howOf(const Record<T>& s) {
  const auto looksAhead = [](const Section<T>& section) { return section.looksAhead; };
  if (s.sections != nullptr && std::all_of(s.sections, s.sections + std::max(s.numBq, 1), looksAhead)) return How::kLookingAhead;
  return s.cascade.isThere() && s.cascade.isFinite() ? How::kInLanes : How::kPlain;
}

template <class T> QvxStatus setDirectTaps(Record<T>& s, const T* taps) {
  const auto n = static_cast<size_t>(s.order);
  const T a0 = taps[n + 1];
  if (isZero(a0)) return qvxStatDivByZero;
  const auto normalised = normaliser<Qvx64f>(a0);
  for (size_t i = 0; i <= n; ++i) s.taps[i] = normalised(taps[i]);
  for (size_t i = 1; i <= n; ++i) s.taps[n + i] = normalised(taps[n + 1 + i]);
  if (s.direct != nullptr) s.direct->set(s.taps);
  if (s.sections != nullptr) {
    const T zero{};
    const T first[5] = {s.taps[0], s.taps[1], zero, s.taps[2], zero};
    setSection(s, 0, n == 1 ? first : s.taps);
  }
  return qvxStatOk;
}

// Sections with a0 = 0 are refused, also those with b0 = 0, except in the direct form I of 32-bit memory, which takes the taps as
// they are where a0 is 1.
template <class T> QvxStatus setSectionTaps(Record<T>& s, const T* taps) {
  const bool hasTables = s.sections != nullptr || s.cascade.isThere();
  const bool asTheyAre = !hasTables;
  for (int i = 0; i < s.numBq; ++i, taps += 6) {
    const T a0 = taps[3];
    if (isZero(a0) || (!asTheyAre && isZero(taps[0]))) return qvxStatDivByZero;
    T* t = s.taps + 5 * i;
    const auto normalised = normaliser<Part<T>>(a0);
    const bool isNormal = asTheyAre && realPart(a0) == 1;
    for (int k = 0; k < 3; ++k) t[k] = isNormal ? taps[k] : normalised(taps[k]);
    for (int k = 3; k < 5; ++k) t[k] = isNormal ? taps[k + 1] : normalised(taps[k + 1]);
    if (hasTables) setSection(s, static_cast<size_t>(i), t);
  }
  return qvxStatOk;
}

template <class T> QvxStatus setTaps(Record<T>& s, const T* taps) {
  const QvxStatus status = s.isDirect() ? setDirectTaps(s, taps) : setSectionTaps(s, taps);
  s.how = howOf(s);
  return status;
}

// Converts integer taps for the time of a call; with(taps) does the rest of it.
template <class Taps, class With> QvxStatus withFloatTaps(const Taps* taps, int64_t count, int tapsFactor, With with) {
  using T = std::conditional_t<kParts<Taps> == 1, Qvx32f, Qvx32fc>;
  const Block block(count * int64_t{sizeof(T)});
  if (!block) return qvxStatNoMem;
  auto* converted = reinterpret_cast<T*>(block.get());
  qvxsConvert_32s32f_Sfs(parts(taps), parts(converted), static_cast<int>(count * int64_t{kParts<T>}), tapsFactor);
  return with(converted);
}

// Taps of n sections, or of order n.
constexpr int64_t tapsOf(Form form, int n) { return form == Form::kDirect ? 2 * int64_t{n} + 2 : 6 * int64_t{n}; }

}  // namespace qvx::iir
