// The maximum and the minimum of two vectors, element by element.
#include "frame/past_caches.h"

using namespace qvx;

namespace {

struct Greater {
  template <class V> V operator()(V v, V held) const { return greater(v, held); }
};
struct Less {
  template <class V> V operator()(V v, V held) const { return less(v, held); }
};

}  // namespace

// clang-format off
QvxStatus qvxsMaxEvery_8u (const Qvx8u*  a, const Qvx8u*  b, Qvx8u*  d, int len) { return map<Greater>(d, len, AsIs{}, a, b); }
QvxStatus qvxsMaxEvery_16u(const Qvx16u* a, const Qvx16u* b, Qvx16u* d, int len) { return map<Greater>(d, len, AsIs{}, a, b); }
QvxStatus qvxsMaxEvery_32f(const Qvx32f* a, const Qvx32f* b, Qvx32f* d, int len) { return map<Greater>(d, len, PastCaches{}, a, b); }
QvxStatus qvxsMaxEvery_64f(const Qvx64f* a, const Qvx64f* b, Qvx64f* d, int len) { return map<Greater>(d, len, PastCaches{}, a, b); }
QvxStatus qvxsMaxEvery_8u_I (const Qvx8u*  a, Qvx8u*  d, int len) { return map<Greater>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMaxEvery_16u_I(const Qvx16u* a, Qvx16u* d, int len) { return map<Greater>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMaxEvery_16s_I(const Qvx16s* a, Qvx16s* d, int len) { return map<Greater>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMaxEvery_32s_I(const Qvx32s* a, Qvx32s* d, int len) { return map<Greater>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMaxEvery_32f_I(const Qvx32f* a, Qvx32f* d, int len) { return map<Greater>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMaxEvery_64f_I(const Qvx64f* a, Qvx64f* d, int len) { return map<Greater>(d, len, AsIs{}, a, d); }

QvxStatus qvxsMinEvery_8u (const Qvx8u*  a, const Qvx8u*  b, Qvx8u*  d, int len) { return map<Less>(d, len, AsIs{}, a, b); }
QvxStatus qvxsMinEvery_16u(const Qvx16u* a, const Qvx16u* b, Qvx16u* d, int len) { return map<Less>(d, len, AsIs{}, a, b); }
QvxStatus qvxsMinEvery_32f(const Qvx32f* a, const Qvx32f* b, Qvx32f* d, int len) { return map<Less>(d, len, PastCaches{}, a, b); }
QvxStatus qvxsMinEvery_64f(const Qvx64f* a, const Qvx64f* b, Qvx64f* d, int len) { return map<Less>(d, len, PastCaches{}, a, b); }
QvxStatus qvxsMinEvery_8u_I (const Qvx8u*  a, Qvx8u*  d, int len) { return map<Less>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMinEvery_16u_I(const Qvx16u* a, Qvx16u* d, int len) { return map<Less>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMinEvery_16s_I(const Qvx16s* a, Qvx16s* d, int len) { return map<Less>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMinEvery_32s_I(const Qvx32s* a, Qvx32s* d, int len) { return map<Less>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMinEvery_32f_I(const Qvx32f* a, Qvx32f* d, int len) { return map<Less>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMinEvery_64f_I(const Qvx64f* a, Qvx64f* d, int len) { return map<Less>(d, len, AsIs{}, a, d); }
// clang-format on
