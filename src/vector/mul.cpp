// dst = src1 * src2 and dst = src * val, exact
#include "frame/complex.h"
#include "frame/past_caches.h"
#include "vector/product.h"

using namespace qvx;

namespace {

const uint16_t* bits(const Qvx16s* p) { return reinterpret_cast<const uint16_t*>(p); }

QvxStatus realByComplex(const Qvx32f* a, const Qvx32fc* b, Qvx32fc* dst, int len) {
  if (QVXS_AVX2 || len < 32) return map<Product>(dst, len, AsIs{}, Doubled{a}, b);
  const QvxStatus status = check(len, a, b, dst);
  if (status != qvxStatOk) return status;
  const auto products = [](auto v, auto w) {
    const auto both = eachTwice(v);
    return decltype(w){both.lo * w.lo, both.hi * w.hi};
  };
  return loop(products, InTwos{destination(dst)}, 2 * elements(len), BesideTwos{a}, InTwos{source(b)});
}

}  // namespace

// clang-format off
QvxStatus qvxsMul_8u_Sfs(const Qvx8u* a, const Qvx8u* b, Qvx8u* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, a, b); }
QvxStatus qvxsMul_8u_ISfs(const Qvx8u* a, Qvx8u* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, a, d); }
QvxStatus qvxsMul_8u16u(const Qvx8u* a, const Qvx8u* b, Qvx16u* d, int len) { return map<FittingProduct>(d, len, AsIs{}, a, b); }
QvxStatus qvxsMul_16s(const Qvx16s* a, const Qvx16s* b, Qvx16s* d, int len) { return map<Product>(d, len, AsIs{}, a, b); }
QvxStatus qvxsMul_16s_I(const Qvx16s* a, Qvx16s* d, int len) { return map<Product>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMul_16s_Sfs(const Qvx16s* a, const Qvx16s* b, Qvx16s* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, a, b); }
QvxStatus qvxsMul_16s_ISfs(const Qvx16s* a, Qvx16s* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, a, d); }
QvxStatus qvxsMul_16u_Sfs(const Qvx16u* a, const Qvx16u* b, Qvx16u* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, a, b); }
QvxStatus qvxsMul_16u_ISfs(const Qvx16u* a, Qvx16u* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, a, d); }
QvxStatus qvxsMul_16u16s_Sfs(const Qvx16u* a, const Qvx16s* b, Qvx16s* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, a, b); }
QvxStatus qvxsMul_16s32s_Sfs(const Qvx16s* a, const Qvx16s* b, Qvx32s* d, int len, int sf) { return map<ProductOf16>(d, len, Scaled{sf}, bits(a), bits(b)); }
QvxStatus qvxsMul_16s32f(const Qvx16s* a, const Qvx16s* b, Qvx32f* d, int len) { return map<Product>(d, len, AsIs{}, a, b); }
QvxStatus qvxsMul_16sc_Sfs(const Qvx16sc* a, const Qvx16sc* b, Qvx16sc* d, int len, int sf) { return map<ComplexProduct>(d, len, Scaled{sf}, a, b); }
QvxStatus qvxsMul_16sc_ISfs(const Qvx16sc* a, Qvx16sc* d, int len, int sf) { return map<ComplexProduct>(d, len, Scaled{sf}, a, d); }
QvxStatus qvxsMul_32sc_Sfs(const Qvx32sc* a, const Qvx32sc* b, Qvx32sc* d, int len, int sf) { return map<ComplexProduct>(d, len, Scaled{sf}, a, b); }
QvxStatus qvxsMul_32sc_ISfs(const Qvx32sc* a, Qvx32sc* d, int len, int sf) { return map<ComplexProduct>(d, len, Scaled{sf}, a, d); }
QvxStatus qvxsMul_32s32sc_Sfs(const Qvx32s* a, const Qvx32sc* b, Qvx32sc* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, Doubled{a}, b); }
QvxStatus qvxsMul_32s32sc_ISfs(const Qvx32s* a, Qvx32sc* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, Doubled{a}, d); }
QvxStatus qvxsMul_32f(const Qvx32f* a, const Qvx32f* b, Qvx32f* d, int len) { return map<Product>(d, len, PastCaches{}, a, b); }
QvxStatus qvxsMul_32f_I(const Qvx32f* a, Qvx32f* d, int len) { return map<Product>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMul_32fc(const Qvx32fc* a, const Qvx32fc* b, Qvx32fc* d, int len) { return map<ComplexProduct>(d, len, PastCaches{}, a, b); }
QvxStatus qvxsMul_32fc_I(const Qvx32fc* a, Qvx32fc* d, int len) { return map<ComplexProduct>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMul_32f32fc(const Qvx32f* a, const Qvx32fc* b, Qvx32fc* d, int len) { return realByComplex(a, b, d, len); }
QvxStatus qvxsMul_32f32fc_I(const Qvx32f* a, Qvx32fc* d, int len) { return realByComplex(a, d, d, len); }
QvxStatus qvxsMul_64f(const Qvx64f* a, const Qvx64f* b, Qvx64f* d, int len) { return map<Product>(d, len, PastCaches{}, a, b); }
QvxStatus qvxsMul_64f_I(const Qvx64f* a, Qvx64f* d, int len) { return map<Product>(d, len, AsIs{}, a, d); }
QvxStatus qvxsMul_64fc(const Qvx64fc* a, const Qvx64fc* b, Qvx64fc* d, int len) { return map<ComplexProduct>(d, len, PastCaches{}, a, b); }
QvxStatus qvxsMul_64fc_I(const Qvx64fc* a, Qvx64fc* d, int len) { return map<ComplexProduct>(d, len, AsIs{}, a, d); }

QvxStatus qvxsMulC_8u_Sfs(const Qvx8u* a, Qvx8u val, Qvx8u* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsMulC_8u_ISfs(Qvx8u val, Qvx8u* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsMulC_16s_I(Qvx16s val, Qvx16s* d, int len) { return map<Product>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsMulC_16s_Sfs(const Qvx16s* a, Qvx16s val, Qvx16s* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsMulC_16s_ISfs(Qvx16s val, Qvx16s* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsMulC_16u_Sfs(const Qvx16u* a, Qvx16u val, Qvx16u* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsMulC_16u_ISfs(Qvx16u val, Qvx16u* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsMulC_16sc_Sfs(const Qvx16sc* a, Qvx16sc val, Qvx16sc* d, int len, int sf) { return map<ComplexProduct>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsMulC_16sc_ISfs(Qvx16sc val, Qvx16sc* d, int len, int sf) { return map<ComplexProduct>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsMulC_32s_Sfs(const Qvx32s* a, Qvx32s val, Qvx32s* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsMulC_32s_ISfs(Qvx32s val, Qvx32s* d, int len, int sf) { return map<Product>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsMulC_32sc_Sfs(const Qvx32sc* a, Qvx32sc val, Qvx32sc* d, int len, int sf) { return map<ComplexProduct>(d, len, Scaled{sf}, a, Constant{val}); }
QvxStatus qvxsMulC_32sc_ISfs(Qvx32sc val, Qvx32sc* d, int len, int sf) { return map<ComplexProduct>(d, len, Scaled{sf}, d, Constant{val}); }
QvxStatus qvxsMulC_32f(const Qvx32f* a, Qvx32f val, Qvx32f* d, int len) { return map<Product>(d, len, PastCaches{}, a, Constant{val}); }
QvxStatus qvxsMulC_32f_I(Qvx32f val, Qvx32f* d, int len) { return map<Product>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsMulC_32fc(const Qvx32fc* a, Qvx32fc val, Qvx32fc* d, int len) { return map<ComplexProduct>(d, len, PastCaches{}, a, Constant{val}); }
QvxStatus qvxsMulC_32fc_I(Qvx32fc val, Qvx32fc* d, int len) { return map<ComplexProduct>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsMulC_64f(const Qvx64f* a, Qvx64f val, Qvx64f* d, int len) { return map<Product>(d, len, PastCaches{}, a, Constant{val}); }
QvxStatus qvxsMulC_64f_I(Qvx64f val, Qvx64f* d, int len) { return map<Product>(d, len, AsIs{}, d, Constant{val}); }
QvxStatus qvxsMulC_64fc(const Qvx64fc* a, Qvx64fc val, Qvx64fc* d, int len) { return map<ComplexProduct>(d, len, PastCaches{}, a, Constant{val}); }
QvxStatus qvxsMulC_64fc_I(Qvx64fc val, Qvx64fc* d, int len) { return map<ComplexProduct>(d, len, AsIs{}, d, Constant{val}); }
// clang-format on
