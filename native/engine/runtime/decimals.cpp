#include "runtime/decimals.h"

#include "args/decimal_arg_in_builder.h"
#include "args/decimal_arg_out_builder.h"
#include "runtime/identifiers.h"
#include "runtime/imports.h"

#include <algorithm>
#include <limits>

namespace {

constexpr long max_digits = 29;
constexpr long max_scale = 28;
constexpr int group_digits = 9;
// Far below anything with a digit above zero, and far enough above the end of 64 bits to add to.
constexpr long min_exponent = std::numeric_limits<long>::min() / 2;

int raise_too_large() {
    PyErr_SetString(PyExc_OverflowError, "value too large for .Net decimal");
    return 0;
}

// Feeds the first `count` digits, nine at a time: nine fit one multiplication of 32 bits.
void feed_digits(DecimalArgOutBuilder& builder, PyObject* digits, long count) {
    long begin = 0;
    while (begin < count && PyErr_Occurred() == nullptr) {
        const long end = std::min(begin + group_digits, count);
        builder.accept_decimal_mantissa(get_mantissa_group(digits, begin, end),
                                        static_cast<int>(end - begin));
        begin = end;
    }
}

// How many digits are read, and how the builder is to begin.
void accept_digits(DecimalArgOutBuilder& builder, PyObject* digits, long n, int sign,
                   long exponent) {
    int stop_digit = -1;
    if (exponent < -max_scale) {
        if (n < -max_scale - exponent) { // every digit lies below the last place
            builder.begin_accept_decimal(sign, -max_scale, -1);
            return;
        }
        n += exponent + max_scale;
        exponent = -max_scale;
        stop_digit = static_cast<int>(n + 1); // one digit more, to round by
    }
    if (n <= max_digits) {
        builder.begin_accept_decimal(sign, exponent, stop_digit);
        feed_digits(builder, digits, std::max<long>(stop_digit, n));
    } else {
        builder.begin_accept_decimal(sign, exponent + n - max_digits, max_digits + 1);
        feed_digits(builder, digits, max_digits + 1);
    }
}

} // namespace

unsigned long get_mantissa_group(PyObject* digits, const long& begin, const long& end) {
    unsigned long value = 0;
    for (long i = begin; i < end; ++i) {
        const Ref digit = Ref::steal(PySequence_GetItem(digits, i));
        if (!digit) {
            break; // the error stays for the caller
        }
        value = value * 10 + static_cast<unsigned long>(PyLong_AsLong(digit.get()));
    }
    return value;
}

bool is_non_convertable_py_decimal(PyObject* exponent, const char* type_name) {
    if (PyLong_Check(exponent)) {
        return false;
    }
    if (!PyUnicode_Check(exponent)) {
        PyErr_Format(PyExc_TypeError, "unknown exponent type '%s'", type_name_of(exponent));
    } else if ((PyUnicode_CompareWithASCIIString(exponent, "F") == 0)) {
        PyErr_Format(PyExc_OverflowError, "value too large for .Net '%s'", type_name);
    } else if ((PyUnicode_CompareWithASCIIString(exponent, "n") == 0) ||
               (PyUnicode_CompareWithASCIIString(exponent, "N") == 0)) {
        PyErr_SetString(PyExc_OverflowError, "value is not a number");
    } else {
        PyErr_Format(PyExc_TypeError, "can't build '%s' from exponent value '%U'", type_name,
                     exponent);
    }
    return true;
}

int fn_conv_py_decimal_tuple_to_clr_decimal(PyObject* tuple, unsigned int* out) {
    DecimalArgOutBuilder builder(out);
    const Ref exponent_object = Ref::steal(PyObject_GetAttr(tuple, PyWrpIdDecimal_Exponent));
    if (!exponent_object || is_non_convertable_py_decimal(exponent_object.get(), "Decimal")) {
        return 0;
    }
    long exponent = PyLong_AsLongLong(exponent_object.get());
    if (exponent == -1 && PyErr_Occurred() != nullptr) {
        return 0;
    }
    exponent = std::max(exponent, min_exponent);
    const Ref sign_object = Ref::steal(PyObject_GetAttr(tuple, PyWrpIdDecimal_Sign));
    const int sign = sign_object ? static_cast<int>(PyLong_AsLong(sign_object.get())) : 0;
    Ref digits = Ref::steal(sign_object && PyErr_Occurred() == nullptr
                                ? PyObject_GetAttr(tuple, PyWrpIdDecimal_Digits)
                                : nullptr);
    const long n = digits ? PyObject_Size(digits.get()) : -1;
    if (n < 0) {
        return 0;
    }
    if (max_digits - n < exponent && n > 1) {
        digits.release(); // stays unreleased on this refusal, as the contract of the family has it
        return raise_too_large();
    }
    accept_digits(builder, digits.get(), n, sign, exponent);
    const bool fits = builder.end_accept_decimal();
    if (PyErr_Occurred() != nullptr) { // of a digit that is none
        return 0;
    }
    return fits ? 1 : raise_too_large();
}

int fn_conv_py_decimal_obj_to_clr_decimal(PyObject* object, unsigned int* out) {
    const Ref tuple = Ref::steal(PyObject_CallMethodNoArgs(object, PyWrpIdDecimal_AsTuple));
    return tuple ? fn_conv_py_decimal_tuple_to_clr_decimal(tuple.get(), out) : 0;
}

int fn_conv_py_decimal_to_clr_decimal(PyObject* object, unsigned int* out) {
    const struct {
        PyObject* name;
        int (*convert)(PyObject*, unsigned int*);
    } forms[] = {
        {PyWrpIdTypeName_DecimalTuple, fn_conv_py_decimal_tuple_to_clr_decimal},
        {PyWrpIdTypeName_Decimal, fn_conv_py_decimal_obj_to_clr_decimal},
    };
    for (const auto& form : forms) {
        const Ref type = Ref::steal(PyShImport_ImportType("decimal", form.name));
        const int answer = type ? PyObject_IsInstance(object, type.get()) : -1;
        if (answer != 0) {
            return answer > 0 ? form.convert(object, out) : 0;
        }
    }
    PyErr_Format(PyExc_TypeError, "can't build Decimal from '%s'", type_name_of(object));
    return 0;
}

PyObject* fn_conv_clr_decimal_to_py_decimal(unsigned int* words) {
    const DecimalArgInBuilder builder(words);
    const Ref digits = Ref::steal(PyTuple_New(builder.mantissa_length()));
    for (int i = 0; digits && i < builder.mantissa_length(); ++i) {
        PyTuple_SET_ITEM(digits.get(), i, PyLong_FromLong(builder.mantissa_cbegin()[i]));
    }
    const Ref tuple = Ref::steal(
        digits ? Py_BuildValue("(iOi)", builder.sign(), digits.get(), -builder.exponent())
               : nullptr);
    const Ref type = Ref::steal(PyShImport_ImportType("decimal", PyWrpIdTypeName_Decimal));
    return tuple && type ? PyObject_CallOneArg(type.get(), tuple.get()) : nullptr;
}

int fn_read_py_decimal(PyObject* object, unsigned int* out) {
    return fn_conv_py_decimal_to_clr_decimal(object, out);
}
int fn_read_py_decimal_tuple(PyObject* object, unsigned int* out) {
    return fn_conv_py_decimal_tuple_to_clr_decimal(object, out);
}
PyObject* fn_write_py_decimal(unsigned int* words) {
    return fn_conv_clr_decimal_to_py_decimal(words);
}
