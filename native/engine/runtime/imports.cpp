#include "runtime/imports.h"

#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "runtime/version.h"

#include <cstdarg>

namespace {

#define KORVAN_GATE "Unable to import module dependencies. Cannot import the %s module. "

void raise_no_attribute(const char* module_name, const char* attribute) {
    PyErr_Clear();
    PyErr_Format(PyExc_ImportError,
                 KORVAN_GATE "The %s module found does not have '%s' attribute to check version "
                             "compatibility.",
                 module_name, module_name, attribute);
}

bool is_type(PyObject* object) {
    if (PyType_Check(object)) {
        return true;
    }
    PyErr_Format(PyExc_TypeError, "Attribute must be %.200s object, not '%.200s'",
                 PyType_Type.tp_name, type_name_of(object));
    return false;
}

} // namespace

PyObject* PyShImport_ImportRefModule(const char* self_name, const char* module_name,
                                     const int* ref_version) {
    Ref module = Ref::steal(PyImport_ImportModule(module_name));
    if (!module) {
        PyShlErr_DependencyImportError(module_name);
        return nullptr;
    }
    const Ref version = Ref::steal(PyObject_GetAttr(module.get(), PyWrpIdOwn_Version));
    if (!version) {
        raise_no_attribute(module_name, "VERSION");
        return nullptr;
    }
    const int* const ref = ref_version;
    if (PyShVersionAttr_Compare(ref, version.get()) > 0) {
        PyErr_Format(PyExc_ImportError,
                     KORVAN_GATE "The %s module found has a version ('%U') that is lower than the "
                                 "referenced version of that module ('%i.%i.%i.%i').",
                     module_name, module_name, PyShVersionAttr_GetView(version.get()), ref[0],
                     ref[1], ref[2], ref[3]);
        return nullptr;
    }
    const Ref threshold =
        Ref::steal(PyObject_GetAttr(module.get(), PyWrpIdOwn_BackwardCompatibilityThreshold));
    if (!threshold) {
        raise_no_attribute(module_name, "BACKWARD_COMPATIBILITY_THRESHOLD");
        return nullptr;
    }
    if (PyShVersionAttr_Compare(ref, threshold.get()) >= 0) {
        return module.release();
    }
    PyErr_Format(PyExc_ImportError,
                 KORVAN_GATE "The installed version of the module ('%U') is not compatible with "
                             "the referenced vesion of the module ('%i.%i.%i.%i'). The installed "
                             "version of the module is not compatible with the module versions < "
                             "'%U'. Update dendend module '%s' to a latest version.",
                 module_name, PyShVersionAttr_GetView(version.get()), ref[0], ref[1], ref[2],
                 ref[3], PyShVersionAttr_GetView(threshold.get()), self_name);
    return nullptr;
}

PyObject* PyShImport_ImportType(const char* module_name, PyObject* name) {
    const Ref module = Ref::steal(PyImport_ImportModule(module_name));
    if (!module) {
        PyShlErr_UnableToImportModule(module_name);
        return nullptr;
    }
    PyObject* attribute = PyObject_GetAttr(module.get(), name);
    if (attribute == nullptr) {
        PyShlErr_UnableToImportType(name, module_name);
    }
    return attribute;
}

PyObject* PyShImport_ImportTypeEx(const char* module_name, PyObject* name) {
    Ref attribute = Ref::steal(PyShImport_ImportType(module_name, name));
    return attribute && is_type(attribute.get()) ? attribute.release() : nullptr;
}

PyObject* PyShImport_ImportTypeExV(const char* module_name, int count, ...) {
    va_list names;
    va_start(names, count);
    Ref current = Ref::steal(PyShImport_ImportTypeEx(module_name, va_arg(names, PyObject*)));
    for (int i = 1; current && i < count; ++i) {
        PyObject* name = va_arg(names, PyObject*);
        Ref next = Ref::steal(PyObject_GetAttr(current.get(), name));
        if (!next) {
            PyShlErr_UnableToImportNestedType(type_name_of(current.get()), name);
        } else if (!is_type(next.get())) {
            next = Ref();
        }
        current = std::move(next);
    }
    va_end(names);
    return current.release();
}
