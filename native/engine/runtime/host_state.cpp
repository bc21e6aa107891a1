#include "runtime/host_state.h"

#include "runtime/failures.h"

void fn_raise_not_valid(const PyHostState& state) {
    PyErr_SetString(PyExc_TypeError, state.message.c_str());
    if (state.reference_not_valid) {
        PyShlErr_ChainFormat(PyExc_TypeError, "one or more refereced type is not initialized");
    }
}
