// Floats to integers.
#include "frame/families.h"
#include "peers/plain_convert.h"
#include "peers/volk.h"

namespace bench {

// clang-format off
void floatToInt(Suite& s) {
  s.row("Convert_32f8s_Sfs, nearest, scale 3", qvxsConvert_32f8s_Sfs, qvxRoundNearestEven, 3).plain(plain::FloatToInteger()).against("VOLK", volk::from32f);
  s.row("Convert_32f8u_Sfs, nearest, scale 3", qvxsConvert_32f8u_Sfs, qvxRoundNearestEven, 3).plain(plain::FloatToInteger());
  s.row("Convert_32f16s_Sfs, toward zero, scale 0", qvxsConvert_32f16s_Sfs, qvxRoundTowardZero, 0).plain(plain::FloatToInteger());
  s.row("Convert_32f16s_Sfs, toward zero, scale 3", qvxsConvert_32f16s_Sfs, qvxRoundTowardZero, 3).plain(plain::FloatToInteger());
  s.row("Convert_32f16s_Sfs, nearest, scale 0", qvxsConvert_32f16s_Sfs, qvxRoundNearestEven, 0).plain(plain::FloatToInteger()).against("VOLK", volk::from32f);
  s.row("Convert_32f16s_Sfs, nearest, scale 3", qvxsConvert_32f16s_Sfs, qvxRoundNearestEven, 3).plain(plain::FloatToInteger()).against("VOLK", volk::from32f);
  s.row("Convert_32f16s_Sfs, half away, scale 0", qvxsConvert_32f16s_Sfs, qvxRoundHalfAway, 0).plain(plain::FloatToInteger());
  s.row("Convert_32f16s_Sfs, half away, scale 3", qvxsConvert_32f16s_Sfs, qvxRoundHalfAway, 3).plain(plain::FloatToInteger());
  s.row("Convert_32f16u_Sfs, nearest, scale 3", qvxsConvert_32f16u_Sfs, qvxRoundNearestEven, 3).plain(plain::FloatToInteger());
  s.row("Convert_32f32s_Sfs, nearest, scale 3", qvxsConvert_32f32s_Sfs, qvxRoundNearestEven, 3).plain(plain::FloatToInteger()).against("VOLK", volk::from32f);
  s.row("Convert_64f32s_Sfs, nearest, scale 3", qvxsConvert_64f32s_Sfs, qvxRoundNearestEven, 3).plain(plain::FloatToInteger());
  s.row("Convert_64f16s_Sfs, nearest, scale 3", qvxsConvert_64f16s_Sfs, qvxRoundNearestEven, 3).plain(plain::FloatToInteger());
  s.row("Convert_64f64s_Sfs, nearest, scale 3", qvxsConvert_64f64s_Sfs, qvxRoundNearestEven, 3).plain(plain::FloatToInteger());
  s.row("Convert_32f24u_Sfs, scale 3", qvxsConvert_32f24u_Sfs, 3).against("plain", plain::floatTo24<Qvx32u>);
  s.row("Convert_32f24s_Sfs, scale 3", qvxsConvert_32f24s_Sfs, 3).against("plain", plain::floatTo24<Qvx32s>);

  s.row("Convert_32f16s_Sfs, nearest, scale 3", qvxsConvert_32f16s_Sfs, qvxRoundNearestEven, 3).plain(plain::FloatToInteger()).against("VOLK", volk::from32f).misaligned();
}
// clang-format on

}  // namespace bench
