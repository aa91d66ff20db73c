// Drives an element-wise function over lengths, alignments and block ends against an oracle of one element.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "support/blocks.h"
#include "support/rounding.h"
#include "support/values.h"

namespace tests {

inline constexpr int kOutOfPlace = -1;

// All NaN count as equal.
template <class T> bool sameBits(const T* a, const T* b, size_t n) {
  if constexpr (isComplex<T>) {
    return sameBits(reinterpret_cast<const decltype(T::re)*>(a), reinterpret_cast<const decltype(T::re)*>(b), 2 * n);
  } else if constexpr (std::is_floating_point_v<T>) {
    for (size_t i = 0; i < n; ++i) {
      if (std::memcmp(a + i, b + i, sizeof(T)) != 0 && !(a[i] != a[i] && b[i] != b[i])) return false;
    }
    return true;
  } else {
    return std::memcmp(a, b, n * sizeof(T)) == 0;
  }
}

template <class T> std::string show(T v) {
  if constexpr (isPacked24<T>) return std::to_string(v.number());
  else if constexpr (isComplex<T>) return "(" + show(v.re) + ", " + show(v.im) + ")";
  else if constexpr (std::is_floating_point_v<T>) return testing::PrintToString(v);
  else return std::to_string(v);
}

// D: destination, S: sources. The oracle maps one element of each source to one of the destination.
template <class D, class... S> class Elementwise {
 public:
  // call(sources..., dst, len) gives the status.
  template <class Oracle>
  Elementwise(size_t n, Random& random, Oracle oracle)
      : Elementwise(std::tuple<std::vector<S>...>(values<S>(n, random)...), oracle) {}

  template <class Oracle> Elementwise(std::tuple<std::vector<S>...> sources, Oracle oracle) : sources_(std::move(sources)) {
    expected_.resize(std::get<0>(sources_).size());
    for (size_t i = 0; i < expected_.size(); ++i) {
      expected_[i] = std::apply([&](const auto&... s) { return oracle(s[i]...); }, sources_);
    }
  }

  // The status that one element asks for. That of the first with another than qvxStatOk is the vector's.
  template <class Oracle> Elementwise& warns(Oracle oracle) {
    QvxStatus first = qvxStatOk;
    for (size_t i = 0; i < expected_.size(); ++i) {
      if (first == qvxStatOk) first = std::apply([&](const auto&... s) { return oracle(s[i]...); }, sources_);
      statuses_.push_back(first);
    }
    return *this;
  }

  // Every length up to four of the widest vectors and some longer ones, at the end of a block; then every misalignment.
  template <class Call> void run(Call call, int inPlaceOf = kOutOfPlace) {
    constexpr size_t kLanes = 64 / std::min({sizeof(D), sizeof(S)...});
    for (size_t n = 1; n <= expected_.size() && ok(); n += n <= 4 * kLanes ? 1 : n / 2) once(call, inPlaceOf, n, kAtEnd, kAtEnd);
    const size_t n = std::min(expected_.size(), 10 * kLanes + 5);
    for (size_t dst = 0; dst < 64 && ok(); dst += alignof(D)) {
      once(call, inPlaceOf, n, 64, dst);
      once(call, inPlaceOf, n, alignof(std::tuple_element_t<0, std::tuple<S...>>) + 64, dst);
    }
  }

  // The whole of the data in one call.
  template <class Call> void runOnce(Call call, int inPlaceOf = kOutOfPlace) {
    once(call, inPlaceOf, expected_.size(), kAtEnd, kAtEnd);
  }
  // The one or the other.
  template <class Call> void runAt(bool everyLength, Call call, int inPlaceOf = kOutOfPlace) {
    everyLength ? run(call, inPlaceOf) : runOnce(call, inPlaceOf);
  }
  // In each of the caller's rounding modes.
  template <class Call> void runInEveryRounding(Call call) {
    for (const int mode : kRoundings) {
      SCOPED_TRACE("rounding " + std::to_string(mode));
      runOnce([&](auto... arguments) {
        const CallersRounding scope(mode);
        return call(arguments...);
      });
    }
  }

 private:
  static constexpr size_t kAtEnd = ~size_t{0};

  static bool ok() { return !testing::Test::HasFailure(); }

  template <class T> static T* place(Block& block, size_t n, size_t offset) {
    const size_t bytes = n * sizeof(T);
    return reinterpret_cast<T*>(offset == kAtEnd ? block.atEnd(bytes) : block.atOffset(offset, bytes));
  }
  template <class T> static const T* fill(Block& block, const std::vector<T>& from, size_t n, size_t offset) {
    T* p = place<T>(block, n, offset);
    std::memcpy(static_cast<void*>(p), from.data(), n * sizeof(T));
    return p;
  }

  template <class Call> void once(Call call, int inPlaceOf, size_t n, size_t srcOffset, size_t dstOffset) {
    if (testing::Test::HasFatalFailure()) return;
    [&]<size_t... I>(std::index_sequence<I...>) {
      D* dst = place<D>(dstBlock_, n, dstOffset);
      const std::tuple<const S*...> src{fill(srcBlocks_[I], std::get<I>(sources_), n, srcOffset)...};
      ((inPlaceOf == static_cast<int>(I) ? void(fill(dstBlock_, std::get<I>(sources_), n, dstOffset)) : void()), ...);
      const QvxStatus status = statuses_.empty() ? qvxStatOk : statuses_[n - 1];
      ASSERT_EQ(call(std::get<I>(src)..., dst, static_cast<int>(n)), status) << "length " << n;
      ASSERT_TRUE(dstBlock_.isIntact()) << "wrote outside the vector, length " << n;
      if (sameBits(dst, expected_.data(), n)) return;
      for (size_t i = 0; i < n; ++i) {
        if (sameBits(dst + i, expected_.data() + i, 1)) continue;
        std::string from;
        ((from += " " + show(std::get<I>(sources_)[i])), ...);
        FAIL() << "element " << i << " of " << n << ", from" << from << ": " << show(dst[i]) << ", not " << show(expected_[i])
               << "; offsets " << srcOffset << " and " << dstOffset << ", seed " << seed();
      }
    }
    (std::index_sequence_for<S...>());
  }

  std::tuple<std::vector<S>...> sources_;
  std::vector<D> expected_;
  std::vector<QvxStatus> statuses_;  // of the first 1, 2, ... elements
  Block srcBlocks_[sizeof...(S)] = {Block((sizeof(S) + 1) * kMost)...};
  Block dstBlock_{(sizeof(D) + 1) * kMost};
  static constexpr size_t kMost = 70000;
};

// A function of random elements beside its oracle.
inline constexpr size_t kChecked = 3000;
template <class D, class... S, class Call, class Oracle> void check(Call call, Oracle oracle) {
  Random random(seed());
  Elementwise<D, S...>(kChecked, random, oracle).run(call);
}

}  // namespace tests
