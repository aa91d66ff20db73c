// Quotients of integers with a round mode: dst = src2 / src1
#include "vector/quotient.h"

using namespace qvx;

namespace {

constexpr Window kWindow = {-30, 16};
constexpr TeamRule kQuotient8u = {.worthIt = 32768, .everyThread = true};
constexpr TeamRule kQuotient16 = {.worthIt = 32768, .everyThread = true};

template <TeamRule kRule, class T>
QvxStatus divide(const T* divisor, const T* dividend, T* dst, int len, QvxRoundMode mode, int sf) {
  const auto with = [=](auto fit) {
    return map<IntegerDivision>(dst, len, InTeam<kRule, decltype(fit)>{fit}, OnesPastEnd{divisor}, dividend);
  };
  switch (mode) {
    case qvxRoundTowardZero:
      return with(IntegerQuotient<qvxRoundTowardZero, kWindow>{sf});
    case qvxRoundNearestEven:
      return with(IntegerQuotient<qvxRoundNearestEven, kWindow>{sf});
    case qvxRoundHalfAway:
      return with(IntegerQuotient<qvxRoundHalfAway, kWindow>{sf});
    default:
      const QvxStatus status = check(len, divisor, dividend, dst);
      return status != qvxStatOk ? status : qvxStatBadRoundMode;
  }
}

}  // namespace

// clang-format off
QvxStatus qvxsDiv_Round_8u_Sfs(const Qvx8u* a, const Qvx8u* b, Qvx8u* d, int len, QvxRoundMode mode, int sf) { return divide<kQuotient8u>(a, b, d, len, mode, sf); }
QvxStatus qvxsDiv_Round_8u_ISfs(const Qvx8u* a, Qvx8u* d, int len, QvxRoundMode mode, int sf) { return divide<kQuotient8u>(a, d, d, len, mode, sf); }
QvxStatus qvxsDiv_Round_16u_Sfs(const Qvx16u* a, const Qvx16u* b, Qvx16u* d, int len, QvxRoundMode mode, int sf) { return divide<kQuotient16>(a, b, d, len, mode, sf); }
QvxStatus qvxsDiv_Round_16u_ISfs(const Qvx16u* a, Qvx16u* d, int len, QvxRoundMode mode, int sf) { return divide<kQuotient16>(a, d, d, len, mode, sf); }
QvxStatus qvxsDiv_Round_16s_Sfs(const Qvx16s* a, const Qvx16s* b, Qvx16s* d, int len, QvxRoundMode mode, int sf) { return divide<kQuotient16>(a, b, d, len, mode, sf); }
QvxStatus qvxsDiv_Round_16s_ISfs(const Qvx16s* a, Qvx16s* d, int len, QvxRoundMode mode, int sf) { return divide<kQuotient16>(a, d, d, len, mode, sf); }
// clang-format on
