// cad/dependencies.h: the sibling modules that korvan.cad needs, and what it takes from them.
#ifndef KORVAN_CAD_DEPENDENCIES_H
#define KORVAN_CAD_DEPENDENCIES_H

#include "runtime/py_base.h"

extern const int RefVer_pygc_E169B802[4];
extern const int RefVer_pydrawin_BDCFE46E[4];
extern const int RefVer_pyreflec_D2D13F94[4];

using ColorParser = int (*)(PyObject* object, void* out);
using ValueWrapper = PyObject* (*)(const void* value);
extern ColorParser wrpPyl_convcaps_py_to_clr_A6FFC60D_Color;
extern ValueWrapper wrpPyl_convcaps_clr_to_py_A6FFC60D_Color;
extern ValueWrapper wrpPyl_convcaps_clr_to_py_E41B503E_RectangleF;

// Gates korvan.pydrawing and korvan.pyreflection and reads their capsules. 0, or -1.
int wrpPyl_ciap_821C260C_cad();
// Gates korvan.pygc and takes the cast result's constructor. 0, or -1.
int import_pygc();

#endif
