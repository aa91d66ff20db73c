// Reductions for the plain loops. The files that use them are compiled with -ffast-math: without leave to reorder, the compiler
// adds floats one by one.
#pragma once

#include <limits>

#include "peers/plain_loop.h"

namespace plain {

// kAdd(accumulator, elements...) over all elements, from Acc{}.
template <class Acc, auto kAdd> struct Gathered {
  template <class A, class R, class... X> [[gnu::noipa]] static void run(const A* a, int n, R* result, X...) {
    Acc all{};
    for (int i = 0; i < n; ++i) all = kAdd(all, a[i]);
    *result = static_cast<R>(all);
  }
  template <class A, class B, class R, class... X>
  [[gnu::noipa]] static void run(const A* a, const B* b, int n, R* result, X...) {
    Acc all{};
    for (int i = 0; i < n; ++i) all = kAdd(all, a[i], b[i]);
    *result = static_cast<R>(all);
  }
  template <class... A> void operator()(A... arguments) const { run(arguments...); }
};

// The element that kPick(element, held) leaves of all, kKey of it compared.
inline constexpr auto greaterOf = [](auto v, auto held) { return v > held ? v : held; };
inline constexpr auto lessOf = [](auto v, auto held) { return v < held ? v : held; };
inline constexpr auto itself = [](auto v) { return v; };
inline constexpr auto magnitude = [](auto v) {
  constexpr auto kMost = std::numeric_limits<decltype(v)>::max();
  return static_cast<decltype(v)>(v < -kMost ? kMost : v < 0 ? -v : v);
};
template <auto kPick, auto kKey = itself> struct Picked {
  template <class T> [[gnu::noipa]] static void run(const T* a, int n, T* result) {
    T held = kKey(a[0]);
    for (int i = 1; i < n; ++i) held = kPick(kKey(a[i]), held);
    *result = held;
  }
  template <class T> void operator()(const T* a, int n, T* result) const { run(a, n, result); }
};

// The same with the index of the first.
inline constexpr auto isGreater = [](auto v, auto held) { return v > held; };
inline constexpr auto isLess = [](auto v, auto held) { return v < held; };
template <class T, class Replaces> void hold(Replaces replaces, T v, int i, T& held, int& index) {
  if (!replaces(v, held)) return;
  held = v;
  index = i;
}
template <auto kReplaces, auto kKey = itself> struct PickedIndex {
  template <class T> [[gnu::noipa]] static void run(const T* a, int n, T* result, int* index) {
    T held = kKey(a[0]);
    int at = 0;
    for (int i = 1; i < n; ++i) hold(kReplaces, kKey(a[i]), i, held, at);
    *result = held;
    *index = at;
  }
  template <class T> void operator()(const T* a, int n, T* result, int* index) const { run(a, n, result, index); }
};

struct LeastAndGreatest {
  template <class T> [[gnu::noipa]] static void run(const T* a, int n, T* min, T* max) {
    T least = a[0];
    T greatest = a[0];
    for (int i = 1; i < n; ++i) {
      least = lessOf(a[i], least);
      greatest = greaterOf(a[i], greatest);
    }
    *min = least;
    *max = greatest;
  }
  template <class T> void operator()(const T* a, int n, T* min, T* max) const { run(a, n, min, max); }
};
struct LeastAndGreatestIndex {
  template <class T> [[gnu::noipa]] static void run(const T* a, int n, T* min, int* minIndex, T* max, int* maxIndex) {
    T least = a[0];
    T greatest = a[0];
    int leastAt = 0;
    int greatestAt = 0;
    for (int i = 1; i < n; ++i) {
      hold(isLess, a[i], i, least, leastAt);
      hold(isGreater, a[i], i, greatest, greatestAt);
    }
    *min = least, *minIndex = leastAt;
    *max = greatest, *maxIndex = greatestAt;
  }
  template <class T> void operator()(const T* a, int n, T* min, int* minIndex, T* max, int* maxIndex) const {
    run(a, n, min, minIndex, max, maxIndex);
  }
};

inline constexpr auto addTo = [](auto all, auto x) { return all + x; };

}  // namespace plain
