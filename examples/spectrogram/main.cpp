// spectrogram: what an audio file holds from moment to moment, as a picture, as octave bands, or as the frequency of a tone.
#include <CLI/CLI.hpp>
#include <cstdio>

#include "../support/program.h"
#include "plot.h"
#include "tone.h"

namespace {

constexpr int kMostColumns = 1000;
constexpr int kMostRows = 400;

struct Options {
  std::string input;
  int len = 2400;
  int hop = 0;
};

void addTo(CLI::App& command, Options& options) {
  command.add_option("file", options.input, "The audio file; its channels are averaged")->required()->check(CLI::ExistingFile);
  command.add_option("-w,--window", options.len, "Frames of a window, any number")
      ->check(CLI::Range(1, 1 << 24))
      ->capture_default_str();
  command.add_option("--hop", options.hop, "Frames from one window to the next, half a window if not given")
      ->check(CLI::Range(1, 1 << 24));
}

Windows windowsOf(const Options& options) {
  return {options.input, options.len, options.hop > 0 ? options.hop : (options.len + 1) / 2};
}

void printBands(const Bands& bands) {
  std::printf("%8s", "s \\ Hz");
  for (const double centre : bands.centres) std::printf(" %7.*f", centre < 100 ? 1 : 0, centre);
  std::printf("\n");
  for (const Bands::Row& row : bands.rows) {
    std::printf("%8.2f", row.time);
    for (const double level : row.levels) std::printf(" %7.1f", level);
    std::printf("\n");
  }
}

int run(int argc, char** argv) {
  CLI::App app("Shows what an audio file holds from moment to moment. 0 dBFS is a sine that reaches full scale.");
  app.require_subcommand(1);
  Options options;
  std::string picture;
  double range = 90;
  double seconds = 1;
  CLI::App* draw = app.add_subcommand("draw", "Level by time and frequency, as a picture");
  addTo(*draw, options);
  draw->add_option("-o,--output", picture, "The picture, .png or .svg (by gnuplot)")->required();
  draw->add_option("-r,--range", range, "Decibels below the loudest that have colours")
      ->check(CLI::Range(1, 300))
      ->capture_default_str();
  CLI::App* bands = app.add_subcommand("bands", "Level by time in octaves, as a table");
  addTo(*bands, options);
  bands->add_option("-e,--every", seconds, "Seconds from row to row")->check(CLI::Range(0.001, 3600.0))->capture_default_str();
  CLI::App* tone = app.add_subcommand("tone", "Frequency and level of a tone by time");
  addTo(*tone, options);
  CLI11_PARSE(app, argc, argv);

  Windows windows = windowsOf(options);
  if (draw->parsed()) {
    plot(spectrogramOf(windows, kMostColumns, kMostRows), range, options.input, picture);
  } else if (bands->parsed()) {
    printBands(bandsOf(windows, seconds));
  } else {
    std::printf("%10s %10s %8s\n", "s", "Hz", "dBFS");
    for (const Moment& m : momentsOf(windows)) std::printf("%10.4f %10.3f %8.2f\n", m.time, m.hz, m.dbfs);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("spectrogram", run, argc, argv); }
