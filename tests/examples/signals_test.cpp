// The signals program: what it writes is what was asked for, what it measures is there, and its windows are the textbooks'.
#include <cmath>
#include <map>
#include <random>

#include "program.h"

namespace {

class Signals : public ProgramTest {
 protected:
  Signals() : ProgramTest(PROGRAM) {}

  std::string output(const std::string& arguments) const {
    const Outcome result = run(arguments);
    EXPECT_EQ(result.exitCode, 0) << arguments << "\n" << result.err;
    return result.out;
  }

  // The number after a word of the output.
  static double after(const std::string& text, const std::string& word) {
    const size_t at = text.find(word);
    return at == std::string::npos ? NAN : std::stod(text.substr(at + word.size()));
  }
};

double rms(const std::vector<short>& samples) {
  double squares = 0;
  for (const short x : samples) squares += static_cast<double>(x) * x;
  return std::sqrt(squares / static_cast<double>(samples.size())) / 32768;
}

TEST_F(Signals, WritesWhatWasAskedFor) {
  output("make tone -f 441 -r 44100 -l -20 -s 2 -o tone.wav");
  const auto tone = read16s("tone.wav", SF_FORMAT_PCM_16, 1);
  ASSERT_EQ(tone.size(), 88200U);
  for (size_t i = 0; i < tone.size(); i += 997)
    EXPECT_NEAR(tone[i], 3276.7 * std::cos(2 * M_PI * static_cast<double>(i % 100) / 100), 1.5) << i;
  output("make triangle -f 480 -l 0 -a -1 -o saw.wav");
  const auto saw = read16s("saw.wav", SF_FORMAT_PCM_16, 1);
  for (size_t i = 1; i < 100; ++i) EXPECT_NEAR(saw[i], -32767 + 655.34 * static_cast<double>(i), 4) << i;
  output("make gauss -l -20 -o gauss.wav");
  EXPECT_NEAR(rms(read16s("gauss.wav", SF_FORMAT_PCM_16, 1)), 0.1, 0.002);
  output("make uniform -l 0 --seed 5 -o uniform.wav");
  EXPECT_NEAR(rms(read16s("uniform.wav", SF_FORMAT_PCM_16, 1)), std::sqrt(1.0 / 3), 0.005);
}

// A sweep from 100 to 1600 Hz is at 400 Hz half way: sign changes of a tenth of a second around.
TEST_F(Signals, SweepsEvenlyInOctaves) {
  output("make sweep -f 100 -t 1600 -s 4 -r 8000 -o sweep.wav");
  const auto sweep = read16s("sweep.wav", SF_FORMAT_PCM_16, 1);
  const auto changes = [&](size_t from) {
    int count = 0;
    for (size_t i = from; i < from + 800; ++i) count += (sweep[i] < 0) != (sweep[i + 1] < 0);
    return count;
  };
  EXPECT_NEAR(changes(16000 - 400), 80, 2);
  EXPECT_NEAR(changes(24000 - 400), 160, 3);
}

TEST_F(Signals, MeasuresToneHarmonicsAndNoise) {
  std::vector<float> samples(65536);
  std::mt19937 random(3);
  std::normal_distribution<double> noise(0, 0.5e-4);
  for (size_t i = 0; i < samples.size(); ++i) {
    const double w = 2 * M_PI * 1234.567 * static_cast<double>(i) / 48000;
    samples[i] = static_cast<float>(0.5 * std::sin(w) + 0.005 * std::sin(3 * w + 1) + noise(random));
  }
  write("tone.wav", samples, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 48000);
  const std::string found = output("measure tone.wav");
  EXPECT_NEAR(after(found, "frequency "), 1234.567, 1e-3) << found;
  EXPECT_NEAR(after(found, "rms "), 10 * std::log10(0.125), 0.01) << found;
  EXPECT_NEAR(after(found, "3. "), -40, 0.05) << found;
  EXPECT_LT(after(found, "2. "), -90) << found;
  EXPECT_NEAR(after(found, ", harmonics "), -40, 0.05) << found;
  EXPECT_EQ(output("make gauss -o noise.wav").find("frequency"), std::string::npos);
}

// Harris, "On the use of windows for harmonic analysis with the discrete Fourier transform", 1978, table 1: equivalent noise
// bandwidth, -3 dB and -6 dB width, highest side lobe, scalloping loss. Its widths of the Blackman window, 1.68 and 2.35,
// are 2 percent above those of 0.42 - 0.5 cos + 0.08 cos.
TEST_F(Signals, WindowsHaveTheirProperties) {
  std::istringstream lines(output("windows"));
  std::string line, name;
  std::getline(lines, line);
  std::map<std::string, std::array<double, 6>> found;
  while (lines >> name) {
    for (double& v : found[name]) lines >> v;
  }
  const std::map<std::string, std::array<double, 5>> known = {
      {"none", {1.00, 0.89, 1.21, -13, 3.92}},     {"bartlett", {1.33, 1.28, 1.78, -27, 1.82}},
      {"hann", {1.50, 1.44, 2.00, -32, 1.42}},     {"hamming", {1.36, 1.30, 1.81, -43, 1.78}},
      {"blackman", {1.73, 1.64, 2.30, -58, 1.10}}, {"kaiser-2pi", {1.50, 1.43, 1.99, -46, 1.46}},
  };
  for (const auto& [window, row] : known) {
    for (size_t i = 0; i < row.size(); ++i) EXPECT_NEAR(found[window][i + 1], row[i], i == 3 ? 1 : 0.04) << window << " " << i;
  }
}

TEST_F(Signals, DrawsAndRefuses) {
  if (std::system("command -v gnuplot >/dev/null") != 0) GTEST_SKIP() << "no gnuplot here";
  output("windows --plot windows.svg");
  EXPECT_NE(text("windows.svg").find("hamming"), std::string::npos);
  write("short.wav", std::vector<float>(100), SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  expectRefused({{"make noise -o out.wav", "noise not in"},
                 {"make tone -f 24000 -o out.wav", "below half the sampling rate"},
                 {"make tone -s 0 -o out.wav", "below one sample"},
                 {"measure short.wav", "fewer than 512 samples"}});
}

}  // namespace
