// bindings/modules.h: the tree of namespace modules, built whole at import.
#ifndef KORVAN_BINDINGS_MODULES_H
#define KORVAN_BINDINGS_MODULES_H

#include "bindings/tables.h"

// The finished module with all below it, or null with a chained ImportError. `methods` are the
// root's own functions.
PyObject* build_namespace_tree(const ModuleRecord& root, PyModuleDef& root_definition);

// `_wrpgen` with `_interop` and `_generic`, added to the root. Borrowed, or null.
PyObject* wrpPye_mlit_FFFFFFFF_common_wrappers(PyObject* module, const BoundTree& tree);

// Readies a type of the runtime and adds it. 0, or -1 with an exception.
int PyShModule_AddType(PyObject* module, PyTypeObject* type, const char* name);

#endif
