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
    for (Qvx32f tap; numbers >> tap;) taps.push_back(tap);
    if (!numbers.eof()) throw std::runtime_error(std::string(path).append(": not a number in line: ").append(line));
  }
  if (taps.empty()) throw std::runtime_error(path + ": no taps");
  return taps;
}

// In 64-bit arithmetic: long blocks go by way of the FFT, and what that rounds otherwise no 16 bits show.
Equaliser::Equaliser(const std::vector<Qvx32f>& taps, int channels, int block) : block_(block) {
  const std::vector<Qvx64f> wide(taps.begin(), taps.end());
  for (int c = 0; c < channels; ++c) {
    QvxsFIRState64f_32f* state = nullptr;
    check(qvxsFIRInitAlloc64f_32f(&state, wide.data(), static_cast<int>(wide.size()), nullptr));
    states_.emplace_back(state);
    memory_.push_back(vector(qvxsMalloc_32f(kBlockFrames)));
    samples_.push_back(memory_.back().get());
  }
}

void Equaliser::filter(const Qvx16s* src, int frames) {
  check(qvxsSplitScaled_16s32f_D2L(src, samples_.data(), channels(), frames));
  for (size_t c = 0; c < states_.size(); ++c) {
    for (int at = 0; at < frames; at += block_) {
      check(qvxsFIR64f_32f_I(samples_[c] + at, std::min(block_, frames - at), states_[c].get()));
    }
  }
}

void Equaliser::result(Qvx16s* dst, int frames) const {
  check(qvxsJoinScaled_32f16s_D2L(samples_.data(), channels(), frames, dst));
}

double Equaliser::distance(const Equaliser& other, int frames) const {
  double most = 0;
  for (size_t c = 0; c < states_.size(); ++c) {
    Qvx32f distance = 0;
    check(qvxsNormDiff_Inf_32f(samples_[c], other.samples_[c], frames, &distance));
    most = std::max(most, static_cast<double>(distance));
  }
  return most;
}
