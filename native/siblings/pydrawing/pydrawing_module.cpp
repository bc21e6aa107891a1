// korvan.pydrawing: colours and rectangles as plain Python values, shared by the family.
#include "module/capsules.h"
#include "module/version_attributes.h"
#include "runtime/identifiers.h"

#include <cstring>
#include <structmember.h>

namespace {

// The raw values, as they lie in a delegate's slot.
struct ColorValue {
    std::uint32_t argb;
};
struct RectangleValue {
    float x, y, width, height;
};

template <class Value> struct Box {
    PyObject_HEAD
    Value value;
};

template <class Value> Value& value_of(PyObject* object) {
    return reinterpret_cast<Box<Value>*>(object)->value;
}

template <class Value> Py_hash_t value_hash(PyObject* self) {
    const Py_hash_t hash = _Py_HashBytes(&value_of<Value>(self), sizeof(Value));
    return hash;
}

template <class Value> PyObject* value_compare(PyObject* self, PyObject* other, int op) {
    if (Py_TYPE(self) != Py_TYPE(other) || (op != Py_EQ && op != Py_NE)) {
        Py_RETURN_NOTIMPLEMENTED;
    }
    // By their bytes, as they are hashed.
    const bool same = // NOLINTNEXTLINE(bugprone-suspicious-memory-comparison)
        std::memcmp(&value_of<Value>(self), &value_of<Value>(other), sizeof(Value)) == 0;
    return PyBool_FromLong(same == (op == Py_EQ));
}

// ---- Color -----------------------------------------------------------------------------------

template <int Shift> PyObject* channel_getter(PyObject* self, void*) {
    return PyLong_FromUnsignedLong((value_of<ColorValue>(self).argb >> Shift) & 0xFF);
}

PyObject* color_repr(PyObject* self) {
    const std::uint32_t argb = value_of<ColorValue>(self).argb;
    return PyUnicode_FromFormat("Color(r=%u, g=%u, b=%u, a=%u)", (argb >> 16) & 0xFF,
                                (argb >> 8) & 0xFF, argb & 0xFF, argb >> 24);
}

int color_init(PyObject* self, PyObject* args, PyObject* kwargs) {
    static const char* keywords[] = {"r", "g", "b", "a", nullptr};
    unsigned char r = 0, g = 0, b = 0, a = 255;
    if (!PyArg_ParseTupleAndKeywords(args, kwargs, "bbb|b:Color", const_cast<char**>(keywords), &r,
                                     &g, &b, &a)) {
        return -1;
    }
    value_of<ColorValue>(self).argb = static_cast<std::uint32_t>(a) << 24 |
                                      static_cast<std::uint32_t>(r) << 16 |
                                      static_cast<std::uint32_t>(g) << 8 | b;
    return 0;
}

PyGetSetDef color_getset[] = {{"a", channel_getter<24>, nullptr, "Opacity, 0 to 255.", nullptr},
                              {"r", channel_getter<16>, nullptr, "Red, 0 to 255.", nullptr},
                              {"g", channel_getter<8>, nullptr, "Green, 0 to 255.", nullptr},
                              {"b", channel_getter<0>, nullptr, "Blue, 0 to 255.", nullptr},
                              {}};

PyTypeObject color_type = {
    .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name = "korvan.pydrawing.Color",
    .tp_basicsize = sizeof(Box<ColorValue>),
    .tp_repr = color_repr,
    .tp_hash = value_hash<ColorValue>,
    .tp_flags = Py_TPFLAGS_DEFAULT,
    .tp_doc = "Color(r, g, b, a=255)\n\nA colour of four channels, each 0 to 255.",
    .tp_richcompare = value_compare<ColorValue>,
    .tp_getset = color_getset,
    .tp_init = color_init,
    .tp_new = PyType_GenericNew,
};

// ---- RectangleF ------------------------------------------------------------------------------

PyObject* rectangle_repr(PyObject* self) {
    const RectangleValue& r = value_of<RectangleValue>(self);
    char text[128];
    PyOS_snprintf(text, sizeof(text), "RectangleF(x=%.9g, y=%.9g, width=%.9g, height=%.9g)", r.x,
                  r.y, r.width, r.height);
    return PyUnicode_FromString(text);
}

int rectangle_init(PyObject* self, PyObject* args, PyObject* kwargs) {
    static const char* keywords[] = {"x", "y", "width", "height", nullptr};
    RectangleValue& r = value_of<RectangleValue>(self);
    return PyArg_ParseTupleAndKeywords(args, kwargs, "ffff:RectangleF",
                                       const_cast<char**>(keywords), &r.x, &r.y, &r.width,
                                       &r.height)
               ? 0
               : -1;
}

constexpr Py_ssize_t rectangle_base = offsetof(Box<RectangleValue>, value);
PyMemberDef rectangle_members[] = {
    {"x", T_FLOAT, rectangle_base + offsetof(RectangleValue, x), READONLY, "Left edge."},
    {"y", T_FLOAT, rectangle_base + offsetof(RectangleValue, y), READONLY, "Top edge."},
    {"width", T_FLOAT, rectangle_base + offsetof(RectangleValue, width), READONLY, nullptr},
    {"height", T_FLOAT, rectangle_base + offsetof(RectangleValue, height), READONLY, nullptr},
    {}};

PyTypeObject rectangle_type = {
    .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name = "korvan.pydrawing.RectangleF",
    .tp_basicsize = sizeof(Box<RectangleValue>),
    .tp_repr = rectangle_repr,
    .tp_hash = value_hash<RectangleValue>,
    .tp_flags = Py_TPFLAGS_DEFAULT,
    .tp_doc = "RectangleF(x, y, width, height)\n\nA rectangle in single precision.",
    .tp_richcompare = value_compare<RectangleValue>,
    .tp_members = rectangle_members,
    .tp_init = rectangle_init,
    .tp_new = PyType_GenericNew,
};

// ---- capsules --------------------------------------------------------------------------------

template <class Value>
int parse(PyObject* object, void* out, PyTypeObject& type, const char* name) {
    if (Py_TYPE(object) != &type) {
        PyErr_Format(PyExc_TypeError, "can't build %s value from '%s'", name, type_name_of(object));
        return 0;
    }
    *static_cast<Value*>(out) = value_of<Value>(object);
    return 1;
}

template <class Value> PyObject* wrap(const void* raw, PyTypeObject& type) {
    PyObject* object = type.tp_alloc(&type, 0);
    if (object != nullptr) {
        value_of<Value>(object) = *static_cast<const Value*>(raw);
    }
    return object;
}

int parse_color(PyObject* object, void* out) {
    return parse<ColorValue>(object, out, color_type, "Color");
}
PyObject* wrap_color(const void* raw) { return wrap<ColorValue>(raw, color_type); }
int parse_rectangle(PyObject* object, void* out) {
    return parse<RectangleValue>(object, out, rectangle_type, "RectangleF");
}
PyObject* wrap_rectangle(const void* raw) { return wrap<RectangleValue>(raw, rectangle_type); }

void* color_api[] = {reinterpret_cast<void*>(parse_color), reinterpret_cast<void*>(wrap_color)};
void* rectangle_api[] = {reinterpret_cast<void*>(parse_rectangle),
                         reinterpret_cast<void*>(wrap_rectangle)};

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "korvan.pydrawing",
                          nullptr,
                          -1,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

} // namespace

PyMODINIT_FUNC PyInit_pydrawing() {
    fn_intern_identifiers();
    Ref module = Ref::steal(PyModule_Create(&definition));
    if (!module || PyModule_AddType(module.get(), &color_type) != 0 ||
        PyModule_AddType(module.get(), &rectangle_type) != 0 ||
        !add_capsule(module.get(), "korvan.pydrawing._C_APITV1_Color", color_api) ||
        !add_capsule(module.get(), "korvan.pydrawing._C_APITV1_RectangleF", rectangle_api) ||
        add_version_attributes(module.get(), "korvan.pydrawing._ModuleVersionType",
                               {25, 3, 0, 0, "25.3.0.0"}, {22, 6, 0, 0, "22.6.0.0"}) != 0) {
        return nullptr;
    }
    return module.release();
}
