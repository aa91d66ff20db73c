// The record of an integer transform: the one of the floating-point transform that it goes through, or for the shortest of 16
// bits the shifts of a transform in integers.
#pragma once

#include "fft/record.h"

namespace qvx::fft {

template <class Floats_> struct IntegerSpec : RecordHead {
  using Floats = Floats_;
  int32_t order;
  int32_t workSize;
  bool halfShift;  // by half a place more than fwdShift and invShift
  uint8_t fwdShift;
  uint8_t invShift;
  Floats* floats;  // null: in integers
};

inline constexpr int kIntegerOrder = 3;
constexpr bool isInIntegers(int order, int hint) { return order == 0 || (order <= kIntegerOrder && (hint == 0 || hint == 1)); }

constexpr int64_t pointsOf(int order) { return int64_t{1} << order; }
constexpr int64_t asked(int64_t work) { return work > 0 ? work + kWorkSlack : 0; }

// floats: the sizes of the transform in floats, elementBytes and moreBytes those of the vector it runs on.
constexpr Sizes sizesThrough(Sizes floats, int64_t vectorBytes, int64_t specMore) {
  return {floats.spec + specMore, floats.init, asked(floats.work) + vectorBytes};
}

// Of 16 bits. inIntegers: the tables and the vector of a transform in integers.
constexpr Sizes sizesOf16(int order, int hint, Sizes inIntegers, Sizes inFloats) {
  if (order == 0) return {104, 0, 0};
  Sizes sizes = isInIntegers(order, hint) ? inIntegers : inFloats;
  sizes.init += 32;
  return sizes;
}
constexpr Sizes complexSizes16(int order, int hint, bool apart) {
  const int64_t n = pointsOf(order);
  const int64_t quarter = n / 4;
  return sizesOf16(order, hint, {up<32>(8 * n) + up<32>(4 * quarter + 4) + 128, up<32>(2 * quarter + 2), (apart ? 12 : 8) * n},
                   sizesThrough(complexSizes<float>(order), 8 * n, 128));
}
constexpr Sizes realSizes16(int order, int hint) {
  const int64_t n = pointsOf(order);
  return sizesOf16(order, hint, {up<32>(4 * n) + up<32>(n / 2 + 4) + 128, up<32>(2 * (n / 4) + 2), 4 * n + 8},
                   sizesThrough(realSizes<float>(order), 4 * n + 8, 128));
}
// Of 32 bits.
constexpr Sizes sizesOf32(Sizes floats, int64_t vectorBytes) {
  Sizes sizes = sizesThrough(floats, vectorBytes, 64);
  if (sizes.init > 0) sizes.init += 32;
  return sizes;
}
constexpr Sizes complexSizes32(int order) { return sizesOf32(complexSizes<double>(order), 16 * pointsOf(order)); }
constexpr Sizes realSizes32(int order) { return sizesOf32(realSizes<double>(order), 8 * pointsOf(order) + 16); }
constexpr Sizes realSizes16to32(int order) { return sizesOf32(realSizes<float>(order), 4 * pointsOf(order) + 8); }

// The highest order of a transform in floats, or less where a size would not fit an int.
template <class GetSizes> constexpr int limitOf(int limitOfFloats, GetSizes sizes) {
  const auto fits = [](int64_t bytes) { return bytes + kWorkSlack <= std::numeric_limits<int>::max(); };
  int limit = limitOfFloats;
  while (!fits(sizes(limit).spec) || !fits(sizes(limit).init) || !fits(sizes(limit).work)) --limit;
  return limit;
}

template <class Record, class WorkSize>
QvxStatus initInteger(Record** ppSpec, int order, int flag, int limit, bool inIntegers, WorkSize workSize, Qvx8u* pMemory,
                      Qvx8u* pInit, QvxStatus (*initFloats)(typename Record::Floats**, int, int, int, Qvx8u*, Qvx8u*)) {
  if (isNull(ppSpec)) return qvxStatNullPtr;
  if (order < 0 || order > kHighestOrder) return qvxStatBadFFTOrder;
  if (isNull(pMemory)) return qvxStatNullPtr;
  return initRecord(ppSpec, pMemory, [&](Record& spec, const Carver& floats) {
    if (!isFlag(flag)) return qvxStatBadFFTFlag;
    if (order > limit) return qvxStatBadFFTOrder;
    spec.magic = Record::kId;
    spec.order = order;
    spec.workSize = static_cast<int32_t>(workSize());
    const bool isRoot = flag == QVX_FFT_SCALE_BOTH_SQRT;
    spec.fwdShift = static_cast<uint8_t>(isRoot ? order / 2 : flag == QVX_FFT_SCALE_FWD ? order : 0);
    spec.invShift = static_cast<uint8_t>(isRoot ? order / 2 : flag == QVX_FFT_SCALE_INV ? order : 0);
    spec.halfShift = isRoot && order % 2 != 0;
    return inIntegers ? qvxStatOk : initFloats(&spec.floats, order, flag, 0, floats.rest(), pInit);
  });
}

// ---- Between integers and floats, by what both are

inline QvxStatus toFloats(const Qvx16s* src, Qvx32f* y, int len) { return qvxsConvert_16s32f(src, y, len); }
inline QvxStatus toFloats(const Qvx32s* src, Qvx32f* y, int len) { return qvxsConvert_32s32f(src, y, len); }
inline QvxStatus toFloats(const Qvx32s* src, Qvx64f* y, int len) { return qvxsConvert_32s64f(src, y, len); }
inline QvxStatus toIntegers(const Qvx32f* y, Qvx16s* dst, int len, int scaleFactor) {
  return qvxsConvert_32f16s_Sfs(y, dst, len, qvxRoundNearestEven, scaleFactor);
}
inline QvxStatus toIntegers(const Qvx32f* y, Qvx32s* dst, int len, int scaleFactor) {
  return qvxsConvert_32f32s_Sfs(y, dst, len, qvxRoundNearestEven, scaleFactor);
}
inline QvxStatus toIntegers(const Qvx64f* y, Qvx32s* dst, int len, int scaleFactor) {
  return qvxsConvert_64f32s_Sfs(y, dst, len, qvxRoundNearestEven, scaleFactor);
}

template <class To, class Spec> To* argumentOf(QvxStatus (*)(To*, const Spec*, Qvx8u*));

// run(y, work): y is an array of `count` floats, work what their transform takes.
template <class Record, class Run> QvxStatus withFloats(const Record& spec, int count, Qvx8u* pBuffer, Run run) {
  const Scratch scratch(pBuffer, spec.workSize);
  if (scratch.isMissing(spec.workSize)) return qvxStatNoMem;
  Carver carver = scratch.carver();
  auto* y = carver.take<typename Record::Floats::T>(count);
  return run(y, carver.rest());
}

// kTransform: in place. srcLen, dstLen: in numbers.
template <auto kTransform, class Record, class In, class Out>
QvxStatus throughFloats(const Record& spec, const In* src, int srcLen, Out* dst, int dstLen, int scaleFactor, Qvx8u* pBuffer) {
  return withFloats(spec, std::max(srcLen, dstLen), pBuffer, [&](auto* y, Qvx8u* work) {
    toFloats(src, y, srcLen);
    const QvxStatus status = kTransform(reinterpret_cast<decltype(argumentOf(kTransform))>(y), spec.floats, work);
    return status == qvxStatOk ? toIntegers(y, dst, dstLen, scaleFactor) : status;
  });
}

}  // namespace qvx::fft

struct QvxsFFTSpec_C_16sc : qvx::fft::Identified<qvx::fft::IntegerSpec<QvxsFFTSpec_C_32fc>, 1> {};
struct QvxsFFTSpec_C_16s : qvx::fft::Identified<qvx::fft::IntegerSpec<QvxsFFTSpec_C_32f>, 2> {};
struct QvxsFFTSpec_R_16s : qvx::fft::Identified<qvx::fft::IntegerSpec<QvxsFFTSpec_R_32f>, 3> {};
struct QvxsFFTSpec_C_32sc : qvx::fft::Identified<qvx::fft::IntegerSpec<QvxsFFTSpec_C_64fc>, 0x434D414C> {};
struct QvxsFFTSpec_C_32s : qvx::fft::Identified<qvx::fft::IntegerSpec<QvxsFFTSpec_C_64f>, 0x434D414D> {};
struct QvxsFFTSpec_R_32s : qvx::fft::Identified<qvx::fft::IntegerSpec<QvxsFFTSpec_R_64f>, 0x434D414E> {};
struct QvxsFFTSpec_R_16s32s : qvx::fft::Identified<qvx::fft::IntegerSpec<QvxsFFTSpec_R_32f>, 0x434D414F> {};
