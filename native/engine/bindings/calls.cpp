#include "bindings/calls.h"

#include "bindings/classes.h"

#include <array>
#include <tuple>
#include <utility>

namespace {

constexpr int max_arity = 24;
constexpr int max_overloads = 48;

// The arguments of an O& unit: the converter, its destination and its binding.
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

// The positional arguments as a tuple, new where the call came without one.
Ref positional_tuple(const CallArguments& arguments) {
    if (arguments.tuple != nullptr) {
        return Ref::borrow(arguments.tuple);
    }
    Ref tuple = Ref::steal(PyTuple_New(arguments.count));
    for (Py_ssize_t i = 0; tuple && i < arguments.count; ++i) {
        PyTuple_SET_ITEM(tuple.get(), i, Py_NewRef(arguments.items[i]));
    }
    return tuple;
}

// The keywords as a dict; null where there are none. False with an error.
bool keyword_dict(const CallArguments& arguments, Ref& dict) {
    if (arguments.names == nullptr) {
        dict = Ref::borrow(arguments.keywords);
        return true;
    }
    dict = Ref::steal(PyDict_New());
    for (Py_ssize_t i = 0; dict && i < PyTuple_GET_SIZE(arguments.names); ++i) {
        if (PyDict_SetItem(dict.get(), PyTuple_GET_ITEM(arguments.names, i),
                           arguments.items[arguments.count + i]) != 0) {
            return false;
        }
    }
    return static_cast<bool>(dict);
}

// An error's text, or what stands in for a text that can't be had. Null with an error.
PyObject* text_of(PyObject* error) {
    if (error == nullptr) {
        return PyUnicode_FromString("<unknown>");
    }
    PyObject* text = PyObject_Str(error);
    if (text == nullptr) {
        PyErr_Clear();
        text = PyUnicode_FromFormat("<unprintable %s object>", type_name_of(error));
    }
    return text;
}

// The texts of the overloads that did not fit, one each, as the argument of a TypeError. Takes over
// the errors.
void raise_misfits(PyObject* const* errors, int count) {
    const Ref texts = Ref::steal(PyList_New(0));
    bool done = static_cast<bool>(texts);
    for (int i = 0; i < count; ++i) {
        const Ref error = Ref::steal(errors[i]);
        const Ref text = Ref::steal(done ? text_of(error.get()) : nullptr);
        done = text && PyList_Append(texts.get(), text.get()) == 0;
    }
    if (done) {
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

// The error of an overload that had been passed over quietly.
PyObject* misfit_error(const Overload& overload, PyObject* self, CallArguments arguments) {
    arguments.is_quiet = false;
    PyObject* never_made = nullptr;
    overload.call(overload, self, arguments, &never_made);
    return take_error_value();
}

CallArguments arguments_of(PyObject* args, PyObject* kwargs) {
    return {.items = reinterpret_cast<PyTupleObject*>(args)->ob_item,
            .count = PyTuple_GET_SIZE(args),
            .tuple = args,
            .keywords = kwargs};
}

} // namespace

OverloadOutcome try_overloads(const Method& method, PyObject* self, CallArguments& arguments,
                              PyObject** result) {
    PyObject* misfits[max_overloads] = {};
    arguments.is_quiet = true;
    for (int i = 0; i < method.count; ++i) {
        const OverloadOutcome outcome =
            method.overloads[i].call(method.overloads[i], self, arguments, result);
        if (outcome == OverloadOutcome::failed || outcome == OverloadOutcome::done) {
            for (int kept = 0; kept < i; ++kept) {
                Py_XDECREF(misfits[kept]);
            }
            return outcome;
        }
        misfits[i] = outcome == OverloadOutcome::misfit ? take_error_value() : nullptr;
    }
    for (int i = 0; i < method.count; ++i) {
        if (misfits[i] == nullptr) {
            misfits[i] = misfit_error(method.overloads[i], self, arguments);
        }
    }
    raise_misfits(misfits, method.count);
    return OverloadOutcome::failed;
}

// By the interpreter's own parser, which knows keywords and has the messages for what does not fit.
bool parse_arguments(const Overload& overload, const CellConverter* converters, void* const* cells,
                     const CallArguments& arguments) {
    const Ref positional = positional_tuple(arguments);
    Ref keyword_values;
    if (!positional || !keyword_dict(arguments, keyword_values)) {
        return false;
    }
    char format[2 * max_arity + 1];
    char* unit = format;
    char* keywords[max_arity + 1];
    BoundCell bound[max_arity];
    for (int i = 0; i < overload.arity; ++i) {
        *unit++ = 'O';
        *unit++ = '&';
        keywords[i] = const_cast<char*>(overload.parameters[i].keyword);
        bound[i] = {converters[i], cells[i], overload.parameters[i].type};
    }
    *unit = '\0';
    keywords[overload.arity] = nullptr;
    return parsers[overload.arity](positional.get(), keyword_values.get(), format, keywords, bound);
}

PyObject* call_mixed(const Method& method, PyObject* self, PyObject* args, PyObject* kwargs) {
    return call_method(method, self, arguments_of(args, kwargs));
}

int call_constructors(const Method& constructors, PyObject* self, PyObject* args,
                      PyObject* kwargs) {
    PyObject* none = nullptr;
    CallArguments arguments = arguments_of(args, kwargs);
    const OverloadOutcome outcome =
        constructors.count == 1
            ? constructors.overloads[0].call(constructors.overloads[0], self, arguments, &none)
            : try_overloads(constructors, self, arguments, &none);
    return outcome == OverloadOutcome::done ? 0 : -1;
}
