#include "host/object_host.h"

#include "host/exchange_host.h"
#include "host/host_environment.h"
#include "host/utils.h"

static constexpr const char* type_name = "Korvan.WrpGen.Interop.ObjectHost";

ObjectHost& ObjectHost::get_instance() {
    static ObjectHost host;
    return host;
}

ObjectHost::ObjectHost() : m_assembly_name(ExchangeHost::get_instance().get_assembly_name()) {
    const HostEnvironment& environment =
        HostEnvironment::instance(nullptr, false, nullptr, nullptr, nullptr, nullptr);
    const auto bind = [&](const char* method, auto& slot) {
        return set_method_ptr(environment, method, reinterpret_cast<void**>(&slot));
    };
    const bool bound = bind("ToStringOfObj", m_str_obj) && bind("ToStringOfStc", m_str_stc) &&
                       bind("GetHashOfObj", m_hash_obj) && bind("GetHashOfStc", m_hash_stc) &&
                       bind("IsEqualsOfObj", m_eq_obj) && bind("IsEqualsOfStc", m_eq_stc) &&
                       bind("IsTypeOf", m_is_type_of) && bind("GetTypeName", m_get_type_name) &&
                       bind("GetObjType", m_obj_type) && bind("GetStcType", m_stc_type) &&
                       bind("Dispose", m_dispose);
    m_is_not_valid = !bound;
}

bool ObjectHost::set_method_ptr(const HostEnvironment& environment, const char* method,
                                void** slot) {
    const int result = environment.try_create_delegate(m_assembly_name, type_name, method, slot);
    if (result == 0) {
        return true;
    }
    missing_method_error_message(m_assembly_name, type_name, method, result).swap(m_error_msg);
    return false;
}
