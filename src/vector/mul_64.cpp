// 64-bit integers times a constant, in place. Element by element: the processor's 64 by 64 bit product is the fastest there is.
#include <bit>

#include "frame/map.h"

using namespace qvx;

namespace {

// This one constant, of either sign, saturates every element.
constexpr Qvx64s kOverflowingBits = 0x90000012CD94;

// Through memcpy, since p may have any alignment.
template <class F> void each(Qvx64s* p, Qvx32u len, F f) {
  auto* bytes = reinterpret_cast<unsigned char*>(p);
  for (size_t i = 0; i < len; ++i) {
    Qvx64s x;
    std::memcpy(&x, bytes + i * sizeof(x), sizeof(x));
    x = f(x);
    std::memcpy(bytes + i * sizeof(x), &x, sizeof(x));
  }
}

// scaleFactor in 64 bits: the float form adds its exponent to the caller's. Each sign of it has a loop of its own, since the
// compiler does not take the test out of one.
void multiply(Qvx64s val, Qvx64s* d, Qvx32u len, int64_t scaleFactor) {
  const auto s = static_cast<int>(std::clamp<int64_t>(scaleFactor, -63, 127));
  if (val == 0 || s == 127) {
    std::memset(d, 0, size_t{len} * sizeof(*d));
  } else if (s > 0) {
    each(d, len, [=](Qvx64s x) { return scaled<Qvx64s>(__int128{x} * val, s); });
  } else {
    each(d, len, [=](Qvx64s x) { return scaled<Qvx64s>(__int128{x} * val, std::min(s, 0)); });
  }
}

}  // namespace

QvxStatus qvxsMulC_64s_ISfs(Qvx64s val, Qvx64s* d, Qvx32u len, int sf) {
  const QvxStatus status = check(Unsigned{len}, d);
  if (status == qvxStatOk) multiply(val, d, len, sf);
  return status;
}

QvxStatus qvxsMulC_64f64s_ISfs(Qvx64f val, Qvx64s* d, Qvx32u len, int sf) {
  const QvxStatus status = check(Unsigned{len}, d);
  if (status != qvxStatOk) return status;
  const auto bits = std::bit_cast<Qvx64s>(val);
  if (bits == kOverflowingBits || bits == -kOverflowingBits) {
    each(d, len, [=](Qvx64s x) { return x == 0 ? 0 : (x ^ bits) < 0 ? INT64_MIN : INT64_MAX; });
    return qvxStatOk;
  }
  const int exponent = static_cast<int>(bits >> 52) & 0x7FF;
  const Qvx64s fraction = bits & ((Qvx64s{1} << 52) - 1);
  const Qvx64s magnitude = exponent == 0 ? fraction : fraction | Qvx64s{1} << 52;
  multiply(bits < 0 ? -magnitude : magnitude, d, len, int64_t{sf} - exponent + (exponent == 0 ? 1074 : 1075));
  return qvxStatOk;
}
