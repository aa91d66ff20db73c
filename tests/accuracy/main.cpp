// qvxs_accuracy: the worst error of every function that states one, with the input where it occurs; then the errors of
// transforms.
#include <cstdio>

#include "accuracy/transforms.h"
#include "vector/math_accuracy.h"

int main() {
  std::printf("Variant %.4s: every 16th float, 2^21 doubles a line\n\n", qvxsGetLibVersion()->cpuTag);
  std::printf("| function | stated ULP | worst ULP | at |\n|---|---:|---:|---:|\n");
  int exceeded = 0;
  for (const tests::Accuracy& a : tests::mathAccuracy(16, 1 << 20)) {
    std::printf("| %s | %.2f | %.4f | %a |\n", a.name.c_str(), a.bound, a.ulp, a.at);
    exceeded += !(a.ulp <= a.bound);
  }
  std::printf("\nForward transforms of noise, error over eps sqrt(log2 N), stated %.2f\n\n", tests::kTransformBound);
  std::printf("| log2 N | 32fc | 64fc | real 32f | real 64f |\n|---:|---:|---:|---:|---:|\n");
  for (int order = 6; order <= 20; ++order) {
    std::printf("| %d |", order);
    for (const double error : tests::transformErrors(order).of) {
      std::printf(" %.4f |", error);
      exceeded += !(error <= tests::kTransformBound);
    }
    std::printf("\n");
  }
  std::printf("\nThe same of any length, stated %.2f, of large primes %.2f; at least 0.5 eps\n\n", tests::kSmoothBound,
              tests::kPrimeBound);
  std::printf("| N | 32fc | 64fc | real 32f | real 64f |\n|---:|---:|---:|---:|---:|\n");
  for (const int n :
       {60, 100, 360, 625, 729, 1000, 1001, 2187, 3600, 4410, 10000, 44100, 101, 139, 211, 509, 1009, 2003, 4099, 8191}) {
    const bool isPrime = n == 139 || n == 101 || n == 211 || n == 509 || n == 1009 || n == 2003 || n == 4099 || n == 8191;
    std::printf("| %d |", n);
    for (const double error : tests::anyLengthErrors(n).of) {
      std::printf(" %.4f |", error);
      exceeded += !(error <= (isPrime ? tests::kPrimeBound : tests::kSmoothBound));
    }
    std::printf("\n");
  }
  std::printf("\nCosine transforms, stated %.2f, of large primes %.2f\n\n", tests::kCosineBound, tests::kPrimeCosineBound);
  std::printf("| N | forward 32f | forward 64f | inverse 32f | inverse 64f |\n|---:|---:|---:|---:|---:|\n");
  for (const int n : {5, 8, 16, 24, 31, 50, 64, 81, 97, 100, 256, 360, 625, 1000, 1001, 1024, 4096, 4410, 101, 509, 1009}) {
    const bool isPrime = n == 101 || n == 509 || n == 1009;
    std::printf("| %d |", n);
    for (const double error : tests::cosineErrors(n).of) {
      std::printf(" %.4f |", error);
      exceeded += !(error <= (isPrime ? tests::kPrimeCosineBound : tests::kCosineBound));
    }
    std::printf("\n");
  }
  std::printf("\n");
  return exceeded > 0 ? 1 : 0;
}
