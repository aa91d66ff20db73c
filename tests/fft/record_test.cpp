// Records of transforms in floats, and the checks of the transforms.
#include <array>
#include <cstring>

#include "fft/life.h"

namespace {

using tests::Sizes;
using tests::up;

// What callers are told, by order; `real` from the complex of half the length.
struct Family {
  int64_t element;
  int leaf;
  int cached;
  std::vector<std::array<int, 3>> blocks;  // from this order: rows and size of a tile, as powers of two
};
const Family kSingle = {8, 18, 12, {{18, 4, 10}, {20, 8, 14}}};
const Family kDouble = {16, 17, 11, {{17, 6, 10}, {20, 7, 11}, {21, 8, 13}}};

Sizes large(const Family& f, int m, bool top) {
  int b = 0, tile = 0;
  for (const auto& block : f.blocks) {
    if (m >= block[0]) b = block[1], tile = block[2];
  }
  const int rest = m - b;
  Sizes s = rest < f.leaf ? Sizes{up((f.element << rest) + f.element), 0, up(f.element << rest)} : large(f, rest, false);
  s.spec += f.element << (m - 1);
  s.work = std::max(s.work, f.element << tile);
  const int64_t n = int64_t{1} << m;
  if (!top) return s;
  if (f.element == 8) {
    if (m < 19) s.spec += up(n + 4);
    else s.spec += 4 * (n >> 12) + 4128, s.work = std::max<int64_t>(s.work, 65536);
  } else {
    if (m < 18) s.spec += up(n + 4);
    else s.spec += 4 * (n >> 10) + 1056, s.work = std::max<int64_t>(s.work, 32768);
  }
  return s;
}

Sizes complexSizes(const Family& f, int m) {
  const int64_t n = int64_t{1} << m;
  const int64_t init = m <= 10 ? 0 : f.element == 8 ? up(n + 4) + 32 : up(2 * n + 8) + 32;
  if (m <= 5) return {168, 0, 0};
  if (m <= f.cached) return {up(f.element * n + f.element) + up(n + 4) + 192, init, up(f.element * n) + 32};
  if (m < f.leaf) {
    const int64_t tables = f.element == 8 ? up(7 * n) + up(n + 8) : up(14 * n) + up(2 * n + 16);
    return {tables + up(n + 4) + 192, init, up(f.element * n) + 32};
  }
  const Sizes s = large(f, m, true);
  return {s.spec + 192, init, s.work + 32};
}

Sizes realSizes(const Family& f, int m) {
  const int64_t n = int64_t{1} << m;
  const bool single = f.element == 8;
  if (m <= (single ? 4 : 5)) return {168, 0, 0};
  const int64_t roots =
      single ? (m < 19 ? up(2 * n) : up(8 * (n >> 12) + 8192)) : (m < 17 ? up(4 * n) : up(16 * (n >> 11) + 8192));
  if (m <= 6) return {2 * roots + 192, 0, 0};
  const Sizes half = complexSizes(f, m - 1);
  return {half.spec + 2 * roots, m <= 10 ? 0 : single ? up(n + 4) + 32 : up(2 * n + 8) + 32, half.work};
}

// clang-format off
const tests::Life<QvxsFFTSpec_C_32fc> kC32fc = {qvxsFFTGetSize_C_32fc, qvxsFFTInit_C_32fc, qvxsFFTInitAlloc_C_32fc, qvxsFFTFree_C_32fc, qvxsFFTGetBufSize_C_32fc};
const tests::Life<QvxsFFTSpec_C_32f> kC32f = {qvxsFFTGetSize_C_32f, qvxsFFTInit_C_32f, qvxsFFTInitAlloc_C_32f, qvxsFFTFree_C_32f, qvxsFFTGetBufSize_C_32f};
const tests::Life<QvxsFFTSpec_C_64fc> kC64fc = {qvxsFFTGetSize_C_64fc, qvxsFFTInit_C_64fc, qvxsFFTInitAlloc_C_64fc, qvxsFFTFree_C_64fc, qvxsFFTGetBufSize_C_64fc};
const tests::Life<QvxsFFTSpec_C_64f> kC64f = {qvxsFFTGetSize_C_64f, qvxsFFTInit_C_64f, qvxsFFTInitAlloc_C_64f, qvxsFFTFree_C_64f, qvxsFFTGetBufSize_C_64f};
const tests::Life<QvxsFFTSpec_R_32f> kR32f = {qvxsFFTGetSize_R_32f, qvxsFFTInit_R_32f, qvxsFFTInitAlloc_R_32f, qvxsFFTFree_R_32f, qvxsFFTGetBufSize_R_32f};
const tests::Life<QvxsFFTSpec_R_64f> kR64f = {qvxsFFTGetSize_R_64f, qvxsFFTInit_R_64f, qvxsFFTInitAlloc_R_64f, qvxsFFTFree_R_64f, qvxsFFTGetBufSize_R_64f};
// clang-format on

TEST(FftRecord, SizesChecksAndMemory) {
  tests::checkLife(
      kC32fc, [](int order, int) { return complexSizes(kSingle, order); }, 28, 29, "C_32fc");
  tests::checkLife(
      kC32f, [](int order, int) { return complexSizes(kSingle, order); }, 28, 29, "C_32f");
  tests::checkLife(
      kC64fc, [](int order, int) { return complexSizes(kDouble, order); }, 27, 28, "C_64fc");
  tests::checkLife(
      kC64f, [](int order, int) { return complexSizes(kDouble, order); }, 27, 28, "C_64f");
  tests::checkLife(
      kR32f, [](int order, int) { return realSizes(kSingle, order); }, 29, 30, "R_32f");
  tests::checkLife(
      kR64f, [](int order, int) { return realSizes(kDouble, order); }, 28, 29, "R_64f");
}

// ---- Transforms: record, identity, vectors, in this order; nothing written

template <class C> bool isUntouched(const C* v) {
  const C fresh[8] = {};
  return std::memcmp(fresh, v, sizeof(fresh)) == 0;
}

template <class T, class Spec>
void checkCalls(const tests::Life<Spec>& life, std::initializer_list<QvxStatus (*)(const T*, T*, const Spec*, Qvx8u*)> out,
                std::initializer_list<QvxStatus (*)(T*, const Spec*, Qvx8u*)> in) {
  Spec* spec = nullptr;
  ASSERT_EQ(life.initAlloc(&spec, 2, 8, 0), qvxStatOk);
  std::vector<Qvx8u> foreign(4096);
  const auto* other = reinterpret_cast<const Spec*>(foreign.data());
  T src[8] = {};
  T dst[8] = {};
  std::memset(static_cast<void*>(src), 0x3C, sizeof(src));
  for (const auto run : out) {
    EXPECT_EQ(run(nullptr, nullptr, nullptr, nullptr), qvxStatNullPtr);
    EXPECT_EQ(run(nullptr, nullptr, other, nullptr), qvxStatContextMismatch);
    EXPECT_EQ(run(nullptr, dst, spec, nullptr), qvxStatNullPtr);
    EXPECT_EQ(run(src, nullptr, spec, nullptr), qvxStatNullPtr);
    EXPECT_TRUE(isUntouched(dst));
  }
  for (const auto run : in) {
    EXPECT_EQ(run(nullptr, other, nullptr), qvxStatContextMismatch);
    EXPECT_EQ(run(nullptr, spec, nullptr), qvxStatNullPtr);
    EXPECT_EQ(run(dst, nullptr, nullptr), qvxStatNullPtr);
    EXPECT_EQ(run(dst, other, nullptr), qvxStatContextMismatch);
    EXPECT_TRUE(isUntouched(dst));
  }
  EXPECT_EQ(life.free(spec), qvxStatOk);
}

template <class T, class Spec> using Apart = QvxStatus (*)(const T*, const T*, T*, T*, const Spec*, Qvx8u*);
template <class T, class Spec> using ApartI = QvxStatus (*)(T*, T*, const Spec*, Qvx8u*);
template <class T, class Spec>
void checkApart(const tests::Life<Spec>& life, std::initializer_list<Apart<T, Spec>> out,
                std::initializer_list<ApartI<T, Spec>> in) {
  Spec* spec = nullptr;
  ASSERT_EQ(life.initAlloc(&spec, 2, 8, 0), qvxStatOk);
  T v[4][8] = {};
  for (const auto run : out) {
    EXPECT_EQ(run(v[0], v[1], v[2], v[3], nullptr, nullptr), qvxStatNullPtr);
    for (int missing = 0; missing < 4; ++missing) {
      T* p[4];
      for (int i = 0; i < 4; ++i) p[i] = i == missing ? nullptr : v[i];
      EXPECT_EQ(run(p[0], p[1], p[2], p[3], spec, nullptr), qvxStatNullPtr) << missing;
    }
  }
  for (const auto run : in) {
    EXPECT_EQ(run(nullptr, v[1], spec, nullptr), qvxStatNullPtr);
    EXPECT_EQ(run(v[0], nullptr, spec, nullptr), qvxStatNullPtr);
  }
  EXPECT_EQ(life.free(spec), qvxStatOk);
}

TEST(FftRecord, ChecksOfTransforms) {
  checkCalls<Qvx32fc, QvxsFFTSpec_C_32fc>(kC32fc, {qvxsFFTFwd_CToC_32fc, qvxsFFTInv_CToC_32fc},
                                          {qvxsFFTFwd_CToC_32fc_I, qvxsFFTInv_CToC_32fc_I});
  checkCalls<Qvx64fc, QvxsFFTSpec_C_64fc>(kC64fc, {qvxsFFTFwd_CToC_64fc, qvxsFFTInv_CToC_64fc},
                                          {qvxsFFTFwd_CToC_64fc_I, qvxsFFTInv_CToC_64fc_I});
  checkCalls<Qvx32f, QvxsFFTSpec_R_32f>(kR32f,
                                        {qvxsFFTFwd_RToPerm_32f, qvxsFFTFwd_RToPack_32f, qvxsFFTFwd_RToCCS_32f,
                                         qvxsFFTInv_PermToR_32f, qvxsFFTInv_PackToR_32f, qvxsFFTInv_CCSToR_32f},
                                        {qvxsFFTFwd_RToPerm_32f_I, qvxsFFTFwd_RToPack_32f_I, qvxsFFTFwd_RToCCS_32f_I,
                                         qvxsFFTInv_PermToR_32f_I, qvxsFFTInv_PackToR_32f_I, qvxsFFTInv_CCSToR_32f_I});
  checkCalls<Qvx64f, QvxsFFTSpec_R_64f>(kR64f,
                                        {qvxsFFTFwd_RToPerm_64f, qvxsFFTFwd_RToPack_64f, qvxsFFTFwd_RToCCS_64f,
                                         qvxsFFTInv_PermToR_64f, qvxsFFTInv_PackToR_64f, qvxsFFTInv_CCSToR_64f},
                                        {qvxsFFTFwd_RToPerm_64f_I, qvxsFFTFwd_RToPack_64f_I, qvxsFFTFwd_RToCCS_64f_I,
                                         qvxsFFTInv_PermToR_64f_I, qvxsFFTInv_PackToR_64f_I, qvxsFFTInv_CCSToR_64f_I});
  checkApart<Qvx32f, QvxsFFTSpec_C_32f>(kC32f, {qvxsFFTFwd_CToC_32f, qvxsFFTInv_CToC_32f},
                                        {qvxsFFTFwd_CToC_32f_I, qvxsFFTInv_CToC_32f_I});
  checkApart<Qvx64f, QvxsFFTSpec_C_64f>(kC64f, {qvxsFFTFwd_CToC_64f, qvxsFFTInv_CToC_64f},
                                        {qvxsFFTFwd_CToC_64f_I, qvxsFFTInv_CToC_64f_I});
}

}  // namespace
