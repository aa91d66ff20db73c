// Every export by its type, from the lines of the public headers: the tests' own table of the library.
#pragma once

#include <qvx/qvxdefs.h>

#include <algorithm>
#include <cstring>
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
  // What it leads to: const Qvx16sc* and Qvx16sc* const* both to Qvx16sc.
  std::string pointee() const {
    const size_t start = type.rfind("const ", 0) == 0 ? 6 : 0;
    return type.substr(start, type.find_first_of(" *", start) - start);
  }
  bool isRecord() const { return type.find("State") != std::string::npos || type.find("Spec") != std::string::npos; }
};

// The parts of an element, by the name of its type: those of Qvx16sc are two signed integers of 2 bytes.
struct PartType {
  size_t bytes = sizeof(int);
  bool isFloat = false, isSigned = true, isComplex = false;

  explicit PartType(const std::string& type) {
    const size_t digits = type.find_first_of("0123456789");
    if (digits == std::string::npos) return;
    const size_t kind = type.find_first_not_of("0123456789", digits);
    bytes = std::max<size_t>(static_cast<size_t>(std::stoi(type.substr(digits))) / 8, 1);
    isFloat = bytes > 2 && type.compare(kind, 1, "f") == 0;
    isSigned = type.compare(kind, 1, "u") != 0;
    isComplex = type.back() == 'c';
  }

  double get(const uint8_t* at) const {
    if (isFloat) return bytes == 4 ? read<float>(at) : read<double>(at);
    if (bytes == 1) return isSigned ? read<int8_t>(at) : read<uint8_t>(at);
    if (bytes == 2) return isSigned ? read<int16_t>(at) : read<uint16_t>(at);
    if (bytes == 4) return isSigned ? static_cast<double>(read<int32_t>(at)) : read<uint32_t>(at);
    return static_cast<double>(read<int64_t>(at));
  }
  void put(uint8_t* at, double value) const {
    const auto single = static_cast<float>(value);
    const auto whole = isFloat ? 0 : static_cast<int64_t>(value);
    if (!isFloat) std::memcpy(at, &whole, bytes);
    else if (bytes == 4) std::memcpy(at, &single, 4);
    else std::memcpy(at, &value, 8);
  }

 private:
  template <class T> static T read(const uint8_t* at) {
    T v;
    std::memcpy(&v, at, sizeof(T));
    return v;
  }
};

struct Export {
  std::string name;
  std::vector<Parameter> parameters;
  void* address;
  // Null for the few that do not return a status.
  QvxStatus (*call)(void* address, Arguments&);
  // Asks for the arguments of a call that is not made.
  void (*look)(Arguments&);

  int indexOf(std::string_view parameter) const {
    for (size_t i = 0; i < parameters.size(); ++i) {
      if (parameters[i].name == parameter) return static_cast<int>(i);
    }
    return -1;
  }
  bool has(std::string_view parameter) const { return indexOf(parameter) >= 0; }
  bool contains(std::string_view part) const { return name.find(part) != std::string::npos; }
  // AddC of qvxsAddC_16s_ISfs.
  std::string stem() const { return name.substr(4, name.find('_') - 4); }
  bool isOf(std::initializer_list<const char*> stems) const {
    return std::find(stems.begin(), stems.end(), stem()) != stems.end();
  }
};

std::vector<Export>& exportTable();
// Null if there is none of this name.
const Export* findExport(const std::string& name);

}  // namespace tests
