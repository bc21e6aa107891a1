#include "host/utils.h"

#include <sstream>

// Streaming a null pointer marks the stream failed, and all that follows is dropped.
std::string missing_method_error_message(const char* assembly, const char* type, const char* method,
                                         int error) {
    std::ostringstream text;
    text << "While initializing the host for the '" << type << " (Assembly=" << assembly
         << ")' type, an error occurred - Method '" << method << "' not found (error=" << error
         << ")";
    return text.str();
}
