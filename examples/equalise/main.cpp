// equalise: an audio file through a filter of given taps, block by block, and what the size of the blocks changes: nothing.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <numeric>

#include "../support/arguments.h"
#include "../support/program.h"
#include "equaliser.h"

namespace {

struct Options {
  std::string file;
  std::string taps;
  std::string output;
  int block = kBlockFrames;
  std::vector<int> others = {1, 64, 1000};
};

void declare(Arguments app, Options& options) {
  app.option("file", options.file, "The audio file").required().existingFile();
  app.option("-t,--taps", options.taps, "A text file of the filter's taps, # begins a comment").required().existingFile();
  app.option("-o,--output", options.output, "The 16-bit WAV file to write").required();
  app.option("-b,--block", options.block, "Samples that a channel is filtered at a time").range(1, kBlockFrames).showDefault();
  app.option("-c,--compare", options.others, "Other sizes, whose results are compared with the first")
      .range(1, kBlockFrames)
      .showDefault();
}

// A filter that gets blocks of another size, and the largest difference of its results from the first one's.
struct Other {
  Equaliser equaliser;
  double most = 0;
  int64_t differing = 0;  // 16-bit samples

  void compare(const Equaliser& first, const Qvx16s* firstResult, const Qvx16s* src, Qvx16s* result, int frames, int samples) {
    equaliser.filter(src, frames);
    equaliser.result(result, frames);
    most = std::max(most, equaliser.distance(first, frames));
    differing += std::inner_product(result, result + samples, firstResult, int64_t{0}, std::plus<>(), std::not_equal_to<>());
  }
};

int run(int argc, char** argv) {
  Arguments app("Filters an audio file by given taps, as a stream of blocks, and compares blocks of other sizes.");
  Options options;
  declare(app, options);
  app.parse(argc, argv);
  const std::vector<Qvx32f> taps = readTaps(options.taps);
  AudioReader reader(options.file);
  const int channels = reader.channels();
  AudioWriter writer(options.output, SF_FORMAT_WAV | SF_FORMAT_PCM_16, channels, reader.sampleRate(),
                     {options.file, options.taps});
  Equaliser equaliser(taps, channels, options.block);
  std::vector<Other> others;
  for (const int block : options.others) others.push_back({Equaliser(taps, channels, block)});

  const int most = kBlockFrames * channels;
  const Vector<Qvx16s> in = vector(qvxsMalloc_16s(most));
  const Vector<Qvx16s> out = vector(qvxsMalloc_16s(most));
  const Vector<Qvx16s> otherOut = vector(qvxsMalloc_16s(most));
  for (int frames; (frames = reader.readRounded(in.get())) > 0;) {
    equaliser.filter(in.get(), frames);
    equaliser.result(out.get(), frames);
    writer.write(out.get(), frames);
    for (Other& other : others) other.compare(equaliser, out.get(), in.get(), otherOut.get(), frames, frames * channels);
  }

  std::printf("%zu taps, blocks of %d, beside others:\n%8s %20s %18s\n", taps.size(), options.block, "block", "most apart, dBFS",
              "16-bit differing");
  for (const Other& other : others) {
    std::printf("%8d %20.1f %18lld\n", other.equaliser.block(), 20 * std::log10(other.most),
                static_cast<long long>(other.differing));
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("equalise", run, argc, argv); }
