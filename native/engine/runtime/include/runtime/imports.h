// runtime/imports.h: Python modules, types and sibling modules found by name.
#ifndef KORVAN_RUNTIME_IMPORTS_H
#define KORVAN_RUNTIME_IMPORTS_H

#include "runtime/py_base.h"

// The module, if its version passes the gate: threshold <= ref_version <= version.
PyObject* PyShImport_ImportRefModule(const char* self_name, const char* module_name,
                                     const int* ref_version);
// A new reference to an attribute of a module.
PyObject* PyShImport_ImportType(const char* module_name, PyObject* name);
// The same, but the attribute must be a type.
PyObject* PyShImport_ImportTypeEx(const char* module_name, PyObject* name);
// A nested type, reached by following `count` names, each a PyObject*.
PyObject* PyShImport_ImportTypeExV(const char* module_name, int count, ...);

#endif
