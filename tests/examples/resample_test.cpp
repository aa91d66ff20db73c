// The resample program: sines of all channels keep their level and their time, and the printed measurements are those of the
// level.
#include <cmath>
#include <numbers>

#include "program.h"

namespace {

class Resample : public ProgramTest {
 protected:
  Resample() : ProgramTest(PROGRAM) {}

  static double sine(double frequency, double rate, double i) {
    return 0.5 * std::sin(2 * std::numbers::pi * std::fmod(frequency / rate * i, 1));
  }
  std::vector<float> readFloats(const std::string& name, int channels, int rate) const {
    SndfileHandle file(at(name));
    EXPECT_EQ(file.format(), SF_FORMAT_WAV | SF_FORMAT_FLOAT);
    EXPECT_EQ(file.channels(), channels);
    EXPECT_EQ(file.samplerate(), rate);
    std::vector<float> samples(static_cast<size_t>(file.frames()) * static_cast<size_t>(channels));
    file.readf(samples.data(), file.frames());
    return samples;
  }
};

// Up, down, by ratios small and large; more frames than a block, and a number that no group divides.
TEST_F(Resample, keepsWhatBothRatesHave) {
  constexpr double kFrequencies[] = {997, 3011};
  constexpr int kFrames = 10007;
  struct Case {
    int from;
    int to;
    int level;
    double error;
  };
  for (const Case& c : {Case{44100, 48000, 60, 2e-3}, Case{48000, 44100, 100, 2e-5}, Case{16000, 48000, 140, 1e-6},
                        Case{48000, 16000, 100, 2e-5}, Case{44100, 44101, 60, 2e-3}}) {
    SCOPED_TRACE(testing::Message() << c.from << " to " << c.to << ", level " << c.level);
    std::vector<float> x(2 * kFrames);
    for (size_t i = 0; i < x.size(); ++i)
      x[i] = static_cast<float>(sine(kFrequencies[i % 2], c.from, static_cast<double>(i / 2)));
    write("in.wav", x, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 2, c.from);
    const Outcome outcome = run("in.wav -r " + std::to_string(c.to) + " -l " + std::to_string(c.level) + " -o out.wav");
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    const auto y = readFloats("out.wav", 2, c.to);
    ASSERT_EQ(y.size() / 2, (int64_t{kFrames} * c.to + c.from - 1) / c.from);
    for (size_t i = y.size() / 4; i < y.size() * 3 / 4; ++i) {  // away from the ends
      ASSERT_NEAR(y[i], sine(kFrequencies[i % 2], c.to, static_cast<double>(i / 2)), c.error) << i;
    }
  }
}

TEST_F(Resample, measuresWhatItsLevelsPromise) {
  write("in.wav", std::vector<float>(1000, 0.25F), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 32000);
  double before = 1;
  for (const int level : {60, 100, 140}) {
    for (const int rate : {48000, 24000}) {
      const Outcome outcome = run("in.wav -r " + std::to_string(rate) + " -l " + std::to_string(level) + " -o out.wav");
      ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
      double passBand = 0;
      double ripple = 0;
      double rejection = 0;
      const size_t line = outcome.out.find("level ");
      ASSERT_EQ(std::sscanf(outcome.out.c_str() + line, "level %*d %lf %lf %lf", &passBand, &ripple, &rejection), 3)
          << outcome.out;
      EXPECT_GE(rejection, level) << outcome.out;
      EXPECT_LT(rejection, level + 25) << outcome.out;
      EXPECT_LE(ripple, before) << outcome.out;
      if (rate == 24000) before = ripple + 1e-5;
    }
  }
}

TEST_F(Resample, refusesWhatItCannotUse) {
  write("in.wav", std::vector<float>(10), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 44100);
  write("nan.wav", endingInNan(), SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  expectRefused({{"nan.wav -r 48000 -o out.wav", "nan.wav: holds samples that are not finite numbers"},
                 {"in.wav -r 48000 -l 90 -o out.wav", "60, 100 and 140"},
                 {"in.wav -r 10 -o out.wav", "10 not in range"},
                 {"missing.wav -r 48000 -o out.wav", "missing.wav"}});
  expectOutputsGuarded("-r 48000", "in.wav");
}

}  // namespace
