// The stages of the filter bank with their functions, filters and streams to test them with.
#pragma once

#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <string>
#include <vector>

#include "reference/filter_bank.h"
#include "support/blocks.h"
#include "support/values.h"

namespace tests {

using reference::Filter;

// The exports of one stage.
template <class S, class T> struct Stage {
  const char* name;
  QvxStatus (*allocate)(S**, const Qvx32f*, int, int, const Qvx32f*, int, int);
  QvxStatus (*run)(const T*, Qvx32f*, Qvx32f*, int, S*);
  QvxStatus (*setLines)(S*, const Qvx32f*, const Qvx32f*);
  QvxStatus (*getLines)(const S*, Qvx32f*, Qvx32f*);
  QvxStatus (*release)(S*);
};
template <class S, class T> struct InverseStage : Stage<S, T> { QvxStatus (*back)(const Qvx32f*, const Qvx32f*, int, T*, S*); };

// clang-format off
inline const Stage<QvxsWTFwdState_32f, Qvx32f> kForward = {"32f", qvxsWTFwdInitAlloc_32f, qvxsWTFwd_32f, qvxsWTFwdSetDlyLine_32f, qvxsWTFwdGetDlyLine_32f, qvxsWTFwdFree_32f};
inline const InverseStage<QvxsWTInvState_32f, Qvx32f> kInverse = {{"32f", qvxsWTInvInitAlloc_32f, nullptr, qvxsWTInvSetDlyLine_32f, qvxsWTInvGetDlyLine_32f, qvxsWTInvFree_32f}, qvxsWTInv_32f};

template <class F> void forEachForward(F f) {
  f(kForward);
  f(Stage<QvxsWTFwdState_8u32f, Qvx8u>{"8u", qvxsWTFwdInitAlloc_8u32f, qvxsWTFwd_8u32f, qvxsWTFwdSetDlyLine_8u32f, qvxsWTFwdGetDlyLine_8u32f, qvxsWTFwdFree_8u32f});
  f(Stage<QvxsWTFwdState_8s32f, Qvx8s>{"8s", qvxsWTFwdInitAlloc_8s32f, qvxsWTFwd_8s32f, qvxsWTFwdSetDlyLine_8s32f, qvxsWTFwdGetDlyLine_8s32f, qvxsWTFwdFree_8s32f});
  f(Stage<QvxsWTFwdState_16u32f, Qvx16u>{"16u", qvxsWTFwdInitAlloc_16u32f, qvxsWTFwd_16u32f, qvxsWTFwdSetDlyLine_16u32f, qvxsWTFwdGetDlyLine_16u32f, qvxsWTFwdFree_16u32f});
  f(Stage<QvxsWTFwdState_16s32f, Qvx16s>{"16s", qvxsWTFwdInitAlloc_16s32f, qvxsWTFwd_16s32f, qvxsWTFwdSetDlyLine_16s32f, qvxsWTFwdGetDlyLine_16s32f, qvxsWTFwdFree_16s32f});
}
template <class F> void forEachInverse(F f) {
  f(kInverse);
  f(InverseStage<QvxsWTInvState_32f8u, Qvx8u>{{"8u", qvxsWTInvInitAlloc_32f8u, nullptr, qvxsWTInvSetDlyLine_32f8u, qvxsWTInvGetDlyLine_32f8u, qvxsWTInvFree_32f8u}, qvxsWTInv_32f8u});
  f(InverseStage<QvxsWTInvState_32f8s, Qvx8s>{{"8s", qvxsWTInvInitAlloc_32f8s, nullptr, qvxsWTInvSetDlyLine_32f8s, qvxsWTInvGetDlyLine_32f8s, qvxsWTInvFree_32f8s}, qvxsWTInv_32f8s});
  f(InverseStage<QvxsWTInvState_32f16u, Qvx16u>{{"16u", qvxsWTInvInitAlloc_32f16u, nullptr, qvxsWTInvSetDlyLine_32f16u, qvxsWTInvGetDlyLine_32f16u, qvxsWTInvFree_32f16u}, qvxsWTInv_32f16u});
  f(InverseStage<QvxsWTInvState_32f16s, Qvx16s>{{"16s", qvxsWTInvInitAlloc_32f16s, nullptr, qvxsWTInvSetDlyLine_32f16s, qvxsWTInvGetDlyLine_32f16s, qvxsWTInvFree_32f16s}, qvxsWTInv_32f16s});
}
// clang-format on

struct Shape {
  int lenLow, offsLow, lenHigh, offsHigh;
};
// Lengths and offsets of each parity; bands alike, which are computed together; filters and offsets longer than short calls.
inline const Shape kShapes[] = {{1, 0, 1, 0},     {1, -1, 1, 1},    {1, -1, 2, -1},  {2, 0, 2, 0},   {2, -1, 2, -1},
                                {3, -1, 3, -1},   {3, 0, 2, 1},     {4, 1, 4, 1},    {5, 0, 3, -1},  {5, 2, 5, 2},
                                {8, 0, 8, 0},     {9, -1, 7, 0},    {20, 0, 20, 0},  {20, 5, 19, 6}, {37, -1, 33, 64},
                                {2, 301, 1, 400}, {700, 3, 3, 700}, {333, 0, 333, 0}};

template <class S> std::string describe(const S& stage, const Shape& shape) {
  return std::string(stage.name) + ", taps " + std::to_string(shape.lenLow) + " and " + std::to_string(shape.lenHigh) +
         ", offsets " + std::to_string(shape.offsLow) + " and " + std::to_string(shape.offsHigh);
}

inline Filter taps(int n, Random& random) {
  Filter h(static_cast<size_t>(n));
  for (float& tap : h) tap = static_cast<float>(static_cast<int>(random() % 2001) - 1000) * 0.001F;
  return h;
}

// Lengths of calls: single pairs, some, and more than pass through a window or an integer record's buffer as a whole.
inline std::vector<int> cutOf(int total, int style, Random& random) {
  std::vector<int> pieces;
  const int most[] = {total, 1, 5, 40, 700};
  for (int left = total; left > 0; left -= pieces.back()) {
    pieces.push_back(std::min(left, style == 0 ? total : 1 + static_cast<int>(random() % static_cast<uint64_t>(most[style]))));
  }
  return pieces;
}

template <class T> std::vector<T> samples(size_t n, Random& random) {
  if constexpr (std::is_floating_point_v<T>) {
    std::vector<T> x(n);
    for (T& v : x) v = static_cast<T>(static_cast<int64_t>(random())) * T(0x1p-60);
    return x;
  } else {
    return values<T>(n, random);
  }
}

// A vector between unreadable pages, at their edge.
template <class T> class Guarded {
 public:
  explicit Guarded(size_t most) : block_(most * sizeof(T) + 64) {}
  T* of(const T* values, size_t n) {
    T* at = of(n);
    std::copy_n(values, n, at);
    return at;
  }
  T* of(size_t n) {
    return reinterpret_cast<T*>(turn_++ % 3 != 0 ? block_.atEnd(n * sizeof(T)) : block_.atOffset(turn_ % 61, n * sizeof(T)));
  }
  bool isIntact() const { return block_.isIntact(); }

 private:
  Block block_;
  size_t turn_ = 0;
};

template <class S, class T> S* make(const Stage<S, T>& stage, const Filter& low, int offsLow, const Filter& high, int offsHigh) {
  S* state = nullptr;
  EXPECT_EQ(stage.allocate(&state, low.data(), static_cast<int>(low.size()), offsLow, high.data(), static_cast<int>(high.size()),
                           offsHigh),
            qvxStatOk);
  return state;
}

// Pass a stream through a stage, in pieces between unreadable pages.
template <class S, class T>
void split(const Stage<S, T>& stage, S* state, const std::vector<T>& x, const std::vector<int>& pieces, std::vector<float>& low,
           std::vector<float>& high) {
  Guarded<T> source(x.size());
  Guarded<float> first(x.size()), second(x.size());
  size_t at = 0;
  for (const int piece : pieces) {
    const auto n = static_cast<size_t>(piece);
    const T* a = source.of(x.data() + 2 * at, 2 * n);
    float *l = first.of(n), *h = second.of(n);
    ASSERT_EQ(stage.run(a, l, h, piece, state), qvxStatOk);
    ASSERT_TRUE(first.isIntact() && second.isIntact());
    low.insert(low.end(), l, l + n);
    high.insert(high.end(), h, h + n);
    at += n;
  }
}
template <class S, class T>
void join(const InverseStage<S, T>& stage, S* state, const std::vector<float>& low, const std::vector<float>& high,
          const std::vector<int>& pieces, std::vector<T>& x) {
  Guarded<float> first(low.size()), second(low.size());
  Guarded<T> result(2 * low.size());
  size_t at = 0;
  for (const int piece : pieces) {
    const auto n = static_cast<size_t>(piece);
    T* d = result.of(2 * n);
    ASSERT_EQ(stage.back(first.of(low.data() + at, n), second.of(high.data() + at, n), piece, d, state), qvxStatOk);
    ASSERT_TRUE(result.isIntact());
    x.insert(x.end(), d, d + 2 * n);
    at += n;
  }
}

}  // namespace tests
