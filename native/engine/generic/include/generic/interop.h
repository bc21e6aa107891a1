// generic/interop.h: wrappers of the framework's own collections, streams and disposal.
//
// Values cross these as variants; the typed wrappers of generic collections are generated.
#ifndef KORVAN_GENERIC_INTEROP_H
#define KORVAN_GENERIC_INTEROP_H

#include "bindings/tables.h"

extern ClassBinding wrpPye_tyds_IDisposableWrapper;
extern ClassBinding wrpPye_tyds_IterWrapper;
extern ClassBinding wrpPye_tyds_IterableWrapper;
extern ClassBinding wrpPye_tyds_IColWrapper;
extern ClassBinding wrpPye_tyds_IListWrapper;
extern ClassBinding wrpPye_tyds_RoColBaseWrapper;
extern ClassBinding wrpPye_tyds_ColBaseWrapper;
extern ClassBinding wrpPye_tyds_ArrayWrapper;
extern ClassBinding wrpPye_tyds_ArrListWrapper;
extern ClassBinding wrpPye_tyds_StreamWrapper;

// In the order in which the module readies them; ended by null.
ClassBinding* const* interop_wrappers();

// Collections of bound classes that implement these interfaces.
extern const CollectionInfo any_iterable_info;
extern const CollectionInfo any_collection_info;
extern const CollectionInfo any_list_info;

#endif
