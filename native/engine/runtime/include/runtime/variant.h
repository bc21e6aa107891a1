// runtime/variant.h: any Python value for a parameter of the universal object type, and the small
// value kinds: uuid, version, nullable, by-reference.
#ifndef KORVAN_RUNTIME_VARIANT_H
#define KORVAN_RUNTIME_VARIANT_H

#include "runtime/py_base.h"

// A parsing converter, as the O& format of argument parsing takes one.
using ParsingConverter = int (*)(PyObject* object, void* destination);

struct PyNullableArg {
    std::int32_t has_value;
    ParsingConverter convert;
    void* destination;
};
static_assert(sizeof(PyNullableArg) == 24);

struct PyParamByRef {
    PyObject* list; // borrowed from the arguments
    ParsingConverter convert;
    void* destination;
};
static_assert(sizeof(PyParamByRef) == 24);

int fn_conv_py_variant_to_clr_variant(PyObject* object, VariantArg* out);
int fn_conv_py_nullable_to_clr_nullable(PyObject* object, PyNullableArg* arg);
int fn_conv_py_parbyref_to_clr_parbyref(PyObject* object, PyParamByRef* arg);
// 0, or -1 with an error; consumes the value's reference.
int fn_push_parbyref_outvalue(PyObject* list, PyObject* value);

int fn_conv_py_uuid_to_clr_guid(PyObject* object, unsigned char* out);
void fn_conv_py_uuid_to_clr_guid_value(PyObject* object, unsigned char* out);
PyObject* fn_conv_clr_guid_to_py_uuid(const void* bytes);
int fn_conv_py_tuple_to_clr_version(PyObject* object, PySysVersionArg* out);
PyObject* fn_conv_clr_version_to_py_tuple(const PySysVersionArg& version);

// Callback slots.
void fn_read_py_guid(PyObject* object, unsigned char* out);
PyObject* fn_write_py_guid(const void* bytes);

#endif
