// The align program on noise that is later, earlier, inverted, or not there.
#include <random>

#include "program.h"

namespace {

class Align : public ProgramTest {
 protected:
  Align() : ProgramTest(PROGRAM) {}

  // A stretch of one noise, from a place on.
  void writeNoise(const std::string& name, size_t from, size_t length, int sign = 1) const {
    std::mt19937 random(1);
    std::vector<short> all(40000);
    for (short& v : all) v = static_cast<short>(static_cast<int>(random() % 20001) - 10000);
    std::vector<short> samples(all.begin() + static_cast<long>(from), all.begin() + static_cast<long>(from + length));
    for (short& v : samples) v = static_cast<short>(sign * v);
    write(name, samples, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  }
  void expectDelay(const char* arguments, int samples, bool isInverted = false) const {
    const Outcome outcome = run(arguments);
    ASSERT_EQ(outcome.exitCode, 0) << outcome.err;
    char wanted[64];
    std::snprintf(wanted, sizeof wanted, "delay %d samples, %.3f ms,", samples, samples / 8.0);
    EXPECT_EQ(outcome.out.rfind(wanted, 0), 0U) << outcome.out;
    EXPECT_EQ(outcome.out.find("inverted") != std::string::npos, isInverted) << outcome.out;
  }
};

TEST_F(Align, findsTheDelay) {
  writeNoise("early.wav", 2000, 20000);
  writeNoise("late.wav", 1500, 15000);  // begins 500 samples earlier in the noise, so that all of it comes 500 later
  writeNoise("inverted.wav", 2003, 9000, -1);
  expectDelay("early.wav late.wav", 500);
  expectDelay("late.wav early.wav", -500);
  expectDelay("early.wav early.wav", 0);
  expectDelay("early.wav inverted.wav -m 10", -3, true);
}

TEST_F(Align, refusesWhatItCannotUse) {
  writeNoise("noise.wav", 0, 100);
  write("silent.wav", std::vector<short>(10, 0), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  write("other.wav", std::vector<short>(10, 1), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 1, 44100);
  expectRefused({{"noise.wav silent.wav", "silent.wav: silent"},
                 {"noise.wav other.wav", "other.wav: another sampling rate"},
                 {"noise.wav missing.wav", "missing.wav"},
                 {"noise.wav noise.wav -m 0", "0 not in range"},
                 {"noise.wav noise.wav -m nan", "--most: nan is not a finite number"}});
}

}  // namespace
