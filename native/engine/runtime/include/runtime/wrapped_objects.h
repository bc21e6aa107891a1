// runtime/wrapped_objects.h: the common slots of bound types, and handles taken out of wrappers.
#ifndef KORVAN_RUNTIME_WRAPPED_OBJECTS_H
#define KORVAN_RUNTIME_WRAPPED_OBJECTS_H

#include "runtime/py_base.h"

// A wrapper without a handle: the whole of what a type's tp_new does behind its guard.
PyObject* fn_new_empty_wrapper(PyTypeObject* type);
// A wrapper of exactly `type`, which takes the handle over; on failure the handle is released.
PyObject* fn_py_clr_type_generic_new(void* handle, PyTypeObject* type);

void wrapClrObject_tp_dealloc(PyObject* self);
void wrapClrStruct_tp_dealloc(PyObject* self);
Py_hash_t wrapClrObject_hash(PyObject* self);
Py_hash_t wrapClrStruct_hash(PyObject* self);
PyObject* wrapClrObject_tp_richcompare(PyObject* self, PyObject* other, int op);
PyObject* wrapClrStruct_tp_richcompare(PyObject* self, PyObject* other, int op);
PyObject* wrapClrObject_str(PyObject* self);
PyObject* wrapClrStruct_str(PyObject* self);
PyObject* wrapClrObject_get_type(PyObject* self, PyObject* ignored);
PyObject* wrapClrStruct_get_type(PyObject* self, PyObject* ignored);
int wrapClrObject_tp_init_fault(PyObject* self, PyObject* args, PyObject* kwargs);

// __enter__ and __exit__ of everything disposable.
PyObject* wrpPye_bltp_idisposable_enter(PyObject* self, PyObject* ignored);
PyObject* wrpPye_bltp_idisposable_exit(PyObject* self, PyObject* args);

bool fn_is_this_module_clr_object(PyObject* object);
bool fn_is_this_module_clr_instance(PyObject* object, int* kind);

// Handles out of arguments: 1, or 0 with no error set. The handle is borrowed for the call.
int fn_conv_py_obj_to_clr_refobj_not_null_handle(PyObject* object, void** handle);
int fn_conv_py_obj_to_clr_gen_not_null_handle(PyObject* object, VariantArg* out);
int fn_conv_py_obj_to_clr_gen_handle(PyObject* object, VariantArg* out);
int fn_py_unknown_to_clr_unknown(PyObject* object, void** out);

// From the capsules of sibling modules, set once at start.
using TypeConverter = PyObject* (*)(void* handle);
using HandleExtractor = int (*)(PyObject* object, void** handle);
extern TypeConverter wrpPyl_convcaps_clr_to_py_94F50081_Type;
extern HandleExtractor wrpPyl_trancaps_py_to_clr_94F50081_Type;
extern TypeConverter wrpPyl_convcaps_clr_to_py_81609274_Object;
extern HandleExtractor wrpPyl_trancaps_py_to_clr_81609274_Object;
extern TypeConverter wrpPyl_convcaps_clr_to_py_0705CA7C_Enum;
using CastOpResultNew = PyObject* (*)(int status, PyObject* value);
extern CastOpResultNew PyShCastOpResult_New;

#endif
