// The spectrum program on sines whose frequencies and levels are known.
#include <cmath>
#include <random>

#include "program.h"

namespace {

struct Sine {
  double hz;
  double dbfs;
};

class SpectrumTest : public ProgramTest {
 protected:
  SpectrumTest() : ProgramTest(PROGRAM) {}

  std::vector<Sine> peaks(const std::string& arguments, long* blocks = nullptr) const {
    const Outcome result = run(arguments);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    std::istringstream lines(result.out);
    std::string line;
    std::getline(lines, line);
    if (blocks != nullptr) {
      EXPECT_EQ(std::sscanf(line.c_str(), " Hz dBFS of %ld blocks", blocks), 1) << line;
    }
    std::vector<Sine> all;
    for (Sine sine; lines >> sine.hz >> sine.dbfs;) all.push_back(sine);
    return all;
  }
};

// Sines between bins, far enough apart, above noise of -80 dBFS; the first one in one of the two channels only. A parabola
// through the levels of a raised cosine is off by up to 0.016 bins and 0.06 dB.
TEST_F(SpectrumTest, FindsSinesByFrequencyAndLevel) {
  constexpr int kRate = 48000;
  constexpr int kOrder = 12;
  const std::vector<Sine> sines = {{997.3, -6.0}, {4321.0, -20.5}, {15000.7, -48.0}};
  std::mt19937 random(1);
  std::normal_distribution<double> noise(0, 1e-4);
  std::vector<float> samples;
  for (int i = 0; i < kRate; ++i) {
    for (const int channel : {0, 1}) {
      double v = noise(random);
      for (const Sine& s : sines) {
        if (channel == 0 || s.hz > 1000) v += std::pow(10, s.dbfs / 20) * std::sin(2 * M_PI * s.hz * i / kRate);
      }
      samples.push_back(static_cast<float>(v));
    }
  }
  write("sines.wav", samples, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 2, 48000);
  long blocks = 0;
  const std::vector<Sine> found = peaks("sines.wav -n 12 -p 3", &blocks);
  EXPECT_EQ(blocks, (kRate - (1 << kOrder)) / (1 << (kOrder - 1)) + 1);
  ASSERT_EQ(found.size(), 3U);
  for (size_t i = 0; i < 3; ++i) {
    EXPECT_NEAR(found[i].hz, sines[i].hz, 0.01 * kRate / (1 << kOrder)) << i;
    EXPECT_NEAR(found[i].dbfs, sines[i].dbfs - (i == 0 ? 10 * std::log10(2) : 0), 0.02) << i;
  }
}

// Less than a block is a block with zeros after: a click has the same level at all frequencies.
TEST_F(SpectrumTest, ShortFilesAreOneBlock) {
  std::vector<float> tone(3000);
  for (size_t i = 0; i < tone.size(); ++i)
    tone[i] = static_cast<float>(std::sin(2 * M_PI * 1000 * static_cast<double>(i) / 48000));
  write("short.wav", tone, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 48000);
  long blocks = 0;
  const std::vector<Sine> found = peaks("short.wav -n 13 -p 1", &blocks);
  EXPECT_EQ(blocks, 1);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_NEAR(found[0].hz, 1000, 3);
  write("silence.wav", std::vector<float>(100), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 48000);
  EXPECT_TRUE(peaks("silence.wav").empty());
}

TEST_F(SpectrumTest, DrawsPictures) {
  if (std::system("command -v gnuplot >/dev/null") != 0) GTEST_SKIP() << "no gnuplot here";
  std::vector<float> tone(48000);
  for (size_t i = 0; i < tone.size(); ++i) tone[i] = static_cast<float>(0.5 * std::sin(0.1 * static_cast<double>(i)));
  write("it's.wav", tone, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 48000);
  EXPECT_EQ(peaks("\"it's.wav\" -o a.png").size(), 8U);
  EXPECT_EQ(text("a.png").rfind("\x89PNG", 0), 0U);
  peaks("\"it's.wav\" -o a.svg");
  const std::string drawing = text("a.svg");
  EXPECT_TRUE(drawing.find("<svg") != std::string::npos && drawing.find("it's.wav") != std::string::npos);
}

TEST_F(SpectrumTest, RefusesWhatItCannotDo) {
  write("nan.wav", std::vector<float>(100, NAN), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 48000);
  write("none.wav", std::vector<float>(), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 48000);
  write("tone.wav", std::vector<float>(100, 0.5F), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 48000);
  std::ofstream(at("text.wav")) << "no sound at all";
  expectRefused({{"", "file is required"},
                 {"absent.wav", "File does not exist: absent.wav"},
                 {"text.wav", "text.wav: Format not recognised"},
                 {"nan.wav", "nan.wav: holds samples that are not finite numbers"},
                 {"none.wav", "none.wav: holds no samples"},
                 {"tone.wav -n 3", "3 not in range"},
                 {"tone.wav -o tone.gif", "tone.gif: a picture is a .png or .svg file, or -"},
                 {"tone.wav -o no/folder.png", "no/folder.png: cannot be written"}});
}

}  // namespace
