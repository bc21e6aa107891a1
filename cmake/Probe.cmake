# The probe: a managed assembly with one type of each shape, its bindings and its extension. Tests
# and benches use it; the package does not hold it.
set(probe "${CMAKE_SOURCE_DIR}/tests/fixtures/probe")
set(KORVAN_TESTING "${CMAKE_BINARY_DIR}/testing")

korvan_managed_sources(probe_sources "${probe}/Korvan.Probe")
korvan_dotnet_build("${KORVAN_STAMPS}/probe" "${probe}/Korvan.Probe"
  SOURCES ${probe_sources} COMMENT "Building the probe library")
korvan_surface(probe_surface Korvan.Probe "${KORVAN_STAMPS}/probe")
list(GET probe_surface 0 probe_reference)
korvan_generate(probe
  ASSEMBLY "${probe_reference}"
  ROOT "Korvan.Probe=korvan.probe" INTEROP WrpInterop.Korvan.Probe SHARDS 2
  DEPENDS ${probe_surface})
korvan_dotnet_publish("${KORVAN_STAMPS}/interop_probe" "${probe}/WrpInterop.Korvan.Probe"
  "${KORVAN_TESTING}/assemblies/probe"
  SOURCES ${interop_sources} "${KORVAN_STAMPS}/probe" "${KORVAN_GENERATED}/probe/generated.stamp"
  FLAGS "--property:GeneratedDir=${KORVAN_GENERATED}/probe/csharp"
  COMMENT "Compiling the managed interop of korvan.probe ahead of time")

Python_add_library(probe MODULE WITH_SOABI "${probe}/native/probe_module.cpp" ${probe_shards})
target_include_directories(probe PRIVATE "${KORVAN_GENERATED}/probe/cpp")
target_link_libraries(probe PRIVATE korvan_engine)
set_target_properties(probe PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${KORVAN_TESTING}/korvan")
add_dependencies(probe generate_probe)

# One folder of assembly folders serves both modules while testing.
add_custom_command(
  OUTPUT "${KORVAN_STAMPS}/testing"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${KORVAN_ASSEMBLIES}" "${KORVAN_TESTING}/assemblies"
  COMMAND "${CMAKE_COMMAND}" -E touch "${KORVAN_STAMPS}/testing"
  DEPENDS "${KORVAN_STAMPS}/interop_cad" "${KORVAN_STAMPS}/interop_pyreflection"
  COMMENT "Laying out the assemblies for tests" VERBATIM)
add_custom_target(probe_files ALL DEPENDS
  "${KORVAN_STAMPS}/interop_probe" "${KORVAN_STAMPS}/testing" probe)
