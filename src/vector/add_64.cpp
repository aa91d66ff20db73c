// 64-bit integer sums: the 65-bit result is kept as its half and its odd bit.
#include "vector/sum.h"

using namespace qvx;

namespace {

// The sum scaled, except that an exact half gives 0 where the sum is not negative and not both operands are positive. That
// holds from 2 places on.
struct SumWithZeroTies : Sum {
  template <class T> static constexpr int kMaxScale = 63;

  template <class T, class With> static QvxStatus scaleDown(int s, const With& with) {
    if (s == 1) return Sum::scaleDown<T>(s, with);
    return Sum::scaleDown<T>(s, [&](auto shift) {
      return with([shift, s](auto a, auto b) {
        using V = decltype(a);
        const V zero = same<V>(0);
        const auto tie =
            ((a + b) & same<V>(static_cast<T>((uint64_t{1} << s) - 1))) == same<V>(static_cast<T>(uint64_t{1} << (s - 1)));
        const auto bothPositive = hn::And(a > zero, b > zero);
        const V negative = hn::BroadcastSignBit(halvedSum(a, b).half);
        const auto kept = hn::Or(hn::Or(hn::Not(tie), bothPositive), negative != zero);
        return hn::IfThenElseZero(kept, shift(a, b));
      });
    });
  }
};

// The sum scaled with a round mode.
template <int kMode> struct RoundedSum : Sum {
  template <class T> static constexpr int kMaxScale = 64;

  template <class T, class With> static QvxStatus scaleDown(int s, const With& with) {
    return with([s](auto a, auto b) { return ShiftByMode<kMode>{s}(halvedSum(a, b)); });
  }
};

template <class T> QvxStatus addConstant(const T* a, T val, T* d, Qvx32u len, int scaleFactor, QvxRoundMode mode) {
  const Unsigned length{len};
  const QvxStatus status = check(length, a, d);
  if (status != qvxStatOk) return status;
  if (scaleFactor == 0 && val == 0) {
    return qvxsCopy_64s(reinterpret_cast<const Qvx64s*>(a), reinterpret_cast<Qvx64s*>(d), static_cast<int>(len));
  }
  if (scaleFactor > 64) {
    // One sum alone reaches half a unit: -2^63 - 2^63 at 65 places.
    if (std::is_signed_v<T> && scaleFactor == 65 && val == std::numeric_limits<T>::min() && mode == qvxRoundHalfAway) {
      return loop(
          [](auto v) { return hn::VecFromMask(TagOf<decltype(v)>(), v == same<decltype(v)>(std::numeric_limits<T>::min())); },
          destination(d), len, source(a));
    }
    return qvxsZero_64s(reinterpret_cast<Qvx64s*>(d), static_cast<int>(len));
  }
  const Scaled fit{scaleFactor};
  if (mode == qvxRoundTowardZero) return map<RoundedSum<qvxRoundTowardZero>>(d, length, fit, a, Constant{val});
  if (mode == qvxRoundNearestEven) return map<RoundedSum<qvxRoundNearestEven>>(d, length, fit, a, Constant{val});
  return map<RoundedSum<qvxRoundHalfAway>>(d, length, fit, a, Constant{val});
}

}  // namespace

// clang-format off
QvxStatus qvxsAdd_64s_Sfs(const Qvx64s* a, const Qvx64s* b, Qvx64s* d, int len, int sf) { return map<SumWithZeroTies>(d, len, Scaled{sf}, a, b); }
QvxStatus qvxsAddC_64s_Sfs(const Qvx64s* a, Qvx64s val, Qvx64s* d, Qvx32u len, int sf, QvxRoundMode mode) { return addConstant(a, val, d, len, sf, mode); }
QvxStatus qvxsAddC_64u_Sfs(const Qvx64u* a, Qvx64u val, Qvx64u* d, Qvx32u len, int sf, QvxRoundMode mode) { return addConstant(a, val, d, len, sf, mode); }
// clang-format on
