#include "color.h"

#include "runtime/failures.h"

#include <cstring>
#include <limits>
#include <strings.h>

namespace {

struct KnownColor {
    const char* name;
    std::uint32_t argb;
};
constexpr KnownColor known_colors[] = {
#define KNOWN_COLOR(name, argb) {name, argb},
#include "known_colors.def"
#undef KNOWN_COLOR
};

const ShlColorObject& color_of(PyObject* self) { return value_of<ShlColorObject>(self); }

PyObject* new_color(std::uint32_t argb) { return box_value(color_type, ShlColorObject{argb, 1}); }

const char* known_name(const ShlColorObject& color) {
    for (const KnownColor& known : known_colors) {
        if (color.is_set != 0 && known.argb == color.argb) {
            return known.name;
        }
    }
    return nullptr;
}

// ---- construction ----------------------------------------------------------------------------

// An integer within bounds, which the error names.
bool read_integer(PyObject* object, long long least, long long greatest, const char* range,
                  std::uint32_t* out) {
    if (!PyLong_Check(object)) {
        PyErr_Format(PyExc_TypeError, "%s, not '%s'", range, type_name_of(object));
        return false;
    }
    int overflow = 0;
    const long long value = PyLong_AsLongLongAndOverflow(object, &overflow);
    if (overflow != 0 || value < least || value > greatest) {
        PyErr_Format(PyExc_ValueError, "%s, not %R", range, object);
        return false;
    }
    *out = static_cast<std::uint32_t>(value);
    return true;
}

bool read_part(PyObject* object, std::uint32_t* out) {
    return read_integer(object, 0, 255, "a part of a colour is an integer of 0 to 255", out);
}

// Signed and unsigned forms of the same 32 bits are the same colour.
bool read_argb(PyObject* object, std::uint32_t* out) {
    return read_integer(object, std::numeric_limits<std::int32_t>::min(),
                        std::numeric_limits<std::uint32_t>::max(),
                        "a colour as a number is an integer of 32 bits", out);
}

PyObject* color_from_parts(PyObject* alpha, PyObject* red, PyObject* green, PyObject* blue) {
    std::uint32_t a = 255, r = 0, g = 0, b = 0;
    if ((alpha != nullptr && !read_part(alpha, &a)) || !read_part(red, &r) ||
        !read_part(green, &g) || !read_part(blue, &b)) {
        return nullptr;
    }
    return new_color(a << 24 | r << 16 | g << 8 | b);
}

PyObject* color_from_number(PyObject* number) {
    std::uint32_t argb = 0;
    return read_argb(number, &argb) ? new_color(argb) : nullptr;
}

PyObject* color_from_name(PyObject*, PyObject* name) {
    if (!PyUnicode_Check(name)) {
        return PyErr_Format(PyExc_TypeError, "the name of a colour is a str, not '%s'",
                            type_name_of(name));
    }
    Py_ssize_t length = 0;
    const char* text = PyUnicode_AsUTF8AndSize(name, &length);
    if (text == nullptr) {
        return nullptr;
    }
    for (const KnownColor& known : known_colors) {
        if (std::strlen(known.name) == static_cast<size_t>(length) &&
            strcasecmp(known.name, text) == 0) {
            return new_color(known.argb);
        }
    }
    return PyErr_Format(PyExc_ValueError,
                        "no colour is called '%U'; names are those of style sheets, like 'Tomato'",
                        name);
}

PyObject* color_from_argb(PyObject*, PyObject* args) {
    const Py_ssize_t count = PyTuple_GET_SIZE(args);
    if (fn_check_args_count_out_of_range(count, "from_argb", 1, 4)) {
        return nullptr;
    }
    const auto given = [args](Py_ssize_t index) { return PyTuple_GET_ITEM(args, index); };
    switch (count) {
    case 1: return color_from_number(given(0));
    case 2: {
        std::uint32_t alpha = 0;
        ShlColorObject base;
        if (!read_part(given(0), &alpha) || !parse_color(given(1), &base)) {
            return nullptr;
        }
        return new_color(alpha << 24 | (base.argb & 0xFFFFFF));
    }
    case 3: return color_from_parts(nullptr, given(0), given(1), given(2));
    default: return color_from_parts(given(0), given(1), given(2), given(3));
    }
}

PyObject* color_from_one(PyObject* value) {
    if (PyUnicode_Check(value)) {
        return color_from_name(nullptr, value);
    }
    return PyLong_Check(value) ? color_from_number(value) : nullptr;
}

PyObject* color_new(PyTypeObject*, PyObject* args, PyObject* kwargs) {
    static const char* keywords[] = {"r", "g", "b", "a", nullptr};
    PyObject *r = nullptr, *g = nullptr, *b = nullptr, *a = nullptr;
    if (!PyArg_ParseTupleAndKeywords(args, kwargs, "|OOOO:Color", const_cast<char**>(keywords), &r,
                                     &g, &b, &a)) {
        return nullptr;
    }
    if (r != nullptr && g != nullptr && b != nullptr) {
        return color_from_parts(a, r, g, b);
    }
    const Py_ssize_t count = PyTuple_GET_SIZE(args);
    const bool named = kwargs != nullptr && PyDict_GET_SIZE(kwargs) != 0;
    if (count == 0 && !named) {
        return box_value(color_type, ShlColorObject{});
    }
    PyObject* color = count == 1 && !named ? color_from_one(PyTuple_GET_ITEM(args, 0)) : nullptr;
    if (color == nullptr && PyErr_Occurred() == nullptr) {
        PyErr_SetString(PyExc_TypeError,
                        "Color() takes a name, a number, or r, g and b with or without a");
    }
    return color;
}

// ---- properties ------------------------------------------------------------------------------

template <int Shift> PyObject* part_getter(PyObject* self, void*) {
    return PyLong_FromUnsignedLong((color_of(self).argb >> Shift) & 0xFF);
}

PyObject* name_getter(PyObject* self, void*) {
    const ShlColorObject& color = color_of(self);
    if (color.is_set == 0) {
        return PyUnicode_FromString("0");
    }
    const char* name = known_name(color);
    return name != nullptr ? PyUnicode_FromString(name) : PyUnicode_FromFormat("%08x", color.argb);
}

PyObject* is_empty_getter(PyObject* self, void*) {
    return PyBool_FromLong(color_of(self).is_set == 0);
}

PyObject* is_known_getter(PyObject* self, void*) {
    return PyBool_FromLong(known_name(color_of(self)) != nullptr);
}

PyObject* color_to_argb(PyObject* self, PyObject*) {
    return PyLong_FromLong(static_cast<std::int32_t>(color_of(self).argb));
}

PyObject* color_reduce(PyObject* self, PyObject*) {
    const ShlColorObject& color = color_of(self);
    return color.is_set != 0 ? Py_BuildValue("O(I)", &color_type, color.argb)
                             : Py_BuildValue("O()", &color_type);
}

PyObject* color_repr(PyObject* self) {
    const ShlColorObject& color = color_of(self);
    if (color.is_set == 0) {
        return PyUnicode_FromString("Color()");
    }
    return PyUnicode_FromFormat("Color(r=%u, g=%u, b=%u, a=%u)", (color.argb >> 16) & 0xFF,
                                (color.argb >> 8) & 0xFF, color.argb & 0xFF, color.argb >> 24);
}

Py_hash_t color_hash(PyObject* self) {
    return _Py_HashBytes(&color_of(self), sizeof(ShlColorObject));
}

bool same_colors(const ShlColorObject& a, const ShlColorObject& b) {
    return a.argb == b.argb && a.is_set == b.is_set;
}

PyGetSetDef color_getset[] = {
    {"a", part_getter<24>, nullptr, "Opacity, 0 to 255.", nullptr},
    {"r", part_getter<16>, nullptr, "Red, 0 to 255.", nullptr},
    {"g", part_getter<8>, nullptr, "Green, 0 to 255.", nullptr},
    {"b", part_getter<0>, nullptr, "Blue, 0 to 255.", nullptr},
    {"name", name_getter, nullptr, "The known name, or the value as aarrggbb.", nullptr},
    {"is_empty", is_empty_getter, nullptr, "Whether the colour was never set.", nullptr},
    {"is_known_color", is_known_getter, nullptr, "Whether the colour has a name.", nullptr},
    {}};

PyMethodDef color_methods[] = {
    {"from_argb", color_from_argb, METH_VARARGS | METH_STATIC,
     "from_argb(argb), from_argb(a, base), from_argb(r, g, b) or from_argb(a, r, g, b)"},
    {"from_name", color_from_name, METH_O | METH_STATIC,
     "The colour of a name, in upper or lower case."},
    {"to_argb", color_to_argb, METH_NOARGS, "The colour as a signed number of 32 bits."},
    {"__reduce__", color_reduce, METH_NOARGS, nullptr},
    {}};

} // namespace

PyTypeObject color_type = {
    .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name = "korvan.pydrawing.Color",
    .tp_basicsize = sizeof(ValueBox<ShlColorObject>),
    .tp_repr = color_repr,
    .tp_hash = color_hash,
    .tp_flags = Py_TPFLAGS_DEFAULT,
    .tp_doc = "Color(), Color(name), Color(argb) or Color(r, g, b, a=255)\n\n"
              "A colour of four parts, each 0 to 255. Without arguments, one that was never set.",
    .tp_richcompare = compare_values<ShlColorObject, same_colors>,
    .tp_methods = color_methods,
    .tp_getset = color_getset,
    .tp_new = color_new,
};

int parse_color(PyObject* object, void* out) {
    return parse_value<ShlColorObject>(object, out, color_type, "Color");
}

PyObject* wrap_color(const void* raw) {
    return box_value(color_type, *static_cast<const ShlColorObject*>(raw));
}
