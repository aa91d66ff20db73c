// Derives a call from a function's signature: pointers to const are sources in order, the pointer to non-const is the
// destination, the first scalar after it the length; all other scalars are given, in order.
#pragma once

#include <tuple>
#include <utility>

#include "frame/vectors.h"

namespace bench {

// Where the length is: after the destination, or before it in reductions, whose destination is one element.
enum class Shape { kMap, kReduction };

template <class F, Shape kShape = Shape::kMap> struct Signature;
template <class R, class... P, Shape kShape> struct Signature<R (*)(P...), kShape> {
  using Parameters = std::tuple<P...>;
  template <size_t I> using Parameter = std::tuple_element_t<I, Parameters>;
  static constexpr size_t kCount = sizeof...(P);

  static constexpr bool kPointer[] = {std::is_pointer_v<P>...};
  static constexpr bool kSource[] = {std::is_const_v<std::remove_pointer_t<P>>...};

  static constexpr size_t destinationAt() {
    size_t i = 0;
    while (!kPointer[i] || kSource[i]) ++i;
    return i;
  }
  static constexpr size_t kLength = [] {
    size_t at = destinationAt();
    if (kShape == Shape::kReduction) return at - 1;
    while (kPointer[at]) ++at;
    return at;
  }();
  // Elements of the destination.
  static int results(const Vectors& v) { return kShape == Shape::kMap ? v.n : 1; }
  using Destination = std::remove_pointer_t<Parameter<destinationAt()>>;

  static constexpr size_t sourcesBefore(size_t at) {
    size_t count = 0;
    for (size_t i = 0; i < at; ++i) count += kPointer[i] && kSource[i];
    return count;
  }
  static constexpr size_t scalarsBefore(size_t at) {
    size_t count = 0;
    for (size_t i = 0; i < at; ++i) count += !kPointer[i] && i != kLength;
    return count;
  }

  template <size_t I> static auto pointer(const Vectors& v) {
    using T = Parameter<I>;
    if constexpr (!kSource[I]) {
      // A second destination uses the slab of the third source; further results of a reduction lie a cache line after the first.
      constexpr size_t kFollowing = I - destinationAt();
      if (kShape == Shape::kMap && kFollowing > 0) return reinterpret_cast<T>(v.slabs.source(2)) + v.misaligned;
      return reinterpret_cast<T>(v.slabs.destination() + 64 * kFollowing) + v.misaligned;
    } else {
      const bool shared = v.overlap != 0 && sourcesBefore(I) == 0;
      std::byte* slab = shared ? v.slabs.destination() : v.slabs.source(sourcesBefore(I));
      return reinterpret_cast<T>(slab) + v.misaligned + (shared ? v.overlap : 0);
    }
  }

  template <size_t I, class Scalars> static Parameter<I> argument(const Vectors& v, const Scalars& scalars) {
    if constexpr (kPointer[I]) return pointer<I>(v);
    else if constexpr (I == kLength) return static_cast<Parameter<I>>(v.n);
    else return static_cast<Parameter<I>>(std::get<scalarsBefore(I)>(scalars));
  }

  template <class Scalars> static Parameters arguments(const Vectors& v, const Scalars& scalars) {
    return [&]<size_t... I>(std::index_sequence<I...>) { return Parameters(argument<I>(v, scalars)...); }
    (std::make_index_sequence<kCount>());
  }

  static void fillSources(const Vectors& v) {
    const auto one = [&]<size_t I>(std::integral_constant<size_t, I>) {
      using T = std::remove_const_t<std::remove_pointer_t<Parameter<I>>>;
      if constexpr (kPointer[I] && kSource[I]) fill<T>(const_cast<T*>(pointer<I>(v)), v.n, I + 1);
    };
    [&]<size_t... I>(std::index_sequence<I...>) { (one(std::integral_constant<size_t, I>()), ...); }
    (std::make_index_sequence<kCount>());
  }

  // The sources from `least` to `most` instead.
  static void fillSourcesWithin(const Vectors& v, double least, double most) {
    fillSources(v);
    const auto one = [&]<size_t I>(std::integral_constant<size_t, I>) {
      using T = std::remove_const_t<std::remove_pointer_t<Parameter<I>>>;
      if constexpr (kPointer[I] && kSource[I]) {
        auto* p = reinterpret_cast<Part<T>*>(const_cast<T*>(pointer<I>(v)));
        fit(p, static_cast<size_t>(v.n) * sizeof(T) / sizeof(*p), least, most);
      }
    };
    [&]<size_t... I>(std::index_sequence<I...>) { (one(std::integral_constant<size_t, I>()), ...); }
    (std::make_index_sequence<kCount>());
  }
};

}  // namespace bench
