#include "runtime/variant.h"

#include "runtime/identifiers.h"
#include "runtime/imports.h"
#include "runtime/markers.h"
#include "runtime/numbers.h"
#include "runtime/wrapped_objects.h"

#include <cstring>
#include <datetime.h>

namespace {

// 1 or 0, or -1 with the error of the import.
int is_instance_of(PyObject* object, const char* module, PyObject* name) {
    const Ref type = Ref::steal(PyShImport_ImportType(module, name));
    return type ? PyObject_IsInstance(object, type.get()) : -1;
}

struct ImportedTest {
    const char* module;
    PyObject** name;
    std::int32_t kind;
};

// Order matters: DecimalTuple is a tuple, and a datetime is a date.
const ImportedTest imported_tests[] = {
    {"decimal", &PyWrpIdTypeName_DecimalTuple, KORVAN_VAR_DECIMAL_TUPLE},
    {"decimal", &PyWrpIdTypeName_Decimal, KORVAN_VAR_DECIMAL},
    {"uuid", &PyWrpIdTypeName_Uuid, KORVAN_VAR_UUID},
};

// -1: none of them; -2: the error of an import is pending. Strings and wrappers, the common
// values, are none of these types and cost no import.
int kind_of_imported(PyObject* object) {
    if (PyUnicode_CheckExact(object) || fn_is_this_module_clr_object(object)) {
        return -1;
    }
    for (const ImportedTest& test : imported_tests) {
        const int answer = is_instance_of(object, test.module, *test.name);
        if (answer != 0) {
            return answer > 0 ? test.kind : -2;
        }
    }
    return -1;
}

int kind_of_number(PyObject* object) {
    if (object == Py_None) {
        return KORVAN_VAR_NONE;
    }
    if (PyBool_Check(object)) {
        return KORVAN_VAR_BOOL;
    }
    if (PyShLong_Check(object) != 0) {
        return KORVAN_VAR_INT;
    }
    return PyFloat_Check(object) ? KORVAN_VAR_FLOAT : -1;
}

// As above: -2 where the module can't be imported, as at the interpreter's end.
int kind_of_date(PyObject* object) {
    if (PyDateTimeAPI == nullptr) {
        PyDateTime_IMPORT;
        if (PyDateTimeAPI == nullptr) {
            return -2;
        }
    }
    if (PyDelta_Check(object)) {
        return KORVAN_VAR_TIMEDELTA;
    }
    if (PyDateTime_Check(object)) {
        return KORVAN_VAR_DATETIME;
    }
    if (PyDate_Check(object)) {
        return KORVAN_VAR_DATE;
    }
    return PyTime_Check(object) ? KORVAN_VAR_TIME : -1;
}

int kind_of_container(PyObject* object) {
    if (PyUnicode_Check(object)) {
        return KORVAN_VAR_STRING;
    }
    const bool is_bytes_like =
        PyBytes_Check(object) || PyByteArray_Check(object) || PyMemoryView_Check(object);
    if (is_bytes_like && PyObject_CheckBuffer(object)) {
        return KORVAN_VAR_BUFFER;
    }
    if (PyList_CheckExact(object)) {
        return KORVAN_VAR_LIST;
    }
    return PyTuple_CheckExact(object) ? KORVAN_VAR_TUPLE : -1;
}

// Whether the object wraps a managed one; a wrapper without a handle does not count.
bool take_wrapper(PyObject* object, VariantArg* out) {
    if (!fn_is_this_module_clr_instance(object, &out->kind) &&
        !(is_static_type_of(object) && fn_is_instance_has_host_markattr(object, &out->kind))) {
        return false;
    }
    if (clr_handle(object) == nullptr) {
        return false;
    }
    out->kind += 1;
    out->value = clr_handle(object);
    return true;
}

} // namespace

int fn_conv_py_variant_to_clr_variant(PyObject* object, VariantArg* out) {
    out->value = object;
    int kind = kind_of_number(object);
    for (const auto kind_of : {kind_of_imported, kind_of_date, kind_of_container}) {
        if (kind != -1) {
            break;
        }
        kind = kind_of(object);
    }
    if (kind == -2) {
        return 0;
    }
    if (kind >= 0) {
        out->kind = kind;
        return 1;
    }
    if (take_wrapper(object, out)) {
        return 1;
    }
    PyErr_SetString(PyExc_TypeError, "unknown variant type");
    return 0;
}

int fn_conv_py_nullable_to_clr_nullable(PyObject* object, PyNullableArg* arg) {
    if (object == Py_None) {
        return 1;
    }
    if (arg->convert(object, arg->destination) != 1) {
        return 0;
    }
    arg->has_value = 1;
    return 1;
}

int fn_conv_py_parbyref_to_clr_parbyref(PyObject* object, PyParamByRef* arg) {
    if (!PyList_CheckExact(object)) {
        PyErr_Format(PyExc_TypeError,
                     "argument should be empty list or list contains default value, not '%.200s'",
                     type_name_of(object));
        return 0;
    }
    arg->list = object;
    if (PyList_GET_SIZE(object) == 0 || PyList_GET_ITEM(object, 0) == Py_None) {
        return 1;
    }
    return arg->convert(PyList_GET_ITEM(object, 0), arg->destination) == 1;
}

int fn_push_parbyref_outvalue(PyObject* list, PyObject* value) {
    if (PyList_GET_SIZE(list) != 0) {
        return PyList_SetItem(list, 0, value);
    }
    const Ref owned = Ref::steal(value);
    return PyList_Append(list, value);
}

static int raise_no_guid(PyObject* object) {
    PyErr_Format(PyExc_TypeError, "can't build Guid from '%s'", type_name_of(object));
    return 0;
}

// An object may call itself a UUID and have no such bytes.
static int copy_guid(PyObject* object, unsigned char* out) {
    constexpr Py_ssize_t size = 16;
    const Ref bytes = Ref::steal(PyObject_GetAttr(object, PyWrpIdUuid_BytesLe));
    if (!bytes) {
        return 0;
    }
    if (!PyBytes_Check(bytes.get()) || PyBytes_GET_SIZE(bytes.get()) != size) {
        return raise_no_guid(object);
    }
    std::memcpy(out, PyBytes_AS_STRING(bytes.get()), size);
    return 1;
}

int fn_conv_py_uuid_to_clr_guid(PyObject* object, unsigned char* out) {
    const int answer = is_instance_of(object, "uuid", PyWrpIdTypeName_Uuid);
    if (answer == 0) {
        return raise_no_guid(object);
    }
    return answer > 0 ? copy_guid(object, out) : 0;
}

void fn_conv_py_uuid_to_clr_guid_value(PyObject* object, unsigned char* out) {
    copy_guid(object, out);
}

PyObject* fn_conv_clr_guid_to_py_uuid(const void* bytes) {
    const Ref type = Ref::steal(PyShImport_ImportType("uuid", PyWrpIdTypeName_Uuid));
    if (!type) {
        return nullptr;
    }
    const Ref value = Ref::steal(PyBytes_FromStringAndSize(static_cast<const char*>(bytes), 16));
    const Ref positional = Ref::steal(PyTuple_New(0));
    const Ref keywords = Ref::steal(PyDict_New());
    if (!value || PyDict_SetItem(keywords.get(), PyWrpIdUuid_BytesLe, value.get()) != 0) {
        return nullptr;
    }
    return PyObject_Call(type.get(), positional.get(), keywords.get());
}

void fn_read_py_guid(PyObject* object, unsigned char* out) {
    fn_conv_py_uuid_to_clr_guid_value(object, out);
}

PyObject* fn_write_py_guid(const void* bytes) { return fn_conv_clr_guid_to_py_uuid(bytes); }

static bool version_part(PyObject* item, std::int32_t* out) {
    if (!PyLong_Check(item)) {
        PyErr_Format(PyExc_ValueError,
                     "an element of a version number tuple must be integer, not %.200s",
                     type_name_of(item));
        return false;
    }
    const long value = PyLong_AsLong(item);
    if (value == -1 && PyErr_Occurred() != nullptr) {
        return false;
    }
    if (value < 0) {
        PyErr_Format(PyExc_ValueError,
                     "an element of a version number tuple must be greater or equal zero, not %zd",
                     value);
        return false;
    }
    *out = static_cast<std::int32_t>(value);
    return true;
}

int fn_conv_py_tuple_to_clr_version(PyObject* object, PySysVersionArg* out) {
    if (object == Py_None) {
        out->count = -1;
        return 1;
    }
    if (!PyTuple_Check(object)) {
        PyErr_Format(PyExc_TypeError, "a tuple or None is required, not '%.200s'",
                     type_name_of(object));
        return 0;
    }
    const Py_ssize_t size = PyTuple_GET_SIZE(object);
    if (size < 2 || size > 4) {
        PyErr_Format(PyExc_ValueError,
                     "a version number tuple must contains at least 2 and at most %zd elements "
                     "(%zd given)",
                     static_cast<Py_ssize_t>(4), size);
        return 0;
    }
    out->count = static_cast<std::int32_t>(size);
    for (Py_ssize_t i = 0; i < size; ++i) {
        if (!version_part(PyTuple_GET_ITEM(object, i), &out->parts[i])) {
            return 0;
        }
    }
    return 1;
}

PyObject* fn_conv_clr_version_to_py_tuple(const PySysVersionArg& version) {
    if (version.count == -1) {
        Py_RETURN_NONE;
    }
    Ref tuple = Ref::steal(PyTuple_New(version.count));
    for (int i = 0; tuple && i < version.count; ++i) {
        PyObject* part = PyLong_FromLong(version.parts[i]);
        if (part == nullptr) {
            return nullptr;
        }
        PyTuple_SET_ITEM(tuple.get(), i, part);
    }
    return tuple.release();
}
