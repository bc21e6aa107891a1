#include "runtime/failures.h"

#include <cstdarg>

namespace {

void chain_format_v(PyObject* exception_class, const char* format, va_list arguments) {
    PyObject *type, *earlier, *traceback;
    PyErr_Fetch(&type, &earlier, &traceback);
    PyErr_NormalizeException(&type, &earlier, &traceback);
    if (traceback != nullptr) {
        PyException_SetTraceback(earlier, traceback);
        Py_DECREF(traceback);
    }
    Py_DECREF(type);

    PyErr_FormatV(exception_class, format, arguments);

    PyObject *new_type, *raised, *new_traceback;
    PyErr_Fetch(&new_type, &raised, &new_traceback);
    PyErr_NormalizeException(&new_type, &raised, &new_traceback);
    PyException_SetCause(raised, Py_NewRef(earlier));
    PyException_SetContext(raised, earlier);
    PyErr_Restore(new_type, raised, new_traceback);
}

// Chains over a pending exception, raises plainly otherwise.
void report(PyObject* exception_class, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    if (PyErr_Occurred() != nullptr) {
        chain_format_v(exception_class, format, arguments);
    } else {
        PyErr_FormatV(exception_class, format, arguments);
    }
    va_end(arguments);
}

} // namespace

void PyShlErr_ChainFormat(PyObject* exception_class, const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    chain_format_v(exception_class, format, arguments);
    va_end(arguments);
}

void PyShlErr_ChainOrFormat(PyObject* exception_class, const char* format) {
    report(exception_class, format);
}

void PyShlErr_ModuleInitializationInternalError(int code) {
    report(PyExc_ImportError, "Module initialization internal error (%i)", code);
}

void PyShlErr_ModuleInitializationInternalError(int code, const char* name) {
    report(PyExc_ImportError, "Module initialization internal error (%i) <%s>", code, name);
}

void PyShlErr_ModuleInitializationInternalError(int code, const char* parent, const char* child) {
    report(PyExc_ImportError, "Module initialization internal error (%i) <%s,%s>", code, parent,
           child);
}

void PyShlErr_ModulePyInitError(const char* module, int code) {
    report(PyExc_ImportError, "One or more errors occurred while loading the module '%s' (%i)",
           module, code);
}

void PyShlErr_DependencyImportError(const char* module) {
    report(PyExc_ImportError,
           "Unable to import module dependencies. Cannot import the %s module. The module not "
           "found or errors occurred while initializing it.",
           module);
}

void PyShlErr_UnableToImportModule(const char* module) {
    report(PyExc_ImportError,
           "Unable to import the specified module %s. The module not found or errors occurred "
           "while initializing it.",
           module);
}

void PyShlErr_UnableToImportType(PyObject* name, const char* module) {
    report(PyExc_ImportError,
           "Unable to import the specified type %U from the module %s. The type not found or "
           "errors occurred while initializing it.",
           name, module);
}

void PyShlErr_UnableToImportNestedType(const char* owner, PyObject* name) {
    report(PyExc_ImportError, "%s does not contain nested type %U", owner, name);
}

void PyShlErr_CapsuleImportError(const char* capsule) {
    report(PyExc_ImportError, "can't import capsule '%s'", capsule);
}

void PyShlErr_TypeInitializationInternalError(int code, const char* name) {
    report(PyExc_ImportError, "Type initialization internal error (%i) <%s>", code, name);
}

void PyShlErr_TypeInitializationInternalError(int code, const char* first, const char* second) {
    report(PyExc_ImportError, "Type initialization internal error (%i) <%s,%s>", code, first,
           second);
}

void PyShlErr_EnumTypeInitialization(const char* text, const char* enum_name) {
    PyErr_SetString(PyExc_TypeError, text);
    PyShlErr_ChainFormat(PyExc_ImportError, "enum type '%s' is not initialized", enum_name);
}

bool fn_check_args_count_out_of_range(long count, const char* name, long minimum, long maximum) {
    if (minimum <= count && count <= maximum) {
        return false;
    }
    const bool too_few = count < minimum;
    const long bound = too_few ? minimum : maximum;
    PyErr_Format(PyExc_TypeError, "%.150s%s takes %s %d argument%s (%zd given)",
                 name != nullptr ? name : "function", name != nullptr ? "()" : "",
                 minimum == maximum ? "exactly" : (too_few ? "at least" : "at most"),
                 static_cast<int>(bound), bound == 1 ? "" : "s", static_cast<Py_ssize_t>(count));
    return true;
}
