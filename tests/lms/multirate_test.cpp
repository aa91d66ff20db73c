// The adaptive filter that decimates: integers to the bit.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include "reference/lms.h"
#include "support/blocks.h"
#include "support/values.h"

namespace {

using reference::Wide;
using tests::Random;

struct Real {
  using State = QvxsFIRLMSMRState32s_16s;
  using H = Qvx32s;
  using S = Qvx16s;
  static constexpr uint32_t kMagic = 0x46493335;
  static constexpr auto size = qvxsFIRLMSMRGetStateSize32s_16s;
  static constexpr auto init = qvxsFIRLMSMRInit32s_16s;
  static constexpr auto allocate = qvxsFIRLMSMRInitAlloc32s_16s;
  static constexpr auto release = qvxsFIRLMSMRFree32s_16s;
  static constexpr auto setMu = qvxsFIRLMSMRSetMu32s_16s;
  static constexpr auto getTaps = qvxsFIRLMSMRGetTaps32s_16s;
  static constexpr auto setTaps = qvxsFIRLMSMRSetTaps32s_16s;
  static constexpr auto getLine = qvxsFIRLMSMRGetDlyLine32s_16s;
  static constexpr auto setLine = qvxsFIRLMSMRSetDlyLine32s_16s;
  static constexpr auto value = qvxsFIRLMSMRGetDlyVal32s_16s;
  static constexpr auto put = qvxsFIRLMSMRPutVal32s_16s;
  static constexpr auto one = qvxsFIRLMSMROne32s_16s_Sfs;
  static constexpr auto update = qvxsFIRLMSMRUpdateTaps32s_16s;
  static constexpr auto run = qvxsFIRLMSMR32s_16s_Sfs;
};
struct Complex {
  using State = QvxsFIRLMSMRState32sc_16sc;
  using H = Qvx32sc;
  using S = Qvx16sc;
  static constexpr uint32_t kMagic = 0x46493336;
  static constexpr auto size = qvxsFIRLMSMRGetStateSize32sc_16sc;
  static constexpr auto init = qvxsFIRLMSMRInit32sc_16sc;
  static constexpr auto allocate = qvxsFIRLMSMRInitAlloc32sc_16sc;
  static constexpr auto release = qvxsFIRLMSMRFree32sc_16sc;
  static constexpr auto setMu = qvxsFIRLMSMRSetMu32sc_16sc;
  static constexpr auto getTaps = qvxsFIRLMSMRGetTaps32sc_16sc;
  static constexpr auto setTaps = qvxsFIRLMSMRSetTaps32sc_16sc;
  static constexpr auto getLine = qvxsFIRLMSMRGetDlyLine32sc_16sc;
  static constexpr auto setLine = qvxsFIRLMSMRSetDlyLine32sc_16sc;
  static constexpr auto value = qvxsFIRLMSMRGetDlyVal32sc_16sc;
  static constexpr auto put = qvxsFIRLMSMRPutVal32sc_16sc;
  static constexpr auto one = qvxsFIRLMSMROne32sc_16sc_Sfs;
  static constexpr auto update = qvxsFIRLMSMRUpdateTaps32sc_16sc;
  static constexpr auto run = qvxsFIRLMSMR32sc_16sc_Sfs;
};

// A real number is a complex one without an imaginary part.
template <class T> Wide re(T v) {
  if constexpr (tests::isComplex<T>) return v.re;
  else return v;
}
template <class T> Wide im(T v) {
  if constexpr (tests::isComplex<T>) return v.im;
  else return 0;
}
template <class T> T made(Wide re, [[maybe_unused]] Wide im) {
  using Part = tests::Part<T>;
  if constexpr (tests::isComplex<T>) return {static_cast<Part>(re), static_cast<Part>(im)};
  else return static_cast<T>(re);
}
template <class T> bool same(const std::vector<T>& a, const std::vector<T>& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

// The definition, h[0] and the newest sample first.
template <class P> struct Exact {
  using H = typename P::H;
  using S = typename P::S;
  std::vector<H> h;
  std::vector<S> x;
  float mu;

  void push(S v) {
    x.insert(x.begin(), v);
    x.pop_back();
  }
  S output(int scale) const {
    Wide sumRe = 0, sumIm = 0;
    for (size_t k = 0; k < h.size(); ++k) {
      sumRe += re(h[k]) * re(x[k]) - im(h[k]) * im(x[k]);
      sumIm += re(h[k]) * im(x[k]) + im(h[k]) * re(x[k]);
    }
    const auto part = [&](Wide sum) { return reference::scaled<Qvx16s>(reference::wrapped(sum), scale); };
    return made<S>(part(sumRe), part(sumIm));
  }
  void adapt(S e) {
    for (size_t k = 0; k < h.size(); ++k) {
      const Wide changeRe = re(e) * re(x[k]) + im(e) * im(x[k]), changeIm = im(e) * re(x[k]) - re(e) * im(x[k]);
      const auto part = [&](Wide tap, Wide change) {
        return reference::adapted(static_cast<int32_t>(tap), 2.0 * mu, static_cast<int64_t>(change));
      };
      h[k] = made<H>(part(re(h[k]), changeRe), part(im(h[k]), changeIm));
    }
  }
  S step(S ref, int scale) {
    const S y = output(scale);
    const auto error = [](Wide r, Wide v) { return reference::saturated<Qvx16s>(r - v); };
    adapt(made<S>(error(re(ref), re(y)), error(im(ref), im(y))));
    return y;
  }
};

template <class P> void expectStreams() {
  Random random(tests::seed());
  for (const int n : {1, 2, 3, 5, 8, 15, 16, 17, 31, 40, 64, 100}) {
    // Steps of all sizes: halves of a unit, sums that saturate, taps that leave the range, infinity, NaN.
    const float steps[] = {0, 0x1p-16F, -0x1p-17F, 3e-5F, 1e-3F, 0.5F, 1e4F, -1e20F, INFINITY, NAN};
    for (size_t round = 0; round < std::size(steps); ++round) {
      const int down = 1 + static_cast<int>(random() % 5), scale = static_cast<int>(random() % 40);
      const auto size = static_cast<size_t>(n);
      Exact<P> exact = {tests::values<typename P::H>(size, random), tests::values<typename P::S>(size, random), steps[round]};
      if (round % 2 == 0) {
        for (auto& tap : exact.h) tap = made<typename P::H>(re(tap) / 65536, im(tap) / 65536);
      }
      int bytes = 0;
      ASSERT_EQ(P::size(n, down, &bytes), qvxStatOk);
      tests::Block memory(static_cast<size_t>(bytes));
      auto* block = memory.atEnd(static_cast<size_t>(bytes));
      typename P::State* state = nullptr;
      ASSERT_EQ(P::init(&state, exact.h.data(), n, down, exact.mu, exact.x.data(), block), qvxStatOk);
      EXPECT_EQ(*reinterpret_cast<const uint32_t*>(state), P::kMagic);

      // Whole calls and their parts in turn, past the end of a record's room.
      for (int done = 0; done < 700;) {
        const int iters = 1 + static_cast<int>(random() % 90);
        const auto count = static_cast<size_t>(iters);
        const auto x = tests::values<typename P::S>(count * static_cast<size_t>(down), random),
                   ref = tests::values<typename P::S>(count, random);
        std::vector<typename P::S> got(count), wanted;
        if (iters % 2 == 0) {
          ASSERT_EQ(P::run(x.data(), ref.data(), got.data(), iters, state, scale), qvxStatOk);
        }
        for (size_t i = 0; i < count; ++i) {
          for (int k = 0; k < down; ++k) {
            const auto v = x[i * static_cast<size_t>(down) + static_cast<size_t>(k)];
            exact.push(v);
            if (iters % 2 != 0) {
              ASSERT_EQ(P::put(v, state), qvxStatOk);
            }
          }
          if (iters % 2 == 0) {
            wanted.push_back(exact.step(ref[i], scale));
          } else {  // adapts to errors of its own
            ASSERT_EQ(P::one(&got[i], state, scale), qvxStatOk);
            ASSERT_EQ(P::update(ref[i], state), qvxStatOk);
            wanted.push_back(exact.output(scale));
            exact.adapt(ref[i]);
          }
        }
        ASSERT_TRUE(same(got, wanted)) << n << " taps, step " << exact.mu << ", scale " << scale << ", by " << down;
        done += iters * down;
      }
      std::vector<typename P::H> taps(size);
      std::vector<typename P::S> line(size);
      ASSERT_EQ(P::getTaps(state, taps.data()), qvxStatOk);
      ASSERT_EQ(P::getLine(state, line.data()), qvxStatOk);
      ASSERT_TRUE(same(taps, exact.h) && same(line, exact.x)) << n << " taps, step " << exact.mu;
      ASSERT_TRUE(memory.isIntact());
    }
  }
}
TEST(MultirateLms, IsExact) {
  expectStreams<Real>();
  expectStreams<Complex>();
}

template <class P> void expectAccess() {
  Random random(tests::seed());
  const auto h = tests::values<typename P::H>(7, random);
  const auto x = tests::values<typename P::S>(7, random);
  typename P::State* state = nullptr;
  ASSERT_EQ(P::allocate(&state, nullptr, 7, 2, 0.25F, nullptr), qvxStatOk);
  std::vector<typename P::H> taps(7);
  std::vector<typename P::S> line(7);
  EXPECT_TRUE(P::getTaps(state, taps.data()) == qvxStatOk && same(taps, std::vector<typename P::H>(7)));
  EXPECT_EQ(P::setTaps(h.data(), state), qvxStatOk);
  EXPECT_TRUE(P::getTaps(state, taps.data()) == qvxStatOk && same(taps, h));
  EXPECT_EQ(P::setLine(state, x.data()), qvxStatOk);
  EXPECT_TRUE(P::getLine(state, line.data()) == qvxStatOk && same(line, x));
  for (int i = 0; i < 7; ++i) {
    typename P::S v;
    ASSERT_EQ(P::value(state, &v, i), qvxStatOk);
    EXPECT_TRUE(same(std::vector{v}, std::vector{x[static_cast<size_t>(i)]}));
  }
  typename P::S v = x[0];
  for (const int index : {-1, 7, INT32_MAX}) EXPECT_EQ(P::value(state, &v, index), qvxStatBadArg);
  // A step size of another kind is taken from the next step on.
  Exact<P> exact = {h, x, 2e-5F};
  EXPECT_EQ(P::setMu(state, 2e-5F), qvxStatOk);
  exact.adapt(x[3]);
  EXPECT_EQ(P::update(x[3], state), qvxStatOk);
  EXPECT_TRUE(P::getTaps(state, taps.data()) == qvxStatOk && same(taps, exact.h));
  EXPECT_EQ(P::setLine(state, nullptr), qvxStatOk);
  EXPECT_TRUE(P::getLine(state, line.data()) == qvxStatOk && same(line, std::vector<typename P::S>(7)));
  EXPECT_EQ(P::release(state), qvxStatOk);

  int bytes = 0;
  EXPECT_EQ(P::size(17, 1, &bytes), qvxStatOk);
  EXPECT_EQ(bytes, static_cast<int>(128 + 544 * sizeof(typename P::H) + 32 * sizeof(typename P::H)));
  EXPECT_EQ(P::allocate(&state, nullptr, INT32_MAX, 1, 0, nullptr), qvxStatNoMem);
}
TEST(MultirateLms, GivesBackWhatItHolds) {
  expectAccess<Real>();
  expectAccess<Complex>();
}

}  // namespace
