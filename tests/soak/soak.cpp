// Random calls in one process for a given number of minutes, from threads that come and go, while requests for memory fail: leaks
// add up here. Exits with 1 if a call went wrong, memory grew or a thread stayed.
//
// Under the memory sanitizer destinations, working memory and blocks of the allocator are uninitialised, and results must not be.
// This program is not instrumented then, since the standard library is not.
#include <dlfcn.h>
#include <malloc.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <thread>

#include "support/any_call.h"

// Replaces the core's allocator: counts blocks, and fails on a thread's demand.
namespace {
std::atomic<int> liveBlocks{0};
thread_local int requests = 0, failing = 0;  // the number of the request that fails
}  // namespace

#pragma GCC visibility push(default)
extern "C" void* qvxMalloc(int64_t bytes) {
  static const auto allocate = reinterpret_cast<decltype(&qvxMalloc)>(dlsym(RTLD_NEXT, "qvxMalloc"));
  if (++requests == failing) return nullptr;
  void* block = allocate(bytes);
  liveBlocks += block != nullptr;
  if (block != nullptr) tests::markWritten(block, static_cast<size_t>(bytes), false);
  return block;
}
extern "C" void qvxFree(void* block) {
  static const auto release = reinterpret_cast<decltype(&qvxFree)>(dlsym(RTLD_NEXT, "qvxFree"));
  liveBlocks -= block != nullptr;
  release(block);
}
// Memory of this program counts as written, since its own code does not tell the sanitizer.
extern "C" const char* __msan_default_options() { return "poison_in_malloc=0:poison_in_free=0:intercept_memcmp=0"; }

// Where instrumented code passes on which arguments are written; this program marks all of them as written.
extern "C" __attribute__((weak)) thread_local uint64_t __msan_param_tls[100];
#pragma GCC visibility pop

namespace {

using tests::AnyCall;
using tests::Export;

void* called(const Export& e) {
  if (__msan_poison != nullptr) std::fill(std::begin(__msan_param_tls), std::end(__msan_param_tls), 0);
  return e.address;
}

struct Counts {
  std::atomic<int64_t> calls{0}, failed{0}, wrong{0};
} counts;

void report(const AnyCall& call, const std::string& what) {
  static std::mutex mutex;
  const std::lock_guard lock(mutex);
  ++counts.wrong;
  std::printf("%s: %s\n", call.describe().c_str(), what.c_str());
}

void makeCall(const Export& e, uint64_t seed, tests::Memory& memory) {
  tests::Choices choices(seed);
  tests::Surroundings around = {static_cast<int>(choices.between(-1, 64)), static_cast<uint8_t>(choices.bits(1))};
  around.destinations = tests::Destinations(choices.oneIn(4) ? choices.between(1, 2) : 0);
  if (choices.oneIn(20)) around.length = static_cast<int>(choices.between(4000, 20000));  // which is divided
  memory.reuse();
  AnyCall call(e, choices, memory, around, called);
  requests = 0;
  failing = choices.oneIn(2) ? static_cast<int>(choices.between(1, 4)) : 0;
  const QvxStatus status = call.run();
  const bool isOut = failing > 0 && requests >= failing;
  failing = 0;
  ++counts.calls;
  counts.failed += isOut;
  if (isOut && status != qvxStatNoMem) report(call, "did not say that memory was out");
  if (!call.isIntact()) report(call, "wrote elsewhere");
  if (status < 0 && !tests::traitsOf(e).is("midway") && !call.wroteNothing()) report(call, "wrote in spite of an error");
  if (const char* result = status < 0 ? nullptr : call.unwritten()) report(call, std::string(result) + " depends on garbage");
}

constexpr size_t kThreads = 3;

// Each function once, dealt among threads.
void callAll(uint64_t round, const std::string& pattern, tests::Memory* memories) {
  std::vector<std::thread> threads;
  for (size_t t = 0; t < kThreads; ++t) {
    threads.emplace_back([=] {
      const std::vector<Export>& all = tests::exportTable();
      for (size_t i = t; i < all.size(); i += kThreads) {
        if (all[i].call && all[i].contains(pattern)) makeCall(all[i], round << 16 | i, memories[t]);
      }
    });
  }
  for (std::thread& t : threads) t.join();
}

struct Held {
  int blocks;       // of the library's allocator
  size_t heap;      // bytes
  size_t resident;  // KiB
  ptrdiff_t threads;

  static Held now() {
    const struct mallinfo2 info = mallinfo2();
    Held held = {liveBlocks, info.uordblks + info.hblkhd, 0, 0};
    size_t size = 0, pages = 0;
    std::ifstream("/proc/self/statm") >> size >> pages;
    held.resident = pages * 4;
    const std::filesystem::directory_iterator tasks("/proc/self/task");
    held.threads = std::distance(begin(tasks), end(tasks));
    return held;
  }
};

}  // namespace

int main(int argc, char** argv) {
  using Clock = std::chrono::steady_clock;
  constexpr int kLines = 30, kSettled = 3;
  const double minutes = argc > 1 ? std::atof(argv[1]) : 1;
  const std::string pattern = argc > 2 ? argv[2] : "";
  const auto start = Clock::now();
  const auto passed = [&] { return std::chrono::duration<double, std::ratio<60>>(Clock::now() - start).count(); };
  qvxSetNumThreads(2);
  std::puts("minutes      calls   requests failed   blocks   heap, bytes   resident, KiB   threads");
  Held settled = {}, held = {};
  uint64_t round = 0;
  for (int line = 1; line <= kLines; ++line) {
    {
      tests::Memory memories[kThreads];
      do callAll(++round, pattern, memories);
      while (passed() < minutes * line / kLines);
    }
    held = Held::now();
    if (line <= kSettled) settled = held;
    std::printf("%7.1f %10lld %17lld %8d %13zu %15zu %9td\n", passed(), static_cast<long long>(counts.calls),
                static_cast<long long>(counts.failed), held.blocks, held.heap, held.resident, held.threads);
    std::fflush(stdout);
  }
  const bool isFlat = held.blocks == 0 && held.threads <= 2 && held.heap <= settled.heap + (64 << 10) &&
                      held.resident <= settled.resident + (8 << 10);
  std::printf("%lld calls, %lld requests failed, %lld calls went wrong, %s\n", static_cast<long long>(counts.calls),
              static_cast<long long>(counts.failed), static_cast<long long>(counts.wrong),
              isFlat ? "memory is flat and no thread stayed" : "memory grew or a thread stayed");
  return isFlat && counts.wrong == 0 ? 0 : 1;
}
