// bindings/finishing.h: what is done to the types of a tree when the last of them stands.
#ifndef KORVAN_BINDINGS_FINISHING_H
#define KORVAN_BINDINGS_FINISHING_H

#include "bindings/tables.h"

// Takes the types and what they are made of out of the cyclic collector's lists, and lets the
// static methods of the cast protocol be found without a descriptor. Never fails: what can't be had
// stays as it is.
void finish_types(const BoundTree& tree, ClassBinding* const* interop_wrappers);

#endif
