#include <string>

#include "raw.h"

namespace raw {

PyObject* errorType;
PyObject* warningType;

namespace {

const StatusRow& rowOf(int status) {
  static const StatusRow unknown = {0, "unknown", "a status that the headers do not name"};
  const StatusRow* found =
      std::find_if(kStatuses, kStatuses + kStatusCount, [=](const StatusRow& row) { return row.value == status; });
  return found == kStatuses + kStatusCount ? unknown : *found;
}

std::string messageOf(const Export& e, const StatusRow& row) {
  return std::string(e.name) + ": " + row.text + " (" + row.name + ")";
}

// A new exception with the status in its attributes.
PyObject* exceptionOf(PyObject* type, const Export& e, int status) {
  const StatusRow& row = rowOf(status);
  PyObject* exception = PyObject_CallFunction(type, "s", messageOf(e, row).c_str());
  if (exception == nullptr) return nullptr;
  const auto set = [&](const char* name, PyObject* value) {
    const bool isSet = value != nullptr && PyObject_SetAttrString(exception, name, value) == 0;
    Py_XDECREF(value);
    return isSet;
  };
  if (set("status", PyLong_FromLong(status)) && set("name", PyUnicode_FromString(row.name)) &&
      set("text", PyUnicode_FromString(row.text)))
    return exception;
  Py_DECREF(exception);
  return nullptr;
}

}  // namespace

void raiseStatus(const Export& e, int status) {
  if (PyObject* exception = exceptionOf(errorType, e, status)) {
    PyErr_SetObject(errorType, exception);
    Py_DECREF(exception);
  }
}

bool warnOfStatus(const Export& e, int status) { return PyErr_WarnEx(warningType, messageOf(e, rowOf(status)).c_str(), 1) == 0; }

bool addStatuses(PyObject* module) {
  errorType = PyErr_NewExceptionWithDoc(
      "qvxs.Error", "A call was refused, and nothing was written. status, name and text tell why.", nullptr, nullptr);
  warningType = PyErr_NewExceptionWithDoc("qvxs.Warning", "Everything was written, but some element had no proper result.",
                                          PyExc_RuntimeWarning, nullptr);
  return PyModule_AddObjectRef(module, "Error", errorType) == 0 && PyModule_AddObjectRef(module, "Warning", warningType) == 0;
}

}  // namespace raw
