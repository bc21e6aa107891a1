// runtime/method_object.h: the record of _MethodObjectType, for the descriptors that hold one.
#ifndef KORVAN_RUNTIME_METHOD_OBJECT_H
#define KORVAN_RUNTIME_METHOD_OBJECT_H

#include "runtime/py_base.h"

struct PyShCMethodObject {
    PyObject_HEAD
    PyMethodDef* m_ml; // of a static table
    PyObject* m_self; // owned, or null
    PyObject* m_weakreflist;
    PyTypeObject* m_type; // owned; the defining type
    ternaryfunc m_call; // one of six call forms, chosen at creation
};

// A doc string as Python text; None for one that is null or empty.
PyObject* doc_or_none(const char* doc);

#endif
