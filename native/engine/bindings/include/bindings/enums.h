// bindings/enums.h: managed enums as members of Python's enum family.
#ifndef KORVAN_BINDINGS_ENUMS_H
#define KORVAN_BINDINGS_ENUMS_H

#include "bindings/tables.h"

#include <type_traits>

// Makes the Python type with its cast methods; a borrowed reference, or null with an error.
PyObject* make_enum_type(EnumBinding& binding);

// Whether the object is a member of the enum's type; the error is raised here.
bool is_enum_member(PyObject* object, const EnumBinding& binding);

// The member of a value. A value with no member raises for an IntEnum and makes a composite for
// an IntFlag. The reference to the integer stays behind, as the contract of the family has it.
PyObject* enum_member_of(PyObject* integer, const EnumBinding& binding);

template <class T> PyObject* conv_clr_to_py_enum(T value, const EnumBinding& binding) {
    PyObject* integer = nullptr;
    if constexpr (std::is_unsigned_v<T>) {
        integer = PyLong_FromUnsignedLongLong(value);
    } else {
        integer = PyLong_FromLongLong(value);
    }
    return integer != nullptr ? enum_member_of(integer, binding) : nullptr;
}

// The width decides which function reads the value, and so the message of an overflow.
template <class T> int enum_integer(PyObject* object, T* out) {
    constexpr bool is_wide = sizeof(T) == sizeof(long long);
    if constexpr (std::is_unsigned_v<T>) {
        *out = static_cast<T>(is_wide ? PyLong_AsUnsignedLongLong(object)
                                      : PyLong_AsUnsignedLong(object));
    } else {
        *out = static_cast<T>(is_wide ? PyLong_AsLongLong(object) : PyLong_AsLong(object));
    }
    return PyErr_Occurred() == nullptr ? 1 : 0;
}

template <class T> int conv_py_to_clr_enum(PyObject* object, T* out, const EnumBinding& binding) {
    return is_enum_member(object, binding) ? enum_integer(object, out) : 0;
}

#endif
