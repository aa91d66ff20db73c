// qvxs_bench [filter]: all exports whose name contains the filter, a regular expression.
#include <cstdio>

#include "frame/families.h"
#include "frame/runner.h"

int main(int argc, char** argv) {
  char interleaving[] = "--benchmark_enable_random_interleaving=true";
  char* flags[] = {argv[0], interleaving, nullptr};
  int count = 2;
  benchmark::Initialize(&count, flags);

  bench::Suite suite;
  for (const auto family :
       {bench::add, bench::sub, bench::mul, bench::copy, bench::logic, bench::shift, bench::widen, bench::narrow,
        bench::floatToInt, bench::half, bench::sqrt, bench::threshold, bench::compand, bench::channels}) {
    family(suite);
  }
  const int mismatches = bench::run(suite, std::regex(argc > 1 ? argv[1] : ""));
  if (mismatches > 0) std::fprintf(stderr, "%d outputs differ from a peer's\n", mismatches);
  return mismatches > 0 ? 1 : 0;
}
