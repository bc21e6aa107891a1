// host/exchange_host.h: the first managed class that a module binds, and how the two sides meet.
#ifndef KORVAN_HOST_EXCHANGE_HOST_H
#define KORVAN_HOST_EXCHANGE_HOST_H

#include "contract/records.h"

#include <string>

class HostEnvironment;

class ExchangeHost {
public:
    static ExchangeHost& get_instance() {
        static ExchangeHost host;
        return host;
    }

    // Binds everything in the fixed order; false at the first method that is missing.
    bool initialize(const char* assembly_name);
    const char* get_assembly_name() const { return m_assembly_name; }
    const std::string& error_msg() const { return m_error_msg; }

    // A std::u16string made through the UTF-16 builder; the holder goes back with free().
    void* get_type_name(void* handle) const { return m_get_type_name(handle); }
    void set_exception_callback(void* callback) const { m_set_exception(callback); }
    void set_catch_and_clear_error_callback(void* callback) const {
        m_set_catch_and_clear(callback);
    }
    void set_u16_bytes_builder_callback(void* callback) const { m_set_u16_builder(callback); }
    void set_py_str_builder_callback(void* callback) const { m_set_py_str_builder(callback); }
    void set_py_unraisable_str_builder(void* callback) const { m_set_unraisable_builder(callback); }
    void set_py_bytes_builder_callback(void* callback) const { m_set_py_bytes_builder(callback); }
    void set_py_obj_api_callbacks(void** table) const { m_set_obj_api(table); }
    void set_py_static_callbacks(void*** table) const { m_set_static(table); }
    void set_py_generic_callbacks(const void* const* table) const { m_set_generic(table); }
    void free_pending_args(VariantArg* args, int count) const { m_free_pending_args(args, count); }
    void free_instance(void* handle) const { m_free_instance(handle); }
    void free_struct(void* handle) const { m_free_struct(handle); }
    void init_services() const { m_init_services(); }
    // A new handle: the boxed form of the struct behind `handle`.
    void* box_stc_target(void* handle) const { return m_box_stc_target(handle); }

private:
    using Setter = void (*)(void*);

    ExchangeHost() = default;
    bool set_method_ptr(const HostEnvironment& environment, const char* method, void** slot);

    void* (*m_get_type_name)(void*) = nullptr;
    Setter m_set_exception = nullptr;
    Setter m_set_catch_and_clear = nullptr;
    Setter m_set_u16_builder = nullptr;
    Setter m_set_py_str_builder = nullptr;
    Setter m_set_unraisable_builder = nullptr;
    Setter m_set_py_bytes_builder = nullptr;
    void (*m_set_obj_api)(void**) = nullptr;
    void (*m_set_static)(void***) = nullptr;
    void (*m_set_generic)(const void* const*) = nullptr;
    void (*m_free_pending_args)(VariantArg*, int) = nullptr;
    void (*m_free_instance)(void*) = nullptr;
    void (*m_free_struct)(void*) = nullptr; // the same managed method as above, bound by itself
    void (*m_init_services)() = nullptr;
    void* (*m_box_stc_target)(void*) = nullptr;
    const char* m_assembly_name = nullptr;
    std::string m_error_msg;
};

#endif
