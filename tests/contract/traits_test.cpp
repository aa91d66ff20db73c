// Every row of traits/ has a function, and every function a row.
#include <fnmatch.h>
#include <gtest/gtest.h>

#include "support/traits.h"

namespace {

using namespace tests;

TEST(Traits, EveryFunctionHasARow) {
  for (const Export& e : exportTable()) {
    const Traits* row = findTraits(e);
    ASSERT_NE(row, nullptr) << e.name;
    EXPECT_TRUE(e.call == nullptr || !row->refusals.empty()) << e.name << " refuses nothing";
  }
}

// A pattern that matches no function is a mistake, and so is a parameter that no function of the row has.
TEST(Traits, EveryRowHasAFunction) {
  for (const Traits& row : allTraits()) {
    if (row.names[0] == "*") continue;
    std::vector<const Export*> mine;
    for (const Export& e : exportTable()) {
      if (findTraits(e) == &row) mine.push_back(&e);
    }
    for (const std::string& pattern : row.names) {
      const auto fits = [&](const Export* e) { return fnmatch(pattern.c_str(), e->name.c_str() + 4, 0) == 0; };
      EXPECT_TRUE(std::any_of(mine.begin(), mine.end(), fits)) << pattern;
    }
    const auto expectParameter = [&](const std::string& name) {
      const auto has = [&](const Export* e) { return e->has(name); };
      EXPECT_TRUE(name == "*" || std::any_of(mine.begin(), mine.end(), has)) << row.names[0] << ", " << name;
    };
    for (const auto& [name, expression] : row.extents) expectParameter(name);
    for (const auto& [name, how] : row.fills) expectParameter(name);
    for (const auto& [name, range] : row.ranges) expectParameter(name);
    for (const std::string& name : row.optional) expectParameter(name);
  }
}

// What the fuzzer computes itself: scaled sums, differences and products of integers of up to 32 bits.
TEST(Traits, TheOracleKnowsItsTypes) {
  size_t functions = 0;
  for (const Export& e : exportTable()) {
    const std::string& how = traitsOf(e).exact;
    if (how.empty()) continue;
    ++functions;
    EXPECT_TRUE(how == "sum" || how == "difference" || how == "product") << e.name;
    EXPECT_TRUE(e.has("scaleFactor")) << e.name;
    for (const Parameter& p : e.parameters) {
      const PartType type(p.pointee());
      if (!p.isPointer()) continue;
      EXPECT_TRUE(!type.isFloat && !type.isComplex && type.bytes <= 4) << e.name;
      EXPECT_EQ(p.pointee(), e.parameters[0].pointee()) << e.name;
    }
  }
  EXPECT_GT(functions, 20U);
}

}  // namespace
