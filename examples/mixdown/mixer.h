// Mixing of audio files: decoding, gain, sum, and the way back to 16 bits.
#pragma once

#include <functional>

#include "../support/audio.h"

// The level of a signal whose full scale is 1.
struct Level {
  double peak = 0;
  double squares = 0;
  int64_t samples = 0;
  int64_t clipped = 0;  // samples beyond what 16 bits hold: -1 to 32767/32768

  void add(const Qvx32f* signal, int len);
  double peakDb() const;
  double rmsDb() const;  // 0 dB is a square wave of full scale
};

class Track {
 public:
  Track(const std::string& path, double gainDb);

  const std::string& path() const { return file_.path(); }
  double gainDb() const { return gainDb_; }
  const Level& level() const { return level_; }  // after the gain
  int channels() const { return file_.channels(); }
  int sampleRate() const { return file_.sampleRate(); }
  int64_t frames() const { return file_.frames(); }

  // Adds the next block, gain applied, to a sum of that many channels; a mono file goes to all of them. Returns the number of
  // frames, 0 at the end.
  int addTo(Qvx32f* sum, int sumChannels);

 private:
  using Decoder = std::function<int(Qvx32f*)>;
  Decoder makeDecoder() const;

  double gainDb_;
  AudioReader file_;
  Decoder decode_;
  Vector<Qvx32f> samples_;
  Level level_;
};

struct MixFormat {
  int sampleRate;
  int channels;
  int64_t frames;  // of the longest track; SF_COUNT_MAX if a file does not tell
};

// What the tracks have in common; throws if they cannot be mixed: one sample rate, and either one channel or as many as the rest.
MixFormat commonFormat(const std::vector<Track>& tracks);

// Writes the mix and returns its level before it was saturated to 16 bits. progress is told the frames done after each block.
Level mix(std::vector<Track>& tracks, const MixFormat& format, const std::string& output, QvxRoundMode mode,
          const std::function<void(int64_t)>& progress);
