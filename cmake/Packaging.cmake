# The Debian package: what `cmake --install` installs, and what lintian is told about it.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME verlume)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "${VERLUME_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_INSTALL_CMAKE_PROJECTS
    ${PROJECT_BINARY_DIR} Verlume ALL /
    ${PROJECT_BINARY_DIR} Verlume debian /)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The first: the dictionaries that spelling asks. The second: windows of Wayland's own.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "hunspell-el, hunspell-en-us")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"typed conversation between two computers, without a server
Verlume lets the owners of two computers exchange typed messages in real
time, over one direct TCP connection. One side waits on a port, the other
calls it, and the waiting side is asked whether to accept.
.
Every line keeps its sender's font, size, colour and style. Everything can
be done from the menus and with typed commands, in English and in Greek.
Dialogues can be saved, logged and searched.
.
Two copies talk in private by themselves: nobody between them can read or
change what they say, and a lock tells so. With another program the
conversation is not encrypted.")

include(CPack)
