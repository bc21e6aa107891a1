// contract/status.h: the numbers that cross the boundary and what they mean.
#ifndef KORVAN_CONTRACT_STATUS_H
#define KORVAN_CONTRACT_STATUS_H

#include <cstdint>

// VariantArg::kind of a typed parameter (interface, struct, collection, stream).
enum korvan_reference_kind : std::int32_t {
    KORVAN_REF_OBJECT = 0, // handle of a managed object; null for None
    KORVAN_REF_STRUCT = 1, // handle of a boxed struct
    KORVAN_REF_PYTHON = 2, // a Python list, iterable, iterator or stream, borrowed
    KORVAN_REF_SEQUENCE = 3, // any other Python sequence, borrowed
};

// VariantArg::kind of a parameter of the universal object type.
enum korvan_variant_kind : std::int32_t {
    KORVAN_VAR_NONE = 0,
    KORVAN_VAR_OBJECT = 1,
    KORVAN_VAR_STRUCT = 2,
    KORVAN_VAR_STRING = 3,
    KORVAN_VAR_BUFFER = 4,
    KORVAN_VAR_BOOL = 5,
    KORVAN_VAR_INT = 6,
    KORVAN_VAR_FLOAT = 7,
    KORVAN_VAR_DECIMAL = 8,
    KORVAN_VAR_DECIMAL_TUPLE = 9,
    KORVAN_VAR_DATETIME = 10,
    KORVAN_VAR_DATE = 11,
    KORVAN_VAR_TIME = 12,
    KORVAN_VAR_TIMEDELTA = 13,
    KORVAN_VAR_UUID = 14,
    KORVAN_VAR_LIST = 15,
    KORVAN_VAR_TUPLE = 16,
};

// PyCollectionArg::kind.
enum korvan_collection_kind : std::int32_t {
    KORVAN_COL_PLAIN = 0, // wrap as declared
    KORVAN_COL_EXACT = 1, // boxed struct, or the exact type must be looked up
    KORVAN_COL_PYTHON = 2, // the handle is a Python object that came in and goes back as itself
};

// Casts and collection delegates.
enum korvan_status : std::int32_t {
    KORVAN_FAILED = -1, // a Python exception is pending
    KORVAN_CAST_NO = 0,
    KORVAN_CAST_DONE = 1,
    KORVAN_ITEM = 0, // MoveNext, SqGetItem, Pop: an item was delivered
    KORVAN_END = 1, // MoveNext: no more items; Pop: the list is empty
    KORVAN_OUT_OF_RANGE = 2,
};

// Callbacks that work on Python collections.
enum korvan_callback_status : std::int32_t {
    KORVAN_CB_OK = 0,
    KORVAN_CB_ERROR = -1,
    KORVAN_CB_INDEX_ERROR = -2,
};

// The wrap library's own refusals; every other non-zero status is the runtime's.
constexpr std::int32_t KORVAN_WRAP_NOT_LOADED = static_cast<std::int32_t>(0x80004005);
constexpr std::int32_t KORVAN_WRAP_SHUT_DOWN = static_cast<std::int32_t>(0x80131014);

#endif
