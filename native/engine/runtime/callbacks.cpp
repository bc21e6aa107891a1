#include "runtime/callbacks.h"

#include "host/exchange_host.h"
#include "host/host_environment.h"
#include "host/object_host.h"
#include "runtime/buffers.h"
#include "runtime/dates.h"
#include "runtime/decimals.h"
#include "runtime/exception_bridge.h"
#include "runtime/numbers.h"
#include "runtime/strings.h"
#include "runtime/types_map.h"
#include "runtime/variant.h"

PyObject* fn_get_py_none() { return Py_None; }
void fn_xinc_ref(PyObject* object) { Py_XINCREF(object); }
void fn_xdec_ref(PyObject* object) { Py_XDECREF(object); }

namespace {

template <class Function> void* slot(Function* function) {
    return reinterpret_cast<void*>(function);
}

// The slots of all tables in a row, and where each table begins.
void* all_slots[] = {
#define KORVAN_SLOT(table, function) slot(function),
#include "contract/callbacks.def"
};

enum SlotIndex {
#define KORVAN_SLOT(table, function) index_of_##function,
#include "contract/callbacks.def"
};

void** tables[] = {
    &all_slots[index_of_fn_read_py_string],       &all_slots[index_of_fn_write_py_tpo],
    &all_slots[index_of_fn_get_sizeof_py_byffer], &all_slots[index_of_fn_try_write_py_tpo],
    &all_slots[index_of_fn_clbk_iter_next],       &all_slots[index_of_fn_clbk_ucol_list_length],
    &all_slots[index_of_fn_clbk_olist_get_item],  &all_slots[index_of_fn_clbk_oseq_get_item],
    &all_slots[index_of_fn_clbk_rawio_write],
};

const void* const* generic_tables = nullptr;

bool fail(const std::string& message) {
    PyErr_SetString(PyExc_TypeError, message.c_str());
    return false;
}

bool bind_exchange_host(const char* assembly_name) {
    ExchangeHost& exchange = ExchangeHost::get_instance();
    if (!exchange.initialize(assembly_name)) {
        return fail(exchange.error_msg());
    }
    exchange.set_exception_callback(slot(on_clr_exception));
    exchange.set_catch_and_clear_error_callback(slot(fn_catch_and_clear_py_error));
    exchange.set_u16_bytes_builder_callback(slot(fn_create_u16_buffer));
    exchange.set_py_str_builder_callback(slot(fn_conv_clr_string_to_py_string));
    exchange.set_py_unraisable_str_builder(slot(fn_conv_clr_string_to_py_unraisable));
    exchange.set_py_obj_api_callbacks(m_py_obj_api_callbacks);
    exchange.set_py_static_callbacks(get_all_py_wrapper_callbacks());
    exchange.set_py_generic_callbacks(get_all_pygn_generic_callbacks());
    exchange.set_py_bytes_builder_callback(slot(fn_conv_clr_bytes_to_py_bytes));
    exchange.init_services();
    return true;
}

} // namespace

void* m_py_obj_api_callbacks[3] = {slot(fn_get_py_none), slot(fn_xinc_ref), slot(fn_xdec_ref)};

void*** get_all_py_wrapper_callbacks() { return tables; }

const void* const* get_all_pygn_generic_callbacks() { return generic_tables; }

int initialize_clr_host(const char* host_tag, const char* assembly_name, bool is_debug,
                        const char* env_suffix, const char* product_tag,
                        const void* const* generic_callbacks) {
    generic_tables = generic_callbacks;
    HostEnvironment::instance(host_tag, is_debug, env_suffix, product_tag, nullptr, nullptr);
    if (!bind_exchange_host(assembly_name)) {
        return -1;
    }
    const ObjectHost& object = ObjectHost::get_instance();
    return !object.is_not_valid() || fail(object.error_msg()) ? 0 : -1;
}
