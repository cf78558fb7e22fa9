# The packages: one of the distribution, and an archive to unpack and run. script/package makes both.
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_SOURCE_DIR}/package_formats.cmake")
set(CPACK_PACKAGE_NAME ambertask)
set(CPACK_PACKAGE_VENDOR "Ambertask developers")
set(CPACK_PACKAGE_CONTACT "${AMBERTASK_CONTACT}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "desktop organizer for personal tasks with reminders")
set(CPACK_PACKAGE_FILE_NAME "ambertask-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR}")
set(CPACK_STRIP_FILES ON)
# Read by the configuration of the formats.
set(CPACK_AMBERTASK_BUILD "${CMAKE_BINARY_DIR}")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE "${AMBERTASK_PACKAGE_RELEASE}")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "https://www.ambertask.example")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# For opening web pages, for a system without fonts, for Qt's own texts (file dialogs, calendar) in other languages than
# English, and for Wayland desktops.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "xdg-utils, fonts-dejavu-core, qt6-translations-l10n, qt6-wayland")
set(CPACK_PACKAGE_DESCRIPTION
    "Ambertask keeps your tasks, files them under categories and reminds you of
them in time: by an alert, with a sound and by starting a program.
.
It lives in the notification area. All data lies in one file in the home
folder of its user, with backup and restore.")

include(CPack)
