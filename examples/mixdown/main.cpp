// mixdown: audio files in, their sum as a 16-bit WAV file out, and a table of levels.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <stdexcept>

#include "../support/arguments.h"
#include "../support/program.h"
#include "mixer.h"

namespace {

struct Options {
  std::vector<std::string> files;
  std::vector<double> gainsDb;
  std::string output;
  std::string rounding = "nearest";
};

const std::map<std::string, QvxRoundMode> kRoundModes = {
    {"nearest", qvxRoundNearestEven}, {"zero", qvxRoundTowardZero}, {"away", qvxRoundHalfAway}};

void declare(Arguments app, Options& options) {
  app.option("files", options.files, "Audio files of one sample rate; mono files go to all channels of the mix")
      .required()
      .existingFile();
  app.option("-g,--gain", options.gainsDb, "Gain in dB, once for each file in their order; 0 for files without one")
      .repeated()
      .range(-200.0, 100.0);
  app.option("-o,--output", options.output, "The 16-bit WAV file to write").required();
  app.option("-r,--round", options.rounding, "To nearest with ties to even, toward zero, or to nearest with ties away from zero")
      .oneOf(kRoundModes)
      .showDefault();
}

std::vector<Track> open(const Options& options) {
  if (options.gainsDb.size() > options.files.size()) throw std::runtime_error("there are more gains than files");
  std::vector<Track> tracks;
  for (size_t i = 0; i < options.files.size(); ++i) {
    tracks.emplace_back(options.files[i], i < options.gainsDb.size() ? options.gainsDb[i] : 0.0);
  }
  return tracks;
}

// A minute is mixed in less time than it takes to look at a bar.
bool wantsProgress(const MixFormat& format) {
  return format.frames > 60 * int64_t{format.sampleRate} && format.frames < SF_COUNT_MAX && isatty(STDERR_FILENO) != 0;
}

void showProgress(int64_t done, int64_t all) {
  constexpr int kWidth = 50;
  const auto filled = static_cast<int>(std::min(done, all) * kWidth / all);
  std::fprintf(stderr, "\r[%-*s] %3d %%%s", kWidth, std::string(filled, '#').c_str(), filled * 100 / kWidth,
               done >= all ? "\n" : "");
}

void printRow(const char* gain, const Level& level, const std::string& path) {
  std::printf("%8s %10.2f %9.2f %9lld  %s\n", gain, level.peakDb(), level.rmsDb(), static_cast<long long>(level.clipped),
              path.c_str());
}

void printTable(const std::vector<Track>& tracks, const std::string& output, const Level& level) {
  std::printf("%8s %10s %9s %9s  %s\n", "gain dB", "peak dBFS", "RMS dBFS", "clipped", "file");
  for (const Track& track : tracks) {
    char gain[16];
    std::snprintf(gain, sizeof(gain), "%.2f", track.gainDb());
    printRow(gain, track.level(), track.path());
  }
  printRow("", level, output);
}

int run(int argc, char** argv) {
  Arguments app("Mixes audio files into one: gain, sum, saturation to 16 bits, and a table of the levels.");
  Options options;
  declare(app, options);
  app.parse(argc, argv);
  std::vector<Track> tracks = open(options);
  const MixFormat format = commonFormat(tracks);
  std::function<void(int64_t)> progress = [](int64_t) {};
  if (wantsProgress(format)) progress = [all = format.frames](int64_t done) { showProgress(done, all); };
  const Level level = mix(tracks, format, options.output, kRoundModes.at(options.rounding), progress);
  printTable(tracks, options.output, level);
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("mixdown", run, argc, argv); }
