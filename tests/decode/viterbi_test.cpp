// The four steps of the trellis decoder: each against its definition, and all together on a coded sequence in noise.
#include <gtest/gtest.h>
#include <qvx/qvxs.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "support/blocks.h"
#include "support/values.h"

namespace {

using tests::Random;
using Labels = std::array<Qvx8u, 16>;

// A partition of the lattice: points two apart in one direction are in the subset of those two apart in the other.
const Labels kLabels = {0, 1, 4, 5, 2, 3, 6, 7, 4, 5, 0, 1, 6, 7, 2, 3};

int branches(int states) { return states == 16 ? 4 : states == 32 ? 8 : 16; }
int label(const Labels& labels, int column, int row) { return labels[((row + 2) & 3) * 4 + ((column + 2) & 3)]; }

// ---- distances

int size(int d) { return d * d >> 4; }

// The lattice point 256 * column + 128, 256 * row + 128, seen from a sample.
struct Seen {
  Qvx16sc sample;
  Qvx32u error(int column, int row) const {
    return static_cast<Qvx32u>(size(std::abs(sample.re - 256 * column - 128)) + size(std::abs(sample.im - 256 * row - 128)));
  }
};

// All fractions of a cell in both directions, at the ends of the range too.
TEST(VarPoint, IsTheNearestOfEachSubset) {
  Random random(tests::seed());
  for (const int states : {16, 32, 64, 0, -5, 17}) {
    for (int i = 0; i < 66000; ++i) {
      Qvx16sc x = {static_cast<Qvx16s>(random()), static_cast<Qvx16s>(random())};
      if (i < 65536) x = {static_cast<Qvx16s>((x.re & 0xFF00) | (i & 255)), static_cast<Qvx16s>((x.im & 0xFF00) | i >> 8)};
      const Seen from{x};
      const int column = (x.re - 128) >> 8, row = (x.im - 128) >> 8;
      const int mask = states == 16 ? 3 : 7;
      std::array<Qvx32u, 9> expected;
      expected.fill(0xABCD);
      std::array<Qvx32u, 9> found = expected;
      const auto put = [&](int c, int r, Qvx32u error, int number) {
        expected[static_cast<size_t>(label(kLabels, c, r) & mask)] = error | static_cast<Qvx32u>(number) << 16;
      };
      const auto putNearer = [&](int c, int r, Qvx32u first, Qvx32u second, int number) {
        put(c, r, std::min(first, second), first < second ? number : number + 4);
      };
      const int c = column, r = row;
      put(c, r, from.error(c, r), 0);
      put(c + 1, r, from.error(c + 1, r), 1);
      put(c + 1, r + 1, from.error(c + 1, r + 1), 2);
      put(c, r + 1, from.error(c, r + 1), 3);
      if (states != 16) {
        putNearer(c, r + 2, from.error(c, r + 2), from.error(c + 2, r), 4);
        putNearer(c + 1, r + 2, from.error(c + 1, r + 2), from.error(c - 1, r), 5);
        putNearer(c + 1, r - 1, from.error(c + 2, r + 1), from.error(c, r - 1), 6);
        putNearer(c, r - 1, from.error(c + 1, r - 1), from.error(c - 1, r + 1), 7);
      }
      Qvx32u reference = 0;
      ASSERT_EQ(qvxsGetVarPointDV_16sc(&x, &reference, found.data(), kLabels.data(), states), qvxStatOk);
      ASSERT_EQ(found, expected) << states << " states, " << x.re << ", " << x.im;
      ASSERT_EQ(static_cast<Qvx16s>(reference), static_cast<Qvx16s>(256 * column + 128));
      ASSERT_EQ(static_cast<Qvx16s>(reference >> 16), static_cast<Qvx16s>(256 * row + 128));
    }
  }
}

// ---- subsets of four dimensions

// The pairs of two-dimensional subsets in their order.
std::vector<std::pair<int, int>> pairsOf(int i, int states, int inversion) {
  if (states == 16) {
    const int t = inversion ^ i, a = t >> 2, b = (t + a) & 3;
    return {{a, b}, {(a + 2) & 3, (b + 2) & 3}};
  }
  const int t = states == 32 ? (inversion ^ i) + (i & 8) * 2 : inversion ^ i;
  const auto two = [](int u) {
    const int a = u >> 2, b = (u + a) & 3;
    return std::vector<std::pair<int, int>>{{a, b}, {(a + 4) & 7, 4 + b}};
  };
  std::vector<std::pair<int, int>> pairs = states == 32 ? two(t ^ 8) : two(t);
  for (const auto& pair : two(t)) {
    if (states == 32) pairs.push_back(pair);
  }
  return pairs;
}

TEST(SymbolTable, TakesTheLeastPair) {
  Random random(tests::seed());
  for (const int states : {16, 32, 64}) {
    for (int inversion = 0; inversion < states / 2; ++inversion) {
      for (int trial = 0; trial < 20; ++trial) {
        const Qvx32u errors = trial % 3 == 0 ? 3 : trial % 3 == 1 ? 20000 : 65535;  // ties; as they are; beyond 16 bits
        std::array<Qvx32u, 16> points;
        for (Qvx32u& p : points) p = static_cast<Qvx32u>(random() % (errors + 1)) | static_cast<Qvx32u>(random() & 255) << 16;
        std::vector<Qvx16u> expected;
        for (int i = 0; i < states / 2; ++i) {
          Qvx32u least = ~Qvx32u{0}, tag = 0;
          for (const auto& [a, b] : pairsOf(i, states, inversion)) {
            const Qvx32u first = points[static_cast<size_t>(a)], second = points[static_cast<size_t>(8 + b)];
            const Qvx32u sum = (first & 0xFFFF) + (second & 0xFFFF);
            if (sum < least) least = sum, tag = first >> 16 | (second >> 16) << 8;
          }
          expected.insert(expected.end(), {static_cast<Qvx16u>(tag), static_cast<Qvx16u>(least)});
        }
        std::vector<Qvx16u> found(expected.size());
        ASSERT_EQ(qvxsBuildSymblTableDV4D_16sc(points.data(), found.data(), states, inversion), qvxStatOk);
        ASSERT_EQ(found, expected) << states << " states, inversion " << inversion;
        // Bits beyond the number of subsets mean nothing, and any other number of states is 64.
        std::vector<Qvx16u> other(64);
        ASSERT_EQ(qvxsBuildSymblTableDV4D_16sc(points.data(), other.data(), states == 64 ? -1 : states, inversion - states / 2),
                  qvxStatOk);
        other.resize(found.size());
        ASSERT_EQ(other, expected);
      }
    }
  }
}

// ---- add, compare, select

struct Metrics {
  std::vector<Qvx16u> branch;
  std::vector<Qvx32u> path;
};

void selectByDefinition(const std::vector<Qvx16u>& pathError, const std::vector<Qvx8u>& next, const std::vector<Qvx16u>& points,
                        int states, Metrics& m) {
  const int count = branches(states);
  for (int i = 0; i < states; ++i) {
    for (int j = 0; j < count; ++j) {
      const auto pair = static_cast<size_t>(2 * j + (i & 1));
      const int sum = pathError[static_cast<size_t>(i)] + static_cast<Qvx16s>(points[2 * pair + 1]);
      const size_t n = next[static_cast<size_t>(i * count + j)];
      if (sum >= m.branch[n]) continue;
      m.branch[n] = static_cast<Qvx16u>(sum);
      m.path[n] = points[2 * pair] | static_cast<Qvx32u>(i) << 16;
    }
  }
}

// Ties, sums beyond 16 bits, negative errors, any table: a state may be reached twice from another, or never. 4094 states are the
// last whose branches have a number of 16 bits; 65537 the first whose number is cut.
TEST(States, TakeTheLeastBranch) {
  Random random(tests::seed());
  for (const int states : {1, 2, 15, 16, 17, 32, 33, 64, 100, 4094, 4095, 20000, 65537}) {
    for (int trial = 0; trial < (states > 1000 ? 12 : 300); ++trial) {
      const auto count = static_cast<size_t>(branches(states));
      const Qvx16u spread = trial % 4 == 0 ? 3 : trial % 4 == 1 ? 1000 : 0xFFFF;
      const Qvx16u signs = trial % 8 == 7 ? 0xFFFF : 0x7FFF;
      std::vector<Qvx16u> pathError(static_cast<size_t>(states)), points(4 * count);
      std::vector<Qvx8u> next(pathError.size() * count);
      for (Qvx16u& v : pathError) v = static_cast<Qvx16u>(random() % (spread + 1U) + (trial % 5 == 0 ? 0xFFFF - spread : 0));
      for (Qvx16u& v : points) v = static_cast<Qvx16u>(random() % (spread + 1U)) & signs;
      if (trial % 8 == 1) points[1] |= 0x8000;  // a single negative error
      const Qvx8u last = trial % 3 == 0 ? 0 : trial % 3 == 1 ? 255 : static_cast<Qvx8u>(std::min(states, 256) - 1);
      for (Qvx8u& n : next) n = static_cast<Qvx8u>(random() % (last + 1U));
      // As many elements as the table demands, at unreadable pages.
      const size_t reached = *std::max_element(next.begin(), next.end()) + size_t{1};
      Metrics expected;
      for (size_t n = 0; n < reached; ++n) {
        expected.branch.push_back(trial % 2 == 0 ? 0xFFFF : static_cast<Qvx16u>(random() % (spread + 1U)));
        expected.path.push_back(static_cast<Qvx32u>(random()));
      }
      tests::Block branchBlock(2 * reached), pathBlock(4 * reached);
      auto* const branch = reinterpret_cast<Qvx16u*>(branchBlock.atEnd(2 * reached));
      auto* const path = reinterpret_cast<Qvx32u*>(pathBlock.atEnd(4 * reached));
      std::copy(expected.branch.begin(), expected.branch.end(), branch);
      std::copy(expected.path.begin(), expected.path.end(), path);
      selectByDefinition(pathError, next, points, states, expected);
      ASSERT_EQ(qvxsCalcStatesDV_16sc(pathError.data(), next.data(), branch, points.data(), path - 1000, states, 1000),
                qvxStatOk);
      ASSERT_TRUE(std::equal(expected.branch.begin(), expected.branch.end(), branch)) << states << " states, trial " << trial;
      ASSERT_TRUE(std::equal(expected.path.begin(), expected.path.end(), path)) << states << " states, trial " << trial;
    }
  }
}

TEST(PathMetrics, AreLessTheLeast) {
  Random random(tests::seed());
  for (const int states : {16, 32, 64, 0, -1, 48}) {
    const size_t n = states == 16 || states == 32 ? static_cast<size_t>(states) : 64;
    for (int trial = 0; trial < 200; ++trial) {
      std::vector<Qvx16u> branch(n + 1, 7), path(n + 1, 7);
      const Qvx32u spread = trial == 0 ? 1 : trial % 2 == 0 ? 4 : 0x10000;  // all alike, ties, any
      for (size_t i = 0; i < n; ++i) branch[i] = static_cast<Qvx16u>(0xFFFF - random() % spread);
      const auto least = std::min_element(branch.begin(), branch.end() - 1);
      if (*least < 7) continue;
      const auto before = branch;
      Qvx16u minimum = 0;
      Qvx8u state = 99;
      const auto first = std::min_element(branch.begin(), branch.begin() + static_cast<std::ptrdiff_t>(n)) - branch.begin();
      ASSERT_EQ(qvxsUpdatePathMetricsDV_16u(branch.data(), &minimum, &state, path.data(), states), qvxStatOk);
      ASSERT_EQ(minimum, before[static_cast<size_t>(first)]);
      ASSERT_EQ(state, first);
      for (size_t i = 0; i < n; ++i) ASSERT_TRUE(path[i] == before[i] - minimum && branch[i] == 0xFFFF);
      ASSERT_TRUE(path[n] == 7 && branch[n] == 7) << "wrote past the end";
    }
  }
}

// ---- the decoder

// Any two paths that part or meet do so in different subsets.
Qvx8u nextState(int i, int j, int states) { return static_cast<Qvx8u>((branches(states) * i + (j ^ i >> 2)) & (states - 1)); }

// Of a coded sequence in noise that a decision for the nearest point gets wrong again and again, every state but the last few,
// which nothing after them confirms.
TEST(Decoder, RecoversACodedSequence) {
  Random random(tests::seed());
  std::normal_distribution<double> noise(0, 40);
  constexpr size_t kSteps = 2000;
  for (const int states : {16, 32, 64}) {
    const auto s = static_cast<size_t>(states);
    const int mask = states == 16 ? 3 : 7;
    std::vector<Qvx8u> next;
    for (int i = 0; i < states; ++i) {
      for (int j = 0; j < branches(states); ++j) next.push_back(nextState(i, j, states));
    }
    std::vector<Qvx16u> pathError(s, 20000), branchError(s, 0xFFFF), subsets(static_cast<size_t>(states));
    pathError[0] = 0;
    std::vector<Qvx32u> pathTable(s * kSteps);
    std::vector<int> sent(1, 0);
    int wrong = 0;
    Qvx8u best = 0;
    for (size_t step = 0; step < kSteps; ++step) {
      const int i = sent.back(), j = static_cast<int>(random() % static_cast<unsigned>(branches(states)));
      const auto pairs = pairsOf(2 * j + (i & 1), states, 0);
      const auto [a, b] = pairs[random() % pairs.size()];
      sent.push_back(nextState(i, j, states));
      std::array<Qvx32u, 16> points{};
      for (size_t symbol = 0; symbol < 2; ++symbol) {
        int column, row;
        do {
          column = static_cast<int>(random() % 20) - 10;
          row = static_cast<int>(random() % 20) - 10;
        } while ((label(kLabels, column, row) & mask) != (symbol == 0 ? a : b));
        const Qvx16sc received = {static_cast<Qvx16s>(std::lrint(256 * column + 128 + noise(random))),
                                  static_cast<Qvx16s>(std::lrint(256 * row + 128 + noise(random)))};
        wrong += received.re >> 8 != column || received.im >> 8 != row;
        Qvx32u reference;
        ASSERT_EQ(qvxsGetVarPointDV_16sc(&received, &reference, &points[8 * symbol], kLabels.data(), states), qvxStatOk);
      }
      ASSERT_EQ(qvxsBuildSymblTableDV4D_16sc(points.data(), subsets.data(), states, 0), qvxStatOk);
      ASSERT_EQ(qvxsCalcStatesDV_16sc(pathError.data(), next.data(), branchError.data(), subsets.data(), pathTable.data(), states,
                                      static_cast<int>(step * s)),
                qvxStatOk);
      Qvx16u minimum;
      ASSERT_EQ(qvxsUpdatePathMetricsDV_16u(branchError.data(), &minimum, &best, pathError.data(), states), qvxStatOk);
    }
    EXPECT_GT(wrong, 3) << "noise too weak to prove anything";
    int state = best;
    for (size_t step = kSteps; step-- > 0;) {
      if (step + 1 < kSteps - 8) {
        ASSERT_EQ(state, sent[step + 1]) << states << " states, step " << step;
      }
      state = static_cast<int>(pathTable[step * s + static_cast<size_t>(state)] >> 16);
    }
    EXPECT_EQ(state, 0);
  }
}

}  // namespace
