// Thresholds of complex elements by magnitude.
#include <qvx/qvxs.h>

#include <cfenv>

#include "convert/conversion.h"
#include "reference/level.h"

namespace {

using namespace tests;
using reference::Long;
using reference::Point;

enum class Relation { kBelow = 0, kAbove = 4 };

// ---- 16-bit integers: exact

bool passes(Qvx16sc v, Qvx16s level, Relation relation) {
  const int64_t square = int64_t{v.re} * v.re + int64_t{v.im} * v.im;
  return relation == Relation::kBelow ? square < int64_t{level} * level : square > int64_t{level} * level;
}

Qvx16sc clipped(Qvx16sc v, Qvx16s level, Relation relation) {
  if (!passes(v, level, relation)) return v;
  const int64_t square = int64_t{v.re} * v.re + int64_t{v.im} * v.im;
  if (square == 0) return {level, 0};
  return {reference::quotientOnCircle(v.re, level, square), reference::quotientOnCircle(v.im, level, square)};
}

// Random elements, Pythagorean ones just at the level and beside it, and those whose quotient lies 2^-32 below a half.
std::vector<Qvx16sc> hard16(Qvx16s level) {
  Random random(seed());
  std::vector<Qvx16sc> v = values<Qvx16sc>(3000, random);
  for (int i = -1; i <= 1; ++i) {
    const auto third = static_cast<Qvx16s>(level / 5 * 3 + i);
    const auto fourth = static_cast<Qvx16s>(level / 5 * 4);
    v.push_back({third, static_cast<Qvx16s>(-fourth)});
    v.push_back({static_cast<Qvx16s>(level + (level == 32767 ? 0 : i)), 0});
  }
  if (level < 16384) v.push_back({1, static_cast<Qvx16s>(2 * level)}), v.push_back({static_cast<Qvx16s>(-2 * level), -1});
  v.push_back({0, 0}), v.push_back({-32768, -32768}), v.push_back({32767, -32768});
  return v;
}

TEST(ComplexThreshold, Of16BitsIsExact) {
  for (const Qvx16s level : {0, 1, 2, 5, 100, 1235, 16383, 30000, 32767}) {
    for (const Relation relation : {Relation::kBelow, Relation::kAbove}) {
      SCOPED_TRACE("level " + std::to_string(level) + ", relation " + std::to_string(static_cast<int>(relation)));
      const bool isBelow = relation == Relation::kBelow;
      Elementwise<Qvx16sc, Qvx16sc> clip(std::make_tuple(hard16(level)), [=](Qvx16sc v) { return clipped(v, level, relation); });
      clip.run([=](auto a, auto d, int n) { return qvxsThreshold_16sc(a, d, n, level, static_cast<int>(relation)); });
      clip.run([=](auto... v) { return (isBelow ? qvxsThreshold_LT_16sc : qvxsThreshold_GT_16sc)(v..., level); });
      const Qvx16sc value = {-3, 32767};
      Elementwise<Qvx16sc, Qvx16sc> replace(std::make_tuple(hard16(level)),
                                            [=](Qvx16sc v) { return passes(v, level, relation) ? value : v; });
      replace.run([=](auto... v) { return (isBelow ? qvxsThreshold_LTVal_16sc : qvxsThreshold_GTVal_16sc)(v..., level, value); });
    }
  }
}

// ---- floats

// Elements of every size, so that no square overflows unnoticed, near the level, on the axes, zeros, infinities, NaN.
template <class C> std::vector<C> hardFloats(double level) {
  using T = decltype(C::re);
  Random random(seed());
  std::vector<C> v;
  const auto add = [&v](double re, double im) { v.push_back({static_cast<T>(re), static_cast<T>(im)}); };
  for (int i = 0; i < 600; ++i) {
    const double angle = 1e-3 * static_cast<double>(random() % 6283);
    const int most = std::numeric_limits<T>::max_exponent - 2;
    const double size = i % 2 == 0 ? std::ldexp(1 + 1e-3 * static_cast<double>(random() % 1000),
                                                static_cast<int>(random() % (2 * static_cast<uint64_t>(most))) - most)
                                   : level * (0.5 + 1e-3 * static_cast<double>(random() % 1000));
    add(size * std::cos(angle), size * std::sin(angle));
  }
  const double inf = std::numeric_limits<double>::infinity();
  const double tiny = std::numeric_limits<T>::denorm_min();
  const double huge = std::numeric_limits<T>::max();
  for (const double x : {0.0, -0.0, tiny, huge, -huge, inf, -inf, level, -level, 3 * level / 5, static_cast<double>(NAN)}) {
    for (const double y : {0.0, -0.0, tiny, huge, inf, -inf, 4 * level / 5, static_cast<double>(NAN)}) add(x, y), add(y, x);
  }
  return v;
}

template <class C> bool hasNaN(C v) { return v.re != v.re || v.im != v.im; }

// The larger part within `roundings` of the element's type, the smaller one likewise as part of the magnitude.
template <class C>::testing::AssertionResult near(C got, Point want, double roundings) {
  using T = decltype(C::re);
  const Long unit = std::max({fabsl(want.re), fabsl(want.im), Long{std::numeric_limits<T>::min()}});
  const Long allowed = unit * std::numeric_limits<T>::epsilon() * roundings;
  const auto isNear = [=](T a, Long b) {
    if (fabsl(b) > std::numeric_limits<T>::max()) return std::isinf(a) || fabsl(a) >= std::numeric_limits<T>::max();
    return fabsl(a - b) <= allowed && std::signbit(a) == std::signbit(b);
  };
  if (isNear(got.re, want.re) && isNear(got.im, want.im)) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << show(got) << ", not " << static_cast<double>(want.re) << " and "
                                       << static_cast<double>(want.im);
}

// Every element alone against the definition: the same as among others.
template <class C, class F, class Expect> void alone(F f, const std::vector<C>& source, Expect expect) {
  for (const C v : source) {
    C d;
    EXPECT_GE(f(&v, &d, 1), qvxStatOk);
    expect(v, d);
  }
}

template <class C, class... F> void floats(double roundings, F... functions) {
  using T = decltype(C::re);
  const auto [clip, lt, gt, ltVal, gtVal] = std::tuple(functions...);
  for (const double level : {1.0, 5.0, 1e-30, 3e37, static_cast<double>(std::numeric_limits<T>::max()) / 2,
                             static_cast<double>(std::numeric_limits<T>::min())}) {
    const T l = static_cast<T>(level);
    const auto source = hardFloats<C>(l);
    for (const Relation relation : {Relation::kBelow, Relation::kAbove}) {
      SCOPED_TRACE("level " + show(l) + ", relation " + std::to_string(static_cast<int>(relation)));
      const bool isBelow = relation == Relation::kBelow;
      // Within a few roundings of the level either is right, where squares are rounded at all.
      const Long doubtful = std::is_same_v<T, float> ? 0 : l * Long{4e-16};
      const auto side = [=](C v) {
        const Long distance = reference::magnitude(v) - l;
        if (fabsl(distance) < doubtful) return 0;
        return (isBelow ? distance < 0 : distance > 0) ? 1 : -1;
      };
      const auto isKept = [](C v, C d) { return std::memcmp(&v, &d, sizeof(C)) == 0; };
      const auto expectClip = [=](C v, C d) {
        if (hasNaN(v) || side(v) < 0) {
          EXPECT_TRUE(isKept(v, d)) << show(v) << " became " << show(d);
        } else if (side(v) > 0) {
          EXPECT_TRUE(near(d, reference::onCircle(v, l), roundings)) << " from " << show(v);
        }
      };
      const int relOp = static_cast<int>(relation);
      alone<C>([=, f = clip](const C* a, C* d, int n) { return f(a, d, n, l, relOp); }, source, expectClip);
      alone<C>([=, f = isBelow ? lt : gt](const C* a, C* d, int n) { return f(a, d, n, l); }, source, expectClip);
      const C value = {T(0.25), T(-7)};
      const auto expectValue = [=](C v, C d) {
        if (!hasNaN(v) && side(v) == 0) return;
        const C want = hasNaN(v) || side(v) < 0 ? v : value;
        EXPECT_TRUE(isKept(want, d)) << show(v) << " became " << show(d);
      };
      alone<C>([=, f = isBelow ? ltVal : gtVal](const C* a, C* d, int n) { return f(a, d, n, l, value); }, source, expectValue);
    }
  }
}

TEST(ComplexThreshold, OfFloats) {
  floats<Qvx32fc>(0.51, qvxsThreshold_32fc, qvxsThreshold_LT_32fc, qvxsThreshold_GT_32fc, qvxsThreshold_LTVal_32fc,
                  qvxsThreshold_GTVal_32fc);
  floats<Qvx64fc>(2, qvxsThreshold_64fc, qvxsThreshold_LT_64fc, qvxsThreshold_GT_64fc, qvxsThreshold_LTVal_64fc,
                  qvxsThreshold_GTVal_64fc);
}

// Rounded once from the doubles, in every mode, whichever way the factor is computed.
TEST(ComplexThreshold, FloatsAreRoundedFromDoubles) {
  Random random(seed());
  const auto draw = [&random](double from, double to) {
    return from + (to - from) * 0x1p-32 * static_cast<double>(random() >> 32);
  };
  for (const float level : {1.0F, 750.0F, 0x1.234566p-29F, 1e12F}) {
    std::vector<Qvx32fc> source(5000), d(source.size());
    for (Qvx32fc& v : source) {
      const double size = level * std::exp2(draw(-3, 3));
      const double angle = draw(0, 6.3);
      v = {static_cast<float>(size * std::cos(angle)), static_cast<float>(size * std::sin(angle))};
      if (random() % 64 == 0) v.im = random() % 2 == 0 ? -0.0F : std::ldexp(v.im, -static_cast<int>(random() % 120));
      if (random() % 64 == 0) v = {3 * level, -4 * level};
    }
    for (const int mode : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO}) {
      for (const int relOp : {0, 4}) {
        std::fesetround(mode);
        qvxsThreshold_32fc(source.data(), d.data(), 5000, level, relOp);
        size_t wrong = 0;
        for (size_t i = 0; i < source.size(); ++i) {
          const Qvx32fc v = source[i];
          volatile double square = double{v.re} * v.re + double{v.im} * v.im;
          const double limit = double{level} * level;
          const bool isClipped = relOp == 0 ? square < limit : square > limit;
          volatile double factor = level / std::sqrt(square);
          const auto isRight = [&](float got, float part) {
            volatile auto low = static_cast<float>(part * (factor * (1 - 0x1p-49)));
            volatile auto high = static_cast<float>(part * (factor * (1 + 0x1p-49)));
            return isClipped ? (got == low || got == high) && std::signbit(got) == std::signbit(part) : got == part;
          };
          wrong += !isRight(d[i].re, v.re) || !isRight(d[i].im, v.im);
        }
        std::fesetround(FE_TONEAREST);
        EXPECT_EQ(wrong, 0U) << "level " << level << ", relation " << relOp << ", mode " << mode;
      }
    }
  }
}

// One element next to the level, on either side of it, among others that stay.
TEST(ComplexThreshold, OneElementNextToTheLevel) {
  for (const float level : {1.0F, 750.0F, 0x1p-60F, 1e-30F, 0x1p-126F, 1e12F, 3e37F}) {
    for (const int relOp : {0, 4}) {
      const float kept = relOp == 0 ? 2 * level : level / 2;
      for (const float to : {0.0F, level, INFINITY}) {
        std::vector<Qvx32fc> v(64, Qvx32fc{kept, 0}), d(v.size());
        v[37] = {0, std::nextafter(level, to)};
        std::vector<Qvx32fc> want = v;
        if (to == (relOp == 0 ? 0.0F : INFINITY)) want[37].im = level;
        ASSERT_EQ(qvxsThreshold_32fc(v.data(), d.data(), 64, level, relOp), qvxStatOk);
        EXPECT_EQ(std::memcmp(d.data(), want.data(), sizeof(Qvx32fc) * v.size()), 0)
            << "level " << level << ", relation " << relOp << ", next to it towards " << to;
      }
    }
  }
}

// An element of just the level is on neither side, and a level of 0 copies or clears without looking for NaN.
TEST(ComplexThreshold, AtTheLevelAndLevelZero) {
  const Qvx32fc v[3] = {{3, 4}, {-5, 0}, {0, -5}};
  Qvx32fc d[3];
  for (const int relOp : {0, 4}) {
    ASSERT_EQ(qvxsThreshold_32fc(v, d, 3, 5, relOp), qvxStatOk);
    EXPECT_EQ(std::memcmp(v, d, sizeof(v)), 0);
  }
  const Qvx64fc odd[3] = {{NAN, 1}, {-0.0, 0.0}, {INFINITY, -2}};
  const Qvx64fc zeros[3] = {};
  Qvx64fc e[3];
  ASSERT_EQ(qvxsThreshold_64fc(odd, e, 3, 0, 0), qvxStatOk);
  EXPECT_EQ(std::memcmp(odd, e, sizeof(e)), 0);
  ASSERT_EQ(qvxsThreshold_GT_64fc(odd, e, 3, -0.0), qvxStatOk);
  EXPECT_EQ(std::memcmp(zeros, e, sizeof(e)), 0);
}

}  // namespace
