// Differences.
#include "frame/families.h"
#include "peers/plain_arithmetic.h"
#include "peers/volk.h"

namespace bench {

// clang-format off
void sub(Suite& s) {
  s.row("Sub_8u_Sfs, scale 3", qvxsSub_8u_Sfs, 3).plain(plain::Scaled<plain::Difference>());
  s.row("Sub_16s", qvxsSub_16s).plain(plain::Direct<plain::Difference>());
  s.row("Sub_16s_Sfs, scale 3", qvxsSub_16s_Sfs, 3).plain(plain::Scaled<plain::Difference>());
  s.row("Sub_16u_Sfs, scale 3", qvxsSub_16u_Sfs, 3).plain(plain::Scaled<plain::Difference>());
  s.row("Sub_16sc_Sfs, scale 3", qvxsSub_16sc_Sfs, 3).plain(plain::Scaled<plain::Difference>());
  s.row("Sub_16s32f", qvxsSub_16s32f).plain(plain::Direct<plain::Difference>());
  s.row("Sub_32s_Sfs, scale 3", qvxsSub_32s_Sfs, 3).plain(plain::Scaled<plain::Difference>());
  s.row("Sub_32sc_Sfs, scale 3", qvxsSub_32sc_Sfs, 3).plain(plain::Scaled<plain::Difference>());
  s.row("Sub_32f", qvxsSub_32f).plain(plain::Direct<plain::Difference>()).against("VOLK", volk::sub32f);
  s.row("Sub_32fc", qvxsSub_32fc).plain(plain::Direct<plain::Difference>());
  s.row("Sub_64f", qvxsSub_64f).plain(plain::Direct<plain::Difference>());
  s.row("Sub_64fc", qvxsSub_64fc).plain(plain::Direct<plain::Difference>());

  s.row("SubC_8u_Sfs, scale 3", qvxsSubC_8u_Sfs, Qvx8u{37}, 3).plain(plain::Scaled<plain::FirstMinusSecond>());
  s.row("SubC_16s_I", qvxsSubC_16s_I, Qvx16s{-1234}).plain(plain::Direct<plain::FirstMinusSecond>());
  s.row("SubC_16s_Sfs, scale 3", qvxsSubC_16s_Sfs, Qvx16s{-1234}, 3).plain(plain::Scaled<plain::FirstMinusSecond>());
  s.row("SubC_16u_Sfs, scale 3", qvxsSubC_16u_Sfs, Qvx16u{1234}, 3).plain(plain::Scaled<plain::FirstMinusSecond>());
  s.row("SubC_16sc_Sfs, scale 3", qvxsSubC_16sc_Sfs, Qvx16sc{1234, -567}, 3).plain(plain::Scaled<plain::FirstMinusSecond>());
  s.row("SubC_32s_Sfs, scale 3", qvxsSubC_32s_Sfs, 123456789, 3).plain(plain::Scaled<plain::FirstMinusSecond>());
  s.row("SubC_32sc_Sfs, scale 3", qvxsSubC_32sc_Sfs, Qvx32sc{123456789, -98765432}, 3).plain(plain::Scaled<plain::FirstMinusSecond>());
  s.row("SubC_32f", qvxsSubC_32f, 1.5F).plain(plain::Direct<plain::FirstMinusSecond>());
  s.row("SubC_32fc", qvxsSubC_32fc, Qvx32fc{1.5F, -0.25F}).plain(plain::Direct<plain::FirstMinusSecond>());
  s.row("SubC_64f", qvxsSubC_64f, 1.5).plain(plain::Direct<plain::FirstMinusSecond>());
  s.row("SubC_64fc", qvxsSubC_64fc, Qvx64fc{1.5, -0.25}).plain(plain::Direct<plain::FirstMinusSecond>());

  s.row("SubCRev_8u_Sfs, scale 3", qvxsSubCRev_8u_Sfs, Qvx8u{37}, 3).plain(plain::Scaled<plain::Difference>());
  s.row("SubCRev_16s_Sfs, scale 3", qvxsSubCRev_16s_Sfs, Qvx16s{-1234}, 3).plain(plain::Scaled<plain::Difference>());
  s.row("SubCRev_16u_Sfs, scale 3", qvxsSubCRev_16u_Sfs, Qvx16u{1234}, 3).plain(plain::Scaled<plain::Difference>());
  s.row("SubCRev_16sc_Sfs, scale 3", qvxsSubCRev_16sc_Sfs, Qvx16sc{1234, -567}, 3).plain(plain::Scaled<plain::Difference>());
  s.row("SubCRev_32s_Sfs, scale 3", qvxsSubCRev_32s_Sfs, 123456789, 3).plain(plain::Scaled<plain::Difference>());
  s.row("SubCRev_32sc_Sfs, scale 3", qvxsSubCRev_32sc_Sfs, Qvx32sc{123456789, -98765432}, 3).plain(plain::Scaled<plain::Difference>());
  s.row("SubCRev_32f", qvxsSubCRev_32f, 1.5F).plain(plain::Direct<plain::Difference>());
  s.row("SubCRev_32fc", qvxsSubCRev_32fc, Qvx32fc{1.5F, -0.25F}).plain(plain::Direct<plain::Difference>());
  s.row("SubCRev_64f", qvxsSubCRev_64f, 1.5).plain(plain::Direct<plain::Difference>());
  s.row("SubCRev_64fc", qvxsSubCRev_64fc, Qvx64fc{1.5, -0.25}).plain(plain::Direct<plain::Difference>());
}
// clang-format on

}  // namespace bench
