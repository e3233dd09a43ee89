# Builds what users run, and checks that the binary defends itself: its code and data lie at
# addresses nobody can foresee, nothing of what the linker wrote can be overwritten, the stack holds
# no code, and overruns of buffers end the program.
#   cmake -DSOURCE=... [-DPRESET=package] -P hardening_check.cmake
if(NOT PRESET)
  set(PRESET release)
endif()

function(run)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${SOURCE} OUTPUT_VARIABLE output
                  ERROR_VARIABLE output RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN} failed:\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect pattern meaning)
  if(NOT output MATCHES "${pattern}")
    message(SEND_ERROR "${binary}: ${meaning}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --preset ${PRESET})
run(${CMAKE_COMMAND} --build --preset ${PRESET})
set(binary build/${PRESET}/verlume)

run(readelf --wide --file-header --program-headers --dynamic --dyn-syms ${binary})
expect("Type: +DYN" "is not position independent")
expect("GNU_RELRO" "has no relocations that become read-only")
expect("FLAGS.*(BIND_NOW|NOW)" "binds lazily, so its table of functions stays writable")
expect("GNU_STACK [^\n]* RW " "has code on its stack")
expect(" __stack_chk_fail@" "does not check its stack")

# The program may well hold no call that this changes, so the binary need not show it.
file(READ ${SOURCE}/build/${PRESET}/compile_commands.json output)
string(REGEX MATCHALL "\"command\": \"[^\n]*" commands "${output}")
if(NOT commands)
  message(SEND_ERROR "compile_commands.json holds no commands")
endif()
foreach(output IN LISTS commands)
  expect("-D_FORTIFY_SOURCE=2" "is not built with checked functions of the C library: ${output}")
endforeach()
