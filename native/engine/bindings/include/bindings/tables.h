// bindings/tables.h: the records that generated units are made of.
//
// A generated unit is a list: constant tables over these records, and one-line thunks where
// CPython's own tables leave no room for data. It holds no logic. One unit (PyM_<namespace>.cpp)
// serves one managed namespace; its header (PyM_<namespace>.h) declares the records that other
// units refer to. A unit reads like this:
//
//   #include "bindings/binding.h"
//   #include "PyM_korvan_cad.h"
//
//   // Korvan.CAD.Matrix
//   static void* slots_CFECF7E6_Matrix[24];
//   static constexpr char delegates_CFECF7E6_Matrix[] =
//       "ctor_000_Matrix\0" "call_000_Scale\0" "get_Elements\0" ... "btp_IsAssignable\0";
//   constinit HostRecord PyHost_cs_CFECF7E6_Matrix = {
//       "WrpNs_Korvan.WrpNs_CAD.WrpCs_Matrix_4F897E2C", delegates_CFECF7E6_Matrix,
//       slots_CFECF7E6_Matrix, 24};
//
//   static const Parameter parameters_CFECF7E6_Matrix_000_scale[] = {
//       {"scale_x"}, {"scale_y"}, {"order", &enum_3A5B6C7D_MatrixOrder}};
//   static const Overload overloads_CFECF7E6_Matrix_scale[] = {
//       {&PyHost_cs_CFECF7E6_Matrix, 13, 3, parameters_CFECF7E6_Matrix_000_scale, nullptr,
//        call<ret::none, arg::float32, arg::float32, arg::enumeration<int>>},
//       {&PyHost_cs_CFECF7E6_Matrix, 14, 2, parameters_..., nullptr,
//        call<ret::none, arg::float32, arg::float32>}};
//   static const Method method_CFECF7E6_Matrix_scale = {
//       &class_CFECF7E6_Matrix, overloads_CFECF7E6_Matrix_scale, 2};
//
//   static PyMethodDef wrpPy_tymd_CFECF7E6_Matrix[] = {
//       KORVAN_METHOD("scale", method_CFECF7E6_Matrix_scale, "..."),
//       KORVAN_METHOD_NOARGS("get_elements", method_CFECF7E6_Matrix_get_elements, "..."),
//       KORVAN_METHOD_STATIC("create", method_CFECF7E6_Matrix_create, "..."),
//       KORVAN_METHOD_STATIC_NOARGS("identity", method_CFECF7E6_Matrix_identity, "..."),
//       KORVAN_GET_TYPE_OF_OBJECT,          // KORVAN_GET_TYPE_OF_STRUCT for a struct
//       KORVAN_STATIC_SETTER("set_cache_folder", property_..., arg::string, "..."),
//       KORVAN_CAST_METHODS(class_CFECF7E6_Matrix),
//       {}};
//
//   static const Property property_CFECF7E6_Matrix_elements = {
//       &PyHost_cs_CFECF7E6_Matrix, 7, 8, &array_1B2C3D4E};
//   static PyGetSetDef wrpPy_typd_CFECF7E6_Matrix[] = {
//       {"elements", get<ret::array>, set<arg::array>, nullptr, closure(property_...)},
//       {"is_identity", get<ret::boolean>, nullptr, nullptr, closure(property_...)},
//       {}};
//
//   constinit ClassBinding class_CFECF7E6_Matrix = {
//       .name = "korvan.cad.Matrix", .short_name = "Matrix", .managed_name = u"Korvan.CAD.Matrix",
//       .kind = ClassKind::object, .host = &PyHost_cs_CFECF7E6_Matrix, .first_cast_slot = 19,
//       .base = &class_..._DisposableObject, .methods = wrpPy_tymd_CFECF7E6_Matrix,
//       .getset = wrpPy_typd_CFECF7E6_Matrix, .constructors = &method_CFECF7E6_Matrix_ctor, ...};
//
// Designators stand in the order of declaration below and may be left out.
#ifndef KORVAN_BINDINGS_TABLES_H
#define KORVAN_BINDINGS_TABLES_H

#include "host/host_record.h"
#include "runtime/py_base.h"

struct ClassBinding;
struct EnumBinding;
struct Overload;

// One parameter: its keyword, and the binding that its converter needs (ClassBinding for class,
// struct, interface and collection parameters, EnumBinding for enums, else null).
struct Parameter {
    const char* keyword;
    const void* type = nullptr;
};

// The arguments of one Python call. The positional ones stand in a row; keywords come as a dict, or
// as names whose values follow the positional ones.
struct CallArguments {
    PyObject* const* items; // borrowed
    Py_ssize_t count; // positional
    PyObject* tuple = nullptr; // the positional ones once more, if the caller had them so
    PyObject* keywords = nullptr; // dict or null
    PyObject* names = nullptr; // tuple or null
    // The first pass over the overloads: one that can't fit says so without an error.
    bool is_quiet = false;

    bool has_keywords() const {
        return (keywords != nullptr && PyDict_GET_SIZE(keywords) != 0) || names != nullptr;
    }
};

// What became of one overload of an overload group. A quiet misfit leaves no error behind.
enum class OverloadOutcome { quiet_misfit, misfit, failed, done };

// One overload. `call` parses the arguments and, if they fit, makes the one indirect call.
// On a misfit the parser's error is pending; `*result` is written only when done.
using OverloadCall = OverloadOutcome (*)(const Overload& overload, PyObject* self,
                                         const CallArguments& arguments, PyObject** result);

struct Overload {
    HostRecord* host; // of the declaring class: an inherited overload names its base's host
    std::uint16_t slot;
    std::uint8_t arity;
    const Parameter* parameters;
    const void* result_type; // ClassBinding or EnumBinding of the result, or null
    OverloadCall call;
};

// A Python-visible method, constructor group or overload group: its overloads in the order of
// tries.
struct Method {
    ClassBinding* owner; // whose guard a static form runs
    const Overload* overloads;
    std::uint8_t count;
    bool is_static = false;
};

// An instance or static property or field. A slot of no_slot means that there is no such delegate.
constexpr std::uint16_t no_slot = 0xFFFF;
struct Property {
    HostRecord* host;
    std::uint16_t get_slot;
    std::uint16_t set_slot = no_slot;
    const void* type = nullptr; // as Parameter::type
    ClassBinding* owner = nullptr; // static values only: whose guard runs
};

// A name with an instance form and a static form. Each is a single-record table.
struct MixedMethod {
    PyMethodDef* static_form;
    PyMethodDef* instance_form;
};

enum class ClassKind : std::uint8_t { object, structure, interface_, static_class };

// Which collection protocol the type's slots serve (a wrapper of a collection, or a bound class
// that implements one). Its functions find their element through the binding of Py_TYPE(self).
enum class Protocol : std::uint8_t {
    none,
    iterator, // __iter__, __next__
    iterable, // __iter__
    collection, // + len, contains, count, copy
    list, // + indexing, the list method set
    array, // + indexing, no change of length
    read_only_collection,
    read_only_list,
    indexer, // this[int] alone: __getitem__ and, with a set delegate, __setitem__
    stream, // the stream wrapper: lines, and a flag in each instance
};

struct ElementOps; // generic/element_ops.h: conversions of one element shape
struct CollectionLayout; // generic/collection_layout.h

// A collection's element and the hosts that serve it. A host's delegates stand in the order that
// generic/collection_layout.h fixes for its kind. Example, for the wrapper of List<CadEntityBase>
// (its own host is the list host; hosts of constituents that no type needs are still emitted):
//   static const CollectionInfo collection_<H> = {
//       .element = &element_ops<arg::object, ret::object>, .element_type =
//       &class_..._CadEntityBase, .iterator = &iter_<H>, .iterable_host = &PyHost_gn_Iterable_<H>,
//       .list_host = &PyHost_gn_List_<H>};
//   constinit ClassBinding list_<H> = {.name = "korvan.cad._wrpgen._generic._ListWrapper_<H>",
//       .short_name = "_ListWrapper_<H>", .what = "List", .kind = ClassKind::object,
//       .host = &PyHost_gn_List_<H>, .first_cast_slot = 21, .methods = ...,
//       .protocol = Protocol::list, .collection = &collection_<H>};
// `what` is "List" for List, IList, ICol and the read-only kinds, "Array", "IEnumerable",
// "IEnumerator". List and Array wrappers are of ClassKind::object (cast group TypeOf, CastTo,
// ReInterpretObj, CastAs, IsAssignable), the interfaces of ClassKind::interface_. Their method
// tables hold KORVAN_WRAPPER_METHODS(binding) (and {}), those of iterators KORVAN_ENTER_EXIT too.
// A bound class that implements IEnumerable, ICollection or IList without element type has
// .collection = &any_iterable_info, &any_collection_info or &any_list_info (generic/interop.h)
// and the protocol to match.
struct CollectionInfo {
    const ElementOps* element = nullptr; // null: elements cross as variants
    const void* element_type = nullptr; // ClassBinding or EnumBinding of the element
    ClassBinding* iterator = nullptr; // the wrapper that GetEnumerator's result becomes
    HostRecord* iterator_host = nullptr; // MoveNext: only for Protocol::iterator
    HostRecord* iterable_host = nullptr; // GetEnumerator
    HostRecord* collection_host = nullptr; // ICol or IRoCol; null where list_host has it all
    HostRecord* list_host = nullptr; // List, Array, IList, IRoList, or the indexer's own host
    std::uint16_t indexer_slot = no_slot; // Protocol::indexer: btp_SqGetItem
    std::uint16_t indexer_set_slot = no_slot;
    const CollectionLayout* layout = nullptr; // null: what protocol and element imply
};

struct PyHostState; // runtime/host_state.h

// A class, struct, interface or static class, or the wrapper of a collection. The type object
// comes first, so Py_TYPE(self) leads here in one step; the engine fills the object's slots when
// the namespace is built.
struct ClassBinding {
    PyTypeObject type = {};
    const char* name = nullptr; // dotted Python name; null: the short name below the module's
    const char* short_name; // managed simple name: the name in the module
    const char* what = nullptr; // what refusals call it; null: the short name
    const char16_t* managed_name = nullptr; // full managed name; null: not in the registry
    ClassKind kind;
    HostRecord* host;
    std::uint16_t first_cast_slot; // of btp_TypeOf, which the other casts follow
    bool has_cast_from = false;
    // The framework wrappers bind btp_IsAssignable ahead of the other casts; else no_slot.
    std::uint16_t assignable_slot = no_slot;
    bool is_disposable = false; // referenced: the IDisposable wrapper
    ClassBinding* base = nullptr;
    ClassBinding* outer = nullptr; // of a nested type
    PyMethodDef* methods = nullptr;
    PyGetSetDef* getset = nullptr;
    const Method* constructors = nullptr; // null: "type has no available constructor"
    // Interfaces whose members this type has, ended by null; the second list without those that
    // the managed class implements explicitly.
    ClassBinding* const* additional_interfaces = nullptr;
    ClassBinding* const* implicit_interfaces = nullptr;
    // Types whose failure is this type's too, besides `base`; ended by null.
    ClassBinding* const* references = nullptr;
    PyGetSetDef* static_values = nullptr; // ended by an empty record
    const MixedMethod* mixed_methods = nullptr; // ended by an empty record
    Protocol protocol = Protocol::none;
    const CollectionInfo* collection = nullptr;
    PyHostState* state = nullptr; // made by the engine at first use
};

// How an enum's values are made and read.
enum class EnumKind : std::uint8_t { integer, flag };
enum class EnumStorage : std::uint8_t { int32, int16, uint16, uint8, int8, uint32, uint64, int64 };

struct EnumMember {
    const char* name;
    std::int64_t value; // an unsigned 64-bit value by its bit pattern
};

struct EnumBinding {
    const char* name; // dotted Python name
    const char* short_name;
    EnumKind kind;
    EnumStorage storage;
    HostRecord* host; // the seven cast delegates, from slot 0
    const EnumMember* members;
    std::uint16_t count;
    PyMethodDef* methods; // KORVAN_ENUM_METHODS
    ClassBinding* outer = nullptr;
    PyObject* type = nullptr; // made when the namespace is built
    PyHostState* state = nullptr;
};

// A Python namespace module. All lists end with null and are sorted by short name.
struct ModuleRecord {
    const char* name; // dotted
    const char* short_name;
    ModuleRecord* const* children;
    ClassBinding* const* classes; // nested ones included, behind their outer type
    EnumBinding* const* enums;
};

// What one extension module is made of. The generator writes exactly one of these, named
// `bound_tree`, in PyJ_<module>.cpp, which also holds the generic wrappers' list.
struct BoundTree {
    const ModuleRecord* root;
    ClassBinding* const* generics; // every collection wrapper of the _generic module, null-ended
    const void* const* generic_callbacks; // see generic/python_collections.h
};

#endif
