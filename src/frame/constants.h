// The library's infinities and its NaN, whose sign bit is set. Functions that must return one of them load it: which NaN
// arithmetic returns is the processor's choice.
#pragma once

#include <bit>
#include <type_traits>

#include "frame/api.h"

namespace qvx {

inline constexpr Qvx32f qvxConstantOfNAN_32f = std::bit_cast<Qvx32f>(0xFFC00000U);
inline constexpr Qvx32f qvxConstantOfINF_32f = std::bit_cast<Qvx32f>(0x7F800000U);
inline constexpr Qvx32f qvxConstantOfINF_NEG_32f = std::bit_cast<Qvx32f>(0xFF800000U);
inline constexpr Qvx64f qvxConstantOfNAN_64f = std::bit_cast<Qvx64f>(Qvx64u{0xFFF8000000000000});
inline constexpr Qvx64f qvxConstantOfINF_64f = std::bit_cast<Qvx64f>(Qvx64u{0x7FF0000000000000});
inline constexpr Qvx64f qvxConstantOfINF_NEG_64f = std::bit_cast<Qvx64f>(Qvx64u{0xFFF0000000000000});

// The same by type.
template <class T> inline constexpr T kNan = qvxConstantOfNAN_32f;
template <> inline constexpr Qvx64f kNan<Qvx64f> = qvxConstantOfNAN_64f;
template <class T> inline constexpr T kInfinity = qvxConstantOfINF_32f;
template <> inline constexpr Qvx64f kInfinity<Qvx64f> = qvxConstantOfINF_64f;
template <class T> inline constexpr T kMinusInfinity = qvxConstantOfINF_NEG_32f;
template <> inline constexpr Qvx64f kMinusInfinity<Qvx64f> = qvxConstantOfINF_NEG_64f;

}  // namespace qvx
