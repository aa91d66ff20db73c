// The Bartlett window.
#include "frame/lane_numbers.h"
#include "window/weigh.h"

using namespace qvx;
using namespace qvx::window;

namespace {

// 2n / (N-1) for n = 0, 1, ..., a vector at a time. Beside floats n is counted in integers, which leave them no limit.
template <class W> class Rising {
 public:
  explicit Rising(int len) : step_(hn::Set(d_, static_cast<W>(2.0 / (len - 1)))) {}
  auto next() {
    const auto weights = convertLanes<W>(number_) * step_;
    number_ = number_ + hn::Set(places_, Number{N});
    return weights;
  }

 private:
  using Number = std::conditional_t<std::is_same_v<W, Qvx32f>, int32_t, W>;
  static constexpr size_t N = kVectorBytes / sizeof(W);
  static constexpr Lanes<W, N> d_ = {};
  static constexpr Lanes<Number, N> places_ = {};
  Vec<Lanes<W, N>> step_;
  Vec<Lanes<Number, N>> number_ = laneNumbersOf(places_);
};

template <class T> [[gnu::flatten]] QvxStatus bartlett(const T* src, T* dst, int len) {
  const QvxStatus status = checkWindow(src, dst, len);
  if (status != qvxStatOk) return status;
  if (len == 3) {
    clearEnds(src, dst);
    return qvxStatOk;
  }
  const RoundingScope mode(std::is_integral_v<Part<T>> ? Rounding::kNearest : Rounding::kCallers);
  weigh(src, dst, elements(len), WeighedUpToOne<T>(), [=](size_t count, const auto& put) {
    const auto next = [weights = Rising<Weight<T>>(len)]() mutable { return weights.next(); };
    putInOrder<T, Weight<T>>(count, next, put);
  });
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
