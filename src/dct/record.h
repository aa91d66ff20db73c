// The records of cosine transforms, how they are made, and their calls.
#pragma once

#include "dct/chirp.h"
#include "dct/matrix.h"
#include "dct/odd.h"
#include "dct/rows.h"
#include "dct/sizes.h"
#include "frame/rounding.h"

namespace qvx::dct {

enum class Way : uint8_t {
  kKernel,  // a product with a matrix of constants
  kHalf,    // a complex transform of half the length
  kRows,
  kOdd,  // a real transform of the length
  kChirp,
};

template <class T_, bool kInverse_, uint32_t kIdentity> struct Spec : RecordHead {
  using T = T_;
  static constexpr bool kInverse = kInverse_;
  static constexpr uint32_t kId = kIdentity;
  Way way;
  int32_t len;
  int32_t workSize;  // as reported
  T mean;            // 1 / sqrt(len)
  union {
    const dft::ComplexPlan<T>* points;  // of kHalf
    const dft::RealPlan<T>* reals;      // of kOdd
    const Rows<T>* rows;
    const Chirp<T>* chirp;
  };
  const T* twiddles;  // of kHalf, kOdd
};

template <class Record> QvxStatus check(const Record* spec) { return checkRecord(spec, Record::kId); }

// ---- The way a length takes: the first that the reported sizes have room for

// Up to this much working memory is on the stack, and not asked of callers.
inline constexpr int64_t kWorkOnStack = 4096;

template <class T> Needs needsOfHalf(size_t n) {
  const auto plan = needsOfPlan<dft::ComplexPlan<T>>(n / 2);
  const int64_t numbers = sizeof(T);
  return {plan.tables + static_cast<int64_t>(evenTableLength<T>(n)) * numbers, plan.work + static_cast<int64_t>(n) * numbers,
          plan.making};
}

template <class Record> bool fits(Needs needs, Sizes sizes) {
  constexpr int64_t kSlack = Carver::kRecordAlignment - 1;
  return static_cast<int64_t>(sizeof(Record)) + needs.tables + kSlack <= sizes.spec &&
         needs.work + kSlack <= std::max(sizes.work, kWorkOnStack) && needs.making <= sizes.init;
}

template <class Record> Way wayOf(int len, Sizes sizes) {
  using T = typename Record::T;
  const auto n = static_cast<size_t>(len);
  if (hasKernel(len)) return Way::kKernel;
  if (len % 2 == 0 && fits<Record>(needsOfHalf<T>(n), sizes)) return Way::kHalf;
  if (len <= kLongestByRows) return Way::kRows;
  if (len % 2 != 0) {
    const auto plan = needsOfPlan<dft::RealPlan<T>>(n);
    constexpr int64_t kNumber = sizeof(T);
    const Needs needs = {plan.tables + len * kNumber, plan.work + (len + 1) * kNumber, plan.making};
    if (!plan.isByChirp && fits<Record>(needs, sizes)) return Way::kOdd;
  }
  return Way::kChirp;
}

// The last one always fits: the reported sizes are those of its transform.
template <class Record> size_t periodFor(size_t n, Sizes sizes) {
  for (const size_t period : {shortPeriodOf(n), std::bit_ceil(n + n / 2)}) {
    if (fits<Record>(needsOfChirp<typename Record::T>(n, period), sizes)) return period;
  }
  return std::bit_ceil(2 * n - 1);
}

// ---- The life of a record

inline QvxStatus getSize(int len, Sizes (*sizesOf)(int), int* pSpec, int* pInit, int* pWork) {
  if (len < 1) return qvxStatBadSize;
  if (isNull(pSpec) || isNull(pInit) || isNull(pWork)) return qvxStatNullPtr;
  const Sizes sizes = sizesOf(len);
  if (!fitsInt(sizes)) return qvxStatBadFFTOrder;
  *pSpec = static_cast<int>(sizes.spec);
  *pInit = static_cast<int>(sizes.init);
  *pWork = static_cast<int>(sizes.work);
  return qvxStatOk;
}

// What Init refuses.
template <class Record> QvxStatus check(Record** ppSpec, int len, Sizes sizes, const Qvx8u* pMemory, const Qvx8u* pInit) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  if (isNull(pMemory)) return qvxStatNullPtr;
  if (!fitsInt(sizes)) return qvxStatBadFFTOrder;
  return sizes.init > 0 && isNull(pInit) ? qvxStatNullPtr : qvxStatOk;
}

// Writes the tables for the chosen way. Not inlined, so that no arithmetic moves out of the caller's rounding scopes.
template <class Record> [[gnu::noinline]] void writeWay(Record& spec, Sizes sizes, Carver& tables, Qvx8u* making) {
  using T = typename Record::T;
  const auto n = static_cast<size_t>(spec.len);
  switch (spec.way) {
    case Way::kKernel:
      break;
    case Way::kHalf: {
      T* const twiddles = tables.take<T>(static_cast<int64_t>(evenTableLength<T>(n)));
      writeEvenTwiddles(twiddles, n);
      spec.twiddles = twiddles;
      spec.points = makePlan<dft::ComplexPlan<T>>(n / 2, tables, making);
      break;
    }
    case Way::kRows: {
      auto* const rows = tables.take<Rows<T>>(1);
      writeRows(*rows, n, tables);
      spec.rows = rows;
      break;
    }
    case Way::kOdd: {
      T* const twiddles = tables.take<T>(spec.len);
      writeOddTwiddles(twiddles, n);
      spec.twiddles = twiddles;
      spec.reals = makePlan<dft::RealPlan<T>>(n, tables, making);
      break;
    }
    default: {
      auto* const chirp = tables.take<Chirp<T>>(1);
      const size_t period = periodFor<Record>(n, sizes);
      writeChirp(*chirp, n, period, Record::kInverse, fits<Record>(needsOfPrecise<T>(n, period), sizes), tables, making);
      spec.chirp = chirp;
    }
  }
}

template <class Record> QvxStatus init(Record** ppSpec, int len, Qvx8u* pMemory, Qvx8u* pInit) {
  using T = typename Record::T;
  const Sizes sizes = sizesOf<T>(len < 1 ? 1 : len);
  const QvxStatus status = check(ppSpec, len, sizes, pMemory, pInit);
  if (status != qvxStatOk) return status;
  const RoundingScope nearest(Rounding::kNearest);
  const WiderScope widerNearest;
  const double count = RoundingScope::pinned(static_cast<double>(len));
  return initRecord(ppSpec, pMemory, [=](Record& spec, Carver& tables) {
    spec.len = len;
    spec.workSize = static_cast<int32_t>(sizes.work);
    spec.mean = static_cast<T>(1 / std::sqrt(count));
    spec.magic = Record::kId;
    spec.way = wayOf<Record>(len, sizes);
    writeWay(spec, sizes, tables, pInit);
    return qvxStatOk;
  });
}

template <class Record> QvxStatus initAlloc(Record** ppSpec, int len, Sizes (*sizesOf)(int), auto init) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  if (len < 1) return qvxStatBadSize;
  const Sizes sizes = sizesOf(len);
  if (!fitsInt(sizes)) return qvxStatBadFFTOrder;
  return allocateRecord(ppSpec, sizes.spec, [=](Record** pp, Qvx8u* memory) {
    const Block buffer(sizes.init);
    if (sizes.init > 0 && !buffer) return qvxStatNoMem;
    return init(pp, len, memory, buffer.get());
  });
}

template <class Record> QvxStatus release(Record* spec) { return releaseRecord(spec, check(spec), InCallersBlock::kForgotten); }

template <class Record> QvxStatus bufferSize(const Record* spec, int* pSize) {
  if (isNull(spec) || isNull(pSize)) return qvxStatNullPtr;
  const QvxStatus status = check(spec);
  if (status == qvxStatOk) *pSize = spec->workSize;
  return status;
}

// ---- Transforms

template <class Record, class T> void halfTransform(const Record& spec, const T* src, T* dst, Carver work) {
  const auto n = static_cast<size_t>(spec.len);
  T* const v = work.take<T>(spec.len);
  if constexpr (Record::kInverse) {
    cosinesToSpectrum(src, v, n, spec.twiddles, spec.mean);
    run(*spec.points, true, v, v, work.rest());
    fromHalves(v, dst, n);
  } else {
    toHalves(src, v, n);
    run(*spec.points, false, v, v, work.rest());
    spectrumToCosines(v, dst, n, spec.twiddles, spec.mean);
  }
}
template <class Record, class T> void oddTransform(const Record& spec, const T* src, T* dst, Carver work) {
  constexpr auto kCcs = transform::SpectrumLayout::kCcs;
  const auto n = static_cast<size_t>(spec.len);
  T* const v = work.take<T>(int64_t{spec.len} + 1);
  if constexpr (Record::kInverse) {
    cosinesToSpectrumOdd(src, v, n, spec.twiddles, spec.mean);
    inverse(*spec.reals, kCcs, v, v, work.rest());
    fromHalves(v, dst, n);
  } else {
    toHalves(src, v, n);
    forward(*spec.reals, kCcs, v, v, work.rest());
    spectrumToCosinesOdd(v, dst, n, spec.twiddles, spec.mean);
  }
}

// In working memory.
template <class Record, class T>
[[gnu::noinline]] QvxStatus transformedIn(const Scratch& scratch, const Record& spec, const T* src, T* dst) {
  if (scratch.isMissing(spec.workSize)) return qvxStatNoMem;
  switch (spec.way) {
    case Way::kHalf:
      halfTransform(spec, src, dst, scratch.carver());
      break;
    case Way::kOdd:
      oddTransform(spec, src, dst, scratch.carver());
      break;
    default:
      (Record::kInverse ? inverseByChirp<T> : forwardByChirp<T>)(*spec.chirp, static_cast<size_t>(spec.len), src, dst,
                                                                 scratch.carver());
  }
  return qvxStatOk;
}
template <class Record, class T> [[gnu::noinline]] QvxStatus shortTransform(const Record& spec, const T* src, T* dst) {
  if (spec.way == Way::kRows) {
    (Record::kInverse ? inverseByRows<T> : forwardByRows<T>)(*spec.rows, static_cast<size_t>(spec.len), src, dst);
    return qvxStatOk;
  }
  alignas(64) Qvx8u room[kWorkOnStack];
  return transformedIn(Scratch(room, 0), spec, src, dst);
}

template <class Record, class T> QvxStatus transformed(const Record* spec, const T* src, T* dst, Qvx8u* pBuffer) {
  const QvxStatus status = check(spec);
  if (status != qvxStatOk) return status;
  if (isNull(src) || isNull(dst)) return qvxStatNullPtr;
  if (spec->way == Way::kKernel) {
    kKernels<T, Record::kInverse>[static_cast<size_t>(spec->len - 1)](src, dst);
    return qvxStatOk;
  }
  if (spec->len <= kLongestByRows) return shortTransform(*spec, src, dst);
  return transformedIn(Scratch(pBuffer, spec->workSize), *spec, src, dst);
}

}  // namespace qvx::dct

// The identities are fixed values of the interface.
struct QvxsDCTFwdSpec_32f : qvx::dct::Spec<Qvx32f, false, 21> {};
struct QvxsDCTInvSpec_32f : qvx::dct::Spec<Qvx32f, true, 22> {};
struct QvxsDCTFwdSpec_64f : qvx::dct::Spec<Qvx64f, false, 23> {};
struct QvxsDCTInvSpec_64f : qvx::dct::Spec<Qvx64f, true, 24> {};
static_assert(sizeof(QvxsDCTInvSpec_64f) + qvx::Carver::kRecordAlignment - 1 <= qvx::dct::kSmallSizes.spec);
