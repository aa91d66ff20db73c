// A long vector divided between threads. What a caller sees is that of one thread, to the bit.
#pragma once

#include <omp.h>
#include <qvx/qvxcore.h>

#include <algorithm>

#include "frame/map.h"
#include "frame/rounding.h"

namespace qvx {

// When a family divides its work, in elements. A region costs 2 to 5 us, so a vector that may be divided need not be worth it.
struct TeamRule {
  size_t threaded;           // from here on it may be divided
  size_t worthIt;            // from here on two threads are faster, measured
  bool everyThread = false;  // not just two

  int threads() const {
    const int available = ownGetNumThreads();
    return everyThread ? available : std::min(available, 2);
  }
};

// Threads have control words of their own. They work under the caller's, and what their arithmetic raised is raised in it.
inline constexpr uint32_t kExceptionFlags = 0x3F;

// Runs slice(from, count) on all of 0 to n, or slice(from, count, thread) for one that needs memory of its own. A runtime that
// refuses the team gives one thread, and that one all the work. The status is the gravest: an error, else a warning.
template <class Slice> [[gnu::noinline]] QvxStatus dividedBetween(int threads, size_t n, Slice slice) {
  const auto run = [&](size_t from, size_t count, [[maybe_unused]] size_t thread) {
    if constexpr (std::is_invocable_v<Slice, size_t, size_t, size_t>) return slice(from, count, thread);
    else return slice(from, count);
  };
  if (threads < 2 || n < static_cast<size_t>(threads)) return run(0, n, 0);
  const uint32_t callers = controlWord();
  uint32_t raised = 0;
  int error = qvxStatOk;
  int warning = qvxStatOk;
#pragma omp parallel num_threads(threads) reduction(min : error) reduction(max : warning) reduction(| : raised)
  {
    const auto count = static_cast<size_t>(omp_get_num_threads());
    const auto thread = static_cast<size_t>(omp_get_thread_num());
    const size_t chunk = n / count;
    const size_t tail = thread + 1 == count ? n % count : 0;
    const uint32_t own = controlWord();
    setControlWord(callers);
    const int status = run(thread * chunk, chunk + tail, thread);
    error = std::min(error, status);
    warning = std::max(warning, status);
    raised = controlWord() & kExceptionFlags;
    setControlWord(own);
  }
  setControlWord(callers | raised);
  return static_cast<QvxStatus>(error < 0 ? error : warning);
}

template <TeamRule kRule, class Slice> QvxStatus divided(size_t n, Slice slice) {
  return dividedBetween(kRule.threads(), n, slice);
}

// The rule is a constant of the function, and the divided loop one of its own: a short vector costs one comparison.
template <TeamRule kRule, class Slice> [[gnu::always_inline]] inline QvxStatus inTeam(size_t n, Slice slice) {
  return n < std::max(kRule.threaded, kRule.worthIt) ? slice(0, n) : divided<kRule>(n, slice);
}

// A fit whose loop is divided between threads.
template <TeamRule kRule, class Fit = AsIs> struct InTeam {
  Fit fit = {};

  template <class Op, class Dst, class... Src> QvxStatus run(Op op, Dst dst, size_t n, Src... src) const {
    return inTeam<kRule>(n / Dst::kParts, [=, fit = fit](size_t from, size_t count) {
      const size_t at = from * Dst::kParts;
      return fit.run(op, dst.from(at), count * Dst::kParts, src.from(at)...);
    });
  }
};

}  // namespace qvx
