// Many sections at once, one in each lane: while the first takes a sample, the second takes the first's output of two steps
// before, and so on. The recursion is the plain one, so this also serves filters for which look-ahead would lose accuracy. In
// SSE, 32-bit filters have 32-bit lanes, twice as many.
//
// A step has a latency of 6 cycles (AVX-512) for 8 sections as for 16: a multiplication for d1, an addition to it and a
// multiplication for d0. Two steps of delay from lane to lane keep the transfer between lanes off that path.
#pragma once

#include "frame/unroll.h"
#include "iir/number.h"

namespace qvx::iir {

template <class T> using CascadeLane = std::conditional_t<kLanes == 2 && sizeof(T) == 4, Qvx32f, Lane>;

template <class P> class Cascade {
  static constexpr size_t kRows = 5;
  static constexpr size_t kCount = kVectorBytes / sizeof(P);
  using D = Lanes<P, kCount>;
  using V = Vec<D>;

 public:
  // From this many sections on lanes are faster than look-ahead section by section, whose time a sample depends on the lanes: 1.2
  // cycles with 8 of them, 2.7 with 2.
  static constexpr size_t kFew = kLanes == 2 ? 3 : kLanes == 4 ? 4 : 5;
  // The most sections in one group, in up to 4 vectors: in 8 vectors of two lanes, 16 take 1.2 times as long as twice 8.
  static constexpr size_t kMost = std::min<size_t>(16, 4 * kCount);

  static constexpr int64_t padded(int sections) { return up<int64_t{kCount}>(sections); }
  static constexpr int64_t tableLanes(int sections) { return kRows * padded(sections); }

  Cascade() = default;
  Cascade(size_t sections, P* table) : sections_(sections), table_(table) {}

  bool isThere() const { return table_ != nullptr; }
  bool isFinite() const { return areFinite(table_, static_cast<size_t>(tableLanes(static_cast<int>(sections_)))); }

  // How many sections go together from `first` on, a multiple of kMost.
  size_t count(size_t first) const { return std::min(kMost, sections_ - first); }
  Cascade from(size_t first) const { return {count(first), table_ + kRows * first}; }

  // Taps b0, b1, b2, a1, a2. The state is kept as the next output needs it, which takes a multiplication off the latency: d0' =
  // e1 * x + d1 - a1 * d0, d1' = e2 * x - a2 * d0, e = b - a * b0.
  template <class T> void set(size_t section, const T* t) {
    using Exact = std::conditional_t<sizeof(T) == 4, double, long double>;  // products of floats need no more
    const Exact b0 = t[0];
    const P row[kRows] = {t[0], static_cast<P>(t[1] - t[3] * b0), static_cast<P>(t[2] - t[4] * b0), -t[3], -t[4]};
    for (size_t r = 0; r < kRows; ++r) *at(section, r) = row[r];
    if (section + 1 == sections_) {  // those after the last pass on what comes
      for (size_t s = sections_; s < static_cast<size_t>(padded(static_cast<int>(sections_))); ++s) {
        for (size_t r = 0; r < kRows; ++r) *at(s, r) = r == 0 ? 1 : 0;
      }
    }
  }

  // n samples in place, and the delay line of two values for each section.
  template <class T> void run(P* work, size_t n, T* line) const {
    for (size_t first = 0; first < sections_; first += kMost) {
      const size_t groups = (count(first) + kCount - 1) / kCount;
      const auto with = [&](auto size) {
        if (groups == size()) part<size()>(first, count(first), work, n, line + 2 * first);
      };
      [&]<size_t... I>(std::index_sequence<I...>) { (with(std::integral_constant<size_t, I + 1>()), ...); }
      (std::make_index_sequence<kMost / kCount>());
    }
  }

 private:
  static constexpr size_t kDelay = 2;

  // Each lane gets the value of the lane above, the last lane that of the first lane of the vector above.
  static V fromAbove(V above, V v) {
    if constexpr (kVectorBytes == 16) return hn::CombineShiftRightLanes<1>(D(), above, v);
    else return delayed<kCount - 1>(v, above);
  }

  // Sections of a vector.
  struct Group {
    V b0, e1, e2, a1, a2;
    V d0, d1;
    V y0, y1;          // the last two outputs
    V begin;           // the step of a lane's first sample
    V first0, first1;  // the state that it begins with
    V last0, last1;    // and leaves

    // A lane without a sample yet computes zeros, as long as its state is zero: its state is set right before its first sample.
    // A lane after its last sample computes values that nobody reads: its state was saved.
    [[gnu::always_inline]] void enter(size_t t) {
      const auto isNow = begin == hn::Set(D(), static_cast<P>(t));
      d0 = d0 + hn::IfThenElseZero(isNow, first0);
      d1 = d1 + hn::IfThenElseZero(isNow, first1);
    }
    [[gnu::always_inline]] void leave(size_t t, size_t n) {
      const auto isNow = begin == hn::Set(D(), static_cast<P>(t) - static_cast<P>(n));
      last0 = hn::IfThenElse(isNow, d0, last0);
      last1 = hn::IfThenElse(isNow, d1, last1);
    }
    // ago: the older of the last two outputs. above: its value in the vector above.
    [[gnu::always_inline]] void step(V above, V Group::*ago) {
      const V x = fromAbove(above, this->*ago);
      this->*ago = hn::MulAdd(b0, x, d0);
      const V next1 = hn::MulAdd(a2, d0, e2 * x);
      d0 = hn::MulAdd(a1, d0, hn::MulAdd(e1, x, d1));
      d1 = next1;
    }
  };

  // The first section of a part is in the last lane, so that the output is in the first.
  P* at(size_t section, size_t row) const {
    const size_t first = section / kMost * kMost;
    const size_t lanes = lanesOf(first);
    return table_ + kRows * first + row * lanes + (lanes - 1 - (section - first));
  }
  size_t lanesOf(size_t first) const { return std::min(kMost, static_cast<size_t>(padded(static_cast<int>(sections_ - first)))); }

  // Runs all groups step by step for n samples, and on until the last lane has taken the last sample.
  template <size_t kGroups> [[gnu::always_inline]] static void walk(Group (&groups)[kGroups], P* work, size_t n) {
    constexpr size_t kLast = kDelay * (kGroups * kCount - 1);  // steps until the last lane's first sample
    const auto enter = [&](size_t t) { unrolled<kGroups>([&](auto g) { groups[g].enter(t); }); };
    const auto leave = [&](size_t t) { unrolled<kGroups>([&](auto g) { groups[g].leave(t, n); }); };
    const auto step = [&](size_t t, V Group::*ago) {
      const V in = t < n ? hn::Set(D(), work[t]) : hn::Zero(D());
      unrolled<kGroups>([&](auto g) {
        V above = in;
        if constexpr (g + 1 < kGroups) above = groups[g + 1].*ago;
        groups[g].step(above, ago);
      });
      if (t >= kLast) work[t - kLast] = hn::GetLane(groups[0].*ago);
    };
    const auto exchange = [&] { unrolled<kGroups>([&](auto g) { std::swap(groups[g].y0, groups[g].y1); }); };
    const auto twoSteps = [&](size_t t) {
      step(t, &Group::y0);
      step(t + 1, &Group::y1);
    };
    static_assert(kDelay == 2 && kLast % 2 == 0);
    size_t t = 0;
    if (n < kLast) {  // some leave before others enter
      for (; t < n + kLast; ++t) {
        enter(t);
        leave(t);
        step(t, &Group::y0);
        exchange();
      }
    } else {
      for (; t < kLast; t += 2) {
        enter(t);
        twoSteps(t);
      }
      enter(t);
      for (; t + 2 <= n; t += 2) twoSteps(t);
      if (t < n) {
        step(t++, &Group::y0);
        exchange();
      }
      for (; t < n + kLast; t += 2) {
        leave(t);
        twoSteps(t);
      }
    }
    leave(t);
  }

  template <size_t kGroups, class T> [[gnu::flatten]] void part(size_t first, size_t count, P* work, size_t n, T* line) const {
    constexpr size_t kAll = kGroups * kCount;
    P states[2][kAll] = {};
    for (size_t s = 0; s < count; ++s) {
      for (size_t k = 0; k < 2; ++k) states[k][kAll - 1 - s] = line[2 * s + k];
    }
    Group groups[kGroups];
    unrolled<kGroups>([&](auto g) {
      const auto row = [&](size_t r) { return load(D(), table_ + kRows * first + r * kAll + g * kCount); };
      const auto state = [&](size_t k) { return load(D(), states[k] + g * kCount); };
      const V zero = hn::Zero(D());
      const V lanesAbove = hn::Set(D(), static_cast<P>(kAll - 1 - g * kCount)) - hn::Iota(D(), 0);
      const V begin = hn::Set(D(), P{kDelay}) * lanesAbove;
      groups[g] = {row(0), row(1), row(2), row(3), row(4), zero, zero, zero, zero, begin, state(0), state(1), zero, zero};
    });
    walk(groups, work, n);
    unrolled<kGroups>([&](auto g) {
      store(groups[g].last0, D(), states[0] + g * kCount);
      store(groups[g].last1, D(), states[1] + g * kCount);
    });
    for (size_t s = 0; s < count; ++s) {
      for (size_t k = 0; k < 2; ++k) line[2 * s + k] = static_cast<T>(states[k][kAll - 1 - s]);
    }
  }

  size_t sections_ = 0;
  P* table_ = nullptr;
};

}  // namespace qvx::iir
