// bindings/pickling.h: members of bound enums in pickles.
#ifndef KORVAN_BINDINGS_PICKLING_H
#define KORVAN_BINDINGS_PICKLING_H

#include "bindings/tables.h"

// An enum's `__module__` does not lead to it, so `pickle` could not name its type. Each enum below
// the module is entered into the table of `copyreg` with a function that knows better; the type
// itself stays as it is.
bool make_enums_picklable(const ModuleRecord& root);

#endif
