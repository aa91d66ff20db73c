// What compilers make of the C++ face: the instructions of a direct call, and messages that tell what is wrong.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>

namespace {

std::string output(const std::string& command) {
  std::string text;
  FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return text;
  for (int c; (c = std::fgetc(pipe)) != EOF;) text += static_cast<char>(c);
  pclose(pipe);
  return text;
}

class Compilers : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (std::system((std::string("command -v ") + GetParam() + " >/dev/null").c_str()) != 0) {
      GTEST_SKIP() << "no " << GetParam() << " here";
    }
  }
  static std::string compile(const std::string& how, const std::string& file) {
    return output(std::string(GetParam()) + " -std=c++20 -I" QVXS_INCLUDE_DIR " " + how + " " QVXS_CPP_DIR "/" + file);
  }
};

// The instructions of each function, without labels, directives and its name.
std::map<std::string, std::string> functions(const std::string& assembly) {
  std::map<std::string, std::string> bodies;
  std::istringstream lines(assembly);
  std::string name;
  for (std::string line; std::getline(lines, line);) {
    std::smatch match;
    if (std::regex_match(line, match, std::regex("((?:face|direct)_\\w+):.*"))) {
      name = match[1];
    } else if (line.find(".size") != std::string::npos) {
      name.clear();
    } else if (!name.empty() && std::regex_search(line, std::regex("^\\t[a-z]"))) {
      bodies[name] += std::regex_replace(line, std::regex("\\s*#.*|(?:face|direct)_|\\.L\\w+"), "") + "\n";
    }
  }
  return bodies;
}

TEST_P(Compilers, MakeTheInstructionsOfADirectCall) {
  for (const char* policy : {"-DNDEBUG -DQVX_LENGTHS=2", "-DQVX_LENGTHS=1"}) {
    const std::string assembly = compile(std::string("-O2 -S -o - ") + policy, "same_instructions.cpp");
    const std::map<std::string, std::string> bodies = functions(assembly);
    int pairs = 0;
    for (const auto& [name, body] : bodies) {
      if (name.rfind("direct_", 0) != 0) continue;
      ++pairs;
      const auto face = bodies.find("face_" + name.substr(7));
      ASSERT_NE(face, bodies.end()) << assembly;
      EXPECT_EQ(face->second, body) << name;
      EXPECT_NE(body.find("qvxs"), std::string::npos) << body;
    }
    EXPECT_GE(pairs, 3) << assembly;
  }
}

TEST_P(Compilers, NameTheStemThatLacksTheTypes) {
  std::ifstream file(QVXS_CPP_DIR "/wrong_types.cpp");
  const std::string errors = compile("-fsyntax-only", "wrong_types.cpp");
  std::map<std::string, size_t> expected;
  for (std::string line; std::getline(file, line);) {
    if (line.rfind("  // ", 0) == 0) ++expected[line.substr(5)];
  }
  ASSERT_GT(expected.size(), 8U);
  for (const auto& [message, times] : expected) {
    size_t found = 0;
    for (size_t at = 0; (at = errors.find("error: ", at)) != std::string::npos; ++at) {
      const std::string line = errors.substr(at, errors.find('\n', at) - at);
      found += line.find(message) != std::string::npos;
    }
    const std::string ending = "no matching member function for call to";  // as clang says it
    for (size_t at = 0; message.rfind("no matching function", 0) == 0 && (at = errors.find(ending, at)) != std::string::npos;
         ++at)
      ++found;
    EXPECT_EQ(found, times) << message << "\n" << errors;
  }
}

INSTANTIATE_TEST_SUITE_P(Both, Compilers, testing::Values("g++", "clang++"),
                         [](const auto& info) { return std::string(info.param).substr(0, 1); });

}  // namespace
