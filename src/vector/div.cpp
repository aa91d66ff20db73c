// Quotients of floats: dst = src2 / src1, dst = src / val and dst = val / src
#include "frame/complex.h"
#include "frame/team.h"
#include "vector/both_ways.h"
#include "vector/divisor.h"

using namespace qvx;

namespace {

struct Quotient {
  static constexpr QvxStatus kWarning = qvxWarnDivByZero;

  template <class V, class Way = Divider> V operator()(Flag& flag, V a, V b, Way = {}) const {
    if constexpr (Way::template kServes<V>) {
      if (Way::takes(b, a)) [[likely]]  // no zero
        return Way::quotient(b, a);
    }
    const TagOf<V> d;
    flag.raise(d, a == hn::Zero(d));
    return b / a;
  }
};

// b * conj(a) / |a|^2, both parts divided. One reciprocal for two elements would save half of the divisions, but then an
// element's result would depend on its neighbour.
struct ComplexQuotient {
  static constexpr QvxStatus kWarning = qvxWarnDivByZero;

  template <class V> Complex<V> operator()(Flag& flag, Complex<V> a, Complex<V> b) const {
    const TagOf<V> d;
    // By their bits: |a|^2 underflows for divisors that are not zero.
    flag.raise(d, (a.re | a.im) == hn::Zero(d));
    const V squares = a.re * a.re + a.im * a.im;
    return {(a.re * b.re + a.im * b.im) / squares, (a.re * b.im - a.im * b.re) / squares};
  }
};

template <TeamRule kRule, class T> QvxStatus divideComplex(const T* divisor, const T* dividend, T* dst, int len) {
  return mapByParts<ComplexQuotient>(dst, len, InTeam<kRule, InOwnLanes>{}, ByParts<T, 1>{divisor}, ByParts<T>{dividend});
}

// conj(val) / |val|^2 by the reciprocal of the squared magnitude.
template <class T> T reciprocal(T val) {
  const auto r = 1 / (val.re * val.re + val.im * val.im);
  return {val.re * r, -val.im * r};
}

// Lengths that take one thread 3 to 5 us; sharing a call costs 0.3 us while the workers spin.
constexpr TeamRule kQuotient32f = {.worthIt = 65536};
constexpr TeamRule kQuotient64f = {.worthIt = 32768};
constexpr TeamRule kQuotient32fc = {.worthIt = 32768};
constexpr TeamRule kQuotient64fc = {.worthIt = 16384};

}  // namespace

// clang-format off
QvxStatus qvxsDiv_32f(const Qvx32f* a, const Qvx32f* b, Qvx32f* d, int len) { return mapFastWay<Quotient, kQuotient32f>(d, len, OnesPastEnd{a}, b); }
QvxStatus qvxsDiv_64f(const Qvx64f* a, const Qvx64f* b, Qvx64f* d, int len) { return map<Quotient>(d, len, InTeam<kQuotient64f>{}, OnesPastEnd{a}, b); }
QvxStatus qvxsDiv_32fc(const Qvx32fc* a, const Qvx32fc* b, Qvx32fc* d, int len) { return divideComplex<kQuotient32fc>(a, b, d, len); }
QvxStatus qvxsDiv_64fc(const Qvx64fc* a, const Qvx64fc* b, Qvx64fc* d, int len) { return divideComplex<kQuotient64fc>(a, b, d, len); }
QvxStatus qvxsDiv_32f_I(const Qvx32f* a, Qvx32f* d, int len) { return mapFastWay<Quotient, kQuotient32f>(d, len, OnesPastEnd{a}, d); }
QvxStatus qvxsDiv_64f_I(const Qvx64f* a, Qvx64f* d, int len) { return map<Quotient>(d, len, InTeam<kQuotient64f>{}, OnesPastEnd{a}, d); }
QvxStatus qvxsDiv_32fc_I(const Qvx32fc* a, Qvx32fc* d, int len) { return divideComplex<kQuotient32fc>(a, d, d, len); }
QvxStatus qvxsDiv_64fc_I(const Qvx64fc* a, Qvx64fc* d, int len) { return divideComplex<kQuotient64fc>(a, d, d, len); }

QvxStatus qvxsDivC_32f(const Qvx32f* a, Qvx32f val, Qvx32f* d, int len) { return isZero(val) ? refused(len, a, d) : qvxsMulC_32f(a, 1 / val, d, len); }
QvxStatus qvxsDivC_64f(const Qvx64f* a, Qvx64f val, Qvx64f* d, int len) { return isZero(val) ? refused(len, a, d) : qvxsMulC_64f(a, 1 / val, d, len); }
QvxStatus qvxsDivC_32fc(const Qvx32fc* a, Qvx32fc val, Qvx32fc* d, int len) { return isZero(val) ? refused(len, a, d) : qvxsMulC_32fc(a, reciprocal(val), d, len); }
QvxStatus qvxsDivC_64fc(const Qvx64fc* a, Qvx64fc val, Qvx64fc* d, int len) { return isZero(val) ? refused(len, a, d) : qvxsMulC_64fc(a, reciprocal(val), d, len); }
QvxStatus qvxsDivC_32f_I(Qvx32f val, Qvx32f* d, int len) { return isZero(val) ? refused(len, d) : qvxsMulC_32f_I(1 / val, d, len); }
QvxStatus qvxsDivC_64f_I(Qvx64f val, Qvx64f* d, int len) { return isZero(val) ? refused(len, d) : qvxsMulC_64f_I(1 / val, d, len); }
QvxStatus qvxsDivC_32fc_I(Qvx32fc val, Qvx32fc* d, int len) { return isZero(val) ? refused(len, d) : qvxsMulC_32fc_I(reciprocal(val), d, len); }
QvxStatus qvxsDivC_64fc_I(Qvx64fc val, Qvx64fc* d, int len) { return isZero(val) ? refused(len, d) : qvxsMulC_64fc_I(reciprocal(val), d, len); }

QvxStatus qvxsDivCRev_32f(const Qvx32f* a, Qvx32f val, Qvx32f* d, int len) { return map<Quotient>(d, len, InTeam<kQuotient32f>{}, OnesPastEnd{a}, Constant{val}); }
QvxStatus qvxsDivCRev_32f_I(Qvx32f val, Qvx32f* d, int len) { return map<Quotient>(d, len, InTeam<kQuotient32f>{}, OnesPastEnd{d}, Constant{val}); }
// clang-format on
