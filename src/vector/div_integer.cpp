// Quotients of integers: dst = src2 / src1, dst = src / val and dst = val / src, nearest even
#include "vector/divisor.h"
#include "vector/quotient.h"

using namespace qvx;

namespace {

constexpr Window kShort = {-30, 15};
constexpr Window kLong = {-62, 32};

// Lengths that take one thread 3 to 5 us; sharing a call costs 0.3 us while the workers spin.
constexpr TeamRule kQuotient = {.worthIt = 32768};
constexpr TeamRule kByConstant = {.worthIt = 65536};
constexpr TeamRule kOfConstant = {.worthIt = 65536};

template <TeamRule kRule, Window kWindow, class A, class B, class D>
QvxStatus divide(const A* divisor, const B* dividend, D* dst, int len, int sf) {
  using Fit = IntegerQuotient<qvxRoundNearestEven, kWindow>;
  return map<IntegerDivision>(dst, len, InTeam<kRule, Fit>{{sf}}, OnesPastEnd{divisor}, dividend);
}

template <class T> QvxStatus divideBy(T val, const T* src, T* dst, int len, int sf) {
  if (isZero(val)) return refused(len, src, dst);
  using Fit = IntegerQuotient<qvxRoundNearestEven, kShort>;
  return map<IntegerDivision>(dst, len, InTeam<kByConstant, Fit>{{sf}}, Constant{val}, src);
}

QvxStatus divideInto(Qvx16u val, const Qvx16u* src, Qvx16u* dst, int len) {
  using Fit = IntegerQuotient<qvxRoundNearestEven, kShort>;
  return map<IntegerDivision>(dst, len, InTeam<kOfConstant, Fit>{{0}}, OnesPastEnd{src}, Constant{val});
}

}  // namespace

// clang-format off
QvxStatus qvxsDiv_8u_Sfs(const Qvx8u* a, const Qvx8u* b, Qvx8u* d, int len, int sf) { return divide<kQuotient, kShort>(a, b, d, len, sf); }
QvxStatus qvxsDiv_16u_Sfs(const Qvx16u* a, const Qvx16u* b, Qvx16u* d, int len, int sf) { return divide<kQuotient, kShort>(a, b, d, len, sf); }
QvxStatus qvxsDiv_16s_Sfs(const Qvx16s* a, const Qvx16s* b, Qvx16s* d, int len, int sf) { return divide<kQuotient, kShort>(a, b, d, len, sf); }
QvxStatus qvxsDiv_32s_Sfs(const Qvx32s* a, const Qvx32s* b, Qvx32s* d, int len, int sf) { return divide<kQuotient, kLong>(a, b, d, len, sf); }
QvxStatus qvxsDiv_32s16s_Sfs(const Qvx32s* a, const Qvx32s* b, Qvx16s* d, int len, int sf) { return divide<kQuotient, kLong>(a, b, d, len, sf); }
QvxStatus qvxsDiv_8u_ISfs(const Qvx8u* a, Qvx8u* d, int len, int sf) { return divide<kQuotient, kShort>(a, d, d, len, sf); }
QvxStatus qvxsDiv_16u_ISfs(const Qvx16u* a, Qvx16u* d, int len, int sf) { return divide<kQuotient, kShort>(a, d, d, len, sf); }
QvxStatus qvxsDiv_16s_ISfs(const Qvx16s* a, Qvx16s* d, int len, int sf) { return divide<kQuotient, kShort>(a, d, d, len, sf); }
QvxStatus qvxsDiv_32s_ISfs(const Qvx32s* a, Qvx32s* d, int len, int sf) { return divide<kQuotient, kLong>(a, d, d, len, sf); }

QvxStatus qvxsDivC_8u_Sfs(const Qvx8u* a, Qvx8u val, Qvx8u* d, int len, int sf) { return divideBy(val, a, d, len, sf); }
QvxStatus qvxsDivC_16u_Sfs(const Qvx16u* a, Qvx16u val, Qvx16u* d, int len, int sf) { return divideBy(val, a, d, len, sf); }
QvxStatus qvxsDivC_16s_Sfs(const Qvx16s* a, Qvx16s val, Qvx16s* d, int len, int sf) { return divideBy(val, a, d, len, sf); }
QvxStatus qvxsDivC_8u_ISfs(Qvx8u val, Qvx8u* d, int len, int sf) { return divideBy(val, d, d, len, sf); }
QvxStatus qvxsDivC_16u_ISfs(Qvx16u val, Qvx16u* d, int len, int sf) { return divideBy(val, d, d, len, sf); }
QvxStatus qvxsDivC_16s_ISfs(Qvx16s val, Qvx16s* d, int len, int sf) { return divideBy(val, d, d, len, sf); }

QvxStatus qvxsDivCRev_16u(const Qvx16u* a, Qvx16u val, Qvx16u* d, int len) { return divideInto(val, a, d, len); }
QvxStatus qvxsDivCRev_16u_I(Qvx16u val, Qvx16u* d, int len) { return divideInto(val, d, d, len); }
// clang-format on
