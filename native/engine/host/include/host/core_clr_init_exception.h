// host/core_clr_init_exception.h: a runtime that would not start, with all that it was given.
#ifndef KORVAN_HOST_CORE_CLR_INIT_EXCEPTION_H
#define KORVAN_HOST_CORE_CLR_INIT_EXCEPTION_H

#include <exception>
#include <string>

class CoreClrInitException : public std::exception {
public:
    CoreClrInitException(int error, const char* host_exe_path, const char* app_domain_name,
                         int property_count, const char** property_keys,
                         const char** property_values);
    const char* what() const noexcept override;

private:
    std::string m_message;
};

#endif
