#include "frame/runner.h"

#include <algorithm>
#include <cstdio>

#include "qvx/qvxcore.h"

namespace bench {

namespace {

// Below this ratio a cell is measured again, with all its contenders.
constexpr double kWorthAnotherLook = 1.0;

// All repetitions of each contender.
class Repetitions : public benchmark::BenchmarkReporter {
 public:
  Repetitions(std::vector<std::vector<double>>& times, bool inRealTime) : times_(times), inRealTime_(inRealTime) {}
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      times_[static_cast<size_t>(run.family_index)].push_back(inRealTime_ ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime());
    }
  }

 private:
  std::vector<std::vector<double>>& times_;
  bool inRealTime_;
};

Timing timing(std::vector<double> repetitions) {
  std::sort(repetitions.begin(), repetitions.end());
  return {repetitions.front(), repetitions[repetitions.size() / 2] / repetitions.front() - 1};
}

// The contenders take turns in random order.
void measure(const Case& c, const Vectors& v, const Effort& effort, std::vector<std::vector<double>>& times) {
  for (const Contender& contender : c.contenders) {
    benchmark::RegisterBenchmark(contender.peer.c_str(),
                                 [&](benchmark::State& state) {
                                   qvxSetNumThreads(contender.threads);
                                   contender.timed(state, v);
                                 })
        ->MinTime(effort.seconds)
        ->Repetitions(effort.repetitions)
        ->UseRealTime();
  }
  Repetitions repetitions(times, c.inRealTime);
  benchmark::RunSpecifiedBenchmarks(&repetitions, ".");
  benchmark::ClearRegisteredBenchmarks();
}

Times measured(const Case& c, const Vectors& v, const Effort& effort) {
  std::vector<std::vector<double>> repetitions(c.contenders.size());
  Times times(c.contenders.size());
  const auto isFaster = [&](const Timing& t) { return t.ns / times[0].ns < kWorthAnotherLook; };
  for (int look = 0; look == 0 || (look < effort.looks && std::any_of(times.begin() + 1, times.end(), isFaster)); ++look) {
    measure(c, v, effort, repetitions);
    std::transform(repetitions.begin(), repetitions.end(), times.begin(), timing);
  }
  return times;
}

// Ours and the peer, once on the same data.
bool agrees(const Case& c, const Contender& peer, const Vectors& v) {
  const auto fresh = [&] {
    ++freshData;
    c.fillSources(v);
    c.fillDestination(v);
  };
  fresh();
  c.contenders[0].once(v);
  c.saveDestination(v);
  fresh();
  peer.once(v);
  if (c.agrees(v, peer.agreement)) return true;
  std::fprintf(stderr, "MISMATCH: %s differs from %s at n=%d\n", c.name.c_str(), peer.peer.c_str(), v.n);
  std::printf("**MISMATCH: %s differs from %s at n=%d**\n", c.name.c_str(), peer.peer.c_str(), v.n);
  return false;
}

}  // namespace

int run(const Suite& suite, const std::regex& filter, Report& report, const Effort& effort) {
  const Slabs slabs;
  int mismatches = 0;
  for (const Table table :
       {Table::kAligned, Table::kMisaligned, Table::kLarge, Table::kStream, Table::kTeam, Table::kTransforms}) {
    bool open = false;
    for (const Case& c : suite.cases()) {
      if (c.table != table || !std::regex_search(c.title(), filter)) continue;
      if (!open) report.open(table);
      open = true;
      std::vector<Times> bySize;
      for (const int n : c.sizes) {
        const Vectors v{slabs, n, c.misaligned, c.overlap};
        for (size_t i = 1; i < c.contenders.size(); ++i) mismatches += !agrees(c, c.contenders[i], v);
        bySize.push_back(measured(c, v, effort));
      }
      report.row(c, bySize);
    }
  }
  return mismatches;
}

}  // namespace bench
