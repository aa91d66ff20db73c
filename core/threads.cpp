#include "core/threads.h"

#include <dlfcn.h>
#include <pthread.h>
#include <qvx/qvxcore.h>
#include <sched.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace {

std::atomic<int> requestedThreads{0};  // 0: as many as found
std::atomic<int> foundThreads{0};      // by the process's own settings; 0: not looked for yet

// The OpenMP runtime that the program has loaded; 0 if there is none.
int ofRuntime(const char* name) {
  const auto function = reinterpret_cast<int (*)()>(dlsym(RTLD_DEFAULT, name));
  return function == nullptr ? 0 : function();
}

// 0 where it is not set, or beyond an int: 99999999999 would wrap to 1215752191, and records of filters have memory for each.
int ofEnvironment() {
  const char* text = std::getenv("OMP_NUM_THREADS");
  const long n = text == nullptr ? 0 : std::strtol(text, nullptr, 10);
  return n > std::numeric_limits<int>::max() ? 0 : static_cast<int>(std::max(n, 0L));
}

int ofAffinity() {
  cpu_set_t set;
  return sched_getaffinity(0, sizeof set, &set) == 0 ? CPU_COUNT(&set) : 1;
}

// The processor time that a container may take, in processors, a fraction included; 0 if it is not limited.
double ofQuota() {
  double quota = 0, period = 0;
  std::FILE* file = std::fopen("/sys/fs/cgroup/cpu.max", "re");
  if (file == nullptr) return 0;
  const bool isLimited = std::fscanf(file, "%lf %lf", &quota, &period) == 2;
  std::fclose(file);
  return isLimited && period > 0 ? quota / period : 0;
}

int findThreads() {
  int n = ofRuntime("omp_get_max_threads");
  if (n < 1) n = ofEnvironment();
  if (n > 0) return n;
  n = ofAffinity();
  int callers = 0;  // a thread cancelled while it reads the file would leave it open, and the team taken
  pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &callers);
  if (const double quota = ofQuota(); quota > 0) n = std::min(n, static_cast<int>(std::ceil(quota)));
  pthread_setcancelstate(callers, nullptr);
  return std::max(n, 1);
}

}  // namespace

namespace qvx {

bool isInsideOpenMP() {
  static const auto isInside = reinterpret_cast<int (*)()>(dlsym(RTLD_DEFAULT, "omp_in_parallel"));
  return isInside != nullptr && isInside() != 0;
}

}  // namespace qvx

int ownGetNumThreads() {
  const int requested = requestedThreads.load(std::memory_order_relaxed);
  if (requested > 0) return requested;
  const int known = foundThreads.load(std::memory_order_relaxed);
  if (known > 0) return known;
  const int found = findThreads();
  int none = 0;
  return foundThreads.compare_exchange_strong(none, found) ? found : none;
}

void qvxSetNumThreads(int n) { requestedThreads.store(n > 0 ? n : 0, std::memory_order_relaxed); }
