// A call of an export: what is taken from Python's arguments, and what is given back.
#pragma once

#include <vector>

#include "raw.h"

namespace raw {

inline constexpr int64_t kNothingBrought[kMostBrought] = {};

class Call {
 public:
  explicit Call(const Export& e) : e_(e) {}
  Call(const Call&) = delete;
  ~Call() { end(); }

  // For rows, of which the arguments are the first and steps the bytes from one to the next.
  PyObject* run(PyObject* const* arguments, npy_intp rows, const npy_intp* steps);

 private:
  struct Range {
    const unsigned char *from, *to;
    bool isConst;
  };
  struct Copy {
    std::vector<int32_t> numbers;
    unsigned char* original;
    bool isConst;
  };

  bool takeNumbers(PyObject* const* arguments);
  bool takeRecords();
  bool takeRecord(int index, PyObject* object, void*& address);
  bool takeVectors(bool withContents);
  bool takeVector(int index, PyObject* object, void*& pointer);
  bool takeBlock(int index);
  bool takeCopy(const Parameter& p, const Vector& vector, int64_t needed, void*& pointer);
  bool isApart();
  bool isNull(int index, PyObject* object, bool& isTaken);
  void tooShort(const Parameter& p, int64_t count, int64_t needed);
  int64_t integerNamed(const char* name) const;
  int invoke(npy_intp rows, const npy_intp* steps);
  int callAll(npy_intp rows, const npy_intp* steps);
  PyObject* result(int status);
  void end();

  const Export& e_;
  Slot slots_[kMostParameters];
  Integers integers_ = {};
  PyObject* objects_[kMostParameters] = {};  // by place; tuples are the call's own
  const int64_t* brought_ = kNothingBrought;
  int64_t elements_ = 0;
  void* handle_ = nullptr;
  Record* made_ = nullptr;
  Record* record_ = nullptr;
  bool isExclusive_ = false, hasContents_ = false;
  std::vector<Record*> records_;              // of many channels
  std::vector<std::vector<void*>> pointers_;  // to them, and to their vectors
  std::vector<Copy> copies_;
  Range ranges_[kMostParameters];
  int rangeCount_ = 0;
  PyObject* tuples_[kMostParameters];
  int tupleCount_ = 0;
};

inline bool isSequence(Kind kind) { return kind == Kind::kVectors || kind == Kind::kRecords; }

}  // namespace raw
