#include "generic/python_collections.h"

#include "runtime/identifiers.h"

namespace python_collection {

namespace {

enum { next_item = 0, next_end = 1, next_error = 2 };
constexpr int index_of_error = -2;

int failed_at_index() {
    return PyErr_Occurred() != nullptr && PyErr_ExceptionMatches(PyExc_IndexError)
               ? KORVAN_CB_INDEX_ERROR
               : KORVAN_CB_ERROR;
}

// Hands the item over with the element that was made of it.
bool convert_kept(Ref item, PyObject** keep, Converter convert, void* element, const void* type) {
    if (convert(item.get(), element, type) != 1) {
        return false;
    }
    *keep = item.release();
    return true;
}

// Calls list.remove or list.index: the result, or null, with an error unless there is no such item.
Ref call_with(PyObject* list, PyObject* method, PyObject* value) {
    Ref result = Ref::steal(PyObject_CallMethodObjArgs(list, method, value, nullptr));
    if (!result && PyErr_ExceptionMatches(PyExc_ValueError)) {
        PyErr_Clear();
    }
    return result;
}

int found_or_failed(const Ref& result) {
    if (result) {
        return 1;
    }
    return PyErr_Occurred() != nullptr ? KORVAN_CB_ERROR : 0;
}

// The item at an index within the size; an error if there is none all the same.
Ref sequence_item(PyObject* sequence, Py_ssize_t index) {
    Ref item = Ref::steal(PySequence_GetItem(sequence, index));
    if (!item && PyErr_Occurred() == nullptr) {
        PyErr_SetString(PyExc_IndexError, "item is null");
    }
    return item;
}

} // namespace

int list_get(PyObject* list, int index, Converter convert, void* element, const void* type) {
    PyObject* const item = PyList_GetItem(list, index);
    if (item == nullptr) {
        return failed_at_index();
    }
    const Ref held = Ref::borrow(item); // a converter may run Python code
    return convert(item, element, type) == 1 ? KORVAN_CB_OK : KORVAN_CB_ERROR;
}

int sequence_get(PyObject* sequence, int index, PyObject** keep, Converter convert, void* element,
                 const void* type) {
    Ref item = Ref::steal(PySequence_GetItem(sequence, index));
    if (!item) {
        return failed_at_index();
    }
    return convert_kept(std::move(item), keep, convert, element, type) ? KORVAN_CB_OK
                                                                       : KORVAN_CB_ERROR;
}

int iterator_next(PyObject* iterator, PyObject** keep, Converter convert, void* element,
                  const void* type) {
    Ref item = Ref::steal(PyIter_Next(iterator));
    if (PyErr_Occurred() != nullptr) {
        return next_error;
    }
    if (!item) {
        return next_end;
    }
    return convert_kept(std::move(item), keep, convert, element, type) ? next_item : next_error;
}

int list_set(PyObject* list, int index, PyObject* value) {
    if (value == nullptr) {
        return KORVAN_CB_ERROR;
    }
    // The list takes the reference over, also when it rejects the value.
    return PyList_SetItem(list, index, value) == 0 ? KORVAN_CB_OK : failed_at_index();
}

int list_add(PyObject* list, PyObject* value) {
    const Ref owned = Ref::steal(value);
    return owned && PyList_Append(list, value) == 0 ? KORVAN_CB_OK : KORVAN_CB_ERROR;
}

int list_insert(PyObject* list, int index, PyObject* value) {
    const Ref owned = Ref::steal(value);
    return owned && PyList_Insert(list, index, value) == 0 ? KORVAN_CB_OK : failed_at_index();
}

int list_remove(PyObject* list, PyObject* value) {
    const Ref owned = Ref::steal(value);
    return owned ? found_or_failed(call_with(list, PyWrpIdList_Remove, value)) : KORVAN_CB_ERROR;
}

int list_contains(PyObject* list, PyObject* value) {
    const Ref owned = Ref::steal(value);
    return owned ? found_or_failed(call_with(list, PyWrpIdList_Index, value)) : KORVAN_CB_ERROR;
}

int list_index_of(PyObject* list, PyObject* value) {
    const Ref owned = Ref::steal(value);
    if (!owned) {
        return index_of_error;
    }
    const Ref position = call_with(list, PyWrpIdList_Index, value);
    if (!position) {
        return PyErr_Occurred() != nullptr ? index_of_error : -1;
    }
    Py_ssize_t index = 0;
    return fn_conv_py_obj_to_ssize_t(position.get(), &index) && is_int32_index(index)
               ? static_cast<int>(index)
               : index_of_error;
}

int sequence_contains(PyObject* sequence, PyObject* value) {
    const Ref owned = Ref::steal(value);
    if (!owned) {
        return KORVAN_CB_ERROR;
    }
    // The size is asked anew each round: a comparison may change the sequence.
    for (Py_ssize_t i = 0; i < PySequence_Size(sequence); ++i) {
        const Ref item = sequence_item(sequence, i);
        if (!item) {
            return KORVAN_CB_ERROR;
        }
        // A comparison that raises ends the walk as a hit does; its error stays.
        if (PyObject_RichCompareBool(item.get(), value, Py_EQ) != 0) {
            return 1;
        }
    }
    return 0;
}

int sequence_index_of(PyObject* sequence, PyObject* value) {
    const Ref owned = Ref::steal(value);
    const Py_ssize_t size = owned ? PySequence_Size(sequence) : -1;
    if (size < 1) {
        return PyErr_Occurred() != nullptr ? index_of_error : -1;
    }
    for (Py_ssize_t i = 0; i < size; ++i) {
        const Ref item = sequence_item(sequence, i);
        if (!item) {
            return index_of_error;
        }
        if (PyObject_RichCompareBool(item.get(), value, Py_EQ) != 0) {
            return is_int32_index(i) ? static_cast<int>(i) : index_of_error;
        }
    }
    return -1;
}

int iterable_contains(PyObject* iterable, PyObject* value) {
    const Ref owned = Ref::steal(value);
    const Ref iterator = Ref::steal(owned ? PyObject_GetIter(iterable) : nullptr);
    if (!iterator) {
        if (PyErr_Occurred() == nullptr) {
            PyErr_SetString(PyExc_ValueError, "argument must be iterable");
        }
        return KORVAN_CB_ERROR;
    }
    int answer = 0;
    while (answer == 0) {
        const Ref item = Ref::steal(PyIter_Next(iterator.get()));
        if (!item) {
            break;
        }
        answer = PyObject_RichCompareBool(item.get(), value, Py_EQ);
    }
    if (PyErr_Occurred() != nullptr) {
        return KORVAN_CB_ERROR;
    }
    return answer != 0 ? 1 : 0;
}

} // namespace python_collection
