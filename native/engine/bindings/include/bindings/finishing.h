// bindings/finishing.h: what is done to types when they are ready, and when the last one stands.
#ifndef KORVAN_BINDINGS_FINISHING_H
#define KORVAN_BINDINGS_FINISHING_H

#include "bindings/tables.h"

// Both never fail: what can't be had stays as it is.

// Lets the static methods of the cast protocol be found without a descriptor. Belongs right behind
// PyType_Ready, so that the next type takes the memory of the wrappers that go.
void unwrap_cast_methods(PyTypeObject& type);
// Takes the types and what they are made of out of the cyclic collector's lists.
void finish_types(const BoundTree& tree, ClassBinding* const* interop_wrappers);

#endif
