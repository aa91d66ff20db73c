// An audio file as overlapping windows of one channel, the mean of its channels.
#pragma once

#include "../support/audio.h"

class Windows {
 public:
  // A window of len frames every hop frames: any numbers from 1 on.
  Windows(const std::string& path, int len, int hop);

  int len() const { return len_; }
  int hop() const { return hop_; }
  int sampleRate() const { return input_.sampleRate(); }
  // Seconds from the start of the file to the middle of the window that next() gave last.
  double time() const;
  // How many there are, as far as the file tells.
  int64_t count() const;

  // The samples of the next window, or null after the last whole one. A file shorter than a window is one, with zeros after it.
  const Qvx32f* next();

 private:
  int read(Qvx32f* dst, int frames);

  AudioReader input_;
  int len_;
  int hop_;
  int64_t index_ = -1;
  std::vector<Qvx32f> samples_;
  std::vector<Qvx32f> frames_;
};

// A raised cosine of any length whose sum is 1; the halves of two windows half a length apart add up to a constant.
std::vector<Qvx32f> raisedCosine(int len);
