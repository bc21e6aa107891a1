#include "generic/interop.h"

#include "bindings/casts.h"
#include "generic/collection_layout.h"

namespace {

#define KORVAN_CAST_DELEGATES "btp_IsAssignable\0btp_TypeOf\0btp_CastTo\0btp_CastAs\0"

// The framework wrappers bind btp_IsAssignable ahead of the casts; the concrete ones have the
// makers of managed objects between, which the managed side alone calls.
#define KORVAN_MAKERS "CreateInstanceFromPyList\0CreateInstanceFromPySequence\0"
#define KORVAN_CONCRETE_CASTS "btp_TypeOf\0btp_CastTo\0btp_ReInterpretObj\0btp_CastAs\0"

void* disposable_slots[4];
HostRecord disposable_host = {"Korvan.WrpGen.Interop.SiApiDisposable", KORVAN_CAST_DELEGATES,
                              disposable_slots, 4};

void* iter_slots[5];
HostRecord iter_host = {"Korvan.WrpGen.Interop.SiApiEnumerator", "MoveNext\0" KORVAN_CAST_DELEGATES,
                        iter_slots, 5};

void* iterable_slots[6];
HostRecord iterable_host = {"Korvan.WrpGen.Interop.SiApiEnumerable",
                            "GetEnumerator\0CreateInstanceFromPyIterable\0" KORVAN_CAST_DELEGATES,
                            iterable_slots, 6};

void* collection_slots[9];
HostRecord collection_host = {"Korvan.WrpGen.Interop.SiApiCntCollection",
                              "SqLength\0SqContains\0CountOf\0CreateInstanceFromPyList\0"
                              "CreateInstanceFromPyIterable\0" KORVAN_CAST_DELEGATES,
                              collection_slots, 9};

void* list_slots[25];
HostRecord list_host = {
    "Korvan.WrpGen.Interop.SiApiCntList",
    "SqGetItem\0SqGetItemNoCheck\0SqSetItem\0SqSetItemNoCheck\0Add\0Insert\0Remove\0RemoveAt\0"
    "Pop\0Clear\0SqInplaceConcat\0SqInplaceRepeat\0MpSetItems\0MpRemoveItems\0Reverse\0Sort\0"
    "IndexBy\0SqContains\0CountOf\0CreateInstanceFromPyList\0"
    "CreateInstanceFromPySequence\0" KORVAN_CAST_DELEGATES,
    list_slots, 25};

void* array_slots[18];
HostRecord array_host = {
    "Korvan.WrpGen.Interop.SiApiArray",
    "SqLength\0SqContains\0SqGetItem\0SqGetItemNoCheck\0SqSetItem\0SqSetItemNoChek\0MpSetItems\0"
    "Reverse\0Sort\0IndexBy\0CountOf\0btp_IsAssignable\0" KORVAN_MAKERS KORVAN_CONCRETE_CASTS,
    array_slots, 18};

void* array_list_slots[28];
HostRecord array_list_host = {
    "Korvan.WrpGen.Interop.SiApiArrayList",
    "SqLength\0Add\0Remove\0Clear\0SqContains\0SqGetItem\0SqGetItemNoCheck\0SqSetItem\0"
    "SqSetItemNoChek\0Insert\0RemoveAt\0Pop\0SqInplaceConcat\0SqInplaceRepeat\0MpSetItems\0"
    "MpRemoveItems\0Reverse\0Sort\0IndexBy\0CountOf\0EnsureCapacity\0"
    "btp_IsAssignable\0" KORVAN_MAKERS KORVAN_CONCRETE_CASTS,
    array_list_slots, 28};

void* collection_base_slots[7];
HostRecord collection_base_host = {"Korvan.WrpGen.Interop.SiApiCollectionBase",
                                   KORVAN_MAKERS "btp_IsAssignable\0" KORVAN_CONCRETE_CASTS,
                                   collection_base_slots, 7};

void* read_only_base_slots[7];
HostRecord read_only_base_host = {"Korvan.WrpGen.Interop.SiApiReadOnlyCollectionBase",
                                  KORVAN_MAKERS "btp_IsAssignable\0" KORVAN_CONCRETE_CASTS,
                                  read_only_base_slots, 7};

PyMethodDef disposable_methods[] = {
    {"__enter__", wrpPye_bltp_idisposable_enter, METH_NOARGS, nullptr},
    {"__exit__", wrpPye_bltp_idisposable_exit, METH_VARARGS, nullptr},
    KORVAN_WRAPPER_METHODS(wrpPye_tyds_IDisposableWrapper),
    {}};
PyMethodDef iter_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_IterWrapper), {}};
PyMethodDef iterable_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_IterableWrapper), {}};
PyMethodDef collection_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_IColWrapper), {}};
PyMethodDef list_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_IListWrapper), {}};
PyMethodDef array_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_ArrayWrapper), {}};
PyMethodDef array_list_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_ArrListWrapper), {}};
PyMethodDef collection_base_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_ColBaseWrapper), {}};
PyMethodDef read_only_base_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_RoColBaseWrapper), {}};

ClassBinding* const collection_interfaces[] = {&wrpPye_tyds_IterableWrapper, nullptr};
ClassBinding* const list_interfaces[] = {&wrpPye_tyds_IterableWrapper, &wrpPye_tyds_IColWrapper,
                                         nullptr};
// What the concrete lists are.
ClassBinding* const all_interfaces[] = {&wrpPye_tyds_IterableWrapper, &wrpPye_tyds_IColWrapper,
                                        &wrpPye_tyds_IListWrapper, nullptr};
ClassBinding* const list_references[] = {&wrpPye_tyds_IColWrapper, &wrpPye_tyds_IterableWrapper,
                                         nullptr};

ClassBinding* const collection_base_references[] = {
    &wrpPye_tyds_IListWrapper, &wrpPye_tyds_IColWrapper, &wrpPye_tyds_IterableWrapper, nullptr};

const CollectionInfo any_iterator_info = {.iterator_host = &iter_host};
const CollectionInfo any_array_info = {
    .iterator = &wrpPye_tyds_IterWrapper,
    .iterable_host = &iterable_host,
    .list_host = &array_host,
};
const CollectionInfo any_array_list_info = {
    .iterator = &wrpPye_tyds_IterWrapper,
    .iterable_host = &iterable_host,
    .list_host = &array_list_host,
    .layout = &layout::array_list,
};

} // namespace

const CollectionInfo any_iterable_info = {
    .iterator = &wrpPye_tyds_IterWrapper,
    .iterable_host = &iterable_host,
};
const CollectionInfo any_collection_info = {
    .iterator = &wrpPye_tyds_IterWrapper,
    .iterable_host = &iterable_host,
    .collection_host = &collection_host,
};
const CollectionInfo any_list_info = {
    .iterator = &wrpPye_tyds_IterWrapper,
    .iterable_host = &iterable_host,
    .collection_host = &collection_host,
    .list_host = &list_host,
};

constinit ClassBinding wrpPye_tyds_IDisposableWrapper = {
    .short_name = "_IDisposableWrapper",
    .what = "IDisposable",
    .kind = ClassKind::interface_,
    .host = &disposable_host,
    .first_cast_slot = 1,
    .assignable_slot = 0,
    .methods = disposable_methods,
};
constinit ClassBinding wrpPye_tyds_IterWrapper = {
    .short_name = "_IterWrapper",
    .what = "IEnumerator",
    .kind = ClassKind::interface_,
    .host = &iter_host,
    .first_cast_slot = 2,
    .assignable_slot = 1,
    .methods = iter_methods,
    .protocol = Protocol::iterator,
    .collection = &any_iterator_info,
};
constinit ClassBinding wrpPye_tyds_IterableWrapper = {
    .short_name = "_IterableWrapper",
    .what = "IEnumerable",
    .kind = ClassKind::interface_,
    .host = &iterable_host,
    .first_cast_slot = 3,
    .assignable_slot = 2,
    .methods = iterable_methods,
    .protocol = Protocol::iterable,
    .collection = &any_iterable_info,
};
constinit ClassBinding wrpPye_tyds_IColWrapper = {
    .short_name = "_IColWrapper",
    .what = "List",
    .kind = ClassKind::interface_,
    .host = &collection_host,
    .first_cast_slot = 6,
    .assignable_slot = 5,
    .methods = collection_methods,
    .additional_interfaces = collection_interfaces,
    .implicit_interfaces = collection_interfaces,
    .references = collection_interfaces,
    .protocol = Protocol::collection,
    .collection = &any_collection_info,
};
constinit ClassBinding wrpPye_tyds_IListWrapper = {
    .short_name = "_IListWrapper",
    .what = "List",
    .kind = ClassKind::interface_,
    .host = &list_host,
    .first_cast_slot = 22,
    .assignable_slot = 21,
    .methods = list_methods,
    .additional_interfaces = list_interfaces,
    .implicit_interfaces = list_interfaces,
    .references = list_references,
    .protocol = Protocol::list,
    .collection = &any_list_info,
};

constinit ClassBinding wrpPye_tyds_RoColBaseWrapper = {
    .short_name = "_RoColBaseWrapper",
    .what = "ReadOnlyCollectionBase",
    .kind = ClassKind::object,
    .host = &read_only_base_host,
    .first_cast_slot = 3,
    .assignable_slot = 2,
    .methods = read_only_base_methods,
    .additional_interfaces = list_interfaces,
    .implicit_interfaces = list_interfaces,
    .references = list_references,
    .protocol = Protocol::collection,
    .collection = &any_collection_info,
};
constinit ClassBinding wrpPye_tyds_ColBaseWrapper = {
    .short_name = "_ColBaseWrapper",
    .what = "CollectionBase",
    .kind = ClassKind::object,
    .host = &collection_base_host,
    .first_cast_slot = 3,
    .assignable_slot = 2,
    .methods = collection_base_methods,
    .additional_interfaces = all_interfaces,
    .implicit_interfaces = all_interfaces,
    .references = collection_base_references,
    .protocol = Protocol::list,
    .collection = &any_list_info,
};
constinit ClassBinding wrpPye_tyds_ArrayWrapper = {
    .short_name = "_ArrayWrapper",
    .what = "Array",
    .kind = ClassKind::object,
    .host = &array_host,
    .first_cast_slot = 14,
    .assignable_slot = 11,
    .methods = array_methods,
    .additional_interfaces = all_interfaces,
    .implicit_interfaces = all_interfaces,
    .references = collection_interfaces,
    .protocol = Protocol::array,
    .collection = &any_array_info,
};
constinit ClassBinding wrpPye_tyds_ArrListWrapper = {
    .short_name = "_ArrListWrapper",
    .what = "ArrayList",
    .kind = ClassKind::object,
    .host = &array_list_host,
    .first_cast_slot = 24,
    .assignable_slot = 21,
    .methods = array_list_methods,
    .additional_interfaces = all_interfaces,
    .implicit_interfaces = all_interfaces,
    .references = collection_interfaces,
    .protocol = Protocol::list,
    .collection = &any_array_list_info,
};

ClassBinding* const* interop_wrappers() {
    static ClassBinding* const wrappers[] = {&wrpPye_tyds_IDisposableWrapper,
                                             &wrpPye_tyds_IterWrapper,
                                             &wrpPye_tyds_IterableWrapper,
                                             &wrpPye_tyds_IColWrapper,
                                             &wrpPye_tyds_IListWrapper,
                                             &wrpPye_tyds_RoColBaseWrapper,
                                             &wrpPye_tyds_ColBaseWrapper,
                                             &wrpPye_tyds_ArrayWrapper,
                                             &wrpPye_tyds_ArrListWrapper,
                                             &wrpPye_tyds_StreamWrapper,
                                             nullptr};
    return wrappers;
}
