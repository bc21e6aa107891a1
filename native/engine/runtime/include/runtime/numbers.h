// runtime/numbers.h: integers, floats and booleans.
//
// Parsing converters are strict: each takes exactly the Python type that corresponds, and returns
// 1, or 0 with a Python error. The fn_read_py_* slots are laxer.
#ifndef KORVAN_RUNTIME_NUMBERS_H
#define KORVAN_RUNTIME_NUMBERS_H

#include "runtime/py_base.h"

// 1 for what counts as an integer, 0, or -1 with an error. In effect only exact int objects count.
int PyShLong_Check(PyObject* object);

int fn_conv_py_long_to_clr_int8(PyObject* object, signed char* out);
int fn_conv_py_ulong_to_clr_uint8(PyObject* object, unsigned char* out);
int fn_conv_py_long_to_clr_int16(PyObject* object, short* out);
int fn_conv_py_ulong_to_clr_uint16(PyObject* object, unsigned short* out);
int fn_conv_py_long_to_clr_int32(PyObject* object, int* out);
int fn_conv_py_ulong_to_clr_uint32(PyObject* object, unsigned int* out);
int fn_conv_py_long_to_clr_int64(PyObject* object, long* out);
int fn_conv_py_ulong_to_clr_uint64(PyObject* object, unsigned long* out);
int fn_conv_py_float_to_clr_double(PyObject* object, double* out);
// Narrows by plain conversion: what is too large becomes an infinity.
int fn_conv_py_float_to_clr_float(PyObject* object, float* out);
int fn_conv_py_bool_to_clr_bool(PyObject* object, bool* out);

// For methods shaped like Python's own: through __index__.
int fn_conv_py_obj_to_ssize_t(PyObject* object, Py_ssize_t* out);
// Item 0 of `args`; None leaves *out as it was.
int fn_conv_py_optional_to_ssize_t(PyObject* args, Py_ssize_t* out);

// Managed indices have 32 bits. False with OverflowError, which shows `printed`.
bool is_int32_index(Py_ssize_t index, Py_ssize_t printed);
inline bool is_int32_index(Py_ssize_t index) { return is_int32_index(index, index); }

// Callback slots. fn_read_py_vers_long: 1 fits int32, 2 fits int64, 3 fits uint64, 0 error.
int fn_read_py_vers_long(PyObject* object, unsigned long* out);
int fn_read_py_double(PyObject* object, double* out);
int fn_read_py_bool(PyObject* object);
PyObject* fn_write_py_bool(int value);
PyObject* fn_write_py_long(int value);
PyObject* fn_write_py_ulong(unsigned int value);
PyObject* fn_write_py_longlong(long value);
PyObject* fn_write_py_ulonglong(unsigned long value);
PyObject* fn_write_py_double(double value);

#endif
