// module/version_attributes.h: the version objects that every module of the family carries.
#ifndef KORVAN_MODULE_VERSION_ATTRIBUTES_H
#define KORVAN_MODULE_VERSION_ATTRIBUTES_H

#include "runtime/py_base.h"

struct VersionNumbers {
    int major;
    int minor;
    int patch;
    int sub;
    const char* view;
};

// Adds _ModuleVersionType, VERSION and _BACKWARD_COMPATIBILITY_THRESHOLD, and hangs the finished
// module on its package. 0, or the code of what failed, with an exception pending.
int add_version_attributes(PyObject* module, const char* type_name, const VersionNumbers& version,
                           const VersionNumbers& threshold);

#endif
