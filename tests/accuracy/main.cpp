// qvxs_accuracy: the worst error of every function that states one, with the input where it occurs.
#include <cstdio>

#include "vector/math_accuracy.h"

int main() {
  std::printf("Variant %.4s: every 16th float, 2^21 doubles a line\n\n", qvxsGetLibVersion()->cpuTag);
  std::printf("| function | stated ULP | worst ULP | at |\n|---|---:|---:|---:|\n");
  int exceeded = 0;
  for (const tests::Accuracy& a : tests::mathAccuracy(16, 1 << 20)) {
    std::printf("| %s | %.2f | %.4f | %a |\n", a.name.c_str(), a.bound, a.ulp, a.at);
    exceeded += !(a.ulp <= a.bound);
  }
  return exceeded > 0 ? 1 : 0;
}
