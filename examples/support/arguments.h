// The arguments of a program and its help, by CLI11. Its headers take 3 seconds of a compiler wherever they are included, which
// here is arguments.cpp alone.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

class Option {
 public:
  explicit Option(CLI::Option* option) : option_(option) {}

  Option& required();
  Option& existingFile();
  Option& range(int least, int most);
  Option& range(double least, double most);
  Option& positive();
  Option& oneOf(const std::vector<int>& values);
  Option& oneOf(const std::vector<std::string>& names);
  template <class Value> Option& oneOf(const std::map<std::string, Value>& named) {
    std::vector<std::string> names;
    names.reserve(named.size());
    for (const auto& [name, value] : named) names.push_back(name);
    return oneOf(names);
  }
  // Takes one value each time it is given; other options with several values take all that follow.
  Option& repeated();
  // Only with the other one, or only without.
  Option& needs(const Option& other);
  Option& excludes(const Option& other);
  // The help shows the variable's present value as the default.
  Option& showDefault();
  bool isGiven() const;

 private:
  CLI::Option* option_;
};

class Arguments {
 public:
  explicit Arguments(const std::string& description);

  // The first argument of a program that has commands: which of them to run.
  Arguments command(const std::string& name, const std::string& description);
  // Options of which exactly one is given.
  Arguments either(const std::string& name);
  // names: "-o,--output", or "file" of an argument that is found by its place. T: a number, a string, or a vector of them.
  template <class T> Option option(const std::string& names, T& value, const std::string& description);
  Option flag(const std::string& names, bool& value, const std::string& description);

  // Ends the program with a message where arguments are wrong, or with the help that was asked for.
  void parse(int argc, char** argv);
  bool isGiven() const;  // of a command
  void whenGiven(const std::function<void()>& action);

 private:
  explicit Arguments(std::shared_ptr<CLI::App> app);

  std::shared_ptr<CLI::App> app_;
};
