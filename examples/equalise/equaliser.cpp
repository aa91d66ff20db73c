#include "equaliser.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

std::vector<Qvx32f> readTaps(const std::string& path) {
  std::ifstream file(path);
  std::vector<Qvx32f> taps;
  for (std::string line; std::getline(file, line);) {
    std::istringstream numbers(line.substr(0, line.find('#')));
    while (!(numbers >> std::ws).eof()) {
      if (!(numbers >> taps.emplace_back()))
        throw std::runtime_error(std::string(path).append(": not a number in line: ").append(line));
    }
  }
  if (taps.empty()) throw std::runtime_error(path + ": no taps");
  return taps;
}

// In 64-bit arithmetic: long blocks go through the FFT, whose different rounding then does not show in 16 bits.
Equaliser::Equaliser(const std::vector<Qvx32f>& taps, int channels, int block) : block_(block) {
  const std::vector<Qvx64f> wide(taps.begin(), taps.end());
  for (int c = 0; c < channels; ++c) {
    filters_.push_back(qvx::Fir<Qvx32f, Qvx64f>::make(wide).value());
    samples_.push_back(memory_.emplace_back(kBlockFrames).data());
  }
}

void Equaliser::filter(const Qvx16s* src, int frames) {
  qvx::SplitScaled(std::span(src, samples_.size() * static_cast<size_t>(frames)), samples_, frames).orThrow();
  for (size_t c = 0; c < filters_.size(); ++c) {
    for (int at = 0; at < frames; at += block_) {
      filters_[c].filter(std::span(samples_[c] + at, static_cast<size_t>(std::min(block_, frames - at)))).orThrow();
    }
  }
}

void Equaliser::result(Qvx16s* dst, int frames) const {
  qvx::JoinScaled(samples_, frames, std::span(dst, samples_.size() * static_cast<size_t>(frames))).orThrow();
}

double Equaliser::distance(const Equaliser& other, int frames) const {
  double most = 0;
  const auto len = static_cast<size_t>(frames);
  for (size_t c = 0; c < samples_.size(); ++c) {
    Qvx32f distance = 0;
    qvx::NormDiff_Inf(std::span(samples_[c], len), std::span(other.samples_[c], len), distance).orThrow();
    most = std::max(most, static_cast<double>(distance));
  }
  return most;
}
