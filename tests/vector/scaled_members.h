// The members of an arithmetic family by shape, each with its in-place form, against one exact operation.
#pragma once

#include "reference/scaled.h"
#include "support/elementwise.h"

namespace tests {

// All scale factors that any type can tell apart, and far ones.
inline std::vector<int> scaleFactors() {
  std::vector<int> all = {INT32_MIN, INT32_MIN + 1, -1000, 1000, INT32_MAX};
  for (int s = -70; s <= 70; ++s) all.push_back(s);
  return all;
}

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
template <class T, class Op> auto parts(Op op) {
  return [op](T a, T b) {
    if constexpr (isComplex<T>) return T{op(a.re, b.re), op(a.im, b.im)};
    else return static_cast<T>(op(a, b));
  };
}

template <class T, class Exact> auto saturated(Exact exact) {
  return [exact](auto a, auto b) { return reference::saturated<T>(exact(a, b)); };
}

template <class D, class A = D> inline QvxStatus (*noInPlace)(const A*, D*, int) = nullptr;
template <class T> inline QvxStatus (*noOutOfPlace)(const T*, T, T*, int) = nullptr;

// ---- two vectors

// In place the destination is the second operand, but of a sum or a product it could be either.
template <class D, class A, class B, class Oracle>
void binary(QvxStatus (*f)(const A*, const B*, D*, int), QvxStatus (*inPlace)(const A*, D*, int), Oracle oracle) {
  Random random(seed());
  Elementwise<D, A, B> trial(700, random, oracle);
  trial.run(f);
  if constexpr (std::is_same_v<D, B>) {
    if (inPlace != nullptr) trial.run([=](const A* a, const B*, D* d, int n) { return inPlace(a, d, n); }, 1);
  }
}

template <class D, class A, class B, class Oracle>
void scaledBinary(QvxStatus (*f)(const A*, const B*, D*, int, int), QvxStatus (*inPlace)(const A*, D*, int, int), Oracle oracle,
                  std::vector<int> scales = scaleFactors()) {
  const auto trialOf = [&](int s, size_t n) {
    Random random(seed() + static_cast<unsigned>(s));
    return std::make_unique<Elementwise<D, A, B>>(n, random, [=](A a, B b) { return oracle(a, b, s); });
  };
  for (const int s : scales) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    trialOf(s, 600)->runOnce([=](const A* a, const B* b, D* d, int n) { return f(a, b, d, n, s); });
    if (testing::Test::HasFailure()) return;
  }
  for (const int s : kPathScales) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    const auto trial = trialOf(s, 700);
    trial->run([=](const A* a, const B* b, D* d, int n) { return f(a, b, d, n, s); });
    if constexpr (std::is_same_v<D, B>) {
      if (inPlace != nullptr) trial->run([=](const A* a, const B*, D* d, int n) { return inPlace(a, d, n, s); }, 1);
    }
    if (testing::Test::HasFailure()) return;
  }
}

template <class Exact> void allPairsOfBytes(QvxStatus (*f)(const Qvx8u*, const Qvx8u*, Qvx8u*, int, int), Exact exact) {
  std::vector<Qvx8u> a(65536);
  std::vector<Qvx8u> b(65536);
  for (size_t i = 0; i < 65536; ++i) a[i] = static_cast<Qvx8u>(i), b[i] = static_cast<Qvx8u>(i >> 8);
  for (int s = -10; s <= 18; ++s) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    Elementwise<Qvx8u, Qvx8u, Qvx8u> trial(std::make_tuple(a, b),
                                           [=](Qvx8u x, Qvx8u y) { return reference::scaled<Qvx8u>(exact(x, y), s); });
    trial.runOnce([=](const Qvx8u* x, const Qvx8u* y, Qvx8u* d, int n) { return f(x, y, d, n, s); });
  }
}

// ---- a vector and a constant

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

template <class T, class Oracle>
void constant(QvxStatus (*f)(const T*, T, T*, int), QvxStatus (*inPlace)(T, T*, int), Oracle oracle) {
  for (const T c : constants<T>()) {
    SCOPED_TRACE("constant " + show(c));
    Random random(seed());
    Elementwise<T, T> trial(700, random, [=](T a) { return oracle(a, c); });
    if (f != nullptr) trial.run([=](const T* a, T* d, int n) { return f(a, c, d, n); });
    if (inPlace != nullptr) trial.run([=](const T*, T* d, int n) { return inPlace(c, d, n); }, 0);
    if (testing::Test::HasFailure()) return;
  }
}

template <class T, class Oracle>
void scaledConstant(QvxStatus (*f)(const T*, T, T*, int, int), QvxStatus (*inPlace)(T, T*, int, int), Oracle oracle) {
  for (const T c : constants<T>()) {
    SCOPED_TRACE("constant " + show(c));
    for (const int s : scaleFactors()) {
      SCOPED_TRACE("scale factor " + std::to_string(s));
      Random random(seed() + static_cast<unsigned>(s));
      Elementwise<T, T> trial(300, random, [=](T a) { return oracle(a, c, s); });
      if (f != nullptr) trial.runOnce([=](const T* a, T* d, int n) { return f(a, c, d, n, s); });
      if (inPlace != nullptr) trial.runOnce([=](const T*, T* d, int n) { return inPlace(c, d, n, s); }, 0);
      if (testing::Test::HasFailure()) return;
    }
  }
  const T c = constants<T>()[0];
  for (const int s : kPathScales) {
    Random random(seed());
    Elementwise<T, T> trial(700, random, [=](T a) { return oracle(a, c, s); });
    if (f != nullptr) trial.run([=](const T* a, T* d, int n) { return f(a, c, d, n, s); });
  }
}

}  // namespace tests
