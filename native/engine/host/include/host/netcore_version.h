// host/netcore_version.h: the version of a runtime folder, and the folder that carries it.
#ifndef KORVAN_HOST_NETCORE_VERSION_H
#define KORVAN_HOST_NETCORE_VERSION_H

struct NetcoreVersion {
    int m_major;
    int m_minor;

    NetcoreVersion() {} // left uninitialised: it is filled by try_parse alone
    NetcoreVersion(int major, int minor) : m_major(major), m_minor(minor) {}
};

inline bool operator<(const NetcoreVersion& a, const NetcoreVersion& b) {
    return a.m_major != b.m_major ? a.m_major < b.m_major : a.m_minor < b.m_minor;
}

template <class String> struct NetcoreFolder {
    NetcoreVersion m_version;
    String m_name; // without its parent
};

#endif
