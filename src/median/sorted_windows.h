// Medians of any mask, by sorted windows: as many stretches of the source as a register has lanes are filtered at a time, each
// lane with a sorted window of its own. From one output to the next, each place of the window is updated for the loss of the
// oldest element and the arrival of the new one: a comparison, a selection, a minimum and a maximum, whatever the data.
#pragma once

#include "frame/record.h"
#include "median/order.h"

namespace qvx::median {

template <class Lane> class SortedWindows {
 public:
  static constexpr size_t N = kVectorBytes / sizeof(Lane);
  using D = Lanes<Lane, N>;
  using V = Vec<D>;

  SortedWindows(Lane* places, size_t mask) : places_(places), mask_(mask) {}

  void fill(V v) const {
    for (size_t i = 0; i < mask_; ++i) hn::Store(v, D(), places_ + i * N);
  }
  V median() const { return hn::Load(D(), places_ + mask_ / 2 * N); }
  // mask_ is 3 at least.
  void replace(V old, V fresh) const {
    const auto place = [this](size_t i) { return hn::Load(D(), places_ + i * N); };
    V kept = place(1);
    V before = hn::IfThenElse(place(0) < old, place(0), kept);  // what is left of the place before
    hn::Store(least(before, fresh), D(), places_);
    for (size_t i = 1; i + 1 < mask_; ++i) {
      const V next = place(i + 1);
      const V left = hn::IfThenElse(kept < old, kept, next);
      hn::Store(most(before, least(left, fresh)), D(), places_ + i * N);
      before = left;
      kept = next;
    }
    hn::Store(most(before, fresh), D(), places_ + (mask_ - 1) * N);
  }

 private:
  Lane* places_;
  size_t mask_;
};

// Steps that are transposed from the source to lanes, and back, at a time: a few KiB.
inline constexpr size_t kTile = 16;

// The outputs of a lane in one round: enough that filling the window costs an eighth of it at most.
inline size_t stretchFor(size_t len, size_t mask, size_t lanes) {
  const size_t longest = std::max<size_t>(512, 8 * mask);
  return std::min((len + lanes - 1) / lanes, longest);
}

template <class As, class T> QvxStatus filterBySortedWindows(const T* src, T* dst, size_t len, size_t mask) {
  using Lane = typename As::Lane;
  using Windows = SortedWindows<Lane>;
  constexpr size_t N = Windows::N;
  const auto d = typename Windows::D();
  const size_t reach = mask / 2;
  const size_t stretch = stretchFor(len, mask, N);
  const size_t steps = stretch + 2 * reach;
  const Block memory(static_cast<int64_t>(((steps + mask + kTile) * N + 2 * reach) * sizeof(Lane)) + 4 * Carver::kLine);
  if (!memory) return qvxStatNoMem;
  Carver carver(memory.get(), Carver::kLine);
  auto* const in = carver.takeLines<Lane>(static_cast<int64_t>(steps * N));
  auto* const out = carver.takeLines<Lane>(static_cast<int64_t>(kTile * N));
  const Windows windows(carver.takeLines<Lane>(static_cast<int64_t>(mask * N)), mask);
  auto* const before = carver.take<Lane>(static_cast<int64_t>(reach));  // the elements before this round's outputs
  const Lane last = As::lane(src[len - 1]);
  std::fill_n(before, reach, As::lane(src[0]));

  for (size_t at = 0; at < len; at += stretch * N) {
    // Row t has the elements at t - reach from the beginnings of the stretches.
    for (size_t tile = 0; tile < steps; tile += kTile) {
      const size_t end = std::min(tile + kTile, steps);
      for (size_t s = 0; s < N; ++s) {
        for (size_t t = tile; t < end; ++t) {
          const size_t place = s * stretch + t;  // from `at` - reach on
          const size_t index = at + place - reach;
          in[t * N + s] = place < reach ? before[place] : index < len ? As::lane(src[index]) : last;
        }
      }
    }
    const size_t round = std::min(stretch * N, len - at);
    if (at + round < len) {  // the next round is one of several, each of them longer than the mask
      for (size_t i = 0; i < reach; ++i) before[i] = As::lane(src[at + round + i - reach]);
    }
    const auto row = [&](size_t t) { return hn::Load(d, in + t * N); };
    windows.fill(row(0));
    for (size_t t = 1; t + 1 < mask; ++t) windows.replace(row(0), row(t));
    for (size_t tile = 0; tile < stretch; tile += kTile) {
      const size_t end = std::min(tile + kTile, stretch);
      for (size_t t = tile; t < end; ++t) {
        windows.replace(row(t == 0 ? 0 : t - 1), row(t + 2 * reach));
        hn::Store(windows.median(), d, out + (t - tile) * N);
      }
      for (size_t s = 0; s < N; ++s) {
        for (size_t t = tile; t < end && s * stretch + t < round; ++t) {
          dst[at + s * stretch + t] = As::element(out[(t - tile) * N + s]);
        }
      }
    }
  }
  return qvxStatOk;
}

}  // namespace qvx::median
