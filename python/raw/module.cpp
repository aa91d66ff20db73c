// qvxs.raw: every export of the library as a function of Python.
#define RAW_IMPORTS_ARRAY
#include <cstddef>

#include "raw.h"

namespace raw {

namespace {

struct ExportObject {
  PyObject_HEAD vectorcallfunc vectorcall;
  const Export* row;
};

const Export& rowOf(PyObject* self) { return *reinterpret_cast<ExportObject*>(self)->row; }

PyObject* vectorcall(PyObject* self, PyObject* const* arguments, size_t count, PyObject* names) {
  const Export& e = rowOf(self);
  if (names != nullptr && PyTuple_GET_SIZE(names) > 0)
    return PyErr_Format(PyExc_TypeError, "%s takes its arguments by their places alone", e.name);
  return callExport(e, arguments, PyVectorcall_NARGS(count));
}

PyObject* represent(PyObject* self) { return PyUnicode_FromFormat("<function qvxs.raw.%s>", rowOf(self).name); }
PyObject* nameOf(PyObject* self, void*) { return PyUnicode_FromString(rowOf(self).name); }
PyObject* declarationOf(PyObject* self, void*) { return PyUnicode_FromString(rowOf(self).declaration); }
PyObject* moduleOf(PyObject*, void*) { return PyUnicode_FromString("qvxs.raw"); }

PyGetSetDef attributes[] = {{"__name__", nameOf, nullptr, nullptr, nullptr},
                            {"__qualname__", nameOf, nullptr, nullptr, nullptr},
                            {"__doc__", declarationOf, nullptr, nullptr, nullptr},
                            {"__module__", moduleOf, nullptr, nullptr, nullptr},
                            {nullptr, nullptr, nullptr, nullptr, nullptr}};

PyTypeObject exportType = [] {
  PyTypeObject type = {PyVarObject_HEAD_INIT(nullptr, 0)};
  type.tp_name = "qvxs.raw.Export";
  type.tp_basicsize = sizeof(ExportObject);
  type.tp_vectorcall_offset = offsetof(ExportObject, vectorcall);
  type.tp_call = PyVectorcall_Call;
  type.tp_repr = represent;
  type.tp_flags = Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL | Py_TPFLAGS_DISALLOW_INSTANTIATION;
  type.tp_getset = attributes;
  return type;
}();

bool addExports(PyObject* module) {
  if (PyType_Ready(&exportType) < 0) return false;
  for (int i = 0; i < kExportCount; ++i) {
    ExportObject* object = PyObject_New(ExportObject, &exportType);
    if (object == nullptr) return false;
    object->vectorcall = vectorcall;
    object->row = &kExports[i];
    if (PyModule_AddObject(module, kExports[i].name, reinterpret_cast<PyObject*>(object)) < 0) {
      Py_DECREF(object);
      return false;
    }
  }
  return true;
}

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "qvxs.raw",
                          "Every export of the library, by its name in C, with its arguments in C's order.",
                          -1,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

}  // namespace

}  // namespace raw

PyMODINIT_FUNC PyInit_raw() {
  import_array();
  PyObject* module = PyModule_Create(&raw::definition);
  if (module == nullptr) return nullptr;
  if (raw::addStatuses(module) && raw::addRecords(module) && raw::addExports(module)) return module;
  Py_DECREF(module);
  return nullptr;
}
