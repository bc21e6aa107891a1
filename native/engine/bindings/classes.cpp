#include "bindings/classes.h"

#include "bindings/calls.h"
#include "generic/collections.h"
#include "generic/interop.h"
#include "runtime/markers.h"
#include "runtime/types_map.h"
#include "runtime/wrapped_objects.h"

namespace {

bool reference_is_not_valid(ClassBinding* reference, std::string& message) {
    return reference != nullptr && class_is_not_valid(*reference, message);
}

bool any_is_not_valid(ClassBinding* const* references, std::string& message) {
    for (; references != nullptr && *references != nullptr; ++references) {
        if (reference_is_not_valid(*references, message)) {
            return true;
        }
    }
    return false;
}

// A collection is made of the functions of several hosts, an interface of those of its bases.
bool constituent_is_not_valid(const ClassBinding& binding, std::string& message) {
    if (binding.kind == ClassKind::interface_ && binding.collection == nullptr) {
        return any_is_not_valid(binding.additional_interfaces, message);
    }
    if (binding.collection == nullptr) {
        return false;
    }
    const CollectionInfo& info = *binding.collection;
    for (HostRecord* host : {info.list_host, info.collection_host, info.iterable_host}) {
        if (host != nullptr && host_is_not_valid(*host)) {
            message = *host->error;
            return true;
        }
    }
    return false;
}

} // namespace

PyHostState* build_class_state(ClassBinding& binding) {
    auto* state = new PyHostState;
    std::string& message = state->message;
    if (host_is_not_valid(*binding.host)) {
        state->is_not_valid = true;
        message = *binding.host->error;
        return state;
    }
    const bool invalid = (binding.is_disposable &&
                          reference_is_not_valid(&wrpPye_tyds_IDisposableWrapper, message)) ||
                         any_is_not_valid(binding.references, message) ||
                         constituent_is_not_valid(binding, message) ||
                         reference_is_not_valid(binding.base, message);
    state->is_not_valid = invalid;
    state->reference_not_valid = invalid;
    return state;
}

namespace {

PyObject* class_tp_new(PyTypeObject* type, PyObject*, PyObject*) {
    return guard(*reinterpret_cast<ClassBinding*>(type)) ? fn_new_empty_wrapper(type) : nullptr;
}

int class_tp_init(PyObject* self, PyObject* args, PyObject* kwargs) {
    const auto* binding = reinterpret_cast<ClassBinding*>(Py_TYPE(self));
    return call_constructors(*binding->constructors, self, args, kwargs);
}

// A slot that would be the same as the base's is left to be inherited: each one that is set takes
// up to six objects in the type's dictionary, for thousands of types.
void fill_instance_slots(ClassBinding& binding) {
    PyTypeObject& type = binding.type;
    const bool is_struct = binding.kind == ClassKind::structure;
    const bool has_constructors = binding.constructors != nullptr;
    type.tp_dealloc = is_struct ? wrapClrStruct_tp_dealloc : wrapClrObject_tp_dealloc;
    if (binding.base == nullptr || has_constructors != (binding.base->constructors != nullptr)) {
        type.tp_init = has_constructors ? class_tp_init : wrapClrObject_tp_init_fault;
    }
    if (binding.base != nullptr) {
        return;
    }
    type.tp_new = class_tp_new;
    type.tp_hash = is_struct ? wrapClrStruct_hash : wrapClrObject_hash;
    type.tp_richcompare = is_struct ? wrapClrStruct_tp_richcompare : wrapClrObject_tp_richcompare;
    if (binding.managed_name != nullptr) {
        type.tp_repr = is_struct ? wrapClrStruct_str : wrapClrObject_str;
    }
}

} // namespace

bool class_is_not_valid(ClassBinding& binding, std::string& message) {
    // An interface has no references of its own: its host alone decides.
    if (binding.kind == ClassKind::interface_) {
        if (!host_is_not_valid(*binding.host)) {
            return false;
        }
        message = *binding.host->error;
        return true;
    }
    const PyHostState& state = class_state(binding);
    if (state.is_not_valid) {
        message = state.message;
    }
    return state.is_not_valid;
}

const PyHostState& enum_state(EnumBinding& binding) {
    if (__builtin_expect(binding.state == nullptr, 0)) {
        auto* state = new PyHostState;
        if (host_is_not_valid(*binding.host)) {
            state->is_not_valid = true;
            state->message = *binding.host->error;
        }
        binding.state = state;
    }
    return *binding.state;
}

void prepare_class(ClassBinding& binding) {
    PyTypeObject& type = binding.type;
    if (type.tp_basicsize != 0) {
        return;
    }
    if (binding.base != nullptr) {
        prepare_class(*binding.base);
        type.tp_base = &binding.base->type;
    }
    Py_SET_REFCNT(reinterpret_cast<PyObject*>(&type), 1);
    type.tp_name = binding.name;
    type.tp_basicsize = sizeof(PyClrObject);
    fill_instance_slots(binding);
    type.tp_methods = binding.methods;
    type.tp_getset = binding.getset;
    type.tp_alloc = PyType_GenericAlloc;
    fill_protocol_slots(binding);
}

std::uint16_t cast_slot(const ClassBinding& binding, CastDelegate delegate) {
    // Classes: TypeOf, CastTo, [CastFrom,] ReInterpretObj, CastAs, IsAssignable.
    // Interfaces: TypeOf, CastTo, CastAs, IsAssignable.
    const bool is_interface = binding.kind == ClassKind::interface_;
    if (binding.assignable_slot != no_slot && delegate == CastDelegate::is_assignable) {
        return binding.assignable_slot;
    }
    const int after_cast_to = binding.has_cast_from ? 1 : 0;
    int offset = 0;
    switch (delegate) {
    case CastDelegate::type_of: offset = 0; break;
    case CastDelegate::cast_to: offset = 1; break;
    case CastDelegate::cast_from: offset = 2; break;
    case CastDelegate::reinterpret_obj: offset = 2 + after_cast_to; break;
    case CastDelegate::cast_as: offset = is_interface ? 2 : 3 + after_cast_to; break;
    case CastDelegate::is_assignable: offset = is_interface ? 3 : 4 + after_cast_to; break;
    }
    return static_cast<std::uint16_t>(binding.first_cast_slot + offset);
}

int is_assignable_handle(ClassBinding& binding, void* handle) {
    const auto ask =
        host_slot<int(void*)>(*binding.host, cast_slot(binding, CastDelegate::is_assignable));
    const int answer = ask(handle);
    return PyErr_Occurred() != nullptr ? -1 : answer != 0;
}

int is_assignable_record(ClassBinding& binding, const VariantArg* record) {
    const auto ask = host_slot<int(const VariantArg*)>(
        *binding.host, cast_slot(binding, CastDelegate::is_assignable));
    const int answer = ask(record);
    return PyErr_Occurred() != nullptr ? -1 : answer != 0;
}

int conv_py_to_clr_class(PyObject* object, void** out, ClassBinding& binding) {
    if (object == Py_None) {
        *out = nullptr;
        return 1;
    }
    if (PyObject_TypeCheck(object, &binding.type)) {
        *out = clr_handle(object);
        return 1;
    }
    if (fn_conv_py_obj_to_clr_refobj_not_null_handle(object, out)) {
        if (!guard(binding)) {
            return 0;
        }
        const int fits = is_assignable_handle(binding, *out);
        if (fits != 0) {
            return fits > 0;
        }
    }
    raise_cannot_build(what_of(binding), object);
    return 0;
}

int conv_py_to_clr_struct(PyObject* object, VariantArg* out, ClassBinding& binding) {
    if (Py_TYPE(object) == &binding.type) {
        out->kind = KORVAN_REF_STRUCT;
        out->value = clr_handle(object);
        return 1;
    }
    if (fn_conv_py_obj_to_clr_gen_not_null_handle(object, out)) {
        if (!guard(binding)) {
            return 0;
        }
        const int fits = is_assignable_record(binding, out);
        if (fits != 0) {
            return fits > 0;
        }
    }
    raise_cannot_build(what_of(binding), object);
    return 0;
}

int conv_py_to_clr_interface(PyObject* object, VariantArg* out, ClassBinding& binding) {
    if (object == Py_None) {
        out->kind = KORVAN_REF_OBJECT;
        out->value = nullptr;
        return 1;
    }
    if (Py_TYPE(object) == &binding.type) {
        out->kind = KORVAN_REF_OBJECT;
        out->value = clr_handle(object);
        return 1;
    }
    if (fn_is_this_module_clr_instance(object, &out->kind) &&
        fn_contains_additional_ifc_markattr(object, &binding.type)) {
        out->value = clr_handle(object);
        return 1;
    }
    if (fn_conv_py_obj_to_clr_gen_not_null_handle(object, out)) {
        if (!guard(binding)) {
            return 0;
        }
        const int fits = is_assignable_record(binding, out);
        if (fits != 0) {
            return fits > 0;
        }
    }
    raise_cannot_build(what_of(binding), object);
    return 0;
}
