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

// A vector that moves over the rows of an array; nobody else ever sees it.
PyArrayObject* firstRow(PyObject* object, npy_intp& rows) {
  if (!PyArray_Check(object)) return PyErr_Format(PyExc_TypeError, "rows takes arrays"), nullptr;
  auto* array = reinterpret_cast<PyArrayObject*>(object);
  if (PyArray_NDIM(array) != 2 || (PyArray_DIM(array, 1) > 1 && PyArray_STRIDE(array, 1) != PyArray_ITEMSIZE(array)))
    return PyErr_Format(PyExc_TypeError, "rows takes arrays of two axes, the second contiguous"), nullptr;
  if (rows >= 0 && PyArray_DIM(array, 0) != rows)
    return PyErr_Format(PyExc_ValueError, "arrays of different numbers of rows"), nullptr;
  rows = PyArray_DIM(array, 0);
  // A row is aligned where the first one and the step to the next are.
  const bool steps = rows < 2 || PyArray_STRIDE(array, 0) % PyArray_DESCR(array)->alignment == 0;
  if (!steps || !PyArray_ISALIGNED(array)) return PyErr_Format(PyExc_TypeError, "rows takes aligned arrays"), nullptr;
  npy_intp length = PyArray_DIM(array, 1);
  PyArray_Descr* type = PyArray_DESCR(array);
  Py_INCREF(type);
  return reinterpret_cast<PyArrayObject*>(PyArray_NewFromDescr(&PyArray_Type, type, 1, &length, nullptr, PyArray_DATA(array),
                                                               PyArray_FLAGS(array) & NPY_ARRAY_WRITEABLE, nullptr));
}

PyObject* callRows(PyObject*, PyObject* const* arguments, Py_ssize_t count) {
  constexpr Py_ssize_t kMost = 16;
  if (count < 2 || count > kMost || Py_TYPE(arguments[0]) != &exportType || !PyTuple_Check(arguments[1]))
    return PyErr_Format(PyExc_TypeError, "rows takes a function of this module, a tuple of arrays, and what comes after them");
  const Export& e = rowOf(arguments[0]);
  const Py_ssize_t vectors = PyTuple_GET_SIZE(arguments[1]);
  if (vectors < 1 || vectors + count - 2 > kMost)
    return PyErr_Format(PyExc_TypeError, "rows takes one array to %zd", kMost - count + 2);
  PyObject* all[kMost] = {};
  npy_intp rows = -1;
  bool good = true;
  for (Py_ssize_t i = 0; i < vectors && good; ++i) {
    all[i] = reinterpret_cast<PyObject*>(firstRow(PyTuple_GET_ITEM(arguments[1], i), rows));
    good = all[i] != nullptr;
  }
  for (Py_ssize_t i = 2; i < count; ++i) all[vectors + i - 2] = arguments[i];
  for (npy_intp row = 0; row < rows && good; ++row) {
    PyObject* none = callExport(e, all, vectors + count - 2);
    good = none != nullptr;
    Py_XDECREF(none);
    for (Py_ssize_t i = 0; i < vectors; ++i) {
      auto* whole = reinterpret_cast<PyArrayObject*>(PyTuple_GET_ITEM(arguments[1], i));
      reinterpret_cast<PyArrayObject_fields*>(all[i])->data += PyArray_STRIDE(whole, 0);
    }
  }
  for (Py_ssize_t i = 0; i < vectors; ++i) Py_XDECREF(all[i]);
  if (!good) return nullptr;
  Py_RETURN_NONE;
}

PyMethodDef methods[] = {
    {"rows", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(callRows)), METH_FASTCALL,
     "rows(function, arrays, *rest): function(row of each array, *rest) for all rows of arrays of two axes."},
    {nullptr, nullptr, 0, nullptr}};

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "qvxs.raw",
                          "Every export of the library, by its name in C, with its arguments in C's order.",
                          -1,
                          methods,
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
