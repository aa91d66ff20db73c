// Many sections at once, one in each lane: while the first takes a sample, the second takes the output that the first gave two
// steps before, and so on. The recursion is the plain one, in 64-bit floats, so this is also the kernel for filters that
// look-ahead would lose accuracy for.
//
// A step takes 6 cycles, of a multiplication for d1, an addition to it and a multiplication for d0, for 8 sections as for 16
// (AVX-512). Two steps of delay from lane to lane keep what goes from one to the next off that path.
#pragma once

#include "frame/unroll.h"
#include "iir/number.h"

namespace qvx {

class Cascade {
 public:
  // From this many sections on it is faster than to take them one by one with look-ahead, whose time for a sample depends on the
  // lanes: 1.2 cycles in 8 of them, 2.7 in 2.
  static constexpr int kFew = kLanes == 2 ? 3 : kLanes == 4 ? 4 : 5;
  // Sections that go together, in up to 4 vectors: with 8 of two lanes, 16 take 1.2 times as long as twice 8.
  static constexpr size_t kMost = std::min<size_t>(16, 4 * kLanes);

  static constexpr int64_t padded(int sections) { return up<int64_t{kLanes}>(sections); }

  template <class Carver> void place(Carver& carver, int sections) {
    sections_ = static_cast<size_t>(sections);
    table_ = carver.template take<Lane>(kRows * padded(sections));
  }

  bool isThere() const { return table_ != nullptr; }

  // Taps b0, b1, b2, a1, a2. The state is kept as what the next output takes of it, so that it waits for one multiplication less:
  // d0' = e1 * x + d1 - a1 * d0, d1' = e2 * x - a2 * d0, e = b - a * b0.
  template <class T> void set(size_t section, const T* t) {
    const Exact<T> b0 = t[0];
    const Lane row[kRows] = {Lane{t[0]}, static_cast<Lane>(t[1] - t[3] * b0), static_cast<Lane>(t[2] - t[4] * b0), -Lane{t[3]},
                             -Lane{t[4]}};
    for (size_t r = 0; r < kRows; ++r) *at(section, r) = row[r];
    if (section + 1 == sections_) {  // those behind the last pass on what comes
      for (size_t s = sections_; s < static_cast<size_t>(padded(static_cast<int>(sections_))); ++s) {
        for (size_t r = 0; r < kRows; ++r) *at(s, r) = r == 0 ? 1 : 0;
      }
    }
  }

  // n samples in place, and the delay line of two values for each section.
  template <class T> void run(Lane* work, size_t n, T* line) const {
    for (size_t first = 0; first < sections_; first += kMost) {
      const size_t count = std::min(kMost, sections_ - first);
      const size_t groups = (count + kLanes - 1) / kLanes;
      const auto with = [&](auto size) {
        if (groups == size()) part<size()>(first, count, work, n, line + 2 * first);
      };
      [&]<size_t... I>(std::index_sequence<I...>) { (with(std::integral_constant<size_t, I + 1>()), ...); }
      (std::make_index_sequence<kMost / kLanes>());
    }
  }

 private:
  static constexpr size_t kRows = 5;
  static constexpr size_t kDelay = 2;

  struct Group {
    V b0, e1, e2, a1, a2;
    V d0, d1;
    V y0, y1;  // the last two outputs
    V begin;   // the step of a lane's first sample
  };

  // The first section of a part is in the last lane, so that the output is in the first.
  Lane* at(size_t section, size_t row) const {
    const size_t first = section / kMost * kMost;
    const size_t lanes = lanesOf(first);
    return table_ + kRows * first + row * lanes + (lanes - 1 - (section - first));
  }
  size_t lanesOf(size_t first) const { return std::min(kMost, static_cast<size_t>(padded(static_cast<int>(sections_ - first)))); }

  template <size_t kGroups, class T> [[gnu::flatten]] void part(size_t first, size_t count, Lane* work, size_t n, T* line) const {
    constexpr size_t kAll = kGroups * kLanes;
    constexpr size_t kLast = kDelay * (kAll - 1);  // steps until the last lane's first sample
    const Lane* table = table_ + kRows * first;
    Lane states[2][kAll] = {};
    for (size_t s = 0; s < count; ++s) {
      for (size_t k = 0; k < 2; ++k) states[k][kAll - 1 - s] = line[2 * s + k];
    }
    Group groups[kGroups];
    unrolled<kGroups>([&](auto g) {
      const auto row = [&](size_t r) { return load(Wide(), table + r * kAll + g * kLanes); };
      const V zero = hn::Zero(Wide());
      const V lanesAbove = hn::Set(Wide(), static_cast<Lane>(kAll - 1 - g * kLanes)) - hn::Iota(Wide(), 0);
      groups[g] = {row(0),
                   row(1),
                   row(2),
                   row(3),
                   row(4),
                   load(Wide(), states[0] + g * kLanes),
                   load(Wide(), states[1] + g * kLanes),
                   zero,
                   zero,
                   hn::Set(Wide(), Lane{kDelay}) * lanesAbove};
    });
    // kMasked: a lane that has no sample yet, or no more, keeps its state. ago: which of the last two outputs is the older.
    const auto step = [&](auto masked, size_t t, V Group::*ago) {
      const V in = t < n ? hn::Set(Wide(), work[t]) : hn::Zero(Wide());
      unrolled<kGroups>([&](auto g) {
        Group& at = groups[g];
        V above = in;
        if constexpr (g + 1 < kGroups) above = groups[g + 1].*ago;
        const V x = delayed<kLanes - 1>(at.*ago, above);
        at.*ago = hn::MulAdd(at.b0, x, at.d0);
        const V next1 = hn::MulAdd(at.a2, at.d0, at.e2 * x);
        const V next0 = hn::MulAdd(at.a1, at.d0, hn::MulAdd(at.e1, x, at.d1));
        if constexpr (masked) {
          const V since = hn::Set(Wide(), static_cast<Lane>(t)) - at.begin;
          const auto isActive = hn::And(since >= hn::Zero(Wide()), since < hn::Set(Wide(), static_cast<Lane>(n)));
          at.d0 = hn::IfThenElse(isActive, next0, at.d0);
          at.d1 = hn::IfThenElse(isActive, next1, at.d1);
        } else {
          at.d0 = next0;
          at.d1 = next1;
        }
      });
      if (t >= kLast) work[t - kLast] = hn::GetLane(groups[0].*ago);
    };
    constexpr std::bool_constant<true> kMasked;
    constexpr std::bool_constant<false> kWhole;
    static_assert(kDelay == 2 && kLast % 2 == 0);
    size_t t = 0;
    for (; t < kLast; t += 2) {
      step(kMasked, t, &Group::y0);
      step(kMasked, t + 1, &Group::y1);
    }
    for (; t + 2 <= n; t += 2) {
      step(kWhole, t, &Group::y0);
      step(kWhole, t + 1, &Group::y1);
    }
    for (; t < n + kLast; t += 2) {
      step(kMasked, t, &Group::y0);
      if (t + 1 < n + kLast) step(kMasked, t + 1, &Group::y1);
    }
    unrolled<kGroups>([&](auto g) {
      store(groups[g].d0, Wide(), states[0] + g * kLanes);
      store(groups[g].d1, Wide(), states[1] + g * kLanes);
    });
    for (size_t s = 0; s < count; ++s) {
      for (size_t k = 0; k < 2; ++k) line[2 * s + k] = static_cast<T>(states[k][kAll - 1 - s]);
    }
  }

  size_t sections_ = 0;
  Lane* table_ = nullptr;
};

}  // namespace qvx
