// The g711 program against the codec of libsndfile, which was written by others.
#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <random>

#include "program.h"

namespace {

struct Law {
  const char* name;
  int subtype;
};
const Law kLaws[] = {{"a", SF_FORMAT_ALAW}, {"mu", SF_FORMAT_ULAW}};

// A row of the table: A-law and mu-law.
struct Row {
  double dbfs;
  double dbm0[2];
  double snr[2];
  long blocks;
};

class G711 : public ProgramTest {
 protected:
  G711() : ProgramTest(PROGRAM) {}

  // The bytes of the file as libsndfile finds them, after whatever header there is.
  static std::string codesIn(SndfileHandle file) {
    std::string codes(static_cast<size_t>(file.frames()) * file.channels(), '\0');
    EXPECT_EQ(file.readRaw(codes.data(), static_cast<sf_count_t>(codes.size())), static_cast<sf_count_t>(codes.size()));
    return codes;
  }

  // libsndfile's codes, of samples from 0 on. Below, G.711 mirrors the magnitude -1 - x, and libsndfile -x.
  std::string oracleCodes(const std::vector<short>& samples, const Law& law) const {
    std::vector<short> magnitudes;
    for (const short x : samples) magnitudes.push_back(static_cast<short>(x < 0 ? -1 - x : x));
    write("oracle", magnitudes, SF_FORMAT_RAW | law.subtype);
    std::string codes = text("oracle");
    for (size_t i = 0; i < codes.size(); ++i) codes[i] = static_cast<char>(codes[i] ^ (samples[i] < 0 ? 0x80 : 0));
    return codes;
  }

  void expectSuccess(const std::string& arguments) const {
    const Outcome result = run(arguments);
    EXPECT_EQ(result.exitCode, 0) << arguments << "\n" << result.err;
    EXPECT_EQ(result.out + result.err, "") << arguments;
  }

  std::map<std::string, Row> table(const std::string& arguments) const {
    const Outcome result = run("snr " + arguments);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    std::istringstream lines(result.out);
    std::map<std::string, Row> rows;
    std::string line;
    for (int heading = 0; heading < 2; ++heading) std::getline(lines, line);
    while (std::getline(lines, line)) {
      char name[8];
      Row row;
      EXPECT_EQ(std::sscanf(line.c_str(), "%7s %lf %lf %lf %lf %lf %ld", name, &row.dbfs, &row.dbm0[0], &row.snr[0], &row.dbm0[1],
                            &row.snr[1], &row.blocks),
                7)
          << line;
      rows[name] = row;
    }
    return rows;
  }

  // What libsndfile's coder and decoder leave of samples of full scale 1.
  double oracleSnr(const std::vector<double>& signal, const Law& law) const {
    std::vector<short> samples;
    for (const double x : signal) samples.push_back(static_cast<short>(std::clamp(std::round(x * 32768), -32767.0, 32767.0)));
    write("oracle.wav", samples, SF_FORMAT_WAV | law.subtype);
    const std::vector<short> decoded = read16s("oracle.wav", law.subtype, 1);
    double energy = 0;
    double noise = 0;
    for (size_t i = 0; i < signal.size(); ++i) {
      energy += signal[i] * signal[i];
      noise += std::pow(decoded[i] / 32768.0 - signal[i], 2);
    }
    return 10 * std::log10(energy / noise);
  }

  std::mt19937 random_{711};
};

std::vector<double> sine(double dbfs, size_t len) {
  std::vector<double> samples(len);
  for (size_t i = 0; i < len; ++i) samples[i] = std::pow(10, dbfs / 20) * std::sin(2 * M_PI * 0.123456 * static_cast<double>(i));
  return samples;
}

// All samples of 16 bits, in a length that ends within a block; as floats too, between the steps and beyond full scale.
// Interleaved channels and the rate stay what they are.
TEST_F(G711, codesAreThoseOfAnIndependentCodec) {
  std::vector<short> all(65536);
  std::iota(all.begin(), all.end(), short{-32768});
  all.resize(all.size() + 2, 12345);
  std::vector<float> floats;
  std::vector<short> nearest;
  std::uniform_real_distribution<float> between(-0.49F, 0.49F);
  std::uniform_real_distribution<float> beyond(1, 2);
  for (const short x : all) {
    if (x == 0) continue;  // mu-law has two of them
    floats.push_back((static_cast<float>(x) + between(random_)) / 32768);
    nearest.push_back(x);
    floats.push_back(std::copysign(beyond(random_), floats.back()));
    nearest.push_back(x < 0 ? -32768 : 32767);
  }
  write("16s.wav", all, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 2, 16000);
  write("24s.flac", all, SF_FORMAT_FLAC | SF_FORMAT_PCM_24, 2, 16000);
  write("32f.wav", floats, SF_FORMAT_WAV | SF_FORMAT_FLOAT, 2, 16000);
  write("64f.wav", std::vector<double>(floats.begin(), floats.end()), SF_FORMAT_WAV | SF_FORMAT_DOUBLE, 2, 16000);
  for (const Law& law : kLaws) {
    for (const auto& [name, samples] :
         {std::pair("16s.wav", &all), {"24s.flac", &all}, {"32f.wav", &nearest}, {"64f.wav", &nearest}}) {
      SCOPED_TRACE(std::string(name) + ", " + law.name);
      const std::string expected = oracleCodes(*samples, law);
      const std::string command = "encode " + std::string(name) + " --law " + law.name;
      expectSuccess(command + " -o codes.wav");
      SndfileHandle wav(at("codes.wav"));
      EXPECT_EQ(wav.format(), SF_FORMAT_WAV | law.subtype);
      EXPECT_EQ(wav.channels(), 2);
      EXPECT_EQ(wav.samplerate(), 16000);
      EXPECT_TRUE(codesIn(wav) == expected);
      expectSuccess(command + " -o codes.raw --raw");
      EXPECT_TRUE(text("codes.raw") == expected);
    }
  }
}

// Every code, from files of their own and from raw ones.
TEST_F(G711, decodesWhatAnIndependentCodecDecodes) {
  std::string codes(9998, '\0');
  std::iota(codes.begin(), codes.end(), '\0');
  std::ofstream(at("codes.raw")) << codes;
  for (const Law& law : kLaws) {
    SCOPED_TRACE(law.name);
    for (const int channels : {1, 2}) {
      for (const int container : {SF_FORMAT_WAV, SF_FORMAT_AU}) {
        SndfileHandle(at("codes"), SFM_WRITE, container | law.subtype, channels, 44100).writeRaw(codes.data(), 9998);
        std::vector<short> expected(9998);
        SndfileHandle(at("codes")).read(expected.data(), 9998);
        expectSuccess("decode codes -o linear.wav");
        EXPECT_TRUE(read16s("linear.wav", SF_FORMAT_PCM_16, channels) == expected) << channels << " channels";
        EXPECT_EQ(SndfileHandle(at("linear.wav")).samplerate(), 44100);
        expectSuccess("decode --raw --rate 11025 --channels " + std::to_string(channels) + " --law " + law.name +
                      " codes.raw -o linear.wav");
        EXPECT_TRUE(read16s("linear.wav", SF_FORMAT_PCM_16, channels) == expected) << channels << " channels, raw";
        EXPECT_EQ(SndfileHandle(at("linear.wav")).samplerate(), 11025);
      }
    }
  }
}

// Between sines of the same level phases differ, and so does the ratio, by less than 0.1 dB; 0 dBFS is 3.14 dBm0 in A-law.
TEST_F(G711, ratiosOfSinesAreThoseOfTelephony) {
  const auto rows = table("--sine");
  ASSERT_EQ(rows.size(), 13U);
  for (int level = -60; level <= 0; level += 5) {
    const Row& row = rows.at(std::to_string(level));
    EXPECT_NEAR(row.dbfs, level, 0.011);
    EXPECT_NEAR(row.dbm0[0], level + 3.14, 0.011);
    EXPECT_NEAR(row.dbm0[1], level + 3.17 + 20 * std::log10(32768.0 / (4 * 8159)), 0.011);
    for (const int law : {0, 1}) {
      SCOPED_TRACE(std::string(kLaws[law].name) + "-law at " + std::to_string(level));
      EXPECT_NEAR(row.snr[law], oracleSnr(sine(level, 100000), kLaws[law]), 0.1);
      // G.712 asks for 33 dB down to -30 dBm0, then 27 dB at -40 and 22 dB at -45, of whole connections.
      const double dbm0 = row.dbm0[law];
      if (dbm0 >= -45) {
        EXPECT_GT(row.snr[law], dbm0 >= -30 ? 33 : dbm0 >= -40 ? 33 + 0.6 * (dbm0 + 30) : 27 + dbm0 + 40);
      }
      EXPECT_LT(row.snr[law], 39.5);
    }
  }
}

// Half a second at each of three levels, silence between them; the last block is a short one.
TEST_F(G711, ratiosOfFilesAreThoseOfTheirBlocks) {
  std::vector<double> signal;
  for (const double level : {-10.5, -41.0, 4.0}) {
    const std::vector<double> part = sine(level, 4000);
    signal.insert(signal.end(), part.begin(), part.end());
    signal.resize(signal.size() + 1600);
  }
  const std::vector<double> tail = sine(-41, 100);
  signal.insert(signal.end(), tail.begin(), tail.end());
  write("tones.wav", signal, SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  const auto rows = table("tones.wav");
  ASSERT_EQ(rows.size(), 4U);
  const std::map<std::string, std::pair<double, long>> expected = {{"-10", {-10.5, 25}}, {"-40", {-41, 26}}, {"5", {4, 25}}};
  for (const auto& [name, of] : expected) {
    const Row& row = rows.at(name);
    EXPECT_NEAR(row.dbfs, of.first, 0.03) << name;
    EXPECT_EQ(row.blocks, of.second) << name;
    for (const int law : {0, 1}) EXPECT_NEAR(row.snr[law], oracleSnr(sine(of.first, 4000), kLaws[law]), 0.1) << name;
  }
  EXPECT_EQ(rows.at("all").blocks, 76);
  for (const int law : {0, 1}) EXPECT_NEAR(rows.at("all").snr[law], oracleSnr(signal, kLaws[law]), 0.05);
}

TEST_F(G711, filesWithoutSamplesStaySo) {
  write("none.wav", std::vector<short>(), SF_FORMAT_WAV | SF_FORMAT_PCM_16, 2, 16000);
  std::ofstream(at("none.raw"));
  expectSuccess("encode none.wav -o codes.wav");
  EXPECT_EQ(codesIn(SndfileHandle(at("codes.wav"))), "");
  expectSuccess("decode codes.wav -o linear.wav");
  EXPECT_TRUE(read16s("linear.wav", SF_FORMAT_PCM_16, 2).empty());
  expectSuccess("decode none.raw --raw -o linear.wav");
  EXPECT_TRUE(read16s("linear.wav", SF_FORMAT_PCM_16, 1).empty());
}

// What is missing at the end of a file costs no more than the frame that it cuts.
TEST_F(G711, cutFilesEndWithTheirLastWholeFrame) {
  const std::vector<short> samples(200, 1000);
  write("cut.wav", samples, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 2);
  std::filesystem::resize_file(at("cut.wav"), std::filesystem::file_size(at("cut.wav")) - 6);
  expectSuccess("encode cut.wav -o codes.raw --raw");
  EXPECT_EQ(text("codes.raw").size(), 196U);
  std::ofstream(at("codes.raw"), std::ios::app) << '\x55';
  expectSuccess("decode codes.raw --raw --channels 2 -o linear.wav");
  EXPECT_EQ(read16s("linear.wav", SF_FORMAT_PCM_16, 2).size(), 196U);
}

TEST_F(G711, refusesWhatItCannotDo) {
  write("mono.wav", std::vector<short>(100, 1000), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  write("silence.wav", std::vector<short>(100), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  write("none.wav", std::vector<short>(), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  std::ofstream(at("text.wav")) << "no sound at all";
  std::ofstream(at("empty.wav"));
  std::filesystem::copy(at("mono.wav"), at("cut.wav"));
  std::filesystem::resize_file(at("cut.wav"), 20);
  write("nan.wav", endingInNan(), SF_FORMAT_WAV | SF_FORMAT_FLOAT);
  expectRefused({{"", "subcommand is required"},
                 {"encode nan.wav -o out.wav", "nan.wav: holds samples that are not finite numbers"},
                 {"encode absent.wav -o out.wav", "File does not exist: absent.wav"},
                 {"encode text.wav -o out.wav", "text.wav: Format not recognised"},
                 {"encode empty.wav -o out.wav", "empty.wav: "},
                 {"encode cut.wav -o out.wav", "cut.wav: "},
                 {"encode mono.wav", "--output is required"},
                 {"encode mono.wav -o out.wav --law b", "b not in"},
                 {"decode mono.wav -o out.wav", "mono.wav: holds neither A-law nor mu-law codes"},
                 {"decode mono.wav -o out.wav --rate 8000", "requires --raw"},
                 {"decode mono.wav -o out.wav --raw --channels 0", "0 not in range"},
                 {"snr", "Exactly 1 option"},
                 {"snr --sine mono.wav", "Exactly 1 option"},
                 {"snr text.wav", "text.wav: Format not recognised"},
                 {"snr silence.wav", "silence.wav: there is nothing but silence"},
                 {"snr none.wav", "none.wav: there is nothing but silence"}});
  expectOutputsGuarded("encode", "mono.wav");
}

TEST_F(G711, writesThatFailAreReported) {
  write("long.wav", std::vector<short>(40000, 1000), SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  expectFailingWritesReported("encode long.wav");
  expectSuccess("encode long.wav -o codes.wav");
  expectFailingWritesReported("decode codes.wav");
}

}  // namespace
