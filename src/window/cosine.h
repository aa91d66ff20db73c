// Windows that are polynomials of s = sin^2(pi n / (N-1)): Hann, Hamming and the Blackman family.
//
// From s nothing cancels where a window goes to zero: its smallest weights are as good as its largest.
#pragma once

#include <array>

#include "frame/lane_numbers.h"
#include "math/sine.h"
#include "math/spaced_sin_cos.h"
#include "window/weigh.h"

namespace qvx::window {

// Each takes two factors, whose product is s times the square of its scale.
struct Hann {
  static constexpr bool kIsZeroAtEnds = true;
  static constexpr double scale() { return 1; }
  template <class V> V operator()(V a, V b) const { return a * b; }
};
// 0.08 + 0.92 s
struct Hamming {
  static constexpr bool kIsZeroAtEnds = false;
  static constexpr double scale() { return 0.9591663046625439; }  // the root of 0.92
  template <class V> V operator()(V a, V b) const { return hn::MulAdd(a, b, same<V>(static_cast<LaneOf<V>>(0.54 - 0.46))); }
};
// s (c1 + c2 s)
struct Blackman {
  static constexpr bool kIsZeroAtEnds = true;
  double c1;
  double c2;

  static constexpr double scale() { return 1; }
  template <class V> V operator()(V a, V b) const {
    using W = LaneOf<V>;
    const V s = a * b;
    return s * hn::MulAdd(s, same<V>(static_cast<W>(c2)), same<V>(static_cast<W>(c1)));
  }
};
// t (c1 / r + t), where r is the root of a positive c2 and t = r s: a sum, which goes beside the products. 4096 floats take 0.93
// of the time.
struct RisingBlackman {
  double root;
  double addend;

  explicit RisingBlackman(Blackman form) : root(std::sqrt(form.c2)), addend(form.c1 / root) {}
  double scale() const { return std::sqrt(root); }
  template <class V> V operator()(V a, V b) const {
    const V t = a * b;
    return t * (t + same<V>(static_cast<LaneOf<V>>(addend)));
  }
};

namespace detail {

// From as many weights on, vectors are rotated by angles that have to be made first; fewer are made by a polynomial each.
template <class Real>
inline constexpr size_t kRotated = (sizeof(Real) == sizeof(double) ? 16
                                    : QVXS_AVX2                    ? 18
                                                                   : 48) *
                                   kVectorBytes / sizeof(Real);
template <class Real> using Angles = SpacedAngles<Real, Span::kFromZero>;
static_assert(kRotated<float> >= 2 * Angles<float>::kEighth && kRotated<double> >= 2 * Angles<double>::kEighth);

// (pi / (N-1))^2 by N, as sineByAngle takes it: a conversion and a division less before the first weight.
template <class Real>
inline constexpr auto kSquaredSteps = [] {
  std::array<Real, 2 * kRotated<Real>> squares = {};
  for (size_t len = 2; len < squares.size(); ++len)
    squares[len] = static_cast<Real>(kSquaredHalfTurn<Real> / static_cast<double>((len - 1) * (len - 1)));
  return squares;
}();

// (pi n / (N-1))^2 for n = 0, 1, ..., a vector at a time. Each n^2 is a sum, exact, which goes beside the products.
template <class Real> class SquaredAngles {
 public:
  explicit SquaredAngles(size_t len) : step_(hn::Set(d_, kSquaredSteps<Real>[len])) {}
  auto next() {
    const auto square = square_ * step_;
    square_ = square_ + rise_;
    rise_ = rise_ + hn::Set(d_, Real{2 * N * N});
    return square;
  }

 private:
  static constexpr size_t N = kVectorBytes / sizeof(Real);
  static constexpr Lanes<Real, N> d_ = {};
  using V = Vec<Lanes<Real, N>>;
  V step_;
  V square_ = laneNumbersOf(d_) * laneNumbersOf(d_);
  V rise_ = laneNumbersOf(d_) * hn::Set(d_, Real{2 * N}) + hn::Set(d_, Real{N * N});  // from n^2 to (n + N)^2
};

// Real: what the sines and the sums of their squares are computed in. Two functions: what a short window needs stays in
// registers.
template <class Real, class T, class Form, class Kernel>
[[gnu::noinline, gnu::flatten]] void weighBySines(const T* src, T* dst, size_t len, Form form, Kernel kernel) {
  weigh(src, dst, len, kernel, [=](size_t count, const auto& put) {
    const auto next = [=, angles = SquaredAngles<Real>(len)]() mutable {
      const auto square = angles.next();
      const auto quotient = sineByAngle(square);
      const auto scale = hn::Set(TagOf<decltype(square)>(), static_cast<Real>(form.scale() * form.scale()));
      return convertLanes<Weight<T>>(form(quotient * quotient, square * scale));
    };
    putInOrder<T, Real>(count, next, put);
  });
}
template <class Real, class T, class Form, class Kernel>
[[gnu::noinline, gnu::flatten]] void weighByRotation(const T* src, T* dst, size_t len, Form form, Kernel kernel) {
  const double step = 0.5 / static_cast<double>(len - 1);
  weigh(src, dst, len, kernel, [=](size_t count, const auto& put) {
    const Angles<Real> angles(step, form.scale());
    const auto weights = [=](auto sine) { return convertLanes<Weight<T>>(form(sine, sine)); };
    angles.template forEachVector<kInPairs<T, Real>>(
        count, [=](size_t at) { return static_cast<double>(at) * step; },
        [&](size_t at, auto sine, auto, auto... rest) {
          if constexpr (requires { sine.lo; }) put(at, each(sine, weights));
          else put(at, weights(sine), rest...);
        });
  });
}

// A function of its own: short windows, which do not need it, take 2 ns less.
template <class Real, class T, class Kernel>
[[gnu::noinline]] void weighByRotationAsItRises(const T* src, T* dst, size_t len, Blackman form, Kernel kernel) {
  if (form.c2 > 0x1p-40) weighByRotation<Real>(src, dst, len, RisingBlackman(form), kernel);
  else weighByRotation<Real>(src, dst, len, form, kernel);
}

template <class Real, class T, class Form, class Kernel>
void weighByCosine(const T* src, T* dst, size_t len, Form form, Kernel kernel) {
  if (len / 2 < kRotated<Real>) weighBySines<Real>(src, dst, len, form, kernel);
  else if constexpr (std::is_same_v<Form, Blackman>) weighByRotationAsItRises<Real>(src, dst, len, form, kernel);
  else weighByRotation<Real>(src, dst, len, form, kernel);
}

// Where a Blackman window comes down to 1 from weights far above, it is the difference of terms of that size, and sines in floats
// leave 2^-22 of those: a quarter of a unit of 16 bits from here on, 2 units at an alpha of 100.
inline constexpr double kSteep = 32;

template <class T, class Form, class Kernel> void weighAsNeeded(const T* src, T* dst, size_t len, Form form, Kernel kernel) {
  if constexpr (std::is_integral_v<Part<T>> && std::is_same_v<Form, Blackman>) {
    if (std::abs(form.c2) > kSteep) {
      if constexpr (std::is_same_v<Kernel, WeighedTimes>) return weighByCosine<double>(src, dst, len, form, kernel);
      else return weighByCosine<double>(src, dst, len, form, WeighedTimes{1});
    }
  }
  weighByCosine<Weight<T>>(src, dst, len, form, kernel);
}

}  // namespace detail

template <class T, class Form> using KernelOf = std::conditional_t<std::is_same_v<Form, Blackman>, Weighed<T>, WeighedUpToOne<T>>;

template <class T, class Form, class Kernel = KernelOf<T, Form>>
QvxStatus cosineWindow(const T* src, T* dst, int len, Form form, Kernel kernel = {}) {
  const QvxStatus status = checkWindow(src, dst, len);
  if (status != qvxStatOk) return status;
  if (len == 3 && Form::kIsZeroAtEnds) {
    clearEnds(src, dst);
  } else {
    const RoundingScope mode(kMode<T>);
    detail::weighAsNeeded(src, dst, elements(len), form, kernel);
  }
  return qvxStatOk;
}

}  // namespace qvx::window
