// host/host_record.h: a host class as data: the delegates of one managed wrapper class.
#ifndef KORVAN_HOST_HOST_RECORD_H
#define KORVAN_HOST_HOST_RECORD_H

#include <cstdint>
#include <string>

enum class HostBinding : std::uint8_t { unbound, bound, not_valid };

struct HostRecord {
    const char* class_name; // full name of the managed wrapper class
    const char* delegates; // names in binding order, each ended by NUL, an empty one last
    void** slots;
    std::uint16_t count;
    HostBinding state = HostBinding::unbound;
    // Text of the first delegate that was not found. Kept for the life of the process.
    const std::string* error = nullptr;
};

// Binds every delegate in order and stops at the first that is missing. Runs once, under the
// interpreter lock.
void bind_host(HostRecord& host);

inline bool host_is_not_valid(HostRecord& host) {
    if (__builtin_expect(host.state == HostBinding::unbound, 0)) {
        bind_host(host);
    }
    return host.state == HostBinding::not_valid;
}

// The delegate in a slot, typed. Binds on first use; a slot of an invalid host is never asked for,
// because every way to an instance passes the type's guard.
template <class Function> inline Function* host_slot(HostRecord& host, std::uint16_t slot) {
    if (__builtin_expect(host.state == HostBinding::unbound, 0)) {
        bind_host(host);
    }
    return reinterpret_cast<Function*>(host.slots[slot]);
}

#endif
