// The companding laws of G.711, by arithmetic: a code is a sign, a segment of 3 bits and 4 bits within it, and a segment is a
// power of two. What shifts by the segment is a multiplication, by a factor that a byte shuffle looks up.
#include "frame/packed24.h"
#include "frame/rounding.h"

using namespace qvx;

namespace {

// table[index] in every 16-bit lane; the index is below 16.
template <class V> V lookedUp(const uint8_t (&table)[16], V index) {
  using Bytes = hn::Repartition<uint8_t, TagOf<V>>;
  return as<LaneOf<V>>(hn::TableLookupBytesOr0(hn::LoadDup128(Bytes(), table), as<uint8_t>(index | same<V>(INT16_MIN))));
}

template <class V> V signs(V v) { return hn::BroadcastSignBit(v); }  // -1 for a negative lane, else 0
template <class V> V negatedWhere(V signs, V v) { return (v ^ signs) - signs; }

alignas(16) constexpr uint8_t kPowerOfSegment[16] = {1, 2, 4, 8, 16, 32, 64, 128};

// ---- codes to linear values, in 16-bit lanes

struct FromALaw {
  template <class V> V operator()(V code) const {
    const V bits = code ^ same<V>(0xD5);  // every other bit inverted; then the sign bit means negative
    const V segment = hn::ShiftRight<4>(bits) & same<V>(7);
    const V middle = hn::ShiftLeft<4>(bits & same<V>(15)) + same<V>(8);
    // From segment 1 on there is a leading bit, and from segment 2 on a shift.
    const V leading = hn::ShiftLeft<8>(hn::Min(segment, same<V>(1)));
    const V factor = lookedUp(kPowerOfSegment, hn::Max(segment, same<V>(1)) - same<V>(1));
    return negatedWhere(signs(hn::ShiftLeft<8>(bits)), (middle + leading) * factor);
  }
};

struct FromMuLaw {
  template <class V> V operator()(V code) const {
    const V bits = code ^ same<V>(0xFF);
    const V segment = hn::ShiftRight<4>(bits) & same<V>(7);
    const V biased = hn::ShiftLeft<3>(bits & same<V>(15)) + same<V>(0x84);
    const V magnitude = biased * lookedUp(kPowerOfSegment, segment) - same<V>(0x84);
    return negatedWhere(signs(hn::ShiftLeft<8>(bits)), magnitude);
  }
};

template <class Law> struct To16s {
  template <class V> auto operator()(V codes) const { return Law()(convertLanes<int16_t>(codes)); }
};

// ---- codes to floats
//
// Segment and bits of a code, and the half step after them, are the exponent and the fraction of a half: A-law takes 0.3 of the
// time of a lookup and two conversions that way, mu-law 0.6. Subnormal halves are numbers in any mode.

constexpr bool kConvertsHalves = QVXS_AVX2;

// sign-extended codes; kInverted: the bits that a law inverts; kAdded: what belongs to exponent and fraction besides.
template <class V> auto asHalf(V code, int8_t inverted, int added) {
  const V bits = (hn::ShiftLeft<6>(code) ^ same<V>(static_cast<int16_t>(inverted * 64))) & same<V>(static_cast<int16_t>(0x9FC0));
  const auto half = hn::BitCast(hn::Rebind<hwy::float16_t, TagOf<V>>(), bits + same<V>(static_cast<int16_t>(added)));
  return hn::PromoteTo(hn::Rebind<float, TagOf<V>>(), half);
}

// Segment 0 is as wide as segment 1 and has no leading bit, just as the subnormal numbers are.
struct HalfOfALaw {
  template <class V> auto operator()(V code) const {
    const auto x = asHalf(code, int8_t{-0x2B}, 0x20);
    return x * same<std::remove_const_t<decltype(x)>>(0x1p7F);
  }
};

// All numbers are normal, and the bias of 33 is taken off again. Zero is positive, whatever the code's sign.
struct HalfOfMuLaw {
  template <class V> auto operator()(V code) const {
    const auto x = asHalf(code, int8_t{-1}, 0x420);
    using F = std::remove_const_t<decltype(x)>;
    const F bias = hn::CopySign(same<F>(0x1.08p-14F), x);
    return hn::IfThenElseZero(x != bias, x - bias) * same<F>(0x1p6F);
  }
};

template <class Half> struct To32f {
  template <class V> auto operator()(V codes) const { return Half()(convertLanes<int16_t>(as<int8_t>(codes))); }
};

// Where no instruction takes halves, they are the upper halves of floats, a bias of the exponent before them. `high`: a code in
// the upper byte of each lane, its sign in the highest bit. What is subtracted has the sign of the code, and leaves a rounding to
// nobody.
template <class V> struct Minus {
  V from;
  V subtrahend;
};

// Segment 0 is segment 1 less the leading bit: the subtrahend of other segments is 0.
struct FloatOfALaw {
  static constexpr uint8_t kInverted = 0xD5;
  template <class V> auto operator()(V high) const {
    const V sign = high & same<V>(INT16_MIN);
    const V bits = hn::ShiftRight<5>(high & same<V>(0x7F00));
    const V isFirst = hn::VecFromMask(TagOf<V>(), same<V>(0x80) > bits);
    return Minus<V>{sign | (bits + same<V>(119 << 7 | 4) + (isFirst & same<V>(0x80))), sign | (isFirst & same<V>(120 << 7))};
  }
  template <class V> static V difference(V from, V subtrahend) { return from - subtrahend; }
};
struct FloatOfMuLaw {
  static constexpr uint8_t kInverted = 0xFF;
  template <class V> auto operator()(V high) const {
    const V sign = high & same<V>(INT16_MIN);
    const V bits = hn::ShiftRight<5>(high & same<V>(0x7F00));
    return Minus<V>{sign | (bits + same<V>(119 << 7 | 4)), sign | same<V>(119 << 7 | 4)};
  }
  // Zero is positive, whatever the code's sign and the mode.
  template <class V> static V difference(V from, V subtrahend) {
    return hn::IfThenElseZero(from != subtrahend, from - subtrahend);
  }
};

// A register of codes at a time.
template <class Float> struct To32fByUpperHalves {
  template <class V> auto operator()(V codes) const {
    const TagOf<V> d;
    const V zero = hn::Zero(d);
    const V bits = codes ^ same<V>(Float::kInverted);
    const auto lo = floats(as<int16_t>(hn::InterleaveLower(d, zero, bits)));
    const auto hi = floats(as<int16_t>(hn::InterleaveUpper(d, zero, bits)));
    return Quad<std::remove_const_t<decltype(lo.lo)>>{lo.lo, lo.hi, hi.lo, hi.hi};
  }

 private:
  template <class V> static auto floats(V high) {
    const TagOf<V> d;
    const V zero = hn::Zero(d);
    const Minus<V> halves = Float()(high);
    const auto lower = [&](V v) { return as<float>(hn::InterleaveLower(d, zero, v)); };
    const auto upper = [&](V v) { return as<float>(hn::InterleaveUpper(d, zero, v)); };
    using F = decltype(lower(high));
    return Pair<F>{Float::difference(lower(halves.from), lower(halves.subtrahend)),
                   Float::difference(upper(halves.from), upper(halves.subtrahend))};
  }
};

// ---- linear values to codes

// The length of h in bits, 0 to 8, for h below 256.
alignas(16) constexpr uint8_t kBitLength[16] = {0, 1, 2, 2, 3, 3, 3, 3, 4, 4, 4, 4, 4, 4, 4, 4};
alignas(16) constexpr uint8_t kBitLengthOf16Fold[16] = {0, 5, 6, 6, 7, 7, 7, 7, 8, 8, 8, 8, 8, 8, 8, 8};
template <class V> V bitLength(V h) {
  return hn::Max(lookedUp(kBitLength, h & same<V>(15)), lookedUp(kBitLengthOf16Fold, hn::ShiftRight<4>(h)));
}

template <class V> V shiftRightUnsigned(V v, int places) { return as<int16_t>(hn::ShiftRightSame(as<uint16_t>(v), places)); }

struct ToALaw {
  template <class V> V operator()(V x) const { return (*this)(x, signs(x)); }

  template <class V> V operator()(V x, V) const {
    const V negative = signs(x);
    const V magnitude = x ^ negative;  // 0 to 32767, of which 3 bits do not count
    const V segment = bitLength(hn::ShiftRight<8>(magnitude));
    // The four bits of a code to the top, after the leading bit from segment 1 on: counted as one more segment, it is taken off.
    const V above = hn::Max(segment, same<V>(1)) - same<V>(1);
    const V five = hn::ShiftRight<11>(magnitude * lookedUp(kToTop, above)) & same<V>(31);
    return (hn::ShiftLeft<4>(above) + five) ^ (same<V>(0xD5) ^ (negative & same<V>(0x80)));
  }

 private:
  alignas(16) static constexpr uint8_t kToTop[16] = {128, 64, 32, 16, 8, 4, 2};
};

struct ToMuLaw {
  template <class V> V operator()(V x) const { return (*this)(x, signs(x)); }

  // negative: the sign of the code. x is 0 where it differs from that of x.
  template <class V> V operator()(V x, V negative) const {
    const V magnitude = hn::ShiftRight<2>(x ^ signs(x)) + same<V>(33);
    const V top = hn::ShiftLeft<3>(hn::Min(magnitude, same<V>(8191)));  // 264 to 65528, unsigned
    const V segment = bitLength(shiftRightUnsigned(top, 8));            // 1 to 8
    const V five = shiftRightUnsigned(top * lookedUp(kToTop, segment), 11);
    // 16 to 31, with the leading bit again.
    const V bits = hn::ShiftLeft<4>(segment) + five - same<V>(32);
    return bits ^ (same<V>(0xFF) ^ (negative & same<V>(0x80)));
  }

 private:
  alignas(16) static constexpr uint8_t kToTop[16] = {0, 128, 64, 32, 16, 8, 4, 2, 1};
};

template <class Law> struct From16s {
  template <class V> auto operator()(V x) const { return convertLanes<uint8_t>(Law()(x)); }
};

// Full scale is 1. The half is added in 32-bit floats.
template <class Law> struct From32f {
  template <class V> auto operator()(Pair<V> v) const {
    const auto scaled = each(v, [](V x) { return hn::Max(hn::Min(x * same<V>(0x1p15F), same<V>(32767)), same<V>(-32768)); });
    const auto whole = each(scaled, [](V x) { return toIntTruncated(x + hn::CopySignToAbs(same<V>(0.5F), x)); });
    const auto sign = each(scaled, [](V x) { return as<int32_t>(x + hn::Zero(TagOf<V>())); });  // -0 loses its own
    return convertLanes<uint8_t>(Law()(narrowInOrder<int16_t>(whole), signs(narrowInOrder<int16_t>(sign))));
  }
};

template <class Law> QvxStatus fromFloat(const Qvx32f* src, Qvx8u* dst, int len) {
  const QvxStatus status = check(len, src, dst);
  if (status != qvxStatOk) return status;
  const RoundingScope nearest(Rounding::kNearest);
  return loop(From32f<Law>(), destination(dst), elements(len), InPairs{src});
}

// ---- codes to codes of the other law
//
// The numbers of a law's values, 0 to 127 from zero outwards, map to those of the other by pieces of slope 1, 2 and 1/2. Within a
// block of eight numbers there are two pieces at most.

alignas(16) constexpr uint8_t kHigher[16] = {8, 8, 8, 8, 4, 4, 2, 2, 1, 1};                // A-law number + this
alignas(16) constexpr uint8_t kHalf[16] = {128, 128, 128, 20,  128, 26, 128, 33, 128, 40,  // half of it + this, if that is less
                                           128, 128, 128, 128, 128, 128};
alignas(16) constexpr uint8_t kLower[16] = {8, 8, 8, 8, 4, 4, 2, 2, 1, 1};  // mu-law number - this, or half of it if that is more
alignas(16) constexpr uint8_t kTwice[16] = {0, 0, 0, 0, 40, 0, 51};         // twice it - this, if that is less

template <class V> V inBlock(const uint8_t (&table)[16], V number) {
  return hn::TableLookupBytes(hn::LoadDup128(TagOf<V>(), table), hn::ShiftRight<3>(number));
}

struct ALawToMuLaw {
  template <class V> V operator()(V code) const {
    const V bits = code ^ same<V>(0xD5);
    const V number = bits & same<V>(0x7F);
    const V straight = number + inBlock(kHigher, number);
    const V half = hn::ShiftRight<1>(number) + inBlock(kHalf, number);
    const V twice = number + number + same<V>(1);
    return hn::Min(hn::Min(straight, half), twice) ^ (bits & same<V>(0x80)) ^ same<V>(0xFF);
  }
};

struct MuLawToALaw {
  template <class V> V operator()(V code) const {
    const V bits = code ^ same<V>(0xFF);
    const V number = bits & same<V>(0x7F);
    const V straight = hn::SaturatedSub(number, inBlock(kLower, number));
    const V twice = number + number - inBlock(kTwice, number);
    return hn::Max(hn::Min(straight, twice), hn::ShiftRight<1>(number)) ^ (bits & same<V>(0x80)) ^ same<V>(0xD5);
  }
};

template <class Kernel, class S, class D> QvxStatus apply(const S* src, D* dst, int len) {
  const QvxStatus status = check(len, src, dst);
  return status != qvxStatOk ? status : loop(Kernel(), destination(dst), elements(len), source(src));
}

template <class Half, class Float> QvxStatus toFloat(const Qvx8u* src, Qvx32f* dst, int len) {
  if constexpr (kConvertsHalves) {
    return apply<To32f<Half>>(src, dst, len);
  } else {
    const QvxStatus status = check(len, src, dst);
    return status != qvxStatOk ? status : loop(To32fByUpperHalves<Float>(), Quads{dst}, elements(len), source(src));
  }
}

}  // namespace

// clang-format off
QvxStatus qvxsALawToLin_8u16s(const Qvx8u* a, Qvx16s* d, int len) { return apply<To16s<FromALaw>>(a, d, len); }
QvxStatus qvxsALawToLin_8u32f(const Qvx8u* a, Qvx32f* d, int len) { return toFloat<HalfOfALaw, FloatOfALaw>(a, d, len); }
QvxStatus qvxsMuLawToLin_8u16s(const Qvx8u* a, Qvx16s* d, int len) { return apply<To16s<FromMuLaw>>(a, d, len); }
QvxStatus qvxsMuLawToLin_8u32f(const Qvx8u* a, Qvx32f* d, int len) { return toFloat<HalfOfMuLaw, FloatOfMuLaw>(a, d, len); }
QvxStatus qvxsLinToALaw_16s8u(const Qvx16s* a, Qvx8u* d, int len) { return apply<From16s<ToALaw>>(a, d, len); }
QvxStatus qvxsLinToALaw_32f8u(const Qvx32f* a, Qvx8u* d, int len) { return fromFloat<ToALaw>(a, d, len); }
QvxStatus qvxsLinToMuLaw_16s8u(const Qvx16s* a, Qvx8u* d, int len) { return apply<From16s<ToMuLaw>>(a, d, len); }
QvxStatus qvxsLinToMuLaw_32f8u(const Qvx32f* a, Qvx8u* d, int len) { return fromFloat<ToMuLaw>(a, d, len); }
QvxStatus qvxsALawToMuLaw_8u(const Qvx8u* a, Qvx8u* d, int len) { return apply<ALawToMuLaw>(a, d, len); }
QvxStatus qvxsMuLawToALaw_8u(const Qvx8u* a, Qvx8u* d, int len) { return apply<MuLawToALaw>(a, d, len); }
// clang-format on
