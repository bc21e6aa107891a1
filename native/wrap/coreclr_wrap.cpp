#include "wrap/coreclr_wrap.h"

#include "contract/status.h"
#include "wrap/fork_guard.h"
#include "wrap/process_guard.h"

#include <dlfcn.h>
#include <unistd.h>
#include <vector>

namespace {

// The hosting interface, as the runtime exports it.
using CoreclrInitialize = int (*)(const char*, const char*, int, const char**, const char**, void**,
                                  unsigned int*);
using CoreclrCreateDelegate = int (*)(void*, unsigned int, const char*, const char*, const char*,
                                      void**);
using CoreclrShutdown = int (*)(void*, unsigned int, int*);

struct Runtime {
    CoreclrInitialize initialize = nullptr;
    CoreclrCreateDelegate create_delegate = nullptr;
    CoreclrShutdown shutdown = nullptr;
    void* host = nullptr;
    unsigned int domain = 0;
    pid_t owner = 0; // the process that started the runtime; 0 before and after
    bool is_up = false;
};

Runtime runtime;

// Settings of the runtime that belong to embedding it, not to one application:
// text needs no culture data, and a library called from one thread needs no collector thread.
struct Setting {
    const char* key;
    const char* value;
};
constexpr Setting settings[] = {
    {"System.Globalization.Invariant", "true"},
    {"System.Globalization.PredefinedCulturesOnly", "false"},
    {"System.GC.Concurrent", "false"},
    {"System.Runtime.TieredPGO", "0"},
};

template <class Function> bool resolve(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

} // namespace

int coreclr_wrap_load(const char* libcoreclr_path) {
    void* library = dlopen(libcoreclr_path, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        return 0;
    }
    const bool complete = resolve(library, "coreclr_initialize", runtime.initialize) &&
                          resolve(library, "coreclr_create_delegate", runtime.create_delegate) &&
                          resolve(library, "coreclr_shutdown_2", runtime.shutdown);
    return complete ? 1 : 0;
}

int coreclr_wrap_initialize(const char* exe_path, const char* app_domain_name, int property_count,
                            const char** property_keys, const char** property_values) {
    if (runtime.initialize == nullptr) {
        return KORVAN_WRAP_NOT_LOADED;
    }
    if (runtime.is_up) {
        return 0;
    }
    std::vector<const char*> keys(property_keys, property_keys + property_count);
    std::vector<const char*> values(property_values, property_values + property_count);
    for (const Setting& setting : settings) {
        keys.push_back(setting.key);
        values.push_back(setting.value);
    }
    const korvan::ScopedRuntimeVariables variables;
    const korvan::ScopedSignalDispositions dispositions;
    const int status =
        runtime.initialize(exe_path, app_domain_name, static_cast<int>(keys.size()), keys.data(),
                           values.data(), &runtime.host, &runtime.domain);
    if (status == 0) {
        runtime.is_up = true;
        runtime.owner = getpid();
        korvan::guard_forks();
    }
    return status;
}

int coreclr_wrap_create_delegate(const char* assembly_name, const char* type_name,
                                 const char* method_name, void** delegate) {
    // The runtime crashes when it is asked after its shutdown.
    if (!runtime.is_up) {
        return runtime.create_delegate == nullptr ? KORVAN_WRAP_NOT_LOADED : KORVAN_WRAP_SHUT_DOWN;
    }
    return runtime.create_delegate(runtime.host, runtime.domain, assembly_name, type_name,
                                   method_name, delegate);
}

int coreclr_wrap_shutdown() {
    if (!runtime.is_up) {
        return KORVAN_WRAP_SHUT_DOWN;
    }
    runtime.is_up = false;
    // A forked child has none of the runtime's threads; a shutdown would wait for them for ever.
    if (runtime.owner != getpid()) {
        return 0;
    }
    int exit_code = 0;
    const int status = runtime.shutdown(runtime.host, runtime.domain, &exit_code);
    return status != 0 ? status : exit_code;
}

int coreclr_wrap_is_domain_initialized() { return runtime.is_up ? 1 : 0; }
