// host/utils.h: texts that the host layer and its users share.
#ifndef KORVAN_HOST_UTILS_H
#define KORVAN_HOST_UTILS_H

#include <string>

// A null name leaves its place empty and ends the text there.
std::string missing_method_error_message(const char* assembly, const char* type, const char* method,
                                         int error);

#endif
