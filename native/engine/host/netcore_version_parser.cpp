#include "host/netcore_version_parser.h"

#include "host/str_utils.h"

bool split(const std::string& text, std::string* parts) {
    const size_t dot = text.find('.');
    if (dot == std::string::npos) {
        return false;
    }
    parts[0] = cxxaw_substr(text, 0, dot);
    if (text.find('.', dot + 1) != std::string::npos) {
        return false;
    }
    parts[1] = cxxaw_substr(text, dot + 1, std::string::npos);
    return true;
}

bool try_parse_int(const std::string& text, int& value) {
    if (!cxxaw_isdigitstr(text)) {
        return false;
    }
    value = std::stoi(text);
    return true;
}

bool try_parse(const std::string& name, NetcoreVersion& version) {
    static const std::string prefix = "netcore";
    if (name.rfind(prefix, 0) != 0) {
        return false;
    }
    std::string parts[2];
    if (!split(cxxaw_substr(name, prefix.size(), std::string::npos), parts)) {
        return false;
    }
    int major = 0;
    int minor = 0;
    if (!try_parse_int(parts[0], major) || !try_parse_int(parts[1], minor)) {
        return false;
    }
    version = NetcoreVersion(major, minor);
    return true;
}
