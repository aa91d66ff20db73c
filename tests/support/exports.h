// Every export by its type, from the lines of the public headers: the tests' own table of the library.
#pragma once

#include <qvx/qvxdefs.h>

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace tests {

// Gives the arguments of one call, by position.
class Arguments {
 public:
  virtual ~Arguments() = default;
  virtual void* pointer(size_t index, size_t elementSize, bool isConst, char kind) = 0;
  virtual int64_t integer(size_t index) = 0;
  virtual double real(size_t index) = 0;

  template <class T> T get(size_t index) {
    if constexpr (std::is_pointer_v<T>) {
      using Element = std::remove_const_t<std::remove_pointer_t<T>>;
      return static_cast<T>(pointer(index, sizeOf<Element>(), std::is_const_v<std::remove_pointer_t<T>>, kindOf<Element>()));
    } else if constexpr (std::is_integral_v<T>) {
      return static_cast<T>(integer(index));
    } else if constexpr (std::is_floating_point_v<T>) {
      return static_cast<T>(real(index));
    } else {
      using Part = decltype(T::re);
      if constexpr (std::is_integral_v<Part>) return {static_cast<Part>(integer(index)), static_cast<Part>(integer(index) >> 7)};
      else return {static_cast<Part>(real(index)), static_cast<Part>(real(index) / 3)};
    }
  }

 private:
  template <class T> static constexpr bool kIsRecord = !requires { sizeof(T); };
  template <class T> static constexpr size_t sizeOf() {
    if constexpr (kIsRecord<T>) return 0;
    else return sizeof(T);
  }
  // i: integers, f: 32-bit floats, d: 64-bit floats, p: pointers to sources, P: pointers to destinations, r: records
  template <class T> static constexpr char kindOf() {
    if constexpr (kIsRecord<T>) return 'r';
    else if constexpr (std::is_pointer_v<T>) return std::is_const_v<std::remove_pointer_t<T>> ? 'p' : 'P';
    else if constexpr (std::is_class_v<T>) return kindOf<decltype(T::re)>();
    else return std::is_same_v<T, float> ? 'f' : std::is_same_v<T, double> ? 'd' : 'i';
  }
};

struct Parameter {
  std::string type;
  std::string name;
  bool isPointer() const { return type.find('*') != std::string::npos; }
  bool isArrayOfPointers() const { return type.find('*') != type.rfind('*'); }
};

struct Export {
  std::string name;
  std::vector<Parameter> parameters;
  void* address;
  // Null for the few that do not return a status.
  std::function<QvxStatus(void* address, Arguments&)> call;
  // Asks for the arguments of a call that is not made.
  std::function<void(Arguments&)> look;

  int indexOf(std::string_view parameter) const {
    for (size_t i = 0; i < parameters.size(); ++i) {
      if (parameters[i].name == parameter) return static_cast<int>(i);
    }
    return -1;
  }
};

// The functions that make, size, use or end a record, or have the caller keep what one would hold; their families' tests hold
// their rules.
inline bool handlesRecords(const Export& e) {
  for (const char* part : {"GetSize", "GetStateSize"}) {
    if (e.name.find(part) != std::string::npos) return true;
  }
  for (const Parameter& p : e.parameters) {
    if (p.type.find("Spec") != std::string::npos || p.type.find("State") != std::string::npos) return true;
    if (p.name == "pDlyLine") return true;
  }
  return false;
}

inline std::vector<Parameter> parse(std::string_view text) {
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

template <class R, class... A> Export describe(const char* name, const char* arguments, R (*function)(A...)) {
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
  return e;
}

inline std::vector<Export>& exportTable() {
  static std::vector<Export> table;
  return table;
}

}  // namespace tests

#undef QVXS_API
#define QVXS_API(result, name, arguments)            \
  result name arguments;                             \
  [[maybe_unused]] static const bool listed_##name = \
      (tests::exportTable().push_back(tests::describe(#name, #arguments, &name)), true)

#include <qvx/qvxs.h>
