#include "reflection.h"

#include "host/exchange_host.h"
#include "host/host_environment.h"
#include "host/host_record.h"
#include "runtime/callbacks.h"
#include "runtime/wrapped_objects.h"

#include <exception>

namespace {

// ---- the managed half ------------------------------------------------------------------------

enum TypeSlot : std::uint16_t {
    type_full_name,
    type_name,
    type_namespace,
    type_is_enum,
    type_is_class,
    type_is_interface,
    type_is_value_type,
    type_is_abstract,
    type_base_type,
    type_slot_count,
};
enum EnumSlot : std::uint16_t { enum_name, enum_value, enum_slot_count };

void* type_slots[type_slot_count];
void* enum_slots[enum_slot_count];
HostRecord type_host = {"Korvan.WrpGen.Interop.TypeHost",
                        "get_FullName\0get_Name\0get_Namespace\0get_IsEnum\0get_IsClass\0"
                        "get_IsInterface\0get_IsValueType\0get_IsAbstract\0get_BaseType\0",
                        type_slots, type_slot_count};
HostRecord enum_host = {"Korvan.WrpGen.Interop.EnumHost", "get_Name\0get_Value\0", enum_slots,
                        enum_slot_count};

bool guard(HostRecord& host) {
    if (!host_is_not_valid(host)) {
        return true;
    }
    PyErr_SetString(PyExc_TypeError, host.error->c_str());
    return false;
}

using TextDelegate = PyObject*(void*);
using TraitDelegate = std::uint8_t(void*);
using HandleDelegate = void*(void*);
using ValueDelegate = int(void*, std::uint64_t*);

// A finished Python string, or null with the exception that the delegate left.
PyObject* read_text(PyObject* self, HostRecord& host, std::uint16_t slot) {
    return guard(host) ? host_slot<TextDelegate>(host, slot)(clr_handle(self)) : nullptr;
}

PyObject* unless_error(PyObject* result) {
    if (PyErr_Occurred() == nullptr) {
        return result;
    }
    Py_XDECREF(result);
    return nullptr;
}

// ---- Type ------------------------------------------------------------------------------------

template <TypeSlot slot> PyObject* type_text_getter(PyObject* self, void*) {
    return read_text(self, type_host, slot);
}

template <TypeSlot slot> PyObject* type_trait_getter(PyObject* self, void*) {
    if (!guard(type_host)) {
        return nullptr;
    }
    const bool has = host_slot<TraitDelegate>(type_host, slot)(clr_handle(self)) != 0;
    return unless_error(PyBool_FromLong(has));
}

PyObject* base_type_getter(PyObject* self, void*) {
    if (!guard(type_host)) {
        return nullptr;
    }
    void* base = host_slot<HandleDelegate>(type_host, type_base_type)(clr_handle(self));
    return PyErr_Occurred() == nullptr ? wrap_type(base) : nullptr;
}

PyObject* type_repr(PyObject* self) {
    const Ref name = Ref::steal(read_text(self, type_host, type_full_name));
    return name ? PyUnicode_FromFormat("<Type %U>", name.get()) : nullptr;
}

PyGetSetDef type_getset[] = {
    {"full_name", type_text_getter<type_full_name>, nullptr, "Namespace and name.", nullptr},
    {"name", type_text_getter<type_name>, nullptr, "The name alone.", nullptr},
    {"namespace", type_text_getter<type_namespace>, nullptr, "The namespace, or None.", nullptr},
    {"is_enum", type_trait_getter<type_is_enum>, nullptr, nullptr, nullptr},
    {"is_class", type_trait_getter<type_is_class>, nullptr, nullptr, nullptr},
    {"is_interface", type_trait_getter<type_is_interface>, nullptr, nullptr, nullptr},
    {"is_value_type", type_trait_getter<type_is_value_type>, nullptr, nullptr, nullptr},
    {"is_abstract", type_trait_getter<type_is_abstract>, nullptr, nullptr, nullptr},
    {"base_type", base_type_getter, nullptr, "The type it derives from, or None.", nullptr},
    {}};

// ---- Object ----------------------------------------------------------------------------------

PyObject* object_repr(PyObject* self) {
    const Ref text = Ref::steal(wrapClrObject_str(self));
    return text ? PyUnicode_FromFormat("<Object %U>", text.get()) : nullptr;
}

// ---- Enum ------------------------------------------------------------------------------------

PyObject* enum_name_getter(PyObject* self, void*) { return read_text(self, enum_host, enum_name); }

PyObject* enum_integer(PyObject* self) {
    if (!guard(enum_host)) {
        return nullptr;
    }
    std::uint64_t bits = 0;
    const int is_signed = host_slot<ValueDelegate>(enum_host, enum_value)(clr_handle(self), &bits);
    if (PyErr_Occurred() != nullptr) {
        return nullptr;
    }
    return is_signed != 0 ? PyLong_FromLongLong(static_cast<std::int64_t>(bits))
                          : PyLong_FromUnsignedLongLong(bits);
}

PyObject* enum_value_getter(PyObject* self, void*) { return enum_integer(self); }

PyObject* enum_repr(PyObject* self) {
    const Ref type = Ref::steal(wrapClrObject_get_type(self, nullptr));
    const Ref type_text =
        Ref::steal(type ? read_text(type.get(), type_host, type_full_name) : nullptr);
    const Ref text = Ref::steal(type_text ? wrapClrObject_str(self) : nullptr);
    const Ref value = Ref::steal(text ? enum_integer(self) : nullptr);
    return value
               ? PyUnicode_FromFormat("<Enum %U.%U: %S>", type_text.get(), text.get(), value.get())
               : nullptr;
}

PyGetSetDef enum_getset[] = {
    {"name", enum_name_getter, nullptr, "The declared name, or None.", nullptr},
    {"value", enum_value_getter, nullptr, "The integer.", nullptr},
    {}};
PyNumberMethods enum_number = {.nb_int = enum_integer};

// ---- the types -------------------------------------------------------------------------------

PyMethodDef methods[] = {
    {"get_type", wrapClrObject_get_type, METH_NOARGS, "The managed type of this object."}, {}};

constexpr PyTypeObject make_type(const char* name, const char* doc, reprfunc repr,
                                 PyGetSetDef* getset, PyNumberMethods* number) {
    return {
        .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name = name,
        .tp_basicsize = sizeof(PyClrObject),
        .tp_dealloc = wrapClrObject_tp_dealloc,
        .tp_repr = repr,
        .tp_as_number = number,
        .tp_hash = wrapClrObject_hash,
        .tp_str = wrapClrObject_str,
        .tp_flags = Py_TPFLAGS_DISALLOW_INSTANTIATION,
        .tp_doc = doc,
        .tp_richcompare = wrapClrObject_tp_richcompare,
        .tp_methods = methods,
        .tp_getset = getset,
    };
}

// By now a runtime is up. A host that can't be had is an error of the call at hand.
bool join_runtime() {
    try {
        if (HostEnvironment::join_running()) {
            return initialize_clr_host("", "WrpInterop.Korvan.PyReflection", false, "korvan",
                                       "pyreflection") == 0;
        }
        PyErr_SetString(PyExc_RuntimeError, "no managed runtime is running");
    } catch (const std::exception& error) {
        PyErr_Format(PyExc_RuntimeError, "the managed runtime can't be joined: %s", error.what());
    }
    return false;
}

// Once, when the first handle arrives: the module is imported ahead of the runtime's start.
bool attach() {
    static bool is_attached = false;
    is_attached = is_attached || join_runtime();
    return is_attached;
}

PyObject* wrap(void* handle, PyTypeObject& type) {
    if (handle == nullptr) {
        Py_RETURN_NONE;
    }
    if (!attach()) {
        return nullptr; // nor is there a way to give the handle back
    }
    PyObject* object = fn_new_empty_wrapper(&type);
    if (object == nullptr) {
        ExchangeHost::get_instance().free_instance(handle);
        return nullptr;
    }
    reinterpret_cast<PyClrObject*>(object)->handle = handle;
    return object;
}

} // namespace

PyTypeObject type_type =
    make_type("korvan.pyreflection.Type", "A managed type.", type_repr, type_getset, nullptr);
PyTypeObject object_type =
    make_type("korvan.pyreflection.Object", "Any managed object.", object_repr, nullptr, nullptr);
PyTypeObject enum_type = make_type("korvan.pyreflection.Enum", "A value of a managed enum, boxed.",
                                   enum_repr, enum_getset, &enum_number);

PyObject* wrap_type(void* handle) { return wrap(handle, type_type); }
PyObject* wrap_object(void* handle) { return wrap(handle, object_type); }
PyObject* wrap_enum(void* handle) { return wrap(handle, enum_type); }
