// 64-bit integers divided by a constant, in place: a product with its reciprocal.
#include <bit>

#include "frame/map.h"

using namespace qvx;

namespace {

// floor(2^(63 + shift) / divisor) for a divisor above 1, with the shift that puts it from 2^62 to 2^63 - 1.
struct Reciprocal {
  Qvx64s fraction;
  int shift;

  explicit Reciprocal(Qvx64u divisor) : shift(std::bit_width(divisor - 1) - 1) {
    fraction = static_cast<Qvx64s>((static_cast<unsigned __int128>(1) << (63 + shift)) / divisor);
  }
};

void saturate(Qvx64s* dst, Qvx32u len) {
  loop(
      [](auto v) {
        using V = decltype(v);
        return hn::IfThenZeroElse(v == same<V>(0), hn::BroadcastSignBit(v) ^ same<V>(INT64_MAX));
      },
      destination(dst), len, source(dst));
}

}  // namespace

QvxStatus qvxsDivC_64s_ISfs(Qvx64s val, Qvx64s* d, Qvx32u len, int sf) {
  if (val == 1 || val == -1) return qvxsMulC_64s_ISfs(val, d, len, sf);
  if (val == 0) {
    const QvxStatus status = check(Unsigned{len}, d);
    if (status != qvxStatOk) return status;
    saturate(d, len);
    return qvxWarnDivByZero;
  }
  const Reciprocal r(val < 0 ? Qvx64u{0} - static_cast<Qvx64u>(val) : static_cast<Qvx64u>(val));
  const auto scale = static_cast<int>(std::min(int64_t{sf} + r.shift + 63, int64_t{INT32_MAX}));
  return qvxsMulC_64s_ISfs(val < 0 ? -r.fraction : r.fraction, d, len, scale);
}
