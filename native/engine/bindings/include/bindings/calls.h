// bindings/calls.h: argument parsing, overload groups and constructors.
#ifndef KORVAN_BINDINGS_CALLS_H
#define KORVAN_BINDINGS_CALLS_H

#include "bindings/classes.h"

// A parsing converter with the binding that it needs.
using CellConverter = int (*)(PyObject* object, void* cell, const void* type);

// Converts the arguments of a call with keywords, or with another number of them than the overload
// has parameters, into the overload's cells. False leaves the error of the parser, or of the first
// converter that failed, pending.
bool parse_arguments(const Overload& overload, const CellConverter* converters, void* const* cells,
                     const CallArguments& arguments);

// Tries the overloads of a method in order. When none fits: TypeError whose argument is a list of
// the overloads' messages.
OverloadOutcome try_overloads(const Method& method, PyObject* self, CallArguments& arguments,
                              PyObject** result);

// A method of a single overload raises that overload's own error. Inline, since the record is a
// constant where this is called: a single overload is then called without reading it.
inline PyObject* call_method(const Method& method, PyObject* self, CallArguments arguments) {
    if (method.is_static && !guard(*method.owner)) {
        return nullptr;
    }
    PyObject* result = nullptr;
    const OverloadOutcome outcome =
        method.count == 1 ? method.overloads[0].call(method.overloads[0], self, arguments, &result)
                          : try_overloads(method, self, arguments, &result);
    return outcome == OverloadOutcome::done ? result : nullptr;
}
int call_constructors(const Method& constructors, PyObject* self, PyObject* args, PyObject* kwargs);
PyObject* call_mixed(const Method& method, PyObject* self, PyObject* args, PyObject* kwargs);

template <const Method& M>
PyObject* method_thunk(PyObject* self, PyObject* const* items, Py_ssize_t count, PyObject* names) {
    return call_method(M, self, {.items = items, .count = count, .names = names});
}

template <const Method& M> PyObject* mixed_thunk(PyObject* self, PyObject* args, PyObject* kwargs) {
    return call_mixed(M, self, args, kwargs);
}

template <const Method& M> PyObject* method_noargs_thunk(PyObject* self, PyObject*) {
    return call_method(M, self, {.items = nullptr, .count = 0});
}

#endif
