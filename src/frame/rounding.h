// The processor's control word: its rounding mode and its exceptions, set for the length of a call and put back.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace qvx {

enum class Rounding : uint32_t { kNearest = 0x0000, kTowardZero = 0x6000, kCallers = 0xFFFF };

// The compiler does not know that arithmetic depends on the control word. The clobber keeps a kernel's loads after a change of
// the word and its stores before the change back, and so all arithmetic between them.
inline uint32_t controlWord() {
  uint32_t word;
  __asm__ volatile("stmxcsr %0" : "=m"(word) : : "memory");
  return word;
}
inline void setControlWord(uint32_t word) { __asm__ volatile("ldmxcsr %0" : : "m"(word) : "memory"); }

class RoundingScope {
 public:
  explicit RoundingScope(Rounding mode) : changed_(false) {
    if (mode == Rounding::kCallers || (mode == Rounding::kNearest && roundsToNearest())) [[likely]]
      return;
    saved_ = controlWord();
    const uint32_t wanted = (saved_ & ~kField) | static_cast<uint32_t>(mode);
    changed_ = wanted != saved_;
    if (changed_) setControlWord(wanted);
  }
  ~RoundingScope() {
    if (changed_) setControlWord(saved_);
  }
  RoundingScope(const RoundingScope&) = delete;
  RoundingScope& operator=(const RoundingScope&) = delete;

  // A scalar whose arithmetic must not leave the scope: it belongs to no memory that could pin it.
  template <class T> static T pinned(T v) {
    if constexpr (std::is_integral_v<T>) __asm__ volatile("" : "+r"(v) : : "memory");
    else __asm__ volatile("" : "+x"(v) : : "memory");
    return v;
  }

 private:
  static constexpr uint32_t kField = 0x6000;

  // Asks by arithmetic, since reading the control word takes 5 ns: only to nearest are 3/4 of a unit rounded up and another 1/4
  // then down. Compared as bits, with one jump: 0.3 ns less than two comparisons of floats.
  static bool roundsToNearest() {
    constexpr float kUnit = 0x1p-23F;
    const float above = pinned(pinned(1.0F) + 0.75F * kUnit);
    return std::bit_cast<uint32_t>(pinned(above + 0.25F * kUnit)) == std::bit_cast<uint32_t>(1 + kUnit);
  }

  uint32_t saved_ = 0;
  bool changed_;
};

// Rounds v to an integer of R in the mode of the scope, and saturates. v must not be NaN.
template <class R> R roundedTo(double v) {
  constexpr double kLeast = std::numeric_limits<R>::min();
  constexpr double kMost = std::numeric_limits<R>::max();
  static_assert(sizeof(R) <= 4, "the limits have to be doubles");
  return static_cast<R>(std::lrint(std::min(std::max(v, kLeast), kMost)));
}

// Until the end of the scope, rounds to nearest and traps no floating-point exception; leaves no flag of one. Costs 8 ns.
class SilentScope {
 public:
  SilentScope() : saved_(controlWord()) {
    const uint32_t wanted = (saved_ | kMasks) & ~kRounding;
    if (wanted != saved_) setControlWord(wanted);
  }
  ~SilentScope() { setControlWord(saved_); }
  SilentScope(const SilentScope&) = delete;
  SilentScope& operator=(const SilentScope&) = delete;

 private:
  static constexpr uint32_t kMasks = 0x1F80;
  static constexpr uint32_t kRounding = 0x6000;
  uint32_t saved_;
};

// Until the end of the scope, long doubles are rounded to nearest and to all of their digits: their arithmetic has a control word
// of its own, and a caller that sets a rounding mode sets it there too.
class WiderScope {
 public:
  WiderScope() {
    __asm__ volatile("fnstcw %0" : "=m"(saved_) : : "memory");
    set(static_cast<uint16_t>((saved_ & ~kRounding) | kAllDigits));
  }
  ~WiderScope() { set(saved_); }
  WiderScope(const WiderScope&) = delete;
  WiderScope& operator=(const WiderScope&) = delete;

 private:
  static constexpr uint16_t kRounding = 0x0C00;
  static constexpr uint16_t kAllDigits = 0x0300;
  static void set(uint16_t word) { __asm__ volatile("fldcw %0" : : "m"(word) : "memory"); }
  uint16_t saved_ = 0;
};

}  // namespace qvx
