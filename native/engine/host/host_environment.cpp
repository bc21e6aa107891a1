#include "host/host_environment.h"

#include "host/core_clr_init_exception.h"
#include "host/host_trace.h"
#include "host/pal.h"

#include <algorithm>
#include <stdexcept>

const char* KorvanDomainName = "KorvanCLRHostDomain";
const char* HostNotReady = "CLR Host is not ready";

namespace {

constexpr const char* wrap_release = "libkorvan.embed.coreclrwrap.so";
constexpr const char* wrap_debug = "libkorvan.embed.coreclrwrap.debug.so";
constexpr const char* runtime_library = "libcoreclr.so";

std::string variable_name(const char* stem, const char* suffix) {
    return std::string(stem) + "_" + suffix;
}

} // namespace

HostEnvironment& HostEnvironment::instance(const char* host_tag, bool is_debug,
                                           const char* env_suffix, const char* product_tag,
                                           const char* netcore_dir, const char* assembly_dir) {
    static HostEnvironment host;
    if (host.m_wrap_library.handle() != nullptr) {
        return host;
    }
    trace::initialize();
    host.initialize(host_tag, is_debug, env_suffix, product_tag, netcore_dir, assembly_dir);
    if (host.m_wrap_library.is_first_load()) {
        host.create_default_app_domain();
    } else {
        host.m_is_domain_ready = host.m_wrap_is_domain_initialized() != 0;
    }
    return host;
}

bool HostEnvironment::join_running() {
    std::string folder;
    if (!pal::get_loaded_library_folder(wrap_release, folder)) {
        return false;
    }
    instance("", false, nullptr, "", folder.c_str(), folder.c_str());
    return true;
}

HostEnvironment::~HostEnvironment() { try_shutdown_default_app_domain(); }

void HostEnvironment::initialize(const char* /*host_tag*/, bool is_debug, const char* env_suffix,
                                 const char* /*product_tag*/, const char* netcore_dir,
                                 const char* assembly_dir) {
    trace::info("Initializing .NET Core host...");
    m_exe_path = pal::get_entry_point_exe();
    m_is_debug = is_debug;
    const std::string exe_dir = pal::path_get_directory(m_exe_path);
    choose_netcore_dir(env_suffix, netcore_dir, exe_dir);
    trace::info("NETCORE_DIR: '%s'", m_netcore_dir.c_str());
    choose_assembly_dirs(env_suffix, assembly_dir, exe_dir);
    trace::info("PRODUCT_ASSEMBLY_DIR: '%s'", m_product_assembly_dirs.c_str());
    load_wrap_library();
    trace::info(".NET Core host ready.");
}

void HostEnvironment::choose_netcore_dir(const char* env_suffix, const char* netcore_dir,
                                         const std::string& exe_dir) {
    if (netcore_dir != nullptr) {
        m_netcore_dir = netcore_dir;
        return;
    }
    const std::string variable = variable_name("NETCORE_WRAPPER_NETCORE_DIR", env_suffix);
    std::string found;
    if (pal::getenv(variable.c_str(), m_netcore_dir) &&
        pal::get_major_netcore_path(m_netcore_dir, wrap_release, found)) {
        m_netcore_dir = found;
    } else {
        m_netcore_dir = exe_dir;
    }
}

void HostEnvironment::choose_assembly_dirs(const char* env_suffix, const char* assembly_dir,
                                           const std::string& exe_dir) {
    std::vector<std::string> folders;
    std::string value;
    if (assembly_dir != nullptr) {
        folders.emplace_back(assembly_dir);
    } else if (pal::getenv(variable_name("NETCORE_WRAPPER_ASSEMBLY_DIR", env_suffix).c_str(),
                           value)) {
        pal::get_app_folders(value, m_is_debug, folders);
    } else {
        folders.push_back(exe_dir);
    }
    complete_app_folders(folders, m_netcore_dir);
    m_product_assembly_dirs = pal::join(folders, ':', false);
}

void HostEnvironment::load_wrap_library() {
    const std::string name = get_libcoreclr_wrap_name();
    const std::string path = pal::build_path(m_netcore_dir, name);
    trace::verbose("Loading: '%s'", path.c_str());
    m_wrap_library = DynamicLibrary::load(path, name);
    trace::info("wrap dll loaded");
    m_wrap_library.set_can_free(false);
    m_wrap_initialize = reinterpret_cast<WrapInitialize>(resolve("coreclr_wrap_initialize"));
    m_wrap_create_delegate =
        reinterpret_cast<WrapCreateDelegate>(resolve("coreclr_wrap_create_delegate"));
    m_wrap_shutdown = reinterpret_cast<WrapShutdown>(resolve("coreclr_wrap_shutdown"));
    m_wrap_is_domain_initialized =
        reinterpret_cast<WrapIsDomainInitialized>(resolve("coreclr_wrap_is_domain_initialized"));
    if (m_wrap_library.is_first_load()) {
        const auto load = reinterpret_cast<WrapLoad>(resolve("coreclr_wrap_load"));
        const std::string runtime = pal::build_path(m_netcore_dir, runtime_library);
        trace::verbose("Loading2: '%s'", runtime.c_str());
        if (load(runtime.c_str()) == 0) {
            throw std::runtime_error("init coreclr wap");
        }
    }
}

void* HostEnvironment::resolve(const char* name) const {
    if (m_wrap_library.handle() == nullptr) {
        throw std::logic_error("Library was not opened!");
    }
    void* symbol = pal::get_symbol(m_wrap_library.handle(), name);
    if (symbol == nullptr) {
        throw std::runtime_error(std::string("No such symbol: ") + name);
    }
    return symbol;
}

bool HostEnvironment::create_default_app_domain() {
    if (m_is_domain_ready) {
        return false;
    }
    trace::info("Creating default AppDomain...");
    const char* folders = m_product_assembly_dirs.c_str();
    trace::verbose("APP_PATH: '%s'", folders);
    trace::verbose("APP_NI_PATHS: '%s'", folders);
    trace::verbose("NATIVE_DLL_SEARCH_DIRECTORIES: '%s'", folders);
    const char* keys[] = {"TRUSTED_PLATFORM_ASSEMBLIES", "APP_PATHS", "APP_NI_PATHS",
                          "NATIVE_DLL_SEARCH_DIRECTORIES", "AppDomainCompatSwitch"};
    const char* values[] = {"", folders, folders, folders, "UseLatestBehaviorWhenTFMNotSpecified"};
    trace::verbose("HOST_EXE_PATH: '%s'", m_exe_path.c_str());
    const int status = m_wrap_initialize(m_exe_path.c_str(), KorvanDomainName, 5, keys, values);
    if (status != 0) {
        throw CoreClrInitException(status, m_exe_path.c_str(), KorvanDomainName, 5, keys, values);
    }
    m_is_domain_ready = true;
    trace::info("Default AppDomain ready.");
    return true;
}

int HostEnvironment::try_create_delegate(const char* assembly_name, const char* type_name,
                                         const char* method_name, void** delegate) const {
    return m_wrap_create_delegate(assembly_name, type_name, method_name, delegate);
}

int HostEnvironment::try_shutdown_default_app_domain() {
    if (m_wrap_shutdown == nullptr || !m_is_domain_ready) {
        return -1;
    }
    if (m_wrap_library.handle() == nullptr || !m_wrap_library.is_first_load()) {
        m_is_domain_ready = false;
        return -1;
    }
    trace::info("Shutdowning .NET Core host...");
    const int result = m_wrap_shutdown();
    trace::info(".NET Core host is down: %d", result);
    m_is_domain_ready = false;
    return 0;
}

const char* HostEnvironment::get_libcoreclr_wrap_name() const {
    return m_is_debug ? wrap_debug : wrap_release;
}

void HostEnvironment::complete_app_folders(std::vector<std::string>& folders,
                                           const std::string& folder) {
    if (std::find(folders.begin(), folders.end(), folder) == folders.end()) {
        folders.push_back(folder);
    }
}
