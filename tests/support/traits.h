// What is known of each function besides its type: the rows of traits/, whose README describes their form.
#pragma once

#include <map>
#include <set>

#include "support/exports.h"

namespace tests {

// Gives the numbers that an expression names.
using Shape = std::function<int64_t(const std::string&)>;
int64_t evaluate(const std::string& expression, const Shape& shape);

struct Range {
  double least, most;              // usually
  double seldomLeast, seldomMost;  // sometimes
  bool isChoice;
  std::vector<int64_t> choices;
};

// One thing that is refused, or taken although it looks wrong.
struct Refusal {
  enum Kind { kNull, kForeignRecord, kValue, kContent } kind;
  std::vector<std::string> parameters;  // none: all that are left
  std::vector<double> values;
  bool below1;  // any value below 1 of the parameter's type
  QvxStatus status;
};

struct Traits {
  std::vector<std::string> names;
  std::map<std::string, std::string> extents, work, fills, bounds;
  std::map<std::string, Range> ranges;
  std::set<std::string> optional, scratch, strangers;
  std::vector<Refusal> refusals;
  std::set<std::string> flags;
  std::string exact;

  bool is(const char* flag) const { return flags.count(flag) != 0; }
  // What all functions have, where the row is silent.
  const std::string& extentOf(const std::string& parameter) const;
  const Range* rangeOf(const std::string& parameter) const;
  const std::string* boundOf(const std::string& parameter) const;  // the argument that one stays below
};

// All rows, and the first that is for a function; null if there is none.
const std::vector<Traits>& allTraits();
const Traits* findTraits(const Export& e);
// The same where there has to be one.
const Traits& traitsOf(const Export& e);

}  // namespace tests
