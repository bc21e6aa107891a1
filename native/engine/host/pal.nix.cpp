#include "host/pal.h"

#include "host/netcore_version.h"
#include "host/netcore_version_parser.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <dlfcn.h>
#include <fstream>
#include <link.h>
#include <memory>
#include <sstream>
#include <unistd.h>
#include <unordered_set>

namespace pal {

bool getenv(const char* name, std::string& value) {
    const char* found = ::getenv(name);
    if (found == nullptr) {
        value.clear();
        return false;
    }
    value = found;
    return !value.empty();
}

int to_int(const std::string& text) {
    return static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
}

bool is_file_exists(const std::string& path) {
    std::ifstream stream(path);
    return !stream.fail();
}

void path_append(std::string& path, const std::string& part) {
    if (path.empty()) {
        path = part;
        return;
    }
    path += '/';
    path += part;
}

std::string path_get_directory(const std::string& path) {
    const size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

bool path_is_relative(const std::string& path) { return path.empty() || path[0] != '/'; }

std::string get_entry_point_exe() {
    char buffer[4096];
    const ssize_t length = readlink("/proc/self/exe", buffer, sizeof(buffer) - 1);
    return length < 0 ? std::string() : std::string(buffer, static_cast<size_t>(length));
}

void* load_library(const std::string& path) { return dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL); }

void free_library(void* handle) { dlclose(handle); }

void* get_symbol(void* handle, const char* name) { return dlsym(handle, name); }

bool get_module(const std::string& path, void** handle) {
    *handle = dlopen(path.c_str(), RTLD_NOW | RTLD_NOLOAD);
    return *handle != nullptr;
}

bool get_loaded_library_folder(const std::string& file, std::string& folder) {
    struct Search {
        std::string ending;
        std::string& folder;
    } search = {'/' + file, folder};
    const auto visit = [](dl_phdr_info* library, size_t, void* data) {
        auto& wanted = *static_cast<Search*>(data);
        const std::string path = library->dlpi_name;
        if (!path.ends_with(wanted.ending)) {
            return 0;
        }
        wanted.folder = path_get_directory(path);
        return 1;
    };
    return dl_iterate_phdr(visit, &search) != 0;
}

namespace {

struct DirectoryCloser {
    void operator()(DIR* directory) const { closedir(directory); }
};

// Calls `visit` with the name of each real subdirectory; false if the directory can't be read.
template <class Visit> bool for_each_subdirectory(const std::string& directory, Visit visit) {
    const std::unique_ptr<DIR, DirectoryCloser> open(opendir(directory.c_str()));
    if (!open) {
        return false;
    }
    while (const dirent* entry = readdir(open.get())) {
        const std::string name = entry->d_name;
        if (entry->d_type == DT_DIR && name != "." && name != "..") {
            visit(name);
        }
    }
    return true;
}

// A slash is appended even behind one: paths made from a directory that was given with a trailing
// slash hold a doubled one, and installations compare these strings as they are.
std::string below(const std::string& directory, const std::string& name) {
    return directory + '/' + name;
}

} // namespace

void get_app_folders(const std::string& directory, bool is_debug,
                     std::vector<std::string>& folders) {
    for_each_subdirectory(directory, [&](const std::string& name) {
        std::string path = below(directory, name);
        if (is_debug) {
            path = below(path, "debug");
            if (!is_file_exists(path)) {
                return;
            }
        }
        folders.insert(name == "pydrawing" ? folders.end() : folders.begin(), path);
    });
}

bool get_major_netcore_path(const std::string& directory, const std::string& file,
                            std::string& found) {
    std::vector<NetcoreFolder<std::string>> candidates;
    const bool readable = for_each_subdirectory(directory, [&](const std::string& name) {
        NetcoreVersion version;
        if (try_parse(name, version)) {
            candidates.push_back({version, name});
        }
    });
    if (!readable) {
        return false;
    }
    std::sort(candidates.begin(), candidates.end(),
              [](const auto& a, const auto& b) { return a.m_version < b.m_version; });
    for (auto folder = candidates.rbegin(); folder != candidates.rend(); ++folder) {
        const std::string candidate = below(directory, folder->m_name);
        if (is_file_exists(below(candidate, file))) {
            found = candidate;
            return true;
        }
    }
    return false;
}

std::string join(const std::vector<std::string>& parts, char separator, bool unique) {
    std::ostringstream joined;
    std::unordered_set<std::string> seen;
    bool first = true;
    for (const std::string& part : parts) {
        const bool is_new = seen.insert(part).second;
        if (unique && !is_new) {
            continue;
        }
        if (!first) {
            joined << separator;
        }
        joined << part;
        first = false;
    }
    return joined.str();
}

std::string join_unique(const std::vector<std::string>& parts, char separator) {
    return join(parts, separator, true);
}

std::string join_to_full_path(const std::string& base, const std::vector<std::string>& parts,
                              char separator) {
    std::string joined;
    for (const std::string& part : parts) {
        joined += path_is_relative(part) ? build_path(base, part) : part;
        joined += separator;
    }
    const size_t last = joined.find_last_not_of(separator);
    if (last != std::string::npos) {
        joined.erase(last + 1);
    }
    return joined;
}

static void print_line(FILE* stream, const char* format, va_list arguments) {
    vfprintf(stream, format, arguments);
    fwrite("\r\n", 1, 2, stream);
}

void err_vprintf(const char* format, va_list arguments) { print_line(stderr, format, arguments); }

void out_vprintf(const char* format, va_list arguments) { print_line(stdout, format, arguments); }

} // namespace pal
