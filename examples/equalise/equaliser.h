// A filter for all channels of a signal.
#pragma once

#include <qvx/qvxs.hpp>

#include "../support/audio.h"

// Numbers separated by white space, from # to the end of a line a comment. Throws unless there is one at least.
std::vector<Qvx32f> readTaps(const std::string& path);

class Equaliser {
 public:
  // block: the samples that a channel is given at a time, at most kBlockFrames.
  Equaliser(const std::vector<Qvx32f>& taps, int channels, int block);

  // Filters the next frames of the signal, at most kBlockFrames; the taps determine the delay.
  void filter(const Qvx16s* src, int frames);
  void result(Qvx16s* dst, int frames) const;
  // The largest difference between two results before they became 16 bits, whose full scale is 1.
  double distance(const Equaliser& other, int frames) const;
  int block() const { return block_; }

 private:
  int block_;
  std::vector<qvx::Fir<Qvx32f, Qvx64f>> filters_;
  std::vector<std::vector<Qvx32f>> memory_;
  std::vector<Qvx32f*> samples_;  // of each channel
};
