// spectrum: the strongest frequencies of an audio file, and a picture of its power spectrum.
#include <cstdio>

#include "../support/arguments.h"
#include "../support/program.h"
#include "plot.h"

namespace {

int run(int argc, char** argv) {
  Arguments app(
      "Averages the power spectra of an audio file and prints its strongest peaks. 0 dBFS is a sine that reaches full scale.");
  std::string input;
  std::string picture;
  int order = 13;
  size_t count = 8;
  app.option("file", input, "The audio file; the spectra of its channels are averaged").required().existingFile();
  app.option("-o,--output", picture, "Draw the spectrum into this file, .png or .svg (by gnuplot)");
  app.option("-n,--order", order, "Blocks of 2^order frames").range(4, 20).showDefault();
  app.option("-p,--peaks", count, "Peaks to print").range(1, 1000).showDefault();
  app.parse(argc, argv);

  const Spectrum spectrum = spectrumOf(input, order);
  const std::vector<Peak> peaks = peaksOf(spectrum, count);
  if (!picture.empty()) plot(spectrum, peaks, input, picture);
  std::printf("%10s %9s  of %lld blocks, %.2f Hz a bin\n", "Hz", "dBFS", static_cast<long long>(spectrum.blocks), spectrum.binHz);
  for (const Peak& peak : peaks) std::printf("%10.2f %9.2f\n", peak.hz, peak.dbfs);
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("spectrum", run, argc, argv); }
