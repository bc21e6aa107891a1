// bindings/properties.h: getters and setters, one body for each value kind.
#ifndef KORVAN_BINDINGS_PROPERTIES_H
#define KORVAN_BINDINGS_PROPERTIES_H

#include "bindings/arguments.h"
#include "bindings/results.h"

inline void* property_slot(const Property& property, std::uint16_t slot) {
    return reinterpret_cast<void*>(host_slot<void()>(*property.host, slot));
}

template <class Ret> PyObject* get(PyObject* self, void* closure) {
    const auto& property = *static_cast<const Property*>(closure);
    return Ret::invoke(property_slot(property, property.get_slot), property.type, clr_handle(self));
}

template <class Ret> PyObject* get_static(PyObject*, void* closure) {
    const auto& property = *static_cast<const Property*>(closure);
    if (!guard(*property.owner)) {
        return nullptr;
    }
    return Ret::invoke(property_slot(property, property.get_slot), property.type);
}

namespace property_detail {

template <class> using HandleOf = void*;

// Converts `value` and calls the set delegate, behind the handles of `instance`, if there is one:
// they are read last, since a converter may run Python code. False with an error.
template <class Arg, class... Instance>
bool assign(const Property& property, PyObject* value, Instance*... instance) {
    typename Arg::cell cell{};
    if (value == nullptr) {
        PyErr_SetString(PyExc_AttributeError, "a bound property can't be deleted");
        return false;
    }
    if (Arg::convert(value, &cell, property.type) != 1) {
        return false;
    }
    void* function = property_slot(property, property.set_slot);
    std::apply(
        [&](auto... natives) {
            reinterpret_cast<void (*)(HandleOf<Instance>..., decltype(natives)...)>(function)(
                clr_handle(instance)..., natives...);
        },
        Arg::pass(cell));
    return PyErr_Occurred() == nullptr;
}

} // namespace property_detail

template <class Arg> int set(PyObject* self, PyObject* value, void* closure) {
    const auto& property = *static_cast<const Property*>(closure);
    return property_detail::assign<Arg>(property, value, self) ? 0 : -1;
}

// The static method set_<name>: a descriptor can't take an assignment through the class.
template <const Property& P, class Arg> PyObject* static_setter_thunk(PyObject*, PyObject* value) {
    if (!guard(*P.owner) || !property_detail::assign<Arg>(P, value)) {
        return nullptr;
    }
    Py_RETURN_NONE;
}

#endif
