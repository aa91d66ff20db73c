// The loudness program on recordings whose levels are known.
#include <cmath>

#include "program.h"

namespace {

class LoudnessTest : public ProgramTest {
 protected:
  LoudnessTest() : ProgramTest(PROGRAM) {}

  // A square wave of these levels, a second each: its mean square is exact in any block.
  void writeSeconds(const std::string& name, const std::vector<double>& levels, int channels) const {
    constexpr int kRate = 8000;
    std::vector<float> samples;
    for (const double level : levels) {
      for (int i = 0; i < kRate * channels; ++i)
        samples.push_back(static_cast<float>((i & 2) != 0 ? std::pow(10, level / 20) : -std::pow(10, level / 20)));
    }
    write(name, samples, SF_FORMAT_WAV | SF_FORMAT_FLOAT, channels, kRate);
  }

  // The lines that begin with a word or number, as their second and third fields.
  static std::vector<std::pair<double, double>> lines(const std::string& out, const std::string& first) {
    std::vector<std::pair<double, double>> found;
    std::istringstream text(out);
    for (std::string line, word; std::getline(text, line);) {
      std::istringstream fields(line);
      double a = 0, b = 0;
      if (fields >> word >> a && word == first) found.emplace_back(a, fields >> b ? b : 0);
    }
    return found;
  }
};

TEST_F(LoudnessTest, FindsSecondsAndPercentiles) {
  const std::vector<double> levels = {-20, -3, -40, -11, -33, -8, -52, -27, -15, -46};
  writeSeconds("steps.wav", levels, 2);
  const Outcome result = run("steps.wav -c 2");
  ASSERT_EQ(result.exitCode, 0) << result.err;
  const auto loudest = lines(result.out, "loudest"), quietest = lines(result.out, "quietest");
  ASSERT_EQ(loudest.size(), 2U);
  ASSERT_EQ(quietest.size(), 2U);
  EXPECT_EQ(loudest[0].first, 1);
  EXPECT_EQ(loudest[1].first, 5);
  EXPECT_EQ(quietest[0].first, 6);
  EXPECT_EQ(quietest[1].first, 9);
  EXPECT_NEAR(loudest[0].second, -3, 0.01);
  EXPECT_NEAR(quietest[0].second, -52, 0.01);
  EXPECT_NEAR(lines(result.out, "10").at(0).first, -52, 0.01);  // ten blocks of each level
  EXPECT_NEAR(lines(result.out, "50").at(0).first, -27, 0.01);
  EXPECT_NEAR(lines(result.out, "100").at(0).first, -3, 0.01);
  EXPECT_EQ(lines(result.out, "-6").at(0).first, 10);   // blocks from -6 to 0 dB
  EXPECT_EQ(lines(result.out, "-12").at(0).first, 20);  // -11 and -8
}

TEST_F(LoudnessTest, CountsAShorterBlockAtTheEnd) {
  write("short.wav", std::vector<float>(8100, 0.5F), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 8000);
  const Outcome result = run("short.wav -b 50");
  EXPECT_NE(result.out.find(" 21 "), std::string::npos) << result.out;
  EXPECT_EQ(lines(result.out, "loudest").size(), 2U) << result.out;
}

TEST_F(LoudnessTest, RefusesWhatItCannotDo) {
  write("none.wav", std::vector<float>(), SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  expectRefused({{"", "file is required"},
                 {"absent.wav", "File does not exist: absent.wav"},
                 {"none.wav", "none.wav: holds no samples"},
                 {"none.wav -b 0", "0 not in range"}});
}

}  // namespace
