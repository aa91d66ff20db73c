// Sums and differences of two vectors and of a vector and a constant.
#include <qvx/qvxs.h>

#include <bit>
#include <cmath>

#include "vector/members.h"

namespace {

using namespace tests;
using reference::Wide;

const auto kSum = [](auto a, auto b) { return a + b; };
const auto kDifference = [](auto a, auto b) { return b - a; };  // the second minus the first
const auto kReversed = [](auto a, auto b) { return a - b; };

// As whole numbers that hold everything.
template <class Op> auto exact(Op op) {
  return [op](Wide a, Wide b) { return op(a, b); };
}

TEST(Add, Scaled) {
  all(partwise(exact(kSum)), qvxsAdd_8u_Sfs, qvxsAdd_16s_Sfs, qvxsAdd_16u_Sfs, qvxsAdd_32s_Sfs, qvxsAdd_16sc_Sfs,
      qvxsAdd_32sc_Sfs);
  all(partwise(exact(kDifference)), qvxsSub_8u_Sfs, qvxsSub_16s_Sfs, qvxsSub_16u_Sfs, qvxsSub_32s_Sfs, qvxsSub_16sc_Sfs,
      qvxsSub_32sc_Sfs);
}

TEST(AddC, Scaled) {
  all(partwise(exact(kSum)), qvxsAddC_8u_Sfs, qvxsAddC_16s_Sfs, qvxsAddC_16u_Sfs, qvxsAddC_32s_Sfs, qvxsAddC_16sc_Sfs,
      qvxsAddC_32sc_Sfs);
  all(partwise(exact(kReversed)), qvxsSubC_8u_Sfs, qvxsSubC_16s_Sfs, qvxsSubC_16u_Sfs, qvxsSubC_32s_Sfs, qvxsSubC_16sc_Sfs,
      qvxsSubC_32sc_Sfs);
  all(partwise(exact(kDifference)), qvxsSubCRev_8u_Sfs, qvxsSubCRev_16s_Sfs, qvxsSubCRev_16u_Sfs, qvxsSubCRev_32s_Sfs,
      qvxsSubCRev_16sc_Sfs, qvxsSubCRev_32sc_Sfs);
}

// Without a scale factor: saturated, or widened.
TEST(Add, Plain) {
  each(saturated<Qvx16s>(exact(kSum)), qvxsAdd_16s);
  all(saturated<Qvx16u>(exact(kSum)), qvxsAdd_16u, qvxsAdd_8u16u);
  each(saturated<Qvx32u>(exact(kSum)), qvxsAdd_32u);
  each([](Qvx16s a, Qvx16s b) { return static_cast<Qvx32f>(a + b); }, qvxsAdd_16s32f);
  each(saturated<Qvx16s>(exact(kDifference)), qvxsSub_16s);
  each([](Qvx16s a, Qvx16s b) { return static_cast<Qvx32f>(b - a); }, qvxsSub_16s32f);
  each(saturated<Qvx16s>(exact(kSum)), qvxsAddC_16s_I);
  each(saturated<Qvx16s>(exact(kReversed)), qvxsSubC_16s_I);
  Random random(seed());
  Elementwise<Qvx32s, Qvx16s, Qvx32s> mixed(700, random, saturated<Qvx32s>(exact(kSum)));
  mixed.run([](const Qvx16s* a, const Qvx32s*, Qvx32s* d, int n) { return qvxsAdd_16s32s_I(a, d, n); }, 1);
}

TEST(Add, Floats) {
  all(parts(kSum), qvxsAdd_32f, qvxsAdd_64f, qvxsAdd_32fc, qvxsAdd_64fc, qvxsAddC_32f, qvxsAddC_64f, qvxsAddC_32fc,
      qvxsAddC_64fc);
  all(parts(kDifference), qvxsSub_32f, qvxsSub_64f, qvxsSub_32fc, qvxsSub_64fc, qvxsSubCRev_32f, qvxsSubCRev_64f,
      qvxsSubCRev_32fc, qvxsSubCRev_64fc);
  all(parts(kReversed), qvxsSubC_32f, qvxsSubC_64f, qvxsSubC_32fc, qvxsSubC_64fc);
}

// Adding a real zero of either sign would lose the sign of -0 and quiet a signalling number; the bits must come through.
template <class T, class U>
void zeroKeepsBits(U signalling, std::initializer_list<QvxStatus (*)(const T*, T, T*, int)> functions) {
  const T source[4] = {T(-0.0), T(0.0), std::bit_cast<T>(signalling), T(1.5)};
  for (const auto f : functions) {
    for (const T zero : {T(0.0), T(-0.0)}) {
      T out[4] = {};
      EXPECT_EQ(f(source, zero, out, 4), qvxStatOk);
      EXPECT_EQ(std::memcmp(out, source, sizeof(source)), 0);
    }
  }
}

TEST(AddC, FloatZeroKeepsTheBits) {
  zeroKeepsBits<Qvx32f>(uint32_t{0x7F800001}, {qvxsAddC_32f, qvxsSubC_32f});
  zeroKeepsBits<Qvx64f>(uint64_t{0x7FF0000000000001}, {qvxsAddC_64f, qvxsSubC_64f});
}

// Vectors beyond the caches are stored in another way, unless the destination is a source: with the results of their pieces.
template <class T, class F> void isAsItsPieces(F f) {
  constexpr int n = (33 << 20) / static_cast<int>(sizeof(T)) + 77;
  Random random(seed());
  const auto a = values<T>(n, random);
  const auto b = values<T>(n, random);
  std::vector<T> expected(n);
  for (int i = 0; i < n; i += 50000) f(a.data() + i, b.data() + i, expected.data() + i, std::min(50000, n - i));
  Block block(n * sizeof(T) + 64);
  for (const size_t offset : {0, 1, 8}) {
    auto* d = reinterpret_cast<T*>(block.atOffset(offset, n * sizeof(T)));
    ASSERT_EQ(f(a.data(), b.data(), d, n), qvxStatOk);
    EXPECT_EQ(std::memcmp(d, expected.data(), n * sizeof(T)), 0) << "at " << offset;
    EXPECT_TRUE(block.isIntact());
    std::memcpy(d, b.data(), n * sizeof(T));
    ASSERT_EQ(f(a.data(), d, d, n), qvxStatOk);
    EXPECT_EQ(std::memcmp(d, expected.data(), n * sizeof(T)), 0) << "at " << offset << ", in place";
  }
}

TEST(Add, VectorsThatNoCacheHolds) {
  isAsItsPieces<Qvx32f>(qvxsAdd_32f);
  isAsItsPieces<Qvx32u>(qvxsAnd_32u);
  isAsItsPieces<Qvx32fc>([](const Qvx32fc*, const Qvx32fc* b, Qvx32fc* d, int n) { return qvxsSqr_32fc(b, d, n); });
  isAsItsPieces<Qvx64fc>([](const Qvx64fc*, const Qvx64fc* b, Qvx64fc* d, int n) { return qvxsMulC_64fc(b, {2, 3}, d, n); });
}

}  // namespace
