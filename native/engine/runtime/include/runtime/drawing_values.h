// runtime/drawing_values.h: colours and rectangles of korvan.pydrawing, which are Python values
// there.
#ifndef KORVAN_RUNTIME_DRAWING_VALUES_H
#define KORVAN_RUNTIME_DRAWING_VALUES_H

#include "runtime/py_base.h"

// Functions of its capsules, read when a module that needs them starts. A parser gives 1, or 0 with
// an error; the record behind `out` and `value` is the one named.
using ValueParser = int (*)(PyObject* object, void* out);
using ValueWrapper = PyObject* (*)(const void* value);
extern ValueParser wrpPyl_convcaps_py_to_clr_A6FFC60D_Color; // ShlColorObject
extern ValueWrapper wrpPyl_convcaps_clr_to_py_A6FFC60D_Color;
extern ValueWrapper wrpPyl_convcaps_clr_to_py_E41B503E_RectangleF; // ShlRectangleFObject

#endif
