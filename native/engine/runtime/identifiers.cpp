#include "runtime/identifiers.h"

#define KORVAN_IDENTIFIER(group, member, text) PyObject* PyWrpId##group##_##member;
#include "runtime/identifiers.def"

void fn_intern_identifiers() {
#define KORVAN_IDENTIFIER(group, member, text)                                                     \
    PyWrpId##group##_##member = PyUnicode_InternFromString(text);
#include "runtime/identifiers.def"
}
