#include "runtime/exception_bridge.h"

#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "runtime/strings.h"

void on_clr_exception(PyObject* first, PyObject* second) {
    const Ref owned_first = Ref::steal(first);
    const Ref owned_second = Ref::steal(second);
    PyErr_Format(PyExc_RuntimeError, "Proxy error(%U): %U",
                 first != nullptr ? first : PyWrpIdTraceBack_Unknown,
                 second != nullptr ? second : PyWrpIdTraceBack_Unknown);
}

namespace {

// The text as the traceback module formats it; null with an exception when that fails.
PyObject* format_by_traceback(const SavedError& error) {
    const Ref module = Ref::steal(PyImport_ImportModule("traceback"));
    if (!module) {
        if (PyErr_Occurred() == nullptr) {
            PyShlErr_UnableToImportModule("traceback");
        }
        return nullptr;
    }
    const bool has_traceback = error.traceback != nullptr;
    const Ref format = Ref::steal(
        PyObject_GetAttr(module.get(), has_traceback ? PyWrpIdTraceBack_FormatException
                                                     : PyWrpIdTraceBack_FormatExceptionOnly));
    if (!format || !PyCallable_Check(format.get())) {
        return nullptr;
    }
    const Ref lines = Ref::steal(PyObject_CallFunctionObjArgs(
        format.get(), error.type, error.value, has_traceback ? error.traceback : nullptr, nullptr));
    return lines ? PyUnicode_Join(PyWrpIdStr_Empty, lines.get()) : nullptr;
}

// The type's qualified name, or what str() makes of the type.
PyObject* name_of_type(PyObject* type) {
    Ref name = Ref::steal(PyObject_GetAttr(type, PyWrpIdType_Qualname));
    if (name && PyUnicode_Check(name.get())) {
        return name.release();
    }
    PyErr_Clear();
    return PyObject_Str(type);
}

PyObject* name_and_value(PyObject* name, PyObject* value) {
    return value != nullptr ? PyUnicode_FromFormat("%U: %U", name, value)
                            : PyUnicode_FromFormat("%U:", name);
}

// What is left when the traceback module can't be used.
PyObject* format_plainly(const SavedError& error) {
    const Ref name = Ref::steal(name_of_type(error.type));
    if (!name) {
        return nullptr;
    }
    Ref value;
    if (error.value != nullptr) {
        value = Ref::steal(PyObject_Str(error.value));
        if (!value && PyErr_Occurred() != nullptr) {
            return nullptr;
        }
    }
    if (error.traceback == nullptr) {
        return name_and_value(name.get(), value.get());
    }
    const Ref traceback = Ref::steal(PyObject_Str(error.traceback));
    PyErr_Clear();
    const Py_ssize_t length = traceback ? PyUnicode_GetLength(traceback.get()) : -1;
    PyErr_Clear();
    // A traceback object's text that can be read says nothing that a reader could use.
    if (length > 0) {
        return name_and_value(name.get(), value.get());
    }
    return PyUnicode_FromFormat("%U: %U\n%U", name.get(), value.get(), traceback.get());
}

} // namespace

int fn_catch_and_clear_py_error(PyObject** out_owner, PyStringArg* out_text) {
    if (PyErr_Occurred() == nullptr) {
        return -1;
    }
    SavedError error;
    error.fetch();
    PyErr_NormalizeException(&error.type, &error.value, &error.traceback);

    SavedError aside;
    Ref text;
    if (error.value != nullptr) {
        text = Ref::steal(format_by_traceback(error));
        if (!text) {
            aside.fetch();
        }
    }
    if (!text) {
        text = Ref::steal(format_plainly(error));
    }
    error.drop();

    int result = -1;
    if (text && fn_conv_py_string_to_clr_string_value(text.get(), out_text)) {
        *out_owner = text.release();
        result = 0;
    }
    if (aside.type != nullptr && PyErr_Occurred() == nullptr) {
        aside.restore();
    }
    if (PyErr_Occurred() != nullptr) {
        PyErr_WriteUnraisable(PyWrpIdTraceBack_FormatExceptionWarning);
    }
    return result;
}
