// The headers once more, with every declaration as a row of the table.
#include "support/exports.h"

#include <map>

namespace tests {

namespace {

std::vector<Parameter> parse(std::string_view text) {
  std::vector<Parameter> parameters;
  text = text.substr(1, text.size() - 2);  // the parentheses
  while (!text.empty() && text != "void") {
    const size_t comma = text.find(',');
    const std::string_view one = text.substr(0, comma);
    const size_t name = one.find_last_of(" *") + 1;
    const size_t start = one.find_first_not_of(' ');
    std::string type(one.substr(start, name - start));
    type.erase(std::find_if(type.rbegin(), type.rend(), [](char c) { return c != ' '; }).base(), type.end());
    parameters.push_back({type, std::string(one.substr(name))});
    if (comma == std::string_view::npos) break;
    text.remove_prefix(comma + 1);
  }
  return parameters;
}

// One instance for all functions of a type.
template <class R, class... A> bool list(const char* name, const char* arguments, R (*function)(A...)) {
  Export e{name, parse(arguments), reinterpret_cast<void*>(function), nullptr, nullptr};
  if constexpr (std::is_same_v<R, QvxStatus>) {
    e.call = [](void* address, Arguments& source) {
      return [&]<size_t... I>(std::index_sequence<I...>) { return reinterpret_cast<R (*)(A...)>(address)(source.get<A>(I)...); }
      (std::index_sequence_for<A...>());
    };
    e.look = [](Arguments& source) {
      [&]<size_t... I>(std::index_sequence<I...>) { (static_cast<void>(source.get<A>(I)), ...); }
      (std::index_sequence_for<A...>());
    };
  }
  exportTable().push_back(std::move(e));
  return true;
}

}  // namespace

std::vector<Export>& exportTable() {
  static std::vector<Export> table;
  return table;
}

const Export* findExport(const std::string& name) {
  static const std::map<std::string, const Export*> all = [] {
    std::map<std::string, const Export*> byName;
    for (const Export& e : exportTable()) byName[e.name] = &e;
    return byName;
  }();
  const auto found = all.find(name);
  return found == all.end() ? nullptr : found->second;
}

}  // namespace tests

#undef QVXS_API
#define QVXS_API(result, name, arguments) \
  result name arguments;                  \
  [[maybe_unused]] static const bool listed_##name = tests::list(#name, #arguments, &name)

#include <qvx/qvxs.h>
