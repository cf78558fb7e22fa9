# Where an installation below a prefix puts its files. On Windows the program stays in one folder.
if(NOT WIN32)
  set(AMBERTASK_INSTALLS_TO_PREFIX ON)
  include(GNUInstallDirs)
  # Debian wants the name of the package, in lower case.
  set(AMBERTASK_INSTALL_DOC_FOLDER "${CMAKE_INSTALL_DATAROOTDIR}/doc/ambertask")
  set(AMBERTASK_INSTALL_SHIPPED_FOLDER "${CMAKE_INSTALL_DATADIR}/ambertask")
  # A running copy must not load the modules of the version that has replaced it.
  set(AMBERTASK_INSTALL_MODULE_FOLDER "${CMAKE_INSTALL_LIBDIR}/ambertask/${PROJECT_VERSION}")
  set(AMBERTASK_INSTALL_FULL_SHIPPED_FOLDER "${CMAKE_INSTALL_FULL_DATADIR}/ambertask")
  set(AMBERTASK_INSTALL_FULL_MODULE_FOLDER "${CMAKE_INSTALL_FULL_LIBDIR}/ambertask/${PROJECT_VERSION}")
endif()
