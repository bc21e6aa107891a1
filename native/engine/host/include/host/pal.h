// host/pal.h: everything of the host layer that touches the operating system.
#ifndef KORVAN_HOST_PAL_H
#define KORVAN_HOST_PAL_H

#include <cstdarg>
#include <string>
#include <vector>

namespace pal {

// False for a variable that is unset or empty; `value` is emptied when it is unset.
bool getenv(const char* name, std::string& value);
// Base 10; text that is no number gives 0.
int to_int(const std::string& text);

// Whether the path can be opened for reading; a directory counts.
bool is_file_exists(const std::string& path);
void path_append(std::string& path, const std::string& part);
template <class... Parts> std::string build_path(const std::string& base, const Parts&... parts) {
    std::string path = base;
    (path_append(path, parts), ...);
    return path;
}
// Everything before the last slash; empty if there is none or if the only one stands first.
std::string path_get_directory(const std::string& path);
bool path_is_relative(const std::string& path);
// What /proc/self/exe names: the interpreter. Empty on failure.
std::string get_entry_point_exe();

void* load_library(const std::string& path);
void free_library(void* handle);
void* get_symbol(void* handle, const char* name);
// Finds a library that is in the process already; loads nothing.
bool get_module(const std::string& path, void** handle);
// The folder from which a library of this file name was loaded; false if none was.
bool get_loaded_library_folder(const std::string& file, std::string& folder);

// Appends the subdirectories of `directory` (their `debug` children when asked): pydrawing last,
// the others each at the front.
void get_app_folders(const std::string& directory, bool is_debug,
                     std::vector<std::string>& folders);
// The folder netcore<major>.<minor> of the highest version that holds `file`.
bool get_major_netcore_path(const std::string& directory, const std::string& file,
                            std::string& found);

std::string join(const std::vector<std::string>& parts, char separator, bool unique);
std::string join_unique(const std::vector<std::string>& parts, char separator);
// Each part made absolute against `base`; trailing separators are cut.
std::string join_to_full_path(const std::string& base, const std::vector<std::string>& parts,
                              char separator);

// Print, then a carriage return and a line feed.
void err_vprintf(const char* format, va_list arguments);
void out_vprintf(const char* format, va_list arguments);

} // namespace pal

#endif
