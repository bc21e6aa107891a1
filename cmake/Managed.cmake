# The managed half: the library, the generator, what it generates, and the interop assemblies.
find_program(DOTNET dotnet REQUIRED)
set(KORVAN_DOTNET_ARTIFACTS "${CMAKE_SOURCE_DIR}/build/dotnet")
set(KORVAN_GENERATED "${CMAKE_BINARY_DIR}/generated")
set(KORVAN_DOTNET_FLAGS -c Release --verbosity quiet --artifacts-path "${KORVAN_DOTNET_ARTIFACTS}")

# Every source of a managed project; a new file makes the build configure again.
function(korvan_managed_sources out)
  set(all)
  foreach(folder ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS
      "${folder}/*.cs" "${folder}/*.csproj" "${folder}/*.props" "${folder}/*.targets"
      "${folder}/*.pyi" "${folder}/*.txt" "${folder}/*.dxf")
    list(APPEND all ${sources})
  endforeach()
  list(APPEND all "${CMAKE_SOURCE_DIR}/Directory.Build.props" "${CMAKE_SOURCE_DIR}/global.json")
  set(${out} ${all} PARENT_SCOPE)
endfunction()

# Builds a project; `stamp` is written when its output may have changed.
function(korvan_dotnet_build stamp project)
  cmake_parse_arguments(arg "" "COMMENT" "SOURCES;FLAGS" ${ARGN})
  get_filename_component(name "${project}" NAME)
  add_custom_command(
    OUTPUT "${stamp}"
    COMMAND "${DOTNET}" build "${project}/${name}.csproj" ${KORVAN_DOTNET_FLAGS} ${arg_FLAGS}
    COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
    DEPENDS ${arg_SOURCES} JOB_POOL dotnet COMMENT "${arg_COMMENT}" VERBATIM)
endfunction()

# Publishes an interop assembly, compiled ahead of time, into a folder. What it refers to was built before.
function(korvan_dotnet_publish stamp project folder)
  cmake_parse_arguments(arg "" "COMMENT" "SOURCES;FLAGS" ${ARGN})
  get_filename_component(name "${project}" NAME)
  add_custom_command(
    OUTPUT "${stamp}"
    COMMAND "${DOTNET}" publish "${project}/${name}.csproj" ${KORVAN_DOTNET_FLAGS} ${arg_FLAGS}
      --property:BuildProjectReferences=false -o "${folder}"
    COMMAND "${CMAKE_COMMAND}" -E touch "${stamp}"
    DEPENDS ${arg_SOURCES} JOB_POOL dotnet COMMENT "${arg_COMMENT}" VERBATIM)
endfunction()

# What others see of a library: its reference assembly, which has no bodies, and its documentation. Both are replaced
# only when they change, so that what depends on them stands while bodies alone do. Gives the two files' paths.
function(korvan_surface out name stamp)
  set(folder "${KORVAN_SURFACES}/${name}")
  file(MAKE_DIRECTORY "${folder}")
  set(files "${folder}/${name}.dll" "${folder}/${name}.xml")
  add_custom_command(
    OUTPUT ${files}
    COMMAND "${CMAKE_COMMAND}" -E copy_if_different
      "${KORVAN_DOTNET_ARTIFACTS}/obj/${name}/release_linux-x64/ref/${name}.dll" "${folder}/${name}.dll"
    COMMAND "${CMAKE_COMMAND}" -E copy_if_different
      "${KORVAN_DOTNET_ARTIFACTS}/bin/${name}/release_linux-x64/${name}.xml" "${folder}/${name}.xml"
    DEPENDS "${stamp}" COMMENT "Comparing the surface of ${name}" VERBATIM)
  set(${out} ${files} PARENT_SCOPE)
endfunction()

# Runs the generator over a library and folds its native units into a fixed number of sources, so
# that the list of sources is known before the generator runs.
function(korvan_generate name)
  cmake_parse_arguments(arg "" "ASSEMBLY;ROOT;INTEROP;SHARDS" "DEPENDS" ${ARGN})
  set(folder "${KORVAN_GENERATED}/${name}")
  set(shards)
  math(EXPR last "${arg_SHARDS} - 1")
  foreach(i RANGE ${last})
    list(APPEND shards "${folder}/shards/shard_${i}.cpp")
  endforeach()
  add_custom_command(
    OUTPUT "${folder}/generated.stamp" ${shards}
    COMMAND "${DOTNET}" "${KORVAN_DOTNET_ARTIFACTS}/bin/Korvan.WrpGen/release/Korvan.WrpGen.dll"
      --assembly "${arg_ASSEMBLY}" --root "${arg_ROOT}" --interop "${arg_INTEROP}"
      --cpp "${folder}/cpp" --csharp "${folder}/csharp" --stubs "${folder}/stubs"
      --docs "${folder}/docs" --report "${folder}/left-out.txt"
    COMMAND "${CMAKE_COMMAND}" -DUNITS=${folder}/cpp -DSHARDS=${folder}/shards -DCOUNT=${arg_SHARDS}
      -P "${CMAKE_SOURCE_DIR}/cmake/WriteShards.cmake"
    COMMAND "${CMAKE_COMMAND}" -E touch "${folder}/generated.stamp"
    DEPENDS ${arg_DEPENDS} "${KORVAN_STAMPS}/generator" "${CMAKE_SOURCE_DIR}/cmake/WriteShards.cmake"
    COMMENT "Generating the bindings of ${arg_ROOT}" VERBATIM)
  add_custom_target(generate_${name} DEPENDS "${folder}/generated.stamp" ${shards})
  set(${name}_shards ${shards} PARENT_SCOPE)
endfunction()

set(KORVAN_STAMPS "${CMAKE_BINARY_DIR}/stamps")
set(KORVAN_SURFACES "${CMAKE_BINARY_DIR}/surfaces")
file(MAKE_DIRECTORY "${KORVAN_STAMPS}")
set(managed "${CMAKE_SOURCE_DIR}/managed")

korvan_managed_sources(library_sources "${managed}/Korvan.CAD")
file(GLOB_RECURSE codec_sources CONFIGURE_DEPENDS "${managed}/Korvan.CAD.CodecGen/*.cs*")
korvan_dotnet_build("${KORVAN_STAMPS}/library" "${managed}/Korvan.CAD"
  SOURCES ${library_sources} ${codec_sources} COMMENT "Building the drawing library")
korvan_surface(library_surface Korvan.CAD "${KORVAN_STAMPS}/library")
list(GET library_surface 0 library_reference)

korvan_managed_sources(schema_sources "${managed}/Korvan.CAD.Schemas" "${managed}/Korvan.CAD.SchemaGen")
file(GLOB schema_tables CONFIGURE_DEPENDS "${managed}/Korvan.CAD.Schemas/Tables/*.table")
korvan_dotnet_build("${KORVAN_STAMPS}/schemas" "${managed}/Korvan.CAD.Schemas"
  SOURCES ${schema_sources} ${schema_tables} "${library_reference}"
  COMMENT "Building the classes of the schemas")
korvan_surface(schema_surface Korvan.CAD.Schemas "${KORVAN_STAMPS}/schemas")
list(GET schema_surface 0 schema_reference)

korvan_managed_sources(generator_sources "${managed}/Korvan.WrpGen")
korvan_dotnet_build("${KORVAN_STAMPS}/generator" "${managed}/Korvan.WrpGen"
  SOURCES ${generator_sources} COMMENT "Building the generator")

korvan_generate(cad
  ASSEMBLY "${library_reference}:${schema_reference}"
  ROOT "Korvan.CAD=korvan.cad" INTEROP WrpInterop.Korvan.CAD SHARDS 16
  DEPENDS ${library_surface} ${schema_surface})

Python_add_library(cad MODULE WITH_SOABI
  native/cad/cad_module.cpp native/cad/dependencies.cpp native/cad/entity_rows.cpp native/cad/packaging_hook.cpp
  native/cad/warm_up.cpp
  ${cad_shards})
# Tables have nothing to step through, and their debug information would outweigh the module.
set_source_files_properties(${cad_shards} PROPERTIES COMPILE_OPTIONS "-g0")
target_include_directories(cad PRIVATE "${KORVAN_GENERATED}/cad/cpp")
target_link_libraries(cad PRIVATE korvan_engine)
add_dependencies(cad generate_cad)
