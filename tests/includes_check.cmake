# Every include points down: a file includes only files of its own folder, or of one that stands
# before it here. Nothing but platform_qt/ and main.cpp includes Qt.
# Run as: cmake -DSOURCE=<src> -P includes_check.cmake
cmake_minimum_required(VERSION 3.25)

set(ground richtext platform stream spelling)
# On the ground stand, beside each other, the logic and what makes the platform real.
set(logic ${ground} shell people reach records macros/store commands/dialogue connection commands
  macros shell/start shell/program)
set(platform_qt ${ground} platform_qt/os platform_qt/convert platform_qt/system platform_qt/copies
  platform_qt/privacy platform_qt/net platform_qt/fonts platform_qt/network platform_qt/router
  platform_qt/controls platform_qt/dialogs platform_qt/text platform_qt/spelling platform_qt/help platform_qt/attention
  platform_qt/windows platform_qt)

function(folder_of path result)
  get_filename_component(folder "${path}" DIRECTORY)
  set(${result} "${folder}" PARENT_SCOPE)
endfunction()

# The folders whose files a file of this folder may include.
function(folders_below folder result)
  foreach(tower logic platform_qt)
    list(FIND ${tower} "${folder}" place)
    if(place GREATER_EQUAL 0)
      math(EXPR length "${place} + 1")
      list(SUBLIST ${tower} 0 ${length} below)
      set(${result} ${below} PARENT_SCOPE)
      return()
    endif()
  endforeach()
  message(SEND_ERROR "${folder}/ stands on no floor: name it in includes_check.cmake")
endfunction()

function(check_file file)
  folder_of("${file}" folder)
  if(file STREQUAL "main.cpp")
    set(below ${logic} ${platform_qt})
  else()
    folders_below("${folder}" below)
  endif()
  file(STRINGS "${SOURCE}/${file}" lines REGEX "^#include")
  foreach(line IN LISTS lines)
    if(line MATCHES "<Q[A-Za-z/]+>" AND NOT file MATCHES "^(platform_qt/|main\\.cpp$)")
      message(SEND_ERROR "${file} includes Qt: ${line}")
    endif()
    if(line MATCHES "^#include \"([^\"]+)\"")
      set(included "${CMAKE_MATCH_1}")
      folder_of("${included}" other)
      if(NOT other IN_LIST below)
        message(SEND_ERROR "${file} includes ${included}, which does not stand below it")
      endif()
    endif()
  endforeach()
endfunction()

file(GLOB_RECURSE files RELATIVE "${SOURCE}" "${SOURCE}/*.h" "${SOURCE}/*.cpp")
foreach(file IN LISTS files)
  check_file("${file}")
endforeach()
