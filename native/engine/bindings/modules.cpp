#include "bindings/modules.h"

#include "bindings/classes.h"
#include "bindings/enums.h"
#include "bindings/finishing.h"
#include "bindings/pickling.h"
#include "generic/collections.h"
#include "generic/interop.h"
#include "runtime/callbacks.h"
#include "runtime/descriptors.h"
#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "runtime/markers.h"
#include "runtime/types_map.h"

#include <cstring>
#include <map>
#include <string>
#include <vector>

namespace {

// Text that a module definition keeps pointing at.
const char* keep(const std::string& text) { return strdup(text.c_str()); }

PyObject* create_module(PyModuleDef& definition) {
    PyObject* module = PyModule_Create2(&definition, PYTHON_API_VERSION);
    if (module == nullptr) {
        PyShlErr_ModuleInitializationInternalError(load_error::create_module, definition.m_name);
    }
    return module;
}

PyModuleDef* new_definition(const char* name) {
    static PyMethodDef no_methods[] = {{}};
    return new PyModuleDef{
        PyModuleDef_HEAD_INIT, name, nullptr, -1, no_methods, nullptr, nullptr, nullptr, nullptr};
}

bool fail_type(int code, const ClassBinding& binding) {
    PyShlErr_TypeInitializationInternalError(code, binding.name);
    return false;
}

// The base comes first: where CPython readies it on the way and fails, it takes the type between
// for ready when it is asked again.
bool ready_class(ClassBinding& binding) {
    if (binding.base != nullptr && !ready_class(*binding.base)) {
        return false;
    }
    if (PyType_HasFeature(&binding.type, Py_TPFLAGS_READY)) {
        return true;
    }
    prepare_class(binding);
    if (PyType_Ready(&binding.type) != 0) {
        return fail_type(load_error::ready_type, binding);
    }
    unwrap_cast_methods(binding.type);
    return true;
}

// Interfaces that a type names must be ready before its sets hold them.
std::vector<PyTypeObject*> type_objects(ClassBinding* const* bindings, bool& ready) {
    std::vector<PyTypeObject*> types;
    for (; ready && bindings != nullptr && *bindings != nullptr; ++bindings) {
        ready = ready_class(**bindings);
        types.push_back(&(*bindings)->type);
    }
    return types;
}

// Thousands of types name the same few interfaces: what one of them was given serves the others.
bool set_interfaces(PyTypeObject* type, PyObject* key, const std::vector<PyTypeObject*>& types) {
    static std::map<std::vector<PyTypeObject*>, PyObject*> sets; // owned, for good
    const auto known = sets.find(types);
    if (known != sets.end()) {
        return PyDict_SetItem(type->tp_dict, key, known->second) == 0;
    }
    if (!fn_set_ifcs_markattr(type, key, static_cast<int>(types.size()), types.data())) {
        return false;
    }
    sets[types] = Py_XNewRef(PyDict_GetItem(type->tp_dict, key));
    return true;
}

bool set_interface_markers(ClassBinding& binding) {
    if (binding.additional_interfaces == nullptr && binding.implicit_interfaces == nullptr) {
        return true;
    }
    bool ready = true;
    const auto additional = type_objects(binding.additional_interfaces, ready);
    const auto implicit = type_objects(binding.implicit_interfaces, ready);
    if (!ready) {
        return false;
    }
    if (!set_interfaces(&binding.type, PyWrpIdMarkattr_AdditionalInterfaces, additional)) {
        return fail_type(load_error::additional_interfaces, binding);
    }
    if (!set_interfaces(&binding.type, PyWrpIdMarkattr_ImplicitInterfaces, implicit)) {
        return fail_type(load_error::implicit_interfaces, binding);
    }
    return true;
}

bool set_markers(ClassBinding& binding) {
    if (!set_interface_markers(binding)) {
        return false;
    }
    const bool marked = binding.kind == ClassKind::structure
                            ? fn_set_stc_type_host_markattr(&binding.type)
                            : fn_set_obj_type_host_markattr(&binding.type);
    if (!marked) {
        return fail_type(load_error::host_marker, binding);
    }
    if (!fn_set_castable_type_markattr(&binding.type, Py_None)) {
        return fail_type(load_error::castable_marker, binding);
    }
    return true;
}

bool add_to_dictionary(PyTypeObject* type, const char* name, Ref value) {
    if (!value) {
        return false;
    }
    if (PyDict_SetItemString(type->tp_dict, name, value.get()) != 0) {
        PyShlErr_TypeInitializationInternalError(load_error::add_member, type->tp_name, name);
        return false;
    }
    PyType_Modified(type);
    return true;
}

// Static values and mixed methods, which no table of CPython's can hold.
bool add_descriptors(ClassBinding& binding) {
    PyTypeObject* type = &binding.type;
    for (PyGetSetDef* value = binding.static_values; value && value->name; ++value) {
        if (!add_to_dictionary(type, value->name,
                               Ref::steal(PyShDescr_NewStaticField(type, value)))) {
            return false;
        }
    }
    for (const MixedMethod* method = binding.mixed_methods; method && method->static_form;
         ++method) {
        if (!add_to_dictionary(type, method->static_form->ml_name,
                               Ref::steal(PyShDescr_NewMixedMethod(type, method->static_form,
                                                                   method->instance_form)))) {
            return false;
        }
    }
    return true;
}

// Adds a type under its short name: to its outer type if it is nested, else to the module.
bool add_type(PyObject* module, const char* module_name, ClassBinding* outer, PyObject* type,
              const char* name, const char* full_name) {
    int status = 0;
    if (outer != nullptr) {
        status = PyDict_SetItemString(outer->type.tp_dict, name, type);
        PyType_Modified(&outer->type);
    } else {
        status = PyModule_AddObjectRef(module, name, type);
    }
    if (status != 0) {
        PyShlErr_TypeInitializationInternalError(load_error::add_type, module_name, full_name);
    }
    return status == 0;
}

bool add_class(PyObject* module, const char* module_name, ClassBinding& binding) {
    if (binding.managed_name != nullptr) {
        PyWrpTypesMap::get_instance().add(binding.managed_name, &binding.type);
    }
    return set_markers(binding) && add_protocol_methods(binding) &&
           add_type(module, module_name, binding.outer, reinterpret_cast<PyObject*>(&binding.type),
                    binding.short_name, binding.name) &&
           add_descriptors(binding);
}

bool add_enum(PyObject* module, const char* module_name, EnumBinding& binding) {
    PyObject* type = make_enum_type(binding);
    if (type == nullptr) {
        PyShlErr_TypeInitializationInternalError(load_error::extra_init, binding.name);
        return false;
    }
    return add_type(module, module_name, binding.outer, type, binding.short_name, binding.name);
}

bool add_types(PyObject* module, const ModuleRecord& record) {
    for (ClassBinding* const* binding = record.classes; *binding != nullptr; ++binding) {
        if (!ready_class(**binding)) {
            return false;
        }
    }
    for (EnumBinding* const* binding = record.enums; *binding != nullptr; ++binding) {
        if (!add_enum(module, record.name, **binding)) {
            return false;
        }
    }
    for (ClassBinding* const* binding = record.classes; *binding != nullptr; ++binding) {
        if (!add_class(module, record.name, **binding)) {
            return false;
        }
    }
    return true;
}

bool add_package_attributes(PyObject* module, const ModuleRecord& record) {
    const bool is_package = *record.children != nullptr;
    std::string package = record.name;
    if (!is_package) {
        package.erase(package.rfind('.'));
    }
    const Ref name = Ref::steal(PyUnicode_FromString(package.c_str()));
    bool added = name && PyModule_AddObjectRef(module, "__package__", name.get()) == 0;
    if (added && is_package) {
        const Ref path = Ref::steal(PyList_New(0));
        added = path && PyModule_AddObjectRef(module, "__path__", path.get()) == 0;
    }
    if (!added) {
        PyShlErr_ModuleInitializationInternalError(load_error::package_attributes, record.name);
    }
    return added;
}

bool add_child(PyObject* module, const char* module_name, Ref child, const char* name) {
    if (!child) {
        return false;
    }
    if (PyModule_AddObjectRef(module, name, child.get()) != 0) {
        PyShlErr_ModuleInitializationInternalError(load_error::child_module, module_name, name);
        return false;
    }
    return true;
}

// The interop wrappers get their full names ahead of all types: these name them as interfaces.
void name_interop_wrappers(const char* root) {
    for (auto* wrapper = interop_wrappers(); *wrapper != nullptr; ++wrapper) {
        (*wrapper)->name = keep(std::string(root) + "._wrpgen._interop." + (*wrapper)->short_name);
    }
}

PyObject* build_module(const ModuleRecord& record, PyModuleDef& definition, bool is_root) {
    Ref module = Ref::steal(create_module(definition));
    if (!module) {
        return nullptr;
    }
    if (is_root) {
        name_interop_wrappers(record.name);
        if (fn_ready_descriptor_types(record.name) != 0 ||
            PyShModule_AddType(module.get(), &wrpPye_tyds_FFFFFFFF_FieldDescr, "_FieldDescrType") !=
                0 ||
            PyShModule_AddType(module.get(), &wrpPye_tyds_FFFFFFFF_MixMethodDescr,
                               "_MixMethodDescrType") != 0) {
            return nullptr;
        }
    }
    for (ModuleRecord* const* child = record.children; *child != nullptr; ++child) {
        Ref built = Ref::steal(build_module(**child, *new_definition((*child)->name), false));
        if (!add_child(module.get(), record.name, std::move(built), (*child)->short_name)) {
            return nullptr;
        }
    }
    const bool done =
        add_types(module.get(), record) && add_package_attributes(module.get(), record);
    return done ? module.release() : nullptr;
}

// A private module below `_wrpgen`, with wrappers that the registry does not know.
PyObject* build_wrapper_module(const std::string& name, ClassBinding* const* wrappers) {
    Ref module = Ref::steal(create_module(*new_definition(keep(name))));
    for (auto* wrapper = wrappers; module && *wrapper != nullptr; ++wrapper) {
        if (!ready_class(**wrapper)) {
            return nullptr;
        }
    }
    for (auto* wrapper = wrappers; module && *wrapper != nullptr; ++wrapper) {
        if (!add_class(module.get(), name.c_str(), **wrapper)) {
            return nullptr;
        }
    }
    return module.release();
}

PyObject* build_interop_module(const std::string& name) {
    Ref module = Ref::steal(create_module(*new_definition(keep(name))));
    for (auto* wrapper = interop_wrappers(); module && *wrapper != nullptr; ++wrapper) {
        // The view of managed memory comes ahead of the streams.
        if (*wrapper == &wrpPye_tyds_StreamWrapper &&
            PyShModule_AddType(module.get(), &wrpPye_tyds_ShlBufferView, "_ShlBufferView") != 0) {
            return nullptr;
        }
        if (!ready_class(**wrapper) || !add_class(module.get(), name.c_str(), **wrapper)) {
            return nullptr;
        }
    }
    fn_clbk_ilist_type = &wrpPye_tyds_IListWrapper.type;
    fn_clbk_arrlist_type = &wrpPye_tyds_ArrListWrapper.type;
    fn_clbk_array_type = &wrpPye_tyds_ArrayWrapper.type;
    return module.release();
}

} // namespace

namespace {

// Thousands of types are made and none is given up: each run of the collector would walk them all
// for nothing.
struct CollectorPause {
    bool was_enabled = PyGC_Disable() != 0;
    CollectorPause() = default;
    CollectorPause(const CollectorPause&) = delete;
    CollectorPause& operator=(const CollectorPause&) = delete;
    ~CollectorPause() {
        if (was_enabled) {
            PyGC_Enable();
        }
    }
};

} // namespace

PyObject* build_namespace_tree(const ModuleRecord& root, PyModuleDef& root_definition) {
    const CollectorPause pause;
    Ref module = Ref::steal(build_module(root, root_definition, true));
    return module && make_enums_picklable(root) ? module.release() : nullptr;
}

PyObject* wrpPye_mlit_FFFFFFFF_common_wrappers(PyObject* module, const BoundTree& tree) {
    const CollectorPause pause;
    const std::string name = std::string(PyModule_GetName(module)) + "._wrpgen";
    const char* kept_name = keep(name);
    PyObject* wrappers = create_module(*new_definition(kept_name));
    const Ref owned = Ref::borrow(wrappers);
    if (wrappers == nullptr ||
        !add_child(module, PyModule_GetName(module), Ref::steal(wrappers), "_wrpgen")) {
        return nullptr;
    }
    const bool done =
        add_child(wrappers, kept_name, Ref::steal(build_interop_module(name + "._interop")),
                  "_interop") &&
        add_child(wrappers, kept_name,
                  Ref::steal(build_wrapper_module(name + "._generic", tree.generics)), "_generic");
    if (done) {
        finish_types(tree, interop_wrappers());
    }
    return done ? wrappers : nullptr;
}

int PyShModule_AddType(PyObject* module, PyTypeObject* type, const char* name) {
    if (PyType_Ready(type) != 0) {
        PyShlErr_TypeInitializationInternalError(load_error::ready_type, type->tp_name);
        return -1;
    }
    if (PyModule_AddObjectRef(module, name, reinterpret_cast<PyObject*>(type)) != 0) {
        PyShlErr_TypeInitializationInternalError(load_error::add_type,
                                                 PyModule_GetDef(module)->m_name, type->tp_name);
        return -1;
    }
    return 0;
}
