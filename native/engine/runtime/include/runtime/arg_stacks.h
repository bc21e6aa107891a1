// runtime/arg_stacks.h: frame objects that own what a call has not handed over yet.
#ifndef KORVAN_RUNTIME_ARG_STACKS_H
#define KORVAN_RUNTIME_ARG_STACKS_H

#include "host/exchange_host.h"
#include "runtime/py_base.h"

// Python objects made for a call. `top` counts those already handed over; the rest are released.
template <size_t N> class PyTrPyObjStack {
public:
    PyTrPyObjStack() = default;
    PyTrPyObjStack(const PyTrPyObjStack&) = delete;
    PyTrPyObjStack& operator=(const PyTrPyObjStack&) = delete;
    ~PyTrPyObjStack() {
        for (size_t i = top; i < N; ++i) {
            Py_XDECREF(slots[i]);
        }
    }
    PyObject** operator[](size_t index) { return &slots[index]; }
    PyTrPyObjStack& operator++() {
        ++top;
        return *this;
    }
    PyObject** get_buffer() { return slots; }

    PyObject* slots[N] = {};
    size_t top = 0;
};

// Managed handles that a delegate gave out, until their converter takes them over.
template <size_t N> class PyTrPinHandleStack {
public:
    PyTrPinHandleStack() = default;
    PyTrPinHandleStack(const PyTrPinHandleStack&) = delete;
    PyTrPinHandleStack& operator=(const PyTrPinHandleStack&) = delete;
    ~PyTrPinHandleStack() {
        for (size_t i = top; i < N; ++i) {
            if (slots[i] != nullptr) {
                ExchangeHost::get_instance().free_instance(slots[i]);
            }
        }
    }
    void** operator[](size_t index) { return &slots[index]; }
    PyTrPinHandleStack& operator++() {
        ++top;
        return *this;
    }
    void** get_buffer() { return slots; }

    void* slots[N] = {};
    size_t top = 0;
};

// A value that a converter had to create and that lives exactly as long as the call.
struct PyInterimArgBuilder : VariantArg {
    PyInterimArgBuilder() : VariantArg{} {}
    PyInterimArgBuilder(const PyInterimArgBuilder&) = delete;
    PyInterimArgBuilder& operator=(const PyInterimArgBuilder&) = delete;
    ~PyInterimArgBuilder() { Py_XDECREF(static_cast<PyObject*>(value)); }
};
static_assert(sizeof(PyInterimArgBuilder) == 16);

struct PyEphStrArgBuilder : PyEphStrArg {
    PyEphStrArgBuilder() : PyEphStrArg{} {}
    PyEphStrArgBuilder(const PyEphStrArgBuilder&) = delete;
    PyEphStrArgBuilder& operator=(const PyEphStrArgBuilder&) = delete;
    ~PyEphStrArgBuilder() { Py_XDECREF(static_cast<PyObject*>(owner)); }
};
static_assert(sizeof(PyEphStrArgBuilder) == 24);

#endif
