// What the examples have in common: vectors of the library, audio files in, audio files out.
#pragma once

#include <qvx/qvxs.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <exception>
#include <memory>
#include <new>
#include <sndfile.hh>
#include <stdexcept>
#include <string>
#include <type_traits>
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

  // The next block, at most kBlockFrames: the number of frames, 0 at the end. Floats are finite numbers, or it throws. Integers
  // are only for files that hold such, of no more bits: libsndfile drops the rest, and takes floats for whole numbers.
  template <class T> int read(T* dst, int frames = kBlockFrames) {
    const int read = got(file_.readf(dst, frames));
    if constexpr (std::is_floating_point_v<T>) {
      if (!std::all_of(dst, dst + int64_t{read} * channels(), [](T x) { return std::isfinite(x); }))
        throw std::runtime_error(path_ + ": holds samples that are not finite numbers");
    }
    return read;
  }
  // The same of any file, rounded to 16 bits.
  int readRounded(Qvx16s* dst);
  // The same of the bytes that the file holds, for formats of one byte a sample.
  int readBytes(Qvx8u* dst) { return got(file_.readRaw(dst, int64_t{kBlockFrames} * channels()) / channels()); }

 private:
  int got(sf_count_t frames) const;

  std::string path_;
  SndfileHandle file_;
  std::vector<Qvx32f> floats_;
};

// All of a file's first channel. Throws if there are no samples, or more than 2^27: 45 minutes at 48 kHz.
std::vector<Qvx32f> readFirstChannel(AudioReader& in);

// A file that is whole or not there: what an exception ends is removed, whether a write failed or what was to be read.
class AudioWriter {
 public:
  // The file to write must not be another one of the program's, to be read or written.
  AudioWriter(const std::string& path, int format, int channels, int sampleRate, const std::vector<std::string>& others);
  AudioWriter(const AudioWriter&) = delete;
  AudioWriter& operator=(const AudioWriter&) = delete;
  ~AudioWriter();

  void write(const Qvx16s* samples, int frames);
  void write(const Qvx32f* samples, int frames);
  void writeBytes(const Qvx8u* codes, int frames);

 private:
  void count(int frames, int sampleBytes);
  void verify(bool written) const;

  std::string path_;
  SndfileHandle file_;
  int64_t bytes_ = 0;
  int exceptions_ = std::uncaught_exceptions();
};

// A WAV file of one channel and 16 bits, of samples whose full scale is 1.
void writeRecording(const std::vector<Qvx32f>& samples, const std::string& path, int sampleRate,
                    const std::vector<std::string>& others);
