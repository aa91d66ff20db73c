// To types that hold every value of the source, and from integers to floats.
#include "frame/packed24.h"
#include "frame/past_caches.h"
#include "frame/power.h"

using namespace qvx;

namespace {

template <class To> struct Into {
  template <class V> auto operator()(V v) const { return convertLanes<To>(v); }
};

template <class T, class From> QvxStatus from24(From source, T* dst, int len) {
  const QvxStatus status = check(len, source.p, dst);
  if (status != qvxStatOk) return status;
  return loop([](auto quad) { return each(quad, Into<T>()); }, Quads{dst}, elements(len), source);
}

// 16-bit integers of a whole register times a factor, in four registers. Half registers are widened at twice the cost in SSSE3:
// 4096 take 507 ns, not 620.
struct IntoFour {
  double factor;

  template <class V> auto operator()(V v) const {
    return each(widen<int32_t>(v), [this](auto words) { return this->inTwo(words); });
  }

 private:
  template <class V> auto inTwo(V v) const {
    const hn::Half<TagOf<V>> half;
    const hn::Rebind<double, decltype(half)> d;
    const auto times = [&](auto words) { return hn::PromoteTo(d, words) * hn::Set(d, factor); };
    return Pair<Vec<decltype(d)>>{times(hn::LowerHalf(half, v)), times(hn::UpperHalf(half, v))};
  }
};

// Multiplied by an exact power of two; the limits keep that a normal number.
template <class T, class From> QvxStatus scaledFloat(const From* src, T* dst, int len, int scaleFactor) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  if (scaleFactor == 0) return loop(Into<T>(), destination(dst), elements(len), source(src));
  const T factor = powerOfTwo<T>(sizeof(T) == 4 ? -std::clamp(scaleFactor, -112, 126) : -std::clamp(scaleFactor, -1008, 1022));
  if constexpr (!QVXS_AVX2 && sizeof(T) == 4 * sizeof(From))
    return loop(IntoFour{factor}, InTwos<InTwos<Destination<T>>>{InTwos{destination(dst)}}, elements(len), source(src));
  return AsIs{}.run([factor](auto v) { return convertLanes<T>(v) * hn::Set(hn::Rebind<T, TagOf<decltype(v)>>(), factor); },
                    destination(dst), elements(len), source(src));
}

}  // namespace

// clang-format off
QvxStatus qvxsConvert_8s16s(const Qvx8s* a, Qvx16s* d, int len) { return map<Into<Qvx16s>>(d, len, AsIs{}, a); }
QvxStatus qvxsConvert_16s32s(const Qvx16s* a, Qvx32s* d, int len) { return map<Into<Qvx32s>>(d, len, PastCaches{}, a); }
QvxStatus qvxsConvert_8s32f(const Qvx8s* a, Qvx32f* d, int len) { return map<Into<Qvx32f>>(d, len, PastCaches{}, a); }
QvxStatus qvxsConvert_8u32f(const Qvx8u* a, Qvx32f* d, int len) { return map<Into<Qvx32f>>(d, len, PastCaches{}, a); }
QvxStatus qvxsConvert_16s32f(const Qvx16s* a, Qvx32f* d, int len) { return map<Into<Qvx32f>>(d, len, PastCaches{}, a); }
QvxStatus qvxsConvert_16u32f(const Qvx16u* a, Qvx32f* d, int len) { return map<Into<Qvx32f>>(d, len, PastCaches{}, a); }
QvxStatus qvxsConvert_32s64f(const Qvx32s* a, Qvx64f* d, int len) { return map<Into<Qvx64f>>(d, len, PastCaches{}, a); }
QvxStatus qvxsConvert_32f64f(const Qvx32f* a, Qvx64f* d, int len) { return map<Into<Qvx64f>>(d, len, PastCaches{}, a); }
QvxStatus qvxsConvert_24u32u(const Qvx8u* a, Qvx32u* d, int len) { return from24(From24<Qvx32u>{a}, d, len); }
QvxStatus qvxsConvert_24s32s(const Qvx8u* a, Qvx32s* d, int len) { return from24(From24<Qvx32s>{a}, d, len); }
QvxStatus qvxsConvert_24u32f(const Qvx8u* a, Qvx32f* d, int len) { return from24(From24<Qvx32u>{a}, d, len); }
QvxStatus qvxsConvert_24s32f(const Qvx8u* a, Qvx32f* d, int len) { return from24(From24<Qvx32s>{a}, d, len); }

QvxStatus qvxsConvert_32s32f(const Qvx32s* a, Qvx32f* d, int len) { return map<Into<Qvx32f>>(d, len, PastCaches{}, a); }
QvxStatus qvxsConvert_64s64f(const Qvx64s* a, Qvx64f* d, int len) { return map<Into<Qvx64f>>(d, len, PastCaches{}, a); }
QvxStatus qvxsConvert_64f32f(const Qvx64f* a, Qvx32f* d, int len) { return map<Into<Qvx32f>>(d, len, PastCaches{}, a); }

QvxStatus qvxsConvert_16s32f_Sfs(const Qvx16s* a, Qvx32f* d, int len, int sf) { return scaledFloat(a, d, len, sf); }
QvxStatus qvxsConvert_16s64f_Sfs(const Qvx16s* a, Qvx64f* d, int len, int sf) { return scaledFloat(a, d, len, sf); }
QvxStatus qvxsConvert_32s32f_Sfs(const Qvx32s* a, Qvx32f* d, int len, int sf) { return scaledFloat(a, d, len, sf); }
QvxStatus qvxsConvert_32s64f_Sfs(const Qvx32s* a, Qvx64f* d, int len, int sf) { return scaledFloat(a, d, len, sf); }
// clang-format on
