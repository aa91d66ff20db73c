// Sums and means.
#include "frame/rounding.h"
#include "stats/moments.h"

using namespace qvx;

namespace {

template <class Sum, class T, class R, class Finish> QvxStatus sumTo(R* result, const T* src, int len, Finish finish) {
  return reducedTo<Sum>(result, elements(len) * PartsOf<T>::kCount, finish, source(src));
}

// The sum of floats in doubles, brought to the result by `finish`.
template <class T, class Finish> QvxStatus sumFloats(const T* src, int len, T* result, int hint, Finish finish) {
  constexpr size_t kParts = PartsOf<T>::kCount;
  const QvxStatus status = check(len, src, result);
  if (status != qvxStatOk) return status;
  const auto finished = [finish](auto sum) {
    if constexpr (kParts == 1) return static_cast<T>(finish(sum));
    else return complexOf<T>(finish(sum.re), finish(sum.im));
  };
  if constexpr (sizeof(Part<T>) == 4) {
    if (hint == kFast) return sumTo<FloatSum<float, Elements, kParts>>(result, src, len, finished);
  }
  return sumTo<FloatSum<double, Elements, kParts>>(result, src, len, finished);
}

// The exact sum of integers, brought to the result by `finish`.
template <class Sum, class T, class R, class Finish> QvxStatus sumIntegers(const T* src, int len, R* result, Finish finish) {
  const QvxStatus status = check(len, src, result);
  if (status != qvxStatOk) return status;
  return sumTo<Sum>(result, src, len, [finish](auto sum) -> R {
    if constexpr (PartsOf<T>::kCount == 1) return finish(sum);
    else return {finish(sum.re), finish(sum.im)};
  });
}

constexpr auto asItIs = [](double sum) { return sum; };

auto over(int len) {
  return [len](double sum) { return sum / len; };
}

template <class R> auto scaledTo(int scaleFactor) {
  return [scaleFactor](int64_t sum) { return scaled<R>(sum, scaleFactor); };
}

template <class Sum, class T> QvxStatus meanIntegers(const T* src, int len, T* mean, int scaleFactor) {
  return sumIntegers<Sum>(src, len, mean, [=](int64_t sum) {
    const RoundingScope nearest(Rounding::kNearest);
    const auto dividend = static_cast<double>(RoundingScope::pinned(sum));
    return RoundingScope::pinned(roundedTo<Part<T>>(dividend / len * scaleFactorOf(scaleFactor)));
  });
}

}  // namespace

// clang-format off
QvxStatus qvxsSum_32f(const Qvx32f* a, int len, Qvx32f* sum, int hint) { return sumFloats(a, len, sum, hint, asItIs); }
QvxStatus qvxsSum_32fc(const Qvx32fc* a, int len, Qvx32fc* sum, int hint) { return sumFloats(a, len, sum, hint, asItIs); }
QvxStatus qvxsSum_64f(const Qvx64f* a, int len, Qvx64f* sum) { return sumFloats(a, len, sum, 0, asItIs); }
QvxStatus qvxsSum_64fc(const Qvx64fc* a, int len, Qvx64fc* sum) { return sumFloats(a, len, sum, 0, asItIs); }
QvxStatus qvxsSum_16s_Sfs(const Qvx16s* a, int len, Qvx16s* sum, int sf) { return sumIntegers<Sum16>(a, len, sum, scaledTo<Qvx16s>(sf)); }
QvxStatus qvxsSum_16sc_Sfs(const Qvx16sc* a, int len, Qvx16sc* sum, int sf) { return sumIntegers<Sum16Complex>(a, len, sum, scaledTo<Qvx16s>(sf)); }
QvxStatus qvxsSum_16s32s_Sfs(const Qvx16s* a, int len, Qvx32s* sum, int sf) { return sumIntegers<Sum16>(a, len, sum, scaledTo<Qvx32s>(sf)); }
QvxStatus qvxsSum_16sc32sc_Sfs(const Qvx16sc* a, int len, Qvx32sc* sum, int sf) { return sumIntegers<Sum16Complex>(a, len, sum, scaledTo<Qvx32s>(sf)); }
QvxStatus qvxsSum_32s_Sfs(const Qvx32s* a, int len, Qvx32s* sum, int sf) { return sumIntegers<Sum32>(a, len, sum, scaledTo<Qvx32s>(sf)); }

QvxStatus qvxsMean_32f(const Qvx32f* a, int len, Qvx32f* mean, int hint) { return sumFloats(a, len, mean, hint, over(len)); }
QvxStatus qvxsMean_32fc(const Qvx32fc* a, int len, Qvx32fc* mean, int hint) { return sumFloats(a, len, mean, hint, over(len)); }
QvxStatus qvxsMean_64f(const Qvx64f* a, int len, Qvx64f* mean) { return sumFloats(a, len, mean, 0, over(len)); }
QvxStatus qvxsMean_64fc(const Qvx64fc* a, int len, Qvx64fc* mean) { return sumFloats(a, len, mean, 0, over(len)); }
QvxStatus qvxsMean_16s_Sfs(const Qvx16s* a, int len, Qvx16s* mean, int sf) { return meanIntegers<Sum16>(a, len, mean, sf); }
QvxStatus qvxsMean_16sc_Sfs(const Qvx16sc* a, int len, Qvx16sc* mean, int sf) { return meanIntegers<Sum16Complex>(a, len, mean, sf); }
QvxStatus qvxsMean_32s_Sfs(const Qvx32s* a, int len, Qvx32s* mean, int sf) { return meanIntegers<Sum32>(a, len, mean, sf); }
// clang-format on
