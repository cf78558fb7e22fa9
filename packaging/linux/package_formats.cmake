# Read by CPack once for each format: what goes into it.
if(CPACK_GENERATOR STREQUAL DEB)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_AMBERTASK_BUILD};Ambertask;system;/;${CPACK_AMBERTASK_BUILD};Ambertask;debian;/")
else()
  # The prefix is the one folder in it. No file in there is a user's: unpacking it over another version harms nobody.
  set(CPACK_PACKAGING_INSTALL_PREFIX /Ambertask)
  set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_AMBERTASK_BUILD};Ambertask;system;/;${CPACK_AMBERTASK_BUILD};Ambertask;archive;/")
endif()
