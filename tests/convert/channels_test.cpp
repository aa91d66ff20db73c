// Channels joined and split: byte by byte, for any number of them.
#include <qvx/qvxs.h>

#include "convert/conversion.h"

namespace {

using namespace tests;

// f(channels, frames, a pointer to each channel)
template <class F> void forAllShapes(F f) {
  for (const size_t channels : {1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 16, 33}) {
    for (const size_t frames : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 33, 63, 64, 65, 100, 259}) {
      SCOPED_TRACE(std::to_string(channels) + " channels, " + std::to_string(frames) + " frames");
      std::vector<std::vector<Qvx32f>> planes(channels, std::vector<Qvx32f>(frames));
      std::vector<Qvx32f*> pointers;
      for (auto& plane : planes) pointers.push_back(plane.data());
      if (!testing::Test::HasFatalFailure()) f(channels, frames, pointers.data());
    }
  }
}

// Full scale to integers: exact in 64 bits up to the given type's arithmetic.
int32_t clipped16(float x) { return x < 32767 ? static_cast<int32_t>(std::nearbyint(std::max(x, -32768.0F))) : 32767; }
int32_t scaled16(float x) {
  volatile float product = (x < 1 ? std::max(x, -1.0F) : 1.0F) * 32767.5F;
  return static_cast<int32_t>(std::nearbyint(product - 0.5F));
}
int32_t scaled24(float x) {
  volatile double product = double{x < 1 ? std::max(x, -1.0F) : 1.0F} * 8388607.5;
  return static_cast<int32_t>(std::nearbyint(product - 0.5));
}

template <class D, class F> void joins(F f, int32_t (*oracle)(float), size_t bytes, float range) {
  auto hard = hardFloats<Qvx32f>();
  for (size_t i = 0; i < hard.size(); i += 2) hard[i] = hard[i] * range / 32768;
  std::shuffle(hard.begin(), hard.end(), Random(seed()));
  forAllShapes([&](size_t channels, size_t frames, Qvx32f* const* planes) {
    const auto sample = [&](size_t c, size_t i) { return hard[(c * 1009 + i) % hard.size()]; };
    for (size_t c = 0; c < channels; ++c) {
      for (size_t i = 0; i < frames; ++i) planes[c][i] = sample(c, i);
    }
    std::vector<uint8_t> joined(channels * frames * bytes);
    for (const int rounding : kRoundings) {
      {
        const CallersRounding scope(rounding);
        ASSERT_EQ(f(planes, static_cast<int>(channels), static_cast<int>(frames), reinterpret_cast<D*>(joined.data())),
                  qvxStatOk);
      }
      for (size_t at = 0; at < channels * frames; ++at) {
        const float x = sample(at % channels, at / channels);
        const int32_t want = oracle(x);
        ASSERT_EQ(std::memcmp(&joined[at * bytes], &want, bytes), 0) << "element " << at << " from " << x;
      }
    }
  });
}

TEST(Channels, Join) {
  joins<Qvx16s>(qvxsJoin_32f16s_D2L, clipped16, 2, 32768);
  joins<Qvx16s>(qvxsJoinScaled_32f16s_D2L, scaled16, 2, 1);
  joins<Qvx8u>(qvxsJoinScaled_32f24s_D2L, scaled24, 3, 1);
}

template <class S, class F, class Oracle> void splits(F f, Oracle oracle, size_t bytes) {
  forAllShapes([&](size_t channels, size_t frames, Qvx32f* const* planes) {
    Random random(seed());
    const auto joined = values<uint8_t>(channels * frames * bytes, random);
    ASSERT_EQ(f(reinterpret_cast<const S*>(joined.data()), planes, static_cast<int>(channels), static_cast<int>(frames)),
              qvxStatOk);
    for (size_t at = 0; at < channels * frames; ++at) {
      int32_t x = 0;
      std::memcpy(&x, &joined[at * bytes], bytes);
      const int unused = 32 - 8 * static_cast<int>(bytes);
      x = static_cast<int32_t>(static_cast<uint32_t>(x) << unused) >> unused;
      ASSERT_EQ(planes[at % channels][at / channels], oracle(x)) << "element " << at << " from " << x;
    }
  });
}

float unscaled16(int32_t x) {
  volatile float product = static_cast<float>(x) * 3.051804378628731e-05F;
  return product + 1.5259021893143654e-05F;
}
float unscaled24(int32_t x) {
  volatile double product = x * 1.19209296656209e-07;
  return static_cast<float>(product + 5.96046483281045e-08);
}

TEST(Channels, Split) {
  splits<Qvx16s>(qvxsSplitScaled_16s32f_D2L, unscaled16, 2);
  splits<Qvx8u>(qvxsSplitScaled_24s32f_D2L, unscaled24, 3);
}

// Every 16-bit sample survives the way through floats, and the extremes are full scale.
TEST(Channels, ThereAndBack) {
  std::vector<Qvx16s> all(65536), back(65536);
  for (size_t i = 0; i < all.size(); ++i) all[i] = static_cast<Qvx16s>(i);
  std::vector<Qvx32f> left(32768), right(32768);
  Qvx32f* const channels[2] = {left.data(), right.data()};
  ASSERT_EQ(qvxsSplitScaled_16s32f_D2L(all.data(), channels, 2, 32768), qvxStatOk);
  EXPECT_EQ(*std::max_element(right.begin(), right.end()), 1.0F);
  EXPECT_EQ(*std::min_element(left.begin(), left.end()), -1.0F);
  ASSERT_EQ(qvxsJoinScaled_32f16s_D2L(channels, 2, 32768, back.data()), qvxStatOk);
  EXPECT_EQ(all, back);
  const Qvx32f loud[1] = {2};
  const Qvx32f* const one[1] = {loud};
  ASSERT_EQ(qvxsJoinScaled_32f16s_D2L(one, 1, 1, back.data()), qvxStatOk);
  EXPECT_EQ(back[0], 32767);
}

// A channel that is not there.
TEST(Channels, Refusals) {
  Qvx32f samples[4] = {};
  Qvx16s out[8] = {};
  Qvx32f* const bad[2] = {samples, nullptr};
  EXPECT_EQ(qvxsJoin_32f16s_D2L(bad, 2, 4, out), qvxStatNullPtr);
  EXPECT_EQ(qvxsJoin_32f16s_D2L(bad, 1, 4, out), qvxStatOk);
  EXPECT_EQ(qvxsSplitScaled_16s32f_D2L(out, bad, 2, 4), qvxStatNullPtr);
}

}  // namespace
