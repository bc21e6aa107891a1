#include "host/exchange_host.h"

#include "host/host_environment.h"
#include "host/utils.h"

static constexpr const char* type_name = "Korvan.WrpGen.Interop.ExchangeHost";

bool ExchangeHost::set_method_ptr(const HostEnvironment& environment, const char* method,
                                  void** slot) {
    const int result = environment.try_create_delegate(m_assembly_name, type_name, method, slot);
    if (result == 0) {
        return true;
    }
    missing_method_error_message(m_assembly_name, type_name, method, result).swap(m_error_msg);
    return false;
}

bool ExchangeHost::initialize(const char* assembly_name) {
    m_assembly_name = assembly_name;
    const HostEnvironment& environment =
        HostEnvironment::instance(nullptr, false, nullptr, nullptr, nullptr, nullptr);
    const auto bind = [&](const char* method, auto& slot) {
        return set_method_ptr(environment, method, reinterpret_cast<void**>(&slot));
    };
    // A missing method is reported in this order: the unraisable builder before the plain one.
    return bind("GetTypeName", m_get_type_name) && bind("SetExceptionCallback", m_set_exception) &&
           bind("SetCatchAndClearErrorCallback", m_set_catch_and_clear) &&
           bind("SetU16StrBuilderCallback", m_set_u16_builder) &&
           bind("SetPyUnraisableStrBuilderCallback", m_set_unraisable_builder) &&
           bind("SetPyStrBuilderCallback", m_set_py_str_builder) &&
           bind("SetPyBytesBuilderCallback", m_set_py_bytes_builder) &&
           bind("SetPyObjApiCallbacks", m_set_obj_api) &&
           bind("SetPyStaticCallbacks", m_set_static) &&
           bind("SetPyGenericCallbacks", m_set_generic) &&
           bind("FreePendingArgs", m_free_pending_args) && bind("FreeInstance", m_free_instance) &&
           bind("FreeInstance", m_free_struct) && bind("InitServices", m_init_services) &&
           bind("BoxStcTarget", m_box_stc_target);
}
