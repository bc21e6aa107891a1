// host/object_host.h: what every managed object and struct can do, whatever its class.
#ifndef KORVAN_HOST_OBJECT_HOST_H
#define KORVAN_HOST_OBJECT_HOST_H

#include "contract/records.h"

#include <cstdint>
#include <string>

class HostEnvironment;

class ObjectHost {
public:
    // Binds on first use; the exchange host must be initialised by then. A failed binding stays.
    static ObjectHost& get_instance();

    bool is_not_valid() const { return m_is_not_valid; }
    const std::string& error_msg() const { return m_error_msg; }

    // 1 when *out_text holds a new Python string.
    int to_string_of_obj(void* handle, void** out_text) const {
        return m_str_obj(handle, out_text);
    }
    int to_string_of_stc(void* handle, void** out_text) const {
        return m_str_stc(handle, out_text);
    }
    int get_hash_code_of_obj(void* handle) const { return m_hash_obj(handle); }
    int get_hash_code_of_stc(void* handle) const { return m_hash_stc(handle); }
    bool equals_of_obj(void* handle, VariantArg* other) const {
        return m_eq_obj(handle, other) != 0;
    }
    bool equals_of_stc(void* handle, VariantArg* other) const {
        return m_eq_stc(handle, other) != 0;
    }
    int is_type_of(void* handle, VariantArg* type) const { return m_is_type_of(handle, type); }
    int get_type_name(VariantArg* object, void** out_text) const {
        return m_get_type_name(object, out_text);
    }
    // 0 with a pending exception is a failure; *out_type is a handle of a managed type.
    int get_obj_type(void* handle, void** out_type) const { return m_obj_type(handle, out_type); }
    int get_stc_type(void* handle, void** out_type) const { return m_stc_type(handle, out_type); }
    void dispose(void* handle) const { m_dispose(handle); }

private:
    ObjectHost();
    bool set_method_ptr(const HostEnvironment& environment, const char* method, void** slot);

    int (*m_str_obj)(void*, void**) = nullptr;
    int (*m_str_stc)(void*, void**) = nullptr;
    int (*m_hash_obj)(void*) = nullptr;
    int (*m_hash_stc)(void*) = nullptr;
    std::uint8_t (*m_eq_obj)(void*, VariantArg*) = nullptr;
    std::uint8_t (*m_eq_stc)(void*, VariantArg*) = nullptr;
    int (*m_is_type_of)(void*, VariantArg*) = nullptr;
    int (*m_get_type_name)(VariantArg*, void**) = nullptr;
    int (*m_obj_type)(void*, void**) = nullptr;
    int (*m_stc_type)(void*, void**) = nullptr;
    void (*m_dispose)(void*) = nullptr;
    const char* m_assembly_name = nullptr;
    bool m_is_not_valid = false;
    std::string m_error_msg;
};

#endif
