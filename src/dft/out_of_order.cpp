// Complex transforms whose spectrum is in an order of its own.
#include "dft/record.h"

using namespace qvx;
using namespace qvx::dft;

namespace {

template <class Record> QvxStatus initOutOfOrder(Record** ppSpec, int len, int flag) {
  using T = typename Record::T;
  return initAlloc(ppSpec, len, flag, fft::Orders<T>::kComplex, complexWorkOutOfOrder<T>, [=](auto& plan, uint32_t n) {
    Bytes bytes = choose(plan, n, false, flag);
    plan.isOutOfOrder = kHasOwnOrder<T> && plan.way == Way::kBlocks;
    if (plan.isOutOfOrder) bytes.work = static_cast<int64_t>(lengthOfTiles(plan.blocks) * sizeof(T));
    return bytes;
  });
}

template <bool kInverse, class C, class Record> QvxStatus outOfOrder(const C* src, C* dst, const Record* spec, Qvx8u* pBuffer) {
  return interleavedTransform<kInverse>(src, dst, spec, pBuffer);
}

}  // namespace

// clang-format off
QvxStatus qvxsDFTOutOrdInitAlloc_C_32fc(QvxsDFTOutOrdSpec_C_32fc** ppSpec, int len, int flag, int) { return initOutOfOrder(ppSpec, len, flag); }
QvxStatus qvxsDFTOutOrdFree_C_32fc(QvxsDFTOutOrdSpec_C_32fc* spec) { return release(spec); }
QvxStatus qvxsDFTOutOrdGetBufSize_C_32fc(const QvxsDFTOutOrdSpec_C_32fc* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDFTOutOrdInitAlloc_C_64fc(QvxsDFTOutOrdSpec_C_64fc** ppSpec, int len, int flag, int) { return initOutOfOrder(ppSpec, len, flag); }
QvxStatus qvxsDFTOutOrdFree_C_64fc(QvxsDFTOutOrdSpec_C_64fc* spec) { return release(spec); }
QvxStatus qvxsDFTOutOrdGetBufSize_C_64fc(const QvxsDFTOutOrdSpec_C_64fc* spec, int* pSize) { return bufferSize(spec, pSize); }
QvxStatus qvxsDFTOutOrdFwd_CToC_32fc(const Qvx32fc* src, Qvx32fc* dst, const QvxsDFTOutOrdSpec_C_32fc* spec, Qvx8u* pBuffer) { return outOfOrder<false>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTOutOrdInv_CToC_32fc(const Qvx32fc* src, Qvx32fc* dst, const QvxsDFTOutOrdSpec_C_32fc* spec, Qvx8u* pBuffer) { return outOfOrder<true>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTOutOrdFwd_CToC_64fc(const Qvx64fc* src, Qvx64fc* dst, const QvxsDFTOutOrdSpec_C_64fc* spec, Qvx8u* pBuffer) { return outOfOrder<false>(src, dst, spec, pBuffer); }
QvxStatus qvxsDFTOutOrdInv_CToC_64fc(const Qvx64fc* src, Qvx64fc* dst, const QvxsDFTOutOrdSpec_C_64fc* spec, Qvx8u* pBuffer) { return outOfOrder<true>(src, dst, spec, pBuffer); }
// clang-format on
