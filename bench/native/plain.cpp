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

PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "plain", nullptr, -1, nullptr, nullptr, nullptr, nullptr, nullptr};

} // namespace

PyMODINIT_FUNC PyInit_plain() {
    PyObject* const module = PyModule_Create(&definition);
    if (module != nullptr && ItemType<PlainBackend>::ready(module) < 0) {
        Py_DECREF(module);
        return nullptr;
    }
    return module;
}
