// From and to binary16.
#include "frame/families.h"
#include "peers/plain_convert.h"

namespace bench {

// clang-format off
void half(Suite& s) {
  s.row("Convert_16f32f", qvxsConvert_16f32f).plain(plain::FromHalf());
  s.row("Convert_32f16f", qvxsConvert_32f16f, qvxRoundNearestEven).plain(plain::ToHalf());
  s.row("Convert_16s16f", qvxsConvert_16s16f, qvxRoundNearestEven).plain(plain::ToHalf());
  s.row("Convert_16f16s_Sfs, scale 3", qvxsConvert_16f16s_Sfs, qvxRoundNearestEven, 3).plain(plain::FromHalf());
}
// clang-format on

}  // namespace bench
