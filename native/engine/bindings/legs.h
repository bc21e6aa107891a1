// bindings/legs.h: one overload as a template over its result and argument policies.
#ifndef KORVAN_BINDINGS_LEGS_H
#define KORVAN_BINDINGS_LEGS_H

#include "bindings/arguments.h"
#include "bindings/calls.h"
#include "bindings/results.h"
#include "host/exchange_host.h"

namespace leg_detail {

template <class... Args> struct Frame {
    std::tuple<typename Args::cell...> cells;

    bool parse(const Leg& leg, const CallArguments& arguments) {
        return parse(leg, arguments, std::index_sequence_for<Args...>());
    }
    auto natives() { return natives(std::index_sequence_for<Args...>()); }
    // Gives the values of ref and out parameters to their lists. False with an error.
    bool deliver(const Leg& leg) { return deliver(leg, std::index_sequence_for<Args...>()); }

private:
    template <size_t... I>
    bool parse(const Leg& leg, const CallArguments& arguments, std::index_sequence<I...>) {
        if (!arguments.has_keywords() && arguments.count == Py_ssize_t{sizeof...(Args)}) {
            return ((Args::convert(arguments.items[I], &std::get<I>(cells),
                                   leg.parameters[I].type) == 1) &&
                    ...);
        }
        static constexpr CellConverter converters[] = {arg::convert_cell<Args>..., nullptr};
        void* const addresses[] = {&std::get<I>(cells)..., nullptr};
        return parse_arguments(leg, converters, addresses, arguments);
    }
    template <size_t... I>
    bool deliver([[maybe_unused]] const Leg& leg, std::index_sequence<I...>) {
        return (deliver_one<Args>(std::get<I>(cells), leg.parameters[I].type) && ...);
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
bool surely_misfits([[maybe_unused]] const Leg& leg, const CallArguments& arguments,
                    std::index_sequence<I...>) {
    if (arguments.has_keywords()) {
        return false;
    }
    return arguments.count != sizeof...(Args) ||
           (arg::surely_refuses<Args>(arguments.items[I], leg.parameters[I].type) || ...);
}

// Parses into the frame, or says what became of it.
template <class... Args>
bool fits(Frame<Args...>& frame, const Leg& leg, const CallArguments& arguments,
          LegOutcome& outcome) {
    if (arguments.is_quiet &&
        surely_misfits<Args...>(leg, arguments, std::index_sequence_for<Args...>())) {
        outcome = LegOutcome::quiet_misfit;
        return false;
    }
    outcome = LegOutcome::misfit;
    return frame.parse(leg, arguments);
}

template <class Frame> LegOutcome finish(Frame& frame, const Leg& leg, PyObject** result) {
    if (*result == nullptr) {
        return LegOutcome::failed;
    }
    if (!frame.deliver(leg)) {
        Py_CLEAR(*result);
        return LegOutcome::failed;
    }
    return LegOutcome::done;
}

} // namespace leg_detail

template <class Ret, class... Args>
LegOutcome call(const Leg& leg, PyObject* self, const CallArguments& arguments, PyObject** result) {
    leg_detail::Frame<Args...> frame;
    LegOutcome outcome;
    if (!leg_detail::fits(frame, leg, arguments, outcome)) {
        return outcome;
    }
    void* function = reinterpret_cast<void*>(host_slot<void()>(*leg.host, leg.slot));
    *result = std::apply(
        [&](auto... natives) {
            return Ret::invoke(function, leg.result_type, clr_handle(self), natives...);
        },
        frame.natives());
    return leg_detail::finish(frame, leg, result);
}

template <class Ret, class... Args>
LegOutcome call_static(const Leg& leg, PyObject*, const CallArguments& arguments,
                       PyObject** result) {
    leg_detail::Frame<Args...> frame;
    LegOutcome outcome;
    if (!leg_detail::fits(frame, leg, arguments, outcome)) {
        return outcome;
    }
    void* function = reinterpret_cast<void*>(host_slot<void()>(*leg.host, leg.slot));
    *result = std::apply(
        [&](auto... natives) { return Ret::invoke(function, leg.result_type, natives...); },
        frame.natives());
    return leg_detail::finish(frame, leg, result);
}

// The handle is stored before the error test: what a failing constructor returned is given back
// when the wrapper is deallocated.
template <class... Args>
LegOutcome construct(const Leg& leg, PyObject* self, const CallArguments& arguments, PyObject**) {
    leg_detail::Frame<Args...> frame;
    LegOutcome outcome;
    if (!leg_detail::fits(frame, leg, arguments, outcome)) {
        return outcome;
    }
    void* function = reinterpret_cast<void*>(host_slot<void()>(*leg.host, leg.slot));
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
    return PyErr_Occurred() == nullptr ? LegOutcome::done : LegOutcome::failed;
}

#endif
