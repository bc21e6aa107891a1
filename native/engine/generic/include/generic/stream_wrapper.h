// generic/stream_wrapper.h: a managed stream as Python's byte streams behave.
#ifndef KORVAN_GENERIC_STREAM_WRAPPER_H
#define KORVAN_GENERIC_STREAM_WRAPPER_H

#include "bindings/tables.h"

// The flag is the wrapper's own: another wrapper of the same stream does not share it.
struct PyShStreamObject {
    PyClrObject base;
    std::int32_t closed;
};

extern ClassBinding wrpPye_tyds_StreamWrapper;

// Lines, and room for the flag. The instance starts out zeroed, which is open.
void fill_stream_slots(PyTypeObject& type);

#endif
