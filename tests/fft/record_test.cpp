// Records of transforms in floats.
#include <array>

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

}  // namespace
