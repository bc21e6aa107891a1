// bindings/arguments.h: argument policies: how one parameter is read and what crosses for it.
//
// A policy has a cell (where the parsed value lies in the call's frame), a converter into it, and
// `pass`, which gives the native arguments that the delegate takes for it.
#ifndef KORVAN_BINDINGS_ARGUMENTS_H
#define KORVAN_BINDINGS_ARGUMENTS_H

#include "bindings/classes.h"
#include "bindings/enums.h"
#include "generic/collection_arguments.h"
#include "generic/interop.h"
#include "generic/stream_argument.h"
#include "runtime/buffers.h"
#include "runtime/dates.h"
#include "runtime/decimals.h"
#include "runtime/drawing_values.h"
#include "runtime/markers.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"
#include "runtime/variant.h"

#include <tuple>

namespace arg {

// Rejections that the type alone decides; the converter would reject the same.
inline bool is_no_integer(PyObject* object) { return !PyLong_Check(object); }
inline bool is_no_float(PyObject* object) { return !PyFloat_Check(object); }
inline bool is_no_bool(PyObject* object) { return !PyBool_Check(object); }
inline bool is_no_text(PyObject* object) { return !PyUnicode_Check(object); }

// A value whose converter needs no binding and that passes as it lies in its cell.
template <class Cell, int (*Convert)(PyObject*, Cell*), class Native = Cell,
          bool (*Rejects)(PyObject*) = nullptr>
struct scalar {
    using cell = Cell;
    static bool rejects(PyObject* object, const void*) {
        return Rejects != nullptr && Rejects(object);
    }
    static int convert(PyObject* object, cell* out, const void*) { return Convert(object, out); }
    static std::tuple<Native> pass(cell& value) { return {static_cast<Native>(value)}; }
};

using boolean = scalar<bool, fn_conv_py_bool_to_clr_bool, std::uint8_t, is_no_bool>;
using int8 = scalar<signed char, fn_conv_py_long_to_clr_int8, signed char, is_no_integer>;
using uint8 = scalar<unsigned char, fn_conv_py_ulong_to_clr_uint8, unsigned char, is_no_integer>;
using int16 = scalar<short, fn_conv_py_long_to_clr_int16, short, is_no_integer>;
using uint16 =
    scalar<unsigned short, fn_conv_py_ulong_to_clr_uint16, unsigned short, is_no_integer>;
using int32 = scalar<int, fn_conv_py_long_to_clr_int32, int, is_no_integer>;
using uint32 = scalar<unsigned int, fn_conv_py_ulong_to_clr_uint32, unsigned int, is_no_integer>;
using int64 = scalar<long, fn_conv_py_long_to_clr_int64, long, is_no_integer>;
using uint64 = scalar<unsigned long, fn_conv_py_ulong_to_clr_uint64, unsigned long, is_no_integer>;
using float32 = scalar<float, fn_conv_py_float_to_clr_float, float, is_no_float>;
using float64 = scalar<double, fn_conv_py_float_to_clr_double, double, is_no_float>;
using char16 = scalar<unsigned short, fn_conv_py_string_to_clr_char, unsigned short, is_no_text>;

using datetime = scalar<long, fn_conv_py_datetime_to_clr_datetime>;
using timespan = scalar<long, fn_conv_py_datetimedelta_to_clr_timespan>;

// Some words that cross by their address.
template <class Word, int Count, int (*Convert)(PyObject*, Word*)> struct words {
    struct cell {
        Word value[Count] = {};
    };
    static int convert(PyObject* object, cell* out, const void*) {
        return Convert(object, out->value);
    }
    static std::tuple<const Word*> pass(cell& words) { return {words.value}; }
};

using datetimeoffset = words<long, 2, fn_conv_py_datetime_to_clr_datetimeoffset>;
using decimal = words<unsigned int, 4, fn_conv_py_decimal_to_clr_decimal>;
using guid = words<unsigned char, 16, fn_conv_py_uuid_to_clr_guid>;

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
    static bool rejects(PyObject* object, const void*) {
        return object != Py_None && !PyUnicode_Check(object);
    }
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
    static bool rejects(PyObject* object, const void*) {
        return object != Py_None && !fn_is_refobj_has_host_markattr(object);
    }
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

inline int convert_color(PyObject* object, ShlColorObject* out, const void*) {
    return wrpPyl_convcaps_py_to_clr_A6FFC60D_Color(object, out);
}

inline int convert_version(PyObject* object, PySysVersionArg* out, const void*) {
    return fn_conv_py_tuple_to_clr_version(object, out);
}

using structure = record<VariantArg, convert_structure>;
using interface_ = record<VariantArg, convert_interface>;
using variant = record<VariantArg, convert_variant>;
using stream = record<VariantArg, convert_stream>;
using version = record<PySysVersionArg, convert_version>;
using drawing_color = record<ShlColorObject, convert_color>;

template <CollectionParameter Kind>
int convert_collection(PyObject* object, VariantArg* out, const void* type) {
    return conv_py_to_clr_collection(object, out, &binding_of(type), Kind);
}
using array = record<VariantArg, convert_collection<CollectionParameter::array>>;
using list = record<VariantArg, convert_collection<CollectionParameter::list>>;
using iterable = record<VariantArg, convert_collection<CollectionParameter::iterable>>;
using icol = record<VariantArg, convert_collection<CollectionParameter::typed_collection>>;
using ilist = record<VariantArg, convert_collection<CollectionParameter::list>>;
using irocol = record<VariantArg, convert_collection<CollectionParameter::typed_collection>>;
using irolist = record<VariantArg, convert_collection<CollectionParameter::list>>;

using iter = record<VariantArg, convert_collection<CollectionParameter::iterator>>;

template <ClassBinding& Wrapper, CollectionParameter Kind>
int convert_any_collection(PyObject* object, VariantArg* out, const void*) {
    return conv_py_to_clr_collection(object, out, &Wrapper, Kind);
}
using any_disposable =
    record<VariantArg,
           convert_any_collection<wrpPye_tyds_IDisposableWrapper, CollectionParameter::wrapper>>;
using any_enumerator =
    record<VariantArg,
           convert_any_collection<wrpPye_tyds_IterWrapper, CollectionParameter::iterator>>;
using any_iterable =
    record<VariantArg,
           convert_any_collection<wrpPye_tyds_IterableWrapper, CollectionParameter::iterable>>;
using any_collection =
    record<VariantArg,
           convert_any_collection<wrpPye_tyds_IColWrapper, CollectionParameter::collection>>;
using any_list =
    record<VariantArg, convert_any_collection<wrpPye_tyds_IListWrapper, CollectionParameter::list>>;
using any_array =
    record<VariantArg,
           convert_any_collection<wrpPye_tyds_ArrayWrapper, CollectionParameter::array>>;
using any_arraylist =
    record<VariantArg,
           convert_any_collection<wrpPye_tyds_ArrListWrapper, CollectionParameter::list>>;
using any_collectionbase =
    record<VariantArg,
           convert_any_collection<wrpPye_tyds_ColBaseWrapper, CollectionParameter::list>>;
using any_readonlycollectionbase =
    record<VariantArg,
           convert_any_collection<wrpPye_tyds_RoColBaseWrapper, CollectionParameter::list>>;

template <class T> struct enumeration {
    using cell = T;
    static bool rejects(PyObject* object, const void*) { return !PyLong_Check(object); }
    static int convert(PyObject* object, cell* out, const void* type) {
        return conv_py_to_clr_enum(object, out,
                                   *static_cast<EnumBinding*>(const_cast<void*>(type)));
    }
    static std::tuple<T> pass(cell& value) { return {value}; }
};

// What an inner converter behind a record of its own writes to, and the binding that it needs.
template <class Inner> struct Target {
    typename Inner::cell* cell;
    const void* type;
};
template <class Inner> int convert_target(PyObject* object, void* destination) {
    const auto* target = static_cast<Target<Inner>*>(destination);
    return Inner::convert(object, target->cell, target->type);
}

// A nullable value type crosses as a flag and the value.
template <class Inner> struct nullable {
    struct cell {
        int has_value = 0;
        typename Inner::cell value{};
    };
    static int convert(PyObject* object, cell* out, const void* type) {
        Target<Inner> target{&out->value, type};
        PyNullableArg record{0, convert_target<Inner>, &target};
        const int converted = fn_conv_py_nullable_to_clr_nullable(object, &record);
        out->has_value = record.has_value;
        return converted;
    }
    static auto pass(cell& value) {
        return std::tuple_cat(std::tuple<int>(value.has_value), Inner::pass(value.value));
    }
};

// A ref parameter: in Python a list, empty or holding a default, whose first item is replaced. What
// the delegate gave out and no list took over is given back.
template <class In, class Ret> struct by_ref {
    struct cell {
        PyObject* list = nullptr; // borrowed from the arguments
        typename In::cell in{};
        typename Ret::native out{};
        bool is_delivered = false;

        cell() = default;
        cell(const cell&) = delete;
        cell& operator=(const cell&) = delete;
        ~cell() {
            if (!is_delivered) {
                Ret::discard(out);
            }
        }
    };
    static int convert(PyObject* object, cell* out, const void* type) {
        Target<In> target{&out->in, type};
        PyParamByRef record{nullptr, convert_target<In>, &target};
        const int converted = fn_conv_py_parbyref_to_clr_parbyref(object, &record);
        out->list = record.list;
        return converted;
    }
    static auto pass(cell& value) {
        return std::tuple_cat(In::pass(value.in), std::tuple<typename Ret::native*>(&value.out));
    }
    // After the call: the value goes into the list. False with an error.
    static bool deliver(cell& value, const void* type) {
        value.is_delivered = true; // the converter takes it over even when it fails
        PyObject* object = Ret::make(value.out, type);
        return object != nullptr && fn_push_parbyref_outvalue(value.list, object) == 0;
    }
};

// An out parameter: as ref, but nothing goes in.
template <class In, class Ret> struct out : by_ref<In, Ret> {
    using cell = typename by_ref<In, Ret>::cell;
    static std::tuple<typename Ret::native*> pass(cell& value) { return {&value.out}; }
};

template <class Policy>
concept Output = requires(typename Policy::cell& cell, const void* type) {
    Policy::deliver(cell, type);
};

// Whether a policy rejects an argument for its type, without an error.
template <class Policy> bool surely_rejects(PyObject* object, const void* type) {
    if constexpr (requires { Policy::rejects(object, type); }) {
        return Policy::rejects(object, type);
    } else {
        return false;
    }
}

// Type-erased for the parser.
template <class Policy> int convert_cell(PyObject* object, void* cell, const void* type) {
    return Policy::convert(object, static_cast<typename Policy::cell*>(cell), type);
}

} // namespace arg

#endif
