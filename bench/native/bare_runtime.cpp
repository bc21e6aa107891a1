// The baseline of the import: an extension that does nothing but start the runtime, with the
// properties and settings that the bridge uses, and make one managed call.
#define PY_SSIZE_T_CLEAN
#include <Python.h>

#include <cstdlib>
#include <dlfcn.h>
#include <iterator>
#include <string>

namespace {

using Initialize = int (*)(const char*, const char*, int, const char**, const char**, void**,
                           unsigned int*);
using CreateDelegate = int (*)(void*, unsigned int, const char*, const char*, const char*, void**);

PyObject* raise_status(const char* step, int status) {
    return PyErr_Format(PyExc_RuntimeError, "%s failed: 0x%x", step, status);
}

// start(runtime_folder, app_paths) -> what the managed function answers
PyObject* start(PyObject*, PyObject* args) {
    const char* folder = nullptr;
    const char* paths = nullptr;
    if (!PyArg_ParseTuple(args, "ss", &folder, &paths)) {
        return nullptr;
    }
    void* const library =
        dlopen((std::string(folder) + "/libcoreclr.so").c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) {
        return PyErr_Format(PyExc_RuntimeError, "%s", dlerror());
    }
    const auto initialize = reinterpret_cast<Initialize>(dlsym(library, "coreclr_initialize"));
    const auto create_delegate =
        reinterpret_cast<CreateDelegate>(dlsym(library, "coreclr_create_delegate"));

    setenv("DOTNET_EnableWriteXorExecute", "0", 0);
    setenv("DOTNET_EnableDiagnostics", "0", 0);
    const char* keys[] = {"TRUSTED_PLATFORM_ASSEMBLIES",
                          "APP_PATHS",
                          "APP_NI_PATHS",
                          "NATIVE_DLL_SEARCH_DIRECTORIES",
                          "AppDomainCompatSwitch",
                          "System.Globalization.Invariant",
                          "System.Globalization.PredefinedCulturesOnly",
                          "System.GC.Concurrent",
                          "System.Runtime.TieredPGO"};
    const char* values[] = {"",     paths,   paths,   paths, "UseLatestBehaviorWhenTFMNotSpecified",
                            "true", "false", "false", "0"};
    static_assert(std::size(keys) == std::size(values));
    void* host = nullptr;
    unsigned int domain = 0;
    int status = initialize("/proc/self/exe", "BenchDomain", static_cast<int>(std::size(keys)),
                            keys, values, &host, &domain);
    if (status != 0) {
        return raise_status("coreclr_initialize", status);
    }
    int (*answer)() = nullptr;
    status = create_delegate(host, domain, "Korvan.Bench.Floor", "Korvan.Bench.Floor", "Answer",
                             reinterpret_cast<void**>(&answer));
    return status == 0 ? PyLong_FromLong(answer())
                       : raise_status("coreclr_create_delegate", status);
}

PyMethodDef functions[] = {{"start", start, METH_VARARGS, nullptr}, {}};

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "bare_runtime",
                          nullptr,
                          -1,
                          functions,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

} // namespace

PyMODINIT_FUNC PyInit_bare_runtime() { return PyModule_Create(&definition); }
