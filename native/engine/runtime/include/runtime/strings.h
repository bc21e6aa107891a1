// runtime/strings.h: text and characters across the boundary.
//
// Towards managed code a str is not transcoded: its own storage is lent with its character width.
// Back comes UTF-16, which Python decodes.
#ifndef KORVAN_RUNTIME_STRINGS_H
#define KORVAN_RUNTIME_STRINGS_H

#include "runtime/py_base.h"

// Parsing converters: 1, or 0 with a Python error.
int fn_conv_py_string_to_clr_string(PyObject* object, PyStringArg* out);
int fn_conv_py_string_to_clr_string_value(PyObject* object, PyStringArg* out);
int fn_conv_py_strorpath_to_clr_string(PyObject* object, PyEphStrArg* out);
int fn_conv_py_string_to_clr_char(PyObject* object, unsigned short* out);

// Result converters. An unpaired surrogate raises LookupError.
PyObject* fn_conv_clr_string_to_py_string_value(const char* data, long length);
PyObject* fn_conv_clr_string_to_py_string(const char* data, int length);
PyObject* fn_conv_clr_string_to_py_unraisable(const char* data, int length);
PyObject* fn_conv_clr_char_to_py_string(unsigned short code_unit);

// A heap-allocated std::u16string; its holder is one that free() accepts.
void* fn_create_u16_buffer(const char16_t* data, int length);

// Callback slots.
int fn_read_py_string(PyObject* object, PyStringArg* out);
PyObject* fn_write_py_char(int code_unit);
int fn_clbk_ucol_get_unicode_bytes(PyObject* object, PyObject** keep, int* length, void** data);

#endif
