// The denoise program: what it takes from noise, what it leaves of a recording, what it says.
#include <cmath>
#include <random>

#include "program.h"

namespace {

class Denoise : public ProgramTest {
 protected:
  Denoise() : ProgramTest(PROGRAM) {}

  // Notes that fade, with pauses between them.
  static std::vector<float> melody(size_t n) {
    std::vector<float> x(n);
    for (size_t i = 0; i < n; ++i) {
      const double t = static_cast<double>(i % 4000) / 8000, pitch = 220 * std::pow(2, static_cast<double>(i / 4000 % 5) / 5);
      x[i] = static_cast<float>(0.5 * std::exp(-9 * t) * std::sin(2 * M_PI * pitch * t));
    }
    return x;
  }
};

TEST_F(Denoise, gainsOnNoise) {
  write("melody.wav", melody(40001), SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  for (const char* options : {"--add-noise -30", "--add-noise -20 --levels 4", "--add-noise -40 --strength 0.2"}) {
    const Outcome result = run(std::string("melody.wav -o out.wav --noisy noisy.wav ") + options);
    ASSERT_EQ(result.exitCode, 0) << result.err;
    double before, after, gain;
    ASSERT_EQ(std::sscanf(result.out.c_str() + result.out.rfind("signal"),
                          "signal-to-noise ratio %lf dB before, %lf dB after, gain %lf dB", &before, &after, &gain),
              3)
        << result.out;
    EXPECT_GT(gain, 3) << options;
    // The files are what was measured.
    const std::vector<short> noisy = read16s("noisy.wav", SF_FORMAT_PCM_16, 1), cleaned = read16s("out.wav", SF_FORMAT_PCM_16, 1);
    const std::vector<float> x = melody(40001);
    ASSERT_EQ(cleaned.size(), x.size());
    double signal = 0, errors[2] = {0, 0};
    for (size_t i = 0; i < x.size(); ++i) {
      signal += std::pow(32768 * double{x[i]}, 2);
      errors[0] += std::pow(noisy[i] - 32768 * double{x[i]}, 2);
      errors[1] += std::pow(cleaned[i] - 32768 * double{x[i]}, 2);
    }
    EXPECT_NEAR(10 * std::log10(signal / errors[0]), before, 0.02);
    EXPECT_NEAR(10 * std::log10(signal / errors[1]), after, 0.02);
  }
}

// Without a threshold the levels give the recording back, at every depth and length: the delays agree.
TEST_F(Denoise, givesBackWhatItDoesNotThreshold) {
  for (const auto& [levels, n] : {std::pair(1, 1), std::pair(1, 1000), std::pair(3, 1003), std::pair(12, 9001)}) {
    std::vector<short> x;
    for (const float v : melody(static_cast<size_t>(n))) x.push_back(static_cast<short>(std::lrint(20000 * v)));
    write("x.wav", x, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
    ASSERT_EQ(run("x.wav -o out.wav --strength 0 --levels " + std::to_string(levels)).exitCode, 0);
    const std::vector<short> y = read16s("out.wav", SF_FORMAT_PCM_16, 1);
    ASSERT_EQ(y.size(), x.size());
    for (size_t i = 0; i < x.size(); ++i) ASSERT_NEAR(y[i], x[i], 1) << levels << " levels, sample " << i;
  }
}

TEST_F(Denoise, refusesWhatItCannotDo) {
  write("x.wav", std::vector<short>(1000, 100), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  write("none.wav", std::vector<short>(), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  expectRefused({{"none.wav -o out.wav", "holds no samples"},
                 {"missing.wav -o out.wav", "missing.wav"},
                 {"x.wav", "output"},
                 {"x.wav -o out.wav --levels 0", "levels"},
                 {"x.wav -o out.wav --add-noise 1", "add-noise"},
                 {"x.wav -o out.wav --noisy n.wav", "add-noise"},
                 {"x.wav -o out.wav --add-noise -20 --noisy ./out.wav", "./out.wav: is named for another file as well"}});
  expectOutputsGuarded("", "x.wav");
}

}  // namespace
