// Steps of an adaptive filter, one after another, vectors along the taps.
#pragma once

#include <array>

#include "frame/reduce.h"
#include "frame/unroll.h"

namespace qvx::lms {

namespace detail {

using V = Vec<Lanes<Qvx32f, kVectorBytes / sizeof(Qvx32f)>>;
constexpr size_t N = kLanesOf<V>;
// The most vectors of taps that stay in registers together with the other operands of a step.
constexpr size_t kMostInRegisters = kHasMasks ? 16 : 8;
// The same together with the sums and samples of four steps.
constexpr size_t kMostForFour = kHasMasks ? 8 : 4;

// The sum of all lanes, in every lane: broadcasting it from one would take 3 cycles more.
inline V sumInAll(V v) {
  const TagOf<V> d;
  if constexpr (N == 16) v = v + hn::ConcatLowerUpper(d, v, v);
  if constexpr (N >= 8) v = v + hn::SwapAdjacentBlocks(v);
  v = v + hn::Shuffle1032(v);
  return v + hn::Shuffle2301(v);
}

using V4 = Vec<Lanes<Qvx32f, 4>>;

// The sums of the lanes of four vectors.
inline V4 sums(V a, V b, V c, V d) {
  const TagOf<V> tag;
  const auto pairs = [&](V x, V y) { return as<double>(hn::InterleaveLower(tag, x, y) + hn::InterleaveUpper(tag, x, y)); };
  const auto ab = pairs(a, b);
  const auto cd = pairs(c, d);
  const TagOf<std::remove_const_t<decltype(ab)>> wide;
  return folded<4>(as<Qvx32f>(hn::InterleaveLower(wide, ab, cd)) + as<Qvx32f>(hn::InterleaveUpper(wide, ab, cd)));
}

template <int kLane> V4 everyLaneOf(V4 v) { return V4{_mm_shuffle_ps(v.raw, v.raw, kLane * 0x55)}; }

// The influence of four steps on each other. With the taps before all four, y[j] = h x[j]; each earlier step i then adds e[i]
// times the product of the windows i and j, which depends on samples only:
//   column i, lane j: the product of the windows i and j, of which the first are summed, and the others follow by what comes in
//   and what goes out.
struct Products {
  V4 column[3];

  // first: 0, then the products of window 0 with the windows 1, 2 and 3. x: window 0, of n samples.
  Products(V4 first, const Qvx32f* x, size_t n) {
    const Lanes<Qvx32f, 4> d;
    const V4 in = load(d, x + n - 1);
    const V4 out = load(d, x - 1);
    const auto next = [&](V4 before, int i) {
      const V4 moved =
          hn::ShiftLeftLanes<1>(d, before) + (hn::Set(d, x[static_cast<int64_t>(n) + i]) * in - hn::Set(d, x[i]) * out);
      return hn::IfThenZeroElse(hn::FirstN(d, static_cast<size_t>(i) + 2), moved);
    };
    column[0] = first;
    column[1] = next(first, 0);
    column[2] = next(column[1], 1);
  }
  bool areFinite() const {
    const Lanes<Qvx32f, 4> d;
    const V4 all = column[0] + column[1] + column[2];
    return hn::AllTrue(d, hn::Abs(all) <= hn::Set(d, std::numeric_limits<Qvx32f>::max()));
  }
};

// Steps with all taps in registers. The window of step i is x[i] to x[i + n - 1].
//
// One step has a latency of 43 cycles: the sum of its lanes, its error, the new taps. So four are taken at a time: first their
// sums with the taps before all four, then y and e of each in turn from the products of the windows. 16 taps take 22 cycles a
// step.
template <size_t kVectors> class StepsInRegisters {
 public:
  StepsInRegisters(const Qvx32f* taps, size_t n, const Qvx32f* x, const Qvx32f* ref, Qvx32f* dst, Qvx32f rate)
      : n_(n), x_(x), ref_(ref), dst_(dst), rate_(rate), inLast_(hn::FirstN(TagOf<V>(), n - kLast * N)) {
    unrolled<kVectors>([&](auto k) { taps_[k] = load(TagOf<V>(), taps + N * k); });
  }

  [[gnu::always_inline]] void one(size_t i) {
    const TagOf<V> d;
    const V y = sumInAll(product(i));
    const V e = (hn::Set(d, ref_[i]) - y) * hn::Set(d, rate_);
    dst_[i] = hn::GetLane(y);
    adapt(i, e);
  }

  // Returns false, with nothing done, where products of large samples are not finite: 0 times infinity would make an output NaN.
  [[gnu::always_inline]] bool four(size_t i) {
    const TagOf<V> d;
    const Lanes<Qvx32f, 4> d4;
    V sum[4];      // of the windows and the taps
    V product[3];  // of the first window and the others
    unrolled<kVectors>([&](auto k) {
      V v[4];
      unrolled<4>([&](auto j) { v[j] = sample(i + j, k); });
      unrolled<4>([&](auto j) { sum[j] = k == 0 ? taps_[k] * v[j] : hn::MulAdd(taps_[k], v[j], sum[j]); });
      unrolled<3>([&](auto j) { product[j] = k == 0 ? v[0] * v[j + 1] : hn::MulAdd(v[0], v[j + 1], product[j]); });
    });
    const Products products(sums(hn::Zero(d), product[0], product[1], product[2]), x_ + i, n_);
    if (!products.areFinite()) return false;
    V4 y = sums(sum[0], sum[1], sum[2], sum[3]);
    const V4 wanted = load(d4, ref_ + i);
    const auto errors = [&] { return (wanted - y) * hn::Set(d4, rate_); };
    V4 e[4];
    unrolled<3>([&](auto j) {
      e[j] = everyLaneOf<j>(errors());
      y = hn::MulAdd(e[j], products.column[j], y);
    });
    e[3] = everyLaneOf<3>(errors());
    store(y, d4, dst_ + i);
    unrolled<4>([&](auto j) { adapt(i + j, same<V>(hn::GetLane(e[j]))); });
    return true;
  }

  void storeTaps(Qvx32f* taps) const {
    unrolled<kVectors>([&](auto k) { store(taps_[k], TagOf<V>(), taps + N * k); });
  }

 private:
  static constexpr size_t kLast = kVectors - 1;

  template <class K> [[gnu::always_inline]] V sample(size_t i, K k) const {
    const V v = load(TagOf<V>(), x_ + i + N * k);
    return k == kLast ? hn::IfThenElseZero(inLast_, v) : v;
  }
  // The products of a window and the taps, lane by lane.
  [[gnu::always_inline]] V product(size_t i) const {
    constexpr size_t kSums = std::min<size_t>(kVectors, 4);
    V sum[kSums];
    unrolled<kSums>([&](auto k) { sum[k] = taps_[k] * sample(i, k); });
    unrolled<kVectors - kSums>([&](auto k) {
      const std::integral_constant<size_t, k + kSums> at;
      sum[k % kSums] = hn::MulAdd(taps_[at], sample(i, at), sum[k % kSums]);
    });
    if constexpr (kSums > 2) sum[0] = sum[0] + sum[2];
    if constexpr (kSums > 3) sum[1] = sum[1] + sum[3];
    if constexpr (kSums > 1) sum[0] = sum[0] + sum[1];
    return sum[0];
  }
  [[gnu::always_inline]] void adapt(size_t i, V e) {
    unrolled<kVectors>(
        [&](auto k) { taps_[k] = hn::MulAdd(k == kLast ? hn::IfThenElseZero(inLast_, e) : e, sample(i, k), taps_[k]); });
  }

  size_t n_;
  const Qvx32f* x_;
  const Qvx32f* ref_;
  Qvx32f* dst_;
  Qvx32f rate_;
  hn::Mask<TagOf<V>> inLast_;
  V taps_[kVectors];
};

template <size_t kVectors>
[[gnu::flatten]] void stepsInRegisters(Qvx32f* taps, size_t n, const Qvx32f* x, const Qvx32f* ref, Qvx32f* dst, size_t count,
                                       Qvx32f rate) {
  StepsInRegisters<kVectors> steps(taps, n, x, ref, dst, rate);
  size_t i = 0;
  while (kVectors <= kMostForFour && i + 4 <= count) {
    if (steps.four(i)) {
      i += 4;
    } else {
      for (const size_t end = i + 4; i < end; ++i) steps.one(i);
    }
  }
  for (; i < count; ++i) steps.one(i);
  steps.storeTaps(taps);
}

// The same with taps in memory: one pass adapts them to the step before and adds up the next output, so that they are loaded and
// stored once.
inline void stepsInMemory(Qvx32f* taps, size_t n, const Qvx32f* x, const Qvx32f* ref, Qvx32f* dst, size_t count, Qvx32f rate) {
  const TagOf<V> d;
  constexpr size_t kSums = 4;
  const size_t whole = n / N * N;
  const auto inLast = hn::FirstN(d, n - whole);
  V e = hn::Zero(d);
  for (size_t i = 0; i <= count; ++i) {
    const Qvx32f* now = x + i;
    const Qvx32f* before = i == 0 ? now : now - 1;
    V sum[kSums];
    unrolled<kSums>([&](auto k) { sum[k] = hn::Zero(d); });
    const auto step = [&](size_t at, V& all) {
      const V h = hn::MulAdd(e, load(d, before + at), load(d, taps + at));
      store(h, d, taps + at);
      all = hn::MulAdd(h, load(d, now + at), all);
    };
    size_t at = 0;
    for (; at + kSums * N <= whole; at += kSums * N) unrolled<kSums>([&](auto k) { step(at + N * k, sum[k]); });
    for (; at < whole; at += N) step(at, sum[0]);
    if (at < n) {
      const V h = hn::MulAdd(hn::IfThenElseZero(inLast, e), hn::IfThenElseZero(inLast, load(d, before + at)), load(d, taps + at));
      store(h, d, taps + at);
      sum[1] = hn::MulAdd(h, hn::IfThenElseZero(inLast, load(d, now + at)), sum[1]);
    }
    if (i == count) return;
    const V y = sumInAll((sum[0] + sum[2]) + (sum[1] + sum[3]));
    e = (hn::Set(d, ref[i]) - y) * hn::Set(d, rate);
    dst[i] = hn::GetLane(y);
  }
}

}  // namespace detail

// count steps: dst[i] is the sum of taps[t] x[i + t], then taps[t] += (ref[i] - dst[i]) rate x[i + t]. The taps are filled up to
// whole vectors with zeros; samples after the last may be read as far, and not used.
inline void steps(Qvx32f* taps, size_t n, const Qvx32f* x, const Qvx32f* ref, Qvx32f* dst, size_t count, Qvx32f rate) {
  using namespace detail;
  using Steps = void (*)(Qvx32f*, size_t, const Qvx32f*, const Qvx32f*, Qvx32f*, size_t, Qvx32f);
  static constexpr auto kSteps = []<size_t... K>(std::index_sequence<K...>) {
    return std::array<Steps, kMostInRegisters>{stepsInRegisters<K + 1>...};
  }
  (std::make_index_sequence<kMostInRegisters>());
  const size_t vectors = (n + N - 1) / N;
  (vectors <= kMostInRegisters ? kSteps[vectors - 1] : stepsInMemory)(taps, n, x, ref, dst, count, rate);
}

}  // namespace qvx::lms
