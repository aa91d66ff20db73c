// The mean power spectrum of an audio file, and its peaks.
#pragma once

#include "../support/audio.h"

struct Spectrum {
  double binHz;
  int64_t blocks;
  // dBFS of bins 0 to N/2: 0 is a sine that reaches full scale.
  std::vector<double> levels;
};

struct Peak {
  double hz;
  double dbfs;
};

// Mean over all channels and over blocks of 2^order frames, half of each shared with the next.
Spectrum spectrumOf(const std::string& path, int order);

// The strongest local maxima, the strongest first; frequencies between bins follow from the window's spectrum.
std::vector<Peak> peaksOf(const Spectrum& spectrum, size_t count);
