#include "bindings/pickling.h"

namespace {

constexpr const char* root_capsule = "korvan.enums";

const EnumBinding* binding_of(const ModuleRecord& module, PyTypeObject* type) {
    for (EnumBinding* const* one = module.enums; *one != nullptr; ++one) {
        if ((*one)->type == reinterpret_cast<PyObject*>(type)) {
            return *one;
        }
    }
    const EnumBinding* found = nullptr;
    for (ModuleRecord* const* child = module.children; found == nullptr && *child != nullptr;
         ++child) {
        found = binding_of(**child, type);
    }
    return found;
}

// (restore, (dotted name of the enum, value))
PyObject* reduce_member(PyObject* root, PyObject* member) {
    const auto* tree = static_cast<ModuleRecord*>(PyCapsule_GetPointer(root, root_capsule));
    const EnumBinding* binding = tree != nullptr ? binding_of(*tree, Py_TYPE(member)) : nullptr;
    if (binding == nullptr) {
        return tree != nullptr ? PyErr_Format(PyExc_TypeError, "'%.200s' is no bound enum",
                                              Py_TYPE(member)->tp_name)
                               : nullptr;
    }
    const Ref helpers = Ref::steal(PyImport_ImportModule("korvan._pickling"));
    const Ref restore =
        Ref::steal(helpers ? PyObject_GetAttrString(helpers.get(), "enum_member") : nullptr);
    return restore ? Py_BuildValue("O(sN)", restore.get(), binding->name, PyNumber_Long(member))
                   : nullptr;
}

PyMethodDef reduce_definition = {"reduce_enum_member", reduce_member, METH_O, nullptr};

bool enter_all(const ModuleRecord& module, PyObject* table, PyObject* reduce) {
    for (EnumBinding* const* one = module.enums; *one != nullptr; ++one) {
        if (PyDict_SetItem(table, (*one)->type, reduce) != 0) {
            return false;
        }
    }
    for (ModuleRecord* const* child = module.children; *child != nullptr; ++child) {
        if (!enter_all(**child, table, reduce)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool make_enums_picklable(const ModuleRecord& root) {
    const Ref copyreg = Ref::steal(PyImport_ImportModule("copyreg"));
    const Ref table =
        Ref::steal(copyreg ? PyObject_GetAttrString(copyreg.get(), "dispatch_table") : nullptr);
    const Ref capsule = Ref::steal(
        table ? PyCapsule_New(const_cast<ModuleRecord*>(&root), root_capsule, nullptr) : nullptr);
    const Ref reduce =
        Ref::steal(capsule ? PyCFunction_New(&reduce_definition, capsule.get()) : nullptr);
    return reduce && enter_all(root, table.get(), reduce.get());
}
