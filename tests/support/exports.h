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

std::vector<Export>& exportTable();

}  // namespace tests
