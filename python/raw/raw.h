// The extension's own parts: statuses as exceptions, records, and calls.
#pragma once

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#define NPY_NO_DEPRECATED_API NPY_1_22_API_VERSION
#define PY_ARRAY_UNIQUE_SYMBOL qvxs_raw_array
#ifndef RAW_IMPORTS_ARRAY
#define NO_IMPORT_ARRAY
#endif
#include <numpy/arrayobject.h>

#include "table.h"

namespace raw {

// ---- statuses

extern PyObject* errorType;
extern PyObject* warningType;
bool addStatuses(PyObject* module);

// Sets the exception for a negative status.
void raiseStatus(const Export& e, int status);
// False if the warning for a positive one was made an exception.
bool warnOfStatus(const Export& e, int status);

// ---- records

constexpr int kMostBrought = 24;

struct Record {
  PyObject_HEAD const Export* maker;
  int type;
  void* address;  // null once it is released
  void* memory;   // where it lies, unless the library allocated it
  PyObject* block;
  PyThread_type_lock lock;
  unsigned long owner;  // the thread that holds the lock
  int users;            // calls under way
  bool isFreed;
  int64_t brought[kMostBrought];  // the numbers that extents take from it
};

extern PyTypeObject recordType;
bool addRecords(PyObject* module);
Record* newRecord(const Export& maker, int type);

// One call's use of a record. Waits for other threads' calls with it if `exclusive`.
bool beginUse(Record* record, const Export& e, bool exclusive);
void endUse(Record* record, bool exclusive);

// ---- arguments

struct ElementType {
  const char* name;  // NumPy's
  char kind;
  int bytes;    // of a number, or of one part
  bool isPair;  // complex integers, which NumPy lacks
  int number;   // NumPy's, of a part where it is a pair
};
const ElementType& elementType(Element element);

bool convertNumber(PyObject* object, const Export& e, const Parameter& p, Slot& slot, int64_t& integer);

struct Vector {
  unsigned char* data;
  int64_t count;
};
bool convertVector(PyObject* object, const Export& e, const Parameter& p, Vector& vector);

// ---- calls

// Elements above which other threads of Python may run during the call: releasing the lock costs 25 ns where none waits.
constexpr int64_t kLong = 10000, kLongOfFilters = 1000;

PyObject* callExport(const Export& e, PyObject* const* arguments, Py_ssize_t count);

// Whether the checks of a first row hold for the others. Then one call does them all: 20 ns for a row of 4 floats, not 90.
bool takesRows(const Export& e);
// For as many arguments as there are parameters.
PyObject* callExportForRows(const Export& e, PyObject* const* arguments, npy_intp rows, const npy_intp* steps);

// The row of a function of this module, or null.
const Export* exportOf(PyObject* object);

bool addElementwise(PyObject* module);

}  // namespace raw
