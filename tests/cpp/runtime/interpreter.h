// An interpreter for the native tests, and short ways to make and read Python values.
#ifndef KORVAN_TESTS_INTERPRETER_H
#define KORVAN_TESTS_INTERPRETER_H

#include "runtime/py_base.h"

#include <gtest/gtest.h>
#include <string>

// Runs statements; the value of `result`, new. The test fails if they raise.
inline Ref run(const std::string& statements) {
    const Ref globals = Ref::steal(PyDict_New());
    PyDict_SetItemString(globals.get(), "__builtins__", PyEval_GetBuiltins());
    const Ref done =
        Ref::steal(PyRun_String(statements.c_str(), Py_file_input, globals.get(), globals.get()));
    if (!done) {
        PyErr_Print();
        ADD_FAILURE() << statements;
    }
    return Ref::borrow(PyDict_GetItemString(globals.get(), "result"));
}

inline Ref evaluate(const std::string& expression) { return run("result = " + expression); }

// "Type: text" of the pending exception and, behind " <- ", of its causes. Clears it.
inline std::string take_error() {
    PyObject* error = PyErr_GetRaisedException();
    std::string text;
    while (error != nullptr) {
        const Ref words = Ref::steal(PyObject_Str(error));
        text += (text.empty() ? "" : " <- ") + std::string(type_name_of(error)) + ": " +
                PyUnicode_AsUTF8(words.get());
        PyObject* cause = PyException_GetCause(error);
        Py_DECREF(error);
        error = cause;
    }
    return text;
}

inline std::string text_of(PyObject* object) {
    const Ref words = Ref::steal(PyObject_Repr(object));
    return words ? PyUnicode_AsUTF8(words.get()) : take_error();
}

#endif
