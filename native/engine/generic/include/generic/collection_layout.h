// generic/collection_layout.h: where each collection operation stands among a host's delegates.
//
// The orders are the binding orders of the managed classes SiApiList_<H>, SiApiArray_<H> and so on.
#ifndef KORVAN_GENERIC_COLLECTION_LAYOUT_H
#define KORVAN_GENERIC_COLLECTION_LAYOUT_H

#include "bindings/tables.h"

// A delegate among the hosts of a collection.
struct CollectionSlot {
    bool in_list_host = false;
    std::uint16_t index = no_slot;
    constexpr bool exists() const { return index != no_slot; }
};

struct CollectionLayout {
    CollectionSlot length, contains, count_of, get_item, get_item_no_check, set_item,
        set_item_no_check, set_items, add, insert, remove, remove_at, remove_items, pop, clear,
        inplace_concat, inplace_repeat, reverse, sort, index_by, ensure_capacity;
    // remove_items takes a block of neighbours by its lowest index, not by its highest.
    bool removes_blocks_by_lowest = false;
};

namespace layout {

constexpr CollectionSlot in_list(std::uint16_t index) { return {true, index}; }
constexpr CollectionSlot in_collection(std::uint16_t index) { return {false, index}; }

// List and ArrayList: SqLength Add Remove Clear SqContains SqGetItem SqGetItemNoCheck SqSetItem
// SqSetItemNoChek Insert RemoveAt Pop SqInplaceConcat SqInplaceRepeat MpSetItems MpRemoveItems
// Reverse Sort IndexBy CountOf EnsureCapacity
constexpr CollectionLayout generic_list = {
    .length = in_list(0),
    .contains = in_list(4),
    .count_of = in_list(19),
    .get_item = in_list(5),
    .get_item_no_check = in_list(6),
    .set_item = in_list(7),
    .set_item_no_check = in_list(8),
    .set_items = in_list(14),
    .add = in_list(1),
    .insert = in_list(9),
    .remove = in_list(2),
    .remove_at = in_list(10),
    .remove_items = in_list(15),
    .pop = in_list(11),
    .clear = in_list(3),
    .inplace_concat = in_list(12),
    .inplace_repeat = in_list(13),
    .reverse = in_list(16),
    .sort = in_list(17),
    .index_by = in_list(18),
    .ensure_capacity = in_list(20),
};

constexpr CollectionLayout blocks_by_lowest(CollectionLayout layout) {
    layout.removes_blocks_by_lowest = true;
    return layout;
}
constexpr CollectionLayout array_list = blocks_by_lowest(generic_list);

// Array, with and without element type: SqLength SqContains SqGetItem SqGetItemNoCheck SqSetItem
// SqSetItemNoChek MpSetItems Reverse Sort IndexBy CountOf
constexpr CollectionLayout array = {
    .length = in_list(0),
    .contains = in_list(1),
    .count_of = in_list(10),
    .get_item = in_list(2),
    .get_item_no_check = in_list(3),
    .set_item = in_list(4),
    .set_item_no_check = in_list(5),
    .set_items = in_list(6),
    .reverse = in_list(7),
    .sort = in_list(8),
    .index_by = in_list(9),
};

// ICol: SqLength Add Remove Clear SqInplaceConcat SqInplaceRepeat SqContains CountOf
constexpr CollectionLayout generic_collection = {
    .length = in_collection(0),
    .contains = in_collection(6),
    .count_of = in_collection(7),
    .add = in_collection(1),
    .remove = in_collection(2),
    .clear = in_collection(3),
    .inplace_concat = in_collection(4),
    .inplace_repeat = in_collection(5),
};

// IList: SqGetItem SqGetItemNoCheck SqSetItem SqSetItemNoChek Insert RemoveAt Pop SqInplaceConcat
// SqInplaceRepeat MpSetItems MpRemoveItems Reverse Sort IndexBy CountOf; the rest from ICol.
constexpr CollectionLayout generic_ilist = {
    .length = in_collection(0),
    .contains = in_collection(6),
    .count_of = in_list(14),
    .get_item = in_list(0),
    .get_item_no_check = in_list(1),
    .set_item = in_list(2),
    .set_item_no_check = in_list(3),
    .set_items = in_list(9),
    .add = in_collection(1),
    .insert = in_list(4),
    .remove = in_collection(2),
    .remove_at = in_list(5),
    .remove_items = in_list(10),
    .pop = in_list(6),
    .clear = in_collection(3),
    .inplace_concat = in_list(7),
    .inplace_repeat = in_list(8),
    .reverse = in_list(11),
    .sort = in_list(12),
    .index_by = in_list(13),
};

// IRoCol: SqLength SqContains CountOf
constexpr CollectionLayout read_only_collection = {
    .length = in_collection(0),
    .contains = in_collection(1),
    .count_of = in_collection(2),
};

// IRoList: SqGetItem SqGetItemNoCheck SqContains IndexBy CountOf; the length from IRoCol.
constexpr CollectionLayout read_only_list = {
    .length = in_collection(0),
    .contains = in_list(2),
    .count_of = in_list(4),
    .get_item = in_list(0),
    .get_item_no_check = in_list(1),
    .index_by = in_list(3),
};

// The framework's ICollection, which has no operations of change, and IList: SqGetItem
// SqGetItemNoCheck SqSetItem SqSetItemNoCheck Add Insert Remove RemoveAt Pop Clear SqInplaceConcat
// SqInplaceRepeat MpSetItems MpRemoveItems Reverse Sort IndexBy SqContains CountOf; the length from
// ICollection. Values cross as variants.
constexpr CollectionLayout any_collection = read_only_collection;
constexpr CollectionLayout any_list = {
    .length = in_collection(0),
    .contains = in_list(17),
    .count_of = in_list(18),
    .get_item = in_list(0),
    .get_item_no_check = in_list(1),
    .set_item = in_list(2),
    .set_item_no_check = in_list(3),
    .set_items = in_list(12),
    .add = in_list(4),
    .insert = in_list(5),
    .remove = in_list(6),
    .remove_at = in_list(7),
    .remove_items = in_list(13),
    .pop = in_list(8),
    .clear = in_list(9),
    .inplace_concat = in_list(10),
    .inplace_repeat = in_list(11),
    .reverse = in_list(14),
    .sort = in_list(15),
    .index_by = in_list(16),
};

constexpr CollectionLayout nothing = {};

} // namespace layout

#endif
