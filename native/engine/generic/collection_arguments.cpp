#include "generic/collection_arguments.h"

#include "bindings/classes.h"
#include "runtime/markers.h"
#include "runtime/wrapped_objects.h"

namespace {

// Whether a Python object may stand in for the collection, and as which kind.
bool accepts_python_object(PyObject* object, CollectionParameter parameter, std::int32_t* kind) {
    switch (parameter) {
    case CollectionParameter::iterable:
        *kind = KORVAN_REF_PYTHON;
        return PyShlObject_HasIter(object);
    case CollectionParameter::iterator: *kind = KORVAN_REF_PYTHON; return PyIter_Check(object) != 0;
    case CollectionParameter::wrapper: return false;
    case CollectionParameter::collection:
        *kind = KORVAN_REF_PYTHON;
        return PyShlObject_HasLength(object) && PyShlObject_HasIter(object);
    default: break;
    }
    // Only a list can be written to, and its typed callbacks know it for one.
    if (PyList_Check(object)) {
        *kind = KORVAN_REF_PYTHON;
        return true;
    }
    *kind = KORVAN_REF_SEQUENCE;
    return parameter == CollectionParameter::typed_collection
               ? PyShlObject_HasLength(object) && PyShlObject_HasIter(object)
               : PyShlObject_IsSizedSequence(object);
}

// 1 fits, 0 does not, -1 with an error.
int wrapper_fits(ClassBinding& wrapper, const VariantArg* record) {
    if (!guard(wrapper)) {
        return -1;
    }
    return wrapper.kind == ClassKind::interface_ ? is_assignable_record(wrapper, record)
                                                 : is_assignable_handle(wrapper, record->value);
}

} // namespace

int conv_py_to_clr_collection(PyObject* object, VariantArg* out, ClassBinding* wrapper,
                              CollectionParameter parameter) {
    out->kind = KORVAN_REF_OBJECT;
    if (object == Py_None) {
        out->value = nullptr;
        return 1;
    }
    if (PyObject_TypeCheck(object, &wrapper->type)) {
        out->value = clr_handle(object);
        return 1;
    }
    if (fn_is_this_module_clr_instance(object, &out->kind) &&
        fn_contains_additional_ifc_markattr(object, &wrapper->type)) {
        out->value = clr_handle(object);
        return 1;
    }
    out->kind = KORVAN_REF_OBJECT;
    if (fn_conv_py_obj_to_clr_gen_not_null_handle(object, out)) {
        const int fits = wrapper_fits(*wrapper, out);
        if (fits != 0) {
            return fits > 0;
        }
    } else if (accepts_python_object(object, parameter, &out->kind)) {
        out->value = object;
        return 1;
    }
    raise_cannot_build(what_of(*wrapper), object);
    return 0;
}
