# The warnings, sanitizers and instrumentation that every target of the project takes.
function(nga_flags target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wconversion -Wno-sign-conversion -Wshadow
    -Wnon-virtual-dtor -Woverloaded-virtual)
  if(NGA_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(NGA_SANITIZE)
    # Null references are part of the interface, so that one check is left out.
    target_compile_options(${target} PRIVATE -fsanitize=${NGA_SANITIZE} -fno-sanitize=null
      -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_definitions(${target} PUBLIC NGA_SANITIZED=1)
    target_link_options(${target} PUBLIC -fsanitize=${NGA_SANITIZE})
  endif()
  if(NGA_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage)
    target_link_options(${target} PUBLIC --coverage)
  endif()
  if(NGA_UNITY)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
  endif()
endfunction()
