// Norms of vectors of floats, and of differences of two.
#include <cmath>
#include <limits>

#include "frame/complex.h"
#include "stats/moments.h"

using namespace qvx;

namespace {

// The operand: the elements of one vector, or the differences of two.
template <class V> V between(V v) { return v; }
template <class V> V between(V v, V w) { return v - w; }
template <class V> Complex<V> between(Complex<V> v, Complex<V> w) { return {v.re - w.re, v.im - w.im}; }

struct Magnitudes {
  template <class... V> static auto first(V... v) { return hn::Abs(between(v...)); }
  template <class A, class... V> static A onto(A a, V... v) { return a + first(v...); }
};
struct Squares {
  template <class... V> static auto first(V... v) {
    const auto x = between(v...);
    return x * x;
  }
  template <class A, class... V> static A onto(A a, V... v) {
    const A x = between(v...);
    return hn::MulAdd(x, x, a);
  }
};
struct SquaredRadii {
  template <class... C> static auto first(C... c) {
    const auto z = between(c...);
    return hn::MulAdd(z.re, z.re, z.im * z.im);
  }
};
struct Radii {
  template <class... C> static auto first(C... c) { return hn::Sqrt(SquaredRadii::first(c...)); }
  template <class A, class... C> static A onto(A a, C... c) { return a + first(c...); }
};

// The largest. The processor's maximum gives its second operand where one is a NaN, and that is never one here.
template <class Inside, class Size> struct Largest : Reduction {
  using Inner = Inside;
  static constexpr size_t kFlight = 8;
  static constexpr bool kRepeats = true;

  template <class... V> auto start(V... v) const {
    const auto size = Size::first(widened<Inner>(v)...);
    return hn::Max(size, hn::Zero(TagOf<std::remove_const_t<decltype(size)>>()));
  }
  template <class A, class... V> A add(A a, V... v) const { return hn::Max(Size::first(widened<Inner>(v)...), a); }
  template <class A> static A join(A a, A b) { return hn::Max(a, b); }
  template <class A> Inside total(A a) const {
    return hn::GetLane(folded<1>(a, [](auto x, auto y) { return hn::Max(x, y); }));
  }
};

constexpr auto asItIs = [](auto norm) { return norm; };
constexpr auto toFloat = [](double norm) { return static_cast<Qvx32f>(norm); };
constexpr auto root = [](double sum) { return std::sqrt(sum); };
constexpr auto rootToFloat = [](double sum) { return static_cast<Qvx32f>(std::sqrt(sum)); };

// The root of the largest square is the largest root. Floats hold nearly all squares; if one does not fit, the vector is read
// again in doubles, which hold all of them. That is twice as fast as doubles alone.
template <class... Src> QvxStatus largestRadius(Qvx32f* norm, int len, Src... src) {
  const QvxStatus status = check(len, pointerOf(src)..., norm);
  if (status != qvxStatOk) return status;
  const Qvx32f square = reduce(Largest<float, SquaredRadii>(), elements(len), source(src)...);
  const bool holds = square >= 0x1p-100F && square <= std::numeric_limits<Qvx32f>::max();
  *norm = holds ? std::sqrt(square) : rootToFloat(reduce(Largest<double, SquaredRadii>(), elements(len), source(src)...));
  return qvxStatOk;
}

}  // namespace

// clang-format off
QvxStatus qvxsNorm_Inf_32f(const Qvx32f* a, int len, Qvx32f* norm) { return reduceTo<Largest<float, Magnitudes>>(norm, len, asItIs, a); }
QvxStatus qvxsNorm_Inf_64f(const Qvx64f* a, int len, Qvx64f* norm) { return reduceTo<Largest<double, Magnitudes>>(norm, len, asItIs, a); }
QvxStatus qvxsNorm_Inf_32fc32f(const Qvx32fc* a, int len, Qvx32f* norm) { return largestRadius(norm, len, ByParts{a}); }
QvxStatus qvxsNorm_Inf_64fc64f(const Qvx64fc* a, int len, Qvx64f* norm) { return reduceTo<Largest<double, SquaredRadii>>(norm, len, root, ByParts{a}); }
QvxStatus qvxsNorm_L1_32f(const Qvx32f* a, int len, Qvx32f* norm) { return reduceTo<FloatSum<float, Magnitudes>>(norm, len, toFloat, a); }
QvxStatus qvxsNorm_L1_64f(const Qvx64f* a, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Magnitudes>>(norm, len, asItIs, a); }
QvxStatus qvxsNorm_L1_64fc64f(const Qvx64fc* a, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Radii>>(norm, len, asItIs, ByParts{a}); }
QvxStatus qvxsNorm_L1_32fc64f(const Qvx32fc* a, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Radii>>(norm, len, asItIs, ByParts{a}); }
QvxStatus qvxsNorm_L2_32f(const Qvx32f* a, int len, Qvx32f* norm) { return reduceTo<FloatSum<float, Squares>>(norm, len, rootToFloat, a); }
QvxStatus qvxsNorm_L2_64f(const Qvx64f* a, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Squares>>(norm, len, root, a); }
QvxStatus qvxsNorm_L2_64fc64f(const Qvx64fc* a, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Squares>>(norm, len, root, a); }
QvxStatus qvxsNorm_L2_32fc64f(const Qvx32fc* a, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Squares>>(norm, len, root, a); }

QvxStatus qvxsNormDiff_Inf_32f(const Qvx32f* a, const Qvx32f* b, int len, Qvx32f* norm) { return reduceTo<Largest<float, Magnitudes>>(norm, len, asItIs, a, b); }
QvxStatus qvxsNormDiff_Inf_64f(const Qvx64f* a, const Qvx64f* b, int len, Qvx64f* norm) { return reduceTo<Largest<double, Magnitudes>>(norm, len, asItIs, a, b); }
QvxStatus qvxsNormDiff_Inf_32fc32f(const Qvx32fc* a, const Qvx32fc* b, int len, Qvx32f* norm) { return largestRadius(norm, len, ByParts{a}, ByParts{b}); }
QvxStatus qvxsNormDiff_Inf_64fc64f(const Qvx64fc* a, const Qvx64fc* b, int len, Qvx64f* norm) { return reduceTo<Largest<double, SquaredRadii>>(norm, len, root, ByParts{a}, ByParts{b}); }
QvxStatus qvxsNormDiff_L1_32f(const Qvx32f* a, const Qvx32f* b, int len, Qvx32f* norm) { return reduceTo<FloatSum<float, Magnitudes>>(norm, len, toFloat, a, b); }
QvxStatus qvxsNormDiff_L1_64f(const Qvx64f* a, const Qvx64f* b, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Magnitudes>>(norm, len, asItIs, a, b); }
QvxStatus qvxsNormDiff_L1_64fc64f(const Qvx64fc* a, const Qvx64fc* b, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Radii>>(norm, len, asItIs, ByParts{a}, ByParts{b}); }
QvxStatus qvxsNormDiff_L1_32fc64f(const Qvx32fc* a, const Qvx32fc* b, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Radii>>(norm, len, asItIs, ByParts{a}, ByParts{b}); }
QvxStatus qvxsNormDiff_L2_32f(const Qvx32f* a, const Qvx32f* b, int len, Qvx32f* norm) { return reduceTo<FloatSum<float, Squares>>(norm, len, rootToFloat, a, b); }
QvxStatus qvxsNormDiff_L2_64f(const Qvx64f* a, const Qvx64f* b, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Squares>>(norm, len, root, a, b); }
QvxStatus qvxsNormDiff_L2_64fc64f(const Qvx64fc* a, const Qvx64fc* b, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Squares>>(norm, len, root, a, b); }
QvxStatus qvxsNormDiff_L2_32fc64f(const Qvx32fc* a, const Qvx32fc* b, int len, Qvx64f* norm) { return reduceTo<FloatSum<double, Squares>>(norm, len, root, a, b); }
// clang-format on
