// Parts, conjugates, order and power of complex vectors.
#include "frame/families.h"
#include "peers/plain_complex.h"
#include "peers/volk.h"

namespace bench {

// clang-format off
void complexForms(Suite& s) {
  s.row("Real_16sc", qvxsReal_16sc).plain(plain::Each<plain::realPart>()).against("VOLK", volk::real16sc);
  s.row("Real_32fc", qvxsReal_32fc).plain(plain::Each<plain::realPart>()).against("VOLK", volk::real32fc);
  s.row("Imag_32fc", qvxsImag_32fc).plain(plain::Each<plain::imaginaryPart>()).against("VOLK", volk::imag32fc);
  s.row("Real_64fc", qvxsReal_64fc).plain(plain::Each<plain::realPart>());
  s.row("CplxToReal_16sc", qvxsCplxToReal_16sc).against("plain", plain::split<Qvx16sc>).against("VOLK", volk::split16sc);
  s.row("CplxToReal_32fc", qvxsCplxToReal_32fc).against("plain", plain::split<Qvx32fc>).against("VOLK", volk::split32fc);
  s.row("CplxToReal_64fc", qvxsCplxToReal_64fc).against("plain", plain::split<Qvx64fc>);
  s.row("RealToCplx_16s", qvxsRealToCplx_16s).plain(plain::Each<plain::join>());
  s.row("RealToCplx_32f", qvxsRealToCplx_32f).plain(plain::Each<plain::join>()).against("VOLK", volk::join32f);
  s.row("RealToCplx_64f", qvxsRealToCplx_64f).plain(plain::Each<plain::join>());
  s.row("Conj_16sc", qvxsConj_16sc).plain(plain::Each<plain::saturatedConjugate>());
  s.row("Conj_32fc", qvxsConj_32fc).plain(plain::Each<plain::conjugate>()).against("VOLK", volk::conj32fc);
  s.row("Conj_64fc", qvxsConj_64fc).plain(plain::Each<plain::conjugate>());
  s.row("ConjFlip_32fc", qvxsConjFlip_32fc).against("plain", plain::conjugateFlip<Qvx32fc>);
  s.row("Flip_8u", qvxsFlip_8u).against("plain", plain::flip<Qvx8u>);
  s.row("Flip_16u", qvxsFlip_16u).against("plain", plain::flip<Qvx16u>);
  s.row("Flip_32f", qvxsFlip_32f).against("plain", plain::flip<Qvx32f>);
  s.row("Flip_64f", qvxsFlip_64f).against("plain", plain::flip<Qvx64f>);
  s.row("Flip_32fc", qvxsFlip_32fc).against("plain", plain::flip<Qvx32fc>);
  s.row("Flip_64fc", qvxsFlip_64fc).against("plain", plain::flip<Qvx64fc>);
  s.row("Flip_32f_I", qvxsFlip_32f_I).against("plain", plain::flipInPlace<Qvx32f>, Agreement::kDiffers);
  s.row("Flip_8u_I", qvxsFlip_8u_I).against("plain", plain::flipInPlace<Qvx8u>, Agreement::kDiffers);

  s.row("PowerSpectr_32fc", qvxsPowerSpectr_32fc).plain(plain::Each<plain::power>(), Agreement::kFused).against("VOLK", volk::power32fc, Agreement::kFused);
  s.row("PowerSpectr_64fc", qvxsPowerSpectr_64fc).plain(plain::Each<plain::power>(), Agreement::kFused);
  s.row("PowerSpectr_32f", qvxsPowerSpectr_32f).plain(plain::Each<plain::power>(), Agreement::kFused);
  s.row("PowerSpectr_16sc32f", qvxsPowerSpectr_16sc32f).plain(plain::Each<plain::floatPower>(), Agreement::kDiffers);
  s.row("PowerSpectr_16s32f", qvxsPowerSpectr_16s32f).plain(plain::Each<plain::floatPower>(), Agreement::kDiffers);
  s.row("PowerSpectr_16sc_Sfs, scale 15", qvxsPowerSpectr_16sc_Sfs, 15).plain(plain::Each<plain::scaledPower16>());
  s.row("PowerSpectr_16s_Sfs, scale 15", qvxsPowerSpectr_16s_Sfs, 15).plain(plain::Each<plain::scaledPower16>());
  s.row("MagSquared_32fc64f", qvxsMagSquared_32fc64f).plain(plain::Each<plain::widePower>(), Agreement::kFused);
  s.row("MagSquared_32sc32s_Sfs, scale 31", qvxsMagSquared_32sc32s_Sfs, 31).plain(plain::Each<plain::scaledPower32>());
}
// clang-format on

}  // namespace bench
