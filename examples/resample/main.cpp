// resample: an audio file at another sampling rate, by a filter designed for it, and how good and fast that is.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <random>

#include "../support/arguments.h"
#include "../support/program.h"
#include "peers.h"
#include "resampler.h"

namespace {

struct Options {
  std::string file;
  std::string output;
  int rate = 48000;
  int level = 100;
  bool compares = false;
};

void declare(Arguments app, Options& options) {
  app.option("file", options.file, "The audio file").required().existingFile();
  app.option("-r,--rate", options.rate, "The rate to convert to, in Hz").range(1000, 1000000).showDefault();
  app.option("-l,--level", options.level, "Rejection of images and aliases in dB: 60, 100 or 140").showDefault();
  app.option("-o,--output", options.output, "The WAV file to write, of 32-bit floats").required();
  app.flag("-c,--compare", options.compares, "Measures all levels beside libsamplerate and soxr");
}

// The channels of a file through a filter each, in blocks.
class Conversion {
 public:
  Conversion(const Design& design, bool isWide, int channels)
      : design_(design), channels_(static_cast<size_t>(channels)), skip_(design.delay()) {
    for (int c = 0; c < channels; ++c) filters_.emplace_back(design, isWide);
  }

  // Interleaved frames; those that make up no group wait for the next call. The result: interleaved, without the filter's delay.
  const std::vector<Qvx32f>& convert(const Qvx32f* src, int frames) {
    waiting_.insert(waiting_.end(), src, src + static_cast<size_t>(frames) * channels_);
    const auto down = static_cast<size_t>(design_.down);
    const auto up = static_cast<size_t>(design_.up);
    const size_t groups = waiting_.size() / channels_ / down;
    result_.assign(groups * up * channels_, 0);
    in_.resize(groups * down);
    out_.resize(groups * up);
    for (size_t c = 0; c < channels_ && groups > 0; ++c) {
      for (size_t i = 0; i < in_.size(); ++i) in_[i] = waiting_[i * channels_ + c];
      filters_[c].convert(in_.data(), out_.data(), static_cast<int>(groups));
      for (size_t i = 0; i < out_.size(); ++i) result_[i * channels_ + c] = out_[i];
    }
    waiting_.erase(waiting_.begin(), waiting_.begin() + static_cast<ptrdiff_t>(groups * down * channels_));
    const auto early = static_cast<size_t>(std::min<int64_t>(skip_, static_cast<int64_t>(groups * up)));
    skip_ -= static_cast<int64_t>(early);
    result_.erase(result_.begin(), result_.begin() + static_cast<ptrdiff_t>(early * channels_));
    return result_;
  }

 private:
  const Design& design_;
  size_t channels_;
  int64_t skip_;  // results that come before the first sample
  std::vector<Resampler> filters_;
  std::vector<Qvx32f> waiting_;
  std::vector<Qvx32f> in_;
  std::vector<Qvx32f> out_;
  std::vector<Qvx32f> result_;
};

int64_t convertFile(AudioReader& reader, AudioWriter& writer, const Design& design, bool isWide) {
  const int channels = reader.channels();
  Conversion conversion(design, isWide, channels);
  std::vector<Qvx32f> block(static_cast<size_t>(kBlockFrames) * static_cast<size_t>(channels));
  int64_t read = 0;
  int64_t written = 0;
  int64_t wanted = 0;
  const auto write = [&](int frames) {
    const std::vector<Qvx32f>& result = conversion.convert(block.data(), frames);
    const auto count = std::min<int64_t>(wanted - written, static_cast<int64_t>(result.size()) / channels);
    writer.write(result.data(), static_cast<int>(count));
    written += count;
  };
  for (int frames; (frames = reader.read(block.data())) > 0;) {
    read += frames;
    wanted = (read * design.up + design.down - 1) / design.down;
    write(frames);
  }
  std::fill(block.begin(), block.end(), 0.0F);
  while (written < wanted) write(kBlockFrames);
  return written;
}

// The least time of some runs over ten seconds of noise, for a sample of the result, in ns.
double nanoseconds(const Converter& convert, int from) {
  std::mt19937 random(1);
  std::uniform_real_distribution<Qvx32f> uniform(-0.5F, 0.5F);
  std::vector<Qvx32f> noise(static_cast<size_t>(from) * 10);
  for (Qvx32f& x : noise) x = uniform(random);
  double least = 1e9;
  for (int i = 0; i < 5; ++i) {
    const auto start = std::chrono::steady_clock::now();
    const size_t count = convert(noise).size();
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    least = std::min(least, taken.count() / static_cast<double>(count));
  }
  return least;
}

void printHead() { std::printf("%-22s %9s %11s %13s", "", "pass band", "ripple, dB", "rejection, dB"); }
void print(const std::string& name, double passBand, const Quality& quality) {
  std::printf("%-22s %9.2f %11.5f %13.1f", name.c_str(), passBand, quality.ripple, quality.rejection);
}

void compare(int from, int to) {
  printHead();
  std::printf(" %13s\n", "ns a sample");
  const auto line = [&](const std::string& name, double passBand, const Converter& convert) {
    print(name, passBand, measured(convert, from, to, passBand));
    std::printf(" %13.2f\n", nanoseconds(convert, from));
  };
  for (const Level& level : kLevels) {
    const Design design(from, to, level);
    line("level " + std::to_string(level.rejection), level.passBand,
         [&](const auto& x) { return resampled(x, design, level.isWide); });
  }
  for (const Peer& peer : peers(from, to)) line(peer.name, peer.passBand, peer.convert);
}

int run(int argc, char** argv) {
  Arguments app("Converts an audio file to another sampling rate, and measures the filter that does it.");
  Options options;
  declare(app, options);
  app.parse(argc, argv);
  const Level& level = levelOf(options.level);
  AudioReader reader(options.file);
  const Design design(reader.sampleRate(), options.rate, level);
  AudioWriter writer(options.output, SF_FORMAT_WAV | SF_FORMAT_FLOAT, reader.channels(), options.rate, {options.file});
  const int64_t frames = convertFile(reader, writer, design, level.isWide);
  std::printf("%d to %d Hz is %d to %d: %zu taps, %lld frames\n", design.from, design.to, design.down, design.up,
              design.taps.size(), static_cast<long long>(frames));
  if (options.compares) {
    compare(design.from, design.to);
  } else {
    printHead();
    std::printf("\n");
    const auto convert = [&](const auto& x) { return resampled(x, design, level.isWide); };
    print("level " + std::to_string(level.rejection), level.passBand, measured(convert, design.from, design.to, level.passBand));
    std::printf("\n");
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("resample", run, argc, argv); }
