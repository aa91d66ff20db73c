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

// A vector over the first row of an array.
PyArrayObject* firstRow(PyArrayObject* array, npy_intp& rows) {
  if (PyArray_DIM(array, 1) > 1 && PyArray_STRIDE(array, 1) != PyArray_ITEMSIZE(array))
    return PyErr_Format(PyExc_TypeError, "rows takes arrays whose second axis is contiguous"), nullptr;
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

// The arguments of a call for the rows of those of two axes.
struct Rows {
  PyObject* first[kMostParameters];
  npy_intp steps[kMostParameters] = {};  // 0 where an argument stays
  Py_ssize_t count = 0;
  npy_intp rows = -1;

  Rows() = default;
  Rows(const Rows&) = delete;
  ~Rows() {
    while (count > 0) Py_DECREF(first[--count]);
  }
  bool take(PyObject* const* arguments, Py_ssize_t all) {
    while (count < all) {
      PyObject* object = arguments[count];
      if (PyArray_Check(object) && PyArray_NDIM(reinterpret_cast<PyArrayObject*>(object)) == 2) {
        auto* array = reinterpret_cast<PyArrayObject*>(object);
        object = reinterpret_cast<PyObject*>(firstRow(array, rows));
        if (object == nullptr) return false;
        steps[count] = PyArray_STRIDE(array, 0);
        isRow[count] = true;
      } else {
        Py_INCREF(object);
      }
      first[count++] = object;
    }
    return true;
  }
  // Nobody else ever sees these vectors.
  void goOn() {
    for (Py_ssize_t i = 0; i < count; ++i) {
      if (isRow[i]) reinterpret_cast<PyArrayObject_fields*>(first[i])->data += steps[i];
    }
  }

 private:
  bool isRow[kMostParameters] = {};
};

PyObject* callRows(PyObject*, PyObject* const* arguments, Py_ssize_t count) {
  if (count < 1 || exportOf(arguments[0]) == nullptr)
    return PyErr_Format(PyExc_TypeError, "rows takes a function of this module and its arguments");
  const Export& e = *exportOf(arguments[0]);
  const bool isMaker = e.count > 0 && e.parameters[0].kind == Kind::kHandle;
  if (--count != e.count || isMaker) return PyErr_Format(PyExc_TypeError, "%s: rows takes its %d arguments", e.name, e.count);
  Rows all;
  if (!all.take(arguments + 1, count)) return nullptr;
  if (all.rows < 0) return PyErr_Format(PyExc_TypeError, "%s: rows takes arrays of two axes", e.name);
  if (all.rows > 0 && takesRows(e)) return callExportForRows(e, all.first, all.rows, all.steps);
  for (npy_intp row = 0; row < all.rows; ++row) {
    PyObject* none = callExport(e, all.first, count);
    if (none == nullptr) return nullptr;
    Py_DECREF(none);
    all.goOn();
  }
  Py_RETURN_NONE;
}

PyMethodDef methods[] = {{"rows", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(callRows)), METH_FASTCALL,
                          "rows(function, *arguments): the function for every row of the arguments that are arrays of two axes, "
                          "the others as they are."},
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

const Export* exportOf(PyObject* object) { return Py_IS_TYPE(object, &exportType) ? &rowOf(object) : nullptr; }

}  // namespace raw

PyMODINIT_FUNC PyInit_raw() {
  import_array();
  PyObject* module = PyModule_Create(&raw::definition);
  if (module == nullptr) return nullptr;
  if (raw::addStatuses(module) && raw::addRecords(module) && raw::addExports(module) && raw::addElementwise(module))
    return module;
  Py_DECREF(module);
  return nullptr;
}
