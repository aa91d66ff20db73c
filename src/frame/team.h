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

// part(thread, count) on each of `threads` threads, or fewer where the runtime gives no more; the gravest of their statuses: an
// error, else a warning. A part may wait for the others at a barrier.
template <class Part> QvxStatus inThreads(int threads, Part part) {
  const uint32_t callers = controlWord();
  uint32_t raised = 0;
  int error = qvxStatOk;
  int warning = qvxStatOk;
#pragma omp parallel num_threads(threads) reduction(min : error) reduction(max : warning) reduction(| : raised)
  {
    const uint32_t own = controlWord();
    setControlWord(callers);
    const int status = part(static_cast<size_t>(omp_get_thread_num()), static_cast<size_t>(omp_get_num_threads()));
    error = std::min(error, status);
    warning = std::max(warning, status);
    raised = controlWord() & kExceptionFlags;
    setControlWord(own);
  }
  setControlWord(callers | raised);
  return static_cast<QvxStatus>(error < 0 ? error : warning);
}

// Runs slice(from, count, thread) on all of 0 to n. A runtime that refuses the team gives one thread, and that one all the work.
template <class Slice> [[gnu::noinline]] QvxStatus dividedBetween(int threads, size_t n, Slice slice) {
  if (threads < 2 || n < static_cast<size_t>(threads)) return slice(0, n, 0);
  return inThreads(threads, [&](size_t thread, size_t count) {
    const size_t chunk = n / count;
    return slice(thread * chunk, chunk + (thread + 1 == count ? n % count : 0), thread);
  });
}

template <TeamRule kRule, class Slice> QvxStatus divided(size_t n, Slice slice) {
  return dividedBetween(kRule.threads(), n, [=](size_t from, size_t count, size_t) { return slice(from, count); });
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
