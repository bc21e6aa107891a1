#include "generic/stream_reading.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

constexpr Py_ssize_t first_size = 1024;
constexpr Py_ssize_t unlimited = std::numeric_limits<Py_ssize_t>::max();

// A bytes object under construction: its first `total` bytes are read.
struct Bytes {
    Ref object;
    Py_ssize_t total = 0;

    explicit Bytes(Py_ssize_t size)
        : object(Ref::steal(PyBytes_FromStringAndSize(nullptr, size))) {}

    char* data() const { return PyBytes_AS_STRING(object.get()); }
    Py_ssize_t size() const { return PyBytes_GET_SIZE(object.get()); }
    bool is_full() const { return total == size(); }
    bool resize(Py_ssize_t size) {
        PyObject* resized = object.release();
        const bool done = _PyBytes_Resize(&resized, size) == 0;
        object = Ref::steal(resized);
        return done;
    }
    // Cut to its length, or null with an error.
    PyObject* finish(Py_ssize_t length) {
        return length == size() || resize(length) ? object.release() : nullptr;
    }
};

// Reads into the free part: the bytes read, 0 at the end, -1 with an error.
Py_ssize_t fill(PyObject* self, Bytes& bytes) {
    const Py_ssize_t room = std::min(bytes.size() - bytes.total, max_transfer);
    const int count =
        call_stream<int>(self, StreamSlot::read, static_cast<void*>(bytes.data() + bytes.total),
                         static_cast<int>(room));
    if (PyErr_Occurred() != nullptr) {
        return -1;
    }
    bytes.total += std::max(count, 0);
    return std::max(count, 0);
}

// Few managed calls for large streams, little waste for small ones.
Py_ssize_t grown(Py_ssize_t total) {
    if (total <= 8192) {
        return total + 4096;
    }
    if (total <= 65536) {
        return total * 3;
    }
    const Py_ssize_t more = total < 524288 ? 65536 : total / 8;
    return total > unlimited - more ? unlimited : total + more;
}

// A larger buffer for a full one. False with an error.
bool grow(Bytes& bytes, Py_ssize_t limit) {
    if (bytes.total == unlimited) {
        PyErr_SetString(PyExc_OverflowError, "unbounded read returned more bytes than a Python "
                                             "bytes buffer can hold");
        return false;
    }
    return bytes.resize(std::min(grown(bytes.total), limit));
}

} // namespace

PyObject* read_once(PyObject* self, Py_ssize_t size) {
    Bytes bytes(size);
    return bytes.object && fill(self, bytes) >= 0 ? bytes.finish(bytes.total) : nullptr;
}

PyObject* fn_stream_read_bytes_impl(PyObject* self, Py_ssize_t size) {
    Bytes bytes(size < 0 ? first_size : size);
    while (bytes.object) {
        const Py_ssize_t count = fill(self, bytes);
        if (count < 0) {
            return nullptr;
        }
        if (count == 0 || bytes.total == size) {
            return bytes.finish(bytes.total);
        }
        if (bytes.is_full() && !grow(bytes, unlimited)) {
            return nullptr;
        }
    }
    return nullptr;
}

PyObject* fn_stream_read_line_impl(PyObject* self, Py_ssize_t limit) {
    const Py_ssize_t max_size = limit < 0 ? unlimited : limit;
    Bytes bytes(std::min(first_size, max_size));
    while (bytes.object) {
        const Py_ssize_t before = bytes.total;
        const Py_ssize_t count = fill(self, bytes);
        if (count < 0) {
            return nullptr;
        }
        const char* fresh = bytes.data() + before;
        const void* newline = std::memchr(fresh, '\n', static_cast<size_t>(count));
        if (newline != nullptr) {
            const Py_ssize_t length = static_cast<const char*>(newline) - bytes.data() + 1;
            if (bytes.total > length) {
                call_stream<long>(self, StreamSlot::seek, static_cast<long>(length - bytes.total),
                                  SEEK_CUR);
            }
            return PyErr_Occurred() != nullptr ? nullptr : bytes.finish(length);
        }
        if (count == 0 || bytes.total == max_size) {
            return bytes.finish(bytes.total);
        }
        if (bytes.is_full() && !grow(bytes, max_size)) {
            return nullptr;
        }
    }
    return nullptr;
}
