// runtime/decimals.h: decimal numbers, through Python's tuple of digits.
#ifndef KORVAN_RUNTIME_DECIMALS_H
#define KORVAN_RUNTIME_DECIMALS_H

#include "runtime/py_base.h"

int fn_conv_py_decimal_to_clr_decimal(PyObject* object, unsigned int* out);
int fn_conv_py_decimal_obj_to_clr_decimal(PyObject* object, unsigned int* out);
int fn_conv_py_decimal_tuple_to_clr_decimal(PyObject* tuple, unsigned int* out);
PyObject* fn_conv_clr_decimal_to_py_decimal(unsigned int* words);

// True, with an error set, for the exponent of a value that is no finite number.
bool is_non_convertable_py_decimal(PyObject* exponent, const char* type_name);
// The decimal value of the digits in a range.
unsigned long get_mantissa_group(PyObject* digits, const long& begin, const long& end);

// Callback slots.
int fn_read_py_decimal(PyObject* object, unsigned int* out);
int fn_read_py_decimal_tuple(PyObject* object, unsigned int* out);
PyObject* fn_write_py_decimal(unsigned int* words);

#endif
