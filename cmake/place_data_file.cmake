# Puts the shipped data file in place where there is none yet, private to its owner.
if(NOT EXISTS "${DATA_FILE}")
  file(COPY_FILE "${SHIPPED}" "${DATA_FILE}")
  file(CHMOD "${DATA_FILE}" PERMISSIONS OWNER_READ OWNER_WRITE)
endif()
