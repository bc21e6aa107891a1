// Keys in brackets: an index, counted from the end when it is negative, or a slice.
#include "generic/collection_functions.h"

namespace {

struct Slice {
    Py_ssize_t start = 0, stop = 0, step = 0;
    Py_ssize_t count = 0;
};

bool is_slice(PyObject* key) {
    if (PySlice_Check(key)) {
        return true;
    }
    PyErr_Format(PyExc_TypeError, "list indices must be integers or slices, not %.200s",
                 type_name_of(key));
    return false;
}

// A negative index gets the length added once: the length is not asked for any other.
bool read_index(PyObject* self, PyObject* key, Py_ssize_t* index) {
    *index = PyNumber_AsSsize_t(key, PyExc_IndexError);
    if (*index == -1 && PyErr_Occurred() != nullptr) {
        return false;
    }
    if (*index < 0) {
        const int length = length_of(collection_of(self));
        if (length < 0) {
            return false;
        }
        *index += length;
    }
    return true;
}

bool read_slice(const Collection& collection, PyObject* key, Slice* out) {
    const int length = length_of(collection);
    if (length < 0 || PySlice_Unpack(key, &out->start, &out->stop, &out->step) != 0) {
        return false;
    }
    out->count = PySlice_AdjustIndices(length, &out->start, &out->stop, out->step);
    return true;
}

// The managed side removes from the highest index down.
int remove_items(const Collection& collection, Slice slice) {
    if (!collection.layout.remove_items.exists()) {
        return refuse_removal();
    }
    if (slice.step > 0) {
        slice.start += (slice.count - 1) * slice.step;
        slice.step = -slice.step;
    }
    if (collection.layout.removes_blocks_by_lowest && slice.step == -1) {
        slice.start = slice.start - slice.count + 1;
    }
    if (slice.start < 0) {
        slice.start = 0;
    }
    collection.call<void>(collection.layout.remove_items, static_cast<int>(slice.start),
                          static_cast<int>(slice.count), static_cast<int>(slice.step));
    return PyErr_Occurred() != nullptr ? -1 : 0;
}

bool fits(const Slice& slice, Py_ssize_t size) {
    if (size == slice.count) {
        return true;
    }
    PyErr_Format(PyExc_ValueError,
                 "attempt to assign sequence of size %zd to extended slice of size %zd", size,
                 slice.count);
    return false;
}

// Sets the slice's items to what `item_at` gives for 0, 1 and so on.
template <class ItemAt> int set_each(const Collection& collection, Slice slice, ItemAt item_at) {
    void* const function = collection.delegate(collection.layout.set_item_no_check);
    for (Py_ssize_t i = 0; i < slice.count; ++i) {
        const Ref item = item_at(i);
        const int index = static_cast<int>(slice.start + i * slice.step);
        if (!item || !collection.ops.set_item_no_check(function, collection.handle, index,
                                                       item.get(), collection.info.element_type)) {
            return -1;
        }
    }
    return 0;
}

// 1 when the managed side took the wrapper whole, 0 when it did not, -1 with an error.
int set_from_wrapper(const Collection& collection, const Slice& slice, PyObject* value) {
    VariantArg record{};
    if (!read_wrapper(value, &record)) {
        return 0;
    }
    const int handled =
        collection.call<int>(collection.layout.set_items, &record, static_cast<int>(slice.start),
                             static_cast<int>(slice.count), static_cast<int>(slice.step));
    return PyErr_Occurred() != nullptr ? -1 : handled == 1;
}

// The sizes must match for a step of 1 also: a collection does not grow by a slice.
int assign_slice(const Collection& collection, const Slice& slice, PyObject* value) {
    if (PyList_CheckExact(value) || PyTuple_CheckExact(value)) {
        // A copy of a list: converting an item may run Python code that changes it.
        const Ref items = Ref::steal(PySequence_Tuple(value));
        if (!items || !fits(slice, PyTuple_GET_SIZE(items.get()))) {
            return -1;
        }
        return set_each(collection, slice, [&](Py_ssize_t i) {
            return Ref::borrow(PyTuple_GET_ITEM(items.get(), i));
        });
    }
    if (!PyShlObject_IsSizedSequence(value)) {
        PyErr_SetString(PyExc_TypeError, "must assign iterable to extended slice");
        return -1;
    }
    const Py_ssize_t size = PySequence_Size(value);
    if (PyErr_Occurred() != nullptr || !fits(slice, size)) {
        return -1;
    }
    const int handled = set_from_wrapper(collection, slice, value);
    if (handled != 0) {
        return handled > 0 ? 0 : -1;
    }
    return set_each(collection, slice,
                    [value](Py_ssize_t i) { return Ref::steal(PySequence_GetItem(value, i)); });
}

} // namespace

namespace collection {

PyObject* subscript(PyObject* self, PyObject* key) {
    if (PyIndex_Check(key)) {
        Py_ssize_t index = 0;
        return read_index(self, key, &index) ? item(self, index) : nullptr;
    }
    if (!is_slice(key)) {
        return nullptr;
    }
    const Collection collection = collection_of(self);
    Slice slice;
    if (!read_slice(collection, key, &slice)) {
        return nullptr;
    }
    return items_between(collection, slice.start, slice.step, slice.count);
}

int assign_subscript(PyObject* self, PyObject* key, PyObject* value) {
    if (PyIndex_Check(key)) {
        Py_ssize_t index = 0;
        return read_index(self, key, &index) ? assign_item(self, index, value) : -1;
    }
    const Collection collection = collection_of(self);
    Slice slice;
    if (!is_slice(key) || !read_slice(collection, key, &slice)) {
        return -1;
    }
    return value == nullptr ? remove_items(collection, slice)
                            : assign_slice(collection, slice, value);
}

} // namespace collection
