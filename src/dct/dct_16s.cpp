// Cosine transforms of 16-bit integers: through those of floats, except for a single number, which is its own transform.
#include "dct/record.h"

using namespace qvx;
using namespace qvx::dct;

namespace {

// kInit, kTransform: the functions for floats; kTransform works in place.
template <uint32_t kIdentity, class Floats_, auto kInit_, auto kTransform_> struct Spec16 : RecordHead {
  using Floats = Floats_;
  static constexpr uint32_t kId = kIdentity;
  static constexpr auto kInit = kInit_;
  static constexpr auto kTransform = kTransform_;
  int32_t len;
  int32_t workSize;      // as reported
  const Floats* floats;  // null for a single number
};

}  // namespace

struct QvxsDCTFwdSpec_16s : Spec16<19, QvxsDCTFwdSpec_32f, qvxsDCTFwdInit_32f, qvxsDCTFwd_32f_I> {};
struct QvxsDCTInvSpec_16s : Spec16<20, QvxsDCTInvSpec_32f, qvxsDCTInvInit_32f, qvxsDCTInv_32f_I> {};
static_assert(sizeof(QvxsDCTInvSpec_16s) <= 64 - Carver::kRecordAlignment);

namespace {

using Fwd = QvxsDCTFwdSpec_16s;
using Inv = QvxsDCTInvSpec_16s;

template <class Record> QvxStatus init16(Record** ppSpec, int len, Qvx8u* pMemory, Qvx8u* pInit) {
  const Sizes sizes = sizesOf16(len < 1 ? 1 : len);
  const QvxStatus status = check(ppSpec, len, sizes, pMemory, pInit);
  if (status != qvxStatOk) return status;
  return initRecord(ppSpec, pMemory, [=](Record& spec, const Carver& rest) {
    spec.len = len;
    spec.workSize = static_cast<int32_t>(sizes.work);
    spec.magic = Record::kId;
    if (len == 1) return qvxStatOk;
    typename Record::Floats* floats = nullptr;
    const QvxStatus made = Record::kInit(&floats, len, 0, rest.rest(), pInit);
    spec.floats = floats;
    return made;
  });
}

template <class Record>
QvxStatus transformed16(const Record* spec, const Qvx16s* src, Qvx16s* dst, int scaleFactor, Qvx8u* pBuffer) {
  const QvxStatus status = check(spec);
  if (status != qvxStatOk) return status;
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if (spec->len == 1) {
    const Qvx32s value = *src;
    return qvxsConvert_32s16s_Sfs(&value, dst, 1, scaleFactor);
  }
  const Scratch scratch(pBuffer, spec->workSize);
  if (scratch.isMissing(spec->workSize)) return qvxStatNoMem;
  Carver carver = scratch.carver();
  auto* const y = carver.take<Qvx32f>(spec->len);
  qvxsConvert_16s32f(src, y, spec->len);
  const QvxStatus done = Record::kTransform(y, spec->floats, carver.rest());
  return done == qvxStatOk ? qvxsConvert_32f16s_Sfs(y, dst, spec->len, qvxRoundNearestEven, scaleFactor) : done;
}

}  // namespace

// clang-format off
QvxStatus qvxsDCTFwdGetSize_16s(int len, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(len, sizesOf16, pSpecSize, pInitSize, pWorkSize); }
QvxStatus qvxsDCTFwdInit_16s(Fwd** ppSpec, int len, int, Qvx8u* pSpec, Qvx8u* pInit) { return init16(ppSpec, len, pSpec, pInit); }
QvxStatus qvxsDCTFwdInitAlloc_16s(Fwd** ppSpec, int len, int) { return initAlloc(ppSpec, len, sizesOf16, init16<Fwd>); }
QvxStatus qvxsDCTFwdFree_16s(Fwd* spec) { return release(spec); }
QvxStatus qvxsDCTFwdGetBufSize_16s(const Fwd* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDCTInvGetSize_16s(int len, int, int* pSpecSize, int* pInitSize, int* pWorkSize) { return getSize(len, sizesOf16, pSpecSize, pInitSize, pWorkSize); }
QvxStatus qvxsDCTInvInit_16s(Inv** ppSpec, int len, int, Qvx8u* pSpec, Qvx8u* pInit) { return init16(ppSpec, len, pSpec, pInit); }
QvxStatus qvxsDCTInvInitAlloc_16s(Inv** ppSpec, int len, int) { return initAlloc(ppSpec, len, sizesOf16, init16<Inv>); }
QvxStatus qvxsDCTInvFree_16s(Inv* spec) { return release(spec); }
QvxStatus qvxsDCTInvGetBufSize_16s(const Inv* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDCTFwd_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const Fwd* spec, int sf, Qvx8u* pBuffer) { return transformed16(spec, src, dst, sf, pBuffer); }
QvxStatus qvxsDCTFwd_16s_ISfs(Qvx16s* d, const Fwd* spec, int sf, Qvx8u* pBuffer) { return transformed16(spec, d, d, sf, pBuffer); }
QvxStatus qvxsDCTInv_16s_Sfs(const Qvx16s* src, Qvx16s* dst, const Inv* spec, int sf, Qvx8u* pBuffer) { return transformed16(spec, src, dst, sf, pBuffer); }
QvxStatus qvxsDCTInv_16s_ISfs(Qvx16s* d, const Inv* spec, int sf, Qvx8u* pBuffer) { return transformed16(spec, d, d, sf, pBuffer); }
// clang-format on
