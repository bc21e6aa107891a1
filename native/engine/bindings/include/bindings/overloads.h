// bindings/overloads.h: one overload as a template over its result and argument policies.
#ifndef KORVAN_BINDINGS_OVERLOADS_H
#define KORVAN_BINDINGS_OVERLOADS_H

#include "bindings/arguments.h"
#include "bindings/calls.h"
#include "bindings/results.h"
#include "host/exchange_host.h"

namespace overload_detail {

template <class... Args> struct Frame {
    std::tuple<typename Args::cell...> cells;

    bool parse(const Overload& overload, const CallArguments& arguments) {
        return parse(overload, arguments, std::index_sequence_for<Args...>());
    }
    auto natives() { return natives(std::index_sequence_for<Args...>()); }
    // Gives the values of ref and out parameters to their lists. False with an error.
    bool deliver(const Overload& overload) {
        return deliver(overload, std::index_sequence_for<Args...>());
    }

private:
    template <size_t... I>
    bool parse(const Overload& overload, const CallArguments& arguments,
               std::index_sequence<I...>) {
        if (!arguments.has_keywords() && arguments.count == Py_ssize_t{sizeof...(Args)}) {
            return ((Args::convert(arguments.items[I], &std::get<I>(cells),
                                   overload.parameters[I].type) == 1) &&
                    ...);
        }
        static constexpr CellConverter converters[] = {arg::convert_cell<Args>..., nullptr};
        void* const addresses[] = {&std::get<I>(cells)..., nullptr};
        return parse_arguments(overload, converters, addresses, arguments);
    }
    template <size_t... I>
    bool deliver([[maybe_unused]] const Overload& overload, std::index_sequence<I...>) {
        return (deliver_one<Args>(std::get<I>(cells), overload.parameters[I].type) && ...);
    }
    template <class Arg>
    static bool deliver_one([[maybe_unused]] typename Arg::cell& cell,
                            [[maybe_unused]] const void* type) {
        if constexpr (arg::Output<Arg>) {
            return Arg::deliver(cell, type);
        } else {
            return true;
        }
    }
    template <size_t... I> auto natives(std::index_sequence<I...>) {
        return std::tuple_cat(Args::pass(std::get<I>(cells))...);
    }
};

// Whether the arguments can't fit, told by their number and their types alone.
template <class... Args, size_t... I>
bool surely_misfits([[maybe_unused]] const Overload& overload, const CallArguments& arguments,
                    std::index_sequence<I...>) {
    if (arguments.has_keywords()) {
        return false;
    }
    return arguments.count != sizeof...(Args) ||
           (arg::surely_rejects<Args>(arguments.items[I], overload.parameters[I].type) || ...);
}

// Parses into the frame, or says what became of it.
template <class... Args>
bool fits(Frame<Args...>& frame, const Overload& overload, const CallArguments& arguments,
          OverloadOutcome& outcome) {
    if (arguments.is_quiet &&
        surely_misfits<Args...>(overload, arguments, std::index_sequence_for<Args...>())) {
        outcome = OverloadOutcome::quiet_misfit;
        return false;
    }
    outcome = OverloadOutcome::misfit;
    return frame.parse(overload, arguments);
}

template <class Frame>
OverloadOutcome finish(Frame& frame, const Overload& overload, PyObject** result) {
    if (*result == nullptr) {
        return OverloadOutcome::failed;
    }
    if (!frame.deliver(overload)) {
        Py_CLEAR(*result);
        return OverloadOutcome::failed;
    }
    return OverloadOutcome::done;
}

} // namespace overload_detail

template <class Ret, class... Args>
OverloadOutcome call(const Overload& overload, PyObject* self, const CallArguments& arguments,
                     PyObject** result) {
    overload_detail::Frame<Args...> frame;
    OverloadOutcome outcome;
    if (!overload_detail::fits(frame, overload, arguments, outcome)) {
        return outcome;
    }
    void* function = reinterpret_cast<void*>(host_slot<void()>(*overload.host, overload.slot));
    *result = std::apply(
        [&](auto... natives) {
            return Ret::invoke(function, overload.result_type, clr_handle(self), natives...);
        },
        frame.natives());
    return overload_detail::finish(frame, overload, result);
}

template <class Ret, class... Args>
OverloadOutcome call_static(const Overload& overload, PyObject*, const CallArguments& arguments,
                            PyObject** result) {
    overload_detail::Frame<Args...> frame;
    OverloadOutcome outcome;
    if (!overload_detail::fits(frame, overload, arguments, outcome)) {
        return outcome;
    }
    void* function = reinterpret_cast<void*>(host_slot<void()>(*overload.host, overload.slot));
    *result = std::apply(
        [&](auto... natives) { return Ret::invoke(function, overload.result_type, natives...); },
        frame.natives());
    return overload_detail::finish(frame, overload, result);
}

// The handle is stored before the error test: what a failing constructor returned is given back
// when the wrapper is deallocated.
template <class... Args>
OverloadOutcome construct(const Overload& overload, PyObject* self, const CallArguments& arguments,
                          PyObject**) {
    overload_detail::Frame<Args...> frame;
    OverloadOutcome outcome;
    if (!overload_detail::fits(frame, overload, arguments, outcome)) {
        return outcome;
    }
    void* function = reinterpret_cast<void*>(host_slot<void()>(*overload.host, overload.slot));
    void* const made = std::apply(
        [&](auto... natives) {
            return reinterpret_cast<void* (*)(decltype(natives)...)>(function)(natives...);
        },
        frame.natives());
    // Only now: the constructor may call back into Python, which may call __init__ in between.
    void* const replaced = std::exchange(reinterpret_cast<PyClrObject*>(self)->handle, made);
    if (replaced != nullptr) { // __init__ called again on a finished object
        ExchangeHost::get_instance().free_instance(replaced);
    }
    return PyErr_Occurred() == nullptr ? OverloadOutcome::done : OverloadOutcome::failed;
}

#endif
