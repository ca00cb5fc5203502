# Installs a build into a prefix of its own, then configures, builds and runs a consumer of it.
# BUILD (the build to install), CONFIG, WORK (a scratch folder), COMPILER, GENERATOR, MODULE (the
# folder of the one header), TOOL (whether the tool is part of the build).
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${WORK})
function(step)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output
    ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGN}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

step(${CMAKE_COMMAND} --install ${BUILD} --config ${CONFIG} --prefix ${WORK}/prefix)

# The tool runs from where it is installed.
if(TOOL)
  step(${WORK}/prefix/bin/nga --version)
endif()

# The one header names every header that installs, and no header installs that it does not name.
file(GLOB_RECURSE installed ${WORK}/prefix/include/*.h)
list(TRANSFORM installed REPLACE ".*/" "")
list(REMOVE_ITEM installed DDB_NonGeometricAttributes.h)
file(STRINGS ${MODULE}/DDB_NonGeometricAttributes.h named REGEX "^#include \"")
list(TRANSFORM named REPLACE "#include \"(.*)\"" "\\1")
list(SORT installed)
list(SORT named)
foreach(header IN LISTS installed)
  if(NOT header IN_LIST named)
    message(SEND_ERROR "${header} installs, and DDB_NonGeometricAttributes.h does not include it")
  endif()
endforeach()
foreach(header IN LISTS named)
  if(NOT header IN_LIST installed)
    message(SEND_ERROR "DDB_NonGeometricAttributes.h includes ${header}, which does not install")
  endif()
endforeach()

step(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK}/build -G ${GENERATOR}
  -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_BUILD_TYPE=${CONFIG}
  -DCMAKE_PREFIX_PATH=${WORK}/prefix)
step(${CMAKE_COMMAND} --build ${WORK}/build --config ${CONFIG})
step(${WORK}/build/consumer)
if(NOT output STREQUAL "refused: Tabular data for at least one option or suboption
has either blank or zero valued row(s).\ndensity 7850\n")
  message(FATAL_ERROR "the consumer said:\n${output}")
endif()
step(${WORK}/build/null_reference)
if(NOT output STREQUAL "steel 1, gold 0\n")
  message(FATAL_ERROR "a reference to null is not recognised:\n${output}")
endif()
