// Products of packed spectra: a run of complex pairs and one or two real values.
#include "transform/layout.h"
#include "vector/product.h"

using namespace qvx;
using Layout = transform::SpectrumLayout;

namespace {

// conj(a) * b
struct ConjugateProduct {
  template <class V> V operator()(V a, V b) const {
    const TagOf<V> d;
    const V minusOdd = hn::OddEven(hn::SignBit(d), hn::Zero(d));
    return b * hn::DupEven(a) + swapped(b) * (hn::DupOdd(a) ^ minusOdd);
  }
};

// In the layout whose pairs begin one value after the start every vector lies across two lines of the cache: each is loaded once,
// and shuffled, where ComplexProduct has the load unit duplicate lanes (4096 floats take 0.37 us, not 0.44).
template <class Op> struct LoadedOnce {
  template <class V> V operator()(V a, V b) const { return Op()(held(a), held(b)); }
};

// Pairs are elements of type C; fit brings their products back, real those of two values.
template <class C, class Op, class T, class Fit, class Real>
QvxStatus product(Layout layout, const T* a, const T* b, T* dst, int len, Fit fit, Real real) {
  const QvxStatus status = check(len, a, b, dst);
  if (status != qvxStatOk) return status;
  const size_t n = elements(len);
  const bool hasNyquist = n % 2 == 0;
  const size_t at = placeOfMiddle(layout, n);
  const size_t pairs = placeOfPair(layout, n, 1);
  const T middle = hasNyquist ? real(a[at], b[at]) : T{0};
  dst[0] = real(a[0], b[0]);
  if (hasNyquist) dst[at] = middle;
  if (n < 3) return qvxStatOk;
  return fit.run(Op(), Destination<C>{dst + pairs}, (n - 1) / 2 * 2, Source<C>{a + pairs}, Source<C>{b + pairs});
}

template <class Op, class T> QvxStatus product(Layout layout, const T* a, const T* b, T* dst, int len) {
  using C = std::conditional_t<std::is_same_v<T, Qvx32f>, Qvx32fc, Qvx64fc>;
  const auto real = [](T x, T y) { return x * y; };
  if (layout == Layout::kPack) return product<C, LoadedOnce<Op>>(layout, a, b, dst, len, AsIs{}, real);
  return product<C, Op>(layout, a, b, dst, len, AsIs{}, real);
}

// Real values are shifted without rounding, pairs are rounded.
Qvx16s shifted(int32_t product, int scaleFactor) {
  if (scaleFactor > 0) return saturate<Qvx16s>(product >> std::min(scaleFactor, 31));
  const int places = static_cast<int>(std::min(-int64_t{scaleFactor}, int64_t{16}));
  return saturate<Qvx16s>(int64_t{product} << places);
}
QvxStatus product16(Layout layout, const Qvx16s* a, const Qvx16s* b, Qvx16s* dst, int len, int scaleFactor) {
  return product<Qvx16sc, ComplexProduct>(layout, a, b, dst, len, Scaled{scaleFactor},
                                          [=](Qvx16s x, Qvx16s y) { return shifted(x * y, scaleFactor); });
}

}  // namespace

// clang-format off
QvxStatus qvxsMulPack_32f(const Qvx32f* a, const Qvx32f* b, Qvx32f* d, int len) { return product<ComplexProduct>(Layout::kPack, a, b, d, len); }
QvxStatus qvxsMulPack_32f_I(const Qvx32f* a, Qvx32f* d, int len) { return product<ComplexProduct>(Layout::kPack, a, d, d, len); }
QvxStatus qvxsMulPack_64f(const Qvx64f* a, const Qvx64f* b, Qvx64f* d, int len) { return product<ComplexProduct>(Layout::kPack, a, b, d, len); }
QvxStatus qvxsMulPack_64f_I(const Qvx64f* a, Qvx64f* d, int len) { return product<ComplexProduct>(Layout::kPack, a, d, d, len); }
QvxStatus qvxsMulPack_16s_Sfs(const Qvx16s* a, const Qvx16s* b, Qvx16s* d, int len, int sf) { return product16(Layout::kPack, a, b, d, len, sf); }
QvxStatus qvxsMulPack_16s_ISfs(const Qvx16s* a, Qvx16s* d, int len, int sf) { return product16(Layout::kPack, a, d, d, len, sf); }

QvxStatus qvxsMulPerm_32f(const Qvx32f* a, const Qvx32f* b, Qvx32f* d, int len) { return product<ComplexProduct>(Layout::kPerm, a, b, d, len); }
QvxStatus qvxsMulPerm_32f_I(const Qvx32f* a, Qvx32f* d, int len) { return product<ComplexProduct>(Layout::kPerm, a, d, d, len); }
QvxStatus qvxsMulPerm_64f(const Qvx64f* a, const Qvx64f* b, Qvx64f* d, int len) { return product<ComplexProduct>(Layout::kPerm, a, b, d, len); }
QvxStatus qvxsMulPerm_64f_I(const Qvx64f* a, Qvx64f* d, int len) { return product<ComplexProduct>(Layout::kPerm, a, d, d, len); }
QvxStatus qvxsMulPerm_16s_Sfs(const Qvx16s* a, const Qvx16s* b, Qvx16s* d, int len, int sf) { return product16(Layout::kPerm, a, b, d, len, sf); }
QvxStatus qvxsMulPerm_16s_ISfs(const Qvx16s* a, Qvx16s* d, int len, int sf) { return product16(Layout::kPerm, a, d, d, len, sf); }

QvxStatus qvxsMulPackConj_32f_I(const Qvx32f* a, Qvx32f* d, int len) { return product<ConjugateProduct>(Layout::kPack, a, d, d, len); }
QvxStatus qvxsMulPackConj_64f_I(const Qvx64f* a, Qvx64f* d, int len) { return product<ConjugateProduct>(Layout::kPack, a, d, d, len); }
// clang-format on
