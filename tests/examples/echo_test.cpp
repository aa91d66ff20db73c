// The echo program: what it makes is cancelled as far as the noise allows, and nothing else is.
#include <algorithm>
#include <cmath>
#include <random>

#include "program.h"

namespace {

class Echo : public ProgramTest {
 protected:
  Echo() : ProgramTest(PROGRAM) {}

  static std::vector<float> noise(size_t n, unsigned seed) {
    std::mt19937 random(seed);
    std::normal_distribution<float> normal(0, 0.1F);
    std::vector<float> x(n);
    for (float& v : x) v = normal(random);
    return x;
  }
  // The columns of the table.
  struct Line {
    double start, before, after, attenuation;
  };
  static std::vector<Line> table(const std::string& out) {
    std::istringstream lines(out.substr(out.find('\n') + 1));
    std::vector<Line> all;
    for (Line line; lines >> line.start >> line.before >> line.after >> line.attenuation;) all.push_back(line);
    return all;
  }
};

TEST_F(Echo, cancelsWhatItMade) {
  write("played.wav", noise(40000, 1), SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  ASSERT_EQ(run("make played.wav -o mic.wav --delay 0.02 --noise -70").exitCode, 0);
  const Outcome result = run("cancel played.wav mic.wav -o out.wav --plot levels.svg --stretch 0.5");
  ASSERT_EQ(result.exitCode, 0) << result.err;
  const std::vector<Line> lines = table(result.out);
  ASSERT_EQ(lines.size(), 10U);
  EXPECT_GT(lines.back().attenuation, 40);
  EXPECT_GT(lines.back().attenuation, lines.front().attenuation + 20) << "it learns";
  EXPECT_NE(text("levels.svg").find("<svg"), std::string::npos);
  const std::vector<short> left = read16s("out.wav", SF_FORMAT_PCM_16, 1);
  ASSERT_EQ(left.size(), 40000U);
  double energy = 0;
  for (size_t i = 36000; i < left.size(); ++i) energy += std::pow(left[i] / 32768.0, 2);
  EXPECT_NEAR(10 * std::log10(energy / 4000), lines.back().after, 1);
}

// The first reflection of a room has the delay and the level that were asked for.
TEST_F(Echo, makesReflections) {
  std::vector<float> click(1000);
  click[0] = 0.5F;
  write("click.wav", click, SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  ASSERT_EQ(run("make click.wav -o mic.wav --delay 0.05 --level -20 --noise -120").exitCode, 0);
  const std::vector<short> y = read16s("mic.wav", SF_FORMAT_PCM_16, 1);
  EXPECT_NEAR(y[400], 1638, 1);
  EXPECT_NEAR(y[407], -819, 1);
  EXPECT_EQ(std::count_if(y.begin(), y.end(), [](short v) { return std::abs(v) > 10; }), 5);
}

TEST_F(Echo, leavesOtherVoicesAlone) {
  const std::vector<float> voice = noise(20000, 2);
  write("played.wav", std::vector<float>(20000), SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  write("mic.wav", voice, SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  ASSERT_EQ(run("cancel played.wav mic.wav -o out.wav").exitCode, 0);
  const std::vector<short> y = read16s("out.wav", SF_FORMAT_PCM_16, 1);
  for (size_t i = 0; i < y.size(); ++i) ASSERT_NEAR(y[i], 32768 * voice[i], 1) << i;
}

TEST_F(Echo, refusesWhatItCannotDo) {
  write("x.wav", std::vector<short>(100, 1000), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  write("fast.wav", std::vector<short>(100, 1000), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, 16000);
  write("none.wav", std::vector<short>(), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  expectRefused({{"make none.wav -o out.wav", "holds no samples"},
                 {"cancel x.wav fast.wav -o out.wav", "another sample rate"},
                 {"cancel x.wav x.wav -o out.wav --taps 0", "taps"},
                 {"make x.wav", "output"},
                 {"", "subcommand"}});
  expectOutputsGuarded("make", "x.wav");
}

}  // namespace
