#include "bindings/casts.h"

#include "bindings/classes.h"
#include "bindings/enums.h"
#include "runtime/types_map.h"

namespace {

PyObject* cast_failed() { return PyShCastOpResult_New(KORVAN_CAST_NO, nullptr); }

bool status_means_error(int status) { return status == 0 && PyErr_Occurred() != nullptr; }

// The result object of a cast: `status` is the delegate's, `convert` makes the Python value.
template <class Convert> PyObject* cast_result(int status, Convert convert) {
    if (status == KORVAN_FAILED && PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    if (status == KORVAN_CAST_NO) {
        return cast_failed();
    }
    const Ref value = Ref::steal(convert());
    if (!value && PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    return PyShCastOpResult_New(status, value.get());
}

void* class_delegate(ClassBinding& binding, CastDelegate delegate) {
    return reinterpret_cast<void*>(host_slot<void()>(*binding.host, cast_slot(binding, delegate)));
}

// Whether handles of this kind of type cross bare; the others cross in a record, and so do those of
// the framework wrappers, whatever their kind.
bool takes_bare_handle(const ClassBinding& binding) {
    return binding.kind == ClassKind::object && binding.assignable_slot == no_slot;
}

PyObject* raise_no_object(PyObject* value) {
    return PyErr_Format(PyExc_TypeError,
                        "_reinterpret_obj() expects a .Net Object argument, got a %.100s object",
                        type_name_of(value));
}

using HandleCast = int (*)(void*, void**);
using RecordCast = int (*)(const VariantArg*, void**);

} // namespace

PyObject* type_of(ClassBinding& binding) {
    if (!guard(binding)) {
        return nullptr;
    }
    void* type = nullptr;
    const auto delegate =
        reinterpret_cast<int (*)(void**)>(class_delegate(binding, CastDelegate::type_of));
    if (status_means_error(delegate(&type))) {
        return nullptr;
    }
    return wrpPyl_convcaps_clr_to_py_94F50081_Type(type);
}

PyObject* cast_to(ClassBinding& binding, PyObject* value) {
    if (binding.kind == ClassKind::static_class) {
        return cast_failed();
    }
    if (!guard(binding)) {
        return nullptr;
    }
    VariantArg record{};
    if (!fn_conv_py_obj_to_clr_gen_handle(value, &record)) {
        return cast_failed();
    }
    void* out = nullptr;
    const auto delegate =
        reinterpret_cast<RecordCast>(class_delegate(binding, CastDelegate::cast_to));
    const int status = delegate(&record, &out);
    return cast_result(status, [&] { return fn_conv_clr_clsobj_to_py_clsobj(out, &binding.type); });
}

PyObject* cast_as(ClassBinding& binding, PyObject* value) {
    if (binding.kind == ClassKind::static_class) {
        return cast_failed();
    }
    if (!guard(binding)) {
        return nullptr;
    }
    void* const delegate = class_delegate(binding, CastDelegate::cast_as);
    void* out = nullptr;
    int status = 0;
    if (takes_bare_handle(binding)) {
        void* handle = nullptr;
        if (!fn_conv_py_obj_to_clr_refobj_not_null_handle(value, &handle)) {
            return cast_failed();
        }
        status = reinterpret_cast<HandleCast>(delegate)(handle, &out);
    } else {
        VariantArg record{};
        if (!fn_conv_py_obj_to_clr_gen_not_null_handle(value, &record)) {
            return cast_failed();
        }
        status = reinterpret_cast<RecordCast>(delegate)(&record, &out);
    }
    return cast_result(status, [&] { return fn_conv_clr_clsobj_to_py_clsobj(out, &binding.type); });
}

PyObject* reinterpret_obj(ClassBinding& binding, PyObject* value) {
    if (binding.kind == ClassKind::interface_ || binding.kind == ClassKind::static_class) {
        return PyErr_Format(PyExc_TypeError, "cannot convert from  '%.100s' to '%.100s'",
                            type_name_of(value), binding.name);
    }
    if (!guard(binding)) {
        return nullptr;
    }
    void* handle = nullptr;
    if (!wrpPyl_trancaps_py_to_clr_81609274_Object(value, &handle)) {
        return raise_no_object(value);
    }
    void* out = nullptr;
    const auto delegate =
        reinterpret_cast<HandleCast>(class_delegate(binding, CastDelegate::reinterpret_obj));
    if (status_means_error(delegate(handle, &out))) {
        return nullptr;
    }
    return fn_conv_clr_clsobj_to_py_clsobj(out, &binding.type);
}

PyObject* is_assignable(ClassBinding& binding, PyObject* value) {
    if (binding.kind == ClassKind::static_class) {
        Py_RETURN_FALSE;
    }
    if (!guard(binding)) {
        return nullptr;
    }
    int fits = 0;
    if (takes_bare_handle(binding)) {
        void* handle = nullptr;
        if (!fn_conv_py_obj_to_clr_refobj_not_null_handle(value, &handle)) {
            Py_RETURN_FALSE;
        }
        fits = is_assignable_handle(binding, handle);
    } else {
        VariantArg record{};
        if (!fn_conv_py_obj_to_clr_gen_not_null_handle(value, &record)) {
            Py_RETURN_FALSE;
        }
        fits = is_assignable_record(binding, &record);
    }
    return fits < 0 ? nullptr : PyBool_FromLong(fits);
}

PyObject* cast_from(PyObject* self, PyObject* type) {
    auto& binding = *reinterpret_cast<ClassBinding*>(Py_TYPE(self));
    if (!binding.has_cast_from) {
        return cast_failed();
    }
    void* managed_type = nullptr;
    if (!wrpPyl_trancaps_py_to_clr_94F50081_Type(type, &managed_type)) {
        return PyErr_Format(PyExc_TypeError,
                            "_cast_from() expects a .Net Type argument, got a %.100s object",
                            type_name_of(type));
    }
    void* out = nullptr;
    const auto delegate = reinterpret_cast<int (*)(void*, void*, void**)>(
        class_delegate(binding, CastDelegate::cast_from));
    const int status = delegate(clr_handle(self), managed_type, &out);
    return cast_result(status, [&] { return wrpPyl_convcaps_clr_to_py_81609274_Object(out); });
}

// ---- enums -----------------------------------------------------------------------------------

namespace {

// The cast delegates of an enum, in slot order.
enum EnumSlot : std::uint16_t {
    enum_slot_type_of,
    enum_slot_cast_to,
    enum_slot_reinterpret_obj,
    enum_slot_as_uni_enum,
    enum_slot_cast_as,
    enum_slot_is_assignable,
    enum_slot_get_type,
};

void* enum_delegate(EnumBinding& binding, EnumSlot slot) {
    return reinterpret_cast<void*>(host_slot<void()>(*binding.host, slot));
}

// Runs `body` with a null pointer of the enum's C type.
template <class Body> auto with_storage(const EnumBinding& binding, Body body) {
    switch (binding.storage) {
    case EnumStorage::int16: return body(static_cast<short*>(nullptr));
    case EnumStorage::uint16: return body(static_cast<unsigned short*>(nullptr));
    case EnumStorage::uint8: return body(static_cast<unsigned char*>(nullptr));
    case EnumStorage::int8: return body(static_cast<signed char*>(nullptr));
    case EnumStorage::uint32: return body(static_cast<unsigned int*>(nullptr));
    case EnumStorage::uint64: return body(static_cast<unsigned long*>(nullptr));
    case EnumStorage::int64: return body(static_cast<long*>(nullptr));
    case EnumStorage::int32: break;
    }
    return body(static_cast<int*>(nullptr));
}

// Calls a delegate (T value, void** out) with the member's value.
PyObject* with_member(EnumBinding& binding, PyObject* self, EnumSlot slot, TypeConverter convert) {
    if (!guard(binding)) {
        return nullptr;
    }
    return with_storage(binding, [&]<class T>(T*) -> PyObject* {
        T value = 0;
        if (!enum_integer(self, &value)) {
            return nullptr;
        }
        void* out = nullptr;
        const auto delegate = reinterpret_cast<int (*)(T, void**)>(enum_delegate(binding, slot));
        if (status_means_error(delegate(value, &out))) {
            return nullptr;
        }
        return convert(out);
    });
}

} // namespace

PyObject* enum_type_of(EnumBinding& binding) {
    if (!guard(binding)) {
        return nullptr;
    }
    void* type = nullptr;
    const auto delegate =
        reinterpret_cast<int (*)(void**)>(enum_delegate(binding, enum_slot_type_of));
    if (status_means_error(delegate(&type))) {
        return nullptr;
    }
    return wrpPyl_convcaps_clr_to_py_94F50081_Type(type);
}

PyObject* enum_cast(EnumBinding& binding, PyObject* value, bool as_form) {
    if (!guard(binding)) {
        return nullptr;
    }
    VariantArg record{};
    const int extracted = as_form
                              ? fn_conv_py_obj_to_clr_refobj_not_null_handle(value, &record.value)
                              : fn_conv_py_obj_to_clr_gen_handle(value, &record);
    if (!extracted) {
        return cast_failed();
    }
    return with_storage(binding, [&]<class T>(T*) -> PyObject* {
        T out = 0;
        void* const delegate =
            enum_delegate(binding, as_form ? enum_slot_cast_as : enum_slot_cast_to);
        const int status =
            as_form ? reinterpret_cast<int (*)(void*, T*)>(delegate)(record.value, &out)
                    : reinterpret_cast<int (*)(const VariantArg*, T*)>(delegate)(&record, &out);
        return cast_result(status, [&] { return conv_clr_to_py_enum(out, binding); });
    });
}

PyObject* enum_reinterpret_obj(EnumBinding& binding, PyObject* value) {
    if (!guard(binding)) {
        return nullptr;
    }
    void* handle = nullptr;
    if (!wrpPyl_trancaps_py_to_clr_81609274_Object(value, &handle)) {
        return raise_no_object(value);
    }
    return with_storage(binding, [&]<class T>(T*) -> PyObject* {
        T out = 0;
        const auto delegate =
            reinterpret_cast<int (*)(void*, T*)>(enum_delegate(binding, enum_slot_reinterpret_obj));
        if (status_means_error(delegate(handle, &out))) {
            return nullptr;
        }
        return conv_clr_to_py_enum(out, binding);
    });
}

PyObject* enum_is_assignable(EnumBinding& binding, PyObject* value) {
    if (!guard(binding)) {
        return nullptr;
    }
    void* handle = nullptr;
    if (!fn_conv_py_obj_to_clr_refobj_not_null_handle(value, &handle)) {
        Py_RETURN_FALSE;
    }
    const auto delegate =
        reinterpret_cast<int (*)(void*)>(enum_delegate(binding, enum_slot_is_assignable));
    const int fits = delegate(handle);
    return PyErr_Occurred() != nullptr ? nullptr : PyBool_FromLong(fits);
}

PyObject* enum_as_uni_enum(EnumBinding& binding, PyObject* self) {
    return with_member(binding, self, enum_slot_as_uni_enum,
                       wrpPyl_convcaps_clr_to_py_0705CA7C_Enum);
}

PyObject* enum_get_type(EnumBinding& binding, PyObject* self) {
    return with_member(binding, self, enum_slot_get_type, wrpPyl_convcaps_clr_to_py_94F50081_Type);
}

PyObject* enum_cast_from(PyObject*, PyObject*) { return cast_failed(); }
