// pydrawing/rectangle.h: the type korvan.pydrawing.RectangleF and its capsule's functions.
#ifndef KORVAN_PYDRAWING_RECTANGLE_H
#define KORVAN_PYDRAWING_RECTANGLE_H

#include "value_box.h"

extern PyTypeObject rectangle_type;

int parse_rectangle(PyObject* object, void* out);
PyObject* wrap_rectangle(const void* raw);

#endif
