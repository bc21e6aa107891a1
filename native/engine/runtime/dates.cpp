#include "runtime/dates.h"

#include "runtime/identifiers.h"
#include "runtime/imports.h"
#include "runtime/strings.h"

#include <datetime.h>

namespace {

// Asked for anew by each outer converter, so that a reloaded module is met.
bool load_capsule() {
    PyDateTimeAPI = static_cast<PyDateTime_CAPI*>(PyCapsule_Import("datetime.datetime_CAPI", 0));
    return PyDateTimeAPI != nullptr;
}

int raise_out_of_range(const char* type) {
    PyErr_Format(PyExc_OverflowError, "value too large or too small for .Net %s", type);
    return 0;
}

int raise_cannot_build(const char* type, PyObject* object) {
    PyErr_Format(PyExc_TypeError, "can't build %s from '%s'", type, type_name_of(object));
    return 0;
}

int raise_no_zone(const char* what) {
    PyErr_Format(PyExc_ValueError, "The tzinfo property of a given %s should not be None", what);
    return 0;
}

PyObject* new_delta(const TimeSpanArgBuilder& span) {
    return PyDateTimeAPI->Delta_FromDelta(span.days, span.seconds, span.microseconds, 1,
                                          PyDateTimeAPI->DeltaType);
}

UtcOffset offset_failed() { return {.failed = true}; }

// The clock fields and the offset of an aware value; an error for a missing zone otherwise.
int clock_and_offset(PyObject* object, void (*copy)(PyObject*, DateTimeArgBuilder&),
                     const char* what, long* out) {
    const UtcOffset offset = get_utc_offset(object);
    if (offset.failed) {
        return 0;
    }
    if (!offset.has_offset) {
        return raise_no_zone(what);
    }
    DateTimeArgBuilder builder;
    copy(object, builder);
    out[1] = offset.offset_ticks;
    return builder.to_ticks(out[0]) ? 1 : raise_out_of_range("DateTime");
}

} // namespace

void copy_py_date(PyObject* object, DateTimeArgBuilder& builder) {
    builder.year = PyDateTime_GET_YEAR(object);
    builder.month = PyDateTime_GET_MONTH(object);
    builder.day = PyDateTime_GET_DAY(object);
}

void copy_py_time(PyObject* object, DateTimeArgBuilder& builder) {
    builder.hour = PyDateTime_TIME_GET_HOUR(object);
    builder.minute = PyDateTime_TIME_GET_MINUTE(object);
    builder.second = PyDateTime_TIME_GET_SECOND(object);
    builder.microsecond = PyDateTime_TIME_GET_MICROSECOND(object);
}

void copy_py_datetime(PyObject* object, DateTimeArgBuilder& builder) {
    copy_py_date(object, builder);
    builder.hour = PyDateTime_DATE_GET_HOUR(object);
    builder.minute = PyDateTime_DATE_GET_MINUTE(object);
    builder.second = PyDateTime_DATE_GET_SECOND(object);
    builder.microsecond = PyDateTime_DATE_GET_MICROSECOND(object);
}

void copy_py_datetimedelta(PyObject* object, TimeSpanArgBuilder& builder) {
    builder.days = PyDateTime_DELTA_GET_DAYS(object);
    builder.seconds = PyDateTime_DELTA_GET_SECONDS(object);
    builder.microseconds = PyDateTime_DELTA_GET_MICROSECONDS(object);
}

UtcOffset get_utc_offset(PyObject* object) {
    const Ref zone = Ref::steal(PyObject_GetAttr(object, PyWrpIdDateTime_Tzinfo));
    if (!zone) {
        return offset_failed();
    }
    if (zone.get() == Py_None) {
        return {};
    }
    const Ref delta = Ref::steal(PyObject_CallMethodNoArgs(object, PyWrpIdDateTime_UtcOffset));
    if (!delta || PyErr_Occurred() != nullptr) {
        return offset_failed();
    }
    if (delta.get() == Py_None) {
        return {};
    }
    if (!PyDelta_Check(delta.get())) {
        PyErr_SetString(PyExc_TypeError, "instance utcoffset() return wrong value");
        return offset_failed();
    }
    TimeSpanArgBuilder span;
    copy_py_datetimedelta(delta.get(), span);
    UtcOffset offset;
    if (!span.to_ticks(offset.offset_ticks)) {
        PyErr_SetString(PyExc_OverflowError, "value too large or too small utc offset");
        return offset_failed();
    }
    offset.has_offset = true;
    return offset;
}

int fn_conv_py_datetime_to_clr_datetime(PyObject* object, long* out) {
    if (!load_capsule()) {
        return 0;
    }
    if (PyDateTime_Check(object)) {
        return fn_conv_py_datetime_ex_to_clr_datetime(object, out);
    }
    if (PyDate_Check(object)) {
        return fn_conv_py_date_to_clr_datetime(object, out);
    }
    if (PyTime_Check(object)) {
        return fn_conv_py_time_to_clr_datetime(object, out);
    }
    return raise_cannot_build("DateTime", object);
}

int fn_conv_py_datetime_ex_to_clr_datetime(PyObject* object, long* out) {
    const UtcOffset offset = get_utc_offset(object);
    if (offset.failed) {
        return 0;
    }
    DateTimeArgBuilder builder;
    copy_py_datetime(object, builder);
    bool fits = false;
    if (offset.has_offset) {
        builder.kind = static_cast<std::int32_t>(DateTimeKind::utc);
        fits = builder.to_utc_ticks(offset.offset_ticks, *out);
    } else {
        fits = builder.to_ticks(*out);
    }
    return fits ? 1 : raise_out_of_range("DateTime");
}

int fn_conv_py_date_to_clr_datetime(PyObject* object, long* out) {
    DateTimeArgBuilder builder;
    copy_py_date(object, builder);
    return builder.to_ticks(*out) ? 1 : raise_out_of_range("DateTime");
}

int fn_conv_py_time_to_clr_datetime(PyObject* object, long* out) {
    const UtcOffset offset = get_utc_offset(object);
    if (offset.failed) {
        return 0;
    }
    DateTimeArgBuilder builder;
    copy_py_time(object, builder);
    if (offset.has_offset) {
        builder.kind = static_cast<std::int32_t>(DateTimeKind::utc);
        builder.to_time_ticks(offset.offset_ticks, *out);
    } else {
        builder.to_ticks(*out);
    }
    return 1;
}

int fn_conv_py_datetime_to_clr_datetimeoffset(PyObject* object, long* out) {
    if (!load_capsule()) {
        return 0;
    }
    if (PyDateTime_Check(object)) {
        return fn_conv_py_datetime_ex_to_clr_datetimeoffset(object, out);
    }
    if (PyTime_Check(object)) {
        return fn_conv_py_time_to_clr_datetimeoffset(object, out);
    }
    return raise_cannot_build("DateTime", object);
}

int fn_conv_py_datetime_ex_to_clr_datetimeoffset(PyObject* object, long* out) {
    return clock_and_offset(object, copy_py_datetime, "datetime", out);
}

int fn_conv_py_time_to_clr_datetimeoffset(PyObject* object, long* out) {
    return clock_and_offset(object, copy_py_time, "time", out);
}

int fn_conv_py_datetimedelta_to_clr_timespan(PyObject* object, long* out) {
    if (!load_capsule()) {
        return 0;
    }
    if (!PyDelta_Check(object)) {
        return raise_cannot_build("TimeSpan", object);
    }
    return fn_conv_py_datetimedelta_to_clr_timespan_value(object, out);
}

int fn_conv_py_datetimedelta_to_clr_timespan_value(PyObject* object, long* out) {
    TimeSpanArgBuilder span;
    copy_py_datetimedelta(object, span);
    return span.to_ticks(*out) ? 1 : raise_out_of_range("TimeSpan");
}

PyObject* create_py_datetime_from_zone(const DateTimeArgBuilder& builder, PyObject* zone) {
    const Ref arguments =
        Ref::steal(Py_BuildValue("iiiiiiiO", builder.year, builder.month, builder.day, builder.hour,
                                 builder.minute, builder.second, builder.microsecond, zone));
    if (!arguments) {
        return nullptr;
    }
    const Ref type = Ref::steal(PyShImport_ImportType("datetime", PyWrpIdTypeName_DateTime));
    return type ? PyObject_Call(type.get(), arguments.get(), nullptr) : nullptr;
}

PyObject* create_py_datetime_from_tz_ticks(const DateTimeArgBuilder& builder, long offset) {
    const Ref delta = Ref::steal(new_delta(TimeSpanArgBuilder(offset)));
    if (!delta) {
        return nullptr;
    }
    const Ref type = Ref::steal(PyShImport_ImportType("datetime", PyWrpIdTypeName_TimeZone));
    const Ref zone = Ref::steal(type ? PyObject_CallOneArg(type.get(), delta.get()) : nullptr);
    return zone ? create_py_datetime_from_zone(builder, zone.get()) : nullptr;
}

PyObject* fn_conv_clr_datetime_to_py_datetime(const long* value) {
    if (!load_capsule()) {
        return nullptr;
    }
    const DateTimeArgBuilder builder(value[0]);
    if (builder.kind == static_cast<std::int32_t>(DateTimeKind::unspecified)) {
        return PyDateTimeAPI->DateTime_FromDateAndTime(
            builder.year, builder.month, builder.day, builder.hour, builder.minute, builder.second,
            builder.microsecond, Py_None, PyDateTimeAPI->DateTimeType);
    }
    if (builder.kind != static_cast<std::int32_t>(DateTimeKind::utc)) {
        return create_py_datetime_from_tz_ticks(builder, value[1]);
    }
    const Ref type = Ref::steal(PyShImport_ImportType("datetime", PyWrpIdTypeName_TimeZone));
    const Ref utc = Ref::steal(type ? PyObject_GetAttr(type.get(), PyWrpIdDateTime_Utc) : nullptr);
    return utc ? create_py_datetime_from_zone(builder, utc.get()) : nullptr;
}

PyObject* fn_conv_clr_datetimeoffset_to_py_datetime(const long* value) {
    if (!load_capsule()) {
        return nullptr;
    }
    return create_py_datetime_from_tz_ticks(DateTimeArgBuilder(value[0]), value[1]);
}

PyObject* fn_conv_clr_timespan_to_py_datetimedelta(long ticks) {
    return load_capsule() ? new_delta(TimeSpanArgBuilder(ticks)) : nullptr;
}

int fn_read_py_vers_date(PyObject* object, long* out) {
    return load_capsule() ? fn_conv_py_date_to_clr_datetime(object, out) : 0;
}

int fn_read_py_vers_datetime(PyObject* object, long* out) {
    const UtcOffset offset = load_capsule() ? get_utc_offset(object) : offset_failed();
    if (offset.failed) {
        return 0;
    }
    DateTimeArgBuilder builder;
    copy_py_datetime(object, builder);
    if (offset.has_offset) {
        out[1] = offset.offset_ticks;
        return builder.to_ticks(out[0]) ? 2 : raise_out_of_range("DateTimeOffSet");
    }
    return builder.to_ticks(out[0]) ? 1 : raise_out_of_range("DateTime");
}

int fn_read_py_vers_time(PyObject* object, long* out) {
    const UtcOffset offset = load_capsule() ? get_utc_offset(object) : offset_failed();
    if (offset.failed) {
        return 0;
    }
    DateTimeArgBuilder builder;
    copy_py_time(object, builder);
    builder.to_ticks(out[0]);
    if (offset.has_offset) {
        out[1] = offset.offset_ticks;
        return 2;
    }
    return 1;
}

int fn_read_py_datetimedelta(PyObject* object, long* out) {
    return load_capsule() ? fn_conv_py_datetimedelta_to_clr_timespan_value(object, out) : 0;
}

PyObject* fn_write_py_date_time(const long* value) {
    return fn_conv_clr_datetime_to_py_datetime(value);
}
PyObject* fn_write_py_date_time_offset(const long* value) {
    return fn_conv_clr_datetimeoffset_to_py_datetime(value);
}
PyObject* fn_write_py_datetimedelta(long ticks) {
    return fn_conv_clr_timespan_to_py_datetimedelta(ticks);
}

// The type and both arguments stay unreleased, as the contract of the family has it.
PyObject* fn_write_py_timezone(const char16_t* name, int name_length, long offset) {
    if (!load_capsule()) {
        return nullptr;
    }
    PyObject* type = PyShImport_ImportType("datetime", PyWrpIdTypeName_TimeZone);
    PyObject* delta = type != nullptr ? new_delta(TimeSpanArgBuilder(offset)) : nullptr;
    if (delta == nullptr) {
        return nullptr;
    }
    PyObject* text =
        name_length == -1
            ? Py_None
            : fn_conv_clr_string_to_py_string(reinterpret_cast<const char*>(name), name_length);
    return text != nullptr ? PyObject_CallFunctionObjArgs(type, delta, text, nullptr) : nullptr;
}
