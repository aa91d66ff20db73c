// The members of an element-wise family by shape, against one exact operation. Forms in place are those of the same name out of
// place, which is tested for all functions at once; here are those that have no other form.
#pragma once

#include "reference/scaled.h"
#include "support/elementwise.h"

namespace tests {

// All scale factors that any type can tell apart, and far ones.
inline std::vector<int> scaleFactors() { return range(-70, 70, {INT32_MIN, INT32_MIN + 1, -1000, 1000, INT32_MAX}); }

// The paths of the kernels differ by scale factor; these reach all of them at every length.
inline constexpr int kPathScales[] = {-9, -1, 0, 1, 2, 3, 12, 16, 17, 20, 33};

// An exact operation on each part: of a real element there is one.
template <class Exact> auto partwise(Exact exact) {
  return [exact]<class T>(T a, T b, int s) {
    if constexpr (isComplex<T>) {
      using Part = decltype(T::re);
      return T{reference::scaled<Part>(exact(a.re, b.re), s), reference::scaled<Part>(exact(a.im, b.im), s)};
    } else {
      return reference::scaled<T>(exact(a, b), s);
    }
  };
}

// The same for floats, where the operation is the type's own.
template <class Op> auto parts(Op op) {
  return [op]<class T>(T a, T b) {
    if constexpr (isComplex<T>) return T{op(a.re, b.re), op(a.im, b.im)};
    else return static_cast<T>(op(a, b));
  };
}

template <class T, class Exact> auto saturated(Exact exact) {
  return [exact](auto a, auto b) { return reference::saturated<T>(exact(a, b)); };
}

// All values of a narrow type.
template <class T> std::vector<T> allOf() {
  std::vector<T> all;
  for (int64_t x = std::numeric_limits<T>::min(); x <= std::numeric_limits<T>::max(); ++x) all.push_back(static_cast<T>(x));
  return all;
}

// Constants: the edges and a few others.
template <class T> std::vector<T> constants() {
  Random random(seed() + 1);
  std::vector<T> all = values<T>(4, random);
  if constexpr (isComplex<T>) {
    using Part = decltype(T::re);
    const Part least = std::is_integral_v<Part> ? std::numeric_limits<Part>::min() : Part(-3);
    all.insert(all.end(), {T{0, 0}, T{1, 0}, T{least, least}, T{0, least}});
  } else if constexpr (std::is_integral_v<T>) {
    all.insert(all.end(), {T(0), T(1), T(-1), std::numeric_limits<T>::min(), std::numeric_limits<T>::max()});
  } else {
    all.insert(all.end(), {T(1), T(-2.5)});
  }
  return all;
}

// ---- one function of each shape

template <class Oracle, class D, class A> void each(Oracle oracle, QvxStatus (*f)(const A*, D*, int)) {
  Random random(seed());
  Elementwise<D, A>(700, random, oracle).run(f);
}

template <class Oracle, class D, class A, class B> void each(Oracle oracle, QvxStatus (*f)(const A*, const B*, D*, int)) {
  Random random(seed());
  Elementwise<D, A, B>(700, random, oracle).run(f);
}

// Every scale factor over some data, and those of all paths at every length.
template <class Oracle, class D, class A, class B>
void each(Oracle oracle, QvxStatus (*f)(const A*, const B*, D*, int, int), const std::vector<int>& scales = scaleFactors()) {
  const auto at = [&](int s, size_t n, bool everyLength) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    Random random(seed() + static_cast<unsigned>(s));
    Elementwise<D, A, B> trial(n, random, [=](A a, B b) { return oracle(a, b, s); });
    const auto call = [=](const A* a, const B* b, D* d, int n) { return f(a, b, d, n, s); };
    trial.runAt(everyLength, call);
  };
  for (const int s : scales) at(s, 600, false);
  for (const int s : kPathScales) at(s, 700, true);
}

template <class Oracle, class T> void each(Oracle oracle, QvxStatus (*f)(const T*, T, T*, int)) {
  for (const T c : constants<T>()) {
    SCOPED_TRACE("constant " + show(c));
    Random random(seed());
    Elementwise<T, T>(700, random, [=](T a) { return oracle(a, c); }).run([=](const T* a, T* d, int n) { return f(a, c, d, n); });
  }
}

template <class Oracle, class T> void each(Oracle oracle, QvxStatus (*inPlace)(T, T*, int)) {
  for (const T c : constants<T>()) {
    SCOPED_TRACE("constant " + show(c));
    Random random(seed());
    Elementwise<T, T> trial(700, random, [=](T a) { return oracle(a, c); });
    trial.run([=](const T*, T* d, int n) { return inPlace(c, d, n); }, 0);
  }
}

// By each of some constants at all scale factors, and by one of them at every length at those of `paths`.
template <class T, class Oracle>
void byConstants(Oracle oracle, QvxStatus (*f)(const T*, T, T*, int, int), const std::vector<T>& some, T one,
                 const std::vector<int>& paths) {
  const auto at = [&](T c, int s, size_t n, bool everyLength) {
    SCOPED_TRACE("constant " + show(c) + ", scale factor " + std::to_string(s));
    Random random(seed() + static_cast<unsigned>(s));
    Elementwise<T, T> trial(n, random, [=](T a) { return oracle(a, c, s); });
    const auto call = [=](const T* a, T* d, int n) { return f(a, c, d, n, s); };
    trial.runAt(everyLength, call);
  };
  for (const T c : some) {
    for (const int s : scaleFactors()) at(c, s, 300, false);
  }
  for (const int s : paths) at(one, s, 700, true);
}

template <class Oracle, class T> void each(Oracle oracle, QvxStatus (*f)(const T*, T, T*, int, int)) {
  const auto all = constants<T>();
  byConstants<T>(oracle, f, all, all[0], {std::begin(kPathScales), std::end(kPathScales)});
}

// Functions of one rule.
template <class Oracle, class... F> void all(Oracle oracle, F... functions) { (each(oracle, functions), ...); }

// ---- one source with data of its own, and what it asks to be reported

inline constexpr auto kSilent = [](auto) { return qvxStatOk; };
template <QvxStatus kStatus> inline constexpr auto kBelow0 = [](auto x) { return x < 0 ? kStatus : qvxStatOk; };

template <class D, class S, class Oracle, class Warning = decltype(kSilent)>
void unary(QvxStatus (*f)(const S*, D*, int), std::vector<S> sources, Oracle oracle, Warning warning = kSilent) {
  Elementwise<D, S>(std::make_tuple(sources), oracle).warns(warning).run(f);
}

// Every scale factor once over all the sources, and a few at every length and alignment.
template <class D, class S, class Oracle, class Warning = decltype(kSilent)>
void scaledUnary(QvxStatus (*f)(const S*, D*, int, int), const std::vector<S>& sources, Oracle oracle,
                 const std::vector<int>& scales, const std::vector<int>& pathScales, Warning warning = kSilent) {
  std::vector<S> few;  // with the bad ones far after, too
  for (size_t i = 0; i < std::min<size_t>(sources.size(), 700); ++i) few.push_back(sources[i * 7919 % sources.size()]);
  const auto at = [&](int s, bool everyLength) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    Elementwise<D, S> trial(std::make_tuple(everyLength ? few : sources), [=](S x) { return oracle(x, s); });
    const auto call = [=](const S* a, D* d, int n) { return f(a, d, n, s); };
    trial.warns(warning).runAt(everyLength, call);
  };
  for (const int s : scales) at(s, false);
  for (const int s : pathScales) at(s, true);
}

}  // namespace tests
