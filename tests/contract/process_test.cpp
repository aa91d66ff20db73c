// The library as a guest in other people's processes: processes that fork, that load and unload it, that can make no thread, or
// that have many threads of their own.
#include <gtest/gtest.h>
#include <omp.h>
#include <pthread.h>
#include <qvx/qvxcore.h>
#include <qvx/qvxs.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>
#include <vector>

#include "support/library.h"
#include "support/no_threads.h"
#include "support/sanitizer.h"

namespace {

using tests::refuseThreads;
using tests::threadsMade;

constexpr int kLength = 1 << 15;

// Makes a divided call; true if its results are right.
bool call(int length = kLength) {
  static const std::vector<Qvx64fc> x(kLength, Qvx64fc{-3, 4});
  std::vector<Qvx64fc> y(static_cast<size_t>(length));
  if (qvxsSqrt_64fc(x.data(), y.data(), length) != qvxStatOk) return false;
  for (const Qvx64fc& root : y) {
    if (root.re != 1 || root.im != 2) return false;
  }
  return true;
}

int rounds(int usual) {
  const char* asked = std::getenv("QVXS_ROUNDS");
  return asked == nullptr ? usual : std::atoi(asked);
}

// The exit status of a child that ends with 0 if act() is true, and dies if that takes more than `seconds`.
template <class Act> int statusOfChild(unsigned seconds, Act act) {
  const pid_t child = fork();
  if (child == 0) {
    alarm(seconds);
    _exit(act() ? 0 : 1);
  }
  int status = -1;
  return waitpid(child, &status, 0) == child ? status : -1;
}

class Process : public testing::Test {
 protected:
  void SetUp() override { qvxSetNumThreads(2); }
  void TearDown() override { qvxSetNumThreads(0); }
};

TEST_F(Process, ForksBetweenCalls) {
  if (tests::isSanitized()) GTEST_SKIP() << "sanitizers have threads of their own, which do not fork";
  for (int i = 0; i < rounds(300); ++i) {
    ASSERT_TRUE(call());
    ASSERT_EQ(statusOfChild(20, [] { return call() && call(); }), 0) << "round " << i;
  }
}

// The child has none of the threads that are in the middle of another thread's call.
TEST_F(Process, ForksDuringCalls) {
  if (tests::isSanitized()) GTEST_SKIP() << "sanitizers have threads of their own, which do not fork";
  std::atomic<int> stage{0};
  std::thread caller([&] {
    ownRunParts(
        2,
        [](void* now, int) {
          auto& reached = *static_cast<std::atomic<int>*>(now);
          ++reached;
          for (int i = 0; i < 20000 && reached < 3; ++i) usleep(1000);
        },
        &stage);
  });
  for (int i = 0; i < 10000 && stage < 2; ++i) usleep(1000);
  EXPECT_EQ(statusOfChild(5, [] { return call() && call(); }), 0);
  stage = 3;
  caller.join();
}

TEST_F(Process, LoadsAndUnloads) {
  const std::string copy = tests::copyOf(tests::fileOf(qvxsGetLibVersion()));  // which this program does not hold
  for (int i = 0; i < rounds(200); ++i) {
    void* library = dlopen(copy.c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    const auto root = reinterpret_cast<decltype(&qvxsSqrt_64fc)>(dlsym(library, "qvxsSqrt_64fc"));
    std::vector<Qvx64fc> x(kLength, Qvx64fc{-3, 4});
    ASSERT_EQ(root(x.data(), x.data(), kLength), qvxStatOk);
    ASSERT_EQ(x.back().im, 2);
    ASSERT_EQ(dlclose(library), 0);
  }
  unlink(copy.c_str());
}

// In a child, where no call has made a thread yet.
TEST_F(Process, WorksAloneWithoutThreads) {
  if (tests::isSanitized()) GTEST_SKIP() << "sanitizers have threads of their own, which do not fork";
  const auto worksAlone = [] {
    refuseThreads = true;
    bool isRight = true;
    for (int i = 0; i < 3000; ++i) isRight = isRight && call(5000);
    refuseThreads = false;
    threadsMade = 0;
    for (int i = 0; i < 3000; ++i) isRight = isRight && call(5000);  // asks for a thread again after 1000 calls
    sigset_t blocked;
    pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
    return isRight && threadsMade == 1 && sigismember(&blocked, SIGUSR1) == 0;
  };
  EXPECT_EQ(statusOfChild(120, worksAlone), 0);
}

// The C library takes this from the stack of each thread.
thread_local volatile char threadLocal[128 << 10];

void* callOnSmallStack(void*) { return call() ? nullptr : &threadsMade; }

TEST_F(Process, HasManyThreadsOfItsOwn) {
  pthread_attr_t small;
  ASSERT_EQ(pthread_attr_init(&small), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&small, tests::isSanitized() ? 1 << 20 : (64 << 10) + sizeof threadLocal), 0);
  for (int i = 0; i < rounds(20); ++i) {
    pthread_t threads[64];
    for (pthread_t& thread : threads) ASSERT_EQ(pthread_create(&thread, &small, callOnSmallStack, nullptr), 0);
    for (const pthread_t thread : threads) {
      void* wrong = nullptr;
      ASSERT_EQ(pthread_join(thread, &wrong), 0);
      EXPECT_EQ(wrong, nullptr);
    }
  }
  pthread_attr_destroy(&small);
}

// Workers block all signals: the program's own threads take those of the process.
std::atomic<int> onOtherThread{0};
thread_local bool isOurs = false;

TEST_F(Process, TakesItsOwnSignals) {
  isOurs = true;
  struct sigaction before, action = {};
  action.sa_handler = [](int) { onOtherThread += !isOurs; };
  ASSERT_EQ(sigaction(SIGUSR1, &action, &before), 0);
  sigset_t mine;
  sigemptyset(&mine);
  sigaddset(&mine, SIGUSR1);
  for (int i = 0; i < 200; ++i) {
    ASSERT_TRUE(call());
    pthread_sigmask(SIG_BLOCK, &mine, nullptr);  // now none but a worker could take it
    kill(getpid(), SIGUSR1);
    ASSERT_TRUE(call());
    pthread_sigmask(SIG_UNBLOCK, &mine, nullptr);
  }
  EXPECT_EQ(onOtherThread, 0);
  sigaction(SIGUSR1, &before, nullptr);
}

TEST_F(Process, CallsFromRealTimeThreads) {
  ASSERT_TRUE(call());
  const sched_param high = {10};
  if (pthread_setschedparam(pthread_self(), SCHED_FIFO, &high) != 0) GTEST_SKIP() << "no permission";
  bool isRight = true;
  for (int i = 0; i < 300; ++i) isRight = isRight && call();
  const sched_param usual = {0};
  pthread_setschedparam(pthread_self(), SCHED_OTHER, &usual);
  EXPECT_TRUE(isRight);
}

// The stack of a worker has room for its parts in addition to the program's thread-local data.
TEST_F(Process, HasRoomForThePartsOfWorkers) {
  if (tests::isSanitized()) GTEST_SKIP() << "sanitizers take room of their own";
  threadLocal[0] = 1;
  std::atomic<bool> wasOnWorker{false};
  ownRunParts(
      2,
      [](void* flag, int i) {
        auto& isDone = *static_cast<std::atomic<bool>*>(flag);
        if (i == 0) {  // the caller's: it leaves the other to a worker
          for (int wait = 0; wait < 10000 && !isDone; ++wait) usleep(1000);
        } else {
          volatile char room[160 << 10];
          for (size_t at = sizeof room; at > 0; at -= 1024) room[at - 1] = 1;
          isDone = true;
        }
      },
      &wasOnWorker);
  EXPECT_TRUE(wasOnWorker);
}

// A thread that is to be cancelled ends its calls first: nothing in them is a cancellation point. On one processor the worker
// that ends a call wakes the caller, which takes its place before it has left.
TEST_F(Process, CallsFromThreadsToBeCancelled) {
  if (tests::isSanitized()) GTEST_SKIP() << "sanitizers have threads of their own, which do not fork";
  const auto part = [](void* flag, int i) {
    auto& hasBegun = *static_cast<std::atomic<bool>*>(flag);
    const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(i == 0 ? 100 : 2);
    if (i == 1) hasBegun = true;
    while ((i == 1 || !hasBegun) && std::chrono::steady_clock::now() < until) sched_yield();
  };
  const auto endsCalls = [&] {
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(sched_getcpu(), &one);
    sched_setaffinity(0, sizeof one, &one);
    bool hasEnded = false;
    std::thread([&] {
      pthread_cancel(pthread_self());
      for (int i = 0; i < 20; ++i) {
        std::atomic<bool> hasBegun{false};
        ownRunParts(2, part, &hasBegun);
      }
      hasEnded = true;
    }).join();
    return hasEnded;
  };
  EXPECT_EQ(statusOfChild(60, endsCalls), 0);
}

TEST_F(Process, CallsFromOpenMPRegions) {
  if (tests::isSanitized()) GTEST_SKIP() << "a runtime that is not instrumented";
  int wrong = 0;
#pragma omp parallel num_threads(4) reduction(+ : wrong)
  for (int i = 0; i < 50; ++i) wrong += !call();
  EXPECT_EQ(wrong, 0);
}

// Each part runs once, with any number of threads, in nested calls too.
TEST_F(Process, RunsEachPartOnce) {
  struct Counts {
    std::atomic<int> of[100] = {};
  };
  for (const int threads : {1, 2, 5}) {
    qvxSetNumThreads(threads);
    for (int count = 0; count <= 100; ++count) {
      Counts counts;
      ownRunParts(
          count,
          [](void* all, int i) {
            ownRunParts(
                3, [](void* one, int) { ++*static_cast<std::atomic<int>*>(one); }, &static_cast<Counts*>(all)->of[i]);
          },
          &counts);
      for (int i = 0; i < 100; ++i) ASSERT_EQ(counts.of[i], i < count ? 3 : 0);
    }
  }
}

}  // namespace
