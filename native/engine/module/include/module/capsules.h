// module/capsules.h: tables of functions that one module of the family offers to the others.
#ifndef KORVAN_MODULE_CAPSULES_H
#define KORVAN_MODULE_CAPSULES_H

#include "runtime/py_base.h"

#include <cstring>

// Adds the capsule under the last part of its dotted name. `name` and `table` live for ever.
inline bool add_capsule(PyObject* module, const char* name, void** table) {
    const Ref capsule = Ref::steal(PyCapsule_New(table, name, nullptr));
    return capsule &&
           PyModule_AddObjectRef(module, std::strrchr(name, '.') + 1, capsule.get()) == 0;
}

#endif
