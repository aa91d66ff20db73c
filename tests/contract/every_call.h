// What the tests of every function share: some calls of each, and an allocator that they steer.
#pragma once

#include <gtest/gtest.h>

#include "support/any_call.h"

namespace tests {

// Stands in for the library's allocator: counts requests, returns blocks of garbage, and fails on demand.
struct Allocator {
  int live = 0;
  int requests = 0;
  int failing = 0;  // the number of the request that fails
  uint8_t garbage = 0xA5;
  int threadsMeanwhile = 0;  // set by another thread, as it were, before the library has its block
  size_t margin = 0;         // bytes after the last block that are not its own
  const uint8_t* end = nullptr;
};
extern Allocator allocator;  // memory_test.cpp

// Calls of each function.
inline int calls() {
  const char* asked = std::getenv("QVXS_CALLS");
  return asked == nullptr ? 40 : std::atoi(asked);
}

class EveryCall : public testing::Test {
 protected:
  // Calls f(export, choices) for some calls of each function, until one fails.
  template <class F> void forEach(F f) {
    uint64_t seed = 0;
    for (const Export& e : exportTable()) {
      for (int i = 0; e.call && i < calls(); ++i) {
        memory_.reuse();
        failures_.clear();
        f(e, Choices(++seed));
        if (failures_.empty()) continue;
        ADD_FAILURE() << failures_;
        break;
      }
    }
  }
  void expect(bool holds, const char* what, const AnyCall& call) {
    if (!holds) failures_ += std::string(what) + ": " + call.describe() + '\n';
  }

  Memory memory_;
  std::string failures_;
};

}  // namespace tests
