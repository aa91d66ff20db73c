// Natural logarithms of floats.
#include "math/ln.h"

using namespace qvx;

namespace {

struct LnToFloat : Ln {
  template <class V> auto operator()(FirstFlag& flag, Place place, V x) const {
    return convertLanes<float>(Ln::operator()(flag, place, x));
  }
};

}  // namespace

// clang-format off
QvxStatus qvxsLn_32f   (const Qvx32f* a, Qvx32f* d, int len) { return map<Ln>       (d, len, AsIs{}, Places{}, OnesPastEnd{a}); }
QvxStatus qvxsLn_32f_I (Qvx32f* d, int len)                  { return map<Ln>       (d, len, AsIs{}, Places{}, OnesPastEnd{d}); }
QvxStatus qvxsLn_64f   (const Qvx64f* a, Qvx64f* d, int len) { return map<Ln>       (d, len, AsIs{}, Places{}, OnesPastEnd{a}); }
QvxStatus qvxsLn_64f_I (Qvx64f* d, int len)                  { return map<Ln>       (d, len, AsIs{}, Places{}, OnesPastEnd{d}); }
QvxStatus qvxsLn_64f32f(const Qvx64f* a, Qvx32f* d, int len) { return map<LnToFloat>(d, len, AsIs{}, Places{}, OnesPastEnd{a}); }
// clang-format on
