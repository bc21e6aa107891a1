// Operations that change the managed collection, but for slices.
#include "generic/collection_functions.h"
#include "runtime/failures.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <limits>

namespace {

constexpr Py_ssize_t int32_max = std::numeric_limits<int>::max();

PyObject* call_plain(PyObject* self, CollectionSlot CollectionLayout::*operation) {
    const Collection collection = collection_of(self);
    collection.call<void>(collection.layout.*operation);
    return none_or_error();
}

bool add(const Collection& collection, PyObject* value) {
    return collection.ops.add(collection.delegate(collection.layout.add), collection.handle, value,
                              collection.info.element_type);
}

// Room for the items that are on their way.
bool reserve(const Collection& collection, Py_ssize_t size) {
    if (!collection.layout.ensure_capacity.exists()) {
        return true;
    }
    collection.call<void>(collection.layout.ensure_capacity,
                          static_cast<int>(std::min(size, int32_max)));
    return PyErr_Occurred() == nullptr;
}

// A wrapper is offered to the managed side whole, which may take it or leave it.
bool extend_with(const Collection& collection, PyObject* items) {
    VariantArg record{};
    if (read_wrapper(items, &record)) {
        const int handled = collection.call<int>(collection.layout.inplace_concat, &record);
        if (PyErr_Occurred() != nullptr) {
            return false;
        }
        if (handled == 1) {
            return true;
        }
    }
    return take_items(
        items, [&](Py_ssize_t size) { return reserve(collection, size); },
        [&](PyObject* item) { return add(collection, item); });
}

} // namespace

int refuse_removal() {
    PyErr_SetString(PyExc_ValueError, "elements removing not supported");
    return -1;
}

namespace collection {

int assign_item(PyObject* self, Py_ssize_t index, PyObject* value) {
    const Collection collection = collection_of(self);
    const CollectionLayout& layout = collection.layout;
    if (value == nullptr && !layout.remove_at.exists()) {
        return refuse_removal();
    }
    if (!is_int32_index(index)) {
        return -1;
    }
    const int position = static_cast<int>(index);
    if (value == nullptr) {
        return result_of_status(collection.call<int>(layout.remove_at, position));
    }
    return result_of_status(collection.ops.set_item(collection.delegate(layout.set_item),
                                                    collection.handle, position, value,
                                                    collection.info.element_type));
}

PyObject* append(PyObject* self, PyObject* value) {
    return add(collection_of(self), value) ? none_or_error() : nullptr;
}

PyObject* insert(PyObject* self, PyObject* args) {
    const Collection collection = collection_of(self);
    const bool done = collection.ops.insert(collection.delegate(collection.layout.insert),
                                            collection.handle, args, collection.info.element_type);
    return done ? none_or_error() : nullptr;
}

PyObject* extend(PyObject* self, PyObject* items) {
    return extend_with(collection_of(self), items) ? none_or_error() : nullptr;
}

PyObject* inplace_concat(PyObject* self, PyObject* items) {
    return extend_with(collection_of(self), items) ? Py_NewRef(self) : nullptr;
}

PyObject* inplace_repeat(PyObject* self, Py_ssize_t count) {
    if (count > int32_max || count < std::numeric_limits<int>::min()) {
        return PyErr_Format(PyExc_OverflowError,
                            "the value of 'count' (%zi) is out of the INT32 range", count);
    }
    const Collection collection = collection_of(self);
    collection.call<void>(collection.layout.inplace_repeat, static_cast<int>(count));
    return PyErr_Occurred() != nullptr ? nullptr : Py_NewRef(self);
}

PyObject* remove(PyObject* self, PyObject* value) {
    const Collection collection = collection_of(self);
    const int removed = collection.ops.ask(collection.delegate(collection.layout.remove),
                                           collection.handle, value, collection.info.element_type);
    if (PyErr_Occurred() == nullptr && removed == 0) {
        PyErr_SetString(PyExc_ValueError, "list.remove(x): x not in list");
    }
    return none_or_error();
}

PyObject* pop(PyObject* self, PyObject* args) {
    const Py_ssize_t given = PyTuple_GET_SIZE(args);
    Py_ssize_t position = 0;
    if (fn_check_args_count_out_of_range(given, "pop", 0, 1) ||
        (given == 1 &&
         (!fn_conv_py_optional_to_ssize_t(args, &position) || !is_int32_index(position)))) {
        return nullptr;
    }
    const Collection collection = collection_of(self);
    PyObject* item = nullptr;
    const int status = collection.ops.pop(
        collection.delegate(collection.layout.pop), collection.handle, static_cast<int>(given),
        static_cast<int>(position), collection.info.element_type, &item);
    if (status == KORVAN_END) {
        PyErr_SetString(PyExc_IndexError, "pop from empty list");
    } else if (status == KORVAN_OUT_OF_RANGE) {
        PyErr_SetString(PyExc_IndexError, "pop index out of range");
    }
    return status == KORVAN_ITEM ? item : nullptr;
}

PyObject* clear(PyObject* self, PyObject*) { return call_plain(self, &CollectionLayout::clear); }
PyObject* reverse(PyObject* self, PyObject*) {
    return call_plain(self, &CollectionLayout::reverse);
}

PyObject* sort(PyObject* self, PyObject* args, PyObject* kwargs) {
    static const char* keywords[] = {"key", "reverse", nullptr};
    PyObject* key = Py_None;
    int descending = 0;
    if (!PyArg_ParseTupleAndKeywords(args, kwargs, "|Op", const_cast<char**>(keywords), &key,
                                     &descending)) {
        return nullptr;
    }
    if (key != Py_None) {
        return PyErr_Format(PyExc_ValueError, "custom sorting key is not supported");
    }
    const Collection collection = collection_of(self);
    collection.call<void>(collection.layout.sort, descending);
    return none_or_error();
}

} // namespace collection
