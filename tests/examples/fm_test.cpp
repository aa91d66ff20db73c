// The fm program: tones sent and received, by WAV files and raw ones, and recordings made here.
#include <cmath>

#include "program.h"

namespace {

class Fm : public ProgramTest {
 protected:
  Fm() : ProgramTest(PROGRAM) {}

  double ratio(const std::string& arguments) const {
    const Outcome result = run(arguments);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    double dB = -1;
    EXPECT_EQ(std::sscanf(result.out.c_str(), "signal-to-noise ratio %lf dB", &dB), 1) << result.out;
    return dB;
  }
  std::vector<float> chord() const {
    std::vector<float> x(20001);
    for (size_t i = 0; i < x.size(); ++i) {
      const double t = static_cast<double>(i) / 48000;
      x[i] = static_cast<float>(0.3 * std::sin(2 * M_PI * 440 * t) + 0.2 * std::sin(2 * M_PI * 1234 * t) +
                                0.05 * std::sin(2 * M_PI * 3000 * t));
    }
    return x;
  }
};

TEST_F(Fm, receivesWhatItSent) {
  write("audio.wav", chord(), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 48000);
  for (const auto& [options, least] :
       {std::pair("", 40.0), {"--raw", 40.0}, {"--bits 8", 30.0}, {"--raw --bits 8 --deviation 30000", 33.0}}) {
    EXPECT_EQ(run(std::string("transmit audio.wav -o iq ") + options).exitCode, 0);
    EXPECT_GT(ratio(std::string("receive iq -o out.wav --original audio.wav ") + options), least) << options;
  }
  EXPECT_EQ(SndfileHandle(at("out.wav")).samplerate(), 48000);
}

// A carrier that is off by a tone: the tone's sign and frequency follow from the phase alone, whatever the amplitude.
TEST_F(Fm, demodulatesATone) {
  std::vector<short> iq;
  double phase = 0;
  for (int i = 0; i < 480000 / 4; ++i) {
    phase += 2 * M_PI * 9000 * std::sin(2 * M_PI * 1000 * i / 480000.0) / 480000;
    iq.push_back(static_cast<short>(std::lrint(6000 * std::cos(phase))));
    iq.push_back(static_cast<short>(std::lrint(6000 * std::sin(phase))));
  }
  write("tone.wav", iq, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 2, 480000);
  ASSERT_EQ(run("receive tone.wav -o out.wav").exitCode, 0);
  const std::vector<short> y = read16s("out.wav", SF_FORMAT_PCM_16, 1);
  ASSERT_EQ(y.size(), 12000U);
  double re = 0, im = 0, energy = 0;
  for (size_t i = 2400; i < y.size(); ++i) {
    re += y[i] * std::cos(2 * M_PI * static_cast<double>(i) / 48);
    im += y[i] * std::sin(2 * M_PI * static_cast<double>(i) / 48);
    energy += y[i] * double{1.0 * y[i]};
  }
  EXPECT_GT((re * re + im * im) * 2 / 9600 / energy, 0.9995) << "not a pure tone of 1 kHz";
}

TEST_F(Fm, refusesWhatItCannotDo) {
  write("slow.wav", std::vector<short>(100, 1000), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  write("mono.wav", std::vector<short>(100, 1000), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, 480000);
  write("iq.wav", std::vector<short>(100, 1000), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 2, 480000);
  write("none.wav", std::vector<short>(), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, 48000);
  write("nan.wav", std::vector<float>(100, NAN), SF_FORMAT_WAV | SF_FORMAT_FLOAT, 1, 48000);
  expectRefused({{"", "subcommand is required"},
                 {"transmit absent.wav -o out.wav", "File does not exist"},
                 {"transmit slow.wav -o out.wav", "48000 Hz"},
                 {"transmit none.wav -o out.wav", "holds no samples"},
                 {"transmit nan.wav -o out.wav", "not finite numbers"},
                 {"receive slow.wav -o out.wav", "two channels"},
                 {"receive mono.wav -o out.wav", "two channels"},
                 {"receive iq.wav -o out.wav --bits 12", "12 not in"},
                 {"receive iq.wav -o out.wav --original slow.wav", "48000 Hz"}});
  expectOutputsGuarded("receive", "iq.wav");
}

}  // namespace
