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
    bool (*add)(void* function, void* self, PyObject* value, const void* type);
    bool (*insert)(void* function, void* self, int index, PyObject* value, const void* type);
    // contains, remove, count_of: (handle, value)
    int (*ask)(void* function, void* self, PyObject* value, const void* type);
    int (*index_by)(void* function, void* self, int has_start, int start, int has_stop, int stop,
                    PyObject* value, const void* type);
    int (*pop)(void* function, void* self, int has_index, int index, const void* type,
               PyObject** out);
    int (*move_next)(void* function, void* self, const void* type, PyObject** out);
};

namespace element_detail {

template <class Ret> using native_of = typename Ret::native;

// Makes `*out` of an item that the delegate delivered with `status`.
template <class Ret>
int deliver(int status, native_of<Ret> item, const void* type, PyObject** out) {
    if (PyErr_Occurred() != nullptr) {
        return KORVAN_FAILED;
    }
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

// Converts `value` and calls the delegate with `leading` arguments ahead of it.
template <class Arg, class Result, class... Leading>
bool call_with(void* function, PyObject* value, const void* type, Result* result,
               Leading... leading) {
    typename Arg::cell cell{};
    if (Arg::convert(value, &cell, type) != 1) {
        return false;
    }
    *result = std::apply(
        [&](auto... natives) {
            return reinterpret_cast<Result (*)(Leading..., decltype(natives)...)>(function)(
                leading..., natives...);
        },
        Arg::pass(cell));
    return PyErr_Occurred() == nullptr;
}

template <class Arg, class... Leading>
bool call_void_with(void* function, PyObject* value, const void* type, Leading... leading) {
    typename Arg::cell cell{};
    if (Arg::convert(value, &cell, type) != 1) {
        return false;
    }
    std::apply(
        [&](auto... natives) {
            reinterpret_cast<void (*)(Leading..., decltype(natives)...)>(function)(leading...,
                                                                                   natives...);
        },
        Arg::pass(cell));
    return PyErr_Occurred() == nullptr;
}

template <class Arg>
int set_item(void* function, void* self, int index, PyObject* value, const void* type) {
    int status = KORVAN_FAILED;
    return call_with<Arg>(function, value, type, &status, self, index) ? status : KORVAN_FAILED;
}

template <class Arg> bool add(void* function, void* self, PyObject* value, const void* type) {
    return call_void_with<Arg>(function, value, type, self);
}

template <class Arg>
bool insert(void* function, void* self, int index, PyObject* value, const void* type) {
    return call_void_with<Arg>(function, value, type, self, index);
}

template <class Arg> int ask(void* function, void* self, PyObject* value, const void* type) {
    int answer = 0;
    return call_with<Arg>(function, value, type, &answer, self) ? answer : KORVAN_FAILED;
}

template <class Arg>
int index_by(void* function, void* self, int has_start, int start, int has_stop, int stop,
             PyObject* value, const void* type) {
    int index = -1;
    call_with<Arg>(function, value, type, &index, self, has_start, start, has_stop, stop);
    return index;
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
    element_detail::get_item<Ret>,  element_detail::get_item_no_check<Ret>,
    element_detail::set_item<Arg>,  element_detail::add<Arg>,
    element_detail::insert<Arg>,    element_detail::ask<Arg>,
    element_detail::index_by<Arg>,  element_detail::pop<Ret>,
    element_detail::move_next<Ret>,
};

#endif
