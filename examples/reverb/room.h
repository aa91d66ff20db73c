// Rooms: what a recording becomes in one, and how long it rings.
#pragma once

#include <string>

#include "../support/audio.h"

// The first channel of a file, from -1 to 1.
std::vector<Qvx32f> readResponse(const std::string& path, int sampleRate);
// Noise that falls by 60 dB in so many seconds.
std::vector<Qvx32f> decayingNoise(double seconds, int sampleRate);

// The decay: levels in dB of the rest of a response after evenly spaced times, relative to all of it.
std::vector<double> decayOf(const std::vector<Qvx32f>& response, int times);

// Plays a recording block by block; each rings on into the next ones.
class Room {
 public:
  Room(std::vector<Qvx32f> response, int channels);

  // frames, interleaved, in place. wet: how loud the room is, beside the recording itself.
  void play(Qvx16s* samples, int frames, double wet);
  int tail() const { return static_cast<int>(response_.size()) - 1; }

 private:
  std::vector<Qvx32f> response_;
  std::vector<std::vector<Qvx32f>> ringing_;  // of each channel, what is still to come
  std::vector<Qvx32f> block_, sum_;
};
