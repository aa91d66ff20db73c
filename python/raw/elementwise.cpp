// The usual call of an element-wise function of the upper level: whole arrays of one type and shape in, a new array out. All
// other calls go to the function in Python. 1000 floats take 0.2 us this way, 0.5 through Python's checks.
#include <climits>
#include <cstddef>

#include "raw.h"

namespace raw {

namespace {

constexpr int kTypes = NPY_NTYPES;

struct Elementwise {
  PyObject_HEAD vectorcallfunc vectorcall;
  PyObject* general;  // the function in Python
  int sources;
  bool isTurned;                  // the library takes the second source first
  const Export* exports[kTypes];  // by the type of the sources
  int results[kTypes];
};

Elementwise& of(PyObject* self) { return *reinterpret_cast<Elementwise*>(self); }

bool isPlain(PyArrayObject* array) { return PyArray_ISCARRAY_RO(array); }

bool isApart(PyArrayObject* a, PyArrayObject* b) {
  return PyArray_BYTES(a) + PyArray_NBYTES(a) <= PyArray_BYTES(b) || PyArray_BYTES(b) + PyArray_NBYTES(b) <= PyArray_BYTES(a);
}

bool haveOneShape(PyArrayObject* a, PyArrayObject* b) {
  return PyArray_NDIM(a) == PyArray_NDIM(b) && PyArray_CompareLists(PyArray_DIMS(a), PyArray_DIMS(b), PyArray_NDIM(a)) != 0;
}

// The array that `out` names, or a new one; null, with no error set, leaves the call to the function in Python.
PyArrayObject* destination(const Elementwise& self, PyArrayObject* const* sources, PyObject* out, int type) {
  if (out == nullptr || out == Py_None)
    return reinterpret_cast<PyArrayObject*>(
        PyArray_New(&PyArray_Type, PyArray_NDIM(sources[0]), PyArray_DIMS(sources[0]), type, nullptr, nullptr, 0, 0, nullptr));
  if (!PyArray_CheckExact(out)) return nullptr;
  auto* array = reinterpret_cast<PyArrayObject*>(out);
  if (PyArray_TYPE(array) != type || !PyArray_ISCARRAY(array) || !haveOneShape(array, sources[0])) return nullptr;
  for (int i = 0; i < self.sources; ++i) {
    if (!isApart(array, sources[i])) return nullptr;
  }
  Py_INCREF(out);
  return array;
}

// Null, with no error set, leaves the call to the function in Python.
PyObject* callShortly(const Elementwise& self, PyObject* const* arguments, PyObject* out) {
  PyArrayObject* sources[2] = {};
  for (int i = 0; i < self.sources; ++i) {
    if (!PyArray_CheckExact(arguments[i])) return nullptr;
    sources[i] = reinterpret_cast<PyArrayObject*>(arguments[i]);
    if (!isPlain(sources[i]) || PyArray_TYPE(sources[i]) != PyArray_TYPE(sources[0]) || !haveOneShape(sources[i], sources[0]))
      return nullptr;
  }
  const int type = PyArray_TYPE(sources[0]);
  const npy_intp size = PyArray_SIZE(sources[0]);
  const Export* e = type < kTypes ? self.exports[type] : nullptr;
  if (e == nullptr || PyArray_NDIM(sources[0]) == 0 || size < 1 || size > INT_MAX) return nullptr;
  PyArrayObject* result = destination(self, sources, out, self.results[type]);
  if (result == nullptr) return nullptr;
  Slot slots[4];
  for (int i = 0; i < self.sources; ++i) slots[self.isTurned ? self.sources - 1 - i : i].set(PyArray_DATA(sources[i]));
  slots[self.sources].set(PyArray_DATA(result));
  slots[self.sources + 1].set(static_cast<int>(size));
  int status = 0;
  if (size > kLong / 3) {
    Py_BEGIN_ALLOW_THREADS;
    status = e->call(e->function, slots);
    Py_END_ALLOW_THREADS;
  } else {
    status = e->call(e->function, slots);
  }
  if (status < 0 || (status > 0 && !warnOfStatus(*e, status))) Py_CLEAR(result);
  return reinterpret_cast<PyObject*>(result);
}

PyObject* vectorcall(PyObject* object, PyObject* const* arguments, size_t count, PyObject* names) {
  const Elementwise& self = of(object);
  const bool isNamed = names != nullptr && PyTuple_GET_SIZE(names) > 0;
  const auto isOutAlone = [names] {
    return PyTuple_GET_SIZE(names) == 1 && PyUnicode_CompareWithASCIIString(PyTuple_GET_ITEM(names, 0), "out") == 0;
  };
  if (PyVectorcall_NARGS(count) == self.sources && (!isNamed || isOutAlone())) {
    PyObject* const out = isNamed ? arguments[self.sources] : nullptr;
    PyObject* result = callShortly(self, arguments, out);
    if (result != nullptr || PyErr_Occurred() != nullptr) return result;
  }
  return PyObject_Vectorcall(self.general, arguments, count, names);
}

// ---- its making

// Whether the export takes vectors of one length and that length, and from what type to what.
bool fits(const Export& e, int& sources, int& from, int& to) {
  sources = e.count - 2;
  if (e.result != Result::kStatus || sources < 1 || sources > 2 || e.guard != nullptr || e.isApart || e.isUnlike) return false;
  const Parameter& length = e.parameters[e.count - 1];
  if (length.kind != Kind::kNumber || length.element != Element::k32s) return false;
  Integers integers = {};
  integers[e.count - 1] = 5;
  for (int i = 0; i <= sources; ++i) {
    const Parameter& p = e.parameters[i];
    const ElementType& type = elementType(p.element);
    if (p.kind != Kind::kVector || p.isConst != (i < sources) || type.isPair || p.content != Content::kNone) return false;
    const int64_t none[kMostBrought] = {};
    if (p.extent(integers, none).value() != 5) return false;
    if (i > 0 && i < sources && type.number != from) return false;
    (i < sources ? from : to) = type.number;
  }
  return true;
}

void deallocate(PyObject* self) {
  PyObject_GC_UnTrack(self);
  Py_XDECREF(of(self).general);
  PyObject_GC_Del(self);
}

int traverse(PyObject* self, visitproc visit, void* arg) {
  Py_VISIT(of(self).general);
  return 0;
}

int clear(PyObject* self) {
  Py_CLEAR(of(self).general);
  return 0;
}

// The attributes of the function in Python: its name, its documentation, its signature.
PyObject* attribute(PyObject* self, PyObject* name) {
  PyObject* own = PyObject_GenericGetAttr(self, name);
  if (own != nullptr || !PyErr_ExceptionMatches(PyExc_AttributeError)) return own;
  PyErr_Clear();
  return PyObject_GetAttr(of(self).general, name);
}

PyObject* generalOf(PyObject* self, void*) { return Py_NewRef(of(self).general); }
PyObject* documentationOf(PyObject* self, void*) { return PyObject_GetAttrString(of(self).general, "__doc__"); }
PyObject* moduleOf(PyObject* self, void*) { return PyObject_GetAttrString(of(self).general, "__module__"); }
PyObject* represent(PyObject* self) { return PyObject_Repr(of(self).general); }
PyObject* reduce(PyObject* self, PyObject*) { return PyObject_GetAttrString(of(self).general, "__qualname__"); }  // by its name

PyGetSetDef attributes[] = {{"__wrapped__", generalOf, nullptr, nullptr, nullptr},
                            {"__doc__", documentationOf, nullptr, nullptr, nullptr},
                            {"__module__", moduleOf, nullptr, nullptr, nullptr},
                            {nullptr, nullptr, nullptr, nullptr, nullptr}};
PyMethodDef methods[] = {{"__reduce__", reduce, METH_NOARGS, nullptr}, {nullptr, nullptr, 0, nullptr}};

PyTypeObject elementwiseType = [] {
  PyTypeObject type = {PyVarObject_HEAD_INIT(nullptr, 0)};
  type.tp_name = "qvxs.raw.Elementwise";
  type.tp_basicsize = sizeof(Elementwise);
  type.tp_dealloc = deallocate;
  type.tp_traverse = traverse;
  type.tp_clear = clear;
  type.tp_vectorcall_offset = offsetof(Elementwise, vectorcall);
  type.tp_call = PyVectorcall_Call;
  type.tp_repr = represent;
  type.tp_getattro = attribute;
  type.tp_flags = Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL | Py_TPFLAGS_HAVE_GC | Py_TPFLAGS_DISALLOW_INSTANTIATION;
  type.tp_getset = attributes;
  type.tp_methods = methods;
  return type;
}();

PyObject* make(PyObject*, PyObject* arguments) {
  PyObject *exports = nullptr, *general = nullptr;
  int isTurned = 0;
  if (!PyArg_ParseTuple(arguments, "O!O|p", &PyTuple_Type, &exports, &general, &isTurned)) return nullptr;
  if (!PyCallable_Check(general) || PyTuple_GET_SIZE(exports) == 0)
    return PyErr_Format(PyExc_TypeError, "elementwise takes functions of this module and one for all other calls");
  Elementwise* self = PyObject_GC_New(Elementwise, &elementwiseType);
  if (self == nullptr) return nullptr;
  self->vectorcall = vectorcall;
  self->general = Py_NewRef(general);
  self->sources = 0;
  self->isTurned = isTurned != 0;
  std::fill(self->exports, self->exports + kTypes, nullptr);
  PyObject_GC_Track(self);
  for (Py_ssize_t i = 0; i < PyTuple_GET_SIZE(exports); ++i) {
    const Export* e = exportOf(PyTuple_GET_ITEM(exports, i));
    int sources = 0, from = 0, to = 0;
    if (e == nullptr || !fits(*e, sources, from, to) || (i > 0 && sources != self->sources)) {
      Py_DECREF(self);
      return PyErr_Format(PyExc_TypeError, "elementwise takes functions of as many vectors each, and their length; not %R",
                          PyTuple_GET_ITEM(exports, i));
    }
    self->sources = sources;
    self->exports[from] = e;
    self->results[from] = to;
  }
  return reinterpret_cast<PyObject*>(self);
}

PyMethodDef maker = {
    "elementwise", make, METH_VARARGS,
    "elementwise(exports, general, swapped=False): a function that calls the export for the type of its arrays where they are "
    "of one type and shape and contiguous, and `general` for all else. swapped: the export takes its two sources the other way "
    "round."};

}  // namespace

bool addElementwise(PyObject* module) {
  if (PyType_Ready(&elementwiseType) < 0) return false;
  PyObject* function = PyCFunction_New(&maker, nullptr);
  const bool isAdded = function != nullptr && PyModule_AddObjectRef(module, "elementwise", function) == 0;
  Py_XDECREF(function);
  return isAdded;
}

}  // namespace raw
