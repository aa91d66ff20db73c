// Companding as a user would write it: a table of 256 for what comes from a code, a search of the segment for what goes to one.
#pragma once

#include <algorithm>
#include <array>

#include "peers/plain_math.h"
#include "qvx/qvxs.h"

namespace plain {

constexpr Qvx16s aToLinear(int code) {
  const int bits = code ^ 0x55;
  const int segment = bits >> 4 & 7;
  const int middle = (bits & 15) * 16 + 8;
  const int magnitude = segment == 0 ? middle : (middle + 256) << (segment - 1);
  return static_cast<Qvx16s>((bits & 0x80) != 0 ? magnitude : -magnitude);
}
constexpr Qvx16s muToLinear(int code) {
  const int bits = code ^ 0xFF;
  const int magnitude = (((bits & 15) * 8 + 132) << (bits >> 4 & 7)) - 132;
  return static_cast<Qvx16s>((bits & 0x80) != 0 ? -magnitude : magnitude);
}

template <auto kFunction, class D> constexpr std::array<D, 256> tableOf() {
  std::array<D, 256> table{};
  for (int i = 0; i < 256; ++i) {
    const auto value = kFunction(i);
    if constexpr (std::is_same_v<D, float>) table[static_cast<size_t>(i)] = static_cast<float>(value) / 32768;
    else table[static_cast<size_t>(i)] = value;
  }
  return table;
}
template <auto kFunction, class D> inline constexpr auto kTable = tableOf<kFunction, D>();

template <auto kFunction, class D> [[gnu::noipa]] void decode(const Qvx8u* __restrict a, D* __restrict d, int n) {
  for (int i = 0; i < n; ++i) d[i] = kTable<kFunction, D>[a[i]];
}

inline constexpr auto linearToA = [](Qvx16s x) {
  const int magnitude = (x < 0 ? ~x : x) >> 3;
  int segment = 0;
  while (segment < 7 && magnitude > (32 << segment) - 1) ++segment;
  const int code = segment << 4 | ((magnitude >> (segment < 2 ? 1 : segment)) & 15);
  return static_cast<Qvx8u>(code ^ (x < 0 ? 0x55 : 0xD5));
};
inline constexpr auto muOf = [](int x, bool isNegative) {
  const int magnitude = std::min(((x < 0 ? ~x : x) >> 2) + 33, 8191);
  const int segment = 32 - __builtin_clz(static_cast<unsigned>(magnitude)) - 5;
  return static_cast<Qvx8u>((8 - segment) << 4 | (15 - (magnitude >> segment & 15)) | (isNegative ? 0 : 0x80));
};
inline constexpr auto linearToMu = [](Qvx16s x) { return muOf(x, x < 0); };

inline Qvx16s toLinear(float x) {
  const float scaled = std::min(std::max(x * 32768, -32768.0F), 32767.0F);
  return static_cast<Qvx16s>(scaled + std::copysign(0.5F, scaled));
}
inline constexpr auto floatToA = [](float x) { return linearToA(toLinear(x)); };
inline constexpr auto floatToMu = [](float x) { return muOf(toLinear(x), x < 0); };

// The same loop, one sample at a time: the empty statement keeps the compiler from vectorising it.
template <auto kFunction, class S> [[gnu::noipa]] void encode(const S* __restrict a, Qvx8u* __restrict d, int n) {
  for (int i = 0; i < n; ++i) {
    unsigned code = kFunction(a[i]);
    __asm__("" : "+r"(code));
    d[i] = static_cast<Qvx8u>(code);
  }
}

// By a table of the codes of all 65536 samples.
template <auto kFunction> [[gnu::noipa]] void encodeByTable(const Qvx16s* __restrict a, Qvx8u* __restrict d, int n) {
  static const auto table = [] {
    std::array<Qvx8u, 65536> codes{};
    for (int x = -32768; x < 32768; ++x) codes[static_cast<uint16_t>(x)] = kFunction(static_cast<Qvx16s>(x));
    return codes;
  }();
  for (int i = 0; i < n; ++i) d[i] = table[static_cast<uint16_t>(a[i])];
}

// The table of all codes, asked of the library once.
template <bool kToMu> [[gnu::noipa]] void lawToLaw(const Qvx8u* __restrict a, Qvx8u* __restrict d, int n) {
  static const auto table = [] {
    std::array<Qvx8u, 256> codes{};
    std::array<Qvx8u, 256> all{};
    for (size_t i = 0; i < 256; ++i) codes[i] = static_cast<Qvx8u>(i);
    (kToMu ? qvxsALawToMuLaw_8u : qvxsMuLawToALaw_8u)(codes.data(), all.data(), 256);
    return all;
  }();
  for (int i = 0; i < n; ++i) d[i] = table[a[i]];
}

}  // namespace plain
