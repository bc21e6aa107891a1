#include "bindings/finishing.h"

#include "runtime/descriptors.h"
#include "runtime/method_object.h"

namespace {

// The types live as long as the process, and so does what only they refer to. The collector would
// walk these hundred thousand objects at each full run, thirty milliseconds for nothing. An object
// that is not in its lists counts as referred to from outside, and so does all behind it.
void untrack(PyObject* object) {
    if (object != nullptr && PyObject_IS_GC(object) && PyObject_GC_IsTracked(object)) {
        PyObject_GC_UnTrack(object);
    }
}

// The function in a static method, and the dictionary of an enum's member.
int untrack_part(PyObject* part, void*) {
    const PyTypeObject* kind = Py_TYPE(part);
    if (kind == &PyCFunction_Type || kind == &PyDict_Type ||
        kind == &wrpPye_tyds_FFFFFFFF_MethodObject) {
        untrack(part);
    }
    return 0;
}

void untrack_with_parts(PyObject* object) {
    if (PyObject_IS_GC(object) && PyObject_GC_IsTracked(object)) {
        Py_TYPE(object)->tp_traverse(object, untrack_part, nullptr);
        PyObject_GC_UnTrack(object);
    }
}

bool is_made_for_one_type(PyObject* value) {
    const PyTypeObject* kind = Py_TYPE(value);
    return kind == &PyStaticMethod_Type || kind == &PyCFunction_Type || kind == &PySet_Type ||
           kind == &PyTuple_Type || kind->tp_descr_get != nullptr;
}

void untrack_dictionary(PyObject* dictionary) {
    PyObject* value = nullptr;
    for (Py_ssize_t at = 0; PyDict_Next(dictionary, &at, nullptr, &value);) {
        // A nested type comes by itself.
        if (!PyType_Check(value) && is_made_for_one_type(value)) {
            untrack_with_parts(value);
        }
    }
    untrack(dictionary);
}

void untrack_weak_list_of_subclasses(const PyTypeObject* type) {
    auto* subclasses = static_cast<PyObject*>(type->tp_subclasses);
    if (subclasses == nullptr) {
        return;
    }
    PyObject* reference = nullptr;
    for (Py_ssize_t at = 0; PyDict_Next(subclasses, &at, nullptr, &reference);) {
        untrack(reference);
    }
    untrack(subclasses);
}

// A static method in a dictionary is bound anew at each read; the interpreter reads a function as
// it is, from the call's own cache. To a caller both are the same.
void unwrap_static_method(PyObject* dictionary, const char* name) {
    PyObject* method = PyDict_GetItemString(dictionary, name);
    if (method == nullptr || Py_TYPE(method) != &PyStaticMethod_Type) {
        return;
    }
    const Ref function = Ref::steal(PyObject_GetAttrString(method, "__func__"));
    if (!function || PyDict_SetItemString(dictionary, name, function.get()) != 0) {
        PyErr_Clear();
    }
}

void finish_class(ClassBinding& binding) {
    PyTypeObject& type = binding.type;
    untrack_dictionary(type.tp_dict);
    untrack_weak_list_of_subclasses(&type);
    untrack(type.tp_mro);
    untrack(type.tp_bases);
}

// An enum is a type on the heap, its members are instances of it.
void finish_enum(const EnumBinding& binding) {
    auto* type = reinterpret_cast<PyTypeObject*>(binding.type);
    PyObject* value = nullptr;
    for (Py_ssize_t at = 0; PyDict_Next(type->tp_dict, &at, nullptr, &value);) {
        if (Py_TYPE(value) == type || PyDict_CheckExact(value) || PyList_CheckExact(value) ||
            is_made_for_one_type(value)) {
            untrack_with_parts(value);
        }
    }
    untrack(type->tp_dict);
    untrack(type->tp_mro);
    untrack(type->tp_bases);
    untrack(binding.type);
}

void finish_module(const ModuleRecord& record) {
    for (ModuleRecord* const* child = record.children; *child != nullptr; ++child) {
        finish_module(**child);
    }
    for (ClassBinding* const* binding = record.classes; *binding != nullptr; ++binding) {
        finish_class(**binding);
    }
    for (EnumBinding* const* binding = record.enums; *binding != nullptr; ++binding) {
        finish_enum(**binding);
    }
}

void finish_wrappers(ClassBinding* const* wrappers) {
    for (; *wrappers != nullptr; ++wrappers) {
        finish_class(**wrappers);
    }
}

} // namespace

void unwrap_cast_methods(PyTypeObject& type) {
    static constexpr const char* names[] = {"_type_of", "_cast_to", "_reinterpret_obj", "_cast_as",
                                            "_is_assignable"};
    for (const char* name : names) {
        unwrap_static_method(type.tp_dict, name);
    }
    PyType_Modified(&type);
}

void finish_types(const BoundTree& tree, ClassBinding* const* interop_wrappers) {
    finish_module(*tree.root);
    finish_wrappers(tree.generics);
    finish_wrappers(interop_wrappers);
}
