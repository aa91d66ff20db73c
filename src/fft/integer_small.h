// Transforms of up to 8 points in 32-bit integers.
//
// Values carry 15 - order places below the point: N sums of 16-bit parts, and the factor of sqrt(2) that a root may put on one of
// them, fill the 31 bits above. Sums are exact; the one root that is not 1 or i has 16 bits.
#pragma once

#include "fft/integer_record.h"

namespace qvx::fft {

using IntegerPoint = Complex<Qvx32s>;

constexpr IntegerPoint sum(IntegerPoint a, IntegerPoint b) { return {a.re + b.re, a.im + b.im}; }
constexpr IntegerPoint difference(IntegerPoint a, IntegerPoint b) { return {a.re - b.re, a.im - b.im}; }
constexpr IntegerPoint conjugate(IntegerPoint a) { return {a.re, -a.im}; }

// Times -i, or i in the inverse.
template <bool kInverse> constexpr IntegerPoint quarterTurn(IntegerPoint z) {
  return kInverse ? IntegerPoint{-z.im, z.re} : IntegerPoint{z.im, -z.re};
}
// Times sqrt(1/2) of so many bits.
template <int kBits> constexpr Qvx32s timesHalfRoot(int64_t v) {
  constexpr int64_t kHalfRoot = kBits == 15 ? 23170 : 1518500250;
  static_assert(kBits == 15 || kBits == 31);
  return static_cast<Qvx32s>((v * kHalfRoot + (int64_t{1} << (kBits - 1))) >> kBits);
}
// Times exp(-+ i pi / 4).
template <bool kInverse> constexpr IntegerPoint eighthTurn(IntegerPoint z) {
  const IntegerPoint turned = quarterTurn<kInverse>(z);
  return {timesHalfRoot<15>(int64_t{z.re} + turned.re), timesHalfRoot<15>(int64_t{z.im} + turned.im)};
}

template <bool kInverse> void transform2(IntegerPoint* z) {
  const IntegerPoint a = z[0];
  z[0] = sum(a, z[1]);
  z[1] = difference(a, z[1]);
}
template <bool kInverse> void transform4(IntegerPoint* z) {
  const IntegerPoint a = sum(z[0], z[2]);
  const IntegerPoint b = difference(z[0], z[2]);
  const IntegerPoint c = sum(z[1], z[3]);
  const IntegerPoint d = quarterTurn<kInverse>(difference(z[1], z[3]));
  z[0] = sum(a, c);
  z[1] = sum(b, d);
  z[2] = difference(a, c);
  z[3] = difference(b, d);
}
template <bool kInverse> void transform8(IntegerPoint* z) {
  IntegerPoint even[4] = {z[0], z[2], z[4], z[6]};
  IntegerPoint odd[4] = {z[1], z[3], z[5], z[7]};
  transform4<kInverse>(even);
  transform4<kInverse>(odd);
  odd[1] = eighthTurn<kInverse>(odd[1]);
  odd[2] = quarterTurn<kInverse>(odd[2]);
  odd[3] = quarterTurn<kInverse>(eighthTurn<kInverse>(odd[3]));
  for (int k = 0; k < 4; ++k) {
    z[k] = sum(even[k], odd[k]);
    z[k + 4] = difference(even[k], odd[k]);
  }
}
template <bool kInverse> void integerTransform(IntegerPoint* z, int order) {
  switch (order) {
    case 1:
      return transform2<kInverse>(z);
    case 2:
      return transform4<kInverse>(z);
    case 3:
      return transform8<kInverse>(z);
    default:
      return;
  }
}

// Half the length of a real sequence's transform to its spectrum, and back. The first two numbers are those of 0 and N/2.
inline void recombine(IntegerPoint* z, int order) {
  z[0] = {z[0].re + z[0].im, z[0].re - z[0].im};
  if (order == 2) z[1] = conjugate(z[1]);
  if (order < 3) return;
  const IntegerPoint a = z[1];
  const IntegerPoint b = conjugate(z[3]);
  const IntegerPoint even = {(a.re + b.re) / 2, (a.im + b.im) / 2};  // no rounding: there are 12 places
  const IntegerPoint odd = eighthTurn<false>({(a.im - b.im) / 2, (b.re - a.re) / 2});
  z[1] = sum(even, odd);
  z[2] = conjugate(z[2]);
  z[3] = conjugate(difference(even, odd));
}
inline void recombineInverse(IntegerPoint* z, int order) {
  z[0] = {z[0].re + z[0].im, z[0].re - z[0].im};
  if (order == 2) z[1] = {2 * z[1].re, -2 * z[1].im};
  if (order < 3) return;
  const IntegerPoint a = z[1];
  const IntegerPoint b = conjugate(z[3]);
  const IntegerPoint even = sum(a, b);
  const IntegerPoint odd = eighthTurn<true>(quarterTurn<true>(difference(a, b)));
  z[1] = sum(even, odd);
  z[2] = {2 * z[2].re, -2 * z[2].im};
  z[3] = conjugate(difference(even, odd));
}

// The points of a transform of 16-bit numbers, with what its order leaves below the point.
class FixedPoint {
 public:
  explicit FixedPoint(int order) : below_(15 - order) {}

  IntegerPoint* points() { return z_; }
  Qvx32s* numbers() { return reinterpret_cast<Qvx32s*>(z_); }
  Qvx32s widened(Qvx16s v) const { return v << below_; }
  void read(const Qvx16s* src, int count, int at = 0) {
    for (int i = 0; i < count; ++i) numbers()[at + i] = widened(src[i]);
  }
  // With what the flag says of this direction, ready to be narrowed by the places returned.
  template <bool kInverse, class Record> int scaled(const Record& spec, int scaleFactor) {
    if (spec.halfShift) {
      for (IntegerPoint& z : z_) z = {timesHalfRoot<31>(z.re), timesHalfRoot<31>(z.im)};
    }
    const int64_t places = int64_t{scaleFactor} + below_ + (kInverse ? spec.invShift : spec.fwdShift);
    return static_cast<int>(std::min<int64_t>(places, std::numeric_limits<int>::max()));
  }

 private:
  int below_;
  IntegerPoint z_[8] = {};
};

}  // namespace qvx::fft
