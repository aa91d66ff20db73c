// Sampling: every place of the result, and streams cut anywhere.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <cstring>

#include "support/blocks.h"
#include "support/values.h"

namespace {

using namespace tests;

template <class T_, auto kUp_, auto kDown_> struct Sampling {
  using T = T_;
  static constexpr auto kUp = kUp_;
  static constexpr auto kDown = kDown_;
};
template <class F> class Sample : public testing::Test {};
using Types = testing::Types<
    Sampling<Qvx16s, qvxsSampleUp_16s, qvxsSampleDown_16s>, Sampling<Qvx16sc, qvxsSampleUp_16sc, qvxsSampleDown_16sc>,
    Sampling<Qvx32f, qvxsSampleUp_32f, qvxsSampleDown_32f>, Sampling<Qvx32fc, qvxsSampleUp_32fc, qvxsSampleDown_32fc>,
    Sampling<Qvx64f, qvxsSampleUp_64f, qvxsSampleDown_64f>, Sampling<Qvx64fc, qvxsSampleUp_64fc, qvxsSampleDown_64fc>>;
TYPED_TEST_SUITE(Sample, Types);

template <class T> std::vector<T> drawn(size_t n) {
  Random random(n);
  std::vector<T> x(n);
  for (T& v : x) v = value<T>(random);
  return x;
}

// A stream cut into pieces of these lengths gives what it gives as a whole, wherever its vectors end.
TYPED_TEST(Sample, IsTheSameHoweverAStreamIsCut) {
  using T = typename TypeParam::T;
  for (int factor = 1; factor <= 40; factor += factor < 9 ? 1 : 7) {
    for (const int piece : {1, 3, 16, 47, 48, 64, 333, 1000}) {
      const int first = piece % factor;
      const auto x = drawn<T>(1000);
      int upPhase = first, downPhase = first;
      size_t kept = 0;
      for (size_t from = 0; from < x.size(); from += static_cast<size_t>(piece)) {
        const size_t n = std::min<size_t>(static_cast<size_t>(piece), x.size() - from);
        SCOPED_TRACE(testing::Message() << "factor " << factor << ", pieces of " << piece << ", from " << from);
        const size_t spread = n * static_cast<size_t>(factor);
        const size_t count = (n + static_cast<size_t>(factor - 1 - downPhase)) / static_cast<size_t>(factor);
        Block source(n * sizeof(T)), up(spread * sizeof(T)), down(count * sizeof(T) + 1);
        auto* src = reinterpret_cast<T*>(source.atEnd(n * sizeof(T)));
        auto* dst = reinterpret_cast<T*>(up.atEnd(spread * sizeof(T)));
        std::memcpy(src, &x[from], n * sizeof(T));
        int length = -1;
        ASSERT_EQ(TypeParam::kUp(src, static_cast<int>(n), dst, &length, factor, &upPhase), qvxStatOk);
        ASSERT_EQ(length, static_cast<int>(spread));
        ASSERT_EQ(upPhase, first);
        const T zero{};
        for (size_t i = 0; i < spread; ++i) {
          const bool isSample = i % static_cast<size_t>(factor) == static_cast<size_t>(first);
          ASSERT_EQ(std::memcmp(dst + i, isSample ? src + i / static_cast<size_t>(factor) : &zero, sizeof(T)), 0) << i;
        }
        dst = reinterpret_cast<T*>(down.atOffset(0, count * sizeof(T)));
        ASSERT_EQ(TypeParam::kDown(src, static_cast<int>(n), dst, &length, factor, &downPhase), qvxStatOk);
        ASSERT_EQ(length, static_cast<int>(count));
        for (size_t i = 0; i < count; ++i, ++kept) {
          ASSERT_EQ(std::memcmp(dst + i, &x[static_cast<size_t>(first) + kept * static_cast<size_t>(factor)], sizeof(T)), 0) << i;
        }
        ASSERT_TRUE(up.isIntact() && down.isIntact());
      }
      EXPECT_EQ(kept, (x.size() + static_cast<size_t>(factor - 1 - first)) / static_cast<size_t>(factor));
    }
  }
}

TEST(Sampling, CountsOnToTheNextPiece) {
  struct Call {
    int length, factor, phase, count, next;
  };
  for (const Call& c : {Call{5, 3, 2, 1, 0}, {5, 3, 1, 2, 2}, {3, 8, 7, 0, 4}, {7, 1, 0, 7, 0}}) {
    const auto x = drawn<Qvx32f>(static_cast<size_t>(c.length));
    std::vector<Qvx32f> y(x.size());
    int count = -1, phase = c.phase;
    EXPECT_EQ(qvxsSampleDown_32f(x.data(), c.length, y.data(), &count, c.factor, &phase), qvxStatOk);
    EXPECT_EQ(count, c.count);
    EXPECT_EQ(phase, c.next);
  }
}

}  // namespace
