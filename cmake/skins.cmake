# The shipped skins: each has its own colours, all share the palette roles. The skin files made of them are complete.
set(AMBERTASK_SKINS Aqua Classic Contrast Lemon Midnight)

set(skin_sources "${PROJECT_SOURCE_DIR}/resources/skins")
set(skin_files)
foreach(skin IN LISTS AMBERTASK_SKINS)
  set(skin_file "${AMBERTASK_PROGRAM_FOLDER}/Skins/${skin}.skf")
  add_custom_command(
    OUTPUT "${skin_file}"
    COMMAND
      "${CMAKE_COMMAND}" "-DCOLORS=${skin_sources}/${skin}.colors" "-DROLES=${skin_sources}/roles.txt"
      "-DOUTPUT=${skin_file}" -P "${CMAKE_CURRENT_LIST_DIR}/make_skin.cmake"
    DEPENDS "${skin_sources}/${skin}.colors" "${skin_sources}/roles.txt"
            "${CMAKE_CURRENT_LIST_DIR}/make_skin.cmake"
    COMMENT "Making the skin ${skin}"
    VERBATIM)
  list(APPEND skin_files "${skin_file}")
  ambertask_ship("Skins/${skin}.skf")
endforeach()
add_custom_target(skins ALL DEPENDS ${skin_files})
