// Bit operations.
#include "frame/families.h"
#include "peers/plain_bits.h"
#include "peers/volk.h"

namespace bench {

// clang-format off
void logic(Suite& s) {
  s.row("And_8u", qvxsAnd_8u).plain(plain::Bits<plain::And>());
  s.row("And_16u", qvxsAnd_16u).plain(plain::Bits<plain::And>());
  s.row("And_32u", qvxsAnd_32u).plain(plain::Bits<plain::And>()).against("VOLK", volk::and32u);

  s.row("Or_8u", qvxsOr_8u).plain(plain::Bits<plain::Or>());
  s.row("Or_16u", qvxsOr_16u).plain(plain::Bits<plain::Or>());
  s.row("Or_32u", qvxsOr_32u).plain(plain::Bits<plain::Or>()).against("VOLK", volk::or32u);

  s.row("Xor_8u", qvxsXor_8u).plain(plain::Bits<plain::Xor>());
  s.row("Xor_16u", qvxsXor_16u).plain(plain::Bits<plain::Xor>());
  s.row("Xor_32u", qvxsXor_32u).plain(plain::Bits<plain::Xor>());

  s.row("AndC_8u", qvxsAndC_8u, Qvx8u{0x5A}).plain(plain::Bits<plain::And>());
  s.row("AndC_16u", qvxsAndC_16u, Qvx16u{0x5A3C}).plain(plain::Bits<plain::And>());
  s.row("AndC_32u", qvxsAndC_32u, Qvx32u{0x5A3C9671}).plain(plain::Bits<plain::And>());

  s.row("OrC_8u", qvxsOrC_8u, Qvx8u{0x5A}).plain(plain::Bits<plain::Or>());
  s.row("OrC_16u", qvxsOrC_16u, Qvx16u{0x5A3C}).plain(plain::Bits<plain::Or>());
  s.row("OrC_32u", qvxsOrC_32u, Qvx32u{0x5A3C9671}).plain(plain::Bits<plain::Or>());

  s.row("XorC_8u", qvxsXorC_8u, Qvx8u{0x5A}).plain(plain::Bits<plain::Xor>());
  s.row("XorC_16u", qvxsXorC_16u, Qvx16u{0x5A3C}).plain(plain::Bits<plain::Xor>());
  s.row("XorC_32u", qvxsXorC_32u, Qvx32u{0x5A3C9671}).plain(plain::Bits<plain::Xor>());

  s.row("Not_8u", qvxsNot_8u).plain(plain::Bits<plain::Not>());
  s.row("Not_16u", qvxsNot_16u).plain(plain::Bits<plain::Not>());
  s.row("Not_32u", qvxsNot_32u).plain(plain::Bits<plain::Not>());
}
// clang-format on

}  // namespace bench
