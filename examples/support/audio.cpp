#include "audio.h"

#include <filesystem>

namespace {

// The sizes in a WAV file have 32 bits, and the headers are far below 1 KiB.
constexpr int64_t kWavBytes = UINT32_MAX - 1024;
constexpr size_t kMostFrames = size_t{1} << 27;

// Files that are not there yet are one if their paths are.
bool areOne(const std::string& path, const std::string& other) {
  namespace fs = std::filesystem;
  std::error_code none;
  return fs::equivalent(path, other, none) ||
         fs::absolute(path, none).lexically_normal() == fs::absolute(other, none).lexically_normal();
}

const std::string& apart(const std::string& path, const std::vector<std::string>& others) {
  for (const std::string& other : others) {
    if (areOne(path, other)) throw std::runtime_error(path + ": is named for another file as well");
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

int AudioReader::readRounded(Qvx16s* dst) {
  floats_.resize(size_t{kBlockFrames} * static_cast<size_t>(channels()));
  const int frames = read(floats_.data());
  if (frames > 0) check(qvxsConvert_32f16s_Sfs(floats_.data(), dst, frames * channels(), qvxRoundNearestEven, -15));
  return frames;
}

std::vector<Qvx32f> readFirstChannel(AudioReader& in) {
  const auto channels = static_cast<size_t>(in.channels());
  std::vector<Qvx32f> frames(kBlockFrames * channels), all;
  for (int n; (n = in.read(frames.data())) > 0;) {
    for (size_t i = 0; i < static_cast<size_t>(n); ++i) all.push_back(frames[i * channels]);
    if (all.size() > kMostFrames) throw std::runtime_error(in.path() + ": is too long");
  }
  if (all.empty()) throw std::runtime_error(in.path() + ": holds no samples");
  return all;
}

AudioWriter::AudioWriter(const std::string& path, int format, int channels, int sampleRate,
                         const std::vector<std::string>& others)
    : path_(path), file_(apart(path, others), SFM_WRITE, format, channels, sampleRate) {
  verify(file_.error() == SF_ERR_NO_ERROR);
}

AudioWriter::~AudioWriter() {
  std::error_code gone;  // pipes and devices stay
  if (std::uncaught_exceptions() > exceptions_ && std::filesystem::is_regular_file(path_, gone))
    std::filesystem::remove(path_, gone);
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

void writeRecording(const std::vector<Qvx32f>& samples, const std::string& path, int sampleRate,
                    const std::vector<std::string>& others) {
  AudioWriter out(path, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, sampleRate, others);
  std::vector<Qvx16s> block(kBlockFrames);
  for (size_t at = 0; at < samples.size(); at += kBlockFrames) {
    const int n = static_cast<int>(std::min<size_t>(kBlockFrames, samples.size() - at));
    check(qvxsConvert_32f16s_Sfs(samples.data() + at, block.data(), n, qvxRoundNearestEven, -15));
    out.write(block.data(), n);
  }
}
