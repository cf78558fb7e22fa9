# Makes the catalogues of resources/translations at build time and embeds them: whoever has the program has its
# languages, and a start reads no further file.
get_target_property(qtpaths_tool Qt6::qtpaths IMPORTED_LOCATION)
execute_process(COMMAND "${qtpaths_tool}" --query QT_HOST_BINS OUTPUT_VARIABLE qt_tools
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
find_program(LRELEASE lrelease HINTS "${qt_tools}" REQUIRED)
find_program(LUPDATE lupdate HINTS "${qt_tools}" REQUIRED)

set(AMBERTASK_TRANSLATIONS "${PROJECT_SOURCE_DIR}/resources/translations")

# ambertask_embed_translations(<target>): Qt resources :/translations/ambertask_<language>.qm
function(ambertask_embed_translations target)
  file(GLOB sources CONFIGURE_DEPENDS "${AMBERTASK_TRANSLATIONS}/ambertask_*.ts")
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/translations")
  file(MAKE_DIRECTORY "${folder}")
  set(catalogues)
  foreach(source IN LISTS sources)
    cmake_path(GET source STEM name)
    set(catalogue "${folder}/${name}.qm")
    add_custom_command(
      OUTPUT "${catalogue}"
      COMMAND "${LRELEASE}" -silent "${source}" -qm "${catalogue}"
      DEPENDS "${source}"
      COMMENT "Making the catalogue ${name}"
      VERBATIM)
    set_source_files_properties("${catalogue}" PROPERTIES QT_RESOURCE_ALIAS "${name}.qm")
    list(APPEND catalogues "${catalogue}")
  endforeach()
  # Not compressed, they are used where they lie in the executable.
  qt_add_resources(${target} "${target}_translations" PREFIX "/translations" OPTIONS --no-compress FILES ${catalogues})
endfunction()
