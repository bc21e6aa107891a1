# CPython 3.12: PYTHON from the cache or the environment, then the path, then pyenv.
if(NOT Python_EXECUTABLE)
  execute_process(
    COMMAND "${CMAKE_SOURCE_DIR}/tools/find-python.sh"
    OUTPUT_VARIABLE Python_EXECUTABLE OUTPUT_STRIP_TRAILING_WHITESPACE
    RESULT_VARIABLE korvan_python_status)
  if(NOT korvan_python_status EQUAL 0)
    message(FATAL_ERROR "CPython 3.12 with its headers was not found; name it with PYTHON=<path>.")
  endif()
endif()
find_package(Python 3.12 EXACT REQUIRED COMPONENTS Interpreter Development.Module
  OPTIONAL_COMPONENTS Development.Embed)
message(STATUS "Python: ${Python_EXECUTABLE}")
get_filename_component(Python_PREFIX "${Python_EXECUTABLE}" DIRECTORY)
get_filename_component(Python_PREFIX "${Python_PREFIX}" DIRECTORY)
