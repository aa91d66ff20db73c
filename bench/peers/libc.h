// The C library's functions on bytes.
#pragma once

#include <cstddef>
#include <cstring>

namespace libc {

inline constexpr auto copy = [](const auto* a, auto* d, int n) { std::memcpy(d, a, static_cast<size_t>(n) * sizeof(*d)); };
inline constexpr auto move = [](const auto* a, auto* d, int n) { std::memmove(d, a, static_cast<size_t>(n) * sizeof(*d)); };
inline constexpr auto zero = [](auto* d, int n) { std::memset(d, 0, static_cast<size_t>(n) * sizeof(*d)); };
inline constexpr auto set = [](unsigned char c, unsigned char* d, int n) { std::memset(d, c, static_cast<size_t>(n)); };

}  // namespace libc
