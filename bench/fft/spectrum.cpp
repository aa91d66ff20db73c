// Products of packed spectra, and spectra unfolded.
#include "frame/families.h"
#include "peers/plain_spectrum.h"

namespace bench {

// clang-format off
void spectrum(Suite& s) {
  constexpr auto kFused = Agreement::kFused;
  s.row("MulPack_32f", qvxsMulPack_32f).against("plain", plain::packedProduct<1, float>, kFused);
  s.row("MulPack_64f", qvxsMulPack_64f).against("plain", plain::packedProduct<1, double>, kFused);
  s.row("MulPerm_32f", qvxsMulPerm_32f).against("plain", plain::packedProduct<2, float>, kFused);
  s.row("MulPerm_64f", qvxsMulPerm_64f).against("plain", plain::packedProduct<2, double>, kFused);
  s.row("MulPack_16s_Sfs, scale 15", qvxsMulPack_16s_Sfs, 15).against("plain", plain::packedProduct16<1>);
  s.row("MulPerm_16s_Sfs, scale 15", qvxsMulPerm_16s_Sfs, 15).against("plain", plain::packedProduct16<2>);
  s.row("MulPackConj_32f_I", qvxsMulPackConj_32f_I).against("plain", plain::packedConjugateProduct<float>, Agreement::kDiffers);
  s.row("MulPackConj_64f_I", qvxsMulPackConj_64f_I).against("plain", plain::packedConjugateProduct<double>, Agreement::kDiffers);
  s.row("ConjPack_32fc", qvxsConjPack_32fc).against("plain", plain::unfold<1, false, Qvx32fc>);
  s.row("ConjPack_64fc", qvxsConjPack_64fc).against("plain", plain::unfold<1, false, Qvx64fc>);
  s.row("ConjPack_16sc", qvxsConjPack_16sc).against("plain", plain::unfold<1, false, Qvx16sc>);
  s.row("ConjPerm_32fc", qvxsConjPerm_32fc).against("plain", plain::unfold<2, false, Qvx32fc>);
  s.row("ConjCcs_32fc", qvxsConjCcs_32fc).against("plain", plain::unfold<2, true, Qvx32fc>);
}
// clang-format on

}  // namespace bench
