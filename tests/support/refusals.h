// What each function refuses, in the order of its tests: the refusals of its row, one argument each.
#pragma once

#include <climits>

#include "support/traits.h"

namespace tests {

struct Wrong {
  using Kind = Refusal::Kind;
  Kind kind;
  size_t index;  // of the parameter
  std::vector<double> values;
  QvxStatus status;  // qvxStatOk: it is taken, and must not come before what is wrong
};

class Wrongs {
 public:
  explicit Wrongs(const Export& e) : e_(e) {
    for (const Refusal& refusal : traitsOf(e).refusals) {
      if (refusal.parameters.empty()) addAll(refusal);
      for (const std::string& name : refusal.parameters) {
        if (e.has(name)) add(refusal, static_cast<size_t>(e.indexOf(name)));
      }
    }
    for (size_t i = 0; i < e.parameters.size(); ++i) {
      if (e.parameters[i].name == "scaleFactor") all.push_back({Refusal::kValue, i, {99, -99, INT_MIN}, qvxStatOk});
    }
  }

  std::vector<Wrong> all;

 private:
  // Each counts where it stands first.
  void add(const Refusal& refusal, size_t index) {
    const auto isKnown = [&](const Wrong& w) { return w.index == index && w.kind == refusal.kind; };
    if (std::any_of(all.begin(), all.end(), isKnown)) return;
    const bool isUnsigned = e_.parameters[index].type == "Qvx32u";
    const auto below1 = isUnsigned ? std::vector<double>{0} : std::vector<double>{0, -1, INT_MIN};
    all.push_back({refusal.kind, index, refusal.below1 ? below1 : refusal.values, refusal.status});
  }
  // Pointers that may not be null, or records that a call works on.
  void addAll(const Refusal& refusal) {
    for (size_t i = 0; i < e_.parameters.size(); ++i) {
      const Parameter& p = e_.parameters[i];
      const bool isMeant = refusal.kind == Refusal::kNull ? p.isPointer() && traitsOf(e_).optional.count(p.name) == 0
                                                          : p.isRecord() && !p.isArrayOfPointers();
      if (isMeant) add(refusal, i);
    }
  }

  const Export& e_;
};

}  // namespace tests
