#include "generic/stream_wrapper.h"

#include "bindings/casts.h"
#include "generic/interop.h"
#include "generic/stream_reading.h"
#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "runtime/numbers.h"

#include <algorithm>

namespace {

void* stream_slots[16];
HostRecord stream_host = {
    "Korvan.WrpGen.Interop.SiApiStream",
    "CanRead\0CanSeek\0CanWrite\0Length\0Position\0Close\0Flush\0Read\0Seek\0SetLength\0Write\0"
    "btp_IsAssignable\0btp_TypeOf\0btp_CastTo\0btp_ReInterpretObj\0btp_CastAs\0",
    stream_slots, 16};

std::int32_t& closed_flag(PyObject* self) {
    return reinterpret_cast<PyShStreamObject*>(self)->closed;
}

PyObject* none_or_null() { return PyErr_Occurred() != nullptr ? nullptr : Py_NewRef(Py_None); }

bool check_open(PyObject* self) {
    if (closed_flag(self) == 0) {
        return true;
    }
    PyErr_SetString(PyExc_ValueError, "I/O operation on closed stream");
    return false;
}

// Reading a line reads past it and seeks back.
bool check_seekable(PyObject* self) {
    const auto seekable = call_stream<unsigned char>(self, StreamSlot::can_seek);
    if (PyErr_Occurred() != nullptr) {
        PyShlErr_ChainFormat(PyExc_TypeError,
                             "the operation supported only for seekable inner streams. an "
                             "exception was thrown during 'CanSeek' check");
        return false;
    }
    if (seekable == 0) {
        PyErr_SetString(PyExc_TypeError, "the operation supported only for seekable inner "
                                         "streams. the inner stream is not seekable");
    }
    return seekable != 0;
}

// The one optional size of a method; None and nothing leave it as it is.
bool read_size(PyObject* args, const char* name, Py_ssize_t* size) {
    const Py_ssize_t given = PyTuple_GET_SIZE(args);
    return !fn_check_args_count_out_of_range(given, name, 0, 1) &&
           (given == 0 || fn_conv_py_optional_to_ssize_t(args, size));
}

template <StreamSlot Slot> PyObject* ask(PyObject* self, PyObject*) {
    if (!check_open(self)) {
        return nullptr;
    }
    const auto answer = call_stream<unsigned char>(self, Slot);
    return PyErr_Occurred() != nullptr ? nullptr : PyBool_FromLong(answer);
}

PyObject* long_or_null(long value) {
    return PyErr_Occurred() != nullptr ? nullptr : PyLong_FromLong(value);
}

// ---- state and position ----------------------------------------------------------------------

PyObject* stream_close(PyObject* self, PyObject*) {
    if (closed_flag(self) != 0) {
        Py_RETURN_NONE;
    }
    call_stream<void>(self, StreamSlot::close);
    closed_flag(self) = 1;
    return none_or_null();
}

PyObject* stream_exit(PyObject* self, PyObject* args) {
    PyObject* result = wrpPye_bltp_idisposable_exit(self, args);
    closed_flag(self) = 1;
    return result;
}

PyObject* stream_closed(PyObject* self, void*) { return PyBool_FromLong(closed_flag(self)); }

PyObject* stream_flush(PyObject* self, PyObject*) {
    if (!check_open(self)) {
        return nullptr;
    }
    call_stream<void>(self, StreamSlot::flush);
    return none_or_null();
}

PyObject* stream_isatty(PyObject* self, PyObject*) {
    return check_open(self) ? Py_NewRef(Py_False) : nullptr;
}

PyObject* stream_fileno(PyObject*, PyObject*) {
    return PyErr_Format(PyExc_ValueError, "fileno method is not supported");
}

PyObject* stream_tell(PyObject* self, PyObject*) {
    return check_open(self) ? long_or_null(call_stream<long>(self, StreamSlot::position)) : nullptr;
}

PyObject* stream_seek(PyObject* self, PyObject* args) {
    long offset = 0;
    int whence = SEEK_SET;
    if (!PyArg_ParseTuple(args, "O&|i", fn_conv_py_long_to_clr_int64, &offset, &whence)) {
        return nullptr;
    }
    if (static_cast<unsigned int>(whence) > SEEK_END) {
        return PyErr_Format(PyExc_ValueError, "invalid whence (%i, should be 0, 1 or 2)", whence);
    }
    if (whence == SEEK_SET && offset < 0) {
        return PyErr_Format(PyExc_ValueError, "negative seek value %zd", offset);
    }
    if (!check_open(self)) {
        return nullptr;
    }
    return long_or_null(call_stream<long>(self, StreamSlot::seek, offset, whence));
}

PyObject* stream_truncate(PyObject* self, PyObject* args) {
    Py_ssize_t size = 0;
    if (!read_size(args, "truncate", &size) || !check_open(self)) {
        return nullptr;
    }
    const bool at_position = PyTuple_GET_SIZE(args) == 0 || PyTuple_GET_ITEM(args, 0) == Py_None;
    return long_or_null(call_stream<long>(self, StreamSlot::set_length,
                                          static_cast<int>(at_position), static_cast<long>(size)));
}

// ---- reading ---------------------------------------------------------------------------------

PyObject* stream_read(PyObject* self, PyObject* args) {
    Py_ssize_t size = -1;
    if (!read_size(args, "read", &size) || !check_open(self)) {
        return nullptr;
    }
    if (size >= 0 && size <= max_transfer) {
        return read_once(self, size);
    }
    return fn_stream_read_bytes_impl(self, size < 0 ? -1 : size);
}

PyObject* stream_readall(PyObject* self, PyObject*) {
    return check_open(self) ? fn_stream_read_bytes_impl(self, -1) : nullptr;
}

PyObject* stream_readline(PyObject* self, PyObject* args) {
    Py_ssize_t size = -1;
    if (!read_size(args, "readline", &size) || !check_open(self) || !check_seekable(self)) {
        return nullptr;
    }
    return fn_stream_read_line_impl(self, size);
}

PyObject* wrpPye_bltp_stream_iter(PyObject* self) {
    return check_open(self) && check_seekable(self) ? Py_NewRef(self) : nullptr;
}

PyObject* wrpPye_bltp_stream_iternext(PyObject* self) {
    Ref line = Ref::steal(fn_stream_read_line_impl(self, -1));
    return line && PyBytes_GET_SIZE(line.get()) > 0 ? line.release() : nullptr;
}

// Lines until their sizes reach the hint.
bool read_some_lines(PyObject* self, Py_ssize_t hint, PyObject* lines) {
    const Ref iterator = Ref::steal(PyObject_GetIter(self));
    while (iterator) {
        const Ref line = Ref::steal(PyIter_Next(iterator.get()));
        if (!line) {
            return PyErr_Occurred() == nullptr;
        }
        if (PyList_Append(lines, line.get()) != 0) {
            return false;
        }
        const Py_ssize_t size = PyBytes_GET_SIZE(line.get());
        if (hint <= size) {
            return true;
        }
        hint -= size;
    }
    return false;
}

PyObject* stream_readlines(PyObject* self, PyObject* args) {
    Py_ssize_t hint = -1;
    if (!read_size(args, "readlines", &hint) || !check_open(self) || !check_seekable(self)) {
        return nullptr;
    }
    Ref lines = Ref::steal(PyList_New(0));
    if (!lines) {
        return nullptr;
    }
    const bool done =
        hint < 1 ? static_cast<bool>(
                       Ref::steal(PyObject_CallMethodOneArg(lines.get(), PyWrpIdList_Extend, self)))
                 : read_some_lines(self, hint, lines.get());
    return done ? lines.release() : nullptr;
}

// ---- buffers of Python's ---------------------------------------------------------------------

// An exporter's memory, given back at the end of the call.
struct BufferView {
    Py_buffer view = {};
    BufferView() = default;
    BufferView(const BufferView&) = delete;
    BufferView& operator=(const BufferView&) = delete;
    ~BufferView() { PyBuffer_Release(&view); }
};

struct BufferMessages {
    const char* not_a_buffer;
    const char* not_contiguous;
};
constexpr BufferMessages write_words = {"write argument must be bytes-like object, not '%s'",
                                        "write argument must be contiguous buffer, not '%s'"};
constexpr BufferMessages readinto_words = {
    "readinto argument must be read-write bytes-like object, not '%s'",
    "readinto argument must be read-write contiguous buffer, not '%s'"};

bool acquire(PyObject* object, int flags, const BufferMessages& words, BufferView& buffer) {
    const char* given = object == Py_None ? "None" : type_name_of(object);
    if (PyObject_GetBuffer(object, &buffer.view, flags) != 0) {
        PyErr_Clear();
        PyErr_Format(PyExc_TypeError, words.not_a_buffer, given);
        return false;
    }
    if (!PyBuffer_IsContiguous(&buffer.view, 'C')) {
        PyErr_Format(PyExc_TypeError, words.not_contiguous, given);
        return false;
    }
    return true;
}

PyObject* stream_readinto(PyObject* self, PyObject* object) {
    BufferView buffer;
    if (!check_open(self) || !acquire(object, PyBUF_WRITABLE, readinto_words, buffer)) {
        return nullptr;
    }
    auto* const data = static_cast<char*>(buffer.view.buf);
    Py_ssize_t total = 0;
    while (total < buffer.view.len) {
        const Py_ssize_t wanted = std::min(buffer.view.len - total, max_transfer);
        const int count = call_stream<int>(self, StreamSlot::read, static_cast<void*>(data + total),
                                           static_cast<int>(wanted));
        if (PyErr_Occurred() != nullptr) {
            return nullptr;
        }
        total += count;
        if (count < wanted) {
            break;
        }
    }
    return PyLong_FromSsize_t(total);
}

PyObject* stream_write(PyObject* self, PyObject* object) {
    BufferView buffer;
    if (!check_open(self) || !acquire(object, PyBUF_SIMPLE, write_words, buffer)) {
        return nullptr;
    }
    auto* const data = static_cast<char*>(buffer.view.buf);
    Py_ssize_t total = 0;
    while (total < buffer.view.len) {
        const Py_ssize_t count = std::min(buffer.view.len - total, max_transfer);
        call_stream<void>(self, StreamSlot::write, static_cast<void*>(data + total),
                          static_cast<int>(count));
        if (PyErr_Occurred() != nullptr) {
            return nullptr;
        }
        total += count;
    }
    return PyLong_FromSsize_t(total);
}

PyObject* stream_writelines(PyObject* self, PyObject* lines) {
    const Ref iterator = check_open(self) ? Ref::steal(PyObject_GetIter(lines)) : Ref();
    while (iterator) {
        const Ref line = Ref::steal(PyIter_Next(iterator.get()));
        if (!line) {
            return none_or_null();
        }
        if (!Ref::steal(stream_write(self, line.get()))) {
            return nullptr;
        }
    }
    return nullptr;
}

// ---- tables ----------------------------------------------------------------------------------

PyMethodDef stream_methods[] = {{"close", stream_close, METH_NOARGS, nullptr},
                                {"flush", stream_flush, METH_NOARGS, nullptr},
                                {"readable", ask<StreamSlot::can_read>, METH_NOARGS, nullptr},
                                {"seekable", ask<StreamSlot::can_seek>, METH_NOARGS, nullptr},
                                {"writable", ask<StreamSlot::can_write>, METH_NOARGS, nullptr},
                                {"tell", stream_tell, METH_NOARGS, nullptr},
                                {"seek", stream_seek, METH_VARARGS, nullptr},
                                {"truncate", stream_truncate, METH_VARARGS, nullptr},
                                {"write", stream_write, METH_O, nullptr},
                                {"writelines", stream_writelines, METH_O, nullptr},
                                {"readline", stream_readline, METH_VARARGS, nullptr},
                                {"readlines", stream_readlines, METH_VARARGS, nullptr},
                                {"readinto", stream_readinto, METH_O, nullptr},
                                {"read", stream_read, METH_VARARGS, nullptr},
                                {"readall", stream_readall, METH_NOARGS, nullptr},
                                {"fileno", stream_fileno, METH_NOARGS, nullptr},
                                {"isatty", stream_isatty, METH_NOARGS, nullptr},
                                {"__enter__", wrpPye_bltp_idisposable_enter, METH_NOARGS, nullptr},
                                {"__exit__", stream_exit, METH_VARARGS, nullptr},
                                KORVAN_WRAPPER_METHODS(wrpPye_tyds_StreamWrapper),
                                {}};

PyGetSetDef stream_getset[] = {{"closed", stream_closed, nullptr, nullptr, nullptr}, {}};

ClassBinding* const stream_interfaces[] = {&wrpPye_tyds_IDisposableWrapper, nullptr};

} // namespace

void* stream_delegate(StreamSlot slot) {
    return reinterpret_cast<void*>(
        host_slot<void()>(stream_host, static_cast<std::uint16_t>(slot)));
}

void fill_stream_slots(PyTypeObject& type) {
    type.tp_basicsize = sizeof(PyShStreamObject);
    type.tp_iter = wrpPye_bltp_stream_iter;
    type.tp_iternext = wrpPye_bltp_stream_iternext;
}

constinit ClassBinding wrpPye_tyds_StreamWrapper = {
    .short_name = "_StreamWrapper",
    .what = "Stream",
    .kind = ClassKind::object,
    .host = &stream_host,
    .first_cast_slot = static_cast<std::uint16_t>(StreamSlot::type_of),
    .assignable_slot = static_cast<std::uint16_t>(StreamSlot::is_assignable),
    .methods = stream_methods,
    .getset = stream_getset,
    .additional_interfaces = stream_interfaces,
    .implicit_interfaces = stream_interfaces,
    .protocol = Protocol::stream,
};
