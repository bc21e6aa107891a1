// bindings/binding.h: all that a generated unit includes.
//
// Argument policies (arguments.h), by managed parameter type. Those marked [t] read
// Parameter::type or Property::type:
//   arg::boolean int8 uint8 int16 uint16 int32 uint32 int64 uint64 float32 float64 char16
//   arg::string                      string
//   arg::bytes                       byte[]
//   arg::object [t]                  class
//   arg::structure [t]               struct
//   arg::interface_ [t]              interface
//   arg::enumeration<T> [t]          enum; T is the delegate's C type: int, short, unsigned short,
//                                    unsigned char, signed char, unsigned int, long, unsigned long
//   arg::stream                      System.IO.Stream
//   arg::array [t] arg::list [t] arg::iterable [t] arg::icol [t] arg::ilist [t] arg::irocol [t]
//   arg::irolist [t] arg::iter [t]   generic collections; type is the wrapper's ClassBinding
//   arg::any_iterable any_collection any_list    non-generic IEnumerable, ICollection, IList
//   arg::any_disposable any_enumerator           IDisposable, non-generic IEnumerator
//   arg::any_array any_arraylist any_collectionbase any_readonlycollectionbase
//                                    Array, ArrayList, CollectionBase, ReadOnlyCollectionBase
//   arg::nullable<Policy> [t as the inner policy]
//   arg::variant                     object
//   arg::datetime timespan guid decimal version datetimeoffset
//   arg::drawing_color               korvan.pydrawing's Color
//   arg::by_ref<Policy, Ret>, arg::out<Policy, Ret>    ref and out parameters
//
// Result policies (results.h), for methods and getters alike:
//   ret::none boolean int8 ... uint64 float32 float64 char16
//   ret::finished                    string, byte[], object: the delegate returns a Python object
//   ret::object [t]                  class or struct: a handle, wrapped as declared
//   ret::enumeration<T> [t]
//   ret::interface_ [t]              PyObjectOutArg* last
//   ret::array [t]                   a handle, wrapped as the array wrapper
//   ret::collection [t]              List<T> and other concrete generics: PyCollectionArg* last
//   ret::most_derived [t]            an object, shown as its exact class: PyCollectionArg* last
//   ret::interface_collection [t]    IEnumerable<T>, IList<T>, ...: PyCollectionArg* last
//   ret::stream                      PyCollectionArg* last
//   ret::any_disposable any_enumerator
//   ret::any_iterable any_collection any_list any_array any_arraylist any_collectionbase
//   ret::any_readonlycollectionbase  PyCollectionArg* last
//   ret::datetime timespan guid version decimal datetimeoffset
//   ret::drawing_color drawing_rectangle         korvan.pydrawing's Color and RectangleF
//   ret::nullable<Policy>            int* has_value last
//
// Overloads:        call<Ret, Args...>   call_static<Ret, Args...>   construct<Args...>
// Getters:     get<Ret>, get_static<Ret>        closure(property)
// Setters:     set<Arg>, KORVAN_STATIC_SETTER
#ifndef KORVAN_BINDINGS_BINDING_H
#define KORVAN_BINDINGS_BINDING_H

#include "bindings/arguments.h"
#include "bindings/casts.h"
#include "bindings/overloads.h"
#include "bindings/properties.h"
#include "bindings/results.h"
#include "bindings/tables.h"
#include "generic/element_ops.h"
#include "generic/interop.h"
#include "generic/python_collections.h"

// Rows of tables; the formatter would take them for blocks of statements.
// clang-format off
#define KORVAN_METHOD(name, record, doc)                                                           \
    {name, reinterpret_cast<PyCFunction>(method_thunk<record>), METH_FASTCALL | METH_KEYWORDS,     \
     doc}
#define KORVAN_METHOD_STATIC(name, record, doc)                                                    \
    {name, reinterpret_cast<PyCFunction>(method_thunk<record>),                                    \
     METH_FASTCALL | METH_KEYWORDS | METH_STATIC, doc}
// The two forms of a mixed method, which its descriptor calls with a tuple and a dict.
#define KORVAN_MIXED(name, record, doc)                                                            \
    {name, reinterpret_cast<PyCFunction>(mixed_thunk<record>), METH_VARARGS | METH_KEYWORDS,       \
     doc}
#define KORVAN_MIXED_STATIC(name, record, doc)                                                     \
    {name, reinterpret_cast<PyCFunction>(mixed_thunk<record>),                                     \
     METH_VARARGS | METH_KEYWORDS | METH_STATIC, doc}
#define KORVAN_MIXED_NOARGS KORVAN_METHOD_NOARGS
#define KORVAN_MIXED_STATIC_NOARGS KORVAN_METHOD_STATIC_NOARGS
#define KORVAN_METHOD_NOARGS(name, record, doc)                                                    \
    {name, method_noargs_thunk<record>, METH_NOARGS, doc}
#define KORVAN_METHOD_STATIC_NOARGS(name, record, doc)                                             \
    {name, method_noargs_thunk<record>, METH_NOARGS | METH_STATIC, doc}
#define KORVAN_STATIC_SETTER(name, property, policy, doc)                                          \
    {name, static_setter_thunk<property, policy>, METH_O | METH_STATIC, doc}
#define KORVAN_ENTER_EXIT                                                                          \
    {"__enter__", wrpPye_bltp_idisposable_enter, METH_NOARGS, nullptr},                            \
        {"__exit__", wrpPye_bltp_idisposable_exit, METH_VARARGS, nullptr}
#define KORVAN_GET_TYPE_OF_OBJECT {"get_type", wrapClrObject_get_type, METH_NOARGS, nullptr}
#define KORVAN_GET_TYPE_OF_STRUCT {"get_type", wrapClrStruct_get_type, METH_NOARGS, nullptr}
#define KORVAN_ENUM_METHODS(binding)                                                               \
    {"_type_of", enum_type_of_thunk<binding>, METH_NOARGS | METH_STATIC, nullptr},                 \
        {"_cast_to", enum_cast_to_thunk<binding>, METH_O | METH_STATIC, nullptr},                  \
        {"_cast_from", enum_cast_from, METH_O, nullptr},                                           \
        {"_reinterpret_obj", enum_reinterpret_obj_thunk<binding>, METH_O | METH_STATIC, nullptr},  \
        {"_as_uni_enum", enum_as_uni_enum_thunk<binding>, METH_NOARGS, nullptr},                   \
        {"_cast_as", enum_cast_as_thunk<binding>, METH_O | METH_STATIC, nullptr},                  \
        {"_is_assignable", enum_is_assignable_thunk<binding>, METH_O | METH_STATIC, nullptr},      \
        {"get_type", enum_get_type_thunk<binding>, METH_NOARGS, nullptr},                          \
        {}
// clang-format on
// The methods of a collection wrapper or of a bound class with that protocol come from the engine:
// it appends them to tp_dict by ClassBinding::protocol; the generator emits nothing for them.

template <class Record> constexpr void* closure(const Record& record) {
    return const_cast<Record*>(&record);
}

#endif
