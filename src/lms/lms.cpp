// Adaptive filters: one step after another, vectors along the taps.
#include <array>

#include "convolution/elements.h"
#include "frame/record.h"
#include "frame/reduce.h"
#include "frame/unroll.h"

using namespace qvx;
using namespace qvx::convolution;

namespace qvx::lms {

// Taps are stored with that of the oldest sample first, in whole vectors filled with zeros. The line is a ring of tapsLen
// samples, the oldest at the index; a call puts it in order and has room for a chunk of new samples after it.
struct LmsRecord : RecordHead {
  int tapsLen;
  int index;
  Qvx32f* taps;
  Qvx32f* line;
};

}  // namespace qvx::lms

// Fixed values of the interface.
struct QvxsFIRLMSState_32f : qvx::lms::LmsRecord {
  static constexpr uint32_t kId = 0x4c4d5331;
};
struct QvxsFIRLMSState32f_16s : qvx::lms::LmsRecord {
  static constexpr uint32_t kId = 0x4c4d5300;
};

namespace {

using V = Vec<Lanes<Qvx32f, kVectorBytes / sizeof(Qvx32f)>>;
constexpr size_t N = kLanesOf<V>;
constexpr size_t kChunk = 1024;
// The most vectors of taps that stay in registers together with the other operands of a step.
constexpr size_t kMostInRegisters = kHasMasks ? 16 : 8;
// The same together with the sums and samples of four steps.
constexpr size_t kMostForFour = kHasMasks ? 8 : 4;

// The sum of all lanes, in every lane: broadcasting it from one would take 3 cycles more.
V sumInAll(V v) {
  const TagOf<V> d;
  if constexpr (N == 16) v = v + hn::ConcatLowerUpper(d, v, v);
  if constexpr (N >= 8) v = v + hn::SwapAdjacentBlocks(v);
  v = v + hn::Shuffle1032(v);
  return v + hn::Shuffle2301(v);
}

using V4 = Vec<Lanes<Qvx32f, 4>>;

// The sums of the lanes of four vectors.
V4 sums(V a, V b, V c, V d) {
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
void stepsInMemory(Qvx32f* taps, size_t n, const Qvx32f* x, const Qvx32f* ref, Qvx32f* dst, size_t count, Qvx32f rate) {
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

void steps(Qvx32f* taps, size_t n, const Qvx32f* x, const Qvx32f* ref, Qvx32f* dst, size_t count, Qvx32f rate) {
  using Steps = void (*)(Qvx32f*, size_t, const Qvx32f*, const Qvx32f*, Qvx32f*, size_t, Qvx32f);
  static constexpr auto kSteps = []<size_t... K>(std::index_sequence<K...>) {
    return std::array<Steps, kMostInRegisters>{stepsInRegisters<K + 1>...};
  }
  (std::make_index_sequence<kMostInRegisters>());
  const size_t vectors = (n + N - 1) / N;
  (vectors <= kMostInRegisters ? kSteps[vectors - 1] : stepsInMemory)(taps, n, x, ref, dst, count, rate);
}

// ---- records

int64_t wholeVectors(int64_t n) { return up<static_cast<int64_t>(N)>(n); }

template <class T> void setLine(lms::LmsRecord& record, const T* line, int index) {
  const auto n = static_cast<size_t>(record.tapsLen);
  record.index = index >= 0 && index < record.tapsLen ? index : 0;
  if (isNull(line)) std::fill_n(record.line, n, 0.0F);
  else toKernel(line, n, record.line);
}

template <class S, class T> QvxStatus allocate(S** ppState, const Qvx32f* taps, int tapsLen, const T* line, int index) {
  if (isNull(ppState)) return qvxStatNullPtr;
  if (tapsLen < 1) return qvxStatBadSize;
  const int64_t tapsRoom = wholeVectors(tapsLen);
  const int64_t lineRoom = tapsRoom + static_cast<int64_t>(kChunk + N);
  const int64_t bytes = up<Carver::kLine>(sizeof(S)) + 2 * Carver::kLine + (tapsRoom + lineRoom) * int64_t{sizeof(Qvx32f)};
  return allocateRecord(ppState, bytes, [=](S** made, Qvx8u* block) {
    return initRecord(made, block, [=](S& record, Carver& carver) {
      record.magic = S::kId;
      record.tapsLen = tapsLen;
      record.taps = carver.takeLines<Qvx32f>(tapsRoom);
      record.line = carver.takeLines<Qvx32f>(lineRoom);
      std::fill_n(record.taps, tapsRoom, 0.0F);
      std::fill_n(record.line, lineRoom, 0.0F);
      if (!isNull(taps)) copyReversed(taps, static_cast<size_t>(tapsLen), record.taps);
      setLine(record, line, index);
      return qvxStatOk;
    });
  });
}

QvxStatus release(lms::LmsRecord* state) {
  if (!isNull(state)) qvxFree(state);
  return qvxStatOk;
}

template <class S, class T> QvxStatus run(const T* src, const T* ref, T* dst, int len, S* state, Qvx32f mu) {
  if (isNull(src) || isNull(ref) || isNull(dst) || isNull(state)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  const QvxStatus status = checkRecord(state, S::kId);
  if (status != qvxStatOk) return status;
  const auto n = static_cast<size_t>(state->tapsLen);
  std::rotate(state->line, state->line + state->index, state->line + n);
  state->index = 0;
  for (size_t at = 0; at < elements(len); at += kChunk) {
    const size_t count = std::min(kChunk, elements(len) - at);
    toKernel(src + at, count, state->line + n);
    if constexpr (std::is_same_v<T, Qvx32f>) {
      steps(state->taps, n, state->line + 1, ref + at, dst + at, count, 2 * mu);
    } else {
      Qvx32f wanted[kChunk];
      Qvx32f y[kChunk];
      toKernel(ref + at, count, wanted);
      steps(state->taps, n, state->line + 1, wanted, y, count, 2 * mu);
      toSamples(y, count, dst + at, 0);
    }
    std::copy_n(state->line + count, n, state->line);
  }
  return qvxStatOk;
}

template <class S> QvxStatus getTaps(const S* state, Qvx32f* taps) {
  if (isNull(state) || isNull(taps)) return qvxStatNullPtr;
  const QvxStatus status = checkRecord(state, S::kId);
  if (status == qvxStatOk) copyReversed(state->taps, static_cast<size_t>(state->tapsLen), taps);
  return status;
}
template <class S, class T> QvxStatus getDelayLine(const S* state, T* line, int* index) {
  if (isNull(state) || isNull(line) || isNull(index)) return qvxStatNullPtr;
  const QvxStatus status = checkRecord(state, S::kId);
  if (status != qvxStatOk) return status;
  toSamples(state->line, static_cast<size_t>(state->tapsLen), line, 0);
  *index = state->index;
  return qvxStatOk;
}
template <class S, class T> QvxStatus setDelayLine(S* state, const T* line, int index) {
  const QvxStatus status = checkRecord(state, S::kId);
  if (status == qvxStatOk) setLine(*state, line, index);
  return status;
}

// ---- one step without a record

struct FloatProducts : Reduction {
  using Inner = Qvx32f;
  template <class A, class U> A start(A h, U x) const { return h * widened<Qvx32f>(x); }
  template <class A, class U> A add(A sum, A h, U x) const { return hn::MulAdd(h, widened<Qvx32f>(x), sum); }
  template <class A> Qvx32f total(A sum) const { return sumOfLanes(sum); }
};

// Sums of 64 bits that wrap.
struct LongProducts : Reduction {
  using Inner = int32_t;
  template <class A, class U> auto start(A h, U v) const {
    const A x = widened<int32_t>(v);
    return evenProducts(h, x) + evenProducts(hn::Shuffle2301(h), hn::Shuffle2301(x));
  }
  template <class A, class H, class U> A add(A sum, H h, U v) const { return sum + start(h, v); }
  template <class A> int64_t total(A sum) const { return sumOfLanes(sum); }
};

template <class T, class H> QvxStatus checkStep(const void* dst, const H* taps, int tapsLen, const T* line, const int* index) {
  if (isNull(dst) || isNull(taps) || isNull(line) || isNull(index)) return qvxStatNullPtr;
  if (tapsLen < 1) return qvxStatBadSize;
  return *index < 0 || *index >= tapsLen ? qvxStatBadDlyIndex : qvxStatOk;
}

// Takes a sample and gives the window.
template <class T> const T* push(T v, T* line, int tapsLen, int* index) {
  line[*index] = line[*index + int64_t{tapsLen}] = v;
  if (++*index == tapsLen) *index = 0;
  return line + *index;
}

template <class T> QvxStatus one(T src, T ref, Qvx32f mu, T* dst, Qvx32f* taps, int tapsLen, T* line, int* index) {
  const QvxStatus status = checkStep(dst, taps, tapsLen, line, index);
  if (status != qvxStatOk) return status;
  const T* window = push(src, line, tapsLen, index);
  const size_t n = elements(tapsLen);
  const Qvx32f y = reduce(FloatProducts(), n, source(static_cast<const Qvx32f*>(taps)), source(window));
  toSamples(&y, 1, dst, 0);
  const Qvx32f e = (static_cast<Qvx32f>(ref) - y) * (2 * mu);
  return loop([e](auto h, auto x) { return hn::MulAdd(same<decltype(h)>(e), widened<Qvx32f>(x), h); }, destination(taps), n,
              source(static_cast<const Qvx32f*>(taps)), source(window));
}

QvxStatus oneQ15(Qvx16s src, Qvx16s ref, int muQ15, Qvx16s* dst, Qvx32s* taps, int tapsLen, Qvx16s* line, int* index) {
  const QvxStatus status = checkStep(dst, taps, tapsLen, line, index);
  if (status != qvxStatOk) return status;
  const Qvx16s* window = push(src, line, tapsLen, index);
  const size_t n = elements(tapsLen);
  const auto y = scaled<Qvx16s>(reduce(LongProducts(), n, source(static_cast<const Qvx32s*>(taps)), source(window)), 15);
  *dst = y;
  const int64_t e = saturate<Qvx16s>(int32_t{ref} - y);
  const int64_t factor = 2 * int64_t{muQ15} * e;  // of 47 bits, times a sample and beside a tap times 2^30 of less than 63
  for (size_t i = 0; i < n; ++i) taps[i] = scaled<Qvx32s>(int64_t{taps[i]} * (1 << 30) + factor * window[i], 30);
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsFIRLMSInitAlloc_32f   (QvxsFIRLMSState_32f** s,    const Qvx32f* h, int n, const Qvx32f* line, int i) { return allocate(s, h, n, line, i); }
QvxStatus qvxsFIRLMSInitAlloc32f_16s(QvxsFIRLMSState32f_16s** s, const Qvx32f* h, int n, const Qvx16s* line, int i) { return allocate(s, h, n, line, i); }
QvxStatus qvxsFIRLMS_32f   (const Qvx32f* x, const Qvx32f* r, Qvx32f* d, int len, QvxsFIRLMSState_32f* s,    Qvx32f mu) { return run(x, r, d, len, s, mu); }
QvxStatus qvxsFIRLMS32f_16s(const Qvx16s* x, const Qvx16s* r, Qvx16s* d, int len, QvxsFIRLMSState32f_16s* s, Qvx32f mu) { return run(x, r, d, len, s, mu); }
QvxStatus qvxsFIRLMSGetTaps_32f   (const QvxsFIRLMSState_32f* s,    Qvx32f* h) { return getTaps(s, h); }
QvxStatus qvxsFIRLMSGetTaps32f_16s(const QvxsFIRLMSState32f_16s* s, Qvx32f* h) { return getTaps(s, h); }
QvxStatus qvxsFIRLMSGetDlyLine_32f   (const QvxsFIRLMSState_32f* s,    Qvx32f* line, int* i) { return getDelayLine(s, line, i); }
QvxStatus qvxsFIRLMSGetDlyLine32f_16s(const QvxsFIRLMSState32f_16s* s, Qvx16s* line, int* i) { return getDelayLine(s, line, i); }
QvxStatus qvxsFIRLMSSetDlyLine_32f   (QvxsFIRLMSState_32f* s,    const Qvx32f* line, int i) { return setDelayLine(s, line, i); }
QvxStatus qvxsFIRLMSSetDlyLine32f_16s(QvxsFIRLMSState32f_16s* s, const Qvx16s* line, int i) { return setDelayLine(s, line, i); }
QvxStatus qvxsFIRLMSFree_32f   (QvxsFIRLMSState_32f* s)    { return release(s); }
QvxStatus qvxsFIRLMSFree32f_16s(QvxsFIRLMSState32f_16s* s) { return release(s); }
QvxStatus qvxsFIRLMSOne_Direct_32f   (Qvx32f x, Qvx32f r, Qvx32f mu, Qvx32f* d, Qvx32f* h, int n, Qvx32f* line, int* i) { return one(x, r, mu, d, h, n, line, i); }
QvxStatus qvxsFIRLMSOne_Direct32f_16s(Qvx16s x, Qvx16s r, Qvx32f mu, Qvx16s* d, Qvx32f* h, int n, Qvx16s* line, int* i) { return one(x, r, mu, d, h, n, line, i); }
QvxStatus qvxsFIRLMSOne_DirectQ15_16s(Qvx16s x, Qvx16s r, int mu,    Qvx16s* d, Qvx32s* h, int n, Qvx16s* line, int* i) { return oneQ15(x, r, mu, d, h, n, line, i); }
// clang-format on
