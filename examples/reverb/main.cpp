// reverb: a recording in a room, whose response is a file or noise that dies away, and the room's decay.
#include <cmath>
#include <cstdio>

#include "../support/arguments.h"
#include "../support/program.h"
#include "room.h"

namespace {

struct Options {
  std::string file;
  std::string output;
  std::string response;
  double seconds = 1.2;
  double wet = -9;
};

void declare(Arguments app, Options& options) {
  app.option("file", options.file, "The recording").required().existingFile();
  app.option("-o,--output", options.output, "The 16-bit WAV file to write").required();
  Option response = app.option("-r,--response", options.response, "The room's impulse response, a recording");
  response.existingFile();
  app.option("-s,--seconds", options.seconds, "Without one: how long the room takes to lose 60 dB")
      .range(0.01, 20.0)
      .excludes(response)
      .showDefault();
  app.option("-w,--wet", options.wet, "The level of the room beside the recording, in dB").range(-200.0, 100.0).showDefault();
}

void printDecay(const std::vector<Qvx32f>& response, int sampleRate) {
  constexpr int kTimes = 10;
  const std::vector<double> levels = decayOf(response, kTimes);
  std::printf("%10s %10s\n", "seconds", "dB");
  for (int i = 0; i < kTimes; ++i) {
    const double seconds = static_cast<double>(response.size()) * i / kTimes / sampleRate;
    std::printf("%10.3f %10.1f %s\n", seconds, levels[static_cast<size_t>(i)],
                std::string(static_cast<size_t>(std::max(0.0, 60 + levels[static_cast<size_t>(i)])), '*').c_str());
  }
}

int run(int argc, char** argv) {
  Arguments app("Plays a recording in a room: adds its convolution with the room's impulse response, block by block.");
  Options options;
  declare(app, options);
  app.parse(argc, argv);
  AudioReader reader(options.file);
  const int rate = reader.sampleRate();
  const std::vector<Qvx32f> response =
      options.response.empty() ? decayingNoise(options.seconds, rate) : readResponse(options.response, rate);
  std::vector<std::string> inputs = {options.file};
  if (!options.response.empty()) inputs.push_back(options.response);
  AudioWriter writer(options.output, SF_FORMAT_WAV | SF_FORMAT_PCM_16, reader.channels(), rate, inputs);

  Room room(response, reader.channels());
  const double wet = std::pow(10, options.wet / 20);
  std::vector<Qvx16s> block(static_cast<size_t>(kBlockFrames * reader.channels()));
  for (int frames; (frames = reader.readRounded(block.data())) > 0;) {
    room.play(block.data(), frames, wet);
    writer.write(block.data(), frames);
  }
  for (int left = room.tail(); left > 0; left -= kBlockFrames) {  // what rings on after the recording
    const int frames = std::min(left, kBlockFrames);
    std::fill(block.begin(), block.end(), Qvx16s{0});
    room.play(block.data(), frames, wet);
    writer.write(block.data(), frames);
  }
  printDecay(response, rate);
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("reverb", run, argc, argv); }
