#include "module/family.h"

#include "runtime/drawing_values.h"
#include "runtime/failures.h"
#include "runtime/imports.h"
#include "runtime/wrapped_objects.h"

const int RefVer_pygc_E169B802[4] = {24, 5, 3, 0};
const int RefVer_pydrawin_BDCFE46E[4] = {24, 5, 3, 0};
const int RefVer_pyreflec_D2D13F94[4] = {24, 5, 3, 0};

bool read_capsule(const char* name, const CapsuleSlot* slots, int count) {
    void** const table = static_cast<void**>(PyCapsule_Import(name, 0));
    if (table == nullptr) {
        PyShlErr_CapsuleImportError(name);
        return false;
    }
    for (int i = 0; i < count; ++i) {
        *slots[i].target = table[slots[i].index];
    }
    return true;
}

bool import_pydrawing(const char* self_name) {
    const Ref module = Ref::steal(
        PyShImport_ImportRefModule(self_name, "korvan.pydrawing", RefVer_pydrawin_BDCFE46E));
    return module &&
           read_capsule("korvan.pydrawing._C_APITV1_Color",
                        {capsule_slot(0, wrpPyl_convcaps_py_to_clr_A6FFC60D_Color),
                         capsule_slot(1, wrpPyl_convcaps_clr_to_py_A6FFC60D_Color)}) &&
           read_capsule("korvan.pydrawing._C_APITV1_RectangleF",
                        {capsule_slot(1, wrpPyl_convcaps_clr_to_py_E41B503E_RectangleF)});
}

bool import_pyreflection(const char* self_name) {
    const Ref module = Ref::steal(
        PyShImport_ImportRefModule(self_name, "korvan.pyreflection", RefVer_pyreflec_D2D13F94));
    return module &&
           read_capsule("korvan.pyreflection._C_APIT_Type",
                        {capsule_slot(1, wrpPyl_convcaps_clr_to_py_94F50081_Type),
                         capsule_slot(2, wrpPyl_trancaps_py_to_clr_94F50081_Type)}) &&
           read_capsule("korvan.pyreflection._C_APIT_Object",
                        {capsule_slot(1, wrpPyl_convcaps_clr_to_py_81609274_Object),
                         capsule_slot(2, wrpPyl_trancaps_py_to_clr_81609274_Object)}) &&
           read_capsule("korvan.pyreflection._C_APIT_Enum",
                        {capsule_slot(1, wrpPyl_convcaps_clr_to_py_0705CA7C_Enum)});
}

bool import_pygc(const char* self_name) {
    const Ref module =
        Ref::steal(PyShImport_ImportRefModule(self_name, "korvan.pygc", RefVer_pygc_E169B802));
    return module && read_capsule("korvan.pygc._C_APIF", {capsule_slot(0, PyShCastOpResult_New)});
}
