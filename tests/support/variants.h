// The variants side by side in one process, and how far apart their results may be.
#pragma once

#include <dlfcn.h>

#include "support/any_call.h"

namespace tests {

struct Variant {
  std::string name;
  void* handle;
  void* operator()(const Export& e) const { return dlsym(handle, e.name.c_str()); }
};

// Those that were built and that the processor can run.
inline std::vector<Variant> variants() {
  const char* folder = std::getenv("QVXS_VARIANTS_DIR");
  std::vector<Variant> all;
  for (const char* name : {"u8", "w3", "w4"}) {
    if (folder == nullptr || (!std::strcmp(name, "w3") && !__builtin_cpu_supports("avx2"))) continue;
    if (!std::strcmp(name, "w4") && !__builtin_cpu_supports("avx512bw")) continue;
    const std::string path = std::string(folder) + "/" + name + "/libqvxs.so.7";
    if (void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) all.push_back({name, handle});
  }
  return all;
}

// Empty if two variants' results of one call are as near to each other as they have to be.
inline std::string difference(const Export& e, const AnyCall& a, const AnyCall& b) {
  const std::vector<double> x = a.numbers(), y = b.numbers();
  const auto isSame = [](double u, double v) { return std::memcmp(&u, &v, sizeof u) == 0 || (std::isnan(u) && std::isnan(v)); };
  if (!traitsOf(e).is("rounds")) return std::equal(x.begin(), x.end(), y.begin(), y.end(), isSame) ? "" : "other bits";
  double largest = 0;
  for (const double v : x) {
    if (std::isfinite(v)) largest = std::max(largest, std::fabs(v));
  }
  // Of 32-bit floats, some hundred units in the last place of the largest, or of sources near 1 where they cancel. Integers are
  // rounded from them, and where they saturate the largest is not known: it follows from the sources and the scale factor.
  const double ofFloats = 1e-5 * std::max(largest, 1.0);
  const double points = std::ldexp(1, static_cast<int>(a.shape("order"))) + 100;
  const int sourceBits = e.name.find("32s16s") == e.name.npos ? 0 : 16;
  const double ofIntegers =
      ofFloats + 1 + std::ldexp(0.1 * std::sqrt(points), sourceBits - static_cast<int>(a.shape("scaleFactor")));
  const std::vector<bool> areIntegers = a.integers();
  for (size_t i = 0; i < x.size(); ++i) {
    if (isSame(x[i], y[i]) || x[i] == y[i] || std::fabs(x[i] - y[i]) <= (areIntegers[i] ? ofIntegers : ofFloats)) continue;
    return "element " + std::to_string(i) + " is " + std::to_string(x[i]) + " and " + std::to_string(y[i]);
  }
  return "";
}

}  // namespace tests
