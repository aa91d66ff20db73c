// A string of bits, from any bit to any bit. Bit 0 of a byte is its highest.
#include <bit>

#include "frame/map.h"

using namespace qvx;

namespace {

// The first `count` (1 to 8) bits of the byte that starts `shift` bits after p, at the top. Reads the second byte only if it
// must.
uint8_t bitsAt(const uint8_t* p, int shift, int count) {
  unsigned word = static_cast<unsigned>(p[0]) << 8;
  if (shift + count > 8) word |= p[1];
  return static_cast<uint8_t>(word << shift >> 8);
}

// Puts the top `count` bits of `bits` into *p, `from` bits below its top, and keeps the others.
void putBits(uint8_t bits, uint8_t* p, int from, int count) {
  const unsigned mask = (0xFFU & ~(0xFFU >> count)) >> from;
  *p = static_cast<uint8_t>((*p & ~mask) | ((bits >> from) & mask));
}

}  // namespace

QvxStatus qvxsCopy_1u(const Qvx8u* src, int srcBit, Qvx8u* dst, int dstBit, int len) {
  if (src == nullptr || dst == nullptr) return qvxStatNullPtr;
  if (srcBit < 0 || dstBit < 0 || len < 1) return qvxStatBadSize;
  src += srcBit / 8;
  dst += dstBit / 8;
  int shift = srcBit % 8;
  const int lead = dstBit % 8;
  if (lead != 0) {  // up to a whole byte of dst
    const int count = std::min(8 - lead, len);
    putBits(bitsAt(src, shift, count), dst++, lead, count);
    len -= count;
    shift += count;
    src += shift / 8;
    shift %= 8;
  }
  const size_t bytes = static_cast<size_t>(len) / 8;
  if (bytes > 0 && shift == 0) {
    std::memcpy(dst, src, bytes);
  } else if (bytes > 0) {
    loop([shift](auto v, auto next) { return hn::ShiftLeftSame(v, shift) | hn::ShiftRightSame(next, 8 - shift); },
         destination(dst), bytes, source(src), source(src + 1));
  }
  const int rest = len % 8;
  if (rest > 0) putBits(bitsAt(src + bytes, shift, rest), dst + bytes, 0, rest);
  return qvxStatOk;
}
