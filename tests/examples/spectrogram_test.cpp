// The spectrogram program on tones whose frequencies and levels are known.
#include <cmath>
#include <functional>

#include "program.h"

namespace {

constexpr int kRate = 48000;
constexpr int kFloats = SF_FORMAT_WAV | SF_FORMAT_FLOAT;

class SpectrogramTest : public ProgramTest {
 protected:
  SpectrogramTest() : ProgramTest(PROGRAM) {}

  // A tone whose frequency is that of its moment.
  std::vector<float> tone(double seconds, double amplitude, const std::function<double(double)>& hz) const {
    std::vector<float> samples(static_cast<size_t>(seconds * kRate));
    double turns = 0;
    for (size_t i = 0; i < samples.size(); ++i) {
      samples[i] = static_cast<float>(amplitude * std::sin(2 * M_PI * turns));
      turns += hz(static_cast<double>(i) / kRate) / kRate;
    }
    return samples;
  }
  // The numbers of a table, but for its heading.
  std::vector<std::vector<double>> table(const std::string& arguments) const {
    const Outcome result = run(arguments);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    std::istringstream lines(result.out);
    std::string line;
    std::getline(lines, line);
    std::vector<std::vector<double>> rows;
    while (std::getline(lines, line)) {
      std::istringstream numbers(line);
      std::vector<double>& row = rows.emplace_back();
      for (double number; numbers >> number;) row.push_back(number);
    }
    return rows;
  }
};

// A vibrato of 5 Hz, in windows of a prime number of frames that are further apart than they are long.
TEST_F(SpectrogramTest, FollowsATone) {
  const auto hz = [](double t) { return 440 + 20 * std::sin(2 * M_PI * 5 * t); };
  write("vibrato.wav", tone(1, 0.5, hz), kFloats, 1, kRate);
  const auto moments = table("tone vibrato.wav --window 1009 --hop 1500");
  ASSERT_EQ(moments.size(), (kRate - 1009) / 1500 + 1U);
  for (size_t i = 0; i < moments.size(); ++i) {
    EXPECT_NEAR(moments[i].at(0), (1500.0 * static_cast<double>(i) + 504.5) / kRate, 1e-4);
    EXPECT_NEAR(moments[i].at(1), hz(moments[i][0]), 1.5) << i;
    EXPECT_NEAR(moments[i].at(2), 20 * std::log10(0.5), 0.05) << i;
  }
}

// A second of 250 Hz, then one of 4 kHz 20 dB below: each in its octave, silence in the others but for the window's skirts.
TEST_F(SpectrogramTest, PrintsOctaves) {
  std::vector<float> samples = tone(1, 1, [](double) { return 250.0; });
  const std::vector<float> high = tone(1, 0.1, [](double) { return 4000.0; });
  samples.insert(samples.end(), high.begin(), high.end());
  write("two.wav", samples, kFloats, 1, kRate);
  const auto rows = table("bands two.wav --window 2205 --hop 735");
  ASSERT_EQ(rows.size(), 2U);
  // Octaves from 31.25 Hz to 16 kHz after the time; the last window of the first second has begun to hear the second one.
  ASSERT_EQ(rows[0].size(), 11U);
  const size_t k250 = 4, k4000 = 8;
  EXPECT_NEAR(rows[0][k250], 0, 0.3);
  EXPECT_LT(rows[0][k4000], -30);
  EXPECT_NEAR(rows[1][k4000], -20, 0.1);
  for (size_t band = 1; band + 1 < k4000; ++band) EXPECT_LT(rows[1][band], -60) << band;
}

TEST_F(SpectrogramTest, DrawsPictures) {
  if (std::system("command -v gnuplot >/dev/null") != 0) GTEST_SKIP() << "no gnuplot here";
  std::vector<float> stereo;
  for (const float v : tone(0.7, 0.5, [](double t) { return 1000 + 5000 * t; })) stereo.insert(stereo.end(), {v, v});
  write("it's.wav", stereo, kFloats, 2, kRate);
  EXPECT_EQ(run("draw \"it's.wav\" --window 300 --hop 77 -o a.png").exitCode, 0);
  EXPECT_EQ(text("a.png").rfind("\x89PNG", 0), 0U);
  EXPECT_EQ(run("draw \"it's.wav\" -o a.svg").exitCode, 0);
  const std::string drawing = text("a.svg");
  for (const char* what : {"<svg", "it's.wav", ">s<", ">Hz<", ">dBFS<"}) EXPECT_NE(drawing.find(what), std::string::npos) << what;
}

TEST_F(SpectrogramTest, RefusesWhatItCannotDo) {
  write("none.wav", std::vector<float>(), kFloats, 1, kRate);
  write("tone.wav", std::vector<float>(100, 0.5F), kFloats, 1, kRate);
  expectRefused({{"", "A subcommand is required"},
                 {"tone", "file is required"},
                 {"bands absent.wav", "File does not exist: absent.wav"},
                 {"tone none.wav", "none.wav: holds no samples"},
                 {"tone tone.wav --window 0", "0 not in range"},
                 {"draw tone.wav -o tone.gif", "tone.gif: a picture is a .png or .svg file, or -"},
                 {"draw tone.wav -o no/folder.png", "no/folder.png: cannot be written"}},
                false);
}

}  // namespace
