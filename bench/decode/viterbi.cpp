// The steps of a trellis decoder, one in each call: errors vary from step to step like noise, so that the processor cannot
// predict which branches win. It learns the winners of 256 steps of 32 states by heart.
#include <array>

#include "frame/families.h"

namespace bench {

namespace {

constexpr int kSteps = 2048;

template <int kStates> struct Trellis {
  static constexpr int kBranches = kStates == 16 ? 4 : kStates == 32 ? 8 : 16;
  std::array<Qvx8u, kStates * kBranches> next;
  std::array<std::array<Qvx16u, 4 * kBranches>, kSteps> subsets;
  std::array<Qvx16u, kStates> path{}, branch;
  std::array<Qvx32u, kStates> table;
  int step = 0;

  Trellis() {
    for (int i = 0; i < kStates; ++i) {
      for (int j = 0; j < kBranches; ++j)
        next[static_cast<size_t>(i * kBranches + j)] = static_cast<Qvx8u>((kBranches * i + (j ^ i >> 2)) & (kStates - 1));
    }
    fillBits(subsets.data(), sizeof(subsets), 1);
    for (auto& all : subsets) {
      for (size_t k = 1; k < all.size(); k += 2) all[k] = static_cast<Qvx16u>(all[k] & 0xFFF);
    }
    branch.fill(0xFFFF);
  }
};

[[gnu::noipa]] void plainStates(const Qvx16u* path, const Qvx8u* next, Qvx16u* branch, const Qvx16u* subsets, Qvx32u* table,
                                int states, int branches) {
  for (int i = 0; i < states; ++i) {
    for (int j = 0; j < branches; ++j) {
      const Qvx16u* pair = subsets + 2 * (2 * j + (i & 1));
      const int n = next[i * branches + j];
      const int sum = path[i] + static_cast<Qvx16s>(pair[1]);
      if (sum >= branch[n]) continue;
      branch[n] = static_cast<Qvx16u>(sum);
      table[n] = pair[0] | static_cast<Qvx32u>(i) << 16;
    }
  }
}

// Both contenders take n steps, each followed by the end of the step.
template <int kStates, bool kIsOurs> QvxStatus steps(const Qvx16u*, Qvx16u* metrics, int n) {
  static auto* const all = new Trellis<kStates>;
  Trellis<kStates>& t = *all;
  Qvx16u least;
  Qvx8u best;
  for (int k = 0; k < n; ++k) {
    const auto& subsets = t.subsets[static_cast<size_t>(t.step++ % kSteps)];
    if (kIsOurs) qvxsCalcStatesDV_16sc(t.path.data(), t.next.data(), t.branch.data(), subsets.data(), t.table.data(), kStates, 0);
    else plainStates(t.path.data(), t.next.data(), t.branch.data(), subsets.data(), t.table.data(), kStates, t.kBranches);
    qvxsUpdatePathMetricsDV_16u(t.branch.data(), &least, &best, t.path.data(), kStates);
  }
  metrics[0] = least;
  return qvxStatOk;
}

template <int kStates> void stateRows(Suite& s) {
  s.row("CalcStatesDV_16sc, " + std::to_string(kStates) + " states", steps<kStates, true>)
      .against("plain", steps<kStates, false>, Agreement::kDiffers)
      .stream();
}

}  // namespace

void decode(Suite& s) {
  stateRows<16>(s);
  stateRows<32>(s);
  stateRows<64>(s);
}

}  // namespace bench
