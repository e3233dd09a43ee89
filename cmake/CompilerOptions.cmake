# What every target of the project is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

find_program(CCACHE ccache)
if(CCACHE)
  # What ccache must be told to work with precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
  add_compile_options(-fpch-preprocess)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
if(VERLUME_WERROR)
  add_compile_options(-Werror)
endif()

# Bytes that come from elsewhere reach this program: what a fault of ours let them do ends it
# instead. tests/hardening_check.cmake looks at the binary.
include(CheckPIESupported)
check_pie_supported()
add_compile_options(-fstack-protector-strong)
if(WIN32)
  # Every large frame touches each of its pages there anyway, and MinGW's compiler fails over
  # -fstack-clash-protection.
  # The first: for the library that the checks of the stack call.
  add_link_options(-fstack-protector-strong -Wl,--dynamicbase,--nxcompat,--high-entropy-va)
else()
  add_compile_options(-fstack-clash-protection)
  add_link_options(-Wl,-z,relro,-z,now)
endif()
if(NOT VERLUME_SANITIZE AND NOT VERLUME_THREAD_SANITIZE AND NOT VERLUME_FUZZ)  # those look closer
  add_compile_options($<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE>
                      $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
endif()
add_compile_definitions(_GLIBCXX_ASSERTIONS)

if(VERLUME_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# Not together with the above: the runtime libraries exclude each other.
if(VERLUME_THREAD_SANITIZE)
  add_compile_options(-fsanitize=thread -fno-omit-frame-pointer)
  add_link_options(-fsanitize=thread)
endif()

# Coverage guides the fuzzer: of the program itself, not of the standard library.
if(VERLUME_FUZZ)
  add_compile_options(
    -fsanitize-coverage-ignorelist=${PROJECT_SOURCE_DIR}/fuzz/not_covered.txt)
  if(VERLUME_FUZZ_FAST)
    add_compile_options(-fsanitize-coverage=inline-8bit-counters,pc-table)
  else()
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
  endif()
endif()

if(VERLUME_COVERAGE)
  add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()

# What is compiled in this folder does not count as the program when coverage guides the fuzzer.
function(verlume_not_covered)
  if(VERLUME_FUZZ)
    add_compile_options(-Wno-unused-command-line-argument
      -fno-sanitize-coverage=inline-8bit-counters,pc-table,trace-cmp,indirect-calls)
  endif()
endfunction()

# verlume_library(NAME SOURCES... [LINKS targets...]): one room of the house. Every library sees
# src/ as its include root; what it may link is what its floor may use.
function(verlume_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_LINKS})
endfunction()
