// g711: audio files to A-law or mu-law codes and back, and what that costs in signal-to-noise ratio.
#include <cmath>
#include <cstdio>
#include <map>

#include "../support/arguments.h"
#include "../support/program.h"
#include "codec.h"
#include "distortion.h"

namespace {

struct Options {
  std::string input;
  std::string output;
  std::string law = "a";
  bool raw = false;
  int sampleRate = 8000;
  int channels = 1;
  bool sine = false;
};

const std::map<std::string, const Law*> kLawNames = {{"a", &kALaw}, {"mu", &kMuLaw}};

Option addInput(Arguments command, Options& options, const char* what) {
  return command.option("file", options.input, what).existingFile();
}

Option addLaw(Arguments command, Options& options) {
  return command.option("-l,--law", options.law, "A-law or mu-law").oneOf(kLawNames).showDefault();
}

void declareEncode(Arguments app, Options& options) {
  Arguments command = app.command("encode", "Writes the codes of an audio file");
  addInput(command, options, "The audio file; rate and channels are kept").required();
  command.option("-o,--output", options.output, "The file of codes to write").required();
  addLaw(command, options);
  command.flag("-r,--raw", options.raw, "Write the codes alone, not a WAV file");
  command.whenGiven(
      [&] { encode(options.input, options.output, *kLawNames.at(options.law), options.raw ? SF_FORMAT_RAW : SF_FORMAT_WAV); });
}

void declareDecode(Arguments app, Options& options) {
  Arguments command = app.command("decode", "Writes the 16-bit WAV file that codes stand for");
  addInput(command, options, "An audio file that holds codes; with --raw, a file of codes alone").required();
  command.option("-o,--output", options.output, "The 16-bit WAV file to write").required();
  Option raw = command.flag("-r,--raw", options.raw, "The file holds codes alone: the next three say what they are");
  addLaw(command, options).needs(raw);
  command.option("--rate", options.sampleRate, "Sample rate").range(1, 655350).showDefault().needs(raw);
  command.option("--channels", options.channels, "Channels").range(1, 1024).showDefault().needs(raw);
  command.whenGiven([&] {
    AudioReader input = options.raw ? AudioReader(options.input, SF_FORMAT_RAW | kLawNames.at(options.law)->subtype,
                                                  options.channels, options.sampleRate)
                                    : AudioReader(options.input);
    decode(input, options.output);
  });
}

void printRow(const char* first, const Distortion& row) {
  const double level = std::round(row.levelDbfs() * 100) / 100 + 0.0;  // the sum of -0 and 0 is 0
  std::printf("%6s %10.2f", first, level);
  for (size_t law = 0; law < kLaws.size(); ++law) {
    std::printf(" %8.2f %8.2f", level + kLaws[law]->fullScaleDbm0, row.snrDb(law));
  }
  std::printf(" %8lld\n", static_cast<long long>(row.blocks));
}

void printTable(const DistortionByLevel& rows, bool withTotal) {
  std::printf("%17s", "");
  for (const Law* law : kLaws) std::printf(" %17s", law->name);
  std::printf("\n%6s %10s %8s %8s %8s %8s %8s\n", "dBFS", "mean dBFS", "dBm0", "SNR dB", "dBm0", "SNR dB", "blocks");
  Distortion total;
  for (const auto& [level, row] : rows) {
    printRow(std::to_string(level).c_str(), row);
    total.add(row);
  }
  if (withTotal) printRow("all", total);
}

void declareSnr(Arguments app, Options& options) {
  Arguments command = app.command("snr", "Prints signal-to-noise ratios after encoding and decoding, by input level");
  Arguments source = command.either("signal");
  addInput(source, options, "The audio file, by the levels of blocks of 20 ms");
  source.flag("-s,--sine", options.sine, "Sines of 1013 Hz at 8000 Hz, -60 to 0 dBFS");
  command.whenGiven([&] { printTable(options.sine ? distortionOfSines() : distortionOf(options.input), !options.sine); });
}

int run(int argc, char** argv) {
  Arguments app(
      "Encodes audio by G.711, decodes it, and tells the signal-to-noise ratio. 0 dBFS is a sine that reaches full scale.");
  Options options;
  declareEncode(app, options);
  declareDecode(app, options);
  declareSnr(app, options);
  app.parse(argc, argv);
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("g711", run, argc, argv); }
