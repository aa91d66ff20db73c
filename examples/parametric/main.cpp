// parametric: designs a low-pass or high-pass filter, prints and draws it, and filters an audio file.
#include <CLI/CLI.hpp>
#include <cstdio>

#include "../support/program.h"
#include "filter.h"

namespace {

struct Options {
  Specification filter;
  std::string plot;
  std::string input;
  std::string output;
};

void declare(CLI::App& app, const char* name, bool isHighPass, Options& options) {
  CLI::App* command = app.add_subcommand(name, isHighPass ? "A high-pass filter" : "A low-pass filter");
  command->add_option("-f,--frequency", options.filter.frequency, "The edge in Hz: 3 dB down, or the ripple")->required();
  command->add_option("-n,--order", options.filter.order, "1 to 12")->capture_default_str();
  command->add_option("-r,--ripple", options.filter.ripple, "Ripple of the pass band in dB: Chebyshev; 0 is Butterworth")
      ->check(CLI::NonNegativeNumber)
      ->capture_default_str();
  command->add_option("-s,--rate", options.filter.sampleRate, "Sampling rate in Hz")
      ->check(CLI::PositiveNumber)
      ->capture_default_str();
  command->add_option("-p,--plot", options.plot, "Draw the response into this .png or .svg file, or with letters for -");
  CLI::Option* input = command->add_option("file", options.input, "An audio file to filter")->check(CLI::ExistingFile);
  CLI::Option* output = command->add_option("-o,--output", options.output, "The 16-bit WAV file to write");
  input->needs(output);
  output->needs(input);
  command->callback([&options, isHighPass] { options.filter.isHighPass = isHighPass; });
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
  CLI::App app("Designs a low-pass or high-pass filter, prints its coefficients and response, and filters an audio file.");
  app.require_subcommand(1);
  Options options;
  declare(app, "low", false, options);
  declare(app, "high", true, options);
  CLI11_PARSE(app, argc, argv);
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
