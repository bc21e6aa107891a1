#include "packaging_hook.h"

#include "runtime/failures.h"
#include "runtime/identifiers.h"

PyObject* fn_get_pyinstaller_hook_dirs(PyModuleDef* module_def, const char** names, long count,
                                       const char* hook_dir) {
    PyObject* module = PyState_FindModule(module_def);
    const Ref filename =
        Ref::steal(module != nullptr ? PyModule_GetFilenameObject(module) : nullptr);
    if (!filename) {
        return nullptr;
    }
    const Ref os_path = Ref::steal(PyImport_ImportModule("os.path"));
    if (!os_path) {
        PyShlErr_UnableToImportModule("os.path");
        return nullptr;
    }
    const Ref directory =
        Ref::steal(PyObject_CallMethodOneArg(os_path.get(), PyWrpIdOsPath_DirName, filename.get()));
    const Ref join = Ref::steal(PyObject_GetAttr(os_path.get(), PyWrpIdOsPath_Join));
    const Ref hook = Ref::steal(PyUnicode_FromString(hook_dir));
    Ref folders = Ref::steal(PyList_New(count + 1));
    if (!directory || !join || !hook || !folders) {
        return nullptr;
    }
    for (long i = 0; i <= count; ++i) {
        const Ref name = Ref::steal(i == 0 ? nullptr : PyUnicode_FromString(names[i - 1]));
        PyObject* path =
            i == 0 ? PyObject_CallFunctionObjArgs(join.get(), directory.get(), hook.get(), nullptr)
                   : PyObject_CallFunctionObjArgs(join.get(), directory.get(), name.get(),
                                                  hook.get(), nullptr);
        if (path == nullptr) {
            return nullptr;
        }
        PyList_SET_ITEM(folders.get(), i, path);
    }
    return folders.release();
}
