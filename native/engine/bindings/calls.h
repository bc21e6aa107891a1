// bindings/calls.h: argument parsing, overload groups and constructors.
#ifndef KORVAN_BINDINGS_CALLS_H
#define KORVAN_BINDINGS_CALLS_H

#include "bindings/classes.h"

// A parsing converter with the binding that it needs.
using CellConverter = int (*)(PyObject* object, void* cell, const void* type);

// Converts the arguments of a call with keywords, or with another number of them than the leg has
// parameters, into the leg's cells. False leaves the error of the parser, or of the first converter
// that refused, pending.
bool parse_arguments(const Leg& leg, const CellConverter* converters, void* const* cells,
                     const CallArguments& arguments);

// Tries the legs of an overload group in order. When none fits: TypeError whose argument is a list
// of one text a leg.
LegOutcome try_legs(const Method& method, PyObject* self, CallArguments& arguments,
                    PyObject** result);

// A method or overload group. A group of one leg raises that leg's own error. Inline, since the
// record is a constant where this is called: a single leg is then called without a look at it.
inline PyObject* call_method(const Method& method, PyObject* self, CallArguments arguments) {
    if (method.is_static && !guard(*method.owner)) {
        return nullptr;
    }
    PyObject* result = nullptr;
    const LegOutcome outcome = method.count == 1
                                   ? method.legs[0].call(method.legs[0], self, arguments, &result)
                                   : try_legs(method, self, arguments, &result);
    return outcome == LegOutcome::done ? result : nullptr;
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
