// The second baseline: a C type straight over exported managed functions and handles. What a bridge
// costs above this is the bridge's own.
#include "item_type.h"

#include <dlfcn.h>

namespace {

struct Managed {
    void* (*new_item)(int);
    void* (*item_at)(int);
    void (*free_item)(void*);
    int (*get_number)(void*);
    double (*get_real)(void*);
    void (*set_real)(void*, double);
    PyObject* (*get_text)(void*);
    void (*set_blob)(void*, const void*, int);
    unsigned char (*can_take)(void*, void*);
    PyObject* (*pick_number)(void*, int);
    PyObject* (*pick_real)(void*, double);
    void (*fail)(void*);
    void (*set_callbacks)(void*, void*);
} managed;

struct FloorBackend {
    static constexpr const char* type_name = "floor.Item";
    static constexpr const char* iterator_name = "floor.ItemIterator";

    using State = void*;

    static void open(State& state, int number) { state = managed.new_item(number); }
    static void open_at(State& state, int index) { state = managed.item_at(index); }
    static void close(State& state) { managed.free_item(state); }
    static int number(State state) { return managed.get_number(state); }
    static double real(State state) { return managed.get_real(state); }
    static void set_real(State state, double real) { managed.set_real(state, real); }
    static PyObject* text(State state) { return managed.get_text(state); }
    static void set_blob(State state, const void* data, Py_ssize_t size) {
        managed.set_blob(state, data, static_cast<int>(size));
    }
    static bool can_take(State state, State other) { return managed.can_take(state, other) != 0; }
    static PyObject* pick(State state, int value) { return managed.pick_number(state, value); }
    static PyObject* pick(State state, double value) { return managed.pick_real(state, value); }
    static void fail(State state) { managed.fail(state); }
};

PyObject* new_string(const Py_UCS2* text, int length) {
    return PyUnicode_FromKindAndData(PyUnicode_2BYTE_KIND, text, length);
}

void raise_error(const Py_UCS2* text, int length) {
    PyObject* const message = new_string(text, length);
    PyErr_SetObject(PyExc_RuntimeError, message);
    Py_XDECREF(message);
}

using CreateDelegate = int (*)(const char*, const char*, const char*, void**);

struct Export {
    const char* name;
    void** slot;
};

template <class Function> Export to(const char* name, Function& slot) {
    return {name, reinterpret_cast<void**>(&slot)};
}

bool bind_exports(CreateDelegate create_delegate) {
    const Export exports[] = {
        to("New", managed.new_item),
        to("ItemAt", managed.item_at),
        to("Free", managed.free_item),
        to("GetNumber", managed.get_number),
        to("GetReal", managed.get_real),
        to("SetReal", managed.set_real),
        to("GetText", managed.get_text),
        to("SetBlob", managed.set_blob),
        to("CanTake", managed.can_take),
        to("PickNumber", managed.pick_number),
        to("PickReal", managed.pick_real),
        to("Fail", managed.fail),
        to("SetCallbacks", managed.set_callbacks),
    };
    for (const Export& wanted : exports) {
        const int status =
            create_delegate("Korvan.Bench.Floor", "Korvan.Bench.Floor", wanted.name, wanted.slot);
        if (status != 0) {
            PyErr_Format(PyExc_RuntimeError, "Korvan.Bench.Floor.%s was not found: 0x%x",
                         wanted.name, status);
            return false;
        }
    }
    return true;
}

// bind(path): takes the wrap library that the bridge under test started in this process.
PyObject* bind(PyObject*, PyObject* path) {
    const char* const file = PyUnicode_AsUTF8(path);
    if (file == nullptr) {
        return nullptr;
    }
    void* const library = dlopen(file, RTLD_NOW | RTLD_NOLOAD);
    if (library == nullptr) {
        return PyErr_Format(PyExc_RuntimeError, "%s is not loaded in this process", file);
    }
    const auto create_delegate =
        reinterpret_cast<CreateDelegate>(dlsym(library, "coreclr_wrap_create_delegate"));
    if (!bind_exports(create_delegate)) {
        return nullptr;
    }
    managed.set_callbacks(reinterpret_cast<void*>(new_string),
                          reinterpret_cast<void*>(raise_error));
    Py_RETURN_NONE;
}

PyMethodDef functions[] = {{"bind", bind, METH_O, nullptr}, {}};

PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "floor", nullptr, -1, functions, nullptr, nullptr, nullptr, nullptr};

} // namespace

PyMODINIT_FUNC PyInit_floor() {
    PyObject* const module = PyModule_Create(&definition);
    if (module != nullptr && ItemType<FloorBackend>::ready(module) < 0) {
        Py_DECREF(module);
        return nullptr;
    }
    return module;
}
