#include "frame/report.h"

#include <algorithm>
#include <bit>
#include <cstdio>
#include <map>

namespace bench {

namespace {

constexpr double kClearlySlower = 0.95;

std::string columns(const std::vector<int>& sizes) {
  std::string names = "| export | peer |";
  std::string rule = "|---|---|";
  for (const int n : sizes) {
    names += " n=" + lengthText(n) + " |";
    rule += "---:|";
  }
  return names + "\n" + rule;
}

}  // namespace

void Report::head(const Context& context) {
  for (const auto& [key, value] : context) std::printf("%s: %s\n", key.c_str(), value.c_str());
  std::printf("Cells: our time of a call in ns, and in brackets the peer's time over ours (above 1: we lead).\n");
}

void Report::open(Table table) {
  const char* const title = table == Table::kAligned      ? "Vectors at 64-byte boundaries, data warm"
                            : table == Table::kMisaligned ? "All vectors one element after a 64-byte boundary"
                            : table == Table::kLarge      ? "Beyond the caches: 64 MB"
                            : table == Table::kStream     ? "Streams, block by block"
                            : table == Table::kTeam       ? "Two threads"
                                                    : "Transforms by length, of 5 N log2 N operations, real ones of half as many";
  if (table == Table::kTransforms) {
    std::printf("\n## %s\n\n| export | length | ns | GFLOPS | peers |\n|---|---:|---:|---:|---|\n", title);
    return;
  }
  const std::vector<int> sizes = table == Table::kLarge    ? std::vector{64 << 20}
                                 : table == Table::kStream ? kStreamSizes
                                 : table == Table::kTeam   ? kTeamSizes
                                                           : kSizes;
  std::printf("\n## %s\n\n%s\n", title, columns(sizes).c_str());
}

// A line for every length, since there are many.
void Report::transforms(const Case& c, const std::vector<Times>& bySize) {
  for (size_t i = 0; i < bySize.size(); ++i) {
    const double ours = bySize[i][0].ns;
    std::printf("| %s | %d | %.*f | %.2f |", c.title().c_str(), c.sizes[i], ours < 100 ? 1 : 0, ours,
                c.operations(c.sizes[i]) / ours);
    for (size_t peer = 1; peer < c.contenders.size(); ++peer) {
      const std::string& name = c.contenders[peer].peer;
      std::printf(" %s %.2f", name.c_str(), bySize[i][peer].ns / ours);
    }
    keep(c, i, bySize[i]);
    std::printf(" |\n");
  }
  std::fflush(stdout);
}

void Report::row(const Case& c, const std::vector<Times>& bySize) {
  if (c.table == Table::kTransforms) return transforms(c, bySize);
  for (size_t peer = 1; peer < c.contenders.size(); ++peer) {
    const std::string& peerName = c.contenders[peer].peer;
    std::printf("| %s | %s |", c.title().c_str(), peerName.c_str());
    for (size_t i = 0; i < bySize.size(); ++i) {
      const double ours = bySize[i][0].ns;
      std::printf(" %.*f (%.2f) |", ours < 100 ? 1 : 0, ours, bySize[i][peer].ns / ours);
    }
    std::printf("\n");
  }
  for (size_t i = 0; i < bySize.size(); ++i) keep(c, i, bySize[i]);
  std::fflush(stdout);
}

void Report::keep(const Case& c, size_t size, const Times& times) {
  const int n = c.sizes[size];
  for (size_t i = 1; i < times.size(); ++i) {
    if (!c.contenders[i].isPeer) continue;
    measurements_.push_back({"", c.name, n, c.operations ? c.operations(n) : 0, times[0], c.contenders[i].peer, times[i]});
  }
}

void Report::tail() const {
  std::vector<Measurement> slower;
  std::copy_if(measurements_.begin(), measurements_.end(), std::back_inserter(slower),
               [](const Measurement& m) { return m.ratio() < kClearlySlower; });
  std::sort(slower.begin(), slower.end(), [](const Measurement& a, const Measurement& b) { return a.ratio() < b.ratio(); });
  std::printf("\n## Slower than a peer: %zu of %zu cells below %.2f\n\n", slower.size(), measurements_.size(), kClearlySlower);
  for (const Measurement& m : slower)
    std::printf("- %.2f %s, n=%s, %s\n", m.ratio(), m.name.c_str(), lengthText(m.n).c_str(), m.peer.c_str());
  std::printf("\n## Geometric mean of the ratios\n\n");
  std::map<std::string, std::vector<double>> byPeer;
  for (const Measurement& m : measurements_) byPeer[m.peer].push_back(m.ratio());
  for (const auto& [peer, ratios] : byPeer)
    std::printf("- %s: %.2f (%zu cells)\n", peer.c_str(), geometricMean(ratios), ratios.size());
}

}  // namespace bench
