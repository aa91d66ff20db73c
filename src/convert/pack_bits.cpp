// Bits of 32-bit words packed one after another, the highest first.
#include "frame/map.h"

using namespace qvx;

namespace {

// Collects bits at the low end of 64 and stores eight whole bytes at a time.
class BitWriter {
 public:
  BitWriter(Qvx8u* to, int kept) : to_(to), count_(kept), bits_(kept > 0 ? *to >> (8 - kept) : 0) {}

  // count is 0 to 32, and bits has no others.
  void put(uint64_t bits, int count) {
    count_ += count;
    if (count_ < 64) {
      bits_ = bits_ << count | bits;
      return;
    }
    count_ -= 64;  // of these bits, 0 to 31 are left
    const uint64_t whole = __builtin_bswap64(bits_ << (count - count_) | bits >> count_);
    std::memcpy(to_, &whole, sizeof(whole));
    to_ += sizeof(whole);
    bits_ = bits;  // those above count_ leave at the top
  }

  void finish() {
    if (count_ == 0) return;
    bits_ <<= 64 - count_;
    for (; count_ > 0; count_ -= 8, bits_ <<= 8) *to_++ = static_cast<Qvx8u>(bits_ >> 56);
  }

 private:
  Qvx8u* to_;
  int count_;
  uint64_t bits_;
};

}  // namespace

QvxStatus qvxsPackBits_32u8u(const Qvx32u* bits, const int* lengths, int len, Qvx8u* dst, int dstBit, int* total) {
  if (isNull(bits) || isNull(lengths) || isNull(dst) || isNull(total)) return qvxStatNullPtr;
  if (len < 1 || dstBit < 0) return qvxStatBadSize;
  BitWriter writer(dst + dstBit / 8, dstBit % 8);
  bool isBad = false;
  uint32_t written = 0;
  for (size_t i = 0; i < elements(len); ++i) {
    const int length = std::clamp(lengths[i], 0, 32);
    isBad |= length != lengths[i];
    writer.put(bits[i] & ((uint64_t{1} << length) - 1), length);
    written += static_cast<uint32_t>(length);
  }
  writer.finish();
  *total = static_cast<int>(written);
  return isBad ? qvxWarnBadBitLen : qvxStatOk;
}
