// runtime/host_state.h: whether a bound type can be used, found out once at first use.
#ifndef KORVAN_RUNTIME_HOST_STATE_H
#define KORVAN_RUNTIME_HOST_STATE_H

#include <string>

struct PyHostState {
    bool is_not_valid = false;
    bool reference_not_valid = false; // the failure came from a type that this one refers to
    std::string message;
};

void fn_raise_not_valid(const PyHostState& state);

// Raises what the state says, if anything. Returns whether the type is unusable.
inline bool fn_raise_if_not_valid(const PyHostState& state) {
    if (__builtin_expect(!state.is_not_valid, 1)) {
        return false;
    }
    fn_raise_not_valid(state);
    return true;
}

#endif
