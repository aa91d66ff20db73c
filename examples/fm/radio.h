// An FM transmitter and receiver at 480 kHz, ten times the rate of the audio.
#pragma once

#include <string>

struct Channel {
  double deviation = 15000;  // Hz at full scale
  double emphasis = 50e-6;   // time constant in s
};

inline constexpr int kAudioRate = 48000;
inline constexpr int kIqRate = 480000;

// What a raw file is, or is to be: no WAV file, but samples alone.
struct Recording {
  std::string path;
  bool isRaw = false;
  int bits = 16;
};

// Modulates the first channel of an audio file of 48 kHz.
void transmit(const Channel& channel, const std::string& audio, const Recording& recording);

// Demodulates a recording into a 16-bit WAV file of 48 kHz. Gives the signal-to-noise ratio in dB against the first channel of
// the original, if one is named, after the gain that suits best.
double receive(const Channel& channel, const Recording& recording, const std::string& output, const std::string& original);
