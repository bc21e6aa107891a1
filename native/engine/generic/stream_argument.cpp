#include "generic/stream_argument.h"

#include "host/host_record.h"
#include "runtime/identifiers.h"
#include "runtime/imports.h"
#include "runtime/wrapped_objects.h"

namespace {

void* stream_slots[16];
HostRecord stream_host = {
    "Korvan.WrpGen.Interop.SiApiStream",
    "CanRead\0CanSeek\0CanWrite\0Length\0Position\0Close\0Flush\0Read\0Seek\0SetLength\0Write\0"
    "btp_IsAssignable\0btp_TypeOf\0btp_CastTo\0btp_ReInterpretObj\0btp_CastAs\0",
    stream_slots, 16};
constexpr std::uint16_t is_assignable_slot = 11;

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

int wrapper_fits(void* handle) {
    if (host_is_not_valid(stream_host)) {
        PyErr_SetString(PyExc_TypeError, stream_host.error->c_str());
        return -1;
    }
    const int fits = host_slot<int(void*)>(stream_host, is_assignable_slot)(handle);
    return PyErr_Occurred() != nullptr ? -1 : fits != 0;
}

} // namespace

int wrpPye_conv_py_to_clr_stream(PyObject* object, VariantArg* out) {
    out->kind = KORVAN_REF_OBJECT;
    out->value = nullptr;
    if (object == Py_None) {
        return 1;
    }
    int fits = 0;
    if (fn_conv_py_obj_to_clr_refobj_not_null_handle(object, &out->value)) {
        fits = wrapper_fits(out->value);
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
