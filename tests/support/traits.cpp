#include "support/traits.h"

#include <fnmatch.h>

#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unordered_map>

namespace tests {

namespace {

[[noreturn]] void fail(const std::string& what) {
  std::fprintf(stderr, "traits: %s\n", what.c_str());
  std::abort();
}

std::vector<std::string> split(const std::string& text, char at) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, at);) {
    if (!part.empty()) parts.push_back(part);
  }
  return parts;
}
std::pair<std::string, std::string> cut(const std::string& text, const char* at) {
  const size_t found = text.find(at);
  if (found == std::string::npos) fail(text + " has no " + at);
  return {text.substr(0, found), text.substr(found + std::strlen(at))};
}

// The statuses by their names without qvxStat, as the header has them.
QvxStatus statusOf(const std::string& name) {
  static const auto all = [] {
    std::map<std::string, int> values;
    std::ifstream header(QVXS_INCLUDE_DIR "/qvx/qvxdefs.h");
    for (std::string line; std::getline(header, line);) {
      const size_t from = line.find("qvxStat"), equals = line.find(" = ");
      if (from != line.npos && equals != line.npos && from < equals)
        values[line.substr(from + 7, line.find(' ', from) - from - 7)] = std::atoi(line.c_str() + equals + 3);
    }
    return values;
  }();
  const auto found = all.find(name);
  if (found == all.end()) fail("no status " + name);
  return static_cast<QvxStatus>(found->second);
}

double numberOf(const std::string& text) {
  return text == "min" ? INT_MIN : text == "max" ? INT_MAX : text == "nan" ? NAN : std::stod(text);
}

Range rangeOf(const std::string& text) {
  Range range = {0, 0, 0, 0, text[0] == '{', {}};
  if (range.isChoice) {
    for (const std::string& value : split(text.substr(1, text.size() - 2), ',')) range.choices.push_back(std::stoll(value));
    return range;
  }
  const std::vector<std::string> both = split(text, '/');
  const auto ends = [](const std::string& part) {
    const auto [least, most] = cut(part, "..");
    return std::pair(std::stod(least), std::stod(most));
  };
  std::tie(range.least, range.most) = ends(both.front());
  std::tie(range.seldomLeast, range.seldomMost) = ends(both.back());
  return range;
}

Refusal refusalOf(const std::string& text) {
  if (text.rfind("null", 0) == 0) {
    return {Refusal::kNull,
            text == "null" ? std::vector<std::string>() : split(cut(text, ":").second, ','),
            {},
            false,
            qvxStatNullPtr};
  }
  if (text == "foreign") return {Refusal::kForeignRecord, {}, {}, false, qvxStatContextMismatch};
  const auto [what, status] = cut(text, ":");
  Refusal refusal = {Refusal::kValue, {}, {}, what.find('<') != what.npos, statusOf(status)};
  const auto [name, values] = cut(what, refusal.below1 ? "<" : "=");
  refusal.parameters = {name[0] == '*' ? name.substr(1) : name};
  if (name[0] == '*') refusal.kind = Refusal::kContent;
  if (values == "null") return {Refusal::kNull, refusal.parameters, {}, false, refusal.status};
  for (const std::string& value : split(values, '|')) refusal.values.push_back(numberOf(value));
  return refusal;
}

void read(const std::string& line, Traits& row) {
  std::istringstream words(line);
  std::string key;
  words >> key;
  bool isFlag = true;
  for (std::string word; words >> word; isFlag = false) {
    const auto put = [&](auto& map, auto valueOf) {
      const auto [name, value] = cut(word, "=");
      map[name] = valueOf(value);
    };
    const auto same = [](const std::string& value) { return value; };
    if (key == "extent") put(row.extents, same);
    else if (key == "work") put(row.work, same);
    else if (key == "fill") put(row.fills, same);
    else if (key == "below") put(row.bounds, same);
    else if (key == "without") row.strangers.insert(word);
    else if (key == "range") put(row.ranges, rangeOf);
    else if (key == "optional") row.optional.insert(word);
    else if (key == "scratch") row.scratch.insert(word);
    else if (key == "refuses") row.refusals.push_back(refusalOf(word));
    else if (key == "exact") row.exact = word;
    else fail("what is " + key + "?");
  }
  static const std::set<std::string> flags = {"allocates", "apart", "midway",  "rounds", "tame",
                                              "whole",     "modal", "threads", "forms"};
  if (isFlag && flags.count(key) == 0) fail("what is " + key + "?");
  if (isFlag) row.flags.insert(key);
}

const Traits& commonTraits() {
  static const Traits* const common = [] {
    for (const Traits& row : allTraits()) {
      if (row.names[0] == "*") return &row;
    }
    fail("no row for all functions");
  }();
  return *common;
}

// + and -, then * and /, then ^, over numbers, names, parentheses and max(), as steps on a stack.
class Expression {
 public:
  explicit Expression(const std::string& text) : text_(text) {
    sum();
    if (at_ != text_.size()) fail("what is " + text_ + "?");
  }
  int64_t value(const Shape& shape) const {
    int64_t stack[16];
    int64_t* top = stack;
    for (const Step& step : steps_) {
      if (step.what == kNumber) *top++ = step.number;
      else if (step.what == kName) *top++ = shape(step.name);
      else --top, top[-1] = applied(step.what, top[-1], top[0]);
    }
    return stack[0];
  }

 private:
  enum What { kNumber = '0', kName = 'a', kMost = 'm' };
  struct Step {
    int what;
    int64_t number;
    std::string name;
  };

  static int64_t applied(int what, int64_t a, int64_t b) {
    switch (what) {
      case '+':
        return a + b;
      case '-':
        return a - b;
      case '*':
        return a * b;
      case '/':
        return a / std::max<int64_t>(b, 1);
      case '^':
        return static_cast<int64_t>(std::pow(a, b));
      default:
        return std::max(a, b);
    }
  }
  bool take(char c) { return at_ < text_.size() && text_[at_] == c ? ++at_, true : false; }
  template <class Operand> void chain(const char* operators, Operand operand) {
    for ((this->*operand)(); at_ < text_.size() && std::strchr(operators, text_[at_]) != nullptr;) {
      const char what = text_[at_++];
      (this->*operand)();
      steps_.push_back({what, 0, ""});
    }
  }
  void sum() { chain("+-", &Expression::product); }
  void product() { chain("*/", &Expression::power); }
  void power() { chain("^", &Expression::atom); }
  void atom() {
    if (take('(')) return sum(), static_cast<void>(take(')'));
    const size_t from = at_;
    while (at_ < text_.size() && (std::isalnum(static_cast<unsigned char>(text_[at_])) || text_[at_] == '.')) ++at_;
    const std::string name = text_.substr(from, at_ - from);
    if (name.empty()) fail("what is " + text_ + "?");
    if (std::isdigit(static_cast<unsigned char>(name[0]))) return steps_.push_back({kNumber, std::stoll(name), ""});
    if (name != "max" || !take('(')) return steps_.push_back({kName, 0, name});
    sum();
    while (take(',')) sum(), steps_.push_back({kMost, 0, ""});
    take(')');
  }

  std::string text_;
  size_t at_ = 0;
  std::vector<Step> steps_;
};

}  // namespace

int64_t evaluate(const std::string& expression, const Shape& shape) {
  static thread_local std::unordered_map<std::string, Expression> known;
  auto found = known.find(expression);
  if (found == known.end()) found = known.emplace(expression, Expression(expression)).first;
  return found->second.value(shape);
}

const std::string& Traits::extentOf(const std::string& parameter) const {
  for (const std::string& name : {parameter, std::string("*")}) {
    for (const Traits* row : {this, &commonTraits()}) {
      const auto found = row->extents.find(name);
      if (found != row->extents.end()) return found->second;
    }
  }
  fail("no extent of " + parameter);
}

const Range* Traits::rangeOf(const std::string& parameter) const {
  for (const Traits* row : {this, &commonTraits()}) {
    const auto found = row->ranges.find(parameter);
    if (found != row->ranges.end()) return &found->second;
  }
  return nullptr;
}

const std::string* Traits::boundOf(const std::string& parameter) const {
  for (const Traits* row : {this, &commonTraits()}) {
    const auto found = row->bounds.find(parameter);
    if (found != row->bounds.end()) return &found->second;
  }
  return nullptr;
}

const std::vector<Traits>& allTraits() {
  static const std::vector<Traits> all = [] {
    std::vector<Traits> rows;
    for (const auto& file : std::filesystem::directory_iterator(QVXS_TRAITS_DIR)) {
      if (file.path().extension() != ".traits") continue;
      std::ifstream lines(file.path());
      for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line[0] == '#') continue;
        if (line[0] != ' ') rows.emplace_back().names = split(line, ' ');
        else read(line, rows.back());
      }
    }
    return rows;
  }();
  return all;
}

const Traits* findTraits(const Export& e) {
  const std::string name = e.name.substr(4);
  for (const Traits& row : allTraits()) {
    if (row.names[0] == "*") continue;
    for (const std::string& pattern : row.names) {
      if (fnmatch(pattern.c_str(), name.c_str(), 0) == 0) return &row;
    }
  }
  return nullptr;
}

const Traits& traitsOf(const Export& e) {
  static const auto all = [] {
    std::map<const Export*, const Traits*> rows;
    for (const Export& one : exportTable()) rows[&one] = findTraits(one);
    return rows;
  }();
  const auto found = all.find(&e);
  if (found == all.end() || found->second == nullptr) fail(e.name + " has no row");
  return *found->second;
}

}  // namespace tests
