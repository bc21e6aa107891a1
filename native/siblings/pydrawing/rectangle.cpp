#include "rectangle.h"

#include <structmember.h>

namespace {

const ShlRectangleFObject& rectangle_of(PyObject* self) {
    return value_of<ShlRectangleFObject>(self);
}

PyObject* rectangle_new(PyTypeObject*, PyObject* args, PyObject* kwargs) {
    static const char* keywords[] = {"x", "y", "width", "height", nullptr};
    ShlRectangleFObject r{};
    if (!PyArg_ParseTupleAndKeywords(args, kwargs, "|ffff:RectangleF", const_cast<char**>(keywords),
                                     &r.x, &r.y, &r.width, &r.height)) {
        return nullptr;
    }
    return box_value(rectangle_type, r);
}

// Edges are sums in single precision, as the managed side has them.
float right_of(const ShlRectangleFObject& r) { return r.x + r.width; }
float bottom_of(const ShlRectangleFObject& r) { return r.y + r.height; }

template <float (*edge)(const ShlRectangleFObject&)> PyObject* edge_getter(PyObject* self, void*) {
    return PyFloat_FromDouble(edge(rectangle_of(self)));
}

PyObject* is_empty_getter(PyObject* self, void*) {
    const ShlRectangleFObject& r = rectangle_of(self);
    return PyBool_FromLong(r.width <= 0 || r.height <= 0);
}

// The left and top edges belong to the rectangle, the right and bottom ones do not.
PyObject* rectangle_contains(PyObject* self, PyObject* args) {
    float x = 0, y = 0;
    if (!PyArg_ParseTuple(args, "ff:contains", &x, &y)) {
        return nullptr;
    }
    const ShlRectangleFObject& r = rectangle_of(self);
    return PyBool_FromLong(r.x <= x && x < right_of(r) && r.y <= y && y < bottom_of(r));
}

PyObject* rectangle_reduce(PyObject* self, PyObject*) {
    const ShlRectangleFObject& r = rectangle_of(self);
    return Py_BuildValue("O(ffff)", &rectangle_type, r.x, r.y, r.width, r.height);
}

PyObject* rectangle_repr(PyObject* self) {
    const ShlRectangleFObject& r = rectangle_of(self);
    char text[128];
    PyOS_snprintf(text, sizeof(text), "RectangleF(x=%.9g, y=%.9g, width=%.9g, height=%.9g)", r.x,
                  r.y, r.width, r.height);
    return PyUnicode_FromString(text);
}

// Equal numbers hash alike: adding zero turns a negative zero into the positive one.
Py_hash_t rectangle_hash(PyObject* self) {
    const ShlRectangleFObject& r = rectangle_of(self);
    const float parts[] = {r.x + 0.0f, r.y + 0.0f, r.width + 0.0f, r.height + 0.0f};
    return _Py_HashBytes(parts, sizeof(parts));
}

bool same_rectangles(const ShlRectangleFObject& a, const ShlRectangleFObject& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

constexpr Py_ssize_t base = offsetof(ValueBox<ShlRectangleFObject>, value);
constexpr Py_ssize_t offset_x = base + offsetof(ShlRectangleFObject, x);
constexpr Py_ssize_t offset_y = base + offsetof(ShlRectangleFObject, y);
PyMemberDef rectangle_members[] = {
    {"x", T_FLOAT, offset_x, READONLY, "Left edge."},
    {"y", T_FLOAT, offset_y, READONLY, "Top edge."},
    {"left", T_FLOAT, offset_x, READONLY, "Left edge."},
    {"top", T_FLOAT, offset_y, READONLY, "Top edge."},
    {"width", T_FLOAT, base + offsetof(ShlRectangleFObject, width), READONLY, nullptr},
    {"height", T_FLOAT, base + offsetof(ShlRectangleFObject, height), READONLY, nullptr},
    {}};

PyGetSetDef rectangle_getset[] = {
    {"right", edge_getter<right_of>, nullptr, "Right edge.", nullptr},
    {"bottom", edge_getter<bottom_of>, nullptr, "Bottom edge.", nullptr},
    {"is_empty", is_empty_getter, nullptr, "Whether there is no area.", nullptr},
    {}};

PyMethodDef rectangle_methods[] = {
    {"contains", rectangle_contains, METH_VARARGS, "Whether the point x, y lies inside."},
    {"__reduce__", rectangle_reduce, METH_NOARGS, nullptr},
    {}};

} // namespace

PyTypeObject rectangle_type = {
    .ob_base = PyVarObject_HEAD_INIT(nullptr, 0).tp_name = "korvan.pydrawing.RectangleF",
    .tp_basicsize = sizeof(ValueBox<ShlRectangleFObject>),
    .tp_repr = rectangle_repr,
    .tp_hash = rectangle_hash,
    .tp_flags = Py_TPFLAGS_DEFAULT,
    .tp_doc = "RectangleF(x=0, y=0, width=0, height=0)\n\nA rectangle in single precision.",
    .tp_richcompare = compare_values<ShlRectangleFObject, same_rectangles>,
    .tp_methods = rectangle_methods,
    .tp_members = rectangle_members,
    .tp_getset = rectangle_getset,
    .tp_new = rectangle_new,
};

int parse_rectangle(PyObject* object, void* out) {
    return parse_value<ShlRectangleFObject>(object, out, rectangle_type, "RectangleF");
}

PyObject* wrap_rectangle(const void* raw) {
    return box_value(rectangle_type, *static_cast<const ShlRectangleFObject*>(raw));
}
