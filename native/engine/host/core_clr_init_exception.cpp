#include "host/core_clr_init_exception.h"

#include <sstream>

CoreClrInitException::CoreClrInitException(int error, const char* host_exe_path,
                                           const char* app_domain_name, int property_count,
                                           const char** property_keys,
                                           const char** property_values) {
    std::ostringstream text;
    text << "coreclr_initialize failed (0x" << std::hex << error << ")";
    text << " [<APP_DOMAIN_NAME>='" << app_domain_name << "',<HOST_EXE_PATH>='" << host_exe_path
         << "'";
    for (int i = 0; i < property_count; ++i) {
        text << ",<" << property_keys[i] << ">='" << property_values[i] << "'";
    }
    text << "]";
    m_message = text.str();
}

const char* CoreClrInitException::what() const noexcept { return m_message.c_str(); }
