// bindings/enum_types.h: Python's enum types without a call of the enum module for each of them.
#ifndef KORVAN_BINDINGS_ENUM_TYPES_H
#define KORVAN_BINDINGS_ENUM_TYPES_H

#include "bindings/tables.h"

// A new type of a family (enum.IntEnum or enum.IntFlag) with the members of the binding; a new
// reference, or null with an error.
PyObject* create_enum_type(const EnumBinding& binding, PyObject* family);

#endif
