#include "host/host_record.h"

#include "host/exchange_host.h"
#include "host/host_environment.h"
#include "host/utils.h"

#include <cstring>

void bind_host(HostRecord& host) {
    const char* assembly = ExchangeHost::get_instance().get_assembly_name();
    const HostEnvironment& environment =
        HostEnvironment::instance(nullptr, false, nullptr, nullptr, nullptr, nullptr);
    void** slot = host.slots;
    for (const char* method = host.delegates; *method != '\0'; method += std::strlen(method) + 1) {
        const int status = environment.try_create_delegate(assembly, host.class_name, method, slot);
        if (status != 0) {
            host.error = new std::string(
                missing_method_error_message(assembly, host.class_name, method, status));
            host.state = HostBinding::not_valid;
            return;
        }
        ++slot;
    }
    host.state = HostBinding::bound;
}
