// host/netcore_version_parser.h: the grammar of runtime folder names, netcore<digits>.<digits>.
#ifndef KORVAN_HOST_NETCORE_VERSION_PARSER_H
#define KORVAN_HOST_NETCORE_VERSION_PARSER_H

#include "host/netcore_version.h"

#include <string>

// False for any other name, and then `version` is untouched. Throws std::out_of_range for a number
// beyond int: such a folder is a broken installation, not a folder to be skipped.
bool try_parse(const std::string& name, NetcoreVersion& version);

// Splits at the one dot; parts[0] is written even if a second dot makes it fail.
bool split(const std::string& text, std::string* parts);
bool try_parse_int(const std::string& text, int& value);

#endif
