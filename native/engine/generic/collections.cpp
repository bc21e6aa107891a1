#include "generic/collections.h"

#include "generic/collection_functions.h"
#include "generic/stream_wrapper.h"
#include "runtime/failures.h"
#include "runtime/wrapped_objects.h"

namespace {

const ElementOps& variant_ops = element_ops<arg::variant, ret::finished>;

// Which methods a protocol offers: those whose delegates its layout has.
struct ProtocolMethod {
    PyMethodDef definition;
    CollectionSlot CollectionLayout::*needs;
};

ProtocolMethod protocol_methods[] = {
    {{"extend", collection::extend, METH_O, nullptr}, &CollectionLayout::inplace_concat},
    {{"append", collection::append, METH_O, nullptr}, &CollectionLayout::add},
    {{"insert", collection::insert, METH_VARARGS, nullptr}, &CollectionLayout::insert},
    {{"remove", collection::remove, METH_O, nullptr}, &CollectionLayout::remove},
    {{"pop", collection::pop, METH_VARARGS, nullptr}, &CollectionLayout::pop},
    {{"clear", collection::clear, METH_NOARGS, nullptr}, &CollectionLayout::clear},
    {{"index", collection::index, METH_VARARGS, nullptr}, &CollectionLayout::index_by},
    {{"count", collection::count, METH_O, nullptr}, &CollectionLayout::count_of},
    {{"sort", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(collection::sort)),
      METH_VARARGS | METH_KEYWORDS, nullptr},
     &CollectionLayout::sort},
    {{"reverse", collection::reverse, METH_NOARGS, nullptr}, &CollectionLayout::reverse},
    {{"copy", collection::copy, METH_NOARGS, nullptr}, &CollectionLayout::length},
    {{"contains", collection::contains, METH_O, nullptr}, &CollectionLayout::contains},
};

PyGetSetDef length_definition = {"length", collection::length_getter, nullptr, nullptr, nullptr};

PySequenceMethods sized_sequence = {
    .sq_length = collection::length,
    .sq_concat = collection::concat,
    .sq_repeat = collection::repeat,
    .sq_contains = collection::has,
};
PySequenceMethods growing_sequence = {
    .sq_length = collection::length,
    .sq_concat = collection::concat,
    .sq_repeat = collection::repeat,
    .sq_contains = collection::has,
    .sq_inplace_concat = collection::inplace_concat,
    .sq_inplace_repeat = collection::inplace_repeat,
};
PySequenceMethods read_sequence = {
    .sq_length = collection::length,
    .sq_concat = collection::concat,
    .sq_repeat = collection::repeat,
    .sq_item = collection::item,
    .sq_contains = collection::has,
};
PySequenceMethods array_sequence = {
    .sq_length = collection::length,
    .sq_concat = collection::concat,
    .sq_repeat = collection::repeat,
    .sq_item = collection::item,
    .sq_ass_item = collection::assign_item,
    .sq_contains = collection::has,
};
PySequenceMethods list_sequence = {
    .sq_length = collection::length,
    .sq_concat = collection::concat,
    .sq_repeat = collection::repeat,
    .sq_item = collection::item,
    .sq_ass_item = collection::assign_item,
    .sq_contains = collection::has,
    .sq_inplace_concat = collection::inplace_concat,
    .sq_inplace_repeat = collection::inplace_repeat,
};
PySequenceMethods read_indexer = {.sq_item = collection::indexer_item};
PySequenceMethods write_indexer = {.sq_item = collection::indexer_item,
                                   .sq_ass_item = collection::indexer_assign};

PyMappingMethods sized_mapping = {.mp_length = collection::length};
PyMappingMethods read_mapping = {.mp_length = collection::length,
                                 .mp_subscript = collection::subscript};
PyMappingMethods write_mapping = {.mp_length = collection::length,
                                  .mp_subscript = collection::subscript,
                                  .mp_ass_subscript = collection::assign_subscript};

void fill_sized_slots(const ClassBinding& binding, PyTypeObject& type) {
    type.tp_as_sequence =
        layout_of(binding).inplace_concat.exists() ? &growing_sequence : &sized_sequence;
    if (binding.collection->element == nullptr) {
        type.tp_as_mapping = &sized_mapping;
    }
}

} // namespace

const CollectionLayout& layout_of(const ClassBinding& binding) {
    const CollectionInfo& info = *binding.collection;
    if (info.layout != nullptr) {
        return *info.layout;
    }
    const bool typed = info.element != nullptr;
    switch (binding.protocol) {
    case Protocol::collection: return typed ? layout::generic_collection : layout::any_collection;
    case Protocol::list:
        if (!typed) {
            return layout::any_list;
        }
        return info.collection_host != nullptr ? layout::generic_ilist : layout::generic_list;
    case Protocol::array: return layout::array;
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

const ElementOps& ops_of(const CollectionInfo& info) {
    return info.element != nullptr ? *info.element : variant_ops;
}

Collection collection_of(PyObject* self) {
    const ClassBinding& binding = binding_with_protocol(self);
    return {*binding.collection, layout_of(binding), ops_of(*binding.collection), clr_handle(self)};
}

int length_of(const Collection& collection) {
    const int length = collection.call<int>(collection.layout.length);
    return PyErr_Occurred() != nullptr ? -1 : length;
}

bool read_wrapper(PyObject* object, VariantArg* out) {
    *out = {};
    if (!fn_is_this_module_clr_instance(object, &out->kind) &&
        !(is_static_type_of(object) && fn_is_instance_has_host_markattr(object, &out->kind))) {
        return false;
    }
    out->value = clr_handle(object);
    return true;
}

PyObject* none_or_error() {
    if (PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    Py_RETURN_NONE;
}

int result_of_status(int status) {
    if (status == KORVAN_OUT_OF_RANGE) {
        PyErr_SetString(PyExc_IndexError, "list index out of range");
    }
    return status == 0 && PyErr_Occurred() == nullptr ? 0 : -1;
}

void fill_protocol_slots(ClassBinding& binding) {
    PyTypeObject& type = binding.type;
    switch (binding.protocol) {
    case Protocol::none: return;
    case Protocol::stream: fill_stream_slots(type); return;
    case Protocol::iterator:
        type.tp_iter = PyObject_SelfIter;
        type.tp_iternext = collection::iterator_next;
        return;
    case Protocol::indexer:
        type.tp_as_sequence =
            binding.collection->indexer_set_slot != no_slot ? &write_indexer : &read_indexer;
        return;
    case Protocol::iterable: break;
    case Protocol::collection:
    case Protocol::read_only_collection: fill_sized_slots(binding, type); break;
    case Protocol::read_only_list:
        type.tp_as_sequence = &read_sequence;
        type.tp_as_mapping = &read_mapping;
        break;
    case Protocol::list:
        type.tp_as_sequence = &list_sequence;
        type.tp_as_mapping = &write_mapping;
        break;
    case Protocol::array:
        type.tp_as_sequence = &array_sequence;
        type.tp_as_mapping = &write_mapping;
        break;
    }
    type.tp_iter = collection::iter;
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
