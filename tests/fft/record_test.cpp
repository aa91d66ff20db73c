// Records of transforms: sizes to the byte, the order of the checks, memory of exactly the reported size.
#include <array>
#include <climits>
#include <cstring>

#include "fft/transforms.h"

namespace {

constexpr int64_t up(int64_t x) { return (x + 31) / 32 * 32; }

struct Sizes {
  int64_t spec, init, work;
  bool operator==(const Sizes&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Sizes& s) { return out << s.spec << ' ' << s.init << ' ' << s.work; }

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

template <class Spec> void checkLife(const tests::Life<Spec>& life, const Family& f, bool real, int limit, const char* name) {
  SCOPED_TRACE(name);
  int spec = -1, init = -1, work = -1;
  for (int order = 0; order <= limit; ++order) {
    for (const int flag : tests::kFlags) ASSERT_EQ(life.getSize(order, flag, order, &spec, &init, &work), qvxStatOk) << order;
    EXPECT_EQ((Sizes{spec, init, work}), real ? realSizes(f, order) : complexSizes(f, order)) << order;
  }
  // The order of the checks, each beside all later failures.
  EXPECT_EQ(life.getSize(-1, 3, 0, nullptr, nullptr, nullptr), qvxStatBadFFTOrder);
  EXPECT_EQ(life.getSize(31, 3, 0, nullptr, nullptr, nullptr), qvxStatBadFFTOrder);
  EXPECT_EQ(life.getSize(limit + 1, 3, 0, nullptr, &init, &work), qvxStatNullPtr);
  EXPECT_EQ(life.getSize(limit + 1, 3, 0, &spec, nullptr, &work), qvxStatNullPtr);
  EXPECT_EQ(life.getSize(limit + 1, 3, 0, &spec, &init, nullptr), qvxStatNullPtr);
  for (const int flag : {0, 3, -1, 16, INT_MIN})
    EXPECT_EQ(life.getSize(limit + 1, flag, 0, &spec, &init, &work), qvxStatBadFFTFlag);
  EXPECT_EQ(life.getSize(limit + 1, 8, 0, &spec, &init, &work), qvxStatBadFFTOrder);

  std::vector<Qvx8u> memory(1 << 20);
  Spec* record = nullptr;
  EXPECT_EQ(life.init(nullptr, 31, 3, 0, nullptr, nullptr), qvxStatNullPtr);
  for (const int order : {-1, limit + 1, INT_MAX})
    EXPECT_EQ(life.init(&record, order, 3, 0, nullptr, nullptr), qvxStatBadFFTOrder);
  EXPECT_EQ(life.init(&record, 11, 3, 0, nullptr, nullptr), qvxStatNullPtr);
  EXPECT_EQ(life.init(&record, 11, 3, 0, memory.data(), nullptr), qvxStatBadFFTFlag);
  EXPECT_EQ(life.init(&record, 11, 8, 0, memory.data(), nullptr), qvxStatNullPtr);
  EXPECT_EQ(record, nullptr);
  EXPECT_EQ(life.initAlloc(nullptr, 31, 3, 0), qvxStatNullPtr);
  EXPECT_EQ(life.initAlloc(&record, limit + 1, 3, 0), qvxStatBadFFTFlag);
  EXPECT_EQ(life.initAlloc(&record, limit + 1, 8, 0), qvxStatBadFFTOrder);

  // In a block of exactly the reported size, wherever it begins; freed, and freed again.
  for (const int order : {0, 4, 5, 6, 7, 8, 10, 11, 12, 13, 17, 18, 19, 20}) {
    ASSERT_EQ(life.getSize(order, 8, 0, &spec, &init, &work), qvxStatOk);
    tests::Block block(static_cast<size_t>(spec) + 64), initBlock(static_cast<size_t>(init) + 1);
    for (const size_t shift : {0, 1, 16, 31, 33}) {
      Qvx8u* buffer = init == 0 ? nullptr : initBlock.atEnd(static_cast<size_t>(init));
      Qvx8u* place = shift == 0 ? block.atEnd(static_cast<size_t>(spec)) : block.atOffset(shift, static_cast<size_t>(spec));
      ASSERT_EQ(life.init(&record, order, 8, 0, place, buffer), qvxStatOk) << order;
      EXPECT_TRUE(block.isIntact() && (init == 0 || initBlock.isIntact())) << order << ", " << shift;
      int size = -1;
      EXPECT_EQ(life.getBufSize(record, &size), qvxStatOk);
      EXPECT_EQ(size, work);
      EXPECT_EQ(life.getBufSize(record, nullptr), qvxStatNullPtr);
      EXPECT_EQ(life.free(record), qvxStatOk);
      EXPECT_EQ(life.free(record), qvxStatContextMismatch);
      EXPECT_EQ(life.getBufSize(record, &size), qvxStatContextMismatch);
    }
  }
  int size = -1;
  EXPECT_EQ(life.free(nullptr), qvxStatNullPtr);
  EXPECT_EQ(life.getBufSize(nullptr, &size), qvxStatNullPtr);
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
  checkLife(kC32fc, kSingle, false, 28, "C_32fc");
  checkLife(kC32f, kSingle, false, 28, "C_32f");
  checkLife(kC64fc, kDouble, false, 27, "C_64fc");
  checkLife(kC64f, kDouble, false, 27, "C_64f");
  checkLife(kR32f, kSingle, true, 29, "R_32f");
  checkLife(kR64f, kDouble, true, 28, "R_64f");
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
