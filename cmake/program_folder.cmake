# Fills the program folder of the build tree: what the executable expects to find beside it.
find_program(SQLITE3_TOOL sqlite3 REQUIRED)
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)

# The shipped data file, made from the schema. Kept apart from the program folder: a data.dat that is in use there is
# never touched by a build.
function(ambertask_data_file schema output)
  add_custom_command(
    OUTPUT "${output}"
    COMMAND "${CMAKE_COMMAND}" -E rm -f "${output}"
    COMMAND "${SQLITE3_TOOL}" -bail "${output}" ".read '${schema}'"
    COMMAND chmod 600 "${output}"
    DEPENDS "${schema}"
    COMMENT "Making data.dat"
    VERBATIM)
endfunction()

set(AMBERTASK_SHIPPED_DATA_FILE "${CMAKE_BINARY_DIR}/shipped/data.dat")
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/shipped")
ambertask_data_file("${PROJECT_SOURCE_DIR}/src/data/schema.sql" "${AMBERTASK_SHIPPED_DATA_FILE}")
add_custom_target(shipped_data_file DEPENDS "${AMBERTASK_SHIPPED_DATA_FILE}")

# ambertask_ship(<file>...)
# Files of the program folder, named by their paths in it, that are shipped in packages.
function(ambertask_ship)
  set_property(GLOBAL APPEND PROPERTY AMBERTASK_SHIPPED_FILES ${ARGN})
endfunction()
