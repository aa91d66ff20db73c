// The adaptive filter that decimates: 32-bit taps, 16-bit samples, exact sums.
#include "convolution/elements.h"
#include "frame/record.h"
#include "frame/reduce.h"
#include "frame/rounding.h"

using namespace qvx;
using namespace qvx::convolution;

namespace qvx::lms {

// H: a tap, S: a sample. Taps are stored with that of the oldest sample first; samples are stored as wide as taps, the last
// tapsLen of them from `oldest` on, which moves on with every sample, and back to the beginning when there is no more room.
template <class H_, class S_, uint32_t kNumber> struct MultirateRecord : RecordHead {
  using H = H_;
  using S = S_;
  static constexpr uint32_t kId = kNumber;
  static constexpr int64_t kRoom = 512;

  int tapsLen;
  int downFactor;
  Qvx32f mu;
  int64_t oldest;
  H* taps;
  H* line;

  static int64_t padded(int tapsLen) { return up<16>(int64_t{tapsLen}); }
  static int64_t bytes(int tapsLen) { return 128 + (2 * padded(tapsLen) + kRoom) * int64_t{sizeof(H)}; }
  size_t length() const { return static_cast<size_t>(tapsLen); }
  H* window() const { return line + oldest; }
};

}  // namespace qvx::lms

// The letters F, I and two digits: fixed values of the interface.
struct QvxsFIRLMSMRState32s_16s : qvx::lms::MultirateRecord<Qvx32s, Qvx16s, 0x46493335> {};
struct QvxsFIRLMSMRState32sc_16sc : qvx::lms::MultirateRecord<Qvx32sc, Qvx16sc, 0x46493336> {};

namespace {

template <class T> inline constexpr bool kIsComplex = PartsOf<T>::kCount == 2;

Qvx32s wide(Qvx16s v) { return v; }
Qvx32sc wide(Qvx16sc v) { return {v.re, v.im}; }
Qvx16s narrow(Qvx32s v) { return static_cast<Qvx16s>(v); }
Qvx16sc narrow(Qvx32sc v) { return {static_cast<Qvx16s>(v.re), static_cast<Qvx16s>(v.im)}; }

// ---- a step

// Sums of 64 bits that wrap. Complex: the products of like parts and of unlike ones.
struct RealProducts : Reduction {
  using Inner = int32_t;
  template <class V> auto start(V h, V x) const {
    return evenProducts(h, x) + evenProducts(hn::Shuffle2301(h), hn::Shuffle2301(x));
  }
  template <class A, class V> A add(A sum, V h, V x) const { return sum + start(h, x); }
  template <class A> int64_t total(A sum) const { return sumOfLanes(sum); }
};
struct ComplexProducts : Reduction {
  using Inner = int32_t;
  template <class V> auto start(V h, V x) const {
    const V other = hn::Shuffle2301(h);
    const V crossed = hn::Shuffle2301(x);
    const auto re = evenProducts(h, x) - evenProducts(other, crossed);
    return Pair<std::remove_const_t<decltype(re)>>{re, evenProducts(h, crossed) + evenProducts(other, x)};
  }
  template <class A, class V> A add(A sum, V h, V x) const { return join(sum, start(h, x)); }
  template <class A> Pair<int64_t> total(A sum) const { return {sumOfLanes(sum.lo), sumOfLanes(sum.hi)}; }
};

template <class R> auto output(const R& record, int scaleFactor) {
  const auto dot = [&](auto products) {
    const typename R::H* const taps = record.taps;
    const typename R::H* const window = record.window();
    return reduce(products, record.length() * PartsOf<typename R::H>::kCount, source(taps), source(window));
  };
  if constexpr (kIsComplex<typename R::H>) {
    const Pair<int64_t> y = dot(ComplexProducts());
    return Qvx16sc{scaled<Qvx16s>(y.lo, scaleFactor), scaled<Qvx16s>(y.hi, scaleFactor)};
  } else {
    return scaled<Qvx16s>(dot(RealProducts()), scaleFactor);
  }
}

// h + rint(factor * v), saturated, in doubles; v is exact. NaN gives the least tap, the second operand of the instruction.
template <class V, class W> V adapted(V h, W v, double factor) {
  constexpr double kFar = 0x1p33;      // added to any tap, it saturates
  constexpr double kWhole = 0x1.8p52;  // adding it rounds to an integer, in the scope's mode
  const W change = (hn::Min(hn::Max(same<W>(factor) * v, same<W>(-kFar)), same<W>(kFar)) + same<W>(kWhole)) - same<W>(kWhole);
  const W sum = convertLanes<double>(h) + change;
  return convertLanes<int32_t>(hn::Min(hn::Max(sum, same<W>(INT32_MIN)), same<W>(INT32_MAX)));
}

void adapt(QvxsFIRLMSMRState32s_16s& record, Qvx16s err) {
  const RoundingScope nearest(Rounding::kNearest);
  const double factor = 2.0 * record.mu * err;
  loop<double>([factor](auto h, auto x) { return adapted(h, convertLanes<double>(x), factor); }, destination(record.taps),
               record.length(), source(static_cast<const Qvx32s*>(record.taps)),
               source(static_cast<const Qvx32s*>(record.window())));
}
void adapt(QvxsFIRLMSMRState32sc_16sc& record, Qvx16sc err) {
  const RoundingScope nearest(Rounding::kNearest);
  const double factor = 2.0 * record.mu;
  // err * conj(x): re er + im ei and re ei - im er.
  const auto step = [=](auto h, auto x) {
    const auto v = convertLanes<double>(x);
    using W = std::remove_const_t<decltype(v)>;
    const W direct = hn::OddEven(same<W>(-err.re), same<W>(err.re));
    return adapted(h, direct * v + same<W>(err.im) * swapped(v), factor);
  };
  loop<double>(step, destination(record.taps), 2 * record.length(), source(static_cast<const Qvx32sc*>(record.taps)),
               source(static_cast<const Qvx32sc*>(record.window())));
}

template <class R> void push(R& record, typename R::S v) {
  const auto n = static_cast<int64_t>(record.tapsLen);
  if (record.oldest == R::kRoom) {
    std::copy_n(record.window(), n, record.line);
    record.oldest = 0;
  }
  record.line[record.oldest + n] = wide(v);
  ++record.oldest;
}

Qvx16s errorOf(Qvx16s ref, Qvx16s y) { return saturate<Qvx16s>(int32_t{ref} - y); }
Qvx16sc errorOf(Qvx16sc ref, Qvx16sc y) { return {errorOf(ref.re, y.re), errorOf(ref.im, y.im)}; }

// ---- records

template <class R> void setLine(R& record, const typename R::S* newestFirst) {
  record.oldest = 0;
  for (int64_t i = 0; i < record.tapsLen; ++i) {
    record.line[record.tapsLen - 1 - i] = isNull(newestFirst) ? typename R::H{} : wide(newestFirst[i]);
  }
}
template <class R> void setTaps(R& record, const typename R::H* taps) {
  for (int64_t i = 0; i < record.tapsLen; ++i) {
    record.taps[record.tapsLen - 1 - i] = isNull(taps) ? typename R::H{} : taps[i];
  }
}

QvxStatus checkSizes(int tapsLen, int downFactor) {
  if (tapsLen < 1) return qvxStatBadTapsLen;
  return downFactor < 1 ? qvxStatBadMRFactor : qvxStatOk;
}

template <class R> QvxStatus size(int tapsLen, int downFactor, int* pSize) {
  if (isNull(pSize)) return qvxStatNullPtr;
  const QvxStatus status = checkSizes(tapsLen, downFactor);
  return status == qvxStatOk ? reportBytes(R::bytes(tapsLen), pSize) : status;
}

template <class R>
QvxStatus init(R** ppState, const typename R::H* taps, int tapsLen, int downFactor, Qvx32f mu, const typename R::S* line,
               Qvx8u* block) {
  if (isNull(ppState) || isNull(block)) return qvxStatNullPtr;
  const QvxStatus status = checkSizes(tapsLen, downFactor);
  if (status != qvxStatOk) return status;
  return initRecord(ppState, block, [=](R& record, Carver& carver) {
    static_assert(sizeof(R) + Carver::kRecordAlignment <= 128);
    record.magic = R::kId;
    record.tapsLen = tapsLen;
    record.downFactor = downFactor;
    record.mu = mu;
    record.taps = carver.take<typename R::H>(R::padded(tapsLen));
    record.line = carver.take<typename R::H>(R::padded(tapsLen) + R::kRoom);
    setTaps(record, taps);
    setLine(record, line);
    return qvxStatOk;
  });
}

template <class R>
QvxStatus allocate(R** ppState, const typename R::H* taps, int tapsLen, int downFactor, Qvx32f mu, const typename R::S* line) {
  if (isNull(ppState)) return qvxStatNullPtr;
  const QvxStatus status = checkSizes(tapsLen, downFactor);
  if (status != qvxStatOk) return status;
  return allocateRecord(ppState, R::bytes(tapsLen),
                        [=](R** made, Qvx8u* block) { return init(made, taps, tapsLen, downFactor, mu, line, block); });
}

template <class R> QvxStatus release(R* state) {
  return releaseRecord(state, checkRecord(state, R::kId), InCallersBlock::kUntouched);
}

// Calls f() if the vectors are not null and the record may be used.
template <class R, class F, class... T> QvxStatus with(R* state, F f, const T*... vectors) {
  if ((isNull(vectors) || ...)) return qvxStatNullPtr;
  const QvxStatus status = checkRecord(state, R::kId);
  if (status == qvxStatOk) f();
  return status;
}

template <class R> QvxStatus setMu(R* state, Qvx32f mu) {
  return with(state, [=] { state->mu = mu; });
}
template <class R, class H> QvxStatus getTaps(const R* state, H* taps) {
  return with(
      state, [=] { copyReversed(state->taps, state->length(), taps); }, taps);
}
template <class R, class H> QvxStatus replaceTaps(const H* taps, R* state) {
  return with(
      state, [=] { setTaps(*state, taps); }, taps);
}
template <class R, class S> QvxStatus getLine(const R* state, S* line) {
  return with(
      state,
      [=] {
        std::transform(state->window(), state->window() + state->tapsLen, std::reverse_iterator(line + state->tapsLen),
                       [](auto v) { return narrow(v); });
      },
      line);
}
template <class R, class S> QvxStatus replaceLine(R* state, const S* line) {
  return with(state, [=] { setLine(*state, line); });
}
template <class R, class S> QvxStatus getValue(const R* state, S* value, int index) {
  if (isNull(value)) return qvxStatNullPtr;
  const QvxStatus status = checkRecord(state, R::kId);
  if (status != qvxStatOk) return status;
  if (index < 0 || index >= state->tapsLen) return qvxStatBadArg;
  *value = narrow(state->window()[state->tapsLen - 1 - index]);
  return qvxStatOk;
}
template <class R, class S> QvxStatus putValue(S v, R* state) {
  return with(state, [=] { push(*state, v); });
}
template <class R, class S> QvxStatus one(S* dst, R* state, int scaleFactor) {
  return with(
      state, [=] { *dst = output(*state, scaleFactor); }, dst);
}
template <class R, class S> QvxStatus update(S err, R* state) {
  return with(state, [=] { adapt(*state, err); });
}

template <class R, class S> QvxStatus run(const S* src, const S* ref, S* dst, int numIters, R* state, int scaleFactor) {
  if (isNull(src) || isNull(ref) || isNull(dst) || isNull(state)) return qvxStatNullPtr;
  if (numIters < 1) return qvxStatBadSize;
  const QvxStatus status = checkRecord(state, R::kId);
  if (status != qvxStatOk) return status;
  for (int i = 0; i < numIters; ++i) {
    for (int k = 0; k < state->downFactor; ++k) push(*state, *src++);
    const S y = output(*state, scaleFactor);
    adapt(*state, errorOf(ref[i], y));
    dst[i] = y;
  }
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsFIRLMSMRGetStateSize32s_16s(int n, int down, int* size) { return ::size<QvxsFIRLMSMRState32s_16s>(n, down, size); }
QvxStatus qvxsFIRLMSMRInit32s_16s(QvxsFIRLMSMRState32s_16s** s, const Qvx32s* h, int n, int down, Qvx32f mu, const Qvx16s* line, Qvx8u* block) { return init(s, h, n, down, mu, line, block); }
QvxStatus qvxsFIRLMSMRInitAlloc32s_16s(QvxsFIRLMSMRState32s_16s** s, const Qvx32s* h, int n, int down, Qvx32f mu, const Qvx16s* line) { return allocate(s, h, n, down, mu, line); }
QvxStatus qvxsFIRLMSMRFree32s_16s(QvxsFIRLMSMRState32s_16s* s) { return release(s); }
QvxStatus qvxsFIRLMSMRSetMu32s_16s(QvxsFIRLMSMRState32s_16s* s, Qvx32f mu) { return setMu(s, mu); }
QvxStatus qvxsFIRLMSMRGetTaps32s_16s(const QvxsFIRLMSMRState32s_16s* s, Qvx32s* h) { return getTaps(s, h); }
QvxStatus qvxsFIRLMSMRSetTaps32s_16s(const Qvx32s* h, QvxsFIRLMSMRState32s_16s* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRLMSMRGetDlyLine32s_16s(const QvxsFIRLMSMRState32s_16s* s, Qvx16s* line) { return getLine(s, line); }
QvxStatus qvxsFIRLMSMRSetDlyLine32s_16s(QvxsFIRLMSMRState32s_16s* s, const Qvx16s* line) { return replaceLine(s, line); }
QvxStatus qvxsFIRLMSMRGetDlyVal32s_16s(const QvxsFIRLMSMRState32s_16s* s, Qvx16s* v, int i) { return getValue(s, v, i); }
QvxStatus qvxsFIRLMSMRPutVal32s_16s(Qvx16s v, QvxsFIRLMSMRState32s_16s* s) { return putValue(v, s); }
QvxStatus qvxsFIRLMSMROne32s_16s_Sfs(Qvx16s* d, QvxsFIRLMSMRState32s_16s* s, int sf) { return one(d, s, sf); }
QvxStatus qvxsFIRLMSMRUpdateTaps32s_16s(Qvx16s err, QvxsFIRLMSMRState32s_16s* s) { return update(err, s); }
QvxStatus qvxsFIRLMSMR32s_16s_Sfs(const Qvx16s* x, const Qvx16s* r, Qvx16s* d, int n, QvxsFIRLMSMRState32s_16s* s, int sf) { return run(x, r, d, n, s, sf); }
QvxStatus qvxsFIRLMSMRGetStateSize32sc_16sc(int n, int down, int* size) { return ::size<QvxsFIRLMSMRState32sc_16sc>(n, down, size); }
QvxStatus qvxsFIRLMSMRInit32sc_16sc(QvxsFIRLMSMRState32sc_16sc** s, const Qvx32sc* h, int n, int down, Qvx32f mu, const Qvx16sc* line, Qvx8u* block) { return init(s, h, n, down, mu, line, block); }
QvxStatus qvxsFIRLMSMRInitAlloc32sc_16sc(QvxsFIRLMSMRState32sc_16sc** s, const Qvx32sc* h, int n, int down, Qvx32f mu, const Qvx16sc* line) { return allocate(s, h, n, down, mu, line); }
QvxStatus qvxsFIRLMSMRFree32sc_16sc(QvxsFIRLMSMRState32sc_16sc* s) { return release(s); }
QvxStatus qvxsFIRLMSMRSetMu32sc_16sc(QvxsFIRLMSMRState32sc_16sc* s, Qvx32f mu) { return setMu(s, mu); }
QvxStatus qvxsFIRLMSMRGetTaps32sc_16sc(const QvxsFIRLMSMRState32sc_16sc* s, Qvx32sc* h) { return getTaps(s, h); }
QvxStatus qvxsFIRLMSMRSetTaps32sc_16sc(const Qvx32sc* h, QvxsFIRLMSMRState32sc_16sc* s) { return replaceTaps(h, s); }
QvxStatus qvxsFIRLMSMRGetDlyLine32sc_16sc(const QvxsFIRLMSMRState32sc_16sc* s, Qvx16sc* line) { return getLine(s, line); }
QvxStatus qvxsFIRLMSMRSetDlyLine32sc_16sc(QvxsFIRLMSMRState32sc_16sc* s, const Qvx16sc* line) { return replaceLine(s, line); }
QvxStatus qvxsFIRLMSMRGetDlyVal32sc_16sc(const QvxsFIRLMSMRState32sc_16sc* s, Qvx16sc* v, int i) { return getValue(s, v, i); }
QvxStatus qvxsFIRLMSMRPutVal32sc_16sc(Qvx16sc v, QvxsFIRLMSMRState32sc_16sc* s) { return putValue(v, s); }
QvxStatus qvxsFIRLMSMROne32sc_16sc_Sfs(Qvx16sc* d, QvxsFIRLMSMRState32sc_16sc* s, int sf) { return one(d, s, sf); }
QvxStatus qvxsFIRLMSMRUpdateTaps32sc_16sc(Qvx16sc err, QvxsFIRLMSMRState32sc_16sc* s) { return update(err, s); }
QvxStatus qvxsFIRLMSMR32sc_16sc_Sfs(const Qvx16sc* x, const Qvx16sc* r, Qvx16sc* d, int n, QvxsFIRLMSMRState32sc_16sc* s, int sf) { return run(x, r, d, n, s, sf); }
// clang-format on
