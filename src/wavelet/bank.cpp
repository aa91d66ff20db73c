// The wavelet filter bank: a stage that splits a stream into two of half its rate, and one that joins them again.
#include <bit>
#include <cstring>

#include "frame/record.h"
#include "wavelet/stages.h"

using namespace qvx;
using namespace qvx::wavelet;

namespace {

// ---- streams

// Some values, mostly a few: a call of memcpy takes 5 ns.
void copy(const Qvx32f* from, int64_t n, Qvx32f* to) {
  const TagOf<V> d;
  const auto count = static_cast<size_t>(n);
  size_t at = 0;
  for (; at + N <= count; at += N) store(load(d, from + at), d, to + at);
  if (at < count) storeFirst(loadFirst(d, from + at, count - at), d, to + at, count - at);
}

// Moves the history on by n values, which follow it in the window or end at `end`.
void keep(Band& band, const Qvx32f* end, int64_t n) {
  copy(n >= band.history ? end - band.history : band.window + n, band.history, band.window);
}

// Calls of up to this many results go through the window as a whole: 32 results of 20 taps then take half as long as in two
// parts.
constexpr int64_t kShort = 64;

// How many of `count` results go through the window: those that reach back to the history; all, in a short call or if the others
// would be less than a vector.
int64_t throughWindow(int64_t count, int64_t reachBack) {
  return count <= kShort || count - reachBack < static_cast<int64_t>(N) ? count : reachBack;
}

// The copy in the window is read last, when it is in the cache: loading what was just stored in parts costs 5 ns.
template <size_t kBands>
void splitStream(SplittingBand& band, const Qvx32f* const (&taps)[kBands], const Qvx32f* x, Qvx32f* const (&dst)[kBands],
                 int64_t count) {
  const int64_t head = throughWindow(count, (band.history + 1) / 2);
  copy(x, 2 * head, band.window + band.history);
  Qvx32f* rest[kBands];
  for (size_t b = 0; b < kBands; ++b) rest[b] = dst[b] + head;
  splitMany<kBands>(band, taps, x + 2 * head - band.history, static_cast<size_t>(count - head), rest);
  splitMany<kBands>(band, taps, band.window, static_cast<size_t>(head), dst);
  keep(band, x + 2 * count, 2 * count);
}

void split(Bank<SplittingBand>& bank, const Qvx32f* x, Qvx32f* low, Qvx32f* high, int64_t count) {
  if (bank.sharesWindow) return splitStream<2>(*bank.low, {bank.low->taps, bank.high->taps}, x, {low, high}, count);
  splitStream<1>(*bank.low, {bank.low->taps}, x, {low}, count);
  splitStream<1>(*bank.high, {bank.high->taps}, x, {high}, count);
}

void join(Bank<JoiningBand>& bank, const Qvx32f* low, const Qvx32f* high, Qvx32f* dst, int64_t count) {
  const int64_t head = throughWindow(count, std::max(bank.low->history, bank.high->history));
  copy(low, head, bank.low->window + bank.low->history);
  copy(high, head, bank.high->window + bank.high->history);
  joinMany(bank, low + head - bank.low->history, high + head - bank.high->history, static_cast<size_t>(count - head),
           dst + 2 * head);
  joinMany(bank, bank.low->window, bank.high->window, static_cast<size_t>(head), dst);
  keep(*bank.low, low + count, count);
  keep(*bank.high, high + count, count);
}

// ---- filters as they are stored

// New values that a window may have to hold: those of a short call, or of the results that reach back and of less than a vector
// more.
int64_t room(const SplittingBand& band, int64_t) { return std::max<int64_t>(2 * kShort, band.history + 1 + 2 * N); }
int64_t room(const JoiningBand&, int64_t mostHistory) { return std::max<int64_t>(kShort, mostHistory + N); }

void shape(SplittingBand& band) {
  band.isOdd = band.length % 2 != 0;
  band.pairs = band.length / 2 + band.length % 2;
  band.history = std::max<int64_t>(2 * int64_t{band.pairs} + band.offset - 1, 0);
}
void setTaps(SplittingBand& band, const Qvx32f* h) {
  band.taps[0] = 0;
  std::reverse_copy(h, h + band.length, band.taps + (band.isOdd ? 1 : 0));
}

// An offset of -1 begins like 1.
void shape(JoiningBand& band) {
  band.newestInSecondOnly = band.offset % 2 != 0;
  band.oldestInFirstOnly = (band.length % 2 != 0) != band.newestInSecondOnly;
  band.pairs = static_cast<int>((int64_t{band.length} + (band.newestInSecondOnly ? 2 : 1)) / 2);
  band.history = band.offset / 2 + int64_t{band.pairs} - 1;
}
void setTaps(JoiningBand& band, const Qvx32f* h) {
  const int first = band.newestInSecondOnly ? 1 : 0;
  for (int i = 0; i < band.pairs; ++i) {
    for (const int result : {0, 1}) {
      const int64_t k = 2 * int64_t{i} + result - first;
      band.taps[2 * (band.pairs - 1 - int64_t{i}) + result] = k >= 0 && k < band.length ? h[k] : 0;
    }
  }
}

// ---- delay lines as callers see them: of the history, the newest

int64_t lineLen(const SplittingBand& band) { return std::max<int64_t>(int64_t{band.length} + band.offset - 1, 0); }
int64_t lineLen(const JoiningBand& band) { return std::max<int64_t>((int64_t{band.length} + band.offset - 1) / 2, 0); }

template <class Part> void setLine(Part& band, const Qvx32f* line) {
  const int64_t n = lineLen(band);
  std::fill_n(band.window, band.history - n, 0.0F);
  std::copy_n(line, n, band.window + band.history - n);
}
template <class Part> void getLine(const Part& band, Qvx32f* line) {
  const int64_t n = lineLen(band);
  std::copy_n(band.window + band.history - n, n, line);
}

void shareWindow(Bank<SplittingBand>& bank) {
  const SplittingBand& low = *bank.low;
  const SplittingBand& high = *bank.high;
  const auto sameBits = [](Qvx32f a, Qvx32f b) { return std::bit_cast<uint32_t>(a) == std::bit_cast<uint32_t>(b); };
  bank.sharesWindow = low.length == high.length && low.offset == high.offset &&
                      std::equal(low.window, low.window + low.history, high.window, sameBits);
}
void shareWindow(Bank<JoiningBand>&) {}

// ---- records

template <class Part_, class Other_, int kNumber> struct Stage : Bank<Part_> {
  using Part = Part_;
  using Other = Other_;  // the type of what is not 32f in a record for integers
  static constexpr uint32_t kId = kNumber;
  static constexpr int kBufferLen = std::is_same_v<Other, Qvx32f> ? 0 : 1024;
};

}  // namespace

struct QvxsWTFwdState_32f : Stage<SplittingBand, Qvx32f, 41> {};
struct QvxsWTFwdState_8u32f : Stage<SplittingBand, Qvx8u, 42> {};
struct QvxsWTFwdState_8s32f : Stage<SplittingBand, Qvx8s, 43> {};
struct QvxsWTFwdState_16u32f : Stage<SplittingBand, Qvx16u, 44> {};
struct QvxsWTFwdState_16s32f : Stage<SplittingBand, Qvx16s, 45> {};
struct QvxsWTInvState_32f : Stage<JoiningBand, Qvx32f, 50> {};
struct QvxsWTInvState_32f8u : Stage<JoiningBand, Qvx8u, 51> {};
struct QvxsWTInvState_32f8s : Stage<JoiningBand, Qvx8s, 52> {};
struct QvxsWTInvState_32f16u : Stage<JoiningBand, Qvx16u, 53> {};
struct QvxsWTInvState_32f16s : Stage<JoiningBand, Qvx16s, 54> {};

namespace {

// Everything a record points to is there, and its buffer is as long as it says.
template <class S> QvxStatus checkStage(const S* state) {
  const QvxStatus status = checkRecord(state, S::kId);
  if (status != qvxStatOk) return status;
  const auto isWhole = [](const Band* band) { return !isNull(band) && !isNull(band->taps) && !isNull(band->window); };
  const bool bufferFits = state->bufferLen >= 0 && (state->bufferLen != 0) == !isNull(state->buffer);
  return isWhole(state->low) && isWhole(state->high) && bufferFits ? qvxStatOk : qvxStatContextMismatch;
}

template <class S>
QvxStatus allocate(S** ppState, const Qvx32f* tapsLow, int lenLow, int offsLow, const Qvx32f* tapsHigh, int lenHigh,
                   int offsHigh) {
  if (isNull(ppState) || isNull(tapsLow)) return qvxStatNullPtr;
  if (lenLow < 1) return qvxStatBadSize;
  if (isNull(tapsHigh)) return qvxStatNullPtr;
  if (lenHigh < 1) return qvxStatBadSize;
  if (offsLow < -1 || offsHigh < -1) return qvxStatBadWTOffset;

  using Part = typename S::Part;
  Part low{};
  Part high{};
  low.length = lenLow;
  low.offset = offsLow;
  high.length = lenHigh;
  high.offset = offsHigh;
  shape(low);
  shape(high);
  const int64_t mostHistory = std::max(low.history, high.history);
  const auto values = [&](const Part& band) { return 2 * int64_t{band.pairs} + band.history + room(band, mostHistory) + kPast; };
  const int64_t floats = values(low) + values(high) + S::kBufferLen;
  const int64_t bytes =
      2 * Carver::kLine + up<Carver::kLine>(sizeof(S)) + 2 * int64_t{sizeof(Part)} + floats * int64_t{sizeof(Qvx32f)};
  Block block(bytes > std::numeric_limits<int>::max() ? 0 : bytes);
  if (!block) {
    *ppState = nullptr;
    return qvxStatNoMem;
  }
  std::memset(block.get(), 0, static_cast<size_t>(bytes));
  Carver carver(block.get());
  auto* state = carver.take<S>(1);
  const auto place = [&](const Part& shaped, const Qvx32f* h) {
    auto* band = carver.take<Part>(1);
    *band = shaped;
    band->taps = carver.take<Qvx32f>(2 * int64_t{band->pairs});
    band->window = carver.take<Qvx32f>(band->history + room(*band, mostHistory) + kPast);
    setTaps(*band, h);
    return band;
  };
  state->low = place(low, tapsLow);
  state->high = place(high, tapsHigh);
  shareWindow(*state);
  state->bufferLen = S::kBufferLen;
  if (state->bufferLen != 0) state->buffer = carver.take<Qvx32f>(state->bufferLen);
  state->magic = S::kId;
  block.keep();
  *ppState = state;
  return qvxStatOk;
}

template <class S> QvxStatus release(S* state) {
  const QvxStatus status = checkStage(state);
  if (status != qvxStatOk) return status;
  state->magic = 0;
  qvxFree(state);
  return qvxStatOk;
}

template <class S> QvxStatus setLines(S* state, const Qvx32f* low, const Qvx32f* high) {
  const QvxStatus status = checkStage(state);
  if (status != qvxStatOk) return status;
  if (isNull(low) || isNull(high)) return qvxStatNullPtr;
  setLine(*state->low, low);
  setLine(*state->high, high);
  shareWindow(*state);
  return qvxStatOk;
}
template <class S> QvxStatus getLines(const S* state, Qvx32f* low, Qvx32f* high) {
  const QvxStatus status = checkStage(state);
  if (status != qvxStatOk) return status;
  if (isNull(low) || isNull(high)) return qvxStatNullPtr;
  getLine(*state->low, low);
  getLine(state->sharesWindow ? *state->low : *state->high, high);
  return qvxStatOk;
}

QvxStatus toFloats(const Qvx8u* x, Qvx32f* d, int n) { return qvxsConvert_8u32f(x, d, n); }
QvxStatus toFloats(const Qvx8s* x, Qvx32f* d, int n) { return qvxsConvert_8s32f(x, d, n); }
QvxStatus toFloats(const Qvx16u* x, Qvx32f* d, int n) { return qvxsConvert_16u32f(x, d, n); }
QvxStatus toFloats(const Qvx16s* x, Qvx32f* d, int n) { return qvxsConvert_16s32f(x, d, n); }
constexpr QvxRoundMode kToEven = qvxRoundNearestEven;
QvxStatus toIntegers(const Qvx32f* x, Qvx8u* d, int n) { return qvxsConvert_32f8u_Sfs(x, d, n, kToEven, 0); }
QvxStatus toIntegers(const Qvx32f* x, Qvx8s* d, int n) { return qvxsConvert_32f8s_Sfs(x, d, n, kToEven, 0); }
QvxStatus toIntegers(const Qvx32f* x, Qvx16u* d, int n) { return qvxsConvert_32f16u_Sfs(x, d, n, kToEven, 0); }
QvxStatus toIntegers(const Qvx32f* x, Qvx16s* d, int n) { return qvxsConvert_32f16s_Sfs(x, d, n, kToEven, 0); }

// Integers pass through the buffer, piece by piece.
template <class S, class T> QvxStatus forward(const T* src, Qvx32f* low, Qvx32f* high, int len, S* state) {
  QvxStatus status = checkStage(state);
  if (status != qvxStatOk) return status;
  status = check(len, src, low, high);
  if (status != qvxStatOk) return status;
  if constexpr (S::kBufferLen == 0) {
    split(*state, src, low, high, len);
  } else {
    for (int at = 0; at < len; at += S::kBufferLen / 2) {
      const int count = std::min(len - at, S::kBufferLen / 2);
      toFloats(src + 2 * int64_t{at}, state->buffer, 2 * count);
      split(*state, state->buffer, low + at, high + at, count);
    }
  }
  return qvxStatOk;
}

template <class S, class T> QvxStatus inverse(const Qvx32f* low, const Qvx32f* high, int len, T* dst, S* state) {
  QvxStatus status = checkStage(state);
  if (status != qvxStatOk) return status;
  status = check(len, low, high);
  if (status != qvxStatOk) return status;
  if (isNull(dst)) return qvxStatNullPtr;
  if constexpr (S::kBufferLen == 0) {
    join(*state, low, high, dst, len);
  } else {
    for (int at = 0; at < len; at += S::kBufferLen / 2) {
      const int count = std::min(len - at, S::kBufferLen / 2);
      join(*state, low + at, high + at, state->buffer, count);
      toIntegers(state->buffer, dst + 2 * int64_t{at}, 2 * count);
    }
  }
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsWTFwdInitAlloc_32f(QvxsWTFwdState_32f** s, const Qvx32f* low, int lenLow, int offsLow, const Qvx32f* high, int lenHigh, int offsHigh) { return allocate(s, low, lenLow, offsLow, high, lenHigh, offsHigh); }
QvxStatus qvxsWTFwdInitAlloc_8u32f(QvxsWTFwdState_8u32f** s, const Qvx32f* low, int lenLow, int offsLow, const Qvx32f* high, int lenHigh, int offsHigh) { return allocate(s, low, lenLow, offsLow, high, lenHigh, offsHigh); }
QvxStatus qvxsWTFwdInitAlloc_8s32f(QvxsWTFwdState_8s32f** s, const Qvx32f* low, int lenLow, int offsLow, const Qvx32f* high, int lenHigh, int offsHigh) { return allocate(s, low, lenLow, offsLow, high, lenHigh, offsHigh); }
QvxStatus qvxsWTFwdInitAlloc_16u32f(QvxsWTFwdState_16u32f** s, const Qvx32f* low, int lenLow, int offsLow, const Qvx32f* high, int lenHigh, int offsHigh) { return allocate(s, low, lenLow, offsLow, high, lenHigh, offsHigh); }
QvxStatus qvxsWTFwdInitAlloc_16s32f(QvxsWTFwdState_16s32f** s, const Qvx32f* low, int lenLow, int offsLow, const Qvx32f* high, int lenHigh, int offsHigh) { return allocate(s, low, lenLow, offsLow, high, lenHigh, offsHigh); }
QvxStatus qvxsWTFwd_32f(const Qvx32f* x, Qvx32f* low, Qvx32f* high, int len, QvxsWTFwdState_32f* s) { return forward(x, low, high, len, s); }
QvxStatus qvxsWTFwd_8u32f(const Qvx8u* x, Qvx32f* low, Qvx32f* high, int len, QvxsWTFwdState_8u32f* s) { return forward(x, low, high, len, s); }
QvxStatus qvxsWTFwd_8s32f(const Qvx8s* x, Qvx32f* low, Qvx32f* high, int len, QvxsWTFwdState_8s32f* s) { return forward(x, low, high, len, s); }
QvxStatus qvxsWTFwd_16u32f(const Qvx16u* x, Qvx32f* low, Qvx32f* high, int len, QvxsWTFwdState_16u32f* s) { return forward(x, low, high, len, s); }
QvxStatus qvxsWTFwd_16s32f(const Qvx16s* x, Qvx32f* low, Qvx32f* high, int len, QvxsWTFwdState_16s32f* s) { return forward(x, low, high, len, s); }
QvxStatus qvxsWTFwdSetDlyLine_32f(QvxsWTFwdState_32f* s, const Qvx32f* low, const Qvx32f* high) { return setLines(s, low, high); }
QvxStatus qvxsWTFwdSetDlyLine_8u32f(QvxsWTFwdState_8u32f* s, const Qvx32f* low, const Qvx32f* high) { return setLines(s, low, high); }
QvxStatus qvxsWTFwdSetDlyLine_8s32f(QvxsWTFwdState_8s32f* s, const Qvx32f* low, const Qvx32f* high) { return setLines(s, low, high); }
QvxStatus qvxsWTFwdSetDlyLine_16u32f(QvxsWTFwdState_16u32f* s, const Qvx32f* low, const Qvx32f* high) { return setLines(s, low, high); }
QvxStatus qvxsWTFwdSetDlyLine_16s32f(QvxsWTFwdState_16s32f* s, const Qvx32f* low, const Qvx32f* high) { return setLines(s, low, high); }
QvxStatus qvxsWTFwdGetDlyLine_32f(const QvxsWTFwdState_32f* s, Qvx32f* low, Qvx32f* high) { return getLines(s, low, high); }
QvxStatus qvxsWTFwdGetDlyLine_8u32f(const QvxsWTFwdState_8u32f* s, Qvx32f* low, Qvx32f* high) { return getLines(s, low, high); }
QvxStatus qvxsWTFwdGetDlyLine_8s32f(const QvxsWTFwdState_8s32f* s, Qvx32f* low, Qvx32f* high) { return getLines(s, low, high); }
QvxStatus qvxsWTFwdGetDlyLine_16u32f(const QvxsWTFwdState_16u32f* s, Qvx32f* low, Qvx32f* high) { return getLines(s, low, high); }
QvxStatus qvxsWTFwdGetDlyLine_16s32f(const QvxsWTFwdState_16s32f* s, Qvx32f* low, Qvx32f* high) { return getLines(s, low, high); }
QvxStatus qvxsWTFwdFree_32f(QvxsWTFwdState_32f* s) { return release(s); }
QvxStatus qvxsWTFwdFree_8u32f(QvxsWTFwdState_8u32f* s) { return release(s); }
QvxStatus qvxsWTFwdFree_8s32f(QvxsWTFwdState_8s32f* s) { return release(s); }
QvxStatus qvxsWTFwdFree_16u32f(QvxsWTFwdState_16u32f* s) { return release(s); }
QvxStatus qvxsWTFwdFree_16s32f(QvxsWTFwdState_16s32f* s) { return release(s); }
QvxStatus qvxsWTInvInitAlloc_32f(QvxsWTInvState_32f** s, const Qvx32f* low, int lenLow, int offsLow, const Qvx32f* high, int lenHigh, int offsHigh) { return allocate(s, low, lenLow, offsLow, high, lenHigh, offsHigh); }
QvxStatus qvxsWTInvInitAlloc_32f8u(QvxsWTInvState_32f8u** s, const Qvx32f* low, int lenLow, int offsLow, const Qvx32f* high, int lenHigh, int offsHigh) { return allocate(s, low, lenLow, offsLow, high, lenHigh, offsHigh); }
QvxStatus qvxsWTInvInitAlloc_32f8s(QvxsWTInvState_32f8s** s, const Qvx32f* low, int lenLow, int offsLow, const Qvx32f* high, int lenHigh, int offsHigh) { return allocate(s, low, lenLow, offsLow, high, lenHigh, offsHigh); }
QvxStatus qvxsWTInvInitAlloc_32f16u(QvxsWTInvState_32f16u** s, const Qvx32f* low, int lenLow, int offsLow, const Qvx32f* high, int lenHigh, int offsHigh) { return allocate(s, low, lenLow, offsLow, high, lenHigh, offsHigh); }
QvxStatus qvxsWTInvInitAlloc_32f16s(QvxsWTInvState_32f16s** s, const Qvx32f* low, int lenLow, int offsLow, const Qvx32f* high, int lenHigh, int offsHigh) { return allocate(s, low, lenLow, offsLow, high, lenHigh, offsHigh); }
QvxStatus qvxsWTInv_32f(const Qvx32f* low, const Qvx32f* high, int len, Qvx32f* d, QvxsWTInvState_32f* s) { return inverse(low, high, len, d, s); }
QvxStatus qvxsWTInv_32f8u(const Qvx32f* low, const Qvx32f* high, int len, Qvx8u* d, QvxsWTInvState_32f8u* s) { return inverse(low, high, len, d, s); }
QvxStatus qvxsWTInv_32f8s(const Qvx32f* low, const Qvx32f* high, int len, Qvx8s* d, QvxsWTInvState_32f8s* s) { return inverse(low, high, len, d, s); }
QvxStatus qvxsWTInv_32f16u(const Qvx32f* low, const Qvx32f* high, int len, Qvx16u* d, QvxsWTInvState_32f16u* s) { return inverse(low, high, len, d, s); }
QvxStatus qvxsWTInv_32f16s(const Qvx32f* low, const Qvx32f* high, int len, Qvx16s* d, QvxsWTInvState_32f16s* s) { return inverse(low, high, len, d, s); }
QvxStatus qvxsWTInvSetDlyLine_32f(QvxsWTInvState_32f* s, const Qvx32f* low, const Qvx32f* high) { return setLines(s, low, high); }
QvxStatus qvxsWTInvSetDlyLine_32f8u(QvxsWTInvState_32f8u* s, const Qvx32f* low, const Qvx32f* high) { return setLines(s, low, high); }
QvxStatus qvxsWTInvSetDlyLine_32f8s(QvxsWTInvState_32f8s* s, const Qvx32f* low, const Qvx32f* high) { return setLines(s, low, high); }
QvxStatus qvxsWTInvSetDlyLine_32f16u(QvxsWTInvState_32f16u* s, const Qvx32f* low, const Qvx32f* high) { return setLines(s, low, high); }
QvxStatus qvxsWTInvSetDlyLine_32f16s(QvxsWTInvState_32f16s* s, const Qvx32f* low, const Qvx32f* high) { return setLines(s, low, high); }
QvxStatus qvxsWTInvGetDlyLine_32f(const QvxsWTInvState_32f* s, Qvx32f* low, Qvx32f* high) { return getLines(s, low, high); }
QvxStatus qvxsWTInvGetDlyLine_32f8u(const QvxsWTInvState_32f8u* s, Qvx32f* low, Qvx32f* high) { return getLines(s, low, high); }
QvxStatus qvxsWTInvGetDlyLine_32f8s(const QvxsWTInvState_32f8s* s, Qvx32f* low, Qvx32f* high) { return getLines(s, low, high); }
QvxStatus qvxsWTInvGetDlyLine_32f16u(const QvxsWTInvState_32f16u* s, Qvx32f* low, Qvx32f* high) { return getLines(s, low, high); }
QvxStatus qvxsWTInvGetDlyLine_32f16s(const QvxsWTInvState_32f16s* s, Qvx32f* low, Qvx32f* high) { return getLines(s, low, high); }
QvxStatus qvxsWTInvFree_32f(QvxsWTInvState_32f* s) { return release(s); }
QvxStatus qvxsWTInvFree_32f8u(QvxsWTInvState_32f8u* s) { return release(s); }
QvxStatus qvxsWTInvFree_32f8s(QvxsWTInvState_32f8s* s) { return release(s); }
QvxStatus qvxsWTInvFree_32f16u(QvxsWTInvState_32f16u* s) { return release(s); }
QvxStatus qvxsWTInvFree_32f16s(QvxsWTInvState_32f16s* s) { return release(s); }
// clang-format on
