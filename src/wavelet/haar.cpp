// The Haar transform of neighbouring pairs: half sums and half differences, and back.
#include "frame/complex.h"

using namespace qvx;

namespace {

// ---- forward: (a + b) / 2 and (b - a) / 2

struct HalfOf {
  template <class V> Pair<V> operator()(Pair<V> v) const {
    const V high = (v.hi - v.lo) * same<V>(LaneOf<V>(0.5));
    return {v.lo + high, high};
  }
};

// Exact sums and differences, brought to the lane by shift().
template <class Shift> struct ShiftedSums {
  Shift shift;
  template <class V> Pair<V> operator()(Pair<V> v) const {
    return {shift(halvedSum(v.hi, v.lo)), shift(halvedDifference(v.hi, v.lo))};
  }
};
// Saturated, and multiplied by 2^places.
struct LargeSums {
  int places;
  template <class V> Pair<V> operator()(Pair<V> v) const {
    return {saturatedShiftLeft(saturatedAdd(v.hi, v.lo), places), saturatedShiftLeft(saturatedSub(v.hi, v.lo), places)};
  }
};
struct NoSums {
  template <class V> Pair<V> operator()(Pair<V>) const { return {hn::Zero(TagOf<V>()), hn::Zero(TagOf<V>())}; }
};

// ---- inverse: low - high and low + high, the difference and the sum of the pair (high, low)

template <class Sums> struct Inverse {
  Sums sums;
  template <class V> Pair<V> operator()(V low, V high) const {
    const Pair<V> both = sums(Pair<V>{high, low});
    return {both.hi, both.lo};
  }
};
struct PlainSums {
  template <class V> Pair<V> operator()(Pair<V> v) const { return {saturatedAdd(v.hi, v.lo), saturatedSub(v.hi, v.lo)}; }
};

// ---- the loops

template <class T, class Kernel> QvxStatus forward(Kernel kernel, const T* src, size_t n, T* low, T* high) {
  return n < 2 ? qvxStatOk : loop(kernel, SplitDestination<T>{low, high}, n / 2, Deinterleaved<T>{src});
}
template <class T, class Kernel> QvxStatus inverse(Kernel kernel, const T* low, const T* high, T* dst, size_t n) {
  return n < 2 ? qvxStatOk : loop(kernel, InterleavedDestination<T>{dst}, n / 2, source(low), source(high));
}

// with(sums) for the sums and differences times 2^-places. Inline: the captures of `with` would go through memory (10 ns).
template <class T, class With> [[gnu::always_inline]] inline QvxStatus scaledSums(int64_t places, With with) {
  constexpr int kBits = 8 * sizeof(T);  // from one place more on a half is left at most, and 0 is even
  if (places == 0) return with(PlainSums());
  if (places == 1) return with(ShiftedSums<ShiftOne>{});
  if (places > kBits) return with(NoSums());
  if (places > 0) return with(ShiftedSums<ShiftMore>{{static_cast<int>(places)}});
  return with(LargeSums{static_cast<int>(std::min<int64_t>(-places, kBits - 1))});
}

// The sample without a neighbour.
template <class T> T tail(T v, int scaleFactor) { return scaled<T>(int64_t{v}, scaleFactor); }

template <class T> QvxStatus haarForward(const T* src, int len, T* low, T* high, int scaleFactor = 0) {
  const QvxStatus status = check(len, src, low, high);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  if constexpr (std::is_floating_point_v<T>) {
    if (n % 2 != 0) low[n / 2] = src[n - 1];
    return forward(HalfOf(), src, n, low, high);
  } else {
    if (n % 2 != 0) low[n / 2] = tail(src[n - 1], scaleFactor);
    return scaledSums<T>(int64_t{scaleFactor} + 1, [=](auto sums) { return forward(sums, src, n, low, high); });
  }
}

template <class T> QvxStatus haarInverse(const T* low, const T* high, T* dst, int len, int scaleFactor = 0) {
  const QvxStatus status = check(len, low, high, dst);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  if constexpr (std::is_floating_point_v<T>) {
    if (n % 2 != 0) dst[n - 1] = low[n / 2];
    return inverse(Inverse<PlainSums>{}, low, high, dst, n);
  } else {
    if (n % 2 != 0) dst[n - 1] = tail(low[n / 2], scaleFactor);
    return scaledSums<T>(scaleFactor, [=](auto sums) { return inverse(Inverse<decltype(sums)>{sums}, low, high, dst, n); });
  }
}

}  // namespace

// clang-format off
QvxStatus qvxsWTHaarFwd_8s (const Qvx8s*  a, int len, Qvx8s*  low, Qvx8s*  high) { return haarForward(a, len, low, high); }
QvxStatus qvxsWTHaarFwd_16s(const Qvx16s* a, int len, Qvx16s* low, Qvx16s* high) { return haarForward(a, len, low, high); }
QvxStatus qvxsWTHaarFwd_32s(const Qvx32s* a, int len, Qvx32s* low, Qvx32s* high) { return haarForward(a, len, low, high); }
QvxStatus qvxsWTHaarFwd_64s(const Qvx64s* a, int len, Qvx64s* low, Qvx64s* high) { return haarForward(a, len, low, high); }
QvxStatus qvxsWTHaarFwd_32f(const Qvx32f* a, int len, Qvx32f* low, Qvx32f* high) { return haarForward(a, len, low, high); }
QvxStatus qvxsWTHaarFwd_64f(const Qvx64f* a, int len, Qvx64f* low, Qvx64f* high) { return haarForward(a, len, low, high); }
QvxStatus qvxsWTHaarFwd_8s_Sfs (const Qvx8s*  a, int len, Qvx8s*  low, Qvx8s*  high, int sf) { return haarForward(a, len, low, high, sf); }
QvxStatus qvxsWTHaarFwd_16s_Sfs(const Qvx16s* a, int len, Qvx16s* low, Qvx16s* high, int sf) { return haarForward(a, len, low, high, sf); }
QvxStatus qvxsWTHaarFwd_32s_Sfs(const Qvx32s* a, int len, Qvx32s* low, Qvx32s* high, int sf) { return haarForward(a, len, low, high, sf); }
QvxStatus qvxsWTHaarFwd_64s_Sfs(const Qvx64s* a, int len, Qvx64s* low, Qvx64s* high, int sf) { return haarForward(a, len, low, high, sf); }
QvxStatus qvxsWTHaarInv_8s (const Qvx8s*  low, const Qvx8s*  high, Qvx8s*  d, int len) { return haarInverse(low, high, d, len); }
QvxStatus qvxsWTHaarInv_16s(const Qvx16s* low, const Qvx16s* high, Qvx16s* d, int len) { return haarInverse(low, high, d, len); }
QvxStatus qvxsWTHaarInv_32s(const Qvx32s* low, const Qvx32s* high, Qvx32s* d, int len) { return haarInverse(low, high, d, len); }
QvxStatus qvxsWTHaarInv_64s(const Qvx64s* low, const Qvx64s* high, Qvx64s* d, int len) { return haarInverse(low, high, d, len); }
QvxStatus qvxsWTHaarInv_32f(const Qvx32f* low, const Qvx32f* high, Qvx32f* d, int len) { return haarInverse(low, high, d, len); }
QvxStatus qvxsWTHaarInv_64f(const Qvx64f* low, const Qvx64f* high, Qvx64f* d, int len) { return haarInverse(low, high, d, len); }
QvxStatus qvxsWTHaarInv_8s_Sfs (const Qvx8s*  low, const Qvx8s*  high, Qvx8s*  d, int len, int sf) { return haarInverse(low, high, d, len, sf); }
QvxStatus qvxsWTHaarInv_16s_Sfs(const Qvx16s* low, const Qvx16s* high, Qvx16s* d, int len, int sf) { return haarInverse(low, high, d, len, sf); }
QvxStatus qvxsWTHaarInv_32s_Sfs(const Qvx32s* low, const Qvx32s* high, Qvx32s* d, int len, int sf) { return haarInverse(low, high, d, len, sf); }
QvxStatus qvxsWTHaarInv_64s_Sfs(const Qvx64s* low, const Qvx64s* high, Qvx64s* d, int len, int sf) { return haarInverse(low, high, d, len, sf); }
// clang-format on
