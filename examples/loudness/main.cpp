// loudness: how the levels of a recording are spread, and where it is loudest and quietest.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "../support/arguments.h"
#include "../support/program.h"
#include "loudness.h"

namespace {

void printPercentiles(const std::vector<float>& sorted) {
  std::printf("%8s %9s\n", "percent", "dBFS");
  for (const double percent : {0.0, 10.0, 25.0, 50.0, 75.0, 90.0, 95.0, 100.0})
    std::printf("%8g %9.2f\n", percent, percentile(sorted, percent));
}

// One line for every `width` dB; the longest has 40 marks.
void printHistogram(const std::vector<float>& sorted, double width) {
  const auto classOf = [=](float level) { return static_cast<int>(std::floor(level / width)); };
  std::vector<std::ptrdiff_t> counts;
  for (int c = classOf(sorted.front()); c <= classOf(sorted.back()); ++c) {
    const auto isBelow = [&](float level) { return classOf(level) < c; };
    const auto first = std::partition_point(sorted.begin(), sorted.end(), isBelow);
    const auto last = std::partition_point(first, sorted.end(), [&](float level) { return classOf(level) == c; });
    counts.push_back(last - first);
  }
  const auto most = *std::max_element(counts.begin(), counts.end());
  std::printf("\n%8s %9s\n", "dBFS", "blocks");
  for (size_t i = counts.size(); i-- > 0;) {
    const double from = (classOf(sorted.front()) + static_cast<int>(i)) * width;
    std::printf("%8g %9td %s\n", from, counts[i],
                std::string(static_cast<size_t>((40 * counts[i] + most - 1) / most), '#').c_str());
  }
}

int run(int argc, char** argv) {
  Arguments app("Prints the percentiles and the histogram of a recording's block levels, and its loudest and quietest seconds.");
  std::string input;
  double milliseconds = 100, width = 6;
  size_t count = 3;
  app.option("file", input, "The audio file").required().existingFile();
  app.option("-b,--block", milliseconds, "Length of a block in ms").range(1.0, 10000.0).showDefault();
  app.option("-w,--width", width, "Width of the histogram's classes in dB").range(0.5, 60.0).showDefault();
  app.option("-c,--count", count, "Seconds to print at either end").range(1, 1000).showDefault();
  app.parse(argc, argv);

  const Levels levels = levelsOf(input, milliseconds / 1000);
  const std::vector<float> blocks = sorted(levels.blocks);
  printPercentiles(blocks);
  printHistogram(blocks, width);
  const std::vector<int> order = byLoudness(levels.seconds);
  count = std::min(count, order.size());
  const auto print = [&](const char* what, int second) {
    std::printf("%8s %9d %9.2f\n", what, second, levels.seconds[static_cast<size_t>(second)]);
  };
  std::printf("\n%8s %9s %9s\n", "", "second", "dBFS");
  for (size_t i = 0; i < count; ++i) print("loudest", order[i]);
  for (size_t i = 0; i < count; ++i) print("quietest", order[order.size() - 1 - i]);
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("loudness", run, argc, argv); }
