// What text, bytes, numbers and failures cost a careful C extension: the baseline for values.
#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <cstring>
#include <string>

namespace {

std::u16string kept_text;
std::string kept_bytes;

// As a library that lives outside Python keeps text: in UTF-16 of its own.
PyObject* take_text(PyObject*, PyObject* text) {
    PyObject* const encoded = PyUnicode_AsUTF16String(text);
    if (encoded == nullptr) {
        return nullptr;
    }
    const auto size = static_cast<size_t>(PyBytes_GET_SIZE(encoded)) - 2;
    kept_text.resize(size / 2);
    std::memcpy(kept_text.data(), PyBytes_AS_STRING(encoded) + 2, size);
    Py_DECREF(encoded);
    Py_RETURN_NONE;
}

PyObject* give_text(PyObject*, PyObject*) {
    int order = -1;
    return PyUnicode_DecodeUTF16(reinterpret_cast<const char*>(kept_text.data()),
                                 static_cast<Py_ssize_t>(kept_text.size() * 2), nullptr, &order);
}

PyObject* take_bytes(PyObject*, PyObject* bytes) {
    Py_buffer view;
    if (PyObject_GetBuffer(bytes, &view, PyBUF_SIMPLE) != 0) {
        return nullptr;
    }
    kept_bytes.assign(static_cast<const char*>(view.buf), static_cast<size_t>(view.len));
    PyBuffer_Release(&view);
    Py_RETURN_NONE;
}

PyObject* give_bytes(PyObject*, PyObject*) {
    return PyByteArray_FromStringAndSize(kept_bytes.data(),
                                         static_cast<Py_ssize_t>(kept_bytes.size()));
}

PyObject* sum(PyObject*, PyObject* items) {
    PyObject* const iterator = PyObject_GetIter(items);
    if (iterator == nullptr) {
        return nullptr;
    }
    double total = 0;
    while (PyObject* item = PyIter_Next(iterator)) {
        total += static_cast<double>(PyLong_AsLong(item));
        Py_DECREF(item);
    }
    Py_DECREF(iterator);
    return PyErr_Occurred() != nullptr ? nullptr : PyFloat_FromDouble(total);
}

PyObject* fail(PyObject*, PyObject* message) {
    PyErr_SetObject(PyExc_RuntimeError, message);
    return nullptr;
}

PyObject* nothing(PyObject*, PyObject*) { Py_RETURN_NONE; }

PyMethodDef methods[] = {{"take_text", take_text, METH_O, nullptr},
                         {"give_text", give_text, METH_NOARGS, nullptr},
                         {"take_bytes", take_bytes, METH_O, nullptr},
                         {"give_bytes", give_bytes, METH_NOARGS, nullptr},
                         {"sum", sum, METH_O, nullptr},
                         {"fail", fail, METH_O, nullptr},
                         {"nothing", nothing, METH_NOARGS, nullptr},
                         {nullptr, nullptr, 0, nullptr}};

PyModuleDef definition = {
    PyModuleDef_HEAD_INIT, "values_c", nullptr, -1, methods, nullptr, nullptr, nullptr, nullptr};

} // namespace

PyMODINIT_FUNC PyInit_values_c() { return PyModule_Create(&definition); }
