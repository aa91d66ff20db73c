// What sorts are given.
#pragma once

#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

#include "reference/sort.h"
#include "support/values.h"

namespace tests {

enum class Pattern {
  kRandom,
  kWide,
  kFew,
  kMostlyFew,
  kOne,
  kSorted,
  kReversed,
  kSaw,
  kPipe,
  kKiller,
  kExtremes,
  kNarrow,
  kLastLeast,
  kLastMost
};
inline constexpr Pattern kPatterns[] = {Pattern::kRandom,    Pattern::kWide,    Pattern::kFew,      Pattern::kMostlyFew,
                                        Pattern::kOne,       Pattern::kSorted,  Pattern::kReversed, Pattern::kSaw,
                                        Pattern::kPipe,      Pattern::kKiller,  Pattern::kExtremes, Pattern::kNarrow,
                                        Pattern::kLastLeast, Pattern::kLastMost};

template <class T> T ofBits(uint64_t bits) {
  T x;
  std::memcpy(&x, &bits, sizeof x);
  return x;
}

template <class T> std::vector<T> vectorOf(Pattern pattern, size_t n, Random& random) {
  if (pattern == Pattern::kRandom) return values<T>(n, random);
  std::vector<T> x(n);
  const auto killer = pattern == Pattern::kKiller ? reference::killerOfQuicksort(static_cast<int>(std::min<size_t>(n, 3000)))
                                                  : std::vector<int>();
  for (size_t i = 0; i < n; ++i) {
    using Limits = std::numeric_limits<T>;
    const uint64_t r = random();
    switch (pattern) {
      case Pattern::kFew:
        x[i] = static_cast<T>(r % 3);
        break;
      case Pattern::kMostlyFew:
        x[i] = r % 10 == 0 ? ofBits<T>(random()) : static_cast<T>(r % 3 + 7);
        break;
      case Pattern::kOne:
        x[i] = static_cast<T>(77);
        break;
      case Pattern::kSorted:
        x[i] = static_cast<T>(i);
        break;
      case Pattern::kReversed:
        x[i] = static_cast<T>(n - i);
        break;
      case Pattern::kLastLeast:
        x[i] = static_cast<T>((i + 1) % n);
        break;
      case Pattern::kLastMost:
        x[i] = static_cast<T>(i + 1 == n ? n : n - i - 1);
        break;
      case Pattern::kSaw:
        x[i] = static_cast<T>(i % 37);
        break;
      case Pattern::kPipe:
        x[i] = static_cast<T>(std::min(i, n - i));
        break;
      case Pattern::kKiller:
        x[i] = static_cast<T>(killer[i % killer.size()]);
        break;
      case Pattern::kNarrow:
        x[i] = static_cast<T>(100 + r % 20 + (r % 1000 == 0 ? r >> 40 : 0));
        break;
      case Pattern::kExtremes:
        if constexpr (std::is_floating_point_v<T>) {
          const T some[] = {T(0),
                            -T(0),
                            Limits::infinity(),
                            -Limits::infinity(),
                            Limits::quiet_NaN(),
                            -Limits::quiet_NaN(),
                            Limits::max(),
                            Limits::lowest(),
                            Limits::denorm_min(),
                            -Limits::denorm_min(),
                            ofBits<T>(~uint64_t{0}),
                            ofBits<T>(~uint64_t{0} >> 1)};
          x[i] = some[r % std::size(some)];
        } else {
          const T some[] = {Limits::min(), static_cast<T>(Limits::min() + 1), Limits::max(), static_cast<T>(Limits::max() - 1),
                            T(0)};
          x[i] = some[r % std::size(some)];
        }
        break;
      default:
        x[i] = ofBits<T>(r);
    }
  }
  return x;
}

}  // namespace tests
