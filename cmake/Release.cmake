# Reads CHANGELOG.md: sets VERLUME_RELEASE_DATE, the date of the version that the project has, and
# VERLUME_DEBIAN_CHANGELOG, the same text in the form that Debian's packages carry. Configuring fails
# while the newest version there is not the project's: whoever gives it a new version has to say what
# users will notice.
set(VERLUME_MAINTAINER "The Verlume team <verlume@example.org>")

set(changelog ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changelog})
file(READ ${changelog} text)
# A list would end at these.
string(REGEX REPLACE ";" "," text "${text}")
string(REGEX REPLACE "\n" ";" lines "${text}")

set(VERLUME_DEBIAN_CHANGELOG "")
set(signature "")
set(VERLUME_RELEASE_DATE "")
foreach(line IN LISTS lines)
  if(line MATCHES "^## ([0-9.]+) \\(([0-9]+-[0-9]+-[0-9]+)\\)$")
    set(version ${CMAKE_MATCH_1})
    set(date ${CMAKE_MATCH_2})
    if(NOT VERLUME_RELEASE_DATE)
      set(VERLUME_RELEASE_DATE ${date})
      if(NOT version STREQUAL PROJECT_VERSION)
        message(FATAL_ERROR
          "The project is ${PROJECT_VERSION}, but the newest version in CHANGELOG.md is ${version}.")
      endif()
    endif()
    execute_process(COMMAND env LC_ALL=C date -uR -d ${date}
                    OUTPUT_VARIABLE stamp OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    string(APPEND VERLUME_DEBIAN_CHANGELOG
      "${signature}verlume (${version}) stable; urgency=medium\n\n")
    set(signature "\n -- ${VERLUME_MAINTAINER}  ${stamp}\n\n")
  elseif(line MATCHES "^- (.+)$")
    string(APPEND VERLUME_DEBIAN_CHANGELOG "  * ${CMAKE_MATCH_1}\n")
  elseif(line MATCHES "^  (.+)$")
    string(APPEND VERLUME_DEBIAN_CHANGELOG "    ${CMAKE_MATCH_1}\n")
  endif()
endforeach()
string(APPEND VERLUME_DEBIAN_CHANGELOG "${signature}")
string(REGEX REPLACE "\n\n$" "\n" VERLUME_DEBIAN_CHANGELOG "${VERLUME_DEBIAN_CHANGELOG}")
if(NOT VERLUME_RELEASE_DATE)
  message(FATAL_ERROR "CHANGELOG.md names no version: \"## 1.2.3 (2026-01-31)\" is one.")
endif()
