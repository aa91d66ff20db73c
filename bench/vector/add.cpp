// Sums, with constants and with products.
#include "frame/families.h"
#include "peers/plain_arithmetic.h"
#include "peers/volk.h"

namespace bench {

namespace {
constexpr auto kFused = Agreement::kFused;
}

// clang-format off
void add(Suite& s) {
  s.row("Add_8u_Sfs, scale 3", qvxsAdd_8u_Sfs, 3).plain(plain::Scaled<plain::Sum>());
  s.row("Add_8u16u", qvxsAdd_8u16u).plain(plain::Direct<plain::Sum>());
  s.row("Add_16s", qvxsAdd_16s).plain(plain::Direct<plain::Sum>());
  s.row("Add_16s_Sfs, scale -3", qvxsAdd_16s_Sfs, -3).plain(plain::Scaled<plain::Sum>()).against("definition", plain::byDefinition<plain::Sum>);
  s.row("Add_16s_Sfs, scale 0", qvxsAdd_16s_Sfs, 0).plain(plain::Scaled<plain::Sum>()).against("definition", plain::byDefinition<plain::Sum>);
  s.row("Add_16s_Sfs, scale 1", qvxsAdd_16s_Sfs, 1).plain(plain::Scaled<plain::Sum>()).against("definition", plain::byDefinition<plain::Sum>);
  s.row("Add_16s_Sfs, scale 2", qvxsAdd_16s_Sfs, 2).plain(plain::Scaled<plain::Sum>()).against("definition", plain::byDefinition<plain::Sum>);
  s.row("Add_16s_Sfs, scale 3", qvxsAdd_16s_Sfs, 3).plain(plain::Scaled<plain::Sum>()).against("definition", plain::byDefinition<plain::Sum>);
  s.row("Add_16s_Sfs, scale 8", qvxsAdd_16s_Sfs, 8).plain(plain::Scaled<plain::Sum>()).against("definition", plain::byDefinition<plain::Sum>);
  s.row("Add_16s_Sfs, scale 15", qvxsAdd_16s_Sfs, 15).plain(plain::Scaled<plain::Sum>()).against("definition", plain::byDefinition<plain::Sum>);
  s.row("Add_16s_Sfs, scale 20", qvxsAdd_16s_Sfs, 20).plain(plain::Scaled<plain::Sum>()).against("definition", plain::byDefinition<plain::Sum>);
  s.row("Add_16u", qvxsAdd_16u).plain(plain::Direct<plain::Sum>());
  s.row("Add_16u_Sfs, scale 3", qvxsAdd_16u_Sfs, 3).plain(plain::Scaled<plain::Sum>());
  s.row("Add_16sc_Sfs, scale 3", qvxsAdd_16sc_Sfs, 3).plain(plain::Scaled<plain::Sum>());
  s.row("Add_16s32f", qvxsAdd_16s32f).plain(plain::Direct<plain::Sum>());
  s.row("Add_16s32s_I", qvxsAdd_16s32s_I).plain(plain::Direct<plain::SumInto>());
  s.row("Add_32u", qvxsAdd_32u).plain(plain::SumOf32u());
  s.row("Add_32s_Sfs, scale 3", qvxsAdd_32s_Sfs, 3).plain(plain::Scaled<plain::Sum>());
  s.row("Add_32sc_Sfs, scale 3", qvxsAdd_32sc_Sfs, 3).plain(plain::Scaled<plain::Sum>());
  s.row("Add_32f", qvxsAdd_32f).plain(plain::Direct<plain::Sum>()).against("VOLK", volk::add32f);
  s.row("Add_32fc", qvxsAdd_32fc).plain(plain::Direct<plain::Sum>()).against("VOLK", volk::add32fc);
  s.row("Add_64f", qvxsAdd_64f).plain(plain::Direct<plain::Sum>()).against("VOLK", volk::add64f);
  s.row("Add_64fc", qvxsAdd_64fc).plain(plain::Direct<plain::Sum>());
  s.row("Add_64s_Sfs, scale 3", qvxsAdd_64s_Sfs, 3).plain(plain::ScaledSum64());

  s.row("AddC_8u_Sfs, scale 3", qvxsAddC_8u_Sfs, Qvx8u{37}, 3).plain(plain::Scaled<plain::Sum>());
  s.row("AddC_16s_I", qvxsAddC_16s_I, Qvx16s{-1234}).plain(plain::Direct<plain::Sum>());
  s.row("AddC_16s_Sfs, scale 3", qvxsAddC_16s_Sfs, Qvx16s{-1234}, 3).plain(plain::Scaled<plain::Sum>());
  s.row("AddC_16u_Sfs, scale 3", qvxsAddC_16u_Sfs, Qvx16u{1234}, 3).plain(plain::Scaled<plain::Sum>());
  s.row("AddC_16sc_Sfs, scale 3", qvxsAddC_16sc_Sfs, Qvx16sc{1234, -567}, 3).plain(plain::Scaled<plain::Sum>());
  s.row("AddC_32s_Sfs, scale 3", qvxsAddC_32s_Sfs, 123456789, 3).plain(plain::Scaled<plain::Sum>());
  s.row("AddC_32sc_Sfs, scale 3", qvxsAddC_32sc_Sfs, Qvx32sc{123456789, -98765432}, 3).plain(plain::Scaled<plain::Sum>());
  s.row("AddC_32f", qvxsAddC_32f, 1.5F).plain(plain::Direct<plain::Sum>()).against("VOLK", volk::addC32f);
  s.row("AddC_32fc", qvxsAddC_32fc, Qvx32fc{1.5F, -0.25F}).plain(plain::Direct<plain::Sum>());
  s.row("AddC_64f", qvxsAddC_64f, 1.5).plain(plain::Direct<plain::Sum>());
  s.row("AddC_64fc", qvxsAddC_64fc, Qvx64fc{1.5, -0.25}).plain(plain::Direct<plain::Sum>());
  s.row("AddC_64s_Sfs, scale 3", qvxsAddC_64s_Sfs, Qvx64s{-123456789012345678}, 3, qvxRoundNearestEven).plain(plain::Rounded<plain::Sum>());
  s.row("AddC_64u_Sfs, scale 3", qvxsAddC_64u_Sfs, Qvx64u{123456789012345678}, 3, qvxRoundNearestEven).plain(plain::Rounded<plain::Sum>());

  s.row("AddProduct_16s_Sfs, scale 3", qvxsAddProduct_16s_Sfs, 3).plain(plain::Scaled<plain::ProductSum>());
  s.row("AddProduct_16s32s_Sfs, scale 3", qvxsAddProduct_16s32s_Sfs, 3).plain(plain::Scaled<plain::ProductSum>());
  s.row("AddProduct_32s_Sfs, scale 3", qvxsAddProduct_32s_Sfs, 3).plain(plain::ThroughDoubles<plain::ProductSum>());
  s.row("AddProduct_32f", qvxsAddProduct_32f).plain(plain::Direct<plain::ProductSum>(), kFused);
  s.row("AddProduct_64f", qvxsAddProduct_64f).plain(plain::Direct<plain::ProductSum>(), kFused);
  s.row("AddProduct_32fc", qvxsAddProduct_32fc).plain(plain::Direct<plain::ProductSum>(), kFused);
  s.row("AddProduct_64fc", qvxsAddProduct_64fc).plain(plain::Direct<plain::ProductSum>(), kFused);

  s.row("AddProductC_32f", qvxsAddProductC_32f, 1.5F).plain(plain::Direct<plain::ProductSum>(), kFused);

  s.row("Add_32f", qvxsAdd_32f).plain(plain::Direct<plain::Sum>()).against("VOLK", volk::add32f).misaligned();
  s.row("Add_16s", qvxsAdd_16s).plain(plain::Direct<plain::Sum>()).misaligned();
  s.row("Add_16s_Sfs, scale 3", qvxsAdd_16s_Sfs, 3).plain(plain::Scaled<plain::Sum>()).misaligned();
}
// clang-format on

}  // namespace bench
