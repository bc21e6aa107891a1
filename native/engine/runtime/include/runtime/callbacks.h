// runtime/callbacks.h: the tables of native functions that the managed side calls.
#ifndef KORVAN_RUNTIME_CALLBACKS_H
#define KORVAN_RUNTIME_CALLBACKS_H

#include "runtime/py_base.h"

extern void* m_py_obj_api_callbacks[3];
// Nine tables in contract order.
void*** get_all_py_wrapper_callbacks();
// The typed tables of generic collections, in the order of the element list.
const void* const* get_all_pygn_generic_callbacks();

// Starts the runtime, binds the exchange host, registers every callback, calls InitServices and
// binds the object host. 0, or -1 with a Python exception. Throws when the host can't start.
// `generic_callbacks` are those of the module's bound tree.
int initialize_clr_host(const char* host_tag, const char* assembly_name, bool is_debug,
                        const char* env_suffix, const char* product_tag,
                        const void* const* generic_callbacks = nullptr);

PyObject* fn_get_py_none();
void fn_xinc_ref(PyObject* object);
void fn_xdec_ref(PyObject* object);

// Iteration: 0 item (its reference in *keep), 1 end, 2 error.
int fn_clbk_iter_next(PyObject* iterator, PyObject** keep, VariantArg* out);

// Any Python collection.
int fn_clbk_ucol_list_length(PyObject* list);
long fn_clbk_ucol_list_longlength(PyObject* list);
int fn_clbk_ucol_remove_at(PyObject* object, int index);
int fn_clbk_ucol_clear(PyObject* object);
int fn_clbk_ucol_sequence_length(PyObject* sequence);
long fn_clbk_ucol_sequence_longlength(PyObject* sequence);
PyObject* fn_clbk_ucol_get_enumerator(PyObject* object);
int fn_clbk_ucol_object_length(PyObject* object);
PyObject** fn_clbk_ucol_create_fast_list(int count, PyObject** out);
PyObject** fn_clbk_ucol_create_fast_longlist(long count, PyObject** out);

// A list seen as a managed list. A value is a new reference that the slot consumes.
int fn_clbk_olist_get_item(PyObject* list, int index, VariantArg* out);
int fn_clbk_olist_set_item(PyObject* list, int index, PyObject* value);
int fn_clbk_olist_add(PyObject* list, PyObject* value);
int fn_clbk_olist_insert(PyObject* list, int index, PyObject* value);
int fn_clbk_olist_remove(PyObject* list, PyObject* value);
int fn_clbk_olist_contains(PyObject* list, PyObject* value);
int fn_clbk_olist_index_of(PyObject* list, PyObject* value);
void fn_clbk_olist_set_fast_item(PyObject** items, int index, PyObject* value);
PyObject* fn_clbk_olist_write_clr_ilist(void* handle);
PyObject* fn_clbk_olist_write_clr_arrlist(void* handle);
PyObject* fn_clbk_olist_write_clr_array(void* handle);
// The wrapper types of the three slots above; set when the wrappers are built.
extern PyTypeObject* fn_clbk_ilist_type;
extern PyTypeObject* fn_clbk_arrlist_type;
extern PyTypeObject* fn_clbk_array_type;

// Any sequence, read-only.
int fn_clbk_oseq_get_item(PyObject* sequence, int index, VariantArg* out);
int fn_clbk_oseq_contains(PyObject* sequence, PyObject* value);
int fn_clbk_oseq_index_of(PyObject* sequence, PyObject* value);

// A file object seen as a managed stream.
extern PyTypeObject wrpPye_tyds_ShlBufferView;
PyObject* fn_create_shlbuffer_view(void* memory, long length, int read_only);
int fn_clbk_rawio_write(PyObject* stream, const unsigned char* data, int count);
int fn_clbk_rawio_write_byte(PyObject* stream, int byte);
int fn_clbk_rawio_read(PyObject* stream, unsigned char* data, int count);
int fn_clbk_rawio_readbyte(PyObject* stream);
long fn_clbk_rawio_seek(PyObject* stream, long offset, int whence);
int fn_clbk_rawio_truncate(PyObject* stream, long size);
int fn_clbk_rawio_flush(PyObject* stream);
void fn_clbk_rawio_close(PyObject* stream);
int fn_clbk_rawio_readable(PyObject* stream);
int fn_clbk_rawio_writable(PyObject* stream);
int fn_clbk_rawio_seekable(PyObject* stream);
long fn_clbk_rawio_tell(PyObject* stream);
long fn_clbk_rawio_length(PyObject* stream);

#endif
