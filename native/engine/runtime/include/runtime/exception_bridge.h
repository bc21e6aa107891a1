// runtime/exception_bridge.h: failures in both directions, without unwinding across the boundary.
#ifndef KORVAN_RUNTIME_EXCEPTION_BRIDGE_H
#define KORVAN_RUNTIME_EXCEPTION_BRIDGE_H

#include "runtime/py_base.h"

// Called by the managed side with two new references, or nulls: sets RuntimeError.
void on_clr_exception(PyObject* first, PyObject* second);

// The pending exception as text, and cleared. 0 with the text written; -1 leaves both untouched.
// On return no exception is pending, in any case.
int fn_catch_and_clear_py_error(PyObject** out_owner, PyStringArg* out_text);

#endif
