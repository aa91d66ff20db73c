// denoise: removes white noise from a recording by thresholds on its wavelet coefficients.
#include <cmath>
#include <cstdio>
#include <stdexcept>

#include "../support/arguments.h"
#include "../support/audio.h"
#include "../support/program.h"
#include "denoiser.h"

namespace {

constexpr int64_t kMostFrames = int64_t{1} << 27;  // 45 minutes at 48 kHz: all of them are in memory

std::vector<float> firstChannel(AudioReader& in) {
  const auto channels = static_cast<size_t>(in.channels());
  std::vector<float> frames(kBlockFrames * channels), x;
  for (int n; (n = in.read(frames.data())) > 0;) {
    for (size_t i = 0; i < static_cast<size_t>(n); ++i) x.push_back(frames[i * channels]);
    if (static_cast<int64_t>(x.size()) > kMostFrames) throw std::runtime_error(in.path() + ": is too long");
  }
  if (x.empty()) throw std::runtime_error(in.path() + ": has no samples");
  return x;
}

void write(const std::vector<float>& x, const std::string& path, int sampleRate, const std::string& input) {
  AudioWriter out(path, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, sampleRate, {input});
  std::vector<Qvx16s> samples(kBlockFrames);
  for (size_t at = 0; at < x.size(); at += kBlockFrames) {
    const int n = static_cast<int>(std::min<size_t>(kBlockFrames, x.size() - at));
    check(qvxsConvert_32f16s_Sfs(x.data() + at, samples.data(), n, qvxRoundNearestEven, -15));
    out.write(samples.data(), n);
  }
}

int run(int argc, char** argv) {
  Arguments app("Removes white noise from the first channel of a recording.");
  std::string input, output, noisyOutput;
  int levels = 5;
  double strength = 0.3, level = 0;
  app.option("recording", input, "An audio file").required().existingFile();
  app.option("-o,--output", output, "The 16-bit WAV file to write").required();
  app.option("--levels", levels, "Levels of the decomposition").range(1, 12).showDefault();
  app.option("--strength", strength, "The threshold, relative to the largest noise to be expected").notNegative().showDefault();
  Option added = app.option("--add-noise", level, "Add noise of this level, dB below full scale, and tell what is won");
  app.option("--noisy", noisyOutput, "Write the recording with that noise, too").needs(added);
  app.parse(argc, argv);

  AudioReader in(input);
  const std::vector<float> clean = firstChannel(in);
  std::vector<float> noisy = clean;
  if (added.isGiven()) {
    const std::vector<float> all = noise(clean.size(), std::pow(10, level / 20), 1);
    check(qvxsAdd_32f_I(all.data(), noisy.data(), static_cast<int>(noisy.size())));
    if (!noisyOutput.empty()) write(noisy, noisyOutput, in.sampleRate(), input);
  }
  const Denoised result = denoised(noisy, levels, strength, in.sampleRate());
  write(result.samples, output, in.sampleRate(), input);

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
