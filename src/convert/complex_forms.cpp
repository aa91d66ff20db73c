// Real and imaginary parts taken apart and put together, and conjugates.
#include "frame/complex.h"

using namespace qvx;

namespace {

struct RealPart {
  template <class V> V operator()(Pair<V> z) const { return z.lo; }
};
struct ImaginaryPart {
  template <class V> V operator()(Pair<V> z) const { return z.hi; }
};

// The imaginary part negated; integers saturate.
struct Conjugate {
  template <class V> V operator()(V z) const {
    using T = LaneOf<V>;
    const TagOf<V> d;
    if constexpr (std::is_floating_point_v<T>) return z ^ hn::OddEven(same<V>(T(-0.0)), hn::Zero(d));
    else return hn::OddEven(saturatedSub(hn::Zero(d), z), z);
  }
};

template <class T> QvxStatus split(const T* src, Part<T>* re, Part<T>* im, int len) {
  const QvxStatus status = check(len, src, re, im);
  if (status != qvxStatOk) return status;
  return loop([](auto z) { return z; }, SplitDestination<Part<T>>{re, im}, elements(len), deinterleaved(src));
}

// One source may be missing: its part is 0 then.
template <class T, class C> QvxStatus join(const T* re, const T* im, C* dst, int len) {
  const QvxStatus status = check(len, dst);
  if (status != qvxStatOk) return status;
  if (isNull(re) && isNull(im)) return qvxStatNullPtr;
  const auto with = [&](auto re, auto im) {
    const auto pair = [](auto re, auto im) { return Pair<decltype(re)>{re, im}; };
    return loop(pair, InterleavedDestination<T>{parts(dst)}, elements(len), re, im);
  };
  if (isNull(im)) return with(source(re), Constant<T>{0});
  if (isNull(re)) return with(Constant<T>{0}, source(im));
  return with(source(re), source(im));
}

}  // namespace

// clang-format off
QvxStatus qvxsReal_16sc(const Qvx16sc* a, Qvx16s* d, int len) { return map<RealPart>(d, len, AsIs{}, deinterleaved(a)); }
QvxStatus qvxsReal_32fc(const Qvx32fc* a, Qvx32f* d, int len) { return map<RealPart>(d, len, AsIs{}, deinterleaved(a)); }
QvxStatus qvxsReal_64fc(const Qvx64fc* a, Qvx64f* d, int len) { return map<RealPart>(d, len, AsIs{}, deinterleaved(a)); }
QvxStatus qvxsImag_16sc(const Qvx16sc* a, Qvx16s* d, int len) { return map<ImaginaryPart>(d, len, AsIs{}, deinterleaved(a)); }
QvxStatus qvxsImag_32fc(const Qvx32fc* a, Qvx32f* d, int len) { return map<ImaginaryPart>(d, len, AsIs{}, deinterleaved(a)); }
QvxStatus qvxsImag_64fc(const Qvx64fc* a, Qvx64f* d, int len) { return map<ImaginaryPart>(d, len, AsIs{}, deinterleaved(a)); }

QvxStatus qvxsCplxToReal_16sc(const Qvx16sc* a, Qvx16s* re, Qvx16s* im, int len) { return split(a, re, im, len); }
QvxStatus qvxsCplxToReal_32fc(const Qvx32fc* a, Qvx32f* re, Qvx32f* im, int len) { return split(a, re, im, len); }
QvxStatus qvxsCplxToReal_64fc(const Qvx64fc* a, Qvx64f* re, Qvx64f* im, int len) { return split(a, re, im, len); }
QvxStatus qvxsRealToCplx_16s(const Qvx16s* re, const Qvx16s* im, Qvx16sc* d, int len) { return join(re, im, d, len); }
QvxStatus qvxsRealToCplx_32f(const Qvx32f* re, const Qvx32f* im, Qvx32fc* d, int len) { return join(re, im, d, len); }
QvxStatus qvxsRealToCplx_64f(const Qvx64f* re, const Qvx64f* im, Qvx64fc* d, int len) { return join(re, im, d, len); }

QvxStatus qvxsConj_16sc(const Qvx16sc* a, Qvx16sc* d, int len) { return map<Conjugate>(d, len, AsIs{}, a); }
QvxStatus qvxsConj_16sc_I(Qvx16sc* d, int len) { return map<Conjugate>(d, len, AsIs{}, d); }
QvxStatus qvxsConj_32fc(const Qvx32fc* a, Qvx32fc* d, int len) { return map<Conjugate>(d, len, AsIs{}, a); }
QvxStatus qvxsConj_32fc_I(Qvx32fc* d, int len) { return map<Conjugate>(d, len, AsIs{}, d); }
QvxStatus qvxsConj_64fc(const Qvx64fc* a, Qvx64fc* d, int len) { return map<Conjugate>(d, len, AsIs{}, a); }
QvxStatus qvxsConj_64fc_I(Qvx64fc* d, int len) { return map<Conjugate>(d, len, AsIs{}, d); }
// clang-format on
