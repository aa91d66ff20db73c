// A program run as a user would, in a folder of its own.
#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

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

  std::vector<short> read16s(const std::string& name, int subtype, int channels) const {
    SndfileHandle file(at(name));
    EXPECT_EQ(file.format(), SF_FORMAT_WAV | subtype) << name;
    EXPECT_EQ(file.channels(), channels) << name;
    std::vector<short> samples(static_cast<size_t>(file.frames()) * channels);
    file.readf(samples.data(), file.frames());
    return samples;
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
