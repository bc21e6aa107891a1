// generic/collections.h: the collection protocols of Python over managed collections.
#ifndef KORVAN_GENERIC_COLLECTIONS_H
#define KORVAN_GENERIC_COLLECTIONS_H

#include "bindings/tables.h"

// Sets the type's sequence, mapping and iteration slots by ClassBinding::protocol.
void fill_protocol_slots(ClassBinding& binding);
// Adds the protocol's methods and `length` to the readied type. False with an error.
bool add_protocol_methods(ClassBinding& binding);

#endif
