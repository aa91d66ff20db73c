// The threads of divided calls: a few workers for the whole process, made when a call first asks for them.
//
// A call is cut into parts. The caller takes the first; then it and the workers, as they wake, each take the next one that is
// left. So a caller never waits for a thread that has not begun, however busy the machine is, and needs no other way where no
// thread can be made.
#include <link.h>
#include <linux/futex.h>
#include <pthread.h>
#include <qvx/qvxcore.h>
#include <signal.h>
#include <sys/syscall.h>
#include <time.h>
#include <unistd.h>
#include <x86intrin.h>

#include <algorithm>
#include <atomic>
#include <climits>

#include "core/threads.h"

namespace {

using Part = void (*)(void*, int);

constexpr int kMostWorkers = 63;
constexpr size_t kStack = size_t{256} << 10;  // a part takes no more than 160 KiB
// Cycles for which a thread spins before it sleeps: 5 us, as long as it takes to wake one.
constexpr uint64_t kPatience = 15000;

// The call in progress. Its number tells it from the one before: a worker that wakes late must not mistake the parts of the next
// call for those it was woken for.
struct Team {
  std::atomic<bool> isTaken{false};
  std::atomic<uint32_t> call{0};    // odd while there is work
  std::atomic<uint32_t> inside{0};  // workers that may read what follows
  std::atomic<int> next{0};
  std::atomic<uint32_t> left{0};  // parts that are not done
  std::atomic<bool> isAwaited{false};
  std::atomic<uint32_t> asleep{0};
  int count = 0;
  Part part = nullptr;
  void* argument = nullptr;
  int workers = 0;
  unsigned refused = 0;  // calls since one in which no thread could be made
};
Team team;
[[gnu::tls_model("initial-exec")]] thread_local bool isWorker = false;  // a lookup that cannot allocate

void sleepWhile(std::atomic<uint32_t>& word, uint32_t value) {
  syscall(SYS_futex, reinterpret_cast<uint32_t*>(&word), FUTEX_WAIT_PRIVATE, value, nullptr, nullptr, 0);
}
void wake(std::atomic<uint32_t>& word, int count) {
  syscall(SYS_futex, reinterpret_cast<uint32_t*>(&word), FUTEX_WAKE_PRIVATE, count, nullptr, nullptr, 0);
}

template <class Condition> bool comesSoon(Condition condition, uint64_t patience = kPatience) {
  for (const uint64_t start = __rdtsc(); __rdtsc() - start < patience;) {
    if (condition()) return true;
    _mm_pause();
  }
  return condition();
}

void takePart(int i) {
  team.part(team.argument, i);
  if (team.left.fetch_sub(1) == 1 && team.isAwaited.load()) wake(team.left, 1);
}
void takeParts() {
  for (int i; (i = team.next.fetch_add(1)) < team.count;) takePart(i);
}

// The caller spins for as long as it has worked, which is about how long a worker takes over its part. When it slept sooner,
// waking it took 25 us on a virtual machine, its workers were asleep by the next call, and a transform of 2^16 points took 150
// us, not 98. After that it sleeps: at a real-time priority it would keep the workers from the processor.
void awaitParts(uint64_t worked) {
  const auto areDone = [] { return team.left.load() == 0; };
  if (!comesSoon(areDone, std::max(kPatience, worked))) {
    team.isAwaited.store(true);
    for (uint32_t left; (left = team.left.load()) != 0;) sleepWhile(team.left, left);
    team.isAwaited.store(false);
  }
}

void* work(void*) {
  isWorker = true;
  uint32_t seen = 0;
  for (;;) {
    uint32_t call = team.call.load();
    if (call == seen || call % 2 == 0) {
      const auto isNew = [&] { return (call = team.call.load()) != seen && call % 2 != 0; };
      if (!comesSoon(isNew)) {
        team.asleep.fetch_add(1);
        if (!isNew()) sleepWhile(team.call, call);
        team.asleep.fetch_sub(1);
        continue;
      }
    }
    seen = call;
    // From here on the caller waits for this worker, unless it has left already.
    team.inside.fetch_add(1);
    if (team.call.load() == call) takeParts();
    team.inside.fetch_sub(1);
  }
  return nullptr;
}

// The bytes that the C library takes from the stack of a thread: the thread-local data of all loaded objects.
size_t threadLocalBytes() {
  size_t bytes = 0;
  const auto add = [](dl_phdr_info* object, size_t, void* sum) {
    for (int i = 0; i < object->dlpi_phnum; ++i) {
      const auto& segment = object->dlpi_phdr[i];
      if (segment.p_type == PT_TLS) *static_cast<size_t*>(sum) += segment.p_memsz + segment.p_align;
    }
    return 0;
  };
  dl_iterate_phdr(add, &bytes);
  return bytes;
}

// Makes workers, up to `wanted` in all, with all signals blocked. After a failure the next 1000 calls do not try again.
void hire(int wanted) {
  if (team.workers >= wanted || (team.refused > 0 && ++team.refused < 1000)) return;
  team.refused = 0;
  sigset_t all, callers;
  sigfillset(&all);
  pthread_attr_t attributes;
  if (pthread_attr_init(&attributes) != 0) return;
  pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED);
  pthread_attr_setstacksize(&attributes, kStack + threadLocalBytes());
  pthread_sigmask(SIG_SETMASK, &all, &callers);
  for (pthread_t thread; team.workers < wanted; ++team.workers) {
    if (pthread_create(&thread, &attributes, work, nullptr) == 0) continue;
    team.refused = 1;
    break;
  }
  pthread_sigmask(SIG_SETMASK, &callers, nullptr);
  pthread_attr_destroy(&attributes);
}

// The child of a fork has no workers: only the thread that forked, which was in no call.
void forgetWorkers() {
  team.workers = 0;
  team.refused = 0;
  team.asleep.store(0);
  team.inside.store(0);
  team.call.store(0);
  team.isAwaited.store(false);
  team.isTaken.store(false);
}
[[maybe_unused]] const int registered = pthread_atfork(nullptr, nullptr, forgetWorkers);

}  // namespace

void ownRunParts(int count, void (*part)(void*, int), void* argument) {
  if (count < 2 || isWorker || qvx::isInsideOpenMP() || team.isTaken.exchange(true)) {
    for (int i = 0; i < count; ++i) part(argument, i);
    return;
  }
  hire(std::min({count, ownGetNumThreads(), kMostWorkers + 1}) - 1);
  team.part = part;
  team.argument = argument;
  team.count = count;
  team.left.store(static_cast<uint32_t>(count));
  team.next.store(1);
  team.call.fetch_add(1);
  if (team.asleep.load() > 0) wake(team.call, std::min(count - 1, team.workers));
  const uint64_t start = __rdtsc();
  takePart(0);
  takeParts();
  awaitParts(__rdtsc() - start);
  team.call.fetch_add(1);
  // Latecomers leave at once. nanosleep() would be a cancellation point: the team would stay taken.
  const timespec moment = {0, 1000};
  while (!comesSoon([] { return team.inside.load() == 0; })) syscall(SYS_nanosleep, &moment, nullptr);
  team.isTaken.store(false);
}
