// runtime/dates.h: dates, times and durations, with their zones.
//
// The arithmetic is native: no managed call is made for any of it. A managed DateTime crosses as
// ticks with its kind in the two top bits; a DateTimeOffset as clock reading and offset.
#ifndef KORVAN_RUNTIME_DATES_H
#define KORVAN_RUNTIME_DATES_H

#include "args/datetime_arg_builder.h"
#include "args/timespan_arg_builder.h"
#include "runtime/py_base.h"

void copy_py_date(PyObject* object, DateTimeArgBuilder& builder);
void copy_py_time(PyObject* object, DateTimeArgBuilder& builder);
void copy_py_datetime(PyObject* object, DateTimeArgBuilder& builder);
void copy_py_datetimedelta(PyObject* object, TimeSpanArgBuilder& builder);

struct UtcOffset {
    bool failed = false; // with a Python error
    bool has_offset = false;
    long offset_ticks = 0;
};
UtcOffset get_utc_offset(PyObject* object);

// Parsing converters: 1, or 0 with a Python error.
int fn_conv_py_datetime_to_clr_datetime(PyObject* object, long* out);
int fn_conv_py_datetime_ex_to_clr_datetime(PyObject* object, long* out);
int fn_conv_py_date_to_clr_datetime(PyObject* object, long* out);
int fn_conv_py_time_to_clr_datetime(PyObject* object, long* out);
int fn_conv_py_datetime_to_clr_datetimeoffset(PyObject* object, long* out);
int fn_conv_py_datetime_ex_to_clr_datetimeoffset(PyObject* object, long* out);
int fn_conv_py_time_to_clr_datetimeoffset(PyObject* object, long* out);
int fn_conv_py_datetimedelta_to_clr_timespan(PyObject* object, long* out);
int fn_conv_py_datetimedelta_to_clr_timespan_value(PyObject* object, long* out);

PyObject* fn_conv_clr_datetime_to_py_datetime(const long* value);
PyObject* fn_conv_clr_datetimeoffset_to_py_datetime(const long* value);
PyObject* fn_conv_clr_timespan_to_py_datetimedelta(long ticks);
PyObject* create_py_datetime_from_zone(const DateTimeArgBuilder& builder, PyObject* zone);
PyObject* create_py_datetime_from_tz_ticks(const DateTimeArgBuilder& builder, long offset);

// Callback slots: 1 a DateTime, 2 a DateTimeOffset, 0 an error.
int fn_read_py_vers_datetime(PyObject* object, long* out);
int fn_read_py_vers_date(PyObject* object, long* out);
int fn_read_py_vers_time(PyObject* object, long* out);
int fn_read_py_datetimedelta(PyObject* object, long* out);
PyObject* fn_write_py_date_time(const long* value);
PyObject* fn_write_py_date_time_offset(const long* value);
PyObject* fn_write_py_datetimedelta(long ticks);
PyObject* fn_write_py_timezone(const char16_t* name, int name_length, long offset);

#endif
