// The dtmf program: what it dials it hears, and it hears nothing in what is no key.
#include <cmath>
#include <random>

#include "program.h"

namespace {

class Dtmf : public ProgramTest {
 protected:
  Dtmf() : ProgramTest(PROGRAM) {}

  std::string digits(const std::string& name) const {
    const Outcome result = run("listen " + name);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    const size_t at = result.out.rfind("digits ");
    return at == std::string::npos ? "none" : result.out.substr(at + 7, result.out.find('\n', at) - at - 7);
  }
};

TEST_F(Dtmf, hearsWhatItDials) {
  for (const char* options : {"", "--rate 44100", "--rate 48000 --noise -20", "--noise -14", "--rate 4000"}) {
    ASSERT_EQ(run(std::string("dial '0123456789ABCD*#11' -o keys.wav ") + options).exitCode, 0);
    EXPECT_EQ(digits("keys.wav"), "0123456789ABCD*#11") << options;
  }
}

// Tones made here, with levels apart: the table tells each.
TEST_F(Dtmf, tellsLevels) {
  std::vector<float> x;
  for (int i = 0; i < 4096; ++i) {
    x.push_back(static_cast<float>(0.1 * std::sin(2 * M_PI * 770 * i / 8000.0) + 0.2 * std::sin(2 * M_PI * 1477 * i / 8000.0)));
  }
  write("six.wav", x, SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  const Outcome result = run("listen six.wav");
  std::istringstream lines(result.out);
  std::string heading, key;
  std::getline(lines, heading);
  double start, length, levels[8];
  lines >> key >> start >> length;
  for (double& level : levels) lines >> level;
  EXPECT_EQ(key, "6");
  EXPECT_NEAR(length, 512, 26);
  EXPECT_NEAR(levels[1], -20, 0.3);
  EXPECT_NEAR(levels[6], -14, 0.3);
  EXPECT_EQ(digits("six.wav"), "6");
}

TEST_F(Dtmf, hearsNothingInNoiseOrOneTone) {
  std::mt19937 random(7);
  std::normal_distribution<float> noise(0, 0.2F);
  std::vector<float> white, tone;
  for (int i = 0; i < 80000; ++i) {
    white.push_back(noise(random));
    tone.push_back(static_cast<float>(0.5 * std::sin(2 * M_PI * 941 * i / 8000.0)));
  }
  write("noise.wav", white, SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  write("tone.wav", tone, SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  write("none.wav", std::vector<short>(), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  for (const char* name : {"noise.wav", "tone.wav", "none.wav"}) EXPECT_EQ(digits(name), "") << name;
}

TEST_F(Dtmf, refusesWhatItCannotDo) {
  write("slow.wav", std::vector<short>(100, 1000), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, 3000);
  expectRefused({{"", "subcommand is required"},
                 {"listen absent.wav", "File does not exist"},
                 {"listen slow.wav", "need 4000 Hz"},
                 {"dial 123", "--output is required"},
                 {"dial 123 -o out.wav --rate 100", "not in range"},
                 {"dial 123 -o out.wav --noise 1", "--noise"},
                 {"dial 12x -o out.wav", "there is no key x"}});
}

}  // namespace
