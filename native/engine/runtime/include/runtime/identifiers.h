// runtime/identifiers.h: the interned Python strings, PyWrpId<Group>_<Member>.
#ifndef KORVAN_RUNTIME_IDENTIFIERS_H
#define KORVAN_RUNTIME_IDENTIFIERS_H

#include "runtime/py_base.h"

#define KORVAN_IDENTIFIER(group, member, text) extern PyObject* PyWrpId##group##_##member;
#include "runtime/identifiers.def"

// First of all at start: the version gate and every failure path use the identifiers.
void fn_intern_identifiers();

#endif
