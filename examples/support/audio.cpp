#include "audio.h"

#include <filesystem>
#include <stdexcept>

namespace {

// The sizes in a WAV file have 32 bits, and the headers are far below 1 KiB.
constexpr int64_t kWavBytes = UINT32_MAX - 1024;

const std::string& other(const std::string& path, const std::vector<std::string>& inputs) {
  for (const std::string& input : inputs) {
    std::error_code missing;  // the usual case: there is no output yet
    if (std::filesystem::equivalent(path, input, missing)) throw std::runtime_error(path + ": is a file to read as well");
  }
  return path;
}

}  // namespace

void check(QvxStatus status) {
  if (status != qvxStatOk) throw std::logic_error("qvxs refused a call with status " + std::to_string(status));
}

AudioReader::AudioReader(const std::string& path, int format, int channels, int sampleRate)
    : path_(path), file_(path, SFM_READ, format, channels, sampleRate) {
  got(0);
}

int AudioReader::got(sf_count_t frames) const {
  if (file_.error() != SF_ERR_NO_ERROR) throw std::runtime_error(path_ + ": " + file_.strError());
  return static_cast<int>(frames);
}

AudioWriter::AudioWriter(const std::string& path, int format, int channels, int sampleRate,
                         const std::vector<std::string>& inputs)
    : path_(path), file_(other(path, inputs), SFM_WRITE, format, channels, sampleRate) {
  verify(file_.error() == SF_ERR_NO_ERROR);
}

void AudioWriter::write(const Qvx16s* samples, int frames) {
  count(frames, 2);
  verify(file_.writef(samples, frames) == frames);
}

void AudioWriter::write(const Qvx32f* samples, int frames) {
  count(frames, 4);
  verify(file_.writef(samples, frames) == frames);
}

void AudioWriter::writeBytes(const Qvx8u* codes, int frames) {
  count(frames, 1);
  const int64_t len = int64_t{frames} * file_.channels();
  verify(file_.writeRaw(codes, len) == len);
}

void AudioWriter::count(int frames, int sampleBytes) {
  bytes_ += int64_t{frames} * file_.channels() * sampleBytes;
  if ((file_.format() & SF_FORMAT_TYPEMASK) == SF_FORMAT_WAV && bytes_ > kWavBytes) {
    throw std::runtime_error(path_ + ": a WAV file holds no more than 4 GiB");
  }
}

void AudioWriter::verify(bool written) const {
  if (!written) throw std::runtime_error(path_ + ": " + file_.strError());
}
