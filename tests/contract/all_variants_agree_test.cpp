// The variants side by side in one process: every function, called with the same arguments, gives the same bits, or the same
// numbers where their order of operations is open.
#include <gtest/gtest.h>

#include "support/variants.h"

namespace {

using namespace tests;

TEST(AllVariants, GiveTheSame) {
  const std::vector<Variant> all = variants();
  if (all.size() < 2) GTEST_SKIP() << "one variant only";
  Memory memory;
  size_t calls = 0;
  for (const Export& e : exportTable()) {
    bool isSame = true;
    for (int i = 0; i < 150 && e.call && isSame; ++i) {
      memory.reuse();
      const Choices choices(++calls);
      AnyCall first(e, choices, memory, {}, all[0]);
      const QvxStatus status = first.run();
      for (size_t v = 1; v < all.size() && isSame; ++v) {
        AnyCall other(e, choices, memory, {}, all[v]);
        const QvxStatus otherStatus = other.run();
        const std::string apart = status == otherStatus ? difference(e, first, other) : "another status";
        isSame = apart.empty();
        EXPECT_TRUE(isSame) << all[0].name << " and " << all[v].name << ", " << other.describe() << ": " << apart;
      }
    }
  }
  EXPECT_GT(calls, 100000U);
}

}  // namespace
