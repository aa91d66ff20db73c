// Copies and constants.
#include "frame/families.h"
#include "peers/libc.h"
#include "peers/plain_bits.h"

namespace bench {

namespace {

// The harness knows no offsets there: they are bound here, the same for both.
void copyBits(const Qvx8u* a, Qvx8u* d, int n) { qvxsCopy_1u(a, 3, d, 5, n); }
void plainCopyBits(const Qvx8u* a, Qvx8u* d, int n) { plain::copyBits(a, 3, d, 5, n); }

}  // namespace

// clang-format off
void copy(Suite& s) {
  s.row("Copy_8u", qvxsCopy_8u).against("memcpy", libc::copy);
  s.row("Copy_16s", qvxsCopy_16s).against("memcpy", libc::copy);
  s.row("Copy_16sc", qvxsCopy_16sc).against("memcpy", libc::copy);
  s.row("Copy_32s", qvxsCopy_32s).against("memcpy", libc::copy);
  s.row("Copy_32sc", qvxsCopy_32sc).against("memcpy", libc::copy);
  s.row("Copy_32f", qvxsCopy_32f).against("memcpy", libc::copy);
  s.row("Copy_32fc", qvxsCopy_32fc).against("memcpy", libc::copy);
  s.row("Copy_64s", qvxsCopy_64s).against("memcpy", libc::copy);
  s.row("Copy_64sc", qvxsCopy_64sc).against("memcpy", libc::copy);
  s.row("Copy_64f", qvxsCopy_64f).against("memcpy", libc::copy);
  s.row("Copy_64fc", qvxsCopy_64fc).against("memcpy", libc::copy);

  s.row("Move_8u", qvxsMove_8u).against("memmove", libc::move);
  s.row("Move_16s", qvxsMove_16s).against("memmove", libc::move);
  s.row("Move_16sc", qvxsMove_16sc).against("memmove", libc::move);
  s.row("Move_32s", qvxsMove_32s).against("memmove", libc::move);
  s.row("Move_32sc", qvxsMove_32sc).against("memmove", libc::move);
  s.row("Move_32f", qvxsMove_32f).against("memmove", libc::move);
  s.row("Move_32fc", qvxsMove_32fc).against("memmove", libc::move);
  s.row("Move_64s", qvxsMove_64s).against("memmove", libc::move);
  s.row("Move_64sc", qvxsMove_64sc).against("memmove", libc::move);
  s.row("Move_64f", qvxsMove_64f).against("memmove", libc::move);
  s.row("Move_64fc", qvxsMove_64fc).against("memmove", libc::move);

  s.row("Zero_8u", qvxsZero_8u).against("memset", libc::zero);
  s.row("Zero_16s", qvxsZero_16s).against("memset", libc::zero);
  s.row("Zero_16sc", qvxsZero_16sc).against("memset", libc::zero);
  s.row("Zero_32s", qvxsZero_32s).against("memset", libc::zero);
  s.row("Zero_32sc", qvxsZero_32sc).against("memset", libc::zero);
  s.row("Zero_32f", qvxsZero_32f).against("memset", libc::zero);
  s.row("Zero_32fc", qvxsZero_32fc).against("memset", libc::zero);
  s.row("Zero_64s", qvxsZero_64s).against("memset", libc::zero);
  s.row("Zero_64sc", qvxsZero_64sc).against("memset", libc::zero);
  s.row("Zero_64f", qvxsZero_64f).against("memset", libc::zero);
  s.row("Zero_64fc", qvxsZero_64fc).against("memset", libc::zero);

  s.row("Set_8u", qvxsSet_8u, Qvx8u{37}).against("memset", libc::set);
  s.row("Set_16s", qvxsSet_16s, Qvx16s{-1234}).plain(plain::Bits<plain::Constant>());
  s.row("Set_16sc", qvxsSet_16sc, Qvx16sc{1234, -567}).plain(plain::Bits<plain::Constant>());
  s.row("Set_32s", qvxsSet_32s, 123456789).plain(plain::Bits<plain::Constant>());
  s.row("Set_32sc", qvxsSet_32sc, Qvx32sc{123456789, -98765432}).plain(plain::Bits<plain::Constant>());
  s.row("Set_32f", qvxsSet_32f, 1.5F).plain(plain::Bits<plain::Constant>());
  s.row("Set_32fc", qvxsSet_32fc, Qvx32fc{1.5F, -0.25F}).plain(plain::Bits<plain::Constant>());
  s.row("Set_64s", qvxsSet_64s, Qvx64s{-123456789012345678}).plain(plain::Bits<plain::Constant>());
  s.row("Set_64sc", qvxsSet_64sc, Qvx64sc{1234567890123, -7}).plain(plain::Bits<plain::Constant>());
  s.row("Set_64f", qvxsSet_64f, 1.5).plain(plain::Bits<plain::Constant>());
  s.row("Set_64fc", qvxsSet_64fc, Qvx64fc{1.5, -0.25}).plain(plain::Bits<plain::Constant>());

  s.row("Copy_1u, bit 3 to bit 5", copyBits).against("plain", plainCopyBits);

  s.row("Copy_8u", qvxsCopy_8u).against("memcpy", libc::copy).misaligned();
  s.row("Move_8u, to lower addresses", qvxsMove_8u).against("memmove", libc::move).overlapping(100);
  s.row("Move_8u, to higher addresses", qvxsMove_8u).against("memmove", libc::move).overlapping(-100);
  s.row("Copy_8u", qvxsCopy_8u).against("memcpy", libc::copy).large(64 << 20);
  s.row("Zero_8u", qvxsZero_8u).against("memset", libc::zero).large(64 << 20);
}
// clang-format on

}  // namespace bench
