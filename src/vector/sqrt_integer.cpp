// Square roots of integers: exactly rounded at every scale factor.
#include <cmath>

#include "frame/team.h"
#include "vector/integer_root.h"

using namespace qvx;

namespace {

// A root in the lanes that it needs. To is where the results go, From where they come from.
template <class From, class To> struct IntegerRoot {
  static constexpr int kBits = std::numeric_limits<To>::digits;
  static constexpr int kMaxScale = 4 * sizeof(From);  // beyond, the root of the largest source is below 1/2

  template <class Root> static auto kernel(Root root) {
    if constexpr (std::is_unsigned_v<From>) {
      return [root](auto v) { return inLanes(root, v); };
    } else {
      return warns<qvxWarnSqrtNegArg>([root](Flag& flag, auto v) { return inLanes(root, each(flag, v)); });
    }
  }

 private:
  // What is negative has the root 0.
  template <class V> static V each(Flag& flag, V v) {
    const TagOf<V> d;
    flag.raise(d, v < hn::Zero(d));
    return hn::Max(v, hn::Zero(d));
  }
  template <class V> static Pair<V> each(Flag& flag, Pair<V> v) { return {each(flag, v.lo), each(flag, v.hi)}; }

  template <class Root, class V> static auto inLanes(Root root, V v) {
    if constexpr (sizeof(From) == 1) {
      const auto roots = [&](auto half) { return inLanes16<uint16_t>(root, half); };
      return narrow<uint8_t>(qvx::each(widen<uint16_t>(v), roots));
    } else if constexpr (sizeof(From) == 2) {
      return inLanes16<From>(root, v);
    } else if constexpr (sizeof(From) == 4) {
      return narrowInOrder<To>(qvx::each(v, root));
    } else if constexpr (sizeof(To) == 2) {
      return convertLanes<To>(saturatedTo32(root(v)));
    } else {
      return root(v);
    }
  }

  template <class T, class Root, class V> static V inLanes16(Root root, V v) {
    using Wide = std::conditional_t<std::is_signed_v<T>, int32_t, uint32_t>;
    return narrow<T>(qvx::each(widen<Wide>(v), [&](auto half) { return root(as<int32_t>(half)); }));
  }
};

// ---- 64 bits times a power of two: from 19 places on the result outgrows a double

constexpr int kPlacesInLanes = 18;  // a root of 2^49.5 is wrong by 0.3 at most, in any rounding mode

// The integer nearest to sqrt(x) * 2^s.
Qvx64s enlargedRoot(Qvx64s x, int s) {
  using Wide = unsigned __int128;
  const double root = std::sqrt(static_cast<double>(x)) * powerOfTwo<double>(s);
  if (root > 0x1.0001p63) return INT64_MAX;
  auto k = static_cast<uint64_t>(root);
  const Wide square = static_cast<Wide>(x) << s << s;
  if (root > 0x1p50) {  // the double may be wrong by 2^11: one step of Newton's method leaves less than 1/2
    const auto rest = static_cast<__int128>(square - static_cast<Wide>(k) * k);
    const double step = static_cast<double>(static_cast<int64_t>(rest >> 12)) * 2048 / root;
    auto whole = static_cast<int64_t>(step);
    whole -= static_cast<double>(whole) > step;
    k += static_cast<uint64_t>(whole);
  }
  k += square > static_cast<Wide>(k) * (k + 1);
  return k > INT64_MAX ? INT64_MAX : static_cast<Qvx64s>(k);
}

QvxStatus root64(const Qvx64s* src, Qvx64s* dst, int len, int sf) {
  if (sf >= 0) return map<IntegerRoot<Qvx64s, Qvx64s>>(dst, len, ScaledRoot{sf}, src);
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  if (sf >= -kPlacesInLanes) {
    const auto kernel = IntegerRoot<Qvx64s, Qvx64s>::kernel(RootEnlarged<63>{-sf});
    return loop(kernel, destination(dst), elements(len), source(src));
  }
  const int s = sf < -63 ? 63 : -sf;  // 1 times 2^63 saturates already
  bool negative = false;
  for (size_t i = 0; i < elements(len); ++i) {
    negative |= src[i] < 0;
    dst[i] = src[i] <= 0 ? 0 : enlargedRoot(src[i], s);
  }
  return negative ? qvxWarnSqrtNegArg : qvxStatOk;
}

using Root8u = IntegerRoot<Qvx8u, Qvx8u>;
using Root16u = IntegerRoot<Qvx16u, Qvx16u>;
using Root16s = IntegerRoot<Qvx16s, Qvx16s>;
using Root32s16s = IntegerRoot<Qvx32s, Qvx16s>;
using Root64s16s = IntegerRoot<Qvx64s, Qvx16s>;

// Worth it where one thread takes 3 to 4 us.
constexpr TeamRule kRoot8u = {.threaded = 2048, .worthIt = 32768};
constexpr TeamRule kRoot16 = {.threaded = 2048, .worthIt = 32768};
constexpr TeamRule kRoot32s16s = {.threaded = 1024, .worthIt = 32768};
constexpr TeamRule kRoot64s16s = {.threaded = 512, .worthIt = 8192};

}  // namespace

// clang-format off
QvxStatus qvxsSqrt_8u_Sfs(const Qvx8u* a, Qvx8u* d, int len, int sf) { return map<Root8u>(d, len, InTeam<kRoot8u, ScaledRoot>{{sf}}, a); }
QvxStatus qvxsSqrt_8u_ISfs(Qvx8u* d, int len, int sf) { return map<Root8u>(d, len, InTeam<kRoot8u, ScaledRoot>{{sf}}, d); }
QvxStatus qvxsSqrt_16u_Sfs(const Qvx16u* a, Qvx16u* d, int len, int sf) { return map<Root16u>(d, len, InTeam<kRoot16, ScaledRoot>{{sf}}, a); }
QvxStatus qvxsSqrt_16u_ISfs(Qvx16u* d, int len, int sf) { return map<Root16u>(d, len, InTeam<kRoot16, ScaledRoot>{{sf}}, d); }
QvxStatus qvxsSqrt_16s_Sfs(const Qvx16s* a, Qvx16s* d, int len, int sf) { return map<Root16s>(d, len, InTeam<kRoot16, ScaledRoot>{{sf}}, a); }
QvxStatus qvxsSqrt_16s_ISfs(Qvx16s* d, int len, int sf) { return map<Root16s>(d, len, InTeam<kRoot16, ScaledRoot>{{sf}}, d); }
QvxStatus qvxsSqrt_64s_Sfs(const Qvx64s* a, Qvx64s* d, int len, int sf) { return root64(a, d, len, sf); }
QvxStatus qvxsSqrt_64s_ISfs(Qvx64s* d, int len, int sf) { return root64(d, d, len, sf); }
QvxStatus qvxsSqrt_32s16s_Sfs(const Qvx32s* a, Qvx16s* d, int len, int sf) { return map<Root32s16s>(d, len, InTeam<kRoot32s16s, ScaledRoot>{{sf}}, InPairs{a}); }
QvxStatus qvxsSqrt_64s16s_Sfs(const Qvx64s* a, Qvx16s* d, int len, int sf) { return map<Root64s16s>(d, len, InTeam<kRoot64s16s, ScaledRoot>{{sf}}, a); }
// clang-format on
