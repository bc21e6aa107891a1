// cad/dependencies.h: the siblings that korvan.cad links itself to.
#ifndef KORVAN_CAD_DEPENDENCIES_H
#define KORVAN_CAD_DEPENDENCIES_H

// Gates korvan.pydrawing and korvan.pyreflection and reads their capsules. 0, or -1.
int wrpPyl_ciap_821C260C_cad();

#endif
