// runtime/descriptors.h: attributes that CPython's own descriptors do not offer.
//
// Static, instance and mixed methods for types made at run time, static values that read alike on
// class and instance, and the callable behind them, which carries its defining type.
#ifndef KORVAN_RUNTIME_DESCRIPTORS_H
#define KORVAN_RUNTIME_DESCRIPTORS_H

#include "runtime/py_base.h"

extern PyTypeObject wrpPye_tyds_FFFFFFFF_MethodObject;
extern PyTypeObject wrpPye_tyds_FFFFFFFF_StaticMethodDescr;
extern PyTypeObject wrpPye_tyds_FFFFFFFF_InstanceMethodDescr;
extern PyTypeObject wrpPye_tyds_FFFFFFFF_MixMethodDescr;
extern PyTypeObject wrpPye_tyds_FFFFFFFF_FieldDescr;

// Gives the five types their names in `module_name` and readies them. 0, or -1.
int fn_ready_descriptor_types(const char* module_name);

PyObject* PyShDescr_NewStaticField(PyTypeObject* type, PyGetSetDef* def);
PyObject* PyShDescr_NewInstanceMethod(PyTypeObject* type, PyMethodDef* def);
PyObject* PyShDescr_NewStaticMethod(PyTypeObject* type, PyMethodDef* def);
PyObject* PyShDescr_NewMixedMethod(PyTypeObject* type, PyMethodDef* static_def,
                                   PyMethodDef* instance_def);
PyObject* PyShCMethod_New(PyTypeObject* type, PyMethodDef* def, PyObject* self);

#endif
