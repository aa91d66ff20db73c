// signals: writes test signals and measures them, and tells the properties of windows.
#include <CLI/CLI.hpp>
#include <cstdio>

#include "../support/program.h"
#include "generator.h"
#include "measure.h"
#include "windows.h"

namespace {

std::vector<std::string> windowNames() {
  std::vector<std::string> names;
  for (const Window& window : windows()) names.emplace_back(window.name);
  return names;
}

void print(const Measured& m) {
  std::printf("rms %.2f dB, peak %.2f dB\n", m.rms, m.peak);
  if (!m.isTonal) return;
  std::printf("frequency %.4f Hz, harmonics %.1f dB, noise and harmonics %.1f dB\n", m.frequency, m.distortion, m.noise);
  for (size_t i = 0; i < m.harmonics.size(); ++i) std::printf("  %zu. %.1f dB\n", i + 2, m.harmonics[i]);
}

void printWindows() {
  std::printf("%-17s %6s %9s %7s %7s %9s %10s\n", "", "gain", "noise", "-3 dB", "-6 dB", "side lobe", "scalloping");
  for (const Window& window : windows()) {
    const Properties p = propertiesOf(window);
    std::printf("%-17s %6.3f %9.3f %7.3f %7.3f %9.2f %10.3f\n", window.name, p.gain, p.noiseBandwidth, p.width3, p.width6,
                p.sideLobe, p.scalloping);
  }
}

int run(int argc, char** argv) {
  CLI::App app("Writes test signals into 16-bit WAV files and measures them; tells the properties of windows.");
  app.require_subcommand(1);
  Signal signal;
  std::string output, input, picture;
  std::string window = "kaiser-4pi";

  CLI::App* make = app.add_subcommand("make", "Writes a signal, then measures what it wrote");
  make->add_option("shape", signal.shape, "tone, triangle, sweep, uniform or gauss")
      ->required()
      ->check(CLI::IsMember({"tone", "triangle", "sweep", "uniform", "gauss"}));
  make->add_option("-o,--output", output, "The 16-bit WAV file to write")->required();
  make->add_option("-f,--frequency", signal.frequency, "Hz; where a sweep begins")
      ->check(CLI::PositiveNumber)
      ->capture_default_str();
  make->add_option("-t,--to", signal.last, "Hz, where a sweep ends")->check(CLI::PositiveNumber)->capture_default_str();
  make->add_option("-l,--level", signal.level, "Of the peak, dB below full scale; of gauss, of the standard deviation")
      ->check(CLI::Range(-80.0, 0.0))
      ->capture_default_str();
  make->add_option("-a,--asymmetry", signal.asymmetry, "Of a triangle: from -1, a sawtooth that rises, to 1, one that falls")
      ->check(CLI::Range(-1.0, 1.0))
      ->capture_default_str();
  make->add_option("-s,--seconds", signal.seconds, "Length")->check(CLI::Range(0.0, 3600.0))->capture_default_str();
  make->add_option("-r,--rate", signal.rate, "Sampling rate in Hz")->check(CLI::Range(1000, 384000))->capture_default_str();
  make->add_option("--seed", signal.seed, "Of noise")->capture_default_str();

  CLI::App* measured = app.add_subcommand("measure", "Measures a recording");
  measured->add_option("file", input, "The audio file; its first channel")->required()->check(CLI::ExistingFile);
  for (CLI::App* command : {make, measured})
    command->add_option("-w,--window", window, "The window to measure with")
        ->check(CLI::IsMember(windowNames()))
        ->capture_default_str();

  CLI::App* table = app.add_subcommand("windows", "Prints the properties of the windows, in bins and dB");
  table->add_option("-p,--plot", picture, "Draw their spectra into this .png or .svg file, or with letters for -");
  CLI11_PARSE(app, argc, argv);

  if (table->parsed()) {
    printWindows();
    if (!picture.empty()) plotWindows(picture);
    return 0;
  }
  if (make->parsed()) {
    if (2 * std::max(signal.frequency, signal.shape == "sweep" ? signal.last : 0) >= signal.rate)
      throw std::runtime_error("frequencies have to be below half the sampling rate");
    writeSignal(signal, output);
  }
  print(measure(make->parsed() ? output : input, windowOf(window)));
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("signals", run, argc, argv); }
