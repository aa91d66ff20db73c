// The other policy for lengths, in a program whose other units refuse them.
#undef NDEBUG
#define QVX_LENGTHS QVX_LENGTHS_ASSERTED
#include <gtest/gtest.h>

#include <vector>

#include <qvx/qvxs.hpp>

namespace {

TEST(LengthsAsserted, SayWhichDoNotFit) {
  const std::vector<Qvx32f> x(8, 1);
  std::vector<Qvx32f> y(7);
  EXPECT_DEATH(static_cast<void>(qvx::Add(x, x, y)), "Add::call.*dst.size\\(\\) == src1.size\\(\\)");
  EXPECT_DEATH(static_cast<void>(qvx::Conv(x, x, y)), "Conv::call.*atLeast\\(dst.size");
  auto filter = qvx::Fir<Qvx32f>::make(x).value();
  EXPECT_DEATH(static_cast<void>(filter.filter(x, y)), "src.size\\(\\) == dst.size\\(\\)");
  y.resize(8);
  EXPECT_EQ(qvx::Add(x, x, y), qvxStatOk);
  EXPECT_EQ(y[7], 2);
}

}  // namespace
