#include "runtime/host_state.h"

#include "runtime/failures.h"

bool fn_raise_if_not_valid(const PyHostState& state) {
    if (!state.is_not_valid) {
        return false;
    }
    PyErr_SetString(PyExc_TypeError, state.message.c_str());
    if (state.reference_not_valid) {
        PyShlErr_ChainFormat(PyExc_TypeError, "one or more refereced type is not initialized");
    }
    return true;
}
