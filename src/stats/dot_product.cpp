// Dot products of vectors of floats.
#include "stats/dot_product.h"
#include "frame/complex.h"

using namespace qvx;

namespace {

template <class D>
constexpr auto to = [](auto sum) {
  if constexpr (PartsOf<D>::kCount == 1) return static_cast<D>(sum);
  else return complexOf<D>(sum.re, sum.im);
};

template <class R, class D, class... Src> QvxStatus dotProduct(D* result, int len, Src... src) {
  return reduceTo<R>(result, len, to<D>, src...);
}

// Of reals and complex floats, two vectors of these at a time.
struct ProductsInTwos {
  template <class V> static V first(V a, Pair<V> b) {
    const Pair<V> both = eachTwice(a);
    return hn::MulAdd(both.hi, b.hi, both.lo * b.lo);
  }
  template <class V> static V onto(V sum, V a, Pair<V> b) {
    const Pair<V> both = eachTwice(a);
    return hn::MulAdd(both.hi, b.hi, hn::MulAdd(both.lo, b.lo, sum));
  }
};
template <class Lane> struct SumInTwos : FloatSum<Lane, ProductsInTwos, 2> {
  using Inner = hwy::UnsignedFromSize<sizeof(Lane) / 2>;
};

template <class Lane, class D> QvxStatus realByComplex(const Qvx32f* a, const Qvx32fc* b, int len, D* dp) {
  if (QVXS_AVX2 || len < 32) return dotProduct<FloatSum<Lane, Products, 2>>(dp, len, Doubled{a}, b);
  const QvxStatus status = check(len, a, b, dp);
  if (status != qvxStatOk) return status;
  return reducedTo<SumInTwos<Lane>>(dp, 2 * elements(len), to<D>, BesideTwos{a}, InTwos{source(b)});
}

}  // namespace

// clang-format off
QvxStatus qvxsDotProd_32f(const Qvx32f* a, const Qvx32f* b, int len, Qvx32f* dp) { return dotProduct<FloatSum<float, Products>>(dp, len, a, b); }
QvxStatus qvxsDotProd_64f(const Qvx64f* a, const Qvx64f* b, int len, Qvx64f* dp) { return dotProduct<FloatSum<double, Products>>(dp, len, a, b); }
QvxStatus qvxsDotProd_32fc(const Qvx32fc* a, const Qvx32fc* b, int len, Qvx32fc* dp) { return dotProduct<ComplexProducts<float>>(dp, len, a, b); }
QvxStatus qvxsDotProd_64fc(const Qvx64fc* a, const Qvx64fc* b, int len, Qvx64fc* dp) { return dotProduct<ComplexProducts<double>>(dp, len, a, b); }
QvxStatus qvxsDotProd_32f32fc(const Qvx32f* a, const Qvx32fc* b, int len, Qvx32fc* dp) { return realByComplex<float>(a, b, len, dp); }
QvxStatus qvxsDotProd_64f64fc(const Qvx64f* a, const Qvx64fc* b, int len, Qvx64fc* dp) { return dotProduct<FloatSum<double, Products, 2>>(dp, len, Doubled{a}, b); }
QvxStatus qvxsDotProd_32f64f(const Qvx32f* a, const Qvx32f* b, int len, Qvx64f* dp) { return dotProduct<FloatSum<double, Products>>(dp, len, a, b); }
QvxStatus qvxsDotProd_32fc64fc(const Qvx32fc* a, const Qvx32fc* b, int len, Qvx64fc* dp) { return dotProduct<ComplexProducts<double>>(dp, len, a, b); }
QvxStatus qvxsDotProd_32f32fc64fc(const Qvx32f* a, const Qvx32fc* b, int len, Qvx64fc* dp) { return realByComplex<double>(a, b, len, dp); }
// clang-format on
