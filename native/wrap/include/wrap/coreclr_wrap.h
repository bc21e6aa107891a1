// wrap/coreclr_wrap.h: the five functions over the managed runtime's hosting interface.
//
// One process has one runtime. Whichever extension module loads this library first starts it; the
// library keeps the host handle and the domain identifier to itself.
#ifndef KORVAN_WRAP_CORECLR_WRAP_H
#define KORVAN_WRAP_CORECLR_WRAP_H

#define KORVAN_WRAP_API extern "C" __attribute__((visibility("default")))

// Loads the runtime library. Non-zero on success.
KORVAN_WRAP_API int coreclr_wrap_load(const char* libcoreclr_path);
// Starts the runtime with these properties and a few of the library's own. 0 on success.
KORVAN_WRAP_API int coreclr_wrap_initialize(const char* exe_path, const char* app_domain_name,
                                            int property_count, const char** property_keys,
                                            const char** property_values);
// A native-callable pointer to a static managed method. 0 on success.
KORVAN_WRAP_API int coreclr_wrap_create_delegate(const char* assembly_name, const char* type_name,
                                                 const char* method_name, void** delegate);
// Shuts the runtime down, once, and only in the process that started it.
KORVAN_WRAP_API int coreclr_wrap_shutdown();
// Non-zero while a domain is up.
KORVAN_WRAP_API int coreclr_wrap_is_domain_initialized();

#endif
