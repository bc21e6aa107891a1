// generic/stream_reading.h: bytes and lines out of a managed stream.
#ifndef KORVAN_GENERIC_STREAM_READING_H
#define KORVAN_GENERIC_STREAM_READING_H

#include "runtime/py_base.h"

// The delegates of a stream, in the order of its host.
enum class StreamSlot : std::uint16_t {
    can_read,
    can_seek,
    can_write,
    length,
    position,
    close,
    flush,
    read,
    seek,
    set_length,
    write,
    is_assignable,
    type_of,
};

// The upper limit of one managed transfer.
constexpr Py_ssize_t max_transfer = 0x7FFFFFFF;

void* stream_delegate(StreamSlot slot);

// Calls a delegate on the stream behind `self`.
template <class Result, class... Arguments>
Result call_stream(PyObject* self, StreamSlot slot, Arguments... arguments) {
    const auto function = reinterpret_cast<Result (*)(void*, Arguments...)>(stream_delegate(slot));
    return function(clr_handle(self), arguments...);
}

// The bytes up to the end or to `size`, however short the single transfers are; -1: to the end.
PyObject* fn_stream_read_bytes_impl(PyObject* self, Py_ssize_t size);
// One transfer of `size` at most, as a raw stream reads.
PyObject* read_once(PyObject* self, Py_ssize_t size);
// The bytes up to a newline, the end or `limit`; the stream is put right behind them. A negative
// limit is none.
PyObject* fn_stream_read_line_impl(PyObject* self, Py_ssize_t limit);

#endif
