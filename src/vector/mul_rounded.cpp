// Products that are not exact: through floats, or the low word alone.
#include "frame/power.h"
#include "vector/product.h"
#include "vector/rounded_product.h"

using namespace qvx;

namespace {

// The low word of the exact product / 2^scaleFactor, without rounding or saturation.
struct LowWord {
  int scaleFactor;

  template <class Op, class Dst, class... Src> QvxStatus run(Op, Dst dst, size_t n, Src... src) const {
    const auto with = [&](auto kernel) { return loop(kernel, dst, n, src...); };
    const int s = scaleFactor;
    if (s > 62) {
      return with([](auto a, auto) { return hn::Zero(TagOf<decltype(a)>()); });
    } else if (s > 32) {  // of the upper words
      return with([s](auto a, auto b) {
        const auto product = wideProduct(a, b);
        const auto upper = hn::OddEven(as<int32_t>(product.odd), as<int32_t>(hn::ShiftRight<32>(as<uint64_t>(product.even))));
        return hn::ShiftRightSame(upper, s - 32);
      });
    } else if (s > 0) {
      return with([s](auto a, auto b) {
        const auto product = wideProduct(a, b);
        return hn::OddEven(as<int32_t>(hn::ShiftLeftSame(product.odd, 32 - s)),
                           as<int32_t>(hn::ShiftRightSame(as<uint64_t>(product.even), s)));
      });
    } else if (s >= -31) {
      return with([s](auto a, auto b) { return hn::ShiftLeftSame(a * b, -s); });
    } else {
      return with([](auto a, auto b) {
        using V = decltype(a);
        const auto zero = hn::Or(a == same<V>(0), b == same<V>(0));
        return hn::IfThenZeroElse(zero, hn::BroadcastSignBit(a ^ b) ^ same<V>(INT32_MAX));
      });
    }
  }
};

// Floats to 16 bits: clamped before the conversion, or packed after it.
struct ClampedTo16 {
  template <class V> auto operator()(V a, V b) const {
    const auto clamped = hn::Max(hn::Min(a * b, same<V>(32767.0F)), same<V>(-32768.0F));
    return hn::DemoteTo(hn::Rebind<int16_t, TagOf<V>>(), toInt(clamped));
  }
};
struct PackedTo16 {
  template <class V> auto operator()(V a, V b) const { return hn::DemoteTo(hn::Rebind<int16_t, TagOf<V>>(), toInt(a * b)); }
};

}  // namespace

QvxStatus qvxsMulC_32f16s_Sfs(const Qvx32f* a, Qvx32f val, Qvx16s* d, int len, int sf) {
  const RoundingScope nearest(Rounding::kNearest);
  const Qvx32f factor = RoundingScope::pinned(val) * powerOfTwo<Qvx32f>(-std::clamp(sf, -127, 126));
  return map<ClampedTo16>(d, len, AsIs{}, a, Constant{factor});
}

// clang-format off
QvxStatus qvxsMulC_Low_32f16s(const Qvx32f* a, Qvx32f val, Qvx16s* d, int len) { return map<PackedTo16>(d, len, AsIs{}, a, Constant{val}); }

QvxStatus qvxsMul_32s_Sfs(const Qvx32s* a, const Qvx32s* b, Qvx32s* d, int len, int sf) { return map<RoundedProduct>(d, len, ScaledFloat{sf}, a, b); }
QvxStatus qvxsMul_32s_ISfs(const Qvx32s* a, Qvx32s* d, int len, int sf) { return map<RoundedProduct>(d, len, ScaledFloat{sf}, d, a); }
QvxStatus qvxsMul_Low_32s_Sfs(const Qvx32s* a, const Qvx32s* b, Qvx32s* d, int len, int sf) { return map<Product>(d, len, LowWord{sf}, a, b); }
// clang-format on
