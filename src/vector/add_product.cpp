// srcDst = srcDst + src1 * src2 and srcDst = srcDst + src * val
#include "vector/product.h"
#include "vector/rounded_product.h"
#include "vector/sum.h"

using namespace qvx;

namespace {

// 16-bit elements: product and destination meet in 32 bits, which hold their sum.
struct ProductSum16 {
  template <class T> static constexpr int kMaxScale = 31;

  template <class V> V operator()(V a, V b, V c) const { return narrow<int16_t>(exact(a, b, c)); }

  template <class T, class With> static QvxStatus scaleDown(int s, const With& with) {
    return with([s](auto a, auto b, auto c) {
      return narrow<int16_t>(each(exact(a, b, c), [s](auto v) { return roundedShift(v, s); }));
    });
  }

 private:
  template <class V> static auto exact(V a, V b, V c) {
    const auto product = joined(splitProduct(a, b));
    const auto added = widen<int32_t>(c);
    return Pair<decltype(product.lo)>{product.lo + added.lo, product.hi + added.hi};
  }
};

// 16-bit products into 32-bit elements: the sum has 33 bits. All scale factors above 31 give zeros, though at 32 a sum above
// 2^31 would round to 1.
struct ProductSum32 {
  template <class T> static constexpr int kMaxScale = 31;

  template <class V> V operator()(V a, V b, V c) const { return saturatedAdd(a * b, c); }

  template <class T, class With> static QvxStatus scaleDown(int s, const With& with) {
    return Sum::scaleDown<T>(s, [&](auto shift) { return with([shift](auto a, auto b, auto c) { return shift(a * b, c); }); });
  }
};

struct FloatProductSum {
  template <class V> V operator()(V a, V b, V c) const { return c + a * b; }
};
struct ComplexProductSum {
  template <class V> V operator()(V a, V b, V c) const { return c + ComplexProduct()(a, b); }
};

}  // namespace

// clang-format off
QvxStatus qvxsAddProduct_16s_Sfs(const Qvx16s* a, const Qvx16s* b, Qvx16s* d, int len, int sf) { return map<ProductSum16>(d, len, Scaled{sf}, a, b, d); }
QvxStatus qvxsAddProduct_16s32s_Sfs(const Qvx16s* a, const Qvx16s* b, Qvx32s* d, int len, int sf) { return map<ProductSum32>(d, len, Scaled{sf}, a, b, d); }
QvxStatus qvxsAddProduct_32s_Sfs(const Qvx32s* a, const Qvx32s* b, Qvx32s* d, int len, int sf) { return map<RoundedProduct>(d, len, ScaledFloat{sf}, a, b, d); }
QvxStatus qvxsAddProduct_32f(const Qvx32f* a, const Qvx32f* b, Qvx32f* d, int len) { return map<FloatProductSum>(d, len, AsIs{}, a, b, d); }
QvxStatus qvxsAddProduct_64f(const Qvx64f* a, const Qvx64f* b, Qvx64f* d, int len) { return map<FloatProductSum>(d, len, AsIs{}, a, b, d); }
QvxStatus qvxsAddProduct_32fc(const Qvx32fc* a, const Qvx32fc* b, Qvx32fc* d, int len) { return map<ComplexProductSum>(d, len, AsIs{}, a, b, d); }
QvxStatus qvxsAddProduct_64fc(const Qvx64fc* a, const Qvx64fc* b, Qvx64fc* d, int len) { return map<ComplexProductSum>(d, len, AsIs{}, a, b, d); }

QvxStatus qvxsAddProductC_32f(const Qvx32f* a, Qvx32f val, Qvx32f* d, int len) { return map<FloatProductSum>(d, len, AsIs{}, a, Constant{val}, d); }
// clang-format on
