# What Windows reads of an executable before it runs: icon, version, and the manifest with what it may be told.
enable_language(RC)

set(AMBERTASK_WINDOWS_ICON "${CMAKE_BINARY_DIR}/ambertask.ico")
set(pngs)
foreach(size IN ITEMS 16 20 24 32 40 48 64 256)
  set(png "${CMAKE_BINARY_DIR}/ambertask-${size}.png")
  ambertask_render_png("${PROJECT_SOURCE_DIR}/resources/icons/program/ambertask.svg" ${size} "${png}")
  list(APPEND pngs "${png}")
endforeach()
set(icon_writer "${CMAKE_CURRENT_LIST_DIR}/write_icon.py")
add_custom_command(
  OUTPUT "${AMBERTASK_WINDOWS_ICON}"
  COMMAND "${Python3_EXECUTABLE}" "${icon_writer}" "${AMBERTASK_WINDOWS_ICON}" ${pngs}
  DEPENDS "${icon_writer}" ${pngs}
  VERBATIM)
add_custom_target(windows_icon DEPENDS "${AMBERTASK_WINDOWS_ICON}")

file(STRINGS "${PROJECT_SOURCE_DIR}/LICENSE" AMBERTASK_COPYRIGHT REGEX "^Copyright")
set(AMBERTASK_WINDOWS_RESOURCES "${PROJECT_SOURCE_DIR}/packaging/windows")

# ambertask_windows_resources(<executable> <description>)
function(ambertask_windows_resources target description)
  string(REPLACE "." "," version_numbers "${PROJECT_VERSION}")
  set(file "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
  set(manifest "${CMAKE_BINARY_DIR}/Ambertask.manifest")
  configure_file("${AMBERTASK_WINDOWS_RESOURCES}/Ambertask.manifest.in" "${manifest}" @ONLY)
  configure_file("${AMBERTASK_WINDOWS_RESOURCES}/Ambertask.rc.in" "${file}" @ONLY)
  set_source_files_properties("${file}" PROPERTIES OBJECT_DEPENDS "${AMBERTASK_WINDOWS_ICON};${manifest}")
  target_sources(${target} PRIVATE "${file}")
  add_dependencies(${target} windows_icon)
endfunction()
