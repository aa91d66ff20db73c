// spectrogram: what an audio file holds from moment to moment, as a picture, as octave bands, or as the frequency of a tone.
#include <cstdio>

#include "../support/arguments.h"
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

void addTo(Arguments command, Options& options) {
  command.option("file", options.input, "The audio file; its channels are averaged").required().existingFile();
  command.option("-w,--window", options.len, "Frames of a window, any number").range(1, 1 << 24).showDefault();
  command.option("--hop", options.hop, "Frames from one window to the next, half a window if not given").range(1, 1 << 24);
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
  Arguments app("Shows what an audio file holds from moment to moment. 0 dBFS is a sine that reaches full scale.");
  Options options;
  std::string picture;
  double range = 90;
  double seconds = 1;
  Arguments draw = app.command("draw", "Level by time and frequency, as a picture");
  addTo(draw, options);
  draw.option("-o,--output", picture, "The picture, .png or .svg (by gnuplot)").required();
  draw.option("-r,--range", range, "Decibels below the loudest that have colours").range(1, 300).showDefault();
  Arguments bands = app.command("bands", "Level by time in octaves, as a table");
  addTo(bands, options);
  bands.option("-e,--every", seconds, "Seconds from row to row").range(0.001, 3600.0).showDefault();
  Arguments tone = app.command("tone", "Frequency and level of a tone by time");
  addTo(tone, options);
  app.parse(argc, argv);

  Windows windows = windowsOf(options);
  if (draw.isGiven()) {
    plot(spectrogramOf(windows, kMostColumns, kMostRows), range, options.input, picture);
  } else if (bands.isGiven()) {
    printBands(bandsOf(windows, seconds));
  } else {
    std::printf("%10s %10s %8s\n", "s", "Hz", "dBFS");
    for (const Moment& m : momentsOf(windows)) std::printf("%10.4f %10.3f %8.2f\n", m.time, m.hz, m.dbfs);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("spectrogram", run, argc, argv); }
