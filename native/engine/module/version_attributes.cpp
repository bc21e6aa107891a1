#include "module/version_attributes.h"

#include "bindings/modules.h"
#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "runtime/version.h"

static bool add_version(PyObject* module, PyObject* name, const VersionNumbers& numbers) {
    const Ref version = Ref::steal(PyShVersionAttr_Create(
        numbers.major, numbers.minor, numbers.patch, numbers.sub, numbers.view));
    return PyObject_SetAttr(module, name, version.get()) == 0;
}

int add_version_attributes(PyObject* module, const char* type_name, const VersionNumbers& version,
                           const VersionNumbers& threshold) {
    fn_name_version_type(type_name);
    if (PyShModule_AddType(module, &wrpPye_tyds_FFFFFFFF_ModuleVersion, "_ModuleVersionType") < 0) {
        return load_error::version_type;
    }
    if (!add_version(module, PyWrpIdOwn_Version, version)) {
        return load_error::version;
    }
    if (!add_version(module, PyWrpIdOwn_BackwardCompatibilityThreshold, threshold)) {
        return load_error::threshold;
    }
    return 0;
}
