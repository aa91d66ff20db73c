// Sparse FIR filters against their definition, in records of exactly the reported size.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include "support/blocks.h"
#include "support/values.h"

namespace {

using tests::Random;

struct Sparse {
  std::vector<Qvx32f> taps;
  std::vector<Qvx32s> positions;
  int size;  // for one position more where the last is 0
};

const std::vector<Sparse> kFilters = {
    {{3}, {0}, 128},
    {{-0.5F}, {1}, 128},
    {{1, 0.25F, -0.5F, 0.3F}, {0, 3, 100, 101}, 64 + 2 * 16 + 816 + 64},
    {{0.5F, 0.25F, 0.125F, 1, 2}, {7, 8, 9, 10, 2000}, 64 + 2 * 32 + 16000 + 80},
};

float unit(Random& random) { return static_cast<float>(static_cast<int32_t>(random())) * 0x1p-31F; }

// Products and sums rounded apart, from the last tap to the first: to the bit, however the stream is cut.
TEST(FirSparse, IsItsDefinitionHoweverCut) {
  Random random(tests::seed());
  for (const Sparse& f : kFilters) {
    const auto count = static_cast<int>(f.taps.size());
    const auto order = static_cast<size_t>(f.positions.back());
    int bytes = 0;
    ASSERT_EQ(qvxsFIRSparseGetStateSize_32f(count, std::max(f.positions.back(), 1), &bytes), qvxStatOk);
    EXPECT_EQ(bytes, f.size);
    tests::Block block(static_cast<size_t>(bytes) + 64), source(40000), result(40000);
    for (size_t offset = 0; offset < 18; ++offset) {
      uint8_t* at = offset == 17 ? block.atEnd(static_cast<size_t>(bytes)) : block.atOffset(offset, static_cast<size_t>(bytes));
      std::vector<float> line(order), x(9000);
      for (float& v : line) v = offset % 2 == 0 ? 0 : unit(random);
      for (float& v : x) v = unit(random);
      QvxsFIRSparseState_32f* state = nullptr;
      ASSERT_EQ(
          qvxsFIRSparseInit_32f(&state, f.taps.data(), f.positions.data(), count, offset % 2 == 0 ? nullptr : line.data(), at),
          qvxStatOk);
      const size_t most[] = {9000, 1, 30, 3000, order + 1};
      for (size_t done = 0; done < x.size();) {
        const size_t n =
            std::min<size_t>(x.size() - done, offset % 4 == 3 ? std::max<size_t>(order, 1) : 1 + random() % most[offset % 5]);
        auto* a = reinterpret_cast<float*>(source.atEnd(n * sizeof(float)));
        auto* y = reinterpret_cast<float*>(result.atEnd(n * sizeof(float)));
        std::copy_n(x.begin() + static_cast<int64_t>(done), n, a);
        ASSERT_EQ(qvxsFIRSparse_32f(a, y, static_cast<int>(n), state), qvxStatOk);
        ASSERT_TRUE(result.isIntact());
        for (size_t i = 0; i < n; ++i) {
          float sum = 0;
          for (size_t k = f.taps.size(); k-- > 0;) {
            const int64_t from = static_cast<int64_t>(done + i) - f.positions[k];
            sum += f.taps[k] * (from >= 0 ? x[static_cast<size_t>(from)] : line[static_cast<size_t>(-1 - from)]);
          }
          ASSERT_EQ(y[i], sum) << count << " taps, sample " << done + i << ", offset " << offset;
        }
        done += n;
      }
      ASSERT_TRUE(block.isIntact()) << "offset " << offset;
    }
  }
}

TEST(FirSparse, RefusesPositionsThatDoNotIncrease) {
  const float h[] = {1, 1, 1};
  std::vector<uint8_t> block(4096);
  QvxsFIRSparseState_32f* state = nullptr;
  for (const auto& wrong : {std::vector<Qvx32s>{-1, 2, 3}, {0, 0, 3}, {0, 4, 4}, {5, 4, 6}, {1, 2, INT32_MIN}}) {
    EXPECT_EQ(qvxsFIRSparseInit_32f(&state, h, wrong.data(), 3, nullptr, block.data()), qvxStatBadSparsePos);
  }
  EXPECT_EQ(state, nullptr);
}

}  // namespace
