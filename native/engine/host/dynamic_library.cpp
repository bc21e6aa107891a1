#include "host/dynamic_library.h"

#include "host/host_trace.h"
#include "host/pal.h"

#include <stdexcept>

DynamicLibrary::DynamicLibrary(DynamicLibrary&& source) noexcept
    : m_handle(source.m_handle), m_is_first_load(source.m_is_first_load) {
    source.m_handle = nullptr;
}

DynamicLibrary& DynamicLibrary::operator=(DynamicLibrary&& source) noexcept {
    if (this != &source) {
        free();
        m_handle = source.m_handle;
        m_is_first_load = source.m_is_first_load;
        source.m_handle = nullptr;
    }
    return *this;
}

DynamicLibrary::~DynamicLibrary() { free(); }

bool DynamicLibrary::try_load(const std::string& path, const std::string& /*name*/,
                              DynamicLibrary& library) {
    library.free();
    trace::info("Try get module...");
    if (pal::get_module(path, &library.m_handle)) {
        trace::info("Using existed module...");
        return true;
    }
    trace::info("No existed module...");
    library.m_handle = pal::load_library(path);
    if (library.m_handle != nullptr) {
        library.m_is_first_load = true;
        return true;
    }
    trace::info("No module...");
    trace::verbose("No: '%s'", path.c_str());
    return false;
}

DynamicLibrary DynamicLibrary::load(const std::string& path, const std::string& name) {
    DynamicLibrary library;
    if (!try_load(path, name, library)) {
        throw std::runtime_error("DynamicLibrary::load");
    }
    return library;
}

bool DynamicLibrary::free() {
    if (m_handle == nullptr) {
        return false;
    }
    if (m_can_free) {
        pal::free_library(m_handle);
        m_handle = nullptr;
    }
    return true;
}
