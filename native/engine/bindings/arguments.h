// bindings/arguments.h: argument policies: how one parameter is read and what crosses for it.
//
// A policy has a cell (where the parsed value lies in the call's frame), a converter into it, and
// `pass`, which gives the native arguments that the delegate takes for it.
#ifndef KORVAN_BINDINGS_ARGUMENTS_H
#define KORVAN_BINDINGS_ARGUMENTS_H

#include "bindings/classes.h"
#include "bindings/enums.h"
#include "generic/collection_arguments.h"
#include "generic/stream_argument.h"
#include "runtime/buffers.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"
#include "runtime/variant.h"

#include <tuple>

namespace arg {

// A value whose converter needs no binding and that passes as it lies in its cell.
template <class Cell, int (*Convert)(PyObject*, Cell*), class Native = Cell> struct scalar {
    using cell = Cell;
    static int convert(PyObject* object, cell* out, const void*) { return Convert(object, out); }
    static std::tuple<Native> pass(cell& value) { return {static_cast<Native>(value)}; }
};

using boolean = scalar<bool, fn_conv_py_bool_to_clr_bool, std::uint8_t>;
using int8 = scalar<signed char, fn_conv_py_long_to_clr_int8>;
using uint8 = scalar<unsigned char, fn_conv_py_ulong_to_clr_uint8>;
using int16 = scalar<short, fn_conv_py_long_to_clr_int16>;
using uint16 = scalar<unsigned short, fn_conv_py_ulong_to_clr_uint16>;
using int32 = scalar<int, fn_conv_py_long_to_clr_int32>;
using uint32 = scalar<unsigned int, fn_conv_py_ulong_to_clr_uint32>;
using int64 = scalar<long, fn_conv_py_long_to_clr_int64>;
using uint64 = scalar<unsigned long, fn_conv_py_ulong_to_clr_uint64>;
using float32 = scalar<float, fn_conv_py_float_to_clr_float>;
using float64 = scalar<double, fn_conv_py_float_to_clr_double>;
using char16 = scalar<unsigned short, fn_conv_py_string_to_clr_char>;

// A record that crosses by its address.
template <class Record, int (*Convert)(PyObject*, Record*, const void*)> struct record {
    struct cell : Record {
        cell() : Record{} {}
    };
    static int convert(PyObject* object, cell* out, const void* type) {
        return Convert(object, out, type);
    }
    static std::tuple<const Record*> pass(cell& value) { return {&value}; }
};

struct string {
    struct cell : PyStringArg {
        cell() : PyStringArg{-1, 0, nullptr} {}
    };
    static int convert(PyObject* object, cell* out, const void*) {
        return fn_conv_py_string_to_clr_string(object, out);
    }
    static std::tuple<const PyStringArg*> pass(cell& value) { return {&value}; }
};

struct bytes {
    using cell = PyBytesArgBuilder;
    static int convert(PyObject* object, cell* out, const void*) {
        return fn_conv_py_bytes_to_clr_bytes(object, out);
    }
    static std::tuple<const PyBytesArg*> pass(cell& value) { return {value.get_info()}; }
};

inline ClassBinding& binding_of(const void* type) {
    return *static_cast<ClassBinding*>(const_cast<void*>(type));
}

struct object {
    struct cell {
        void* handle = nullptr;
    };
    static int convert(PyObject* object, cell* out, const void* type) {
        return conv_py_to_clr_class(object, &out->handle, binding_of(type));
    }
    static std::tuple<void*> pass(cell& value) { return {value.handle}; }
};

inline int convert_structure(PyObject* object, VariantArg* out, const void* type) {
    return conv_py_to_clr_struct(object, out, binding_of(type));
}
inline int convert_interface(PyObject* object, VariantArg* out, const void* type) {
    return conv_py_to_clr_interface(object, out, binding_of(type));
}
inline int convert_variant(PyObject* object, VariantArg* out, const void*) {
    return fn_conv_py_variant_to_clr_variant(object, out);
}
inline int convert_stream(PyObject* object, VariantArg* out, const void*) {
    return wrpPye_conv_py_to_clr_stream(object, out);
}

using structure = record<VariantArg, convert_structure>;
using interface_ = record<VariantArg, convert_interface>;
using variant = record<VariantArg, convert_variant>;
using stream = record<VariantArg, convert_stream>;

template <CollectionParameter Kind>
int convert_collection(PyObject* object, VariantArg* out, const void* type) {
    return conv_py_to_clr_collection(object, out, &binding_of(type), Kind);
}
using array = record<VariantArg, convert_collection<CollectionParameter::array>>;
using list = record<VariantArg, convert_collection<CollectionParameter::list>>;
using iterable = record<VariantArg, convert_collection<CollectionParameter::iterable>>;
using icol = record<VariantArg, convert_collection<CollectionParameter::collection>>;
using ilist = record<VariantArg, convert_collection<CollectionParameter::list>>;
using irocol = record<VariantArg, convert_collection<CollectionParameter::collection>>;
using irolist = record<VariantArg, convert_collection<CollectionParameter::list>>;

template <class T> struct enumeration {
    using cell = T;
    static int convert(PyObject* object, cell* out, const void* type) {
        return conv_py_to_clr_enum(object, out,
                                   *static_cast<EnumBinding*>(const_cast<void*>(type)));
    }
    static std::tuple<T> pass(cell& value) { return {value}; }
};

// A nullable value type crosses as a flag and the value.
template <class Inner> struct nullable {
    struct cell {
        int has_value = 0;
        typename Inner::cell value{};
    };
    static int convert(PyObject* object, cell* out, const void* type) {
        if (object == Py_None) {
            return 1;
        }
        if (Inner::convert(object, &out->value, type) != 1) {
            return 0;
        }
        out->has_value = 1;
        return 1;
    }
    static auto pass(cell& value) {
        return std::tuple_cat(std::tuple<int>(value.has_value), Inner::pass(value.value));
    }
};

// Type-erased for the parser.
template <class Policy> int convert_cell(PyObject* object, void* cell, const void* type) {
    return Policy::convert(object, static_cast<typename Policy::cell*>(cell), type);
}

} // namespace arg

#endif
