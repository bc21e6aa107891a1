// bindings/results.h: result policies: what a delegate returns and what Python makes of it.
//
// `invoke` calls the delegate with the native arguments, asks for a pending error, which takes
// precedence over whatever was returned, and converts.
#ifndef KORVAN_BINDINGS_RESULTS_H
#define KORVAN_BINDINGS_RESULTS_H

#include "bindings/classes.h"
#include "bindings/enums.h"
#include "generic/interop.h"
#include "host/exchange_host.h"
#include "runtime/dates.h"
#include "runtime/decimals.h"
#include "runtime/drawing_values.h"
#include "runtime/strings.h"
#include "runtime/types_map.h"
#include "runtime/variant.h"

namespace ret {

inline PyTypeObject* type_object(const void* type) {
    return &static_cast<ClassBinding*>(const_cast<void*>(type))->type;
}

struct none {
    template <class... Native>
    static PyObject* invoke(void* function, const void*, Native... natives) {
        reinterpret_cast<void (*)(Native...)>(function)(natives...);
        if (PyErr_Occurred() != nullptr) {
            return nullptr;
        }
        Py_RETURN_NONE;
    }
};

template <class T> void keep_nothing(T) {}

// A value returned directly. `Make` gives the Python object and takes the value over; `Discard`
// gives back a value that nothing took over.
template <class T, PyObject* (*Make)(T, const void*), void (*Discard)(T) = keep_nothing<T>>
struct value {
    using native = T;
    static constexpr bool is_record = false;
    static PyObject* make(T result, const void* type) { return Make(result, type); }
    static void discard(T result) { Discard(result); }
    template <class... Native>
    static PyObject* invoke(void* function, const void* type, Native... natives) {
        const T result = reinterpret_cast<T (*)(Native...)>(function)(natives...);
        if (PyErr_Occurred() != nullptr) {
            return nullptr;
        }
        return Make(result, type);
    }
};

template <class T> PyObject* make_signed(T result, const void*) { return PyLong_FromLong(result); }
template <class T> PyObject* make_unsigned(T result, const void*) {
    return PyLong_FromUnsignedLong(result);
}
template <class T> PyObject* make_float(T result, const void*) {
    return PyFloat_FromDouble(result);
}
inline PyObject* make_bool(std::uint8_t result, const void*) { return PyBool_FromLong(result); }
inline PyObject* make_char(unsigned short result, const void*) {
    return fn_conv_clr_char_to_py_string(result);
}
inline PyObject* make_finished(void* result, const void*) { return static_cast<PyObject*>(result); }
inline PyObject* make_object(void* result, const void* type) {
    return fn_conv_clr_clsobj_to_py_clsobj(result, type_object(type));
}
inline void discard_finished(void* result) { Py_XDECREF(static_cast<PyObject*>(result)); }
inline void discard_handle(void* result) {
    if (result != nullptr) {
        ExchangeHost::get_instance().free_instance(result);
    }
}
inline PyObject* make_timespan(long result, const void*) {
    return fn_conv_clr_timespan_to_py_datetimedelta(result);
}
template <class T> PyObject* make_enumeration(T result, const void* type) {
    return conv_clr_to_py_enum(result, *static_cast<EnumBinding*>(const_cast<void*>(type)));
}

using boolean = value<std::uint8_t, make_bool>;
using int8 = value<signed char, make_signed<signed char>>;
using int16 = value<short, make_signed<short>>;
using int32 = value<int, make_signed<int>>;
using int64 = value<long, make_signed<long>>;
using uint8 = value<unsigned char, make_unsigned<unsigned char>>;
using uint16 = value<unsigned short, make_unsigned<unsigned short>>;
using uint32 = value<unsigned int, make_unsigned<unsigned int>>;
using uint64 = value<unsigned long, make_unsigned<unsigned long>>;
using float32 = value<float, make_float<float>>;
using float64 = value<double, make_float<double>>;
using char16 = value<unsigned short, make_char>;
using finished = value<void*, make_finished, discard_finished>;
using object = value<void*, make_object, discard_handle>;
using array = value<void*, make_object, discard_handle>;
using timespan = value<long, make_timespan>;
template <class T> using enumeration = value<T, make_enumeration<T>>;

// A record that the delegate fills through its last argument.
template <class Record, PyObject* (*Make)(Record&, const void*)> struct out_record {
    using native = Record;
    static constexpr bool is_record = true;
    static PyObject* make(Record record, const void* type) { return Make(record, type); }
    static void discard(const Record&) {}
    template <class... Native>
    static PyObject* invoke(void* function, const void* type, Native... natives) {
        Record record{};
        reinterpret_cast<void (*)(Native..., Record*)>(function)(natives..., &record);
        if (PyErr_Occurred() != nullptr) {
            return nullptr;
        }
        return Make(record, type);
    }
};

struct Guid {
    unsigned char bytes[16];
};

inline PyObject* make_interface(PyObjectOutArg& result, const void* type) {
    return fn_conv_clr_ifcimpl_to_py_ifcimpl(result, type_object(type));
}
inline PyObject* make_collection(PyCollectionArg& result, const void* type) {
    return fn_conv_clr_btpobj_to_py_btpobj(result, type_object(type));
}
inline PyObject* make_interface_collection(PyCollectionArg& result, const void* type) {
    return fn_conv_clr_ifcimpl_to_py_ifcimpl_wps(result, type_object(type));
}
template <ClassBinding& Wrapper> PyObject* make_any(PyCollectionArg& result, const void*) {
    return fn_conv_clr_ifcimpl_to_py_ifcimpl_wps(result, &Wrapper.type);
}
template <ClassBinding& Wrapper> PyObject* make_framework(PyCollectionArg& result, const void*) {
    return fn_conv_clr_btpobj_to_py_btpobj(result, &Wrapper.type);
}
inline PyObject* make_stream(PyCollectionArg& result, const void*) {
    return fn_conv_clr_absobj_to_py_absobj(result, &wrpPye_tyds_StreamWrapper.type);
}
inline PyObject* make_datetime(PyDateTimeOut& result, const void*) {
    return fn_conv_clr_datetime_to_py_datetime(&result.ticks);
}
inline PyObject* make_datetimeoffset(PyDateTimeOut& result, const void*) {
    return fn_conv_clr_datetimeoffset_to_py_datetime(&result.ticks);
}
inline PyObject* make_decimal(PyDecimalArg& result, const void*) {
    return fn_conv_clr_decimal_to_py_decimal(&result.low);
}
inline PyObject* make_guid(Guid& result, const void*) {
    return fn_conv_clr_guid_to_py_uuid(result.bytes);
}
inline PyObject* make_version(PySysVersionArg& result, const void*) {
    return fn_conv_clr_version_to_py_tuple(result);
}

inline PyObject* make_drawing_color(ShlColorObject& result, const void*) {
    return wrpPyl_convcaps_clr_to_py_A6FFC60D_Color(&result);
}
inline PyObject* make_drawing_rectangle(ShlRectangleFObject& result, const void*) {
    return wrpPyl_convcaps_clr_to_py_E41B503E_RectangleF(&result);
}

using interface_ = out_record<PyObjectOutArg, make_interface>;
using collection = out_record<PyCollectionArg, make_collection>;
using interface_collection = out_record<PyCollectionArg, make_interface_collection>;
using most_derived = collection; // an object of a bound class, as the class that it is of
using any_disposable = out_record<PyCollectionArg, make_any<wrpPye_tyds_IDisposableWrapper>>;
using any_enumerator = out_record<PyCollectionArg, make_any<wrpPye_tyds_IterWrapper>>;
using any_iterable = out_record<PyCollectionArg, make_any<wrpPye_tyds_IterableWrapper>>;
using any_collection = out_record<PyCollectionArg, make_any<wrpPye_tyds_IColWrapper>>;
using any_list = out_record<PyCollectionArg, make_any<wrpPye_tyds_IListWrapper>>;
using any_array = out_record<PyCollectionArg, make_framework<wrpPye_tyds_ArrayWrapper>>;
using any_arraylist = out_record<PyCollectionArg, make_framework<wrpPye_tyds_ArrListWrapper>>;
using any_collectionbase = out_record<PyCollectionArg, make_framework<wrpPye_tyds_ColBaseWrapper>>;
using any_readonlycollectionbase =
    out_record<PyCollectionArg, make_framework<wrpPye_tyds_RoColBaseWrapper>>;
using stream = out_record<PyCollectionArg, make_stream>;
using datetime = out_record<PyDateTimeOut, make_datetime>;
using datetimeoffset = out_record<PyDateTimeOut, make_datetimeoffset>;
using decimal = out_record<PyDecimalArg, make_decimal>;
using guid = out_record<Guid, make_guid>;
using version = out_record<PySysVersionArg, make_version>;
using drawing_color = out_record<ShlColorObject, make_drawing_color>;
using drawing_rectangle = out_record<ShlRectangleFObject, make_drawing_rectangle>;

// Whether there is a value comes through `int* has_value`: behind all else for a value returned
// directly, ahead of the record for one that fills a record.
template <class Inner> struct nullable {
    template <class... Native>
    static PyObject* invoke(void* function, const void* type, Native... natives) {
        typename Inner::native result{};
        int has_value = 0;
        if constexpr (Inner::is_record) {
            reinterpret_cast<void (*)(Native..., int*, typename Inner::native*)>(function)(
                natives..., &has_value, &result);
        } else {
            result = reinterpret_cast<typename Inner::native (*)(Native..., int*)>(function)(
                natives..., &has_value);
        }
        if (PyErr_Occurred() != nullptr) {
            return nullptr;
        }
        if (has_value == 0) {
            Py_RETURN_NONE;
        }
        return Inner::make(result, type);
    }
};

} // namespace ret

#endif
