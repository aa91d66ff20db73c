// The definitions that norms and dot products are tested against, in a type that holds everything.
#pragma once

#include "reference/scaled.h"
#include "support/values.h"

namespace reference {

template <class Number> struct Complex {
  Number re = 0;
  Number im = 0;
};
template <class Number, class T> Complex<Number> number(T v) {
  if constexpr (tests::isComplex<T>) return {static_cast<Number>(v.re), static_cast<Number>(v.im)};
  else return {static_cast<Number>(v), 0};
}

// The sum of a[i] * b[i], and of the magnitudes of what is added up in each part.
template <class Number> struct DotProduct {
  Complex<Number> sum;
  Complex<Number> magnitudes;

  template <class A, class B> DotProduct(const A* a, const B* b, size_t n) {
    for (size_t i = 0; i < n; ++i) {
      const auto x = number<Number>(a[i]);
      const auto y = number<Number>(b[i]);
      add(x.re * y.re, -x.im * y.im, sum.re, magnitudes.re);
      add(x.re * y.im, x.im * y.re, sum.im, magnitudes.im);
    }
  }

 private:
  static void add(Number p, Number q, Number& total, Number& magnitude) {
    total += p + q;
    magnitude += (p < 0 ? -p : p) + (q < 0 ? -q : q);
  }
};

}  // namespace reference

namespace tests {

// Large numbers that cancel down to small sums, which is what they are bad at.
template <class T> std::vector<T> illConditioned(size_t n, Random& random, float large, float factor) {
  std::vector<T> v = values<T>(n, random);
  auto* p = reinterpret_cast<Part<T>*>(v.data());
  const size_t lanes = n * sizeof(T) / sizeof(*p);
  for (size_t i = 0; i + 7 < lanes; i += 3) p[i + 7] -= p[i] * factor;
  for (size_t i = 0; i < lanes; i += 5) p[i] += large;
  for (size_t i = 2; i < lanes; i += 5) p[i] -= large;
  return v;
}

}  // namespace tests
