// To types that hold every value, and to floats.
#include "frame/families.h"
#include "peers/plain_convert.h"
#include "peers/volk.h"

namespace bench {

// clang-format off
void widen(Suite& s) {
  s.row("Convert_8s16s", qvxsConvert_8s16s).plain(plain::Cast()).against("VOLK", volk::to16s, Agreement::kDiffers);
  s.row("Convert_16s32s", qvxsConvert_16s32s).plain(plain::Cast());
  s.row("Convert_8s32f", qvxsConvert_8s32f).plain(plain::Cast()).against("VOLK", volk::to32f);
  s.row("Convert_8u32f", qvxsConvert_8u32f).plain(plain::Cast());
  s.row("Convert_16s32f", qvxsConvert_16s32f).plain(plain::Cast()).against("VOLK", volk::to32f);
  s.row("Convert_16u32f", qvxsConvert_16u32f).plain(plain::Cast());
  s.row("Convert_32s64f", qvxsConvert_32s64f).plain(plain::Cast());
  s.row("Convert_32f64f", qvxsConvert_32f64f).plain(plain::Cast()).against("VOLK", volk::to64f);
  s.row("Convert_24u32u", qvxsConvert_24u32u).against("plain", plain::from24<Qvx32u, Qvx32u>);
  s.row("Convert_24s32s", qvxsConvert_24s32s).against("plain", plain::from24<Qvx32s, Qvx32s>);
  s.row("Convert_24u32f", qvxsConvert_24u32f).against("plain", plain::from24<Qvx32u, Qvx32f>);
  s.row("Convert_24s32f", qvxsConvert_24s32f).against("plain", plain::from24<Qvx32s, Qvx32f>);
  s.row("Convert_32s32f", qvxsConvert_32s32f).plain(plain::Cast()).against("VOLK", volk::to32f);
  s.row("Convert_64s64f", qvxsConvert_64s64f).plain(plain::Cast());
  s.row("Convert_64f32f", qvxsConvert_64f32f).plain(plain::Cast()).against("VOLK", volk::from64f);
  s.row("Convert_16s32f_Sfs, scale 3", qvxsConvert_16s32f_Sfs, 3).plain(plain::CastScaled()).against("VOLK", volk::to32fScaled);
  s.row("Convert_16s64f_Sfs, scale 3", qvxsConvert_16s64f_Sfs, 3).plain(plain::CastScaled());
  s.row("Convert_32s32f_Sfs, scale 3", qvxsConvert_32s32f_Sfs, 3).plain(plain::CastScaled()).against("VOLK", volk::to32fScaled);
  s.row("Convert_32s64f_Sfs, scale 3", qvxsConvert_32s64f_Sfs, 3).plain(plain::CastScaled());
}
// clang-format on

}  // namespace bench
