// korvan.pyreflection: managed types, objects and enum values as Python objects.
//
// The module is imported ahead of the runtime's start and attaches to the runtime when the first
// handle is wrapped, through an interop assembly of its own.
#include "module/capsules.h"
#include "module/version_attributes.h"
#include "reflection.h"
#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "runtime/markers.h"
#include "runtime/wrapped_objects.h"

namespace {

// The handle of an instance of exactly this type: non-zero on success, no error otherwise.
int unwrap(PyObject* object, void** handle, const PyTypeObject* type) {
    if (Py_TYPE(object) != type || clr_handle(object) == nullptr) {
        return 0;
    }
    *handle = clr_handle(object);
    return 1;
}

int unwrap_type(PyObject* object, void** handle) { return unwrap(object, handle, &type_type); }
// Any wrapper: a struct is an object in its box.
int unwrap_object(PyObject* object, void** handle) {
    VariantArg record{};
    if (!fn_conv_py_obj_to_clr_gen_not_null_handle(object, &record) || record.value == nullptr) {
        return 0;
    }
    *handle = record.value;
    return 1;
}
int unwrap_enum(PyObject* object, void** handle) { return unwrap(object, handle, &enum_type); }

int refuse(const char* what, PyObject* object) {
    PyErr_Format(PyExc_TypeError, "can't build %s value from '%s'", what, type_name_of(object));
    return 0;
}
int parse_type(PyObject* object, void* out) {
    return unwrap_type(object, static_cast<void**>(out)) ? 1 : refuse("Type", object);
}
int parse_object(PyObject* object, void* out) {
    return unwrap_object(object, static_cast<void**>(out)) ? 1 : refuse("Object", object);
}
int parse_enum(PyObject* object, void* out) {
    return unwrap_enum(object, static_cast<void**>(out)) ? 1 : refuse("Enum", object);
}

template <class Function> void* pointer(Function* function) {
    return reinterpret_cast<void*>(function);
}

// Each table: parsing converter, wrapper, handle extractor.
void* type_api[] = {pointer(parse_type), pointer(wrap_type), pointer(unwrap_type)};
void* object_api[] = {pointer(parse_object), pointer(wrap_object), pointer(unwrap_object)};
void* enum_api[] = {pointer(parse_enum), pointer(wrap_enum), pointer(unwrap_enum)};

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "korvan.pyreflection",
                          nullptr,
                          -1,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

bool add_wrapper(PyObject* module, PyTypeObject* type) {
    return PyModule_AddType(module, type) == 0 && fn_set_obj_type_host_markattr(type) &&
           fn_set_castable_type_markattr(type, Py_None);
}

} // namespace

PyMODINIT_FUNC PyInit_pyreflection() {
    fn_intern_identifiers();
    wrpPyl_convcaps_clr_to_py_94F50081_Type = wrap_type;
    Ref module = Ref::steal(PyModule_Create(&definition));
    if (!module || !add_wrapper(module.get(), &type_type) ||
        !add_wrapper(module.get(), &object_type) || !add_wrapper(module.get(), &enum_type) ||
        !add_capsule(module.get(), "korvan.pyreflection._C_APIT_Type", type_api) ||
        !add_capsule(module.get(), "korvan.pyreflection._C_APIT_Object", object_api) ||
        !add_capsule(module.get(), "korvan.pyreflection._C_APIT_Enum", enum_api) ||
        add_version_attributes(module.get(), "korvan.pyreflection._ModuleVersionType",
                               {25, 3, 0, 0, "25.3.0.0"}, {22, 6, 0, 0, "22.6.0.0"}) != 0) {
        return nullptr;
    }
    return module.release();
}
