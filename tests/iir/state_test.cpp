// The records of recursive filters: sizes, life, identities, delay lines, taps.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <set>
#include <vector>

#include "iir/members.h"

namespace {

using tests::forEachStem;
using tests::isComplex;
using tests::Part;

constexpr int kOrders[] = {1, 7, 100};

// Direct forms of these orders, then as many sections; without and with a second work area.
struct Sizes {
  int withoutSecond[2][3];
  int withSecond[2][3];
};
constexpr Sizes k32f = {{{4392, 4648, 8760}, {4472, 5592, 23064}}, {{8488, 8744, 12856}, {8568, 9688, 27160}}};
constexpr Sizes k32fc = {{{8880, 9776, 23952}, {9632, 17056, 132352}}, {{17072, 17968, 32144}, {17824, 25248, 140544}}};
constexpr Sizes k64f = {{{8528, 8960, 15664}, {8608, 10480, 39488}}, {{16720, 17152, 23856}, {16800, 18672, 47680}}};
constexpr Sizes k64fc = {{{16992, 18720, 45504}, {17648, 24464, 130112}}, {{33392, 35216, 63488}, {34032, 40848, 146496}}};

TEST(IirState, SizesToTheByte) {
  forEachStem([](const auto& m) {
    using M = std::decay_t<decltype(m)>;
    using T = typename M::Internal;
    const Sizes& all = sizeof(Part<T>) == 4 ? isComplex<T> ? k32fc : k32f : isComplex<T> ? k64fc : k64f;
    const auto& expected = std::is_same_v<T, typename M::Data> ? all.withoutSecond : all.withSecond;
    for (int form = 0; form < 2; ++form) {
      int size = -1;
      for (int i = 0; i < 3; ++i) {
        ASSERT_EQ(m.size[form](kOrders[i], &size), qvxStatOk);
        EXPECT_EQ(size, expected[form][i]) << m.name << ", form " << form << ", " << kOrders[i];
      }
    }
  });
  const int df1[2][3] = {{176, 384, 3728}, {16832, 18896, 50880}};
  for (int i = 0; i < 3; ++i) {
    int size[6];
    qvxsIIRGetStateSize_BiQuad_DF1_32f(kOrders[i], &size[0]);
    qvxsIIRGetStateSize64f_BiQuad_DF1_32s(kOrders[i], &size[1]);
    EXPECT_EQ(size[0], df1[0][i]);
    EXPECT_EQ(size[1], df1[1][i]);
    // Two names of one size.
    qvxsIIRGetStateSize32s_16s(kOrders[i], &size[2]), qvxsIIRGetStateSize32s_BiQuad_16s(kOrders[i], &size[3]);
    qvxsIIRGetStateSize32sc_16sc(kOrders[i], &size[4]), qvxsIIRGetStateSize32sc_BiQuad_16sc(kOrders[i], &size[5]);
    EXPECT_EQ(size[2], k32f.withSecond[0][i]);
    EXPECT_EQ(size[3], k32f.withSecond[1][i]);
    EXPECT_EQ(size[4], k32fc.withSecond[0][i]);
    EXPECT_EQ(size[5], k32fc.withSecond[1][i]);
  }
}

// Taps that pass everything on: b0 = a0, the rest 0, but for a little of the last output.
template <class T> std::vector<T> taps(int form, int n, Part<T> a0 = 2) {
  const size_t order = form == 0 ? static_cast<size_t>(n) : 2;
  std::vector<T> all;
  for (int k = 0; k < (form == 0 ? 1 : n); ++k) {
    std::vector<T> one(2 * order + 2, T{});
    reinterpret_cast<Part<T>&>(one[0]) = reinterpret_cast<Part<T>&>(one[order + 1]) = a0;
    reinterpret_cast<Part<T>&>(one[order + 2]) = a0 / 8;
    all.insert(all.end(), one.begin(), one.end());
  }
  return all;
}

TEST(IirState, RefusesALeadingTapOfZero) {
  forEachStem([](const auto& m) {
    using M = std::decay_t<decltype(m)>;
    using T = typename M::Internal;
    SCOPED_TRACE(m.name);
    for (int form = 0; form < 2; ++form) {
      const auto t = taps<T>(form, 3);
      std::vector<Qvx8u> block(70000);
      typename M::State* s = nullptr;
      EXPECT_EQ(m.initAlloc[form](&s, t.data(), INT32_MAX, nullptr), qvxStatNoMem);
      EXPECT_EQ(s, nullptr);
      auto bad = t;
      bad[form == 0 ? 4 : 9] = T{};
      EXPECT_EQ(m.init[form](&s, bad.data(), 3, nullptr, block.data()), qvxStatDivByZero);
      EXPECT_NE(s, nullptr) << "refused with the pointer set";
      EXPECT_EQ(m.initAlloc[form](&s, bad.data(), 3, nullptr), qvxStatDivByZero);
      EXPECT_EQ(s, nullptr) << "leads to released memory";
      if (isComplex<T>) {  // it is 0 only if both parts are
        reinterpret_cast<Part<T>*>(&bad[form == 0 ? 4 : 9])[1] = NAN;
        EXPECT_EQ(m.init[form](&s, bad.data(), 3, nullptr, block.data()), qvxStatOk);
      }
      bad = t;
      bad[0] = T{};
      EXPECT_EQ(m.init[form](&s, bad.data(), 3, nullptr, block.data()), form == 0 ? qvxStatOk : qvxStatDivByZero);
      ASSERT_EQ(m.init[form](&s, t.data(), 3, nullptr, block.data()), qvxStatOk);
      EXPECT_EQ(m.free(s), qvxStatOk);
      EXPECT_EQ(m.free(s), qvxStatOk) << "a caller's block is not touched";
    }
  });
}

TEST(IirState, IdentitiesDiffer) {
  std::set<uint32_t> seen;
  forEachStem([&](const auto& m) {
    using M = std::decay_t<decltype(m)>;
    for (int form = 0; form < 2; ++form) {
      const auto t = taps<typename M::Internal>(form, 1);
      typename M::State* s = nullptr;
      ASSERT_EQ(m.initAlloc[form](&s, t.data(), 1, nullptr), qvxStatOk);
      EXPECT_TRUE(seen.insert(*reinterpret_cast<const uint32_t*>(s)).second) << m.name;
      m.free(s);
    }
  });
  // 0x4949 and two digits, 01 to 28 without those of the direct form I.
  EXPECT_EQ(seen.size(), 28U);
  EXPECT_EQ(*seen.begin(), 0x49493031U);
  EXPECT_EQ(*seen.rbegin(), 0x49493238U);
}

TEST(IirState, DelayLinesComeBack) {
  forEachStem([](const auto& m) {
    using M = std::decay_t<decltype(m)>;
    using T = typename M::Internal;
    tests::Random random(tests::seed());
    for (int form = 0; form < 2; ++form) {
      for (const int n : {1, 3, 70}) {
        const auto line = tests::values<T>(static_cast<size_t>(form == 0 ? n : 2 * n), random);
        auto got = line;
        const size_t bytes = line.size() * sizeof(T);
        const auto t = taps<T>(form, n);
        typename M::State* s = nullptr;
        ASSERT_EQ(m.initAlloc[form](&s, t.data(), n, line.data()), qvxStatOk);
        std::memset(static_cast<void*>(got.data()), 1, bytes);
        m.getLine(s, got.data());
        EXPECT_EQ(std::memcmp(got.data(), line.data(), bytes), 0) << m.name;
        m.setLine(s, nullptr);
        m.getLine(s, got.data());
        for (const T& v : got) EXPECT_EQ(tests::exact(v), tests::exact(T{}));
        m.setLine(s, line.data());
        m.setTaps(t.data(), s);
        m.getLine(s, got.data());
        EXPECT_EQ(std::memcmp(got.data(), line.data(), bytes), 0) << m.name << ": new taps keep the line";
        m.free(s);
      }
    }
  });
}

// ---- what only some stems have

// Impulse response of a record, one sample at a time.
template <class S, class D> std::vector<D> response(QvxStatus (*one)(D, D*, S*, int), S* s) {
  std::vector<D> y(4);
  for (size_t i = 0; i < 4; ++i) one(i == 0 ? D{1000} : D{0}, &y[i], s, 0);
  return y;
}

TEST(IirSetTaps, OfIntegersAlwaysReportsAMismatch) {
  const Qvx32s first[] = {4, 0, 4, 0};
  const Qvx32s second[] = {8, 0, 4, -2};
  QvxsIIRState32s_16s* s = nullptr;
  ASSERT_EQ(qvxsIIRInitAlloc32s_16s(&s, first, 1, 2, nullptr), qvxStatOk);
  EXPECT_EQ(response<QvxsIIRState32s_16s>(qvxsIIROne32s_16s_Sfs, s), (std::vector<Qvx16s>{1000, 0, 0, 0}));
  EXPECT_EQ(qvxsIIRSetTaps32s_16s(second, s, 2), qvxStatContextMismatch);
  EXPECT_EQ(response<QvxsIIRState32s_16s>(qvxsIIROne32s_16s_Sfs, s), (std::vector<Qvx16s>{2000, 1000, 500, 250}));
  qvxsIIRFree32s_16s(s);
  // Scaled one by one: taps of 2^-tapsFactor.
  const Qvx32s section[] = {1 << 10, 0, 0, 1 << 20, -(1 << 19), 0};
  ASSERT_EQ(qvxsIIRInitAlloc32s_BiQuad_16s(&s, section, 1, 20, nullptr), qvxStatOk);
  const Qvx32s louder[] = {1 << 20, 0, 0, 1 << 20, -(1 << 19), 0};
  EXPECT_EQ(qvxsIIRSetTaps32s_16s(louder, s, 20), qvxStatContextMismatch);
  EXPECT_EQ(response<QvxsIIRState32s_16s>(qvxsIIROne32s_16s_Sfs, s), (std::vector<Qvx16s>{1000, 500, 250, 125}));
  qvxsIIRFree32s_16s(s);
}

TEST(IirSetTaps, OfComplexIntegersTakesAnothersRecord) {
  const Qvx32sc integers[] = {{0, 8}, {0, 0}, {4, 0}, {0, 0}};
  const Qvx32fc floats[] = {{0, 3}, {0, 0}, {1, 0}, {0, 0}};
  QvxsIIRState32sc_16sc* own = nullptr;
  QvxsIIRState_32fc* other = nullptr;
  ASSERT_EQ(qvxsIIRInitAlloc32sc_16sc(&own, integers, 1, 2, nullptr), qvxStatOk);
  ASSERT_EQ(qvxsIIRInitAlloc_32fc(&other, floats, 1, nullptr), qvxStatOk);
  auto* taken = reinterpret_cast<QvxsIIRState32sc_16sc*>(other);
  EXPECT_EQ(qvxsIIRSetTaps32sc_16sc(integers, own, 2), qvxStatContextMismatch);
  EXPECT_EQ(qvxsIIRSetTaps32sc_16sc32fc(floats, own), qvxStatContextMismatch);
  Qvx16sc y = {0, 0};
  qvxsIIROne32sc_16sc_Sfs({5, 7}, &y, own, 0);
  EXPECT_EQ(y.re, -14) << "not touched";
  EXPECT_EQ(y.im, 10);
  EXPECT_EQ(qvxsIIRSetTaps32sc_16sc(integers, taken, 2), qvxStatContextMismatch);
  Qvx32fc z = {0, 0};
  qvxsIIROne_32fc({5, 7}, &z, other);
  EXPECT_EQ(z.im, 10) << "but set";
  EXPECT_EQ(qvxsIIRSetTaps32sc_16sc32fc(floats, taken), qvxStatOk);
  qvxsIIROne_32fc({5, 7}, &z, other);
  EXPECT_EQ(z.im, 15);
  qvxsIIRFree32sc_16sc(own);
  qvxsIIRFree_32fc(other);
}

TEST(IirSetTaps, OfSectionsStopsAtTheRefusedOne) {
  Qvx64f t[12] = {1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0};
  QvxsIIRState_64f* s = nullptr;
  ASSERT_EQ(qvxsIIRInitAlloc_BiQuad_64f(&s, t, 2, nullptr), qvxStatOk);
  t[0] = 6, t[3] = 2, t[6] = 0;
  EXPECT_EQ(qvxsIIRSetTaps_64f(t, s), qvxStatDivByZero);
  Qvx64f y = 0;
  qvxsIIROne_64f(1, &y, s);
  EXPECT_EQ(y, 3) << "the first is new, the second as it was";
  // Powers of such feedback are infinite: it must not go by vectors, whether it stayed or is new.
  const std::vector<Qvx64f> good = {1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0}, kept = {1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 1e300, 1e300};
  const std::vector<Qvx64f> refused = {1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0}, fresh = {1, 0, 0, 1, 1e300, 1e300, 0, 0, 0, 1, 0, 0};
  for (const auto& [before, after] : {std::pair(&kept, &refused), std::pair(&good, &fresh)}) {
    EXPECT_EQ(qvxsIIRSetTaps_64f(before->data(), s), qvxStatOk);
    EXPECT_EQ(qvxsIIRSetTaps_64f(after->data(), s), qvxStatDivByZero);
    EXPECT_EQ(qvxsIIRSetDlyLine_64f(s, nullptr), qvxStatOk);
    std::vector<Qvx64f> silence(40);
    EXPECT_EQ(qvxsIIR_64f_I(silence.data(), 40, s), qvxStatOk);
    EXPECT_EQ(silence, std::vector<Qvx64f>(40));
  }
  qvxsIIRFree_64f(s);
}

TEST(IirDf1, HasRulesOfItsOwn) {
  const Qvx32f zeroB0[] = {0, 1, 0, 1, 0, 0};
  const Qvx64f wide[] = {1, 0.5, 0, 1, 0, 0};
  const Qvx64f wideZeroB0[] = {0, 1, 0, 1, 0, 0};
  QvxsIIRState_32f* s = nullptr;
  QvxsIIRState64f_32s* w = nullptr;
  ASSERT_EQ(qvxsIIRInitAlloc_BiQuad_DF1_32f(&s, zeroB0, 1, nullptr), qvxStatOk);
  EXPECT_EQ(qvxsIIRInitAlloc64f_BiQuad_DF1_32s(&w, wideZeroB0, 1, nullptr), qvxStatDivByZero);
  const Qvx32s past[] = {10, 20, 30, 40};
  ASSERT_EQ(qvxsIIRInitAlloc64f_BiQuad_DF1_32s(&w, wide, 1, past), qvxStatOk);
  EXPECT_EQ(*reinterpret_cast<uint32_t*>(s), 0x49493239U);
  EXPECT_EQ(*reinterpret_cast<uint32_t*>(w), 0x49493330U);
  // Who takes which form.
  Qvx32f y = 0;
  Qvx32f line[4] = {1, 2, 3, 4};
  Qvx32s whole = 0;
  Qvx32s lineOfIntegers[4];
  Qvx64f lineOfDoubles[4];
  EXPECT_EQ(qvxsIIROne_32f(1, &y, s), qvxStatContextMismatch);
  EXPECT_EQ(qvxsIIROne64f_32s_Sfs(1, &whole, w, 0), qvxStatContextMismatch);
  EXPECT_EQ(qvxsIIRSetDlyLine_32f(s, line), qvxStatOk);
  EXPECT_EQ(qvxsIIRGetDlyLine64f_32s(w, lineOfDoubles), qvxStatContextMismatch);
  EXPECT_EQ(qvxsIIRSetDlyLine64f_32s(w, lineOfDoubles), qvxStatContextMismatch);
  EXPECT_EQ(qvxsIIRSetTaps64f_32s(wide, w), qvxStatOk);
  EXPECT_EQ(qvxsIIRSetTaps_32f(zeroB0, s), qvxStatOk);
  // x2, x1, y2, y1: a delay of one sample gives x1 first.
  const Qvx32f x[] = {7, 8, 9};
  Qvx32f out[3];
  ASSERT_EQ(qvxsIIR_32f(x, out, 3, s), qvxStatOk);
  EXPECT_EQ((std::vector<Qvx32f>(out, out + 3)), (std::vector<Qvx32f>{2, 7, 8}));
  qvxsIIRGetDlyLine_32f(s, line);
  EXPECT_EQ((std::vector<Qvx32f>(line, line + 4)), (std::vector<Qvx32f>{8, 9, 7, 8}));
  const Qvx32s in[] = {1, 2, 3, 4, 5};
  Qvx32s outOfIntegers[5];
  ASSERT_EQ(qvxsIIR64f_32s_Sfs(in, outOfIntegers, 5, w, 0), qvxStatOk);
  EXPECT_EQ(outOfIntegers[0], 11) << "1 + 20 / 2";
  ASSERT_EQ(qvxsIIRGetDlyLine64f_DF1_32s(w, lineOfIntegers), qvxStatOk);
  EXPECT_EQ((std::vector<Qvx32s>(lineOfIntegers, lineOfIntegers + 4)), (std::vector<Qvx32s>{4, 5, 6, 7})) << "5.5 to even";
  EXPECT_EQ(qvxsIIRSetDlyLine64f_DF1_32s(w, nullptr), qvxStatOk);
  qvxsIIRGetDlyLine64f_DF1_32s(w, lineOfIntegers);
  EXPECT_EQ(lineOfIntegers[1], 0);
  EXPECT_EQ(qvxsIIRFree_32f(s), qvxStatOk);
  EXPECT_EQ(qvxsIIRFree64f_32s(w), qvxStatOk);
  // The integer line belongs to that form alone.
  ASSERT_EQ(qvxsIIRInitAlloc64f_BiQuad_32s(&w, wide, 1, nullptr), qvxStatOk);
  EXPECT_EQ(qvxsIIRSetDlyLine64f_DF1_32s(w, past), qvxStatContextMismatch);
  EXPECT_EQ(qvxsIIRGetDlyLine64f_DF1_32s(w, lineOfIntegers), qvxStatContextMismatch);
  qvxsIIRFree64f_32s(w);
}

}  // namespace
