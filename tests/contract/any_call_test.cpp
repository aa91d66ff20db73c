// What holds for every function and every valid call: it reads and writes its vectors alone, its outcome depends on nothing but
// its arguments, and what it refuses leaves no trace.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <ucontext.h>
#include <xmmintrin.h>

#include <cfenv>

#include "support/any_call.h"

// The library's allocator, here in its place: it counts, gives blocks of garbage, and fails when it is told to.
namespace {
struct Allocator {
  int live = 0;
  int requests = 0;
  int failing = 0;  // the number of the request that fails
} allocator;
}  // namespace

#pragma GCC visibility push(default)
extern "C" void* qvxMalloc(int64_t bytes) {
  if (bytes < 1 || ++allocator.requests == allocator.failing) return nullptr;
  const size_t rounded = (static_cast<size_t>(bytes) + 63) / 64 * 64;
  void* block = std::aligned_alloc(64, rounded);
  if (block == nullptr) return nullptr;
  ++allocator.live;
  return std::memset(block, 0xA5, rounded);
}
extern "C" void qvxFree(void* block) {
  allocator.live -= block != nullptr;
  std::free(block);
}
#pragma GCC visibility pop

namespace {

using tests::AnyCall;
using tests::Choices;
using tests::Export;
using tests::Surroundings;

// Of each function.
int calls() {
  const char* asked = std::getenv("QVXS_CALLS");
  return asked == nullptr ? 40 : std::atoi(asked);
}

class EveryCall : public testing::Test {
 protected:
  // f(export, choices) for some calls of each function, until one fails.
  template <class F> void forEach(F f) {
    uint64_t seed = 0;
    for (const Export& e : tests::exportTable()) {
      for (int i = 0; e.call && i < calls(); ++i) {
        memory_.reuse();
        failures_.clear();
        f(e, Choices(++seed));
        if (failures_.empty()) continue;
        ADD_FAILURE() << failures_;
        break;
      }
    }
  }
  void expect(bool holds, const char* what, const AnyCall& call) {
    if (!holds) failures_ += std::string(what) + ": " + call.describe() + '\n';
  }

  tests::Memory memory_;
  std::string failures_;
};

TEST_F(EveryCall, DependsOnItsArgumentsAlone) {
  const Surroundings others[] = {{0, 0xFF}, {1, 0x5A}, {64, 0x7F}, {4, 0, true}};
  forEach([&](const Export& e, const Choices& choices) {
    AnyCall first(e, choices, memory_);
    const QvxStatus status = first.run();
    expect(first.isIntact(), "wrote elsewhere", first);
    if (status < 0 && !tests::refusesInTheMiddle(e)) expect(first.wroteNothing(), "wrote in spite of an error", first);
    for (const Surroundings& around : others) {
      AnyCall other(e, choices, memory_, around);
      expect(other.run() == status, "another status", other);
      expect(other.isIntact(), "wrote elsewhere", other);
      if (status >= 0) expect(other.results() == first.results(), "another result", other);
    }
  });
}

TEST_F(EveryCall, RefusesWithoutATrace) {
  forEach([&](const Export& e, Choices choices) {
    AnyCall call(e, choices, memory_);
    const auto last = static_cast<int64_t>(e.parameters.size()) - 1;
    if (!call.spoil(static_cast<size_t>(choices.between(0, last)), choices)) return;
    const int live = allocator.live;
    const bool isRefused = call.run() < 0;
    expect(call.isIntact(), "wrote elsewhere", call);
    expect(!isRefused || tests::refusesInTheMiddle(e) || call.wroteNothing(), "wrote in spite of an error", call);
    expect(!isRefused || allocator.live == live, "kept memory", call);
  });
}

// Which calls may ask for memory; all others never do.
bool mayAllocate(const Export& e) {
  if (tests::contains(e.name, {"InitAlloc", "FFTFwd", "FFTInv", "FIR_Direct", "IIR_Direct", "IIR_BiQuadDirect"})) return true;
  return tests::contains(e.name, {"Direct_"}) || tests::contains(e.name, {"IIRInit32s", "IIRSetTaps32s"});
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
        if (!mayAllocate(e)) expect(allocator.requests == 0, "allocated", call);
        if (request > 0 && allocator.requests >= request) {
          ++failed;
          expect(status == qvxStatNoMem, "did not say that memory was out", call);
          expect(call.wroteNothing(), "wrote without memory", call);
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

// Rounding mode, flush to zero and masks are the caller's: as they were after every call. No integer made of integers depends on
// them, but for what is computed in floats on the way.
TEST_F(EveryCall, LeavesTheControlWordAlone) {
  constexpr unsigned kFlush = 0x8040;
  const unsigned usual = _mm_getcsr();
  forEach([&](const Export& e, const Choices& choices) {
    const bool isExact = !tests::contains(e.name, {"IIR_", "L2_16s32s"}) &&
                         std::none_of(e.parameters.begin(), e.parameters.end(), [](const tests::Parameter& p) {
                           return tests::contains(p.type, {"f", "State", "Spec"});
                         });
    AnyCall first(e, choices, memory_);
    const QvxStatus status = first.run();
    for (const unsigned mode : {_MM_ROUND_DOWN | 0U, _MM_ROUND_UP | kFlush, _MM_ROUND_TOWARD_ZERO | 0U, kFlush}) {
      AnyCall other(e, choices, memory_);
      const unsigned wanted = (usual & ~(_MM_ROUND_MASK | kFlush)) | mode;
      _mm_setcsr(wanted);
      const QvxStatus otherStatus = other.run();
      const unsigned left = _mm_getcsr();
      _mm_setcsr(usual);
      expect((left & ~0x3FU) == (wanted & ~0x3FU), "changed the control word", other);
      if (isExact) expect(otherStatus == status && other.results() == first.results(), "depends on the rounding mode", other);
    }
  });
}

// Each call on a stack of its own, painted before: what it painted over, it used. Threads of audio programs have small stacks.
TEST_F(EveryCall, NeedsLittleStack) {
  if (QVXS_SANITIZED) GTEST_SKIP() << "sanitizers widen every frame, and lose track of such a stack";
  constexpr size_t kMost = 24 << 10;
  static constexpr uint8_t kPaint = 0xA5;
  static AnyCall* running;
  std::vector<uint8_t> stack(128 << 10);
  size_t most = 0;
  forEach([&](const Export& e, const Choices& choices) {
    AnyCall call(e, choices, memory_);
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
    expect(used <= kMost, "needed too much stack", call);
  });
  EXPECT_GT(most, 1U << 10);
}

// What the library takes from others: no way to allocate but the core's, none to print, to stop the program, or to read files.
TEST(Imports, AreFew) {
  if (QVXS_SANITIZED) GTEST_SKIP() << "sanitizers import much";
  const std::set<std::string> known = {
      "qvxMalloc", "qvxFree",        "ownGetNumThreads",     "memcpy",         "memmove",       "memset",
      "sysconf",   "__gmon_start__", "__gxx_personality_v0", "__cxa_finalize", "_Unwind_Resume"};
  Dl_info info;
  ASSERT_NE(dladdr(qvxsGetLibVersion(), &info), 0);
  FILE* nm = popen((std::string("nm -D --undefined-only ") + info.dli_fname).c_str(), "r");
  ASSERT_NE(nm, nullptr);
  char line[256];
  size_t imports = 0;
  while (std::fscanf(nm, " %*s %255s", line) == 1) {
    const std::string name(line, std::strcspn(line, "@"));
    const bool isMath = tests::contains(line, {"GCC_"}) || name.back() == 'l' || name == "sin" || name == "cos" ||
                        name == "atan2" || name == "ldexp";
    const bool isThreads = name.rfind("GOMP_", 0) == 0 || name.rfind("omp_get_", 0) == 0;
    EXPECT_TRUE(isMath || isThreads || known.count(name) != 0 || name.rfind("_ITM_", 0) == 0) << line;
    ++imports;
  }
  pclose(nm);
  EXPECT_GT(imports, 5U);
}

}  // namespace
