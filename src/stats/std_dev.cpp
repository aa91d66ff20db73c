// Sample standard deviations, alone and with the mean.
#include <cmath>

#include "frame/rounding.h"
#include "stats/moments.h"

using namespace qvx;

namespace {

constexpr int kFewest = 2;  // elements, for a deviation to exist

template <class... T> QvxStatus checkTwo(int len, const T*... pointers) {
  const QvxStatus status = check(len, pointers...);
  return status == qvxStatOk && len < kFewest ? qvxStatBadSize : status;
}

template <class M> double deviation(M m, double n) {
  const auto sum = static_cast<double>(m.sum);
  const double numerator = static_cast<double>(m.squares) * n - sum * sum;
  // A comparison that is false for NaN, which passes.
  return std::sqrt((numerator < 0 ? 0 : numerator) / (n * (n - 1)));
}

template <class T, class Finish> QvxStatus finishedMoments(const T* src, int len, T* dev, int hint, Finish finish) {
  if constexpr (sizeof(T) == 4) {
    if (hint == kFast) return reducedTo<MomentsInFloats>(dev, elements(len), finish, source(src));
  }
  return reducedTo<MomentsInDoubles>(dev, elements(len), finish, source(src));
}

template <class T> QvxStatus deviationOfFloats(const T* src, int len, T* dev, int hint) {
  const QvxStatus status = checkTwo(len, src, dev);
  if (status != qvxStatOk) return status;
  return finishedMoments(src, len, dev, hint, [len](Moments<double> m) { return static_cast<T>(deviation(m, len)); });
}

template <class T> QvxStatus meanAndDeviationOfFloats(const T* src, int len, T* mean, T* dev, int hint) {
  const QvxStatus status = checkTwo(len, src, mean, dev);
  if (status != qvxStatOk) return status;
  return finishedMoments(src, len, dev, hint, [=](Moments<double> m) {
    *mean = static_cast<T>(m.sum / len);
    return static_cast<T>(deviation(m, len));
  });
}

// Sums of more than 53 bits are rounded as they become doubles: that belongs in the rounding scope too.
Moments<double> pinned(Moments<int64_t> m) {
  return {static_cast<double>(RoundingScope::pinned(m.sum)), static_cast<double>(RoundingScope::pinned(m.squares))};
}

template <class R> QvxStatus deviationOfIntegers(const Qvx16s* src, int len, R* dev, int scaleFactor) {
  const QvxStatus status = checkTwo(len, src, dev);
  if (status != qvxStatOk) return status;
  const auto finish = [=](Moments<int64_t> exact) {
    const RoundingScope nearest(Rounding::kNearest);
    return RoundingScope::pinned(roundedTo<R>(deviation(pinned(exact), len) * scaleFactorOf(scaleFactor)));
  };
  return reducedTo<Moments16>(dev, elements(len), finish, source(src));
}

template <class R> QvxStatus meanAndDeviationOfIntegers(const Qvx16s* src, int len, R* mean, R* dev, int scaleFactor) {
  const QvxStatus status = checkTwo(len, src, mean, dev);
  if (status != qvxStatOk) return status;
  // Captured in this order, they fit two registers; one more would send them through memory.
  const auto finish = [mean, len, scaleFactor](Moments<int64_t> exact) {
    const RoundingScope nearest(Rounding::kNearest);
    const double factor = scaleFactorOf(scaleFactor);
    const Moments<double> m = pinned(exact);
    *mean = roundedTo<R>(m.sum / len * factor);
    return RoundingScope::pinned(roundedTo<R>(deviation(m, len) * factor));
  };
  return reducedTo<Moments16>(dev, elements(len), finish, source(src));
}

}  // namespace

// clang-format off
QvxStatus qvxsStdDev_32f(const Qvx32f* a, int len, Qvx32f* dev, int hint) { return deviationOfFloats(a, len, dev, hint); }
QvxStatus qvxsStdDev_64f(const Qvx64f* a, int len, Qvx64f* dev) { return deviationOfFloats(a, len, dev, 0); }
QvxStatus qvxsStdDev_16s_Sfs(const Qvx16s* a, int len, Qvx16s* dev, int sf) { return deviationOfIntegers(a, len, dev, sf); }
QvxStatus qvxsStdDev_16s32s_Sfs(const Qvx16s* a, int len, Qvx32s* dev, int sf) { return deviationOfIntegers(a, len, dev, sf); }
QvxStatus qvxsMeanStdDev_32f(const Qvx32f* a, int len, Qvx32f* mean, Qvx32f* dev, int hint) { return meanAndDeviationOfFloats(a, len, mean, dev, hint); }
QvxStatus qvxsMeanStdDev_64f(const Qvx64f* a, int len, Qvx64f* mean, Qvx64f* dev) { return meanAndDeviationOfFloats(a, len, mean, dev, 0); }
QvxStatus qvxsMeanStdDev_16s_Sfs(const Qvx16s* a, int len, Qvx16s* mean, Qvx16s* dev, int sf) { return meanAndDeviationOfIntegers(a, len, mean, dev, sf); }
QvxStatus qvxsMeanStdDev_16s32s_Sfs(const Qvx16s* a, int len, Qvx32s* mean, Qvx32s* dev, int sf) { return meanAndDeviationOfIntegers(a, len, mean, dev, sf); }
// clang-format on
