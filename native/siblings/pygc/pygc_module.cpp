// korvan.pygc: the result of a cast, which other modules of the family make through its capsule.
#include "module/capsules.h"
#include "module/version_attributes.h"
#include "runtime/identifiers.h"

namespace {

struct CastResult {
    PyObject_HEAD
    int status; // 0: the cast did not succeed
    PyObject* value; // owned; None where there is none
};

CastResult* as_result(PyObject* object) { return reinterpret_cast<CastResult*>(object); }

void result_dealloc(PyObject* self) {
    Py_XDECREF(as_result(self)->value);
    Py_TYPE(self)->tp_free(self);
}

PyObject* result_repr(PyObject* self) {
    return PyUnicode_FromFormat("<%s: status=%d, value=%R>", type_name_of(self),
                                as_result(self)->status, as_result(self)->value);
}

int result_bool(PyObject* self) { return as_result(self)->status != 0; }

// status, value = result
Py_ssize_t result_length(PyObject*) { return 2; }
PyObject* result_item(PyObject* self, Py_ssize_t index) {
    switch (index) {
    case 0: return PyLong_FromLong(as_result(self)->status);
    case 1: return Py_NewRef(as_result(self)->value);
    default: PyErr_SetString(PyExc_IndexError, "cast result index out of range"); return nullptr;
    }
}

PyObject* status_getter(PyObject* self, void*) { return PyLong_FromLong(as_result(self)->status); }
PyObject* value_getter(PyObject* self, void*) { return Py_NewRef(as_result(self)->value); }

PyGetSetDef result_getset[] = {
    {"status", status_getter, nullptr, "What the managed cast answered: 0 not cast.", nullptr},
    {"value", value_getter, nullptr, "The object as the wanted type, or None.", nullptr},
    {}};
PyNumberMethods result_number = {.nb_bool = result_bool};
PySequenceMethods result_sequence = {.sq_length = result_length, .sq_item = result_item};

PyTypeObject result_type = {
    .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name = "korvan.pygc.CastResult",
    .tp_basicsize = sizeof(CastResult),
    .tp_dealloc = result_dealloc,
    .tp_repr = result_repr,
    .tp_as_number = &result_number,
    .tp_as_sequence = &result_sequence,
    .tp_flags = Py_TPFLAGS_DEFAULT | Py_TPFLAGS_DISALLOW_INSTANTIATION,
    .tp_doc = "The result of a cast: true when it succeeded, and unpacks to (status, value).",
    .tp_getset = result_getset,
};

// Takes its own reference to `value`, which may be null.
PyObject* PyShCastOpResult_New(int status, PyObject* value) {
    auto* result = PyObject_New(CastResult, &result_type);
    if (result != nullptr) {
        result->status = status;
        result->value = Py_NewRef(value != nullptr ? value : Py_None);
    }
    return reinterpret_cast<PyObject*>(result);
}

void* api_table[] = {reinterpret_cast<void*>(PyShCastOpResult_New)};

PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "korvan.pygc", nullptr, -1, nullptr, nullptr, nullptr, nullptr, nullptr};

} // namespace

PyMODINIT_FUNC PyInit_pygc() {
    fn_intern_identifiers();
    Ref module = Ref::steal(PyModule_Create(&definition));
    if (!module || PyModule_AddType(module.get(), &result_type) != 0) {
        return nullptr;
    }
    if (!add_capsule(module.get(), "korvan.pygc._C_APIF", api_table) ||
        add_version_attributes(module.get(), "korvan.pygc._ModuleVersionType",
                               {25, 3, 0, 0, "25.3.0.0"}, {22, 6, 0, 0, "22.6.0.0"}) != 0) {
        return nullptr;
    }
    return module.release();
}
