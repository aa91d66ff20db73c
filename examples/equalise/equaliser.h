// A filter for all channels of a signal.
#pragma once

#include "../support/audio.h"

// Numbers separated by white space, from # to the end of a line a comment. Throws unless there is one at least.
std::vector<Qvx32f> readTaps(const std::string& path);

class Equaliser {
 public:
  // block: the samples that a channel is given at a time, at most kBlockFrames.
  Equaliser(const std::vector<Qvx32f>& taps, int channels, int block);

  // The next frames of the signal, at most kBlockFrames, and what they become, delayed as the taps say.
  void filter(const Qvx16s* src, int frames);
  void result(Qvx16s* dst, int frames) const;
  // The largest difference between two results before they became 16 bits, whose full scale is 1.
  double distance(const Equaliser& other, int frames) const;
  int block() const { return block_; }

 private:
  struct FreeState {
    void operator()(QvxsFIRState64f_32f* state) const { qvxsFIRFree64f_32f(state); }
  };
  using State = std::unique_ptr<QvxsFIRState64f_32f, FreeState>;

  int channels() const { return static_cast<int>(states_.size()); }

  int block_;
  std::vector<State> states_;
  std::vector<Vector<Qvx32f>> memory_;
  std::vector<Qvx32f*> samples_;  // of each channel
};
