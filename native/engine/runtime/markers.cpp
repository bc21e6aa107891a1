#include "runtime/markers.h"

#include "runtime/identifiers.h"

namespace {

bool set_marker(PyTypeObject* type, PyObject* key, PyObject* value) {
    return PyDict_SetItem(type->tp_dict, key, value) == 0;
}

// Borrowed; null for a type without dictionary or marker.
PyObject* get_marker(PyTypeObject* type, PyObject* key) {
    return type->tp_dict != nullptr ? PyDict_GetItem(type->tp_dict, key) : nullptr;
}

} // namespace

bool fn_set_obj_type_host_markattr(PyTypeObject* type) {
    return set_marker(type, PyWrpIdMarkattr_KorvanClrHost, Py_None);
}

bool fn_set_stc_type_host_markattr(PyTypeObject* type) {
    return set_marker(type, PyWrpIdMarkattr_KorvanClrHost, Py_Ellipsis);
}

bool fn_set_castable_type_markattr(PyTypeObject* type, PyObject* value) {
    return set_marker(type, PyWrpIdMarkattr_KorvanClrCastableObj, value);
}

bool fn_set_ifcs_markattr(PyTypeObject* type, PyObject* key, int count,
                          PyTypeObject* const* interfaces) {
    const Ref set = Ref::steal(PySet_New(nullptr));
    if (!set) {
        return false;
    }
    for (int i = 0; i < count; ++i) {
        if (PySet_Add(set.get(), reinterpret_cast<PyObject*>(interfaces[i])) != 0) {
            return false;
        }
    }
    return set_marker(type, key, set.get());
}

bool fn_set_any_ifcs_markattr(PyTypeObject* type, PyObject* key, int count, va_list interfaces) {
    const Ref set = Ref::steal(PySet_New(nullptr));
    if (!set) {
        return false;
    }
    for (int i = 0; i < count; ++i) {
        if (PySet_Add(set.get(), va_arg(interfaces, PyObject*)) != 0) {
            return false;
        }
    }
    return set_marker(type, key, set.get());
}

bool fn_set_additional_ifcs_markattr(PyTypeObject* type, int count, ...) {
    va_list interfaces;
    va_start(interfaces, count);
    const bool done =
        fn_set_any_ifcs_markattr(type, PyWrpIdMarkattr_AdditionalInterfaces, count, interfaces);
    va_end(interfaces);
    return done;
}

bool fn_set_implicit_ifcs_markattr(PyTypeObject* type, int count, ...) {
    va_list interfaces;
    va_start(interfaces, count);
    const bool done =
        fn_set_any_ifcs_markattr(type, PyWrpIdMarkattr_ImplicitInterfaces, count, interfaces);
    va_end(interfaces);
    return done;
}

bool fn_set_external_ancestor_markattr(PyTypeObject* type, PyTypeObject* ancestor) {
    return set_marker(type, PyWrpIdMarkattr_ExternalAncestor,
                      reinterpret_cast<PyObject*>(ancestor));
}

bool fn_is_refobj_has_host_markattr(PyObject* object) {
    return get_marker(Py_TYPE(object), PyWrpIdMarkattr_KorvanClrHost) == Py_None;
}

bool fn_is_instance_has_host_markattr(PyObject* object, int* kind) {
    const PyObject* marker = get_marker(Py_TYPE(object), PyWrpIdMarkattr_KorvanClrHost);
    if (marker == Py_None) {
        *kind = KORVAN_REF_OBJECT;
        return true;
    }
    if (marker == Py_Ellipsis) {
        *kind = KORVAN_REF_STRUCT;
        return true;
    }
    return false;
}

bool fn_has_external_ancestor_markattr(PyObject* object, PyTypeObject* ancestor) {
    return get_marker(Py_TYPE(object), PyWrpIdMarkattr_ExternalAncestor) ==
           reinterpret_cast<PyObject*>(ancestor);
}

bool fn_contains_any_ifc_markattr(PyTypeObject* type, PyObject* key, PyTypeObject* interface) {
    PyObject* set = get_marker(type, key);
    if (set == nullptr || !PySet_Check(set)) {
        return false;
    }
    const int found = PySet_Contains(set, reinterpret_cast<PyObject*>(interface));
    if (found < 0) {
        PyErr_Clear();
    }
    return found > 0;
}

bool fn_contains_additional_ifc_markattr(PyObject* object, PyTypeObject* interface) {
    return fn_contains_any_ifc_markattr(Py_TYPE(object), PyWrpIdMarkattr_AdditionalInterfaces,
                                        interface);
}

bool fn_contains_implicit_ifc_markattr(PyTypeObject* type, PyTypeObject* interface) {
    return fn_contains_any_ifc_markattr(type, PyWrpIdMarkattr_ImplicitInterfaces, interface);
}

bool PyShlObject_HasLength(PyObject* object) {
    const PyTypeObject* type = Py_TYPE(object);
    return (type->tp_as_sequence != nullptr && type->tp_as_sequence->sq_length != nullptr) ||
           (type->tp_as_mapping != nullptr && type->tp_as_mapping->mp_length != nullptr);
}

bool PyShlObject_HasIter(PyObject* object) {
    return Py_TYPE(object)->tp_iter != nullptr || PySequence_Check(object);
}

bool PyShlObject_IsSizedSequence(PyObject* object) {
    const PySequenceMethods* sequence = Py_TYPE(object)->tp_as_sequence;
    return PySequence_Check(object) && sequence != nullptr && sequence->sq_length != nullptr;
}
