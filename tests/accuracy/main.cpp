// qvxs_accuracy: the worst error of every function that states one, with the input where it occurs; then the errors of
// transforms.
#include <cstdio>

#include "accuracy/transforms.h"
#include "vector/math_accuracy.h"

namespace {

int functions() {
  std::printf("| function | stated ULP | worst ULP | at |\n|---|---:|---:|---:|\n");
  int exceeded = 0;
  for (const tests::Accuracy& a : tests::mathAccuracy(16, 1 << 20)) {
    std::printf("| %s | %.2f | %.4f | %a |\n", a.name.c_str(), a.bound, a.ulp, a.at);
    exceeded += !(a.ulp <= a.bound);
  }
  return exceeded;
}

// A line for each size. The number of errors beyond what is stated.
template <class Errors, class Bound>
int table(const char* columns, std::initializer_list<int> sizes, Errors errorsOf, Bound boundOf) {
  std::printf("| %s |\n|---:|---:|---:|---:|---:|\n", columns);
  int exceeded = 0;
  for (const int n : sizes) {
    std::printf("| %d |", n);
    for (const double error : errorsOf(n)) {
      std::printf(" %.4f |", error);
      exceeded += !(error <= boundOf(n));
    }
    std::printf("\n");
  }
  std::printf("\n");
  return exceeded;
}

}  // namespace

int main() {
  std::printf("Variant %.4s: every 16th float, 2^21 doubles a line\n\n", qvxsGetLibVersion()->cpuTag);
  int exceeded = functions();
  std::printf("\nForward transforms of noise, error over eps sqrt(log2 N), stated %.2f\n\n", tests::kTransformBound);
  exceeded += table("log2 N | 32fc | 64fc | real 32f | real 64f", {6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20},
                    tests::transformErrors, [](int) { return tests::kTransformBound; });
  std::printf("The same of any length, stated %.2f, of large primes %.2f; at least 0.5 eps\n\n", tests::kSmoothBound,
              tests::kPrimeBound);
  exceeded +=
      table("N | 32fc | 64fc | real 32f | real 64f",
            {60, 100, 360, 625, 729, 1000, 1001, 2187, 3600, 4410, 10000, 44100, 101, 139, 211, 509, 1009, 2003, 4099, 8191},
            tests::anyLengthErrors, [](int n) { return tests::isLargePrime(n) ? tests::kPrimeBound : tests::kSmoothBound; });
  std::printf("Cosine transforms, stated %.2f, of large primes %.2f\n\n", tests::kCosineBound, tests::kPrimeCosineBound);
  exceeded +=
      table("N | forward 32f | forward 64f | inverse 32f | inverse 64f",
            {5, 8, 16, 24, 31, 50, 64, 81, 97, 100, 256, 360, 625, 1000, 1001, 1024, 4096, 4410, 101, 509, 1009},
            tests::cosineErrors, [](int n) { return tests::isLargePrime(n) ? tests::kPrimeCosineBound : tests::kCosineBound; });
  return exceeded > 0 ? 1 : 0;
}
