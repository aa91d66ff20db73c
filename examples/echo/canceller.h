// An echo canceller: a filter learns the path from the loudspeaker to the microphone, and what it predicts is subtracted from the
// recording.
#pragma once

#include <string>
#include <vector>

struct Room {
  double delay = 0.012;  // seconds to the first reflection
  double level = -6;     // dB of it
  double noise = -60;    // dBFS, at the microphone
};

// What a microphone records of `played` through a few reflections, with noise.
std::vector<float> recorded(const std::vector<float>& played, const Room& room, double sampleRate);

struct Learning {
  int taps = 512;
  double rate = 0.25;  // of the step at which the filter would no longer settle
};

// The recording without the echo of what was played; both of one length.
std::vector<float> cancelled(const std::vector<float>& played, const std::vector<float>& recording, const Learning& learning);

// Levels of a stretch of time in dBFS.
struct Stretch {
  double start;
  double before;
  double after;
};
std::vector<Stretch> levels(const std::vector<float>& recording, const std::vector<float>& left, double seconds,
                            double sampleRate);

// The attenuation over time, as .png or .svg by the end of the name.
void plot(const std::vector<Stretch>& stretches, const std::string& path);
