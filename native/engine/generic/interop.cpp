#include "generic/interop.h"

#include "bindings/casts.h"
#include "generic/collections.h"
#include "generic/element_ops.h"

namespace {

#define KORVAN_CAST_DELEGATES "btp_IsAssignable\0btp_TypeOf\0btp_CastTo\0btp_CastAs\0"

// The framework wrappers bind their cast group with btp_IsAssignable first; their slots are put in
// the order that all interfaces share (type_of, cast_to, cast_as, is_assignable) when bound.
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

PyMethodDef disposable_methods[] = {
    {"__enter__", wrpPye_bltp_idisposable_enter, METH_NOARGS, nullptr},
    {"__exit__", wrpPye_bltp_idisposable_exit, METH_VARARGS, nullptr},
    KORVAN_WRAPPER_METHODS(wrpPye_tyds_IDisposableWrapper),
    {}};
PyMethodDef iter_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_IterWrapper), {}};
PyMethodDef iterable_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_IterableWrapper), {}};
PyMethodDef collection_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_IColWrapper), {}};
PyMethodDef list_methods[] = {KORVAN_WRAPPER_METHODS(wrpPye_tyds_IListWrapper), {}};

ClassBinding* const collection_interfaces[] = {&wrpPye_tyds_IterableWrapper, nullptr};
ClassBinding* const list_interfaces[] = {&wrpPye_tyds_IterableWrapper, &wrpPye_tyds_IColWrapper,
                                         nullptr};
ClassBinding* const list_references[] = {&wrpPye_tyds_IColWrapper, &wrpPye_tyds_IterableWrapper,
                                         nullptr};

const CollectionInfo any_iterator_info = {.iterator_host = &iter_host};

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
    .first_cast_slot = 0,
    .assignable_first = true,
    .methods = disposable_methods,
};
constinit ClassBinding wrpPye_tyds_IterWrapper = {
    .short_name = "_IterWrapper",
    .what = "IEnumerator",
    .kind = ClassKind::interface_,
    .host = &iter_host,
    .first_cast_slot = 1,
    .assignable_first = true,
    .methods = iter_methods,
    .protocol = Protocol::iterator,
    .collection = &any_iterator_info,
};
constinit ClassBinding wrpPye_tyds_IterableWrapper = {
    .short_name = "_IterableWrapper",
    .what = "IEnumerable",
    .kind = ClassKind::interface_,
    .host = &iterable_host,
    .first_cast_slot = 2,
    .assignable_first = true,
    .methods = iterable_methods,
    .protocol = Protocol::iterable,
    .collection = &any_iterable_info,
};
constinit ClassBinding wrpPye_tyds_IColWrapper = {
    .short_name = "_IColWrapper",
    .what = "List",
    .kind = ClassKind::interface_,
    .host = &collection_host,
    .first_cast_slot = 5,
    .assignable_first = true,
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
    .first_cast_slot = 21,
    .assignable_first = true,
    .methods = list_methods,
    .additional_interfaces = list_interfaces,
    .implicit_interfaces = list_interfaces,
    .references = list_references,
    .protocol = Protocol::list,
    .collection = &any_list_info,
};

ClassBinding* const* interop_wrappers() {
    static ClassBinding* const wrappers[] = {
        &wrpPye_tyds_IDisposableWrapper, &wrpPye_tyds_IterWrapper,  &wrpPye_tyds_IterableWrapper,
        &wrpPye_tyds_IColWrapper,        &wrpPye_tyds_IListWrapper, nullptr};
    return wrappers;
}
