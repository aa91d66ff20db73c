// Drives a function that only reads its vectors, over lengths, alignments and block ends.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "support/blocks.h"
#include "support/values.h"

namespace tests {

template <class... S> class Placements {
 public:
  explicit Placements(size_t most) : most_(most) {}

  // check(n, sources...) on the first n of the data: every length up to four of the widest vectors and some longer ones, at the
  // end of a block; then every misalignment.
  template <class Check> void run(const std::vector<S>&... data, Check check) {
    constexpr size_t kLanes = 64 / std::min({sizeof(S)...});
    const auto ok = [] { return !testing::Test::HasFailure(); };
    for (size_t n = 1; n <= most_ && ok(); n += n <= 4 * kLanes ? 1 : n / 2 + 1) {
      once(n, check, std::index_sequence_for<S...>(), true, 0, data...);
    }
    const size_t n = std::min(most_, 10 * kLanes + 5);
    for (size_t offset = 0; offset < 64 && ok(); offset += std::min({alignof(S)...})) {
      once(n, check, std::index_sequence_for<S...>(), false, offset, data...);
    }
  }

 private:
  template <class Check, size_t... I>
  void once(size_t n, Check& check, std::index_sequence<I...>, bool atEnd, size_t offset, const std::vector<S>&... data) {
    SCOPED_TRACE(testing::Message() << "length " << n << ", offset " << offset << ", seed " << seed());
    check(n, static_cast<const S*>(place(blocks_[I], data, n, atEnd, offset + I * alignof(S)))...);
  }
  template <class T> static T* place(Block& block, const std::vector<T>& data, size_t n, bool atEnd, size_t offset) {
    const size_t bytes = n * sizeof(T);
    T* p = reinterpret_cast<T*>(atEnd ? block.atEnd(bytes) : block.atOffset(offset, bytes));
    std::memcpy(static_cast<void*>(p), data.data(), bytes);
    return p;
  }

  size_t most_;
  Block blocks_[sizeof...(S)] = {Block((most_ + 64) * sizeof(S))...};
};

}  // namespace tests
