#include "runtime/buffers.h"

#include <cstring>
#include <limits>

int fn_conv_py_bytes_to_clr_bytes(PyObject* object, PyBytesArgBuilder* builder) {
    return fn_conv_py_bytes_to_clr_bytes_value(object, builder->get_view(), builder->get_info());
}

int fn_conv_py_bytes_to_clr_bytes_value(PyObject* object, Py_buffer* view, PyBytesArg* info) {
    if (object == Py_None) {
        info->length = -1;
        return 1;
    }
    if (!PyObject_CheckBuffer(object)) {
        PyErr_Format(PyExc_TypeError, "can't build byte[] from '%s'", type_name_of(object));
        return 0;
    }
    return fn_read_py_buffer(object, view, info);
}

int fn_read_py_buffer(PyObject* object, Py_buffer* view, PyBytesArg* info) {
    if (PyObject_GetBuffer(object, view, PyBUF_SIMPLE) != 0) {
        PyErr_Clear();
        PyErr_SetString(PyExc_BufferError, "can't get internal buffer");
        return 0;
    }
    info->acquired = 1; // whatever follows, the owner of `info` releases the view
    if (!PyBuffer_IsContiguous(view, 'C')) {
        PyErr_SetString(PyExc_BufferError, "buffer is not contiguous");
        return 0;
    }
    if (view->len > std::numeric_limits<std::int32_t>::max()) {
        PyErr_SetString(PyExc_BufferError, "buffer is too long");
        return 0;
    }
    info->length = static_cast<std::int32_t>(view->len);
    info->data = view->buf;
    return 1;
}

PyObject* fn_conv_clr_bytes_to_py_bytes(const char* data, int length) {
    return PyByteArray_FromStringAndSize(data, length);
}

size_t fn_get_sizeof_py_byffer() { return sizeof(Py_buffer); }

void fn_create_py_byffer(void* memory) { std::memset(memory, 0, sizeof(Py_buffer)); }

int fn_read_py_buffer_view(PyObject* object, Py_buffer* view, PyBytesArg* info) {
    return fn_read_py_buffer(object, view, info);
}

void fn_release_py_buffer(Py_buffer* view) { PyBuffer_Release(view); }
