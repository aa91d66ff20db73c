// Recursive filters of few taps, each at a delay of its own.
#include "convolution/sparse.h"
#include "frame/record.h"

using namespace qvx;
using namespace qvx::convolution;

namespace qvx::iir {

// One side of the filter: its taps in the caller's order, and a window of the last samples, oldest first, with room after it for
// as many new ones, so that the head of a vector lies right after its past.
struct SparseSide {
  Qvx32f* taps;
  Qvx32s* positions;
  Qvx32f* window;
  Qvx32s count;
  Qvx32s order;  // the last position
};

}  // namespace qvx::iir

using qvx::iir::SparseSide;

struct QvxsIIRSparseState_32f {
  SparseSide b;
  SparseSide a;
};

namespace {

constexpr int64_t kAlign = 16;

template <class T> constexpr int64_t bytesOf(int64_t count) { return up<kAlign>(count * int64_t{sizeof(T)}); }

void fill(SparseSide& side, const Qvx32f* taps, const Qvx32s* positions, const Qvx32f* newestFirst) {
  std::copy_n(taps, side.count, side.taps);
  std::copy_n(positions, side.count, side.positions);
  for (int i = 0; i < side.order; ++i) side.window[i] = isNull(newestFirst) ? 0 : newestFirst[side.order - 1 - i];
}

void feed(const SparseSide& b, const Qvx32f* src, Qvx32f* dst, size_t n) { sumTaps(b.taps, b.positions, b.count, src, dst, n); }

// y holds the feed-forward sums. Takes as many outputs at a time as do not depend on each other: the position of the nearest tap.
void feedBack(const SparseSide& a, Qvx32f* y, size_t n) {
  const auto reach = static_cast<size_t>(a.positions[0]);
  constexpr size_t kWorthVectors = 16;
  if (reach < kWorthVectors) {
    for (size_t i = 0; i < n; ++i) {
      Qvx32f all = y[i];
      for (int k = 0; k < a.count; ++k) all += a.taps[k] * y[static_cast<int64_t>(i) - a.positions[k]];
      y[i] = all;
    }
    return;
  }
  const size_t step = std::min<size_t>(reach, 1024);
  for (size_t at = 0; at < n; at += step) {
    const size_t count = std::min(step, n - at);
    for (int k = 0; k < a.count; ++k) addTap(y + at - a.positions[k], y + at, count, a.taps[k]);
  }
}

}  // namespace

QvxStatus qvxsIIRSparseGetStateSize_32f(int tapsB, int tapsA, int orderB, int orderA, int* size) {
  if (isNull(size)) return qvxStatNullPtr;
  if (tapsB < 1 || tapsA < 0) return qvxStatBadIIROrder;
  if (orderB < 0 || orderA < 0) return qvxStatBadSparsePos;
  const int64_t windows = (8 * (int64_t{orderB} + orderA) + 23) & -kAlign;
  *size = static_cast<int>(2 * bytesOf<Qvx32f>(tapsB) + 2 * bytesOf<Qvx32f>(tapsA) + windows + 80);
  return qvxStatOk;
}

QvxStatus qvxsIIRSparseInit_32f(QvxsIIRSparseState_32f** state, const Qvx32f* taps, const Qvx32s* positions, int tapsB, int tapsA,
                                const Qvx32f* line, Qvx8u* block) {
  if (isNull(state) || isNull(taps) || isNull(positions) || isNull(block)) return qvxStatNullPtr;
  if (tapsB < 1 || tapsA < 1) return qvxStatBadIIROrder;
  if (!increases(positions, tapsB, 0) || !increases(positions + tapsB, tapsA, 1)) return qvxStatBadSparsePos;
  Carver carver(block, kAlign);
  auto* s = carver.take<QvxsIIRSparseState_32f>(1);
  const auto place = [&](SparseSide& side, int count, const Qvx32s* at) {
    side.count = count;
    side.order = at[count - 1];
    side.taps = carver.take<Qvx32f>(count);
    side.positions = carver.take<Qvx32s>(count);
    side.window = carver.take<Qvx32f>(2 * int64_t{side.order});
  };
  place(s->b, tapsB, positions);
  place(s->a, tapsA, positions + tapsB);
  fill(s->b, taps, positions, line);
  fill(s->a, taps + tapsB, positions + tapsB, isNull(line) ? line : line + s->b.order);
  *state = s;
  return qvxStatOk;
}

QvxStatus qvxsIIRSparse_32f(const Qvx32f* src, Qvx32f* dst, int len, QvxsIIRSparseState_32f* state) {
  if (isNull(src) || isNull(dst) || isNull(state)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  const size_t n = elements(len);
  const SparseSide& b = state->b;
  const SparseSide& a = state->a;

  const size_t headB = std::min(n, static_cast<size_t>(b.order));
  std::copy_n(src, headB, b.window + b.order);
  feed(b, b.window + b.order, dst, headB);
  feed(b, src + headB, dst + headB, n - headB);
  moveOn(b.window, static_cast<size_t>(b.order), src + n, n);

  const size_t headA = std::min(n, static_cast<size_t>(a.order));
  std::copy_n(dst, headA, a.window + a.order);
  feedBack(a, a.window + a.order, headA);
  std::copy_n(a.window + a.order, headA, dst);
  feedBack(a, dst + headA, n - headA);
  moveOn(a.window, static_cast<size_t>(a.order), dst + n, n);
  return qvxStatOk;
}
