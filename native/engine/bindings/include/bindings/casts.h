// bindings/casts.h: the cast protocol: asking the managed runtime about types, and changing the
// Python view of an object.
#ifndef KORVAN_BINDINGS_CASTS_H
#define KORVAN_BINDINGS_CASTS_H

#include "bindings/tables.h"
#include "runtime/wrapped_objects.h"

PyObject* type_of(ClassBinding& binding);
PyObject* cast_to(ClassBinding& binding, PyObject* value);
PyObject* cast_as(ClassBinding& binding, PyObject* value);
PyObject* reinterpret_obj(ClassBinding& binding, PyObject* value);
PyObject* is_assignable(ClassBinding& binding, PyObject* value);
// On an instance: real for types with an explicit conversion, else a failed result.
PyObject* cast_from(PyObject* self, PyObject* type);

PyObject* enum_type_of(EnumBinding& binding);
PyObject* enum_cast(EnumBinding& binding, PyObject* value, bool as_form);
PyObject* enum_reinterpret_obj(EnumBinding& binding, PyObject* value);
PyObject* enum_is_assignable(EnumBinding& binding, PyObject* value);
PyObject* enum_as_uni_enum(EnumBinding& binding, PyObject* self);
PyObject* enum_get_type(EnumBinding& binding, PyObject* self);
PyObject* enum_cast_from(PyObject* self, PyObject* type);

template <ClassBinding& B> PyObject* type_of_thunk(PyObject*, PyObject*) { return type_of(B); }
template <ClassBinding& B> PyObject* cast_to_thunk(PyObject*, PyObject* v) { return cast_to(B, v); }
template <ClassBinding& B> PyObject* cast_as_thunk(PyObject*, PyObject* v) { return cast_as(B, v); }
template <ClassBinding& B> PyObject* reinterpret_obj_thunk(PyObject*, PyObject* v) {
    return reinterpret_obj(B, v);
}
template <ClassBinding& B> PyObject* is_assignable_thunk(PyObject*, PyObject* v) {
    return is_assignable(B, v);
}

template <EnumBinding& B> PyObject* enum_type_of_thunk(PyObject*, PyObject*) {
    return enum_type_of(B);
}
template <EnumBinding& B> PyObject* enum_cast_to_thunk(PyObject*, PyObject* v) {
    return enum_cast(B, v, false);
}
template <EnumBinding& B> PyObject* enum_cast_as_thunk(PyObject*, PyObject* v) {
    return enum_cast(B, v, true);
}
template <EnumBinding& B> PyObject* enum_reinterpret_obj_thunk(PyObject*, PyObject* v) {
    return enum_reinterpret_obj(B, v);
}
template <EnumBinding& B> PyObject* enum_is_assignable_thunk(PyObject*, PyObject* v) {
    return enum_is_assignable(B, v);
}
template <EnumBinding& B> PyObject* enum_as_uni_enum_thunk(PyObject* self, PyObject*) {
    return enum_as_uni_enum(B, self);
}
template <EnumBinding& B> PyObject* enum_get_type_thunk(PyObject* self, PyObject*) {
    return enum_get_type(B, self);
}

// Rows of tables; the formatter would take them for blocks of statements.
// clang-format off
#define KORVAN_CAST_METHODS(binding)                                                               \
    {"_type_of", type_of_thunk<binding>, METH_NOARGS | METH_STATIC, nullptr},                      \
        {"_cast_to", cast_to_thunk<binding>, METH_O | METH_STATIC, nullptr},                       \
        {"_cast_from", cast_from, METH_O, nullptr},                                                \
        {"_reinterpret_obj", reinterpret_obj_thunk<binding>, METH_O | METH_STATIC, nullptr},       \
        {"_cast_as", cast_as_thunk<binding>, METH_O | METH_STATIC, nullptr},                       \
        {"_is_assignable", is_assignable_thunk<binding>, METH_O | METH_STATIC, nullptr}
// All that the table of a collection wrapper holds; its protocol's methods come from the engine.
#define KORVAN_WRAPPER_METHODS(binding)                                                            \
    {"get_type", wrapClrObject_get_type, METH_NOARGS, nullptr}, KORVAN_CAST_METHODS(binding)
// clang-format on

#endif
