// Thresholds and reciprocals above them.
#include "frame/families.h"
#include "peers/plain_threshold.h"

namespace bench {

// Half of all elements lie beyond a level of 500; where nothing does, the level is 2000.
void threshold(Suite& s) {
  const auto below = plain::Each<plain::raisedTo>();
  const auto above = plain::Each<plain::loweredTo>();
  s.row("Threshold_LT_16s", qvxsThreshold_LT_16s, Qvx16s{-1000}).plain(below);
  s.row("Threshold_LT_32s", qvxsThreshold_LT_32s, -1000).plain(below);
  s.row("Threshold_LT_32f", qvxsThreshold_LT_32f, 500.0F).plain(below);
  s.row("Threshold_LT_64f", qvxsThreshold_LT_64f, 500.0).plain(below);
  s.row("Threshold_GT_32f", qvxsThreshold_GT_32f, 500.0F).plain(above);
  const auto value = plain::Each<plain::replacedBelow>();
  s.row("Threshold_LTVal_16s", qvxsThreshold_LTVal_16s, Qvx16s{500}, Qvx16s{3}).plain(value);
  s.row("Threshold_LTVal_32f", qvxsThreshold_LTVal_32f, 500.0F, 3.0F).plain(value);
  s.row("Threshold_LTVal_64f", qvxsThreshold_LTVal_64f, 500.0, 3.0).plain(value);
  const auto values = plain::Each<plain::replacedOutside>();
  s.row("Threshold_LTValGTVal_16s", qvxsThreshold_LTValGTVal_16s, Qvx16s{-500}, Qvx16s{3}, Qvx16s{500}, Qvx16s{7}).plain(values);
  s.row("Threshold_LTValGTVal_32s", qvxsThreshold_LTValGTVal_32s, -500, 3, 500, 7).plain(values);
  s.row("Threshold_LTValGTVal_32f", qvxsThreshold_LTValGTVal_32f, -500.0F, 3.0F, 500.0F, 7.0F).plain(values);
  s.row("Threshold_LTValGTVal_64f", qvxsThreshold_LTValGTVal_64f, -500.0, 3.0, 500.0, 7.0).plain(values);
  const auto raised = plain::Each<plain::magnitudeRaised>();
  const auto lowered = plain::Each<plain::magnitudeLowered>();
  s.row("Threshold_LTAbs_16s", qvxsThreshold_LTAbs_16s, Qvx16s{500}).plain(raised);
  s.row("Threshold_LTAbs_32s", qvxsThreshold_LTAbs_32s, 500).plain(raised);
  s.row("Threshold_LTAbs_32f", qvxsThreshold_LTAbs_32f, 500.0F).plain(raised);
  s.row("Threshold_LTAbs_64f", qvxsThreshold_LTAbs_64f, 500.0).plain(raised);
  s.row("Threshold_GTAbs_16s", qvxsThreshold_GTAbs_16s, Qvx16s{500}).plain(lowered);
  s.row("Threshold_GTAbs_32s", qvxsThreshold_GTAbs_32s, 500).plain(lowered);
  s.row("Threshold_GTAbs_32f", qvxsThreshold_GTAbs_32f, 500.0F).plain(lowered);

  constexpr auto kDiffers = Agreement::kDiffers;  // the plain loops compute in the element's type
  const auto clip = plain::Each<plain::clippedAbove>();
  s.row("Threshold_GT_16sc, half of all", qvxsThreshold_GT_16sc, Qvx16s{25000}).plain(clip, kDiffers);
  s.row("Threshold_GT_16sc, none", qvxsThreshold_GT_16sc, Qvx16s{32767}).within(-20000, 20000).plain(clip, kDiffers);
  s.row("Threshold_GT_32fc, half of all", qvxsThreshold_GT_32fc, 750.0F).plain(clip, kDiffers);
  s.row("Threshold_GT_32fc, none", qvxsThreshold_GT_32fc, 2000.0F).plain(clip, kDiffers);
  s.row("Threshold_GT_64fc, half of all", qvxsThreshold_GT_64fc, 750.0).plain(clip, kDiffers);
  s.row("Threshold_GT_64fc, none", qvxsThreshold_GT_64fc, 2000.0).plain(clip, kDiffers);
  const auto replace = plain::Each<plain::complexReplacedBelow>();
  s.row("Threshold_LTVal_16sc", qvxsThreshold_LTVal_16sc, Qvx16s{25000}, Qvx16sc{3, 4}).plain(replace, kDiffers);
  s.row("Threshold_LTVal_32fc", qvxsThreshold_LTVal_32fc, 750.0F, Qvx32fc{3, 4}).plain(replace, kDiffers);
  s.row("Threshold_LTVal_64fc", qvxsThreshold_LTVal_64fc, 750.0, Qvx64fc{3, 4}).plain(replace, kDiffers);

  const auto inverse = plain::Each<plain::inverse>();
  const auto complexInverse = plain::Each<plain::complexInverse>();
  s.row("Threshold_LTInv_32f", qvxsThreshold_LTInv_32f, 500.0F).plain(inverse);
  s.row("Threshold_LTInv_64f", qvxsThreshold_LTInv_64f, 500.0).plain(inverse);
  s.row("Threshold_LTInv_32fc", qvxsThreshold_LTInv_32fc, 1.0F).plain(complexInverse, kDiffers);
  s.row("Threshold_LTInv_64fc", qvxsThreshold_LTInv_64fc, 1.0).plain(complexInverse, kDiffers);
  s.row("Threshold_LTInv_32f", qvxsThreshold_LTInv_32f, 500.0F).inTeam();
  s.row("Threshold_LTInv_64f", qvxsThreshold_LTInv_64f, 500.0).inTeam();
  s.row("Threshold_LTInv_32fc", qvxsThreshold_LTInv_32fc, 1.0F).inTeam();
  s.row("Threshold_LTInv_64fc", qvxsThreshold_LTInv_64fc, 1.0).inTeam();
}

}  // namespace bench
