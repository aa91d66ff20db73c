// The parametric program: what it prints, draws, and makes of files.
#include <cmath>

#include "program.h"

namespace {

class Parametric : public ProgramTest {
 protected:
  Parametric() : ProgramTest(PROGRAM) {}

  // One sine a channel.
  void writeSines(const std::string& name, std::vector<double> frequencies, int frames) {
    std::vector<short> samples;
    for (int i = 0; i < frames; ++i) {
      for (const double f : frequencies)
        samples.push_back(static_cast<short>(std::lrint(16000 * std::sin(2 * M_PI * f * i / 48000))));
    }
    write(name, samples, SF_FORMAT_WAV | SF_FORMAT_PCM_16, static_cast<int>(frequencies.size()), 48000);
  }
};

// The peak of a channel's last half.
double peak(const std::vector<short>& samples, size_t channels, size_t channel) {
  double most = 0;
  for (size_t i = samples.size() / channels / 2; i < samples.size() / channels; ++i) {
    most = std::max(most, std::abs(samples[i * channels + channel] * 1.0));
  }
  return most;
}

TEST_F(Parametric, FiltersEachChannelAcrossBlocks) {
  writeSines("in.wav", {100, 1000, 8000}, 20000);
  ASSERT_EQ(run("low -f 1000 -n 4 in.wav -o out.wav").exitCode, 0) << text("err");
  const auto low = read16s("out.wav", SF_FORMAT_PCM_16, 3);
  EXPECT_NEAR(peak(low, 3, 0), 16000, 20);
  EXPECT_NEAR(peak(low, 3, 1), 16000 / std::sqrt(2), 20);
  EXPECT_LT(peak(low, 3, 2), 10);
  ASSERT_EQ(run("high -f 1000 -n 4 -r 1 in.wav -o out.wav").exitCode, 0) << text("err");
  const auto high = read16s("out.wav", SF_FORMAT_PCM_16, 3);
  EXPECT_LT(peak(high, 3, 0), 10);
  EXPECT_NEAR(peak(high, 3, 1), 16000 * std::pow(10, -1 / 20.0), 40);
  EXPECT_GT(peak(high, 3, 2), 14000);
}

TEST_F(Parametric, PrintsAndDraws) {
  const Outcome printed = run("low -f 12000 -n 1 --plot response.png");
  ASSERT_EQ(printed.exitCode, 0) << printed.err;
  EXPECT_NE(printed.out.find("5.0000000000000000e-01"), std::string::npos) << "half of a sample and of the one before";
  EXPECT_NE(printed.out.find("-3.01"), std::string::npos) << printed.out;
  EXPECT_EQ(text("response.png").substr(1, 3), "PNG");
  EXPECT_NE(run("high -f 1000 --plot -").out.find("High-pass"), std::string::npos);
}

TEST_F(Parametric, SaysWhatItCannotDo) {
  writeSines("in.wav", {100}, 10);
  write("nan.wav", endingInNan(), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 48000);
  expectRefused({{"low -f 100 nan.wav -o out.wav", "nan.wav: holds samples that are not finite numbers"},
                 {"low -f 24000", "half the sampling rate"},
                 {"low -f 100 -n 13", "13 not in range"},
                 {"low -f 100 -n -5", "-5 not in range"},
                 {"low -f 100 -r 30", "30 not in range"},
                 {"low -f 100 --plot x.gif", ".png or .svg"},
                 {"low -f 100 -s 8000 in.wav -o out.wav", "48000 Hz"},
                 {"low -f 100 in.wav -o in.wav", "is named for another file"}},
                /*isSilent=*/false);
}

}  // namespace
