// FIR filters of few taps, each at a delay of its own.
#include "convolution/sparse.h"

#include "frame/record.h"

using namespace qvx;
using namespace qvx::convolution;

// Taps and positions from the last to the first. The window has room for as many new samples as it has old ones, so that the head
// of a vector lies right after its past.
struct QvxsFIRSparseState_32f {
  Qvx32f* taps;
  Qvx32s* positions;
  Qvx32f* window;
  Qvx32s count;
  Qvx32s order;  // the last position
};

namespace {

constexpr int64_t kAlign = 16;

}  // namespace

// Fixed values of the interface, which count on more regions than there are.
QvxStatus qvxsFIRSparseGetStateSize_32f(int count, int order, int* size) {
  if (isNull(size)) return qvxStatNullPtr;
  if (count < 1 || order < 1) return qvxStatBadTapsLen;
  return reportBytes(64 + 2 * up<kAlign>(4 * int64_t{count}) + up<kAlign>(8 * int64_t{order}) + 16 * int64_t{count}, size);
}

QvxStatus qvxsFIRSparseInit_32f(QvxsFIRSparseState_32f** state, const Qvx32f* taps, const Qvx32s* positions, int count,
                                const Qvx32f* newestFirst, Qvx8u* block) {
  if (isNull(state) || isNull(taps) || isNull(positions) || isNull(block)) return qvxStatNullPtr;
  if (count < 1) return qvxStatBadTapsLen;
  if (!increases(positions, count, 0)) return qvxStatBadSparsePos;
  static_assert(sizeof(QvxsFIRSparseState_32f) + kAlign - 1 <= 64);
  Carver carver(block, kAlign);
  auto* s = carver.take<QvxsFIRSparseState_32f>(1);
  s->count = count;
  s->order = positions[count - 1];
  s->taps = carver.take<Qvx32f>(count);
  s->positions = carver.take<Qvx32s>(count);
  s->window = carver.take<Qvx32f>(2 * int64_t{s->order});
  std::reverse_copy(taps, taps + count, s->taps);
  std::reverse_copy(positions, positions + count, s->positions);
  for (int i = 0; i < s->order; ++i) s->window[i] = isNull(newestFirst) ? 0 : newestFirst[s->order - 1 - i];
  std::fill_n(s->window + s->order, s->order, 0.0F);
  *state = s;
  return qvxStatOk;
}

QvxStatus qvxsFIRSparse_32f(const Qvx32f* src, Qvx32f* dst, int len, QvxsFIRSparseState_32f* state) {
  if (isNull(src) || isNull(dst) || isNull(state)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  const size_t n = elements(len);
  const auto order = static_cast<size_t>(state->order);
  const size_t head = std::min(n, order);
  std::copy_n(src, head, state->window + order);
  sumTaps(state->taps, state->positions, state->count, state->window + order, dst, head);
  sumTaps(state->taps, state->positions, state->count, src + head, dst + head, n - head);
  moveOn(state->window, order, src + n, n);
  return qvxStatOk;
}
