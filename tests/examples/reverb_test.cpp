// The reverb program against the convolution as it is defined.
#include <algorithm>
#include <cmath>
#include <random>

#include "program.h"

namespace {

class Reverb : public ProgramTest {
 protected:
  Reverb() : ProgramTest(PROGRAM) {}
};

// More samples than a block, a response that is longer than the last one, two channels apart.
TEST_F(Reverb, addsTheConvolutionAndItsTail) {
  std::mt19937 random(1);
  std::vector<short> x(2 * 5000), h(700);
  for (short& v : x) v = static_cast<short>(static_cast<int>(random() % 8001) - 4000);
  for (short& v : h) v = static_cast<short>(static_cast<int>(random() % 60001) - 30000);
  write("in.wav", x, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 2);
  write("room.wav", h, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1);
  const Outcome outcome = run("in.wav -r room.wav -w -6 -o out.wav");
  ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
  const auto y = read16s("out.wav", SF_FORMAT_PCM_16, 2);
  ASSERT_EQ(y.size(), 2 * (5000 + 700 - 1));
  double norm = 0;
  for (const short v : h) norm += double{1} * v * v;
  const double wet = std::pow(10, -6.0 / 20) / std::sqrt(norm);
  for (size_t i = 0; i<y.size(); i += i> 8000 ? 1 : 3) {
    double sum = i < x.size() ? x[i] : 0;
    for (size_t k = 0; k < h.size() && 2 * k <= i; ++k) sum += i - 2 * k < x.size() ? wet * h[k] * x[i - 2 * k] : 0;
    ASSERT_NEAR(y[i], std::clamp(sum, -32768.0, 32767.0), 0.6) << i;
  }
  // The same samples in a file of floats.
  write("float.wav", asFloats(x), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 2);
  ASSERT_EQ(run("float.wav -r room.wav -w -6 -o again.wav").exitCode, 0);
  EXPECT_EQ(read16s("again.wav", SF_FORMAT_PCM_16, 2), y);
}

// What is left of a room of 60 dB in half a second falls by 6 dB a step of ten.
TEST_F(Reverb, printsTheDecay) {
  write("in.wav", std::vector<short>(100, 1000), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  const Outcome outcome = run("in.wav -s 0.5 -o out.wav");
  ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
  std::istringstream lines(outcome.out);
  std::string line;
  int steps = 0;
  while (std::getline(lines, line)) {
    double seconds = 0, level = 0;
    if (std::sscanf(line.c_str(), "%lf %lf", &seconds, &level) != 2) continue;
    EXPECT_NEAR(seconds, 0.05 * steps, 1e-3);
    EXPECT_NEAR(level, -6.0 * steps, 1.5) << line;
    ++steps;
  }
  EXPECT_EQ(steps, 10);
}

TEST_F(Reverb, refusesWhatItCannotUse) {
  write("in.wav", std::vector<short>(10, 1), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  write("silent.wav", std::vector<short>(10, 0), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  write("other.wav", std::vector<short>(10, 1), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, 44100);
  write("nan.wav", endingInNan(), SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  expectRefused({{"nan.wav -o out.wav", "nan.wav: holds samples that are not finite numbers"},
                 {"in.wav -r silent.wav -o out.wav", "silent.wav: silent"},
                 {"in.wav -w 1e9 -o out.wav", "not in range"},
                 {"in.wav -r other.wav -o out.wav", "other.wav: another sampling rate"},
                 {"in.wav -s 0 -o out.wav", "0 not in range"},
                 {"missing.wav -o out.wav", "missing.wav"}});
  expectOutputsGuarded("", "in.wav");
}

}  // namespace
