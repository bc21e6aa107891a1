// bindings/classes.h: bound types as a whole: their guard, their slots, their conversions.
#ifndef KORVAN_BINDINGS_CLASSES_H
#define KORVAN_BINDINGS_CLASSES_H

#include "bindings/tables.h"
#include "runtime/host_state.h"

// Whether the type can be used, found out at first use: its own host, then the types it refers to.
PyHostState* build_class_state(ClassBinding& binding);
inline const PyHostState& class_state(ClassBinding& binding) {
    if (__builtin_expect(binding.state == nullptr, 0)) {
        binding.state = build_class_state(binding);
    }
    return *binding.state;
}
// The same for types that refer to this one: writes the message when true.
bool class_is_not_valid(ClassBinding& binding, std::string& message);
const PyHostState& enum_state(EnumBinding& binding);

// True if the type can be used; else TypeError is raised.
inline bool guard(ClassBinding& binding) { return !fn_raise_if_not_valid(class_state(binding)); }
inline bool guard(EnumBinding& binding) { return !fn_raise_if_not_valid(enum_state(binding)); }

// Fills the type object's slots from the binding, base first. PyType_Ready is still to come.
void prepare_class(ClassBinding& binding);

// The cast delegates, by what they do; their slots follow from the kind of type.
enum class CastDelegate { type_of, cast_to, cast_from, reinterpret_obj, cast_as, is_assignable };
std::uint16_t cast_slot(const ClassBinding& binding, CastDelegate delegate);

// Parsing converters for parameters of bound types.
int conv_py_to_clr_class(PyObject* object, void** out, ClassBinding& binding);
int conv_py_to_clr_struct(PyObject* object, VariantArg* out, ClassBinding& binding);
int conv_py_to_clr_interface(PyObject* object, VariantArg* out, ClassBinding& binding);

// Does the managed object behind the argument fit this type? -1 with an error.
int is_assignable_handle(ClassBinding& binding, void* handle);
int is_assignable_record(ClassBinding& binding, const VariantArg* record);

inline const char* what_of(const ClassBinding& binding) {
    return binding.what != nullptr ? binding.what : binding.short_name;
}

inline PyObject* raise_cannot_build(const char* what, PyObject* object) {
    return PyErr_Format(PyExc_TypeError, "can't build %s value from '%s'", what,
                        type_name_of(object));
}

#endif
