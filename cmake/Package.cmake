# The package as users import it, laid out in the build folder, and the project's own interpreter.
set(KORVAN_PACKAGE "${CMAKE_BINARY_DIR}/package/korvan")
set(KORVAN_ASSEMBLIES "${KORVAN_PACKAGE}/assemblies")

korvan_managed_sources(interop_sources "${managed}/WrpInterop.Korvan.CAD")
korvan_dotnet_publish("${KORVAN_STAMPS}/interop_cad" "${managed}/WrpInterop.Korvan.CAD"
  "${KORVAN_ASSEMBLIES}/cad"
  SOURCES ${interop_sources} "${KORVAN_STAMPS}/library" "${KORVAN_STAMPS}/schemas"
    "${KORVAN_GENERATED}/cad/generated.stamp"
  FLAGS "--property:GeneratedDir=${KORVAN_GENERATED}/cad/csharp"
  COMMENT "Compiling the managed interop of korvan.cad ahead of time")
korvan_managed_sources(reflection_sources "${managed}/WrpInterop.Korvan.PyReflection")
korvan_dotnet_publish("${KORVAN_STAMPS}/interop_pyreflection"
  "${managed}/WrpInterop.Korvan.PyReflection" "${KORVAN_ASSEMBLIES}/pyreflection"
  SOURCES ${interop_sources} ${reflection_sources}
  COMMENT "Compiling the managed interop of korvan.pyreflection ahead of time")

# The runtime: the newest installed shared framework of the version that we build for.
execute_process(COMMAND "${DOTNET}" --list-runtimes OUTPUT_VARIABLE runtimes)
string(REGEX MATCHALL "Microsoft.NETCore.App 10\\.0\\.[0-9]+ \\[[^\n]*\\]" runtimes "${runtimes}")
list(GET runtimes -1 runtime)
string(REGEX REPLACE "Microsoft.NETCore.App ([0-9.]+) \\[(.*)\\]" "\\2/\\1" runtime_folder "${runtime}")
set(runtime_target "${KORVAN_PACKAGE}/netcore/netcore10.0")
# For debuggers, other hosts and other collectors. The tracing provider is tried at each start, where its library is
# installed it brings threads of its own.
set(runtime_unused libcoreclrtraceptprovider.so libmscordaccore.so libmscordbi.so libclrgc.so libclrgcexp.so
  libhostpolicy.so createdump)
list(TRANSFORM runtime_unused PREPEND "${runtime_target}/")
add_custom_command(
  OUTPUT "${KORVAN_STAMPS}/runtime"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${runtime_folder}" "${runtime_target}"
  COMMAND "${CMAKE_COMMAND}" -E rm -f ${runtime_unused}
  COMMAND "${CMAKE_COMMAND}" -E touch "${KORVAN_STAMPS}/runtime"
  COMMENT "Copying the runtime from ${runtime_folder}" VERBATIM)
set_target_properties(korvan.embed.coreclrwrap PROPERTIES
  LIBRARY_OUTPUT_DIRECTORY "${runtime_target}")
foreach(module cad pycore pydrawing pygc pyreflection)
  set_target_properties(${module} PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${KORVAN_PACKAGE}")
endforeach()

file(GLOB_RECURSE python_sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/python/korvan/*")
add_custom_command(
  OUTPUT "${KORVAN_STAMPS}/package"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${CMAKE_SOURCE_DIR}/python/korvan" "${KORVAN_PACKAGE}"
  COMMAND "${CMAKE_COMMAND}" -E copy_directory "${KORVAN_GENERATED}/cad/stubs/korvan" "${KORVAN_PACKAGE}"
  COMMAND "${CMAKE_COMMAND}" -E touch "${KORVAN_STAMPS}/package"
  DEPENDS ${python_sources} "${KORVAN_GENERATED}/cad/generated.stamp"
  COMMENT "Laying out the Python package" VERBATIM)
add_custom_target(package_files ALL DEPENDS
  "${KORVAN_STAMPS}/runtime" "${KORVAN_STAMPS}/interop_cad" "${KORVAN_STAMPS}/interop_pyreflection"
  "${KORVAN_STAMPS}/package" cad pycore pydrawing pygc pyreflection korvan.embed.coreclrwrap)

# For the wheel: the runtime's assemblies with what ours refer to alone. Their versions have to be those of the package.
set(wheel_runtime "${CMAKE_BINARY_DIR}/wheel-runtime")
add_custom_command(
  OUTPUT "${KORVAN_STAMPS}/wheel_runtime"
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${wheel_runtime}"
  COMMAND "${DOTNET}" publish "${CMAKE_SOURCE_DIR}/tools/packing/runtime/Runtime.csproj" ${KORVAN_DOTNET_FLAGS}
    "--property:Assemblies=${KORVAN_ASSEMBLIES}" "--property:Probe=${CMAKE_BINARY_DIR}/testing/assemblies/probe"
    -o "${wheel_runtime}"
  COMMAND "${CMAKE_COMMAND}" -E compare_files "${wheel_runtime}/libcoreclr.so" "${runtime_target}/libcoreclr.so"
  COMMAND "${CMAKE_COMMAND}" -E touch "${KORVAN_STAMPS}/wheel_runtime"
  DEPENDS "${KORVAN_STAMPS}/interop_cad" "${KORVAN_STAMPS}/interop_pyreflection" "${KORVAN_STAMPS}/runtime"
    "${KORVAN_STAMPS}/interop_probe" "${CMAKE_SOURCE_DIR}/tools/packing/runtime/Runtime.csproj"
  JOB_POOL dotnet COMMENT "Trimming the runtime for the wheel" VERBATIM)
add_custom_target(wheel_runtime DEPENDS "${KORVAN_STAMPS}/wheel_runtime")

configure_file("${CMAKE_SOURCE_DIR}/tools/python.in" "${CMAKE_BINARY_DIR}/python" @ONLY
  FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                   WORLD_READ WORLD_EXECUTE)
configure_file("${CMAKE_SOURCE_DIR}/tools/python-launcher.sh" "${CMAKE_SOURCE_DIR}/build/python" COPYONLY)
