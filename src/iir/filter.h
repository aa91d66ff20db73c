// Filters by blocks: samples are widened into working memory on the stack, filtered there by all sections, and rounded once when
// they are stored.
#pragma once

#include "frame/power.h"
#include "frame/to_int.h"
#include "iir/init.h"
#include "iir/recursion.h"

namespace qvx::iir {

// Lanes of a block: 4 KiB, which leaves most of the first-level cache to the caller.
inline constexpr size_t kBlockLanes = 512;

// The numbers from which kernels that take a vector at a time pay: for fewer, their start takes longer than the samples.
inline constexpr size_t kWorthLookingAhead = 8;

// ---- in and out

template <class Data, class P> void loadBlock(const Data* src, P* work, size_t lanes) {
  loop([](auto v) { return convertLanes<P>(v); }, destination(work), lanes, source(src));
}

// Outputs as samples: integers times factor, to nearest even, saturated.
template <class Data> struct Finish {
  Lane factor;
  template <class W> auto operator()(W v) const {
    using R = Part<Data>;
    if constexpr (std::is_floating_point_v<R>) {
      return convertLanes<R>(v);
    } else {
      constexpr Lane kLeast = std::numeric_limits<R>::min();
      constexpr Lane kMost = std::numeric_limits<R>::max();
      // 32-bit lanes hold 2^-126 to 2^126: all but 0 and infinities of numbers is out of range there as well.
      constexpr Lane kTiny = std::numeric_limits<LaneOf<W>>::min();
      const auto f = static_cast<LaneOf<W>>(std::clamp(factor, kTiny, 1 / kTiny));
      return convertLanes<R>(toIntNearest(clippedBelow(clippedAbove(v * same<W>(f), kMost), kLeast)));
    }
  }
};

// A destination that takes outputs and stores samples.
template <class Dst, class Data> struct Finished {
  Dst dst;
  Finish<Data> finish;

  template <size_t N, class W, class... Rest> void put(W v, size_t at, Rest... rest) const {
    dst.template put<N>(finish(v), at, rest...);
  }
};

template <class Data, class P> void storeBlock(const P* work, Data* dst, size_t lanes, Finish<Data> finish) {
  loop(finish, destination(dst), lanes, source(work));
}

// 2^-scaleFactor, finite: a shift by 1000 already saturates everything but 0.
inline Lane outputFactor(int scaleFactor) { return powerOfTwo<Lane>(-std::clamp<int64_t>(scaleFactor, -1000, 1000)); }

// ---- a block of n numbers in place

template <class T> using LaneNumber = std::conditional_t<kParts<T> == 1, Qvx64f, Qvx64fc>;
template <class To, class From> To numberOf(From v) { return number<To>(realPart(v), imaginaryPart(v)); }

// Filters n numbers, at least 2, through a section with look-ahead. d: the delay line before them, which becomes that after them.
template <class T, class Src, class Dst, class Data>
void lookAhead(const Section<T>& section, const Src* src, Dst* dst, size_t n, LaneNumber<T>* d, Finish<Data> finish) {
  using N = LaneNumber<T>;
  N t[5];
  for (size_t i = 0; i < 5; ++i) t[i] = numberOf<N>(section.taps[i]);
  N x[2] = {};
  const auto* last = parts(src + (n - 2) * (kParts<T> / kParts<Src>));
  for (size_t i = 0; i < 2 * kParts<T>; ++i) parts(x)[i] = static_cast<Lane>(last[i]);
  N y[2];
  section.run(source(src), Finished<Destination<Dst>, Data>{destination(dst), finish}, n, parts(d), parts(y));
  d[0] = sum(difference(product(t[2], x[0]), product(t[4], y[0])), difference(product(t[1], x[1]), product(t[3], y[1])));
  d[1] = difference(product(t[2], x[1]), product(t[4], y[1]));
}

// The same with a delay line of T.
template <class T, class Src, class Dst, class Data>
void runSection(const Section<T>& section, const Src* src, Dst* dst, size_t n, T* line, Finish<Data> finish) {
  LaneNumber<T> d[2] = {numberOf<LaneNumber<T>>(line[0]), numberOf<LaneNumber<T>>(line[1])};
  lookAhead(section, src, dst, n, d, finish);
  line[0] = numberOf<T>(d[0]);
  line[1] = numberOf<T>(d[1]);
}

// Converts a delay line of the direct form I to the transposed form.
template <class T, class P> void transposedLine(const T* t, const T* line, P* d) {
  d[0] = P{t[2]} * line[0] + P{t[1]} * line[1] - P{t[4]} * line[2] - P{t[3]} * line[3];
  d[1] = P{t[2]} * line[1] - P{t[4]} * line[3];
}

// A sample through a section in the direct form I whose delay line is kept in the transposed form too.
template <class T, class P> P df1Step(const P* t, P* d, T* line, P x) {
  const P y = sectionOne(t, d, x);
  line[0] = line[1];
  line[1] = static_cast<T>(x);
  line[2] = line[3];
  line[3] = static_cast<T>(y);
  return y;
}

// A section in the direct form I, in place: its delay line becomes that of the transposed form for the time of the block.
template <class T> void runDf1(const Section<T>& section, Lane* work, size_t n, T* line) {
  const T* t = section.taps;
  Lane d[2];
  transposedLine(t, line, d);
  if (section.looksAhead && n >= kWorthLookingAhead) {
    std::copy_n(work + n - 2, 2, line);
    lookAhead(section, work, work, n, d, Finish<Lane>{1});
    std::copy_n(work + n - 2, 2, line + 2);
  } else {
    const Lane wide[5] = {t[0], t[1], t[2], t[3], t[4]};
    for (size_t i = 0; i < n; ++i) work[i] = df1Step(wide, d, line, work[i]);
  }
}

// Up to kMost sections in the direct form I, all in lanes. The last two samples go through them one by one, to make the delay
// lines: these hold values between sections, which lanes do not store.
template <class T, class P> void df1InLanes(const Cascade<P>& cascade, const T* taps, T* line, P* work, size_t n) {
  const size_t sections = cascade.count(0);
  const size_t most = n >= kWorthLookingAhead && cascade.isFinite() ? n - 2 : 0;
  P d[2 * Cascade<P>::kMost];
  for (size_t k = 0; k < sections; ++k) transposedLine(taps + 5 * k, line + 4 * k, d + 2 * k);
  if (most > 0) cascade.run(work, most, d);
  for (size_t k = 0; k < sections; ++k, taps += 5, line += 4) {
    const P wide[5] = {taps[0], taps[1], taps[2], taps[3], taps[4]};
    for (size_t i = most; i < n; ++i) work[i] = df1Step(wide, d + 2 * k, line, work[i]);
  }
}

// with(line): the delay lines of the sections; a direct form up to order 2 counts as one section. The second value of order 1 is
// the zero after its line, and stays 0.
template <class T, class With> void withSectionLine(const Record<T>& s, With with) {
  if (!s.isDirect()) return with(s.line);
  T line[2] = {s.line[0], s.order == 1 ? T{} : s.line[1]};
  with(line);
  std::copy_n(line, lineValues(s), s.line);
}

// Does nothing and returns false if samples or delay line are not finite.
template <class T> bool runDirect(const Record<T>& s, Lane* work, size_t n) {
  constexpr size_t kRoom = (Direct<T>::kMostVectors + 2) * kLanes;
  const size_t lanes = lineValues(s) * kParts<T>;
  alignas(kVectorBytes) Lane d[kRoom];
  std::fill_n(d, kRoom, 0);
  loadBlock(parts(s.line), d, lanes);
  if (!areFinite(work, n * kParts<T>) || !areFinite(d, lanes)) return false;
  s.direct->run(work, n, d);
  storeBlock(d, parts(s.line), lanes, Finish<Part<T>>{1});
  return true;
}

template <class T> void runPlain(const Record<T>& s, Lane* work, size_t n) {
  auto* at = reinterpret_cast<LaneNumber<T>*>(work);
  const auto each = [&](auto one) {
    for (size_t i = 0; i < n; ++i) at[i] = numberOf<LaneNumber<T>>(one(numberOf<T>(at[i])));
  };
  if (s.isDirect()) {
    const size_t order = lineValues(s);
    if constexpr (kFuses && std::is_same_v<T, Qvx64f>) {
      if (directInRegisters(s.taps, s.line, order, at, n)) return;
    }
    constexpr bool kHasVectors = sizeof(T) < kVectorBytes;
    if (kHasVectors && n >= kWorthLookingAhead && order <= kMostStill<T>) return directStill(s.taps, s.line, order, work, n);
    return each([&](T v) { return directOne(s.taps, s.line, order, v); });
  }
  for (int k = 0; k < s.numBq; ++k) each([t = s.taps + 5 * k, d = s.line + 2 * k](T v) { return sectionOne(t, d, v); });
}

// Filters a block by any way but sections with look-ahead or in lanes.
template <class T> void runBlock(const Record<T>& s, bool isDf1, Lane* work, size_t n) {
  if constexpr (std::is_same_v<T, Qvx64f>) {
    if (isDf1) {
      const auto sections = static_cast<size_t>(s.numBq);
      if (s.how == How::kLookingAhead) {
        for (size_t k = 0; k < sections; ++k) runDf1(s.sections[k], work, n, s.line + 4 * k);
      } else {
        for (size_t k = 0; k < sections; k += Cascade<Lane>::kMost)
          df1InLanes(s.cascade.from(k), s.taps + 5 * k, s.line + 4 * k, work, n);
      }
      return;
    }
  }
  if (s.direct != nullptr && s.direct->looksAhead() && n >= kWorthLookingAhead && runDirect(s, work, n)) return;
  runPlain(s, work, n);
}

// ---- the call

template <class T, class P = Lane, class Data, class Run>
void inBlocks(const Data* src, Data* dst, size_t n, Finish<Data> finish, Run run) {
  constexpr size_t kBlock = kBlockLanes / kParts<T>;
  alignas(kVectorBytes) P work[kBlockLanes];
  while (n > 0) {
    const size_t count = std::min(n, kBlock);
    const size_t lanes = count * kParts<T>;
    loadBlock(src, work, lanes);
    run(work, count);
    storeBlock(work, dst, lanes, finish);
    src += count;
    dst += count;
    n -= count;
  }
}

// A single section filters from src to dst; of several, the first reads src and the last writes dst.
template <class T, class Data> void bySections(const Record<T>& s, const Data* src, Data* dst, size_t n, Finish<Data> finish) {
  const int last = std::max(s.numBq, 1) - 1;
  withSectionLine(s, [&](T* line) {
    if (last == 0) return runSection(s.sections[0], src, dst, n, line, finish);
    constexpr size_t kBlock = kBlockLanes / kParts<T>;
    constexpr Finish<Lane> kAsItIs{1};
    alignas(kVectorBytes) Lane work[kBlockLanes];
    for (size_t at = 0, count; at < n; at += count) {
      count = n - at <= kBlock + kWorthLookingAhead && n - at > kBlock ? (n - at) / 2 : std::min(n - at, kBlock);
      runSection(s.sections[0], src + at, work, count, line, kAsItIs);
      for (int k = 1; k < last; ++k) runSection(s.sections[k], work, work, count, line + 2 * k, kAsItIs);
      runSection(s.sections[last], work, dst + at, count, line + 2 * last, finish);
    }
  });
}

// The records of this form have no room for tables: each call makes them, one group of sections after another, for all its
// samples.
inline void filterDf1(const Record<Qvx32f>& s, const Qvx32f* src, Qvx32f* dst, size_t n) {
  using P = CascadeLane<Qvx32f>;
  using Many = Cascade<P>;
  const auto sections = static_cast<size_t>(s.numBq);
  for (size_t k = 0, count = 1; k < sections; k += count, src = dst) {
    const Qvx32f* t = s.taps + 5 * k;
    Qvx32f* line = s.line + 4 * k;
    count = 1;
    if (n < 4 * kWorthLookingAhead) {
      for (size_t i = 0; i < n; ++i) dst[i] = df1One(t, line, src[i]);
    } else if (sections - k >= Many::kFew) {
      count = std::min(sections - k, Many::kMost);
      P table[Many::tableLanes(Many::kMost)];
      Many cascade(count, table);
      for (size_t i = 0; i < count; ++i) cascade.set(i, t + 5 * i);
      inBlocks<Qvx32f, P>(src, dst, n, Finish<Qvx32f>{1}, [&](P* work, size_t m) { df1InLanes(cascade, t, line, work, m); });
    } else {
      Section<Qvx32f> section;
      section.set(t);
      inBlocks<Qvx32f>(src, dst, n, Finish<Qvx32f>{1}, [&](Lane* work, size_t m) { runDf1(section, work, m, line); });
    }
  }
}

template <class State, class Data> void filterSamples(State& s, const Data* src, Data* dst, size_t n, int scaleFactor) {
  using T = InternalOf<State>;
  const bool isDf1 = State::kMagics.df1 != 0 && s.magic == State::kMagics.df1;
  if constexpr (std::is_same_v<T, Qvx32f> && std::is_same_v<Data, Qvx32f>) {
    if (isDf1) return filterDf1(s, src, dst, n);
  }
  const Finish<Data> finish{outputFactor(scaleFactor)};
  if (!isDf1 && s.how == How::kLookingAhead && n >= kWorthLookingAhead) return bySections<T>(s, src, dst, n, finish);
  if constexpr (kParts<T> == 1) {
    if (!isDf1 && s.how == How::kInLanes && n >= kWorthLookingAhead) {
      using P = CascadeLane<T>;
      return withSectionLine(s, [&](T* line) {
        inBlocks<T, P>(src, dst, n, finish, [&](P* work, size_t count) { s.cascade.run(work, count, line); });
      });
    }
  }
  inBlocks<T>(src, dst, n, finish, [&](Lane* work, size_t count) { runBlock<T>(s, isDf1, work, count); });
}

template <class State, class Data> QvxStatus filter(const Data* src, Data* dst, int len, State* state, int scaleFactor = 0) {
  if (isNull(state) || isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  const QvxStatus status = checkState(state);
  if (status == qvxStatOk) filterSamples(*state, src, dst, elements(len), scaleFactor);
  return status;
}
template <class State, class Data> QvxStatus filter(Data* srcDst, int len, State* state, int scaleFactor = 0) {
  return filter(const_cast<const Data*>(srcDst), srcDst, len, state, scaleFactor);
}

template <class State, class Data> QvxStatus filterOne(Data src, Data* dst, State* state, int scaleFactor = 0) {
  const QvxStatus status = isNull(dst) ? qvxStatNullPtr : checkState<Takes::kAllButDf1>(state);
  if (status == qvxStatOk) filterSamples(*state, &src, dst, 1, scaleFactor);
  return status;
}

}  // namespace qvx::iir
