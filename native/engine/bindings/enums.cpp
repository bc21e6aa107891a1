#include "bindings/enums.h"

#include "bindings/enum_types.h"
#include "runtime/descriptors.h"
#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "runtime/imports.h"
#include "runtime/markers.h"

namespace {

PyObject* create_type(const EnumBinding& binding) {
    const Ref family = Ref::steal(PyShImport_ImportType("enum", binding.kind == EnumKind::integer
                                                                    ? PyWrpIdTypeName_IntEnum
                                                                    : PyWrpIdTypeName_IntFlag));
    if (!family) {
        return nullptr;
    }
    return create_enum_type(binding, family.get());
}

// The cast methods go into the finished type's dictionary, so that they are no members.
bool add_methods(PyTypeObject* type, const EnumBinding& binding) {
    for (PyMethodDef* method = binding.methods; method->ml_name != nullptr; ++method) {
        const Ref descriptor = Ref::steal((method->ml_flags & METH_STATIC) != 0
                                              ? PyShDescr_NewStaticMethod(type, method)
                                              : PyShDescr_NewInstanceMethod(type, method));
        if (!descriptor) {
            return false;
        }
        if (PyDict_SetItemString(type->tp_dict, method->ml_name, descriptor.get()) != 0) {
            PyShlErr_TypeInitializationInternalError(load_error::add_member, type->tp_name,
                                                     method->ml_name);
            return false;
        }
    }
    PyType_Modified(type);
    return true;
}

} // namespace

PyObject* make_enum_type(EnumBinding& binding) {
    binding.type = create_type(binding);
    if (binding.type == nullptr) {
        return nullptr;
    }
    auto* type = reinterpret_cast<PyTypeObject*>(binding.type);
    if (!fn_set_castable_type_markattr(type, Py_Ellipsis)) {
        PyShlErr_TypeInitializationInternalError(load_error::castable_marker, type->tp_name);
        Py_CLEAR(binding.type);
        return nullptr;
    }
    if (!add_methods(type, binding)) {
        Py_CLEAR(binding.type);
    }
    return binding.type;
}

bool is_enum_member(PyObject* object, const EnumBinding& binding) {
    if (PyObject_TypeCheck(object, reinterpret_cast<PyTypeObject*>(binding.type))) {
        return true;
    }
    PyErr_Format(PyExc_TypeError, "can't build %s value from '%s'", binding.short_name,
                 type_name_of(object));
    return false;
}

PyObject* enum_member_of(PyObject* integer, const EnumBinding& binding) {
    return PyObject_CallOneArg(binding.type, integer);
}
