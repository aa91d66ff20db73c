// Square roots.
#include "frame/families.h"
#include "peers/ofast.h"
#include "peers/plain_math.h"
#include "peers/volk.h"

namespace bench {

namespace {
using Scaled = plain::RoundedFunction<plain::rootOrZero, float>;
using ScaledScalar = plain::RoundedFunction<plain::rootOrZero, float, true>;
using ScaledInDoubles = plain::RoundedFunction<plain::rootOrZero, double>;
using ScaledInDoublesScalar = plain::RoundedFunction<plain::rootOrZero, double, true>;
constexpr auto kDiffers = Agreement::kDiffers;
}  // namespace

// clang-format off
void sqrt(Suite& s) {
  const auto root = plain::Each<plain::squareRoot>();
  const auto complexRoot = plain::Each<plain::complexRoot>();
  s.row("Sqrt_32f", qvxsSqrt_32f).within(0, 1000).plain(root).against("VOLK", volk::sqrt32f).against("-Ofast", ofast::root, kDiffers);
  s.row("Sqrt_64f", qvxsSqrt_64f).within(0, 1000).plain(root);
  s.row("Sqrt_32fc", qvxsSqrt_32fc).plain(complexRoot, kDiffers);
  s.row("Sqrt_64fc", qvxsSqrt_64fc).plain(complexRoot, kDiffers);
  s.row("Sqrt_8u_Sfs, scale 0", qvxsSqrt_8u_Sfs, 0).plain(Scaled()).against("scalar", plain::loopFor<ScaledScalar, decltype(&qvxsSqrt_8u_Sfs)>());
  s.row("Sqrt_16u_Sfs, scale 0", qvxsSqrt_16u_Sfs, 0).plain(Scaled()).against("scalar", plain::loopFor<ScaledScalar, decltype(&qvxsSqrt_16u_Sfs)>());
  s.row("Sqrt_16s_Sfs, scale 0", qvxsSqrt_16s_Sfs, 0).plain(Scaled()).against("scalar", plain::loopFor<ScaledScalar, decltype(&qvxsSqrt_16s_Sfs)>());
  s.row("Sqrt_16s_Sfs, scale -7", qvxsSqrt_16s_Sfs, -7).plain(Scaled(), kDiffers).against("scalar", plain::loopFor<ScaledScalar, decltype(&qvxsSqrt_16s_Sfs)>(), kDiffers);
  s.row("Sqrt_16s_Sfs, scale 2", qvxsSqrt_16s_Sfs, 2).plain(Scaled()).against("scalar", plain::loopFor<ScaledScalar, decltype(&qvxsSqrt_16s_Sfs)>());
  s.row("Sqrt_16sc_Sfs, scale 0", qvxsSqrt_16sc_Sfs, 0).plain(plain::RoundedFunction<plain::rootOrZero, double>(), kDiffers);
  s.row("Sqrt_64s_Sfs, scale 0", qvxsSqrt_64s_Sfs, 0).plain(ScaledInDoubles()).against("bit trials", plain::bitTrials, kDiffers);
  s.row("Sqrt_64s_Sfs, scale 3", qvxsSqrt_64s_Sfs, 3).plain(ScaledInDoubles());
  s.row("Sqrt_64s_Sfs, scale -8", qvxsSqrt_64s_Sfs, -8).plain(ScaledInDoubles()).against("bit trials", plain::bitTrials, kDiffers);
  s.row("Sqrt_64s_Sfs, scale -30", qvxsSqrt_64s_Sfs, -30).plain(ScaledInDoubles(), kDiffers).against("bit trials", plain::bitTrials, kDiffers);
  s.row("Sqrt_32s16s_Sfs, scale 0", qvxsSqrt_32s16s_Sfs, 0).plain(ScaledInDoubles()).against("scalar", plain::loopFor<ScaledInDoublesScalar, decltype(&qvxsSqrt_32s16s_Sfs)>());
  s.row("Sqrt_64s16s_Sfs, scale 16", qvxsSqrt_64s16s_Sfs, 16).plain(ScaledInDoubles()).against("scalar", plain::loopFor<ScaledInDoublesScalar, decltype(&qvxsSqrt_64s16s_Sfs)>());

  s.row("Sqrt_32f", qvxsSqrt_32f).inTeam();
  s.row("Sqrt_64f", qvxsSqrt_64f).inTeam();
  s.row("Sqrt_32fc", qvxsSqrt_32fc).inTeam();
  s.row("Sqrt_64fc", qvxsSqrt_64fc).inTeam();
  s.row("Sqrt_8u_Sfs, scale 0", qvxsSqrt_8u_Sfs, 0).inTeam();
  s.row("Sqrt_16s_Sfs, scale 0", qvxsSqrt_16s_Sfs, 0).inTeam();
  s.row("Sqrt_16sc_Sfs, scale 0", qvxsSqrt_16sc_Sfs, 0).inTeam();
  s.row("Sqrt_32s16s_Sfs, scale 0", qvxsSqrt_32s16s_Sfs, 0).inTeam();
  s.row("Sqrt_64s16s_Sfs, scale 16", qvxsSqrt_64s16s_Sfs, 16).inTeam();
}
// clang-format on

}  // namespace bench
