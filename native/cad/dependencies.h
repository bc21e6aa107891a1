// cad/dependencies.h: what korvan.cad takes from korvan.pydrawing, besides what every module needs.
#ifndef KORVAN_CAD_DEPENDENCIES_H
#define KORVAN_CAD_DEPENDENCIES_H

#include "runtime/py_base.h"

using ColorParser = int (*)(PyObject* object, void* out);
using ValueWrapper = PyObject* (*)(const void* value);
extern ColorParser wrpPyl_convcaps_py_to_clr_A6FFC60D_Color;
extern ValueWrapper wrpPyl_convcaps_clr_to_py_A6FFC60D_Color;
extern ValueWrapper wrpPyl_convcaps_clr_to_py_E41B503E_RectangleF;

// Gates korvan.pydrawing and korvan.pyreflection and reads their capsules. 0, or -1.
int wrpPyl_ciap_821C260C_cad();

#endif
