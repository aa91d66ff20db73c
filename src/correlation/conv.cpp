// Linear convolution, whole and in part.
#include "correlation/direct.h"
#include "correlation/doubles.h"

using namespace qvx;
using namespace qvx::correlation;

namespace {

// Below either of these lengths, whole numbers have to give exact sums.
constexpr size_t kLongFrom = 512;
constexpr size_t kShorterFrom = 64;

// The shorter vector becomes the taps.
template <class C> Band<C> bandOf(const C* a, size_t aLen, const C* b, size_t bLen, int64_t bias, size_t outputs) {
  if (aLen < bLen) return bandOf(b, bLen, a, aLen, bias, outputs);
  return {a, aLen, b, bLen, true, bias + 1 - static_cast<int64_t>(bLen), outputs};
}

template <class C> QvxStatus convolve(const C* a, size_t aLen, const C* b, size_t bLen, C* y) {
  const size_t outputs = aLen + bLen - 1;
  const bool isShort = outputs < kLongFrom || std::min(aLen, bLen) < kShorterFrom;
  return correlateBand(bandOf(a, aLen, b, bLen, 0, outputs), y, isShort ? Way::kDirect : Way::kAny);
}

QvxStatus checkOperands(const void* a, int aLen, const void* b, int bLen, const void* y) {
  if (isNull(a) || isNull(b) || isNull(y)) return qvxStatNullPtr;
  return aLen < 1 || bLen < 1 ? qvxStatBadSize : qvxStatOk;
}

template <class C> QvxStatus checkedConvolve(const C* a, int aLen, const C* b, int bLen, C* y) {
  const QvxStatus status = checkOperands(a, aLen, b, bLen, y);
  if constexpr (constexpr int kMost = kInRegisters<C>; kMost > 0) {
    if (status == qvxStatOk && aLen <= kMost && bLen <= kMost) {
      const Band<C> band = bandOf(a, elements(aLen), b, elements(bLen), 0, elements(aLen + bLen - 1));
      if (correlateInRegisters(band, y)) return qvxStatOk;
    }
  }
  return status == qvxStatOk ? convolve(a, elements(aLen), b, elements(bLen), y) : status;
}

// The shapes whose second operand begins before its pointer.
struct Shape {
  int aLen, bLen, outputs, bias;
  bool operator==(const Shape&) const = default;
};
constexpr Shape kReadAhead[] = {{4, 45, 41, 4}, {11, 50, 40, 10}, {16, 56, 40, 16}, {31, 70, 40, 30}, {31, 110, 80, 30}};

}  // namespace

QvxStatus qvxsConv_32f(const Qvx32f* a, int aLen, const Qvx32f* b, int bLen, Qvx32f* y) {
  return checkedConvolve(a, aLen, b, bLen, y);
}
QvxStatus qvxsConv_64f(const Qvx64f* a, int aLen, const Qvx64f* b, int bLen, Qvx64f* y) {
  return checkedConvolve(a, aLen, b, bLen, y);
}

QvxStatus qvxsConv_16s_Sfs(const Qvx16s* a, int aLen, const Qvx16s* b, int bLen, Qvx16s* y, int scaleFactor) {
  const QvxStatus status = checkOperands(a, aLen, b, bLen, y);
  if (status != qvxStatOk) return status;
  return inDoubles(a, elements(aLen), b, elements(bLen), elements(aLen) + elements(bLen) - 1, y, scaleFactor, convolve<Qvx64f>);
}

QvxStatus qvxsConvBiased_32f(const Qvx32f* a, int aLen, const Qvx32f* b, int bLen, Qvx32f* y, int dstLen, int bias) {
  const QvxStatus status = checkOperands(a, aLen, b, bLen, y);
  if (status != qvxStatOk) return status;
  if (dstLen < 1) return qvxStatBadSize;
  const size_t taps = elements(aLen);
  const size_t outputs = elements(dstLen);
  if (std::ranges::count(kReadAhead, Shape{aLen, bLen, dstLen, bias}) != 0) {
    const size_t ahead = taps - 1;
    return correlateBand(Band<Qvx32f>{b - ahead, outputs + ahead, a, taps, true, 0, outputs}, y, Way::kDirect);
  }
  return whereMeeting(bandOf(a, taps, b, elements(bLen), bias, outputs), y,
                      [](const auto& band, Qvx32f* sums) { return correlateBand(band, sums, Way::kDirect); });
}
