// Magnitudes, phases, and both from and to complex elements.
#include "frame/families.h"
#include "peers/ofast.h"
#include "peers/plain_polar.h"
#include "peers/sleef.h"
#include "peers/volk.h"

namespace bench {

// clang-format off
void polar(Suite& s) {
  constexpr auto kDiffers = Agreement::kDiffers;  // the plain loops compute with another accuracy
  const auto magnitude = plain::Each<plain::magnitudeOf>();
  s.row("Magnitude_32fc", qvxsMagnitude_32fc).plain(magnitude, Agreement::kFused).against("VOLK", volk::magnitude32fc, Agreement::kFused);
  s.row("Magnitude_64fc", qvxsMagnitude_64fc).plain(magnitude, Agreement::kFused);
  s.row("Magnitude_32f", qvxsMagnitude_32f).plain(magnitude, Agreement::kFused).against("-Ofast", ofast::magnitude, kDiffers);
  s.row("Magnitude_64f", qvxsMagnitude_64f).plain(magnitude, Agreement::kFused);
  s.row("Magnitude_16sc32f", qvxsMagnitude_16sc32f).plain(magnitude, kDiffers);
  s.row("Magnitude_16s32f", qvxsMagnitude_16s32f).plain(magnitude, kDiffers);
  s.row("Magnitude_16sc_Sfs, scale 0", qvxsMagnitude_16sc_Sfs, 0).plain(plain::Each<plain::scaledMagnitude16>(), kDiffers);
  s.row("Magnitude_16s_Sfs, scale 0", qvxsMagnitude_16s_Sfs, 0).plain(plain::Each<plain::scaledMagnitude16>(), kDiffers);
  s.row("Magnitude_32sc_Sfs, scale 0", qvxsMagnitude_32sc_Sfs, 0).plain(plain::Each<plain::scaledMagnitude32>(), kDiffers);

  const auto phase = plain::Each<plain::phaseOf>();
  s.row("Phase_32fc", qvxsPhase_32fc).plain(phase, kDiffers).against("VOLK", volk::phase32fc, kDiffers);
  s.row("Phase_64fc", qvxsPhase_64fc).plain(phase, kDiffers);
  s.row("Phase_32f", qvxsPhase_32f).plain(phase, kDiffers).against("SLEEF", sleef::phase32f, kDiffers);
  s.row("Phase_64f", qvxsPhase_64f).plain(phase, kDiffers).against("SLEEF", sleef::phase64f, kDiffers);
  s.row("Phase_16sc32f", qvxsPhase_16sc32f).plain(phase, kDiffers);
  s.row("Phase_16sc_Sfs, scale -12", qvxsPhase_16sc_Sfs, -12).plain(plain::Each<plain::scaledPhase16>(), kDiffers);
  s.row("Phase_32sc_Sfs, scale -28", qvxsPhase_32sc_Sfs, -28).plain(plain::Each<plain::scaledPhase32>(), kDiffers);

  s.row("CartToPolar_32fc", qvxsCartToPolar_32fc).against("plain", plain::toPolar<Qvx32fc>, kDiffers);
  s.row("CartToPolar_64fc", qvxsCartToPolar_64fc).against("plain", plain::toPolar<Qvx64fc>, kDiffers);
  s.row("PolarToCart_32fc", qvxsPolarToCart_32fc).plain(plain::Each<plain::toCart>(), kDiffers);
  s.row("PolarToCart_64fc", qvxsPolarToCart_64fc).plain(plain::Each<plain::toCart>(), kDiffers);

  s.row("Magnitude_32fc", qvxsMagnitude_32fc).inTeam();
  s.row("Magnitude_64fc", qvxsMagnitude_64fc).inTeam();
  s.row("Magnitude_32f", qvxsMagnitude_32f).inTeam();
  s.row("Magnitude_64f", qvxsMagnitude_64f).inTeam();
  s.row("Magnitude_16sc32f", qvxsMagnitude_16sc32f).inTeam();
  s.row("Magnitude_16sc_Sfs, scale 0", qvxsMagnitude_16sc_Sfs, 0).inTeam();
  s.row("Magnitude_32sc_Sfs, scale 0", qvxsMagnitude_32sc_Sfs, 0).inTeam();
}
// clang-format on

}  // namespace bench
