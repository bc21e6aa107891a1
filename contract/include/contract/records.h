// contract/records.h: the value records of the boundary, byte for byte.
//
// Both halves of the bridge read and write these by position: the native engine includes this
// header, managed/WrpInterop.Korvan.CAD/Runtime mirrors it with explicit layout. All records are
// for 64-bit little-endian systems. A record never outlives the call that carries it; whoever
// receives one copies what it keeps.
#ifndef KORVAN_CONTRACT_RECORDS_H
#define KORVAN_CONTRACT_RECORDS_H

#include <cstddef>
#include <cstdint>
#include <type_traits>

// The one tagged record. `kind` is a korvan_reference_kind where the managed parameter is typed,
// a korvan_variant_kind where it is the universal object type (contract/status.h).
struct VariantArg {
    std::int32_t kind;
    std::int32_t reserved;
    void* value; // managed handle, borrowed Python object, or null
};

// A Python string's own storage, borrowed: `length` code points of `char_size` bytes each.
struct PyStringArg {
    std::int32_t length; // -1: a null string
    std::int32_t char_size; // 1 Latin-1, 2 UCS-2, 4 UCS-4
    const void* data;
};

// A string view that may own the object it points into (a path turned into text).
struct PyEphStrArg {
    PyStringArg text;
    void* owner; // strong reference or null
};

// A pinned buffer. `acquired` is 1 once there is a view to release.
struct PyBytesArg {
    std::int32_t acquired;
    std::int32_t length; // -1: a null array
    const void* data;
};

// A result of interface type: a handle and the identity of the object's exact type.
struct PyObjectOutArg {
    void* handle; // null: None
    std::int64_t type_key;
};

// A result that may be a collection, a stream or a Python object on its way home.
struct PyCollectionArg {
    std::int32_t kind; // korvan_collection_kind
    std::int32_t reserved;
    void* handle; // managed handle or Python object; null: None
    std::int64_t type_key;
};

struct PySysVersionArg {
    std::int32_t count; // -1: a null version, else 2 to 4
    std::int32_t parts[4];
};

// A moment on its way out: the clock reading with its kind in the two top bits, and the offset from
// UTC, which is read for a local time alone. A DateTimeOffset has this form in both directions.
struct PyDateTimeOut {
    std::int64_t ticks;
    std::int64_t offset;
};

// A decimal: 96 bits of mantissa, then the scale in bits 16 to 23 and the sign in bit 31.
struct PyDecimalArg {
    std::uint32_t low;
    std::uint32_t middle;
    std::uint32_t high;
    std::uint32_t flags;
};

// The colour of korvan.pydrawing: opacity, red, green and blue from the highest byte down.
struct ShlColorObject {
    std::uint32_t argb;
    std::int32_t is_set; // 0: the colour that was never set, which is not transparent black
};

// The rectangle of korvan.pydrawing, in single precision.
struct ShlRectangleFObject {
    float x;
    float y;
    float width;
    float height;
};

#define KORVAN_RECORD(record, size)                                                                \
    static_assert(sizeof(record) == (size) && std::is_standard_layout_v<record> &&                 \
                  std::is_trivially_copyable_v<record>)
#define KORVAN_FIELD(record, field, offset) static_assert(offsetof(record, field) == (offset))

KORVAN_RECORD(VariantArg, 16);
KORVAN_FIELD(VariantArg, kind, 0);
KORVAN_FIELD(VariantArg, value, 8);
KORVAN_RECORD(PyStringArg, 16);
KORVAN_FIELD(PyStringArg, length, 0);
KORVAN_FIELD(PyStringArg, char_size, 4);
KORVAN_FIELD(PyStringArg, data, 8);
KORVAN_RECORD(PyEphStrArg, 24);
KORVAN_FIELD(PyEphStrArg, text, 0);
KORVAN_FIELD(PyEphStrArg, owner, 16);
KORVAN_RECORD(PyBytesArg, 16);
KORVAN_FIELD(PyBytesArg, acquired, 0);
KORVAN_FIELD(PyBytesArg, length, 4);
KORVAN_FIELD(PyBytesArg, data, 8);
KORVAN_RECORD(PyObjectOutArg, 16);
KORVAN_FIELD(PyObjectOutArg, handle, 0);
KORVAN_FIELD(PyObjectOutArg, type_key, 8);
KORVAN_RECORD(PyCollectionArg, 24);
KORVAN_FIELD(PyCollectionArg, kind, 0);
KORVAN_FIELD(PyCollectionArg, handle, 8);
KORVAN_FIELD(PyCollectionArg, type_key, 16);
KORVAN_RECORD(PySysVersionArg, 20);
KORVAN_FIELD(PySysVersionArg, count, 0);
KORVAN_FIELD(PySysVersionArg, parts, 4);
KORVAN_RECORD(PyDateTimeOut, 16);
KORVAN_FIELD(PyDateTimeOut, ticks, 0);
KORVAN_FIELD(PyDateTimeOut, offset, 8);
KORVAN_RECORD(PyDecimalArg, 16);
KORVAN_FIELD(PyDecimalArg, low, 0);
KORVAN_FIELD(PyDecimalArg, middle, 4);
KORVAN_FIELD(PyDecimalArg, high, 8);
KORVAN_FIELD(PyDecimalArg, flags, 12);
KORVAN_RECORD(ShlColorObject, 8);
KORVAN_FIELD(ShlColorObject, argb, 0);
KORVAN_FIELD(ShlColorObject, is_set, 4);
KORVAN_RECORD(ShlRectangleFObject, 16);
KORVAN_FIELD(ShlRectangleFObject, x, 0);
KORVAN_FIELD(ShlRectangleFObject, y, 4);
KORVAN_FIELD(ShlRectangleFObject, width, 8);
KORVAN_FIELD(ShlRectangleFObject, height, 12);

#undef KORVAN_RECORD
#undef KORVAN_FIELD

#endif
