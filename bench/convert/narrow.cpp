// Integers to narrower ones.
#include "frame/families.h"
#include "peers/plain_convert.h"

namespace bench {

// clang-format off
void narrow(Suite& s) {
  s.row("Convert_32s16s", qvxsConvert_32s16s).plain(plain::Cast());
  s.row("Convert_32s16s_Sfs, scale 3", qvxsConvert_32s16s_Sfs, 3).plain(plain::NarrowScaled());
  s.row("Convert_32u24u_Sfs, scale 3", qvxsConvert_32u24u_Sfs, 3).against("plain", plain::to24<Qvx32u>);
  s.row("Convert_32s24s_Sfs, scale 3", qvxsConvert_32s24s_Sfs, 3).against("plain", plain::to24<Qvx32s>);
  s.row("Convert_16s8s_Sfs, nearest, scale 3", qvxsConvert_16s8s_Sfs, qvxRoundNearestEven, 3).plain(plain::NarrowRounded());
  s.row("Convert_64s32s_Sfs, nearest, scale 3", qvxsConvert_64s32s_Sfs, qvxRoundNearestEven, 3).plain(plain::NarrowRounded());
}
// clang-format on

}  // namespace bench
