// bindings/results.h: result policies: what a delegate returns and what Python makes of it.
//
// `invoke` calls the delegate with the native arguments, asks for a pending error, which takes
// precedence over whatever was returned, and converts.
#ifndef KORVAN_BINDINGS_RESULTS_H
#define KORVAN_BINDINGS_RESULTS_H

#include "bindings/classes.h"
#include "bindings/enums.h"
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

// A value returned directly. `Make` gives the Python object.
template <class T, PyObject* (*Make)(T, const void*)> struct value {
    using native = T;
    static PyObject* make(T result, const void* type) { return Make(result, type); }
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
using finished = value<void*, make_finished>;
using object = value<void*, make_object>;
using array = value<void*, make_object>;
template <class T> using enumeration = value<T, make_enumeration<T>>;

// A record that the delegate fills through its last argument.
template <class Record, PyObject* (*Make)(const Record&, PyTypeObject*)> struct out_record {
    using native = Record;
    static PyObject* make(const Record& record, const void* type) {
        return Make(record, type_object(type));
    }
    template <class... Native>
    static PyObject* invoke(void* function, const void* type, Native... natives) {
        Record record{};
        reinterpret_cast<void (*)(Native..., Record*)>(function)(natives..., &record);
        if (PyErr_Occurred() != nullptr) {
            return nullptr;
        }
        return Make(record, type_object(type));
    }
};

using interface_ = out_record<PyObjectOutArg, fn_conv_clr_ifcimpl_to_py_ifcimpl>;
using collection = out_record<PyCollectionArg, fn_conv_clr_btpobj_to_py_btpobj>;
using interface_collection =
    out_record<PyCollectionArg, fn_conv_clr_ifcimpl_to_py_ifcimpl_wps>;

// The value and, through the last argument, whether there is one.
template <class Inner> struct nullable {
    template <class... Native>
    static PyObject* invoke(void* function, const void* type, Native... natives) {
        using T = typename Inner::native;
        int has_value = 0;
        const T result =
            reinterpret_cast<T (*)(Native..., int*)>(function)(natives..., &has_value);
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
