// What the extension knows of each export: rows that tools/python_table.py makes from the public headers and traits/.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

namespace raw {

// An argument as C takes it: numbers, complex ones too, in their own bytes.
struct Slot {
  alignas(16) unsigned char bytes[16];

  template <class T> T get() const {
    T value;
    std::memcpy(&value, bytes, sizeof(T));
    return value;
  }
  template <class T> void set(const T& value) { std::memcpy(bytes, &value, sizeof(T)); }
};

// Calls are of a few hundred types once all pointers are alike: one instance each.
using Function = void (*)();
template <class Result, class... Arguments> int call(Function function, const Slot* slots) {
  return [&]<size_t... I>(std::index_sequence<I...>) {
    return static_cast<int>(reinterpret_cast<Result (*)(Arguments...)>(function)(slots[I].template get<Arguments>()...));
  }
  (std::index_sequence_for<Arguments...>());
}

// The number of elements a vector needs. Arguments may be anything, so it stops at the ends instead of wrapping.
class Extent {
 public:
  static constexpr int64_t kMost = INT64_MAX / 4;

  constexpr Extent(int64_t value) : value_(std::clamp(value, -kMost, kMost)) {}  // NOLINT: numbers are extents
  constexpr int64_t value() const { return value_; }

  friend constexpr Extent operator+(Extent a, Extent b) { return Extent(a.value_ + b.value_); }
  friend constexpr Extent operator-(Extent a, Extent b) { return Extent(a.value_ - b.value_); }
  friend constexpr Extent operator*(Extent a, Extent b) {
    int64_t product = 0;
    if (__builtin_mul_overflow(a.value_, b.value_, &product)) product = (a.value_ < 0) == (b.value_ < 0) ? kMost : -kMost;
    return Extent(product);
  }
  // Rounds towards zero; the library refuses calls that would divide by less than 1.
  friend constexpr Extent operator/(Extent a, Extent b) { return Extent(a.value_ / std::max<int64_t>(b.value_, 1)); }
  friend constexpr Extent power(Extent a, Extent b) {
    Extent result(1);
    for (int64_t i = 0; i < std::min<int64_t>(b.value_, 64); ++i) result = result * a;
    return result;
  }
  friend constexpr Extent most(Extent a, Extent b) { return Extent(std::max(a.value_, b.value_)); }

 private:
  int64_t value_;
};

// Integer arguments by position, then the numbers read from the contents of a vector.
constexpr int kMostParameters = 16;
constexpr int kContents = kMostParameters;
using Integers = int64_t[kMostParameters + 2];

using ExtentOf = Extent (*)(const int64_t* integers, const int64_t* record);

enum class Element : uint8_t {
  k8u,
  k8s,
  k16u,
  k16s,
  k32u,
  k32s,
  k64u,
  k64s,
  k16f,
  k32f,
  k64f,  // clang-format: one line
  k8sc,
  k16sc,
  k32sc,
  k64sc,
  k32fc,
  k64fc
};

enum class Kind : uint8_t {
  kNumber,
  kVector,
  kVectors,  // an array of pointers to them
  kRecord,
  kRecords,
  kHandle,  // where a maker leaves the address of its record: no argument from Python
  kBlock,   // the memory that a maker makes its record in
};

// Vectors whose contents determine extents or places. The library gets copies, which no other thread can change.
enum class Content : uint8_t { kNone, kIndex, kPhase, kBitLengths, kPositions };

struct Parameter {
  const char* name;
  Kind kind;
  Element element;
  bool isConst, isOptional;
  Content content;
  ExtentOf extent;
  int type;  // of a record: the row of kRecordTypes
};

struct Refusal {
  int parameter;
  int status;
};

// A condition besides the extents; null if it holds.
using Guard = const char* (*)(const int64_t* integers);

enum class Result : uint8_t { kStatus, kVector, kNothing, kVersion };

struct Export {
  const char* name;
  const char* declaration;
  Function function;
  int (*call)(Function, const Slot*);
  Result result;
  Element element;  // of the result, if it is a vector
  const Parameter* parameters;
  int count;
  const Refusal* refusals;  // of integers below 1
  int refusalCount;
  Guard guard;
  int64_t (*blockSize)(const int64_t* integers);               // of makers in blocks; negative: a status
  void (*remember)(const int64_t* integers, int64_t* record);  // of makers
  const char* const* strangers;  // makers whose records are refused have one of these in their names
  bool isFree, isApart, isUnlike, mayBeLong;
};

struct RecordType {
  const char* name;
  Function release;                         // null where there is nothing to release
  int64_t (*workSize)(const void* record);  // of the buffer that its calls take; null if they take none
};

struct StatusRow {
  int value;
  const char* name;
  const char* text;
};

extern const Export kExports[];
extern const int kExportCount;
extern const RecordType kRecordTypes[];
extern const StatusRow kStatuses[];
extern const int kStatusCount;
// The place of the buffer's size among what records bring.
extern const int kWorkName;

}  // namespace raw
