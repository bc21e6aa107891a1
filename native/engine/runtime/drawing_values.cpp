#include "runtime/drawing_values.h"

ValueParser wrpPyl_convcaps_py_to_clr_A6FFC60D_Color = nullptr;
ValueWrapper wrpPyl_convcaps_clr_to_py_A6FFC60D_Color = nullptr;
ValueWrapper wrpPyl_convcaps_clr_to_py_E41B503E_RectangleF = nullptr;
