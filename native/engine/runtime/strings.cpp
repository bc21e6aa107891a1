#include "runtime/strings.h"

#include "runtime/identifiers.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>
#include <string>

namespace {

constexpr int utf16_little_endian = -1;
// No handler of this name exists, so an unpaired surrogate surfaces as LookupError.
constexpr const char* no_handler = "";

PyObject* decode(const char* data, Py_ssize_t code_units) {
    int order = utf16_little_endian;
    return PyUnicode_DecodeUTF16(data, code_units * 2, no_handler, &order);
}

template <class Unit> void narrow(const char16_t* units, Py_ssize_t count, void* out) {
    for (Py_ssize_t i = 0; i < count; ++i) {
        static_cast<Unit*>(out)[i] = static_cast<Unit>(units[i]);
    }
}

bool has_surrogate(const char16_t* units, Py_ssize_t count) {
    bool found = false;
    for (Py_ssize_t i = 0; i < count; ++i) {
        found |= (units[i] & 0xF800) == 0xD800;
    }
    return found;
}

// Text without surrogates is copied straight into a new str of the width that it needs; the
// decoder's general machinery takes several times as long for short text.
PyObject* decode_text(const char16_t* units, Py_ssize_t count) {
    char16_t bits = 0;
    for (Py_ssize_t i = 0; i < count; ++i) {
        bits |= units[i];
    }
    if (count < 2 || (bits >= 0xD800 && has_surrogate(units, count))) {
        return decode(reinterpret_cast<const char*>(units), count);
    }
    // The bits in use tell the width: 7, 8 or 16 of them, whatever the largest character is.
    const Py_UCS4 widest = bits < 0x80 ? 0x7F : (bits < 0x100 ? 0xFF : 0xFFFF);
    PyObject* text = PyUnicode_New(count, widest);
    if (text == nullptr) {
        return nullptr;
    }
    if (widest == 0xFFFF) {
        narrow<Py_UCS2>(units, count, PyUnicode_2BYTE_DATA(text));
    } else {
        narrow<Py_UCS1>(units, count, PyUnicode_1BYTE_DATA(text));
    }
    return text;
}

// A str as UTF-16 with a byte order mark in front, or null with the error of a `char`.
PyObject* encode_for_char(PyObject* object) {
    if (!PyUnicode_Check(object)) {
        PyErr_Format(PyExc_TypeError, "can't build Char from '%s'", type_name_of(object));
        return nullptr;
    }
    Ref encoded = Ref::steal(PyUnicode_AsUTF16String(object));
    if (!encoded) {
        if (PyErr_Occurred() == nullptr) {
            PyErr_SetString(PyExc_TypeError, "cannot convert unicode object to byte string");
        }
        return nullptr;
    }
    if (!PyBytes_Check(encoded.get())) {
        PyErr_Format(PyExc_TypeError, "converted string must be bytes-like object, not '%s'",
                     type_name_of(encoded.get()));
        return nullptr;
    }
    return encoded.release();
}

// Names of layers, styles and line types come again and again: the Python strings of the last
// short ones are kept. Each row has room for one.
constexpr int max_cached_units = 16;
constexpr int cache_bits = 7;
struct CachedText {
    char16_t units[max_cached_units];
    int length;
    PyObject* text; // owned
};
CachedText cached_texts[1 << cache_bits];

template <class Word> std::uint64_t word_at(const char* data) {
    Word word;
    std::memcpy(&word, data, sizeof(word));
    return word;
}

// By the first units and the last ones, which overlap in a text of less than eight.
size_t cache_row(const char* data, int length) {
    const char* end = data + static_cast<size_t>(length) * sizeof(char16_t);
    std::uint64_t mixed = static_cast<std::uint64_t>(length);
    if (length >= 4) {
        mixed += word_at<std::uint64_t>(data) ^ (word_at<std::uint64_t>(end - 8) * 31);
    } else if (length >= 2) {
        mixed += word_at<std::uint32_t>(data) ^ (word_at<std::uint32_t>(end - 4) * 31);
    } else {
        mixed += word_at<std::uint16_t>(data);
    }
    return (mixed * 0x9E3779B97F4A7C15) >> (64 - cache_bits);
}

} // namespace

int fn_conv_py_string_to_clr_string(PyObject* object, PyStringArg* out) {
    if (object == Py_None) {
        out->length = -1;
        return 1;
    }
    if (!PyUnicode_Check(object)) {
        PyErr_Format(PyExc_TypeError, "can't build String from '%s'", type_name_of(object));
        return 0;
    }
    return fn_conv_py_string_to_clr_string_value(object, out);
}

int fn_conv_py_string_to_clr_string_value(PyObject* object, PyStringArg* out) {
    const int kind = PyUnicode_KIND(object);
    if (kind != PyUnicode_1BYTE_KIND && kind != PyUnicode_2BYTE_KIND &&
        kind != PyUnicode_4BYTE_KIND) {
        PyErr_Format(PyExc_TypeError, "unknown unicode encoding '%i'", kind);
        return 0;
    }
    out->data = PyUnicode_DATA(object);
    out->char_size = kind;
    out->length = static_cast<std::int32_t>(PyUnicode_GET_LENGTH(object));
    return 1;
}

int fn_read_py_string(PyObject* object, PyStringArg* out) {
    return fn_conv_py_string_to_clr_string_value(object, out);
}

int fn_conv_py_strorpath_to_clr_string(PyObject* object, PyEphStrArg* out) {
    out->owner = nullptr;
    if (object == Py_None) {
        out->text.length = -1;
        return 1;
    }
    if (PyUnicode_Check(object)) {
        return fn_conv_py_string_to_clr_string_value(object, &out->text);
    }
    Ref text;
    if (!PyUnicode_FSDecoder(object, text.out()) ||
        !fn_conv_py_string_to_clr_string_value(text.get(), &out->text)) {
        return 0;
    }
    out->owner = text.release();
    return 1;
}

PyObject* fn_conv_clr_string_to_py_string_value(const char* data, long length) {
    return decode_text(reinterpret_cast<const char16_t*>(data), length);
}

PyObject* fn_conv_clr_string_to_py_string(const char* data, int length) {
    if (length < 1 || length > max_cached_units) {
        return fn_conv_clr_string_to_py_string_value(data, length);
    }
    CachedText& row = cached_texts[cache_row(data, length)];
    const size_t size = static_cast<size_t>(length) * sizeof(char16_t);
    if (row.length == length && std::memcmp(row.units, data, size) == 0) {
        return Py_NewRef(row.text);
    }
    PyObject* text = fn_conv_clr_string_to_py_string_value(data, length);
    if (text != nullptr) {
        row.length = length;
        std::memcpy(row.units, data, size);
        Py_XSETREF(row.text, Py_NewRef(text));
    }
    return text;
}

PyObject* fn_conv_clr_string_to_py_unraisable(const char* data, int length) {
    PyObject* text = fn_conv_clr_string_to_py_string_value(data, length);
    if (text == nullptr && PyErr_Occurred() != nullptr) {
        PyErr_WriteUnraisable(PyWrpIdTraceBack_FormatExceptionWarning);
    }
    return text;
}

void* fn_create_u16_buffer(const char16_t* data, int length) {
    if (data == nullptr && length != 0) {
        throw std::logic_error("fn_create_u16_buffer: no characters");
    }
    void* holder = std::malloc(sizeof(std::u16string));
    if (holder == nullptr) {
        throw std::bad_alloc();
    }
    return new (holder) std::u16string(length == 0 ? u"" : data, static_cast<size_t>(length));
}

int fn_conv_py_string_to_clr_char(PyObject* object, unsigned short* out) {
    const Ref encoded = Ref::steal(encode_for_char(object));
    if (!encoded) {
        return 0;
    }
    if (PyBytes_GET_SIZE(encoded.get()) != 4) { // the byte order mark and one unit
        PyErr_SetString(PyExc_TypeError, "string must contain one UTF-16 code unit");
        return 0;
    }
    std::memcpy(out, PyBytes_AS_STRING(encoded.get()) + 2, sizeof(*out));
    return 1;
}

PyObject* fn_conv_clr_char_to_py_string(unsigned short code_unit) {
    return decode(reinterpret_cast<const char*>(&code_unit), 1);
}

PyObject* fn_write_py_char(int code_unit) {
    return fn_conv_clr_char_to_py_string(static_cast<unsigned short>(code_unit & 0xFFFF));
}

int fn_clbk_ucol_get_unicode_bytes(PyObject* object, PyObject** keep, int* length, void** data) {
    Ref encoded = Ref::steal(encode_for_char(object));
    if (!encoded) {
        return 0;
    }
    *length = static_cast<int>((PyBytes_GET_SIZE(encoded.get()) - 2) / 2);
    char* bytes = PyBytes_AsString(encoded.get());
    if (bytes == nullptr) {
        return 0;
    }
    // The managed reader counts on this offset: behind the mark and the first unit.
    *data = bytes + 4;
    *keep = encoded.release();
    return 1;
}
