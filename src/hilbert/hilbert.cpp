// Analytic signals: the source, and beside it its Hilbert transform.
#include "dft/adapter.h"
#include "dft/sizes.h"
#include "hilbert/analytic.h"

using namespace qvx;
using namespace qvx::hilbert;

namespace {

using HalfPlan = dft::ComplexPlan<Qvx32f>;
using OddPlan = dft::RealPlan<Qvx32f>;

template <uint32_t kIdentity> struct Spec : RecordHead {
  static constexpr uint32_t kId = kIdentity;
  int32_t len;
  int64_t workSize;  // of a transform
  // Above the lengths of matrices:
  const HalfPlan* half;    // of len / 2 points, for even lengths
  const OddPlan* odd;      // of len numbers
  const Qvx32f* twiddles;  // see analytic.h; for even lengths
};

}  // namespace

// The identities are fixed values of the interface.
struct QvxsHilbertSpec_32f32fc : Spec<0x434D4145> {};
struct QvxsHilbertSpec_16s32fc : Spec<0x434D4146> {};
struct QvxsHilbertSpec_16s16sc : Spec<0x434D4147> {};

namespace {

// The status of the transforms of this length.
QvxStatus checkLength(int len) {
  if (len < 1) return qvxStatBadSize;
  const auto n = static_cast<uint32_t>(len);
  if (std::has_single_bit(n)) return std::countr_zero(n) > fft::Orders<Qvx32f>::kComplex ? qvxStatBadFFTOrder : qvxStatOk;
  return dft::complexWork<Qvx32f>(n) && dft::realWork<Qvx32f>(n) ? qvxStatOk : qvxStatBadSize;
}

template <class Record> QvxStatus initAlloc(Record** ppSpec, int len) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  const QvxStatus status = checkLength(len);
  if (status != qvxStatOk) return status;
  const auto n = static_cast<size_t>(len);
  const bool isShort = len <= kLongestByMatrix;
  const bool isEven = len % 2 == 0;
  const int64_t table = isShort || !isEven ? 0 : static_cast<int64_t>(twiddleTableLength(n) * sizeof(Qvx32f)) + Carver::kLine;
  const dft::TransformBytes bytes = isShort  ? dft::TransformBytes()
                                    : isEven ? dft::transformBytes<HalfPlan>(len / 2)
                                             : dft::transformBytes<OddPlan>(len);
  const auto all = static_cast<int64_t>(sizeof(Record)) + Carver::kLine + table + bytes.plan;
  return allocateRecord(ppSpec, all, [=](Record** pp, Qvx8u* memory) {
    const Block making(bytes.work);
    if (bytes.work > 0 && !making) return qvxStatNoMem;
    return initRecord(pp, memory, [&](Record& spec, Carver& tables) {
      spec.len = len;
      spec.workSize = bytes.work;
      spec.magic = Record::kId;
      if (isShort) return qvxStatOk;
      if (!isEven) {
        spec.odd = dft::makeTransform<OddPlan>(len, QVX_FFT_SCALE_INV, tables.rest(), making.get());
        return qvxStatOk;
      }
      auto* const twiddles = tables.takeLines<Qvx32f>(static_cast<int64_t>(twiddleTableLength(n)));
      writeHilbertTwiddles(twiddles, n);
      spec.twiddles = twiddles;
      spec.half = dft::makeTransform<HalfPlan>(len / 2, QVX_FFT_SCALE_NONE, tables.rest(), making.get());
      return qvxStatOk;
    });
  });
}

template <class Record> QvxStatus release(Record* spec) {
  return releaseRecord(spec, checkRecord(spec, Record::kId), InCallersBlock::kForgotten);
}

// The Hilbert transform h of x; both may be one vector.
template <class Record> void hilbertOf(const Record& spec, const Qvx32f* x, Qvx32f* h, Qvx8u* work) {
  const auto n = static_cast<size_t>(spec.len);
  if (spec.len <= kLongestByMatrix) {
    kKernels[n - 1](x, h);
  } else if (!isNull(spec.half)) {
    run(*spec.half, false, x, h, work);
    multiplyByMinusI(h, n, spec.twiddles);
    run(*spec.half, true, h, h, work);
  } else {
    forward(*spec.odd, transform::SpectrumLayout::kPerm, x, h, work);
    multiplyPairsByMinusI(h, n);
    inverse(*spec.odd, transform::SpectrumLayout::kPerm, h, h, work);
  }
}

// run(y, work): y has room for `count` numbers, work is the transform's. What fits the stack is not allocated; the larger room
// there costs 12 ns, since its pages are touched one by one.
template <int64_t kBytes, class Run> [[gnu::noinline]] QvxStatus onStack(Run run) {
  alignas(64) Qvx8u room[kBytes];
  return run(Scratch(room, 0));
}
template <class Record, class Run> QvxStatus withRoom(const Record& spec, int64_t count, Run run) {
  constexpr int64_t kFew = 2048;
  constexpr int64_t kMany = 8192;
  const int64_t bytes = count * static_cast<int64_t>(sizeof(Qvx32f)) + spec.workSize + Carver::kLine;
  const auto in = [&](const Scratch& scratch) {
    if (scratch.isMissing(bytes)) return qvxStatNoMem;
    Carver carver = scratch.carver();
    auto* const y = carver.takeLines<Qvx32f>(count);
    return run(y, carver.rest());
  };
  if (bytes <= kFew) return onStack<kFew>(in);
  if (bytes <= kMany) return onStack<kMany>(in);
  return in(Scratch(nullptr, bytes));
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
    hilbertOf(*pSpec, pSrc, h, work);
    interleave(pSrc, h, &pDst->re, static_cast<size_t>(len));
    return qvxStatOk;
  });
}

QvxStatus qvxsHilbert_16s32fc(const Qvx16s* pSrc, Qvx32fc* pDst, const QvxsHilbertSpec_16s32fc* pSpec) {
  const QvxStatus status = check(pSrc, pDst, pSpec);
  if (status != qvxStatOk) return status;
  const int len = pSpec->len;
  return withRoom(*pSpec, int64_t{2} * len, [=](Qvx32f* x, Qvx8u* work) {
    Qvx32f* const h = x + len;
    qvxsConvert_16s32f(pSrc, x, len);
    hilbertOf(*pSpec, x, h, work);
    interleave(x, h, &pDst->re, static_cast<size_t>(len));
    return qvxStatOk;
  });
}

QvxStatus qvxsHilbert_16s16sc_Sfs(const Qvx16s* pSrc, Qvx16sc* pDst, const QvxsHilbertSpec_16s16sc* pSpec, int scaleFactor) {
  const QvxStatus status = check(pSrc, pDst, pSpec);
  if (status != qvxStatOk) return status;
  const int len = pSpec->len;
  return withRoom(*pSpec, int64_t{3} * len, [=](Qvx32f* x, Qvx8u* work) {
    Qvx32f* const h = x + int64_t{2} * len;
    qvxsConvert_16s32f(pSrc, x, len);
    hilbertOf(*pSpec, x, h, work);
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
