#include "bindings/calls.h"

#include "bindings/classes.h"

#include <array>
#include <string>
#include <tuple>
#include <utility>

namespace {

constexpr int max_arity = 24;

// What stands behind an O& unit: the converter, its destination and its binding.
struct BoundCell {
    CellConverter convert;
    void* cell;
    const void* type;
};

int convert_bound_cell(PyObject* object, void* bound) {
    const auto* target = static_cast<BoundCell*>(bound);
    return target->convert(object, target->cell, target->type);
}

template <size_t... I>
bool parse_units(PyObject* args, PyObject* kwargs, const char* format, char** keywords,
                 BoundCell* cells, std::index_sequence<I...>) {
    // One converter and one destination for each unit of the format, in turn.
    return std::apply(
        [&](auto... unit) {
            return PyArg_ParseTupleAndKeywords(args, kwargs, format, keywords, unit...) != 0;
        },
        std::tuple_cat(std::make_tuple(convert_bound_cell, &cells[I])...));
}

using UnitParser = bool (*)(PyObject*, PyObject*, const char*, char**, BoundCell*);

template <size_t N>
bool parse_n(PyObject* args, PyObject* kwargs, const char* format, char** keywords,
             BoundCell* cells) {
    return parse_units(args, kwargs, format, keywords, cells, std::make_index_sequence<N>());
}

template <size_t... N>
constexpr std::array<UnitParser, sizeof...(N)> unit_parsers(std::index_sequence<N...>) {
    return {parse_n<N>...};
}
constexpr auto parsers = unit_parsers(std::make_index_sequence<max_arity + 1>());

// The interpreter's own parser, which has the words for whatever does not fit and knows keywords.
bool parse_by_interpreter(const Leg& leg, const CellConverter* converters, void* const* cells,
                          const CallArguments& arguments) {
    std::string format;
    char* keywords[max_arity + 1];
    BoundCell bound[max_arity];
    for (int i = 0; i < leg.arity; ++i) {
        format += "O&";
        keywords[i] = const_cast<char*>(leg.parameters[i].keyword);
        bound[i] = {converters[i], cells[i], leg.parameters[i].type};
    }
    keywords[leg.arity] = nullptr;
    return parsers[leg.arity](arguments.positional, arguments.keywords, format.c_str(), keywords,
                              bound);
}

// The texts of the legs that did not fit, one each, as the argument of a TypeError.
void raise_misfits(PyObject* const* values, int count) {
    const Ref texts = Ref::steal(PyList_New(count));
    for (int i = 0; i < count; ++i) {
        PyObject* text = texts && values[i] != nullptr ? PyObject_Str(values[i]) : nullptr;
        if (text != nullptr) {
            PyList_SET_ITEM(texts.get(), i, text);
        }
        Py_XDECREF(values[i]);
    }
    if (texts) {
        PyErr_SetObject(PyExc_TypeError, texts.get());
    }
}

// The pending error's value; its type and traceback are dropped.
PyObject* take_error_value() {
    PyObject* error = PyErr_GetRaisedException();
    if (error != nullptr) {
        PyException_SetTraceback(error, Py_None);
    }
    return error;
}

LegOutcome try_legs(const Method& method, PyObject* self, const CallArguments& arguments,
                    PyObject** result) {
    if (method.count == 1) {
        return method.legs[0].call(method.legs[0], self, arguments, result);
    }
    PyObject* misfits[max_arity * 2];
    for (int i = 0; i < method.count; ++i) {
        const LegOutcome outcome = method.legs[i].call(method.legs[i], self, arguments, result);
        if (outcome != LegOutcome::misfit) {
            for (int kept = 0; kept < i; ++kept) {
                Py_XDECREF(misfits[kept]);
            }
            return outcome;
        }
        misfits[i] = take_error_value();
    }
    raise_misfits(misfits, method.count);
    return LegOutcome::failed;
}

} // namespace

bool parse_arguments(const Leg& leg, const CellConverter* converters, void* const* cells,
                     const CallArguments& arguments) {
    const bool positional_only =
        arguments.keywords == nullptr || PyDict_GET_SIZE(arguments.keywords) == 0;
    if (!positional_only || PyTuple_GET_SIZE(arguments.positional) != leg.arity) {
        return parse_by_interpreter(leg, converters, cells, arguments);
    }
    for (int i = 0; i < leg.arity; ++i) {
        PyObject* argument = PyTuple_GET_ITEM(arguments.positional, i);
        if (converters[i](argument, cells[i], leg.parameters[i].type) != 1) {
            return false;
        }
    }
    return true;
}

PyObject* call_method(const Method& method, PyObject* self, PyObject* args, PyObject* kwargs) {
    if (method.is_static && !guard(*method.owner)) {
        return nullptr;
    }
    PyObject* result = nullptr;
    const LegOutcome outcome = try_legs(method, self, {args, kwargs}, &result);
    return outcome == LegOutcome::done ? result : nullptr;
}

PyObject* call_without_arguments(const Method& method, PyObject* self) {
    static PyObject* const empty = PyTuple_New(0);
    return call_method(method, self, empty, nullptr);
}

int call_constructors(const Method& constructors, PyObject* self, PyObject* args,
                      PyObject* kwargs) {
    PyObject* none = nullptr;
    return try_legs(constructors, self, {args, kwargs}, &none) == LegOutcome::done ? 0 : -1;
}
