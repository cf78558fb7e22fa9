# Read by CPack once for each format: what goes into it.
if(CPACK_GENERATOR STREQUAL DEB)
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_AMBERTASK_BUILD};Ambertask;system;/;${CPACK_AMBERTASK_BUILD};Ambertask;debian;/")
else()
  # The program folder itself is the one folder in it.
  set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_AMBERTASK_BUILD};Ambertask;portable;/")
endif()
