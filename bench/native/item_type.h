// bench/native/item_type.h: the Python type that both baselines have, over a backend of their own.
//
// It is what a careful author would write by hand: no keywords where one argument is enough, no
// dispatch, no registry, no mapping of failures. What it costs is the least that the surface costs.
#ifndef KORVAN_BENCH_ITEM_TYPE_H
#define KORVAN_BENCH_ITEM_TYPE_H

#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <type_traits>

// A backend has a `State` and static functions over it: open, close, number, real, set_real, text,
// set_blob, can_take, pick, fail, and open_at for the items of a list.
template <class Backend> struct ItemType {
    struct Object {
        PyObject_HEAD
        typename Backend::State state;
    };

    struct Iterator {
        PyObject_HEAD
        Py_ssize_t next;
        Py_ssize_t end;
    };

    static PyTypeObject type;
    static PyTypeObject iterator_type;

    static typename Backend::State& state(PyObject* self) {
        return reinterpret_cast<Object*>(self)->state;
    }

    static PyObject* construct(PyTypeObject* cls, PyObject* args, PyObject*) {
        long number = 0;
        if (PyTuple_GET_SIZE(args) != 0) {
            number = PyLong_AsLong(PyTuple_GET_ITEM(args, 0));
            if (number == -1 && PyErr_Occurred() != nullptr) {
                return nullptr;
            }
        }
        PyObject* const self = cls->tp_alloc(cls, 0);
        if (self != nullptr) {
            Backend::open(state(self), static_cast<int>(number));
        }
        return self;
    }

    static void release(PyObject* self) {
        Backend::close(state(self));
        Py_TYPE(self)->tp_free(self);
    }

    static PyObject* get_number(PyObject* self, void*) {
        return PyLong_FromLong(Backend::number(state(self)));
    }

    static PyObject* get_real(PyObject* self, void*) {
        return PyFloat_FromDouble(Backend::real(state(self)));
    }

    static int set_real(PyObject* self, PyObject* value, void*) {
        const double real = PyFloat_AsDouble(value);
        if (real == -1.0 && PyErr_Occurred() != nullptr) {
            return -1;
        }
        Backend::set_real(state(self), real);
        return 0;
    }

    static PyObject* get_text(PyObject* self, void*) { return Backend::text(state(self)); }

    static int set_blob(PyObject* self, PyObject* value, void*) {
        Py_buffer view;
        if (PyObject_GetBuffer(value, &view, PyBUF_SIMPLE) < 0) {
            return -1;
        }
        Backend::set_blob(state(self), view.buf, view.len);
        PyBuffer_Release(&view);
        return 0;
    }

    static PyObject* can_take(PyObject* self, PyObject* other) {
        if (!PyObject_TypeCheck(other, &type)) {
            return PyErr_Format(PyExc_TypeError, "an Item was expected");
        }
        return PyBool_FromLong(Backend::can_take(state(self), state(other)));
    }

    // Two forms: of a whole number, and of any real one.
    static PyObject* pick(PyObject* self, PyObject* value) {
        if (PyLong_Check(value)) {
            return Backend::pick(state(self), static_cast<int>(PyLong_AsLong(value)));
        }
        if (PyFloat_Check(value)) {
            return Backend::pick(state(self), PyFloat_AS_DOUBLE(value));
        }
        return PyErr_Format(PyExc_TypeError, "a number was expected");
    }

    static PyObject* fail(PyObject* self, PyObject*) {
        Backend::fail(state(self));
        return nullptr;
    }

    // As many new items as it is told, one after the other.
    static PyObject* items(PyObject*, PyObject* count) {
        const Py_ssize_t end = PyLong_AsSsize_t(count);
        if (end == -1 && PyErr_Occurred() != nullptr) {
            return nullptr;
        }
        Iterator* const iterator = PyObject_New(Iterator, &iterator_type);
        if (iterator != nullptr) {
            iterator->next = 0;
            iterator->end = end;
        }
        return reinterpret_cast<PyObject*>(iterator);
    }

    static PyObject* next_item(PyObject* self) {
        Iterator* const iterator = reinterpret_cast<Iterator*>(self);
        if (iterator->next == iterator->end) {
            return nullptr;
        }
        PyObject* const item = type.tp_alloc(&type, 0);
        if (item != nullptr) {
            Backend::open_at(state(item), static_cast<int>(iterator->next++));
        }
        return item;
    }

    static int ready(PyObject* module) {
        return PyType_Ready(&iterator_type) == 0 && PyModule_AddType(module, &type) == 0 ? 0 : -1;
    }

    static inline PyGetSetDef properties[] = {{"number", get_number, nullptr, nullptr, nullptr},
                                              {"real", get_real, set_real, nullptr, nullptr},
                                              {"text", get_text, nullptr, nullptr, nullptr},
                                              {"blob", nullptr, set_blob, nullptr, nullptr},
                                              {}};

    static inline PyMethodDef methods[] = {{"can_take", can_take, METH_O, nullptr},
                                           {"pick", pick, METH_O, nullptr},
                                           {"fail", fail, METH_NOARGS, nullptr},
                                           {"items", items, METH_O | METH_STATIC, nullptr},
                                           {}};
};

template <class Backend>
PyTypeObject ItemType<Backend>::type = {
    .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name = Backend::type_name,
    .tp_basicsize = sizeof(Object),
    .tp_dealloc = release,
    .tp_flags = Py_TPFLAGS_DEFAULT,
    .tp_methods = methods,
    .tp_getset = properties,
    .tp_new = construct,
};

template <class Backend>
PyTypeObject ItemType<Backend>::iterator_type = {
    .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name = Backend::iterator_name,
    .tp_basicsize = sizeof(Iterator),
    .tp_dealloc = [](PyObject* self) { PyObject_Free(self); },
    .tp_flags = Py_TPFLAGS_DEFAULT,
    .tp_iter = PyObject_SelfIter,
    .tp_iternext = next_item,
};

#endif
