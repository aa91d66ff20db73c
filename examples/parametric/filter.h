// A low-pass or high-pass filter: its design, its response, and what it makes of audio files.
#pragma once

#include <string>
#include <vector>

struct Specification {
  bool isHighPass = false;
  double frequency = 1000;  // the edge, in Hz
  double sampleRate = 48000;
  int order = 4;
  double ripple = 0;  // of the pass band in dB, Chebyshev; 0 is a Butterworth filter
};

class Filter {
 public:
  // Throws if there is no such filter.
  explicit Filter(const Specification& specification);

  const Specification& specification() const { return specification_; }
  // b0..bN, a0..aN.
  const std::vector<double>& taps() const { return taps_; }
  double gainDb(double frequency) const;

  // Writes the filtered file with 16 bits; its rate must be the one the filter was designed for. Returns the frames.
  long long apply(const std::string& input, const std::string& output) const;

 private:
  Specification specification_;
  std::vector<double> taps_;
};

// The response from 1/1000 of the sampling rate to half of it, drawn by gnuplot: into a PNG or SVG file, or with letters for "-".
void plot(const Filter& filter, const std::string& path);
