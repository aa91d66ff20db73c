// Dot products of vectors of floats.
#include "stats/moments.h"

using namespace qvx;

namespace {

struct Products {
  template <class V> static V first(V a, V b) { return a * b; }
  template <class V> static V onto(V sum, V a, V b) { return hn::MulAdd(a, b, sum); }
};

// Of two complex vectors: the products of like parts, whose difference is real, and those of unlike parts, one shuffle in all.
template <class Lane> struct ComplexProducts : Reduction {
  using Like = FloatSum<Lane, Products, 2>;
  using Inner = Lane;
  // Half as many accumulators: half the slice keeps a 32-bit lane at 512 elements.
  static constexpr size_t kSlice = sizeof(Lane) == 4 ? Like::kSlice / 2 : Like::kSlice;

  template <class V> auto start(V v, V w) const {
    const auto a = widened<Lane>(v);
    const auto b = widened<Lane>(w);
    using A = std::remove_const_t<decltype(a)>;
    return Pair<A>{a * b, a * swapped(b)};
  }
  template <class A, class V> Pair<A> add(Pair<A> sum, V v, V w) const {
    const A a = widened<Lane>(v);
    const A b = widened<Lane>(w);
    return {hn::MulAdd(a, b, sum.lo), hn::MulAdd(a, swapped(b), sum.hi)};
  }
  template <class A> ComplexTotal<double> total(Pair<A> sum) const {
    const ComplexTotal<double> like = Like().total(sum.lo);
    const ComplexTotal<double> unlike = Like().total(sum.hi);
    return {like.re - like.im, unlike.re + unlike.im};
  }
};

template <class D>
constexpr auto to = [](auto sum) {
  if constexpr (PartsOf<D>::kCount == 1) return static_cast<D>(sum);
  else return complexOf<D>(sum.re, sum.im);
};

template <class R, class D, class... Src> QvxStatus dotProduct(D* result, int len, Src... src) {
  return reduceTo<R>(result, len, to<D>, src...);
}

}  // namespace

// clang-format off
QvxStatus qvxsDotProd_32f(const Qvx32f* a, const Qvx32f* b, int len, Qvx32f* dp) { return dotProduct<FloatSum<float, Products>>(dp, len, a, b); }
QvxStatus qvxsDotProd_64f(const Qvx64f* a, const Qvx64f* b, int len, Qvx64f* dp) { return dotProduct<FloatSum<double, Products>>(dp, len, a, b); }
QvxStatus qvxsDotProd_32fc(const Qvx32fc* a, const Qvx32fc* b, int len, Qvx32fc* dp) { return dotProduct<ComplexProducts<float>>(dp, len, a, b); }
QvxStatus qvxsDotProd_64fc(const Qvx64fc* a, const Qvx64fc* b, int len, Qvx64fc* dp) { return dotProduct<ComplexProducts<double>>(dp, len, a, b); }
QvxStatus qvxsDotProd_32f32fc(const Qvx32f* a, const Qvx32fc* b, int len, Qvx32fc* dp) { return dotProduct<FloatSum<float, Products, 2>>(dp, len, Doubled{a}, b); }
QvxStatus qvxsDotProd_64f64fc(const Qvx64f* a, const Qvx64fc* b, int len, Qvx64fc* dp) { return dotProduct<FloatSum<double, Products, 2>>(dp, len, Doubled{a}, b); }
QvxStatus qvxsDotProd_32f64f(const Qvx32f* a, const Qvx32f* b, int len, Qvx64f* dp) { return dotProduct<FloatSum<double, Products>>(dp, len, a, b); }
QvxStatus qvxsDotProd_32fc64fc(const Qvx32fc* a, const Qvx32fc* b, int len, Qvx64fc* dp) { return dotProduct<ComplexProducts<double>>(dp, len, a, b); }
QvxStatus qvxsDotProd_32f32fc64fc(const Qvx32f* a, const Qvx32fc* b, int len, Qvx64fc* dp) { return dotProduct<FloatSum<double, Products, 2>>(dp, len, Doubled{a}, b); }
// clang-format on
