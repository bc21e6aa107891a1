// generic/collection.h: the managed collection behind one Python call.
#ifndef KORVAN_GENERIC_COLLECTION_H
#define KORVAN_GENERIC_COLLECTION_H

#include "generic/collection_layout.h"
#include "generic/element_ops.h"
#include "runtime/markers.h"

// Its record, its layout, how its elements cross, and its handle.
struct Collection {
    const CollectionInfo& info;
    const CollectionLayout& layout;
    const ElementOps& ops;
    void* handle;

    void* delegate(CollectionSlot slot) const {
        // A layout has list slots exactly where its types have a list host.
        // NOLINTNEXTLINE(clang-analyzer-core.NullDereference)
        HostRecord& host = slot.in_list_host ? *info.list_host : *info.collection_host;
        return reinterpret_cast<void*>(host_slot<void()>(host, slot.index));
    }
    // Calls a delegate of which no argument is an element.
    template <class Result, class... Arguments>
    Result call(CollectionSlot slot, Arguments... arguments) const {
        const auto function = reinterpret_cast<Result (*)(void*, Arguments...)>(delegate(slot));
        return function(handle, arguments...);
    }
};

// The binding whose protocol serves the object: its type's, or a base's.
const ClassBinding& binding_with_protocol(PyObject* self);
const CollectionLayout& layout_of(const ClassBinding& binding);
const ElementOps& ops_of(const CollectionInfo& info);
Collection collection_of(PyObject* self);

// -1 with an error.
int length_of(const Collection& collection);

// A wrapper as an argument; false for any other Python value.
bool read_wrapper(PyObject* object, VariantArg* out);

// None, or null with the pending error.
PyObject* none_or_error();

// 0, or -1 with an error, for the status of an operation at an index.
int result_of_status(int status);

// Gives `take` each item of a list, a tuple, a sequence or an iterable. `reserve` hears their
// number ahead where it is known. False with an error.
template <class Reserve, class Take> bool take_items(PyObject* items, Reserve reserve, Take take) {
    if (PyList_CheckExact(items) || PyTuple_CheckExact(items)) {
        const Ref fast = Ref::steal(PySequence_Fast(items, "argument must be iterable"));
        if (!fast || !reserve(PySequence_Fast_GET_SIZE(fast.get()))) {
            return false;
        }
        // The size is asked anew each round: taking an item may run Python code.
        for (Py_ssize_t i = 0; i < PySequence_Fast_GET_SIZE(fast.get()); ++i) {
            const Ref item = Ref::borrow(PySequence_Fast_GET_ITEM(fast.get(), i));
            if (!take(item.get())) {
                return false;
            }
        }
        return true;
    }
    if (PyShlObject_IsSizedSequence(items)) {
        const Py_ssize_t size = PySequence_Size(items);
        if (PyErr_Occurred() != nullptr || !reserve(size)) {
            return false;
        }
        for (Py_ssize_t i = 0; i < size; ++i) {
            const Ref item = Ref::steal(PySequence_GetItem(items, i));
            if (!item || !take(item.get())) {
                return false;
            }
        }
        return true;
    }
    if (!PyShlObject_HasIter(items)) {
        PyErr_SetString(PyExc_ValueError, "argument must be iterable or sequence");
        return false;
    }
    const Ref iterator = Ref::steal(PyObject_GetIter(items));
    if (!iterator) {
        if (PyErr_Occurred() == nullptr) {
            PyErr_SetString(PyExc_ValueError, "argument must be iterable");
        }
        return false;
    }
    while (const Ref item = Ref::steal(PyIter_Next(iterator.get()))) {
        if (!take(item.get())) {
            return false;
        }
    }
    return PyErr_Occurred() == nullptr;
}

#endif
