// cad/entity_rows.h: the numbers of many entities in one call, for korvan._entity_rows.
#ifndef KORVAN_CAD_ENTITY_ROWS_H
#define KORVAN_CAD_ENTITY_ROWS_H

#include "runtime/py_base.h"

inline constexpr const char* doc_entity_rows =
    "_entity_rows(source, kind, layers)\n--\n\n"
    "Rows, ends, indices and closed as bytearrays, and the number of columns.";

PyObject* cad_entity_rows(PyObject* module, PyObject* arguments);

#endif
