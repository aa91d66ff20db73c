// Quotients of floats: dst = src2 / src1, dst = src / val and dst = val / src
#include "frame/team.h"
#include "vector/divisor.h"
#include "vector/product.h"

using namespace qvx;

namespace {

struct Quotient {
  static constexpr QvxStatus kWarning = qvxWarnDivByZero;

  template <class V> V operator()(Flag& flag, V a, V b) const {
    const TagOf<V> d;
    flag.raise(d, a == hn::Zero(d));
    return b / a;
  }
};

// b * conj(a) / |a|^2, both parts divided: a reciprocal for two elements would save half of the divisions, but they are not what
// bounds the loop, and an element's result must not depend on its neighbour.
struct ComplexQuotient {
  static constexpr QvxStatus kWarning = qvxWarnDivByZero;

  template <class V> V operator()(Flag& flag, V a, V b) const {
    const TagOf<V> d;
    const V crossed = swapped(a);
    // Both parts, as bits: |a|^2 underflows for divisors that are not zero.
    flag.raise(d, (a | crossed) == hn::Zero(d));
    const V minusOdd = hn::OddEven(hn::SignBit(d), hn::Zero(d));
    const V product = b * hn::DupEven(a) + swapped(b) * (hn::DupOdd(a) ^ minusOdd);
    const V squares = a * a;
    return product / (squares + swapped(squares));
  }
};

// conj(val) / |val|^2 by the reciprocal of the squared magnitude.
template <class T> T reciprocal(T val) {
  const auto r = 1 / (val.re * val.re + val.im * val.im);
  return {val.re * r, -val.im * r};
}

constexpr TeamRule kQuotient32f = {.threaded = 4096, .worthIt = 16384};
constexpr TeamRule kQuotient64f = {.threaded = 1024, .worthIt = 8192};
constexpr TeamRule kQuotient32fc = {.threaded = 1024, .worthIt = 8192};
constexpr TeamRule kQuotient64fc = {.threaded = 1024, .worthIt = 4096};

}  // namespace

// clang-format off
QvxStatus qvxsDiv_32f(const Qvx32f* a, const Qvx32f* b, Qvx32f* d, int len) { return map<Quotient>(d, len, InTeam<kQuotient32f>{}, OnesBehind{a}, b); }
QvxStatus qvxsDiv_64f(const Qvx64f* a, const Qvx64f* b, Qvx64f* d, int len) { return map<Quotient>(d, len, InTeam<kQuotient64f>{}, OnesBehind{a}, b); }
QvxStatus qvxsDiv_32fc(const Qvx32fc* a, const Qvx32fc* b, Qvx32fc* d, int len) { return map<ComplexQuotient>(d, len, InTeam<kQuotient32fc>{}, OnesBehind{a}, b); }
QvxStatus qvxsDiv_64fc(const Qvx64fc* a, const Qvx64fc* b, Qvx64fc* d, int len) { return map<ComplexQuotient>(d, len, InTeam<kQuotient64fc>{}, OnesBehind{a}, b); }
QvxStatus qvxsDiv_32f_I(const Qvx32f* a, Qvx32f* d, int len) { return map<Quotient>(d, len, InTeam<kQuotient32f>{}, OnesBehind{a}, d); }
QvxStatus qvxsDiv_64f_I(const Qvx64f* a, Qvx64f* d, int len) { return map<Quotient>(d, len, InTeam<kQuotient64f>{}, OnesBehind{a}, d); }
QvxStatus qvxsDiv_32fc_I(const Qvx32fc* a, Qvx32fc* d, int len) { return map<ComplexQuotient>(d, len, InTeam<kQuotient32fc>{}, OnesBehind{a}, d); }
QvxStatus qvxsDiv_64fc_I(const Qvx64fc* a, Qvx64fc* d, int len) { return map<ComplexQuotient>(d, len, InTeam<kQuotient64fc>{}, OnesBehind{a}, d); }

QvxStatus qvxsDivC_32f(const Qvx32f* a, Qvx32f val, Qvx32f* d, int len) { return isZero(val) ? refused(len, a, d) : qvxsMulC_32f(a, 1 / val, d, len); }
QvxStatus qvxsDivC_64f(const Qvx64f* a, Qvx64f val, Qvx64f* d, int len) { return isZero(val) ? refused(len, a, d) : qvxsMulC_64f(a, 1 / val, d, len); }
QvxStatus qvxsDivC_32fc(const Qvx32fc* a, Qvx32fc val, Qvx32fc* d, int len) { return isZero(val) ? refused(len, a, d) : qvxsMulC_32fc(a, reciprocal(val), d, len); }
QvxStatus qvxsDivC_64fc(const Qvx64fc* a, Qvx64fc val, Qvx64fc* d, int len) { return isZero(val) ? refused(len, a, d) : qvxsMulC_64fc(a, reciprocal(val), d, len); }
QvxStatus qvxsDivC_32f_I(Qvx32f val, Qvx32f* d, int len) { return isZero(val) ? refused(len, d) : qvxsMulC_32f_I(1 / val, d, len); }
QvxStatus qvxsDivC_64f_I(Qvx64f val, Qvx64f* d, int len) { return isZero(val) ? refused(len, d) : qvxsMulC_64f_I(1 / val, d, len); }
QvxStatus qvxsDivC_32fc_I(Qvx32fc val, Qvx32fc* d, int len) { return isZero(val) ? refused(len, d) : qvxsMulC_32fc_I(reciprocal(val), d, len); }
QvxStatus qvxsDivC_64fc_I(Qvx64fc val, Qvx64fc* d, int len) { return isZero(val) ? refused(len, d) : qvxsMulC_64fc_I(reciprocal(val), d, len); }

QvxStatus qvxsDivCRev_32f(const Qvx32f* a, Qvx32f val, Qvx32f* d, int len) { return map<Quotient>(d, len, InTeam<kQuotient32f>{}, OnesBehind{a}, Constant{val}); }
QvxStatus qvxsDivCRev_32f_I(Qvx32f val, Qvx32f* d, int len) { return map<Quotient>(d, len, InTeam<kQuotient32f>{}, OnesBehind{d}, Constant{val}); }
// clang-format on
