// The records of a call, of one channel or of many.
#include "call.h"

#include <algorithm>
#include <cstring>

namespace raw {

namespace {

bool isStranger(const Export& e, const Record& record) {
  for (const char* const* part = e.strangers; part != nullptr && *part != nullptr; ++part) {
    if (std::strstr(record.maker->name, *part) != nullptr) return true;
  }
  return false;
}

}  // namespace

bool Call::takeRecord(int index, PyObject* object, void*& address) {
  const Parameter& p = e_.parameters[index];
  auto* record = reinterpret_cast<Record*>(object);
  if (!Py_IS_TYPE(object, &recordType) || record->type != p.type) {
    PyErr_Format(PyExc_TypeError, "%s: %s takes a %s", e_.name, p.name, kRecordTypes[p.type].name);
    return false;
  }
  if (isStranger(e_, *record)) {
    PyErr_Format(PyExc_ValueError, "%s: %s takes no record of %s", e_.name, p.name, record->maker->name);
    return false;
  }
  if (!isSequence(p.kind)) {
    isExclusive_ = !p.isConst || std::strstr(kRecordTypes[p.type].name, "State") != nullptr;
    if (!beginUse(record, e_, isExclusive_)) return false;
    record_ = record;
    brought_ = record->brought;
  }
  address = record->address;
  return true;
}

bool Call::takeRecords() {
  for (int i = 0; i < e_.count; ++i) {
    const Parameter& p = e_.parameters[i];
    if (p.kind != Kind::kRecord && p.kind != Kind::kRecords) continue;
    bool isTaken = false;
    if (isNull(i, objects_[i], isTaken)) {
      if (!isTaken) return false;
      slots_[i].set<void*>(nullptr);
      continue;
    }
    if (p.kind == Kind::kRecord) {
      void* address = nullptr;
      if (!takeRecord(i, objects_[i], address)) return false;
      slots_[i].set(address);
      continue;
    }
    const auto count = static_cast<size_t>(PyTuple_GET_SIZE(objects_[i]));
    std::vector<void*>& addresses = pointers_.emplace_back(count);
    std::vector<Record*> wanted;
    records_.reserve(count);
    for (size_t k = 0; k < count; ++k) {
      PyObject* item = PyTuple_GET_ITEM(objects_[i], static_cast<Py_ssize_t>(k));
      if (!takeRecord(i, item, addresses[k])) return false;
      wanted.push_back(reinterpret_cast<Record*>(item));
    }
    // Locks are taken in one order, whatever the order of the arguments.
    std::sort(wanted.begin(), wanted.end());
    if (std::adjacent_find(wanted.begin(), wanted.end()) != wanted.end()) {
      PyErr_Format(PyExc_ValueError, "%s: %s has one record twice", e_.name, p.name);
      return false;
    }
    for (Record* record : wanted) {
      if (!beginUse(record, e_, true)) return false;
      records_.push_back(record);
    }
    if (!wanted.empty()) brought_ = wanted[0]->brought;
    slots_[i].set<void*>(addresses.data());
    if (static_cast<int64_t>(count) < integerNamed("nChannels")) {
      tooShort(p, static_cast<int64_t>(count), integerNamed("nChannels"));
      return false;
    }
  }
  return true;
}

}  // namespace raw
