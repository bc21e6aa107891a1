// generic/collection_functions.h: the bodies of slots and methods of collections, by subject.
#ifndef KORVAN_GENERIC_COLLECTION_FUNCTIONS_H
#define KORVAN_GENERIC_COLLECTION_FUNCTIONS_H

#include "generic/collection.h"

namespace collection {

// reading: collection_reading.cpp
PyObject* iter(PyObject* self);
PyObject* iterator_next(PyObject* self);
Py_ssize_t length(PyObject* self);
PyObject* length_getter(PyObject* self, void* closure);
PyObject* item(PyObject* self, Py_ssize_t index);
int has(PyObject* self, PyObject* value);
PyObject* contains(PyObject* self, PyObject* value);
PyObject* count(PyObject* self, PyObject* value);
PyObject* index(PyObject* self, PyObject* args);
// A plain list of the items, or of them and the other's; a copy is one repeat.
PyObject* concat(PyObject* self, PyObject* other);
PyObject* repeat(PyObject* self, Py_ssize_t count);
PyObject* copy(PyObject* self, PyObject* ignored);

// writing: collection_writing.cpp
int assign_item(PyObject* self, Py_ssize_t index, PyObject* value);
PyObject* append(PyObject* self, PyObject* value);
PyObject* insert(PyObject* self, PyObject* args);
PyObject* extend(PyObject* self, PyObject* items);
PyObject* inplace_concat(PyObject* self, PyObject* items);
PyObject* inplace_repeat(PyObject* self, Py_ssize_t count);
PyObject* remove(PyObject* self, PyObject* value);
PyObject* pop(PyObject* self, PyObject* args);
PyObject* clear(PyObject* self, PyObject* ignored);
PyObject* reverse(PyObject* self, PyObject* ignored);
PyObject* sort(PyObject* self, PyObject* args, PyObject* kwargs);

// indices and slices as keys: collection_slices.cpp
PyObject* subscript(PyObject* self, PyObject* key);
int assign_subscript(PyObject* self, PyObject* key, PyObject* value);

// this[int] alone: collection_indexer.cpp
PyObject* indexer_item(PyObject* self, Py_ssize_t index);
int indexer_assign(PyObject* self, Py_ssize_t index, PyObject* value);

} // namespace collection

// A plain list of `count` items from `start` on, which are known to exist.
PyObject* items_between(const Collection& collection, Py_ssize_t start, Py_ssize_t step,
                        Py_ssize_t count);
// The error for removing an item of an array.
int refuse_removal();

#endif
