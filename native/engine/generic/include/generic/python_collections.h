// generic/python_collections.h: Python lists, sequences and iterators read by managed code as
// collections of one element type.
//
// A callback is a table slot without a closure, so each element has functions of its own; they are
// one line each over bodies that know the element by its converter alone.
#ifndef KORVAN_GENERIC_PYTHON_COLLECTIONS_H
#define KORVAN_GENERIC_PYTHON_COLLECTIONS_H

#include "bindings/arguments.h"
#include "bindings/results.h"

namespace python_collection {

using Converter = int (*)(PyObject*, void* element, const void* type);

// To managed code: 0 and the element, or a status. `keep` gets the item, which the element may
// view.
int list_get(PyObject* list, int index, Converter convert, void* element, const void* type);
int sequence_get(PyObject* sequence, int index, PyObject** keep, Converter convert, void* element,
                 const void* type);
int iterator_next(PyObject* iterator, PyObject** keep, Converter convert, void* element,
                  const void* type);

// To Python: each takes over the value, a new reference, or null with an error.
int list_set(PyObject* list, int index, PyObject* value);
int list_add(PyObject* list, PyObject* value);
int list_insert(PyObject* list, int index, PyObject* value);
int list_remove(PyObject* list, PyObject* value);
int list_contains(PyObject* list, PyObject* value);
int list_index_of(PyObject* list, PyObject* value);
int sequence_contains(PyObject* sequence, PyObject* value);
int sequence_index_of(PyObject* sequence, PyObject* value);
int iterable_contains(PyObject* iterable, PyObject* value);

template <class Arg, auto Type> struct Reader {
    using Element = typename Arg::cell;
    static const void* type() { return static_cast<const void*>(Type); }

    static int get(PyObject* list, int index, Element* out) {
        *out = Element{};
        return list_get(list, index, arg::convert_cell<Arg>, out, type());
    }
    static int get_kept(PyObject* sequence, int index, PyObject** keep, Element* out) {
        *out = Element{};
        return sequence_get(sequence, index, keep, arg::convert_cell<Arg>, out, type());
    }
    static int next(PyObject* iterator, PyObject** keep, Element* out) {
        *out = Element{};
        return iterator_next(iterator, keep, arg::convert_cell<Arg>, out, type());
    }
};

template <class Ret, auto Type> struct Writer {
    using Element = typename Ret::native;
    static PyObject* make(Element value) {
        return Ret::make(value, static_cast<const void*>(Type));
    }

    template <int (*Operation)(PyObject*, PyObject*)>
    static int with(PyObject* list, Element value) {
        return Operation(list, make(value));
    }
    template <int (*Operation)(PyObject*, int, PyObject*)>
    static int at(PyObject* list, int index, Element value) {
        return Operation(list, index, make(value));
    }
};

} // namespace python_collection

// The tables of one element. Their slots stand in the order that contract/callbacks.def gives.
template <class Arg, auto Type> struct PyIterTable {
    using Read = python_collection::Reader<Arg, Type>;
    decltype(&Read::next) iter_next = Read::next;
};

template <class Arg, auto Type> struct PyListTable {
    using Read = python_collection::Reader<Arg, Type>;
    decltype(&Read::get) get_item = Read::get;
};
template <class Arg, auto Type> struct PySeqTable {
    using Read = python_collection::Reader<Arg, Type>;
    decltype(&Read::get_kept) get_item = Read::get_kept;
};

// Of an element that managed code takes as ICollection: it adds and removes.
template <class Arg, class Ret, auto Type> struct PyListCollectionTable : PyListTable<Arg, Type> {
    using Write = python_collection::Writer<Ret, Type>;
    using With = int (*)(PyObject*, typename Write::Element);
    With add = Write::template with<python_collection::list_add>;
    int (*insert)(PyObject*, int,
                  typename Write::Element) = Write::template at<python_collection::list_insert>;
    With remove = Write::template with<python_collection::list_remove>;
    With contains = Write::template with<python_collection::list_contains>;
};
template <class Arg, class Ret, auto Type> struct PySeqCollectionTable : PySeqTable<Arg, Type> {
    using Write = python_collection::Writer<Ret, Type>;
    int (*itercontains)(PyObject*, typename Write::Element) =
        Write::template with<python_collection::iterable_contains>;
};

// Of an element that managed code takes as IList: it places, too.
template <class Arg, class Ret, auto Type> struct PyListEditTable : PyListTable<Arg, Type> {
    using Write = python_collection::Writer<Ret, Type>;
    using With = int (*)(PyObject*, typename Write::Element);
    using At = int (*)(PyObject*, int, typename Write::Element);
    At set_item = Write::template at<python_collection::list_set>;
    With add = Write::template with<python_collection::list_add>;
    At insert = Write::template at<python_collection::list_insert>;
    With remove = Write::template with<python_collection::list_remove>;
    With contains = Write::template with<python_collection::list_contains>;
    With index_of = Write::template with<python_collection::list_index_of>;
};
template <class Arg, class Ret, auto Type> struct PySeqEditTable : PySeqTable<Arg, Type> {
    using Write = python_collection::Writer<Ret, Type>;
    using With = int (*)(PyObject*, typename Write::Element);
    With contains = Write::template with<python_collection::sequence_contains>;
    With index_of = Write::template with<python_collection::sequence_index_of>;
};

#endif
