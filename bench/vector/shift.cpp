// Shifts and byte order.
#include "frame/families.h"
#include "peers/plain_bits.h"
#include "peers/volk.h"

namespace bench {

// clang-format off
void shift(Suite& s) {
  s.row("LShiftC_8u", qvxsLShiftC_8u, 3).plain(plain::Bits<plain::ShiftLeft>());
  s.row("LShiftC_16u", qvxsLShiftC_16u, 3).plain(plain::Bits<plain::ShiftLeft>());
  s.row("LShiftC_16s", qvxsLShiftC_16s, 3).plain(plain::Bits<plain::ShiftLeft>());
  s.row("LShiftC_32s", qvxsLShiftC_32s, 3).plain(plain::Bits<plain::ShiftLeft>());

  s.row("RShiftC_8u", qvxsRShiftC_8u, 3).plain(plain::Bits<plain::ShiftRight>());
  s.row("RShiftC_16u", qvxsRShiftC_16u, 3).plain(plain::Bits<plain::ShiftRight>());
  s.row("RShiftC_16s", qvxsRShiftC_16s, 3).plain(plain::Bits<plain::ShiftRight>());
  s.row("RShiftC_32s", qvxsRShiftC_32s, 3).plain(plain::Bits<plain::ShiftRight>());

  s.row("SwapBytes_16u", qvxsSwapBytes_16u).plain(plain::Bits<plain::Reversed>());
  s.row("SwapBytes_16u_I", qvxsSwapBytes_16u_I).plain(plain::Bits<plain::Reversed>()).against("VOLK", volk::swap16u);
  s.row("SwapBytes_24u", qvxsSwapBytes_24u).against("plain", plain::reverse24);
  s.row("SwapBytes_32u", qvxsSwapBytes_32u).plain(plain::Bits<plain::Reversed>());
  s.row("SwapBytes_32u_I", qvxsSwapBytes_32u_I).plain(plain::Bits<plain::Reversed>()).against("VOLK", volk::swap32u);
  s.row("SwapBytes_64u", qvxsSwapBytes_64u).plain(plain::Bits<plain::Reversed>());
  s.row("SwapBytes_64u_I", qvxsSwapBytes_64u_I).plain(plain::Bits<plain::Reversed>()).against("VOLK", volk::swap64u);
}
// clang-format on

}  // namespace bench
