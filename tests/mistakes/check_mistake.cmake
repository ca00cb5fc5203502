# Compiles one mistake and holds the compiler's errors against what a reader should be told.
# COMPILER, INCLUDES (separated by |), SOURCE, MISTAKE, MESSAGE (a regular expression). The
# mistake NONE compiles.
string(REPLACE "|" ";" includes "${INCLUDES}")
list(TRANSFORM includes PREPEND "-I")
set(define)
if(NOT MISTAKE STREQUAL "NONE")
  set(define "-DMISTAKE_${MISTAKE}")
endif()
execute_process(
  COMMAND ${COMPILER} -std=c++20 -fsyntax-only -Wno-invalid-offsetof -fdiagnostics-color=never
          ${includes} ${define} ${SOURCE}
  RESULT_VARIABLE result ERROR_VARIABLE output)
if(MISTAKE STREQUAL "NONE")
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "without a mistake it does not compile:\n${output}")
  endif()
  return()
endif()
if(result EQUAL 0)
  message(FATAL_ERROR "the mistake compiles")
endif()
string(REPLACE ";" "," output "${output}")  # a list ends its items there
string(REGEX MATCHALL "[^\n]* error: [^\n]*" errors "${output}")
list(LENGTH errors count)
if(NOT count EQUAL 1)
  message(FATAL_ERROR "${count} errors instead of one:\n${output}")
endif()
if(NOT errors MATCHES "${MESSAGE}")
  message(FATAL_ERROR "the error does not match \"${MESSAGE}\":\n${output}")
endif()
# The place of the mistake stands in the output, in the error or the notes on its macros.
if(NOT output MATCHES "mistakes\\.cpp:[0-9]+:")
  message(FATAL_ERROR "the line of the mistake is not named:\n${output}")
endif()
