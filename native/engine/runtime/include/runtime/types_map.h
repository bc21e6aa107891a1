// runtime/types_map.h: which Python type stands for a managed type, and the converters that ask.
#ifndef KORVAN_RUNTIME_TYPES_MAP_H
#define KORVAN_RUNTIME_TYPES_MAP_H

#include "runtime/py_base.h"

#include <mutex>
#include <string>
#include <unordered_map>

class PyWrpTypesMap {
public:
    static PyWrpTypesMap& get_instance();

    // By full managed name: filled while the module is initialised, then only read.
    void add(const std::u16string& name, PyTypeObject* type);
    bool find(const std::u16string& name, PyTypeObject*& type) noexcept;
    // By type key, as a cache.
    void add(long key, PyTypeObject* type);
    bool find(long key, PyTypeObject*& type);
    // The same, and it remembers misses: true with a null type.
    void add_weak(long key, PyTypeObject* type);
    bool find_weak(long key, PyTypeObject*& type);
    void reserve(int count);

private:
    std::unordered_map<std::u16string, PyTypeObject*> types_by_name;
    std::unordered_map<long, PyTypeObject*> types_by_key;
    std::unordered_map<long, PyTypeObject*> weak_types_by_key;
    std::mutex types_by_key_mutex;
    std::mutex weak_types_by_key_mutex;
};

// The exact type's binding, or null with no exception.
PyTypeObject* get_py_type_object_by_obj(void* handle, long type_key);

// Result converters. A null handle gives None; all take the handle over.
PyObject* fn_conv_clr_clsobj_to_py_clsobj(void* handle, PyTypeObject* declared);
PyObject* fn_conv_clr_btpobj_to_py_btpobj(const PyCollectionArg& result, PyTypeObject* declared);
PyObject* fn_conv_clr_absobj_to_py_absobj(const PyCollectionArg& result, PyTypeObject* declared);
PyObject* fn_conv_clr_ifcimpl_to_py_ifcimpl(const PyObjectOutArg& result, PyTypeObject* declared);
PyObject* fn_conv_clr_ifcimpl_to_py_ifcimpl_wps(const PyCollectionArg& result,
                                                PyTypeObject* declared);
PyObject* fn_conv_clr_vlarr_to_py_vlarr(const VariantArg& result, PyTypeObject* first,
                                        PyTypeObject* second);

// Callback slots: a wrapper of a handle's exact type.
PyObject* fn_write_py_tpo(void* handle, long type_key);
// 0 no such type (handle freed, no error), 1 written, -1 failed.
int fn_try_write_py_tpo(void* handle, long type_key, PyObject** out);

#endif
