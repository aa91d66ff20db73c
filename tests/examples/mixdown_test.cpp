// The mixdown program against a mix computed here, one sample at a time.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <tuple>

#include "program.h"

namespace {

// Samples of full scale 1, interleaved.
struct Audio {
  int channels;
  std::vector<double> samples;
};

double gainOf(double db) { return static_cast<float>(std::pow(10, db / 20)); }

// Sums and products of two floats are exact, or nearly so, in double: one rounding to float is what float arithmetic does.
double rounded(double x) { return static_cast<float>(x); }

class Mixdown : public ProgramTest {
 protected:
  Mixdown() : ProgramTest(PROGRAM) {}

  // Random samples, exact in the file's type; peak 1.5 goes beyond full scale in float files.
  Audio write(const std::string& name, int subtype, int channels, int frames, int rate = 8000) {
    const bool isFloat = subtype == SF_FORMAT_FLOAT || subtype == SF_FORMAT_DOUBLE;
    const double step = subtype == SF_FORMAT_PCM_U8 ? 0x1p-7 : subtype == SF_FORMAT_PCM_16 ? 0x1p-15 : 0x1p-23;
    const double peak = isFloat ? 1.5 : 1 - step;
    std::uniform_real_distribution<double> any(-peak, peak);
    Audio audio{channels, std::vector<double>(static_cast<size_t>(channels) * frames)};
    for (double& x : audio.samples) x = std::nearbyint(any(random_) / step) * step;
    if (isFloat) std::tie(audio.samples[0], audio.samples[1]) = std::pair(1.0, -1.0);  // beyond 16 bits, and just not
    std::vector<int> ints;  // libsndfile takes a double of 1 for 32767; ints keep their bits
    for (const double x : audio.samples) ints.push_back(isFloat ? 0 : static_cast<int>(x * 0x1p31));
    if (isFloat) ProgramTest::write(name, audio.samples, SF_FORMAT_WAV | subtype, channels, rate);
    else ProgramTest::write(name, ints, SF_FORMAT_WAV | subtype, channels, rate);
    return audio;
  }

  // Noise of 80000 samples, of whose file the second half is missing.
  void writeCut(const std::string& name) {
    const Audio noise = write("noise.wav", SF_FORMAT_FLOAT, 1, 80000);
    SndfileHandle(at(name), SFM_WRITE, SF_FORMAT_OGG | SF_FORMAT_VORBIS, 1, 8000).writef(noise.samples.data(), 80000);
    std::filesystem::resize_file(at(name), std::filesystem::file_size(at(name)) / 2);
  }

  std::vector<short> readMix(int channels) const { return read16s("mix.wav", SF_FORMAT_PCM_16, channels); }

  // The last number before the file's name: its clipped samples.
  static long clippedOf(const std::string& table, const std::string& name) {
    std::istringstream lines(table);
    for (std::string line; std::getline(lines, line);) {
      const size_t end = line.rfind("  " + name);
      if (end != std::string::npos) return std::stol(line.substr(line.rfind(' ', end - 1)));
    }
    return -1;
  }

  std::mt19937 random_{20};
};

// Every type of sample that is decoded in its own way, mono among stereo, lengths that end within a block and on its boundary,
// silence after the shorter files, saturation, all round modes.
TEST_F(Mixdown, equalsTheSumComputedSampleBySample) {
  const Audio tracks[] = {write("a.wav", SF_FORMAT_PCM_16, 2, 10001), write("b.wav", SF_FORMAT_PCM_24, 1, 8192),
                          write("c.wav", SF_FORMAT_FLOAT, 2, 4096), write("d.wav", SF_FORMAT_DOUBLE, 2, 5),
                          write("e.wav", SF_FORMAT_PCM_U8, 1, 9000)};
  const double gains[] = {-3, 2.5, 0, 6, -0.1};
  std::vector<double> sum(2 * 10001);
  std::vector<long> clipped;
  const auto beyond = [](double x) { return x < -1 || x > 32767.0 / 32768; };
  for (size_t t = 0; t < std::size(tracks); ++t) {
    const size_t spread = 2 / tracks[t].channels;
    clipped.push_back(0);
    for (size_t i = 0; i < spread * tracks[t].samples.size(); ++i) {
      const double x = rounded(tracks[t].samples[i / spread] * gainOf(gains[t]));
      clipped.back() += i % spread == 0 && beyond(x);
      sum[i] = rounded(sum[i] + x);
    }
  }
  clipped.push_back(std::count_if(sum.begin(), sum.end(), beyond));
  ASSERT_GT(clipped.back(), 100);

  double (*const toward[])(double) = {std::nearbyint, std::trunc, std::round};
  const char* const names[] = {"nearest", "zero", "away"};
  for (int mode = 0; mode < 3; ++mode) {
    const auto result =
        run("-g -3 -g 2.5 -g 0 -g 6 -g -0.1 a.wav b.wav c.wav d.wav e.wav -o mix.wav -r " + std::string(names[mode]));
    ASSERT_EQ(result.exitCode, 0) << result.err;
    const std::vector<short> mix = readMix(2);
    ASSERT_EQ(mix.size(), sum.size());
    for (size_t i = 0; i < mix.size(); ++i) {
      ASSERT_EQ(mix[i], std::clamp(toward[mode](sum[i] * 32768), -32768.0, 32767.0)) << "sample " << i << " to " << names[mode];
    }
    const char* const files[] = {"a.wav", "b.wav", "c.wav", "d.wav", "e.wav", "mix.wav"};
    for (int f = 0; f < 6; ++f) EXPECT_EQ(clippedOf(result.out, files[f]), clipped[f]) << files[f] << "\n" << result.out;
  }
}

// A full-scale square wave is 0 dB, and half of it 6.02 dB less, in peak as in RMS; silence has no level.
TEST_F(Mixdown, levelsAreRelativeToFullScale) {
  for (const auto& [name, amplitude] : {std::pair("full.wav", -32768), std::pair("none.wav", 0)}) {
    ProgramTest::write(name, std::vector<short>(5000, static_cast<short>(amplitude)), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  }
  const auto result = run("-g -6.0206 full.wav none.wav -o mix.wav");
  EXPECT_EQ(result.out,
            " gain dB  peak dBFS  RMS dBFS   clipped  file\n"
            "   -6.02      -6.02     -6.02         0  full.wav\n"
            "    0.00       -inf      -inf         0  none.wav\n"
            "              -6.02     -6.02         0  mix.wav\n");
}

TEST_F(Mixdown, refusesWhatItCannotMix) {
  write("mono.wav", SF_FORMAT_PCM_16, 1, 100);
  write("stereo.wav", SF_FORMAT_PCM_16, 2, 100);
  write("three.wav", SF_FORMAT_PCM_16, 3, 100);
  write("fast.wav", SF_FORMAT_PCM_16, 1, 100, 44100);
  std::ofstream(at("text.wav")) << "no sound at all";
  ProgramTest::write("nan.wav", endingInNan(), SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  expectRefused({{"mono.wav nan.wav -o out.wav", "nan.wav: holds samples that are not finite numbers"},
                 {"absent.wav -o out.wav", "File does not exist: absent.wav"},
                 {"mono.wav text.wav -o out.wav", "text.wav: Format not recognised"},
                 {"mono.wav fast.wav -o out.wav", "fast.wav has 44100 Hz, but mono.wav has 8000 Hz"},
                 {"mono.wav stereo.wav three.wav -o out.wav", "stereo.wav has 2 channels, but three.wav has 3 channels"},
                 {"mono.wav -g 1 -g 2 -o out.wav", "more gains than files"},
                 {"mono.wav -g loud -o out.wav", "loud"},
                 {"mono.wav -g 0 -g nan -o out.wav", "--gain: nan is not a finite number"},
                 {"mono.wav -r up -o out.wav", "up not in"},
                 {"mono.wav", "--output is required"}});
  expectOutputsGuarded("", "mono.wav");
}

// The length of such a file is not known before its end.
TEST_F(Mixdown, mixesWhatIsLeftOfACutFile) {
  writeCut("cut.oga");
  const auto result = run("cut.oga -o mix.wav");
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_GT(readMix(1).size(), 20000u);
}

TEST_F(Mixdown, writesThatFailAreReported) {
  write("mono.wav", SF_FORMAT_PCM_16, 1, 40000);
  expectFailingWritesReported("mono.wav");
}

TEST_F(Mixdown, showsProgressOfLongFilesOnTerminalsOnly) {
  const int terminal = posix_openpt(O_RDWR);
  if (terminal < 0) GTEST_SKIP() << "this system has no pseudo-terminals";
  close(terminal);
  writeCut("cut.oga");
  write("long.wav", SF_FORMAT_PCM_16, 1, 61 * 8000);
  write("short.wav", SF_FORMAT_PCM_16, 1, 59 * 8000);
  const std::string onTerminal = "script -qec '%' /dev/null </dev/null";
  EXPECT_NE(run("long.wav -o mix.wav", onTerminal).out.find("100 %"), std::string::npos);
  EXPECT_EQ(run("short.wav -o mix.wav", onTerminal).out.find("100 %"), std::string::npos);
  EXPECT_EQ(run("cut.oga -o mix.wav", onTerminal).out.find(" %"), std::string::npos);
  EXPECT_EQ(run("long.wav -o mix.wav").err, "");
}

}  // namespace
