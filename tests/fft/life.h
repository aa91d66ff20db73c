// The life of a record: sizes to the byte, the order of the checks, memory of exactly the reported size.
#pragma once

#include <optional>

#include "fft/transforms.h"

namespace tests {

inline constexpr int64_t up(int64_t x) { return (x + 31) / 32 * 32; }

struct Sizes {
  int64_t spec, init, work;
  bool operator==(const Sizes&) const = default;
};
inline std::ostream& operator<<(std::ostream& out, const Sizes& s) { return out << s.spec << ' ' << s.init << ' ' << s.work; }

// expected: the sizes by order and hint. refused: the order from which on Init looks at nothing else, before the flag.
template <class Spec, class Expected>
void checkLife(const Life<Spec>& life, Expected expected, int limit, int refused, const char* name) {
  SCOPED_TRACE(name);
  int spec = -1, init = -1, work = -1;
  for (int order = 0; order <= limit; ++order) {
    for (const int hint : {0, 1, 2, -1}) {
      for (const int flag : kFlags) {
        ASSERT_EQ(life.getSize(order, flag, hint, &spec, &init, &work), qvxStatOk) << order;
        const std::optional<Sizes> row = expected(order, hint);
        if (row) {
          ASSERT_EQ((Sizes{spec, init, work}), *row) << order << ", " << hint;
        }
      }
    }
  }
  // An order that is too large is seen after the flag, but for one that no type has.
  EXPECT_EQ(life.getSize(limit + 1, 3, 0, &spec, &init, &work), qvxStatBadFFTFlag);
  EXPECT_EQ(life.getSize(limit + 1, 8, 0, &spec, &init, &work), qvxStatBadFFTOrder);
  std::vector<Qvx8u> memory(1 << 20);
  Spec* record = nullptr;
  EXPECT_EQ(life.init(&record, refused, 3, 0, nullptr, nullptr), qvxStatBadFFTOrder);
  EXPECT_EQ(life.init(&record, 11, 3, 0, memory.data(), nullptr), qvxStatBadFFTFlag);
  EXPECT_EQ(life.init(&record, 11, 8, 0, memory.data(), nullptr), qvxStatNullPtr);
  EXPECT_EQ(life.init(&record, limit + 1, 8, 0, memory.data(), nullptr), qvxStatBadFFTOrder);
  EXPECT_EQ(life.initAlloc(&record, limit + 1, 3, 0), qvxStatBadFFTFlag);
  EXPECT_EQ(life.initAlloc(&record, limit + 1, 8, 0), qvxStatBadFFTOrder);
  EXPECT_EQ(record, nullptr);

  // In a block of exactly the reported size, wherever it begins; freed, and freed again.
  for (const int order : {0, 1, 3, 4, 5, 6, 7, 8, 10, 11, 12, 13, 17, 18, 19, 20}) {
    ASSERT_EQ(life.getSize(order, 8, 0, &spec, &init, &work), qvxStatOk);
    Block block(static_cast<size_t>(spec) + 64), initBlock(static_cast<size_t>(init) + 1);
    for (const size_t shift : {0, 1, 16, 31, 33}) {
      Qvx8u* buffer = order <= 10 ? nullptr : initBlock.atEnd(static_cast<size_t>(init));
      Qvx8u* place = shift == 0 ? block.atEnd(static_cast<size_t>(spec)) : block.atOffset(shift, static_cast<size_t>(spec));
      ASSERT_EQ(life.init(&record, order, 8, 0, place, buffer), qvxStatOk) << order;
      EXPECT_TRUE(block.isIntact() && (order <= 10 || initBlock.isIntact())) << order << ", " << shift;
      int size = -1;
      EXPECT_EQ(life.getBufSize(record, &size), qvxStatOk);
      EXPECT_EQ(size, work);
      EXPECT_EQ(life.free(record), qvxStatOk);
      EXPECT_EQ(life.free(record), qvxStatContextMismatch);
      EXPECT_EQ(life.getBufSize(record, &size), qvxStatContextMismatch);
    }
  }
}

}  // namespace tests
