// The sizes reported to callers: fixed values of the interface. The tables need no more.
#pragma once

#include <algorithm>
#include <cstdint>

#include "frame/record.h"

namespace qvx::fft {

struct Sizes {
  int64_t spec;
  int64_t init;
  int64_t work;  // of a transform; a caller is asked for kWorkSlack more
};
inline constexpr int64_t kWorkSlack = 32;
inline constexpr int64_t kSmallSpec = 168;

// Orders up to which a path serves, and what the largest transforms do with their blocks.
template <class T> struct Orders;
template <> struct Orders<float> {
  static constexpr int kSmall = 5;
  static constexpr int kSmallReal = 4;
  static constexpr int kCached = 12;
  static constexpr int kThreaded = 17;
  static constexpr int kComplex = 28;
  static constexpr int kReal = 29;
  static constexpr int kFineReal =
      19;  // from here on, the told size has room for no more than two short tables of a real transform
  static constexpr int64_t kFine = 1024;
  static constexpr int columnBits(int order) { return order < 20 ? 4 : 8; }
  static constexpr int tileBits(int order) { return order < 20 ? 10 : 14; }
};
template <> struct Orders<double> {
  static constexpr int kSmall = 5;
  static constexpr int kSmallReal = 5;
  static constexpr int kCached = 11;
  static constexpr int kThreaded = 16;
  static constexpr int kComplex = 27;
  static constexpr int kReal = 28;
  static constexpr int kFineReal = 17;
  static constexpr int64_t kFine = 512;
  static constexpr int columnBits(int order) { return order < 20 ? 6 : order == 20 ? 7 : 8; }
  static constexpr int tileBits(int order) { return order < 20 ? 10 : order == 20 ? 11 : 13; }
};

template <class T> constexpr Sizes blockedSizes(int order) {
  using O = Orders<T>;
  constexpr int64_t kElement = 2 * sizeof(T);
  const int rest = order - O::columnBits(order);
  Sizes sizes{up<32>((kElement << rest) + kElement), 0, up<32>(kElement << rest)};
  if (rest > O::kThreaded) sizes = blockedSizes<T>(rest);
  sizes.spec += kElement << (order - 1);
  sizes.work = std::max(sizes.work, kElement << O::tileBits(order));
  return sizes;
}

template <class T> constexpr int64_t initSize(int order) {
  constexpr int64_t kElement = 2 * sizeof(T);
  return order <= 10 ? 0 : up<32>((kElement << order) / 8 + kElement / 2) + kWorkSlack;
}

template <class T> constexpr Sizes complexSizes(int order) {
  using O = Orders<T>;
  constexpr int64_t kElement = 2 * sizeof(T);
  const int64_t n = int64_t{1} << order;
  if (order <= O::kSmall) return {kSmallSpec, 0, 0};
  const int64_t head = 192;
  const int64_t init = initSize<T>(order);
  const int64_t order32 = up<32>(n + 4);
  if (order <= O::kCached) return {up<32>(kElement * (n + 1)) + order32 + head, init, up<32>(kElement * n)};
  if (order <= O::kThreaded) {
    const int64_t tables = up<32>(kElement * n / 8 * 7) + up<32>(kElement * n / 8 + (kElement == 8 ? 8 : 16));
    return {tables + order32 + head, init, up<32>(kElement * n)};
  }
  Sizes sizes = blockedSizes<T>(order);
  constexpr bool kFloat = sizeof(T) == 4;
  if (order == O::kThreaded + 1) {
    sizes.spec += order32;
  } else {
    sizes.spec += kFloat ? 4 * (int64_t{1} << (order - 12)) + 4128 : 4 * (int64_t{1} << (order - 10)) + 1056;
    sizes.work = std::max(sizes.work, int64_t{kFloat ? 65536 : 32768});
  }
  return {sizes.spec + head, init, sizes.work};
}

// order: of the real sequence. Its transform is a complex one of half the length.
template <class T> constexpr Sizes realSizes(int order) {
  using O = Orders<T>;
  constexpr int64_t kElement = 2 * sizeof(T);
  const int64_t n = int64_t{1} << order;
  if (order <= O::kSmallReal) return {kSmallSpec, 0, 0};
  const int64_t roots = order < O::kFineReal ? up<32>(kElement * n / 4) : up<32>(kElement * (n / 4 / O::kFine) + 8192);
  if (order <= 6) return {2 * roots + 192, 0, 0};
  const Sizes half = complexSizes<T>(order - 1);
  return {half.spec + 2 * roots, initSize<T>(order), half.work};
}

}  // namespace qvx::fft
