#include "module/version_attributes.h"

#include "bindings/modules.h"
#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "runtime/version.h"

#include <cstring>

static bool add_version(PyObject* module, PyObject* name, const VersionNumbers& numbers) {
    const Ref version = Ref::steal(PyShVersionAttr_Create(
        numbers.major, numbers.minor, numbers.patch, numbers.sub, numbers.view));
    return PyObject_SetAttr(module, name, version.get()) == 0;
}

// The interpreter enters an extension in sys.modules ahead of its package: a thread that imports it
// at that moment takes it for imported and does not find it there. The name stays if it fails.
static void hang_on_package(PyObject* module) {
    const char* name = PyModule_GetName(module);
    const char* point = name != nullptr ? std::strrchr(name, '.') : nullptr;
    if (point == nullptr) {
        PyErr_Clear();
        return;
    }
    const Ref package_name = Ref::steal(PyUnicode_FromStringAndSize(name, point - name));
    const Ref package = Ref::steal(package_name ? PyImport_GetModule(package_name.get()) : nullptr);
    if (!package || PyObject_SetAttrString(package.get(), point + 1, module) < 0) {
        PyErr_Clear();
    }
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
    hang_on_package(module);
    return 0;
}
