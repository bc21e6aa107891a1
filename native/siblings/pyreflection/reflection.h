// pyreflection/reflection.h: the three wrapper types and how handles get into them.
#ifndef KORVAN_PYREFLECTION_REFLECTION_H
#define KORVAN_PYREFLECTION_REFLECTION_H

#include "runtime/py_base.h"

// Instances come from handles alone: the types have no constructor, so that no instance is without
// a handle, nor is there one before the runtime is attached.
extern PyTypeObject type_type;
extern PyTypeObject object_type;
extern PyTypeObject enum_type;

// Result converters: each takes over a handle. None for a null one.
PyObject* wrap_type(void* handle);
PyObject* wrap_object(void* handle);
PyObject* wrap_enum(void* handle);

#endif
