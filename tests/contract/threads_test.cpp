// Functions that may divide a vector between threads do not show it: results, statuses, the rounding mode and the floating-point
// exceptions raised are those of one thread, whatever the number of threads and the caller.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cfenv>
#include <thread>

#include "support/any_call.h"
#include "support/library.h"
#include "support/no_threads.h"

// Counts the library's calls of its team.
namespace {
std::atomic<int> teamCalls{0};
}
extern "C" __attribute__((visibility("default"))) void ownRunParts(int count, void (*part)(void*, int), void* argument) {
  static const auto run = reinterpret_cast<decltype(&ownRunParts)>(dlsym(RTLD_NEXT, "ownRunParts"));
  teamCalls += count > 1;
  run(count, part, argument);
}

namespace {

using tests::AnyCall;
using tests::Export;

// A function, the length from which it is divided, and what it has to report: the parameter and the value in it that ask for
// the warning.
struct Divided {
  const char* name;
  int threshold;
  QvxStatus warning = qvxStatOk;
  const char* parameter = "";
  double bad = 0;
};

constexpr auto kNegative = qvxWarnSqrtNegArg;
constexpr auto kZero = qvxWarnDivByZero;

// clang-format off
const Divided kDivided[] = {
    {"qvxsSqrt_32f", 32768, kNegative, "pSrc", -1}, {"qvxsSqrt_32f_I", 32768, kNegative, "pSrcDst", -1},
    {"qvxsSqrt_64f", 8192, kNegative, "pSrc", -1}, {"qvxsSqrt_64f_I", 8192, kNegative, "pSrcDst", -1},
    {"qvxsSqrt_32fc", 4096}, {"qvxsSqrt_32fc_I", 4096},
    {"qvxsSqrt_64fc", 4096}, {"qvxsSqrt_64fc_I", 4096},
    {"qvxsSqrt_8u_Sfs", 32768}, {"qvxsSqrt_8u_ISfs", 32768},
    {"qvxsSqrt_16u_Sfs", 32768}, {"qvxsSqrt_16u_ISfs", 32768},
    {"qvxsSqrt_16s_Sfs", 32768, kNegative, "pSrc", -1}, {"qvxsSqrt_16s_ISfs", 32768, kNegative, "pSrcDst", -1},
    {"qvxsSqrt_16sc_Sfs", 4096}, {"qvxsSqrt_16sc_ISfs", 4096},
    {"qvxsSqrt_32s16s_Sfs", 32768, kNegative, "pSrc", -1},
    {"qvxsSqrt_64s16s_Sfs", 8192, kNegative, "pSrc", -1},
    {"qvxsDiv_32f", 65536, kZero, "pSrc1", 0}, {"qvxsDiv_32f_I", 65536, kZero, "pSrc", 0},
    {"qvxsDiv_64f", 32768, kZero, "pSrc1", 0}, {"qvxsDiv_64f_I", 32768, kZero, "pSrc", 0},
    {"qvxsDiv_32fc", 32768, kZero, "pSrc1", 0}, {"qvxsDiv_32fc_I", 32768, kZero, "pSrc", 0},
    {"qvxsDiv_64fc", 16384, kZero, "pSrc1", 0}, {"qvxsDiv_64fc_I", 16384, kZero, "pSrc", 0},
    {"qvxsDiv_8u_Sfs", 32768, kZero, "pSrc1", 0}, {"qvxsDiv_8u_ISfs", 32768, kZero, "pSrc", 0},
    {"qvxsDiv_16s_Sfs", 32768, kZero, "pSrc1", 0}, {"qvxsDiv_16s_ISfs", 32768, kZero, "pSrc", 0},
    {"qvxsDiv_16sc_Sfs", 8192, kZero, "pSrc1", 0}, {"qvxsDiv_16sc_ISfs", 8192, kZero, "pSrc", 0},
    {"qvxsDiv_32s_Sfs", 32768, kZero, "pSrc1", 0}, {"qvxsDiv_32s_ISfs", 32768, kZero, "pSrc", 0},
    {"qvxsDiv_32s16s_Sfs", 32768, kZero, "pSrc1", 0},
    {"qvxsDiv_Round_8u_Sfs", 32768, kZero, "pSrc1", 0}, {"qvxsDiv_Round_8u_ISfs", 32768, kZero, "pSrc", 0},
    {"qvxsDiv_Round_16u_Sfs", 32768, kZero, "pSrc1", 0}, {"qvxsDiv_Round_16u_ISfs", 32768, kZero, "pSrc", 0},
    {"qvxsDiv_Round_16s_Sfs", 32768, kZero, "pSrc1", 0}, {"qvxsDiv_Round_16s_ISfs", 32768, kZero, "pSrc", 0},
    {"qvxsDivC_8u_Sfs", 65536}, {"qvxsDivC_16s_Sfs", 65536}, {"qvxsDivC_16sc_Sfs", 16384},
    {"qvxsDivCRev_16u", 65536, kZero, "pSrc", 0}, {"qvxsDivCRev_32f", 65536, kZero, "pSrc", 0},
    {"qvxsThreshold_LTInv_32f", 32768}, {"qvxsThreshold_LTInv_64f", 16384},
    {"qvxsThreshold_LTInv_32fc", 8192}, {"qvxsThreshold_LTInv_64fc", 8192},
    {"qvxsMagnitude_32f", 32768}, {"qvxsMagnitude_64f", 8192}, {"qvxsMagnitude_32fc", 32768}, {"qvxsMagnitude_64fc", 8192},
    {"qvxsMagnitude_16sc32f", 16384}, {"qvxsMagnitude_16s32f", 16384}, {"qvxsMagnitude_16s_Sfs", 16384},
    {"qvxsMagnitude_16sc_Sfs", 16384}, {"qvxsMagnitude_32sc_Sfs", 8192},
    {"qvxsSortAscend_32s_I", 16384}, {"qvxsSortDescend_32s_I", 16384},
    {"qvxsSortAscend_32f_I", 16384}, {"qvxsSortDescend_32f_I", 16384},
    {"qvxsSortAscend_64f_I", 16384}, {"qvxsSortDescend_64f_I", 16384},
    {"qvxsSortRadixAscend_32s_I", 16384}, {"qvxsSortRadixDescend_32s_I", 16384},
    {"qvxsSortRadixAscend_32u_I", 16384}, {"qvxsSortRadixDescend_32u_I", 16384},
    {"qvxsSortRadixAscend_32f_I", 16384}, {"qvxsSortRadixDescend_32f_I", 16384},
    {"qvxsSortRadixAscend_64f_I", 16384}, {"qvxsSortRadixDescend_64f_I", 16384},
    {"qvxsSortRadixIndexAscend_16s", 32768}, {"qvxsSortRadixIndexDescend_16s", 32768},
    {"qvxsSortRadixIndexAscend_16u", 32768}, {"qvxsSortRadixIndexDescend_16u", 32768},
    {"qvxsSortRadixIndexAscend_32s", 32768}, {"qvxsSortRadixIndexDescend_32s", 32768},
    {"qvxsSortRadixIndexAscend_32u", 32768}, {"qvxsSortRadixIndexDescend_32u", 32768},
    {"qvxsSortRadixIndexAscend_32f", 32768}, {"qvxsSortRadixIndexDescend_32f", 32768},
};
// clang-format on

// One call of these choices, as seen from outside.
struct Outcome {
  QvxStatus status;
  int raised;  // floating-point exceptions
  std::vector<uint8_t> results;
  bool operator==(const Outcome&) const = default;
};

using Change = std::function<void(AnyCall&)>;
Outcome outcome(const Export& e, int len, const Change& change = nullptr, uint64_t seed = 1, int mode = FE_TONEAREST) {
  static thread_local tests::Memory memory;
  memory.reuse();
  AnyCall call(e, tests::Choices(seed), memory, {-1, 0, {}, len});
  if (change) change(call);
  std::fesetround(mode);
  std::feclearexcept(FE_ALL_EXCEPT);
  const QvxStatus status = call.run();
  const int raised = std::fetestexcept(FE_ALL_EXCEPT);
  EXPECT_EQ(std::fegetround(), mode);
  std::fesetround(FE_TONEAREST);
  EXPECT_TRUE(call.isIntact()) << call.describe();
  return {status, raised, call.results()};
}

constexpr int kLong = 200003;  // a team really forks

// With one thread, and then the same with others.
Outcome expectSame(const Export& e, std::initializer_list<int> threads, int len, const Change& change = nullptr,
                   uint64_t seed = 1, int mode = FE_TONEAREST) {
  qvxSetNumThreads(1);
  const Outcome alone = outcome(e, len, change, seed, mode);
  for (const int n : threads) {
    qvxSetNumThreads(n);
    EXPECT_TRUE(outcome(e, len, change, seed, mode) == alone) << e.name << ", length " << len << ", threads " << n;
  }
  qvxSetNumThreads(0);
  return alone;
}

class Threads : public testing::TestWithParam<Divided> {
 protected:
  static const Export& function() { return *tests::findExport(GetParam().name); }
};
class ThreadsThatWarn : public Threads {};

TEST_P(Threads, AnyNumberGivesTheSame) {
  const int t = GetParam().threshold;
  for (const int len : {1, 6, t - 1, t, t + 1, 2 * t + 3, kLong}) {
    teamCalls = 0;
    EXPECT_GE(expectSame(function(), {2, 7, 1000}, len).status, 0);
    // Once for each number at least: a sort is divided in three steps.
    EXPECT_GE(teamCalls, len < t ? 0 : 3) << "length " << len;
    EXPECT_TRUE(len >= t || teamCalls == 0) << "length " << len;
  }
}

// The warning, and what is raised, in one slice alone.
TEST_P(ThreadsThatWarn, OfAnElementInAnySlice) {
  for (const int element : {0, 3, kLong / 2 - 1, kLong / 2, kLong / 2 + 1, kLong - 1}) {
    const auto one = [&](AnyCall& call) {
      call.write(GetParam().parameter,
                 [&](size_t i) { return static_cast<int>(i) == element ? GetParam().bad : static_cast<double>(1 + i % 100); });
    };
    EXPECT_EQ(expectSame(function(), {2, 7}, kLong, one).status, GetParam().warning) << element;
  }
}

// From several callers at once.
TEST_P(Threads, CallersOfAllKinds) {
  qvxSetNumThreads(1);
  const Outcome alone = outcome(function(), kLong);
  qvxSetNumThreads(2);
  bool same[4] = {};
  std::vector<std::thread> callers;
  for (bool& mine : same) callers.emplace_back([&] { mine = outcome(function(), kLong) == alone; });
  for (std::thread& caller : callers) caller.join();
  for (const bool mine : same) EXPECT_TRUE(mine);
  qvxSetNumThreads(0);
}

// A team has control words of its own, but works under the caller's and raises the caller's flags.
TEST_P(Threads, CallersFloatingPointEnvironment) {
  for (const int mode : {FE_UPWARD, FE_DOWNWARD}) expectSame(function(), {2}, kLong, nullptr, 1, mode);
}

// Any function, also filters with records for several threads; only the sizes of these records depend on the number of threads.
TEST(AnyFunction, GivesTheSame) {
  for (const Export& e : tests::exportTable()) {
    if (!e.call || tests::traitsOf(e).is("threads")) continue;
    for (uint64_t seed = 1; seed <= (tests::traitsOf(e).is("rounds") ? 4 : 1) && !testing::Test::HasFailure(); ++seed) {
      expectSame(e, {2, 5}, 20011, nullptr, seed);
    }
  }
}

// In a child, which has none of its parent's threads and can make none, work() gives what it gave with one thread alone; and it
// asked for a thread.
template <class Work> bool worksWithoutThreads(Work work) {
  qvxSetNumThreads(1);
  const auto alone = work();
  qvxSetNumThreads(2);
  const pid_t child = fork();
  if (child == 0) {
    tests::refuseThreads = true;
    _exit(work() == alone && tests::threadsRefused > 0 ? 0 : 1);
  }
  int status = -1;
  return waitpid(child, &status, 0) == child && status == 0;
}

TEST(AnyFunction, WorksWithoutThreads) {
  if (tests::isSanitized()) GTEST_SKIP() << "sanitizers have threads of their own, which do not fork";
  size_t count = 0;
  for (const Export& e : tests::exportTable()) {
    if (!e.call || tests::traitsOf(e).is("threads")) continue;
    const bool isLong = std::any_of(std::begin(kDivided), std::end(kDivided), [&](const Divided& d) { return d.name == e.name; });
    const auto work = [&] { return outcome(e, isLong ? kLong : 20011); };
    qvxSetNumThreads(2);
    teamCalls = 0;
    work();
    if (teamCalls == 0) continue;
    ++count;
    EXPECT_TRUE(worksWithoutThreads(work)) << e.name;
  }
  EXPECT_GT(count, std::size(kDivided));
  qvxSetNumThreads(0);
}

// Transforms of orders above those of random calls.
template <class T, class Spec>
void expectWithoutThreads(int order, QvxStatus (*make)(Spec**, int, int, int),
                          QvxStatus (*run)(const T*, T*, const Spec*, Qvx8u*), QvxStatus (*release)(Spec*)) {
  EXPECT_TRUE(worksWithoutThreads([=] {
    std::vector<uint8_t> x(sizeof(T) << order, 0x3C), y(x.size());
    Spec* spec = nullptr;
    EXPECT_EQ(make(&spec, order, QVX_FFT_SCALE_NONE, 0), qvxStatOk);
    EXPECT_EQ(run(reinterpret_cast<T*>(x.data()), reinterpret_cast<T*>(y.data()), spec, nullptr), qvxStatOk);
    release(spec);
    return y;
  }));
  qvxSetNumThreads(0);
}

TEST(LongTransform, WorksWithoutThreads) {
  if (tests::isSanitized()) GTEST_SKIP() << "sanitizers have threads of their own, which do not fork";
  expectWithoutThreads(17, qvxsFFTInitAlloc_C_32fc, qvxsFFTFwd_CToC_32fc, qvxsFFTFree_C_32fc);
  expectWithoutThreads(18, qvxsFFTInitAlloc_C_32fc, qvxsFFTFwd_CToC_32fc, qvxsFFTFree_C_32fc);
  expectWithoutThreads(16, qvxsFFTInitAlloc_C_64fc, qvxsFFTInv_CToC_64fc, qvxsFFTFree_C_64fc);
  expectWithoutThreads(17, qvxsFFTInitAlloc_R_32f, qvxsFFTFwd_RToPerm_32f, qvxsFFTFree_R_32f);
  expectWithoutThreads(16, qvxsFFTInitAlloc_R_64f, qvxsFFTInv_PermToR_64f, qvxsFFTFree_R_64f);
}

std::string nameOf(const testing::TestParamInfo<Divided>& info) { return info.param.name; }

std::vector<Divided> thatWarn() {
  std::vector<Divided> some;
  for (const Divided& d : kDivided) {
    if (d.warning != qvxStatOk) some.push_back(d);
  }
  return some;
}

INSTANTIATE_TEST_SUITE_P(All, Threads, testing::ValuesIn(kDivided), nameOf);
INSTANTIATE_TEST_SUITE_P(All, ThreadsThatWarn, testing::ValuesIn(thatWarn()), nameOf);

// The number that a process with this setting starts with. The core library looks once, so each answer takes a copy of it.
int threadsOf(const char* setting) {
  if (setting == nullptr) unsetenv("OMP_NUM_THREADS");
  else setenv("OMP_NUM_THREADS", setting, 1);
  const std::string copy = tests::copyOf(tests::fileOf(dlsym(RTLD_DEFAULT, "qvxSetNumThreads")));
  void* library = dlopen(copy.c_str(), RTLD_NOW | RTLD_LOCAL);
  unlink(copy.c_str());
  return library == nullptr ? -1 : reinterpret_cast<decltype(&ownGetNumThreads)>(dlsym(library, "ownGetNumThreads"))();
}

TEST(NumberOfThreads, IsThatOfTheEnvironment) {
  const char* variable = std::getenv("OMP_NUM_THREADS");
  const std::string before = variable == nullptr ? "" : variable;
  EXPECT_EQ(threadsOf("3"), 3);
  EXPECT_EQ(threadsOf(" 5,2"), 5);
  const int usual = threadsOf(nullptr);
  EXPECT_GE(usual, 1);
  for (const char* setting : {"", "0", "-4", "many", "99999999999", "-4294967293"})
    EXPECT_EQ(threadsOf(setting), usual) << setting;
  if (variable == nullptr) unsetenv("OMP_NUM_THREADS");
  else setenv("OMP_NUM_THREADS", before.c_str(), 1);
}

}  // namespace
