// Sums and differences of two vectors and of a vector and a constant.
#include <qvx/qvxs.h>

#include <cmath>

#include "reference/scaled.h"
#include "vector/scaled_members.h"

namespace {

using namespace tests;
using reference::Wide;

const auto kSum = [](Wide a, Wide b) { return a + b; };
const auto kDifference = [](Wide a, Wide b) { return b - a; };  // the second minus the first
const auto kReversed = [](Wide a, Wide b) { return a - b; };

TEST(Add, Scaled) {
  scaledBinary(qvxsAdd_8u_Sfs, qvxsAdd_8u_ISfs, partwise(kSum));
  scaledBinary(qvxsAdd_16s_Sfs, qvxsAdd_16s_ISfs, partwise(kSum));
  scaledBinary(qvxsAdd_16u_Sfs, qvxsAdd_16u_ISfs, partwise(kSum));
  scaledBinary(qvxsAdd_32s_Sfs, qvxsAdd_32s_ISfs, partwise(kSum));
  scaledBinary(qvxsAdd_16sc_Sfs, qvxsAdd_16sc_ISfs, partwise(kSum));
  scaledBinary(qvxsAdd_32sc_Sfs, qvxsAdd_32sc_ISfs, partwise(kSum));
}

TEST(Sub, Scaled) {
  // In place it is the destination that the source is taken from: the second operand is the destination.
  scaledBinary(qvxsSub_8u_Sfs, qvxsSub_8u_ISfs, partwise(kDifference));
  scaledBinary(qvxsSub_16s_Sfs, qvxsSub_16s_ISfs, partwise(kDifference));
  scaledBinary(qvxsSub_16u_Sfs, qvxsSub_16u_ISfs, partwise(kDifference));
  scaledBinary(qvxsSub_32s_Sfs, qvxsSub_32s_ISfs, partwise(kDifference));
  scaledBinary(qvxsSub_16sc_Sfs, qvxsSub_16sc_ISfs, partwise(kDifference));
  scaledBinary(qvxsSub_32sc_Sfs, qvxsSub_32sc_ISfs, partwise(kDifference));
}

TEST(AddC, Scaled) {
  scaledConstant(qvxsAddC_8u_Sfs, qvxsAddC_8u_ISfs, partwise(kSum));
  scaledConstant(qvxsAddC_16s_Sfs, qvxsAddC_16s_ISfs, partwise(kSum));
  scaledConstant(qvxsAddC_16u_Sfs, qvxsAddC_16u_ISfs, partwise(kSum));
  scaledConstant(qvxsAddC_32s_Sfs, qvxsAddC_32s_ISfs, partwise(kSum));
  scaledConstant(qvxsAddC_16sc_Sfs, qvxsAddC_16sc_ISfs, partwise(kSum));
  scaledConstant(qvxsAddC_32sc_Sfs, qvxsAddC_32sc_ISfs, partwise(kSum));
}

TEST(SubC, Scaled) {
  scaledConstant(qvxsSubC_8u_Sfs, qvxsSubC_8u_ISfs, partwise(kReversed));
  scaledConstant(qvxsSubC_16s_Sfs, qvxsSubC_16s_ISfs, partwise(kReversed));
  scaledConstant(qvxsSubC_16u_Sfs, qvxsSubC_16u_ISfs, partwise(kReversed));
  scaledConstant(qvxsSubC_32s_Sfs, qvxsSubC_32s_ISfs, partwise(kReversed));
  scaledConstant(qvxsSubC_16sc_Sfs, qvxsSubC_16sc_ISfs, partwise(kReversed));
  scaledConstant(qvxsSubC_32sc_Sfs, qvxsSubC_32sc_ISfs, partwise(kReversed));
}

TEST(SubCRev, Scaled) {
  scaledConstant(qvxsSubCRev_8u_Sfs, qvxsSubCRev_8u_ISfs, partwise(kDifference));
  scaledConstant(qvxsSubCRev_16s_Sfs, qvxsSubCRev_16s_ISfs, partwise(kDifference));
  scaledConstant(qvxsSubCRev_16u_Sfs, qvxsSubCRev_16u_ISfs, partwise(kDifference));
  scaledConstant(qvxsSubCRev_32s_Sfs, qvxsSubCRev_32s_ISfs, partwise(kDifference));
  scaledConstant(qvxsSubCRev_16sc_Sfs, qvxsSubCRev_16sc_ISfs, partwise(kDifference));
  scaledConstant(qvxsSubCRev_32sc_Sfs, qvxsSubCRev_32sc_ISfs, partwise(kDifference));
}

// Every pair of bytes: all sums and differences there are, at every scale factor that tells them apart.
TEST(Add, AllPairsOfBytes) {
  allPairsOfBytes(qvxsAdd_8u_Sfs, kSum);
  allPairsOfBytes(qvxsSub_8u_Sfs, kDifference);
}

// Without a scale factor: saturated, or widened.
TEST(Add, Plain) {
  binary(qvxsAdd_16s, qvxsAdd_16s_I, saturated<Qvx16s>(kSum));
  binary(qvxsAdd_16u, noInPlace<Qvx16u>, saturated<Qvx16u>(kSum));
  binary(qvxsAdd_32u, noInPlace<Qvx32u>, saturated<Qvx32u>(kSum));
  binary(qvxsAdd_8u16u, noInPlace<Qvx16u, Qvx8u>, saturated<Qvx16u>(kSum));
  binary(qvxsAdd_16s32f, noInPlace<Qvx32f, Qvx16s>, [](Qvx16s a, Qvx16s b) { return static_cast<Qvx32f>(a + b); });
  binary(qvxsSub_16s, qvxsSub_16s_I, saturated<Qvx16s>(kDifference));
  binary(qvxsSub_16s32f, noInPlace<Qvx32f, Qvx16s>, [](Qvx16s a, Qvx16s b) { return static_cast<Qvx32f>(b - a); });
  constant(noOutOfPlace<Qvx16s>, qvxsAddC_16s_I, saturated<Qvx16s>(kSum));
  constant(noOutOfPlace<Qvx16s>, qvxsSubC_16s_I, saturated<Qvx16s>(kReversed));
  Random random(seed());
  Elementwise<Qvx32s, Qvx16s, Qvx32s> mixed(700, random, saturated<Qvx32s>(kSum));
  mixed.run([](const Qvx16s* a, const Qvx32s*, Qvx32s* d, int n) { return qvxsAdd_16s32s_I(a, d, n); }, 1);
}

template <class T>
void floats(auto add, auto addI, auto sub, auto subI, auto addC, auto addCI, auto subC, auto subCI, auto rev, auto revI) {
  const auto sum = parts<T>([](auto a, auto b) { return a + b; });
  const auto difference = parts<T>([](auto a, auto b) { return b - a; });
  const auto reversed = parts<T>([](auto a, auto b) { return a - b; });
  binary(add, addI, sum);
  binary(sub, subI, difference);
  constant(addC, addCI, sum);
  constant(subC, subCI, reversed);
  constant(rev, revI, difference);
}

TEST(Add, Floats) {
  floats<Qvx32f>(qvxsAdd_32f, qvxsAdd_32f_I, qvxsSub_32f, qvxsSub_32f_I, qvxsAddC_32f, qvxsAddC_32f_I, qvxsSubC_32f,
                 qvxsSubC_32f_I, qvxsSubCRev_32f, qvxsSubCRev_32f_I);
  floats<Qvx64f>(qvxsAdd_64f, qvxsAdd_64f_I, qvxsSub_64f, qvxsSub_64f_I, qvxsAddC_64f, qvxsAddC_64f_I, qvxsSubC_64f,
                 qvxsSubC_64f_I, qvxsSubCRev_64f, qvxsSubCRev_64f_I);
  floats<Qvx32fc>(qvxsAdd_32fc, qvxsAdd_32fc_I, qvxsSub_32fc, qvxsSub_32fc_I, qvxsAddC_32fc, qvxsAddC_32fc_I, qvxsSubC_32fc,
                  qvxsSubC_32fc_I, qvxsSubCRev_32fc, qvxsSubCRev_32fc_I);
  floats<Qvx64fc>(qvxsAdd_64fc, qvxsAdd_64fc_I, qvxsSub_64fc, qvxsSub_64fc_I, qvxsAddC_64fc, qvxsAddC_64fc_I, qvxsSubC_64fc,
                  qvxsSubC_64fc_I, qvxsSubCRev_64fc, qvxsSubCRev_64fc_I);
}

// Adding a real zero of either sign would lose the sign of -0 and quiet a signalling number; the bits must come through.
template <class T, class U>
void zeroKeepsBits(QvxStatus (*f)(const T*, T, T*, int), QvxStatus (*inPlace)(T, T*, int), U signalling) {
  T source[4] = {T(-0.0), T(0.0), std::bit_cast<T>(signalling), T(1.5)};
  for (const T zero : {T(0.0), T(-0.0)}) {
    T out[4] = {};
    T same[4];
    std::memcpy(same, source, sizeof(source));
    EXPECT_EQ(f(source, zero, out, 4), qvxStatOk);
    EXPECT_EQ(inPlace(zero, same, 4), qvxStatOk);
    EXPECT_EQ(std::memcmp(out, source, sizeof(source)), 0);
    EXPECT_EQ(std::memcmp(same, source, sizeof(source)), 0);
  }
}

TEST(AddC, FloatZeroKeepsTheBits) {
  zeroKeepsBits(qvxsAddC_32f, qvxsAddC_32f_I, uint32_t{0x7F800001});
  zeroKeepsBits(qvxsSubC_32f, qvxsSubC_32f_I, uint32_t{0x7F800001});
  zeroKeepsBits(qvxsAddC_64f, qvxsAddC_64f_I, uint64_t{0x7FF0000000000001});
  zeroKeepsBits(qvxsSubC_64f, qvxsSubC_64f_I, uint64_t{0x7FF0000000000001});
}

}  // namespace
