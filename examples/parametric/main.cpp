// parametric: designs a low-pass or high-pass filter, prints and draws it, and filters an audio file.
#include <cstdio>

#include "../support/arguments.h"
#include "../support/program.h"
#include "filter.h"

namespace {

struct Options {
  Specification filter;
  std::string plot;
  std::string input;
  std::string output;
};

void declare(Arguments app, const char* name, bool isHighPass, Options& options) {
  Arguments command = app.command(name, isHighPass ? "A high-pass filter" : "A low-pass filter");
  command.option("-f,--frequency", options.filter.frequency, "The edge in Hz: 3 dB down, or the ripple").required();
  command.option("-n,--order", options.filter.order, "1 to 12").range(1, 12).showDefault();
  command.option("-r,--ripple", options.filter.ripple, "Ripple of the pass band in dB: Chebyshev; 0 is Butterworth")
      .range(0.0, 29.0)
      .showDefault();
  command.option("-s,--rate", options.filter.sampleRate, "Sampling rate in Hz").positive().showDefault();
  command.option("-p,--plot", options.plot, "Draw the response into this .png or .svg file, or with letters for -");
  Option input = command.option("file", options.input, "An audio file to filter").existingFile();
  Option output = command.option("-o,--output", options.output, "The 16-bit WAV file to write");
  input.needs(output);
  output.needs(input);
  command.whenGiven([&options, isHighPass] { options.filter.isHighPass = isHighPass; });
}

void print(const Filter& filter) {
  const Specification& s = filter.specification();
  const size_t order = static_cast<size_t>(s.order);
  std::printf("%3s %24s %24s\n", "k", "b[k]", "a[k]");
  for (size_t k = 0; k <= order; ++k) std::printf("%3zu %24.16e %24.16e\n", k, filter.taps()[k], filter.taps()[order + 1 + k]);
  std::printf("\n%10s %10s\n", "Hz", "dB");
  for (const double ratio : {0.25, 0.5, 1.0, 2.0, 4.0}) {
    const double frequency = s.frequency * ratio;
    if (frequency < s.sampleRate / 2) std::printf("%10g %10.2f\n", frequency, filter.gainDb(frequency));
  }
}

int run(int argc, char** argv) {
  Arguments app("Designs a low-pass or high-pass filter, prints its coefficients and response, and filters an audio file.");
  Options options;
  declare(app, "low", false, options);
  declare(app, "high", true, options);
  app.parse(argc, argv);
  const Filter filter(options.filter);
  print(filter);
  if (!options.plot.empty()) plot(filter, options.plot);
  if (!options.input.empty()) {
    const long long frames = filter.apply(options.input, options.output);
    std::printf("\n%lld frames to %s\n", frames, options.output.c_str());
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("parametric", run, argc, argv); }
