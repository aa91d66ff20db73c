// Long vectors divided between threads. The results are those of one thread, to the bit.
#pragma once

#include <qvx/qvxcore.h>

#include <algorithm>
#include <atomic>

#include "frame/map.h"
#include "frame/rounding.h"

namespace qvx {

// When a family divides its work: that costs 0.3 us while the workers spin, 8 us where one has to be woken.
struct TeamRule {
  size_t worthIt;            // elements from which two threads were measured to be faster
  bool everyThread = false;  // takes all threads, not just two

  int threads() const {
    const int available = ownGetNumThreads();
    return everyThread ? available : std::min(available, 2);
  }
};

// Each thread has a control word of its own. Workers take over the caller's, and the exceptions that they raise are raised in it.
inline constexpr uint32_t kExceptionFlags = 0x3F;

// part(i) for i below count, on all threads; returns the gravest of their statuses: an error, else a warning.
template <class Part> QvxStatus inParts(int count, Part part) {
  struct Call {
    Part& part;
    uint32_t control;
    std::atomic<uint32_t> raised{0};
    std::atomic<int> error{qvxStatOk};
    std::atomic<int> warning{qvxStatOk};
  } call{part, controlWord()};
  ownRunParts(
      count,
      [](void* argument, int i) {
        Call& c = *static_cast<Call*>(argument);
        const uint32_t own = controlWord();
        setControlWord(c.control);
        const int status = c.part(static_cast<size_t>(i));
        c.raised.fetch_or(controlWord() & kExceptionFlags);
        setControlWord(own);
        std::atomic<int>& worst = status < 0 ? c.error : c.warning;
        for (int now = worst.load(); status < 0 ? status < now : status > now;) {
          if (worst.compare_exchange_weak(now, status)) break;
        }
      },
      &call);
  setControlWord(call.control | call.raised.load());
  const int error = call.error.load();
  return static_cast<QvxStatus>(error < 0 ? error : call.warning.load());
}

// Runs slice(from, count, part) on slices that together are 0 to n.
template <class Slice> [[gnu::noinline]] QvxStatus dividedBetween(int threads, size_t n, Slice slice) {
  if (threads < 2 || n < static_cast<size_t>(threads)) return slice(0, n, 0);
  const auto parts = static_cast<size_t>(threads);
  return inParts(threads, [=](size_t i) {
    const size_t chunk = n / parts;
    return slice(i * chunk, chunk + (i + 1 == parts ? n % parts : 0), i);
  });
}

template <TeamRule kRule, class Slice> QvxStatus divided(size_t n, Slice slice) {
  return dividedBetween(kRule.threads(), n, [=](size_t from, size_t count, size_t) { return slice(from, count); });
}

// The rule is a constant of the function, and the divided loop one of its own: a short vector costs one comparison.
template <TeamRule kRule, class Slice> [[gnu::always_inline]] inline QvxStatus inTeam(size_t n, Slice slice) {
  return n < kRule.worthIt ? slice(0, n) : divided<kRule>(n, slice);
}

// A function of its own, whose arguments travel in registers: else the checked function has a stack frame, which quotients and
// magnitudes of 16 floats pay with a fifth of their time.
template <TeamRule kRule, class Fit, class Op, class Dst, class... Src>
[[gnu::noinline]] QvxStatus dividedLoop(Fit fit, Op op, Dst dst, size_t n, Src... src) {
  return divided<kRule>(n / Dst::kParts, [=](size_t from, size_t count) {
    const size_t at = from * Dst::kParts;
    return fit.run(op, dst.from(at), count * Dst::kParts, src.from(at)...);
  });
}

// A fit whose loop is divided between threads.
template <TeamRule kRule, class Fit = AsIs> struct InTeam {
  Fit fit = {};

  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    if (n / Dst::kParts >= kRule.worthIt) [[unlikely]]
      return dividedLoop<kRule>(fit, op, dst, n, src...);
    return fit.run(op, dst, n, src...);
  }
};

}  // namespace qvx
