// Records of adaptive filters.
#include "convolution/elements.h"
#include "frame/record.h"
#include "lms/steps.h"

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

constexpr size_t kChunk = 1024;  // samples

int64_t wholeVectors(int64_t n) { return up<static_cast<int64_t>(kVectorElements<Qvx32f>)>(n); }

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
  const int64_t lineRoom = tapsRoom + static_cast<int64_t>(kChunk + kVectorElements<Qvx32f>);
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
      lms::steps(state->taps, n, state->line + 1, ref + at, dst + at, count, 2 * mu);
    } else {
      Qvx32f wanted[kChunk];
      Qvx32f y[kChunk];
      toKernel(ref + at, count, wanted);
      lms::steps(state->taps, n, state->line + 1, wanted, y, count, 2 * mu);
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
// clang-format on
