// pydrawing/color.h: the type korvan.pydrawing.Color and its capsule's functions.
#ifndef KORVAN_PYDRAWING_COLOR_H
#define KORVAN_PYDRAWING_COLOR_H

#include "value_box.h"

extern PyTypeObject color_type;

int parse_color(PyObject* object, void* out);
PyObject* wrap_color(const void* raw);

#endif
