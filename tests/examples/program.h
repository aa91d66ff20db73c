// A program run as a user would, in a folder of its own.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <sndfile.hh>
#include <sstream>
#include <string>
#include <vector>

struct Outcome {
  int exitCode;
  std::string out;
  std::string err;
};

class ProgramTest : public ::testing::Test {
 protected:
  explicit ProgramTest(const std::string& program) : program_(program) {
    char folder[] = "/tmp/example.XXXXXX";
    folder_ = mkdtemp(folder);
  }
  ~ProgramTest() override { std::filesystem::remove_all(folder_); }

  std::string at(const std::string& name) const { return folder_ + "/" + name; }

  // Arguments are given as a user would type them in the folder of the files.
  Outcome run(const std::string& arguments, const std::string& wrapped = "%") const {
    std::string command = wrapped;
    command.replace(command.find('%'), 1, program_ + " " + arguments);
    const int status = std::system(("cd " + folder_ + " && " + command + " >out 2>err").c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, text("out"), text("err")};
  }

  // Calls that fail with a message and leave no file. What is silent prints nothing before it knows that it can do all.
  void expectRefused(std::initializer_list<std::pair<const char*, const char*>> calls, bool isSilent = true) const {
    for (const auto& [arguments, message] : calls) {
      const Outcome result = run(arguments);
      EXPECT_GT(result.exitCode, 0) << arguments;
      EXPECT_NE(result.err.find(message), std::string::npos) << arguments << "\n" << result.err;
      EXPECT_TRUE(!isSilent || result.out.empty()) << arguments << "\n" << result.out;
      EXPECT_FALSE(std::filesystem::exists(at("out.wav"))) << arguments;
    }
  }
  // A file that is read as well is not written, a write that fails is reported and leaves nothing.
  void expectOutputsGuarded(const std::string& command, const std::string& source) const {
    const auto size = std::filesystem::file_size(at(source));
    EXPECT_NE(run(command + " " + source + " -o ./" + source).err.find("is named for another file as well"), std::string::npos);
    EXPECT_EQ(std::filesystem::file_size(at(source)), size);
    EXPECT_GT(run(command + " " + source + " -o no/folder.wav").exitCode, 0);
  }
  void expectFailingWritesReported(const std::string& command) const {
    const Outcome result = run(command + " -o full.wav", "(trap '' XFSZ; ulimit -f 8; %)");
    EXPECT_GT(result.exitCode, 0);
    EXPECT_NE(result.err.find("full.wav: "), std::string::npos) << result.err;
    EXPECT_FALSE(std::filesystem::exists(at("full.wav")));
  }
  // What programs that read and write in blocks notice after the first two.
  static std::vector<float> endingInNan() {
    std::vector<float> x(10000, 0.25F);
    x.back() = NAN;
    return x;
  }

  // Interleaved samples.
  template <class T>
  void write(const std::string& name, const std::vector<T>& samples, int format, int channels = 1, int rate = 8000) const {
    SndfileHandle file(at(name), SFM_WRITE, format, channels, rate);
    EXPECT_EQ(file.write(samples.data(), static_cast<sf_count_t>(samples.size())), static_cast<sf_count_t>(samples.size()));
    EXPECT_EQ(file.error(), SF_ERR_NO_ERROR) << file.strError();
  }

  std::vector<short> read16s(const std::string& name, int subtype, int channels) const {
    SndfileHandle file(at(name));
    EXPECT_EQ(file.format(), SF_FORMAT_WAV | subtype) << name;
    EXPECT_EQ(file.channels(), channels) << name;
    std::vector<short> samples(static_cast<size_t>(file.frames()) * channels);
    file.readf(samples.data(), file.frames());
    return samples;
  }

  static std::vector<float> asFloats(const std::vector<short>& samples) {
    std::vector<float> floats;
    for (const short x : samples) floats.push_back(static_cast<float>(x) / 32768);
    return floats;
  }

  std::string text(const std::string& name) const {
    std::stringstream all;
    all << std::ifstream(at(name)).rdbuf();
    return all.str();
  }

 private:
  std::string program_;
  std::string folder_;
};
