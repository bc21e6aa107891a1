// Iteration, items and questions, and what makes plain lists of collections.
#include "generic/collection_functions.h"
#include "runtime/numbers.h"
#include "runtime/types_map.h"

namespace {

int ask(PyObject* self, PyObject* value, CollectionSlot CollectionLayout::*question) {
    const Collection collection = collection_of(self);
    return collection.ops.ask(collection.delegate(collection.layout.*question), collection.handle,
                              value, collection.info.element_type);
}

// The items of a collection without index: at most `length` of them, or exactly that many.
Ref walk(PyObject* self, Py_ssize_t length, bool exactly) {
    const Ref iterator = Ref::steal(PyObject_GetIter(self));
    if (!iterator) {
        if (PyErr_Occurred() == nullptr) {
            PyErr_SetString(PyExc_ValueError, "the collection was modified during the operation");
        }
        return {};
    }
    Ref items = Ref::steal(PyList_New(0));
    Py_ssize_t taken = 0;
    while (items) {
        const Ref item = Ref::steal(PyIter_Next(iterator.get()));
        if (!item) {
            break;
        }
        if (taken++ == length) {
            PyErr_SetString(PyExc_ValueError, "argument must be iterable or sequence");
            return {};
        }
        if (PyList_Append(items.get(), item.get()) != 0) {
            return {};
        }
    }
    if (PyErr_Occurred() != nullptr) {
        return {};
    }
    if (exactly && taken < length) {
        PyErr_SetString(PyExc_ValueError, "argument must be iterable or sequence");
        return {};
    }
    return items;
}

// All items as a plain list.
Ref all_items(PyObject* self, bool exactly) {
    const Collection collection = collection_of(self);
    const int length = length_of(collection);
    if (length < 0) {
        return {};
    }
    return collection.layout.get_item_no_check.exists()
               ? Ref::steal(items_between(collection, 0, 1, length))
               : walk(self, length, exactly);
}

} // namespace

PyObject* items_between(const Collection& collection, Py_ssize_t start, Py_ssize_t step,
                        Py_ssize_t count) {
    Ref items = Ref::steal(PyList_New(count > 0 ? count : 0));
    void* const function = collection.delegate(collection.layout.get_item_no_check);
    for (Py_ssize_t i = 0; items && i < count; ++i) {
        PyObject* item = collection.ops.get_item_no_check(function, collection.handle,
                                                          static_cast<int>(start + i * step),
                                                          collection.info.element_type);
        if (item == nullptr) {
            return nullptr;
        }
        PyList_SET_ITEM(items.get(), i, item);
    }
    return items.release();
}

namespace collection {

PyObject* iter(PyObject* self) {
    const CollectionInfo& info = *binding_with_protocol(self).collection;
    PyObjectOutArg out{};
    const auto get_enumerator = host_slot<int(void*, PyObjectOutArg*)>(*info.iterable_host, 0);
    if (get_enumerator(clr_handle(self), &out) < 0 || PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    return fn_conv_clr_ifcimpl_to_py_ifcimpl(out, &info.iterator->type);
}

PyObject* iterator_next(PyObject* self) {
    const CollectionInfo& info = *binding_with_protocol(self).collection;
    void* function = reinterpret_cast<void*>(host_slot<void()>(*info.iterator_host, 0));
    PyObject* item = nullptr;
    const int status = ops_of(info).move_next(function, clr_handle(self), info.element_type, &item);
    if (status == KORVAN_END) {
        PyErr_SetNone(PyExc_StopIteration);
    }
    return status == KORVAN_ITEM ? item : nullptr;
}

Py_ssize_t length(PyObject* self) { return length_of(collection_of(self)); }

PyObject* length_getter(PyObject* self, void*) {
    const int length = length_of(collection_of(self));
    return length < 0 && PyErr_Occurred() != nullptr ? nullptr : PyLong_FromLong(length);
}

PyObject* item(PyObject* self, Py_ssize_t index) {
    if (!is_int32_index(index)) {
        return nullptr;
    }
    const Collection collection = collection_of(self);
    PyObject* item = nullptr;
    const int status =
        collection.ops.get_item(collection.delegate(collection.layout.get_item), collection.handle,
                                static_cast<int>(index), collection.info.element_type, &item);
    if (status == KORVAN_OUT_OF_RANGE) {
        PyErr_SetString(PyExc_IndexError, "list index out of range");
    }
    return status == KORVAN_ITEM ? item : nullptr;
}

int has(PyObject* self, PyObject* value) {
    const int answer = ask(self, value, &CollectionLayout::contains);
    return answer < 0 ? -1 : answer != 0;
}

PyObject* contains(PyObject* self, PyObject* value) {
    const int answer = has(self, value);
    return answer < 0 ? nullptr : PyBool_FromLong(answer);
}

PyObject* count(PyObject* self, PyObject* value) {
    const int answer = ask(self, value, &CollectionLayout::count_of);
    return PyErr_Occurred() != nullptr ? nullptr : PyLong_FromLong(answer);
}

PyObject* index(PyObject* self, PyObject* args) {
    const Collection collection = collection_of(self);
    const int found =
        collection.ops.index_by(collection.delegate(collection.layout.index_by), collection.handle,
                                args, collection.info.element_type);
    if (PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    return found < 0 ? PyErr_Format(PyExc_ValueError, "value is not in list")
                     : PyLong_FromLong(found);
}

PyObject* concat(PyObject* self, PyObject* other) {
    Ref items = all_items(self, true);
    const auto append = [&](PyObject* item) { return PyList_Append(items.get(), item) == 0; };
    const bool done = items && take_items(
                                   other, [](Py_ssize_t) { return true; }, append);
    return done ? items.release() : nullptr;
}

// Each item is fetched once, however often it is repeated.
PyObject* repeat(PyObject* self, Py_ssize_t count) {
    Ref items = all_items(self, false);
    if (!items || count == 1) {
        return items.release();
    }
    return PySequence_Repeat(items.get(), count);
}

PyObject* copy(PyObject* self, PyObject*) { return repeat(self, 1); }

} // namespace collection
