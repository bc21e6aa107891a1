// generic/collection_arguments.h: parameters declared as collections.
#ifndef KORVAN_GENERIC_COLLECTION_ARGUMENTS_H
#define KORVAN_GENERIC_COLLECTION_ARGUMENTS_H

#include "bindings/tables.h"

enum class CollectionParameter {
    array,
    list,
    iterable,
    iterator,
    collection,
    typed_collection,
    wrapper, // no Python object stands in
};

// A wrapper crosses by its handle; a Python list, sequence or iterable crosses as itself, borrowed,
// and the managed side reads it through the callbacks.
int conv_py_to_clr_collection(PyObject* object, VariantArg* out, ClassBinding* wrapper,
                              CollectionParameter parameter);

#endif
