// All functions without a record, as overloads by stem.
// Written by tools/cpp_face.py from the C headers and traits/: change those and run it.
// clang-format off
#ifndef QVX_QVXS_FUNCTIONS_HPP
#define QVX_QVXS_FUNCTIONS_HPP

#include <qvx/qvxs_result.hpp>
#include <qvx/qvxs_vectors.hpp>

namespace qvx {
inline namespace QVX_POLICY {
namespace exports {
using namespace qvx::detail;
}

// dst[n] = src1[n] + src2[n]; the _I forms: srcDst[n] = srcDst[n] + src[n]. (qvxs_arith.h)
namespace exports {
struct Add {
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx8u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_8u_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_8u_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_8u16u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_16s(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_16s_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_16s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_16s_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src1, In<Qvx16u> src2, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_16u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16u> src1, In<Qvx16u> src2, Out<Qvx16u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_16u_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_16u_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src1, In<Qvx16sc> src2, Out<Qvx16sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_16sc_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_16sc_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_16s32f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx32s> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_16s32s_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32u> src1, In<Qvx32u> src2, Out<Qvx32u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_32u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32s> src1, In<Qvx32s> src2, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_32s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_32s_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src1, In<Qvx32sc> src2, Out<Qvx32sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_32sc_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src, Out<Qvx32sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_32sc_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_32f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_32f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32fc> src1, In<Qvx32fc> src2, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_32fc(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_32fc_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_64f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_64f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src1, In<Qvx64fc> src2, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_64fc(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAdd_64fc_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64s> src1, In<Qvx64s> src2, Out<Qvx64s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAdd_64s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Add(Arguments&&... arguments) {
  if constexpr (requires { exports::Add::call(detail::view(arguments)...); }) {
    return exports::Add::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Add: no such function for elements of these types in this order. There are Add_8u_Sfs Add_8u_ISfs Add_8u16u "
        "Add_16s Add_16s_I Add_16s_Sfs Add_16s_ISfs Add_16u Add_16u_Sfs Add_16u_ISfs Add_16sc_Sfs Add_16sc_ISfs Add_16s32f "
        "Add_16s32s_I Add_32u Add_32s_Sfs Add_32s_ISfs Add_32sc_Sfs Add_32sc_ISfs Add_32f Add_32f_I Add_32fc Add_32fc_I Add_64f"
        " Add_64f_I Add_64fc Add_64fc_I Add_64s_Sfs");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n] + val; the _I forms: srcDst[n] = srcDst[n] + val. Rounding, saturation and ... (qvxs_arith.h)
namespace exports {
struct AddC {
  static Status call(In<Qvx8u> src, Value<Qvx8u> val, Out<Qvx8u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAddC_8u_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx8u> val, Out<Qvx8u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAddC_8u_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16s> val, Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAddC_16s_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16s> src, Value<Qvx16s> val, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAddC_16s_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16s> val, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAddC_16s_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Value<Qvx16u> val, Out<Qvx16u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAddC_16u_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16u> val, Out<Qvx16u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAddC_16u_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Value<Qvx16sc> val, Out<Qvx16sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAddC_16sc_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16sc> val, Out<Qvx16sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAddC_16sc_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Value<Qvx32s> val, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAddC_32s_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx32s> val, Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAddC_32s_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src, Value<Qvx32sc> val, Out<Qvx32sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAddC_32sc_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx32sc> val, Out<Qvx32sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAddC_32sc_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Value<Qvx32f> val, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAddC_32f(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32f> val, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAddC_32f_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Value<Qvx32fc> val, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAddC_32fc(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32fc> val, Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAddC_32fc_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Value<Qvx64f> val, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAddC_64f(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx64f> val, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAddC_64f_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Value<Qvx64fc> val, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAddC_64fc(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx64fc> val, Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAddC_64fc_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64s> src, Value<Qvx64s> val, Out<Qvx64s> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countableUnsigned(src.size()) && dst.size() == src.size());
    return qvxsAddC_64s_Sfs(src.data(), val.number, dst.data(), unsignedLength(src.size()), scaleFactor.number,
        static_cast<QvxRoundMode>(rndMode));
  }
  static Status call(In<Qvx64u> src, Value<Qvx64u> val, Out<Qvx64u> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countableUnsigned(src.size()) && dst.size() == src.size());
    return qvxsAddC_64u_Sfs(src.data(), val.number, dst.data(), unsignedLength(src.size()), scaleFactor.number,
        static_cast<QvxRoundMode>(rndMode));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status AddC(Arguments&&... arguments) {
  if constexpr (requires { exports::AddC::call(detail::view(arguments)...); }) {
    return exports::AddC::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::AddC: no such function for elements of these types in this order. There are AddC_8u_Sfs AddC_8u_ISfs AddC_16s_I "
        "AddC_16s_Sfs AddC_16s_ISfs AddC_16u_Sfs AddC_16u_ISfs AddC_16sc_Sfs AddC_16sc_ISfs AddC_32s_Sfs AddC_32s_ISfs "
        "AddC_32sc_Sfs AddC_32sc_ISfs AddC_32f AddC_32f_I AddC_32fc AddC_32fc_I AddC_64f AddC_64f_I AddC_64fc AddC_64fc_I "
        "AddC_64s_Sfs AddC_64u_Sfs");
    return qvxStatBadArg;
  }
}

// srcDst[n] = srcDst[n] + src1[n] * src2[n]. (qvxs_arith.h)
namespace exports {
struct AddProduct {
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && srcDst.size() == src1.size());
    return qvxsAddProduct_16s_Sfs(src1.data(), src2.data(), srcDst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && srcDst.size() == src1.size());
    return qvxsAddProduct_16s32s_Sfs(src1.data(), src2.data(), srcDst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src1, In<Qvx32s> src2, Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && srcDst.size() == src1.size());
    return qvxsAddProduct_32s_Sfs(src1.data(), src2.data(), srcDst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && srcDst.size() == src1.size());
    return qvxsAddProduct_32f(src1.data(), src2.data(), srcDst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && srcDst.size() == src1.size());
    return qvxsAddProduct_64f(src1.data(), src2.data(), srcDst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32fc> src1, In<Qvx32fc> src2, Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && srcDst.size() == src1.size());
    return qvxsAddProduct_32fc(src1.data(), src2.data(), srcDst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64fc> src1, In<Qvx64fc> src2, Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && srcDst.size() == src1.size());
    return qvxsAddProduct_64fc(src1.data(), src2.data(), srcDst.data(), length(src1.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status AddProduct(Arguments&&... arguments) {
  if constexpr (requires { exports::AddProduct::call(detail::view(arguments)...); }) {
    return exports::AddProduct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::AddProduct: no such function for elements of these types in this order. There are AddProduct_16s_Sfs "
        "AddProduct_16s32s_Sfs AddProduct_32s_Sfs AddProduct_32f AddProduct_64f AddProduct_32fc AddProduct_64fc");
    return qvxStatBadArg;
  }
}

// srcDst[n] = srcDst[n] + src[n] * val; otherwise as qvxsAddProduct. (qvxs_arith.h)
namespace exports {
struct AddProductC {
  static Status call(In<Qvx32f> src, Value<Qvx32f> val, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAddProductC_32f(src.data(), val.number, srcDst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status AddProductC(Arguments&&... arguments) {
  if constexpr (requires { exports::AddProductC::call(detail::view(arguments)...); }) {
    return exports::AddProductC::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::AddProductC: no such function for elements of these types in this order. There are AddProductC_32f");
    return qvxStatBadArg;
  }
}

// dst[n] = src2[n] - src1[n]: the second source minus the first. The _I forms: srcDst[n] = ... (qvxs_arith.h)
namespace exports {
struct Sub {
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx8u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_8u_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsSub_8u_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_16s(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsSub_16s_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_16s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsSub_16s_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src1, In<Qvx16u> src2, Out<Qvx16u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_16u_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsSub_16u_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src1, In<Qvx16sc> src2, Out<Qvx16sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_16sc_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsSub_16sc_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_16s32f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32s> src1, In<Qvx32s> src2, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_32s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsSub_32s_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src1, In<Qvx32sc> src2, Out<Qvx32sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_32sc_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src, Out<Qvx32sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsSub_32sc_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_32f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsSub_32f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32fc> src1, In<Qvx32fc> src2, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_32fc(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsSub_32fc_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_64f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsSub_64f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src1, In<Qvx64fc> src2, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsSub_64fc(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsSub_64fc_I(src.data(), srcDst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Sub(Arguments&&... arguments) {
  if constexpr (requires { exports::Sub::call(detail::view(arguments)...); }) {
    return exports::Sub::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Sub: no such function for elements of these types in this order. There are Sub_8u_Sfs Sub_8u_ISfs Sub_16s "
        "Sub_16s_I Sub_16s_Sfs Sub_16s_ISfs Sub_16u_Sfs Sub_16u_ISfs Sub_16sc_Sfs Sub_16sc_ISfs Sub_16s32f Sub_32s_Sfs "
        "Sub_32s_ISfs Sub_32sc_Sfs Sub_32sc_ISfs Sub_32f Sub_32f_I Sub_32fc Sub_32fc_I Sub_64f Sub_64f_I Sub_64fc Sub_64fc_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n] - val; the _I forms: srcDst[n] = srcDst[n] - val. Otherwise as qvxsAddC: a real ... (qvxs_arith.h)
namespace exports {
struct SubC {
  static Status call(In<Qvx8u> src, Value<Qvx8u> val, Out<Qvx8u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubC_8u_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx8u> val, Out<Qvx8u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubC_8u_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16s> val, Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubC_16s_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16s> src, Value<Qvx16s> val, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubC_16s_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16s> val, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubC_16s_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Value<Qvx16u> val, Out<Qvx16u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubC_16u_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16u> val, Out<Qvx16u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubC_16u_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Value<Qvx16sc> val, Out<Qvx16sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubC_16sc_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16sc> val, Out<Qvx16sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubC_16sc_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Value<Qvx32s> val, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubC_32s_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx32s> val, Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubC_32s_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src, Value<Qvx32sc> val, Out<Qvx32sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubC_32sc_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx32sc> val, Out<Qvx32sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubC_32sc_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Value<Qvx32f> val, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubC_32f(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32f> val, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubC_32f_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Value<Qvx32fc> val, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubC_32fc(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32fc> val, Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubC_32fc_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Value<Qvx64f> val, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubC_64f(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx64f> val, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubC_64f_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Value<Qvx64fc> val, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubC_64fc(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx64fc> val, Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubC_64fc_I(val.number, srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SubC(Arguments&&... arguments) {
  if constexpr (requires { exports::SubC::call(detail::view(arguments)...); }) {
    return exports::SubC::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SubC: no such function for elements of these types in this order. There are SubC_8u_Sfs SubC_8u_ISfs SubC_16s_I "
        "SubC_16s_Sfs SubC_16s_ISfs SubC_16u_Sfs SubC_16u_ISfs SubC_16sc_Sfs SubC_16sc_ISfs SubC_32s_Sfs SubC_32s_ISfs "
        "SubC_32sc_Sfs SubC_32sc_ISfs SubC_32f SubC_32f_I SubC_32fc SubC_32fc_I SubC_64f SubC_64f_I SubC_64fc SubC_64fc_I");
    return qvxStatBadArg;
  }
}

// dst[n] = val - src[n]; the _I forms: srcDst[n] = val - srcDst[n]. Otherwise as qvxsSubC. (qvxs_arith.h)
namespace exports {
struct SubCRev {
  static Status call(In<Qvx8u> src, Value<Qvx8u> val, Out<Qvx8u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubCRev_8u_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx8u> val, Out<Qvx8u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubCRev_8u_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Value<Qvx16s> val, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubCRev_16s_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16s> val, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubCRev_16s_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Value<Qvx16u> val, Out<Qvx16u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubCRev_16u_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16u> val, Out<Qvx16u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubCRev_16u_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Value<Qvx16sc> val, Out<Qvx16sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubCRev_16sc_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16sc> val, Out<Qvx16sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubCRev_16sc_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Value<Qvx32s> val, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubCRev_32s_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx32s> val, Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubCRev_32s_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src, Value<Qvx32sc> val, Out<Qvx32sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubCRev_32sc_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx32sc> val, Out<Qvx32sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubCRev_32sc_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Value<Qvx32f> val, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubCRev_32f(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32f> val, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubCRev_32f_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Value<Qvx32fc> val, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubCRev_32fc(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32fc> val, Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubCRev_32fc_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Value<Qvx64f> val, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubCRev_64f(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx64f> val, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubCRev_64f_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Value<Qvx64fc> val, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSubCRev_64fc(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx64fc> val, Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSubCRev_64fc_I(val.number, srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SubCRev(Arguments&&... arguments) {
  if constexpr (requires { exports::SubCRev::call(detail::view(arguments)...); }) {
    return exports::SubCRev::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SubCRev: no such function for elements of these types in this order. There are SubCRev_8u_Sfs SubCRev_8u_ISfs "
        "SubCRev_16s_Sfs SubCRev_16s_ISfs SubCRev_16u_Sfs SubCRev_16u_ISfs SubCRev_16sc_Sfs SubCRev_16sc_ISfs SubCRev_32s_Sfs "
        "SubCRev_32s_ISfs SubCRev_32sc_Sfs SubCRev_32sc_ISfs SubCRev_32f SubCRev_32f_I SubCRev_32fc SubCRev_32fc_I SubCRev_64f "
        "SubCRev_64f_I SubCRev_64fc SubCRev_64fc_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src1[n] * src2[n]; the _I forms: srcDst[n] = srcDst[n] * src[n]. (qvxs_arith.h)
namespace exports {
struct Mul {
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx8u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_8u_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_8u_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_8u16u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_16s(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_16s_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_16s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_16s_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src1, In<Qvx16u> src2, Out<Qvx16u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_16u_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_16u_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src1, In<Qvx16s> src2, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_16u16s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_16s32s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_16s32f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16sc> src1, In<Qvx16sc> src2, Out<Qvx16sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_16sc_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_16sc_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src1, In<Qvx32s> src2, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_32s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_32s_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src1, In<Qvx32sc> src2, Out<Qvx32sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_32sc_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src, Out<Qvx32sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_32sc_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src1, In<Qvx32sc> src2, Out<Qvx32sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_32s32sc_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_32s32sc_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_32f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_32f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32fc> src1, In<Qvx32fc> src2, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_32fc(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_32fc_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32f> src1, In<Qvx32fc> src2, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_32f32fc(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_32f32fc_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_64f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_64f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src1, In<Qvx64fc> src2, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_64fc(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMul_64fc_I(src.data(), srcDst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Mul(Arguments&&... arguments) {
  if constexpr (requires { exports::Mul::call(detail::view(arguments)...); }) {
    return exports::Mul::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Mul: no such function for elements of these types in this order. There are Mul_8u_Sfs Mul_8u_ISfs Mul_8u16u "
        "Mul_16s Mul_16s_I Mul_16s_Sfs Mul_16s_ISfs Mul_16u_Sfs Mul_16u_ISfs Mul_16u16s_Sfs Mul_16s32s_Sfs Mul_16s32f "
        "Mul_16sc_Sfs Mul_16sc_ISfs Mul_32s_Sfs Mul_32s_ISfs Mul_32sc_Sfs Mul_32sc_ISfs Mul_32s32sc_Sfs Mul_32s32sc_ISfs "
        "Mul_32f Mul_32f_I Mul_32fc Mul_32fc_I Mul_32f32fc Mul_32f32fc_I Mul_64f Mul_64f_I Mul_64fc Mul_64fc_I");
    return qvxStatBadArg;
  }
}

// The low 32 bits of src1[n] * src2[n] / 2^scaleFactor: the exact product is shifted (right: ... (qvxs_arith.h)
namespace exports {
struct Mul_Low {
  static Status call(In<Qvx32s> src1, In<Qvx32s> src2, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMul_Low_32s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Mul_Low(Arguments&&... arguments) {
  if constexpr (requires { exports::Mul_Low::call(detail::view(arguments)...); }) {
    return exports::Mul_Low::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Mul_Low: no such function for elements of these types in this order. There are Mul_Low_32s_Sfs");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n] * val; the _I forms: srcDst[n] = srcDst[n] * val. (qvxs_arith.h)
namespace exports {
struct MulC {
  static Status call(In<Qvx8u> src, Value<Qvx8u> val, Out<Qvx8u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_8u_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx8u> val, Out<Qvx8u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsMulC_8u_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16s> val, Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsMulC_16s_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16s> src, Value<Qvx16s> val, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_16s_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16s> val, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsMulC_16s_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Value<Qvx16u> val, Out<Qvx16u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_16u_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16u> val, Out<Qvx16u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsMulC_16u_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Value<Qvx16sc> val, Out<Qvx16sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_16sc_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16sc> val, Out<Qvx16sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsMulC_16sc_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Value<Qvx32s> val, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_32s_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx32s> val, Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsMulC_32s_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src, Value<Qvx32sc> val, Out<Qvx32sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_32sc_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx32sc> val, Out<Qvx32sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsMulC_32sc_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Value<Qvx32f> val, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_32f(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32f> val, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsMulC_32f_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Value<Qvx32fc> val, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_32fc(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32fc> val, Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsMulC_32fc_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Value<Qvx64f> val, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_64f(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx64f> val, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsMulC_64f_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Value<Qvx64fc> val, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_64fc(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx64fc> val, Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsMulC_64fc_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32f> src, Value<Qvx32f> val, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_32f16s_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx64s> val, Out<Qvx64s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countableUnsigned(srcDst.size()));
    return qvxsMulC_64s_ISfs(val.number, srcDst.data(), unsignedLength(srcDst.size()), scaleFactor.number);
  }
  static Status call(Fraction<Qvx64f> val, Out<Qvx64s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countableUnsigned(srcDst.size()));
    return qvxsMulC_64f64s_ISfs(val.number, srcDst.data(), unsignedLength(srcDst.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MulC(Arguments&&... arguments) {
  if constexpr (requires { exports::MulC::call(detail::view(arguments)...); }) {
    return exports::MulC::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MulC: no such function for elements of these types in this order. There are MulC_8u_Sfs MulC_8u_ISfs MulC_16s_I "
        "MulC_16s_Sfs MulC_16s_ISfs MulC_16u_Sfs MulC_16u_ISfs MulC_16sc_Sfs MulC_16sc_ISfs MulC_32s_Sfs MulC_32s_ISfs "
        "MulC_32sc_Sfs MulC_32sc_ISfs MulC_32f MulC_32f_I MulC_32fc MulC_32fc_I MulC_64f MulC_64f_I MulC_64fc MulC_64fc_I "
        "MulC_32f16s_Sfs MulC_64s_ISfs MulC_64f64s_ISfs");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n] * val as a float product, converted in the caller's rounding mode and saturated ... (qvxs_arith.h)
namespace exports {
struct MulC_Low {
  static Status call(In<Qvx32f> src, Value<Qvx32f> val, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMulC_Low_32f16s(src.data(), val.number, dst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MulC_Low(Arguments&&... arguments) {
  if constexpr (requires { exports::MulC_Low::call(detail::view(arguments)...); }) {
    return exports::MulC_Low::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MulC_Low: no such function for elements of these types in this order. There are MulC_Low_32f16s");
    return qvxStatBadArg;
  }
}

// dst[n] = src2[n] / src1[n], the first source being the divisor; the _I forms: srcDst[n] = ... (qvxs_arith.h)
namespace exports {
struct Div {
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_32f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_64f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32fc> src1, In<Qvx32fc> src2, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_32fc(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64fc> src1, In<Qvx64fc> src2, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_64fc(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx8u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_8u_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src1, In<Qvx16u> src2, Out<Qvx16u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_16u_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_16s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src1, In<Qvx16sc> src2, Out<Qvx16sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_16sc_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src1, In<Qvx32s> src2, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_32s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src1, In<Qvx32s> src2, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_32s16s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_32f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_64f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_32fc_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_64fc_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_8u_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_16u_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_16s_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_16sc_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_32s_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Div(Arguments&&... arguments) {
  if constexpr (requires { exports::Div::call(detail::view(arguments)...); }) {
    return exports::Div::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Div: no such function for elements of these types in this order. There are Div_32f Div_64f Div_32fc Div_64fc "
        "Div_8u_Sfs Div_16u_Sfs Div_16s_Sfs Div_16sc_Sfs Div_32s_Sfs Div_32s16s_Sfs Div_32f_I Div_64f_I Div_32fc_I Div_64fc_I "
        "Div_8u_ISfs Div_16u_ISfs Div_16s_ISfs Div_16sc_ISfs Div_32s_ISfs");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n] / val; the _I forms: srcDst[n] = srcDst[n] / val. (qvxs_arith.h)
namespace exports {
struct DivC {
  static Status call(In<Qvx32f> src, Value<Qvx32f> val, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsDivC_32f(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src, Value<Qvx64f> val, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsDivC_64f(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32fc> src, Value<Qvx32fc> val, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsDivC_32fc(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Value<Qvx64fc> val, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsDivC_64fc(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(In<Qvx8u> src, Value<Qvx8u> val, Out<Qvx8u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsDivC_8u_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Value<Qvx16u> val, Out<Qvx16u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsDivC_16u_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Value<Qvx16s> val, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsDivC_16s_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Value<Qvx16sc> val, Out<Qvx16sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsDivC_16sc_Sfs(src.data(), val.number, dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx32f> val, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsDivC_32f_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(Value<Qvx64f> val, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsDivC_64f_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(Value<Qvx32fc> val, Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsDivC_32fc_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(Value<Qvx64fc> val, Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsDivC_64fc_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(Value<Qvx8u> val, Out<Qvx8u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsDivC_8u_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16u> val, Out<Qvx16u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsDivC_16u_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16s> val, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsDivC_16s_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx16sc> val, Out<Qvx16sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsDivC_16sc_ISfs(val.number, srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(Value<Qvx64s> val, Out<Qvx64s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countableUnsigned(srcDst.size()));
    return qvxsDivC_64s_ISfs(val.number, srcDst.data(), unsignedLength(srcDst.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status DivC(Arguments&&... arguments) {
  if constexpr (requires { exports::DivC::call(detail::view(arguments)...); }) {
    return exports::DivC::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::DivC: no such function for elements of these types in this order. There are DivC_32f DivC_64f DivC_32fc DivC_64fc"
        " DivC_8u_Sfs DivC_16u_Sfs DivC_16s_Sfs DivC_16sc_Sfs DivC_32f_I DivC_64f_I DivC_32fc_I DivC_64fc_I DivC_8u_ISfs "
        "DivC_16u_ISfs DivC_16s_ISfs DivC_16sc_ISfs DivC_64s_ISfs");
    return qvxStatBadArg;
  }
}

// dst[n] = val / src[n]; the _I forms: val / srcDst[n]. 16u is rounded to nearest even. Otherwise ... (qvxs_arith.h)
namespace exports {
struct DivCRev {
  static Status call(In<Qvx32f> src, Value<Qvx32f> val, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsDivCRev_32f(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16u> src, Value<Qvx16u> val, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsDivCRev_16u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32f> val, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsDivCRev_32f_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(Value<Qvx16u> val, Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsDivCRev_16u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status DivCRev(Arguments&&... arguments) {
  if constexpr (requires { exports::DivCRev::call(detail::view(arguments)...); }) {
    return exports::DivCRev::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::DivCRev: no such function for elements of these types in this order. There are DivCRev_32f DivCRev_16u "
        "DivCRev_32f_I DivCRev_16u_I");
    return qvxStatBadArg;
  }
}

// qvxsDiv with a round mode: qvxRoundTowardZero, qvxRoundNearestEven, qvxRoundHalfAway. Far scale ... (qvxs_arith.h)
namespace exports {
struct Div_Round {
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx8u> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_Round_8u_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> srcDst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_Round_8u_ISfs(src.data(), srcDst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx16u> src1, In<Qvx16u> src2, Out<Qvx16u> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_Round_16u_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> srcDst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_Round_16u_ISfs(src.data(), srcDst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsDiv_Round_16s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsDiv_Round_16s_ISfs(src.data(), srcDst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Div_Round(Arguments&&... arguments) {
  if constexpr (requires { exports::Div_Round::call(detail::view(arguments)...); }) {
    return exports::Div_Round::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Div_Round: no such function for elements of these types in this order. There are Div_Round_8u_Sfs "
        "Div_Round_8u_ISfs Div_Round_16u_Sfs Div_Round_16u_ISfs Div_Round_16s_Sfs Div_Round_16s_ISfs");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n]^2; integers times 2^-scaleFactor, nearest even, saturated; the _I and _ISfs ... (qvxs_math.h)
namespace exports {
struct Sqr {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqr_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqr_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqr_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqr_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqr_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqr_64f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqr_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqr_64fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqr_8u_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx8u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqr_8u_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqr_16u_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx16u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqr_16u_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqr_16s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqr_16s_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqr_16sc_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqr_16sc_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Sqr(Arguments&&... arguments) {
  if constexpr (requires { exports::Sqr::call(detail::view(arguments)...); }) {
    return exports::Sqr::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Sqr: no such function for elements of these types in this order. There are Sqr_32f Sqr_32f_I Sqr_32fc Sqr_32fc_I "
        "Sqr_64f Sqr_64f_I Sqr_64fc Sqr_64fc_I Sqr_8u_Sfs Sqr_8u_ISfs Sqr_16u_Sfs Sqr_16u_ISfs Sqr_16s_Sfs Sqr_16s_ISfs "
        "Sqr_16sc_Sfs Sqr_16sc_ISfs");
    return qvxStatBadArg;
  }
}

// dst[n] = square root of src[n], the principal one; integers times 2^-scaleFactor, nearest even, ... (qvxs_math.h)
namespace exports {
struct Sqrt {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqrt_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqrt_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqrt_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqrt_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqrt_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqrt_64f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqrt_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqrt_64fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqrt_8u_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx8u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqrt_8u_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqrt_16u_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx16u> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqrt_16u_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqrt_16s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqrt_16s_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqrt_16sc_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqrt_16sc_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx64s> src, Out<Qvx64s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqrt_64s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx64s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSqrt_64s_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqrt_32s16s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx64s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSqrt_64s16s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Sqrt(Arguments&&... arguments) {
  if constexpr (requires { exports::Sqrt::call(detail::view(arguments)...); }) {
    return exports::Sqrt::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Sqrt: no such function for elements of these types in this order. There are Sqrt_32f Sqrt_32f_I Sqrt_32fc "
        "Sqrt_32fc_I Sqrt_64f Sqrt_64f_I Sqrt_64fc Sqrt_64fc_I Sqrt_8u_Sfs Sqrt_8u_ISfs Sqrt_16u_Sfs Sqrt_16u_ISfs Sqrt_16s_Sfs"
        " Sqrt_16s_ISfs Sqrt_16sc_Sfs Sqrt_16sc_ISfs Sqrt_64s_Sfs Sqrt_64s_ISfs Sqrt_32s16s_Sfs Sqrt_64s16s_Sfs");
    return qvxStatBadArg;
  }
}

// dst[n] = cube root of src[n], with its sign. (qvxs_math.h)
namespace exports {
struct Cubrt {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCubrt_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCubrt_32s16s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Cubrt(Arguments&&... arguments) {
  if constexpr (requires { exports::Cubrt::call(detail::view(arguments)...); }) {
    return exports::Cubrt::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Cubrt: no such function for elements of these types in this order. There are Cubrt_32f Cubrt_32s16s_Sfs");
    return qvxStatBadArg;
  }
}

// dst[n] = |src[n]|; the _I forms: of srcDst[n]. The most negative integer becomes the largest; ... (qvxs_math.h)
namespace exports {
struct Abs {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAbs_16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAbs_16s_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAbs_32s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAbs_32s_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAbs_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAbs_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAbs_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAbs_64f_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Abs(Arguments&&... arguments) {
  if constexpr (requires { exports::Abs::call(detail::view(arguments)...); }) {
    return exports::Abs::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Abs: no such function for elements of these types in this order. There are Abs_16s Abs_16s_I Abs_32s Abs_32s_I "
        "Abs_32f Abs_32f_I Abs_64f Abs_64f_I");
    return qvxStatBadArg;
  }
}

// dst[n] = e to the power of src[n]; the _I forms: of srcDst[n]. 32f64f: from a float, computed ... (qvxs_math.h)
namespace exports {
struct Exp {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsExp_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsExp_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsExp_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsExp_64f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsExp_32f64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsExp_16s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsExp_16s_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsExp_32s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsExp_32s_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx64s> src, Out<Qvx64s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsExp_64s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx64s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsExp_64s_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Exp(Arguments&&... arguments) {
  if constexpr (requires { exports::Exp::call(detail::view(arguments)...); }) {
    return exports::Exp::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Exp: no such function for elements of these types in this order. There are Exp_32f Exp_32f_I Exp_64f Exp_64f_I "
        "Exp_32f64f Exp_16s_Sfs Exp_16s_ISfs Exp_32s_Sfs Exp_32s_ISfs Exp_64s_Sfs Exp_64s_ISfs");
    return qvxStatBadArg;
  }
}

// dst[n] = natural logarithm of src[n]; the _I forms: of srcDst[n]. 64f32f: of a double, given as ... (qvxs_math.h)
namespace exports {
struct Ln {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLn_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsLn_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLn_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsLn_64f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLn_64f32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLn_16s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsLn_16s_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLn_32s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsLn_32s_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLn_32s16s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Ln(Arguments&&... arguments) {
  if constexpr (requires { exports::Ln::call(detail::view(arguments)...); }) {
    return exports::Ln::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Ln: no such function for elements of these types in this order. There are Ln_32f Ln_32f_I Ln_64f Ln_64f_I "
        "Ln_64f32f Ln_16s_Sfs Ln_16s_ISfs Ln_32s_Sfs Ln_32s_ISfs Ln_32s16s_Sfs");
    return qvxStatBadArg;
  }
}

// dst[n] = 10 times the decimal logarithm of src[n], the rest as with integer logarithms qvxsLn. (qvxs_math.h)
namespace exports {
struct TenLog10 {
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxs10Log10_32s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(Out<Qvx32s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxs10Log10_32s_ISfs(srcDst.data(), length(srcDst.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status TenLog10(Arguments&&... arguments) {
  if constexpr (requires { exports::TenLog10::call(detail::view(arguments)...); }) {
    return exports::TenLog10::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::TenLog10: no such function for elements of these types in this order. There are 10Log10_32s_Sfs 10Log10_32s_ISfs");
    return qvxStatBadArg;
  }
}

// *pSum = sum of the natural logarithms of src[0] to src[len - 1]. 32f64f: of floats, given as a ... (qvxs_math.h)
namespace exports {
struct SumLn {
  static Status call(In<Qvx32f> src, Qvx32f& sum) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSumLn_32f(src.data(), length(src.size()), &sum);
  }
  static Status call(In<Qvx64f> src, Qvx64f& sum) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSumLn_64f(src.data(), length(src.size()), &sum);
  }
  static Status call(In<Qvx32f> src, Qvx64f& sum) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSumLn_32f64f(src.data(), length(src.size()), &sum);
  }
  static Status call(In<Qvx16s> src, Qvx32f& sum) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSumLn_16s32f(src.data(), length(src.size()), &sum);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SumLn(Arguments&&... arguments) {
  if constexpr (requires { exports::SumLn::call(detail::view(arguments)...); }) {
    return exports::SumLn::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SumLn: no such function for elements of these types in this order. There are SumLn_32f SumLn_64f SumLn_32f64f "
        "SumLn_16s32f");
    return qvxStatBadArg;
  }
}

// dst[n] = arctangent of src[n], from -pi/2 to pi/2; the _I forms: of srcDst[n]. (qvxs_math.h)
namespace exports {
struct Arctan {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsArctan_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsArctan_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsArctan_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsArctan_64f_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Arctan(Arguments&&... arguments) {
  if constexpr (requires { exports::Arctan::call(detail::view(arguments)...); }) {
    return exports::Arctan::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Arctan: no such function for elements of these types in this order. There are Arctan_32f Arctan_32f_I Arctan_64f "
        "Arctan_64f_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n]. The vectors may not overlap; see qvxsMove. From the size of the last-level ... (qvxs_init.h)
namespace exports {
struct Copy {
  static Status call(In<Qvx8u> src, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCopy_8u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCopy_16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCopy_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCopy_32s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32sc> src, Out<Qvx32sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCopy_32sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCopy_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCopy_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64s> src, Out<Qvx64s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCopy_64s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64sc> src, Out<Qvx64sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCopy_64sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCopy_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsCopy_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx8u> src, Value<int> srcBitOffset, Out<Qvx8u> dst, Value<int> dstBitOffset, Value<int> len) {
    QVX_REQUIRE(atLeast(src.size(), quotient(int64_t(srcBitOffset.number) + int64_t(len.number) + 7, 8)) && atLeast(dst.size(),
        quotient(int64_t(dstBitOffset.number) + int64_t(len.number) + 7, 8)));
    return qvxsCopy_1u(src.data(), srcBitOffset.number, dst.data(), dstBitOffset.number, len.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Copy(Arguments&&... arguments) {
  if constexpr (requires { exports::Copy::call(detail::view(arguments)...); }) {
    return exports::Copy::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Copy: no such function for elements of these types in this order. There are Copy_8u Copy_16s Copy_16sc Copy_32s "
        "Copy_32sc Copy_32f Copy_32fc Copy_64s Copy_64sc Copy_64f Copy_64fc Copy_1u");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n], where the vectors may overlap in any way. Returns as qvxsCopy. (qvxs_init.h)
namespace exports {
struct Move {
  static Status call(In<Qvx8u> src, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMove_8u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMove_16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMove_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMove_32s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32sc> src, Out<Qvx32sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMove_32sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMove_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMove_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64s> src, Out<Qvx64s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMove_64s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64sc> src, Out<Qvx64sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMove_64sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMove_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMove_64fc(src.data(), dst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Move(Arguments&&... arguments) {
  if constexpr (requires { exports::Move::call(detail::view(arguments)...); }) {
    return exports::Move::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Move: no such function for elements of these types in this order. There are Move_8u Move_16s Move_16sc Move_32s "
        "Move_32sc Move_32f Move_32fc Move_64s Move_64sc Move_64f Move_64fc");
    return qvxStatBadArg;
  }
}

// dst[n] = 0. Returns as qvxsCopy. (qvxs_init.h)
namespace exports {
struct Zero {
  static Status call(Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsZero_8u(dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsZero_16s(dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsZero_16sc(dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx32s> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsZero_32s(dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx32sc> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsZero_32sc(dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsZero_32f(dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsZero_32fc(dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx64s> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsZero_64s(dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx64sc> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsZero_64sc(dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsZero_64f(dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsZero_64fc(dst.data(), length(dst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Zero(Arguments&&... arguments) {
  if constexpr (requires { exports::Zero::call(detail::view(arguments)...); }) {
    return exports::Zero::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Zero: no such function for elements of these types in this order. There are Zero_8u Zero_16s Zero_16sc Zero_32s "
        "Zero_32sc Zero_32f Zero_32fc Zero_64s Zero_64sc Zero_64f Zero_64fc");
    return qvxStatBadArg;
  }
}

// dst[n] = val, bit for bit. Returns as qvxsCopy. (qvxs_init.h)
namespace exports {
struct Set {
  static Status call(Value<Qvx8u> val, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsSet_8u(val.number, dst.data(), length(dst.size()));
  }
  static Status call(Value<Qvx16s> val, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsSet_16s(val.number, dst.data(), length(dst.size()));
  }
  static Status call(Value<Qvx16sc> val, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsSet_16sc(val.number, dst.data(), length(dst.size()));
  }
  static Status call(Value<Qvx32s> val, Out<Qvx32s> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsSet_32s(val.number, dst.data(), length(dst.size()));
  }
  static Status call(Value<Qvx32sc> val, Out<Qvx32sc> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsSet_32sc(val.number, dst.data(), length(dst.size()));
  }
  static Status call(Value<Qvx32f> val, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsSet_32f(val.number, dst.data(), length(dst.size()));
  }
  static Status call(Value<Qvx32fc> val, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsSet_32fc(val.number, dst.data(), length(dst.size()));
  }
  static Status call(Value<Qvx64s> val, Out<Qvx64s> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsSet_64s(val.number, dst.data(), length(dst.size()));
  }
  static Status call(Value<Qvx64sc> val, Out<Qvx64sc> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsSet_64sc(val.number, dst.data(), length(dst.size()));
  }
  static Status call(Value<Qvx64f> val, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsSet_64f(val.number, dst.data(), length(dst.size()));
  }
  static Status call(Value<Qvx64fc> val, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsSet_64fc(val.number, dst.data(), length(dst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Set(Arguments&&... arguments) {
  if constexpr (requires { exports::Set::call(detail::view(arguments)...); }) {
    return exports::Set::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Set: no such function for elements of these types in this order. There are Set_8u Set_16s Set_16sc Set_32s "
        "Set_32sc Set_32f Set_32fc Set_64s Set_64sc Set_64f Set_64fc");
    return qvxStatBadArg;
  }
}

// dst[n] = src1[n] & src2[n]; the _I form: srcDst[n] &= src[n]. (qvxs_init.h)
namespace exports {
struct And {
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAnd_8u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAnd_8u_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16u> src1, In<Qvx16u> src2, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAnd_16u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAnd_16u_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32u> src1, In<Qvx32u> src2, Out<Qvx32u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsAnd_32u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32u> src, Out<Qvx32u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsAnd_32u_I(src.data(), srcDst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status And(Arguments&&... arguments) {
  if constexpr (requires { exports::And::call(detail::view(arguments)...); }) {
    return exports::And::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::And: no such function for elements of these types in this order. There are And_8u And_8u_I And_16u And_16u_I "
        "And_32u And_32u_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src1[n] | src2[n]; the _I form: srcDst[n] |= src[n]. (qvxs_init.h)
namespace exports {
struct Or {
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsOr_8u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsOr_8u_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16u> src1, In<Qvx16u> src2, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsOr_16u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsOr_16u_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32u> src1, In<Qvx32u> src2, Out<Qvx32u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsOr_32u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32u> src, Out<Qvx32u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsOr_32u_I(src.data(), srcDst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Or(Arguments&&... arguments) {
  if constexpr (requires { exports::Or::call(detail::view(arguments)...); }) {
    return exports::Or::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Or: no such function for elements of these types in this order. There are Or_8u Or_8u_I Or_16u Or_16u_I Or_32u "
        "Or_32u_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src1[n] ^ src2[n]; the _I form: srcDst[n] ^= src[n]. (qvxs_init.h)
namespace exports {
struct Xor {
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsXor_8u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsXor_8u_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16u> src1, In<Qvx16u> src2, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsXor_16u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsXor_16u_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32u> src1, In<Qvx32u> src2, Out<Qvx32u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsXor_32u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32u> src, Out<Qvx32u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsXor_32u_I(src.data(), srcDst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Xor(Arguments&&... arguments) {
  if constexpr (requires { exports::Xor::call(detail::view(arguments)...); }) {
    return exports::Xor::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Xor: no such function for elements of these types in this order. There are Xor_8u Xor_8u_I Xor_16u Xor_16u_I "
        "Xor_32u Xor_32u_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n] & val; the _I form: srcDst[n] &= val. (qvxs_init.h)
namespace exports {
struct AndC {
  static Status call(In<Qvx8u> src, Value<Qvx8u> val, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAndC_8u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx8u> val, Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAndC_8u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16u> src, Value<Qvx16u> val, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAndC_16u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx16u> val, Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAndC_16u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32u> src, Value<Qvx32u> val, Out<Qvx32u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsAndC_32u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32u> val, Out<Qvx32u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsAndC_32u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status AndC(Arguments&&... arguments) {
  if constexpr (requires { exports::AndC::call(detail::view(arguments)...); }) {
    return exports::AndC::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::AndC: no such function for elements of these types in this order. There are AndC_8u AndC_8u_I AndC_16u AndC_16u_I"
        " AndC_32u AndC_32u_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n] | val; the _I form: srcDst[n] |= val. (qvxs_init.h)
namespace exports {
struct OrC {
  static Status call(In<Qvx8u> src, Value<Qvx8u> val, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsOrC_8u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx8u> val, Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsOrC_8u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16u> src, Value<Qvx16u> val, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsOrC_16u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx16u> val, Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsOrC_16u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32u> src, Value<Qvx32u> val, Out<Qvx32u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsOrC_32u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32u> val, Out<Qvx32u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsOrC_32u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status OrC(Arguments&&... arguments) {
  if constexpr (requires { exports::OrC::call(detail::view(arguments)...); }) {
    return exports::OrC::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::OrC: no such function for elements of these types in this order. There are OrC_8u OrC_8u_I OrC_16u OrC_16u_I "
        "OrC_32u OrC_32u_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n] ^ val; the _I form: srcDst[n] ^= val. (qvxs_init.h)
namespace exports {
struct XorC {
  static Status call(In<Qvx8u> src, Value<Qvx8u> val, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsXorC_8u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx8u> val, Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsXorC_8u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16u> src, Value<Qvx16u> val, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsXorC_16u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx16u> val, Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsXorC_16u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32u> src, Value<Qvx32u> val, Out<Qvx32u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsXorC_32u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<Qvx32u> val, Out<Qvx32u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsXorC_32u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status XorC(Arguments&&... arguments) {
  if constexpr (requires { exports::XorC::call(detail::view(arguments)...); }) {
    return exports::XorC::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::XorC: no such function for elements of these types in this order. There are XorC_8u XorC_8u_I XorC_16u XorC_16u_I"
        " XorC_32u XorC_32u_I");
    return qvxStatBadArg;
  }
}

// dst[n] = ~src[n]; the _I form: srcDst[n] = ~srcDst[n]. (qvxs_init.h)
namespace exports {
struct Not {
  static Status call(In<Qvx8u> src, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsNot_8u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsNot_8u_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsNot_16u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsNot_16u_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32u> src, Out<Qvx32u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsNot_32u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsNot_32u_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Not(Arguments&&... arguments) {
  if constexpr (requires { exports::Not::call(detail::view(arguments)...); }) {
    return exports::Not::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Not: no such function for elements of these types in this order. There are Not_8u Not_8u_I Not_16u Not_16u_I "
        "Not_32u Not_32u_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n] shifted left by val bits; bits beyond the element are lost, signed elements too. ... (qvxs_init.h)
namespace exports {
struct LShiftC {
  static Status call(In<Qvx8u> src, Value<int> val, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLShiftC_8u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<int> val, Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsLShiftC_8u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16u> src, Value<int> val, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLShiftC_16u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<int> val, Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsLShiftC_16u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16s> src, Value<int> val, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLShiftC_16s(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<int> val, Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsLShiftC_16s_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32s> src, Value<int> val, Out<Qvx32s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLShiftC_32s(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<int> val, Out<Qvx32s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsLShiftC_32s_I(val.number, srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status LShiftC(Arguments&&... arguments) {
  if constexpr (requires { exports::LShiftC::call(detail::view(arguments)...); }) {
    return exports::LShiftC::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::LShiftC: no such function for elements of these types in this order. There are LShiftC_8u LShiftC_8u_I "
        "LShiftC_16u LShiftC_16u_I LShiftC_16s LShiftC_16s_I LShiftC_32s LShiftC_32s_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n] shifted right by val bits, without rounding: unsigned elements fill with zeros, ... (qvxs_init.h)
namespace exports {
struct RShiftC {
  static Status call(In<Qvx8u> src, Value<int> val, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsRShiftC_8u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<int> val, Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsRShiftC_8u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16u> src, Value<int> val, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsRShiftC_16u(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<int> val, Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsRShiftC_16u_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16s> src, Value<int> val, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsRShiftC_16s(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<int> val, Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsRShiftC_16s_I(val.number, srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32s> src, Value<int> val, Out<Qvx32s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsRShiftC_32s(src.data(), val.number, dst.data(), length(src.size()));
  }
  static Status call(Value<int> val, Out<Qvx32s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsRShiftC_32s_I(val.number, srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status RShiftC(Arguments&&... arguments) {
  if constexpr (requires { exports::RShiftC::call(detail::view(arguments)...); }) {
    return exports::RShiftC::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::RShiftC: no such function for elements of these types in this order. There are RShiftC_8u RShiftC_8u_I "
        "RShiftC_16u RShiftC_16u_I RShiftC_16s RShiftC_16s_I RShiftC_32s RShiftC_32s_I");
    return qvxStatBadArg;
  }
}

// The byte order of every element reversed. 24u: elements of three bytes, without gaps. Returns as ... (qvxs_init.h)
namespace exports {
struct SwapBytes {
  static Status call(In<Qvx16u> src, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSwapBytes_16u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSwapBytes_16u_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<UInt24> src, Out<UInt24> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSwapBytes_24u(pointer(src), pointer(dst), length(src.size()));
  }
  static Status call(Out<UInt24> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSwapBytes_24u_I(pointer(srcDst), length(srcDst.size()));
  }
  static Status call(In<Qvx32u> src, Out<Qvx32u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSwapBytes_32u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSwapBytes_32u_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64u> src, Out<Qvx64u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsSwapBytes_64u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSwapBytes_64u_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SwapBytes(Arguments&&... arguments) {
  if constexpr (requires { exports::SwapBytes::call(detail::view(arguments)...); }) {
    return exports::SwapBytes::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SwapBytes: no such function for elements of these types in this order. There are SwapBytes_16u SwapBytes_16u_I "
        "SwapBytes_24u SwapBytes_24u_I SwapBytes_32u SwapBytes_32u_I SwapBytes_64u SwapBytes_64u_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src[n] in a type that holds every value of the source's; exact. (qvxs_convert.h)
namespace exports {
struct Convert {
  static Status call(In<Qvx8s> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_8s16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx32s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_16s32s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx8s> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_8s32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx8u> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_8u32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_16s32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16u> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_16u32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32s> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32s64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32f64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<UInt24> src, Out<Qvx32u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_24u32u(pointer(src), dst.data(), length(src.size()));
  }
  static Status call(In<Int24> src, Out<Qvx32s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_24s32s(pointer(src), dst.data(), length(src.size()));
  }
  static Status call(In<UInt24> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_24u32f(pointer(src), dst.data(), length(src.size()));
  }
  static Status call(In<Int24> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_24s32f(pointer(src), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32s> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32s32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64s> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_64s64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_64f32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32s> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32s16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx32f> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_16s32f_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx64f> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_16s64f_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32f> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32s32f_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx64f> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32s64f_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx8s> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32f8s_Sfs(src.data(), dst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx8u> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32f8u_Sfs(src.data(), dst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx16s> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32f16s_Sfs(src.data(), dst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx16u> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32f16u_Sfs(src.data(), dst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32s> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32f32s_Sfs(src.data(), dst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx32s> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_64f32s_Sfs(src.data(), dst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx16s> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_64f16s_Sfs(src.data(), dst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64s> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countableUnsigned(src.size()) && dst.size() == src.size());
    return qvxsConvert_64f64s_Sfs(src.data(), dst.data(), unsignedLength(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32s16s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32u> src, Out<UInt24> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32u24u_Sfs(src.data(), pointer(dst), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Int24> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32s24s_Sfs(src.data(), pointer(dst), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx8s> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countableUnsigned(src.size()) && dst.size() == src.size());
    return qvxsConvert_16s8s_Sfs(src.data(), dst.data(), unsignedLength(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx64s> src, Out<Qvx32s> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_64s32s_Sfs(src.data(), dst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Out<UInt24> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32f24u_Sfs(src.data(), pointer(dst), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> src, Out<Int24> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32f24s_Sfs(src.data(), pointer(dst), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Half> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_16f32f(pointer(src), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32f> src, Out<Half> dst, Rounding rndMode) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_32f16f(src.data(), pointer(dst), length(src.size()), static_cast<QvxRoundMode>(rndMode));
  }
  static Status call(In<Qvx16s> src, Out<Half> dst, Rounding rndMode) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_16s16f(src.data(), pointer(dst), length(src.size()), static_cast<QvxRoundMode>(rndMode));
  }
  static Status call(In<Half> src, Out<Qvx16s> dst, Rounding rndMode, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConvert_16f16s_Sfs(pointer(src), dst.data(), length(src.size()), static_cast<QvxRoundMode>(rndMode),
        scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Convert(Arguments&&... arguments) {
  if constexpr (requires { exports::Convert::call(detail::view(arguments)...); }) {
    return exports::Convert::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Convert: no such function for elements of these types in this order. There are Convert_8s16s Convert_16s32s "
        "Convert_8s32f Convert_8u32f Convert_16s32f Convert_16u32f Convert_32s64f Convert_32f64f Convert_24u32u Convert_24s32s "
        "Convert_24u32f Convert_24s32f Convert_32s32f Convert_64s64f Convert_64f32f Convert_32s16s Convert_16s32f_Sfs "
        "Convert_16s64f_Sfs Convert_32s32f_Sfs Convert_32s64f_Sfs Convert_32f8s_Sfs Convert_32f8u_Sfs Convert_32f16s_Sfs "
        "Convert_32f16u_Sfs Convert_32f32s_Sfs Convert_64f32s_Sfs Convert_64f16s_Sfs Convert_64f64s_Sfs Convert_32s16s_Sfs "
        "Convert_32u24u_Sfs Convert_32s24s_Sfs Convert_16s8s_Sfs Convert_64s32s_Sfs Convert_32f24u_Sfs Convert_32f24s_Sfs "
        "Convert_16f32f Convert_32f16f Convert_16s16f Convert_16f16s_Sfs");
    return qvxStatBadArg;
  }
}

// dst[n] = the real part of src[n]. (qvxs_complex.h)
namespace exports {
struct Real {
  static Status call(In<Qvx16sc> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsReal_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsReal_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsReal_64fc(src.data(), dst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Real(Arguments&&... arguments) {
  if constexpr (requires { exports::Real::call(detail::view(arguments)...); }) {
    return exports::Real::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Real: no such function for elements of these types in this order. There are Real_16sc Real_32fc Real_64fc");
    return qvxStatBadArg;
  }
}

// dst[n] = the imaginary part of src[n]. As qvxsReal. (qvxs_complex.h)
namespace exports {
struct Imag {
  static Status call(In<Qvx16sc> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsImag_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsImag_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsImag_64fc(src.data(), dst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Imag(Arguments&&... arguments) {
  if constexpr (requires { exports::Imag::call(detail::view(arguments)...); }) {
    return exports::Imag::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Imag: no such function for elements of these types in this order. There are Imag_16sc Imag_32fc Imag_64fc");
    return qvxStatBadArg;
  }
}

// dstRe[n] and dstIm[n] = the parts of src[n]. As qvxsReal. (qvxs_complex.h)
namespace exports {
struct CplxToReal {
  static Status call(In<Qvx16sc> src, Out<Qvx16s> dstRe, Out<Qvx16s> dstIm) {
    QVX_REQUIRE(countable(src.size()) && dstRe.size() == src.size() && dstIm.size() == src.size());
    return qvxsCplxToReal_16sc(src.data(), dstRe.data(), dstIm.data(), length(src.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32f> dstRe, Out<Qvx32f> dstIm) {
    QVX_REQUIRE(countable(src.size()) && dstRe.size() == src.size() && dstIm.size() == src.size());
    return qvxsCplxToReal_32fc(src.data(), dstRe.data(), dstIm.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64f> dstRe, Out<Qvx64f> dstIm) {
    QVX_REQUIRE(countable(src.size()) && dstRe.size() == src.size() && dstIm.size() == src.size());
    return qvxsCplxToReal_64fc(src.data(), dstRe.data(), dstIm.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status CplxToReal(Arguments&&... arguments) {
  if constexpr (requires { exports::CplxToReal::call(detail::view(arguments)...); }) {
    return exports::CplxToReal::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::CplxToReal: no such function for elements of these types in this order. There are CplxToReal_16sc CplxToReal_32fc"
        " CplxToReal_64fc");
    return qvxStatBadArg;
  }
}

// dst[n] = srcRe[n] + i srcIm[n]. One source may be null: that part is 0 then. (qvxs_complex.h)
namespace exports {
struct RealToCplx {
  static Status call(In<Qvx16s> srcRe, In<Qvx16s> srcIm, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(dst.size()) && (srcRe.empty() || srcRe.size() == dst.size()) && (srcIm.empty() || srcIm.size() ==
        dst.size()));
    return qvxsRealToCplx_16s(optional(srcRe), optional(srcIm), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx32f> srcRe, In<Qvx32f> srcIm, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(dst.size()) && (srcRe.empty() || srcRe.size() == dst.size()) && (srcIm.empty() || srcIm.size() ==
        dst.size()));
    return qvxsRealToCplx_32f(optional(srcRe), optional(srcIm), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx64f> srcRe, In<Qvx64f> srcIm, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(dst.size()) && (srcRe.empty() || srcRe.size() == dst.size()) && (srcIm.empty() || srcIm.size() ==
        dst.size()));
    return qvxsRealToCplx_64f(optional(srcRe), optional(srcIm), dst.data(), length(dst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status RealToCplx(Arguments&&... arguments) {
  if constexpr (requires { exports::RealToCplx::call(detail::view(arguments)...); }) {
    return exports::RealToCplx::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::RealToCplx: no such function for elements of these types in this order. There are RealToCplx_16s RealToCplx_32f "
        "RealToCplx_64f");
    return qvxStatBadArg;
  }
}

// dst[n] = the conjugate of src[n]; the _I forms: of srcDst[n]. Imaginary parts of -32768 become ... (qvxs_complex.h)
namespace exports {
struct Conj {
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConj_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16sc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConj_16sc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConj_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConj_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConj_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConj_64fc_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Conj(Arguments&&... arguments) {
  if constexpr (requires { exports::Conj::call(detail::view(arguments)...); }) {
    return exports::Conj::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Conj: no such function for elements of these types in this order. There are Conj_16sc Conj_16sc_I Conj_32fc "
        "Conj_32fc_I Conj_64fc Conj_64fc_I");
    return qvxStatBadArg;
  }
}

// dst[n] = the conjugate of src[len - 1 - n]. As qvxsConj, but the vectors must not overlap. (qvxs_complex.h)
namespace exports {
struct ConjFlip {
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConjFlip_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConjFlip_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConjFlip_64fc(src.data(), dst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status ConjFlip(Arguments&&... arguments) {
  if constexpr (requires { exports::ConjFlip::call(detail::view(arguments)...); }) {
    return exports::ConjFlip::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::ConjFlip: no such function for elements of these types in this order. There are ConjFlip_16sc ConjFlip_32fc "
        "ConjFlip_64fc");
    return qvxStatBadArg;
  }
}

// dst[n] = src[len - 1 - n], the vectors apart; the _I forms reverse srcDst. As qvxsReal. (qvxs_complex.h)
namespace exports {
struct Flip {
  static Status call(In<Qvx8u> src, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsFlip_8u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsFlip_8u_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsFlip_16u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsFlip_16u_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsFlip_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsFlip_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsFlip_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsFlip_64f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsFlip_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsFlip_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsFlip_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsFlip_64fc_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Flip(Arguments&&... arguments) {
  if constexpr (requires { exports::Flip::call(detail::view(arguments)...); }) {
    return exports::Flip::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Flip: no such function for elements of these types in this order. There are Flip_8u Flip_8u_I Flip_16u Flip_16u_I"
        " Flip_32f Flip_32f_I Flip_64f Flip_64f_I Flip_32fc Flip_32fc_I Flip_64fc Flip_64fc_I");
    return qvxStatBadArg;
  }
}

// dst[n] = sqrt(re^2 + im^2) of src[n], or of srcRe[n] and srcIm[n]. (qvxs_complex.h)
namespace exports {
struct Magnitude {
  static Status call(In<Qvx32fc> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMagnitude_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMagnitude_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMagnitude_16sc32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMagnitude_16sc_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMagnitude_32sc_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> srcRe, In<Qvx32f> srcIm, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsMagnitude_32f(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()));
  }
  static Status call(In<Qvx64f> srcRe, In<Qvx64f> srcIm, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsMagnitude_64f(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()));
  }
  static Status call(In<Qvx16s> srcRe, In<Qvx16s> srcIm, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsMagnitude_16s_Sfs(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> srcRe, In<Qvx16s> srcIm, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsMagnitude_16s32f(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Magnitude(Arguments&&... arguments) {
  if constexpr (requires { exports::Magnitude::call(detail::view(arguments)...); }) {
    return exports::Magnitude::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Magnitude: no such function for elements of these types in this order. There are Magnitude_32fc Magnitude_64fc "
        "Magnitude_16sc32f Magnitude_16sc_Sfs Magnitude_32sc_Sfs Magnitude_32f Magnitude_64f Magnitude_16s_Sfs Magnitude_16s32f");
    return qvxStatBadArg;
  }
}

// dst[n] = the angle of src[n], or of srcRe[n] + i srcIm[n], in radians from -pi to pi; zeros, ... (qvxs_complex.h)
namespace exports {
struct Phase {
  static Status call(In<Qvx32fc> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsPhase_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsPhase_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsPhase_16sc32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsPhase_16sc_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsPhase_32sc_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> srcRe, In<Qvx32f> srcIm, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsPhase_32f(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()));
  }
  static Status call(In<Qvx64f> srcRe, In<Qvx64f> srcIm, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsPhase_64f(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()));
  }
  static Status call(In<Qvx16s> srcRe, In<Qvx16s> srcIm, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsPhase_16s_Sfs(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> srcRe, In<Qvx16s> srcIm, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsPhase_16s32f(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Phase(Arguments&&... arguments) {
  if constexpr (requires { exports::Phase::call(detail::view(arguments)...); }) {
    return exports::Phase::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Phase: no such function for elements of these types in this order. There are Phase_32fc Phase_64fc Phase_16sc32f "
        "Phase_16sc_Sfs Phase_32sc_Sfs Phase_32f Phase_64f Phase_16s_Sfs Phase_16s32f");
    return qvxStatBadArg;
  }
}

// dst[n] = re^2 + im^2 of src[n], or of srcRe[n] and srcIm[n]. (qvxs_complex.h)
namespace exports {
struct PowerSpectr {
  static Status call(In<Qvx32fc> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsPowerSpectr_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsPowerSpectr_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsPowerSpectr_16sc32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsPowerSpectr_16sc_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32f> srcRe, In<Qvx32f> srcIm, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsPowerSpectr_32f(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()));
  }
  static Status call(In<Qvx64f> srcRe, In<Qvx64f> srcIm, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsPowerSpectr_64f(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()));
  }
  static Status call(In<Qvx16s> srcRe, In<Qvx16s> srcIm, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsPowerSpectr_16s_Sfs(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> srcRe, In<Qvx16s> srcIm, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsPowerSpectr_16s32f(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status PowerSpectr(Arguments&&... arguments) {
  if constexpr (requires { exports::PowerSpectr::call(detail::view(arguments)...); }) {
    return exports::PowerSpectr::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::PowerSpectr: no such function for elements of these types in this order. There are PowerSpectr_32fc "
        "PowerSpectr_64fc PowerSpectr_16sc32f PowerSpectr_16sc_Sfs PowerSpectr_32f PowerSpectr_64f PowerSpectr_16s_Sfs "
        "PowerSpectr_16s32f");
    return qvxStatBadArg;
  }
}

// dst[n] = re^2 + im^2 of src[n] in a wider type: 32fc64f widens the parts first. 32sc32s_Sfs: the ... (qvxs_complex.h)
namespace exports {
struct MagSquared {
  static Status call(In<Qvx32fc> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMagSquared_32fc64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32sc> src, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMagSquared_32sc32s_Sfs(src.data(), dst.data(), length(src.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MagSquared(Arguments&&... arguments) {
  if constexpr (requires { exports::MagSquared::call(detail::view(arguments)...); }) {
    return exports::MagSquared::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MagSquared: no such function for elements of these types in this order. There are MagSquared_32fc64f "
        "MagSquared_32sc32s_Sfs");
    return qvxStatBadArg;
  }
}

// dstMagn[n] and dstPhase[n] = magnitude and phase of src[n], or of srcRe[n] + i srcIm[n], as ... (qvxs_complex.h)
namespace exports {
struct CartToPolar {
  static Status call(In<Qvx32fc> src, Out<Qvx32f> dstMagn, Out<Qvx32f> dstPhase) {
    QVX_REQUIRE(countable(src.size()) && (dstMagn.empty() || dstMagn.size() == src.size()) && (dstPhase.empty() || dstPhase.size()
        == src.size()));
    return qvxsCartToPolar_32fc(src.data(), optional(dstMagn), optional(dstPhase), length(src.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64f> dstMagn, Out<Qvx64f> dstPhase) {
    QVX_REQUIRE(countable(src.size()) && (dstMagn.empty() || dstMagn.size() == src.size()) && (dstPhase.empty() || dstPhase.size()
        == src.size()));
    return qvxsCartToPolar_64fc(src.data(), optional(dstMagn), optional(dstPhase), length(src.size()));
  }
  static Status call(In<Qvx32f> srcRe, In<Qvx32f> srcIm, Out<Qvx32f> dstMagn, Out<Qvx32f> dstPhase) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && (dstMagn.empty() || dstMagn.size() == srcRe.size()) &&
        (dstPhase.empty() || dstPhase.size() == srcRe.size()));
    return qvxsCartToPolar_32f(srcRe.data(), srcIm.data(), optional(dstMagn), optional(dstPhase), length(srcRe.size()));
  }
  static Status call(In<Qvx64f> srcRe, In<Qvx64f> srcIm, Out<Qvx64f> dstMagn, Out<Qvx64f> dstPhase) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && (dstMagn.empty() || dstMagn.size() == srcRe.size()) &&
        (dstPhase.empty() || dstPhase.size() == srcRe.size()));
    return qvxsCartToPolar_64f(srcRe.data(), srcIm.data(), optional(dstMagn), optional(dstPhase), length(srcRe.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16s> dstMagn, Out<Qvx16s> dstPhase, Value<int> magnScaleFactor, Value<int>
      phaseScaleFactor) {
    QVX_REQUIRE(countable(src.size()) && (dstMagn.empty() || dstMagn.size() == src.size()) && (dstPhase.empty() || dstPhase.size()
        == src.size()));
    return qvxsCartToPolar_16sc_Sfs(src.data(), optional(dstMagn), optional(dstPhase), length(src.size()), magnScaleFactor.number,
        phaseScaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status CartToPolar(Arguments&&... arguments) {
  if constexpr (requires { exports::CartToPolar::call(detail::view(arguments)...); }) {
    return exports::CartToPolar::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::CartToPolar: no such function for elements of these types in this order. There are CartToPolar_32fc "
        "CartToPolar_64fc CartToPolar_32f CartToPolar_64f CartToPolar_16sc_Sfs");
    return qvxStatBadArg;
  }
}

// dst[n] = srcMagn[n] * (cos(srcPhase[n]) + i sin(srcPhase[n])), phases in radians over the whole ... (qvxs_complex.h)
namespace exports {
struct PolarToCart {
  static Status call(In<Qvx32f> srcMagn, In<Qvx32f> srcPhase, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(srcMagn.size()) && srcPhase.size() == srcMagn.size() && dst.size() == srcMagn.size());
    return qvxsPolarToCart_32fc(srcMagn.data(), srcPhase.data(), dst.data(), length(srcMagn.size()));
  }
  static Status call(In<Qvx64f> srcMagn, In<Qvx64f> srcPhase, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(srcMagn.size()) && srcPhase.size() == srcMagn.size() && dst.size() == srcMagn.size());
    return qvxsPolarToCart_64fc(srcMagn.data(), srcPhase.data(), dst.data(), length(srcMagn.size()));
  }
  static Status call(In<Qvx32f> srcMagn, In<Qvx32f> srcPhase, Out<Qvx32f> dstRe, Out<Qvx32f> dstIm) {
    QVX_REQUIRE(countable(srcMagn.size()) && srcPhase.size() == srcMagn.size() && dstRe.size() == srcMagn.size() && dstIm.size()
        == srcMagn.size());
    return qvxsPolarToCart_32f(srcMagn.data(), srcPhase.data(), dstRe.data(), dstIm.data(), length(srcMagn.size()));
  }
  static Status call(In<Qvx64f> srcMagn, In<Qvx64f> srcPhase, Out<Qvx64f> dstRe, Out<Qvx64f> dstIm) {
    QVX_REQUIRE(countable(srcMagn.size()) && srcPhase.size() == srcMagn.size() && dstRe.size() == srcMagn.size() && dstIm.size()
        == srcMagn.size());
    return qvxsPolarToCart_64f(srcMagn.data(), srcPhase.data(), dstRe.data(), dstIm.data(), length(srcMagn.size()));
  }
  static Status call(In<Qvx16s> srcMagn, In<Qvx16s> srcPhase, Out<Qvx16sc> dst, Value<int> magnScaleFactor, Value<int>
      phaseScaleFactor) {
    QVX_REQUIRE(countable(srcMagn.size()) && srcPhase.size() == srcMagn.size() && dst.size() == srcMagn.size());
    return qvxsPolarToCart_16sc_Sfs(srcMagn.data(), srcPhase.data(), dst.data(), length(srcMagn.size()), magnScaleFactor.number,
        phaseScaleFactor.number);
  }
  static Status call(In<Qvx16s> srcMagn, In<Qvx16s> srcPhase, Value<int> phaseFixedPoint, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(srcMagn.size()) && srcPhase.size() == srcMagn.size() && dst.size() == srcMagn.size());
    return qvxsPolarToCart_16sc(srcMagn.data(), srcPhase.data(), phaseFixedPoint.number, dst.data(), length(srcMagn.size()));
  }
  static Status call(In<Qvx32s> srcMagn, In<Qvx32s> srcPhase, Value<int> phaseFixedPoint, Out<Qvx32sc> dst) {
    QVX_REQUIRE(countable(srcMagn.size()) && srcPhase.size() == srcMagn.size() && dst.size() == srcMagn.size());
    return qvxsPolarToCart_32sc(srcMagn.data(), srcPhase.data(), phaseFixedPoint.number, dst.data(), length(srcMagn.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status PolarToCart(Arguments&&... arguments) {
  if constexpr (requires { exports::PolarToCart::call(detail::view(arguments)...); }) {
    return exports::PolarToCart::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::PolarToCart: no such function for elements of these types in this order. There are PolarToCart_32fc "
        "PolarToCart_64fc PolarToCart_32f PolarToCart_64f PolarToCart_16sc_Sfs PolarToCart_16sc PolarToCart_32sc");
    return qvxStatBadArg;
  }
}

// dst[n] = the linear value of an A-law or mu-law code of ITU-T G.711, in steps of 16 bits: A-law ... (qvxs_compand.h)
namespace exports {
struct ALawToLin {
  static Status call(In<Qvx8u> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsALawToLin_8u16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx8u> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsALawToLin_8u32f(src.data(), dst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status ALawToLin(Arguments&&... arguments) {
  if constexpr (requires { exports::ALawToLin::call(detail::view(arguments)...); }) {
    return exports::ALawToLin::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::ALawToLin: no such function for elements of these types in this order. There are ALawToLin_8u16s ALawToLin_8u32f");
    return qvxStatBadArg;
  }
}

// dst[n] = the linear value of an A-law or mu-law code of ITU-T G.711, in steps of 16 bits: A-law ... (qvxs_compand.h)
namespace exports {
struct MuLawToLin {
  static Status call(In<Qvx8u> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMuLawToLin_8u16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx8u> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMuLawToLin_8u32f(src.data(), dst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MuLawToLin(Arguments&&... arguments) {
  if constexpr (requires { exports::MuLawToLin::call(detail::view(arguments)...); }) {
    return exports::MuLawToLin::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MuLawToLin: no such function for elements of these types in this order. There are MuLawToLin_8u16s "
        "MuLawToLin_8u32f");
    return qvxStatBadArg;
  }
}

// dst[n] = the code whose interval holds src[n]: A-law codes tell 13 bits apart, mu-law codes 14, ... (qvxs_compand.h)
namespace exports {
struct LinToALaw {
  static Status call(In<Qvx16s> src, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLinToALaw_16s8u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLinToALaw_32f8u(src.data(), dst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status LinToALaw(Arguments&&... arguments) {
  if constexpr (requires { exports::LinToALaw::call(detail::view(arguments)...); }) {
    return exports::LinToALaw::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::LinToALaw: no such function for elements of these types in this order. There are LinToALaw_16s8u LinToALaw_32f8u");
    return qvxStatBadArg;
  }
}

// dst[n] = the code whose interval holds src[n]: A-law codes tell 13 bits apart, mu-law codes 14, ... (qvxs_compand.h)
namespace exports {
struct LinToMuLaw {
  static Status call(In<Qvx16s> src, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLinToMuLaw_16s8u(src.data(), dst.data(), length(src.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsLinToMuLaw_32f8u(src.data(), dst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status LinToMuLaw(Arguments&&... arguments) {
  if constexpr (requires { exports::LinToMuLaw::call(detail::view(arguments)...); }) {
    return exports::LinToMuLaw::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::LinToMuLaw: no such function for elements of these types in this order. There are LinToMuLaw_16s8u "
        "LinToMuLaw_32f8u");
    return qvxStatBadArg;
  }
}

// dst[n] = the code of the other law, by the conversion tables 3 and 4 of G.711: there and back, ... (qvxs_compand.h)
namespace exports {
struct ALawToMuLaw {
  static Status call(In<Qvx8u> src, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsALawToMuLaw_8u(src.data(), dst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status ALawToMuLaw(Arguments&&... arguments) {
  if constexpr (requires { exports::ALawToMuLaw::call(detail::view(arguments)...); }) {
    return exports::ALawToMuLaw::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::ALawToMuLaw: no such function for elements of these types in this order. There are ALawToMuLaw_8u");
    return qvxStatBadArg;
  }
}

// dst[n] = the code of the other law, by the conversion tables 3 and 4 of G.711: there and back, ... (qvxs_compand.h)
namespace exports {
struct MuLawToALaw {
  static Status call(In<Qvx8u> src, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsMuLawToALaw_8u(src.data(), dst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MuLawToALaw(Arguments&&... arguments) {
  if constexpr (requires { exports::MuLawToALaw::call(detail::view(arguments)...); }) {
    return exports::MuLawToALaw::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MuLawToALaw: no such function for elements of these types in this order. There are MuLawToALaw_8u");
    return qvxStatBadArg;
  }
}

// Writes the low pSrcBitLen[n] bits of every pSrcBit[n] one after another, the highest bit first, ... (qvxs_compand.h)
namespace exports {
struct PackBits {
  static Status call(In<Qvx32u> srcBit, In<int> srcBitLen, Out<Qvx8u> dst, Value<int> dstBitOffset, int& dstLenBit) {
    QVX_REQUIRE(countable(srcBit.size()) && srcBitLen.size() == srcBit.size() && atLeast(dst.size(),
        quotient(int64_t(dstBitOffset.number) + totalBits(srcBitLen) + 7, 8)));
    return qvxsPackBits_32u8u(srcBit.data(), srcBitLen.data(), length(srcBit.size()), dst.data(), dstBitOffset.number,
        &dstLenBit);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status PackBits(Arguments&&... arguments) {
  if constexpr (requires { exports::PackBits::call(detail::view(arguments)...); }) {
    return exports::PackBits::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::PackBits: no such function for elements of these types in this order. There are PackBits_32u8u");
    return qvxStatBadArg;
  }
}

// pDst[frame * nChannels + channel] = pSrc[channel][frame], rounded to nearest even whatever the ... (qvxs_compand.h)
namespace exports {
struct Join {
  static Status call(In<const Qvx32f*> src, Value<int> chanLen, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), int64_t(chanLen.number) * int64_t(src.size())));
    return qvxsJoin_32f16s_D2L(src.data(), length(src.size()), chanLen.number, dst.data());
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Join(Arguments&&... arguments) {
  if constexpr (requires { exports::Join::call(detail::view(arguments)...); }) {
    return exports::Join::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Join: no such function for elements of these types in this order. There are Join_32f16s_D2L");
    return qvxStatBadArg;
  }
}

// pDst[frame * nChannels + channel] = pSrc[channel][frame], rounded to nearest even whatever the ... (qvxs_compand.h)
namespace exports {
struct JoinScaled {
  static Status call(In<const Qvx32f*> src, Value<int> chanLen, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), int64_t(chanLen.number) * int64_t(src.size())));
    return qvxsJoinScaled_32f16s_D2L(src.data(), length(src.size()), chanLen.number, dst.data());
  }
  static Status call(In<const Qvx32f*> src, Value<int> chanLen, Out<Int24> dst) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), int64_t(chanLen.number) * int64_t(src.size())));
    return qvxsJoinScaled_32f24s_D2L(src.data(), length(src.size()), chanLen.number, pointer(dst));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status JoinScaled(Arguments&&... arguments) {
  if constexpr (requires { exports::JoinScaled::call(detail::view(arguments)...); }) {
    return exports::JoinScaled::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::JoinScaled: no such function for elements of these types in this order. There are JoinScaled_32f16s_D2L "
        "JoinScaled_32f24s_D2L");
    return qvxStatBadArg;
  }
}

// pDst[channel][frame] = the full-scale value of pSrc[frame * nChannels + channel]: -1 for the ... (qvxs_compand.h)
namespace exports {
struct SplitScaled {
  static Status call(In<Qvx16s> src, In<Qvx32f*> dst, Value<int> chanLen) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(src.size(), int64_t(chanLen.number) * int64_t(dst.size())));
    return qvxsSplitScaled_16s32f_D2L(src.data(), dst.data(), length(dst.size()), chanLen.number);
  }
  static Status call(In<Int24> src, In<Qvx32f*> dst, Value<int> chanLen) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(src.size(), int64_t(chanLen.number) * int64_t(dst.size())));
    return qvxsSplitScaled_24s32f_D2L(pointer(src), dst.data(), length(dst.size()), chanLen.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SplitScaled(Arguments&&... arguments) {
  if constexpr (requires { exports::SplitScaled::call(detail::view(arguments)...); }) {
    return exports::SplitScaled::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SplitScaled: no such function for elements of these types in this order. There are SplitScaled_16s32f_D2L "
        "SplitScaled_24s32f_D2L");
    return qvxStatBadArg;
  }
}

// relOp 0: dst[n] = level where src[n] < level, else src[n]. relOp 4: dst[n] = level where src[n] ... (qvxs_threshold.h)
namespace exports {
struct Threshold {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<Qvx16s> level, Value<int> relOp) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_16s(src.data(), dst.data(), length(src.size()), level.number, relOp.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<Qvx16s> level, Value<int> relOp) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_16s_I(srcDst.data(), length(srcDst.size()), level.number, relOp.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<Qvx16s> level, Value<int> relOp) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_16sc(src.data(), dst.data(), length(src.size()), level.number, relOp.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<Qvx16s> level, Value<int> relOp) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_16sc_I(srcDst.data(), length(srcDst.size()), level.number, relOp.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> level, Value<int> relOp) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_32f(src.data(), dst.data(), length(src.size()), level.number, relOp.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> level, Value<int> relOp) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_32f_I(srcDst.data(), length(srcDst.size()), level.number, relOp.number);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, Value<Qvx32f> level, Value<int> relOp) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_32fc(src.data(), dst.data(), length(src.size()), level.number, relOp.number);
  }
  static Status call(Out<Qvx32fc> srcDst, Value<Qvx32f> level, Value<int> relOp) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_32fc_I(srcDst.data(), length(srcDst.size()), level.number, relOp.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx64f> level, Value<int> relOp) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_64f(src.data(), dst.data(), length(src.size()), level.number, relOp.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<Qvx64f> level, Value<int> relOp) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_64f_I(srcDst.data(), length(srcDst.size()), level.number, relOp.number);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, Value<Qvx64f> level, Value<int> relOp) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_64fc(src.data(), dst.data(), length(src.size()), level.number, relOp.number);
  }
  static Status call(Out<Qvx64fc> srcDst, Value<Qvx64f> level, Value<int> relOp) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_64fc_I(srcDst.data(), length(srcDst.size()), level.number, relOp.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Threshold(Arguments&&... arguments) {
  if constexpr (requires { exports::Threshold::call(detail::view(arguments)...); }) {
    return exports::Threshold::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Threshold: no such function for elements of these types in this order. There are Threshold_16s Threshold_16s_I "
        "Threshold_16sc Threshold_16sc_I Threshold_32f Threshold_32f_I Threshold_32fc Threshold_32fc_I Threshold_64f "
        "Threshold_64f_I Threshold_64fc Threshold_64fc_I");
    return qvxStatBadArg;
  }
}

// The same with relOp 0: what lies below level becomes level. A real level may be negative. (qvxs_threshold.h)
namespace exports {
struct Threshold_LT {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LT_16s(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LT_16s_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LT_16sc(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LT_16sc_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst, Value<Qvx32s> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LT_32s(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32s> srcDst, Value<Qvx32s> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LT_32s_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LT_32f(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LT_32f_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LT_32fc(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32fc> srcDst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LT_32fc_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LT_64f(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LT_64f_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LT_64fc(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx64fc> srcDst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LT_64fc_I(srcDst.data(), length(srcDst.size()), level.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Threshold_LT(Arguments&&... arguments) {
  if constexpr (requires { exports::Threshold_LT::call(detail::view(arguments)...); }) {
    return exports::Threshold_LT::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Threshold_LT: no such function for elements of these types in this order. There are Threshold_LT_16s "
        "Threshold_LT_16s_I Threshold_LT_16sc Threshold_LT_16sc_I Threshold_LT_32s Threshold_LT_32s_I Threshold_LT_32f "
        "Threshold_LT_32f_I Threshold_LT_32fc Threshold_LT_32fc_I Threshold_LT_64f Threshold_LT_64f_I Threshold_LT_64fc "
        "Threshold_LT_64fc_I");
    return qvxStatBadArg;
  }
}

// The same with relOp 4: what lies above level becomes level. (qvxs_threshold.h)
namespace exports {
struct Threshold_GT {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GT_16s(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GT_16s_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GT_16sc(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GT_16sc_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst, Value<Qvx32s> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GT_32s(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32s> srcDst, Value<Qvx32s> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GT_32s_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GT_32f(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GT_32f_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GT_32fc(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32fc> srcDst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GT_32fc_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GT_64f(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GT_64f_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GT_64fc(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx64fc> srcDst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GT_64fc_I(srcDst.data(), length(srcDst.size()), level.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Threshold_GT(Arguments&&... arguments) {
  if constexpr (requires { exports::Threshold_GT::call(detail::view(arguments)...); }) {
    return exports::Threshold_GT::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Threshold_GT: no such function for elements of these types in this order. There are Threshold_GT_16s "
        "Threshold_GT_16s_I Threshold_GT_16sc Threshold_GT_16sc_I Threshold_GT_32s Threshold_GT_32s_I Threshold_GT_32f "
        "Threshold_GT_32f_I Threshold_GT_32fc Threshold_GT_32fc_I Threshold_GT_64f Threshold_GT_64f_I Threshold_GT_64fc "
        "Threshold_GT_64fc_I");
    return qvxStatBadArg;
  }
}

// dst[n] = value where src[n], or the magnitude of a complex src[n], is below level, else src[n]. (qvxs_threshold.h)
namespace exports {
struct Threshold_LTVal {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<Qvx16s> level, Value<Qvx16s> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTVal_16s(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<Qvx16s> level, Value<Qvx16s> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTVal_16s_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<Qvx16s> level, Value<Qvx16sc> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTVal_16sc(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<Qvx16s> level, Value<Qvx16sc> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTVal_16sc_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> level, Value<Qvx32f> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTVal_32f(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> level, Value<Qvx32f> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTVal_32f_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, Value<Qvx32f> level, Value<Qvx32fc> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTVal_32fc(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx32fc> srcDst, Value<Qvx32f> level, Value<Qvx32fc> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTVal_32fc_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx64f> level, Value<Qvx64f> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTVal_64f(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<Qvx64f> level, Value<Qvx64f> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTVal_64f_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, Value<Qvx64f> level, Value<Qvx64fc> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTVal_64fc(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx64fc> srcDst, Value<Qvx64f> level, Value<Qvx64fc> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTVal_64fc_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Threshold_LTVal(Arguments&&... arguments) {
  if constexpr (requires { exports::Threshold_LTVal::call(detail::view(arguments)...); }) {
    return exports::Threshold_LTVal::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Threshold_LTVal: no such function for elements of these types in this order. There are Threshold_LTVal_16s "
        "Threshold_LTVal_16s_I Threshold_LTVal_16sc Threshold_LTVal_16sc_I Threshold_LTVal_32f Threshold_LTVal_32f_I "
        "Threshold_LTVal_32fc Threshold_LTVal_32fc_I Threshold_LTVal_64f Threshold_LTVal_64f_I Threshold_LTVal_64fc "
        "Threshold_LTVal_64fc_I");
    return qvxStatBadArg;
  }
}

// dst[n] = value where src[n], or the magnitude of a complex src[n], is above level, else src[n]. (qvxs_threshold.h)
namespace exports {
struct Threshold_GTVal {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<Qvx16s> level, Value<Qvx16s> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GTVal_16s(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<Qvx16s> level, Value<Qvx16s> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GTVal_16s_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<Qvx16s> level, Value<Qvx16sc> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GTVal_16sc(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<Qvx16s> level, Value<Qvx16sc> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GTVal_16sc_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> level, Value<Qvx32f> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GTVal_32f(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> level, Value<Qvx32f> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GTVal_32f_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, Value<Qvx32f> level, Value<Qvx32fc> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GTVal_32fc(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx32fc> srcDst, Value<Qvx32f> level, Value<Qvx32fc> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GTVal_32fc_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx64f> level, Value<Qvx64f> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GTVal_64f(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<Qvx64f> level, Value<Qvx64f> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GTVal_64f_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, Value<Qvx64f> level, Value<Qvx64fc> value) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GTVal_64fc(src.data(), dst.data(), length(src.size()), level.number, value.number);
  }
  static Status call(Out<Qvx64fc> srcDst, Value<Qvx64f> level, Value<Qvx64fc> value) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GTVal_64fc_I(srcDst.data(), length(srcDst.size()), level.number, value.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Threshold_GTVal(Arguments&&... arguments) {
  if constexpr (requires { exports::Threshold_GTVal::call(detail::view(arguments)...); }) {
    return exports::Threshold_GTVal::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Threshold_GTVal: no such function for elements of these types in this order. There are Threshold_GTVal_16s "
        "Threshold_GTVal_16s_I Threshold_GTVal_16sc Threshold_GTVal_16sc_I Threshold_GTVal_32f Threshold_GTVal_32f_I "
        "Threshold_GTVal_32fc Threshold_GTVal_32fc_I Threshold_GTVal_64f Threshold_GTVal_64f_I Threshold_GTVal_64fc "
        "Threshold_GTVal_64fc_I");
    return qvxStatBadArg;
  }
}

// dst[n] = valueLT where src[n] < levelLT, valueGT where src[n] > levelGT, else src[n]. (qvxs_threshold.h)
namespace exports {
struct Threshold_LTValGTVal {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<Qvx16s> levelLT, Value<Qvx16s> valueLT, Value<Qvx16s> levelGT,
      Value<Qvx16s> valueGT) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTValGTVal_16s(src.data(), dst.data(), length(src.size()), levelLT.number, valueLT.number,
        levelGT.number, valueGT.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<Qvx16s> levelLT, Value<Qvx16s> valueLT, Value<Qvx16s> levelGT, Value<Qvx16s>
      valueGT) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTValGTVal_16s_I(srcDst.data(), length(srcDst.size()), levelLT.number, valueLT.number, levelGT.number,
        valueGT.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst, Value<Qvx32s> levelLT, Value<Qvx32s> valueLT, Value<Qvx32s> levelGT,
      Value<Qvx32s> valueGT) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTValGTVal_32s(src.data(), dst.data(), length(src.size()), levelLT.number, valueLT.number,
        levelGT.number, valueGT.number);
  }
  static Status call(Out<Qvx32s> srcDst, Value<Qvx32s> levelLT, Value<Qvx32s> valueLT, Value<Qvx32s> levelGT, Value<Qvx32s>
      valueGT) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTValGTVal_32s_I(srcDst.data(), length(srcDst.size()), levelLT.number, valueLT.number, levelGT.number,
        valueGT.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> levelLT, Value<Qvx32f> valueLT, Value<Qvx32f> levelGT,
      Value<Qvx32f> valueGT) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTValGTVal_32f(src.data(), dst.data(), length(src.size()), levelLT.number, valueLT.number,
        levelGT.number, valueGT.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> levelLT, Value<Qvx32f> valueLT, Value<Qvx32f> levelGT, Value<Qvx32f>
      valueGT) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTValGTVal_32f_I(srcDst.data(), length(srcDst.size()), levelLT.number, valueLT.number, levelGT.number,
        valueGT.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx64f> levelLT, Value<Qvx64f> valueLT, Value<Qvx64f> levelGT,
      Value<Qvx64f> valueGT) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTValGTVal_64f(src.data(), dst.data(), length(src.size()), levelLT.number, valueLT.number,
        levelGT.number, valueGT.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<Qvx64f> levelLT, Value<Qvx64f> valueLT, Value<Qvx64f> levelGT, Value<Qvx64f>
      valueGT) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTValGTVal_64f_I(srcDst.data(), length(srcDst.size()), levelLT.number, valueLT.number, levelGT.number,
        valueGT.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Threshold_LTValGTVal(Arguments&&... arguments) {
  if constexpr (requires { exports::Threshold_LTValGTVal::call(detail::view(arguments)...); }) {
    return exports::Threshold_LTValGTVal::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Threshold_LTValGTVal: no such function for elements of these types in this order. There are "
        "Threshold_LTValGTVal_16s Threshold_LTValGTVal_16s_I Threshold_LTValGTVal_32s Threshold_LTValGTVal_32s_I "
        "Threshold_LTValGTVal_32f Threshold_LTValGTVal_32f_I Threshold_LTValGTVal_64f Threshold_LTValGTVal_64f_I");
    return qvxStatBadArg;
  }
}

// dst[n] = level with the sign of src[n] where |src[n]| < level, else src[n]. -0 is negative, an ... (qvxs_threshold.h)
namespace exports {
struct Threshold_LTAbs {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTAbs_16s(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTAbs_16s_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst, Value<Qvx32s> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTAbs_32s(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32s> srcDst, Value<Qvx32s> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTAbs_32s_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTAbs_32f(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTAbs_32f_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTAbs_64f(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTAbs_64f_I(srcDst.data(), length(srcDst.size()), level.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Threshold_LTAbs(Arguments&&... arguments) {
  if constexpr (requires { exports::Threshold_LTAbs::call(detail::view(arguments)...); }) {
    return exports::Threshold_LTAbs::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Threshold_LTAbs: no such function for elements of these types in this order. There are Threshold_LTAbs_16s "
        "Threshold_LTAbs_16s_I Threshold_LTAbs_32s Threshold_LTAbs_32s_I Threshold_LTAbs_32f Threshold_LTAbs_32f_I "
        "Threshold_LTAbs_64f Threshold_LTAbs_64f_I");
    return qvxStatBadArg;
  }
}

// dst[n] = level with the sign of src[n] where |src[n]| > level, else src[n]. (qvxs_threshold.h)
namespace exports {
struct Threshold_GTAbs {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GTAbs_16s(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<Qvx16s> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GTAbs_16s_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst, Value<Qvx32s> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GTAbs_32s(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32s> srcDst, Value<Qvx32s> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GTAbs_32s_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GTAbs_32f(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GTAbs_32f_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_GTAbs_64f(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_GTAbs_64f_I(srcDst.data(), length(srcDst.size()), level.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Threshold_GTAbs(Arguments&&... arguments) {
  if constexpr (requires { exports::Threshold_GTAbs::call(detail::view(arguments)...); }) {
    return exports::Threshold_GTAbs::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Threshold_GTAbs: no such function for elements of these types in this order. There are Threshold_GTAbs_16s "
        "Threshold_GTAbs_16s_I Threshold_GTAbs_32s Threshold_GTAbs_32s_I Threshold_GTAbs_32f Threshold_GTAbs_32f_I "
        "Threshold_GTAbs_64f Threshold_GTAbs_64f_I");
    return qvxStatBadArg;
  }
}

// dst[n] = 1 / src[n], where the magnitude of src[n] is raised to level first, its sign or phase kept. (qvxs_threshold.h)
namespace exports {
struct Threshold_LTInv {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTInv_32f(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTInv_32f_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTInv_32fc(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx32fc> srcDst, Value<Qvx32f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTInv_32fc_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTInv_64f(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTInv_64f_I(srcDst.data(), length(srcDst.size()), level.number);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsThreshold_LTInv_64fc(src.data(), dst.data(), length(src.size()), level.number);
  }
  static Status call(Out<Qvx64fc> srcDst, Value<Qvx64f> level) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsThreshold_LTInv_64fc_I(srcDst.data(), length(srcDst.size()), level.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Threshold_LTInv(Arguments&&... arguments) {
  if constexpr (requires { exports::Threshold_LTInv::call(detail::view(arguments)...); }) {
    return exports::Threshold_LTInv::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Threshold_LTInv: no such function for elements of these types in this order. There are Threshold_LTInv_32f "
        "Threshold_LTInv_32f_I Threshold_LTInv_32fc Threshold_LTInv_32fc_I Threshold_LTInv_64f Threshold_LTInv_64f_I "
        "Threshold_LTInv_64fc Threshold_LTInv_64fc_I");
    return qvxStatBadArg;
  }
}

// *pSum = src[0] + ... + src[len - 1]. (qvxs_stats.h)
namespace exports {
struct Sum {
  static Status call(In<Qvx32f> src, Qvx32f& sum, Value<int> hint = 0) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSum_32f(src.data(), length(src.size()), &sum, hint.number);
  }
  static Status call(In<Qvx32fc> src, Qvx32fc& sum, Value<int> hint = 0) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSum_32fc(src.data(), length(src.size()), &sum, hint.number);
  }
  static Status call(In<Qvx64f> src, Qvx64f& sum) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSum_64f(src.data(), length(src.size()), &sum);
  }
  static Status call(In<Qvx64fc> src, Qvx64fc& sum) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSum_64fc(src.data(), length(src.size()), &sum);
  }
  static Status call(In<Qvx16s> src, Qvx16s& sum, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSum_16s_Sfs(src.data(), length(src.size()), &sum, scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Qvx16sc& sum, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSum_16sc_Sfs(src.data(), length(src.size()), &sum, scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Qvx32s& sum, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSum_16s32s_Sfs(src.data(), length(src.size()), &sum, scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Qvx32sc& sum, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSum_16sc32sc_Sfs(src.data(), length(src.size()), &sum, scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Qvx32s& sum, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsSum_32s_Sfs(src.data(), length(src.size()), &sum, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Sum(Arguments&&... arguments) {
  if constexpr (requires { exports::Sum::call(detail::view(arguments)...); }) {
    return exports::Sum::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Sum: no such function for elements of these types in this order. There are Sum_32f Sum_32fc Sum_64f Sum_64fc "
        "Sum_16s_Sfs Sum_16sc_Sfs Sum_16s32s_Sfs Sum_16sc32sc_Sfs Sum_32s_Sfs");
    return qvxStatBadArg;
  }
}

// *pMean = the sum of the elements, as qvxsSum adds them, divided by len. (qvxs_stats.h)
namespace exports {
struct Mean {
  static Status call(In<Qvx32f> src, Qvx32f& mean, Value<int> hint = 0) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMean_32f(src.data(), length(src.size()), &mean, hint.number);
  }
  static Status call(In<Qvx32fc> src, Qvx32fc& mean, Value<int> hint = 0) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMean_32fc(src.data(), length(src.size()), &mean, hint.number);
  }
  static Status call(In<Qvx64f> src, Qvx64f& mean) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMean_64f(src.data(), length(src.size()), &mean);
  }
  static Status call(In<Qvx64fc> src, Qvx64fc& mean) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMean_64fc(src.data(), length(src.size()), &mean);
  }
  static Status call(In<Qvx16s> src, Qvx16s& mean, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMean_16s_Sfs(src.data(), length(src.size()), &mean, scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Qvx16sc& mean, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMean_16sc_Sfs(src.data(), length(src.size()), &mean, scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Qvx32s& mean, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMean_32s_Sfs(src.data(), length(src.size()), &mean, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Mean(Arguments&&... arguments) {
  if constexpr (requires { exports::Mean::call(detail::view(arguments)...); }) {
    return exports::Mean::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Mean: no such function for elements of these types in this order. There are Mean_32f Mean_32fc Mean_64f Mean_64fc"
        " Mean_16s_Sfs Mean_16sc_Sfs Mean_32s_Sfs");
    return qvxStatBadArg;
  }
}

// *pStdDev = the sample standard deviation sqrt((Q * len - S * S) / (len * (len - 1))), S the sum ... (qvxs_stats.h)
namespace exports {
struct StdDev {
  static Status call(In<Qvx32f> src, Qvx32f& stdDev, Value<int> hint = 0) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsStdDev_32f(src.data(), length(src.size()), &stdDev, hint.number);
  }
  static Status call(In<Qvx64f> src, Qvx64f& stdDev) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsStdDev_64f(src.data(), length(src.size()), &stdDev);
  }
  static Status call(In<Qvx16s> src, Qvx16s& stdDev, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsStdDev_16s_Sfs(src.data(), length(src.size()), &stdDev, scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Qvx32s& stdDev, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsStdDev_16s32s_Sfs(src.data(), length(src.size()), &stdDev, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status StdDev(Arguments&&... arguments) {
  if constexpr (requires { exports::StdDev::call(detail::view(arguments)...); }) {
    return exports::StdDev::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::StdDev: no such function for elements of these types in this order. There are StdDev_32f StdDev_64f "
        "StdDev_16s_Sfs StdDev_16s32s_Sfs");
    return qvxStatBadArg;
  }
}

// *pStdDev = the sample standard deviation sqrt((Q * len - S * S) / (len * (len - 1))), S the sum ... (qvxs_stats.h)
namespace exports {
struct MeanStdDev {
  static Status call(In<Qvx32f> src, Qvx32f& mean, Qvx32f& stdDev, Value<int> hint = 0) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMeanStdDev_32f(src.data(), length(src.size()), &mean, &stdDev, hint.number);
  }
  static Status call(In<Qvx64f> src, Qvx64f& mean, Qvx64f& stdDev) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMeanStdDev_64f(src.data(), length(src.size()), &mean, &stdDev);
  }
  static Status call(In<Qvx16s> src, Qvx16s& mean, Qvx16s& stdDev, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMeanStdDev_16s_Sfs(src.data(), length(src.size()), &mean, &stdDev, scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Qvx32s& mean, Qvx32s& stdDev, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMeanStdDev_16s32s_Sfs(src.data(), length(src.size()), &mean, &stdDev, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MeanStdDev(Arguments&&... arguments) {
  if constexpr (requires { exports::MeanStdDev::call(detail::view(arguments)...); }) {
    return exports::MeanStdDev::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MeanStdDev: no such function for elements of these types in this order. There are MeanStdDev_32f MeanStdDev_64f "
        "MeanStdDev_16s_Sfs MeanStdDev_16s32s_Sfs");
    return qvxStatBadArg;
  }
}

// *pMax = the greatest element; *pMin = the least. (qvxs_stats.h)
namespace exports {
struct Max {
  static Status call(In<Qvx16s> src, Qvx16s& max) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMax_16s(src.data(), length(src.size()), &max);
  }
  static Status call(In<Qvx32s> src, Qvx32s& max) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMax_32s(src.data(), length(src.size()), &max);
  }
  static Status call(In<Qvx32f> src, Qvx32f& max) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMax_32f(src.data(), length(src.size()), &max);
  }
  static Status call(In<Qvx64f> src, Qvx64f& max) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMax_64f(src.data(), length(src.size()), &max);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Max(Arguments&&... arguments) {
  if constexpr (requires { exports::Max::call(detail::view(arguments)...); }) {
    return exports::Max::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Max: no such function for elements of these types in this order. There are Max_16s Max_32s Max_32f Max_64f");
    return qvxStatBadArg;
  }
}

// *pMax = the greatest element; *pMin = the least. (qvxs_stats.h)
namespace exports {
struct Min {
  static Status call(In<Qvx16s> src, Qvx16s& min) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMin_16s(src.data(), length(src.size()), &min);
  }
  static Status call(In<Qvx32s> src, Qvx32s& min) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMin_32s(src.data(), length(src.size()), &min);
  }
  static Status call(In<Qvx32f> src, Qvx32f& min) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMin_32f(src.data(), length(src.size()), &min);
  }
  static Status call(In<Qvx64f> src, Qvx64f& min) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMin_64f(src.data(), length(src.size()), &min);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Min(Arguments&&... arguments) {
  if constexpr (requires { exports::Min::call(detail::view(arguments)...); }) {
    return exports::Min::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Min: no such function for elements of these types in this order. There are Min_16s Min_32s Min_32f Min_64f");
    return qvxStatBadArg;
  }
}

// As qvxsMax and qvxsMin, and *pIndx = the index of the first such element: 0 for a NaN, which is ... (qvxs_stats.h)
namespace exports {
struct MaxIndx {
  static Status call(In<Qvx16s> src, Qvx16s& max, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxIndx_16s(src.data(), length(src.size()), &max, &indx);
  }
  static Status call(In<Qvx32s> src, Qvx32s& max, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxIndx_32s(src.data(), length(src.size()), &max, &indx);
  }
  static Status call(In<Qvx32f> src, Qvx32f& max, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxIndx_32f(src.data(), length(src.size()), &max, &indx);
  }
  static Status call(In<Qvx64f> src, Qvx64f& max, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxIndx_64f(src.data(), length(src.size()), &max, &indx);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MaxIndx(Arguments&&... arguments) {
  if constexpr (requires { exports::MaxIndx::call(detail::view(arguments)...); }) {
    return exports::MaxIndx::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MaxIndx: no such function for elements of these types in this order. There are MaxIndx_16s MaxIndx_32s "
        "MaxIndx_32f MaxIndx_64f");
    return qvxStatBadArg;
  }
}

// As qvxsMax and qvxsMin, and *pIndx = the index of the first such element: 0 for a NaN, which is ... (qvxs_stats.h)
namespace exports {
struct MinIndx {
  static Status call(In<Qvx16s> src, Qvx16s& min, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinIndx_16s(src.data(), length(src.size()), &min, &indx);
  }
  static Status call(In<Qvx32s> src, Qvx32s& min, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinIndx_32s(src.data(), length(src.size()), &min, &indx);
  }
  static Status call(In<Qvx32f> src, Qvx32f& min, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinIndx_32f(src.data(), length(src.size()), &min, &indx);
  }
  static Status call(In<Qvx64f> src, Qvx64f& min, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinIndx_64f(src.data(), length(src.size()), &min, &indx);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MinIndx(Arguments&&... arguments) {
  if constexpr (requires { exports::MinIndx::call(detail::view(arguments)...); }) {
    return exports::MinIndx::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MinIndx: no such function for elements of these types in this order. There are MinIndx_16s MinIndx_32s "
        "MinIndx_32f MinIndx_64f");
    return qvxStatBadArg;
  }
}

// *pMin = the least element and *pMax = the greatest, in one pass; otherwise as qvxsMax. (qvxs_stats.h)
namespace exports {
struct MinMax {
  static Status call(In<Qvx8u> src, Qvx8u& min, Qvx8u& max) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMax_8u(src.data(), length(src.size()), &min, &max);
  }
  static Status call(In<Qvx16u> src, Qvx16u& min, Qvx16u& max) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMax_16u(src.data(), length(src.size()), &min, &max);
  }
  static Status call(In<Qvx16s> src, Qvx16s& min, Qvx16s& max) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMax_16s(src.data(), length(src.size()), &min, &max);
  }
  static Status call(In<Qvx32u> src, Qvx32u& min, Qvx32u& max) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMax_32u(src.data(), length(src.size()), &min, &max);
  }
  static Status call(In<Qvx32s> src, Qvx32s& min, Qvx32s& max) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMax_32s(src.data(), length(src.size()), &min, &max);
  }
  static Status call(In<Qvx32f> src, Qvx32f& min, Qvx32f& max) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMax_32f(src.data(), length(src.size()), &min, &max);
  }
  static Status call(In<Qvx64f> src, Qvx64f& min, Qvx64f& max) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMax_64f(src.data(), length(src.size()), &min, &max);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MinMax(Arguments&&... arguments) {
  if constexpr (requires { exports::MinMax::call(detail::view(arguments)...); }) {
    return exports::MinMax::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MinMax: no such function for elements of these types in this order. There are MinMax_8u MinMax_16u MinMax_16s "
        "MinMax_32u MinMax_32s MinMax_32f MinMax_64f");
    return qvxStatBadArg;
  }
}

// As qvxsMinMax, and *pMinIndx, *pMaxIndx = the indices of the first such elements: 0 for a NaN. ... (qvxs_stats.h)
namespace exports {
struct MinMaxIndx {
  static Status call(In<Qvx8u> src, Qvx8u& min, int& minIndx, Qvx8u& max, int& maxIndx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMaxIndx_8u(src.data(), length(src.size()), &min, &minIndx, &max, &maxIndx);
  }
  static Status call(In<Qvx16u> src, Qvx16u& min, int& minIndx, Qvx16u& max, int& maxIndx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMaxIndx_16u(src.data(), length(src.size()), &min, &minIndx, &max, &maxIndx);
  }
  static Status call(In<Qvx16s> src, Qvx16s& min, int& minIndx, Qvx16s& max, int& maxIndx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMaxIndx_16s(src.data(), length(src.size()), &min, &minIndx, &max, &maxIndx);
  }
  static Status call(In<Qvx32u> src, Qvx32u& min, int& minIndx, Qvx32u& max, int& maxIndx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMaxIndx_32u(src.data(), length(src.size()), &min, &minIndx, &max, &maxIndx);
  }
  static Status call(In<Qvx32s> src, Qvx32s& min, int& minIndx, Qvx32s& max, int& maxIndx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMaxIndx_32s(src.data(), length(src.size()), &min, &minIndx, &max, &maxIndx);
  }
  static Status call(In<Qvx32f> src, Qvx32f& min, int& minIndx, Qvx32f& max, int& maxIndx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMaxIndx_32f(src.data(), length(src.size()), &min, &minIndx, &max, &maxIndx);
  }
  static Status call(In<Qvx64f> src, Qvx64f& min, int& minIndx, Qvx64f& max, int& maxIndx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinMaxIndx_64f(src.data(), length(src.size()), &min, &minIndx, &max, &maxIndx);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MinMaxIndx(Arguments&&... arguments) {
  if constexpr (requires { exports::MinMaxIndx::call(detail::view(arguments)...); }) {
    return exports::MinMaxIndx::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MinMaxIndx: no such function for elements of these types in this order. There are MinMaxIndx_8u MinMaxIndx_16u "
        "MinMaxIndx_16s MinMaxIndx_32u MinMaxIndx_32s MinMaxIndx_32f MinMaxIndx_64f");
    return qvxStatBadArg;
  }
}

// *pMaxAbs = the greatest magnitude, *pMinAbs = the least, saturated: the most negative integer ... (qvxs_stats.h)
namespace exports {
struct MaxAbs {
  static Status call(In<Qvx16s> src, Qvx16s& maxAbs) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxAbs_16s(src.data(), length(src.size()), &maxAbs);
  }
  static Status call(In<Qvx32s> src, Qvx32s& maxAbs) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxAbs_32s(src.data(), length(src.size()), &maxAbs);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MaxAbs(Arguments&&... arguments) {
  if constexpr (requires { exports::MaxAbs::call(detail::view(arguments)...); }) {
    return exports::MaxAbs::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MaxAbs: no such function for elements of these types in this order. There are MaxAbs_16s MaxAbs_32s");
    return qvxStatBadArg;
  }
}

// *pMaxAbs = the greatest magnitude, *pMinAbs = the least, saturated: the most negative integer ... (qvxs_stats.h)
namespace exports {
struct MinAbs {
  static Status call(In<Qvx16s> src, Qvx16s& minAbs) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinAbs_16s(src.data(), length(src.size()), &minAbs);
  }
  static Status call(In<Qvx32s> src, Qvx32s& minAbs) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinAbs_32s(src.data(), length(src.size()), &minAbs);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MinAbs(Arguments&&... arguments) {
  if constexpr (requires { exports::MinAbs::call(detail::view(arguments)...); }) {
    return exports::MinAbs::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MinAbs: no such function for elements of these types in this order. There are MinAbs_16s MinAbs_32s");
    return qvxStatBadArg;
  }
}

// As qvxsMaxAbs and qvxsMinAbs, and *pIndx = the index of the first element with this saturated ... (qvxs_stats.h)
namespace exports {
struct MaxAbsIndx {
  static Status call(In<Qvx16s> src, Qvx16s& maxAbs, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxAbsIndx_16s(src.data(), length(src.size()), &maxAbs, &indx);
  }
  static Status call(In<Qvx32s> src, Qvx32s& maxAbs, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxAbsIndx_32s(src.data(), length(src.size()), &maxAbs, &indx);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MaxAbsIndx(Arguments&&... arguments) {
  if constexpr (requires { exports::MaxAbsIndx::call(detail::view(arguments)...); }) {
    return exports::MaxAbsIndx::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MaxAbsIndx: no such function for elements of these types in this order. There are MaxAbsIndx_16s MaxAbsIndx_32s");
    return qvxStatBadArg;
  }
}

// As qvxsMaxAbs and qvxsMinAbs, and *pIndx = the index of the first element with this saturated ... (qvxs_stats.h)
namespace exports {
struct MinAbsIndx {
  static Status call(In<Qvx16s> src, Qvx16s& minAbs, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinAbsIndx_16s(src.data(), length(src.size()), &minAbs, &indx);
  }
  static Status call(In<Qvx32s> src, Qvx32s& minAbs, int& indx) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMinAbsIndx_32s(src.data(), length(src.size()), &minAbs, &indx);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MinAbsIndx(Arguments&&... arguments) {
  if constexpr (requires { exports::MinAbsIndx::call(detail::view(arguments)...); }) {
    return exports::MinAbsIndx::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MinAbsIndx: no such function for elements of these types in this order. There are MinAbsIndx_16s MinAbsIndx_32s");
    return qvxStatBadArg;
  }
}

// dst[n] = src1[n] if that is greater than src2[n], else src2[n]; qvxsMinEvery: if it is less. In ... (qvxs_stats.h)
namespace exports {
struct MaxEvery {
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMaxEvery_8u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16u> src1, In<Qvx16u> src2, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMaxEvery_16u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMaxEvery_32f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMaxEvery_64f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMaxEvery_8u_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMaxEvery_16u_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMaxEvery_16s_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMaxEvery_32s_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMaxEvery_32f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMaxEvery_64f_I(src.data(), srcDst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MaxEvery(Arguments&&... arguments) {
  if constexpr (requires { exports::MaxEvery::call(detail::view(arguments)...); }) {
    return exports::MaxEvery::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MaxEvery: no such function for elements of these types in this order. There are MaxEvery_8u MaxEvery_16u "
        "MaxEvery_32f MaxEvery_64f MaxEvery_8u_I MaxEvery_16u_I MaxEvery_16s_I MaxEvery_32s_I MaxEvery_32f_I MaxEvery_64f_I");
    return qvxStatBadArg;
  }
}

// dst[n] = src1[n] if that is greater than src2[n], else src2[n]; qvxsMinEvery: if it is less. In ... (qvxs_stats.h)
namespace exports {
struct MinEvery {
  static Status call(In<Qvx8u> src1, In<Qvx8u> src2, Out<Qvx8u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMinEvery_8u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx16u> src1, In<Qvx16u> src2, Out<Qvx16u> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMinEvery_16u(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMinEvery_32f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMinEvery_64f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMinEvery_8u_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16u> src, Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMinEvery_16u_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMinEvery_16s_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMinEvery_32s_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMinEvery_32f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMinEvery_64f_I(src.data(), srcDst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MinEvery(Arguments&&... arguments) {
  if constexpr (requires { exports::MinEvery::call(detail::view(arguments)...); }) {
    return exports::MinEvery::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MinEvery: no such function for elements of these types in this order. There are MinEvery_8u MinEvery_16u "
        "MinEvery_32f MinEvery_64f MinEvery_8u_I MinEvery_16u_I MinEvery_16s_I MinEvery_32s_I MinEvery_32f_I MinEvery_64f_I");
    return qvxStatBadArg;
  }
}

// *pOrder = the number of binary digits that the largest magnitude takes before its point. (qvxs_stats.h)
namespace exports {
struct MaxOrder {
  static Status call(In<Qvx16s> src, int& order) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxOrder_16s(src.data(), length(src.size()), &order);
  }
  static Status call(In<Qvx32s> src, int& order) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxOrder_32s(src.data(), length(src.size()), &order);
  }
  static Status call(In<Qvx32f> src, int& order) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxOrder_32f(src.data(), length(src.size()), &order);
  }
  static Status call(In<Qvx64f> src, int& order) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsMaxOrder_64f(src.data(), length(src.size()), &order);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MaxOrder(Arguments&&... arguments) {
  if constexpr (requires { exports::MaxOrder::call(detail::view(arguments)...); }) {
    return exports::MaxOrder::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MaxOrder: no such function for elements of these types in this order. There are MaxOrder_16s MaxOrder_32s "
        "MaxOrder_32f MaxOrder_64f");
    return qvxStatBadArg;
  }
}

// *pCounts = how many elements are greater than lowerBound and less than upperBound; 0 where the ... (qvxs_stats.h)
namespace exports {
struct CountInRange {
  static Status call(In<Qvx32s> src, int& counts, Value<Qvx32s> lowerBound, Value<Qvx32s> upperBound) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsCountInRange_32s(src.data(), length(src.size()), &counts, lowerBound.number, upperBound.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status CountInRange(Arguments&&... arguments) {
  if constexpr (requires { exports::CountInRange::call(detail::view(arguments)...); }) {
    return exports::CountInRange::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::CountInRange: no such function for elements of these types in this order. There are CountInRange_32s");
    return qvxStatBadArg;
  }
}

// outVals[n] = the entry of the table that is nearest to vals[n], outIndx[n] = its index. Between ... (qvxs_stats.h)
namespace exports {
struct FindNearest {
  static Status call(In<Qvx16u> vals, Out<Qvx16u> outVals, Out<int> outIndx, In<Qvx16u> table) {
    QVX_REQUIRE(countable(vals.size()) && countable(table.size()) && outVals.size() == vals.size() && outIndx.size() ==
        vals.size());
    return qvxsFindNearest_16u(vals.data(), outVals.data(), outIndx.data(), length(vals.size()), table.data(),
        length(table.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FindNearest(Arguments&&... arguments) {
  if constexpr (requires { exports::FindNearest::call(detail::view(arguments)...); }) {
    return exports::FindNearest::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FindNearest: no such function for elements of these types in this order. There are FindNearest_16u");
    return qvxStatBadArg;
  }
}

// The same for one value: *pOutVal and *pOutIndx. (qvxs_stats.h)
namespace exports {
struct FindNearestOne {
  static Status call(Value<Qvx16u> inpVal, Qvx16u& outVal, int& outIndx, In<Qvx16u> table) {
    QVX_REQUIRE(countable(table.size()));
    return qvxsFindNearestOne_16u(inpVal.number, &outVal, &outIndx, table.data(), length(table.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FindNearestOne(Arguments&&... arguments) {
  if constexpr (requires { exports::FindNearestOne::call(detail::view(arguments)...); }) {
    return exports::FindNearestOne::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FindNearestOne: no such function for elements of these types in this order. There are FindNearestOne_16u");
    return qvxStatBadArg;
  }
}

// *pNorm = the norm of src: qvxsNorm_Inf the largest magnitude, qvxsNorm_L1 the sum of the ... (qvxs_norm.h)
namespace exports {
struct Norm_Inf {
  static Status call(In<Qvx32f> src, Qvx32f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_Inf_32f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx64f> src, Qvx64f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_Inf_64f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx16s> src, Qvx32f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_Inf_16s32f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx16s> src, Qvx32s& norm, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_Inf_16s32s_Sfs(src.data(), length(src.size()), &norm, scaleFactor.number);
  }
  static Status call(In<Qvx32fc> src, Qvx32f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_Inf_32fc32f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx64fc> src, Qvx64f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_Inf_64fc64f(src.data(), length(src.size()), &norm);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Norm_Inf(Arguments&&... arguments) {
  if constexpr (requires { exports::Norm_Inf::call(detail::view(arguments)...); }) {
    return exports::Norm_Inf::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Norm_Inf: no such function for elements of these types in this order. There are Norm_Inf_32f Norm_Inf_64f "
        "Norm_Inf_16s32f Norm_Inf_16s32s_Sfs Norm_Inf_32fc32f Norm_Inf_64fc64f");
    return qvxStatBadArg;
  }
}

// *pNorm = the norm of src: qvxsNorm_Inf the largest magnitude, qvxsNorm_L1 the sum of the ... (qvxs_norm.h)
namespace exports {
struct Norm_L1 {
  static Status call(In<Qvx32f> src, Qvx32f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L1_32f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx64f> src, Qvx64f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L1_64f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx16s> src, Qvx32f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L1_16s32f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx16s> src, Qvx32s& norm, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L1_16s32s_Sfs(src.data(), length(src.size()), &norm, scaleFactor.number);
  }
  static Status call(In<Qvx64fc> src, Qvx64f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L1_64fc64f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx32fc> src, Qvx64f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L1_32fc64f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx16s> src, Qvx64s& norm, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L1_16s64s_Sfs(src.data(), length(src.size()), &norm, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Norm_L1(Arguments&&... arguments) {
  if constexpr (requires { exports::Norm_L1::call(detail::view(arguments)...); }) {
    return exports::Norm_L1::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Norm_L1: no such function for elements of these types in this order. There are Norm_L1_32f Norm_L1_64f "
        "Norm_L1_16s32f Norm_L1_16s32s_Sfs Norm_L1_64fc64f Norm_L1_32fc64f Norm_L1_16s64s_Sfs");
    return qvxStatBadArg;
  }
}

// *pNorm = the norm of src: qvxsNorm_Inf the largest magnitude, qvxsNorm_L1 the sum of the ... (qvxs_norm.h)
namespace exports {
struct Norm_L2 {
  static Status call(In<Qvx32f> src, Qvx32f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L2_32f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx64f> src, Qvx64f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L2_64f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx16s> src, Qvx32f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L2_16s32f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx16s> src, Qvx32s& norm, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L2_16s32s_Sfs(src.data(), length(src.size()), &norm, scaleFactor.number);
  }
  static Status call(In<Qvx64fc> src, Qvx64f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L2_64fc64f(src.data(), length(src.size()), &norm);
  }
  static Status call(In<Qvx32fc> src, Qvx64f& norm) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L2_32fc64f(src.data(), length(src.size()), &norm);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Norm_L2(Arguments&&... arguments) {
  if constexpr (requires { exports::Norm_L2::call(detail::view(arguments)...); }) {
    return exports::Norm_L2::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Norm_L2: no such function for elements of these types in this order. There are Norm_L2_32f Norm_L2_64f "
        "Norm_L2_16s32f Norm_L2_16s32s_Sfs Norm_L2_64fc64f Norm_L2_32fc64f");
    return qvxStatBadArg;
  }
}

// *pNorm = the norm of src: qvxsNorm_Inf the largest magnitude, qvxsNorm_L1 the sum of the ... (qvxs_norm.h)
namespace exports {
struct Norm_L2Sqr {
  static Status call(In<Qvx16s> src, Qvx64s& norm, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsNorm_L2Sqr_16s64s_Sfs(src.data(), length(src.size()), &norm, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Norm_L2Sqr(Arguments&&... arguments) {
  if constexpr (requires { exports::Norm_L2Sqr::call(detail::view(arguments)...); }) {
    return exports::Norm_L2Sqr::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Norm_L2Sqr: no such function for elements of these types in this order. There are Norm_L2Sqr_16s64s_Sfs");
    return qvxStatBadArg;
  }
}

// *pNorm = the norm of src1 - src2, as qvxsNorm: the differences of integers are exact, those of ... (qvxs_norm.h)
namespace exports {
struct NormDiff_Inf {
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Qvx32f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_Inf_32f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Qvx64f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_Inf_64f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx32f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_Inf_16s32f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx32s& norm, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_Inf_16s32s_Sfs(src1.data(), src2.data(), length(src1.size()), &norm, scaleFactor.number);
  }
  static Status call(In<Qvx32fc> src1, In<Qvx32fc> src2, Qvx32f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_Inf_32fc32f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx64fc> src1, In<Qvx64fc> src2, Qvx64f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_Inf_64fc64f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status NormDiff_Inf(Arguments&&... arguments) {
  if constexpr (requires { exports::NormDiff_Inf::call(detail::view(arguments)...); }) {
    return exports::NormDiff_Inf::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::NormDiff_Inf: no such function for elements of these types in this order. There are NormDiff_Inf_32f "
        "NormDiff_Inf_64f NormDiff_Inf_16s32f NormDiff_Inf_16s32s_Sfs NormDiff_Inf_32fc32f NormDiff_Inf_64fc64f");
    return qvxStatBadArg;
  }
}

// *pNorm = the norm of src1 - src2, as qvxsNorm: the differences of integers are exact, those of ... (qvxs_norm.h)
namespace exports {
struct NormDiff_L1 {
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Qvx32f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L1_32f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Qvx64f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L1_64f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx32f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L1_16s32f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx32s& norm, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L1_16s32s_Sfs(src1.data(), src2.data(), length(src1.size()), &norm, scaleFactor.number);
  }
  static Status call(In<Qvx64fc> src1, In<Qvx64fc> src2, Qvx64f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L1_64fc64f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx32fc> src1, In<Qvx32fc> src2, Qvx64f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L1_32fc64f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx64s& norm, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L1_16s64s_Sfs(src1.data(), src2.data(), length(src1.size()), &norm, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status NormDiff_L1(Arguments&&... arguments) {
  if constexpr (requires { exports::NormDiff_L1::call(detail::view(arguments)...); }) {
    return exports::NormDiff_L1::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::NormDiff_L1: no such function for elements of these types in this order. There are NormDiff_L1_32f "
        "NormDiff_L1_64f NormDiff_L1_16s32f NormDiff_L1_16s32s_Sfs NormDiff_L1_64fc64f NormDiff_L1_32fc64f "
        "NormDiff_L1_16s64s_Sfs");
    return qvxStatBadArg;
  }
}

// *pNorm = the norm of src1 - src2, as qvxsNorm: the differences of integers are exact, those of ... (qvxs_norm.h)
namespace exports {
struct NormDiff_L2 {
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Qvx32f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L2_32f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Qvx64f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L2_64f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx32f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L2_16s32f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx32s& norm, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L2_16s32s_Sfs(src1.data(), src2.data(), length(src1.size()), &norm, scaleFactor.number);
  }
  static Status call(In<Qvx64fc> src1, In<Qvx64fc> src2, Qvx64f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L2_64fc64f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
  static Status call(In<Qvx32fc> src1, In<Qvx32fc> src2, Qvx64f& norm) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L2_32fc64f(src1.data(), src2.data(), length(src1.size()), &norm);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status NormDiff_L2(Arguments&&... arguments) {
  if constexpr (requires { exports::NormDiff_L2::call(detail::view(arguments)...); }) {
    return exports::NormDiff_L2::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::NormDiff_L2: no such function for elements of these types in this order. There are NormDiff_L2_32f "
        "NormDiff_L2_64f NormDiff_L2_16s32f NormDiff_L2_16s32s_Sfs NormDiff_L2_64fc64f NormDiff_L2_32fc64f");
    return qvxStatBadArg;
  }
}

// *pNorm = the norm of src1 - src2, as qvxsNorm: the differences of integers are exact, those of ... (qvxs_norm.h)
namespace exports {
struct NormDiff_L2Sqr {
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx64s& norm, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsNormDiff_L2Sqr_16s64s_Sfs(src1.data(), src2.data(), length(src1.size()), &norm, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status NormDiff_L2Sqr(Arguments&&... arguments) {
  if constexpr (requires { exports::NormDiff_L2Sqr::call(detail::view(arguments)...); }) {
    return exports::NormDiff_L2Sqr::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::NormDiff_L2Sqr: no such function for elements of these types in this order. There are NormDiff_L2Sqr_16s64s_Sfs");
    return qvxStatBadArg;
  }
}

// *pDp = src1[0] * src2[0] + ... + src1[len - 1] * src2[len - 1]; of complex elements without ... (qvxs_norm.h)
namespace exports {
struct DotProd {
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Qvx32f& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_32f(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Qvx64f& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_64f(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx32fc> src1, In<Qvx32fc> src2, Qvx32fc& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_32fc(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx64fc> src1, In<Qvx64fc> src2, Qvx64fc& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_64fc(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx32f> src1, In<Qvx32fc> src2, Qvx32fc& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_32f32fc(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx64f> src1, In<Qvx64fc> src2, Qvx64fc& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_64f64fc(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Qvx64f& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_32f64f(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx32fc> src1, In<Qvx32fc> src2, Qvx64fc& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_32fc64fc(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx32f> src1, In<Qvx32fc> src2, Qvx64fc& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_32f32fc64fc(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx32f& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16s32f(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx16sc> src1, In<Qvx16sc> src2, Qvx32fc& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16sc32fc(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16sc> src2, Qvx32fc& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16s16sc32fc(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx64s& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16s64s(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx16sc> src1, In<Qvx16sc> src2, Qvx64sc& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16sc64sc(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16sc> src2, Qvx64sc& dp) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16s16sc64sc(src1.data(), src2.data(), length(src1.size()), &dp);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx16s& dp, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16s_Sfs(src1.data(), src2.data(), length(src1.size()), &dp, scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src1, In<Qvx16sc> src2, Qvx16sc& dp, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16sc_Sfs(src1.data(), src2.data(), length(src1.size()), &dp, scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16sc> src2, Qvx16sc& dp, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16s16sc_Sfs(src1.data(), src2.data(), length(src1.size()), &dp, scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Qvx32s& dp, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16s32s_Sfs(src1.data(), src2.data(), length(src1.size()), &dp, scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src1, In<Qvx16sc> src2, Qvx32sc& dp, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16sc32sc_Sfs(src1.data(), src2.data(), length(src1.size()), &dp, scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16sc> src2, Qvx32sc& dp, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16s16sc32sc_Sfs(src1.data(), src2.data(), length(src1.size()), &dp, scaleFactor.number);
  }
  static Status call(In<Qvx32s> src1, In<Qvx32s> src2, Qvx32s& dp, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_32s_Sfs(src1.data(), src2.data(), length(src1.size()), &dp, scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src1, In<Qvx32sc> src2, Qvx32sc& dp, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_32sc_Sfs(src1.data(), src2.data(), length(src1.size()), &dp, scaleFactor.number);
  }
  static Status call(In<Qvx32s> src1, In<Qvx32sc> src2, Qvx32sc& dp, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_32s32sc_Sfs(src1.data(), src2.data(), length(src1.size()), &dp, scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx32s> src2, Qvx32s& dp, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size());
    return qvxsDotProd_16s32s32s_Sfs(src1.data(), src2.data(), length(src1.size()), &dp, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status DotProd(Arguments&&... arguments) {
  if constexpr (requires { exports::DotProd::call(detail::view(arguments)...); }) {
    return exports::DotProd::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::DotProd: no such function for elements of these types in this order. There are DotProd_32f DotProd_64f "
        "DotProd_32fc DotProd_64fc DotProd_32f32fc DotProd_64f64fc DotProd_32f64f DotProd_32fc64fc DotProd_32f32fc64fc "
        "DotProd_16s32f DotProd_16sc32fc DotProd_16s16sc32fc DotProd_16s64s DotProd_16sc64sc DotProd_16s16sc64sc "
        "DotProd_16s_Sfs DotProd_16sc_Sfs DotProd_16s16sc_Sfs DotProd_16s32s_Sfs DotProd_16sc32sc_Sfs DotProd_16s16sc32sc_Sfs "
        "DotProd_32s_Sfs DotProd_32sc_Sfs DotProd_32s32sc_Sfs DotProd_16s32s32s_Sfs");
    return qvxStatBadArg;
  }
}

// The product of two spectra in the layout Pack: pairs as complex numbers, X[0] and X[N/2] as real ... (qvxs_spectrum.h)
namespace exports {
struct MulPack {
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMulPack_32f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMulPack_32f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMulPack_64f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMulPack_64f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMulPack_16s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMulPack_16s_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MulPack(Arguments&&... arguments) {
  if constexpr (requires { exports::MulPack::call(detail::view(arguments)...); }) {
    return exports::MulPack::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MulPack: no such function for elements of these types in this order. There are MulPack_32f MulPack_32f_I "
        "MulPack_64f MulPack_64f_I MulPack_16s_Sfs MulPack_16s_ISfs");
    return qvxStatBadArg;
  }
}

// The same for spectra in the layout Perm. (qvxs_spectrum.h)
namespace exports {
struct MulPerm {
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMulPerm_32f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMulPerm_32f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMulPerm_64f(src1.data(), src2.data(), dst.data(), length(src1.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMulPerm_64f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && src2.size() == src1.size() && dst.size() == src1.size());
    return qvxsMulPerm_16s_Sfs(src1.data(), src2.data(), dst.data(), length(src1.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> srcDst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMulPerm_16s_ISfs(src.data(), srcDst.data(), length(src.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MulPerm(Arguments&&... arguments) {
  if constexpr (requires { exports::MulPerm::call(detail::view(arguments)...); }) {
    return exports::MulPerm::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MulPerm: no such function for elements of these types in this order. There are MulPerm_32f MulPerm_32f_I "
        "MulPerm_64f MulPerm_64f_I MulPerm_16s_Sfs MulPerm_16s_ISfs");
    return qvxStatBadArg;
  }
}

// srcDst = conj(src) * srcDst in the layout Pack: the spectrum of a circular correlation. As ... (qvxs_spectrum.h)
namespace exports {
struct MulPackConj {
  static Status call(In<Qvx32f> src, Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMulPackConj_32f_I(src.data(), srcDst.data(), length(src.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(src.size()) && srcDst.size() == src.size());
    return qvxsMulPackConj_64f_I(src.data(), srcDst.data(), length(src.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status MulPackConj(Arguments&&... arguments) {
  if constexpr (requires { exports::MulPackConj::call(detail::view(arguments)...); }) {
    return exports::MulPackConj::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::MulPackConj: no such function for elements of these types in this order. There are MulPackConj_32f_I "
        "MulPackConj_64f_I");
    return qvxStatBadArg;
  }
}

// The whole spectrum, len complex values, of the half that is kept in the layout Pack: dst[N - k] ... (qvxs_spectrum.h)
namespace exports {
struct ConjPack {
  static Status call(In<Qvx32f> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConjPack_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConjPack_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConjPack_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConjPack_64fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConjPack_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16sc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConjPack_16sc_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status ConjPack(Arguments&&... arguments) {
  if constexpr (requires { exports::ConjPack::call(detail::view(arguments)...); }) {
    return exports::ConjPack::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::ConjPack: no such function for elements of these types in this order. There are ConjPack_32fc ConjPack_32fc_I "
        "ConjPack_64fc ConjPack_64fc_I ConjPack_16sc ConjPack_16sc_I");
    return qvxStatBadArg;
  }
}

// The same from the layout Perm. (qvxs_spectrum.h)
namespace exports {
struct ConjPerm {
  static Status call(In<Qvx32f> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConjPerm_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConjPerm_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConjPerm_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConjPerm_64fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsConjPerm_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16sc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConjPerm_16sc_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status ConjPerm(Arguments&&... arguments) {
  if constexpr (requires { exports::ConjPerm::call(detail::view(arguments)...); }) {
    return exports::ConjPerm::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::ConjPerm: no such function for elements of these types in this order. There are ConjPerm_32fc ConjPerm_32fc_I "
        "ConjPerm_64fc ConjPerm_64fc_I ConjPerm_16sc ConjPerm_16sc_I");
    return qvxStatBadArg;
  }
}

// The same from the layout CCS: pSrc has 2 * (len/2 + 1) values. dst[0] and dst[N/2] are copied as ... (qvxs_spectrum.h)
namespace exports {
struct ConjCcs {
  static Status call(In<Qvx32f> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(src.size(), 2 * (quotient(int64_t(dst.size()), 2) + 1)));
    return qvxsConjCcs_32fc(src.data(), dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConjCcs_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(src.size(), 2 * (quotient(int64_t(dst.size()), 2) + 1)));
    return qvxsConjCcs_64fc(src.data(), dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConjCcs_64fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(src.size(), 2 * (quotient(int64_t(dst.size()), 2) + 1)));
    return qvxsConjCcs_16sc(src.data(), dst.data(), length(dst.size()));
  }
  static Status call(Out<Qvx16sc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsConjCcs_16sc_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status ConjCcs(Arguments&&... arguments) {
  if constexpr (requires { exports::ConjCcs::call(detail::view(arguments)...); }) {
    return exports::ConjCcs::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::ConjCcs: no such function for elements of these types in this order. There are ConjCcs_32fc ConjCcs_32fc_I "
        "ConjCcs_64fc ConjCcs_64fc_I ConjCcs_16sc ConjCcs_16sc_I");
    return qvxStatBadArg;
  }
}

// The same without a record: the caller keeps the taps and 2 * tapsLen samples at pDlyLine, zeros ... (qvxs_fir.h)
namespace exports {
struct FIR_Direct {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, In<Qvx32f> taps, Out<Qvx32f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR_Direct_32f(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(Out<Qvx32f> srcDst, In<Qvx32f> taps, Out<Qvx32f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR_Direct_32f_I(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, In<Qvx32fc> taps, Out<Qvx32fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR_Direct_32fc(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(Out<Qvx32fc> srcDst, In<Qvx32fc> taps, Out<Qvx32fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR_Direct_32fc_I(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, In<Qvx32f> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR32f_Direct_16s_Sfs(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, In<Qvx32f> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR32f_Direct_16s_ISfs(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, In<Qvx32fc> taps, Out<Qvx16sc> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR32fc_Direct_16sc_Sfs(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()),
        dlyLine.data(), &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Out<Qvx16sc> srcDst, In<Qvx32fc> taps, Out<Qvx16sc> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR32fc_Direct_16sc_ISfs(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, In<Qvx64f> taps, Out<Qvx64f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR_Direct_64f(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(Out<Qvx64f> srcDst, In<Qvx64f> taps, Out<Qvx64f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR_Direct_64f_I(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, In<Qvx64fc> taps, Out<Qvx64fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR_Direct_64fc(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(Out<Qvx64fc> srcDst, In<Qvx64fc> taps, Out<Qvx64fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR_Direct_64fc_I(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, In<Qvx64f> taps, Out<Qvx32f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR64f_Direct_32f(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(Out<Qvx32f> srcDst, In<Qvx64f> taps, Out<Qvx32f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR64f_Direct_32f_I(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, In<Qvx64fc> taps, Out<Qvx32fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR64fc_Direct_32fc(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(Out<Qvx32fc> srcDst, In<Qvx64fc> taps, Out<Qvx32fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR64fc_Direct_32fc_I(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst, In<Qvx64f> taps, Out<Qvx32s> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR64f_Direct_32s_Sfs(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Out<Qvx32s> srcDst, In<Qvx64f> taps, Out<Qvx32s> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR64f_Direct_32s_ISfs(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src, Out<Qvx32sc> dst, In<Qvx64fc> taps, Out<Qvx32sc> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR64fc_Direct_32sc_Sfs(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()),
        dlyLine.data(), &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Out<Qvx32sc> srcDst, In<Qvx64fc> taps, Out<Qvx32sc> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR64fc_Direct_32sc_ISfs(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, In<Qvx64f> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR64f_Direct_16s_Sfs(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, In<Qvx64f> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR64f_Direct_16s_ISfs(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, In<Qvx64fc> taps, Out<Qvx16sc> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR64fc_Direct_16sc_Sfs(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()),
        dlyLine.data(), &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Out<Qvx16sc> srcDst, In<Qvx64fc> taps, Out<Qvx16sc> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR64fc_Direct_16sc_ISfs(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, In<Qvx32s> taps, Value<int> tapsFactor, Out<Qvx16s> dlyLine, int&
      dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR32s_Direct_16s_Sfs(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()),
        tapsFactor.number, dlyLine.data(), &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, In<Qvx32s> taps, Value<int> tapsFactor, Out<Qvx16s> dlyLine, int& dlyLineIndex,
      Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR32s_Direct_16s_ISfs(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), tapsFactor.number,
        dlyLine.data(), &dlyLineIndex, scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, In<Qvx32sc> taps, Value<int> tapsFactor, Out<Qvx16sc> dlyLine, int&
      dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR32sc_Direct_16sc_Sfs(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()),
        tapsFactor.number, dlyLine.data(), &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Out<Qvx16sc> srcDst, In<Qvx32sc> taps, Value<int> tapsFactor, Out<Qvx16sc> dlyLine, int& dlyLineIndex,
      Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR32sc_Direct_16sc_ISfs(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), tapsFactor.number,
        dlyLine.data(), &dlyLineIndex, scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, In<Qvx16s> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(taps.size()) && dst.size() == src.size() && atLeast(dlyLine.size(), 2 *
        int64_t(taps.size())));
    return qvxsFIR_Direct_16s_Sfs(src.data(), dst.data(), length(src.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, In<Qvx16s> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIR_Direct_16s_ISfs(srcDst.data(), length(srcDst.size()), taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FIR_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::FIR_Direct::call(detail::view(arguments)...); }) {
    return exports::FIR_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FIR_Direct: no such function for elements of these types in this order. There are FIR_Direct_32f FIR_Direct_32f_I"
        " FIR_Direct_32fc FIR_Direct_32fc_I FIR32f_Direct_16s_Sfs FIR32f_Direct_16s_ISfs FIR32fc_Direct_16sc_Sfs "
        "FIR32fc_Direct_16sc_ISfs FIR_Direct_64f FIR_Direct_64f_I FIR_Direct_64fc FIR_Direct_64fc_I FIR64f_Direct_32f "
        "FIR64f_Direct_32f_I FIR64fc_Direct_32fc FIR64fc_Direct_32fc_I FIR64f_Direct_32s_Sfs FIR64f_Direct_32s_ISfs "
        "FIR64fc_Direct_32sc_Sfs FIR64fc_Direct_32sc_ISfs FIR64f_Direct_16s_Sfs FIR64f_Direct_16s_ISfs FIR64fc_Direct_16sc_Sfs "
        "FIR64fc_Direct_16sc_ISfs FIR32s_Direct_16s_Sfs FIR32s_Direct_16s_ISfs FIR32sc_Direct_16sc_Sfs FIR32sc_Direct_16sc_ISfs"
        " FIR_Direct_16s_Sfs FIR_Direct_16s_ISfs");
    return qvxStatBadArg;
  }
}

// The same without a record: the caller keeps the taps and 2 * tapsLen samples at pDlyLine, zeros ... (qvxs_fir.h)
namespace exports {
struct FIROne_Direct {
  static Status call(Value<Qvx32f> src, Qvx32f& dstVal, In<Qvx32f> taps, Out<Qvx32f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne_Direct_32f(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Value<Qvx32fc> src, Qvx32fc& dstVal, In<Qvx32fc> taps, Out<Qvx32fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne_Direct_32fc(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Value<Qvx16s> src, Qvx16s& dstVal, In<Qvx32f> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne32f_Direct_16s_Sfs(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Value<Qvx16sc> src, Qvx16sc& dstVal, In<Qvx32fc> taps, Out<Qvx16sc> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne32fc_Direct_16sc_Sfs(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Value<Qvx64f> src, Qvx64f& dstVal, In<Qvx64f> taps, Out<Qvx64f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne_Direct_64f(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Value<Qvx64fc> src, Qvx64fc& dstVal, In<Qvx64fc> taps, Out<Qvx64fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne_Direct_64fc(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Value<Qvx32f> src, Qvx32f& dstVal, In<Qvx64f> taps, Out<Qvx32f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64f_Direct_32f(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Value<Qvx32fc> src, Qvx32fc& dstVal, In<Qvx64fc> taps, Out<Qvx32fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64fc_Direct_32fc(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Value<Qvx32s> src, Qvx32s& dstVal, In<Qvx64f> taps, Out<Qvx32s> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64f_Direct_32s_Sfs(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Value<Qvx32sc> src, Qvx32sc& dstVal, In<Qvx64fc> taps, Out<Qvx32sc> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64fc_Direct_32sc_Sfs(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Value<Qvx16s> src, Qvx16s& dstVal, In<Qvx64f> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64f_Direct_16s_Sfs(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Value<Qvx16sc> src, Qvx16sc& dstVal, In<Qvx64fc> taps, Out<Qvx16sc> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64fc_Direct_16sc_Sfs(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Value<Qvx16s> src, Qvx16s& dstVal, In<Qvx32s> taps, Value<int> tapsFactor, Out<Qvx16s> dlyLine, int&
      dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne32s_Direct_16s_Sfs(src.number, &dstVal, taps.data(), length(taps.size()), tapsFactor.number, dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Value<Qvx16sc> src, Qvx16sc& dstVal, In<Qvx32sc> taps, Value<int> tapsFactor, Out<Qvx16sc> dlyLine, int&
      dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne32sc_Direct_16sc_Sfs(src.number, &dstVal, taps.data(), length(taps.size()), tapsFactor.number,
        dlyLine.data(), &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Value<Qvx16s> src, Qvx16s& dstVal, In<Qvx16s> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne_Direct_16s_Sfs(src.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Qvx32f& srcDstVal, In<Qvx32f> taps, Out<Qvx32f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne_Direct_32f_I(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Qvx32fc& srcDstVal, In<Qvx32fc> taps, Out<Qvx32fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne_Direct_32fc_I(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Qvx16s& srcDstVal, In<Qvx32f> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne32f_Direct_16s_ISfs(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Qvx16sc& srcDstVal, In<Qvx32fc> taps, Out<Qvx16sc> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne32fc_Direct_16sc_ISfs(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Qvx64f& srcDstVal, In<Qvx64f> taps, Out<Qvx64f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne_Direct_64f_I(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Qvx64fc& srcDstVal, In<Qvx64fc> taps, Out<Qvx64fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne_Direct_64fc_I(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Qvx32f& srcDstVal, In<Qvx64f> taps, Out<Qvx32f> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64f_Direct_32f_I(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Qvx32fc& srcDstVal, In<Qvx64fc> taps, Out<Qvx32fc> dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64fc_Direct_32fc_I(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex);
  }
  static Status call(Qvx32s& srcDstVal, In<Qvx64f> taps, Out<Qvx32s> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64f_Direct_32s_ISfs(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Qvx32sc& srcDstVal, In<Qvx64fc> taps, Out<Qvx32sc> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64fc_Direct_32sc_ISfs(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Qvx16s& srcDstVal, In<Qvx64f> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64f_Direct_16s_ISfs(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Qvx16sc& srcDstVal, In<Qvx64fc> taps, Out<Qvx16sc> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne64fc_Direct_16sc_ISfs(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
  static Status call(Qvx16s& srcDstVal, In<Qvx32s> taps, Value<int> tapsFactor, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int>
      scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne32s_Direct_16s_ISfs(&srcDstVal, taps.data(), length(taps.size()), tapsFactor.number, dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Qvx16sc& srcDstVal, In<Qvx32sc> taps, Value<int> tapsFactor, Out<Qvx16sc> dlyLine, int& dlyLineIndex,
      Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne32sc_Direct_16sc_ISfs(&srcDstVal, taps.data(), length(taps.size()), tapsFactor.number, dlyLine.data(),
        &dlyLineIndex, scaleFactor.number);
  }
  static Status call(Qvx16s& srcDstVal, In<Qvx16s> taps, Out<Qvx16s> dlyLine, int& dlyLineIndex, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIROne_Direct_16s_ISfs(&srcDstVal, taps.data(), length(taps.size()), dlyLine.data(), &dlyLineIndex,
        scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FIROne_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::FIROne_Direct::call(detail::view(arguments)...); }) {
    return exports::FIROne_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FIROne_Direct: no such function for elements of these types in this order. There are FIROne_Direct_32f "
        "FIROne_Direct_32fc FIROne32f_Direct_16s_Sfs FIROne32fc_Direct_16sc_Sfs FIROne_Direct_64f FIROne_Direct_64fc "
        "FIROne64f_Direct_32f FIROne64fc_Direct_32fc FIROne64f_Direct_32s_Sfs FIROne64fc_Direct_32sc_Sfs "
        "FIROne64f_Direct_16s_Sfs FIROne64fc_Direct_16sc_Sfs FIROne32s_Direct_16s_Sfs FIROne32sc_Direct_16sc_Sfs "
        "FIROne_Direct_16s_Sfs FIROne_Direct_32f_I FIROne_Direct_32fc_I FIROne32f_Direct_16s_ISfs FIROne32fc_Direct_16sc_ISfs "
        "FIROne_Direct_64f_I FIROne_Direct_64fc_I FIROne64f_Direct_32f_I FIROne64fc_Direct_32fc_I FIROne64f_Direct_32s_ISfs "
        "FIROne64fc_Direct_32sc_ISfs FIROne64f_Direct_16s_ISfs FIROne64fc_Direct_16sc_ISfs FIROne32s_Direct_16s_ISfs "
        "FIROne32sc_Direct_16sc_ISfs FIROne_Direct_16s_ISfs");
    return qvxStatBadArg;
  }
}

// The same without a record: the caller keeps the taps and, at pDlyLine, the last D samples, ... (qvxs_multirate.h)
namespace exports {
struct FIRMR_Direct {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<int> numIters, In<Qvx32f> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx32f> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR_Direct_32f(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(Out<Qvx32f> srcDst, Value<int> numIters, In<Qvx32f> taps, Value<int> upFactor, Value<int> upPhase, Value<int>
      downFactor, Value<int> downPhase, Out<Qvx32f> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR_Direct_32f_I(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, Value<int> numIters, In<Qvx32fc> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx32fc> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR_Direct_32fc(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(Out<Qvx32fc> srcDst, Value<int> numIters, In<Qvx32fc> taps, Value<int> upFactor, Value<int> upPhase,
      Value<int> downFactor, Value<int> downPhase, Out<Qvx32fc> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR_Direct_32fc_I(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> numIters, In<Qvx32f> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx16s> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR32f_Direct_16s_Sfs(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> numIters, In<Qvx32f> taps, Value<int> upFactor, Value<int> upPhase, Value<int>
      downFactor, Value<int> downPhase, Out<Qvx16s> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR32f_Direct_16s_ISfs(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<int> numIters, In<Qvx32fc> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx16sc> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR32fc_Direct_16sc_Sfs(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()),
        upFactor.number, upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<int> numIters, In<Qvx32fc> taps, Value<int> upFactor, Value<int> upPhase,
      Value<int> downFactor, Value<int> downPhase, Out<Qvx16sc> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR32fc_Direct_16sc_ISfs(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<int> numIters, In<Qvx64f> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx64f> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR_Direct_64f(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(Out<Qvx64f> srcDst, Value<int> numIters, In<Qvx64f> taps, Value<int> upFactor, Value<int> upPhase, Value<int>
      downFactor, Value<int> downPhase, Out<Qvx64f> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR_Direct_64f_I(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, Value<int> numIters, In<Qvx64fc> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx64fc> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR_Direct_64fc(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(Out<Qvx64fc> srcDst, Value<int> numIters, In<Qvx64fc> taps, Value<int> upFactor, Value<int> upPhase,
      Value<int> downFactor, Value<int> downPhase, Out<Qvx64fc> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR_Direct_64fc_I(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<int> numIters, In<Qvx64f> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx32f> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR64f_Direct_32f(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(Out<Qvx32f> srcDst, Value<int> numIters, In<Qvx64f> taps, Value<int> upFactor, Value<int> upPhase, Value<int>
      downFactor, Value<int> downPhase, Out<Qvx32f> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR64f_Direct_32f_I(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, Value<int> numIters, In<Qvx64fc> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx32fc> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR64fc_Direct_32fc(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(Out<Qvx32fc> srcDst, Value<int> numIters, In<Qvx64fc> taps, Value<int> upFactor, Value<int> upPhase,
      Value<int> downFactor, Value<int> downPhase, Out<Qvx32fc> dlyLine) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR64fc_Direct_32fc_I(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data());
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst, Value<int> numIters, In<Qvx64f> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx32s> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR64f_Direct_32s_Sfs(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(Out<Qvx32s> srcDst, Value<int> numIters, In<Qvx64f> taps, Value<int> upFactor, Value<int> upPhase, Value<int>
      downFactor, Value<int> downPhase, Out<Qvx32s> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR64f_Direct_32s_ISfs(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(In<Qvx32sc> src, Out<Qvx32sc> dst, Value<int> numIters, In<Qvx64fc> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx32sc> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR64fc_Direct_32sc_Sfs(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()),
        upFactor.number, upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(Out<Qvx32sc> srcDst, Value<int> numIters, In<Qvx64fc> taps, Value<int> upFactor, Value<int> upPhase,
      Value<int> downFactor, Value<int> downPhase, Out<Qvx32sc> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR64fc_Direct_32sc_ISfs(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> numIters, In<Qvx64f> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx16s> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR64f_Direct_16s_Sfs(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> numIters, In<Qvx64f> taps, Value<int> upFactor, Value<int> upPhase, Value<int>
      downFactor, Value<int> downPhase, Out<Qvx16s> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR64f_Direct_16s_ISfs(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<int> numIters, In<Qvx64fc> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx16sc> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR64fc_Direct_16sc_Sfs(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()),
        upFactor.number, upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<int> numIters, In<Qvx64fc> taps, Value<int> upFactor, Value<int> upPhase,
      Value<int> downFactor, Value<int> downPhase, Out<Qvx16sc> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR64fc_Direct_16sc_ISfs(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> numIters, In<Qvx32s> taps, Value<int> tapsFactor, Value<int>
      upFactor, Value<int> upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx16s> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR32s_Direct_16s_Sfs(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()),
        tapsFactor.number, upFactor.number, upPhase.number, downFactor.number, downPhase.number, dlyLine.data(),
        scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> numIters, In<Qvx32s> taps, Value<int> tapsFactor, Value<int> upFactor,
      Value<int> upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx16s> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR32s_Direct_16s_ISfs(srcDst.data(), numIters.number, taps.data(), length(taps.size()), tapsFactor.number,
        upFactor.number, upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<int> numIters, In<Qvx32sc> taps, Value<int> tapsFactor, Value<int>
      upFactor, Value<int> upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx16sc> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR32sc_Direct_16sc_Sfs(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()),
        tapsFactor.number, upFactor.number, upPhase.number, downFactor.number, downPhase.number, dlyLine.data(),
        scaleFactor.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<int> numIters, In<Qvx32sc> taps, Value<int> tapsFactor, Value<int> upFactor,
      Value<int> upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx16sc> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR32sc_Direct_16sc_ISfs(srcDst.data(), numIters.number, taps.data(), length(taps.size()), tapsFactor.number,
        upFactor.number, upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> numIters, In<Qvx16s> taps, Value<int> upFactor, Value<int>
      upPhase, Value<int> downFactor, Value<int> downPhase, Out<Qvx16s> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(src.size(), int64_t(numIters.number) * int64_t(downFactor.number)) &&
        atLeast(dst.size(), int64_t(numIters.number) * int64_t(upFactor.number)) && atLeast(dlyLine.size(),
        quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1, int64_t(upFactor.number))));
    return qvxsFIRMR_Direct_16s_Sfs(src.data(), dst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> numIters, In<Qvx16s> taps, Value<int> upFactor, Value<int> upPhase, Value<int>
      downFactor, Value<int> downPhase, Out<Qvx16s> dlyLine, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(srcDst.size(), int64_t(numIters.number) * largest(int64_t(upFactor.number),
        int64_t(downFactor.number))) && atLeast(dlyLine.size(), quotient(int64_t(taps.size()) + int64_t(upFactor.number) - 1,
        int64_t(upFactor.number))));
    return qvxsFIRMR_Direct_16s_ISfs(srcDst.data(), numIters.number, taps.data(), length(taps.size()), upFactor.number,
        upPhase.number, downFactor.number, downPhase.number, dlyLine.data(), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FIRMR_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::FIRMR_Direct::call(detail::view(arguments)...); }) {
    return exports::FIRMR_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FIRMR_Direct: no such function for elements of these types in this order. There are FIRMR_Direct_32f "
        "FIRMR_Direct_32f_I FIRMR_Direct_32fc FIRMR_Direct_32fc_I FIRMR32f_Direct_16s_Sfs FIRMR32f_Direct_16s_ISfs "
        "FIRMR32fc_Direct_16sc_Sfs FIRMR32fc_Direct_16sc_ISfs FIRMR_Direct_64f FIRMR_Direct_64f_I FIRMR_Direct_64fc "
        "FIRMR_Direct_64fc_I FIRMR64f_Direct_32f FIRMR64f_Direct_32f_I FIRMR64fc_Direct_32fc FIRMR64fc_Direct_32fc_I "
        "FIRMR64f_Direct_32s_Sfs FIRMR64f_Direct_32s_ISfs FIRMR64fc_Direct_32sc_Sfs FIRMR64fc_Direct_32sc_ISfs "
        "FIRMR64f_Direct_16s_Sfs FIRMR64f_Direct_16s_ISfs FIRMR64fc_Direct_16sc_Sfs FIRMR64fc_Direct_16sc_ISfs "
        "FIRMR32s_Direct_16s_Sfs FIRMR32s_Direct_16s_ISfs FIRMR32sc_Direct_16sc_Sfs FIRMR32sc_Direct_16sc_ISfs "
        "FIRMR_Direct_16s_Sfs FIRMR_Direct_16s_ISfs");
    return qvxStatBadArg;
  }
}

// One step without a record. pTaps: in stored order, h[tapsLen - 1], the tap of the oldest sample, ... (qvxs_lms.h)
namespace exports {
struct FIRLMSOne_Direct {
  static Status call(Value<Qvx32f> src, Value<Qvx32f> ref, Value<Qvx32f> mu, Qvx32f& dstVal, Out<Qvx32f> taps, Out<Qvx32f>
      dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIRLMSOne_Direct_32f(src.number, ref.number, mu.number, &dstVal, taps.data(), length(taps.size()), dlyLine.data(),
        &dlyLineIndex);
  }
  static Status call(Value<Qvx16s> src, Value<Qvx16s> ref, Value<Qvx32f> mu, Qvx16s& dstVal, Out<Qvx32f> taps, Out<Qvx16s>
      dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIRLMSOne_Direct32f_16s(src.number, ref.number, mu.number, &dstVal, taps.data(), length(taps.size()),
        dlyLine.data(), &dlyLineIndex);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FIRLMSOne_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::FIRLMSOne_Direct::call(detail::view(arguments)...); }) {
    return exports::FIRLMSOne_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FIRLMSOne_Direct: no such function for elements of these types in this order. There are FIRLMSOne_Direct_32f "
        "FIRLMSOne_Direct32f_16s");
    return qvxStatBadArg;
  }
}

// One step without a record. pTaps: in stored order, h[tapsLen - 1], the tap of the oldest sample, ... (qvxs_lms.h)
namespace exports {
struct FIRLMSOne_DirectQ15 {
  static Status call(Value<Qvx16s> src, Value<Qvx16s> ref, Value<int> muQ15, Qvx16s& dstVal, Out<Qvx32s> taps, Out<Qvx16s>
      dlyLine, int& dlyLineIndex) {
    QVX_REQUIRE(countable(taps.size()) && atLeast(dlyLine.size(), 2 * int64_t(taps.size())));
    return qvxsFIRLMSOne_DirectQ15_16s(src.number, ref.number, muQ15.number, &dstVal, taps.data(), length(taps.size()),
        dlyLine.data(), &dlyLineIndex);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FIRLMSOne_DirectQ15(Arguments&&... arguments) {
  if constexpr (requires { exports::FIRLMSOne_DirectQ15::call(detail::view(arguments)...); }) {
    return exports::FIRLMSOne_DirectQ15::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FIRLMSOne_DirectQ15: no such function for elements of these types in this order. There are "
        "FIRLMSOne_DirectQ15_16s");
    return qvxStatBadArg;
  }
}

// Designs a filter of tapsLen taps, a sinc under a window; the delay is (tapsLen - 1) / 2 samples. ... (qvxs_fir_design.h)
namespace exports {
struct FIRGenLowpass {
  static Status call(Value<Qvx64f> rFreq, Out<Qvx64f> taps, Value<int> winType, Value<int> doNormal) {
    QVX_REQUIRE(countable(taps.size()));
    return qvxsFIRGenLowpass_64f(rFreq.number, taps.data(), length(taps.size()), winType.number, doNormal.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FIRGenLowpass(Arguments&&... arguments) {
  if constexpr (requires { exports::FIRGenLowpass::call(detail::view(arguments)...); }) {
    return exports::FIRGenLowpass::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FIRGenLowpass: no such function for elements of these types in this order. There are FIRGenLowpass_64f");
    return qvxStatBadArg;
  }
}

// Designs a filter of tapsLen taps, a sinc under a window; the delay is (tapsLen - 1) / 2 samples. ... (qvxs_fir_design.h)
namespace exports {
struct FIRGenHighpass {
  static Status call(Value<Qvx64f> rFreq, Out<Qvx64f> taps, Value<int> winType, Value<int> doNormal) {
    QVX_REQUIRE(countable(taps.size()));
    return qvxsFIRGenHighpass_64f(rFreq.number, taps.data(), length(taps.size()), winType.number, doNormal.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FIRGenHighpass(Arguments&&... arguments) {
  if constexpr (requires { exports::FIRGenHighpass::call(detail::view(arguments)...); }) {
    return exports::FIRGenHighpass::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FIRGenHighpass: no such function for elements of these types in this order. There are FIRGenHighpass_64f");
    return qvxStatBadArg;
  }
}

// Designs a filter of tapsLen taps, a sinc under a window; the delay is (tapsLen - 1) / 2 samples. ... (qvxs_fir_design.h)
namespace exports {
struct FIRGenBandpass {
  static Status call(Value<Qvx64f> rLowFreq, Value<Qvx64f> rHighFreq, Out<Qvx64f> taps, Value<int> winType, Value<int> doNormal) {
    QVX_REQUIRE(countable(taps.size()));
    return qvxsFIRGenBandpass_64f(rLowFreq.number, rHighFreq.number, taps.data(), length(taps.size()), winType.number,
        doNormal.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FIRGenBandpass(Arguments&&... arguments) {
  if constexpr (requires { exports::FIRGenBandpass::call(detail::view(arguments)...); }) {
    return exports::FIRGenBandpass::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FIRGenBandpass: no such function for elements of these types in this order. There are FIRGenBandpass_64f");
    return qvxStatBadArg;
  }
}

// Designs a filter of tapsLen taps, a sinc under a window; the delay is (tapsLen - 1) / 2 samples. ... (qvxs_fir_design.h)
namespace exports {
struct FIRGenBandstop {
  static Status call(Value<Qvx64f> rLowFreq, Value<Qvx64f> rHighFreq, Out<Qvx64f> taps, Value<int> winType, Value<int> doNormal) {
    QVX_REQUIRE(countable(taps.size()));
    return qvxsFIRGenBandstop_64f(rLowFreq.number, rHighFreq.number, taps.data(), length(taps.size()), winType.number,
        doNormal.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FIRGenBandstop(Arguments&&... arguments) {
  if constexpr (requires { exports::FIRGenBandstop::call(detail::view(arguments)...); }) {
    return exports::FIRGenBandstop::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FIRGenBandstop: no such function for elements of these types in this order. There are FIRGenBandstop_64f");
    return qvxStatBadArg;
  }
}

// Convolution: dst[n] = the sum over k of src1[k] * src2[n - k]. (qvxs_correlation.h)
namespace exports {
struct Conv {
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src1.size()) && countable(src2.size()) && atLeast(dst.size(), int64_t(src1.size()) +
        int64_t(src2.size()) - 1));
    return qvxsConv_32f(src1.data(), length(src1.size()), src2.data(), length(src2.size()), dst.data());
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src1.size()) && countable(src2.size()) && atLeast(dst.size(), int64_t(src1.size()) +
        int64_t(src2.size()) - 1));
    return qvxsConv_64f(src1.data(), length(src1.size()), src2.data(), length(src2.size()), dst.data());
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && countable(src2.size()) && atLeast(dst.size(), int64_t(src1.size()) +
        int64_t(src2.size()) - 1));
    return qvxsConv_16s_Sfs(src1.data(), length(src1.size()), src2.data(), length(src2.size()), dst.data(), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Conv(Arguments&&... arguments) {
  if constexpr (requires { exports::Conv::call(detail::view(arguments)...); }) {
    return exports::Conv::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Conv: no such function for elements of these types in this order. There are Conv_32f Conv_64f Conv_16s_Sfs");
    return qvxStatBadArg;
  }
}

// A part of a convolution: dst[n] = the sum over k of src1[k] * src2[bias + n - k], for n from 0 ... (qvxs_correlation.h)
namespace exports {
struct ConvBiased {
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst, Value<int> bias) {
    QVX_REQUIRE(countable(src1.size()) && countable(src2.size()) && countable(dst.size()));
    return qvxsConvBiased_32f(src1.data(), length(src1.size()), src2.data(), length(src2.size()), dst.data(), length(dst.size()),
        bias.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status ConvBiased(Arguments&&... arguments) {
  if constexpr (requires { exports::ConvBiased::call(detail::view(arguments)...); }) {
    return exports::ConvBiased::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::ConvBiased: no such function for elements of these types in this order. There are ConvBiased_32f");
    return qvxStatBadArg;
  }
}

// Cyclic convolution of 8 (4x4: of 4) elements: dst[n] = the sum over k of src1[k] * src2[(n - k) ... (qvxs_correlation.h)
namespace exports {
struct ConvCyclic8x8 {
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst) {
    QVX_REQUIRE(atLeast(src1.size(), 8) && atLeast(src2.size(), 8) && atLeast(dst.size(), 8));
    return qvxsConvCyclic8x8_32f(src1.data(), src2.data(), dst.data());
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(atLeast(src1.size(), 8) && atLeast(src2.size(), 8) && atLeast(dst.size(), 8));
    return qvxsConvCyclic8x8_16s_Sfs(src1.data(), src2.data(), dst.data(), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status ConvCyclic8x8(Arguments&&... arguments) {
  if constexpr (requires { exports::ConvCyclic8x8::call(detail::view(arguments)...); }) {
    return exports::ConvCyclic8x8::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::ConvCyclic8x8: no such function for elements of these types in this order. There are ConvCyclic8x8_32f "
        "ConvCyclic8x8_16s_Sfs");
    return qvxStatBadArg;
  }
}

// Cyclic convolution of 8 (4x4: of 4) elements: dst[n] = the sum over k of src1[k] * src2[(n - k) ... (qvxs_correlation.h)
namespace exports {
struct ConvCyclic4x4 {
  static Status call(In<Qvx32f> src1, In<Qvx32fc> src2, Out<Qvx32fc> dst) {
    QVX_REQUIRE(atLeast(src1.size(), 4) && atLeast(src2.size(), 4) && atLeast(dst.size(), 4));
    return qvxsConvCyclic4x4_32f32fc(src1.data(), src2.data(), dst.data());
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status ConvCyclic4x4(Arguments&&... arguments) {
  if constexpr (requires { exports::ConvCyclic4x4::call(detail::view(arguments)...); }) {
    return exports::ConvCyclic4x4::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::ConvCyclic4x4: no such function for elements of these types in this order. There are ConvCyclic4x4_32f32fc");
    return qvxStatBadArg;
  }
}

// Cross-correlation: dst[n] = the sum over i of conj(src1[i]) * src2[i + n + lowLag], for n from 0 ... (qvxs_correlation.h)
namespace exports {
struct CrossCorr {
  static Status call(In<Qvx32f> src1, In<Qvx32f> src2, Out<Qvx32f> dst, Value<int> lowLag) {
    QVX_REQUIRE(countable(src1.size()) && countable(src2.size()) && countable(dst.size()));
    return qvxsCrossCorr_32f(src1.data(), length(src1.size()), src2.data(), length(src2.size()), dst.data(), length(dst.size()),
        lowLag.number);
  }
  static Status call(In<Qvx64f> src1, In<Qvx64f> src2, Out<Qvx64f> dst, Value<int> lowLag) {
    QVX_REQUIRE(countable(src1.size()) && countable(src2.size()) && countable(dst.size()));
    return qvxsCrossCorr_64f(src1.data(), length(src1.size()), src2.data(), length(src2.size()), dst.data(), length(dst.size()),
        lowLag.number);
  }
  static Status call(In<Qvx32fc> src1, In<Qvx32fc> src2, Out<Qvx32fc> dst, Value<int> lowLag) {
    QVX_REQUIRE(countable(src1.size()) && countable(src2.size()) && countable(dst.size()));
    return qvxsCrossCorr_32fc(src1.data(), length(src1.size()), src2.data(), length(src2.size()), dst.data(), length(dst.size()),
        lowLag.number);
  }
  static Status call(In<Qvx64fc> src1, In<Qvx64fc> src2, Out<Qvx64fc> dst, Value<int> lowLag) {
    QVX_REQUIRE(countable(src1.size()) && countable(src2.size()) && countable(dst.size()));
    return qvxsCrossCorr_64fc(src1.data(), length(src1.size()), src2.data(), length(src2.size()), dst.data(), length(dst.size()),
        lowLag.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx16s> dst, Value<int> lowLag, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src1.size()) && countable(src2.size()) && countable(dst.size()));
    return qvxsCrossCorr_16s_Sfs(src1.data(), length(src1.size()), src2.data(), length(src2.size()), dst.data(),
        length(dst.size()), lowLag.number, scaleFactor.number);
  }
  static Status call(In<Qvx16s> src1, In<Qvx16s> src2, Out<Qvx64s> dst, Value<int> lowLag) {
    QVX_REQUIRE(countable(src1.size()) && countable(src2.size()) && countable(dst.size()));
    return qvxsCrossCorr_16s64s(src1.data(), length(src1.size()), src2.data(), length(src2.size()), dst.data(),
        length(dst.size()), lowLag.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status CrossCorr(Arguments&&... arguments) {
  if constexpr (requires { exports::CrossCorr::call(detail::view(arguments)...); }) {
    return exports::CrossCorr::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::CrossCorr: no such function for elements of these types in this order. There are CrossCorr_32f CrossCorr_64f "
        "CrossCorr_32fc CrossCorr_64fc CrossCorr_16s_Sfs CrossCorr_16s64s");
    return qvxStatBadArg;
  }
}

// Autocorrelation: dst[n] = the sum over i of conj(src[i]) * src[i + n], for n from 0 to dstLen - ... (qvxs_correlation.h)
namespace exports {
struct AutoCorr {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_32f(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_64f(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_32fc(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_64fc(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_16s_Sfs(src.data(), length(src.size()), dst.data(), length(dst.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status AutoCorr(Arguments&&... arguments) {
  if constexpr (requires { exports::AutoCorr::call(detail::view(arguments)...); }) {
    return exports::AutoCorr::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::AutoCorr: no such function for elements of these types in this order. There are AutoCorr_32f AutoCorr_64f "
        "AutoCorr_32fc AutoCorr_64fc AutoCorr_16s_Sfs");
    return qvxStatBadArg;
  }
}

// Autocorrelation: dst[n] = the sum over i of conj(src[i]) * src[i + n], for n from 0 to dstLen - ... (qvxs_correlation.h)
namespace exports {
struct AutoCorr_NormA {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_NormA_32f(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_NormA_64f(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_NormA_32fc(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_NormA_64fc(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_NormA_16s_Sfs(src.data(), length(src.size()), dst.data(), length(dst.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status AutoCorr_NormA(Arguments&&... arguments) {
  if constexpr (requires { exports::AutoCorr_NormA::call(detail::view(arguments)...); }) {
    return exports::AutoCorr_NormA::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::AutoCorr_NormA: no such function for elements of these types in this order. There are AutoCorr_NormA_32f "
        "AutoCorr_NormA_64f AutoCorr_NormA_32fc AutoCorr_NormA_64fc AutoCorr_NormA_16s_Sfs");
    return qvxStatBadArg;
  }
}

// Autocorrelation: dst[n] = the sum over i of conj(src[i]) * src[i + n], for n from 0 to dstLen - ... (qvxs_correlation.h)
namespace exports {
struct AutoCorr_NormB {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_NormB_32f(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_NormB_64f(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_NormB_32fc(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_NormB_64fc(src.data(), length(src.size()), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && countable(dst.size()));
    return qvxsAutoCorr_NormB_16s_Sfs(src.data(), length(src.size()), dst.data(), length(dst.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status AutoCorr_NormB(Arguments&&... arguments) {
  if constexpr (requires { exports::AutoCorr_NormB::call(detail::view(arguments)...); }) {
    return exports::AutoCorr_NormB::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::AutoCorr_NormB: no such function for elements of these types in this order. There are AutoCorr_NormB_32f "
        "AutoCorr_NormB_64f AutoCorr_NormB_32fc AutoCorr_NormB_64fc AutoCorr_NormB_16s_Sfs");
    return qvxStatBadArg;
  }
}

// Median filter: each element becomes the median of the maskSize elements around it, itself in the ... (qvxs_median.h)
namespace exports {
struct FilterMedian {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<int> maskSize) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsFilterMedian_32f(src.data(), dst.data(), length(src.size()), maskSize.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<int> maskSize) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsFilterMedian_32f_I(srcDst.data(), length(srcDst.size()), maskSize.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<int> maskSize) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsFilterMedian_64f(src.data(), dst.data(), length(src.size()), maskSize.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<int> maskSize) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsFilterMedian_64f_I(srcDst.data(), length(srcDst.size()), maskSize.number);
  }
  static Status call(In<Qvx8u> src, Out<Qvx8u> dst, Value<int> maskSize) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsFilterMedian_8u(src.data(), dst.data(), length(src.size()), maskSize.number);
  }
  static Status call(Out<Qvx8u> srcDst, Value<int> maskSize) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsFilterMedian_8u_I(srcDst.data(), length(srcDst.size()), maskSize.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> maskSize) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsFilterMedian_16s(src.data(), dst.data(), length(src.size()), maskSize.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> maskSize) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsFilterMedian_16s_I(srcDst.data(), length(srcDst.size()), maskSize.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dst, Value<int> maskSize) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsFilterMedian_32s(src.data(), dst.data(), length(src.size()), maskSize.number);
  }
  static Status call(Out<Qvx32s> srcDst, Value<int> maskSize) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsFilterMedian_32s_I(srcDst.data(), length(srcDst.size()), maskSize.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status FilterMedian(Arguments&&... arguments) {
  if constexpr (requires { exports::FilterMedian::call(detail::view(arguments)...); }) {
    return exports::FilterMedian::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::FilterMedian: no such function for elements of these types in this order. There are FilterMedian_32f "
        "FilterMedian_32f_I FilterMedian_64f FilterMedian_64f_I FilterMedian_8u FilterMedian_8u_I FilterMedian_16s "
        "FilterMedian_16s_I FilterMedian_32s FilterMedian_32s_I");
    return qvxStatBadArg;
  }
}

// Window sums: dst[n] = src[n] + ... + src[n + maskSize - 1], the exact sum rounded to a float. (qvxs_median.h)
namespace exports {
struct SumWindow {
  static Status call(In<Qvx8u> src, Out<Qvx32f> dst, Value<int> maskSize) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(src.size(), int64_t(dst.size()) + int64_t(maskSize.number) - 1));
    return qvxsSumWindow_8u32f(src.data(), dst.data(), length(dst.size()), maskSize.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx32f> dst, Value<int> maskSize) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(src.size(), int64_t(dst.size()) + int64_t(maskSize.number) - 1));
    return qvxsSumWindow_16s32f(src.data(), dst.data(), length(dst.size()), maskSize.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SumWindow(Arguments&&... arguments) {
  if constexpr (requires { exports::SumWindow::call(detail::view(arguments)...); }) {
    return exports::SumWindow::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SumWindow: no such function for elements of these types in this order. There are SumWindow_8u32f SumWindow_16s32f");
    return qvxStatBadArg;
  }
}

// Up: dst[n * factor + phase] = src[n], zeros everywhere else. The phase is read, not changed, so ... (qvxs_sample.h)
namespace exports {
struct SampleUp {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), int64_t(src.size()) * int64_t(factor.number)));
    return qvxsSampleUp_16s(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), int64_t(src.size()) * int64_t(factor.number)));
    return qvxsSampleUp_16sc(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), int64_t(src.size()) * int64_t(factor.number)));
    return qvxsSampleUp_32f(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), int64_t(src.size()) * int64_t(factor.number)));
    return qvxsSampleUp_32fc(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), int64_t(src.size()) * int64_t(factor.number)));
    return qvxsSampleUp_64f(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), int64_t(src.size()) * int64_t(factor.number)));
    return qvxsSampleUp_64fc(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SampleUp(Arguments&&... arguments) {
  if constexpr (requires { exports::SampleUp::call(detail::view(arguments)...); }) {
    return exports::SampleUp::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SampleUp: no such function for elements of these types in this order. There are SampleUp_16s SampleUp_16sc "
        "SampleUp_32f SampleUp_32fc SampleUp_64f SampleUp_64fc");
    return qvxStatBadArg;
  }
}

// Down: dst = src[phase], src[phase + factor] and so on while the index stays below srcLen; ... (qvxs_sample.h)
namespace exports {
struct SampleDown {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), quotient(int64_t(src.size()) - int64_t(phase) +
        int64_t(factor.number) - 1, int64_t(factor.number))));
    return qvxsSampleDown_16s(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), quotient(int64_t(src.size()) - int64_t(phase) +
        int64_t(factor.number) - 1, int64_t(factor.number))));
    return qvxsSampleDown_16sc(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), quotient(int64_t(src.size()) - int64_t(phase) +
        int64_t(factor.number) - 1, int64_t(factor.number))));
    return qvxsSampleDown_32f(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), quotient(int64_t(src.size()) - int64_t(phase) +
        int64_t(factor.number) - 1, int64_t(factor.number))));
    return qvxsSampleDown_32fc(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), quotient(int64_t(src.size()) - int64_t(phase) +
        int64_t(factor.number) - 1, int64_t(factor.number))));
    return qvxsSampleDown_64f(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, int& dstLen, Value<int> factor, int& phase) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dst.size(), quotient(int64_t(src.size()) - int64_t(phase) +
        int64_t(factor.number) - 1, int64_t(factor.number))));
    return qvxsSampleDown_64fc(src.data(), length(src.size()), dst.data(), &dstLen, factor.number, &phase);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SampleDown(Arguments&&... arguments) {
  if constexpr (requires { exports::SampleDown::call(detail::view(arguments)...); }) {
    return exports::SampleDown::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SampleDown: no such function for elements of these types in this order. There are SampleDown_16s SampleDown_16sc "
        "SampleDown_32f SampleDown_32fc SampleDown_64f SampleDown_64fc");
    return qvxStatBadArg;
  }
}

// A direct form without a record: integer taps b[0..order], s, a[1..order], all in units of 2^-s, ... (qvxs_iir.h)
namespace exports {
struct IIR_Direct {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, In<Qvx16s> taps, Out<Qvx32s> dlyLine) {
    QVX_REQUIRE(countable(src.size()) && countable(dlyLine.size()) && dst.size() == src.size() && atLeast(taps.size(), 2 *
        int64_t(dlyLine.size()) + 2));
    return qvxsIIR_Direct_16s(src.data(), dst.data(), length(src.size()), taps.data(), length(dlyLine.size()), dlyLine.data());
  }
  static Status call(Out<Qvx16s> srcDst, In<Qvx16s> taps, Out<Qvx32s> dlyLine) {
    QVX_REQUIRE(countable(srcDst.size()) && countable(dlyLine.size()) && atLeast(taps.size(), 2 * int64_t(dlyLine.size()) + 2));
    return qvxsIIR_Direct_16s_I(srcDst.data(), length(srcDst.size()), taps.data(), length(dlyLine.size()), dlyLine.data());
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status IIR_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::IIR_Direct::call(detail::view(arguments)...); }) {
    return exports::IIR_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::IIR_Direct: no such function for elements of these types in this order. There are IIR_Direct_16s IIR_Direct_16s_I");
    return qvxStatBadArg;
  }
}

// A direct form without a record: integer taps b[0..order], s, a[1..order], all in units of 2^-s, ... (qvxs_iir.h)
namespace exports {
struct IIROne_Direct {
  static Status call(Value<Qvx16s> src, Qvx16s& dstVal, In<Qvx16s> taps, Out<Qvx32s> dlyLine) {
    QVX_REQUIRE(countable(dlyLine.size()) && atLeast(taps.size(), 2 * int64_t(dlyLine.size()) + 2));
    return qvxsIIROne_Direct_16s(src.number, &dstVal, taps.data(), length(dlyLine.size()), dlyLine.data());
  }
  static Status call(Qvx16s& srcDst, In<Qvx16s> taps, Out<Qvx32s> dlyLine) {
    QVX_REQUIRE(countable(dlyLine.size()) && atLeast(taps.size(), 2 * int64_t(dlyLine.size()) + 2));
    return qvxsIIROne_Direct_16s_I(&srcDst, taps.data(), length(dlyLine.size()), dlyLine.data());
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status IIROne_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::IIROne_Direct::call(detail::view(arguments)...); }) {
    return exports::IIROne_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::IIROne_Direct: no such function for elements of these types in this order. There are IIROne_Direct_16s "
        "IIROne_Direct_16s_I");
    return qvxStatBadArg;
  }
}

// Sections without a record: integer taps b0, b1, b2, s, a1, a2 for each, in units of 2^-s, and 2 ... (qvxs_iir.h)
namespace exports {
struct IIR_BiQuadDirect {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, In<Qvx16s> taps, Value<int> numBq, Out<Qvx32s> dlyLine) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size() && atLeast(taps.size(), 6 * int64_t(numBq.number)) &&
        atLeast(dlyLine.size(), 2 * int64_t(numBq.number)));
    return qvxsIIR_BiQuadDirect_16s(src.data(), dst.data(), length(src.size()), taps.data(), numBq.number, dlyLine.data());
  }
  static Status call(Out<Qvx16s> srcDst, In<Qvx16s> taps, Value<int> numBq, Out<Qvx32s> dlyLine) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(taps.size(), 6 * int64_t(numBq.number)) && atLeast(dlyLine.size(), 2 *
        int64_t(numBq.number)));
    return qvxsIIR_BiQuadDirect_16s_I(srcDst.data(), length(srcDst.size()), taps.data(), numBq.number, dlyLine.data());
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status IIR_BiQuadDirect(Arguments&&... arguments) {
  if constexpr (requires { exports::IIR_BiQuadDirect::call(detail::view(arguments)...); }) {
    return exports::IIR_BiQuadDirect::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::IIR_BiQuadDirect: no such function for elements of these types in this order. There are IIR_BiQuadDirect_16s "
        "IIR_BiQuadDirect_16s_I");
    return qvxStatBadArg;
  }
}

// Sections without a record: integer taps b0, b1, b2, s, a1, a2 for each, in units of 2^-s, and 2 ... (qvxs_iir.h)
namespace exports {
struct IIROne_BiQuadDirect {
  static Status call(Value<Qvx16s> src, Qvx16s& dstVal, In<Qvx16s> taps, Value<int> numBq, Out<Qvx32s> dlyLine) {
    QVX_REQUIRE(atLeast(taps.size(), 6 * int64_t(numBq.number)) && atLeast(dlyLine.size(), 2 * int64_t(numBq.number)));
    return qvxsIIROne_BiQuadDirect_16s(src.number, &dstVal, taps.data(), numBq.number, dlyLine.data());
  }
  static Status call(Qvx16s& srcDst, In<Qvx16s> taps, Value<int> numBq, Out<Qvx32s> dlyLine) {
    QVX_REQUIRE(atLeast(taps.size(), 6 * int64_t(numBq.number)) && atLeast(dlyLine.size(), 2 * int64_t(numBq.number)));
    return qvxsIIROne_BiQuadDirect_16s_I(&srcDst, taps.data(), numBq.number, dlyLine.data());
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status IIROne_BiQuadDirect(Arguments&&... arguments) {
  if constexpr (requires { exports::IIROne_BiQuadDirect::call(detail::view(arguments)...); }) {
    return exports::IIROne_BiQuadDirect::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::IIROne_BiQuadDirect: no such function for elements of these types in this order. There are "
        "IIROne_BiQuadDirect_16s IIROne_BiQuadDirect_16s_I");
    return qvxStatBadArg;
  }
}

// Designs a low-pass or a high-pass filter: an analog prototype, its cut-off pre-warped, through ... (qvxs_iir.h)
namespace exports {
struct IIRGenLowpass {
  static Status call(Value<Qvx64f> rFreq, Value<Qvx64f> ripple, Value<int> order, Out<Qvx64f> taps, Value<int> filterType) {
    QVX_REQUIRE(atLeast(taps.size(), 2 * int64_t(order.number) + 2));
    return qvxsIIRGenLowpass_64f(rFreq.number, ripple.number, order.number, taps.data(), filterType.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status IIRGenLowpass(Arguments&&... arguments) {
  if constexpr (requires { exports::IIRGenLowpass::call(detail::view(arguments)...); }) {
    return exports::IIRGenLowpass::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::IIRGenLowpass: no such function for elements of these types in this order. There are IIRGenLowpass_64f");
    return qvxStatBadArg;
  }
}

// Designs a low-pass or a high-pass filter: an analog prototype, its cut-off pre-warped, through ... (qvxs_iir.h)
namespace exports {
struct IIRGenHighpass {
  static Status call(Value<Qvx64f> rFreq, Value<Qvx64f> ripple, Value<int> order, Out<Qvx64f> taps, Value<int> filterType) {
    QVX_REQUIRE(atLeast(taps.size(), 2 * int64_t(order.number) + 2));
    return qvxsIIRGenHighpass_64f(rFreq.number, ripple.number, order.number, taps.data(), filterType.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status IIRGenHighpass(Arguments&&... arguments) {
  if constexpr (requires { exports::IIRGenHighpass::call(detail::view(arguments)...); }) {
    return exports::IIRGenHighpass::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::IIRGenHighpass: no such function for elements of these types in this order. There are IIRGenHighpass_64f");
    return qvxStatBadArg;
  }
}

// dst[n] = r * scale + mid in doubles, two roundings, scale = (high - low) * 2.3283064365387e-10, ... (qvxs_generate.h)
namespace exports {
struct RandUniform_Direct {
  static Status call(Out<Qvx16s> dst, Value<Qvx16s> low, Value<Qvx16s> high, Qvx32u& seed) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsRandUniform_Direct_16s(dst.data(), length(dst.size()), low.number, high.number, &seed);
  }
  static Status call(Out<Qvx32f> dst, Value<Qvx32f> low, Value<Qvx32f> high, Qvx32u& seed) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsRandUniform_Direct_32f(dst.data(), length(dst.size()), low.number, high.number, &seed);
  }
  static Status call(Out<Qvx64f> dst, Value<Qvx64f> low, Value<Qvx64f> high, Qvx32u& seed) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsRandUniform_Direct_64f(dst.data(), length(dst.size()), low.number, high.number, &seed);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status RandUniform_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::RandUniform_Direct::call(detail::view(arguments)...); }) {
    return exports::RandUniform_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::RandUniform_Direct: no such function for elements of these types in this order. There are RandUniform_Direct_16s "
        "RandUniform_Direct_32f RandUniform_Direct_64f");
    return qvxStatBadArg;
  }
}

// Normal deviates by the polar method: of two steps u = r1 * c and v = r2 * c, c = ... (qvxs_generate.h)
namespace exports {
struct RandGauss_Direct {
  static Status call(Out<Qvx16s> dst, Value<Qvx16s> mean, Value<Qvx16s> stdDev, Qvx32u& seed) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsRandGauss_Direct_16s(dst.data(), length(dst.size()), mean.number, stdDev.number, &seed);
  }
  static Status call(Out<Qvx32f> dst, Value<Qvx32f> mean, Value<Qvx32f> stdDev, Qvx32u& seed) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsRandGauss_Direct_32f(dst.data(), length(dst.size()), mean.number, stdDev.number, &seed);
  }
  static Status call(Out<Qvx64f> dst, Value<Qvx64f> mean, Value<Qvx64f> stdDev, Qvx32u& seed) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsRandGauss_Direct_64f(dst.data(), length(dst.size()), mean.number, stdDev.number, &seed);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status RandGauss_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::RandGauss_Direct::call(detail::view(arguments)...); }) {
    return exports::RandGauss_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::RandGauss_Direct: no such function for elements of these types in this order. There are RandGauss_Direct_16s "
        "RandGauss_Direct_32f RandGauss_Direct_64f");
    return qvxStatBadArg;
  }
}

// dst[n] = magn * cos(2 pi rFreq n + phase); the imaginary part of complex elements is magn * ... (qvxs_generate.h)
namespace exports {
struct Tone_Direct {
  static Status call(Out<Qvx64f> dst, Value<Qvx64f> magn, Value<Qvx64f> rFreq, Qvx64f& phase, Value<int> hint = 0) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTone_Direct_64f(dst.data(), length(dst.size()), magn.number, rFreq.number, &phase, hint.number);
  }
  static Status call(Out<Qvx32f> dst, Value<Qvx32f> magn, Value<Qvx32f> rFreq, Qvx32f& phase, Value<int> hint = 0) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTone_Direct_32f(dst.data(), length(dst.size()), magn.number, rFreq.number, &phase, hint.number);
  }
  static Status call(Out<Qvx16s> dst, Value<Qvx16s> magn, Value<Qvx32f> rFreq, Qvx32f& phase, Value<int> hint = 0) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTone_Direct_16s(dst.data(), length(dst.size()), magn.number, rFreq.number, &phase, hint.number);
  }
  static Status call(Out<Qvx64fc> dst, Value<Qvx64f> magn, Value<Qvx64f> rFreq, Qvx64f& phase, Value<int> hint = 0) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTone_Direct_64fc(dst.data(), length(dst.size()), magn.number, rFreq.number, &phase, hint.number);
  }
  static Status call(Out<Qvx32fc> dst, Value<Qvx32f> magn, Value<Qvx32f> rFreq, Qvx32f& phase, Value<int> hint = 0) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTone_Direct_32fc(dst.data(), length(dst.size()), magn.number, rFreq.number, &phase, hint.number);
  }
  static Status call(Out<Qvx16sc> dst, Value<Qvx16s> magn, Value<Qvx32f> rFreq, Qvx32f& phase, Value<int> hint = 0) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTone_Direct_16sc(dst.data(), length(dst.size()), magn.number, rFreq.number, &phase, hint.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Tone_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::Tone_Direct::call(detail::view(arguments)...); }) {
    return exports::Tone_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Tone_Direct: no such function for elements of these types in this order. There are Tone_Direct_64f "
        "Tone_Direct_32f Tone_Direct_16s Tone_Direct_64fc Tone_Direct_32fc Tone_Direct_16sc");
    return qvxStatBadArg;
  }
}

// The first len samples of such a tone, without a record. (qvxs_generate.h)
namespace exports {
struct ToneQ15_Direct {
  static Status call(Out<Qvx16s> dst, Value<Qvx16s> magn, Value<Qvx16s> rFreqQ15, Value<Qvx32s> phaseQ15) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsToneQ15_Direct_16s(dst.data(), length(dst.size()), magn.number, rFreqQ15.number, phaseQ15.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status ToneQ15_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::ToneQ15_Direct::call(detail::view(arguments)...); }) {
    return exports::ToneQ15_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::ToneQ15_Direct: no such function for elements of these types in this order. There are ToneQ15_Direct_16s");
    return qvxStatBadArg;
  }
}

// A triangle wave: from magn at phase 0 straight down to -magn at phase pi + asym, straight up to ... (qvxs_generate.h)
namespace exports {
struct Triangle_Direct {
  static Status call(Out<Qvx64f> dst, Value<Qvx64f> magn, Value<Qvx64f> rFreq, Value<Qvx64f> asym, Qvx64f& phase) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTriangle_Direct_64f(dst.data(), length(dst.size()), magn.number, rFreq.number, asym.number, &phase);
  }
  static Status call(Out<Qvx32f> dst, Value<Qvx32f> magn, Value<Qvx32f> rFreq, Value<Qvx32f> asym, Qvx32f& phase) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTriangle_Direct_32f(dst.data(), length(dst.size()), magn.number, rFreq.number, asym.number, &phase);
  }
  static Status call(Out<Qvx16s> dst, Value<Qvx16s> magn, Value<Qvx32f> rFreq, Value<Qvx32f> asym, Qvx32f& phase) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTriangle_Direct_16s(dst.data(), length(dst.size()), magn.number, rFreq.number, asym.number, &phase);
  }
  static Status call(Out<Qvx64fc> dst, Value<Qvx64f> magn, Value<Qvx64f> rFreq, Value<Qvx64f> asym, Qvx64f& phase) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTriangle_Direct_64fc(dst.data(), length(dst.size()), magn.number, rFreq.number, asym.number, &phase);
  }
  static Status call(Out<Qvx32fc> dst, Value<Qvx32f> magn, Value<Qvx32f> rFreq, Value<Qvx32f> asym, Qvx32f& phase) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTriangle_Direct_32fc(dst.data(), length(dst.size()), magn.number, rFreq.number, asym.number, &phase);
  }
  static Status call(Out<Qvx16sc> dst, Value<Qvx16s> magn, Value<Qvx32f> rFreq, Value<Qvx32f> asym, Qvx32f& phase) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTriangle_Direct_16sc(dst.data(), length(dst.size()), magn.number, rFreq.number, asym.number, &phase);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Triangle_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::Triangle_Direct::call(detail::view(arguments)...); }) {
    return exports::Triangle_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Triangle_Direct: no such function for elements of these types in this order. There are Triangle_Direct_64f "
        "Triangle_Direct_32f Triangle_Direct_16s Triangle_Direct_64fc Triangle_Direct_32fc Triangle_Direct_16sc");
    return qvxStatBadArg;
  }
}

// The first len samples of such a wave, without a record. (qvxs_generate.h)
namespace exports {
struct TriangleQ15_Direct {
  static Status call(Out<Qvx16s> dst, Value<Qvx16s> magn, Value<Qvx16s> rFreqQ15, Value<Qvx32s> asymQ15, Value<Qvx32s> phaseQ15) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsTriangleQ15_Direct_16s(dst.data(), length(dst.size()), magn.number, rFreqQ15.number, asymQ15.number,
        phaseQ15.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status TriangleQ15_Direct(Arguments&&... arguments) {
  if constexpr (requires { exports::TriangleQ15_Direct::call(detail::view(arguments)...); }) {
    return exports::TriangleQ15_Direct::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::TriangleQ15_Direct: no such function for elements of these types in this order. There are TriangleQ15_Direct_16s");
    return qvxStatBadArg;
  }
}

// dst[n] = offset + slope * n: a product and a sum in doubles, then one rounding, of integers with ... (qvxs_generate.h)
namespace exports {
struct VectorRamp {
  static Status call(Out<Qvx8u> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorRamp_8u(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx8s> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorRamp_8s(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx16u> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorRamp_16u(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx16s> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorRamp_16s(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx32u> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorRamp_32u(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx32s> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorRamp_32s(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx32f> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorRamp_32f(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx64f> dst, Value<Qvx64f> offset, Value<Qvx64f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorRamp_64f(dst.data(), length(dst.size()), offset.number, slope.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status VectorRamp(Arguments&&... arguments) {
  if constexpr (requires { exports::VectorRamp::call(detail::view(arguments)...); }) {
    return exports::VectorRamp::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::VectorRamp: no such function for elements of these types in this order. There are VectorRamp_8u VectorRamp_8s "
        "VectorRamp_16u VectorRamp_16s VectorRamp_32u VectorRamp_32s VectorRamp_32f VectorRamp_64f");
    return qvxStatBadArg;
  }
}

// The same as Ramp, value for value. (qvxs_generate.h)
namespace exports {
struct VectorSlope {
  static Status call(Out<Qvx8u> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorSlope_8u(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx8s> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorSlope_8s(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx16u> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorSlope_16u(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx16s> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorSlope_16s(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx32u> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorSlope_32u(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx32s> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorSlope_32s(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx32f> dst, Value<Qvx32f> offset, Value<Qvx32f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorSlope_32f(dst.data(), length(dst.size()), offset.number, slope.number);
  }
  static Status call(Out<Qvx64f> dst, Value<Qvx64f> offset, Value<Qvx64f> slope) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorSlope_64f(dst.data(), length(dst.size()), offset.number, slope.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status VectorSlope(Arguments&&... arguments) {
  if constexpr (requires { exports::VectorSlope::call(detail::view(arguments)...); }) {
    return exports::VectorSlope::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::VectorSlope: no such function for elements of these types in this order. There are VectorSlope_8u VectorSlope_8s "
        "VectorSlope_16u VectorSlope_16s VectorSlope_32u VectorSlope_32s VectorSlope_32f VectorSlope_64f");
    return qvxStatBadArg;
  }
}

// A chirp that sweeps from 0 to half the sampling rate: dst[n] = magn * sin(pi/2 n^2 / len), ... (qvxs_generate.h)
namespace exports {
struct VectorJaehne {
  static Status call(Out<Qvx8u> dst, Value<Qvx8u> magn) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorJaehne_8u(dst.data(), length(dst.size()), magn.number);
  }
  static Status call(Out<Qvx8s> dst, Value<Qvx8s> magn) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorJaehne_8s(dst.data(), length(dst.size()), magn.number);
  }
  static Status call(Out<Qvx16u> dst, Value<Qvx16u> magn) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorJaehne_16u(dst.data(), length(dst.size()), magn.number);
  }
  static Status call(Out<Qvx16s> dst, Value<Qvx16s> magn) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorJaehne_16s(dst.data(), length(dst.size()), magn.number);
  }
  static Status call(Out<Qvx32u> dst, Value<Qvx32u> magn) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorJaehne_32u(dst.data(), length(dst.size()), magn.number);
  }
  static Status call(Out<Qvx32s> dst, Value<Qvx32s> magn) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorJaehne_32s(dst.data(), length(dst.size()), magn.number);
  }
  static Status call(Out<Qvx32f> dst, Value<Qvx32f> magn) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorJaehne_32f(dst.data(), length(dst.size()), magn.number);
  }
  static Status call(Out<Qvx64f> dst, Value<Qvx64f> magn) {
    QVX_REQUIRE(countable(dst.size()));
    return qvxsVectorJaehne_64f(dst.data(), length(dst.size()), magn.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status VectorJaehne(Arguments&&... arguments) {
  if constexpr (requires { exports::VectorJaehne::call(detail::view(arguments)...); }) {
    return exports::VectorJaehne::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::VectorJaehne: no such function for elements of these types in this order. There are VectorJaehne_8u "
        "VectorJaehne_8s VectorJaehne_16u VectorJaehne_16s VectorJaehne_32u VectorJaehne_32s VectorJaehne_32f VectorJaehne_64f");
    return qvxStatBadArg;
  }
}

// Bartlett: w[n] = 2 n / (N-1). With N = 3 the ends become 0 whatever they were. (qvxs_window.h)
namespace exports {
struct WinBartlett {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBartlett_16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBartlett_16s_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBartlett_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16sc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBartlett_16sc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBartlett_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBartlett_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBartlett_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBartlett_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBartlett_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBartlett_64f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBartlett_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBartlett_64fc_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status WinBartlett(Arguments&&... arguments) {
  if constexpr (requires { exports::WinBartlett::call(detail::view(arguments)...); }) {
    return exports::WinBartlett::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::WinBartlett: no such function for elements of these types in this order. There are WinBartlett_16s "
        "WinBartlett_16s_I WinBartlett_16sc WinBartlett_16sc_I WinBartlett_32f WinBartlett_32f_I WinBartlett_32fc "
        "WinBartlett_32fc_I WinBartlett_64f WinBartlett_64f_I WinBartlett_64fc WinBartlett_64fc_I");
    return qvxStatBadArg;
  }
}

// Hann: w[n] = 0.5 - 0.5 cos(2 pi n / (N-1)). With N = 3 the ends become 0 whatever they were. (qvxs_window.h)
namespace exports {
struct WinHann {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHann_16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHann_16s_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHann_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16sc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHann_16sc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHann_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHann_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHann_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHann_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHann_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHann_64f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHann_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHann_64fc_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status WinHann(Arguments&&... arguments) {
  if constexpr (requires { exports::WinHann::call(detail::view(arguments)...); }) {
    return exports::WinHann::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::WinHann: no such function for elements of these types in this order. There are WinHann_16s WinHann_16s_I "
        "WinHann_16sc WinHann_16sc_I WinHann_32f WinHann_32f_I WinHann_32fc WinHann_32fc_I WinHann_64f WinHann_64f_I "
        "WinHann_64fc WinHann_64fc_I");
    return qvxStatBadArg;
  }
}

// Hamming: w[n] = 0.54 - 0.46 cos(2 pi n / (N-1)). Integers: the first and the last element are ... (qvxs_window.h)
namespace exports {
struct WinHamming {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHamming_16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHamming_16s_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHamming_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16sc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHamming_16sc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHamming_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHamming_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHamming_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHamming_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHamming_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHamming_64f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinHamming_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinHamming_64fc_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status WinHamming(Arguments&&... arguments) {
  if constexpr (requires { exports::WinHamming::call(detail::view(arguments)...); }) {
    return exports::WinHamming::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::WinHamming: no such function for elements of these types in this order. There are WinHamming_16s WinHamming_16s_I"
        " WinHamming_16sc WinHamming_16sc_I WinHamming_32f WinHamming_32f_I WinHamming_32fc WinHamming_32fc_I WinHamming_64f "
        "WinHamming_64f_I WinHamming_64fc WinHamming_64fc_I");
    return qvxStatBadArg;
  }
}

// Blackman: w[n] = (alpha + 1)/2 - 0.5 cos(2 pi n / (N-1)) - alpha/2 cos(4 pi n / (N-1)), for any ... (qvxs_window.h)
namespace exports {
struct WinBlackman {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackman_16s(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackman_16s_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackman_16sc(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackman_16sc_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackman_32f(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackman_32f_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackman_32fc(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx32fc> srcDst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackman_32fc_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx64f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackman_64f(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<Qvx64f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackman_64f_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, Value<Qvx64f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackman_64fc(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx64fc> srcDst, Value<Qvx64f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackman_64fc_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status WinBlackman(Arguments&&... arguments) {
  if constexpr (requires { exports::WinBlackman::call(detail::view(arguments)...); }) {
    return exports::WinBlackman::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::WinBlackman: no such function for elements of these types in this order. There are WinBlackman_16s "
        "WinBlackman_16s_I WinBlackman_16sc WinBlackman_16sc_I WinBlackman_32f WinBlackman_32f_I WinBlackman_32fc "
        "WinBlackman_32fc_I WinBlackman_64f WinBlackman_64f_I WinBlackman_64fc WinBlackman_64fc_I");
    return qvxStatBadArg;
  }
}

// Blackman with alpha = -0.16 (as a Qvx32f, in all types). (qvxs_window.h)
namespace exports {
struct WinBlackmanStd {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanStd_16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanStd_16s_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanStd_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16sc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanStd_16sc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanStd_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanStd_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanStd_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanStd_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanStd_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanStd_64f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanStd_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanStd_64fc_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status WinBlackmanStd(Arguments&&... arguments) {
  if constexpr (requires { exports::WinBlackmanStd::call(detail::view(arguments)...); }) {
    return exports::WinBlackmanStd::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::WinBlackmanStd: no such function for elements of these types in this order. There are WinBlackmanStd_16s "
        "WinBlackmanStd_16s_I WinBlackmanStd_16sc WinBlackmanStd_16sc_I WinBlackmanStd_32f WinBlackmanStd_32f_I "
        "WinBlackmanStd_32fc WinBlackmanStd_32fc_I WinBlackmanStd_64f WinBlackmanStd_64f_I WinBlackmanStd_64fc "
        "WinBlackmanStd_64fc_I");
    return qvxStatBadArg;
  }
}

// Blackman with alpha = -(0.5 / cos(pi / (N-1)))^2, computed in doubles: the fastest fall of the ... (qvxs_window.h)
namespace exports {
struct WinBlackmanOpt {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanOpt_16s(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanOpt_16s_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanOpt_16sc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx16sc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanOpt_16sc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanOpt_32f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanOpt_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanOpt_32fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx32fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanOpt_32fc_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanOpt_64f(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanOpt_64f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanOpt_64fc(src.data(), dst.data(), length(src.size()));
  }
  static Status call(Out<Qvx64fc> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanOpt_64fc_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status WinBlackmanOpt(Arguments&&... arguments) {
  if constexpr (requires { exports::WinBlackmanOpt::call(detail::view(arguments)...); }) {
    return exports::WinBlackmanOpt::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::WinBlackmanOpt: no such function for elements of these types in this order. There are WinBlackmanOpt_16s "
        "WinBlackmanOpt_16s_I WinBlackmanOpt_16sc WinBlackmanOpt_16sc_I WinBlackmanOpt_32f WinBlackmanOpt_32f_I "
        "WinBlackmanOpt_32fc WinBlackmanOpt_32fc_I WinBlackmanOpt_64f WinBlackmanOpt_64f_I WinBlackmanOpt_64fc "
        "WinBlackmanOpt_64fc_I");
    return qvxStatBadArg;
  }
}

// Kaiser: w[n] = I0(|alpha| sqrt(n (N-1-n))) / I0(|alpha| (N-1) / 2), I0 the modified Bessel ... (qvxs_window.h)
namespace exports {
struct WinKaiser {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinKaiser_16s(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinKaiser_16s_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinKaiser_16sc(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinKaiser_16sc_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinKaiser_32f(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinKaiser_32f_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinKaiser_32fc(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx32fc> srcDst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinKaiser_32fc_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinKaiser_64f(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx64f> srcDst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinKaiser_64f_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinKaiser_64fc(src.data(), dst.data(), length(src.size()), alpha.number);
  }
  static Status call(Out<Qvx64fc> srcDst, Value<Qvx32f> alpha) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinKaiser_64fc_I(srcDst.data(), length(srcDst.size()), alpha.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status WinKaiser(Arguments&&... arguments) {
  if constexpr (requires { exports::WinKaiser::call(detail::view(arguments)...); }) {
    return exports::WinKaiser::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::WinKaiser: no such function for elements of these types in this order. There are WinKaiser_16s WinKaiser_16s_I "
        "WinKaiser_16sc WinKaiser_16sc_I WinKaiser_32f WinKaiser_32f_I WinKaiser_32fc WinKaiser_32fc_I WinKaiser_64f "
        "WinKaiser_64f_I WinKaiser_64fc WinKaiser_64fc_I");
    return qvxStatBadArg;
  }
}

// Blackman with alpha = alphaQ15 * 2^-15. _ISfs: each product times 2^-scaleFactor before it is ... (qvxs_window.h)
namespace exports {
struct WinBlackmanQ15 {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> alphaQ15) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanQ15_16s(src.data(), dst.data(), length(src.size()), alphaQ15.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> alphaQ15) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanQ15_16s_I(srcDst.data(), length(srcDst.size()), alphaQ15.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<int> alphaQ15) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinBlackmanQ15_16sc(src.data(), dst.data(), length(src.size()), alphaQ15.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<int> alphaQ15) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanQ15_16sc_I(srcDst.data(), length(srcDst.size()), alphaQ15.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> alphaQ15, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinBlackmanQ15_16s_ISfs(srcDst.data(), length(srcDst.size()), alphaQ15.number, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status WinBlackmanQ15(Arguments&&... arguments) {
  if constexpr (requires { exports::WinBlackmanQ15::call(detail::view(arguments)...); }) {
    return exports::WinBlackmanQ15::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::WinBlackmanQ15: no such function for elements of these types in this order. There are WinBlackmanQ15_16s "
        "WinBlackmanQ15_16s_I WinBlackmanQ15_16sc WinBlackmanQ15_16sc_I WinBlackmanQ15_16s_ISfs");
    return qvxStatBadArg;
  }
}

// Kaiser with alpha = alphaQ15 * 2^-15, of any sign. (qvxs_window.h)
namespace exports {
struct WinKaiserQ15 {
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<int> alphaQ15) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinKaiserQ15_16s(src.data(), dst.data(), length(src.size()), alphaQ15.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<int> alphaQ15) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinKaiserQ15_16s_I(srcDst.data(), length(srcDst.size()), alphaQ15.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<int> alphaQ15) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsWinKaiserQ15_16sc(src.data(), dst.data(), length(src.size()), alphaQ15.number);
  }
  static Status call(Out<Qvx16sc> srcDst, Value<int> alphaQ15) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsWinKaiserQ15_16sc_I(srcDst.data(), length(srcDst.size()), alphaQ15.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status WinKaiserQ15(Arguments&&... arguments) {
  if constexpr (requires { exports::WinKaiserQ15::call(detail::view(arguments)...); }) {
    return exports::WinKaiserQ15::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::WinKaiserQ15: no such function for elements of these types in this order. There are WinKaiserQ15_16s "
        "WinKaiserQ15_16s_I WinKaiserQ15_16sc WinKaiserQ15_16sc_I");
    return qvxStatBadArg;
  }
}

// One level of the Haar transform of x[0] .. x[len - 1]: low[k] = (x[2k] + x[2k + 1]) / 2 and ... (qvxs_wavelet.h)
namespace exports {
struct WTHaarFwd {
  static Status call(In<Qvx8s> src, Out<Qvx8s> dstLow, Out<Qvx8s> dstHigh) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dstLow.size(), quotient(int64_t(src.size()) + 1, 2)) && atLeast(dstHigh.size(),
        quotient(int64_t(src.size()), 2)));
    return qvxsWTHaarFwd_8s(src.data(), length(src.size()), dstLow.data(), dstHigh.data());
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dstLow, Out<Qvx16s> dstHigh) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dstLow.size(), quotient(int64_t(src.size()) + 1, 2)) && atLeast(dstHigh.size(),
        quotient(int64_t(src.size()), 2)));
    return qvxsWTHaarFwd_16s(src.data(), length(src.size()), dstLow.data(), dstHigh.data());
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dstLow, Out<Qvx32s> dstHigh) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dstLow.size(), quotient(int64_t(src.size()) + 1, 2)) && atLeast(dstHigh.size(),
        quotient(int64_t(src.size()), 2)));
    return qvxsWTHaarFwd_32s(src.data(), length(src.size()), dstLow.data(), dstHigh.data());
  }
  static Status call(In<Qvx64s> src, Out<Qvx64s> dstLow, Out<Qvx64s> dstHigh) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dstLow.size(), quotient(int64_t(src.size()) + 1, 2)) && atLeast(dstHigh.size(),
        quotient(int64_t(src.size()), 2)));
    return qvxsWTHaarFwd_64s(src.data(), length(src.size()), dstLow.data(), dstHigh.data());
  }
  static Status call(In<Qvx32f> src, Out<Qvx32f> dstLow, Out<Qvx32f> dstHigh) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dstLow.size(), quotient(int64_t(src.size()) + 1, 2)) && atLeast(dstHigh.size(),
        quotient(int64_t(src.size()), 2)));
    return qvxsWTHaarFwd_32f(src.data(), length(src.size()), dstLow.data(), dstHigh.data());
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dstLow, Out<Qvx64f> dstHigh) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dstLow.size(), quotient(int64_t(src.size()) + 1, 2)) && atLeast(dstHigh.size(),
        quotient(int64_t(src.size()), 2)));
    return qvxsWTHaarFwd_64f(src.data(), length(src.size()), dstLow.data(), dstHigh.data());
  }
  static Status call(In<Qvx8s> src, Out<Qvx8s> dstLow, Out<Qvx8s> dstHigh, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dstLow.size(), quotient(int64_t(src.size()) + 1, 2)) && atLeast(dstHigh.size(),
        quotient(int64_t(src.size()), 2)));
    return qvxsWTHaarFwd_8s_Sfs(src.data(), length(src.size()), dstLow.data(), dstHigh.data(), scaleFactor.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dstLow, Out<Qvx16s> dstHigh, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dstLow.size(), quotient(int64_t(src.size()) + 1, 2)) && atLeast(dstHigh.size(),
        quotient(int64_t(src.size()), 2)));
    return qvxsWTHaarFwd_16s_Sfs(src.data(), length(src.size()), dstLow.data(), dstHigh.data(), scaleFactor.number);
  }
  static Status call(In<Qvx32s> src, Out<Qvx32s> dstLow, Out<Qvx32s> dstHigh, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dstLow.size(), quotient(int64_t(src.size()) + 1, 2)) && atLeast(dstHigh.size(),
        quotient(int64_t(src.size()), 2)));
    return qvxsWTHaarFwd_32s_Sfs(src.data(), length(src.size()), dstLow.data(), dstHigh.data(), scaleFactor.number);
  }
  static Status call(In<Qvx64s> src, Out<Qvx64s> dstLow, Out<Qvx64s> dstHigh, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && atLeast(dstLow.size(), quotient(int64_t(src.size()) + 1, 2)) && atLeast(dstHigh.size(),
        quotient(int64_t(src.size()), 2)));
    return qvxsWTHaarFwd_64s_Sfs(src.data(), length(src.size()), dstLow.data(), dstHigh.data(), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status WTHaarFwd(Arguments&&... arguments) {
  if constexpr (requires { exports::WTHaarFwd::call(detail::view(arguments)...); }) {
    return exports::WTHaarFwd::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::WTHaarFwd: no such function for elements of these types in this order. There are WTHaarFwd_8s WTHaarFwd_16s "
        "WTHaarFwd_32s WTHaarFwd_64s WTHaarFwd_32f WTHaarFwd_64f WTHaarFwd_8s_Sfs WTHaarFwd_16s_Sfs WTHaarFwd_32s_Sfs "
        "WTHaarFwd_64s_Sfs");
    return qvxStatBadArg;
  }
}

// Back: dst[2k] = low[k] - high[k], dst[2k + 1] = low[k] + high[k]; the last element of an odd ... (qvxs_wavelet.h)
namespace exports {
struct WTHaarInv {
  static Status call(In<Qvx8s> srcLow, In<Qvx8s> srcHigh, Out<Qvx8s> dst) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(srcLow.size(), quotient(int64_t(dst.size()) + 1, 2)) && atLeast(srcHigh.size(),
        quotient(int64_t(dst.size()), 2)));
    return qvxsWTHaarInv_8s(srcLow.data(), srcHigh.data(), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx16s> srcLow, In<Qvx16s> srcHigh, Out<Qvx16s> dst) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(srcLow.size(), quotient(int64_t(dst.size()) + 1, 2)) && atLeast(srcHigh.size(),
        quotient(int64_t(dst.size()), 2)));
    return qvxsWTHaarInv_16s(srcLow.data(), srcHigh.data(), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx32s> srcLow, In<Qvx32s> srcHigh, Out<Qvx32s> dst) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(srcLow.size(), quotient(int64_t(dst.size()) + 1, 2)) && atLeast(srcHigh.size(),
        quotient(int64_t(dst.size()), 2)));
    return qvxsWTHaarInv_32s(srcLow.data(), srcHigh.data(), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx64s> srcLow, In<Qvx64s> srcHigh, Out<Qvx64s> dst) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(srcLow.size(), quotient(int64_t(dst.size()) + 1, 2)) && atLeast(srcHigh.size(),
        quotient(int64_t(dst.size()), 2)));
    return qvxsWTHaarInv_64s(srcLow.data(), srcHigh.data(), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx32f> srcLow, In<Qvx32f> srcHigh, Out<Qvx32f> dst) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(srcLow.size(), quotient(int64_t(dst.size()) + 1, 2)) && atLeast(srcHigh.size(),
        quotient(int64_t(dst.size()), 2)));
    return qvxsWTHaarInv_32f(srcLow.data(), srcHigh.data(), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx64f> srcLow, In<Qvx64f> srcHigh, Out<Qvx64f> dst) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(srcLow.size(), quotient(int64_t(dst.size()) + 1, 2)) && atLeast(srcHigh.size(),
        quotient(int64_t(dst.size()), 2)));
    return qvxsWTHaarInv_64f(srcLow.data(), srcHigh.data(), dst.data(), length(dst.size()));
  }
  static Status call(In<Qvx8s> srcLow, In<Qvx8s> srcHigh, Out<Qvx8s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(srcLow.size(), quotient(int64_t(dst.size()) + 1, 2)) && atLeast(srcHigh.size(),
        quotient(int64_t(dst.size()), 2)));
    return qvxsWTHaarInv_8s_Sfs(srcLow.data(), srcHigh.data(), dst.data(), length(dst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx16s> srcLow, In<Qvx16s> srcHigh, Out<Qvx16s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(srcLow.size(), quotient(int64_t(dst.size()) + 1, 2)) && atLeast(srcHigh.size(),
        quotient(int64_t(dst.size()), 2)));
    return qvxsWTHaarInv_16s_Sfs(srcLow.data(), srcHigh.data(), dst.data(), length(dst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx32s> srcLow, In<Qvx32s> srcHigh, Out<Qvx32s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(srcLow.size(), quotient(int64_t(dst.size()) + 1, 2)) && atLeast(srcHigh.size(),
        quotient(int64_t(dst.size()), 2)));
    return qvxsWTHaarInv_32s_Sfs(srcLow.data(), srcHigh.data(), dst.data(), length(dst.size()), scaleFactor.number);
  }
  static Status call(In<Qvx64s> srcLow, In<Qvx64s> srcHigh, Out<Qvx64s> dst, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(dst.size()) && atLeast(srcLow.size(), quotient(int64_t(dst.size()) + 1, 2)) && atLeast(srcHigh.size(),
        quotient(int64_t(dst.size()), 2)));
    return qvxsWTHaarInv_64s_Sfs(srcLow.data(), srcHigh.data(), dst.data(), length(dst.size()), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status WTHaarInv(Arguments&&... arguments) {
  if constexpr (requires { exports::WTHaarInv::call(detail::view(arguments)...); }) {
    return exports::WTHaarInv::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::WTHaarInv: no such function for elements of these types in this order. There are WTHaarInv_8s WTHaarInv_16s "
        "WTHaarInv_32s WTHaarInv_64s WTHaarInv_32f WTHaarInv_64f WTHaarInv_8s_Sfs WTHaarInv_16s_Sfs WTHaarInv_32s_Sfs "
        "WTHaarInv_64s_Sfs");
    return qvxStatBadArg;
  }
}

// *pVal = sum of x[n] * e^(jw(len - n)) for n = 0 .. len - 1, w = 2 pi rFreq: the component at ... (qvxs_goertzel.h)
namespace exports {
struct Goertz {
  static Status call(In<Qvx32f> src, Qvx32fc& val, Value<Qvx32f> rFreq) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsGoertz_32f(src.data(), length(src.size()), &val, rFreq.number);
  }
  static Status call(In<Qvx64f> src, Qvx64fc& val, Value<Qvx64f> rFreq) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsGoertz_64f(src.data(), length(src.size()), &val, rFreq.number);
  }
  static Status call(In<Qvx32fc> src, Qvx32fc& val, Value<Qvx32f> rFreq) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsGoertz_32fc(src.data(), length(src.size()), &val, rFreq.number);
  }
  static Status call(In<Qvx64fc> src, Qvx64fc& val, Value<Qvx64f> rFreq) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsGoertz_64fc(src.data(), length(src.size()), &val, rFreq.number);
  }
  static Status call(In<Qvx16s> src, Qvx16sc& val, Value<Qvx32f> rFreq, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsGoertz_16s_Sfs(src.data(), length(src.size()), &val, rFreq.number, scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Qvx16sc& val, Value<Qvx32f> rFreq, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsGoertz_16sc_Sfs(src.data(), length(src.size()), &val, rFreq.number, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Goertz(Arguments&&... arguments) {
  if constexpr (requires { exports::Goertz::call(detail::view(arguments)...); }) {
    return exports::Goertz::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Goertz: no such function for elements of these types in this order. There are Goertz_32f Goertz_64f Goertz_32fc "
        "Goertz_64fc Goertz_16s_Sfs Goertz_16sc_Sfs");
    return qvxStatBadArg;
  }
}

// The same for two frequencies in one pass. pVal, pRFreq: two elements each. (qvxs_goertzel.h)
namespace exports {
struct GoertzTwo {
  static Status call(In<Qvx32f> src, Out<Qvx32fc> val, In<Qvx32f> rFreq) {
    QVX_REQUIRE(countable(src.size()) && atLeast(val.size(), 2) && atLeast(rFreq.size(), 2));
    return qvxsGoertzTwo_32f(src.data(), length(src.size()), val.data(), rFreq.data());
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> val, In<Qvx32f> rFreq) {
    QVX_REQUIRE(countable(src.size()) && atLeast(val.size(), 2) && atLeast(rFreq.size(), 2));
    return qvxsGoertzTwo_32fc(src.data(), length(src.size()), val.data(), rFreq.data());
  }
  static Status call(In<Qvx64f> src, Out<Qvx64fc> val, In<Qvx64f> rFreq) {
    QVX_REQUIRE(countable(src.size()) && atLeast(val.size(), 2) && atLeast(rFreq.size(), 2));
    return qvxsGoertzTwo_64f(src.data(), length(src.size()), val.data(), rFreq.data());
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> val, In<Qvx64f> rFreq) {
    QVX_REQUIRE(countable(src.size()) && atLeast(val.size(), 2) && atLeast(rFreq.size(), 2));
    return qvxsGoertzTwo_64fc(src.data(), length(src.size()), val.data(), rFreq.data());
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> val, In<Qvx32f> rFreq, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && atLeast(val.size(), 2) && atLeast(rFreq.size(), 2));
    return qvxsGoertzTwo_16sc_Sfs(src.data(), length(src.size()), val.data(), rFreq.data(), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status GoertzTwo(Arguments&&... arguments) {
  if constexpr (requires { exports::GoertzTwo::call(detail::view(arguments)...); }) {
    return exports::GoertzTwo::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::GoertzTwo: no such function for elements of these types in this order. There are GoertzTwo_32f GoertzTwo_32fc "
        "GoertzTwo_64f GoertzTwo_64fc GoertzTwo_16sc_Sfs");
    return qvxStatBadArg;
  }
}

// The same for frequencies in units of 2^-15 of the sampling rate. (qvxs_goertzel.h)
namespace exports {
struct GoertzQ15 {
  static Status call(In<Qvx16sc> src, Qvx16sc& val, Value<Qvx16s> rFreqQ15, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsGoertzQ15_16sc_Sfs(src.data(), length(src.size()), &val, rFreqQ15.number, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status GoertzQ15(Arguments&&... arguments) {
  if constexpr (requires { exports::GoertzQ15::call(detail::view(arguments)...); }) {
    return exports::GoertzQ15::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::GoertzQ15: no such function for elements of these types in this order. There are GoertzQ15_16sc_Sfs");
    return qvxStatBadArg;
  }
}

// The same for frequencies in units of 2^-15 of the sampling rate. (qvxs_goertzel.h)
namespace exports {
struct GoertzTwoQ15 {
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> val, In<Qvx16s> rFreqQ15, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && atLeast(val.size(), 2) && atLeast(rFreqQ15.size(), 2));
    return qvxsGoertzTwoQ15_16sc_Sfs(src.data(), length(src.size()), val.data(), rFreqQ15.data(), scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status GoertzTwoQ15(Arguments&&... arguments) {
  if constexpr (requires { exports::GoertzTwoQ15::call(detail::view(arguments)...); }) {
    return exports::GoertzTwoQ15::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::GoertzTwoQ15: no such function for elements of these types in this order. There are GoertzTwoQ15_16sc_Sfs");
    return qvxStatBadArg;
  }
}

// The elements of pSrcDst in ascending or descending order. (qvxs_sort.h)
namespace exports {
struct SortAscend {
  static Status call(Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortAscend_8u_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortAscend_16s_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortAscend_16u_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortAscend_32s_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortAscend_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortAscend_64f_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SortAscend(Arguments&&... arguments) {
  if constexpr (requires { exports::SortAscend::call(detail::view(arguments)...); }) {
    return exports::SortAscend::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SortAscend: no such function for elements of these types in this order. There are SortAscend_8u_I "
        "SortAscend_16s_I SortAscend_16u_I SortAscend_32s_I SortAscend_32f_I SortAscend_64f_I");
    return qvxStatBadArg;
  }
}

// The elements of pSrcDst in ascending or descending order. (qvxs_sort.h)
namespace exports {
struct SortDescend {
  static Status call(Out<Qvx8u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortDescend_8u_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortDescend_16s_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16u> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortDescend_16u_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32s> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortDescend_32s_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortDescend_32f_I(srcDst.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx64f> srcDst) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsSortDescend_64f_I(srcDst.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SortDescend(Arguments&&... arguments) {
  if constexpr (requires { exports::SortDescend::call(detail::view(arguments)...); }) {
    return exports::SortDescend::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SortDescend: no such function for elements of these types in this order. There are SortDescend_8u_I "
        "SortDescend_16s_I SortDescend_16u_I SortDescend_32s_I SortDescend_32f_I SortDescend_64f_I");
    return qvxStatBadArg;
  }
}

// The same, and pDstIndx[i] = the place, 0 to len-1, that pSrcDst[i] had before. Comparisons are ... (qvxs_sort.h)
namespace exports {
struct SortIndexAscend {
  static Status call(Out<Qvx8u> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexAscend_8u_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16s> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexAscend_16s_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16u> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexAscend_16u_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32s> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexAscend_32s_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32f> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexAscend_32f_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx64f> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexAscend_64f_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SortIndexAscend(Arguments&&... arguments) {
  if constexpr (requires { exports::SortIndexAscend::call(detail::view(arguments)...); }) {
    return exports::SortIndexAscend::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SortIndexAscend: no such function for elements of these types in this order. There are SortIndexAscend_8u_I "
        "SortIndexAscend_16s_I SortIndexAscend_16u_I SortIndexAscend_32s_I SortIndexAscend_32f_I SortIndexAscend_64f_I");
    return qvxStatBadArg;
  }
}

// The same, and pDstIndx[i] = the place, 0 to len-1, that pSrcDst[i] had before. Comparisons are ... (qvxs_sort.h)
namespace exports {
struct SortIndexDescend {
  static Status call(Out<Qvx8u> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexDescend_8u_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16s> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexDescend_16s_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16u> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexDescend_16u_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32s> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexDescend_32s_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32f> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexDescend_32f_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx64f> srcDst, Out<Qvx32s> dstIndx) {
    QVX_REQUIRE(countable(srcDst.size()) && dstIndx.size() == srcDst.size());
    return qvxsSortIndexDescend_64f_I(srcDst.data(), dstIndx.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SortIndexDescend(Arguments&&... arguments) {
  if constexpr (requires { exports::SortIndexDescend::call(detail::view(arguments)...); }) {
    return exports::SortIndexDescend::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SortIndexDescend: no such function for elements of these types in this order. There are SortIndexDescend_8u_I "
        "SortIndexDescend_16s_I SortIndexDescend_16u_I SortIndexDescend_32s_I SortIndexDescend_32f_I SortIndexDescend_64f_I");
    return qvxStatBadArg;
  }
}

// The elements of pSrcDst in ascending order, as qvxsSortAscend leaves them. Long vectors of ... (qvxs_sort.h)
namespace exports {
struct SortRadixAscend {
  static Status call(Out<Qvx8u> srcDst, Out<Qvx8u> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixAscend_8u_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16s> srcDst, Out<Qvx16s> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixAscend_16s_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16u> srcDst, Out<Qvx16u> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixAscend_16u_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32s> srcDst, Out<Qvx32s> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixAscend_32s_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32u> srcDst, Out<Qvx32u> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixAscend_32u_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32f> srcDst, Out<Qvx32f> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixAscend_32f_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx64f> srcDst, Out<Qvx64f> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixAscend_64f_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SortRadixAscend(Arguments&&... arguments) {
  if constexpr (requires { exports::SortRadixAscend::call(detail::view(arguments)...); }) {
    return exports::SortRadixAscend::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SortRadixAscend: no such function for elements of these types in this order. There are SortRadixAscend_8u_I "
        "SortRadixAscend_16s_I SortRadixAscend_16u_I SortRadixAscend_32s_I SortRadixAscend_32u_I SortRadixAscend_32f_I "
        "SortRadixAscend_64f_I");
    return qvxStatBadArg;
  }
}

// pDstIndx[i] = the number, 0 to len-1, of the element that is in place i in ascending order; ... (qvxs_sort.h)
namespace exports {
struct SortRadixIndexAscend {
  static Status call(In<Qvx8u> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && srcStride.number >= 0 && atLeast(src.size(), (int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexAscend_8u(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
  static Status call(In<Qvx16s> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && atLeast(src.size(), quotient((int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 1, 2) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexAscend_16s(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
  static Status call(In<Qvx16u> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && atLeast(src.size(), quotient((int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 1, 2) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexAscend_16u(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
  static Status call(In<Qvx32s> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && atLeast(src.size(), quotient((int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 3, 4) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexAscend_32s(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
  static Status call(In<Qvx32u> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && atLeast(src.size(), quotient((int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 3, 4) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexAscend_32u(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
  static Status call(In<Qvx32f> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && atLeast(src.size(), quotient((int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 3, 4) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexAscend_32f(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SortRadixIndexAscend(Arguments&&... arguments) {
  if constexpr (requires { exports::SortRadixIndexAscend::call(detail::view(arguments)...); }) {
    return exports::SortRadixIndexAscend::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SortRadixIndexAscend: no such function for elements of these types in this order. There are "
        "SortRadixIndexAscend_8u SortRadixIndexAscend_16s SortRadixIndexAscend_16u SortRadixIndexAscend_32s "
        "SortRadixIndexAscend_32u SortRadixIndexAscend_32f");
    return qvxStatBadArg;
  }
}

// As qvxsSortRadixAscend, in descending order. (qvxs_sort.h)
namespace exports {
struct SortRadixDescend {
  static Status call(Out<Qvx8u> srcDst, Out<Qvx8u> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixDescend_8u_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16s> srcDst, Out<Qvx16s> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixDescend_16s_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx16u> srcDst, Out<Qvx16u> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixDescend_16u_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32s> srcDst, Out<Qvx32s> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixDescend_32s_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32u> srcDst, Out<Qvx32u> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixDescend_32u_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx32f> srcDst, Out<Qvx32f> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixDescend_32f_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
  static Status call(Out<Qvx64f> srcDst, Out<Qvx64f> tmp) {
    QVX_REQUIRE(countable(srcDst.size()) && atLeast(tmp.size(), int64_t(srcDst.size())));
    return qvxsSortRadixDescend_64f_I(srcDst.data(), tmp.data(), length(srcDst.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SortRadixDescend(Arguments&&... arguments) {
  if constexpr (requires { exports::SortRadixDescend::call(detail::view(arguments)...); }) {
    return exports::SortRadixDescend::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SortRadixDescend: no such function for elements of these types in this order. There are SortRadixDescend_8u_I "
        "SortRadixDescend_16s_I SortRadixDescend_16u_I SortRadixDescend_32s_I SortRadixDescend_32u_I SortRadixDescend_32f_I "
        "SortRadixDescend_64f_I");
    return qvxStatBadArg;
  }
}

// As qvxsSortRadixIndexAscend, in descending order; equal elements still in the order of their ... (qvxs_sort.h)
namespace exports {
struct SortRadixIndexDescend {
  static Status call(In<Qvx8u> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && srcStride.number >= 0 && atLeast(src.size(), (int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexDescend_8u(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
  static Status call(In<Qvx16s> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && atLeast(src.size(), quotient((int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 1, 2) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexDescend_16s(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
  static Status call(In<Qvx16u> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && atLeast(src.size(), quotient((int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 1, 2) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexDescend_16u(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
  static Status call(In<Qvx32s> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && atLeast(src.size(), quotient((int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 3, 4) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexDescend_32s(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
  static Status call(In<Qvx32u> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && atLeast(src.size(), quotient((int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 3, 4) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexDescend_32u(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
  static Status call(In<Qvx32f> src, Value<int> srcStride, Out<Qvx32s> dstIndx, Out<Qvx32s> tmpIndx) {
    QVX_REQUIRE(countable(dstIndx.size()) && atLeast(src.size(), quotient((int64_t(dstIndx.size()) - 1) *
        int64_t(srcStride.number) + 3, 4) + 1) && atLeast(tmpIndx.size(), int64_t(dstIndx.size())));
    return qvxsSortRadixIndexDescend_32f(src.data(), srcStride.number, dstIndx.data(), tmpIndx.data(), length(dstIndx.size()));
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status SortRadixIndexDescend(Arguments&&... arguments) {
  if constexpr (requires { exports::SortRadixIndexDescend::call(detail::view(arguments)...); }) {
    return exports::SortRadixIndexDescend::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::SortRadixIndexDescend: no such function for elements of these types in this order. There are "
        "SortRadixIndexDescend_8u SortRadixIndexDescend_16s SortRadixIndexDescend_16u SortRadixIndexDescend_32s "
        "SortRadixIndexDescend_32u SortRadixIndexDescend_32f");
    return qvxStatBadArg;
  }
}

// The squared distances from one received sample to the nearest point of each two-dimensional subset. (qvxs_decode.h)
namespace exports {
struct GetVarPointDV {
  static Status call(const Qvx16sc& src, Qvx32u& refPoint, Out<Qvx32u> variantPoint, In<Qvx8u> label, Value<int> states) {
    QVX_REQUIRE(atLeast(variantPoint.size(), 8 - 4 * quotient(1, 1 + (int64_t(states.number) - 16) * (int64_t(states.number) -
        16))) && atLeast(label.size(), 16));
    return qvxsGetVarPointDV_16sc(&src, &refPoint, variantPoint.data(), label.data(), states.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status GetVarPointDV(Arguments&&... arguments) {
  if constexpr (requires { exports::GetVarPointDV::call(detail::view(arguments)...); }) {
    return exports::GetVarPointDV::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::GetVarPointDV: no such function for elements of these types in this order. There are GetVarPointDV_16sc");
    return qvxStatBadArg;
  }
}

// The errors of the four-dimensional subsets from those of two symbols. (qvxs_decode.h)
namespace exports {
struct BuildSymblTableDV4D {
  static Status call(In<Qvx32u> variantPoint, Out<Qvx16u> currentSubsetPoint, Value<int> states, Value<int> bitInversion) {
    QVX_REQUIRE(atLeast(variantPoint.size(), 16) && atLeast(currentSubsetPoint.size(), 64 - 48 * quotient(1, 1 +
        (int64_t(states.number) - 16) * (int64_t(states.number) - 16)) - 32 * quotient(1, 1 + (int64_t(states.number) - 32) *
        (int64_t(states.number) - 32))));
    return qvxsBuildSymblTableDV4D_16sc(variantPoint.data(), currentSubsetPoint.data(), states.number, bitInversion.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status BuildSymblTableDV4D(Arguments&&... arguments) {
  if constexpr (requires { exports::BuildSymblTableDV4D::call(detail::view(arguments)...); }) {
    return exports::BuildSymblTableDV4D::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::BuildSymblTableDV4D: no such function for elements of these types in this order. There are "
        "BuildSymblTableDV4D_16sc");
    return qvxStatBadArg;
  }
}

// Add, compare, select: for the states i from 0 on and their branches j from 0 on, with n = ... (qvxs_decode.h)
namespace exports {
struct CalcStatesDV {
  static Status call(In<Qvx16u> pathError, In<Qvx8u> nextState, Out<Qvx16u> branchError, In<Qvx16u> currentSubsetPoint,
      Out<Qvx32u> pathTable, Value<int> offset) {
    QVX_REQUIRE(countable(pathError.size()) && offset.number >= 0 && atLeast(nextState.size(), int64_t(pathError.size()) * (16 -
        12 * quotient(1, 1 + (int64_t(pathError.size()) - 16) * (int64_t(pathError.size()) - 16)) - 8 * quotient(1, 1 +
        (int64_t(pathError.size()) - 32) * (int64_t(pathError.size()) - 32)))) && atLeast(branchError.size(), 256) &&
        atLeast(currentSubsetPoint.size(), 64 - 48 * quotient(1, 1 + (int64_t(pathError.size()) - 16) * (int64_t(pathError.size())
        - 16)) - 32 * quotient(1, 1 + (int64_t(pathError.size()) - 32) * (int64_t(pathError.size()) - 32))) &&
        atLeast(pathTable.size(), int64_t(offset.number) + 256));
    return qvxsCalcStatesDV_16sc(pathError.data(), nextState.data(), branchError.data(), currentSubsetPoint.data(),
        pathTable.data(), length(pathError.size()), offset.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status CalcStatesDV(Arguments&&... arguments) {
  if constexpr (requires { exports::CalcStatesDV::call(detail::view(arguments)...); }) {
    return exports::CalcStatesDV::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::CalcStatesDV: no such function for elements of these types in this order. There are CalcStatesDV_16sc");
    return qvxStatBadArg;
  }
}

// Ends a step: *pMinPathError = the least of pBranchError, *pMinState = the first state that has ... (qvxs_decode.h)
namespace exports {
struct UpdatePathMetricsDV {
  static Status call(Out<Qvx16u> branchError, Qvx16u& minPathError, Qvx8u& minState, Out<Qvx16u> pathError, Value<int> states) {
    QVX_REQUIRE(atLeast(branchError.size(), 64 - 48 * quotient(1, 1 + (int64_t(states.number) - 16) * (int64_t(states.number) -
        16)) - 32 * quotient(1, 1 + (int64_t(states.number) - 32) * (int64_t(states.number) - 32))) && atLeast(pathError.size(),
        64 - 48 * quotient(1, 1 + (int64_t(states.number) - 16) * (int64_t(states.number) - 16)) - 32 * quotient(1, 1 +
        (int64_t(states.number) - 32) * (int64_t(states.number) - 32))));
    return qvxsUpdatePathMetricsDV_16u(branchError.data(), &minPathError, &minState, pathError.data(), states.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status UpdatePathMetricsDV(Arguments&&... arguments) {
  if constexpr (requires { exports::UpdatePathMetricsDV::call(detail::view(arguments)...); }) {
    return exports::UpdatePathMetricsDV::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::UpdatePathMetricsDV: no such function for elements of these types in this order. There are "
        "UpdatePathMetricsDV_16u");
    return qvxStatBadArg;
  }
}

// In place: y[0] = x[0], y[n] = x[n] - val * x[n - 1]. Nothing is carried from one call to the next. (qvxs_helpers.h)
namespace exports {
struct Preemphasize {
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> val) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsPreemphasize_32f(srcDst.data(), length(srcDst.size()), val.number);
  }
  static Status call(Out<Qvx16s> srcDst, Value<Qvx32f> val) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsPreemphasize_16s(srcDst.data(), length(srcDst.size()), val.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Preemphasize(Arguments&&... arguments) {
  if constexpr (requires { exports::Preemphasize::call(detail::view(arguments)...); }) {
    return exports::Preemphasize::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Preemphasize: no such function for elements of these types in this order. There are Preemphasize_32f "
        "Preemphasize_16s");
    return qvxStatBadArg;
  }
}

// FM demodulation: dst[n] = the angle from the point n - 1 to the point n, in units of pi / 32768: ... (qvxs_helpers.h)
namespace exports {
struct DemodulateFM_CToR {
  static Status call(In<Qvx16s> srcRe, In<Qvx16s> srcIm, Out<Qvx16s> dst, Qvx16sc& dlyPoint) {
    QVX_REQUIRE(countable(srcRe.size()) && srcIm.size() == srcRe.size() && dst.size() == srcRe.size());
    return qvxsDemodulateFM_CToR_16s(srcRe.data(), srcIm.data(), dst.data(), length(srcRe.size()), &dlyPoint);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status DemodulateFM_CToR(Arguments&&... arguments) {
  if constexpr (requires { exports::DemodulateFM_CToR::call(detail::view(arguments)...); }) {
    return exports::DemodulateFM_CToR::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::DemodulateFM_CToR: no such function for elements of these types in this order. There are DemodulateFM_CToR_16s");
    return qvxStatBadArg;
  }
}

// A running average y = *pSrcDst over the samples in turn: y = (alpha * y + (32768 - alpha) * v) / ... (qvxs_helpers.h)
namespace exports {
struct UpdateLinear {
  static Status call(In<Qvx16s> src, Qvx32s& srcDst, Value<int> srcShiftRight, Value<Qvx16s> alpha, Value<int> hint = 0) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsUpdateLinear_16s32s_I(src.data(), length(src.size()), &srcDst, srcShiftRight.number, alpha.number, hint.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status UpdateLinear(Arguments&&... arguments) {
  if constexpr (requires { exports::UpdateLinear::call(detail::view(arguments)...); }) {
    return exports::UpdateLinear::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::UpdateLinear: no such function for elements of these types in this order. There are UpdateLinear_16s32s_I");
    return qvxStatBadArg;
  }
}

// A running average y = *pSrcDst over the samples in turn: y = (alpha * y + (32768 - alpha) * v) / ... (qvxs_helpers.h)
namespace exports {
struct UpdatePower {
  static Status call(In<Qvx16s> src, Qvx32s& srcDst, Value<int> srcShiftRight, Value<Qvx16s> alpha, Value<int> hint = 0) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsUpdatePower_16s32s_I(src.data(), length(src.size()), &srcDst, srcShiftRight.number, alpha.number, hint.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status UpdatePower(Arguments&&... arguments) {
  if constexpr (requires { exports::UpdatePower::call(detail::view(arguments)...); }) {
    return exports::UpdatePower::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::UpdatePower: no such function for elements of these types in this order. There are UpdatePower_16s32s_I");
    return qvxStatBadArg;
  }
}

// *pValZC = how often the sign changes between neighbours, the exact number rounded to a float: (qvxs_helpers.h)
namespace exports {
struct ZeroCrossing {
  static Status call(In<Qvx16s> src, Qvx32f& valZC, Value<int> zcType) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsZeroCrossing_16s32f(src.data(), length(src.size()), &valZC, zcType.number);
  }
  static Status call(In<Qvx32f> src, Qvx32f& valZC, Value<int> zcType) {
    QVX_REQUIRE(countable(src.size()));
    return qvxsZeroCrossing_32f(src.data(), length(src.size()), &valZC, zcType.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status ZeroCrossing(Arguments&&... arguments) {
  if constexpr (requires { exports::ZeroCrossing::call(detail::view(arguments)...); }) {
    return exports::ZeroCrossing::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::ZeroCrossing: no such function for elements of these types in this order. There are ZeroCrossing_16s32f "
        "ZeroCrossing_32f");
    return qvxStatBadArg;
  }
}

// The Cauchy function of robust estimation, in place: y = ln(1 + (x / C)^2) / 2. Within 2 ULP of ... (qvxs_helpers.h)
namespace exports {
struct Cauchy {
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> c) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsCauchy_32f_I(srcDst.data(), length(srcDst.size()), c.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Cauchy(Arguments&&... arguments) {
  if constexpr (requires { exports::Cauchy::call(detail::view(arguments)...); }) {
    return exports::Cauchy::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Cauchy: no such function for elements of these types in this order. There are Cauchy_32f_I");
    return qvxStatBadArg;
  }
}

// Its derivative, in place: y = x / (C^2 + x^2), within 2 ULP. Otherwise as qvxsCauchy_32f_I. (qvxs_helpers.h)
namespace exports {
struct CauchyD {
  static Status call(Out<Qvx32f> srcDst, Value<Qvx32f> c) {
    QVX_REQUIRE(countable(srcDst.size()));
    return qvxsCauchyD_32f_I(srcDst.data(), length(srcDst.size()), c.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status CauchyD(Arguments&&... arguments) {
  if constexpr (requires { exports::CauchyD::call(detail::view(arguments)...); }) {
    return exports::CauchyD::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::CauchyD: no such function for elements of these types in this order. There are CauchyD_32f_I");
    return qvxStatBadArg;
  }
}

// Both derivatives: y = x / (C^2 + x^2) in place, and pD2F[n] = (C^2 - x^2) / (C^2 + x^2)^2, each ... (qvxs_helpers.h)
namespace exports {
struct CauchyDD2 {
  static Status call(Out<Qvx32f> srcDst, Out<Qvx32f> d2F, Value<Qvx32f> c) {
    QVX_REQUIRE(countable(srcDst.size()) && d2F.size() == srcDst.size());
    return qvxsCauchyDD2_32f_I(srcDst.data(), d2F.data(), length(srcDst.size()), c.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status CauchyDD2(Arguments&&... arguments) {
  if constexpr (requires { exports::CauchyDD2::call(detail::view(arguments)...); }) {
    return exports::CauchyDD2::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::CauchyDD2: no such function for elements of these types in this order. There are CauchyDD2_32f_I");
    return qvxStatBadArg;
  }
}

// dst = (src - vSub) / vDiv. Floats: the rounded difference times the rounded reciprocal of vDiv; ... (qvxs_helpers.h)
namespace exports {
struct Normalize {
  static Status call(In<Qvx32f> src, Out<Qvx32f> dst, Value<Qvx32f> vSub, Value<Qvx32f> vDiv) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsNormalize_32f(src.data(), dst.data(), length(src.size()), vSub.number, vDiv.number);
  }
  static Status call(In<Qvx64f> src, Out<Qvx64f> dst, Value<Qvx64f> vSub, Value<Qvx64f> vDiv) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsNormalize_64f(src.data(), dst.data(), length(src.size()), vSub.number, vDiv.number);
  }
  static Status call(In<Qvx32fc> src, Out<Qvx32fc> dst, Value<Qvx32fc> vSub, Value<Qvx32f> vDiv) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsNormalize_32fc(src.data(), dst.data(), length(src.size()), vSub.number, vDiv.number);
  }
  static Status call(In<Qvx64fc> src, Out<Qvx64fc> dst, Value<Qvx64fc> vSub, Value<Qvx64f> vDiv) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsNormalize_64fc(src.data(), dst.data(), length(src.size()), vSub.number, vDiv.number);
  }
  static Status call(In<Qvx16s> src, Out<Qvx16s> dst, Value<Qvx16s> vSub, Value<int> vDiv, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsNormalize_16s_Sfs(src.data(), dst.data(), length(src.size()), vSub.number, vDiv.number, scaleFactor.number);
  }
  static Status call(In<Qvx16sc> src, Out<Qvx16sc> dst, Value<Qvx16sc> vSub, Value<int> vDiv, Value<int> scaleFactor) {
    QVX_REQUIRE(countable(src.size()) && dst.size() == src.size());
    return qvxsNormalize_16sc_Sfs(src.data(), dst.data(), length(src.size()), vSub.number, vDiv.number, scaleFactor.number);
  }
};
}  // namespace exports
template <class... Arguments>
[[nodiscard]] Status Normalize(Arguments&&... arguments) {
  if constexpr (requires { exports::Normalize::call(detail::view(arguments)...); }) {
    return exports::Normalize::call(detail::view(arguments)...);
  } else {
    static_assert(detail::kNever<Arguments...>,
        "qvx::Normalize: no such function for elements of these types in this order. There are Normalize_32f Normalize_64f "
        "Normalize_32fc Normalize_64fc Normalize_16s_Sfs Normalize_16sc_Sfs");
    return qvxStatBadArg;
  }
}

}  // namespace QVX_POLICY
}  // namespace qvx

#endif
