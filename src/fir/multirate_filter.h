// Filtering with a multi-rate record.
#pragma once

#include "convolution/transpose.h"
#include "fir/multirate.h"

namespace qvx::fir {

// Samples into the rows, from the place of a call's first on.
template <class C, class T> void deal(const MultirateRecord<C>& record, const T* src, size_t periods) {
  const size_t down = record.rowCount();
  const auto stride = static_cast<size_t>(record.stride);
  C* const rows = record.rows + record.next();
  periods *= static_cast<size_t>(record.rowLen);
  if constexpr (std::is_same_v<C, T>) {
    if (down == 1) std::copy_n(src, periods, rows);
    else transposeElements(src, down, periods, down, rows, stride);
  } else {
    if (down == 1) return toKernel(src, periods, rows);
    C some[4096 / sizeof(C)];
    const size_t columns = std::min(down, std::size(some));
    for (size_t n, from = 0; from < periods; from += n) {
      n = std::min(std::size(some) / columns, periods - from);  // 1 if a period is more than fits
      for (size_t at = 0; at < down; at += columns) {
        const size_t width = std::min(columns, down - at);
        toKernel(src + from * down + at, n * width, some);
        transposeElements(some, width, n, width, rows + at * stride + from, stride);
      }
    }
  }
}

// Makes room for some periods, at most a block.
template <class C> void makeRoom(MultirateRecord<C>& record, size_t periods) {
  const auto done = static_cast<size_t>(record.done);
  if (done + periods <= static_cast<size_t>(record.block)) return;
  const auto history = static_cast<size_t>(record.history);
  for (size_t i = 0; i < record.rowCount(); ++i) {
    C* const row = record.row(i);
    const C* const last = row + done * static_cast<size_t>(record.rowLen);
    if (history > 4) moveVectors(last, history, row);
    else std::copy_n(last, history, row);
  }
  record.done = 0;
}

// The branches of a filter one after another, each over the samples of a block.
template <class R> class Branches {
 public:
  using C = typename R::Kernel;

  Branches(R& record, size_t periods, Call call, int64_t places)
      : record_(record), periods_(periods), call_(call), places_(places), p_(record.branches), branch_(record.ratio.branch()) {
    x_ = {record.rows, static_cast<size_t>(record.stride), static_cast<size_t>(record.ratio.down),
          static_cast<size_t>(record.firstRow), static_cast<size_t>(record.firstAt + record.done)};
    if constexpr (kHasSpectra<R>) {
      bySpectra_ = !isNull(record.spectra) && record.spectra->takes(static_cast<int64_t>(periods));
      if (bySpectra_) record.spectra->transformRows(record.rows + record.done, record.stride, static_cast<int64_t>(periods));
    }
  }

  // What the branch gives for each period.
  void next(C* sums) {
    if constexpr (kHasSpectra<R>) {
      if (bySpectra_) return record_.spectra->filter(number_++, static_cast<int64_t>(periods_), sums);
    }
    const Ratio& q = record_.ratio;
    const auto taps = static_cast<size_t>(q.taps);
    if constexpr (!std::is_integral_v<Part<C>>) {
      convolve(x_, p_, taps, periods_, sums, call_);
    } else if (record_.isPaired) {
      convolve(x_, p_, taps, periods_, sums, places_);
    } else {
      for (size_t i = 0; i < periods_; ++i) sums[i] = scaledSumAt(static_cast<int64_t>(i));
    }
    if (++number_ == q.up) return;
    if (number_ == 1) step_ = {q.down / q.up, q.down % q.up}, branchLen_ = branchLen(record_);
    p_ += branchLen_;
    const int64_t before = branch_.sample;
    branch_.advance(step_, q.up);
    for (x_.row += static_cast<size_t>(branch_.sample - before); x_.row >= x_.count; x_.row -= x_.count) ++x_.at;
  }

 private:
  // Complex integers, of which one product at least does not fit the multiplication of pairs.
  C scaledSumAt(int64_t period) const {
    const Ratio& q = record_.ratio;
    uint32_t re = 0;
    uint32_t im = 0;
    const auto product = [](int32_t a, int32_t b) { return static_cast<uint32_t>(a * b); };
    if constexpr (PartsOf<C>::kCount == 2) {
      for (int64_t t = 0; t < q.taps; ++t) {
        const C h = q.tapOf(record_.shortTaps, record_.tapsLen, branch_.tap, t);
        const C x = *record_.sample(branch_.sample - q.taps + 1 + t + period * q.down);
        re += product(h.re, x.re) - product(h.im, x.im);
        im += product(h.re, x.im) + product(h.im, x.re);
      }
      return {scaledSum(static_cast<int32_t>(re), places_), scaledSum(static_cast<int32_t>(im), places_)};
    }
    return {};
  }

  R& record_;
  size_t periods_;
  Call call_;
  int64_t places_;
  Dealt<C> x_;
  const typename R::Branches* p_;
  Branch step_ = {};  // from a branch to the next, and so many taps; set where there is a second one
  int64_t branchLen_ = 0;
  Branch branch_;
  bool bySpectra_ = false;
  int64_t number_ = 0;
};

template <class R> Lanewise<typename R::Kernel> lanewise(const R& record) {
  using L = Lanewise<typename R::Kernel>;
  const Ratio& q = record.ratio;
  return {record.groups,
          record.groupCount,
          record.order,
          reinterpret_cast<const typename L::Tap*>(record.branches),
          L::steps(q.taps),
          q.up,
          q.down};
}

// make(y) puts `count` outputs of the kernel's type, kMost at most; dst takes them as they are, or as finish(y, count, dst) makes
// them.
template <class C, size_t kMost, class T, class Make, class Finish>
void putOutputs(T* dst, size_t count, Make make, Finish finish) {
  if constexpr (std::is_same_v<C, T>) {
    make(dst);
  } else {
    C outputs[kMost];
    make(outputs);
    finish(outputs, count, dst);
  }
}

// The outputs of all branches, each of which branches.next(sums) gives for some periods, in their order.
template <class C, size_t kMost, class Branches, class T, class Finish>
[[gnu::always_inline]] inline void joinBranches(Branches& branches, size_t up, size_t periods, T* dst, Finish finish) {
  if (up == 1)
    return putOutputs<C, kMost>(
        dst, periods, [&](C* y) { branches.next(y); }, finish);
  C sums[kMost];
  const size_t batch = up * periods <= std::size(sums) ? up : std::size(sums) / periods;
  for (size_t n, from = 0; from < up; from += n) {
    n = std::min(batch, up - from);
    for (size_t i = 0; i < n; ++i) branches.next(sums + i * periods);
    if constexpr (std::is_same_v<C, T>) {
      transposeElements(sums, periods, n, periods, dst + from, up);
    } else {
      T outputs[std::size(sums)];
      finish(sums, n * periods, outputs);
      transposeElements(outputs, periods, n, periods, dst + from, up);
    }
  }
}

// ---- outputs one by one

template <class C> bool takesLine(const MultirateRecord<C>& record, size_t periods) {
  return !isNull(record.line) && periods <= static_cast<size_t>(record.linePeriods);
}

// What is kept between calls, from the rows to the line and back.
template <class C> [[gnu::noinline]] void moveIntoLine(MultirateRecord<C>& record) {
  const auto history = static_cast<size_t>(record.history);
  const size_t down = record.rowCount();
  transposeElements(record.rows + record.done, static_cast<size_t>(record.stride), down, history, record.line, down);
  record.lineDone = 0;
  record.isInLine = true;
}
template <class C> [[gnu::noinline]] void moveIntoRows(MultirateRecord<C>& record) {
  const auto history = static_cast<size_t>(record.history);
  const size_t down = record.rowCount();
  transposeElements(record.line + record.lineDone, down, history, down, record.rows, static_cast<size_t>(record.stride));
  record.done = 0;
  record.isInLine = false;
}

// The branches of a filter one after another, over samples in their order.
template <class R> class LineBranches {
 public:
  using C = typename R::Kernel;

  LineBranches(const R& record, Samples<C> x, size_t periods, int64_t places)
      : ratio_(record.ratio), x_(x), periods_(periods), places_(places), taps_(record.lineTaps), branch_(record.first) {}

  void next(C* sums) {
    const auto taps = static_cast<size_t>(ratio_.taps);
    const auto down = static_cast<size_t>(ratio_.down);
    const auto first = static_cast<ptrdiff_t>(branch_.sample + 1) - static_cast<ptrdiff_t>(dotsLen<C>(taps));
    if constexpr (std::is_integral_v<C>) convolveApart(x_, first, down, taps_, taps, periods_, sums, places_);
    else convolveApart(x_, first, down, taps_, taps, periods_, sums);
    if (ratio_.up == 1) return;
    taps_ += dotsTapsLen<C>(taps);
    branch_.advance(ratio_.up, ratio_.down);
  }

 private:
  const Ratio& ratio_;
  Samples<C> x_;
  size_t periods_;
  int64_t places_;
  const C* taps_;
  Branch branch_;
};

// The outputs of samples x, of which those before the call's are in the line.
template <class R, class T, class Finish>
[[gnu::always_inline]] inline void filterLine(R& record, Samples<typename R::Kernel> x, T* dst, size_t periods, int64_t places,
                                              Finish finish) {
  LineBranches<R> branches(record, x, periods, places);
  joinBranches<typename R::Kernel, kMostDots>(branches, static_cast<size_t>(record.ratio.up), periods, dst, finish);
}

template <class C> void makeRoomInLine(MultirateRecord<C>& record, size_t samples) {
  if (static_cast<size_t>(record.lineDone) + samples <= static_cast<size_t>(record.lineRoom)) return;
  moveVectors(record.line + record.lineDone, static_cast<size_t>(record.lineHistory()), record.line);
  record.lineDone = 0;
}

// The samples stay where they are if few outputs meet any of calls before: from the line they would be loaded across two of the
// stores that have just copied them, and wait until both are in the cache. 8 outputs of 16 taps take 18 ns, not 24.
template <class R, class T, class Finish>
void throughLine(R& record, const T* src, T* dst, size_t periods, int64_t places, Finish finish) {
  using C = typename R::Kernel;
  const Ratio& q = record.ratio;
  const auto up = static_cast<size_t>(q.up);
  const auto down = static_cast<size_t>(q.down);
  const auto room = static_cast<size_t>(record.lineRoom);
  if (!record.isInLine) moveIntoLine(record);
  if constexpr (std::is_same_v<C, T>) {
    const size_t samples = periods * down;
    const size_t kept = dotsLen<C>(static_cast<size_t>(q.delayLen));
    if (record.mayStay && kept <= samples && src != dst && (record.staysIfFew || samples > room)) {
      if constexpr (!kJoinsSamples) {
        makeRoomInLine(record, kept);
        moveVectors(src, kept, record.sample(0));
      }
      filterLine(record, {record.sample(0), src}, dst, periods, places, finish);
      moveVectors(src + samples - kept, kept, record.line + record.lineHistory() - kept);
      record.lineDone = 0;
      return;
    }
  }
  for (size_t some; periods > 0; periods -= some, src += some * down, dst += some * up) {
    some = periods * down <= room ? periods : room / down;
    makeRoomInLine(record, some * down);
    C* const x = record.sample(0);
    if constexpr (std::is_same_v<C, T>) moveVectors(src, some * down, x);
    else toKernel(src, some * down, x);
    filterLine(record, {x, x}, dst, some, places, finish);
    record.lineDone += static_cast<int>(some * down);
  }
}

// ---- longer ones

template <class C> inline constexpr size_t kSums = kSumsBytes / sizeof(C);

// The outputs of a block whose samples are in the rows.
template <class R, class T, class Finish>
[[gnu::always_inline]] inline void filterRows(R& record, T* dst, size_t periods, Call call, int64_t places, Finish finish) {
  using C = typename R::Kernel;
  const auto up = static_cast<size_t>(record.ratio.up);
  if constexpr (Lanewise<C>::kPays) {
    if (record.groupCount > 0) {
      const auto alongOutputs = [&](C* y) {
        if constexpr (Lanewise<C>::kIsFloat) convolve(lanewise(record), record.sample(0), periods, y);
        else convolve(lanewise(record), record.sample(0), periods, y, places);
      };
      return putOutputs<C, kSums<C>>(dst, periods * up, alongOutputs, finish);
    }
  }
  Branches<R> branches(record, periods, call, places);
  joinBranches<C, kSums<C>>(branches, up, periods, dst, finish);
}

// Apart from the calls of few outputs, which would touch two pages of stack for nothing: 8 of them take 0.87 to 0.95 of the time.
template <class R, class T, class Finish>
[[gnu::noinline]] void throughRows(R& record, const T* src, T* dst, size_t periods, int64_t places, Finish finish) {
  const auto up = static_cast<size_t>(record.ratio.up);
  const auto down = static_cast<size_t>(record.ratio.down);
  const auto block = static_cast<size_t>(record.block);
  const Call call = callOf(std::min(periods, block));
  for (size_t some; periods > 0; periods -= some, src += some * down, dst += some * up) {
    some = std::min(periods, block);
    if constexpr (kHasSpectra<R>) {
      if (!isNull(record.spectra)) some = std::min(some, static_cast<size_t>(record.spectra->block()));
    }
    makeRoom(record, some);
    deal(record, src, some);
    filterRows(record, dst, some, call, places, finish);
    record.done += static_cast<int>(some);
  }
}

// finish(sums, n, outputs) makes the outputs of sums; integer sums come scaled by 2^places. src may be dst, unless there are more
// outputs than samples.
template <class R, class T, class Finish>
void resample(R& record, const T* src, T* dst, size_t periods, int64_t places, Finish finish) {
  if constexpr (kHasDots<typename R::Kernel>) {
    if (takesLine(record, periods)) return throughLine(record, src, dst, periods, places, finish);
    if (record.isInLine) moveIntoRows(record);
  }
  throughRows(record, src, dst, periods, places, finish);
}

template <class R> int64_t multiratePlaces(const R& record, int scaleFactor) {
  if constexpr (std::is_integral_v<Part<typename R::Kernel>>) return int64_t{record.tapsFactor} - scaleFactor;
  else return 0;
}

// In groups of the caller's factors.
template <class R, class T> void filterMultirate(R& record, const T* src, T* dst, size_t groups, int scaleFactor) {
  using C = typename R::Kernel;
  resample(record, src, dst, groups * static_cast<size_t>(record.ratio.step), multiratePlaces(record, scaleFactor),
           [=](const C* sums, size_t n, T* outputs) { toSamples(sums, n, outputs, scaleFactor); });
}

// Runs filter(samples) on a copy of the samples.
template <class T, class Filter> QvxStatus onCopy(const T* src, int64_t count, Filter filter) {
  const Block copy(count * int64_t{sizeof(T)});
  if (!copy) return qvxStatNoMem;
  auto* samples = reinterpret_cast<T*>(copy.get());
  std::copy_n(src, count, samples);
  filter(static_cast<const T*>(samples));
  return qvxStatOk;
}

template <class R, class T> QvxStatus filterMultirateBlock(R& record, const T* src, T* dst, int numIters, int scaleFactor) {
  const auto from = [&](const T* samples) { filterMultirate(record, samples, dst, elements(numIters), scaleFactor); };
  const Ratio& q = record.ratio;
  if (src == dst && q.up > q.down) return onCopy(src, int64_t{numIters} * q.down * q.step, from);
  from(src);
  return qvxStatOk;
}

}  // namespace qvx::fir
