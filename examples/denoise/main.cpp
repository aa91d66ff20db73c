// denoise: removes white noise from a recording by thresholds on its wavelet coefficients.
#include <cmath>
#include <cstdio>

#include "../support/arguments.h"
#include "../support/audio.h"
#include "../support/program.h"
#include "denoiser.h"

namespace {

int run(int argc, char** argv) {
  Arguments app("Removes white noise from the first channel of a recording.");
  std::string input, output, noisyOutput;
  int levels = 5;
  double strength = 0.3, level = 0;
  app.option("recording", input, "An audio file").required().existingFile();
  app.option("-o,--output", output, "The 16-bit WAV file to write").required();
  app.option("--levels", levels, "Levels of the decomposition").range(1, 12).showDefault();
  app.option("--strength", strength, "The threshold, relative to the largest noise to be expected")
      .range(0.0, 100.0)
      .showDefault();
  Option added = app.option("--add-noise", level, "Add noise of this level in dBFS, and print what is gained");
  added.range(-200.0, 0.0);
  app.option("--noisy", noisyOutput, "Write the recording with that noise, too").needs(added);
  app.parse(argc, argv);

  AudioReader in(input);
  const std::vector<float> clean = readFirstChannel(in);
  std::vector<float> noisy = clean;
  if (added.isGiven()) {
    const std::vector<float> all = noise(clean.size(), std::pow(10, level / 20), 1);
    check(qvxsAdd_32f_I(all.data(), noisy.data(), static_cast<int>(noisy.size())));
    if (!noisyOutput.empty()) writeRecording(noisy, noisyOutput, in.sampleRate(), {input, output});
  }
  const Denoised result = denoised(noisy, levels, strength, in.sampleRate());
  writeRecording(result.samples, output, in.sampleRate(), {input});

  std::printf("%10s %12s %9s\n", "from Hz", "threshold dB", "kept %");
  for (const Level& l : result.levels)
    std::printf("%10.0f %12.1f %9.2f\n", l.hertz, 20 * std::log10(std::max(l.threshold, 1e-10)), 100 * l.kept);
  if (added.isGiven()) {
    const double before = signalToNoise(clean, noisy), after = signalToNoise(clean, result.samples);
    std::printf("signal-to-noise ratio %.2f dB before, %.2f dB after, gain %.2f dB\n", before, after, after - before);
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) { return runProgram("denoise", run, argc, argv); }
