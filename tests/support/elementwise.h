// Drives an element-wise function over lengths, alignments and block ends against an oracle of one element.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "support/blocks.h"
#include "support/values.h"

namespace tests {

inline constexpr int kOutOfPlace = -1;

// Any number that is not one equals another.
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

inline std::string text(__int128 v) { return std::to_string(static_cast<long long>(v)); }
template <class T> std::string show(T v) {
  if constexpr (isComplex<T>) return "(" + show(v.re) + ", " + show(v.im) + ")";
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

 private:
  static constexpr size_t kAtEnd = ~size_t{0};

  static bool ok() { return !testing::Test::HasFailure(); }

  template <class T> static T* place(Block& block, size_t n, size_t offset) {
    const size_t bytes = n * sizeof(T);
    return reinterpret_cast<T*>(offset == kAtEnd ? block.atEnd(bytes) : block.atOffset(offset, bytes));
  }

  template <class Call> void once(Call call, int inPlaceOf, size_t n, size_t srcOffset, size_t dstOffset) {
    oneCall(call, inPlaceOf, n, srcOffset, dstOffset, std::index_sequence_for<S...>());
  }

  template <class Call, size_t... I>
  void oneCall(Call call, int inPlaceOf, size_t n, size_t srcOffset, size_t dstOffset, std::index_sequence<I...>) {
    D* dst = place<D>(dstBlock_, n, dstOffset);
    std::tuple<const S*...> src{fill<S>(I, n, srcOffset)...};
    ((inPlaceOf == static_cast<int>(I) ? copyTo(dst, std::get<I>(sources_), n) : void()), ...);
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

  template <class T> const T* fill(size_t index, size_t n, size_t offset) {
    T* src = place<T>(srcBlocks_[index], n, offset);
    std::apply([&](const auto&... s) { (copyIf(src, s, n, static_cast<const void*>(&s), index), ...); }, sources_);
    return src;
  }
  template <class T, class U> void copyIf(T* to, const std::vector<U>& from, size_t n, const void* self, size_t index) {
    if constexpr (std::is_same_v<T, U>) {
      if (self == addresses()[index]) std::memcpy(static_cast<void*>(to), from.data(), n * sizeof(T));
    }
  }
  std::vector<const void*> addresses() const {
    return std::apply([](const auto&... s) { return std::vector<const void*>{&s...}; }, sources_);
  }
  template <class T> static void copyTo(D* dst, const std::vector<T>& from, size_t n) {
    if constexpr (std::is_same_v<T, D>) std::memcpy(static_cast<void*>(dst), from.data(), n * sizeof(D));
  }

  std::tuple<std::vector<S>...> sources_;
  std::vector<D> expected_;
  std::vector<QvxStatus> statuses_;  // of the first 1, 2, ... elements
  Block srcBlocks_[sizeof...(S)] = {Block((sizeof(S) + 1) * kMost)...};
  Block dstBlock_{(sizeof(D) + 1) * kMost};
  static constexpr size_t kMost = 70000;
};

}  // namespace tests
