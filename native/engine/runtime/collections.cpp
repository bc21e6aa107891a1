// Callback slots over Python collections: lists, sequences, iterators.
#include "host/exchange_host.h"
#include "runtime/callbacks.h"
#include "runtime/identifiers.h"
#include "runtime/numbers.h"
#include "runtime/types_map.h"
#include "runtime/variant.h"
#include "runtime/wrapped_objects.h"

#include <limits>

namespace {

constexpr Py_ssize_t int32_max = std::numeric_limits<int>::max();

int int32_length(Py_ssize_t length) {
    if (length > int32_max) {
        PyErr_Format(PyExc_OverflowError, "the value of 'length' (%zi) is out of the INT32 range",
                     length);
        return -1;
    }
    return static_cast<int>(length);
}

int index_status() {
    return PyErr_ExceptionMatches(PyExc_IndexError) ? KORVAN_CB_INDEX_ERROR : KORVAN_CB_ERROR;
}

void raise_if_item_is_null() {
    if (PyErr_Occurred() == nullptr) {
        PyErr_SetString(PyExc_IndexError, "item is null");
    }
}

PyObject* wrap_collection(void* handle, PyTypeObject* type) {
    if (type == nullptr) {
        ExchangeHost::get_instance().free_instance(handle);
        PyErr_SetString(PyExc_TypeError, "unknown wrapper type");
        return nullptr;
    }
    return fn_py_clr_type_generic_new(handle, type);
}

} // namespace

PyTypeObject* fn_clbk_ilist_type = nullptr;
PyTypeObject* fn_clbk_arrlist_type = nullptr;
PyTypeObject* fn_clbk_array_type = nullptr;

int fn_clbk_iter_next(PyObject* iterator, PyObject** keep, VariantArg* out) {
    Ref item = Ref::steal(PyIter_Next(iterator));
    if (PyErr_Occurred() != nullptr) {
        return 2;
    }
    if (!item) {
        return 1;
    }
    if (!fn_conv_py_variant_to_clr_variant(item.get(), out)) {
        return 2;
    }
    *keep = item.release();
    return 0;
}

int fn_clbk_ucol_list_length(PyObject* list) { return int32_length(PyList_Size(list)); }
long fn_clbk_ucol_list_longlength(PyObject* list) { return PyList_Size(list); }
int fn_clbk_ucol_sequence_length(PyObject* sequence) {
    return int32_length(PySequence_Size(sequence));
}
long fn_clbk_ucol_sequence_longlength(PyObject* sequence) { return PySequence_Size(sequence); }
int fn_clbk_ucol_object_length(PyObject* object) { return int32_length(PyObject_Size(object)); }

int fn_clbk_ucol_remove_at(PyObject* object, int index) {
    const Ref position = Ref::steal(PyLong_FromLong(index));
    if (!position) {
        return KORVAN_CB_ERROR;
    }
    const Ref removed =
        Ref::steal(PyObject_CallMethodOneArg(object, PyWrpIdList_Pop, position.get()));
    return removed ? KORVAN_CB_OK : index_status();
}

int fn_clbk_ucol_clear(PyObject* object) {
    return Ref::steal(PyObject_CallMethodNoArgs(object, PyWrpIdList_Clear)) ? KORVAN_CB_OK
                                                                            : KORVAN_CB_ERROR;
}

PyObject* fn_clbk_ucol_get_enumerator(PyObject* object) {
    Ref iterator = Ref::steal(PyObject_GetIter(object));
    if (!iterator && PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    if (!iterator || !PyIter_Check(iterator.get())) {
        PyErr_Format(PyExc_TypeError, "No iterator in '%s'", type_name_of(object));
        return nullptr;
    }
    return iterator.release();
}

PyObject** fn_clbk_ucol_create_fast_list(int count, PyObject** out) {
    return fn_clbk_ucol_create_fast_longlist(count, out);
}

PyObject** fn_clbk_ucol_create_fast_longlist(long count, PyObject** out) {
    *out = PyList_New(count);
    return *out != nullptr ? reinterpret_cast<PyListObject*>(*out)->ob_item : nullptr;
}

int fn_clbk_olist_get_item(PyObject* list, int index, VariantArg* out) {
    // Held, since a test of its class may run Python code that takes it off the list.
    const Ref item = Ref::borrow(PyList_GetItem(list, index));
    if (!item) {
        return index_status();
    }
    if (!fn_conv_py_variant_to_clr_variant(item.get(), out)) {
        return KORVAN_CB_ERROR;
    }
    if (Py_REFCNT(item.get()) == 1) {
        PyErr_SetString(PyExc_RuntimeError, "a list changed while its item was read");
        return KORVAN_CB_ERROR;
    }
    return KORVAN_CB_OK;
}

int fn_clbk_olist_set_item(PyObject* list, int index, PyObject* value) {
    if (PyList_SetItem(list, index, value) == 0) {
        return KORVAN_CB_OK;
    }
    // The managed side hands over a second reference for this path.
    Py_DECREF(value);
    return index_status();
}

int fn_clbk_olist_add(PyObject* list, PyObject* value) {
    const Ref owned = Ref::steal(value);
    return PyList_Append(list, value) == 0 ? static_cast<int>(PyList_Size(list)) : -1;
}

int fn_clbk_olist_insert(PyObject* list, int index, PyObject* value) {
    const Ref owned = Ref::steal(value);
    return PyList_Insert(list, index, value) == 0 ? KORVAN_CB_OK : index_status();
}

int fn_clbk_olist_remove(PyObject* list, PyObject* value) {
    const Ref owned = Ref::steal(value);
    return Ref::steal(PyObject_CallMethodOneArg(list, PyWrpIdList_Remove, value)) ? KORVAN_CB_OK
                                                                                  : KORVAN_CB_ERROR;
}

int fn_clbk_olist_contains(PyObject* list, PyObject* value) {
    const Ref owned = Ref::steal(value);
    if (Ref::steal(PyObject_CallMethodOneArg(list, PyWrpIdList_Index, value))) {
        return 1;
    }
    if (!PyErr_ExceptionMatches(PyExc_ValueError)) {
        return KORVAN_CB_ERROR;
    }
    PyErr_Clear();
    return 0;
}

int fn_clbk_olist_index_of(PyObject* list, PyObject* value) {
    const Ref owned = Ref::steal(value);
    const Ref position = Ref::steal(PyObject_CallMethodOneArg(list, PyWrpIdList_Index, value));
    if (!position) {
        if (!PyErr_ExceptionMatches(PyExc_ValueError)) {
            return -2;
        }
        PyErr_Clear();
        return -1;
    }
    Py_ssize_t index = 0;
    if (!fn_conv_py_obj_to_ssize_t(position.get(), &index) || !is_int32_index(index)) {
        return -2;
    }
    return static_cast<int>(index);
}

void fn_clbk_olist_set_fast_item(PyObject** items, int index, PyObject* value) {
    items[index] = value;
}

PyObject* fn_clbk_olist_write_clr_ilist(void* handle) {
    return wrap_collection(handle, fn_clbk_ilist_type);
}
PyObject* fn_clbk_olist_write_clr_arrlist(void* handle) {
    return wrap_collection(handle, fn_clbk_arrlist_type);
}
PyObject* fn_clbk_olist_write_clr_array(void* handle) {
    return wrap_collection(handle, fn_clbk_array_type);
}

int fn_clbk_oseq_get_item(PyObject* sequence, int index, VariantArg* out) {
    Ref item = Ref::steal(PySequence_GetItem(sequence, index));
    if (!item) {
        return index_status();
    }
    if (!fn_conv_py_variant_to_clr_variant(item.get(), out)) {
        return KORVAN_CB_ERROR;
    }
    item.release(); // the managed side reads through it and has no slot to give it back
    return KORVAN_CB_OK;
}

int fn_clbk_oseq_contains(PyObject* sequence, PyObject* value) {
    const Ref owned = Ref::steal(value);
    // The size is asked anew each round: a comparison may change the sequence.
    for (Py_ssize_t i = 0; i < PySequence_Size(sequence); ++i) {
        const Ref item = Ref::steal(PySequence_GetItem(sequence, i));
        if (!item) {
            raise_if_item_is_null();
            return KORVAN_CB_ERROR;
        }
        if (PyObject_RichCompareBool(item.get(), value, Py_EQ) != 0) {
            return 1;
        }
    }
    return 0;
}

int fn_clbk_oseq_index_of(PyObject* sequence, PyObject* value) {
    const Ref owned = Ref::steal(value);
    const Py_ssize_t size = PySequence_Size(sequence);
    for (Py_ssize_t i = 0; i < size; ++i) {
        const Ref item = Ref::steal(PySequence_GetItem(sequence, i));
        if (!item) {
            raise_if_item_is_null();
            return -2;
        }
        if (PyObject_RichCompareBool(item.get(), value, Py_EQ) != 0) {
            return is_int32_index(i, i + 1) ? static_cast<int>(i) : -2;
        }
    }
    return -1;
}
