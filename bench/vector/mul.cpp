// Products.
#include "frame/families.h"
#include "peers/ofast.h"
#include "peers/plain_arithmetic.h"
#include "peers/volk.h"

namespace bench {

namespace {
constexpr auto kFused = Agreement::kFused;
}

// clang-format off
void mul(Suite& s) {
  s.row("Mul_8u_Sfs, scale 3", qvxsMul_8u_Sfs, 3).plain(plain::Scaled<plain::Product>());
  s.row("Mul_8u16u", qvxsMul_8u16u).plain(plain::Direct<plain::Product>());
  s.row("Mul_16s", qvxsMul_16s).plain(plain::Direct<plain::Product>());
  s.row("Mul_16s_Sfs, scale -3", qvxsMul_16s_Sfs, -3).plain(plain::Scaled<plain::Product>()).against("definition", plain::byDefinition<plain::Product>);
  s.row("Mul_16s_Sfs, scale 0", qvxsMul_16s_Sfs, 0).plain(plain::Scaled<plain::Product>()).against("definition", plain::byDefinition<plain::Product>);
  s.row("Mul_16s_Sfs, scale 1", qvxsMul_16s_Sfs, 1).plain(plain::Scaled<plain::Product>()).against("definition", plain::byDefinition<plain::Product>);
  s.row("Mul_16s_Sfs, scale 2", qvxsMul_16s_Sfs, 2).plain(plain::Scaled<plain::Product>()).against("definition", plain::byDefinition<plain::Product>);
  s.row("Mul_16s_Sfs, scale 3", qvxsMul_16s_Sfs, 3).plain(plain::Scaled<plain::Product>()).against("definition", plain::byDefinition<plain::Product>);
  s.row("Mul_16s_Sfs, scale 8", qvxsMul_16s_Sfs, 8).plain(plain::Scaled<plain::Product>()).against("definition", plain::byDefinition<plain::Product>);
  s.row("Mul_16s_Sfs, scale 15", qvxsMul_16s_Sfs, 15).plain(plain::Scaled<plain::Product>()).against("definition", plain::byDefinition<plain::Product>);
  s.row("Mul_16s_Sfs, scale 20", qvxsMul_16s_Sfs, 20).plain(plain::Scaled<plain::Product>()).against("definition", plain::byDefinition<plain::Product>);
  s.row("Mul_16u_Sfs, scale 3", qvxsMul_16u_Sfs, 3).plain(plain::Scaled<plain::Product>());
  s.row("Mul_16u16s_Sfs, scale 3", qvxsMul_16u16s_Sfs, 3).plain(plain::Scaled<plain::Product>());
  s.row("Mul_16s32s_Sfs, scale 3", qvxsMul_16s32s_Sfs, 3).plain(plain::Scaled<plain::Product>());
  s.row("Mul_16s32f", qvxsMul_16s32f).plain(plain::Direct<plain::Product>());
  s.row("Mul_16sc_Sfs, scale 3", qvxsMul_16sc_Sfs, 3).plain(plain::Scaled<plain::Product>());
  s.row("Mul_32s_Sfs, scale 3", qvxsMul_32s_Sfs, 3).plain(plain::ThroughDoubles<plain::Product>());
  s.row("Mul_32sc_Sfs, scale 3", qvxsMul_32sc_Sfs, 3).plain(plain::Scaled<plain::Product>());
  s.row("Mul_32s32sc_Sfs, scale 3", qvxsMul_32s32sc_Sfs, 3).plain(plain::Scaled<plain::Product>());
  s.row("Mul_32f", qvxsMul_32f).plain(plain::Direct<plain::Product>()).against("VOLK", volk::mul32f);
  s.row("Mul_32fc", qvxsMul_32fc).plain(plain::Direct<plain::Product>(), kFused).against("VOLK", volk::mul32fc, kFused).against("-Ofast", ofast::product, kFused);
  s.row("Mul_32f32fc", qvxsMul_32f32fc).plain(plain::Direct<plain::Product>()).against("VOLK", volk::mul32f32fc);
  s.row("Mul_64f", qvxsMul_64f).plain(plain::Direct<plain::Product>()).against("VOLK", volk::mul64f);
  s.row("Mul_64fc", qvxsMul_64fc).plain(plain::Direct<plain::Product>(), kFused);
  s.row("Mul_Low_32s_Sfs, scale 3", qvxsMul_Low_32s_Sfs, 3).plain(plain::LowProduct());

  s.row("MulC_8u_Sfs, scale 3", qvxsMulC_8u_Sfs, Qvx8u{37}, 3).plain(plain::Scaled<plain::Product>());
  s.row("MulC_16s_I", qvxsMulC_16s_I, Qvx16s{-1234}).plain(plain::Direct<plain::Product>());
  s.row("MulC_16s_Sfs, scale 3", qvxsMulC_16s_Sfs, Qvx16s{-1234}, 3).plain(plain::Scaled<plain::Product>());
  s.row("MulC_16u_Sfs, scale 3", qvxsMulC_16u_Sfs, Qvx16u{1234}, 3).plain(plain::Scaled<plain::Product>());
  s.row("MulC_16sc_Sfs, scale 3", qvxsMulC_16sc_Sfs, Qvx16sc{1234, -567}, 3).plain(plain::Scaled<plain::Product>());
  s.row("MulC_32s_Sfs, scale 3", qvxsMulC_32s_Sfs, 123456789, 3).plain(plain::Scaled<plain::Product>());
  s.row("MulC_32sc_Sfs, scale 3", qvxsMulC_32sc_Sfs, Qvx32sc{123456789, -98765432}, 3).plain(plain::Scaled<plain::Product>());
  s.row("MulC_32f", qvxsMulC_32f, 1.5F).plain(plain::Direct<plain::Product>()).against("VOLK", volk::mulC32f);
  s.row("MulC_32fc", qvxsMulC_32fc, Qvx32fc{1.5F, -0.25F}).plain(plain::Direct<plain::Product>(), kFused).against("VOLK", volk::mulC32fc, kFused);
  s.row("MulC_64f", qvxsMulC_64f, 1.5).plain(plain::Direct<plain::Product>());
  s.row("MulC_64fc", qvxsMulC_64fc, Qvx64fc{1.5, -0.25}).plain(plain::Direct<plain::Product>(), kFused);
  s.row("MulC_32f16s_Sfs, scale 3", qvxsMulC_32f16s_Sfs, 1.5F, 3).plain(plain::FloatProductTo16());
  s.row("MulC_64s_ISfs, scale 3", qvxsMulC_64s_ISfs, Qvx64s{-123456789012345678}, 3).plain(plain::ProductOf64s());
  s.row("MulC_64f64s_ISfs, scale 3", qvxsMulC_64f64s_ISfs, 1.5, 3).against("plain", plain::mulC64f64s);
  s.row("MulC_Low_32f16s", qvxsMulC_Low_32f16s, 1.5F).plain(plain::LowFloatProductTo16());

  s.row("Mul_32fc", qvxsMul_32fc).plain(plain::Direct<plain::Product>(), kFused).against("VOLK", volk::mul32fc, kFused).misaligned();
}
// clang-format on

}  // namespace bench
