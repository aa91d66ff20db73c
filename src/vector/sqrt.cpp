// Square roots of floats.
#include "vector/both_ways.h"

using namespace qvx;

namespace {

struct Root {
  static constexpr QvxStatus kWarning = qvxWarnSqrtNegArg;

  template <class V, class Way = Divider> V operator()(Flag& flag, V x, Way = {}) const {
    if constexpr (Way::template kServes<V>) {
      if (Way::takes(x)) [[likely]]  // no negative number
        return Way::root(x);
    }
    const TagOf<V> d;
    flag.raise(d, x < hn::Zero(d));
    return hn::Sqrt(x);
  }
};

constexpr TeamRule kRoot32f = {.worthIt = 32768};
constexpr TeamRule kRoot64f = {.worthIt = 8192};

}  // namespace

// clang-format off
QvxStatus qvxsSqrt_32f(const Qvx32f* a, Qvx32f* d, int len) { return mapBothWays<Root, kRoot32f>(d, len, a); }
QvxStatus qvxsSqrt_32f_I(Qvx32f* d, int len) { return mapBothWays<Root, kRoot32f>(d, len, d); }
QvxStatus qvxsSqrt_64f(const Qvx64f* a, Qvx64f* d, int len) { return map<Root>(d, len, InTeam<kRoot64f>{}, a); }
QvxStatus qvxsSqrt_64f_I(Qvx64f* d, int len) { return map<Root>(d, len, InTeam<kRoot64f>{}, d); }
// clang-format on
