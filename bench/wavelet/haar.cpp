// The Haar transform beside the loops of its definition.
#include "frame/families.h"

namespace bench {

namespace {

struct PlainForward {
  template <class T> [[gnu::noipa]] static void run(const T* __restrict a, int n, T* __restrict low, T* __restrict high) {
    for (int k = 0; k < n / 2; ++k) {
      const auto first = a[2 * k], second = a[2 * k + 1];
      if constexpr (std::is_floating_point_v<T>) {
        high[k] = (second - first) * T(0.5);
        low[k] = first + high[k];
      } else {  // ties upward, which is easier
        low[k] = static_cast<T>((int64_t{first} + second + 1) >> 1);
        high[k] = static_cast<T>((int64_t{second} - first + 1) >> 1);
      }
    }
  }
};
template <class T> [[gnu::noipa]] void plainInverse(const T* __restrict low, const T* __restrict high, T* __restrict d, int n) {
  for (int k = 0; k < n / 2; ++k) {
    if constexpr (std::is_floating_point_v<T>) {
      d[2 * k] = low[k] - high[k];
      d[2 * k + 1] = low[k] + high[k];
    } else {
      using Wide = std::conditional_t<sizeof(T) == 4, int64_t, int>;
      constexpr Wide kLeast = std::numeric_limits<T>::min(), kMost = std::numeric_limits<T>::max();
      d[2 * k] = static_cast<T>(std::clamp<Wide>(Wide{low[k]} - high[k], kLeast, kMost));
      d[2 * k + 1] = static_cast<T>(std::clamp<Wide>(Wide{low[k]} + high[k], kLeast, kMost));
    }
  }
}

template <auto kCall, class T> QvxStatus forward(const T* a, T* low, T* high, int n) { return kCall(a, n, low, high); }
template <class T> void plainForward(const T* a, T* low, T* high, int n) { PlainForward::run(a, n, low, high); }

}  // namespace

void haar(Suite& s) {
  constexpr auto kDiffers = Agreement::kDiffers;
  s.row("WTHaarFwd_32f", forward<qvxsWTHaarFwd_32f, Qvx32f>).against("plain", plainForward<Qvx32f>);
  s.row("WTHaarFwd_64f", forward<qvxsWTHaarFwd_64f, Qvx64f>).against("plain", plainForward<Qvx64f>);
  s.row("WTHaarFwd_8s", forward<qvxsWTHaarFwd_8s, Qvx8s>).against("plain", plainForward<Qvx8s>, kDiffers);
  s.row("WTHaarFwd_16s", forward<qvxsWTHaarFwd_16s, Qvx16s>).against("plain", plainForward<Qvx16s>, kDiffers);
  s.row("WTHaarFwd_32s", forward<qvxsWTHaarFwd_32s, Qvx32s>).against("plain", plainForward<Qvx32s>, kDiffers);
  s.row("WTHaarInv_32f", qvxsWTHaarInv_32f).against("plain", plainInverse<Qvx32f>);
  s.row("WTHaarInv_64f", qvxsWTHaarInv_64f).against("plain", plainInverse<Qvx64f>);
  s.row("WTHaarInv_16s", qvxsWTHaarInv_16s).against("plain", plainInverse<Qvx16s>, kDiffers);
  s.row("WTHaarInv_32s", qvxsWTHaarInv_32s).against("plain", plainInverse<Qvx32s>, kDiffers);
}

}  // namespace bench
