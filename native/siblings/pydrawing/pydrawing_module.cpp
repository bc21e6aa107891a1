// korvan.pydrawing: colours and rectangles as plain Python values, shared by the family.
#include "color.h"
#include "module/capsules.h"
#include "module/version_attributes.h"
#include "rectangle.h"
#include "runtime/identifiers.h"

// Each table: parsing converter, wrapper.
static void* color_api[] = {reinterpret_cast<void*>(parse_color),
                            reinterpret_cast<void*>(wrap_color)};
static void* rectangle_api[] = {reinterpret_cast<void*>(parse_rectangle),
                                reinterpret_cast<void*>(wrap_rectangle)};

static PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                                 "korvan.pydrawing",
                                 nullptr,
                                 -1,
                                 nullptr,
                                 nullptr,
                                 nullptr,
                                 nullptr,
                                 nullptr};

PyMODINIT_FUNC PyInit_pydrawing() {
    fn_intern_identifiers();
    Ref module = Ref::steal(PyModule_Create(&definition));
    if (!module || PyModule_AddType(module.get(), &color_type) != 0 ||
        PyModule_AddType(module.get(), &rectangle_type) != 0 ||
        !add_capsule(module.get(), "korvan.pydrawing._C_APITV1_Color", color_api) ||
        !add_capsule(module.get(), "korvan.pydrawing._C_APITV1_RectangleF", rectangle_api) ||
        add_version_attributes(module.get(), "korvan.pydrawing._ModuleVersionType",
                               {25, 3, 0, 0, "25.3.0.0"}, {22, 6, 0, 0, "22.6.0.0"}) != 0) {
        return nullptr;
    }
    return module.release();
}
