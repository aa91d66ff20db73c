// The levels of a recording, block by block.
#pragma once

#include <string>
#include <vector>

struct Levels {
  double blockSeconds = 0;
  std::vector<float> blocks;   // dBFS of each block, -120 for silence; the last one may be shorter
  std::vector<float> seconds;  // of each second
};

// All channels together. A sine that reaches full scale in all of them has -3.01 dBFS.
Levels levelsOf(const std::string& path, double blockSeconds);

// In ascending order.
std::vector<float> sorted(std::vector<float> levels);

// The level that `percent` of the sorted ones do not exceed.
float percentile(const std::vector<float>& sorted, double percent);

// The numbers of the loudest first.
std::vector<int> byLoudness(std::vector<float> levels);
