// The steps of a call: numbers first, because converting them may run Python; then records and their locks; then vectors, whose
// lengths are checked by the table. From then on no Python code runs until the library has returned.
#include "call.h"

#include <qvx/qvxcore.h>
#include <qvx/qvxdefs.h>

#include <algorithm>
#include <cstring>

namespace raw {

void Call::end() {
  if (record_ != nullptr) endUse(record_, isExclusive_);
  for (Record* record : records_) endUse(record, true);
  record_ = nullptr;
  records_.clear();
  Py_CLEAR(made_);
  while (tupleCount_ > 0) Py_DECREF(tuples_[--tupleCount_]);
}

int64_t Call::integerNamed(const char* name) const {
  for (int i = 0; i < e_.count; ++i) {
    if (std::strcmp(e_.parameters[i].name, name) == 0) return integers_[i];
  }
  return 0;
}

// ---- numbers

bool Call::takeNumbers(PyObject* const* arguments) {
  for (int i = 0; i < e_.count; ++i) {
    const Parameter& p = e_.parameters[i];
    if (p.kind == Kind::kHandle) {
      slots_[i].set<void*>(&handle_);
      continue;
    }
    PyObject* object = objects_[i] = *arguments++;
    if (p.kind == Kind::kNumber) {
      if (!convertNumber(object, e_, p, slots_[i], integers_[i])) return false;
    } else if (isSequence(p.kind) && object != Py_None) {
      PyObject* tuple = PySequence_Tuple(object);
      if (tuple == nullptr) return false;
      tuples_[tupleCount_++] = objects_[i] = tuple;
    }
    hasContents_ |= p.content != Content::kNone;
  }
  return true;
}

// Whether null is taken, or refused as the library would.
bool Call::isNull(int index, PyObject* object, bool& isTaken) {
  if (object != Py_None) return false;
  isTaken = e_.parameters[index].isOptional;
  if (!isTaken) raiseStatus(e_, qvxStatNullPtr);
  return true;
}

// ---- vectors

// A length below 1 is refused as the library would, had it been asked.
void Call::tooShort(const Parameter& p, int64_t count, int64_t needed) {
  for (int i = 0; i < e_.refusalCount; ++i) {
    if (integers_[e_.refusals[i].parameter] < 1) return raiseStatus(e_, e_.refusals[i].status);
  }
  PyErr_Format(PyExc_ValueError, "%s: %s has %lld elements, the call needs %lld", e_.name, p.name, static_cast<long long>(count),
               static_cast<long long>(needed));
}

bool Call::takeCopy(const Parameter& p, const Vector& vector, int64_t needed, void*& pointer) {
  const auto count = static_cast<size_t>(std::max<int64_t>(needed, 1));
  Copy& copy = copies_.emplace_back(Copy{std::vector<int32_t>(count), vector.data, p.isConst});
  if (needed > 0) std::memcpy(copy.numbers.data(), vector.data, count * sizeof(int32_t));
  const auto at = [&](int64_t i) { return i >= 1 && i <= needed ? int64_t{copy.numbers[static_cast<size_t>(i - 1)]} : 0; };
  int64_t* told = integers_ + kContents;
  if (p.content == Content::kPhase) told[0] = std::max<int64_t>(copy.numbers[0], 0);
  if (p.content == Content::kBitLengths) {
    for (const int32_t bits : copy.numbers) told[0] += std::clamp(bits, 0, 32);
  }
  if (p.content == Content::kPositions) {  // the last ones of both sides, or of the only one
    const int64_t b = integerNamed("nzTapsLenB"), a = integerNamed("nzTapsLenA");
    told[0] = at(b > 0 ? b : integerNamed("nzTapsLen"));
    told[1] = a > 0 ? at(a + b) : 0;
  }
  pointer = copy.numbers.data();
  return true;
}

bool Call::takeVector(int index, PyObject* object, void*& pointer) {
  const Parameter& p = e_.parameters[index];
  Vector vector;
  if (!convertVector(object, e_, p, vector)) return false;
  const int64_t needed = p.extent(integers_, brought_).value();
  if (vector.count < needed) {
    tooShort(p, vector.count, needed);
    return false;
  }
  elements_ += std::max<int64_t>(needed, 0);
  if (p.content != Content::kNone) return takeCopy(p, vector, needed, pointer);
  if (rangeCount_ < kMostParameters && needed > 0) {
    const ElementType& type = elementType(p.element);
    ranges_[rangeCount_++] = {vector.data, vector.data + needed * type.bytes * (type.isPair ? 2 : 1), p.isConst};
  }
  pointer = vector.data;
  return true;
}

bool Call::takeBlock(int index) {
  const Parameter& p = e_.parameters[index];
  const int64_t size = e_.blockSize(integers_);
  if (size < 0) {
    if (size != INT64_MIN) raiseStatus(e_, static_cast<int>(size));
    else PyErr_Format(PyExc_NotImplementedError, "%s: the size of so large a record is not known; use InitAlloc", e_.name);
    return false;
  }
  Vector block;
  if (!convertVector(objects_[index], e_, p, block)) return false;
  if (block.count < size) {
    tooShort(p, block.count, size);
    return false;
  }
  // A record points into itself, and any code may write to an array, so it gets memory of its own, of the block's size.
  made_->memory = qvxMalloc(std::max<int64_t>(size, 1));
  if (made_->memory == nullptr) {
    raiseStatus(e_, qvxStatNoMem);
    return false;
  }
  made_->block = Py_NewRef(objects_[index]);
  if (p.type >= 0) handle_ = made_->memory;
  slots_[index].set(made_->memory);
  return true;
}

// Vectors with contents first: the extents of others depend on these.
bool Call::takeVectors(bool withContents) {
  for (int i = 0; i < e_.count; ++i) {
    const Parameter& p = e_.parameters[i];
    if (p.kind == Kind::kNumber || p.kind == Kind::kHandle || p.kind == Kind::kRecord || p.kind == Kind::kRecords) continue;
    if ((p.content != Content::kNone) != withContents) continue;
    PyObject* object = objects_[i];
    bool isTaken = false;
    if (isNull(i, object, isTaken)) {
      if (!isTaken) return false;
      slots_[i].set<void*>(nullptr);
    } else if (p.kind == Kind::kBlock) {
      if (!takeBlock(i)) return false;
    } else if (p.kind == Kind::kVector) {
      void* pointer = nullptr;
      if (!takeVector(i, object, pointer)) return false;
      slots_[i].set(pointer);
    } else {
      const auto count = static_cast<size_t>(PyTuple_GET_SIZE(object));
      std::vector<void*>& pointers = pointers_.emplace_back(count);
      for (size_t k = 0; k < count; ++k) {
        PyObject* item = PyTuple_GET_ITEM(object, static_cast<Py_ssize_t>(k));
        if (!takeVector(i, item, pointers[k])) return false;
      }
      if (static_cast<int64_t>(count) < integerNamed("nChannels")) {
        tooShort(p, static_cast<int64_t>(count), integerNamed("nChannels"));
        return false;
      }
      slots_[i].set<void*>(pointers.data());
    }
  }
  return true;
}

bool Call::isApart() {
  for (int i = 0; i < rangeCount_; ++i) {
    for (int k = 0; k < i; ++k) {
      const Range &a = ranges_[i], &b = ranges_[k];
      if ((a.isConst && b.isConst) || a.from >= b.to || b.from >= a.to) continue;
      if (!e_.isApart && a.from == b.from && a.to == b.to) continue;
      PyErr_Format(PyExc_ValueError, "%s: two vectors overlap", e_.name);
      return false;
    }
  }
  return true;
}

// ---- the call

// Stops at a refusal; of warnings the last one counts.
int Call::callAll(npy_intp rows, const npy_intp* steps) {
  int warning = qvxStatOk;
  for (npy_intp row = 0;;) {
    const int status = e_.call(e_.function, slots_);
    if (status < 0) return status;
    if (status > 0) warning = status;
    if (++row == rows) return warning;
    for (int i = 0; i < e_.count; ++i) {
      if (steps[i] != 0) slots_[i].set(slots_[i].get<unsigned char*>() + steps[i]);
    }
  }
}

int Call::invoke(npy_intp rows, const npy_intp* steps) {
  const int64_t least = e_.mayBeLong || record_ != nullptr ? kLongOfFilters : kLong;
  int status = qvxStatOk;
  if (elements_ * rows > least || made_ != nullptr) {
    Py_BEGIN_ALLOW_THREADS;
    status = callAll(rows, steps);
    Py_END_ALLOW_THREADS;
  } else {
    status = callAll(rows, steps);
  }
  for (const Copy& copy : copies_) {
    if (!copy.isConst) std::memcpy(copy.original, copy.numbers.data(), copy.numbers.size() * sizeof(int32_t));
  }
  return status;
}

PyObject* Call::result(int status) {
  if (status < 0) {
    end();
    raiseStatus(e_, status);
    return nullptr;
  }
  PyObject* result = Py_NewRef(Py_None);
  if (made_ != nullptr) {
    made_->address = handle_;
    e_.remember(integers_, made_->brought);
    if (const auto workSize = kRecordTypes[made_->type].workSize) made_->brought[kWorkName] = workSize(made_->address);
    Py_SETREF(result, reinterpret_cast<PyObject*>(made_));
    made_ = nullptr;
  }
  end();
  if (status > 0 && !warnOfStatus(e_, status)) Py_CLEAR(result);
  return result;
}

PyObject* Call::run(PyObject* const* arguments, npy_intp rows, const npy_intp* steps) {
  if (!takeNumbers(arguments)) return nullptr;
  if (e_.remember != nullptr) {
    for (int i = 0; i < e_.count && made_ == nullptr; ++i) {
      const Parameter& p = e_.parameters[i];
      if ((p.kind == Kind::kHandle || p.kind == Kind::kBlock) && p.type >= 0) made_ = newRecord(e_, p.type);
    }
    if (made_ == nullptr) return nullptr;
  }
  if (!takeRecords()) return nullptr;
  if (e_.isFree) {
    if (record_ != nullptr) record_->isFreed = true;
    return Py_NewRef(Py_None);
  }
  if (hasContents_ && !takeVectors(true)) return nullptr;
  if (!takeVectors(false)) return nullptr;
  const char* const objection = e_.guard != nullptr ? e_.guard(integers_) : nullptr;
  if (objection != nullptr) {
    PyErr_Format(PyExc_NotImplementedError, "%s: %s", e_.name, objection);
    return nullptr;
  }
  if ((e_.isApart || e_.isUnlike) && !isApart()) return nullptr;
  return result(invoke(rows, steps));
}

// ---- the few functions that return no status

namespace {
void freeVector(PyObject* capsule) { qvxFree(PyCapsule_GetPointer(capsule, nullptr)); }

// An array over memory of the library, which is released with the last view of it.
PyObject* allocateVector(const Export& e, PyObject* argument) {
  Slot slot;
  int64_t count = 0;
  if (!convertNumber(argument, e, e.parameters[0], slot, count)) return nullptr;
  void* const memory = reinterpret_cast<void* (*)(int)>(e.function)(static_cast<int>(count));
  if (memory == nullptr) {
    if (count < 1) return PyErr_Format(PyExc_ValueError, "%s: len is below 1", e.name);
    return PyErr_NoMemory();
  }
  PyObject* owner = PyCapsule_New(memory, nullptr, freeVector);
  if (owner == nullptr) {
    qvxFree(memory);
    return nullptr;
  }
  const ElementType& type = elementType(e.element);
  npy_intp shape[] = {count, 2};
  PyObject* array = PyArray_SimpleNewFromData(type.isPair ? 2 : 1, shape, type.number, memory);
  if (array == nullptr) Py_DECREF(owner);
  else if (PyArray_SetBaseObject(reinterpret_cast<PyArrayObject*>(array), owner) < 0) Py_CLEAR(array);
  return array;
}

PyObject* version(const Export& e) {
  const auto* v = reinterpret_cast<const QvxLibraryVersion* (*)()>(e.function)();
  return Py_BuildValue("{sisisisissssssss}", "verMajor", v->verMajor, "verMinor", v->verMinor, "buildMajor", v->buildMajor,
                       "buildMinor", v->buildMinor, "cpuTag", v->cpuTag, "libFile", v->libFile, "verText", v->verText,
                       "buildDate", v->buildDate);
}

}  // namespace

PyObject* callExport(const Export& e, PyObject* const* arguments, Py_ssize_t count) {
  int expected = e.count;
  if (e.count > 0 && e.parameters[0].kind == Kind::kHandle) --expected;
  if (count != expected) return PyErr_Format(PyExc_TypeError, "%s takes %d arguments, not %zd", e.name, expected, count);
  switch (e.result) {
    case Result::kStatus:
      break;
    case Result::kVector:
      return allocateVector(e, arguments[0]);
    case Result::kVersion:
      return version(e);
    case Result::kNothing:  // arrays free themselves
      Py_RETURN_NONE;
  }
  try {
    return Call(e).run(arguments, 1, nullptr);
  } catch (const std::bad_alloc&) {
    return PyErr_NoMemory();
  }
}

bool takesRows(const Export& e) {
  if (e.result != Result::kStatus || e.remember != nullptr || e.isFree || e.isApart || e.isUnlike || e.guard != nullptr)
    return false;
  return std::all_of(e.parameters, e.parameters + e.count, [](const Parameter& p) {
    return p.content == Content::kNone && (p.kind == Kind::kNumber || p.kind == Kind::kVector || p.kind == Kind::kRecord);
  });
}

PyObject* callExportForRows(const Export& e, PyObject* const* arguments, npy_intp rows, const npy_intp* steps) {
  try {
    return Call(e).run(arguments, rows, steps);
  } catch (const std::bad_alloc&) {
    return PyErr_NoMemory();
  }
}

}  // namespace raw
