// Test signals in 16-bit WAV files.
#pragma once

#include <string>

struct Signal {
  std::string shape;       // tone, triangle, sweep, uniform or gauss
  double frequency = 997;  // Hz
  double last = 20000;     // where a sweep ends, Hz
  double level = -6;       // of the peak in dBFS; of gauss, of the standard deviation
  double asymmetry = 0;    // of a triangle: -1 falls at once, 1 rises at once
  double seconds = 1;
  int rate = 48000;
  unsigned seed = 1;
};

void writeSignal(const Signal& signal, const std::string& path);
