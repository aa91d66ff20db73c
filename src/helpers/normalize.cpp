// dst = (src - vSub) / vDiv
#include <bit>
#include <cmath>

#include "frame/map.h"
#include "frame/remainder.h"
#include "frame/rounding.h"
#include "frame/to_int.h"

using namespace qvx;

namespace {

// ---- floats

template <class T> struct TimesReciprocal {
  T reciprocal;
  template <class V> V operator()(V x, V vSub) const { return (x - vSub) * same<V>(reciprocal); }
};
template <class T> struct Divided {
  T divisor;
  template <class V> V operator()(V x, V vSub) const { return (x - vSub) / same<V>(divisor); }
};

template <class T> QvxStatus normalize(const T* src, T* dst, int len, T vSub, Part<T> vDiv) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  constexpr Part<T> kLeast = std::numeric_limits<Part<T>>::min();
  if (!(std::fabs(vDiv) >= kLeast)) return qvxStatDivByZero;
  const size_t n = elements(len) * PartsOf<T>::kCount;
  const auto with = [&](auto kernel) { return loop(kernel, destination(dst), n, source(src), Constant{vSub}); };
  const Part<T> reciprocal = 1 / vDiv;
  return std::fabs(reciprocal) >= kLeast ? with(TimesReciprocal<Part<T>>{reciprocal}) : with(Divided<Part<T>>{vDiv});
}

// ---- integers

// 2^scaleFactor. Of scale factors beyond 127 the last seven bits count. 64 places make zeros of all quotients, or saturate all
// but zeros: more do the same.
float scaleOf(int scaleFactor) {
  const auto magnitude = scaleFactor < 0 ? 0U - static_cast<uint32_t>(scaleFactor) : static_cast<uint32_t>(scaleFactor);
  const uint32_t places = std::min(magnitude & 127, 64U) << 23;
  return std::bit_cast<float>(scaleFactor < 0 ? 0x3F800000 - places : 0x3F800000 + places);
}

// With fused multiplications the product with the reciprocal is corrected by its remainder, in a third of a division's time. The
// dividend has 17 bits, so the corrected quotient is the nearest float. The divisor has the scale in it: a multiplication after
// the division takes 281 ns for 4096 elements, not 258.
struct Quotient {
  float divisor;
  float reciprocal;

  template <class V> auto operator()(V x, V vSub) const {
    const auto quotient = [&](auto difference) {
      const auto t = hn::ConvertTo(hn::RebindToFloat<TagOf<decltype(difference)>>(), difference);
      using F = std::remove_const_t<decltype(t)>;
      const F d = same<F>(divisor);
      F q;
      if constexpr (kFuses) {
        const F near = t * same<F>(reciprocal);
        q = hn::MulAdd(remainderOf(near, d, t), same<F>(reciprocal), near);
      } else {
        q = t / d;
      }
      return toIntsBelow<Qvx16s>(q, ToInt<qvxRoundNearestEven>());
    };
    return convertLanes<Qvx16s>(quotient(convertLanes<Qvx32s>(x) - convertLanes<Qvx32s>(vSub)));
  }
};

template <class T> QvxStatus normalize(const T* src, T* dst, int len, T vSub, int vDiv, int scaleFactor) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  if (vDiv == 0) return qvxStatDivByZero;
  const RoundingScope nearest(Rounding::kNearest);
  const float divisor = RoundingScope::pinned(static_cast<float>(vDiv)) * scaleOf(scaleFactor);
  const Quotient kernel = {divisor, RoundingScope::pinned(1 / divisor)};
  return loop<float>(kernel, destination(dst), elements(len) * PartsOf<T>::kCount, source(src), Constant{vSub});
}

}  // namespace

// clang-format off
QvxStatus qvxsNormalize_32f(const Qvx32f* a, Qvx32f* d, int len, Qvx32f vSub, Qvx32f vDiv) { return normalize(a, d, len, vSub, vDiv); }
QvxStatus qvxsNormalize_64f(const Qvx64f* a, Qvx64f* d, int len, Qvx64f vSub, Qvx64f vDiv) { return normalize(a, d, len, vSub, vDiv); }
QvxStatus qvxsNormalize_32fc(const Qvx32fc* a, Qvx32fc* d, int len, Qvx32fc vSub, Qvx32f vDiv) { return normalize(a, d, len, vSub, vDiv); }
QvxStatus qvxsNormalize_64fc(const Qvx64fc* a, Qvx64fc* d, int len, Qvx64fc vSub, Qvx64f vDiv) { return normalize(a, d, len, vSub, vDiv); }
QvxStatus qvxsNormalize_16s_Sfs(const Qvx16s* a, Qvx16s* d, int len, Qvx16s vSub, int vDiv, int sf) { return normalize(a, d, len, vSub, vDiv, sf); }
QvxStatus qvxsNormalize_16sc_Sfs(const Qvx16sc* a, Qvx16sc* d, int len, Qvx16sc vSub, int vDiv, int sf) { return normalize(a, d, len, vSub, vDiv, sf); }
// clang-format on
