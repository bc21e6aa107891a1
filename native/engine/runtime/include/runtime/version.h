// runtime/version.h: the version objects by which the modules of the family know each other.
#ifndef KORVAN_RUNTIME_VERSION_H
#define KORVAN_RUNTIME_VERSION_H

#include "runtime/py_base.h"

// Every module of the family lays its version objects out so: the gate reads a sibling's objects
// by this layout, without a test of their type.
struct PyShVersionObject {
    PyObject_HEAD
    int major;
    int minor;
    int patch;
    int sub;
    PyObject* view; // string form, owned; not derived from the numbers
};

extern PyTypeObject wrpPye_tyds_FFFFFFFF_ModuleVersion;

// The type's full name differs by module; to be set before the type is readied.
void fn_name_version_type(const char* full_name);

// -1, 0 or 1: `ref_version` against `version`.
int PyShVersionAttr_Compare(const int* ref_version, PyObject* version);
PyObject* PyShVersionAttr_GetView(PyObject* version); // borrowed
PyObject* PyShVersionAttr_Create(int major, int minor, int patch, int sub, const char* view);

#endif
