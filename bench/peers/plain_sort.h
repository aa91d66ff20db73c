// Sorts by the textbook.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>
#include <vector>

namespace plain {

// Radix sort from the least significant digit on, all histograms in one pass: digits of 8 bits up to 16-bit elements, of 11 bits
// beyond.
template <class T> void radixSort(T* x, size_t n) {
  using Word =
      std::conditional_t<sizeof(T) == 1, uint8_t,
                         std::conditional_t<sizeof(T) == 2, uint16_t, std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>>>;
  constexpr int kBits = 8 * sizeof(T), kDigit = kBits <= 16 ? 8 : 11, kPasses = (kBits + kDigit - 1) / kDigit;
  constexpr Word kSign = Word{1} << (kBits - 1), kAll = static_cast<Word>(~Word{0});
  const auto digit = [](Word key, int pass) { return key >> (pass * kDigit) & ((1U << kDigit) - 1); };
  const auto key = [](Word w) -> Word {
    if (std::is_floating_point_v<T>) return w ^ ((w & kSign) != 0 ? kAll : kSign);
    return std::is_signed_v<T> ? w ^ kSign : w;
  };
  const auto original = [](Word k) -> Word {
    if (std::is_floating_point_v<T>) return k ^ ((k & kSign) != 0 ? kSign : kAll);
    return std::is_signed_v<T> ? k ^ kSign : k;
  };
  static std::vector<Word> room;
  room.resize(std::max(room.size(), n));
  static uint32_t counts[kPasses][1 << kDigit];
  std::memset(counts, 0, sizeof counts);
  auto* from = reinterpret_cast<Word*>(x);
  Word* to = room.data();
  for (size_t i = 0; i < n; ++i) {
    from[i] = key(from[i]);
    for (int pass = 0; pass < kPasses; ++pass) ++counts[pass][digit(from[i], pass)];
  }
  for (int pass = 0; pass < kPasses; ++pass) {
    uint32_t sum = 0;
    for (uint32_t& count : counts[pass]) sum += std::exchange(count, sum);
    for (size_t i = 0; i < n; ++i) to[counts[pass][digit(from[i], pass)]++] = from[i];
    std::swap(from, to);
  }
  for (size_t i = 0; i < n; ++i) reinterpret_cast<Word*>(x)[i] = original(from[i]);
}

}  // namespace plain
