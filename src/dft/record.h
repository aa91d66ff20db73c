// The records of transforms of any length: what is in them, how they are made, and the calls that take them.
#pragma once

#include <limits>

#include "dft/plan.h"
#include "dft/sizes.h"
#include "fft/record.h"

namespace qvx::dft {

template <class T_, template <class> class Plan_> struct Spec : RecordHead {
  using T = T_;
  using Plan = Plan_<T>;
  int32_t workSize;  // as reported
  int64_t needed;
  Plan plan;
};
template <class T, uint32_t kIdentity> struct ComplexSpec : Spec<T, ComplexPlan> { static constexpr uint32_t kId = kIdentity; };
template <class T, uint32_t kIdentity> struct RealSpec : Spec<T, RealPlan> { static constexpr uint32_t kId = kIdentity; };

using fft::checkCall;
using fft::checkSpec;

template <class Record> QvxStatus bufferSize(const Record* spec, int* pSize) {
  if (isNull(spec) || isNull(pSize)) return qvxStatNullPtr;
  const QvxStatus status = checkSpec(spec);
  if (status == qvxStatOk) *pSize = spec->workSize;
  return status;
}

template <class Record> QvxStatus release(Record* spec) { return fft::release(spec); }

// highest: the order of the longest power of two. work(n): the bytes to report, none beyond the limits.
template <class Record, class Work, class Choose>
QvxStatus initAlloc(Record** ppSpec, int len, int flag, int highest, Work work, Choose choose) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  if (!fft::isFlag(flag)) return qvxStatBadFFTFlag;
  const auto n = static_cast<uint32_t>(len);
  if (std::has_single_bit(n) && std::countr_zero(n) > highest) return qvxStatBadFFTOrder;
  const std::optional<int64_t> told = work(n);
  if (!told || *told > std::numeric_limits<int>::max()) return qvxStatBadSize;
  typename Record::Plan plan = {};
  const Bytes bytes = choose(plan, n);
  return allocateRecord(ppSpec, static_cast<int64_t>(sizeof(Record)) + Carver::kRecordAlignment + bytes.tables,
                        [&](Record** pp, Qvx8u* memory) {
                          const Block making(bytes.work);
                          if (bytes.work > 0 && !making) return qvxStatNoMem;
                          return initRecord(pp, memory, [&](Record& spec, const Carver& tables) {
                            spec.workSize = static_cast<int32_t>(*told);
                            spec.needed = bytes.work;
                            spec.plan = plan;
                            writeTables(spec.plan, flag, tables.rest(), making.get());
                            spec.magic = Record::kId;
                            return qvxStatOk;
                          });
                        });
}

// run(work), work being the memory that the transform needs. Where that exceeds the reported size, it is on the stack or
// allocated.
inline constexpr int64_t kMostOnStack = 4096;
template <class Run> [[gnu::noinline]] QvxStatus withWorkOnStack(Run run) {
  alignas(64) uint8_t work[kMostOnStack];
  return run(work), qvxStatOk;
}
template <class Spec, class Run> QVX_INLINE QvxStatus withWork(const Spec& spec, Qvx8u* pBuffer, Run run) {
  if (spec.needed == 0) return run(nullptr), qvxStatOk;
  if (spec.needed > spec.workSize && spec.needed <= kMostOnStack) return withWorkOnStack(run);
  const Scratch scratch(spec.needed <= spec.workSize ? pBuffer : nullptr, spec.needed);
  if (scratch.isMissing(spec.needed)) return qvxStatNoMem;
  return run(scratch.carver().rest()), qvxStatOk;
}

template <bool kInverse, class C, class Record>
QvxStatus interleavedTransform(const C* src, C* dst, const Record* spec, Qvx8u* pBuffer) {
  using F = Fft<typename Record::T>;
  const QvxStatus status = checkSpec(spec);
  if (status != qvxStatOk) return status;
  // By jumps: the fast transform tests the vectors itself.
  if (spec->plan.way == Way::kFft && spec->needed <= spec->workSize)
    return (kInverse ? F::kInverse : F::kForward)(src, dst, spec->plan.fft, pBuffer);
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if (spec->plan.n < kMostSmall) return runSmall(spec->plan, kInverse, parts(src), parts(dst));
  return withWork(*spec, pBuffer, [=](Qvx8u* work) { run(spec->plan, kInverse, parts(src), parts(dst), work); });
}
template <bool kInverse, class T, class Record>
QvxStatus splitTransform(const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, const Record* spec, Qvx8u* pBuffer) {
  const QvxStatus status = checkCall(spec, Split<const T>{srcRe, srcIm}, Split<T>{dstRe, dstIm});
  if (status != qvxStatOk) return status;
  return withWork(*spec, pBuffer, [=](Qvx8u* work) { run(spec->plan, kInverse, srcRe, srcIm, dstRe, dstIm, work); });
}
template <SpectrumLayout kLayout, class T, class Record>
QvxStatus spectrumOf(const T* src, T* dst, const Record* spec, Qvx8u* pBuffer) {
  const QvxStatus status = checkCall(spec, src, dst);
  if (status != qvxStatOk) return status;
  return withWork(*spec, pBuffer, [=](Qvx8u* work) { forward(spec->plan, kLayout, src, dst, work); });
}
template <SpectrumLayout kLayout, class T, class Record>
QvxStatus sequenceOf(const T* src, T* dst, const Record* spec, Qvx8u* pBuffer) {
  const QvxStatus status = checkCall(spec, src, dst);
  if (status != qvxStatOk) return status;
  return withWork(*spec, pBuffer, [=](Qvx8u* work) { inverse(spec->plan, kLayout, src, dst, work); });
}

}  // namespace qvx::dft

// The identities are fixed values of the interface.
struct QvxsDFTSpec_C_32fc : qvx::dft::ComplexSpec<Qvx32f, 13> {};
struct QvxsDFTSpec_C_32f : qvx::dft::ComplexSpec<Qvx32f, 14> {};
struct QvxsDFTSpec_R_32f : qvx::dft::RealSpec<Qvx32f, 15> {};
struct QvxsDFTSpec_C_64fc : qvx::dft::ComplexSpec<Qvx64f, 16> {};
struct QvxsDFTSpec_C_64f : qvx::dft::ComplexSpec<Qvx64f, 17> {};
struct QvxsDFTSpec_R_64f : qvx::dft::RealSpec<Qvx64f, 18> {};
struct QvxsDFTSpec_C_16sc : qvx::dft::ComplexSpec<Qvx32f, 10> {};
struct QvxsDFTSpec_C_16s : qvx::dft::ComplexSpec<Qvx32f, 11> {};
struct QvxsDFTSpec_R_16s : qvx::dft::RealSpec<Qvx32f, 12> {};
struct QvxsDFTOutOrdSpec_C_32fc : qvx::dft::ComplexSpec<Qvx32f, 0x434D4150> {};
struct QvxsDFTOutOrdSpec_C_64fc : qvx::dft::ComplexSpec<Qvx64f, 0x434D4151> {};
