# What only the executable of Windows has: static libraries, its icon, its version, and its manifest.
enable_language(RC)
set(CMAKE_WIN32_EXECUTABLE ON)  # opens no console
# Their headers would look for DLLs.
add_compile_definitions(HUNSPELL_STATIC MINIUPNP_STATICLIB)

# The icon holds the pictures of share/icons/. What the resources name is compiled only with them.
find_program(VERLUME_CONVERT convert REQUIRED)
set(icon ${PROJECT_BINARY_DIR}/windows/verlume.ico)
set(pictures)
foreach(size 16 24 32 48 64 128 256)
  list(APPEND pictures ${PROJECT_SOURCE_DIR}/share/icons/hicolor/${size}x${size}/apps/verlume.png)
endforeach()
add_custom_command(OUTPUT ${icon}
  COMMAND ${VERLUME_CONVERT} ${pictures} ${icon}
  DEPENDS ${pictures}
  VERBATIM)
add_custom_target(verlume_icon DEPENDS ${icon})

string(REPLACE "." "," VERLUME_VERSION_NUMBERS ${PROJECT_VERSION}.0)
foreach(file verlume.manifest verlume.rc)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/windows/${file}.in ${PROJECT_BINARY_DIR}/windows/${file} @ONLY)
endforeach()

# A library, since the icon has to be there first.
add_library(verlume_windows_resources OBJECT ${PROJECT_BINARY_DIR}/windows/verlume.rc)
add_dependencies(verlume_windows_resources verlume_icon)
set_source_files_properties(${PROJECT_BINARY_DIR}/windows/verlume.rc PROPERTIES
  OBJECT_DEPENDS "${icon};${PROJECT_BINARY_DIR}/windows/verlume.manifest")
set(VERLUME_WINDOWS_RESOURCES $<TARGET_OBJECTS:verlume_windows_resources>)
