#include "generic/stream_argument.h"

#include "bindings/classes.h"
#include "generic/stream_wrapper.h"
#include "runtime/identifiers.h"
#include "runtime/imports.h"
#include "runtime/wrapped_objects.h"

namespace {

struct StreamClass {
    const char* module;
    PyObject** name;
};
const StreamClass stream_classes[] = {
    {"io", &PyWrpIdTypeName_RawIOBase},
    {"io", &PyWrpIdTypeName_BufferedIOBase},
    {"korvan.pycore", &PyWrpIdTypeName_BytesAsStream},
};

// 1, 0, or -1 with an error.
int is_python_stream(PyObject* object) {
    for (const StreamClass& candidate : stream_classes) {
        const Ref type = Ref::steal(PyShImport_ImportType(candidate.module, *candidate.name));
        const int answer = type ? PyObject_IsInstance(object, type.get()) : -1;
        if (answer != 0) {
            return answer;
        }
    }
    return 0;
}

} // namespace

int wrpPye_conv_py_to_clr_stream(PyObject* object, VariantArg* out) {
    out->kind = KORVAN_REF_OBJECT;
    out->value = nullptr;
    if (object == Py_None) {
        return 1;
    }
    if (PyObject_TypeCheck(object, &wrpPye_tyds_StreamWrapper.type)) {
        out->value = clr_handle(object);
        return 1;
    }
    int fits = 0;
    if (fn_conv_py_obj_to_clr_refobj_not_null_handle(object, &out->value)) {
        if (!guard(wrpPye_tyds_StreamWrapper)) {
            return 0;
        }
        fits = is_assignable_handle(wrpPye_tyds_StreamWrapper, out->value);
    } else {
        fits = is_python_stream(object);
        out->kind = KORVAN_REF_PYTHON;
        out->value = object;
    }
    if (fits == 0) {
        PyErr_Format(PyExc_TypeError, "can't build Stream from '%s'", type_name_of(object));
    }
    return fits > 0;
}
