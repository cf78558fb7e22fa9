# Renders the SVG sources to PNG at build time, so that the program needs no SVG reader at run time.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)

# ambertask_render_png(<svg> <height> <png>)
function(ambertask_render_png svg height png)
  add_custom_command(
    OUTPUT "${png}"
    COMMAND "${RSVG_CONVERT}" --height ${height} --keep-aspect-ratio --output "${png}" "${svg}"
    DEPENDS "${svg}"
    VERBATIM)
endfunction()

# ambertask_render_icons(<target> PREFIX <resource prefix> SIZES <n>... SVGS <file>...)
# Adds the pixels of every file in every size, <size>/<name>.pixels, to <target> as Qt resources below <resource prefix>.
# A resource folder for each size, because files of one folder are neighbours in the executable: a start reads the small
# ones, and their neighbours come into memory with them.
function(ambertask_render_icons target)
  cmake_parse_arguments(ARG "" "PREFIX" "SIZES;SVGS" ${ARGN})
  string(MAKE_C_IDENTIFIER "${target}${ARG_PREFIX}" resource_name)
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/${resource_name}")
  file(MAKE_DIRECTORY "${folder}")
  set(pngs)
  set(pixels)
  set(small_pixels)
  set(large_pixels)
  foreach(svg IN LISTS ARG_SVGS)
    cmake_path(GET svg STEM name)
    foreach(size IN LISTS ARG_SIZES)
      set(png "${folder}/${name}-${size}.png")
      ambertask_render_png("${svg}" ${size} "${png}")
      list(APPEND pngs "${png}")
      set(file "${folder}/${name}-${size}.pixels")
      set_source_files_properties("${file}" PROPERTIES QT_RESOURCE_ALIAS "${size}/${name}.pixels")
      list(APPEND pixels "${file}")
      if(size LESS_EQUAL 32)
        list(APPEND small_pixels "${file}")
      else()
        list(APPEND large_pixels "${file}")
      endif()
    endforeach()
  endforeach()
  set(writer "${PROJECT_SOURCE_DIR}/cmake/write_pixels.py")
  add_custom_command(
    OUTPUT ${pixels}
    COMMAND "${Python3_EXECUTABLE}" "${writer}" "${folder}" ${pngs}
    DEPENDS "${writer}" ${pngs}
    VERBATIM)
  # A start reads some of the small ones, and would spend more on unpacking than on reading.
  qt_add_resources(${target} "${resource_name}_small" PREFIX "${ARG_PREFIX}" OPTIONS --no-compress
    FILES ${small_pixels})
  qt_add_resources(${target} "${resource_name}_large" PREFIX "${ARG_PREFIX}" FILES ${large_pixels})
endfunction()
