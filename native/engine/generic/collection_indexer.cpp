// Classes with this[int] that are no collections.
#include "generic/collection_functions.h"
#include "runtime/numbers.h"

namespace collection {

PyObject* indexer_item(PyObject* self, Py_ssize_t index) {
    const CollectionInfo& info = *binding_with_protocol(self).collection;
    if (!is_int32_index(index)) {
        return nullptr;
    }
    void* function = reinterpret_cast<void*>(host_slot<void()>(*info.list_host, info.indexer_slot));
    PyObject* item = nullptr;
    const int status = info.element->get_item(function, clr_handle(self), static_cast<int>(index),
                                              info.element_type, &item);
    if (status == KORVAN_OUT_OF_RANGE) {
        PyErr_SetString(PyExc_IndexError, "list index out of range");
    }
    return status == KORVAN_ITEM ? item : nullptr;
}

int indexer_assign(PyObject* self, Py_ssize_t index, PyObject* value) {
    const CollectionInfo& info = *binding_with_protocol(self).collection;
    if (value == nullptr) {
        return refuse_removal();
    }
    if (!is_int32_index(index)) {
        return -1;
    }
    void* function =
        reinterpret_cast<void*>(host_slot<void()>(*info.list_host, info.indexer_set_slot));
    return result_of_status(info.element->set_item(
        function, clr_handle(self), static_cast<int>(index), value, info.element_type));
}

} // namespace collection
