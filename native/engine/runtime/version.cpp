#include "runtime/version.h"

#include <cstring>

namespace {

PyShVersionObject* as_version(PyObject* object) {
    return reinterpret_cast<PyShVersionObject*>(object);
}

int compare_numbers(const int* a, const int* b) {
    for (int i = 0; i < 4; ++i) {
        if (a[i] != b[i]) {
            return a[i] < b[i] ? -1 : 1;
        }
    }
    return 0;
}

struct Numbers {
    int values[4];
    explicit Numbers(PyObject* object) {
        const PyShVersionObject* version = as_version(object);
        values[0] = version->major;
        values[1] = version->minor;
        values[2] = version->patch;
        values[3] = version->sub;
    }
};

void wrpPye_tpsb_version_tp_dealloc(PyObject* self) {
    Py_XDECREF(as_version(self)->view);
    Py_TYPE(self)->tp_free(self);
}

PyObject* wrpPye_tpsb_version_tp_repr(PyObject* self) {
    return PyUnicode_FromFormat("<%s: %U>", type_name_of(self), as_version(self)->view);
}

PyObject* wrpPye_tpsb_version_tp_str(PyObject* self) { return Py_NewRef(as_version(self)->view); }

// FNV-1a over the numbers; a result of -1 stays as it is.
Py_hash_t wrpPye_tpsb_version_tp_hash(PyObject* self) {
    const Numbers numbers(self);
    unsigned char bytes[sizeof(numbers.values)];
    std::memcpy(bytes, numbers.values, sizeof(bytes));
    std::uint32_t hash = 0x811c9dc5u;
    for (const unsigned char byte : bytes) {
        hash = (hash ^ byte) * 16777619u;
    }
    return static_cast<std::int32_t>(hash);
}

PyObject* wrpPye_tpsb_version_tp_richcompare(PyObject* self, PyObject* other, int op) {
    PyTypeObject* type = &wrpPye_tyds_FFFFFFFF_ModuleVersion;
    if (Py_TYPE(self) != type || Py_TYPE(other) != type) {
        Py_RETURN_NOTIMPLEMENTED;
    }
    const int order = compare_numbers(Numbers(self).values, Numbers(other).values);
    Py_RETURN_RICHCOMPARE(order, 0, op);
}

PyObject* wrpPye_bltp_version_major_getter(PyObject* self, void*) {
    return PyLong_FromLong(as_version(self)->major);
}
PyObject* wrpPye_bltp_version_minor_getter(PyObject* self, void*) {
    return PyLong_FromLong(as_version(self)->minor);
}
PyObject* wrpPye_bltp_version_patch_getter(PyObject* self, void*) {
    return PyLong_FromLong(as_version(self)->patch);
}
PyObject* wrpPye_bltp_version_sub_getter(PyObject* self, void*) {
    return PyLong_FromLong(as_version(self)->sub);
}
PyObject* wrpPye_bltp_version_view_getter(PyObject* self, void*) {
    return wrpPye_tpsb_version_tp_str(self);
}

PyGetSetDef wrpPye_typd_Version[] = {
    {"major", wrpPye_bltp_version_major_getter, nullptr, nullptr, nullptr},
    {"minor", wrpPye_bltp_version_minor_getter, nullptr, nullptr, nullptr},
    {"patch", wrpPye_bltp_version_patch_getter, nullptr, nullptr, nullptr},
    {"sub", wrpPye_bltp_version_sub_getter, nullptr, nullptr, nullptr},
    {"view", wrpPye_bltp_version_view_getter, nullptr, nullptr, nullptr},
    {}};

} // namespace

PyTypeObject wrpPye_tyds_FFFFFFFF_ModuleVersion = {
    .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name = "_ModuleVersionType",
    .tp_basicsize = sizeof(PyShVersionObject),
    .tp_dealloc = wrpPye_tpsb_version_tp_dealloc,
    .tp_repr = wrpPye_tpsb_version_tp_repr,
    .tp_hash = wrpPye_tpsb_version_tp_hash,
    .tp_str = wrpPye_tpsb_version_tp_str,
    .tp_flags = Py_TPFLAGS_DEFAULT,
    .tp_richcompare = wrpPye_tpsb_version_tp_richcompare,
    .tp_getset = wrpPye_typd_Version,
};

void fn_name_version_type(const char* full_name) {
    wrpPye_tyds_FFFFFFFF_ModuleVersion.tp_name = full_name;
}

int PyShVersionAttr_Compare(const int* ref_version, PyObject* version) {
    return compare_numbers(ref_version, Numbers(version).values);
}

PyObject* PyShVersionAttr_GetView(PyObject* version) { return as_version(version)->view; }

PyObject* PyShVersionAttr_Create(int major, int minor, int patch, int sub, const char* view) {
    PyObject* object = PyType_GenericNew(&wrpPye_tyds_FFFFFFFF_ModuleVersion, nullptr, nullptr);
    PyShVersionObject* version = as_version(object);
    version->major = major;
    version->minor = minor;
    version->patch = patch;
    version->sub = sub;
    version->view = PyUnicode_FromString(view);
    return object;
}
