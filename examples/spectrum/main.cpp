// spectrum: the strongest frequencies of an audio file, and a picture of its power spectrum.
#include <CLI/CLI.hpp>
#include <cstdio>

#include "../support/program.h"
#include "plot.h"

namespace {

int run(int argc, char** argv) {
  CLI::App app(
      "Averages the power spectra of an audio file and prints its strongest peaks. 0 dBFS is a sine that reaches full scale.");
  std::string input;
  std::string picture;
  int order = 13;
  size_t count = 8;
  app.add_option("file", input, "The audio file; the spectra of its channels are averaged")->required()->check(CLI::ExistingFile);
  app.add_option("-o,--output", picture, "Draw the spectrum into this file, .png or .svg (by gnuplot)");
  app.add_option("-n,--order", order, "Blocks of 2^order frames")->check(CLI::Range(4, 20))->capture_default_str();
  app.add_option("-p,--peaks", count, "Peaks to print")->check(CLI::Range(1, 1000))->capture_default_str();
  CLI11_PARSE(app, argc, argv);

  const Spectrum spectrum = spectrumOf(input, order);
  const std::vector<Peak> peaks = peaksOf(spectrum, count);
  if (!picture.empty()) plot(spectrum, peaks, input, picture);
  std::printf("%10s %9s  of %lld blocks, %.2f Hz a bin\n", "Hz", "dBFS", static_cast<long long>(spectrum.blocks), spectrum.binHz);
  for (const Peak& peak : peaks) std::printf("%10.2f %9.2f\n", peak.hz, peak.dbfs);
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("spectrum", run, argc, argv); }
