// Exponentials of floats.
#include "math/exp.h"

#include "frame/map.h"
#include "frame/rounding.h"

using namespace qvx;

namespace {

struct Exp {
  template <class V> V operator()(V x) const { return exp(x); }
};

// SSSE3 rounds x / ln 2 to a whole number in the processor's mode: any other than to nearest would lead out of the polynomial's
// interval.
struct RoundsToNearest {
  template <class... A> QvxStatus run(A... arguments) const {
    const RoundingScope scope(kRoundsByInstruction ? Rounding::kCallers : Rounding::kNearest);
    return AsIs().run(arguments...);
  }
};

}  // namespace

// clang-format off
QvxStatus qvxsExp_32f   (const Qvx32f* a, Qvx32f* d, int len) { return map<Exp>(d, len, RoundsToNearest{}, a); }
QvxStatus qvxsExp_32f_I (Qvx32f* d, int len)                  { return map<Exp>(d, len, RoundsToNearest{}, d); }
QvxStatus qvxsExp_64f   (const Qvx64f* a, Qvx64f* d, int len) { return map<Exp>(d, len, RoundsToNearest{}, a); }
QvxStatus qvxsExp_64f_I (Qvx64f* d, int len)                  { return map<Exp>(d, len, RoundsToNearest{}, d); }
QvxStatus qvxsExp_32f64f(const Qvx32f* a, Qvx64f* d, int len) { return map<Exp>(d, len, RoundsToNearest{}, a); }
// clang-format on
