// The Bartlett window.
#include "frame/each_vector.h"
#include "frame/lane_numbers.h"
#include "window/weigh.h"

using namespace qvx;
using namespace qvx::window;

namespace {

// 2n / (N-1): a vector's first weight, and what the others have more.
template <class W> struct Rising {
  double step;

  template <class Put> void operator()(size_t count, Put put) const {
    constexpr size_t N = kVectorBytes / sizeof(W);
    const Lanes<W, N> d;
    const auto lanes = laneNumbersOf(d) * hn::Set(d, static_cast<W>(step));
    eachVector<N>(count, [&](size_t at, auto... rest) {
      put(at, lanes + hn::Set(d, static_cast<W>(static_cast<double>(at) * step)), rest...);
    });
  }
};

template <class T> QvxStatus bartlett(const T* src, T* dst, int len) {
  const QvxStatus status = checkWindow(src, dst, len);
  if (status != qvxStatOk) return status;
  if (len == 3) {
    clearEnds(src, dst);
    return qvxStatOk;
  }
  const RoundingScope mode(std::is_integral_v<Part<T>> ? Rounding::kNearest : Rounding::kCallers);
  weigh(src, dst, elements(len), Weighed<T>(), Rising<Weight<T>>{2.0 / (len - 1)});
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsWinBartlett_16s(const Qvx16s* a, Qvx16s* d, int len) { return bartlett(a, d, len); }
QvxStatus qvxsWinBartlett_16s_I(Qvx16s* d, int len) { return bartlett(d, d, len); }
QvxStatus qvxsWinBartlett_16sc(const Qvx16sc* a, Qvx16sc* d, int len) { return bartlett(a, d, len); }
QvxStatus qvxsWinBartlett_16sc_I(Qvx16sc* d, int len) { return bartlett(d, d, len); }
QvxStatus qvxsWinBartlett_32f(const Qvx32f* a, Qvx32f* d, int len) { return bartlett(a, d, len); }
QvxStatus qvxsWinBartlett_32f_I(Qvx32f* d, int len) { return bartlett(d, d, len); }
QvxStatus qvxsWinBartlett_32fc(const Qvx32fc* a, Qvx32fc* d, int len) { return bartlett(a, d, len); }
QvxStatus qvxsWinBartlett_32fc_I(Qvx32fc* d, int len) { return bartlett(d, d, len); }
QvxStatus qvxsWinBartlett_64f(const Qvx64f* a, Qvx64f* d, int len) { return bartlett(a, d, len); }
QvxStatus qvxsWinBartlett_64f_I(Qvx64f* d, int len) { return bartlett(d, d, len); }
QvxStatus qvxsWinBartlett_64fc(const Qvx64fc* a, Qvx64fc* d, int len) { return bartlett(a, d, len); }
QvxStatus qvxsWinBartlett_64fc_I(Qvx64fc* d, int len) { return bartlett(d, d, len); }
// clang-format on
