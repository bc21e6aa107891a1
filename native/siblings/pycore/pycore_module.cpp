// korvan.pycore: BytesAsStream, a read-only stream over a bytes-like object without a copy.
#include "module/version_attributes.h"
#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "runtime/numbers.h"

#include <algorithm>
#include <cstring>

namespace {

struct BytesAsStream {
    PyObject_HEAD
    Py_buffer view;
    bool has_view;
    bool is_closed;
    Py_ssize_t position;
};

BytesAsStream* as_stream(PyObject* object) { return reinterpret_cast<BytesAsStream*>(object); }

void release(BytesAsStream* stream) {
    if (stream->has_view) {
        PyBuffer_Release(&stream->view);
        stream->has_view = false;
    }
}

void stream_dealloc(PyObject* self) {
    release(as_stream(self));
    Py_TYPE(self)->tp_free(self);
}

int stream_init(PyObject* self, PyObject* args, PyObject* kwargs) {
    static const char* keywords[] = {"buffer", nullptr};
    PyObject* buffer = nullptr;
    if (!PyArg_ParseTupleAndKeywords(args, kwargs, "O:BytesAsStream", const_cast<char**>(keywords),
                                     &buffer)) {
        return -1;
    }
    Py_buffer view;
    if (PyObject_GetBuffer(buffer, &view, PyBUF_SIMPLE) != 0) {
        return -1;
    }
    BytesAsStream* stream = as_stream(self);
    release(stream);
    stream->view = view;
    stream->has_view = true;
    stream->is_closed = false;
    stream->position = 0;
    return 0;
}

bool is_open(const BytesAsStream* stream) {
    if (stream->has_view && !stream->is_closed) {
        return true;
    }
    PyErr_SetString(PyExc_ValueError, "I/O operation on closed stream");
    return false;
}

Py_ssize_t rest(const BytesAsStream* stream) {
    return std::max<Py_ssize_t>(stream->view.len - stream->position, 0);
}

const char* here(const BytesAsStream* stream) {
    const Py_ssize_t position = std::min(stream->position, stream->view.len);
    return static_cast<const char*>(stream->view.buf) + position;
}

PyObject* stream_read(PyObject* self, PyObject* args) {
    BytesAsStream* stream = as_stream(self);
    Py_ssize_t size = -1;
    const Py_ssize_t given = PyTuple_GET_SIZE(args);
    if (fn_check_args_count_out_of_range(given, "read", 0, 1) ||
        (given == 1 && !fn_conv_py_optional_to_ssize_t(args, &size)) || !is_open(stream)) {
        return nullptr;
    }
    const Py_ssize_t count = size < 0 ? rest(stream) : std::min(size, rest(stream));
    PyObject* bytes = PyBytes_FromStringAndSize(here(stream), count);
    if (bytes != nullptr) {
        stream->position += count;
    }
    return bytes;
}

PyObject* stream_readinto(PyObject* self, PyObject* target) {
    BytesAsStream* stream = as_stream(self);
    Py_buffer view;
    if (PyObject_GetBuffer(target, &view, PyBUF_WRITABLE) != 0) {
        if (PyErr_ExceptionMatches(PyExc_BufferError)) {
            PyErr_Format(PyExc_TypeError, "readinto() takes a writable buffer, not '%s'",
                         type_name_of(target));
        }
        return nullptr;
    }
    // Asked last: the target's own code may have closed the stream.
    if (!is_open(stream)) {
        PyBuffer_Release(&view);
        return nullptr;
    }
    const Py_ssize_t count = std::min(view.len, rest(stream));
    // The target may be the memory that the stream reads from.
    std::memmove(view.buf, here(stream), static_cast<size_t>(count));
    stream->position += count;
    PyBuffer_Release(&view);
    return PyLong_FromSsize_t(count);
}

PyObject* stream_seek(PyObject* self, PyObject* args) {
    BytesAsStream* stream = as_stream(self);
    Py_ssize_t offset = 0;
    int whence = 0;
    if (!PyArg_ParseTuple(args, "n|i:seek", &offset, &whence) || !is_open(stream)) {
        return nullptr;
    }
    const Py_ssize_t bases[] = {0, stream->position, stream->view.len};
    if (whence < 0 || whence > 2) {
        return PyErr_Format(PyExc_ValueError, "invalid whence (%i, should be 0, 1 or 2)", whence);
    }
    if (offset < -bases[whence]) {
        return PyErr_Format(PyExc_ValueError, "negative seek value %zd", bases[whence] + offset);
    }
    if (offset > PY_SSIZE_T_MAX - bases[whence]) {
        PyErr_SetString(PyExc_OverflowError, "seek value too large");
        return nullptr;
    }
    stream->position = bases[whence] + offset;
    return PyLong_FromSsize_t(stream->position);
}

PyObject* stream_tell(PyObject* self, PyObject*) {
    return is_open(as_stream(self)) ? PyLong_FromSsize_t(as_stream(self)->position) : nullptr;
}

PyObject* refuse_write(PyObject*, PyObject*) {
    PyErr_SetString(PyExc_OSError, "the stream is read-only");
    return nullptr;
}

PyObject* answer_true(PyObject* self, PyObject*) {
    return is_open(as_stream(self)) ? Py_NewRef(Py_True) : nullptr;
}
PyObject* answer_false(PyObject* self, PyObject*) {
    return is_open(as_stream(self)) ? Py_NewRef(Py_False) : nullptr;
}

PyObject* stream_close(PyObject* self, PyObject*) {
    as_stream(self)->is_closed = true;
    release(as_stream(self));
    Py_RETURN_NONE;
}

PyObject* stream_flush(PyObject* self, PyObject*) {
    return is_open(as_stream(self)) ? Py_NewRef(Py_None) : nullptr;
}
PyObject* stream_enter(PyObject* self, PyObject*) {
    return is_open(as_stream(self)) ? Py_NewRef(self) : nullptr;
}

PyObject* closed_getter(PyObject* self, void*) {
    return PyBool_FromLong(as_stream(self)->is_closed || !as_stream(self)->has_view);
}

PyMethodDef stream_methods[] = {
    {"read", stream_read, METH_VARARGS, "At most size bytes from here on, as bytes."},
    {"readinto", stream_readinto, METH_O, "Fills a writable buffer and returns the count."},
    {"seek", stream_seek, METH_VARARGS, "Moves to an offset from start, position or end."},
    {"tell", stream_tell, METH_NOARGS, "The position."},
    {"write", refuse_write, METH_O, "Always an error: the stream is read-only."},
    {"truncate", refuse_write, METH_VARARGS, "Always an error: the stream is read-only."},
    {"readable", answer_true, METH_NOARGS, nullptr},
    {"seekable", answer_true, METH_NOARGS, nullptr},
    {"writable", answer_false, METH_NOARGS, nullptr},
    {"flush", stream_flush, METH_NOARGS, nullptr},
    {"close", stream_close, METH_NOARGS, "Gives the bytes back to their owner."},
    {"__enter__", stream_enter, METH_NOARGS, nullptr},
    {"__exit__", stream_close, METH_VARARGS, nullptr},
    {}};
PyGetSetDef stream_getset[] = {{"closed", closed_getter, nullptr, nullptr, nullptr}, {}};

PyTypeObject stream_type = {
    .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name = "korvan.pycore.BytesAsStream",
    .tp_basicsize = sizeof(BytesAsStream),
    .tp_dealloc = stream_dealloc,
    .tp_flags = Py_TPFLAGS_DEFAULT,
    .tp_doc = "BytesAsStream(buffer)\n\nA read-only stream over a bytes-like object.",
    .tp_methods = stream_methods,
    .tp_getset = stream_getset,
    .tp_init = stream_init,
    .tp_new = PyType_GenericNew,
};

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "korvan.pycore",
                          nullptr,
                          -1,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

} // namespace

PyMODINIT_FUNC PyInit_pycore() {
    fn_intern_identifiers();
    Ref module = Ref::steal(PyModule_Create(&definition));
    if (!module || PyModule_AddType(module.get(), &stream_type) != 0 ||
        add_version_attributes(module.get(), "korvan.pycore._ModuleVersionType",
                               {25, 3, 0, 0, "25.3.0.0"}, {22, 6, 0, 0, "22.6.0.0"}) != 0) {
        return nullptr;
    }
    return module.release();
}
