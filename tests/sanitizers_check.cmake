# Checks that whatever the tests run is built with AddressSanitizer and UndefinedBehaviorSanitizer, and
# that what these find fails a test.
#   cmake -DBUILD=... -P sanitizers_check.cmake
file(READ ${BUILD}/compile_commands.json output)
string(REGEX MATCHALL "\"command\": \"[^\n]*" commands "${output}")
if(NOT commands)
  message(SEND_ERROR "compile_commands.json holds no commands")
endif()
foreach(command IN LISTS commands)
  foreach(flag IN ITEMS -fsanitize=address,undefined -fno-sanitize-recover=all)
    if(NOT command MATCHES "${flag}( |$)")
      message(SEND_ERROR "Built without ${flag}: ${command}")
    endif()
  endforeach()
endforeach()
