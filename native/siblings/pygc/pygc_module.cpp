// korvan.pygc: the result of a cast, which other modules of the family make through its capsule.
#include "module/capsules.h"
#include "module/version_attributes.h"
#include "runtime/identifiers.h"

#include <cstddef>

namespace {

extern PyTypeObject result_type;

struct CastResult {
    PyObject_HEAD
    int status; // 0: the cast did not succeed
    PyObject* value; // owned; None where there is none
};

CastResult* as_result(PyObject* object) { return reinterpret_cast<CastResult*>(object); }

// A loop over casts makes and drops one a step: the memory of the last ones is kept, in a chain
// through their values.
constexpr int max_spare = 16;
CastResult* spare_results = nullptr;
int spare_count = 0;

void result_dealloc(PyObject* self) {
    Py_XDECREF(as_result(self)->value);
    if (spare_count == max_spare) {
        PyObject_Free(self);
        return;
    }
    as_result(self)->value = reinterpret_cast<PyObject*>(spare_results);
    spare_results = as_result(self);
    ++spare_count;
}

PyObject* allocate_result() {
    if (spare_results == nullptr) {
        return reinterpret_cast<PyObject*>(PyObject_New(CastResult, &result_type));
    }
    CastResult* result = spare_results;
    spare_results = reinterpret_cast<CastResult*>(result->value);
    --spare_count;
    return PyObject_Init(reinterpret_cast<PyObject*>(result), &result_type);
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

// Members, not getters: the interpreter reads them without a call.
PyMemberDef result_members[] = {{"status", Py_T_INT, offsetof(CastResult, status), Py_READONLY,
                                 "What the managed cast answered: 0 not cast."},
                                {"value", Py_T_OBJECT_EX, offsetof(CastResult, value), Py_READONLY,
                                 "The object as the wanted type, or None."},
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
    .tp_members = result_members,
};

// Takes its own reference to `value`, which may be null.
PyObject* PyShCastOpResult_New(int status, PyObject* value) {
    PyObject* result = allocate_result();
    if (result != nullptr) {
        as_result(result)->status = status;
        as_result(result)->value = Py_NewRef(value != nullptr ? value : Py_None);
    }
    return result;
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
