// Recursive filters of several channels, each with a record of its own.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <utility>

namespace {

struct Channels {
  QvxsIIRState_32f* f[3] = {};
  QvxsIIRState64f_32s* i[3] = {};
  Qvx32f x[3][9] = {{1, 2, 3}, {4}, {5}};
  Qvx32s v[3][9] = {{10, 20, 30}, {40}, {50}};
  Qvx32f* px[3] = {x[0], x[1], x[2]};
  Qvx32s* pv[3] = {v[0], v[1], v[2]};
  int sf[3] = {0, 1, -1};

  Channels() {
    const Qvx32f t[] = {2, 0, 0, 1, 0, 0};
    const Qvx64f w[] = {2, 0, 0, 1, 0, 0};
    for (int c = 0; c < 3; ++c)
      qvxsIIRInitAlloc_BiQuad_32f(&f[c], t, 1, nullptr), qvxsIIRInitAlloc64f_BiQuad_32s(&i[c], w, 1, nullptr);
  }
  ~Channels() {
    for (auto* s : f) qvxsIIRFree_32f(s);
    for (auto* s : i) qvxsIIRFree64f_32s(s);
  }
  QvxStatus floats(int len = 9, int channels = 3) { return qvxsIIR_32f_IP(px, len, channels, f); }
  QvxStatus integers(int len = 9, int channels = 3) { return qvxsIIR64f_32s_IPSfs(pv, len, channels, i, sf); }
};

TEST(IirChannels, FilterEach) {
  Channels c;
  ASSERT_EQ(c.floats(), qvxStatOk);
  EXPECT_EQ(c.x[0][2], 6);
  EXPECT_EQ(c.x[1][0], 8);
  EXPECT_EQ(c.x[2][0], 10);
  ASSERT_EQ(c.integers(), qvxStatOk);
  EXPECT_EQ(c.v[0][2], 60);
  EXPECT_EQ(c.v[1][0], 40);
  EXPECT_EQ(c.v[2][0], 200);
  Qvx32f to[3][9] = {};
  Qvx32f* pTo[3] = {to[0], to[1], to[2]};
  Qvx32s whole[3][9] = {};
  Qvx32s* pWhole[3] = {whole[0], whole[1], whole[2]};
  ASSERT_EQ(qvxsIIR_32f_P(c.px, pTo, 9, 2, c.f), qvxStatOk);
  EXPECT_EQ(to[1][0], 16);
  EXPECT_EQ(to[2][0], 0);
  ASSERT_EQ(qvxsIIR64f_32s_PSfs(c.pv, pWhole, 9, 3, c.i, c.sf), qvxStatOk);
  EXPECT_EQ(whole[2][0], 800);
}

// A channel whose record is of another form, or null: the channels before it are filtered.
TEST(IirChannels, RefusesOneAfterTheOther) {
  Channels c;
  const Qvx32f t[] = {2, 0, 0, 1, 0, 0};
  QvxsIIRState_32f* direct = nullptr;
  QvxsIIRState_32f* df1 = nullptr;
  ASSERT_EQ(qvxsIIRInitAlloc_32f(&direct, t, 2, nullptr), qvxStatOk);
  ASSERT_EQ(qvxsIIRInitAlloc_BiQuad_DF1_32f(&df1, t, 1, nullptr), qvxStatOk);
  std::swap(c.f[0], direct);
  EXPECT_EQ(c.floats(), qvxStatContextMismatch) << "a direct form";
  std::swap(c.f[0], direct);
  std::swap(c.f[1], df1);
  EXPECT_EQ(c.floats(), qvxStatContextMismatch) << "another form than the first's";
  EXPECT_EQ(c.x[0][0], 2) << "the first is filtered";
  EXPECT_EQ(c.x[1][0], 4);
  std::swap(c.f[1], df1);
  c.px[2] = nullptr;
  EXPECT_EQ(c.floats(), qvxStatNullPtr);
  EXPECT_EQ(c.x[1][0], 8);
  QvxsIIRState64f_32s* none = nullptr;
  std::swap(c.i[0], none);
  EXPECT_EQ(c.integers(9, 0), qvxStatNullPtr);
  std::swap(c.i[0], none);
  qvxsIIRFree_32f(direct);
  qvxsIIRFree_32f(df1);
}

}  // namespace
