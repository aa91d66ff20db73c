// The equalise program against a filter computed here, one sample at a time.
#include <algorithm>
#include <cmath>
#include <random>

#include "program.h"

namespace {

class Equalise : public ProgramTest {
 protected:
  Equalise() : ProgramTest(PROGRAM) {}

  std::vector<short> writeNoise(const std::string& name, int channels, int frames) {
    std::mt19937 random(5);
    std::vector<short> samples(static_cast<size_t>(channels) * frames);
    for (short& x : samples) x = static_cast<short>(random());
    write(name, samples, SF_FORMAT_WAV | SF_FORMAT_PCM_16, channels);
    return samples;
  }
};

// More taps than the first block has samples left to the last one, gains that saturate, comments, channels kept apart.
TEST_F(Equalise, equalsTheFilterComputedSampleBySample) {
  std::mt19937 random(6);
  std::vector<double> taps(150);
  std::ofstream file(at("taps.txt"));
  file << "# all\n";
  for (double& tap : taps) {
    tap = static_cast<int>(random() % 2001) - 1000;
    file << tap << "e-4" << (random() % 3 ? " " : " # so far\n");
    tap = static_cast<float>(tap * 1e-4);
  }
  file.close();
  const auto x = writeNoise("in.wav", 2, 9000);
  const Outcome outcome = run("in.wav -t taps.txt -o out.wav -b 700 -c 1 4096");
  ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
  const auto y = read16s("out.wav", SF_FORMAT_PCM_16, 2);
  ASSERT_EQ(y.size(), x.size());
  for (size_t i = 0; i < y.size(); ++i) {
    double sum = -0.5;  // full scale is the same up and down: 16-bit samples are a half off
    for (size_t k = 0; k < taps.size() && 2 * k <= i; ++k) sum += taps[k] * (x[i - 2 * k] + 0.5);
    ASSERT_NEAR(y[i], std::clamp(sum, -32768.0, 32767.0), 0.55) << i;
  }
  // One line for each other size: no sample of 16 bits differs.
  std::istringstream lines(outcome.out);
  std::string line;
  int compared = 0;
  while (std::getline(lines, line)) {
    int block = 0;
    double apart = 0;
    long differing = 0;
    if (std::sscanf(line.c_str(), "%d %lf %ld", &block, &apart, &differing) != 3) continue;
    EXPECT_EQ(block, compared++ == 0 ? 1 : 4096);
    EXPECT_LT(apart, -130);
    EXPECT_EQ(differing, 0);
  }
  EXPECT_EQ(compared, 2);
  // The same samples in a file of floats.
  write("float.wav", asFloats(x), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 2);
  ASSERT_EQ(run("float.wav -t taps.txt -o again.wav -b 700").exitCode, 0);
  EXPECT_EQ(read16s("again.wav", SF_FORMAT_PCM_16, 2), y);
}

TEST_F(Equalise, refusesWhatItCannotUse) {
  writeNoise("in.wav", 1, 10);
  std::ofstream(at("words.txt")) << "0.5 half\n";
  std::ofstream(at("huge.txt")) << "1 1e60\n";
  std::ofstream(at("none.txt")) << "# nothing\n";
  std::ofstream(at("one.txt")) << "1\n";
  write("nan.wav", endingInNan(), SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  expectRefused({{"nan.wav -t one.txt -o out.wav", "nan.wav: holds samples that are not finite numbers"},
                 {"in.wav -t words.txt -o out.wav", "words.txt: not a number in line: 0.5 half"},
                 {"in.wav -t huge.txt -o out.wav", "huge.txt: not a number"},
                 {"in.wav -t none.txt -o out.wav", "none.txt"},
                 {"in.wav -t missing.txt -o out.wav", "missing.txt"},
                 {"in.wav -t one.txt -o out.wav -b 0", "0 not in range"}});
  expectOutputsGuarded("-t one.txt", "in.wav");
}

}  // namespace
