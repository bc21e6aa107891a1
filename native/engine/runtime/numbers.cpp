#include "runtime/numbers.h"

#include "runtime/identifiers.h"
#include "runtime/imports.h"

#include <limits>

int PyShLong_Check(PyObject* object) {
    if (PyLong_CheckExact(object)) {
        return 1;
    }
    if (!PyLong_Check(object) || PyBool_Check(object)) {
        return 0;
    }
    // The test is made against the metaclass, of which no member of an enum is an instance.
    const Ref enum_type = Ref::steal(PyShImport_ImportType("enum", PyWrpIdTypeName_EnumType));
    return enum_type ? PyObject_IsInstance(object, enum_type.get()) : -1;
}

namespace {

// Whether `object` is an integer; the error is raised here.
bool is_integer(PyObject* object) {
    const int answer = PyShLong_Check(object);
    if (answer == 0) {
        PyErr_Format(PyExc_TypeError, "integer argument expected, got '%s'", type_name_of(object));
    }
    return answer > 0;
}

template <class Narrow> int convert_signed(PyObject* object, Narrow* out, const char* range_words) {
    if (!is_integer(object)) {
        return 0;
    }
    const long value = PyLong_AsLong(object);
    if (value == -1 && PyErr_Occurred() != nullptr) {
        return 0;
    }
    if (value < std::numeric_limits<Narrow>::min() || value > std::numeric_limits<Narrow>::max()) {
        PyErr_Format(PyExc_OverflowError, range_words, value);
        return 0;
    }
    *out = static_cast<Narrow>(value);
    return 1;
}

template <class Narrow>
int convert_unsigned(PyObject* object, Narrow* out, const char* range_words) {
    if (!is_integer(object)) {
        return 0;
    }
    const unsigned long value = PyLong_AsUnsignedLong(object);
    if (value == std::numeric_limits<unsigned long>::max() && PyErr_Occurred() != nullptr) {
        return 0;
    }
    if (value > std::numeric_limits<Narrow>::max()) {
        PyErr_Format(PyExc_OverflowError, range_words, value);
        return 0;
    }
    *out = static_cast<Narrow>(value);
    return 1;
}

} // namespace

int fn_conv_py_long_to_clr_int8(PyObject* object, signed char* out) {
    return convert_signed(object, out, "value '%li' is out of the INT8 range");
}
int fn_conv_py_ulong_to_clr_uint8(PyObject* object, unsigned char* out) {
    return convert_unsigned(object, out, "value '%lu' is out of the UINT8 range");
}
int fn_conv_py_long_to_clr_int16(PyObject* object, short* out) {
    return convert_signed(object, out, "value '%li' is out of the INT16 range");
}
int fn_conv_py_ulong_to_clr_uint16(PyObject* object, unsigned short* out) {
    return convert_unsigned(object, out, "value '%lu' is out of the UINT16 range");
}
int fn_conv_py_long_to_clr_int32(PyObject* object, int* out) {
    return convert_signed(object, out, "value '%li' is out of the INT32 range");
}
int fn_conv_py_ulong_to_clr_uint32(PyObject* object, unsigned int* out) {
    return convert_unsigned(object, out, "value '%lu' is out of the UINT32 range");
}

int fn_conv_py_long_to_clr_int64(PyObject* object, long* out) {
    if (!is_integer(object)) {
        return 0;
    }
    const long long value = PyLong_AsLongLong(object);
    if (value == -1 && PyErr_Occurred() != nullptr) {
        return 0;
    }
    *out = static_cast<long>(value);
    return 1;
}

int fn_conv_py_ulong_to_clr_uint64(PyObject* object, unsigned long* out) {
    if (!is_integer(object)) {
        return 0;
    }
    const unsigned long long value = PyLong_AsUnsignedLongLong(object);
    if (value == std::numeric_limits<unsigned long long>::max() && PyErr_Occurred() != nullptr) {
        return 0;
    }
    *out = static_cast<unsigned long>(value);
    return 1;
}

int fn_conv_py_float_to_clr_double(PyObject* object, double* out) {
    if (!PyFloat_Check(object)) {
        PyErr_Format(PyExc_TypeError, "numeric argument expected, got '%s'", type_name_of(object));
        return 0;
    }
    const double value = PyFloat_AsDouble(object);
    if (value == -1.0 && PyErr_Occurred() != nullptr) {
        return 0;
    }
    *out = value;
    return 1;
}

int fn_conv_py_float_to_clr_float(PyObject* object, float* out) {
    double value = 0.0;
    if (!fn_conv_py_float_to_clr_double(object, &value)) {
        return 0;
    }
    *out = static_cast<float>(value);
    return 1;
}

int fn_conv_py_bool_to_clr_bool(PyObject* object, bool* out) {
    if (!PyBool_Check(object)) {
        PyErr_Format(PyExc_TypeError, "can't build bool from '%s'", type_name_of(object));
        return 0;
    }
    *out = object == Py_True;
    return 1;
}

int fn_conv_py_obj_to_ssize_t(PyObject* object, Py_ssize_t* out) {
    if (!PyIndex_Check(object)) {
        PyErr_Format(PyExc_TypeError, "argument should be integer or None, not '%.200s'",
                     type_name_of(object));
        return 0;
    }
    const Py_ssize_t value = PyNumber_AsSsize_t(object, PyExc_OverflowError);
    if (value == -1 && PyErr_Occurred() != nullptr) {
        return 0;
    }
    *out = value;
    return 1;
}

int fn_conv_py_optional_to_ssize_t(PyObject* args, Py_ssize_t* out) {
    PyObject* item = PyTuple_GET_ITEM(args, 0);
    return item == Py_None ? 1 : fn_conv_py_obj_to_ssize_t(item, out);
}

bool is_int32_index(Py_ssize_t index, Py_ssize_t printed) {
    if (index >= std::numeric_limits<int>::min() && index <= std::numeric_limits<int>::max()) {
        return true;
    }
    PyErr_Format(PyExc_OverflowError, "the index (%zi) is out of the INT32 range", printed);
    return false;
}

int fn_read_py_vers_long(PyObject* object, unsigned long* out) {
    const long value = PyLong_AsLong(object);
    if (value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max() &&
        !(value == -1 && PyErr_Occurred() != nullptr)) {
        *out = static_cast<unsigned long>(value);
        return 1;
    }
    PyErr_Clear();
    const long long wide = PyLong_AsLongLong(object);
    if (!(wide == -1 && PyErr_Occurred() != nullptr)) {
        *out = static_cast<unsigned long>(wide);
        return 2;
    }
    PyErr_Clear();
    const unsigned long long widest = PyLong_AsUnsignedLongLong(object);
    if (PyErr_Occurred() == nullptr) {
        *out = widest;
        return 3;
    }
    PyErr_Clear();
    PyErr_Format(PyExc_TypeError, "can't build integer value from '%s'", type_name_of(object));
    return 0;
}

int fn_read_py_double(PyObject* object, double* out) {
    const double value = PyFloat_AsDouble(object);
    if (value == -1.0 && PyErr_Occurred() != nullptr) {
        return 0;
    }
    *out = value;
    return 1;
}

// An error of the truth test reads as true, and stays pending.
int fn_read_py_bool(PyObject* object) { return PyObject_IsTrue(object) != 0; }

PyObject* fn_write_py_bool(int value) { return PyBool_FromLong(value & 0xFF); }
PyObject* fn_write_py_long(int value) { return PyLong_FromLong(value); }
PyObject* fn_write_py_ulong(unsigned int value) { return PyLong_FromUnsignedLong(value); }
PyObject* fn_write_py_longlong(long value) { return PyLong_FromLongLong(value); }
PyObject* fn_write_py_ulonglong(unsigned long value) { return PyLong_FromUnsignedLongLong(value); }
PyObject* fn_write_py_double(double value) { return PyFloat_FromDouble(value); }
