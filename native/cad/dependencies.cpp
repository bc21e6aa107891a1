#include "cad/dependencies.h"

#include "runtime/failures.h"
#include "runtime/imports.h"
#include "runtime/wrapped_objects.h"

const int RefVer_pygc_E169B802[4] = {24, 5, 3, 0};
const int RefVer_pydrawin_BDCFE46E[4] = {24, 5, 3, 0};
const int RefVer_pyreflec_D2D13F94[4] = {24, 5, 3, 0};

ColorParser wrpPyl_convcaps_py_to_clr_A6FFC60D_Color = nullptr;
ValueWrapper wrpPyl_convcaps_clr_to_py_A6FFC60D_Color = nullptr;
ValueWrapper wrpPyl_convcaps_clr_to_py_E41B503E_RectangleF = nullptr;

namespace {

// One function pointer of a capsule's table, and where it is kept.
struct Slot {
    int index;
    void** target;
};

template <class Function> Slot slot(int index, Function& target) {
    return {index, reinterpret_cast<void**>(&target)};
}

template <size_t N> bool read_capsule(const char* name, const Slot (&slots)[N]) {
    void** const table = static_cast<void**>(PyCapsule_Import(name, 0));
    if (table == nullptr) {
        PyShlErr_CapsuleImportError(name);
        return false;
    }
    for (const Slot& wanted : slots) {
        *wanted.target = table[wanted.index];
    }
    return true;
}

} // namespace

int wrpPyl_ciap_821C260C_cad() {
    Ref module = Ref::steal(PyShImport_ImportRefModule("korvan.cad", "korvan.pydrawing",
                                                       RefVer_pydrawin_BDCFE46E));
    if (!module ||
        !read_capsule("korvan.pydrawing._C_APITV1_Color",
                      {slot(0, wrpPyl_convcaps_py_to_clr_A6FFC60D_Color),
                       slot(1, wrpPyl_convcaps_clr_to_py_A6FFC60D_Color)}) ||
        !read_capsule("korvan.pydrawing._C_APITV1_RectangleF",
                      {slot(1, wrpPyl_convcaps_clr_to_py_E41B503E_RectangleF)})) {
        return -1;
    }
    module = Ref::steal(PyShImport_ImportRefModule("korvan.cad", "korvan.pyreflection",
                                                   RefVer_pyreflec_D2D13F94));
    if (!module ||
        !read_capsule("korvan.pyreflection._C_APIT_Type",
                      {slot(1, wrpPyl_convcaps_clr_to_py_94F50081_Type),
                       slot(2, wrpPyl_trancaps_py_to_clr_94F50081_Type)}) ||
        !read_capsule("korvan.pyreflection._C_APIT_Object",
                      {slot(1, wrpPyl_convcaps_clr_to_py_81609274_Object),
                       slot(2, wrpPyl_trancaps_py_to_clr_81609274_Object)}) ||
        !read_capsule("korvan.pyreflection._C_APIT_Enum",
                      {slot(1, wrpPyl_convcaps_clr_to_py_0705CA7C_Enum)})) {
        return -1;
    }
    return 0;
}

int import_pygc() {
    const Ref module = Ref::steal(
        PyShImport_ImportRefModule("korvan.cad", "korvan.pygc", RefVer_pygc_E169B802));
    return module && read_capsule("korvan.pygc._C_APIF", {slot(0, PyShCastOpResult_New)}) ? 0 : -1;
}
