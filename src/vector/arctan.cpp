// Arctangents of floats.
#include "math/arctan.h"

#include "frame/map.h"

using namespace qvx;

namespace {

struct Arctan {
  template <class V> V operator()(V x) const { return arctan(x); }
};

}  // namespace

// clang-format off
QvxStatus qvxsArctan_32f  (const Qvx32f* a, Qvx32f* d, int len) { return map<Arctan>(d, len, AsIs{}, a); }
QvxStatus qvxsArctan_32f_I(Qvx32f* d, int len)                  { return map<Arctan>(d, len, AsIs{}, d); }
QvxStatus qvxsArctan_64f  (const Qvx64f* a, Qvx64f* d, int len) { return map<Arctan>(d, len, AsIs{}, a); }
QvxStatus qvxsArctan_64f_I(Qvx64f* d, int len)                  { return map<Arctan>(d, len, AsIs{}, d); }
// clang-format on
