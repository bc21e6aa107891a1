// pydrawing/value_box.h: a raw record of the boundary as an immutable Python value.
#ifndef KORVAN_PYDRAWING_VALUE_BOX_H
#define KORVAN_PYDRAWING_VALUE_BOX_H

#include "runtime/py_base.h"

template <class Value> struct ValueBox {
    PyObject_HEAD
    Value value;
};

template <class Value> const Value& value_of(PyObject* object) {
    return reinterpret_cast<ValueBox<Value>*>(object)->value;
}

template <class Value> PyObject* box_value(PyTypeObject& type, const Value& value) {
    PyObject* object = type.tp_alloc(&type, 0);
    if (object != nullptr) {
        reinterpret_cast<ValueBox<Value>*>(object)->value = value;
    }
    return object;
}

// The parsing converter of a capsule: 1, or 0 with a Python error.
template <class Value>
int parse_value(PyObject* object, void* out, const PyTypeObject& type, const char* name) {
    if (Py_TYPE(object) != &type) {
        PyErr_Format(PyExc_TypeError, "can't build %s value from '%s'", name, type_name_of(object));
        return 0;
    }
    *static_cast<Value*>(out) = value_of<Value>(object);
    return 1;
}

// Values of one type compare by `same`; an order there is not.
template <class Value, bool (*same)(const Value&, const Value&)>
PyObject* compare_values(PyObject* self, PyObject* other, int op) {
    if (Py_TYPE(self) != Py_TYPE(other) || (op != Py_EQ && op != Py_NE)) {
        Py_RETURN_NOTIMPLEMENTED;
    }
    return PyBool_FromLong(same(value_of<Value>(self), value_of<Value>(other)) == (op == Py_EQ));
}

#endif
