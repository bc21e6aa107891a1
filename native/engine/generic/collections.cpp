#include "generic/collections.h"

#include "generic/collection_layout.h"
#include "generic/element_ops.h"
#include "runtime/failures.h"
#include "runtime/markers.h"
#include "runtime/numbers.h"
#include "runtime/types_map.h"

#include <limits>

namespace {

const ElementOps& variant_ops = element_ops<arg::variant, ret::finished>;

// The collection behind a wrapper: its record, its layout and its handle.
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
};

const CollectionLayout& layout_of(const ClassBinding& binding) {
    const CollectionInfo& info = *binding.collection;
    const bool typed = info.element != nullptr;
    switch (binding.protocol) {
    case Protocol::collection: return typed ? layout::generic_collection : layout::any_collection;
    case Protocol::list:
        if (!typed) {
            return layout::any_list;
        }
        return info.collection_host != nullptr ? layout::generic_ilist : layout::generic_list;
    case Protocol::array: return layout::generic_array;
    case Protocol::read_only_collection: return layout::read_only_collection;
    case Protocol::read_only_list: return layout::read_only_list;
    default: return layout::nothing;
    }
}

const ClassBinding& binding_with_protocol(PyObject* self) {
    const auto* binding = reinterpret_cast<ClassBinding*>(Py_TYPE(self));
    while (binding->collection == nullptr) {
        binding = binding->base;
    }
    return *binding;
}

Collection collection_of(PyObject* self) {
    const ClassBinding& binding = binding_with_protocol(self);
    const CollectionInfo& info = *binding.collection;
    return {info, layout_of(binding), info.element != nullptr ? *info.element : variant_ops,
            clr_handle(self)};
}

bool is_int32(Py_ssize_t index) {
    if (index >= std::numeric_limits<int>::min() && index <= std::numeric_limits<int>::max()) {
        return true;
    }
    PyErr_Format(PyExc_OverflowError, "the index (%zi) is out of the INT32 range", index);
    return false;
}

int length_of(const Collection& collection) {
    const auto function =
        reinterpret_cast<int (*)(void*)>(collection.delegate(collection.layout.length));
    const int length = function(collection.handle);
    return PyErr_Occurred() != nullptr ? -1 : length;
}

// ---- iteration -------------------------------------------------------------------------------

PyObject* iterable_iter(PyObject* self) {
    const CollectionInfo& info = *binding_with_protocol(self).collection;
    PyObjectOutArg out{};
    const auto get_enumerator = host_slot<int(void*, PyObjectOutArg*)>(*info.iterable_host, 0);
    if (get_enumerator(clr_handle(self), &out) < 0 || PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    return fn_conv_clr_ifcimpl_to_py_ifcimpl(out, &info.iterator->type);
}

PyObject* iterator_next(PyObject* self) {
    const Collection collection = collection_of(self);
    void* function = reinterpret_cast<void*>(host_slot<void()>(*collection.info.iterator_host, 0));
    PyObject* item = nullptr;
    const int status =
        collection.ops.move_next(function, collection.handle, collection.info.element_type, &item);
    if (status == KORVAN_END) {
        PyErr_SetNone(PyExc_StopIteration);
    }
    return status == KORVAN_ITEM ? item : nullptr;
}

// ---- reading ---------------------------------------------------------------------------------

Py_ssize_t sq_length(PyObject* self) { return length_of(collection_of(self)); }

PyObject* length_getter(PyObject* self, void*) {
    const int length = length_of(collection_of(self));
    return length < 0 && PyErr_Occurred() != nullptr ? nullptr : PyLong_FromLong(length);
}

PyObject* item_at(const Collection& collection, Py_ssize_t index) {
    if (!is_int32(index)) {
        return nullptr;
    }
    PyObject* item = nullptr;
    const int status =
        collection.ops.get_item(collection.delegate(collection.layout.get_item), collection.handle,
                                static_cast<int>(index), collection.info.element_type, &item);
    if (status == KORVAN_OUT_OF_RANGE) {
        PyErr_SetString(PyExc_IndexError, "list index out of range");
    }
    return status == KORVAN_ITEM ? item : nullptr;
}

PyObject* sq_item(PyObject* self, Py_ssize_t index) { return item_at(collection_of(self), index); }

// A plain list of `count` items from `start` on.
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

PyObject* raise_bad_key(PyObject* key) {
    return PyErr_Format(PyExc_TypeError, "list indices must be integers or slices, not %.200s",
                        type_name_of(key));
}

// An index with a negative value counted from the end, once.
bool read_index(const Collection& collection, PyObject* key, Py_ssize_t* index) {
    *index = PyNumber_AsSsize_t(key, PyExc_IndexError);
    if (*index == -1 && PyErr_Occurred() != nullptr) {
        return false;
    }
    if (*index < 0) {
        const int length = length_of(collection);
        if (length < 0) {
            return false;
        }
        *index += length;
    }
    return true;
}

PyObject* mp_subscript(PyObject* self, PyObject* key) {
    const Collection collection = collection_of(self);
    if (PyIndex_Check(key)) {
        Py_ssize_t index = 0;
        return read_index(collection, key, &index) ? item_at(collection, index) : nullptr;
    }
    if (!PySlice_Check(key)) {
        return raise_bad_key(key);
    }
    Py_ssize_t start = 0, stop = 0, step = 0;
    if (PySlice_Unpack(key, &start, &stop, &step) != 0) {
        return nullptr;
    }
    const int length = length_of(collection);
    if (length < 0) {
        return nullptr;
    }
    const Py_ssize_t count = PySlice_AdjustIndices(length, &start, &stop, step);
    return items_between(collection, start, step, count);
}

PyObject* copy(PyObject* self, PyObject*) {
    const Collection collection = collection_of(self);
    if (!collection.layout.get_item_no_check.exists()) {
        return PySequence_List(self);
    }
    const int length = length_of(collection);
    return length < 0 ? nullptr : items_between(collection, 0, 1, length);
}

int ask(PyObject* self, PyObject* value, CollectionSlot CollectionLayout::*question) {
    const Collection collection = collection_of(self);
    return collection.ops.ask(collection.delegate(collection.layout.*question), collection.handle,
                              value, collection.info.element_type);
}

int sq_contains(PyObject* self, PyObject* value) {
    const int answer = ask(self, value, &CollectionLayout::contains);
    return answer < 0 ? -1 : answer != 0;
}

PyObject* contains(PyObject* self, PyObject* value) {
    const int answer = sq_contains(self, value);
    return answer < 0 ? nullptr : PyBool_FromLong(answer);
}

PyObject* count(PyObject* self, PyObject* value) {
    const int answer = ask(self, value, &CollectionLayout::count_of);
    return PyErr_Occurred() != nullptr ? nullptr : PyLong_FromLong(answer);
}

PyObject* index(PyObject* self, PyObject* args) {
    const Collection collection = collection_of(self);
    PyObject* value = nullptr;
    Py_ssize_t start = 0, stop = 0;
    if (!PyArg_ParseTuple(args, "O|nn", &value, &start, &stop) || !is_int32(start) ||
        !is_int32(stop)) {
        return nullptr;
    }
    const Py_ssize_t given = PyTuple_GET_SIZE(args);
    const int found =
        collection.ops.index_by(collection.delegate(collection.layout.index_by), collection.handle,
                                given >= 2, static_cast<int>(start), given >= 3,
                                static_cast<int>(stop), value, collection.info.element_type);
    if (PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    return found < 0 ? PyErr_Format(PyExc_ValueError, "value is not in list")
                     : PyLong_FromLong(found);
}

// ---- writing ---------------------------------------------------------------------------------

PyObject* none_or_error() {
    if (PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    Py_RETURN_NONE;
}

int status_of_index(int status, const char* words) {
    if (status == KORVAN_OUT_OF_RANGE) {
        PyErr_SetString(PyExc_IndexError, words);
    }
    return status == 0 && PyErr_Occurred() == nullptr ? 0 : -1;
}

int assign_item(const Collection& collection, Py_ssize_t index, PyObject* value) {
    if (!is_int32(index)) {
        return -1;
    }
    const int position = static_cast<int>(index);
    int status = 0;
    if (value != nullptr) {
        status = collection.ops.set_item(collection.delegate(collection.layout.set_item),
                                         collection.handle, position, value,
                                         collection.info.element_type);
    } else if (collection.layout.remove_at.exists()) {
        status = reinterpret_cast<int (*)(void*, int)>(
            collection.delegate(collection.layout.remove_at))(collection.handle, position);
    } else {
        PyErr_SetString(PyExc_TypeError, "an array has a fixed size: items can't be deleted");
        return -1;
    }
    return status_of_index(status, "list index out of range");
}

int mp_ass_subscript(PyObject* self, PyObject* key, PyObject* value) {
    const Collection collection = collection_of(self);
    if (PyIndex_Check(key)) {
        Py_ssize_t index = 0;
        return read_index(collection, key, &index) ? assign_item(collection, index, value) : -1;
    }
    if (PySlice_Check(key)) {
        PyErr_SetString(PyExc_TypeError,
                        "slices of managed collections can't be assigned or deleted by this "
                        "version of the bridge; assign item by item");
        return -1;
    }
    raise_bad_key(key);
    return -1;
}

PyObject* append(PyObject* self, PyObject* value) {
    const Collection collection = collection_of(self);
    collection.ops.add(collection.delegate(collection.layout.add), collection.handle, value,
                       collection.info.element_type);
    return none_or_error();
}

PyObject* insert(PyObject* self, PyObject* args) {
    const Collection collection = collection_of(self);
    Py_ssize_t position = 0;
    PyObject* value = nullptr;
    if (!PyArg_ParseTuple(args, "nO", &position, &value) || !is_int32(position)) {
        return nullptr;
    }
    collection.ops.insert(collection.delegate(collection.layout.insert), collection.handle,
                          static_cast<int>(position), value, collection.info.element_type);
    return none_or_error();
}

PyObject* remove(PyObject* self, PyObject* value) {
    const int removed = ask(self, value, &CollectionLayout::remove);
    if (PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    if (removed == 0) {
        return PyErr_Format(PyExc_ValueError, "list.remove(x): x not in list");
    }
    Py_RETURN_NONE;
}

PyObject* pop(PyObject* self, PyObject* args) {
    const Py_ssize_t given = PyTuple_GET_SIZE(args);
    Py_ssize_t position = 0;
    if (fn_check_args_count_out_of_range(given, "pop", 0, 1) ||
        (given == 1 && (!fn_conv_py_optional_to_ssize_t(args, &position) || !is_int32(position)))) {
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

PyObject* call_plain(PyObject* self, CollectionSlot CollectionLayout::*operation) {
    const Collection collection = collection_of(self);
    reinterpret_cast<void (*)(void*)>(collection.delegate(collection.layout.*operation))(
        collection.handle);
    return none_or_error();
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
    reinterpret_cast<void (*)(void*, int)>(collection.delegate(collection.layout.sort))(
        collection.handle, descending);
    return none_or_error();
}

PyObject* extend(PyObject* self, PyObject* items) {
    if (!PyShlObject_HasIter(items)) {
        return PyErr_Format(PyExc_ValueError, "argument must be iterable or sequence");
    }
    // A copy first: an iterable that reads this very collection would never end.
    const Ref fixed = Ref::steal(PySequence_List(items));
    for (Py_ssize_t i = 0; fixed && i < PyList_GET_SIZE(fixed.get()); ++i) {
        if (!Ref::steal(append(self, PyList_GET_ITEM(fixed.get(), i)))) {
            return nullptr;
        }
    }
    return none_or_error();
}

// ---- tables ----------------------------------------------------------------------------------

// Which methods a protocol offers: those whose delegates its layout has.
struct ProtocolMethod {
    PyMethodDef definition;
    CollectionSlot CollectionLayout::*needs;
};

ProtocolMethod protocol_methods[] = {
    {{"append", append, METH_O, nullptr}, &CollectionLayout::add},
    {{"clear", clear, METH_NOARGS, nullptr}, &CollectionLayout::clear},
    {{"contains", contains, METH_O, nullptr}, &CollectionLayout::contains},
    {{"copy", copy, METH_NOARGS, nullptr}, &CollectionLayout::length},
    {{"count", count, METH_O, nullptr}, &CollectionLayout::count_of},
    {{"extend", extend, METH_O, nullptr}, &CollectionLayout::add},
    {{"index", index, METH_VARARGS, nullptr}, &CollectionLayout::index_by},
    {{"insert", insert, METH_VARARGS, nullptr}, &CollectionLayout::insert},
    {{"pop", pop, METH_VARARGS, nullptr}, &CollectionLayout::pop},
    {{"remove", remove, METH_O, nullptr}, &CollectionLayout::remove},
    {{"reverse", reverse, METH_NOARGS, nullptr}, &CollectionLayout::reverse},
    {{"sort", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(sort)),
      METH_VARARGS | METH_KEYWORDS, nullptr},
     &CollectionLayout::sort},
};

PyGetSetDef length_definition = {"length", length_getter, nullptr, nullptr, nullptr};

PySequenceMethods sized_sequence = {.sq_length = sq_length, .sq_contains = sq_contains};
PySequenceMethods indexed_sequence = {
    .sq_length = sq_length, .sq_item = sq_item, .sq_contains = sq_contains};
PyMappingMethods sized_mapping = {.mp_length = sq_length};
PyMappingMethods read_mapping = {.mp_length = sq_length, .mp_subscript = mp_subscript};
PyMappingMethods write_mapping = {
    .mp_length = sq_length, .mp_subscript = mp_subscript, .mp_ass_subscript = mp_ass_subscript};

// ---- this[int] alone -------------------------------------------------------------------------

PyObject* indexer_item(PyObject* self, Py_ssize_t index) {
    const CollectionInfo& info = *binding_with_protocol(self).collection;
    if (!is_int32(index)) {
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
        PyErr_SetString(PyExc_ValueError, "elements removing not supported");
        return -1;
    }
    if (!is_int32(index)) {
        return -1;
    }
    void* function =
        reinterpret_cast<void*>(host_slot<void()>(*info.list_host, info.indexer_set_slot));
    const int status = info.element->set_item(function, clr_handle(self), static_cast<int>(index),
                                              value, info.element_type);
    return status_of_index(status, "list index out of range");
}

PySequenceMethods read_indexer = {.sq_item = indexer_item};
PySequenceMethods write_indexer = {.sq_item = indexer_item, .sq_ass_item = indexer_assign};

} // namespace

void fill_protocol_slots(ClassBinding& binding) {
    PyTypeObject& type = binding.type;
    switch (binding.protocol) {
    case Protocol::none: return;
    case Protocol::iterator:
        type.tp_iter = PyObject_SelfIter;
        type.tp_iternext = iterator_next;
        return;
    case Protocol::indexer:
        type.tp_as_sequence =
            binding.collection->indexer_set_slot != no_slot ? &write_indexer : &read_indexer;
        return;
    case Protocol::iterable: break;
    case Protocol::collection:
    case Protocol::read_only_collection:
        type.tp_as_sequence = &sized_sequence;
        type.tp_as_mapping = &sized_mapping;
        break;
    case Protocol::read_only_list:
        type.tp_as_sequence = &indexed_sequence;
        type.tp_as_mapping = &read_mapping;
        break;
    case Protocol::list:
    case Protocol::array:
        type.tp_as_sequence = &indexed_sequence;
        type.tp_as_mapping = &write_mapping;
        break;
    }
    type.tp_iter = iterable_iter;
}

bool add_protocol_methods(ClassBinding& binding) {
    if (binding.collection == nullptr) {
        return true;
    }
    const CollectionLayout& layout = layout_of(binding);
    PyTypeObject* type = &binding.type;
    const auto store = [type](const char* name, Ref descriptor) {
        // A member of the managed class itself goes before the protocol's.
        if (PyDict_GetItemString(type->tp_dict, name) != nullptr) {
            return true;
        }
        if (descriptor && PyDict_SetItemString(type->tp_dict, name, descriptor.get()) == 0) {
            return true;
        }
        PyShlErr_TypeInitializationInternalError(load_error::add_member, type->tp_name, name);
        return false;
    };
    bool stored = true;
    for (ProtocolMethod& method : protocol_methods) {
        if (stored && (layout.*method.needs).exists()) {
            stored = store(method.definition.ml_name,
                           Ref::steal(PyDescr_NewMethod(type, &method.definition)));
        }
    }
    if (stored && layout.length.exists()) {
        stored = store("length", Ref::steal(PyDescr_NewGetSet(type, &length_definition)));
    }
    PyType_Modified(type);
    return stored;
}
