#include "interpreter.h"

#include "runtime/identifiers.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    Py_InitializeEx(0);
    fn_intern_identifiers();
    const int result = RUN_ALL_TESTS();
    Py_FinalizeEx();
    return result;
}
