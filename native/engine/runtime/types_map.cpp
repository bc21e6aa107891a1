#include "runtime/types_map.h"

#include "host/exchange_host.h"
#include "runtime/markers.h"
#include "runtime/wrapped_objects.h"

#include <cstdlib>

PyWrpTypesMap& PyWrpTypesMap::get_instance() {
    static PyWrpTypesMap map;
    return map;
}

void PyWrpTypesMap::add(const std::u16string& name, PyTypeObject* type) {
    types_by_name[name] = type;
}

bool PyWrpTypesMap::find(const std::u16string& name, PyTypeObject*& type) noexcept {
    const auto row = types_by_name.find(name);
    if (row == types_by_name.end()) {
        return false;
    }
    type = row->second;
    return true;
}

void PyWrpTypesMap::add(long key, PyTypeObject* type) {
    const std::lock_guard lock(types_by_key_mutex);
    types_by_key[key] = type;
}

bool PyWrpTypesMap::find(long key, PyTypeObject*& type) {
    const std::lock_guard lock(types_by_key_mutex);
    const auto row = types_by_key.find(key);
    if (row == types_by_key.end()) {
        return false;
    }
    type = row->second;
    return true;
}

void PyWrpTypesMap::add_weak(long key, PyTypeObject* type) {
    const std::lock_guard lock(weak_types_by_key_mutex);
    weak_types_by_key[key] = type;
}

bool PyWrpTypesMap::find_weak(long key, PyTypeObject*& type) {
    const std::lock_guard lock(weak_types_by_key_mutex);
    const auto row = weak_types_by_key.find(key);
    if (row == weak_types_by_key.end()) {
        return false;
    }
    type = row->second;
    return true;
}

void PyWrpTypesMap::reserve(int count) {
    types_by_name.reserve(static_cast<unsigned int>(count));
    types_by_key.reserve(static_cast<unsigned int>(count));
}

namespace {

// The type bound under the name of the object's managed type, or null.
PyTypeObject* find_by_name(void* handle) {
    auto* name = static_cast<std::u16string*>(ExchangeHost::get_instance().get_type_name(handle));
    PyTypeObject* type = nullptr;
    if (name != nullptr) {
        PyWrpTypesMap::get_instance().find(*name, type);
        name->~basic_string();
        std::free(name);
    }
    return type;
}

PyTypeObject* find_weakly(void* handle, long type_key) {
    PyTypeObject* found = nullptr;
    PyWrpTypesMap& map = PyWrpTypesMap::get_instance();
    if (!map.find_weak(type_key, found)) {
        found = find_by_name(handle);
        map.add_weak(type_key, found);
    }
    return found;
}

} // namespace

PyTypeObject* get_py_type_object_by_obj(void* handle, long type_key) {
    PyTypeObject* type = nullptr;
    PyWrpTypesMap& map = PyWrpTypesMap::get_instance();
    if (map.find(type_key, type)) {
        return type;
    }
    type = find_by_name(handle);
    if (type != nullptr) {
        map.add(type_key, type);
    }
    return type;
}

PyObject* fn_write_py_tpo(void* handle, long type_key) {
    PyTypeObject* type = get_py_type_object_by_obj(handle, type_key);
    if (type == nullptr) {
        ExchangeHost::get_instance().free_instance(handle);
        PyErr_SetString(PyExc_TypeError, "unknown wrapper type");
        return nullptr;
    }
    return fn_py_clr_type_generic_new(handle, type);
}

int fn_try_write_py_tpo(void* handle, long type_key, PyObject** out) {
    PyTypeObject* type = get_py_type_object_by_obj(handle, type_key);
    if (type == nullptr) {
        ExchangeHost::get_instance().free_instance(handle);
        return 0;
    }
    *out = fn_py_clr_type_generic_new(handle, type);
    return *out != nullptr ? 1 : -1;
}

PyObject* fn_conv_clr_clsobj_to_py_clsobj(void* handle, PyTypeObject* declared) {
    if (handle == nullptr) {
        Py_RETURN_NONE;
    }
    return fn_py_clr_type_generic_new(handle, declared);
}

PyObject* fn_conv_clr_btpobj_to_py_btpobj(const PyCollectionArg& result, PyTypeObject* declared) {
    if (result.handle == nullptr) {
        Py_RETURN_NONE;
    }
    PyTypeObject* found =
        result.kind == KORVAN_COL_EXACT ? find_weakly(result.handle, result.type_key) : nullptr;
    return fn_py_clr_type_generic_new(result.handle, found != nullptr ? found : declared);
}

PyObject* fn_conv_clr_absobj_to_py_absobj(const PyCollectionArg& result, PyTypeObject* declared) {
    if (result.handle == nullptr) {
        Py_RETURN_NONE;
    }
    if (result.kind == KORVAN_COL_PYTHON) {
        return Py_NewRef(static_cast<PyObject*>(result.handle));
    }
    PyTypeObject* found = find_weakly(result.handle, result.type_key);
    return fn_py_clr_type_generic_new(result.handle, found != nullptr ? found : declared);
}

PyObject* fn_conv_clr_ifcimpl_to_py_ifcimpl(const PyObjectOutArg& result, PyTypeObject* declared) {
    if (result.handle == nullptr) {
        Py_RETURN_NONE;
    }
    PyTypeObject* found = find_weakly(result.handle, result.type_key);
    const bool usable = found != nullptr && fn_contains_implicit_ifc_markattr(found, declared);
    return fn_py_clr_type_generic_new(result.handle, usable ? found : declared);
}

PyObject* fn_conv_clr_ifcimpl_to_py_ifcimpl_wps(const PyCollectionArg& result,
                                                PyTypeObject* declared) {
    if (result.handle == nullptr) {
        Py_RETURN_NONE;
    }
    if (result.kind == KORVAN_COL_PYTHON) {
        return Py_NewRef(static_cast<PyObject*>(result.handle));
    }
    PyTypeObject* found = find_weakly(result.handle, result.type_key);
    if (found != nullptr && fn_contains_implicit_ifc_markattr(found, declared)) {
        return fn_py_clr_type_generic_new(result.handle, found);
    }
    void* handle = result.handle;
    if (result.kind == KORVAN_COL_EXACT) {
        handle = ExchangeHost::get_instance().box_stc_target(handle);
    }
    return fn_py_clr_type_generic_new(handle, declared);
}

PyObject* fn_conv_clr_vlarr_to_py_vlarr(const VariantArg& result, PyTypeObject* first,
                                        PyTypeObject* second) {
    return fn_conv_clr_clsobj_to_py_clsobj(result.value, result.kind != 0 ? second : first);
}
