// cad/packaging_hook.h: where applications that freeze a program find this package's hooks.
#ifndef KORVAN_CAD_PACKAGING_HOOK_H
#define KORVAN_CAD_PACKAGING_HOOK_H

#include "runtime/py_base.h"

// A new list: the hook folder beside the module's file, then one below each name.
PyObject* fn_get_pyinstaller_hook_dirs(PyModuleDef* module_def, const char** names, long count,
                                       const char* hook_dir);

#endif
