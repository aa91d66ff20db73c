// The float functions with the accuracy that their declarations state: for the tests and for the table of `./run accuracy`.
#pragma once

#include <qvx/qvxs.h>

#include <string>

#include "support/ulp.h"

namespace tests {

struct Accuracy {
  std::string name;
  double bound;  // stated at the declaration
  double ulp;
  double at;
};

inline Accuracy row(const char* name, double bound, auto worst) {
  return {name, bound, worst.ulp, static_cast<double>(worst.at)};
}

// Oracles: for floats the C library's doubles, which are right to 2^-29 ULP of a float; for doubles its long doubles.
inline std::vector<Accuracy> mathAccuracy(uint64_t floatStep, size_t doubles) {
  const auto single = [=](auto f, auto oracle) { return worstOverFloats(f, oracle, floatStep); };
  const auto two = [=](auto f, auto oracle, double low, double high) {
    return worstOf<double, double>(f, oracle, hardDoubles(doubles, low, high));
  };
  const auto longExp = [](double x) { return std::exp(static_cast<long double>(x)); };
  const auto longLn = [](double x) { return std::log(static_cast<long double>(x)); };
  const auto longArctan = [](double x) { return std::atan(static_cast<long double>(x)); };
  const bool hasTables = qvxsGetLibVersion()->cpuTag[1] == '4';
  return {
      row("Cubrt_32f", 0.52, single(qvxsCubrt_32f, [](float x) { return std::cbrt(static_cast<double>(x)); })),
      row("Exp_32f", 1.0, single(qvxsExp_32f, [](float x) { return std::exp(static_cast<double>(x)); })),
      row("Ln_32f", 0.85, single(qvxsLn_32f, [](float x) { return std::signbit(x) ? NAN : std::log(static_cast<double>(x)); })),
      row("Arctan_32f", 1.0, single(qvxsArctan_32f, [](float x) { return std::atan(static_cast<double>(x)); })),
      row("Exp_64f", 1.0, two(qvxsExp_64f, longExp, -746, 710)),
      row("Exp_64f, subnormal results", 1.0, two(qvxsExp_64f, longExp, -746, -708)),
      row("Ln_64f", hasTables ? 1.1 : 0.85,
          two(
              qvxsLn_64f, [=](double x) { return std::signbit(x) ? NAN : longLn(x); }, 0.25, 4)),
      row("Ln_64f, near 1", hasTables ? 1.1 : 0.85,
          two(
              qvxsLn_64f, [=](double x) { return std::signbit(x) ? NAN : longLn(x); }, 0.9, 1.125)),
      row("Arctan_64f", 1.25, two(qvxsArctan_64f, longArctan, -3, 3)),
      row("Arctan_64f, large", 1.25, two(qvxsArctan_64f, longArctan, 1, 1e6)),
      row("Ln_64f32f", 0.51,
          worstOf<double, float>(
              qvxsLn_64f32f, [=](double x) { return std::signbit(x) ? NAN : longLn(x); }, hardDoubles(doubles, 0.25, 4))),
  };
}

}  // namespace tests
