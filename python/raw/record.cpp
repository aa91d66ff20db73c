#include <qvx/qvxcore.h>

#include "raw.h"

namespace raw {

namespace {

void release(Record* record) {
  if (record->address == nullptr) return;
  const Function function = kRecordTypes[record->type].release;
  if (function != nullptr) reinterpret_cast<int (*)(void*)>(function)(record->address);
  qvxFree(record->memory);
  record->address = record->memory = nullptr;
}

void deallocate(PyObject* self) {
  auto* record = reinterpret_cast<Record*>(self);
  release(record);
  qvxFree(record->memory);  // of one that was never made
  Py_XDECREF(record->block);
  if (record->lock != nullptr) PyThread_free_lock(record->lock);
  PyObject_Free(record);
}

PyObject* represent(PyObject* self) {
  const auto* record = reinterpret_cast<Record*>(self);
  return PyUnicode_FromFormat("<%s of %s%s>", kRecordTypes[record->type].name, record->maker->name,
                              record->isFreed ? ", freed" : "");
}

PyObject* typeOf(PyObject* self, void*) { return PyUnicode_FromString(kRecordTypes[reinterpret_cast<Record*>(self)->type].name); }
PyObject* makerOf(PyObject* self, void*) { return PyUnicode_FromString(reinterpret_cast<Record*>(self)->maker->name); }

PyGetSetDef attributes[] = {{"type", typeOf, nullptr, "the C type", nullptr},
                            {"maker", makerOf, nullptr, "the function that made it", nullptr},
                            {nullptr, nullptr, nullptr, nullptr, nullptr}};

}  // namespace

PyTypeObject recordType = [] {
  PyTypeObject type = {PyVarObject_HEAD_INIT(nullptr, 0)};
  type.tp_name = "qvxs.raw.Record";
  type.tp_basicsize = sizeof(Record);
  type.tp_dealloc = deallocate;
  type.tp_repr = represent;
  type.tp_flags = Py_TPFLAGS_DEFAULT | Py_TPFLAGS_DISALLOW_INSTANTIATION;
  type.tp_doc = "What an Init function makes: tables of a transform, the state of a filter or a generator. Frees itself.";
  type.tp_getset = attributes;
  return type;
}();

bool addRecords(PyObject* module) {
  return PyType_Ready(&recordType) == 0 && PyModule_AddObjectRef(module, "Record", reinterpret_cast<PyObject*>(&recordType)) == 0;
}

Record* newRecord(const Export& maker, int type) {
  Record* record = PyObject_New(Record, &recordType);
  if (record == nullptr) return nullptr;
  record->maker = &maker;
  record->type = type;
  record->address = record->memory = nullptr;
  record->block = nullptr;
  record->owner = 0;
  record->users = 0;
  record->isFreed = false;
  std::fill(record->brought, record->brought + kMostBrought, 0);
  record->lock = PyThread_allocate_lock();
  if (record->lock != nullptr) return record;
  Py_DECREF(record);
  PyErr_NoMemory();
  return nullptr;
}

bool beginUse(Record* record, const Export& e, bool exclusive) {
  ++record->users;
  if (exclusive && PyThread_acquire_lock(record->lock, NOWAIT_LOCK) == 0) {
    if (record->owner == PyThread_get_thread_ident()) {  // from a finalizer that runs in the midst of a call
      --record->users;
      PyErr_Format(PyExc_RuntimeError, "%s: this thread is in a call with this record", e.name);
      return false;
    }
    Py_BEGIN_ALLOW_THREADS;
    PyThread_acquire_lock(record->lock, WAIT_LOCK);
    Py_END_ALLOW_THREADS;
  }
  if (exclusive) record->owner = PyThread_get_thread_ident();
  if (!record->isFreed) return true;
  endUse(record, exclusive);
  raiseStatus(e, -17);
  return false;
}

void endUse(Record* record, bool exclusive) {
  if (exclusive) {
    record->owner = 0;
    PyThread_release_lock(record->lock);
  }
  if (--record->users == 0 && record->isFreed) release(record);
}

}  // namespace raw
