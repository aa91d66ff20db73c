// What holds for the memory that any function takes: blocks of the allocator only where it may, no more than it asked for, none
// kept when one is refused, and little of the stack.
#include <ucontext.h>

#include "contract/every_call.h"

tests::Allocator tests::allocator;

using tests::allocator;

#pragma GCC visibility push(default)
extern "C" void* qvxMalloc(int64_t bytes) {
  if (bytes < 1 || ++allocator.requests == allocator.failing) return nullptr;
  const size_t rounded = (static_cast<size_t>(bytes) + 63) / 64 * 64 + allocator.margin;
  void* block = std::aligned_alloc(64, rounded);
  if (block == nullptr) return nullptr;
  ++allocator.live;
  allocator.end = static_cast<const uint8_t*>(block) + rounded - allocator.margin;
  if (allocator.threadsMeanwhile != 0) qvxSetNumThreads(allocator.threadsMeanwhile);
  return std::memset(block, allocator.garbage, rounded);
}
extern "C" void qvxFree(void* block) {
  allocator.live -= block != nullptr;
  std::free(block);
}
#pragma GCC visibility pop

namespace {

using tests::AnyCall;
using tests::calls;
using tests::Choices;
using tests::EveryCall;
using tests::Export;
using tests::Surroundings;

// The record of a filter has memory for each thread, as many as there were when its size was reported.
TEST(Records, CountTheThreadsOnce) {
  const std::vector<Qvx32f> taps(2000, 1);
  QvxsFIRState_32f* records[2] = {};
  const auto staysWithinItsBlock = [](QvxStatus status) {
    const auto isGarbage = [](uint8_t byte) { return byte == allocator.garbage; };
    return status == qvxStatOk && std::all_of(allocator.end, allocator.end + allocator.margin, isGarbage);
  };
  allocator.margin = size_t{4} << 20;
  allocator.threadsMeanwhile = 64;
  qvxSetNumThreads(1);
  EXPECT_TRUE(staysWithinItsBlock(qvxsFIRInitAlloc_32f(&records[0], taps.data(), 2000, nullptr)));
  qvxSetNumThreads(1);
  EXPECT_TRUE(staysWithinItsBlock(qvxsFIRMRInitAlloc_32f(&records[1], taps.data(), 2000, 1, 0, 1, 0, nullptr)));
  allocator.margin = 0;
  allocator.threadsMeanwhile = 0;
  qvxSetNumThreads(0);
  for (QvxsFIRState_32f* record : records) EXPECT_EQ(qvxsFIRFree_32f(record), qvxStatOk);
}

TEST_F(EveryCall, AllocatesOnlyWhereItMayAndSurvivesWithout) {
  size_t failed = 0;
  forEach([&](const Export& e, const Choices& choices) {
    for (int request = 0;; ++request) {  // 0: none fails
      const int live = allocator.live;
      {
        AnyCall call(e, choices, memory_);
        const int before = allocator.live;
        allocator.requests = 0;
        allocator.failing = request;
        const QvxStatus status = call.run();
        allocator.failing = 0;
        if (!tests::traitsOf(e).is("allocates")) expect(allocator.requests == 0, "allocated", call);
        if (request > 0 && allocator.requests >= request) {
          ++failed;
          expect(status == qvxStatNoMem, "did not say that memory was out", call);
          expect(call.wroteNothing() && call.leadsNowhere(), "wrote without memory", call);
          expect(allocator.live == before, "kept memory", call);
        }
        const bool changesOwner = tests::contains(e.name, {"InitAlloc", "Free"});
        expect(changesOwner || allocator.live == before, "kept memory", call);
        if (allocator.requests < request || allocator.requests == 0) request = -2;
      }
      if (allocator.live != live) failures_ += e.name + " leaks\n";
      if (request < 0 || !failures_.empty()) break;
    }
  });
  EXPECT_GT(failed, 20U * static_cast<unsigned>(calls()));
}

// Lags at which the vectors do not meet are zeros, but none may be stored when there is no memory for the others. Random calls as
// above reach this once in some thousand.
template <class T> bool writesWithoutMemory(QvxStatus (*correlate)(const T*, int, const T*, int, T*, int, int)) {
  const std::vector<T> x(1000);
  std::vector<T> y(3000);
  std::memset(static_cast<void*>(y.data()), 0xC9, y.size() * sizeof(T));
  allocator.requests = 0;
  allocator.failing = 1;
  const QvxStatus status = correlate(x.data(), 1000, x.data(), 1000, y.data(), 3000, -1500);
  allocator.failing = 0;
  const auto* bytes = reinterpret_cast<const uint8_t*>(y.data());
  const bool isUntouched = std::all_of(bytes, bytes + y.size() * sizeof(T), [](uint8_t byte) { return byte == 0xC9; });
  return status != qvxStatNoMem || !isUntouched;
}

TEST_F(EveryCall, WritesNoZerosBesideSumsWithoutMemory) {
  EXPECT_FALSE(writesWithoutMemory(qvxsCrossCorr_32f));
  EXPECT_FALSE(writesWithoutMemory(qvxsCrossCorr_64f));
  EXPECT_FALSE(writesWithoutMemory(qvxsCrossCorr_32fc));
  EXPECT_FALSE(writesWithoutMemory(qvxsCrossCorr_64fc));
}

// Each call on a stack of its own, filled with a pattern: what it overwrites, it uses. Threads of audio programs have small
// stacks.
TEST_F(EveryCall, NeedsLittleStack) {
  if (tests::isSanitized()) GTEST_SKIP() << "sanitizers widen every frame, and lose track of such a stack";
  constexpr size_t kMost = 24 << 10;
  static constexpr uint8_t kPaint = 0xA5;
  static AnyCall* running;
  std::vector<uint8_t> stack(128 << 10);
  size_t most = 0;
  size_t drawn = 0;
  qvxSetNumThreads(2);  // whatever processors there are
  forEach([&](const Export& e, const Choices& choices) {
    Surroundings around;
    if (++drawn % 8 == 0) around.length = 5000;  // some ways are for long vectors
    // Sorts have ways for longer ones, and go on from range to range.
    if (drawn % 8 == 4 && std::string_view(e.name).find("Sort") != std::string_view::npos) around.length = 70000;
    AnyCall call(e, choices, memory_, around);
    std::fill(stack.begin(), stack.end(), kPaint);
    ucontext_t here, there;
    getcontext(&there);
    there.uc_stack.ss_sp = stack.data();
    there.uc_stack.ss_size = stack.size();
    there.uc_link = &here;
    makecontext(
        &there, [] { running->run(); }, 0);
    running = &call;
    swapcontext(&here, &there);
    const auto lowest = std::find_if(stack.begin(), stack.end(), [](uint8_t byte) { return byte != kPaint; });
    const auto used = static_cast<size_t>(stack.end() - lowest);
    most = std::max(most, used);
    expect(used <= kMost, ("needed " + std::to_string(used) + " bytes of stack").c_str(), call);
  });
  qvxSetNumThreads(0);
  EXPECT_GT(most, 1U << 10);
}

}  // namespace
