// Magnitudes of complex vectors.
#include "convert/power.h"
#include "frame/team.h"
#include "vector/both_ways.h"
#include "vector/integer_root.h"

using namespace qvx;

namespace {

struct Magnitude {
  template <class V, class Way = Divider> V operator()(V re, V im, Way way = {}) const { return root(Power()(re, im), way); }
  template <class V, class Way = Divider> V operator()(Pair<V> z, Way way = {}) const { return root(Power()(z), way); }

 private:
  template <class V, class Way> static V root(V power, Way) {
    if constexpr (Way::template kServes<V>) {
      if (Way::takes(power)) [[likely]]
        return Way::root(power);
    }
    return hn::Sqrt(power);
  }
};

// Of 16-bit parts to floats: the root of the exact power, rounded once before and once after it.
struct Magnitude16ToFloat {
  template <class... V> auto operator()(V... parts) const { return hn::Sqrt(Power16ToFloat()(parts...)); }
};

// An operation gives its kernel for a way to take and scale a root: the exact one of the exact power in lanes of signed integers.
// Where belowSign() takes one off the largest power, the root lies as far from a tie as before.
struct Magnitude16Complex {
  static constexpr int kBits = 15;
  static constexpr bool kInDoubles = false;
  static constexpr int kMaxScale = 16;  // the root of 2^31 is below half of 2^17
  template <class Root> static auto kernel(Root root) {
    return [root](auto pair) {
      return narrowInOrder<int16_t>(each(pair, [root](auto z) { return root(belowSign(powerOf16(z))); }));
    };
  }
};
struct Magnitude16 : Magnitude16Complex {
  template <class Root> static auto kernel(Root root) {
    return [root](auto re, auto im) {
      const TagOf<decltype(re)> d;
      const auto half = [root](auto z) { return root(belowSign(powerOf16(z))); };
      const auto lo = half(hn::InterleaveLower(d, re, im));
      return narrow<int16_t>(Pair<std::remove_const_t<decltype(lo)>>{lo, half(hn::InterleaveUpper(d, re, im))});
    };
  }
};
struct Magnitude32Complex {
  static constexpr int kBits = 31;
  static constexpr bool kInDoubles = true;
  static constexpr int kMaxScale = 32;
  template <class Root> static auto kernel(Root root) {
    return [root](auto pair) { return saturatedTo32(each(pair, [root](auto z) { return root(belowSign(PowerOf32()(z))); })); };
  }
};

constexpr TeamRule kMagnitude32f = {.worthIt = 32768};
constexpr TeamRule kMagnitude32fc = {.worthIt = 32768};
constexpr TeamRule kMagnitude64 = {.worthIt = 8192};
constexpr TeamRule kMagnitude16sc32f = {.worthIt = 16384};
constexpr TeamRule kMagnitude16 = {.worthIt = 16384};
constexpr TeamRule kMagnitude32sc = {.worthIt = 8192};

// Complex integers as one word each.
const uint32_t* words(const Qvx16sc* p) { return reinterpret_cast<const uint32_t*>(p); }
const uint64_t* words(const Qvx32sc* p) { return reinterpret_cast<const uint64_t*>(p); }

}  // namespace

// clang-format off
QvxStatus qvxsMagnitude_32fc(const Qvx32fc* a, Qvx32f* d, int len) { return mapFastWay<Magnitude, kMagnitude32fc>(d, len, deinterleaved(a)); }
QvxStatus qvxsMagnitude_64fc(const Qvx64fc* a, Qvx64f* d, int len) { return map<Magnitude>(d, len, InTeam<kMagnitude64>{}, deinterleaved(a)); }
QvxStatus qvxsMagnitude_16sc32f(const Qvx16sc* a, Qvx32f* d, int len) { return map<Magnitude16ToFloat>(d, len, InTeam<kMagnitude16sc32f, InOwnLanes>{}, words(a)); }
QvxStatus qvxsMagnitude_16sc_Sfs(const Qvx16sc* a, Qvx16s* d, int len, int sf) { return map<Magnitude16Complex>(d, len, InTeam<kMagnitude16, ScaledRoot>{{sf}}, InPairs{words(a)}); }
QvxStatus qvxsMagnitude_32sc_Sfs(const Qvx32sc* a, Qvx32s* d, int len, int sf) { return map<Magnitude32Complex>(d, len, InTeam<kMagnitude32sc, ScaledRoot>{{sf}}, InPairs{words(a)}); }
QvxStatus qvxsMagnitude_32f(const Qvx32f* re, const Qvx32f* im, Qvx32f* d, int len) { return mapBothWays<Magnitude, kMagnitude32f>(d, len, re, im); }
QvxStatus qvxsMagnitude_64f(const Qvx64f* re, const Qvx64f* im, Qvx64f* d, int len) { return map<Magnitude>(d, len, InTeam<kMagnitude64>{}, re, im); }
QvxStatus qvxsMagnitude_16s_Sfs(const Qvx16s* re, const Qvx16s* im, Qvx16s* d, int len, int sf) { return map<Magnitude16>(d, len, InTeam<kMagnitude16, ScaledRoot>{{sf}}, re, im); }
QvxStatus qvxsMagnitude_16s32f(const Qvx16s* re, const Qvx16s* im, Qvx32f* d, int len) { return map<Magnitude16ToFloat>(d, len, InTeam<kMagnitude16, InOwnLanes>{}, re, im); }
// clang-format on
