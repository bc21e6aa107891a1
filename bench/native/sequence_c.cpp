// The baseline of collections: a sequence in C, which makes each item anew as it is read.
#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <vector>

namespace {

// What a managed list of 100,000 holds, as C has it.
enum class Kind { integers, reals, texts, objects };

struct Sequence {
    PyObject_HEAD
    Kind kind;
    std::vector<int>* numbers;
};

struct Iterator {
    PyObject_HEAD
    PyObject* sequence;
    Py_ssize_t next;
};

struct Item {
    PyObject_HEAD
    int number;
};

PyTypeObject item_type = {
    .ob_base = {PyObject_HEAD_INIT(nullptr) 0},
    .tp_name = "sequence_c.Item",
    .tp_basicsize = sizeof(Item),
};

Sequence& self_of(PyObject* self) { return *reinterpret_cast<Sequence*>(self); }

PyObject* make(const Sequence& self, size_t index) {
    const int number = (*self.numbers)[index];
    switch (self.kind) {
    case Kind::integers: return PyLong_FromLong(number);
    case Kind::reals: return PyFloat_FromDouble(number + 0.5);
    case Kind::texts: return PyUnicode_FromStringAndSize("layer", 5);
    default:
        Item* const item = PyObject_New(Item, &item_type);
        if (item != nullptr) {
            item->number = number;
        }
        return reinterpret_cast<PyObject*>(item);
    }
}

Py_ssize_t length(PyObject* self) { return static_cast<Py_ssize_t>(self_of(self).numbers->size()); }

PyObject* item(PyObject* self, Py_ssize_t index) {
    if (index < 0 || index >= length(self)) {
        PyErr_SetString(PyExc_IndexError, "index out of range");
        return nullptr;
    }
    return make(self_of(self), static_cast<size_t>(index));
}

PyObject* next_item(PyObject* self) {
    Iterator* const iterator = reinterpret_cast<Iterator*>(self);
    return iterator->next < length(iterator->sequence)
               ? make(self_of(iterator->sequence), static_cast<size_t>(iterator->next++))
               : nullptr;
}

void release_iterator(PyObject* self) {
    Py_DECREF(reinterpret_cast<Iterator*>(self)->sequence);
    PyObject_Free(self);
}

PyTypeObject iterator_type = {
    .ob_base = {PyObject_HEAD_INIT(nullptr) 0},
    .tp_name = "sequence_c.Iterator",
    .tp_basicsize = sizeof(Iterator),
    .tp_dealloc = release_iterator,
    .tp_iter = PyObject_SelfIter,
    .tp_iternext = next_item,
};

PyObject* iterate(PyObject* self) {
    Iterator* const iterator = PyObject_New(Iterator, &iterator_type);
    if (iterator != nullptr) {
        iterator->sequence = Py_NewRef(self);
        iterator->next = 0;
    }
    return reinterpret_cast<PyObject*>(iterator);
}

PyObject* copy(PyObject* self, PyObject*) {
    PyObject* const list = PyList_New(length(self));
    for (Py_ssize_t i = 0; list != nullptr && i < length(self); ++i) {
        PyList_SET_ITEM(list, i, make(self_of(self), static_cast<size_t>(i)));
    }
    return list;
}

PyObject* construct(PyTypeObject* cls, PyObject* args, PyObject*) {
    int kind = 0, count = 0;
    if (!PyArg_ParseTuple(args, "ii", &kind, &count)) {
        return nullptr;
    }
    PyObject* const self = cls->tp_alloc(cls, 0);
    if (self != nullptr) {
        self_of(self).kind = static_cast<Kind>(kind);
        self_of(self).numbers = new std::vector<int>(static_cast<size_t>(count));
        for (int i = 0; i < count; ++i) {
            (*self_of(self).numbers)[static_cast<size_t>(i)] = i;
        }
    }
    return self;
}

void release(PyObject* self) {
    delete self_of(self).numbers;
    Py_TYPE(self)->tp_free(self);
}

PySequenceMethods sequence_methods = {.sq_length = length, .sq_item = item};
PyMethodDef methods[] = {{"copy", copy, METH_NOARGS, nullptr}, {}};

PyTypeObject sequence_type = {
    .ob_base = {PyObject_HEAD_INIT(nullptr) 0},
    .tp_name = "sequence_c.Sequence",
    .tp_basicsize = sizeof(Sequence),
    .tp_dealloc = release,
    .tp_as_sequence = &sequence_methods,
    .tp_iter = iterate,
    .tp_methods = methods,
    .tp_new = construct,
};

PyObject* sum(PyObject*, PyObject* list) {
    long total = 0;
    for (Py_ssize_t i = 0; i < PyList_GET_SIZE(list); ++i) {
        total += PyLong_AsLong(PyList_GET_ITEM(list, i));
    }
    return PyLong_FromLong(total);
}

PyMethodDef functions[] = {{"sum", sum, METH_O, nullptr}, {}};
PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "sequence_c",
                          nullptr,
                          -1,
                          functions,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

} // namespace

PyMODINIT_FUNC PyInit_sequence_c() {
    PyObject* const module = PyModule_Create(&definition);
    if (module == nullptr || PyType_Ready(&item_type) < 0 || PyType_Ready(&iterator_type) < 0 ||
        PyModule_AddType(module, &sequence_type) < 0) {
        Py_XDECREF(module);
        return nullptr;
    }
    return module;
}
