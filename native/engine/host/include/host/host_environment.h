// host/host_environment.h: finds, loads and starts the managed runtime and hands out delegates.
//
// The runtime is never spoken to directly: a wrap library carries its hosting interface, so that
// several extension modules of one process share one runtime. The first to load that library
// starts the runtime and alone shuts it down; the others attach.
#ifndef KORVAN_HOST_HOST_ENVIRONMENT_H
#define KORVAN_HOST_HOST_ENVIRONMENT_H

#include "host/dynamic_library.h"

#include <string>
#include <vector>

extern "C" {
__attribute__((visibility("default"))) extern const char* KorvanDomainName;
__attribute__((visibility("default"))) extern const char* HostNotReady;
}

class HostEnvironment {
public:
    // The first call starts everything and must carry real arguments; it throws when the host
    // can't start. Later calls pass nulls and false and return at once.
    static HostEnvironment& instance(const char* host_tag, bool is_debug, const char* env_suffix,
                                     const char* product_tag, const char* netcore_dir,
                                     const char* assembly_dir);

    // Joins the runtime that another module of the process started, whatever the environment says
    // by now. False if there is none; throws as above.
    static bool join_running();

    HostEnvironment(const HostEnvironment&) = delete;
    HostEnvironment& operator=(const HostEnvironment&) = delete;
    ~HostEnvironment();

    // True when this call created the domain. Throws CoreClrInitException.
    bool create_default_app_domain();
    // 0 on success, else the status of the wrap library.
    int try_create_delegate(const char* assembly_name, const char* type_name,
                            const char* method_name, void** delegate) const;
    // 0 when the runtime was shut down here, else -1.
    int try_shutdown_default_app_domain();
    const char* get_libcoreclr_wrap_name() const;
    void complete_app_folders(std::vector<std::string>& folders, const std::string& folder);

private:
    HostEnvironment() = default;
    void initialize(const char* host_tag, bool is_debug, const char* env_suffix,
                    const char* product_tag, const char* netcore_dir, const char* assembly_dir);
    void choose_netcore_dir(const char* env_suffix, const char* netcore_dir,
                            const std::string& exe_dir);
    void choose_assembly_dirs(const char* env_suffix, const char* assembly_dir,
                              const std::string& exe_dir);
    void load_wrap_library();
    void* resolve(const char* name) const;

    using WrapLoad = int (*)(const char*);
    using WrapInitialize = int (*)(const char*, const char*, int, const char**, const char**);
    using WrapCreateDelegate = int (*)(const char*, const char*, const char*, void**);
    using WrapShutdown = int (*)();
    using WrapIsDomainInitialized = int (*)();

    std::string m_exe_path;
    std::string m_netcore_dir;
    std::string m_product_assembly_dirs;
    DynamicLibrary m_wrap_library;
    WrapInitialize m_wrap_initialize = nullptr;
    WrapCreateDelegate m_wrap_create_delegate = nullptr;
    WrapShutdown m_wrap_shutdown = nullptr;
    WrapIsDomainInitialized m_wrap_is_domain_initialized = nullptr;
    bool m_is_domain_ready = false;
    bool m_is_debug = false;
};

#endif
