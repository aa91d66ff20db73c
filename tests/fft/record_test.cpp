// Records of transforms in floats.
#include <map>
#include <optional>

#include "fft/life.h"

namespace {

using tests::Sizes;

// The reported sizes by order: record, memory for making it, working memory.
using Rows = std::map<int, Sizes>;
const Rows kComplex32 = {{0, {168, 0, 0}},
                         {4, {168, 0, 0}},
                         {5, {168, 0, 0}},
                         {6, {832, 0, 544}},
                         {7, {1408, 0, 1056}},
                         {10, {9472, 0, 8224}},
                         {11, {18688, 2112, 16416}},
                         {12, {37120, 4160, 32800}},
                         {13, {73984, 8256, 65568}},
                         {16, {590080, 65600, 524320}},
                         {17, {1179904, 131136, 1048608}},
                         {18, {1442048, 262208, 131104}},
                         {19, {2364160, 524352, 262176}},
                         {20, {4232448, 1048640, 131104}},
                         {21, {8460544, 2097216, 131104}},
                         {24, {67653888, 16777280, 524320}},
                         {26, {269684992, 67108928, 131104}},
                         {27, {539365632, 134217792, 262176}},
                         {28, {1078235392, 268435520, 131104}}};
const Rows kComplex64 = {{0, {168, 0, 0}},
                         {4, {168, 0, 0}},
                         {5, {168, 0, 0}},
                         {6, {1344, 0, 1056}},
                         {7, {2432, 0, 2080}},
                         {10, {17664, 0, 16416}},
                         {11, {35072, 4160, 32800}},
                         {12, {69888, 8256, 65568}},
                         {13, {139520, 16448, 131104}},
                         {16, {1114368, 131136, 1048608}},
                         {17, {1212672, 262208, 32800}},
                         {18, {2164992, 524352, 65568}},
                         {19, {4328704, 1048640, 131104}},
                         {20, {8525056, 2097216, 131104}},
                         {21, {16917760, 4194368, 131104}},
                         {24, {135333120, 33554496, 1048608}},
                         {26, {539297024, 134217792, 131104}},
                         {27, {1078592768, 268435520, 131104}}};
const Rows kReal32 = {{0, {168, 0, 0}},
                      {4, {168, 0, 0}},
                      {5, {320, 0, 0}},
                      {6, {448, 0, 0}},
                      {7, {1344, 0, 544}},
                      {10, {8960, 0, 4128}},
                      {11, {17664, 2112, 8224}},
                      {12, {35072, 4160, 16416}},
                      {13, {69888, 8256, 32800}},
                      {16, {557312, 65600, 262176}},
                      {17, {1114368, 131136, 524320}},
                      {18, {2228480, 262208, 1048608}},
                      {19, {1460480, 524352, 131104}},
                      {20, {2384640, 1048640, 262176}},
                      {21, {4257024, 2097216, 131104}},
                      {24, {33911040, 16777280, 262176}},
                      {26, {135581952, 67108928, 1048608}},
                      {27, {270225664, 134217792, 131104}},
                      {28, {540430592, 268435520, 262176}},
                      {29, {1080348928, 536870976, 131104}}};
const Rows kReal64 = {{0, {168, 0, 0}},
                      {4, {168, 0, 0}},
                      {5, {168, 0, 0}},
                      {6, {704, 0, 0}},
                      {7, {2368, 0, 1056}},
                      {10, {17152, 0, 8224}},
                      {11, {34048, 4160, 16416}},
                      {12, {67840, 8256, 32800}},
                      {13, {135424, 16448, 65568}},
                      {16, {1081600, 131136, 524320}},
                      {17, {1132800, 262208, 1048608}},
                      {18, {1233152, 524352, 32800}},
                      {19, {2189568, 1048640, 65568}},
                      {20, {4361472, 2097216, 131104}},
                      {21, {8574208, 4194368, 131104}},
                      {24, {67945728, 33554496, 524320}},
                      {26, {270714112, 134217792, 131104}},
                      {27, {541410560, 268435520, 131104}},
                      {28, {1082803456, 536870976, 131104}}};

// clang-format off
const tests::Life<QvxsFFTSpec_C_32fc> kC32fc = {qvxsFFTGetSize_C_32fc, qvxsFFTInit_C_32fc, qvxsFFTInitAlloc_C_32fc, qvxsFFTFree_C_32fc, qvxsFFTGetBufSize_C_32fc};
const tests::Life<QvxsFFTSpec_C_32f> kC32f = {qvxsFFTGetSize_C_32f, qvxsFFTInit_C_32f, qvxsFFTInitAlloc_C_32f, qvxsFFTFree_C_32f, qvxsFFTGetBufSize_C_32f};
const tests::Life<QvxsFFTSpec_C_64fc> kC64fc = {qvxsFFTGetSize_C_64fc, qvxsFFTInit_C_64fc, qvxsFFTInitAlloc_C_64fc, qvxsFFTFree_C_64fc, qvxsFFTGetBufSize_C_64fc};
const tests::Life<QvxsFFTSpec_C_64f> kC64f = {qvxsFFTGetSize_C_64f, qvxsFFTInit_C_64f, qvxsFFTInitAlloc_C_64f, qvxsFFTFree_C_64f, qvxsFFTGetBufSize_C_64f};
const tests::Life<QvxsFFTSpec_R_32f> kR32f = {qvxsFFTGetSize_R_32f, qvxsFFTInit_R_32f, qvxsFFTInitAlloc_R_32f, qvxsFFTFree_R_32f, qvxsFFTGetBufSize_R_32f};
const tests::Life<QvxsFFTSpec_R_64f> kR64f = {qvxsFFTGetSize_R_64f, qvxsFFTInit_R_64f, qvxsFFTInitAlloc_R_64f, qvxsFFTFree_R_64f, qvxsFFTGetBufSize_R_64f};
// clang-format on

// None for an order between two rows.
std::optional<Sizes> rowOf(const Rows& rows, int order) {
  const auto row = rows.find(order);
  return row == rows.end() ? std::nullopt : std::optional(row->second);
}

TEST(FftRecord, SizesChecksAndMemory) {
  tests::checkLife(
      kC32fc, [](int order, int) { return rowOf(kComplex32, order); }, 28, 29, "C_32fc");
  tests::checkLife(
      kC32f, [](int order, int) { return rowOf(kComplex32, order); }, 28, 29, "C_32f");
  tests::checkLife(
      kC64fc, [](int order, int) { return rowOf(kComplex64, order); }, 27, 28, "C_64fc");
  tests::checkLife(
      kC64f, [](int order, int) { return rowOf(kComplex64, order); }, 27, 28, "C_64f");
  tests::checkLife(
      kR32f, [](int order, int) { return rowOf(kReal32, order); }, 29, 30, "R_32f");
  tests::checkLife(
      kR64f, [](int order, int) { return rowOf(kReal64, order); }, 28, 29, "R_64f");
}

}  // namespace
