// The entry of korvan.cad: one straight line from import to the first usable type.
#include "bindings/modules.h"
#include "dependencies.h"
#include "entity_rows.h"
#include "module/family.h"
#include "module/version_attributes.h"
#include "packaging_hook.h"
#include "runtime/callbacks.h"
#include "runtime/failures.h"
#include "runtime/identifiers.h"
#include "warm_up.h"

extern const BoundTree bound_tree; // generated

static PyObject* wrpPy_bltp_FFFFFFFF_get_pyinstaller_hook_dirs(PyObject*, PyObject*);

static constexpr const char* doc_get_pyinstaller_hook_dirs =
    "Function required by PyInstaller. Returns paths to module\n"
    "PyInstaller hooks. Not intended to be called explicitly.\n\n";

static PyMethodDef wrpPy_mlmd_821C260C_cad[] = {
    {"get_pyinstaller_hook_dirs", wrpPy_bltp_FFFFFFFF_get_pyinstaller_hook_dirs, METH_NOARGS,
     doc_get_pyinstaller_hook_dirs},
    {"_entity_rows", cad_entity_rows, METH_VARARGS, doc_entity_rows},
    {}};

static PyModuleDef wrpPy_mlds_821C260C_cad = {PyModuleDef_HEAD_INIT,
                                              "korvan.cad",
                                              nullptr,
                                              -1,
                                              wrpPy_mlmd_821C260C_cad,
                                              nullptr,
                                              nullptr,
                                              nullptr,
                                              nullptr};

static PyObject* wrpPy_bltp_FFFFFFFF_get_pyinstaller_hook_dirs(PyObject*, PyObject*) {
    static const char* names[] = {"cad", "pydrawing", "pyreflection", "pygc", "pycore"};
    return fn_get_pyinstaller_hook_dirs(&wrpPy_mlds_821C260C_cad, names, 5, "__pyinstaller");
}

static PyObject* wrpPy_mlit_821C260C_cad() {
    return build_namespace_tree(*bound_tree.root, wrpPy_mlds_821C260C_cad);
}

static PyObject* fail(int code) {
    PyShlErr_ModulePyInitError("korvan.cad", code);
    return nullptr;
}

PyMODINIT_FUNC PyInit_cad() {
    fn_intern_identifiers();
    if (wrpPyl_ciap_821C260C_cad() < 0) {
        return fail(load_error::linked_modules);
    }
    if (!import_pygc("korvan.cad")) {
        return fail(load_error::pygc);
    }
    // A host that can't start ends the process: nothing usable could be left behind.
    if (initialize_clr_host("", "WrpInterop.Korvan.CAD", false, "korvan", "cad",
                            bound_tree.generic_callbacks) < 0) {
        return fail(load_error::hosts);
    }
    start_warm_up();
    Ref module = Ref::steal(wrpPy_mlit_821C260C_cad());
    if (!module) {
        return fail(load_error::namespace_tree);
    }
    if (wrpPye_mlit_FFFFFFFF_common_wrappers(module.get(), bound_tree) == nullptr) {
        return fail(load_error::wrappers);
    }
    const int code = add_version_attributes(module.get(), "korvan.cad._ModuleVersionType",
                                            {25, 3, 0, 0, "25.3.0.0"}, {22, 6, 0, 0, "22.6.0.0"});
    return code == 0 ? module.release() : fail(code);
}
