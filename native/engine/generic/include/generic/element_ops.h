// generic/element_ops.h: the operations of a collection whose element has one native shape.
//
// One set of bodies per shape: no element passes through a variant. The non-generic collections
// have the variant as their shape.
#ifndef KORVAN_GENERIC_ELEMENT_OPS_H
#define KORVAN_GENERIC_ELEMENT_OPS_H

#include "bindings/arguments.h"
#include "bindings/results.h"

// `function` is the delegate, `type` the element's binding. The int results are the delegates'
// statuses, or -1 with a Python error; `*out` is a new reference.
struct ElementOps {
    int (*get_item)(void* function, void* self, int index, const void* type, PyObject** out);
    PyObject* (*get_item_no_check)(void* function, void* self, int index, const void* type);
    int (*set_item)(void* function, void* self, int index, PyObject* value, const void* type);
    bool (*set_item_no_check)(void* function, void* self, int index, PyObject* value,
                              const void* type);
    bool (*add)(void* function, void* self, PyObject* value, const void* type);
    // These two read their own Python arguments, as the element comes between plain ones.
    bool (*insert)(void* function, void* self, PyObject* args, const void* type);
    int (*index_by)(void* function, void* self, PyObject* args, const void* type);
    // contains, remove, count_of: (handle, value)
    int (*ask)(void* function, void* self, PyObject* value, const void* type);
    int (*pop)(void* function, void* self, int has_index, int index, const void* type,
               PyObject** out);
    int (*move_next)(void* function, void* self, const void* type, PyObject** out);
};

namespace element_detail {

template <class Ret> using native_of = typename Ret::native;

// Makes `*out` of an item that the delegate delivered with `status`. A status tells of a failure by
// itself: what these delegates cost is too little to ask for a pending error, too.
template <class Ret>
int deliver(int status, native_of<Ret> item, const void* type, PyObject** out) {
    if (status == KORVAN_ITEM) {
        *out = Ret::make(item, type);
        return *out != nullptr ? KORVAN_ITEM : KORVAN_FAILED;
    }
    return status;
}

template <class Ret>
int get_item(void* function, void* self, int index, const void* type, PyObject** out) {
    native_of<Ret> item{};
    const int status =
        reinterpret_cast<int (*)(void*, int, native_of<Ret>*)>(function)(self, index, &item);
    return deliver<Ret>(status, item, type, out);
}

template <class Ret>
PyObject* get_item_no_check(void* function, void* self, int index, const void* type) {
    const native_of<Ret> item =
        reinterpret_cast<native_of<Ret> (*)(void*, int)>(function)(self, index);
    return PyErr_Occurred() != nullptr ? nullptr : Ret::make(item, type);
}

// Calls the delegate with `leading` arguments and what the element in its cell passes.
template <class Result, class Arg, class... Leading>
Result call_with_cell(void* function, typename Arg::cell& cell, Leading... leading) {
    return std::apply(
        [&](auto... natives) {
            return reinterpret_cast<Result (*)(Leading..., decltype(natives)...)>(function)(
                leading..., natives...);
        },
        Arg::pass(cell));
}

// Converts `value` and calls the delegate with `leading` arguments ahead of it.
template <class Arg, class Result, class... Leading>
bool call_with(void* function, PyObject* value, const void* type, Result* result,
               Leading... leading) {
    typename Arg::cell cell{};
    if (Arg::convert(value, &cell, type) != 1) {
        return false;
    }
    *result = call_with_cell<Result, Arg>(function, cell, leading...);
    return PyErr_Occurred() == nullptr;
}

template <class Arg, class... Leading>
bool call_void_with(void* function, PyObject* value, const void* type, Leading... leading) {
    typename Arg::cell cell{};
    if (Arg::convert(value, &cell, type) != 1) {
        return false;
    }
    call_with_cell<void, Arg>(function, cell, leading...);
    return PyErr_Occurred() == nullptr;
}

template <class Arg>
int set_item(void* function, void* self, int index, PyObject* value, const void* type) {
    int status = KORVAN_FAILED;
    return call_with<Arg>(function, value, type, &status, self, index) ? status : KORVAN_FAILED;
}

template <class Arg>
bool set_item_no_check(void* function, void* self, int index, PyObject* value, const void* type) {
    return call_void_with<Arg>(function, value, type, self, index);
}

template <class Arg> bool add(void* function, void* self, PyObject* value, const void* type) {
    return call_void_with<Arg>(function, value, type, self);
}

template <class Arg> int ask(void* function, void* self, PyObject* value, const void* type) {
    int answer = 0;
    return call_with<Arg>(function, value, type, &answer, self) ? answer : KORVAN_FAILED;
}

// An element among the arguments that "O&" reads.
template <class Arg> struct ParsedElement {
    const void* type;
    typename Arg::cell cell{};
    static int parse(PyObject* object, void* element) {
        auto* self = static_cast<ParsedElement*>(element);
        return Arg::convert(object, &self->cell, self->type) == 1;
    }
};

template <class Arg> bool insert(void* function, void* self, PyObject* args, const void* type) {
    ParsedElement<Arg> element{type};
    Py_ssize_t index = 0;
    if (!PyArg_ParseTuple(args, "nO&", &index, ParsedElement<Arg>::parse, &element) ||
        !is_int32_index(index)) {
        return false;
    }
    call_with_cell<void, Arg>(function, element.cell, self, static_cast<int>(index));
    return PyErr_Occurred() == nullptr;
}

template <class Arg> int index_by(void* function, void* self, PyObject* args, const void* type) {
    ParsedElement<Arg> element{type};
    Py_ssize_t start = 0, stop = 0;
    if (!PyArg_ParseTuple(args, "O&|nn", ParsedElement<Arg>::parse, &element, &start, &stop) ||
        !is_int32_index(start) || !is_int32_index(stop)) {
        return -1;
    }
    const Py_ssize_t given = PyTuple_GET_SIZE(args);
    return call_with_cell<int, Arg>(function, element.cell, self, static_cast<int>(given >= 2),
                                    static_cast<int>(start), static_cast<int>(given >= 3),
                                    static_cast<int>(stop));
}

template <class Ret>
int pop(void* function, void* self, int has_index, int index, const void* type, PyObject** out) {
    native_of<Ret> item{};
    const int status = reinterpret_cast<int (*)(void*, int, int, native_of<Ret>*)>(function)(
        self, has_index, index, &item);
    return deliver<Ret>(status, item, type, out);
}

template <class Ret> int move_next(void* function, void* self, const void* type, PyObject** out) {
    native_of<Ret> item{};
    const int status = reinterpret_cast<int (*)(void*, native_of<Ret>*)>(function)(self, &item);
    return deliver<Ret>(status, item, type, out);
}

} // namespace element_detail

template <class Arg, class Ret>
inline constexpr ElementOps element_ops = {
    element_detail::get_item<Ret>, element_detail::get_item_no_check<Ret>,
    element_detail::set_item<Arg>, element_detail::set_item_no_check<Arg>,
    element_detail::add<Arg>,      element_detail::insert<Arg>,
    element_detail::index_by<Arg>, element_detail::ask<Arg>,
    element_detail::pop<Ret>,      element_detail::move_next<Ret>,
};

#endif
