// Callback slots over a Python file object, which the managed side reads and writes as a stream.
#include "runtime/callbacks.h"
#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "runtime/numbers.h"

namespace {

// Managed memory shown to a Python stream for the length of one call. It owns nothing.
struct PyShlBufferView {
    PyObject_HEAD
    void* buffer;
    std::int64_t length;
    std::int32_t read_only;
};

int wrpPye_blpt_shl_buffer_getbuffer(PyObject* self, Py_buffer* view, int flags) {
    const auto* shown = reinterpret_cast<PyShlBufferView*>(self);
    return PyBuffer_FillInfo(view, self, shown->buffer, shown->length, shown->read_only, flags);
}

PyBufferProcs buffer_procs = {wrpPye_blpt_shl_buffer_getbuffer, nullptr};

// The result of a method that was given a view of `memory`. The view object stays behind, as the
// stream may have kept it.
PyObject* call_with_view(PyObject* stream, PyObject* method, void* memory, long count,
                         int read_only) {
    PyObject* view = fn_create_shlbuffer_view(memory, count, read_only);
    return view != nullptr ? PyObject_CallMethodOneArg(stream, method, view) : nullptr;
}

// A count that a read or write returned; None counts as nothing done.
int count_of(const Ref& result) {
    if (!result) {
        return -1;
    }
    if (result.get() == Py_None) {
        return 0;
    }
    int count = 0;
    return fn_conv_py_long_to_clr_int32(result.get(), &count) ? count : -1;
}

long position_of(const Ref& result) {
    long position = 0;
    return result && fn_conv_py_long_to_clr_int64(result.get(), &position) ? position : -1;
}

// 1, 0, or -1 with a chained error.
int is_closed(PyObject* stream) {
    const Ref closed = Ref::steal(PyObject_GetAttr(stream, PyWrpIdRawIo_Closed));
    bool value = false;
    if (!closed || !fn_conv_py_bool_to_clr_bool(closed.get(), &value)) {
        PyShlErr_ChainFormat(PyExc_TypeError,
                             "An error occurred while checking if the stream is closed");
        return -1;
    }
    return value;
}

int ask(PyObject* stream, PyObject* question) {
    const Ref answer = Ref::steal(PyObject_CallMethodNoArgs(stream, question));
    bool value = false;
    return answer && fn_conv_py_bool_to_clr_bool(answer.get(), &value) ? value : -1;
}

int ask_if_open(PyObject* stream, PyObject* question) {
    const int closed = is_closed(stream);
    if (closed != 0) {
        return closed > 0 ? 0 : -1;
    }
    return ask(stream, question);
}

Ref seek(PyObject* stream, long offset, int whence) {
    const Ref offset_object = Ref::steal(PyLong_FromLong(offset));
    const Ref whence_object = Ref::steal(PyLong_FromLong(whence));
    if (!offset_object || !whence_object) {
        return {};
    }
    return Ref::steal(PyObject_CallMethodObjArgs(stream, PyWrpIdRawIo_Seek, offset_object.get(),
                                                 whence_object.get(), nullptr));
}

// The length by going to the end and back; -1 with an error.
long measure(PyObject* stream) {
    const Ref here = seek(stream, 0, 1);
    if (!here) {
        return -1;
    }
    const Ref end = seek(stream, 0, 2);
    if (!end || !Ref::steal(PyObject_CallMethodOneArg(stream, PyWrpIdRawIo_Seek, here.get()))) {
        return -1;
    }
    long length = 0;
    return fn_conv_py_long_to_clr_int64(end.get(), &length) ? length : -1;
}

} // namespace

PyTypeObject wrpPye_tyds_ShlBufferView = {
    .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name =
        "korvan.cad._wrpgen._interop._ShlBufferView",
    .tp_basicsize = sizeof(PyShlBufferView),
    .tp_as_buffer = &buffer_procs,
    .tp_alloc = PyType_GenericAlloc,
    .tp_new = PyType_GenericNew,
};

PyObject* fn_create_shlbuffer_view(void* memory, long length, int read_only) {
    PyObject* object = PyType_GenericNew(&wrpPye_tyds_ShlBufferView, nullptr, nullptr);
    if (object != nullptr) {
        auto* view = reinterpret_cast<PyShlBufferView*>(object);
        view->buffer = memory;
        view->length = length;
        view->read_only = read_only;
    }
    return object;
}

int fn_clbk_rawio_write(PyObject* stream, const unsigned char* data, int count) {
    return count_of(Ref::steal(
        call_with_view(stream, PyWrpIdRawIo_Write, const_cast<unsigned char*>(data), count, 1)));
}

int fn_clbk_rawio_write_byte(PyObject* stream, int byte) {
    const auto low = static_cast<unsigned char>(byte);
    return fn_clbk_rawio_write(stream, &low, 1);
}

int fn_clbk_rawio_read(PyObject* stream, unsigned char* data, int count) {
    return count_of(Ref::steal(call_with_view(stream, PyWrpIdRawIo_ReadInto, data, count, 0)));
}

int fn_clbk_rawio_readbyte(PyObject* stream) {
    unsigned char byte = 0;
    const Ref result = Ref::steal(call_with_view(stream, PyWrpIdRawIo_ReadInto, &byte, 1, 0));
    if (!result) {
        return -2;
    }
    if (result.get() == Py_None) {
        PyErr_SetString(PyExc_OSError, "no bytes are available for reading");
        return -2;
    }
    int count = 0;
    if (!fn_conv_py_long_to_clr_int32(result.get(), &count)) {
        return -2;
    }
    return count == 0 ? -1 : byte;
}

long fn_clbk_rawio_seek(PyObject* stream, long offset, int whence) {
    return position_of(seek(stream, offset, whence));
}

int fn_clbk_rawio_truncate(PyObject* stream, long size) {
    const Ref wanted = Ref::steal(PyLong_FromLong(size));
    if (!wanted ||
        !Ref::steal(PyObject_CallMethodOneArg(stream, PyWrpIdRawIo_Truncate, wanted.get()))) {
        return -1;
    }
    // The truncation did happen, whatever becomes of the position.
    const long position = fn_clbk_rawio_tell(stream);
    if (position != -1 && size >= 0 && size < position) {
        seek(stream, size, 0);
    }
    PyErr_Clear();
    return 0;
}

int fn_clbk_rawio_flush(PyObject* stream) {
    return Ref::steal(PyObject_CallMethodNoArgs(stream, PyWrpIdRawIo_Flush)) ? 0 : -1;
}

void fn_clbk_rawio_close(PyObject* stream) {
    SavedError pending;
    pending.fetch();
    if (!Ref::steal(PyObject_CallMethodNoArgs(stream, PyWrpIdRawIo_Close))) {
        PyErr_WriteUnraisable(stream);
    }
    pending.restore();
}

int fn_clbk_rawio_readable(PyObject* stream) { return ask_if_open(stream, PyWrpIdRawIo_Readable); }
int fn_clbk_rawio_writable(PyObject* stream) { return ask_if_open(stream, PyWrpIdRawIo_Writable); }
int fn_clbk_rawio_seekable(PyObject* stream) { return ask_if_open(stream, PyWrpIdRawIo_Seekable); }

long fn_clbk_rawio_tell(PyObject* stream) {
    return position_of(Ref::steal(PyObject_CallMethodNoArgs(stream, PyWrpIdRawIo_Tell)));
}

long fn_clbk_rawio_length(PyObject* stream) {
    constexpr long closed_stream = -3;
    constexpr long not_seekable = -2;
    const int closed = is_closed(stream);
    if (closed != 0) {
        return closed > 0 ? closed_stream : -1;
    }
    const int seekable = ask(stream, PyWrpIdRawIo_Seekable);
    if (seekable == 0) {
        return not_seekable;
    }
    const long length = seekable < 0 ? -1 : measure(stream);
    if (length == -1 && PyErr_Occurred() != nullptr) {
        PyShlErr_ChainFormat(PyExc_TypeError,
                             "While calculating the length of the stream, an error occurred.");
    }
    return length;
}
