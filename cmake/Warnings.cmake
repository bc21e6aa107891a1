# What every native target is compiled with.
add_library(korvan_options INTERFACE)
target_compile_options(korvan_options INTERFACE
  -Wall -Wextra -Werror
  -Wno-missing-field-initializers # CPython's tables are read by name
  -Wno-cast-function-type)        # and so are its function slots
# Debug information stays beside the objects, where debuggers find it: five modules hold the engine, and none of them
# carries a copy.
target_compile_options(korvan_options INTERFACE -gsplit-dwarf)
target_link_options(korvan_options INTERFACE "LINKER:-T,${CMAKE_CURRENT_LIST_DIR}/no_name_index.ld")
if(KORVAN_SANITIZE)
  target_compile_options(korvan_options INTERFACE -fsanitize=${KORVAN_SANITIZE}
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(korvan_options INTERFACE -fsanitize=${KORVAN_SANITIZE})
endif()
if(KORVAN_COVERAGE)
  target_compile_options(korvan_options INTERFACE --coverage)
  target_link_options(korvan_options INTERFACE --coverage)
endif()
