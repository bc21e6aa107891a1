#include "runtime/wrapped_objects.h"

#include "host/exchange_host.h"
#include "host/object_host.h"
#include "runtime/identifiers.h"
#include "runtime/markers.h"

TypeConverter wrpPyl_convcaps_clr_to_py_94F50081_Type = nullptr;
HandleExtractor wrpPyl_trancaps_py_to_clr_94F50081_Type = nullptr;
TypeConverter wrpPyl_convcaps_clr_to_py_81609274_Object = nullptr;
HandleExtractor wrpPyl_trancaps_py_to_clr_81609274_Object = nullptr;
TypeConverter wrpPyl_convcaps_clr_to_py_0705CA7C_Enum = nullptr;
CastOpResultNew PyShCastOpResult_New = nullptr;

namespace {

// Wrappers come and go by the million and are all of one size: the memory of the last ones that
// went is kept in a chain through their handles.
constexpr int max_spare = 256;
PyClrObject* spare_wrappers = nullptr;
int spare_count = 0;

void release_memory(PyObject* self) {
    const PyTypeObject* type = Py_TYPE(self);
    if (spare_count == max_spare || type->tp_basicsize != sizeof(PyClrObject)) {
        type->tp_free(self);
        return;
    }
    auto* wrapper = reinterpret_cast<PyClrObject*>(self);
    wrapper->handle = spare_wrappers;
    spare_wrappers = wrapper;
    ++spare_count;
}

} // namespace

PyObject* fn_new_empty_wrapper(PyTypeObject* type) {
    if (spare_wrappers == nullptr || type->tp_basicsize != sizeof(PyClrObject)) {
        return type->tp_alloc(type, 0); // the handle is null, as all memory from there
    }
    PyClrObject* wrapper = spare_wrappers;
    spare_wrappers = static_cast<PyClrObject*>(std::exchange(wrapper->handle, nullptr));
    --spare_count;
    return PyObject_Init(reinterpret_cast<PyObject*>(wrapper), type);
}

PyObject* fn_py_clr_type_generic_new(void* handle, PyTypeObject* type) {
    PyObject* object = type->tp_new(type, nullptr, nullptr);
    if (object == nullptr) {
        ExchangeHost::get_instance().free_instance(handle);
        return nullptr;
    }
    reinterpret_cast<PyClrObject*>(object)->handle = handle;
    return object;
}

void wrapClrObject_tp_dealloc(PyObject* self) {
    void*& handle = reinterpret_cast<PyClrObject*>(self)->handle;
    if (handle != nullptr) {
        ExchangeHost::get_instance().free_instance(std::exchange(handle, nullptr));
    }
    release_memory(self);
}

void wrapClrStruct_tp_dealloc(PyObject* self) {
    void*& handle = reinterpret_cast<PyClrObject*>(self)->handle;
    if (handle != nullptr) {
        ExchangeHost::get_instance().free_struct(std::exchange(handle, nullptr));
    }
    release_memory(self);
}

namespace {

// -1 is Python's mark of an error, so a managed hash of -1 becomes -2.
Py_hash_t python_hash(int managed) {
    if (PyErr_Occurred() != nullptr) {
        return -1;
    }
    return managed == -1 ? -2 : managed;
}

template <bool (ObjectHost::*Equals)(void*, VariantArg*) const>
PyObject* compare(PyObject* self, PyObject* other, int op) {
    if (op != Py_EQ && op != Py_NE) {
        Py_RETURN_NOTIMPLEMENTED;
    }
    if (self == other) {
        return PyBool_FromLong(op == Py_EQ);
    }
    VariantArg record{};
    if (!fn_conv_py_obj_to_clr_gen_handle(other, &record)) {
        Py_RETURN_NOTIMPLEMENTED;
    }
    const bool equal = (ObjectHost::get_instance().*Equals)(clr_handle(self), &record);
    if (PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    return PyBool_FromLong(equal == (op == Py_EQ));
}

// May run while an exception is being handled, and must neither lose it nor be confused by it.
template <int (ObjectHost::*ToString)(void*, void**) const> PyObject* to_text(PyObject* self) {
    SavedError pending;
    pending.fetch();
    void* text = nullptr;
    PyObject* result = nullptr;
    if ((ObjectHost::get_instance().*ToString)(clr_handle(self), &text) == 1) {
        result = static_cast<PyObject*>(text);
    } else if (PyErr_Occurred() == nullptr) {
        result = PyUnicode_FromFormat("<%s object at %p>", type_name_of(self), self);
    }
    if (pending.type != nullptr) {
        if (PyErr_Occurred() != nullptr) {
            PyErr_WriteUnraisable(PyWrpIdTraceBack_FormatExceptionWarning);
        }
        pending.restore();
    }
    return result;
}

template <int (ObjectHost::*GetType)(void*, void**) const> PyObject* managed_type(PyObject* self) {
    void* type = nullptr;
    if ((ObjectHost::get_instance().*GetType)(clr_handle(self), &type) == 0 &&
        PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    return wrpPyl_convcaps_clr_to_py_94F50081_Type(type);
}

} // namespace

Py_hash_t wrapClrObject_hash(PyObject* self) {
    return python_hash(ObjectHost::get_instance().get_hash_code_of_obj(clr_handle(self)));
}
Py_hash_t wrapClrStruct_hash(PyObject* self) {
    return python_hash(ObjectHost::get_instance().get_hash_code_of_stc(clr_handle(self)));
}

PyObject* wrapClrObject_tp_richcompare(PyObject* self, PyObject* other, int op) {
    return compare<&ObjectHost::equals_of_obj>(self, other, op);
}
PyObject* wrapClrStruct_tp_richcompare(PyObject* self, PyObject* other, int op) {
    return compare<&ObjectHost::equals_of_stc>(self, other, op);
}

PyObject* wrapClrObject_str(PyObject* self) { return to_text<&ObjectHost::to_string_of_obj>(self); }
PyObject* wrapClrStruct_str(PyObject* self) { return to_text<&ObjectHost::to_string_of_stc>(self); }

PyObject* wrapClrObject_get_type(PyObject* self, PyObject*) {
    return managed_type<&ObjectHost::get_obj_type>(self);
}
PyObject* wrapClrStruct_get_type(PyObject* self, PyObject*) {
    return managed_type<&ObjectHost::get_stc_type>(self);
}

int wrapClrObject_tp_init_fault(PyObject*, PyObject*, PyObject*) {
    PyErr_SetString(PyExc_TypeError, "type has no available constructor");
    return -1;
}

PyObject* wrpPye_bltp_idisposable_enter(PyObject* self, PyObject*) { return Py_NewRef(self); }

// Never suppresses the block's exception, and does not free the handle.
PyObject* wrpPye_bltp_idisposable_exit(PyObject* self, PyObject*) {
    ObjectHost::get_instance().dispose(clr_handle(self));
    if (PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    Py_RETURN_NONE;
}

bool fn_is_this_module_clr_object(PyObject* object) {
    return Py_TYPE(object)->tp_dealloc == wrapClrObject_tp_dealloc;
}

bool fn_is_this_module_clr_instance(PyObject* object, int* kind) {
    const destructor dealloc = Py_TYPE(object)->tp_dealloc;
    if (dealloc == wrapClrObject_tp_dealloc) {
        *kind = KORVAN_REF_OBJECT;
        return true;
    }
    if (dealloc == wrapClrStruct_tp_dealloc) {
        *kind = KORVAN_REF_STRUCT;
        return true;
    }
    return false;
}

int fn_conv_py_obj_to_clr_refobj_not_null_handle(PyObject* object, void** handle) {
    if (!fn_is_this_module_clr_object(object) &&
        !(is_static_type_of(object) && fn_is_refobj_has_host_markattr(object))) {
        return 0;
    }
    *handle = clr_handle(object);
    return 1;
}

int fn_conv_py_obj_to_clr_gen_not_null_handle(PyObject* object, VariantArg* out) {
    // This module's own types need no dictionary lookup.
    if (!fn_is_this_module_clr_instance(object, &out->kind) &&
        !(is_static_type_of(object) && fn_is_instance_has_host_markattr(object, &out->kind))) {
        return 0;
    }
    out->value = clr_handle(object);
    return 1;
}

int fn_conv_py_obj_to_clr_gen_handle(PyObject* object, VariantArg* out) {
    if (object == Py_None) {
        out->value = nullptr;
        return 1;
    }
    return fn_conv_py_obj_to_clr_gen_not_null_handle(object, out);
}

int fn_py_unknown_to_clr_unknown(PyObject* object, void** out) {
    *out = clr_handle(object);
    return 1;
}
