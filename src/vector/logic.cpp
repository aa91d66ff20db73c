// And, or, exclusive or, not. Without a constant the element's width does not matter: all vectors are byte vectors.
#include "frame/past_caches.h"

using namespace qvx;

namespace {

struct And {
  template <class V> V operator()(V a, V b) const { return a & b; }
};
struct Or {
  template <class V> V operator()(V a, V b) const { return a | b; }
};
struct Xor {
  template <class V> V operator()(V a, V b) const { return a ^ b; }
};

template <class Op, class T> QvxStatus bitwise(const T* a, const T* b, T* d, int len) {
  const QvxStatus status = check(len, a, b, d);
  if (status != qvxStatOk) return status;
  const auto* bytesA = reinterpret_cast<const Qvx8u*>(a);
  const auto* bytesB = reinterpret_cast<const Qvx8u*>(b);
  return PastCaches().run(Op(), destination(reinterpret_cast<Qvx8u*>(d)), elements(len) * sizeof(T), source(bytesA),
                          source(bytesB));
}

}  // namespace

// clang-format off
QvxStatus qvxsAnd_8u(const Qvx8u* a, const Qvx8u* b, Qvx8u* d, int len) { return bitwise<And>(a, b, d, len); }
QvxStatus qvxsAnd_8u_I(const Qvx8u* a, Qvx8u* d, int len) { return bitwise<And>(d, a, d, len); }
QvxStatus qvxsAnd_16u(const Qvx16u* a, const Qvx16u* b, Qvx16u* d, int len) { return bitwise<And>(a, b, d, len); }
QvxStatus qvxsAnd_16u_I(const Qvx16u* a, Qvx16u* d, int len) { return bitwise<And>(d, a, d, len); }
QvxStatus qvxsAnd_32u(const Qvx32u* a, const Qvx32u* b, Qvx32u* d, int len) { return bitwise<And>(a, b, d, len); }
QvxStatus qvxsAnd_32u_I(const Qvx32u* a, Qvx32u* d, int len) { return bitwise<And>(d, a, d, len); }

QvxStatus qvxsOr_8u(const Qvx8u* a, const Qvx8u* b, Qvx8u* d, int len) { return bitwise<Or>(a, b, d, len); }
QvxStatus qvxsOr_8u_I(const Qvx8u* a, Qvx8u* d, int len) { return bitwise<Or>(d, a, d, len); }
QvxStatus qvxsOr_16u(const Qvx16u* a, const Qvx16u* b, Qvx16u* d, int len) { return bitwise<Or>(a, b, d, len); }
QvxStatus qvxsOr_16u_I(const Qvx16u* a, Qvx16u* d, int len) { return bitwise<Or>(d, a, d, len); }
QvxStatus qvxsOr_32u(const Qvx32u* a, const Qvx32u* b, Qvx32u* d, int len) { return bitwise<Or>(a, b, d, len); }
QvxStatus qvxsOr_32u_I(const Qvx32u* a, Qvx32u* d, int len) { return bitwise<Or>(d, a, d, len); }

QvxStatus qvxsXor_8u(const Qvx8u* a, const Qvx8u* b, Qvx8u* d, int len) { return bitwise<Xor>(a, b, d, len); }
QvxStatus qvxsXor_8u_I(const Qvx8u* a, Qvx8u* d, int len) { return bitwise<Xor>(d, a, d, len); }
QvxStatus qvxsXor_16u(const Qvx16u* a, const Qvx16u* b, Qvx16u* d, int len) { return bitwise<Xor>(a, b, d, len); }
QvxStatus qvxsXor_16u_I(const Qvx16u* a, Qvx16u* d, int len) { return bitwise<Xor>(d, a, d, len); }
QvxStatus qvxsXor_32u(const Qvx32u* a, const Qvx32u* b, Qvx32u* d, int len) { return bitwise<Xor>(a, b, d, len); }
QvxStatus qvxsXor_32u_I(const Qvx32u* a, Qvx32u* d, int len) { return bitwise<Xor>(d, a, d, len); }

QvxStatus qvxsAndC_8u(const Qvx8u* a, Qvx8u val, Qvx8u* d, int len) { return map<And>(d, len, AsIs{}, a, Constant{val}); }
QvxStatus qvxsAndC_8u_I(Qvx8u val, Qvx8u* d, int len) { return map<And>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsAndC_16u(const Qvx16u* a, Qvx16u val, Qvx16u* d, int len) { return map<And>(d, len, AsIs{}, a, Constant{val}); }
QvxStatus qvxsAndC_16u_I(Qvx16u val, Qvx16u* d, int len) { return map<And>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsAndC_32u(const Qvx32u* a, Qvx32u val, Qvx32u* d, int len) { return map<And>(d, len, AsIs{}, a, Constant{val}); }
QvxStatus qvxsAndC_32u_I(Qvx32u val, Qvx32u* d, int len) { return map<And>(d, len, AsIs{}, d, Constant{val}); }

QvxStatus qvxsOrC_8u(const Qvx8u* a, Qvx8u val, Qvx8u* d, int len) { return map<Or>(d, len, AsIs{}, a, Constant{val}); }
QvxStatus qvxsOrC_8u_I(Qvx8u val, Qvx8u* d, int len) { return map<Or>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsOrC_16u(const Qvx16u* a, Qvx16u val, Qvx16u* d, int len) { return map<Or>(d, len, AsIs{}, a, Constant{val}); }
QvxStatus qvxsOrC_16u_I(Qvx16u val, Qvx16u* d, int len) { return map<Or>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsOrC_32u(const Qvx32u* a, Qvx32u val, Qvx32u* d, int len) { return map<Or>(d, len, AsIs{}, a, Constant{val}); }
QvxStatus qvxsOrC_32u_I(Qvx32u val, Qvx32u* d, int len) { return map<Or>(d, len, AsIs{}, d, Constant{val}); }

QvxStatus qvxsXorC_8u(const Qvx8u* a, Qvx8u val, Qvx8u* d, int len) { return map<Xor>(d, len, AsIs{}, a, Constant{val}); }
QvxStatus qvxsXorC_8u_I(Qvx8u val, Qvx8u* d, int len) { return map<Xor>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsXorC_16u(const Qvx16u* a, Qvx16u val, Qvx16u* d, int len) { return map<Xor>(d, len, AsIs{}, a, Constant{val}); }
QvxStatus qvxsXorC_16u_I(Qvx16u val, Qvx16u* d, int len) { return map<Xor>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsXorC_32u(const Qvx32u* a, Qvx32u val, Qvx32u* d, int len) { return map<Xor>(d, len, AsIs{}, a, Constant{val}); }
QvxStatus qvxsXorC_32u_I(Qvx32u val, Qvx32u* d, int len) { return map<Xor>(d, len, AsIs{}, d, Constant{val}); }

QvxStatus qvxsNot_8u(const Qvx8u* a, Qvx8u* d, int len) { return qvxsXorC_8u(a, UINT8_MAX, d, len); }
QvxStatus qvxsNot_8u_I(Qvx8u* d, int len) { return qvxsXorC_8u_I(UINT8_MAX, d, len); }
QvxStatus qvxsNot_16u(const Qvx16u* a, Qvx16u* d, int len) { return qvxsXorC_16u(a, UINT16_MAX, d, len); }
QvxStatus qvxsNot_16u_I(Qvx16u* d, int len) { return qvxsXorC_16u_I(UINT16_MAX, d, len); }
QvxStatus qvxsNot_32u(const Qvx32u* a, Qvx32u* d, int len) { return qvxsXorC_32u(a, UINT32_MAX, d, len); }
QvxStatus qvxsNot_32u_I(Qvx32u* d, int len) { return qvxsXorC_32u_I(UINT32_MAX, d, len); }
// clang-format on
