#include "frame/report.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <fstream>

namespace bench {

namespace {

constexpr double kBehind = 0.95;

std::string processor() {
  std::ifstream file("/proc/cpuinfo");
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("model name")) return line.substr(line.find(':') + 2);
  }
  return "unknown processor";
}

std::string lengthText(int n) {
  constexpr int kMebi = 1 << 20;
  return n % kMebi == 0 ? std::to_string(n / kMebi) + " Mi" : std::to_string(n);
}

std::string columns(const std::vector<int>& sizes) {
  std::string names = "| export | peer |";
  std::string rule = "|---|---|";
  for (const int n : sizes) {
    names += " n=" + lengthText(n) + " |";
    rule += "---:|";
  }
  return names + "\n" + rule;
}

double geometricMean(const std::vector<double>& ratios) {
  double sum = 0;
  for (const double ratio : ratios) sum += std::log(ratio);
  return std::exp(sum / static_cast<double>(ratios.size()));
}

}  // namespace

void Report::head() {
  const QvxLibraryVersion* version = qvxsGetLibVersion();
  std::printf("Processor: %s\nVariant: %.4s\nCompiler of the plain loops: " __VERSION__ ", -O3 -march=native\n",
              processor().c_str(), version->cpuTag);
  std::printf("Cells: our time of a call in ns, and in brackets the peer's time over ours (above 1: we lead).\n");
}

void Report::open(Table table) {
  const char* const title = table == Table::kAligned      ? "Vectors at 64-byte boundaries, data warm"
                            : table == Table::kMisaligned ? "All vectors one element behind a 64-byte boundary"
                            : table == Table::kLarge      ? "Beyond the caches: 64 MB"
                            : table == Table::kStream     ? "Streams, block by block"
                            : table == Table::kTeam       ? "Two threads"
                                                    : "Transforms by order, of 5 N log2 N operations, real ones of half as many";
  if (table == Table::kTransforms) {
    std::printf("\n## %s\n\n| export | order | ns | GFLOPS | peers |\n|---|---:|---:|---:|---|\n", title);
    return;
  }
  const std::vector<int> sizes = table == Table::kLarge    ? std::vector{64 << 20}
                                 : table == Table::kStream ? kStreamSizes
                                 : table == Table::kTeam   ? kTeamSizes
                                                           : kSizes;
  std::printf("\n## %s\n\n%s\n", title, columns(sizes).c_str());
}

// A line for every length, for there are many.
void Report::transforms(const Case& c, const std::vector<Times>& bySize) {
  for (size_t i = 0; i < bySize.size(); ++i) {
    const double ours = bySize[i][0];
    std::printf("| %s | %d | %.*f | %.2f |", c.name.c_str(), std::countr_zero(static_cast<unsigned>(c.sizes[i])),
                ours < 100 ? 1 : 0, ours, c.operations(c.sizes[i]) / ours);
    for (size_t peer = 1; peer < c.contenders.size(); ++peer) {
      const std::string& name = c.contenders[peer].peer;
      const double ratio = bySize[i][peer] / ours;
      std::printf(" %s %.2f", name.c_str(), ratio);
      cells_.push_back({c.name + ", n=" + lengthText(c.sizes[i]) + ", " + name, ratio});
      ratiosByPeer_[name].push_back(ratio);
    }
    std::printf(" |\n");
  }
  std::fflush(stdout);
}

void Report::row(const Case& c, const std::vector<Times>& bySize) {
  if (c.table == Table::kTransforms) return transforms(c, bySize);
  for (size_t peer = 1; peer < c.contenders.size(); ++peer) {
    const std::string& peerName = c.contenders[peer].peer;
    std::printf("| %s | %s |", c.name.c_str(), peerName.c_str());
    for (size_t i = 0; i < bySize.size(); ++i) {
      const double ours = bySize[i][0];
      const double ratio = bySize[i][peer] / ours;
      std::printf(" %.*f (%.2f) |", ours < 100 ? 1 : 0, ours, ratio);
      if (c.table == Table::kTeam) continue;  // one thread is no peer to be behind
      cells_.push_back({c.name + ", n=" + lengthText(c.sizes[i]) + ", " + peerName, ratio});
      ratiosByPeer_[peerName].push_back(ratio);
    }
    std::printf("\n");
  }
  std::fflush(stdout);
}

void Report::tail() const {
  std::vector<Cell> behind;
  std::copy_if(cells_.begin(), cells_.end(), std::back_inserter(behind), [](const Cell& c) { return c.ratio < kBehind; });
  std::sort(behind.begin(), behind.end(), [](const Cell& a, const Cell& b) { return a.ratio < b.ratio; });
  std::printf("\n## Behind a peer: %zu of %zu cells below %.2f\n\n", behind.size(), cells_.size(), kBehind);
  for (const Cell& c : behind) std::printf("- %.2f %s\n", c.ratio, c.label.c_str());
  std::printf("\n## Geometric mean of the ratios\n\n");
  for (const auto& [peer, ratios] : ratiosByPeer_)
    std::printf("- %s: %.2f (%zu cells)\n", peer.c_str(), geometricMean(ratios), ratios.size());
}

}  // namespace bench
