// generic/stream_argument.h: parameters declared as a stream.
#ifndef KORVAN_GENERIC_STREAM_ARGUMENT_H
#define KORVAN_GENERIC_STREAM_ARGUMENT_H

#include "runtime/py_base.h"

// A Python file object crosses as itself; the managed side drives it through the raw I/O slots.
int wrpPye_conv_py_to_clr_stream(PyObject* object, VariantArg* out);

#endif
