// Divided calls on a busy machine: the time of a call that two threads may share over that of the same call by one, while other
// programs or the program's own threads compete for the processors. Prints a table of medians, and the 99th percentiles of both.
#include <qvx/qvxcore.h>
#include <qvx/qvxs.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Call = std::function<void()>;

// A call of a function with vectors of its own.
struct Function {
  const char* name;
  int threshold;  // the length from which it is divided
  std::function<Call(int length)> prepare;
};

template <class T> std::shared_ptr<T[]> vectorOf(int length, T value) {
  std::shared_ptr<T[]> v(new T[static_cast<size_t>(length)]);
  std::fill_n(v.get(), length, value);
  return v;
}

template <class T> Function unary(const char* name, int threshold, QvxStatus (*f)(const T*, T*, int), T value) {
  return {name, threshold, [=](int length) -> Call {
            return [=, src = vectorOf(length, value), dst = vectorOf(length, value)] { f(src.get(), dst.get(), length); };
          }};
}

Function transform() {
  return {"FFTFwd_CToC_32fc", 1 << 16, [](int length) -> Call {
            int order = 0;
            while (2 << order <= length) ++order;
            QvxsFFTSpec_C_32fc* made = nullptr;
            qvxsFFTInitAlloc_C_32fc(&made, order, QVX_FFT_SCALE_NONE, 0);
            const std::shared_ptr<QvxsFFTSpec_C_32fc> spec(made, qvxsFFTFree_C_32fc);
            return [=, src = vectorOf(length, Qvx32fc{1, -1}), dst = vectorOf(length, Qvx32fc{})] {
              qvxsFFTFwd_CToC_32fc(src.get(), dst.get(), spec.get(), nullptr);
            };
          }};
}

Function filter() {
  return {"FIR_32f, 500 taps", 1 << 15, [](int length) -> Call {
            QvxsFIRState_32f* made = nullptr;
            const auto taps = vectorOf(500, 0.01F);
            qvxsFIRInitAlloc_32f(&made, taps.get(), 500, nullptr);
            const std::shared_ptr<QvxsFIRState_32f> state(made, qvxsFIRFree_32f);
            return [=, src = vectorOf(length, 1.0F), dst = vectorOf(length, 0.0F)] {
              qvxsFIR_32f(src.get(), dst.get(), length, state.get());
            };
          }};
}

std::vector<Function> functions() {
  return {unary<Qvx64fc>("Sqrt_64fc", 4096, qvxsSqrt_64fc, {-3, 4}), unary<Qvx64f>("Sqrt_64f", 8192, qvxsSqrt_64f, 2.0),
          unary<Qvx32f>("Sqrt_32f", 32768, qvxsSqrt_32f, 2.0F), transform(), filter()};
}

// Programs that do nothing but spin.
class BusyLoops {
 public:
  explicit BusyLoops(int count) {
    for (; count > 0; --count) {
      const pid_t child = fork();
      if (child == 0) {
        for (;;) __builtin_ia32_pause();
      }
      children_.push_back(child);
    }
  }
  BusyLoops(const BusyLoops&) = delete;
  ~BusyLoops() {
    for (const pid_t child : children_) kill(child, SIGKILL), waitpid(child, nullptr, 0);
  }

 private:
  std::vector<pid_t> children_;
};

struct Times {
  std::vector<double> all;
  double at(double share) {
    const auto place = all.begin() + static_cast<std::ptrdiff_t>(share * static_cast<double>(all.size() - 1));
    std::nth_element(all.begin(), place, all.end());
    return *place;
  }
};

// Makes the calls, each on an application thread of its own, for a given time.
void callFor(std::chrono::milliseconds time, std::vector<Call>& calls, Times& times) {
  std::vector<Times> own(calls.size());
  std::vector<std::thread> threads;
  const auto end = Clock::now() + time;
  for (size_t i = 0; i < calls.size(); ++i) {
    threads.emplace_back([&, i] {
      for (auto before = Clock::now(); before < end;) {
        calls[i]();
        const auto after = Clock::now();
        own[i].all.push_back(std::chrono::duration<double, std::micro>(after - before).count());
        before = after;
      }
    });
  }
  for (std::thread& t : threads) t.join();
  for (const Times& t : own) times.all.insert(times.all.end(), t.all.begin(), t.all.end());
}

void measure(const Function& function, int length, int busy, int callers) {
  const BusyLoops loops(busy);
  std::vector<Call> calls;
  for (int i = 0; i < callers; ++i) calls.push_back(function.prepare(length));
  Times alone, divided;
  constexpr int kRounds = 6;  // of each in turn, so that drift affects both alike
  for (int round = 0; round < kRounds; ++round) {
    qvxSetNumThreads(1);
    callFor(std::chrono::milliseconds(40), calls, alone);
    qvxSetNumThreads(2);
    callFor(std::chrono::milliseconds(40), calls, divided);
  }
  std::printf("| %s | %d | %d | %d | %.1f | %.2f | %.1f | %.1f |\n", function.name, length, busy, callers, alone.at(0.5),
              divided.at(0.5) / alone.at(0.5), alone.at(0.99), divided.at(0.99));
  std::fflush(stdout);
}

}  // namespace

int main() {
  std::puts("| function | length | busy loops | callers | alone, us | two threads / alone | 99 %, alone | 99 %, two |");
  std::puts("|---|---|---|---|---|---|---|---|");
  for (const Function& function : functions()) {
    for (const int factor : {1, 4, 32}) {
      for (const int busy : {0, 1, 2}) measure(function, function.threshold * factor, busy, 1);
      for (const int callers : {2, 8, 64}) measure(function, function.threshold * factor, 0, callers);
    }
  }
}
