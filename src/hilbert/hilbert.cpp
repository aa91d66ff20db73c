// Analytic signals: the source, and beside it its Hilbert transform.
#include "fft/adapter.h"
#include "frame/record.h"
#include "hilbert/analytic.h"

using namespace qvx;
using namespace qvx::hilbert;

namespace {

using Half = fft::Transform<Qvx32fc>;

template <uint32_t kIdentity> struct Spec : RecordHead {
  static constexpr uint32_t kId = kIdentity;
  int32_t len;
  int32_t workSize;         // of a transform of half
  const Qvx32f* turns;      // see analytic.h
  const Half::Spec* half;   // transforms of len / 2 points
};

}  // namespace

// The identities are fixed values of the interface.
struct QvxsHilbertSpec_32f32fc : Spec<0x434D4145> {};
struct QvxsHilbertSpec_16s32fc : Spec<0x434D4146> {};
struct QvxsHilbertSpec_16s16sc : Spec<0x434D4147> {};

namespace {

constexpr int kShortest = 3;  // that has a transform but 0

template <class Record> QvxStatus initAlloc(Record** ppSpec, int len) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  const auto n = static_cast<size_t>(len);
  int specSize = 0;
  int initSize = 0;
  int workSize = 0;
  const int order = std::countr_zero(n) - 1;
  if (len > kLongestByMatrix) {
    const QvxStatus status = Half::kGetSize(order, QVX_FFT_SCALE_NONE, 0, &specSize, &initSize, &workSize);
    if (status != qvxStatOk) return status;
  }
  const size_t tableLength = len > kLongestByMatrix ? turnTableLength(n) : 0;
  const auto bytes = static_cast<int64_t>(sizeof(Record) + tableLength * sizeof(Qvx32f)) + specSize + Carver::kLine;
  return allocateRecord(ppSpec, bytes, [=](Record** pp, Qvx8u* memory) {
    const Block buffer(initSize);
    if (initSize > 0 && !buffer) return qvxStatNoMem;
    return initRecord(pp, memory, [&](Record& spec, Carver& tables) {
      spec.len = len;
      spec.workSize = workSize;
      spec.magic = Record::kId;
      if (len <= kLongestByMatrix) return qvxStatOk;
      auto* const turns = tables.takeLines<Qvx32f>(static_cast<int64_t>(tableLength));
      writeTurns(turns, n);
      spec.turns = turns;
      Half::Spec* half = nullptr;
      const QvxStatus status = Half::kInit(&half, order, QVX_FFT_SCALE_NONE, 0, tables.rest(), buffer.get());
      spec.half = half;
      return status;
    });
  });
}

template <class Record> QvxStatus release(Record* spec) {
  return releaseRecord(spec, checkRecord(spec, Record::kId), InCallersBlock::kForgotten);
}

// h of x, which may be one vector.
template <class Record> QvxStatus hilbertOf(const Record& spec, const Qvx32f* x, Qvx32f* h, Qvx8u* work) {
  const auto n = static_cast<size_t>(spec.len);
  if (spec.len < kShortest) {
    std::fill_n(h, n, 0.0F);
    return qvxStatOk;
  }
  if (spec.len <= kLongestByMatrix) {
    kKernels[n - 1](x, h);
    return qvxStatOk;
  }
  auto* const z = reinterpret_cast<Qvx32fc*>(h);
  const QvxStatus status = Half::kForward(reinterpret_cast<const Qvx32fc*>(x), z, spec.half, work);
  if (status != qvxStatOk) return status;
  turn(h, n, spec.turns);
  return Half::kInverse(z, z, spec.half, work);
}

// run(y, work) with room for `count` numbers y and the work of a transform; what fits the stack needs no block.
template <class Record, class Run> QvxStatus withRoom(const Record& spec, int64_t count, Run run) {
  constexpr int64_t kOnStack = 16384;
  const int64_t bytes = count * static_cast<int64_t>(sizeof(Qvx32f)) + spec.workSize + Carver::kLine;
  const auto in = [=](const Scratch& scratch) {
    if (scratch.isMissing(bytes)) return qvxStatNoMem;
    Carver carver = scratch.carver();
    auto* const y = carver.takeLines<Qvx32f>(count);
    return run(y, carver.rest());
  };
  if (bytes > kOnStack) return in(Scratch(nullptr, bytes));
  alignas(64) Qvx8u room[kOnStack];
  return in(Scratch(room, 0));
}

template <class Record> QvxStatus check(const void* src, const void* dst, const Record* spec) {
  if (isNull(src) || isNull(dst) || isNull(spec)) return qvxStatNullPtr;
  return checkRecord(spec, Record::kId);
}

}  // namespace

QvxStatus qvxsHilbert_32f32fc(const Qvx32f* pSrc, Qvx32fc* pDst, const QvxsHilbertSpec_32f32fc* pSpec) {
  const QvxStatus status = check(pSrc, pDst, pSpec);
  if (status != qvxStatOk) return status;
  const int len = pSpec->len;
  return withRoom(*pSpec, len, [=](Qvx32f* h, Qvx8u* work) {
    const QvxStatus done = hilbertOf(*pSpec, pSrc, h, work);
    if (done == qvxStatOk) interleave(pSrc, h, &pDst->re, static_cast<size_t>(len));
    return done;
  });
}

QvxStatus qvxsHilbert_16s32fc(const Qvx16s* pSrc, Qvx32fc* pDst, const QvxsHilbertSpec_16s32fc* pSpec) {
  const QvxStatus status = check(pSrc, pDst, pSpec);
  if (status != qvxStatOk) return status;
  const int len = pSpec->len;
  return withRoom(*pSpec, int64_t{2} * len, [=](Qvx32f* x, Qvx8u* work) {
    Qvx32f* const h = x + len;
    qvxsConvert_16s32f(pSrc, x, len);
    const QvxStatus done = hilbertOf(*pSpec, x, h, work);
    if (done == qvxStatOk) interleave(x, h, &pDst->re, static_cast<size_t>(len));
    return done;
  });
}

QvxStatus qvxsHilbert_16s16sc_Sfs(const Qvx16s* pSrc, Qvx16sc* pDst, const QvxsHilbertSpec_16s16sc* pSpec, int scaleFactor) {
  const QvxStatus status = check(pSrc, pDst, pSpec);
  if (status != qvxStatOk) return status;
  const int len = pSpec->len;
  return withRoom(*pSpec, int64_t{3} * len, [=](Qvx32f* x, Qvx8u* work) {
    Qvx32f* const h = x + int64_t{2} * len;
    qvxsConvert_16s32f(pSrc, x, len);
    const QvxStatus done = hilbertOf(*pSpec, x, h, work);
    if (done != qvxStatOk) return done;
    interleave(x, h, x, static_cast<size_t>(len));
    return qvxsConvert_32f16s_Sfs(x, &pDst->re, 2 * len, qvxRoundNearestEven, scaleFactor);
  });
}

// clang-format off
QvxStatus qvxsHilbertInitAlloc_32f32fc(QvxsHilbertSpec_32f32fc** ppSpec, int len, int) { return initAlloc(ppSpec, len); }
QvxStatus qvxsHilbertFree_32f32fc(QvxsHilbertSpec_32f32fc* pSpec) { return release(pSpec); }
QvxStatus qvxsHilbertInitAlloc_16s32fc(QvxsHilbertSpec_16s32fc** ppSpec, int len, int) { return initAlloc(ppSpec, len); }
QvxStatus qvxsHilbertFree_16s32fc(QvxsHilbertSpec_16s32fc* pSpec) { return release(pSpec); }
QvxStatus qvxsHilbertInitAlloc_16s16sc(QvxsHilbertSpec_16s16sc** ppSpec, int len, int) { return initAlloc(ppSpec, len); }
QvxStatus qvxsHilbertFree_16s16sc(QvxsHilbertSpec_16s16sc* pSpec) { return release(pSpec); }
// clang-format on
