#include "cad/dependencies.h"

#include "module/family.h"
#include "runtime/imports.h"

ColorParser wrpPyl_convcaps_py_to_clr_A6FFC60D_Color = nullptr;
ValueWrapper wrpPyl_convcaps_clr_to_py_A6FFC60D_Color = nullptr;
ValueWrapper wrpPyl_convcaps_clr_to_py_E41B503E_RectangleF = nullptr;

static bool import_pydrawing() {
    const Ref module = Ref::steal(
        PyShImport_ImportRefModule("korvan.cad", "korvan.pydrawing", RefVer_pydrawin_BDCFE46E));
    return module &&
           read_capsule("korvan.pydrawing._C_APITV1_Color",
                        {capsule_slot(0, wrpPyl_convcaps_py_to_clr_A6FFC60D_Color),
                         capsule_slot(1, wrpPyl_convcaps_clr_to_py_A6FFC60D_Color)}) &&
           read_capsule("korvan.pydrawing._C_APITV1_RectangleF",
                        {capsule_slot(1, wrpPyl_convcaps_clr_to_py_E41B503E_RectangleF)});
}

int wrpPyl_ciap_821C260C_cad() {
    return import_pydrawing() && import_pyreflection("korvan.cad") ? 0 : -1;
}
