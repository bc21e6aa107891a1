// runtime/buffers.h: byte arrays, lent by pinning the exporter's memory.
#ifndef KORVAN_RUNTIME_BUFFERS_H
#define KORVAN_RUNTIME_BUFFERS_H

#include "runtime/py_base.h"

// A pinned buffer in a call's frame. Construction touches only the part that crosses.
class PyBytesArgBuilder {
public:
    PyBytesArgBuilder() {
        m_info.acquired = 0;
        m_info.length = -1;
        m_info.data = nullptr;
    }
    PyBytesArgBuilder(const PyBytesArgBuilder&) = delete;
    PyBytesArgBuilder& operator=(const PyBytesArgBuilder&) = delete;
    ~PyBytesArgBuilder() {
        if (m_info.acquired != 0) {
            PyBuffer_Release(&m_view);
        }
    }
    Py_buffer* get_view() { return &m_view; }
    PyBytesArg* get_info() { return &m_info; }

private:
    Py_buffer m_view;
    PyBytesArg m_info;
};
static_assert(sizeof(PyBytesArgBuilder) == 96 && sizeof(Py_buffer) == 80);

int fn_conv_py_bytes_to_clr_bytes(PyObject* object, PyBytesArgBuilder* builder);
int fn_conv_py_bytes_to_clr_bytes_value(PyObject* object, Py_buffer* view, PyBytesArg* info);
int fn_read_py_buffer(PyObject* object, Py_buffer* view, PyBytesArg* info);
// A new bytearray.
PyObject* fn_conv_clr_bytes_to_py_bytes(const char* data, int length);

// Callback slots.
size_t fn_get_sizeof_py_byffer();
void fn_create_py_byffer(void* memory);
int fn_read_py_buffer_view(PyObject* object, Py_buffer* view, PyBytesArg* info);
void fn_release_py_buffer(Py_buffer* view);

#endif
