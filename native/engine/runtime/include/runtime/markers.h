// runtime/markers.h: what a bound type says of itself in its own dictionary.
//
// Separately compiled modules share no type objects, so a wrapper is recognised by entries under
// fixed names in its type's tp_dict, never along the bases.
#ifndef KORVAN_RUNTIME_MARKERS_H
#define KORVAN_RUNTIME_MARKERS_H

#include "runtime/py_base.h"

#include <cstdarg>

// Each returns true on success.
bool fn_set_obj_type_host_markattr(PyTypeObject* type);
bool fn_set_stc_type_host_markattr(PyTypeObject* type);
bool fn_set_castable_type_markattr(PyTypeObject* type, PyObject* value);
bool fn_set_any_ifcs_markattr(PyTypeObject* type, PyObject* key, int count, va_list interfaces);
bool fn_set_additional_ifcs_markattr(PyTypeObject* type, int count, ...);
bool fn_set_implicit_ifcs_markattr(PyTypeObject* type, int count, ...);
bool fn_set_external_ancestor_markattr(PyTypeObject* type, PyTypeObject* ancestor);
// The same as the two with variable arguments, over an array.
bool fn_set_ifcs_markattr(PyTypeObject* type, PyObject* key, int count,
                          PyTypeObject* const* interfaces);

// The readers never raise: a type without markers is simply no wrapper.
bool fn_is_refobj_has_host_markattr(PyObject* object);
// Writes 0 for an object, 1 for a struct; nothing when false.
bool fn_is_instance_has_host_markattr(PyObject* object, int* kind);
bool fn_has_external_ancestor_markattr(PyObject* object, PyTypeObject* ancestor);
bool fn_contains_any_ifc_markattr(PyTypeObject* type, PyObject* key, PyTypeObject* interface);
bool fn_contains_additional_ifc_markattr(PyObject* object, PyTypeObject* interface);
bool fn_contains_implicit_ifc_markattr(PyTypeObject* type, PyTypeObject* interface);

// What a Python object offers as a collection.
bool PyShlObject_HasLength(PyObject* object);
bool PyShlObject_HasIter(PyObject* object);
// A sequence whose length can be asked.
bool PyShlObject_IsSizedSequence(PyObject* object);

#endif
