// signals: writes test signals and measures them, and tells the properties of windows.
#include <cstdio>

#include "../support/arguments.h"
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
  Arguments app("Writes test signals into 16-bit WAV files and measures them; tells the properties of windows.");
  Signal signal;
  std::string output, input, picture;
  std::string window = "kaiser-4pi";

  Arguments make = app.command("make", "Writes a signal, then measures what it wrote");
  make.option("shape", signal.shape, "tone, triangle, sweep, uniform or gauss")
      .required()
      .oneOf({"tone", "triangle", "sweep", "uniform", "gauss"});
  make.option("-o,--output", output, "The 16-bit WAV file to write").required();
  make.option("-f,--frequency", signal.frequency, "Hz; where a sweep begins").positive().showDefault();
  make.option("-t,--to", signal.last, "Hz, where a sweep ends").positive().showDefault();
  make.option("-l,--level", signal.level, "Of the peak in dBFS; of gauss, of the standard deviation")
      .range(-80.0, 0.0)
      .showDefault();
  make.option("-a,--asymmetry", signal.asymmetry, "Of a triangle: from -1, a sawtooth that rises, to 1, one that falls")
      .range(-1.0, 1.0)
      .showDefault();
  make.option("-s,--seconds", signal.seconds, "Length").range(0.0, 3600.0).showDefault();
  make.option("-r,--rate", signal.rate, "Sampling rate in Hz").range(1000, 384000).showDefault();
  make.option("--seed", signal.seed, "Of noise").showDefault();

  Arguments measured = app.command("measure", "Measures a recording");
  measured.option("file", input, "The audio file; its first channel").required().existingFile();
  for (Arguments command : {make, measured})
    command.option("-w,--window", window, "The window to measure with").oneOf(windowNames()).showDefault();

  Arguments table = app.command("windows", "Prints the properties of the windows, in bins and dB");
  table.option("-p,--plot", picture, "Draw their spectra into this .png or .svg file, or with letters for -");
  app.parse(argc, argv);

  if (table.isGiven()) {
    printWindows();
    if (!picture.empty()) plotWindows(picture);
    return 0;
  }
  if (make.isGiven()) {
    if (2 * std::max(signal.frequency, signal.shape == "sweep" ? signal.last : 0) >= signal.rate)
      throw std::runtime_error("frequencies have to be below half the sampling rate");
    writeSignal(signal, output);
  }
  print(measure(make.isGiven() ? output : input, windowOf(window)));
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("signals", run, argc, argv); }
