// The tests that docs/contracts.md names exist: else a promise whose test was renamed or removed would go untested.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

namespace {

std::string textOf(const std::filesystem::path& file) {
  std::ifstream in(file);
  return {std::istreambuf_iterator<char>(in), {}};
}

// Both parts of every match, with a dot between them.
std::set<std::string> names(const std::string& text, const char* pattern) {
  const std::regex named(pattern);
  std::set<std::string> found;
  for (std::sregex_iterator i(text.begin(), text.end(), named), end; i != end; ++i) found.insert(i->str(1) + "." + i->str(2));
  return found;
}

TEST(Contracts, NameTestsThatExist) {
  std::set<std::string> tests;
  for (const auto& file : std::filesystem::recursive_directory_iterator(QVXS_DOCS_DIR "/../tests")) {
    if (file.path().extension() == ".cpp")
      tests.merge(names(textOf(file.path()), R"(\n(?:TYPED_)?TEST(?:_F|_P)?\((\w+), (\w+)\))"));
  }
  const std::set<std::string> promised = names(textOf(QVXS_DOCS_DIR "/contracts.md"), R"(`([A-Z]\w+)\.([A-Z]\w+)`)");
  EXPECT_GT(promised.size(), 8U);
  for (const std::string& name : promised) EXPECT_EQ(tests.count(name), 1U) << name;
}

}  // namespace
