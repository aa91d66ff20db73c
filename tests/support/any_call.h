// A call of any export, drawn from a stream of choices: every vector exactly as long as the headers say, every record made by its
// own initialiser. The same choices give the same call in another variant, at other places in memory, over other garbage.
#pragma once

#include <qvx/qvxcore.h>
#include <qvx/qvxs.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <deque>
#include <map>
#include <set>

#include "support/blocks.h"
#include "support/choices.h"
#include "support/exports.h"
#include "support/refusals.h"
#include "support/sanitizer.h"
#include "support/traits.h"

namespace tests {

// Where destinations lie: each in a vector of its own, or on a source of its type and length, the first or the last that there
// is.
enum class Destinations { kApart, kOnFirst, kOnLast };

// Conditions that must not change the results.
struct Surroundings {
  int offset = -1;      // of vectors from the start of their blocks; -1: they end where their blocks end
  uint8_t garbage = 0;  // in destinations and working memory
  Destinations destinations = Destinations::kApart;  // elsewhere only where that is allowed
  int length = 0;                                    // of the vectors; 0: as it is drawn
};

inline bool contains(const std::string& text, std::initializer_list<const char*> parts) {
  return std::any_of(parts.begin(), parts.end(), [&](const char* part) { return text.find(part) != text.npos; });
}

inline std::string replaced(std::string text, const char* what, const char* with) {
  const size_t at = text.find(what);
  return at == text.npos ? text : text.replace(at, std::strlen(what), with);
}

// Finds the function of an export: in the library the program is linked to, unless a test says otherwise.
using Library = std::function<void*(const Export&)>;
inline void* linked(const Export& e) { return e.address; }

class AnyCall : public Arguments {
 public:
  AnyCall(const Export& e, Choices choices, Memory& memory, Surroundings around = {}, Library library = linked)
      : export_(e), traits_(traitsOf(e)), memory_(memory), around_(around), library_(std::move(library)) {
    prepare(choices);
  }
  AnyCall(const AnyCall&) = delete;
  ~AnyCall() override { release(); }

  QvxStatus run() {
    status_ = export_.call(library_(export_), *this);
    if (contains(export_.name, {"Free"}) && status_ == qvxStatOk && pointers_.at(0) != nullptr) records_.clear();
    return status_;
  }

  // Makes one argument wrong: the value number `which` of those that are refused.
  void spoil(const Wrong& wrong, size_t which = 0);
  // A record of another type, or of none, where the call expects its own.
  void setRecord(size_t index, void* record) { pointers_[index] = record; }
  void* record() const { return records_.empty() ? nullptr : records_[0].address; }

  // Writes value(element) to all parts of a parameter's vectors.
  void write(const std::string& parameter, const std::function<double(size_t)>& value) {
    for (Vector& v : vectors_) {
      if (v.parameter != parameter) continue;
      const size_t element = v.part.bytes * (v.part.isComplex ? 2 : 1);
      for (size_t at = 0; at < v.bytes; at += v.part.bytes) v.part.put(v.at + at, value(at / element));
      v.copy.assign(v.at, v.at + v.bytes);
    }
  }

  // Makes another number of each part of a source's last element, in one of many ways; false if it has none.
  bool changeLast(size_t index, int way) {
    const auto isSource = [&](const Vector& v) { return v.at == pointers_.at(index) && v.role == Role::kSource; };
    const auto source = std::find_if(vectors_.begin(), vectors_.end(), isSource);
    const size_t parts = source == vectors_.end() || !source->part.isComplex ? 1 : 2;
    if (source == vectors_.end() || source->bytes < parts * source->part.bytes) return false;
    const PartType& type = source->part;
    for (size_t k = 1; k <= parts; ++k) {
      uint8_t* const part = source->at + source->bytes - k * type.bytes;
      const double value = type.get(part);
      if (type.isFloat) type.put(part, std::isfinite(value) && value != 0 ? value * (way % 2 == 0 ? -3 - way : 3 + way) : 1);
      else std::for_each(part, part + type.bytes, [&](uint8_t& byte) { byte ^= static_cast<uint8_t>(0x55 + 83 * way); });
    }
    return true;
  }

  // The bytes of a parameter's vector as they are, or as they were before the call; null if it has none.
  const uint8_t* bytesOf(size_t index, bool before) const {
    for (const Vector& v : vectors_) {
      if (v.at == pointers_.at(index)) return before ? v.copy.data() : v.data();
    }
    return nullptr;
  }
  size_t extentOf(size_t index) const { return extent(export_.parameters[index]); }

  // What the call may write, as bytes, without records and working memory. All NaN count as equal: the product of two is either.
  std::vector<uint8_t> results(const char* parameter = "") const {
    std::vector<uint8_t> all;
    for (const Vector& v : vectors_) {
      if (v.role != Role::kDestination || v.parameter.find(parameter) == std::string::npos) continue;
      const size_t from = all.size();
      all.insert(all.end(), v.data(), v.data() + v.bytes);
      for (size_t at = from; v.part.isFloat && at + v.part.bytes <= all.size(); at += v.part.bytes) {
        if (std::isnan(v.part.get(&all[at]))) v.part.put(&all[at], NAN);
      }
    }
    return all;
  }
  // The same as numbers, or those of the vector of one parameter.
  std::vector<double> numbers(const std::string& parameter = "") const {
    std::vector<double> all;
    for (const Vector& v : vectors_) {
      if (parameter.empty() ? v.role != Role::kDestination : v.parameter != parameter) continue;
      for (size_t i = 0; i + v.part.bytes <= v.bytes; i += v.part.bytes) all.push_back(v.part.get(v.data() + i));
    }
    return all;
  }
  // Which of numbers() are integers.
  std::vector<bool> integers() const {
    std::vector<bool> all;
    for (const Vector& v : vectors_) {
      if (v.role == Role::kDestination) all.insert(all.end(), v.bytes / v.part.bytes, !v.part.isFloat);
    }
    return all;
  }
  // Sources as they were, and nothing written around any vector.
  bool isIntact() const {
    return std::all_of(vectors_.begin(), vectors_.end(), [](const Vector& v) {
      return v.block->isIntact() && (v.role != Role::kSource || std::equal(v.copy.begin(), v.copy.end(), v.data()));
    });
  }
  // The place of a record is nobody's until there is one.
  bool wroteNothing() const {
    return std::all_of(vectors_.begin(), vectors_.end(), [](const Vector& v) {
      const bool isFree = v.role == Role::kWork || v.role == Role::kHandle;
      return v.block->isIntact() && (isFree || std::equal(v.copy.begin(), v.copy.end(), v.data()));
    });
  }
  // The parameter of a result that is not written in all its parts, where the memory sanitizer knows.
  const char* unwritten() const {
    for (const Vector& v : vectors_) {
      if (v.role == Role::kDestination && !isWritten(v.at, v.bytes)) return v.parameter.c_str();
    }
    return nullptr;
  }
  // Whether the place for a record's address is as it was, or null.
  bool leadsNowhere() const {
    return std::all_of(vectors_.begin(), vectors_.end(), [](const Vector& v) {
      const auto isZero = [](uint8_t byte) { return byte == 0; };
      return v.role != Role::kHandle || std::equal(v.copy.begin(), v.copy.end(), v.at) ||
             std::all_of(v.at, v.at + v.bytes, isZero);
    });
  }
  int64_t shape(const std::string& name) const {
    const auto found = shape_.find(name);
    return found == shape_.end() ? 0 : found->second;
  }
  std::string describe() const {
    std::string text = export_.name + " (";
    for (const auto& [name, value] : shape_) text += name + " " + std::to_string(value) + ", ";
    return text + "offset " + std::to_string(around_.offset) +
           (around_.destinations != Destinations::kApart ? ", in place)" : ")");
  }

  void* pointer(size_t index, size_t, bool, char) override { return pointers_[index]; }
  int64_t integer(size_t index) override { return integers_[index]; }
  double real(size_t index) override { return reals_[index]; }

 private:
  enum class Role { kSource, kDestination, kHandle, kWork };
  struct Vector {
    Block* block;
    uint8_t* at;
    size_t bytes;
    Role role;
    std::string parameter;
    PartType part;
    std::vector<uint8_t> copy;
    const uint8_t* data() const { return at; }
  };
  struct Record {
    std::string type;
    void* address;
    bool isAllocated;
  };

  void prepare(Choices& choices);
  int64_t drawInteger(const Parameter& p, Choices& choices);
  double drawReal(const Parameter& p, Choices& choices);
  size_t extent(const Parameter& p) const;
  // Contains garbage unless it is filled.
  using Fill = std::function<void(uint8_t*)>;
  uint8_t* vector(size_t bytes, Role role, size_t index, const Fill& fill = nullptr);
  void fill(uint8_t* p, size_t bytes, const Parameter& parameter, Choices& choices);
  void fillTaps(uint8_t* p, const Parameter& parameter, Choices& choices);
  void* recordOf(std::string type, bool isConst, Choices& choices);
  void* pointerFor(size_t index, size_t elementSize, bool isConst, char kind, Choices& choices);
  void* sourceInPlace(const Parameter& destination);
  int sizeFor(const std::string& maker, const std::string& which);
  void release();

  struct Drawing;
  const Export& export_;
  const Traits& traits_;
  Memory& memory_;
  Surroundings around_;
  Library library_;
  std::map<std::string, int64_t> shape_;
  std::map<size_t, int64_t> integers_;
  std::map<size_t, double> reals_;
  std::map<size_t, void*> pointers_;
  std::vector<Vector> vectors_;
  std::vector<Record> records_;
  std::deque<std::vector<void*>> arrays_;
  const Export* maker_ = nullptr;  // of the record
  QvxStatus status_ = qvxStatBadArg;
};

}  // namespace tests
