// dst = src * src
#include "frame/past_caches.h"
#include "vector/product.h"

using namespace qvx;

namespace {

// An operation of two vectors on one and itself.
template <class Op> struct WithItself {
  template <class T> static constexpr int kMaxScale = Op::template kMaxScale<T>;

  template <class V> V operator()(V v) const { return Op()(v, v); }

  template <class T, class With> static QvxStatus scaleDown(int s, const With& with) {
    return Op::template scaleDown<T>(s, [&](auto kernel) { return with([kernel](auto v) { return kernel(v, v); }); });
  }
};

// Few squares fit 8 or 16 bits: a table holds those of 8 (0.6 of the time of products), and those of 16 need no upper half.
struct Square : WithItself<Product> {
  template <class V> V operator()(V v) const {
    using T = LaneOf<V>;
    if constexpr (std::is_same_v<T, uint8_t>) {
      // From 16 on an index has its highest bit set, for which a lookup gives 0.
      const V index = hn::SaturatedAdd(v, same<V>(0x70));
      return hn::Not(hn::TableLookupBytesOr0(hn::LoadDup128(TagOf<V>(), kComplements), index));
    } else if constexpr (std::is_same_v<T, uint16_t>) {
      return hn::IfThenElse(v > same<V>(255), same<V>(65535), v * v);
    } else {
      return Product()(v, v);
    }
  }

 private:
  static constexpr uint8_t kComplements[16] = {255, 254, 251, 246, 239, 230, 219, 206, 191, 174, 155, 134, 111, 86, 59, 30};
};
using ComplexSquare = WithItself<ComplexProduct>;

}  // namespace

// clang-format off
QvxStatus qvxsSqr_32f(const Qvx32f* a, Qvx32f* d, int len) { return map<Square>(d, len, PastCaches{}, a); }
QvxStatus qvxsSqr_32f_I(Qvx32f* d, int len) { return map<Square>(d, len, AsIs{}, d); }
QvxStatus qvxsSqr_32fc(const Qvx32fc* a, Qvx32fc* d, int len) { return map<ComplexSquare>(d, len, PastCaches{}, a); }
QvxStatus qvxsSqr_32fc_I(Qvx32fc* d, int len) { return map<ComplexSquare>(d, len, AsIs{}, d); }
QvxStatus qvxsSqr_64f(const Qvx64f* a, Qvx64f* d, int len) { return map<Square>(d, len, PastCaches{}, a); }
QvxStatus qvxsSqr_64f_I(Qvx64f* d, int len) { return map<Square>(d, len, AsIs{}, d); }
QvxStatus qvxsSqr_64fc(const Qvx64fc* a, Qvx64fc* d, int len) { return map<ComplexSquare>(d, len, PastCaches{}, a); }
QvxStatus qvxsSqr_64fc_I(Qvx64fc* d, int len) { return map<ComplexSquare>(d, len, AsIs{}, d); }
QvxStatus qvxsSqr_8u_Sfs(const Qvx8u* a, Qvx8u* d, int len, int sf) { return map<Square>(d, len, Scaled{sf}, a); }
QvxStatus qvxsSqr_8u_ISfs(Qvx8u* d, int len, int sf) { return map<Square>(d, len, Scaled{sf}, d); }
QvxStatus qvxsSqr_16u_Sfs(const Qvx16u* a, Qvx16u* d, int len, int sf) { return map<Square>(d, len, Scaled{sf}, a); }
QvxStatus qvxsSqr_16u_ISfs(Qvx16u* d, int len, int sf) { return map<Square>(d, len, Scaled{sf}, d); }
QvxStatus qvxsSqr_16s_Sfs(const Qvx16s* a, Qvx16s* d, int len, int sf) { return map<Square>(d, len, Scaled{sf}, a); }
QvxStatus qvxsSqr_16s_ISfs(Qvx16s* d, int len, int sf) { return map<Square>(d, len, Scaled{sf}, d); }
QvxStatus qvxsSqr_16sc_Sfs(const Qvx16sc* a, Qvx16sc* d, int len, int sf) { return map<ComplexSquare>(d, len, Scaled{sf}, a); }
QvxStatus qvxsSqr_16sc_ISfs(Qvx16sc* d, int len, int sf) { return map<ComplexSquare>(d, len, Scaled{sf}, d); }
// clang-format on
