// Python's objects as what C takes.
#include <cmath>
#include <limits>

#include "raw.h"

namespace raw {

namespace {

bool fail(PyObject* type, const Export& e, const Parameter& p, const char* what) {
  PyErr_Format(type, "%s: %s %s", e.name, p.name, what);
  return false;
}

bool overflow(const Export& e, const Parameter& p) {
  PyErr_Format(PyExc_OverflowError, "%s: %s does not fit %s", e.name, p.name, elementType(p.element).name);
  return false;
}

// Any object with __index__.
bool toInteger(PyObject* object, const Export& e, const Parameter& p, int64_t least, int64_t most, int64_t& value) {
  PyObject* index = PyLong_Check(object) ? Py_NewRef(object) : PyNumber_Index(object);
  if (index == nullptr) return fail(PyExc_TypeError, e, p, "takes an integer");
  int overflows = 0;
  value = PyLong_AsLongLongAndOverflow(index, &overflows);
  Py_DECREF(index);
  return overflows == 0 && value >= least && value <= most ? true : overflow(e, p);
}

template <class T> bool setInteger(PyObject* object, const Export& e, const Parameter& p, Slot& slot, int64_t& value) {
  constexpr auto kMost = sizeof(T) == 8 ? INT64_MAX : static_cast<int64_t>(std::numeric_limits<T>::max());
  if (!toInteger(object, e, p, static_cast<int64_t>(std::numeric_limits<T>::min()), kMost, value)) return false;
  slot.set(static_cast<T>(value));
  return true;
}

bool setUnsigned64(PyObject* object, const Export& e, const Parameter& p, Slot& slot) {
  PyObject* index = PyNumber_Index(object);
  if (index == nullptr) return fail(PyExc_TypeError, e, p, "takes an integer");
  const uint64_t value = PyLong_AsUnsignedLongLong(index);
  Py_DECREF(index);
  if (PyErr_Occurred() != nullptr) {
    PyErr_Clear();
    return overflow(e, p);
  }
  slot.set(value);
  return true;
}

template <class T> bool isOutside(double value) { return std::isfinite(value) && !std::isfinite(static_cast<T>(value)); }

template <class T> bool setReal(PyObject* object, const Export& e, const Parameter& p, Slot& slot) {
  const double value = PyFloat_AsDouble(object);
  if (value == -1 && PyErr_Occurred() != nullptr) return false;
  if (isOutside<T>(value)) return overflow(e, p);
  slot.set(static_cast<T>(value));
  return true;
}

template <class T> struct Pair { T re, im; };

template <class T> bool setComplex(PyObject* object, const Export& e, const Parameter& p, Slot& slot) {
  const Py_complex value = PyComplex_AsCComplex(object);
  if (value.real == -1 && PyErr_Occurred() != nullptr) return false;
  if (isOutside<T>(value.real) || isOutside<T>(value.imag)) return overflow(e, p);
  slot.set(Pair<T>{static_cast<T>(value.real), static_cast<T>(value.imag)});
  return true;
}

// A pair of integers, an integer, or a complex number whose parts are whole.
template <class T> bool setWholeComplex(PyObject* object, const Export& e, const Parameter& p, Slot& slot) {
  const auto least = static_cast<int64_t>(std::numeric_limits<T>::min()),
             most = static_cast<int64_t>(std::numeric_limits<T>::max());
  int64_t re = 0, im = 0;
  if (PyTuple_Check(object) && PyTuple_GET_SIZE(object) == 2) {
    if (!toInteger(PyTuple_GET_ITEM(object, 0), e, p, least, most, re)) return false;
    if (!toInteger(PyTuple_GET_ITEM(object, 1), e, p, least, most, im)) return false;
  } else if (PyIndex_Check(object)) {
    if (!toInteger(object, e, p, least, most, re)) return false;
  } else {
    const Py_complex value = PyComplex_AsCComplex(object);
    if (value.real == -1 && PyErr_Occurred() != nullptr) return false;
    for (const auto& [part, to] : {std::pair(value.real, &re), std::pair(value.imag, &im)}) {
      if (!(part >= static_cast<double>(least) && part < -static_cast<double>(least))) return overflow(e, p);
      if (part != std::trunc(part)) return fail(PyExc_ValueError, e, p, "takes whole numbers");
      *to = static_cast<int64_t>(part);
    }
  }
  slot.set(Pair<T>{static_cast<T>(re), static_cast<T>(im)});
  return true;
}

// Whether an array's elements are those, and how many of its elements make one.
bool matches(PyArrayObject* array, const ElementType& type, int& parts) {
  const PyArray_Descr* descr = PyArray_DESCR(array);
  parts = 1;
  const auto isNumber = [](const PyArray_Descr* d, const ElementType& t) {
    return d->type_num == t.number || (d->kind == t.kind && d->elsize == t.bytes);
  };
  if (!PyArray_ISNBO(descr->byteorder)) return false;
  if (!type.isPair) return isNumber(descr, type);
  if (isNumber(descr, type)) {
    parts = 2;
    return PyArray_NDIM(array) > 0 && PyArray_DIM(array, PyArray_NDIM(array) - 1) == 2;
  }
  if (descr->type_num != NPY_VOID || descr->elsize != 2 * type.bytes || descr->fields == nullptr) return false;
  for (const auto& [name, offset] : {std::pair("re", 0), std::pair("im", type.bytes)}) {
    PyObject* field = PyDict_GetItemString(descr->fields, name);
    if (field == nullptr || !PyTuple_Check(field)) return false;
    const auto* part = reinterpret_cast<PyArray_Descr*>(PyTuple_GET_ITEM(field, 0));
    if (!PyArray_ISNBO(part->byteorder) || !isNumber(part, type) || PyLong_AsLong(PyTuple_GET_ITEM(field, 1)) != offset)
      return false;
  }
  return true;
}

}  // namespace

const ElementType& elementType(Element element) {
  static const ElementType types[] = {{"uint8", 'u', 1, false, NPY_UINT8},           {"int8", 'i', 1, false, NPY_INT8},
                                      {"uint16", 'u', 2, false, NPY_UINT16},         {"int16", 'i', 2, false, NPY_INT16},
                                      {"uint32", 'u', 4, false, NPY_UINT32},         {"int32", 'i', 4, false, NPY_INT32},
                                      {"uint64", 'u', 8, false, NPY_UINT64},         {"int64", 'i', 8, false, NPY_INT64},
                                      {"float16", 'f', 2, false, NPY_FLOAT16},       {"float32", 'f', 4, false, NPY_FLOAT32},
                                      {"float64", 'f', 8, false, NPY_FLOAT64},       {"a pair of int8", 'i', 1, true, NPY_INT8},
                                      {"a pair of int16", 'i', 2, true, NPY_INT16},  {"a pair of int32", 'i', 4, true, NPY_INT32},
                                      {"a pair of int64", 'i', 8, true, NPY_INT64},  {"complex64", 'c', 8, false, NPY_COMPLEX64},
                                      {"complex128", 'c', 16, false, NPY_COMPLEX128}};
  return types[static_cast<size_t>(element)];
}

bool convertNumber(PyObject* object, const Export& e, const Parameter& p, Slot& slot, int64_t& integer) {
  switch (p.element) {
    case Element::k8u:
      return setInteger<uint8_t>(object, e, p, slot, integer);
    case Element::k8s:
      return setInteger<int8_t>(object, e, p, slot, integer);
    case Element::k16u:
      return setInteger<uint16_t>(object, e, p, slot, integer);
    case Element::k16s:
      return setInteger<int16_t>(object, e, p, slot, integer);
    case Element::k32u:
      return setInteger<uint32_t>(object, e, p, slot, integer);
    case Element::k32s:
      return setInteger<int32_t>(object, e, p, slot, integer);
    case Element::k64s:
      return setInteger<int64_t>(object, e, p, slot, integer);
    case Element::k64u:
      return setUnsigned64(object, e, p, slot);
    case Element::k32f:
      return setReal<float>(object, e, p, slot);
    case Element::k64f:
      return setReal<double>(object, e, p, slot);
    case Element::k32fc:
      return setComplex<float>(object, e, p, slot);
    case Element::k64fc:
      return setComplex<double>(object, e, p, slot);
    case Element::k8sc:
      return setWholeComplex<int8_t>(object, e, p, slot);
    case Element::k16sc:
      return setWholeComplex<int16_t>(object, e, p, slot);
    case Element::k32sc:
      return setWholeComplex<int32_t>(object, e, p, slot);
    case Element::k64sc:
      return setWholeComplex<int64_t>(object, e, p, slot);
    case Element::k16f:
      break;
  }
  return fail(PyExc_NotImplementedError, e, p, "has no number in Python");
}

bool convertVector(PyObject* object, const Export& e, const Parameter& p, Vector& vector) {
  const ElementType& type = elementType(p.element);
  if (!PyArray_Check(object)) {
    PyErr_Format(PyExc_TypeError, "%s: %s takes an array of %s, not %s", e.name, p.name, type.name, Py_TYPE(object)->tp_name);
    return false;
  }
  auto* array = reinterpret_cast<PyArrayObject*>(object);
  int parts = 1;
  if (!matches(array, type, parts)) {
    PyErr_Format(PyExc_TypeError, "%s: %s takes an array of %s, not of %S", e.name, p.name, type.name, PyArray_DESCR(array));
    return false;
  }
  if (!PyArray_CHKFLAGS(array, NPY_ARRAY_C_CONTIGUOUS | NPY_ARRAY_ALIGNED))
    return fail(PyExc_ValueError, e, p, "must be contiguous in C order, and aligned");
  if (!p.isConst && !PyArray_ISWRITEABLE(array)) return fail(PyExc_ValueError, e, p, "is read-only");
  vector = {static_cast<unsigned char*>(PyArray_DATA(array)), PyArray_SIZE(array) / parts};
  return true;
}

}  // namespace raw
