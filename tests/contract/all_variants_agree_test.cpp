// The variants side by side in one process: every function, called with the same arguments, gives the same bits, or the same
// numbers where their order of operations is open.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include "support/variants.h"

namespace {

using namespace tests;

// Runs a call under a control word of the caller's.
QvxStatus runUnder(unsigned word, AnyCall& call) {
  const unsigned usual = _mm_getcsr();
  _mm_setcsr(word);
  const QvxStatus status = call.run();
  _mm_setcsr(usual);
  return status;
}

// Calls of e by all variants; returns how many before the first that are not the same.
size_t sameCalls(const Export& e, size_t calls, uint64_t first, unsigned word) {
  static Memory memory;
  static const std::vector<Variant> all = variants();
  for (size_t i = 0; i < calls; ++i) {
    memory.reuse();
    const Choices choices(first + i);
    AnyCall one(e, choices, memory, {}, all[0]);
    const QvxStatus status = runUnder(word, one);
    for (size_t v = 1; v < all.size(); ++v) {
      AnyCall other(e, choices, memory, {}, all[v]);
      const QvxStatus otherStatus = runUnder(word, other);
      const std::string apart = status == otherStatus ? difference(e, one, other) : "another status";
      EXPECT_EQ(apart, "") << all[0].name << " and " << all[v].name << ", " << other.describe() << ", control word " << word;
      if (!apart.empty()) return i;
    }
  }
  return calls;
}

TEST(AllVariants, GiveTheSame) {
  if (variants().size() < 2) GTEST_SKIP() << "one variant only";
  size_t calls = 0;
  for (const Export& e : exportTable()) {
    if (e.call) calls += sameCalls(e, 150, calls + 1, _mm_getcsr());
  }
  EXPECT_GT(calls, 100000U);
}

// What is computed element by element with the processor's own operations is so in every mode, also where a variant lacks an
// instruction and makes do with others.
TEST(AllVariants, GiveTheSameElementsInAnyRoundingMode) {
  if (variants().size() < 2) GTEST_SKIP() << "one variant only";
  constexpr unsigned kFlush = 0x8040;
  size_t calls = 0;
  for (const Export& e : exportTable()) {
    if (!e.call || traitsOf(e).is("rounds") || traitsOf(e).is("whole")) continue;
    for (const unsigned mode : {_MM_ROUND_DOWN | 0U, _MM_ROUND_UP | 0U, _MM_ROUND_TOWARD_ZERO | kFlush, kFlush}) {
      calls += sameCalls(e, 20, calls + 1, (_mm_getcsr() & ~(_MM_ROUND_MASK | kFlush)) | mode);
    }
  }
  EXPECT_GT(calls, 30000U);
}

}  // namespace
