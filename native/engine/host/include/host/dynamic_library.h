// host/dynamic_library.h: the owner of a loaded library.
#ifndef KORVAN_HOST_DYNAMIC_LIBRARY_H
#define KORVAN_HOST_DYNAMIC_LIBRARY_H

#include <string>

class DynamicLibrary {
public:
    DynamicLibrary() = default;
    DynamicLibrary(DynamicLibrary&& source) noexcept;
    // Frees what the target holds. The target keeps its own leave to unload.
    DynamicLibrary& operator=(DynamicLibrary&& source) noexcept;
    ~DynamicLibrary();

    // Uses the library if the process has it under this full path, else loads it.
    static bool try_load(const std::string& path, const std::string& name, DynamicLibrary& library);
    // Throws std::runtime_error("DynamicLibrary::load").
    static DynamicLibrary load(const std::string& path, const std::string& name);

    // Returns whether there was a handle. Without leave to unload the handle stays.
    bool free();
    void set_can_free(bool can_free) { m_can_free = can_free; }
    // Whether this object's load brought the library into the process.
    bool is_first_load() const { return m_is_first_load; }
    void* handle() const { return m_handle; }

private:
    bool m_can_free = true;
    void* m_handle = nullptr;
    bool m_is_first_load = false;
};

#endif
