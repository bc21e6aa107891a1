// What modules of different builds agree on: a change of any of these needs a new version of the
// family. Records state their sizes and offsets themselves. There is nothing to run: it compiles,
// or names what moved.
#include "contract/records.h"
#include "contract/status.h"

namespace {

static_assert(offsetof(VariantArg, reserved) == 4 && offsetof(PyCollectionArg, reserved) == 4);
static_assert(alignof(VariantArg) == 8 && alignof(PySysVersionArg) == 4 &&
              alignof(PyDecimalArg) == 4);

static_assert(KORVAN_REF_OBJECT == 0 && KORVAN_REF_STRUCT == 1 && KORVAN_REF_PYTHON == 2 &&
              KORVAN_REF_SEQUENCE == 3);
static_assert(KORVAN_VAR_NONE == 0 && KORVAN_VAR_OBJECT == 1 && KORVAN_VAR_STRUCT == 2 &&
              KORVAN_VAR_STRING == 3 && KORVAN_VAR_BUFFER == 4 && KORVAN_VAR_BOOL == 5);
static_assert(KORVAN_VAR_INT == 6 && KORVAN_VAR_FLOAT == 7 && KORVAN_VAR_DECIMAL == 8 &&
              KORVAN_VAR_DECIMAL_TUPLE == 9 && KORVAN_VAR_DATETIME == 10 && KORVAN_VAR_DATE == 11);
static_assert(KORVAN_VAR_TIME == 12 && KORVAN_VAR_TIMEDELTA == 13 && KORVAN_VAR_UUID == 14 &&
              KORVAN_VAR_LIST == 15 && KORVAN_VAR_TUPLE == 16);
static_assert(KORVAN_COL_PLAIN == 0 && KORVAN_COL_EXACT == 1 && KORVAN_COL_PYTHON == 2);
static_assert(KORVAN_FAILED == -1 && KORVAN_CAST_NO == 0 && KORVAN_CAST_DONE == 1);
static_assert(KORVAN_ITEM == 0 && KORVAN_END == 1 && KORVAN_OUT_OF_RANGE == 2);
static_assert(KORVAN_CB_OK == 0 && KORVAN_CB_ERROR == -1 && KORVAN_CB_INDEX_ERROR == -2);

// The slots of all tables in a row.
enum Slot : int {
#define KORVAN_SLOT(table, function) slot_##function,
#include "contract/callbacks.def"
    slot_count,
};
static_assert(slot_fn_read_py_string == 0 && slot_fn_read_py_guid == 10);
static_assert(slot_fn_write_py_tpo == 11 && slot_fn_write_py_decimal == 18 &&
              slot_fn_write_py_char == 24);
static_assert(slot_fn_get_sizeof_py_byffer == 25 && slot_fn_release_py_buffer == 28);
static_assert(slot_fn_try_write_py_tpo == 29 && slot_fn_clbk_iter_next == 30);
static_assert(slot_fn_clbk_ucol_list_length == 31 && slot_fn_clbk_ucol_get_unicode_bytes == 41);
static_assert(slot_fn_clbk_olist_get_item == 42 && slot_fn_clbk_olist_write_clr_array == 52);
static_assert(slot_fn_clbk_oseq_get_item == 53 && slot_fn_clbk_oseq_index_of == 55);
static_assert(slot_fn_clbk_rawio_write == 56 && slot_fn_clbk_rawio_length == 68 &&
              slot_count == 69);

} // namespace
