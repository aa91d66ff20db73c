// The tones of telephone keys: their recordings, and the digits in those of others.
#pragma once

#include <array>
#include <string>
#include <vector>

inline constexpr std::array<float, 8> kTones = {697, 770, 852, 941, 1209, 1336, 1477, 1633};  // Hz: rows, then columns

// One key that was heard, from its first block to its last.
struct Press {
  char key;
  double start;                    // s
  double length;                   // s
  std::array<double, 8> levelsDb;  // of each tone in its loudest block, in dB; a sine of full scale has 0
};

// Writes the tones of keys, 80 ms each with as long a pause after it, and noise of a level in dB; a sine of full scale has 0.
void dial(const std::string& keys, int sampleRate, double noiseDb, const std::string& output);

// What is heard in the first channel of a recording.
std::vector<Press> listen(const std::string& input);
