// What the examples have in common: vectors of the library, audio files in, audio files out.
#pragma once

#include <qvx/qvxs.h>

#include <cstdint>
#include <memory>
#include <new>
#include <sndfile.hh>
#include <string>
#include <vector>

// Vectors of the library that release themselves: vector(qvxsMalloc_32f(len)).
struct Release {
  void operator()(void* vector) const { qvxsFree(vector); }
};
template <class T> using Vector = std::unique_ptr<T[], Release>;

template <class T> Vector<T> vector(T* allocated) {
  if (allocated == nullptr) throw std::bad_alloc();
  return Vector<T>(allocated);
}

// Every function of the library reports; a refused call is a fault of the program.
void check(QvxStatus status);

// Files are read and written in blocks of no more than this many frames, so that they may be longer than memory.
inline constexpr int kBlockFrames = 4096;

class AudioReader {
 public:
  // Raw codes or samples do not tell what they are: format, channels and sampleRate say so.
  explicit AudioReader(const std::string& path, int format = 0, int channels = 0, int sampleRate = 0);

  const std::string& path() const { return path_; }
  int channels() const { return file_.channels(); }
  int sampleRate() const { return file_.samplerate(); }
  int64_t frames() const { return file_.frames(); }  // SF_COUNT_MAX if the file does not tell
  int subtype() const { return file_.format() & SF_FORMAT_SUBMASK; }

  // The next block, at most kBlockFrames: the number of frames, 0 at the end.
  template <class T> int read(T* dst, int frames = kBlockFrames) { return got(file_.readf(dst, frames)); }
  // The same of the bytes that the file holds, for formats of one byte a sample.
  int readBytes(Qvx8u* dst) { return got(file_.readRaw(dst, int64_t{kBlockFrames} * channels()) / channels()); }

 private:
  int got(sf_count_t frames) const;

  std::string path_;
  SndfileHandle file_;
};

class AudioWriter {
 public:
  // The file to write must not be one of those that are read.
  AudioWriter(const std::string& path, int format, int channels, int sampleRate, const std::vector<std::string>& inputs);

  void write(const Qvx16s* samples, int frames);
  void write(const Qvx32f* samples, int frames);
  void writeBytes(const Qvx8u* codes, int frames);

 private:
  void count(int frames, int sampleBytes);
  void verify(bool written) const;

  std::string path_;
  SndfileHandle file_;
  int64_t bytes_ = 0;
};
