// The first baseline: a C extension with no managed code behind it.
#include "item_type.h"

#include <cstdlib>
#include <cstring>

namespace {

struct PlainBackend {
    static constexpr const char* type_name = "plain.Item";
    static constexpr const char* iterator_name = "plain.ItemIterator";

    struct State {
        double real;
        void* blob;
        int number;
    };

    static void open(State& state, int number) {
        state.number = number;
        state.real = 0.5;
        state.blob = nullptr;
    }
    static void open_at(State& state, int index) {
        state.number = index;
        state.blob = nullptr;
    }
    static void close(State& state) { std::free(state.blob); }
    static int number(const State& state) { return state.number; }
    static double real(const State& state) { return state.real; }
    static void set_real(State& state, double real) { state.real = real; }
    // A new object at every read, as of any text that lives outside Python.
    static PyObject* text(const State&) { return PyUnicode_FromStringAndSize("layer", 5); }
    static void set_blob(State& state, const void* data, Py_ssize_t size) {
        std::free(state.blob);
        state.blob = std::malloc(static_cast<size_t>(size));
        std::memcpy(state.blob, data, static_cast<size_t>(size));
    }
    static bool can_take(const State& state, const State& other) {
        return state.number == other.number;
    }
    static PyObject* pick(State&, int) { return PyUnicode_FromString("int"); }
    static PyObject* pick(State&, double) { return PyUnicode_FromString("double"); }
    static void fail(State&) { PyErr_SetString(PyExc_RuntimeError, "can't be read"); }
};

// A type that holds one pointer: the least that a wrapper of anything is.
struct Pointer {
    PyObject_HEAD
    int* target;
};

const int& target_of(PyObject* self) { return *reinterpret_cast<Pointer*>(self)->target; }

extern PyTypeObject pointer_type;

PyObject* new_pointer(PyTypeObject* cls, PyObject*, PyObject*) {
    PyObject* const self = cls->tp_alloc(cls, 0);
    if (self != nullptr) {
        reinterpret_cast<Pointer*>(self)->target = static_cast<int*>(std::calloc(1, sizeof(int)));
    }
    return self;
}

void free_pointer(PyObject* self) {
    std::free(reinterpret_cast<Pointer*>(self)->target);
    Py_TYPE(self)->tp_free(self);
}

PyObject* compare_pointers(PyObject* left, PyObject* right, int operation) {
    if (!Py_IS_TYPE(right, &pointer_type) || (operation != Py_EQ && operation != Py_NE)) {
        Py_RETURN_NOTIMPLEMENTED;
    }
    return PyBool_FromLong((target_of(left) == target_of(right)) == (operation == Py_EQ));
}

Py_hash_t hash_pointer(PyObject* self) { return target_of(self); }

PyObject* show_pointer(PyObject* self) {
    return PyUnicode_FromFormat("<Pointer %d>", target_of(self));
}

PyObject* cast_pointer(PyObject*, PyObject* value) {
    return PyTuple_Pack(2, Py_IS_TYPE(value, &pointer_type) ? Py_True : Py_False, value);
}

PyMethodDef pointer_methods[] = {{"cast_to", cast_pointer, METH_O | METH_STATIC, nullptr}, {}};

PyTypeObject pointer_type = {
    .ob_base = {PyObject_HEAD_INIT(nullptr) 0},
    .tp_name = "plain.Pointer",
    .tp_basicsize = sizeof(Pointer),
    .tp_dealloc = free_pointer,
    .tp_repr = show_pointer,
    .tp_hash = hash_pointer,
    .tp_richcompare = compare_pointers,
    .tp_methods = pointer_methods,
    .tp_new = new_pointer,
};

PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "plain", nullptr, -1, nullptr, nullptr, nullptr, nullptr, nullptr};

} // namespace

PyMODINIT_FUNC PyInit_plain() {
    PyObject* const module = PyModule_Create(&definition);
    if (module != nullptr && (ItemType<PlainBackend>::ready(module) < 0 ||
                              PyModule_AddType(module, &pointer_type) < 0)) {
        Py_DECREF(module);
        return nullptr;
    }
    return module;
}
