#include "arguments.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <type_traits>

namespace {

// Ranges let NaN through.
std::string checkFinite(const std::string& number) {
  return std::isfinite(std::strtod(number.c_str(), nullptr)) ? "" : number + " is not a finite number";
}

Option& with(Option& self, CLI::Option* option, CLI::Validator validator) {
  option->check(std::move(validator));
  return self;
}

}  // namespace

Option& Option::required() { return option_->required(), *this; }
Option& Option::existingFile() { return with(*this, option_, CLI::ExistingFile); }
Option& Option::range(int least, int most) { return with(*this, option_, CLI::Range(least, most)); }
Option& Option::range(double least, double most) { return with(*this, option_, CLI::Range(least, most)); }
Option& Option::positive() { return with(*this, option_, CLI::PositiveNumber); }
Option& Option::oneOf(const std::vector<int>& values) { return with(*this, option_, CLI::IsMember(values)); }
Option& Option::oneOf(const std::vector<std::string>& names) { return with(*this, option_, CLI::IsMember(names)); }
Option& Option::needs(const Option& other) { return option_->needs(other.option_), *this; }
Option& Option::excludes(const Option& other) { return option_->excludes(other.option_), *this; }
Option& Option::showDefault() { return option_->capture_default_str(), *this; }
bool Option::isGiven() const { return option_->count() > 0; }
Option& Option::repeated() {
  option_->expected(1)->allow_extra_args(false)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  return *this;
}

Arguments::Arguments(const std::string& description) : app_(std::make_shared<CLI::App>(description)) {}
Arguments::Arguments(std::shared_ptr<CLI::App> app) : app_(std::move(app)) {}

// A part of the program's arguments shares their life.
Arguments Arguments::command(const std::string& name, const std::string& description) {
  app_->require_subcommand(1);
  return Arguments({app_, app_->add_subcommand(name, description)});
}
Arguments Arguments::either(const std::string& name) {
  CLI::Option_group* const group = app_->add_option_group(name);
  group->require_option(1);
  return Arguments({app_, group});
}

template <class T> Option Arguments::option(const std::string& names, T& value, const std::string& description) {
  CLI::Option* const option = app_->add_option(names, value, description);
  if constexpr (std::is_same_v<T, double> || std::is_same_v<T, std::vector<double>>) option->check(checkFinite);
  return Option(option);
}
template Option Arguments::option(const std::string&, int&, const std::string&);
template Option Arguments::option(const std::string&, unsigned&, const std::string&);
template Option Arguments::option(const std::string&, size_t&, const std::string&);
template Option Arguments::option(const std::string&, double&, const std::string&);
template Option Arguments::option(const std::string&, std::string&, const std::string&);
template Option Arguments::option(const std::string&, std::vector<int>&, const std::string&);
template Option Arguments::option(const std::string&, std::vector<double>&, const std::string&);
template Option Arguments::option(const std::string&, std::vector<std::string>&, const std::string&);
Option Arguments::flag(const std::string& names, bool& value, const std::string& description) {
  return Option(app_->add_flag(names, value, description));
}

void Arguments::parse(int argc, char** argv) {
  try {
    app_->parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    std::exit(app_->exit(error));
  }
}
bool Arguments::isGiven() const { return app_->parsed(); }
void Arguments::whenGiven(const std::function<void()>& action) { app_->callback(action); }
