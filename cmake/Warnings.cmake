# What every native target is compiled with.
add_library(korvan_options INTERFACE)
target_compile_options(korvan_options INTERFACE
  -Wall -Wextra -Werror
  -Wno-missing-field-initializers # CPython's tables are read by name
  -Wno-cast-function-type)        # and so are its function slots
target_include_directories(korvan_options INTERFACE
  "${CMAKE_SOURCE_DIR}" "${CMAKE_SOURCE_DIR}/native" "${CMAKE_SOURCE_DIR}/native/engine")
if(KORVAN_SANITIZE)
  target_compile_options(korvan_options INTERFACE -fsanitize=${KORVAN_SANITIZE}
    -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(korvan_options INTERFACE -fsanitize=${KORVAN_SANITIZE})
endif()
if(KORVAN_COVERAGE)
  target_compile_options(korvan_options INTERFACE --coverage)
  target_link_options(korvan_options INTERFACE --coverage)
endif()
