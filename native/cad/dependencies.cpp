#include "dependencies.h"

#include "module/family.h"

int wrpPyl_ciap_821C260C_cad() {
    return import_pydrawing("korvan.cad") && import_pyreflection("korvan.cad") ? 0 : -1;
}
