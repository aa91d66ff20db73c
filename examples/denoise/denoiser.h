// Noise removed from a recording by its wavelet coefficients: the small ones are noise, the large ones are not.
#pragma once

#include <string>
#include <vector>

// What the threshold left of a level of the decomposition; each level has half the rate of the one before.
struct Level {
  double hertz;  // from here on up to twice as much
  double threshold;
  double kept;  // the part of its coefficients that is above
};

struct Denoised {
  std::vector<float> samples;
  std::vector<Level> levels;
};

Denoised denoised(const std::vector<float>& noisy, int levels, double strength, double sampleRate);

// White noise of this root mean square.
std::vector<float> noise(size_t n, double deviation, unsigned seed);

// The level of the wanted signal over that of the difference, in dB.
double signalToNoise(const std::vector<float>& wanted, const std::vector<float>& got);
